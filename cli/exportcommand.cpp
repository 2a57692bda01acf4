#include "inputs.h"

#include "core/mrvcoreutil.h"
#include "epub/mrvbooklist.h"
#include "epub/mrvepubcheck.h"
#include "epub/mrvepubpackage.h"
#include "markdown/mrvfrontmatter.h"
#include "pdf/mrvmanuscriptpdf.h"
#include "publish/mrvoutputfiles.h"
#include "publish/mrvpagepublisher.h"
#include "publish/mrvstagedfiles.h"
#include "publish/mrvtextpublisher.h"
#include "textexport/mrvdocumentlosses.h"
#include "textexport/mrvmarkdownwriter.h"
#include "textexport/mrvplaintextwriter.h"
#include "util/mrvfailure.h"
#include "util/mrvfixeddate.h"
#include "util/mrvpapersize.h"
#include "xhtml/mrvexportcheck.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QMap>

#include <vector>

namespace {

const QLatin1String StandardOutput("-");

// Those that e-books alone have a use for, as check.
constexpr Option bookOptions[] = {
    Option::name("book", "FILE",
                 "The inputs, a line each, in this order; after \" | \" a title may follow. "
                 "\"[Title]\" begins a part and \"[]\" ends one."),
    Option::name("css", "FILE", "A style sheet, in the place of --css-base."),
    Option::choice("css-base", "NAME", "none classic modern",
                   "The typography: classic (default; indented paragraphs), modern (spaced ones) "
                   "or none."),
    Option::choice("notes", "PLACE", "chapter book",
                   "Where notes stand: after each chapter (default) or at the end of the book."),
    Option::flag("comments-as-notes",
                 "Make notes of annotations within the text and of comments in the margin (of "
                 "DOCX, ODT and RTF)."),
    Option::integer("toc-depth", "N", 1, 6, "Levels of headings in the contents. Default: all."),
    Option::choice("epub-version", "N", "2 3", "3 (default) or 2."),
    Option::name("date", "TIME",
                 "The date of modification (ISO 8601; UTC unless it says otherwise), for e-books "
                 "that are the same byte for byte. Default: SOURCE_DATE_EPOCH (seconds since "
                 "1970), else now."),
    Option::name("cover", "FILE", "A picture for the cover page."),
    Option::name("metadata", "FILE",
                 "Lines such as \"publisher: NAME\", by the names of the options that follow. What "
                 "they do not say, this file does, and else the manuscript."),
};

constexpr Option metadataOptions[] = {
    Option::text("subtitle", "TEXT", "The subtitle."),
    Option::text("author", "NAME",
                 "An author; \"NAME | FORM\" also says how lists file the name, as Marrable, Ilse.")
        .repeated(),
    Option::text("contributor", "ROLE:NAME",
                 "Another person, by a MARC code or its name: \"translator:Ann Lee\".")
        .repeated(),
    Option::text("identifier", "URI",
                 "An identifier. Default: that of the ISBN, else computed from the content."),
    Option::text("isbn", "NUMBER", "The ISBN of this e-book."),
    Option::text("publisher", "NAME", "The publisher."),
    Option::text("published", "DATE", "When it was published: a year, a month or a day."),
    Option::text("description", "TEXT", "What the book is about."),
    Option::text("rights", "TEXT", "Copyright and licence."),
    Option::text("series", "NAME", "The series that it is part of."),
    Option::text("series-number", "N", "Its number in the series."),
    Option::text("subject", "TEXT", "What shelf it belongs on.").repeated(),
    Option::text("source", "TEXT", "The edition whose page numbers it has, such as its ISBN."),
};

// What a call asks for, checked.
struct Options
{
    MRVTextXhtmlExporter::ExportType type = MRVTextXhtmlExporter::Html;
    InputOptions input;
    MRVEPubMetadata metadata;
    MRVEPubOptions book;
    QVector<MRVBookListEntry> list; // of inputs and parts
    bool isPdf = false; // else text or type says what
    MRVDocumentLosses::Format text = MRVDocumentLosses::Html; // Html where it is no text
    MRVPrintOptions print;

