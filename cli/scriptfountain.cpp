#include "inputs.h"

#include "scriptcommand.h"

#include "core/mrvcoreutil.h"
#include "epub/mrvscriptbook.h"
#include "publish/mrvoutputfiles.h"
#include "screenplay/mrvscriptfile.h"
#include "screenplay/mrvscriptstatistics.h"
#include "scriptmode/mrvscriptmode.h"
#include "util/mrvfixeddate.h"
#include "util/mrvnames.h"

#include <QFileInfo>
#include <QJsonObject>

namespace {

const QLatin1String StandardStream("-");

using Format = MRVScriptFile::Format;

// Reads a script; @p error names the file.
bool readScript(const QString &path, const QString &from, MRVScriptFile *file, QString *error)
{
    const bool standard = path == StandardStream;
    const Format format = !from.isEmpty() ? MRVScriptFile::formatNamed(from)
        : standard                        ? MRVScriptFile::Fountain
                                          : MRVScriptFile::formatOfFile(path);
    QString reason;
    const QByteArray bytes =
        standard ? standardInput(&reason) : MRVCoreUtil::ReadBinaryFile(path, &reason);
    if (!reason.isEmpty()) {
        *error = reason;
        return false;
    }
    if (file->read(bytes, format, &reason)) {
        return true;
    }
    const bool isUnknown = format == MRVScriptFile::UnknownFormat || format == MRVScriptFile::EPub;
    *error = path + QLatin1String(": ") + reason
        + QLatin1String(isUnknown ? "; say with --from what it is" : "");
    return false;
}

// After the script was written, which may fail.
void printLeftOut(const QString &path, const MRVScriptFile &file)
{
    if (!file.leftOut().isEmpty()) {
        printError(QStringLiteral("%1: without what stands in %2")
                       .arg(path, file.leftOut().join(QLatin1String(", "))));
    }
}

bool isSameFile(const QString &a, const QString &b)
{
    const QString real = QFileInfo(a).canonicalFilePath();
    return !real.isEmpty() && real == QFileInfo(b).canonicalFilePath();
}

struct ConvertOptions
{
    QString input;
    QString from;
    Format to = MRVScriptFile::UnknownFormat;
    QString output; // the file
    MRVScriptMode mode;
    QString language;
    MRVScriptBook::Typeface typeface = MRVScriptBook::ReadersChoice;
    bool json = false;
};

// -1 to go on, else the exit code.
int readOptions(const Call &call, ConvertOptions *options)
{
    const QString to = call.value("to");
    const QString output = call.value("output");
    options->input = call.arguments.constFirst();
    options->from = call.value("from");
    options->to =
        to.isEmpty() ? MRVScriptFile::formatOfFile(output) : MRVScriptFile::formatNamed(to);
    options->json = call.has("json");
    if (options->to == MRVScriptFile::UnknownFormat) {
        return usageError(
            QStringLiteral("say with --to what to write: fountain, html, fdx or epub"));
    }
    const Format named = output == StandardStream ? MRVScriptFile::UnknownFormat
                                                  : MRVScriptFile::formatOfFile(output);
    if (named != MRVScriptFile::UnknownFormat && named != options->to
        && !QFileInfo(output).isDir()) {
        return usageError(
            QStringLiteral("--to says %1, but the name '%2' something else").arg(to, output));
    }
    QString error;
    if (!readLanguage(call, &options->language, &error)) {
        return usageError(error);
    }
    const QString mode = call.value("mode");
    if (!mode.isEmpty() && options->to != MRVScriptFile::EPub) {
        return usageError(QStringLiteral("--mode is for e-books only"));
    }
    if (call.has("fixed-pitch")) {
        if (options->to != MRVScriptFile::EPub) {
            return usageError(QStringLiteral("--fixed-pitch is for e-books only"));
        }
        options->typeface = MRVScriptBook::FixedPitch;
    }
    QDateTime unused;
    if (options->to == MRVScriptFile::EPub && !MRVFixedDate::fromEnvironment(&unused, &error)) {
        return usageError(error);
    }
    options->mode.loadFactoryDefaults();
    if (!mode.isEmpty() && !options->mode.loadNamed(mode, &error)) {
        return refuse(error);
    }
    return -1;
}

// Finds the file to write. @return -1 to go on, else the exit code.
int readOutput(const QString &output, ConvertOptions *options)
{
    options->output = MRVOutputFiles::fileFor(options->input, output, QStringLiteral("script"),
                                              MRVScriptFile::suffix(options->to));
    const bool toFile = options->output != StandardStream;
    // Nobody named it, so what stands there may be somebody's work.
    if (toFile && (output.isEmpty() || QFileInfo(output).isDir())
        && QFileInfo::exists(options->output)) {
        return refuse(
            QStringLiteral("%1 exists; name it with -o to replace it").arg(options->output));
    }
    return toFile && options->input != StandardStream && isSameFile(options->input, options->output)
        ? refuse(QStringLiteral("%1: the output would replace the input; choose another with -o")
                     .arg(options->output))
        : -1;
}

} // namespace

