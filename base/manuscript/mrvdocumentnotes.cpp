#include "manuscript/mrvdocumentnotes.h"

#include "document/mrvmarginnotes.h"
#include "document/mrvnotefinder.h"
#include "manuscript/mrvmanuscript.h"
#include "search/mrvtextfinder.h"
#include "textformat/mrvtextformat.h"

#include <QBrush>
#include <QColor>
#include <QRegularExpression>
#include <QSet>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextImageFormat>

#include <algorithm>

namespace {

constexpr const char *kinds[] = {"link",      "footnote", "comment",
                                 "highlight", "picture",  "anchor"}; // by Kind
static_assert(sizeof kinds / sizeof *kinds == MRVDocumentNote::Anchor + 1, "one a kind");

QString textOf(QTextDocument *document, const MRVTextRange &range)
{
    return range.toTextCursor(document)
        .selectedText()
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
}

QTextCharFormat formatAt(QTextDocument *document, int position)
{
    QTextCursor cursor(document);
    cursor.setPosition(position + 1); // a cursor has the format of the character before it
    return cursor.charFormat();
}

// Word processors and converters name comments and notes in their own ways.
MRVDocumentNote::Kind kindOfAddress(const QString &address)
{
    static const QRegularExpression comment(QStringLiteral("#(?:_msocom|cmnt)"));
    static const QRegularExpression footnote(
        QStringLiteral("#_*(?:(?:fn|ftnt?|edn|footnote|endnote|sdfootnote|sdendnote)"
                       "(?:_?ref)?[-_:.]?\\d|cite_(?:note|ref)-)"),
        QRegularExpression::CaseInsensitiveOption);
    return address.contains(comment) ? MRVDocumentNote::Comment
        : address.contains(footnote) ? MRVDocumentNote::Footnote
                                     : MRVDocumentNote::Link;
}

// Where links to and from notes begin.
QSet<int> linksOfNotes(const QTextDocument &document)
{
    QSet<int> links;
    const MRVDocumentFlow flow(document);
    const QVector<MRVMarkedNote> notes = MRVNoteFinder(flow).notes();
    for (const MRVMarkedNote &note : notes) {
        for (const QVector<int> &begins : {note.marks, note.backLinks}) {
            for (const int begin : begins) {
                links.insert(begin);
            }
        }
    }
    return links;
}

void addLinks(QTextDocument *document, QVector<MRVDocumentNote> *notes)
{
    QTextCursor all(document);
    all.select(QTextCursor::Document);
    const QSet<int> ofNotes = linksOfNotes(*document);
    const QList<MRVTextRange> links = MRVTextFinder::findAllAnchors(all);
    for (const MRVTextRange &link : links) {
        const QTextCharFormat format = formatAt(document, link.start());
        const bool isNote =
            ofNotes.contains(link.start()) || format.hasProperty(MRVTextFormat::NoteLinkProperty);
        notes->append({isNote ? MRVDocumentNote::Footnote : kindOfAddress(format.anchorHref()),
                       link, format.anchorHref(), textOf(document, link)});
    }
}

void addMarginNotes(QTextDocument *document, QVector<MRVDocumentNote> *notes)
{
    const QVector<MRVMarginNote> margin = MRVMarginNotes::all(document);
    for (const MRVMarginNote &note : margin) {
        const bool isFootnote = note.kind == MRVMarginNote::Footnote;
        notes->append({isFootnote ? MRVDocumentNote::Footnote : MRVDocumentNote::Comment,
                       note.range, note.text, textOf(document, note.range)});
    }
}

// Runs of one colour. As all runs do, they go on over paragraph ends and empty paragraphs.
void addHighlights(QTextDocument *document, QVector<MRVDocumentNote> *notes)
{
    struct Run
    {
        int start;
        int end;
        QColor color;
    };
    QVector<Run> runs;
    bool follows = false; // whether the fragment before is highlighted, too
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QBrush own = fragment.charFormat().background();
            const QBrush brush =
                own.style() == Qt::NoBrush ? block.blockFormat().background() : own;
            const bool highlighted = brush.style() != Qt::NoBrush;
            const int end = fragment.position() + fragment.length();
            if (highlighted && follows && runs.constLast().color == brush.color()) {
                runs.last().end = end;
            } else if (highlighted) {
                runs.append({fragment.position(), end, brush.color()});
            }
            follows = highlighted;
        }
    }
    for (const Run &run : qAsConst(runs)) {
        const MRVTextRange range(run.start, run.end);
        notes->append(
            {MRVDocumentNote::Highlight, range, run.color.name(), textOf(document, range)});
    }
}

