#include "inputs.h"

#include "scriptcommand.h"

#include "core/mrvcoreutil.h"
#include "epub/mrvscriptbook.h"
#include "pdf/mrvpdfwriter.h"
#include "pdf/mrvscriptpdf.h"
#include "publish/mrvoutputfiles.h"
#include "screenplay/mrvscriptcast.h"
#include "screenplay/mrvscriptfile.h"
#include "screenplay/mrvscriptpagination.h"
#include "screenplay/mrvscriptstatistics.h"
#include "scriptmode/mrvscriptmode.h"
#include "util/mrvfailure.h"
#include "util/mrvfixeddate.h"
#include "util/mrvnames.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

namespace {

const QLatin1String StandardStream("-");

using Format = MRVScriptFile::Format;

} // namespace

bool readScriptFile(const Call &call, const QString &path, MRVScriptFile *file, MRVErrorSink error)
{
    const QString from = call.value("from");
    const bool standard = path == StandardStream;
    const Format format = !from.isEmpty() ? MRVScriptFile::formatNamed(from)
        : standard                        ? MRVScriptFile::Fountain
                                          : MRVScriptFile::formatOfFile(path);
    MRVError reason;
    const QByteArray bytes =
        standard ? standardInput(&reason) : MRVCoreUtil::readStream(path, &reason);
    if (reason) {
        return MRV::fail(error, reason);
    }
    if (file->read(bytes, format, call.value("encoding").toLatin1(), &reason)) {
        return true;
    }
    const bool isUnknown = format == MRVScriptFile::UnknownFormat || format == MRVScriptFile::EPub
        || format == MRVScriptFile::Pdf;
    const bool isText = format == MRVScriptFile::Fountain;
    const char *const hint = isUnknown ? "; say with --from what it is"
        : isText                       ? "; give the right encoding with --encoding"
                                       : "";
    return MRV::fail(error, reason.kind,
                     path + QLatin1String(": ") + reason.text + QLatin1String(hint));
}

