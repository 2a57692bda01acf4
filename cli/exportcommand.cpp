#include "command.h"
#include "documentinput.h"

#include "epub/mrvepubpackage.h"
#include "publish/mrvoutputfiles.h"
#include "publish/mrvpagepublisher.h"
#include "publish/mrvstagedfiles.h"
#include "util/mrvfixeddate.h"
#include "util/mrvnames.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

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

enum class For { All, Pages, Packages };

// Options of the command, one row each.
constexpr struct
{
    const char *name;
    const char *value; // null: takes none
    For use;
    const char *description;
} optionRows[] = {
    {"to", "TYPE", For::All, "What to write: html, xhtml, epub, kindle or kf8."},
    {"output", "FILE", For::All,
     "Where to write: a file, or a folder that exists; - is standard output. Default: beside the "
     "input, with the type's suffix."},
    {"from", "FORMAT", For::All,
     "What the input is: html, markdown or text. Default: by its suffix."},
    {"encoding", "NAME", For::All, "The input's encoding. Default: what it declares, else UTF-8."},
    {"title", "TEXT", For::All, "The title. Default: the manuscript's own."},
    {"language", "TAG", For::All,
     "The language, such as en-GB. Default: what HTML tells, else, for e-books, that of the "
     "locale."},
    {"author", "NAME", For::Packages,
     "An author; may be given several times. Default: what HTML tells in its head."},
    {"identifier", "URI", For::Packages,
     "An identifier such as urn:isbn:... Default: computed from the content."},
    {"publisher", "NAME", For::Packages, "The publisher."},
    {"description", "TEXT", For::Packages,
     "What the book is about. Default: what HTML tells in its head."},
    {"rights", "TEXT", For::Packages, "Copyright and licence."},
    {"cover", "FILE", For::Packages, "A picture for the cover page."},
    {"date", "TIME", For::Packages,
     "The date of modification (ISO 8601; UTC unless it says otherwise), for e-books that are the "
     "same byte for byte. Default: SOURCE_DATE_EPOCH (seconds since 1970), else now."},
    {"epub-version", "N", For::Packages, "3 (default) or 2."},
    {"no-images", nullptr, For::Pages, "Leave pictures where they are, and what refers to them."},
    {"json", nullptr, For::All,
     "Tell as JSON what was written; nothing, when that is standard output."},
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

int readDate(const QString &given, QDateTime *date)
{
    if (!given.isEmpty()) {
        *date = MRVFixedDate::fromIsoText(given);
        return date->isValid()
            ? -1
            : usageError(QStringLiteral("the date is not one of ISO 8601 such as "
                                        "2026-01-31T12:00:00Z, in the years 1 to 9999"));
    }
    QString error;
    return MRVFixedDate::fromEnvironment(date, &error) ? -1 : usageError(error);
}

void addOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(
        QStringLiteral("Writes manuscripts (HTML, Markdown or plain text; - is standard input) as "
                       "pages or e-books.\n"
                       "Several inputs become one e-book, or a page each."));
    parser->addPositionalArgument(QStringLiteral("IN"),
                                  QStringLiteral("The manuscripts, in order."),
                                  QStringLiteral("IN..."));
    for (const auto &row : optionRows) {
        QStringList names{QLatin1String(row.name)};
        if (names.constFirst() == QLatin1String("output")) {
            names.prepend(QStringLiteral("o"));
        }
        QString description = QLatin1String(row.description);
        if (row.use != For::All) {
            description += row.use == For::Pages ? QLatin1String(" (Pages only.)")
                                                 : QLatin1String(" (E-books only.)");
        }
        parser->addOption({names, description, QLatin1String(row.value)});
    }
}

// -1 to go on, else the exit code; so with all that follow.
int readTarget(const QCommandLineParser &parser, Options *options)
{
    const QString name = parser.value(QStringLiteral("to"));
    if (name.isEmpty()) {
        return usageError(
            QStringLiteral("say with --to what to write: html, xhtml, epub, kindle or kf8"));
    }
    options->target = targetNamed(name);
    if (!options->target) {
        return usageError(
            QStringLiteral("unknown type '%1'; known are html, xhtml, epub, kindle and kf8")
                .arg(name));
    }
    const For use = options->target->package ? For::Packages : For::Pages;
    for (const auto &row : optionRows) {
        if (row.use != For::All && row.use != use && parser.isSet(QLatin1String(row.name))) {
            return usageError(
                QStringLiteral("--%1 is for %2 only")
                    .arg(QLatin1String(row.name),
                         use == For::Pages ? QLatin1String("e-books") : QLatin1String("pages")));
        }
    }
    return -1;
}