void addPictures(QTextDocument *document, QVector<MRVDocumentNote> *notes)
{
    QTextCharFormat picture;
    picture.setObjectType(QTextFormat::ImageObject);
    const auto runs = MRVTextFinder::findAllFragments(document, picture, true);
    for (const MRVTextRange &run : runs) {
        const QTextImageFormat format = formatAt(document, run.start()).toImageFormat();
        const QString alternative = format.stringProperty(QTextFormat::ImageAltText);
        // Equal pictures side by side are one run.
        for (int position = run.start(); position < run.end(); ++position) {
            notes->append({MRVDocumentNote::Picture, MRVTextRange(position, position + 1),
                           format.name(), alternative});
        }
    }
}

void addAnchors(QTextDocument *document, QVector<MRVDocumentNote> *notes)
{
    QTextCharFormat named;
    named.setProperty(QTextFormat::AnchorName, QStringList());
    const auto runs = MRVTextFinder::findAllFragments(document, named, false);
    for (const MRVTextRange &run : runs) {
        const QStringList names = formatAt(document, run.start()).anchorNames();
        for (const QString &name : names) {
            notes->append(
                {MRVDocumentNote::Anchor, MRVTextRange(run.start(), run.start()), name, QString()});
        }
    }
}

// Notes that authors of plain text and Markdown type as such, and that documents hold as text.
void addTypedNotes(QTextDocument *document, QVector<MRVDocumentNote> *notes)
{
    const struct
    {
        MRVDocumentNote::Kind kind;
        QRegularExpression pattern;
    } rows[] = {
        {MRVDocumentNote::Footnote, QRegularExpression(QStringLiteral("\\[\\^[^\\]\\s]+\\]"))},
        {MRVDocumentNote::Comment, QRegularExpression(QStringLiteral("\\{>>.*?<<\\}"))},
    };
    for (const auto &row : rows) {
        const auto finds = MRVTextFinder::findAll(document, row.pattern);
        for (const MRVTextRange &find : finds) {
            notes->append({row.kind, find, QString(), textOf(document, find)});
        }
    }
}

} // namespace

QVector<MRVDocumentNote> MRVDocumentNotes::findAll(QTextDocument *document)
{
    QVector<MRVDocumentNote> notes;
    if (!document) {
        return notes;
    }
    addLinks(document, &notes);
    addMarginNotes(document, &notes);
    addHighlights(document, &notes);
    addPictures(document, &notes);
    addAnchors(document, &notes);
    addTypedNotes(document, &notes);
    std::stable_sort(
        notes.begin(), notes.end(),
        [](const MRVDocumentNote &a, const MRVDocumentNote &b) { return a.range < b.range; });
    return notes;
}

QVector<MRVSourceComment> MRVDocumentNotes::sourceComments(const MRVManuscript &manuscript)
{
    static const QRegularExpression comment(
        QStringLiteral("<(script|style)\\b.*?</\\1\\s*>|<!--(?!\\[if)(.*?)-->"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    QVector<MRVSourceComment> comments;
    if (manuscript.format == MRVManuscript::PlainText) {
        return comments;
    }
    const QString source = manuscript.sourceText();
    int line = 1;
    int counted = 0;
    for (auto it = comment.globalMatch(source); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        if (match.capturedStart(2) >= 0) {
            line += source.midRef(counted, match.capturedStart() - counted).count(u'\n');
            counted = match.capturedStart();
            comments.append({line, match.captured(2).trimmed()});
        }
    }
    return comments;
}

QString MRVDocumentNotes::kindName(MRVDocumentNote::Kind kind)
{
    return QLatin1String(kinds[kind]);
}

QStringList MRVDocumentNotes::kindNames()
{
    QStringList list;
    for (const char *name : kinds) {
        list.append(QLatin1String(name));
    }
    return list;
}