    bool isText() const { return text != MRVDocumentLosses::Html; }
    bool isPackage() const { return !isPdf && type == MRVTextXhtmlExporter::EPub; }
    /** Whether all inputs become one file. */
    bool isBook() const { return isPdf || isPackage(); }
};

// Of the options that belong to pages and e-books, those that PDF documents have, too.
int checkPrintOptions(const Call &call)
{
    static const QStringList own{QStringLiteral("book"), QStringLiteral("date"),
                                 QStringLiteral("author")};
    QStringList others{QStringLiteral("check"), QStringLiteral("no-images")};
    for (const Rows<Option> &rows : {Rows<Option>(bookOptions), Rows<Option>(metadataOptions)}) {
        for (const Option &row : rows) {
            others.append(QLatin1String(row.names));
        }
    }
    for (const QString &option : call.options()) {
        if (others.contains(option) && !own.contains(option)) {
            return usageError(QStringLiteral("--%1 is not for PDF documents").arg(option));
        }
    }
    return -1;
}

// -1 to go on, else the exit code; so with all that follow.
int readType(const Call &call, Options *options)
{
    const QString to = call.value("to");
    options->isPdf = to == QLatin1String("pdf");
    options->text = to == QLatin1String("markdown") ? MRVDocumentLosses::Markdown
        : to == QLatin1String("text")               ? MRVDocumentLosses::PlainText
                                                    : MRVDocumentLosses::Html;
    if (!options->isPdf && !options->isText()
        && !MRVTextXhtmlExporter::typeNamed(to, &options->type)) {
        return usageError(QStringLiteral(
            "say with --to what to write: html, xhtml, epub, kindle, kf8, pdf, markdown or text"));
    }
    if (options->isPdf) {
        return checkPrintOptions(call);
    }
    for (const char *option : {"layout", "paper"}) {
        if (call.has(option)) {
            return usageError(
                QStringLiteral("--%1 is for PDF documents only").arg(QLatin1String(option)));
        }
    }
    QStringList forBooks{QStringLiteral("check")};
    for (const Rows<Option> &rows : {Rows<Option>(bookOptions), Rows<Option>(metadataOptions)}) {
        for (const Option &row : rows) {
            forBooks.append(QLatin1String(row.names));
        }
    }
    const bool isPackage = options->isPackage();
    for (const QString &option : call.options()) {
        if (isPackage ? option == QLatin1String("no-images") : forBooks.contains(option)) {
            return usageError(QStringLiteral("--%1 is for %2 only")
                                  .arg(option, QLatin1String(isPackage ? "pages" : "e-books")));
        }
    }
    return -1;
}

// A choice by its place in its list.
template<typename Choice>
Choice chosen(const Call &call, const char *option, const char *choices, Choice otherwise)
{
    return call.has(option) ? Choice(words(choices).indexOf(call.value(option))) : otherwise;
}

bool readBook(const Call &call, Options *options, MRVErrorSink error)
{
    MRVEPubOptions &book = options->book;
    book.styleBase = chosen(call, "css-base", "none classic modern", book.styleBase);
    book.notes = chosen(call, "notes", "chapter book", book.notes);
    book.commentsAsNotes = call.has("comments-as-notes");
    book.contentsDepth = int(call.number("toc-depth", 0));
    for (const Option &row : metadataOptions) {
        for (const QString &value : call.values(row.names)) {
            if (!options->metadata.set(QLatin1String(row.names), value, error)) {
                return false;
            }
        }
    }
    return MRVFixedDate::fromTextOrEnvironment(call.value("date"), &options->metadata.modified,
                                               error);
}

int readMetadata(const Call &call, Options *options)
{
    options->metadata.title = call.value("title");
    MRVError error;
    const bool ok = readLanguage(call, &options->metadata.language, &error)
        && readMarkdownSyntax(call, call.arguments, &options->input.markdown, &error)
        && (!options->isBook() || readBook(call, options, &error));
    MRVPrintOptions::layoutNamed(call.value("layout"), &options->print.layout);
    options->print.paper = MRVPaperSize::named(call.value("paper"));
    return ok ? -1 : usageError(error.text);
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
    const bool isFolder = !options.isBook() && call.arguments.size() > 1;
    const QString suffix = options.isPdf               ? QStringLiteral("pdf")
        : options.text == MRVDocumentLosses::Markdown  ? QStringLiteral("md")
        : options.text == MRVDocumentLosses::PlainText ? QStringLiteral("txt")
                                                       : MRVTextXhtmlExporter::suffix(options.type);
    const QStringList inputs = call.has("book") ? QStringList(call.value("book")) : call.arguments;
    for (const QString &input : inputs) {
        files.append(MRVOutputFiles::fileFor(input, call.value("output"),
                                             QStringLiteral("manuscript"), suffix, isFolder));
    }
    return options.isBook() ? files.mid(0, 1) : files;
}

bool spareInputs(const QStringList &outputs, const QStringList &inputs, MRVErrorSink error)
{
    MRVError reason;
    return MRVOutputFiles::spareInputs(outputs, inputs, &reason)
        || MRV::fail(error, reason.kind, reason.text + QLatin1String("; choose another with -o"));
}

// -1 to go on, else the exit code.
int checkOutputs(const Call &call, const QStringList &outputs)
{
    if (outputs.size() > 1 && outputs.contains(StandardOutput)) {
        return usageError(QStringLiteral(
            "only one page can be written to standard output; choose a folder with -o"));
    }
    MRVError error;
    return spareInputs(outputs, call.arguments, &error)
            && MRVOutputFiles::areDistinct(outputs, &error)
        ? -1
        : refuse(error);
}

// Notes of an e-book show comments; of text, the losses tell what becomes of them.
void tellComments(const Options &options, const MRVManuscript &manuscript)
{
    const bool areShown = options.isText() || (options.isPackage() && options.book.commentsAsNotes);
    if (manuscript.report.comments > 0 && !areShown) {
        printNote(QStringLiteral("%1: comments that are left out: %2; --comments-as-notes makes "
                                 "notes of them in e-books")
                      .arg(manuscript.path)
                      .arg(manuscript.report.comments));
    }
}

bool readManuscripts(const Call &call, const Options &options, const QStringList &outputs,
                     std::vector<MRVManuscript> *manuscripts, MRVErrorSink error)
{
    InputOptions reading = options.input;
    reading.pictures = options.isBook() || !call.has("no-images");
    reading.pictureNames = !options.isBook() && outputs.constFirst() == StandardOutput;
    if (options.isBook() && reading.missingPictures == MRVManuscriptReader::Keep) {
        reading.missingPictures = MRVManuscriptReader::Drop; // a book names no file outside of it
    }
    QStringList pictures{call.value("cover"), call.value("css"), call.value("metadata"),
                         call.value("book")};
    for (const QString &path : call.arguments) {
        showProgress(QStringLiteral("Reading %1").arg(path));
        MRVManuscript manuscript;
        if (!readManuscript(path, reading, &manuscript, error)) {
            return false;
        }
        tellComments(options, manuscript);
        pictures += manuscript.pictures;
        manuscripts->push_back(std::move(manuscript));
    }
    return spareInputs(outputs, pictures, error);
}

void printNotes(const QStringList &notes)
{
    for (const QString &note : notes) {
        printNote(note);
    }
}

// Tells what an export lacks, which ends a strict one.
bool acceptLosses(const Options &options, const QStringList &losses, MRVErrorSink error)
{
    if (options.input.strict && !losses.isEmpty()) {
        for (int i = 0; i + 1 < losses.size(); ++i) {
            printError({MRVErrorKind::Other, losses.at(i)});
        }
        return MRV::fail(error, losses.constLast());
    }
    printNotes(losses);
    return true;
}

bool exportPages(const Call &call, const Options &options,
                 const std::vector<MRVManuscript> &manuscripts, const QStringList &outputs,
                 QStringList *written, MRVErrorSink error)
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
        publisher.setProgress(progressOf(QStringLiteral("Writing %1").arg(manuscripts[i].path)));
        if (!publisher.add(manuscripts[i].document.get(), manuscripts[i].language,
                           outputs.at(int(i)), error)) {
            return false;
        }
        if (manuscripts.size() > 1 && !manuscripts[i].fileName.isEmpty()) {
            publisher.setSource(outputs.at(int(i)), manuscripts[i].path);
        }
    }
    return acceptLosses(options, publisher.losses(), error) && publisher.publish(written, error);
}

