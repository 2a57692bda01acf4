#include "command.h"
#include "documentinput.h"

#include "export/mrvepubpackage.h"
#include "export/mrvtextxhtmlexporter.h"

#include "core/mrvcoreutil.h"
#include "gui/mrvguiutil.h"

#include <QCommandLineParser>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QMap>
#include <QTemporaryDir>
#include <QTextDocument>

#include <cstdio>
#include <memory>
#include <vector>

namespace {

constexpr struct Target
{
    const char *name;
    const char *suffix;
    MRVTextXhtmlExporter::ExportType type;
    bool package;
    bool styleSheet;
} targets[] = {
    {"html", "html", MRVTextXhtmlExporter::Html, false, false},
    {"xhtml", "xhtml", MRVTextXhtmlExporter::Xhtml, false, false},
    {"epub", "epub", MRVTextXhtmlExporter::EPub, true, true},
    {"kindle", "xhtml", MRVTextXhtmlExporter::Kindle, false, true},
    {"kf8", "xhtml", MRVTextXhtmlExporter::KindleKF8, false, true},
};

const QLatin1String StandardOutput("-");

struct Options
{
    const Target *target = nullptr;
    QStringList inputs;
    QString output;
    InputOptions input;
    MRVEPubVersion version = MRVEPubVersion::EPub3;
    MRVEPubMetadata metadata;
    QString coverFile;
    bool images = true;
    bool json = false;
};

// Options of the command, one row each.
constexpr struct
{
    const char *name;
    const char *value; // null: takes none
    const char *description;
} optionRows[] = {
    {"to", "TYPE", "What to write: html, xhtml, epub, kindle or kf8."},
    {"output", "FILE",
     "Where to write: a file, or a folder that exists; - is standard output. Default: beside the "
     "input, with the type's suffix."},
    {"from", "FORMAT", "What the input is: html, markdown or text. Default: by its suffix."},
    {"encoding", "NAME", "The input's encoding. Default: what it declares, else UTF-8."},
    {"title", "TEXT", "The book's title. Default: the manuscript's own."},
    {"author", "NAME",
     "An author; may be given several times. Default: what HTML tells in its head."},
    {"language", "TAG",
     "The language, such as en-GB. Default: what HTML tells, else that of the locale."},
    {"identifier", "URI", "An identifier such as urn:isbn:... Default: computed from the content."},
    {"publisher", "NAME", "The publisher."},
    {"description", "TEXT", "What the book is about."},
    {"rights", "TEXT", "Copyright and licence."},
    {"cover", "FILE", "A picture for the cover page."},
    {"date", "TIME",
     "The date of modification (ISO 8601), for e-books that are the same byte for byte. Default: "
     "SOURCE_DATE_EPOCH (seconds since 1970), else now."},
    {"epub-version", "N", "3 (default) or 2."},
    {"no-images", nullptr, "Leave pictures where they are (pages only)."},
    {"json", nullptr, "Tell as JSON what was written."},
};

const Target *targetNamed(const QString &name)
{
    for (const Target &target : targets) {
        if (name == QLatin1String(target.name)) {
            return &target;
        }
    }
    return nullptr;
}

int usageError(const QString &text)
{
    printError(QLatin1String("export: ") + text);
    return WrongUsage;
}

int failure(const QString &text)
{
    printError(text);
    return Failed;
}

bool readDate(const QString &given, QDateTime *date)
{
    if (!given.isEmpty()) {
        *date = QDateTime::fromString(given, Qt::ISODate);
        return date->isValid();
    }
    const QByteArray epoch = qgetenv("SOURCE_DATE_EPOCH");
    if (!epoch.isEmpty()) {
        bool ok = false;
        *date = QDateTime::fromSecsSinceEpoch(epoch.toLongLong(&ok), Qt::UTC);
        return ok;
    }
    return true;
}

// -1 to go on, else the exit code.
int readOptions(const QStringList &arguments, Options *options)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Writes manuscripts (HTML, Markdown or plain text; - is standard input) as "
                       "pages or e-books.\n"
                       "Several inputs become one e-book, or a page each."));
    parser.addPositionalArgument(QStringLiteral("IN"), QStringLiteral("The manuscripts, in order."),
                                 QStringLiteral("IN..."));
    for (const auto &row : optionRows) {
        QStringList names{QLatin1String(row.name)};
        if (names.constFirst() == QLatin1String("output")) {
            names.prepend(QStringLiteral("o"));
        }
        parser.addOption({names, QLatin1String(row.description), QLatin1String(row.value)});
    }
    const int code =
        parseArguments(&parser, QStringLiteral("export IN... --to TYPE [OPTIONS]"), arguments);
    if (code >= 0) {
        return code;
    }
    auto value = [&](const char *name) { return parser.value(QLatin1String(name)); };
    options->inputs = parser.positionalArguments();
    options->output = value("output");
    options->input = {value("from"), value("encoding")};
    options->metadata.title = value("title");
    options->metadata.authors = parser.values(QStringLiteral("author"));
    options->metadata.language = value("language");
    options->metadata.identifier = value("identifier");
    options->metadata.publisher = value("publisher");
    options->metadata.description = value("description");
    options->metadata.rights = value("rights");
    options->coverFile = value("cover");
    options->images = !parser.isSet(QStringLiteral("no-images"));
    options->json = parser.isSet(QStringLiteral("json"));
    if (value("to").isEmpty()) {
        return usageError(
            QStringLiteral("say with --to what to write: html, xhtml, epub, kindle or kf8"));
    }
    options->target = targetNamed(value("to"));
    if (!options->target) {
        return usageError(
            QStringLiteral("unknown type '%1'; known are html, xhtml, epub, kindle and kf8")
                .arg(value("to")));
    }
    if (options->inputs.isEmpty()) {
        return usageError(QStringLiteral("an input is missing"));
    }
    if (!QStringList{QString(), QStringLiteral("html"), QStringLiteral("markdown"),
                     QStringLiteral("text")}
             .contains(value("from"))) {
        return usageError(QStringLiteral("unknown format '%1'; known are html, markdown and text")
                              .arg(value("from")));
    }
    const QString version = value("epub-version");
    if (!version.isEmpty() && version != QLatin1String("2") && version != QLatin1String("3")) {
        return usageError(
            QStringLiteral("unknown EPUB version '%1'; known are 2 and 3").arg(version));
    }
    options->version =
        version == QLatin1String("2") ? MRVEPubVersion::EPub2 : MRVEPubVersion::EPub3;
    if (!readDate(value("date"), &options->metadata.modified)) {
        return usageError(
            QStringLiteral("the date is not one of ISO 8601 such as 2026-01-31T12:00:00Z"));
    }
    return -1;
}

