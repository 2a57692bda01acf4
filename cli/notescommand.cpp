#include "command.h"
#include "sourceedit.h"
#include "textsearch.h"

#include <QBrush>
#include <QColor>
#include <QCommandLineParser>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextImageFormat>

#include <algorithm>

namespace {

enum Kind { Link, Footnote, Comment, Highlight, Picture, Anchor };

constexpr const char *kindNames[] = {"link",      "footnote", "comment",
                                     "highlight", "picture",  "anchor"}; // by Kind

struct Note
{
    MRVTextRange range;
    Kind kind;
    QString target; // address, colour, file or name
    QString text; // in place of what stands at the range, unless null
};

struct Options
{
    QStringList kinds; // empty: all
    InputOptions input;
    QStringList inputs;
    bool json = false;
};

int usageError(const QString &text)
{
    printError(QLatin1String("notes: ") + text);
    return WrongUsage;
}

// -1 to go on, else the exit code.
int readOptions(const QStringList &arguments, Options *options)
{
    QStringList known;
    for (const char *name : kindNames) {
        known.append(QLatin1String(name));
    }
    const QString list = known.join(QLatin1String(", "));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Lists what manuscripts (HTML, Markdown or plain text; - is standard input) carry besides\n"
        "their text: links, footnotes and links to and from them, comments, highlights, pictures\n"
        "and named places, as PATH:PARAGRAPH: KIND. Comments of HTML are in no paragraph; they\n"
        "follow with their line in the file. Exit code 1: nothing found."));
    parser.addPositionalArgument(QStringLiteral("IN"), QStringLiteral("The manuscripts."),
                                 QStringLiteral("IN..."));
    parser.addOption({QStringLiteral("only"),
                      QStringLiteral("Only this kind: %1. May be given several times.").arg(list),
                      QStringLiteral("KIND")});
    addInputOptions(&parser);
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print each as a line of JSON.")});
    const int code = parseArguments(&parser, QStringLiteral("notes IN... [OPTIONS]"), arguments);
    if (code >= 0) {
        return code;
    }
    options->inputs = parser.positionalArguments();
    options->kinds = parser.values(QStringLiteral("only"));
    options->json = parser.isSet(QStringLiteral("json"));
    for (const QString &kind : qAsConst(options->kinds)) {
        if (!known.contains(kind)) {
            return usageError(QStringLiteral("unknown kind '%1'; known are %2").arg(kind, list));
        }
    }
    QString error;
    return readInputOptions(parser, options->inputs, &options->input, &error) ? -1
                                                                              : usageError(error);
}

QTextCharFormat formatAt(const QTextDocument &document, int position)
{
    const QTextBlock block = document.findBlock(position);
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        if (it.fragment().contains(position)) {
            return it.fragment().charFormat();
        }
    }
    return QTextCharFormat();
}

