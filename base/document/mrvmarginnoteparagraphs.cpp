#include "document/mrvmarginnotes.h"

#include "document/mrvdocumentcopy.h"
#include "document/mrvmarginnotereader_p.h"
#include "document/mrvnotefinder.h"
#include "document/mtextdocsweep_p.h"
#include "textformat/mrvnoteproperty.h"
#include "textformat/mrvtextblockformat.h"
#include "textformat/mrvtextformat.h"

#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <iterator>

namespace {

using Reader = MRVMarginNoteReader;

struct KindOfNote
{
    const char *name; // of anchors, as other programs have it
    const char *mark; // around the number
    const char *label;
    QTextCharFormat::VerticalAlignment alignment; // of the mark
};

constexpr KindOfNote kindsOfNotes[] = {
    {"cmnt", "[%1]", "[%1]", QTextCharFormat::AlignNormal},
    {"footnote", "%1", "%1.", QTextCharFormat::AlignSuperScript},
};
static_assert(std::size(kindsOfNotes) == MRVMarginNote::Footnote, "one a kind");

// What marks and notes have of the text around them.
constexpr int fontProperties[] = {QTextFormat::FontFamily, QTextFormat::FontFamilies,
                                  QTextFormat::FontPointSize, QTextFormat::FontPixelSize};
constexpr int paragraphProperties[] = {
    QTextFormat::LayoutDirection,    QTextFormat::BlockAlignment, QTextFormat::BlockTopMargin,
    QTextFormat::BlockBottomMargin,  QTextFormat::LineHeight,     QTextFormat::LineHeightType,
    MRVTextFormat::BlockBaseSpacing, MRVTextFormat::BlockSpacing,
};
// What holds text together that a mark must not divide.
constexpr int aroundProperties[] = {
    QTextFormat::FontSizeAdjustment, MRVTextFormat::DirectionProperty,
    MRVTextFormat::InlineAnnotationProperty, MRVTextFormat::InlineFootnoteProperty};

// The same in a heading, whose text is all alike.
constexpr int headingProperties[] = {QTextFormat::FontWeight, QTextFormat::FontItalic};

template<typename Properties>
void copyProperties(const Properties &properties, const QTextFormat &from, QTextFormat *to)
{
    for (const int property : properties) {
        if (from.hasProperty(property)) {
            to->setProperty(property, from.property(property));
        }
    }
}

bool isHeading(const QTextBlock &block)
{
    return MRVTextBlockFormat::headingLevel(block.blockFormat()) > 0;
}

// Beyond any that a person gives, no number is taken for one.
int numberIn(const QString &mark)
{
    static const QRegularExpression number(QStringLiteral("(?<!\\d)\\d{1,6}(?!\\d)"));
    return number.match(mark).captured().toInt();
}

/** Puts notes of a document's margin into its text. */
class NotesWriter
{
public:
    NotesWriter(QTextDocument *document, const QVector<const MRVMarginNote *> &notes)
        : m_document(*document)
        , m_cursor(document)
    {
        for (const MRVMarginNote *note : notes) {
            m_places.append({markPosition(note->range.end()), note, 0});
        }
        std::stable_sort(
            m_places.begin(), m_places.end(),
            [](const Place &one, const Place &other) { return one.position < other.position; });
        chooseNames();
        chooseLook();
    }

    void write()
    {
        // From the last to the first, so that the positions of the others stay valid.
        std::for_each(m_places.crbegin(), m_places.crend(),
                      [this](const Place &place) { writeMark(place); });
        m_cursor.movePosition(QTextCursor::End);
        QTextBlockFormat rule;
        rule.setProperty(QTextFormat::BlockTrailingHorizontalRulerWidth, QTextLength());
        m_cursor.insertBlock(rule, QTextCharFormat());
        for (int i = 0; i < m_places.size(); ++i) {
            writeNote(m_places.at(i), i + 1);
        }
    }

private:
    struct Place
    {
        int position; // of the mark
        const MRVMarginNote *note;
        int number;
    };