// The file to write for an input.
QString outputFile(const Options &options, const QString &input)
{
    const bool standard = input == QLatin1String("-");
    const QString name =
        (standard ? QStringLiteral("manuscript") : QFileInfo(input).completeBaseName()) + u'.'
        + QLatin1String(options.target->suffix);
    if (options.output.isEmpty()) {
        return standard ? QString(StandardOutput) : QFileInfo(input).dir().filePath(name);
    }
    const bool folder = options.output.endsWith(u'/') || QFileInfo(options.output).isDir()
        || (!options.target->package && options.inputs.size() > 1);
    return folder ? QDir(options.output).filePath(name) : options.output;
}

// Would the output replace one of its own sources?
bool isInput(const Options &options, const QString &file)
{
    const QString target = QFileInfo(file).canonicalFilePath();
    for (const QString &input : options.inputs) {
        if (!target.isEmpty() && target == QFileInfo(input).canonicalFilePath()) {
            return true;
        }
    }
    return false;
}

bool makeFolder(const QString &file, QString *error)
{
    const QString folder = QFileInfo(file).absolutePath();
    if (QDir().mkpath(folder)) {
        return true;
    }
    *error = QStringLiteral("%1: the folder cannot be made").arg(folder);
    return false;
}

bool writeStandardOutput(const QByteArray &bytes, QString *error)
{
    if (std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout) == size_t(bytes.size())
        && std::fflush(stdout) == 0) {
        return true;
    }
    *error = QStringLiteral("standard output cannot be written");
    return false;
}