int readInputs(const QCommandLineParser &parser, Options *options)
{
    options->inputs = parser.positionalArguments();
    const QString format = parser.value(QStringLiteral("from"));
    options->input = {format, parser.value(QStringLiteral("encoding")), true};
    if (options->inputs.isEmpty()) {
        return usageError(QStringLiteral("an input is missing"));
    }
    if (options->inputs.count(QStringLiteral("-")) > 1) {
        return usageError(QStringLiteral("standard input can be read only once"));
    }
    if (!QStringList{QString(), QStringLiteral("html"), QStringLiteral("markdown"),
                     QStringLiteral("text")}
             .contains(format)) {
        return usageError(
            QStringLiteral("unknown format '%1'; known are html, markdown and text").arg(format));
    }
    return -1;
}

int readMetadata(const QCommandLineParser &parser, Options *options)
{
    auto value = [&](const char *name) { return parser.value(QLatin1String(name)); };
    MRVEPubMetadata &metadata = options->metadata;
    metadata.title = value("title");
    metadata.authors = parser.values(QStringLiteral("author"));
    metadata.identifier = value("identifier");
    metadata.publisher = value("publisher");
    metadata.description = value("description");
    metadata.rights = value("rights");
    options->coverFile = value("cover");
    metadata.language = MRV::languageTag(value("language"));
    if (metadata.language.isEmpty() && !value("language").isEmpty()) {
        return usageError(QStringLiteral("'%1' is not the tag of a language such as en-GB")
                              .arg(value("language")));
    }
    const QString version = value("epub-version");
    if (!version.isEmpty() && version != QLatin1String("2") && version != QLatin1String("3")) {
        return usageError(
            QStringLiteral("unknown EPUB version '%1'; known are 2 and 3").arg(version));
    }
    options->version =
        version == QLatin1String("2") ? MRVEPubVersion::EPub2 : MRVEPubVersion::EPub3;
    return options->target->package ? readDate(value("date"), &metadata.modified) : -1;
}