MRVMarkdownHead headOf(const Options &options, const MRVManuscript &manuscript)
{
    MRVMarkdownHead head = manuscript.head();
    if (!options.metadata.title.isEmpty()) {
        head.title = options.metadata.title;
    }
    if (!options.metadata.language.isEmpty()) {
        head.language = options.metadata.language;
    }
    return head;
}

// One input as Markdown or plain text.
bool exportText(const Call &call, const Options &options, const MRVManuscript &manuscript,
                const QString &file, QStringList *written, MRVErrorSink error)
{
    const QTextDocument &document = *manuscript.document;
    const MRVMarkdownHead head = headOf(options, manuscript);
    const bool isFile = file != StandardOutput;
    if (options.text == MRVDocumentLosses::PlainText) {
        const QByteArray text = MRVPlainTextWriter(document).text().toUtf8();
        written->append(isFile ? QStringList(file) : QStringList());
        return writeOutput(text, file, error);
    }
    if (isFile && !call.has("no-images")) {
        return MRVTextPublisher::writeMarkdown(document, head, file, written, error);
    }
    MRVMarkdownWriter writer(document);
    writer.setHead(head);
    written->append(isFile ? QStringList(file) : QStringList());
    return writeOutput(writer.text().toUtf8(), file, error);
}

bool exportTexts(const Call &call, const Options &options,
                 const std::vector<MRVManuscript> &manuscripts, const QStringList &outputs,
                 QStringList *written, MRVErrorSink error)
{
    QStringList losses;
    for (const MRVManuscript &manuscript : manuscripts) {
        QStringList own = MRVDocumentLosses::of(*manuscript.document, options.text);
        if (options.text == MRVDocumentLosses::Markdown) {
            for (const QString &key : MRVFrontMatter::lostKeys(manuscript.head())) {
                own.append(QStringLiteral("metadata %1").arg(key));
            }
        }
        for (const QString &loss : own) {
            losses.append(QStringLiteral("%1: not written: %2").arg(manuscript.path, loss));
        }
    }
    if (!acceptLosses(options, losses, error)) {
        return false;
    }
    for (std::size_t i = 0; i < manuscripts.size(); ++i) {
        showProgress(QStringLiteral("Writing %1").arg(outputs.at(int(i))));
        if (!exportText(call, options, manuscripts[i], outputs.at(int(i)), written, error)) {
            return false;
        }
    }
    return true;
}