/**
 * Pages with their pictures and style sheet: all files are written to a folder beside their place first and
 * moved there when each is whole, the pages last, so that a failure leaves what was there before.
 */
class PageExport
{
public:
    explicit PageExport(const Options &options)
        : m_options(options)
    {
    }

    bool add(const DocumentInput &input, QString *error)
    {
        const QString file = outputFile(m_options, input.path);
        if (!m_options.metadata.title.isEmpty()) {
            input.document->setMetaInformation(QTextDocument::DocumentTitle,
                                               m_options.metadata.title);
        }
        MRVTextXhtmlExporter exporter(input.document.get());
        exporter.setStyles(m_styles);
        if (file == StandardOutput) {
            return writeStandardOutput(exporter.toText(m_options.target->type).toUtf8(), error);
        }
        if (!openStage(file, error)) {
            return false;
        }
        const QString staged = QDir(m_stage->path()).filePath(QFileInfo(file).fileName());
        if (!exporter.toFile(m_options.target->type, staged, m_options.images, QString(), error)) {
            return false;
        }
        if (!exporter.unwrittenImages().isEmpty()) {
            *error = QStringLiteral("%1: the picture %2 cannot be written")
                         .arg(file, exporter.unwrittenImages().constFirst());
            return false;
        }
        m_styles = exporter.styles();
        m_pages.append(QFileInfo(file).fileName());
        return true;
    }

    bool publish(QStringList *written, QString *error)
    {
        if (!m_stage) {
            return true;
        }
        const QDir stage(m_stage->path());
        if (m_options.target->styleSheet) {
            const QString sheet = stage.filePath(QStringLiteral("css/stylesheet.css"));
            if (!makeFolder(sheet, error)
                || !MRVCoreUtil::WriteUnicodeTextFile(
                    MRVTextXhtmlExporter::styleSheetText(m_styles), sheet, error)) {
                return false;
            }
        }
        QStringList files;
        for (QDirIterator it(stage.path(), QDir::Files, QDirIterator::Subdirectories);
             it.hasNext();) {
            const QString file = stage.relativeFilePath(it.next());
            if (!m_pages.contains(file)) {
                files.append(file);
            }
        }
        files.sort();
        files += m_pages;
        for (const QString &file : qAsConst(files)) {
            const QString target = QDir(m_folder).filePath(file);
            if (!makeFolder(target, error)) {
                return false;
            }
            if (std::rename(QFile::encodeName(stage.filePath(file)).constData(),
                            QFile::encodeName(target).constData())
                != 0) {
                *error = QStringLiteral("%1: the file cannot be put in place").arg(target);
                return false;
            }
            written->append(target);
        }
        return true;
    }

private:
    bool openStage(const QString &file, QString *error)
    {
        if (m_stage) {
            return true;
        }
        if (!makeFolder(file, error)) {
            return false;
        }
        m_folder = QFileInfo(file).path();
        m_stage = std::make_unique<QTemporaryDir>(
            QDir(m_folder).filePath(QStringLiteral(".mrv-export-XXXXXX")));
        if (!m_stage->isValid()) {
            *error = QStringLiteral("%1: %2").arg(m_folder, m_stage->errorString());
            return false;
        }
        return true;
    }

    const Options &m_options;
    MRVTextXhtmlExporter::StyleList m_styles;
    std::unique_ptr<QTemporaryDir> m_stage;
    QString m_folder;
    QStringList m_pages;
};

bool exportPages(const Options &options, const std::vector<DocumentInput> &inputs,
                 QStringList *written, QString *error)
{
    PageExport pages(options);
    for (const DocumentInput &input : inputs) {
        showProgress(QStringLiteral("Writing %1").arg(input.path));
        if (!pages.add(input, error)) {
            return false;
        }
    }
    return pages.publish(written, error);
}