namespace {

// After the script was written, which may fail.
void printLosses(const QString &path, const MRVScriptFile &file, Format to)
{
    QStringList losses = file.losses();
    if (file.format() == MRVScriptFile::FinalDraft && to == MRVScriptFile::FinalDraft) {
        losses.append(QStringLiteral("settings, layout and lists are those of a new document"));
    }
    for (const QString &loss : losses) {
        printNote(QStringLiteral("%1: %2").arg(path, loss));
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
    Format to = MRVScriptFile::UnknownFormat;
    QString output; // the file
    MRVScriptMode mode;
    MRVScriptPdf::Options pdf;
    QString language;
    MRVScriptBook::Typeface typeface = MRVScriptBook::ReadersChoice;
    bool json = false;
};

QByteArray bytesOf(const MRVFountainScript &script, const ConvertOptions &options, QString *missing,
                   MRVErrorSink error)
{
    switch (options.to) {
    case MRVScriptFile::EPub:
        return MRVScriptBook::toByteArray(script, options.mode, options.language, options.typeface,
                                          error);
    case MRVScriptFile::Pdf: {
        MRVScriptPdf::Options pdf = options.pdf;
        pdf.language = options.language;
        return MRVScriptPdf::toByteArray(script, options.mode, pdf, error, missing);
    }
    default:
        return MRVScriptFile::toByteArray(script, options.to, options.language);
    }
}

constexpr const char *pdfOptions[] = {"paper",     "pages",         "character",
                                      "watermark", "scene-numbers", "continued"};

// Reads "3-10", "3-" or "3".
bool readPages(const QString &text, MRVScriptPdf::Options *options)
{
    static const QRegularExpression pages(QStringLiteral("^([1-9]\\d{0,5})(-([1-9]\\d{0,5})?)?$"));
    const QRegularExpressionMatch match = pages.match(text);
    options->firstPage = match.captured(1).toInt();
    options->lastPage =
        match.capturedLength(2) == 0 ? options->firstPage : match.captured(3).toInt();
    return match.hasMatch() && (options->lastPage == 0 || options->lastPage >= options->firstPage);
}

bool readPdfOptions(const Call &call, MRVScriptPdf::Options *options, MRVErrorSink error)
{
    if (call.has("pages") && !readPages(call.value("pages"), options)) {
        return MRV::fail(
            error,
            QStringLiteral("'%1' is no range of pages such as 3-10").arg(call.value("pages")));
    }
    options->pagination.paper = MRVScriptPagination::paperNamed(call.value("paper"));
    options->pagination.sceneNumbers = call.has("scene-numbers");
    options->pagination.sceneContinuations = call.has("continued");
    options->character = call.value("character");
    options->watermark = call.value("watermark").simplified();
    return true;
}

// -1 to go on, else the exit code.
int readOptions(const Call &call, ConvertOptions *options)
{
    const QString to = call.value("to");
    const QString output = call.value("output");
    options->input = call.arguments.constFirst();
    options->to =
        to.isEmpty() ? MRVScriptFile::formatOfFile(output) : MRVScriptFile::formatNamed(to);
    options->json = call.has("json");
    if (options->to == MRVScriptFile::UnknownFormat) {
        return usageError(
            QStringLiteral("say with --to what to write: fountain, html, fdx, epub or pdf"));
    }
    const Format named = output == StandardStream ? MRVScriptFile::UnknownFormat
                                                  : MRVScriptFile::formatOfFile(output);
    if (named != MRVScriptFile::UnknownFormat && named != options->to
        && !QFileInfo(output).isDir()) {
        return usageError(
            QStringLiteral("--to says %1, but the name '%2' something else").arg(to, output));
    }
    MRVError error;
    if (!readLanguage(call, &options->language, &error)) {
        return usageError(error.text);
    }
    const bool isPdf = options->to == MRVScriptFile::Pdf;
    const bool isLaidOut = isPdf || options->to == MRVScriptFile::EPub;
    const QString mode = call.value("mode");
    if (!mode.isEmpty() && !isLaidOut) {
        return usageError(QStringLiteral("--mode is for e-books and PDF documents only"));
    }
    for (const char *option : pdfOptions) {
        if (call.has(option) && !isPdf) {
            return usageError(
                QStringLiteral("--%1 is for PDF documents only").arg(QLatin1String(option)));
        }
    }
    if (!readPdfOptions(call, &options->pdf, &error)) {
        return usageError(error.text);
    }
    if (call.has("fixed-pitch")) {
        if (options->to != MRVScriptFile::EPub) {
            return usageError(QStringLiteral("--fixed-pitch is for e-books only"));
        }
        options->typeface = MRVScriptBook::FixedPitch;
    }
    QDateTime unused;
    if (isLaidOut && !MRVFixedDate::fromEnvironment(&unused, &error)) {
        return usageError(error.text);
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
            MRVErrorKind::Other,
            QStringLiteral("%1 exists; name it with -o to replace it").arg(options->output));
    }
    return toFile && options->input != StandardStream && isSameFile(options->input, options->output)
        ? refuse(MRVErrorKind::Other,
                 QStringLiteral("%1: the output would replace the input; choose another with -o")
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
    MRVError error;
    if (!readScriptFile(call, options.input, &script, &error)) {
        return refuse(error);
    }
    if (options.language.isEmpty()) {
        options.language = MRV::languageTag(script.language());
    }
    const MRVFountainScript written =
        call.has("printed") ? script.script().printed() : script.script();
    QString missing;
    const QByteArray bytes = bytesOf(written, options, &missing, &error);
    if (error || !writeOutput(bytes, options.output, &error)) {
        return refuse(error);
    }
    if (!missing.isEmpty()) {
        printNote(MRVPdfWriter::missingCharactersNote(missing));
    }
    printLosses(options.input, script, options.to);
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
    printLine(QStringLiteral("%1: scenes %2, pages %3 (%4 printed), minutes %5, words %6")
                  .arg(styled(Style::Path, path), QString::number(statistics.scenes),
                       statistics.pagesText(), QString::number(statistics.printedPages),
                       QString::number(statistics.minutes()), QString::number(statistics.words)));
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
    MRVScriptMode mode;
    MRVScriptPagination::Options layout;
    MRVError modeError;
    if (!readLayout(call, &mode, &layout, &modeError)) {
        return refuse(modeError);
    }
    bool ok = true;
    for (const QString &input : call.arguments) {
        MRVScriptFile file;
        MRVError error;
        if (!readScriptFile(call, input, &file, &error)) {
            printError(error); // the others can still be counted
            ok = false;
            continue;
        }
        const MRVFountainScript script = file.script();
        const MRVScriptStatistics statistics =
            MRVScriptStatistics::of(script, MRVScriptPagination(script, mode, layout));
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
    const QString name = names.at(1).trimmed();
    const bool isOneLine = std::none_of(name.cbegin(), name.cend(), [](QChar character) {
        return character.category() == QChar::Other_Control || character == QChar::LineSeparator
            || character == QChar::ParagraphSeparator;
    });
    if (!isOneLine) {
        return usageError(QStringLiteral("a name is one line"));
    }
    if (MRVFountainScript::cueNameLength(name) < name.size() || name.endsWith(u'^')) {
        return usageError(
            QStringLiteral("'%1' is more than a name; extensions stay as they are").arg(name));
    }
    MRVScriptFile file;
    MRVError error;
    if (!readScriptFile(call, names.at(2), &file, &error)) {
        return refuse(error);
    }
    const QString output = call.value("output");
    // Pages may hold more than scripts: what others have added.
    if (isSameFile(names.at(2), output) && file.revised() != file.source()) {
        return refuse(
            MRVErrorKind::Other,
            QStringLiteral("%1: not all that it may hold would be kept; choose another with -o")
                .arg(output));
    }
    MRVScriptDocument::RenameScope scope;
    scope.setFlag(MRVScriptDocument::InDialogue, call.has("dialogue"));
    scope.setFlag(MRVScriptDocument::InAction, call.has("action"));
    const bool speaksAlready = MRVScriptCast(file.script()).speaks(names.at(1));
    const int count = file.renameCharacter(names.at(0), names.at(1), scope);
    const bool isSame = names.at(0).simplified().toUpper() == names.at(1).simplified().toUpper();
    if (count == 0) {
        return refuse(isSame ? MRVErrorKind::Other : MRVErrorKind::NotFound,
                      (isSame ? QStringLiteral("%1: '%2' is the same name")
                              : QStringLiteral("%1: nobody is called '%2'"))
                          .arg(names.at(2), names.at(isSame ? 1 : 0)));
    }
    const QString target = output.isEmpty() ? QString(StandardStream) : output;
    const QByteArray bytes = file.revised(&error);
    if (error) {
        return refuse(error.kind, QStringLiteral("%1: %2").arg(names.at(2), error.text));
    }
    if (!writeOutput(bytes, target, &error)) {
        return refuse(error);
    }
    const bool isMerged = speaksAlready && !isSame;
    if (isMerged) {
        printNote(QStringLiteral("%1: '%2' spoke already; both are one character now")
                      .arg(names.at(2), names.at(1)));
    }
    if (target != StandardStream && call.has("json")) {
        printJson({{QStringLiteral("path"), target},
                   {QStringLiteral("renamed"), count},
                   {QStringLiteral("merged"), isMerged}});
    } else if (target != StandardStream) {
        printLine(QStringLiteral("%1: %2 renamed").arg(target).arg(count));
    }
    return Done;
}

bool readLayout(const Call &call, MRVScriptMode *mode, MRVScriptPagination::Options *layout,
                MRVErrorSink error)
{
    mode->loadFactoryDefaults();
    layout->paper = MRVScriptPagination::paperNamed(call.value("paper"));
    return !call.has("mode") || mode->loadNamed(call.value("mode"), error);
}

bool writeRevised(MRVScriptFile *file, const MRVFountainScript &script, const QString &path,
                  const QString &target, MRVErrorSink error)
{
    // Pages may hold more than scripts: what others have added.
    if (isSameFile(path, target) && file->revised() != file->source()) {
        return MRV::fail(
            error,
            QStringLiteral("%1: not all that it may hold would be kept; choose another with -o")
                .arg(target));
    }
    file->setScript(script);
    MRVError reason;
    const QByteArray bytes = file->revised(&reason);
    if (reason) {
        return MRV::fail(error, path, reason);
    }
    return writeOutput(bytes, target, error);
}