bool writePackage(MRVEPubPackage *package, const QString &file, MRVErrorSink error)
{
    if (file == StandardOutput) {
        const QByteArray bytes = package->toByteArray(error);
        return !bytes.isEmpty() && writeStandardOutput(bytes, error);
    }
    package->setProgress(progressOf(QStringLiteral("Writing %1").arg(file)));
    const auto content = [package](QIODevice *device, MRVErrorSink reason) {
        return package->write(device, reason);
    };
    return MRVStagedFiles::write(content, file, error);
}

bool readStyleSheet(const QString &file, QByteArray *sheet, MRVErrorSink error)
{
    MRVError unreadable;
    *sheet = file.isEmpty() ? QByteArray() : MRVCoreUtil::readStream(file, &unreadable);
    return !unreadable || MRV::fail(error, unreadable);
}

// From the options, then the file, then the manuscript.
bool completeMetadata(const Call &call, const MRVManuscript &manuscript, MRVEPubMetadata *metadata,
                      MRVErrorSink error)
{
    QStringList notes;
    if ((call.has("cover") && !metadata->readCover(call.value("cover"), error))
        || (call.has("metadata") && !metadata->readFile(call.value("metadata"), &notes, error))) {
        return false;
    }
    metadata->completeFrom(manuscript, &notes);
    if (metadata->language.isEmpty()) {
        notes.append(QStringLiteral("the language of the book is unknown; say it with --language"));
    }
    printNotes(notes);
    return true;
}