// Word processors and converters name notes and comments in their own ways; else, a link inside the
// page on a mere number or sign belongs to a note.
Kind kindOfLink(const QString &address, const QString &text)
{
    static const QRegularExpression comment(QStringLiteral("#(?:_msocom|cmnt)"));
    static const QRegularExpression footnote(
        QStringLiteral("#_*(?:fn|ftn|edn|footnote|endnote|sdfootnote|sdendnote|cite_)"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression sign(
        QStringLiteral(
            "^[\\[(]?(?:\\d{1,4}|[a-z]|[ivxlc]+|[*\u2020\u2021\u00a7\u00b6]+|\u21a9\ufe0e?)"
            "[.\\])]*$"),
        QRegularExpression::CaseInsensitiveOption);
    if (address.contains(comment)) {
        return Comment;
    }
    const bool inside = address.startsWith(u'#');
    return address.contains(footnote) || (inside && text.trimmed().contains(sign)) ? Footnote
                                                                                   : Link;
}

void addLinks(QTextDocument *document, QVector<Note> *notes)
{
    QTextCursor all(document);
    all.select(QTextCursor::Document);
    const QList<MRVTextRange> links = MRVTextFinder::findAllAnchors(all);
    for (const MRVTextRange &link : links) {
        const QString address = formatAt(*document, link.start()).anchorHref();
        const QString text = link.toTextCursor(document).selectedText();
        notes->append({link, kindOfLink(address, text), address, QString()});
    }
}

void addHighlights(const QTextDocument &document, QVector<Note> *notes)
{
    QVector<QColor> colors; // each is a highlight of its own
    const QVector<QTextFormat> formats = document.allFormats();
    for (const QTextFormat &format : formats) {
        const QBrush brush = format.background();
        if (format.isCharFormat() && brush.style() != Qt::NoBrush
            && !colors.contains(brush.color())) {
            colors.append(brush.color());
        }
    }
    for (const QColor &color : qAsConst(colors)) {
        const auto runs =
            MRVTextFinder::findAllRuns(&document, MRVTextFinder::FindHighlight, color);
        for (const MRVTextRange &run : runs) {
            notes->append({run, Highlight, color.name(), QString()});
        }
    }
}

void addPictures(const QTextDocument &document, QVector<Note> *notes)
{
    QTextCharFormat picture;
    picture.setObjectType(QTextFormat::ImageObject);
    const auto runs = MRVTextFinder::findAllFragments(&document, picture, true);
    for (const MRVTextRange &run : runs) {
        const QTextImageFormat format = formatAt(document, run.start()).toImageFormat();
        const QString alternative = format.stringProperty(QTextFormat::ImageAltText);
        // Equal pictures side by side are one run.
        for (int position = run.start(); position < run.end(); ++position) {
            notes->append({MRVTextRange(position, position + 1), Picture, format.name(),
                           alternative.isNull() ? QLatin1String("") : alternative});
        }
    }
}

void addAnchors(const QTextDocument &document, QVector<Note> *notes)
{
    QTextCharFormat named;
    named.setProperty(QTextFormat::AnchorName, QStringList());
    const auto runs = MRVTextFinder::findAllFragments(&document, named, false);
    for (const MRVTextRange &run : runs) {
        const QStringList names = formatAt(document, run.start()).anchorNames();
        for (const QString &name : names) {
            notes->append({MRVTextRange(run.start(), run.start()), Anchor, name, QString()});
        }
    }
}

// Notes that writers of plain text and Markdown type as such, and that documents hold as text.
void addTypedNotes(const QTextDocument &document, QVector<Note> *notes)
{
    const QRegularExpression footnote(QStringLiteral("\\[\\^[^\\]\\s]+\\]"));
    const QRegularExpression comment(QStringLiteral("\\{>>.*?<<\\}"));
    const auto footnotes = MRVTextFinder::findAll(&document, footnote);
    for (const MRVTextRange &range : footnotes) {
        notes->append({range, Footnote, QString(), QString()});
    }
    const auto comments = MRVTextFinder::findAll(&document, comment);
    for (const MRVTextRange &range : comments) {
        notes->append({range, Comment, QString(), QString()});
    }
}

QVector<Note> notesOf(QTextDocument *document)
{
    QVector<Note> notes;
    addLinks(document, &notes);
    addHighlights(*document, &notes);
    addPictures(*document, &notes);
    addAnchors(*document, &notes);
    addTypedNotes(*document, &notes);
    std::stable_sort(notes.begin(), notes.end(),
                     [](const Note &a, const Note &b) { return a.range < b.range; });
    return notes;
}

void printNote(const Options &options, const QString &place, Kind kind, const QString &target,
               const QString &text, QJsonObject object)
{
    if (options.json) {
        object.insert(QStringLiteral("kind"), QLatin1String(kindNames[kind]));
        object.insert(QStringLiteral("text"), text);
        if (!target.isEmpty()) {
            object.insert(QStringLiteral("target"), target);
        }
        printJson(object);
        return;
    }
    QString line = styled(Style::Path, place + u':') + u' ' + QLatin1String(kindNames[kind]);
    if (!text.isEmpty()) {
        line += QStringLiteral(" \u201c%1\u201d").arg(displayed(text).simplified());
    }
    if (!target.isEmpty()) {
        line += QLatin1String(" -> ") + displayed(target);
    }
    printLine(line);
}

// Comments of the markup, which no document holds. @return whether there are any.
bool printSourceComments(const Options &options, const DocumentInput &input)
{
    static const QRegularExpression comment(
        QStringLiteral("<(script|style)\\b.*?</\\1\\s*>|<!--(?!\\[if)(.*?)-->"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    const QString source = sourceText(input);
    int line = 1;
    int counted = 0;
    bool any = false;
    for (auto it = comment.globalMatch(source); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        if (match.capturedStart(2) < 0) {
            continue;
        }
        any = true;
        line += source.midRef(counted, match.capturedStart() - counted).count(u'\n');
        counted = match.capturedStart();
        printNote(options, QStringLiteral("%1: line %2").arg(input.path, QString::number(line)),
                  Comment, QString(), match.captured(2).trimmed(),
                  {{QStringLiteral("path"), input.path}, {QStringLiteral("line"), line}});
    }
    return any;
}

bool printNotes(const Options &options, const DocumentInput &input)
{
    const auto wanted = [&](Kind kind) {
        return options.kinds.isEmpty() || options.kinds.contains(QLatin1String(kindNames[kind]));
    };
    bool any = false;
    const QVector<Note> notes = notesOf(input.document.get());
    for (const Note &note : notes) {
        if (!wanted(note.kind)) {
            continue;
        }
        any = true;
        const QJsonObject object = toJson(input.path, input.document.get(), note.range);
        const int paragraph = object.value(QLatin1String("paragraph")).toInt();
        printNote(options, input.path + u':' + QString::number(paragraph), note.kind, note.target,
                  note.text.isNull() ? object.value(QLatin1String("text")).toString() : note.text,
                  object);
    }
    if (wanted(Comment) && input.format != QLatin1String("text")) {
        any = printSourceComments(options, input) || any;
    }
    return any;
}

} // namespace

int runNotes(const QStringList &arguments)
{
    Options options;
    const int code = readOptions(arguments, &options);
    if (code >= 0) {
        return code;
    }
    return lookThrough(options.inputs, options.input, QStringLiteral("Reading %1"),
                       [&](const DocumentInput &input) {
                           showProgress(QString());
                           return printNotes(options, input);
                       });
}
