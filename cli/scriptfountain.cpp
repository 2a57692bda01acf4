#include "inputs.h"

#include "scriptcommand.h"

#include "core/mrvcoreutil.h"
#include "epub/mrvepubpackage.h"
#include "publish/mrvstagedfiles.h"
#include "screenplay/mrvfinaldraft.h"
#include "screenplay/mrvfountainhtml.h"
#include "screenplay/mrvscriptdocument.h"
#include "screenplay/mrvscriptstatistics.h"
#include "scriptmode/mrvscriptmode.h"
#include "util/mrvfixeddate.h"
#include "util/mrvnames.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTextCodec>
#include <QTextDocument>

namespace {

const QLatin1String StandardStream("-");

enum class Format { Fountain, Html, FinalDraft, EPub, Unknown };

// The first of a format's suffixes is the one that it is written with.
constexpr struct
{
    Format format;
    const char *name;
    const char *suffixes;
    bool isRead;
} formats[] = {{Format::Fountain, "fountain", "fountain spmd txt", true},
               {Format::Html, "html", "html htm xhtml", true},
               {Format::FinalDraft, "fdx", "fdx", true},
               {Format::EPub, "epub", "epub", false}};

Format formatNamed(const QString &name)
{
    for (const auto &row : formats) {
        if (name == QLatin1String(row.name)) {
            return row.format;
        }
    }
    return Format::Unknown;
}

Format formatOfFile(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    for (const auto &row : formats) {
        if (!suffix.isEmpty() && QString::fromLatin1(row.suffixes).split(u' ').contains(suffix)) {
            return row.format;
        }
    }
    return Format::Unknown;
}

// A script, and where it came from.
struct ScriptFile
{
    QString path;
    Format format = Format::Unknown;
    QByteArray bytes;
    MRVFountainScript script;
    QString text; // of a Fountain script, as it was typed
    QTextCodec *codec = nullptr; // of that text, where a byte-order mark tells of it
    QString language; // of a page
    QStringList leftOut; // sections of a Final Draft document
};

// Reads a script; @p error names the file.
bool readScript(const QString &path, const QString &from, ScriptFile *file, QString *error)
{
    const bool standard = path == StandardStream;
    file->path = path;
    file->format = !from.isEmpty() ? formatNamed(from)
        : standard                 ? Format::Fountain
                                   : formatOfFile(path);
    QString reason;
    const QByteArray &bytes = file->bytes =
        standard ? standardInput(&reason) : MRVCoreUtil::ReadBinaryFile(path, &reason);
    if (!reason.isEmpty()) {
        *error = reason;
        return false;
    }
    bool ok = false;
    if (file->format == Format::Html) {
        ok = MRVFountainHtml::fromHtml(bytes, &file->script, &reason, &file->language);
    } else if (file->format == Format::FinalDraft) {
        ok = MRVFinalDraft::fromXml(bytes, &file->script, &reason, &file->leftOut);
    } else if (file->format == Format::Fountain) {
        ok = MRVCoreUtil::decodeText(bytes, "UTF-8", &file->text, &reason);
        file->codec = QTextCodec::codecForUtfText(bytes, nullptr);
        file->script = MRVFountainScript::fromText(file->text);
    } else {
        reason = QStringLiteral("unknown type of script; say with --from what it is");
    }
    if (!ok) {
        *error = path + QLatin1String(": ") + reason;
    }
    return ok;
}

QStringList authorsOf(const MRVFountainScript &script)
{
    static const QRegularExpression joint(QStringLiteral("\\s*(?:\\n|&|,| and )\\s*"));
    const QString author = script.title(QStringLiteral("Author"));
    const QString all = author.isEmpty() ? script.title(QStringLiteral("Authors")) : author;
    return all.split(joint, Qt::SkipEmptyParts);
}

bool ebook(const MRVFountainScript &script, const MRVScriptMode &mode, const QString &language,
           QByteArray *bytes, QString *error)
{
    MRVEPubMetadata metadata;
    metadata.title = script.title(QStringLiteral("Title")).simplified();
    metadata.authors = authorsOf(script);
    metadata.rights = script.title(QStringLiteral("Copyright")).simplified();
    metadata.language = language;
    if (!MRVFixedDate::fromEnvironment(&metadata.modified, error)) {
        return false;
    }
    QTextDocument document;
    MRVScriptDocument::setPrintedScript(&document, script, mode);
    MRVEPubPackage package(MRVEPubVersion::EPub3, metadata);
    if (!package.addDocument(document, QString(), error)) {
        return false;
    }
    *bytes = package.toByteArray(error);
    return !bytes->isEmpty();
}

// What is written for a script; only an e-book can fail, and needs a mode.
bool scriptBytes(const MRVFountainScript &script, Format format, const MRVScriptMode &mode,
                 const QString &language, QByteArray *bytes, QString *error)
{
    switch (format) {
    case Format::EPub:
        return ebook(script, mode, language, bytes, error);
    case Format::Html:
        *bytes = MRVFountainHtml::toHtml(script, language);
        break;
    case Format::FinalDraft:
        *bytes = MRVFinalDraft::toXml(script);
        break;
    default:
        *bytes = script.toText().toUtf8();
        break;
    }
    return true;
}

// A changed script in the format that it was read from; one in Fountain keeps what was not changed.
QByteArray revisedBytes(const ScriptFile &file)
{
    if (file.format != Format::Fountain) {
        QByteArray bytes;
        scriptBytes(file.script, file.format, MRVScriptMode(), file.language, &bytes, nullptr);
        return bytes;
    }
    const QString text = file.script.toText(file.text);
    if (!file.codec) {
        return text.toUtf8();
    }
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString marked = QChar(QChar::ByteOrderMark) + text;
    return file.codec->fromUnicode(marked.constData(), marked.size(), &state);
}

bool writeScript(const QByteArray &bytes, const QString &file, QString *error)
{
    if (file == StandardStream) {
        return writeStandardOutput(bytes, error);
    }
    return MRVStagedFiles::write(bytes, file, error);
}

// Behind the writing of a script, which may yet fail.
void tellLeftOut(const ScriptFile &file)
{
    if (!file.leftOut.isEmpty()) {
        printError(QStringLiteral("%1: without what stands in %2")
                       .arg(file.path, file.leftOut.join(QLatin1String(", "))));
    }
}

bool isSameFile(const QString &a, const QString &b)
{
    const QString real = QFileInfo(a).canonicalFilePath();
    return !real.isEmpty() && real == QFileInfo(b).canonicalFilePath();
}

QString outputFile(const QString &input, const QString &output, Format format)
{
    QString suffix;
    for (const auto &row : formats) {
        if (row.format == format) {
            suffix = QString::fromLatin1(row.suffixes).section(u' ', 0, 0);
        }
    }
    const bool standard = input == StandardStream;
    const QString name =
        (standard ? QStringLiteral("script") : QFileInfo(input).completeBaseName()) + u'.' + suffix;
    if (output.isEmpty()) {
        return standard ? QString(StandardStream) : QFileInfo(input).dir().filePath(name);
    }
    const bool folder =
        output != StandardStream && (output.endsWith(u'/') || QFileInfo(output).isDir());
    return folder ? QDir(output).filePath(name) : output;
}

struct ConvertOptions
{
    QString input;
    QString from;
    Format to = Format::Unknown;
    QString output; // the file
    MRVScriptMode mode;
    QString language;
    bool json = false;
};

// -1 to go on, else the exit code.
int readOptions(const Call &call, ConvertOptions *options)
{
    const QString to = call.value("to");
    const QString output = call.value("output");
    options->input = call.arguments.constFirst();
    options->from = call.value("from");
    options->to = to.isEmpty() ? formatOfFile(output) : formatNamed(to);
    options->json = call.has("json");
    if (options->to == Format::Unknown) {
        return usageError(
            QStringLiteral("say with --to what to write: fountain, html, fdx or epub"));
    }
    const Format named = output == StandardStream ? Format::Unknown : formatOfFile(output);
    if (named != Format::Unknown && named != options->to && !QFileInfo(output).isDir()) {
        return usageError(
            QStringLiteral("--to says %1, but the name '%2' something else").arg(to, output));
    }
    const QString language = call.value("language");
    options->language = MRV::languageTag(language);
    if (options->language.isEmpty() && !language.isEmpty()) {
        return usageError(
            QStringLiteral("'%1' is not the tag of a language such as en-GB").arg(language));
    }
    const QString mode = call.value("mode");
    if (!mode.isEmpty() && options->to != Format::EPub) {
        return usageError(QStringLiteral("--mode is for e-books only"));
    }
    QString error;
    QDateTime unused;
    if (options->to == Format::EPub && !MRVFixedDate::fromEnvironment(&unused, &error)) {
        return usageError(error);
    }
    options->mode.loadFactoryDefaults();
    if (!mode.isEmpty() && !findScriptMode(mode, &options->mode, &error)) {
        return refuse(error);
    }
    return -1;
}

// Finds the file to write. @return -1 to go on, else the exit code.
int readOutput(const QString &output, ConvertOptions *options)
{
    options->output = outputFile(options->input, output, options->to);
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
    ScriptFile script;
    QByteArray bytes;
    QString error;
    if (!readScript(options.input, options.from, &script, &error)) {
        return refuse(error);
    }
    const QString language =
        options.language.isEmpty() ? MRV::languageTag(script.language) : options.language;
    if (!scriptBytes(script.script, options.to, options.mode, language, &bytes, &error)
        || !writeScript(bytes, options.output, &error)) {
        return refuse(error);
    }
    tellLeftOut(script);
    if (options.output != StandardStream && options.json) {
        printJson(
            {{QStringLiteral("path"), options.output}, {QStringLiteral("bytes"), bytes.size()}});
    } else if (options.output != StandardStream) {
        printLine(options.output);
    }
    return Done;
}

namespace {

QJsonObject toJson(const QString &path, const MRVScriptStatistics &statistics)
{
    QJsonArray characters;
    for (const auto &character : statistics.characters) {
        characters.append(QJsonObject{{QStringLiteral("name"), character.name},
                                      {QStringLiteral("speeches"), character.speeches},
                                      {QStringLiteral("lines"), character.lines},
                                      {QStringLiteral("words"), character.words},
                                      {QStringLiteral("scenes"), character.scenes}});
    }
    return {{QStringLiteral("path"), path},
            {QStringLiteral("scenes"), statistics.scenes},
            {QStringLiteral("pages"), statistics.pages()},
            {QStringLiteral("minutes"), statistics.minutes()},
            {QStringLiteral("words"), statistics.words},
            {QStringLiteral("characters"), characters}};
}

void printStatistics(const QString &path, const MRVScriptStatistics &statistics)
{
    const int eighths = statistics.eighths % 8;
    QStringList pages;
    if (statistics.eighths >= 8 || eighths == 0) {
        pages.append(QString::number(statistics.eighths / 8));
    }
    if (eighths > 0) {
        pages.append(QStringLiteral("%1/8").arg(eighths));
    }
    printLine(QStringLiteral("%1: scenes %2, pages %3, minutes %4, words %5")
                  .arg(styled(Style::Path, path), QString::number(statistics.scenes),
                       pages.join(u' '), QString::number(statistics.minutes()),
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
        ScriptFile file;
        QString error;
        if (!readScript(input, call.value("from"), &file, &error)) {
            printError(error); // the others can still be counted
            ok = false;
            continue;
        }
        const MRVScriptStatistics statistics = MRVScriptStatistics::of(file.script);
        if (call.has("json")) {
            printJson(toJson(input, statistics));
        } else {
            printStatistics(input, statistics);
        }
    }
    return ok ? Done : Failed;
}

namespace {

// Renames in @p file. @return how many names there were.
int renamed(const Call &call, ScriptFile *file)
{
    MRVScriptDocument::RenameScope scope;
    scope.setFlag(MRVScriptDocument::InDialogue, call.has("dialogue"));
    scope.setFlag(MRVScriptDocument::InAction, call.has("action"));
    MRVScriptMode mode;
    mode.loadFactoryDefaults();
    QTextDocument document;
    MRVScriptDocument::setScript(&document, file->script, mode);
    const QStringList names = call.arguments;
    const int count =
        MRVScriptDocument::renameCharacter(&document, mode, names.at(0), names.at(1), scope);
    file->script = MRVScriptDocument::script(document, mode);
    return count;
}

} // namespace

int runScriptRename(const Call &call)
{
    const QStringList &names = call.arguments;
    if (names.at(0).trimmed().isEmpty() || names.at(1).trimmed().isEmpty()) {
        return usageError(QStringLiteral("a name is empty"));
    }
    if (names.at(1).contains(u'\n') || names.at(1).contains(u'\r')) {
        return usageError(QStringLiteral("a name is one line"));
    }
    ScriptFile file;
    QString error;
    if (!readScript(names.at(2), call.value("from"), &file, &error)) {
        return refuse(error);
    }
    const QString output = call.value("output");
    // Documents and pages may hold more than scripts: revisions, headers, what others have added.
    if (isSameFile(names.at(2), output) && revisedBytes(file) != file.bytes) {
        return refuse(
            QStringLiteral("%1: not all that it may hold would be kept; choose another with -o")
                .arg(output));
    }
    const int count = renamed(call, &file);
    if (count == 0) {
        const bool isSame =
            names.at(0).simplified().toUpper() == names.at(1).simplified().toUpper();
        return refuse((isSame ? QStringLiteral("%1: '%2' is the same name")
                              : QStringLiteral("%1: nobody is called '%2'"))
                          .arg(names.at(2), names.at(isSame ? 1 : 0)));
    }
    const QString target = output.isEmpty() ? QString(StandardStream) : output;
    if (!writeScript(revisedBytes(file), target, &error)) {
        return refuse(error);
    }
    tellLeftOut(file);
    if (target != StandardStream && call.has("json")) {
        printJson({{QStringLiteral("path"), target}, {QStringLiteral("renamed"), count}});
    } else if (target != StandardStream) {
        printLine(QStringLiteral("%1: %2 renamed").arg(target).arg(count));
    }
    return Done;
}