bool exportPackage(const Call &call, const Options &options,
                   const std::vector<MRVManuscript> &manuscripts, const QString &file,
                   QStringList *written, MRVErrorSink error)
{
    MRVEPubMetadata metadata = options.metadata;
    MRVEPubOptions book = options.book;
    if (!completeMetadata(call, manuscripts.front(), &metadata, error)
        || !readStyleSheet(call.value("css"), &book.styleSheet, error)) {
        return false;
    }
    book.areChapters = manuscripts.size() > 1;
    book.packing = MRVEPubOptions::Small;
    const bool isOld = call.value("epub-version") == QLatin1String("2");
    MRVEPubPackage package(isOld ? MRVEPubVersion::EPub2 : MRVEPubVersion::EPub3, metadata, book);
    if (!package.addManuscripts(options.list, manuscripts, error)) {
        return false;
    }
    QVector<const QTextDocument *> documents;
    for (const MRVManuscript &manuscript : manuscripts) {
        documents.append(manuscript.document.get());
    }
    const QStringList defects = options.input.strict ? package.defects() : QStringList();
    if (!acceptLosses(options, package.losses(documents) + defects, error)
        || !writePackage(&package, file, error)) {
        return false;
    }
    printNotes(package.notes());
    if (file != StandardOutput) {
        written->append(file);
    }
    return true;
}

