#include "inputs.h"

#include "epub/mrvepubpackage.h"
#include "publish/mrvoutputfiles.h"
#include "publish/mrvpagepublisher.h"
#include "publish/mrvstagedfiles.h"
#include "util/mrvfixeddate.h"
#include "xhtml/mrvexportcheck.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QMap>

#include <vector>

namespace {

const QLatin1String StandardOutput("-");

// What a call asks for, checked.
struct Options
{
    MRVTextXhtmlExporter::ExportType type = MRVTextXhtmlExporter::Html;
    InputOptions input;
    MRVEPubMetadata metadata;

    bool isPackage() const { return type == MRVTextXhtmlExporter::EPub; }
};

// Options that only pages, or only packages, have a use for.
constexpr const char pagesOnly[] = "no-images";
constexpr const char packagesOnly[] =
    "author identifier publisher description rights cover date epub-version";

// -1 to go on, else the exit code; so with all that follow.
int readType(const Call &call, Options *options)
{
    if (!MRVTextXhtmlExporter::typeNamed(call.value("to"), &options->type)) {
        return usageError(
            QStringLiteral("say with --to what to write: html, xhtml, epub, kindle or kf8"));
    }
    const bool package = options->isPackage();
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
    metadata.title = call.value("title");
    metadata.authors = call.values("author");
    metadata.identifier = call.value("identifier");
    metadata.publisher = call.value("publisher");
    metadata.description = call.value("description");
    metadata.rights = call.value("rights");
    QString error;
    const bool ok = readLanguage(call, &metadata.language, &error)
        && readMarkdownSyntax(call, call.arguments, &options->input.markdown, &error)
        && (!options->isPackage()
            || MRVFixedDate::fromTextOrEnvironment(call.value("date"), &metadata.modified, &error));
    return ok ? -1 : usageError(error);
}

int readOptions(const Call &call, Options *options)
{
    options->input = inputOptions(call);
    options->input.strict = call.has("strict");
    options->input.isPublished = true;
    const int code = readType(call, options);
    if (code >= 0) {
        return code;
    }
    return readsTwice(call.arguments) ? int(WrongUsage) : readMetadata(call, options);
}

// One for a package, else one an input.
QStringList outputFiles(const Call &call, const Options &options)
{
    QStringList files;
    const bool isFolder = !options.isPackage() && call.arguments.size() > 1;
    for (const QString &input : call.arguments) {
        files.append(outputFile(input, call.value("output"), QStringLiteral("manuscript"),
                                MRVTextXhtmlExporter::suffix(options.type), isFolder));
    }
    return options.isPackage() ? files.mid(0, 1) : files;
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
int checkOutputs(const Call &call, const QStringList &outputs)
{
    if (outputs.size() > 1 && outputs.contains(StandardOutput)) {
        return usageError(QStringLiteral(
            "only one page can be written to standard output; choose a folder with -o"));
    }
    QString error;
    return spareInputs(outputs, call.arguments, &error)
            && MRVOutputFiles::areDistinct(filesOf(outputs), &error)
        ? -1
        : refuse(error);
}

bool readManuscripts(const Call &call, const Options &options, const QStringList &outputs,
                     std::vector<MRVManuscript> *manuscripts, QString *error)
{
    InputOptions reading = options.input;
    reading.pictures =
        options.isPackage() || (!call.has("no-images") && outputs.constFirst() != StandardOutput);
    if (options.isPackage() && reading.missingPictures == MRVManuscriptReader::Keep) {
        reading.missingPictures = MRVManuscriptReader::Drop; // a book names no file outside of it
    }
    QStringList pictures{call.value("cover")};
    for (const QString &path : call.arguments) {
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

// Tells what an export lacks, which ends a strict one.
bool acceptLosses(const Options &options, const QStringList &losses, QString *error)
{
    if (options.input.strict && !losses.isEmpty()) {
        *error = losses.constFirst();
        return false;
    }
    for (const QString &loss : losses) {
        printError(QStringLiteral("note: %1").arg(loss));
    }
    return true;
}

bool exportPages(const Call &call, const Options &options,
                 const std::vector<MRVManuscript> &manuscripts, const QStringList &outputs,
                 QStringList *written, QString *error)
{
    const MRVPageOptions pageOptions{options.type, MRVTextXhtmlExporter::isForEBooks(options.type),
                                     !call.has("no-images"), options.metadata.title,
                                     options.metadata.language};
    if (outputs.constFirst() == StandardOutput) {
        const MRVManuscript &first = manuscripts.front();
        const QString page =
            MRVPagePublisher::pageText(pageOptions, first.document.get(), first.language);
        MRVExportCheck check;
        check.addDocument(*first.document);
        check.addPage(page);
        return acceptLosses(options, check.losses(), error)
            && writeStandardOutput(page.toUtf8(), error);
    }
    MRVPagePublisher publisher(pageOptions);
    for (std::size_t i = 0; i < manuscripts.size(); ++i) {
        showProgress(QStringLiteral("Writing %1").arg(manuscripts[i].path));
        if (!publisher.add(manuscripts[i].document.get(), manuscripts[i].language,
                           outputs.at(int(i)), error)) {
            return false;
        }
    }
    return acceptLosses(options, publisher.losses(), error) && publisher.publish(written, error);
}

bool writePackage(const MRVEPubPackage &package, const QString &file, QString *error)
{
    if (file == StandardOutput) {
        const QByteArray bytes = package.toByteArray(error);
        return !bytes.isEmpty() && writeStandardOutput(bytes, error);
    }
    showProgress(QStringLiteral("Writing %1").arg(file));
    const auto content = [&package](QIODevice *device, QString *reason) {
        return package.write(device, reason);
    };
    return MRVStagedFiles::write(content, file, error);
}

bool exportPackage(const Call &call, const Options &options,
                   const std::vector<MRVManuscript> &manuscripts, const QString &file,
                   QStringList *written, QString *error)
{
    MRVEPubMetadata metadata = options.metadata;
    metadata.completeFrom(manuscripts.front());
    if (call.has("cover") && !metadata.readCover(call.value("cover"), error)) {
        return false;
    }
    const bool isOld = call.value("epub-version") == QLatin1String("2");
    MRVEPubPackage package(isOld ? MRVEPubVersion::EPub2 : MRVEPubVersion::EPub3, metadata);
    QVector<const QTextDocument *> documents;
    for (const MRVManuscript &manuscript : manuscripts) {
        showProgress(QStringLiteral("Adding %1").arg(manuscript.path));
        if (!package.addManuscript(manuscript, error)) {
            return false;
        }
        documents.append(manuscript.document.get());
    }
    if (!acceptLosses(options, package.losses(documents), error)) {
        return false;
    }
    if (!writePackage(package, file, error)) {
        return false;
    }
    if (package.remotePictures() > 0) {
        printError(QStringLiteral("note: pictures on other machines that are not in the e-book: %1")
                       .arg(package.remotePictures()));
    }
    if (file != StandardOutput) {
        written->append(file);
    }
    return true;
}

QJsonArray unreadablePictures(const std::vector<MRVManuscript> &manuscripts)
{
    QJsonArray pictures;
    for (const MRVManuscript &manuscript : manuscripts) {
        for (const MRVUnreadablePicture &picture : manuscript.unreadablePictures) {
            pictures.append(QJsonObject{{QStringLiteral("input"), manuscript.path},
                                        {QStringLiteral("line"), picture.line},
                                        {QStringLiteral("picture"), picture.name},
                                        {QStringLiteral("reason"), picture.reason}});
        }
    }
    return pictures;
}

void report(const Call &call, const std::vector<MRVManuscript> &manuscripts,
            const QStringList &written)
{
    QJsonArray files;
    QMap<QString, int> pictures; // by folder
    for (const QString &file : written) {
        if (QFileInfo(file).path().endsWith(QLatin1String("_files"))) {
            ++pictures[QFileInfo(file).path()];
        } else if (!call.json()) {
            printLine(file);
        }
        files.append(QJsonObject{{QStringLiteral("path"), file},
                                 {QStringLiteral("bytes"), QFileInfo(file).size()}});
    }
    for (auto it = pictures.constBegin(); it != pictures.constEnd() && !call.json(); ++it) {
        printLine(QStringLiteral("%1/ (pictures: %2)").arg(it.key(), QString::number(it.value())));
    }
    if (call.json()) {
        printJson({{QStringLiteral("files"), files},
                   {QStringLiteral("missingPictures"), unreadablePictures(manuscripts)}});
    }
}

int run(const Call &call)
{
    Options options;
    int code = readOptions(call, &options);
    if (code >= 0) {
        return code;
    }
    const QStringList outputs = outputFiles(call, options);
    code = checkOutputs(call, outputs);
    if (code >= 0) {
        return code;
    }
    std::vector<MRVManuscript> manuscripts;
    QStringList written;
    QString error;
    const bool ok = readManuscripts(call, options, outputs, &manuscripts, &error)
        && (options.isPackage()
                ? exportPackage(call, options, manuscripts, outputs.constFirst(), &written, &error)
                : exportPages(call, options, manuscripts, outputs, &written, &error));
    if (!ok) {
        return refuse(error);
    }
    showProgress(QString());
    if (outputs.constFirst() != StandardOutput) {
        report(call, manuscripts, written);
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
    markdownSyntax(),
    strictReading(),
    missingPictures(),
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
    "Writes manuscripts (HTML, Markdown, plain text, and by pandoc DOCX, ODT and RTF; - is "
    "standard input) as pages or e-books. "
    "Several inputs become one e-book, or a page each.",
    "export novel.html --to epub --cover cover.png -o novel.epub\n"
    "export one.md two.md --to epub --title \"Both\" -o both.epub\n"
    "export notes.md --to xhtml -o site/notes.xhtml",
    verbs,
    {options, metadata},
};