int runScriptConvert(const Call &call)
{
    ConvertOptions options;
    int code = readOptions(call, &options);
    code = code >= 0 ? code : readOutput(call.value("output"), &options);
    if (code >= 0) {
        return code;
    }
    MRVScriptFile script;
    QString error;
    if (!readScript(options.input, options.from, &script, &error)) {
        return refuse(error);
    }
    const QString language =
        options.language.isEmpty() ? MRV::languageTag(script.language()) : options.language;
    const MRVFountainScript written =
        call.has("printed") ? script.script().printed() : script.script();
    const QByteArray bytes = options.to == MRVScriptFile::EPub
        ? MRVScriptBook::toByteArray(written, options.mode, language, options.typeface, &error)
        : MRVScriptFile::toByteArray(written, options.to, language);
    if (!error.isEmpty() || !writeOutput(bytes, options.output, &error)) {
        return refuse(error);
    }
    printLeftOut(options.input, script);
    if (options.output != StandardStream && options.json) {
        printJson(
            {{QStringLiteral("path"), options.output}, {QStringLiteral("bytes"), bytes.size()}});
    } else if (options.output != StandardStream) {
        printLine(options.output);
    }
    return Done;
}

namespace {

void printStatistics(const QString &path, const MRVScriptStatistics &statistics)
{
    printLine(QStringLiteral("%1: scenes %2, pages %3, minutes %4, words %5")
                  .arg(styled(Style::Path, path), QString::number(statistics.scenes),
                       statistics.pagesText(), QString::number(statistics.minutes()),
                       QString::number(statistics.words)));
    for (const auto &character : statistics.characters) {
        printLine(QStringLiteral("  %1: speeches %2, lines %3, words %4, scenes %5")
                      .arg(displayed(character.name), QString::number(character.speeches),
                           QString::number(character.lines), QString::number(character.words),
                           QString::number(character.scenes)));
    }
}

} // namespace

int runScriptStats(const Call &call)
{
    bool ok = true;
    for (const QString &input : call.arguments) {
        MRVScriptFile file;
        QString error;
        if (!readScript(input, call.value("from"), &file, &error)) {
            printError(error); // the others can still be counted
            ok = false;
            continue;
        }
        const MRVScriptStatistics statistics = MRVScriptStatistics::of(file.script());
        if (call.has("json")) {
            QJsonObject object = statistics.toJson();
            object.insert(QStringLiteral("path"), input);
            printJson(object);
        } else {
            printStatistics(input, statistics);
        }
    }
    return ok ? Done : Failed;
}

int runScriptRename(const Call &call)
{
    const QStringList &names = call.arguments;
    if (names.at(0).trimmed().isEmpty() || names.at(1).trimmed().isEmpty()) {
        return usageError(QStringLiteral("a name is empty"));
    }
    if (names.at(1).contains(u'\n') || names.at(1).contains(u'\r')) {
        return usageError(QStringLiteral("a name is one line"));
    }
    MRVScriptFile file;
    QString error;
    if (!readScript(names.at(2), call.value("from"), &file, &error)) {
        return refuse(error);
    }
    const QString output = call.value("output");
    // Documents and pages may hold more than scripts: revisions, headers, what others have added.
    if (isSameFile(names.at(2), output) && file.revised() != file.source()) {
        return refuse(
            QStringLiteral("%1: not all that it may hold would be kept; choose another with -o")
                .arg(output));
    }
    MRVScriptDocument::RenameScope scope;
    scope.setFlag(MRVScriptDocument::InDialogue, call.has("dialogue"));
    scope.setFlag(MRVScriptDocument::InAction, call.has("action"));
    const int count = file.renameCharacter(names.at(0), names.at(1), scope);
    if (count == 0) {
        const bool isSame =
            names.at(0).simplified().toUpper() == names.at(1).simplified().toUpper();
        return refuse((isSame ? QStringLiteral("%1: '%2' is the same name")
                              : QStringLiteral("%1: nobody is called '%2'"))
                          .arg(names.at(2), names.at(isSame ? 1 : 0)));
    }
    const QString target = output.isEmpty() ? QString(StandardStream) : output;
    if (!writeOutput(file.revised(), target, &error)) {
        return refuse(error);
    }
    printLeftOut(names.at(2), file);
    if (target != StandardStream && call.has("json")) {
        printJson({{QStringLiteral("path"), target}, {QStringLiteral("renamed"), count}});
    } else if (target != StandardStream) {
        printLine(QStringLiteral("%1: %2 renamed").arg(target).arg(count));
    }
    return Done;
}