QString localeLanguage()
{
    const QLocale locale = QLocale::system();
    return locale.language() == QLocale::C ? QStringLiteral("en") : locale.bcp47Name();
}

bool exportPackage(const Options &options, const std::vector<DocumentInput> &inputs,
                   QStringList *written, QString *error)
{
    MRVEPubMetadata metadata = options.metadata;
    const DocumentInput &first = inputs.front();
    if (metadata.authors.isEmpty() && !first.author.isEmpty()) {
        metadata.authors.append(first.author);
    }
    if (metadata.language.isEmpty()) {
        metadata.language = first.language.isEmpty() ? localeLanguage() : first.language;
    }
    if (!options.coverFile.isEmpty()) {
        QString unreadable;
        metadata.cover = MRVCoreUtil::ReadBinaryFile(options.coverFile, &unreadable);
        if (MRVGuiUtil::toImage(metadata.cover).isNull()) {
            *error = QStringLiteral("%1: the cover picture cannot be read").arg(options.coverFile);
            return false;
        }
    }
    MRVEPubPackage package(options.version, metadata);
    for (const DocumentInput &input : inputs) {
        showProgress(QStringLiteral("Adding %1").arg(input.path));
        QString reason;
        if (!package.addDocument(*input.document, input.fileName(), &reason)) {
            *error = QStringLiteral("%1: %2").arg(input.path, reason);
            return false;
        }
    }
    const QString file = outputFile(options, first.path);
    showProgress(QStringLiteral("Writing %1").arg(file));
    if (file == StandardOutput) {
        const QByteArray bytes = package.toByteArray(error);
        return !bytes.isEmpty() && writeStandardOutput(bytes, error);
    }
    if (!makeFolder(file, error) || !package.write(file, error)) {
        return false;
    }
    written->append(file);
    return true;
}

void report(const Options &options, const QStringList &written)
{
    QJsonArray files;
    QMap<QString, int> pictures; // by folder
    for (const QString &file : written) {
        if (QFileInfo(file).path().endsWith(QLatin1String("_files"))) {
            ++pictures[QFileInfo(file).path()];
        } else if (!options.json) {
            printLine(file);
        }
        files.append(QJsonObject{{QStringLiteral("path"), file},
                                 {QStringLiteral("bytes"), QFileInfo(file).size()}});
    }
    for (auto it = pictures.constBegin(); it != pictures.constEnd() && !options.json; ++it) {
        printLine(QStringLiteral("%1/ (pictures: %2)").arg(it.key(), QString::number(it.value())));
    }
    if (options.json) {
        const QJsonObject account{{QStringLiteral("files"), files}};
        printLine(QString::fromUtf8(QJsonDocument(account).toJson(QJsonDocument::Compact)));
    }
}

} // namespace

int runExport(const QStringList &arguments)
{
    Options options;
    const int code = readOptions(arguments, &options);
    if (code >= 0) {
        return code;
    }
    QStringList files;
    for (const QString &input : qAsConst(options.inputs)) {
        const QString file = outputFile(options, input);
        if (isInput(options, file)) {
            return failure(
                QStringLiteral("%1: the output would replace the input; choose another with -o")
                    .arg(file));
        }
        if (!options.target->package && file != StandardOutput && files.contains(file)) {
            return failure(
                QStringLiteral("%1: two inputs would be written to this file").arg(file));
        }
        files.append(file);
    }
    std::vector<DocumentInput> inputs;
    QString error;
    for (const QString &path : qAsConst(options.inputs)) {
        showProgress(QStringLiteral("Reading %1").arg(path));
        DocumentInput input;
        if (!readDocument(path, options.input, &input, &error)) {
            return failure(error);
        }
        inputs.push_back(std::move(input));
    }
    QStringList written;
    const bool ok = options.target->package ? exportPackage(options, inputs, &written, &error)
                                            : exportPages(options, inputs, &written, &error);
    if (!ok) {
        return failure(error);
    }
    showProgress(QString());
    report(options, written);
    return Done;
}