    // Blanks at the end of the text come after the mark.
    int markPosition(int end) const
    {
        const int begin = m_document.findBlock(end).position();
        int position = end;
        while (position > begin + 1 && m_document.characterAt(position - 1).isSpace()) {
            --position;
        }
        return position;
    }

    // Unlike those of notes that are in the text already.
    void chooseNames()
    {
        const MRVDocumentFlow flow(m_document);
        const MRVNoteFinder finder(flow);
        const QVector<MRVMarkedNote> notes = finder.notes();
        int highest = 0;
        for (const MRVMarkedNote &note : notes) {
            const MRVFlowLink &mark = *finder.linkAt(note.marks.constFirst());
            highest = qMax(highest, numberIn(flow.text.mid(mark.begin, mark.end - mark.begin)));
        }
        int numbers[] = {highest, highest};
        for (Place &place : m_places) {
            place.number = ++numbers[indexOf(place)];
        }
        const auto isTaken = [this](const MRVFlowAnchor &anchor) {
            return std::any_of(
                std::begin(kindsOfNotes), std::end(kindsOfNotes), [&](const KindOfNote &kind) {
                    return anchor.name.startsWith(QLatin1String(kind.name) + m_nameEnd);
                });
        };
        while (std::any_of(flow.anchors.begin(), flow.anchors.end(), isTaken)) {
            m_nameEnd += u'-';
        }
    }

    // That of the first text with a note that is no heading.
    void chooseLook()
    {
        for (const Place &place : qAsConst(m_places)) {
            const QTextBlock block = m_document.findBlock(place.position);
            if (!isHeading(block)) {
                copyProperties(fontProperties, formatBefore(place.position), &m_text);
                copyProperties(paragraphProperties, block.blockFormat(), &m_paragraph);
                return;
            }
        }
    }

    QTextCharFormat formatBefore(int position)
    {
        m_cursor.setPosition(position);
        return m_cursor.charFormat();
    }

    static int indexOf(const Place &place) { return place.note->kind - MRVMarginNote::Comment; }
    static const KindOfNote &kindOf(const Place &place) { return kindsOfNotes[indexOf(place)]; }

    QString nameOf(const Place &place, const char *infix) const
    {
        return QLatin1String(kindOf(place).name) + m_nameEnd + QLatin1String(infix)
            + QString::number(place.number);
    }
    QString noteName(const Place &place) const { return nameOf(place, ""); }
    QString markName(const Place &place) const { return nameOf(place, "ref-"); }

    static void makeLink(const QString &name, const QString &target, MRVTextFormat::NoteLink link,
                         QTextCharFormat *format)
    {
        format->setAnchor(true);
        format->setAnchorNames({name});
        format->setAnchorHref(u'#' + target);
        format->setProperty(MRVTextFormat::NoteLinkProperty, link);
    }

    void writeMark(const Place &place)
    {
        const QTextCharFormat before = formatBefore(place.position);
        QTextCharFormat format;
        copyProperties(fontProperties, before, &format);
        copyProperties(aroundProperties, before, &format);
        if (isHeading(m_cursor.block())) {
            copyProperties(headingProperties, before, &format);
        }
        format.setVerticalAlignment(kindOf(place).alignment);
        makeLink(markName(place), noteName(place), MRVTextFormat::NoteMark, &format);
        m_cursor.insertText(QString::fromLatin1(kindOf(place).mark).arg(place.number), format);
    }