// As for an e-book: what the call does not say, the first manuscript does.
bool exportPdf(const Options &options, const std::vector<MRVManuscript> &manuscripts,
               const QString &file, QStringList *written, MRVErrorSink error)
{
    MRVEPubMetadata metadata = options.metadata;
    QStringList notes;
    metadata.completeFrom(manuscripts.front(), &notes);
    MRVPrintOptions print = options.print;
    print.title = metadata.title;
    for (const QString &author : qAsConst(metadata.authors)) {
        print.authors.append(author.section(u'|', 0, 0).trimmed());
    }
    print.surname = metadata.authors.value(0).section(u'|', 1).section(u',', 0, 0).trimmed();
    print.language = metadata.language;
    print.date = metadata.modified;
    MRVManuscriptPdf pdf(print);
    std::size_t next = 0;
    for (const MRVBookListEntry &entry : options.list) {
        if (entry.isPart) {
            pdf.addPart(entry.title);
        } else {
            const QTextDocument &document = *manuscripts[next].document;
            // A single one has the title page for that.
            const QString own = manuscripts.size() > 1
                ? document.metaInformation(QTextDocument::DocumentTitle)
                : QString();
            pdf.addDocument(document, manuscripts[next].path,
                            entry.title.isEmpty() ? own : entry.title);
            ++next;
        }
    }
    QByteArray bytes;
    pdf.setProgress(progressOf(QStringLiteral("Writing %1").arg(file)));
    if (!pdf.toByteArray(&bytes, error)) {
        return false;
    }
    notes += pdf.notes();
    if (!acceptLosses(options, notes, error) || !writeOutput(bytes, file, error)) {
        return false;
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

// Validates e-books. @return Done, or Failed where there is something wrong.
int check(const Call &call, const QStringList &books, QJsonObject *answer)
{
    QJsonArray all;
    for (const QString &book : books) {
        QVector<MRVEPubFinding> findings;
        MRVError error;
        showProgress(QStringLiteral("Checking %1").arg(book));
        if (!MRVEPubCheck::check(book, &findings, &error)) {
            return refuse(error);
        }
        showProgress(QString());
        for (const MRVEPubFinding &finding : qAsConst(findings)) {
            all.append(finding.toJson(book));
            if (!call.json()) {
                printLine(finding.toString(book));
            }
        }
    }
    answer->insert(QStringLiteral("findings"), all);
    return all.isEmpty() ? Done : Failed;
}

int report(const Call &call, const std::vector<MRVManuscript> &manuscripts,
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
    QJsonObject answer{{QStringLiteral("files"), files},
                       {QStringLiteral("missingPictures"), unreadablePictures(manuscripts)}};
    const int code = call.has("check") ? check(call, written, &answer) : int(Done);
    if (call.json()) {
        printJson(answer);
    }
    return code;
}

// --check alone: the inputs are e-books.
int checkInputs(const Call &call)
{
    for (const QString &option : call.options()) {
        if (option != QLatin1String("check") && option != QLatin1String("json")) {
            return usageError(
                QStringLiteral("--%1 is for what is written; say what with --to").arg(option));
        }
    }
    QJsonObject answer;
    const int code = check(call, call.arguments, &answer);
    if (call.json() && !answer.isEmpty()) {
        printJson(answer);
    }
    return code;
}

// Takes the inputs from the call or from the list that it names.
int readInputs(Call *call, Options *options)
{
    if (call->has("book") != call->arguments.isEmpty()) {
        return usageError(QStringLiteral("give inputs, or a list of them with --book"));
    }
    for (const QString &input : qAsConst(call->arguments)) {
        options->list.append({false, input, QString()});
    }
    MRVError error;
    if (call->has("book") && !MRVBookList::read(call->value("book"), &options->list, &error)) {
        return refuse(error);
    }
    call->arguments.clear();
    for (const MRVBookListEntry &entry : qAsConst(options->list)) {
        call->arguments += entry.isPart ? QStringList() : QStringList(entry.path);
    }
    return -1;
}

int run(const Call &given)
{
    Call call = given;
    Options options;
    int code = readInputs(&call, &options);
    if (code < 0 && call.has("check") && !call.has("to")) {
        return checkInputs(call);
    }
    code = code < 0 ? readOptions(call, &options) : code;
    if (code >= 0) {
        return code;
    }
    const QStringList outputs = outputFiles(call, options);
    if (call.has("check") && outputs.constFirst() == StandardOutput) {
        return usageError(QStringLiteral("only a file can be checked; choose one with -o"));
    }
    code = checkOutputs(call, outputs);
    if (code >= 0) {
        return code;
    }
    std::vector<MRVManuscript> manuscripts;
    QStringList written;
    MRVError error;
    const bool ok = readManuscripts(call, options, outputs, &manuscripts, &error)
        && (options.isPdf ? exportPdf(options, manuscripts, outputs.constFirst(), &written, &error)
                : options.isPackage()
                ? exportPackage(call, options, manuscripts, outputs.constFirst(), &written, &error)
                : options.isText()
                ? exportTexts(call, options, manuscripts, outputs, &written, &error)
                : exportPages(call, options, manuscripts, outputs, &written, &error));
    if (!ok) {
        return refuse(error);
    }
    showProgress(QString());
    return outputs.constFirst() == StandardOutput ? int(Done) : report(call, manuscripts, written);
}

constexpr Verb verbs[] = {{"", "[IN...]", "", run}};

constexpr Option options[] = {
    Option::choice("to", "TYPE", "html xhtml epub kindle kf8 pdf markdown text",
                   "What to write: html, xhtml, epub, kindle, kf8, pdf, markdown or text."),
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
                 "The language, such as en-GB. Default: that of the manuscript."),
    Option::choice("layout", "NAME", "book manuscript",
                   "The pages of a PDF document: book (default), or manuscript as publishers want "
                   "it, in double-spaced Courier."),
    Option::choice("paper", "PAPER", "letter a4 a5",
                   "The paper of a PDF document. Default: a5 for a book, letter for a manuscript."),
    Option::flag("no-images",
                 "Leave pictures where they are, and what refers to them. (Pages only.)"),
    Option::flag("json", "Print as JSON what was written; nothing when that is standard output."),
    Option::flag("check",
                 "Check e-books by epubcheck: with --to epub the one that is written, else the "
                 "inputs. What is wrong is printed, and the exit code is 1. (E-books only, as all "
                 "that follow.)"),
};

} // namespace

const Command exportCommand = {
    "export",
    "write manuscripts as pages, e-books, PDF documents, Markdown or text",
    "Writes manuscripts (HTML, Markdown, plain text, documents of the writing program (.mrvdoc), "
    "and by pandoc DOCX, ODT and RTF; - is standard input) as pages, e-books, PDF documents, "
    "Markdown or plain text. "
    "Several inputs become one e-book or PDF document, or else a file each. What Markdown or plain "
    "text cannot say of a manuscript is told.",
    "export novel.html --to epub --cover cover.png -o novel.epub\n"
    "export one.md two.md --to epub --title \"Both\" -o both.epub\n"
    "export notes.md --to xhtml -o site/notes.xhtml\n"
    "export novel.md --to pdf --layout manuscript",
    verbs,
    {options, bookOptions, metadataOptions},
};
