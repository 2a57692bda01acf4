#include "inputs.h"

#include "epub/mrvepubpackage.h"
#include "publish/mrvoutputfiles.h"
#include "publish/mrvpagepublisher.h"
#include "util/mrvfixeddate.h"
#include "util/mrvnames.h"

#include <QFileInfo>
#include <QJsonArray>
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

const Target *targetNamed(const QString &name)
{
    for (const Target &target : targets) {
        if (name == QLatin1String(target.name)) {
            return &target;
        }
    }
    return nullptr;
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

// Options that only pages, or only packages, have a use for.
constexpr const char pagesOnly[] = "no-images";
constexpr const char packagesOnly[] =
    "author identifier publisher description rights cover date epub-version";

// -1 to go on, else the exit code; so with all that follow.
int readTarget(const Call &call, Options *options)
{
    if (!call.has("to")) {
        return usageError(
            QStringLiteral("say with --to what to write: html, xhtml, epub, kindle or kf8"));
    }
    options->target = targetNamed(call.value("to"));
    const bool package = options->target->package;
    const QStringList useless = words(package ? pagesOnly : packagesOnly);
    for (const QString &option : useless) {
        if (call.has(option.toLatin1().constData())) {
            return usageError(QStringLiteral("--%1 is for %2 only")
                                  .arg(option, QLatin1String(package ? "pages" : "e-books")));
        }
    }
    return -1;
}

int readMetadata(const Call &call, Options *options)
{
    MRVEPubMetadata &metadata = options->metadata;
    const QString language = call.value("language");
    metadata.title = call.value("title");
    metadata.authors = call.values("author");
    metadata.identifier = call.value("identifier");
    metadata.publisher = call.value("publisher");
    metadata.description = call.value("description");
    metadata.rights = call.value("rights");
    metadata.language = MRV::languageTag(language);
    if (metadata.language.isEmpty() && !language.isEmpty()) {
        return usageError(
            QStringLiteral("'%1' is not the tag of a language such as en-GB").arg(language));
    }
    return options->target->package ? readDate(call.value("date"), &metadata.modified) : -1;
}

// @return -1 to go on, else the exit code.
int readOptions(const Call &call, Options *options)
{
    options->inputs = call.arguments;
    options->input = inputOptions(call);
    options->output = call.value("output");
    options->coverFile = call.value("cover");
    options->images = !call.has("no-images");
    options->json = call.json();
    options->version = call.value("epub-version") == QLatin1String("2") ? MRVEPubVersion::EPub2
                                                                        : MRVEPubVersion::EPub3;
    const int code = readTarget(call, options);
    if (code >= 0) {
        return code;
    }
    return readsTwice(options->inputs) ? int(WrongUsage) : readMetadata(call, options);
}

// One for a package, else one an input.
QStringList outputFiles(const Options &options)
{
    QStringList files;
    const bool isFolder = !options.target->package && options.inputs.size() > 1;
    for (const QString &input : options.inputs) {
        files.append(outputFile(input, options.output, QStringLiteral("manuscript"),
                                QLatin1String(options.target->suffix), isFolder));
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
        : refuse(error);
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
    if (file != StandardOutput) {
        showProgress(QStringLiteral("Writing %1").arg(file));
    }
    if (bytes.isEmpty() || !writeOutput(bytes, file, error)) {
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
        printJson({{QStringLiteral("files"), files}});
    }
}

int run(const Call &call)
{
    Options options;
    int code = readOptions(call, &options);
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
        return refuse(error);
    }
    showProgress(QString());
    if (outputs.constFirst() != StandardOutput) {
        report(options, written);
    }
    return Done;
}

constexpr Verb verbs[] = {{"", "IN...", "", run}};

constexpr Option options[] = {
    Option::choice("to", "TYPE", "html xhtml epub kindle kf8",
                   "What to write: html, xhtml, epub, kindle or kf8."),
    Option::name("o output", "FILE",
                 "Where to write: a file, or a folder that exists; - is standard output. Default: "
                 "beside the input, with the suffix of the type."),
    manuscriptFormat(),
    manuscriptEncoding(),
    Option::text("title", "TEXT", "The title. Default: the title of the manuscript."),
    Option::text("language", "TAG",
                 "The language, such as en-GB. Default: that of the manuscript, else, for e-books, "
                 "that of the locale."),
    Option::flag("no-images",
                 "Leave pictures where they are, and what refers to them. (Pages only.)"),
    Option::flag("json", "Print as JSON what was written; nothing when that is standard output."),
};

constexpr Option metadata[] = {
    Option::text("author", "NAME",
                 "An author. Default: what HTML says in its head. (E-books only, as all that "
                 "follow.)")
        .repeated(),
    Option::text("identifier", "URI",
                 "An identifier such as urn:isbn:... Default: computed from the content."),
    Option::text("publisher", "NAME", "The publisher."),
    Option::text("description", "TEXT",
                 "What the book is about. Default: what HTML says in its head."),
    Option::text("rights", "TEXT", "Copyright and licence."),
    Option::name("cover", "FILE", "A picture for the cover page."),
    Option::name("date", "TIME",
                 "The date of modification (ISO 8601; UTC unless it says otherwise), for e-books "
                 "that are the same byte for byte. Default: SOURCE_DATE_EPOCH (seconds since "
                 "1970), else now."),
    Option::choice("epub-version", "N", "2 3", "3 (default) or 2."),
};

} // namespace

const Command exportCommand = {
    "export",
    "write manuscripts as HTML, XHTML or e-books",
    "Writes manuscripts (HTML, Markdown or plain text; - is standard input) as pages or e-books. "
    "Several inputs become one e-book, or a page each.",
    "export novel.html --to epub --cover cover.png -o novel.epub\n"
    "export one.md two.md --to epub --title \"Both\" -o both.epub\n"
    "export notes.md --to xhtml -o site/notes.xhtml",
    verbs,
    {options, metadata},
};