int readOptions(const QStringList &arguments, Options *options)
{
    QCommandLineParser parser;
    addOptions(&parser);
    const int shown =
        parseArguments(&parser, QStringLiteral("export IN... --to TYPE [OPTIONS]"), arguments);
    if (shown >= 0) {
        return shown;
    }
    options->output = parser.value(QStringLiteral("output"));
    options->images = !parser.isSet(QStringLiteral("no-images"));
    options->json = parser.isSet(QStringLiteral("json"));
    for (const auto read : {readTarget, readInputs, readMetadata}) {
        const int code = read(parser, options);
        if (code >= 0) {
            return code;
        }
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
    if (options.output == StandardOutput) {
        return StandardOutput;
    }
    const bool folder = options.output.endsWith(u'/') || QFileInfo(options.output).isDir()
        || (!options.target->package && options.inputs.size() > 1);
    return folder ? QDir(options.output).filePath(name) : options.output;
}

// One for a package, else one an input.
QStringList outputFiles(const Options &options)
{
    QStringList files;
    for (const QString &input : options.inputs) {
        files.append(outputFile(options, input));
    }
    return options.target->package ? files.mid(0, 1) : files;
}

// Standard input and output are no files.
QStringList filesOf(QStringList names)
{
    names.removeAll(StandardOutput);
    names.removeAll(QString());
    return names;
}

bool spareInputs(const QStringList &outputs, const QStringList &inputs, QString *error)
{
    const bool spared = MRVOutputFiles::spareInputs(filesOf(outputs), filesOf(inputs), error);
    if (!spared) {
        *error += QLatin1String("; choose another with -o");
    }
    return spared;
}

// -1 to go on, else the exit code.
int checkOutputs(const Options &options, const QStringList &outputs)
{
    if (outputs.size() > 1 && outputs.contains(StandardOutput)) {
        return usageError(QStringLiteral(
            "only one page can be written to standard output; choose a folder with -o"));
    }
    QString error;
    return spareInputs(outputs, options.inputs, &error)
            && MRVOutputFiles::areDistinct(filesOf(outputs), &error)
        ? -1
        : failure(error);
}

bool readManuscripts(const Options &options, const QStringList &outputs,
                     std::vector<MRVManuscript> *manuscripts, QString *error)
{
    InputOptions reading = options.input;
    reading.pictures =
        options.target->package || (options.images && outputs.constFirst() != StandardOutput);
    QStringList pictures{options.coverFile};
    for (const QString &path : options.inputs) {
        showProgress(QStringLiteral("Reading %1").arg(path));
        MRVManuscript manuscript;
        if (!readManuscript(path, reading, &manuscript, error)) {
            return false;
        }
        pictures += manuscript.pictures;
        manuscripts->push_back(std::move(manuscript));
    }
    return spareInputs(outputs, pictures, error);
}

bool exportPages(const Options &options, const std::vector<MRVManuscript> &manuscripts,
                 const QStringList &outputs, QStringList *written, QString *error)
{
    const MRVPageOptions pageOptions{options.target->type, options.target->styleSheet,
                                     options.images, options.metadata.title,
                                     options.metadata.language};
    if (outputs.constFirst() == StandardOutput) {
        const MRVManuscript &first = manuscripts.front();
        const QString page =
            MRVPagePublisher::pageText(pageOptions, first.document.get(), first.language);
        return writeStandardOutput(page.toUtf8(), error);
    }
    MRVPagePublisher publisher(pageOptions);
    for (std::size_t i = 0; i < manuscripts.size(); ++i) {
        showProgress(QStringLiteral("Writing %1").arg(manuscripts[i].path));
        if (!publisher.add(manuscripts[i].document.get(), manuscripts[i].language,
                           outputs.at(int(i)), error)) {
            return false;
        }
    }
    return publisher.publish(written, error);
}

bool writePackage(const QByteArray &bytes, const QString &file, QString *error)
{
    if (file == StandardOutput) {
        return writeStandardOutput(bytes, error);
    }
    showProgress(QStringLiteral("Writing %1").arg(file));
    return MRVStagedFiles::write(bytes, file, error);
}

bool exportPackage(const Options &options, const std::vector<MRVManuscript> &manuscripts,
                   const QString &file, QStringList *written, QString *error)
{
    MRVEPubMetadata metadata = options.metadata;
    metadata.completeFrom(manuscripts.front());
    if (!options.coverFile.isEmpty() && !metadata.readCover(options.coverFile, error)) {
        return false;
    }
    MRVEPubPackage package(options.version, metadata);
    int left = 0;
    for (const MRVManuscript &manuscript : manuscripts) {
        showProgress(QStringLiteral("Adding %1").arg(manuscript.path));
        QString reason;
        if (!package.addDocument(*manuscript.document, manuscript.fileName, &reason)) {
            *error = QStringLiteral("%1: %2").arg(manuscript.path, reason);
            return false;
        }
        left += manuscript.remotePictures;
    }
    const QByteArray bytes = package.toByteArray(error);
    if (bytes.isEmpty() || !writePackage(bytes, file, error)) {
        return false;
    }
    if (left > 0) {
        printError(QStringLiteral("note: pictures on other machines that are not in the e-book: %1")
                       .arg(left));
    }
    if (file != StandardOutput) {
        written->append(file);
    }
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
    int code = readOptions(arguments, &options);
    if (code >= 0) {
        return code;
    }
    const QStringList outputs = outputFiles(options);
    code = checkOutputs(options, outputs);
    if (code >= 0) {
        return code;
    }
    std::vector<MRVManuscript> manuscripts;
    QStringList written;
    QString error;
    const bool ok = readManuscripts(options, outputs, &manuscripts, &error)
        && (options.target->package
                ? exportPackage(options, manuscripts, outputs.constFirst(), &written, &error)
                : exportPages(options, manuscripts, outputs, &written, &error));
    if (!ok) {
        return failure(error);
    }
    showProgress(QString());
    if (outputs.constFirst() != StandardOutput) {
        report(options, written);
    }
    return Done;
}