    void writeNote(const Place &place, int index)
    {
        QTextBlockFormat paragraph = m_paragraph;
        paragraph.setProperty(MRVParagraphNoteProperty, index);
        m_cursor.insertBlock(paragraph, m_text);
        QTextCharFormat label = m_text;
        makeLink(noteName(place), markName(place), MRVTextFormat::NoteBackLink, &label);
        m_cursor.insertText(QString::fromLatin1(kindOf(place).label).arg(place.number), label);
        m_cursor.insertText(QStringLiteral(" "), m_text);
        const MRVMarginNote &note = *place.note;
        QString text = note.text;
        if (note.kind == MRVMarginNote::Comment && !note.author.isEmpty()) {
            text.prepend(note.author + QLatin1String(": "));
        }
        // It would stand for a picture.
        text.remove(QChar::ObjectReplacementCharacter);
        bool isFirst = true;
        for (const QString &line : text.split(u'\n')) {
            if (line.trimmed().isEmpty()) {
                continue;
            }
            if (!isFirst) {
                m_cursor.insertBlock(paragraph, m_text);
            }
            isFirst = false;
            m_cursor.insertText(line, m_text);
        }
    }

    QTextDocument &m_document;
    QTextCursor m_cursor;
    QVector<Place> m_places; // in document order
    QString m_nameEnd = QStringLiteral("-");
    QTextCharFormat m_text; // of notes
    QTextBlockFormat m_paragraph;
};

bool hasText(const MRVMarginNote &note)
{
    return std::any_of(note.text.begin(), note.text.end(), [](QChar c) {
        return !c.isSpace() && c != QChar::ObjectReplacementCharacter;
    });
}

// Whether there may be such notes: a document keeps formats that its text no longer has.
bool mayHave(const QTextDocument &document, MRVMarginNote::Kinds kinds)
{
    const QVector<QTextFormat> formats = document.allFormats();
    return std::any_of(formats.begin(), formats.end(), [kinds](const QTextFormat &format) {
        return format.isCharFormat() && kinds.testFlag(Reader::kindOf(format.toCharFormat()));
    });
}

// By their entries; an entry without a note of the kinds has none.
QVector<const MRVMarginNote *> notesOf(const Reader &reader, MRVMarginNote::Kinds kinds)
{
    QVector<const MRVMarginNote *> notes;
    for (const Reader::Entry &entry : reader.entries()) {
        if (kinds.testFlag(entry.note.kind) && hasText(entry.note)) {
            notes.append(&entry.note);
        }
    }
    return notes;
}

Reader read(const QTextDocument &document, MRVMarginNote::Kinds kinds)
{
    Reader reader(document);
    if (mayHave(document, kinds)) {
        reader.read(MRVTextRange(0, document.characterCount()));
    }
    return reader;
}

// Takes the notes out of the margin.
void clearNotes(QTextDocument *document, const Reader &reader, MRVMarginNote::Kinds kinds)
{
    QVector<MRVTextRange> pieces;
    for (const Reader::Piece &piece : reader.pieces()) {
        const MRVMarginNote &note = reader.entries().at(piece.entry).note;
        if (kinds.testFlag(note.kind) && hasText(note)) {
            pieces.append(piece.range);
        }
    }
    MrvSweep::changeRanges(document, pieces, [](QTextCharFormat format) {
        Reader::clear(&format);
        return format;
    });
}

} // namespace

int MRVMarginNotes::toParagraphs(QTextDocument *document, MRVMarginNote::Kinds kinds)
{
    if (!document) {
        return 0;
    }
    const Reader reader = read(*document, kinds);
    const QVector<const MRVMarginNote *> notes = notesOf(reader, kinds);
    if (!notes.isEmpty()) {
        QTextCursor step(document);
        step.beginEditBlock();
        clearNotes(document, reader, kinds);
        NotesWriter(document, notes).write();
        step.endEditBlock();
    }
    return notes.size();
}

std::unique_ptr<QTextDocument> MRVMarginNotes::copyWithParagraphs(const QTextDocument &document,
                                                                  MRVMarginNote::Kinds kinds)
{
    if (notesOf(read(document, kinds), kinds).isEmpty()) {
        return nullptr;
    }
    std::unique_ptr<QTextDocument> copy = mrvDocumentCopy(document);
    toParagraphs(copy.get(), kinds);
    return copy;
}
