#include "textexport/mrvdocumentlosses.h"

#include "document/mrvdocumentflow.h"
#include "document/mrvmarginnotes.h"
#include "text/mrvtextlistformat.h"
#include "textexport/mrvinlinepieces_p.h"
#include "textformat/mrvtextformat.h"

#include <QSet>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextDocument>
#include <QTextListFormat>
#include <QTextTable>
#include <QtAlgorithms>

#include <array>

namespace {

enum Feature {
    Fonts,
    FontSizes,
    Colours,
    Highlights,
    Letters,
    Languages,
    Revisions,
    Annotations,
    InlineNotes,
    MovedNotes,
    NotesInBrackets,
    Comments,
    Footnotes,
    Styles,
    Links,
    LinkTitles,
    Pictures,
    Headings,
    Quotations,
    Alignments,
    Indents,
    LineSpacings,
    PageBreaks,
    Backgrounds,
    CodeLanguages,
    Markers,
    Lists,
    Tables,
    Frames,
    Blanks,
    FeatureCount
};

constexpr int Html = MRVDocumentLosses::Html;
constexpr int Markdown = MRVDocumentLosses::Markdown;
constexpr int PlainText = MRVDocumentLosses::PlainText;
constexpr int Script = MRVDocumentLosses::Script;

struct Row
{
    Feature feature;
    int lostIn;
    const char *text;
};

// clang-format off
constexpr Row rows[] = {
    {Fonts,        Markdown | PlainText,                QT_TRANSLATE_NOOP("MRVDocumentLosses", "Fonts: %1")},
    {FontSizes,    Markdown | PlainText,                QT_TRANSLATE_NOOP("MRVDocumentLosses", "Font sizes: %1")},
    {Colours,      Markdown | PlainText,                QT_TRANSLATE_NOOP("MRVDocumentLosses", "Text colors: %1")},
    {Highlights,   Markdown | PlainText | Script,       QT_TRANSLATE_NOOP("MRVDocumentLosses", "Highlights: %1")},
    {Letters,      Markdown | PlainText,                QT_TRANSLATE_NOOP("MRVDocumentLosses", "Capitals, lines and spacing of letters: %1")},
    {Languages,    Html | Markdown | PlainText | Script,QT_TRANSLATE_NOOP("MRVDocumentLosses", "Languages of text: %1")},
    {Revisions,    Html | Markdown | PlainText | Script,QT_TRANSLATE_NOOP("MRVDocumentLosses", "Marks of revisions: %1")},
    {Annotations,  Html | Markdown | PlainText,         QT_TRANSLATE_NOOP("MRVDocumentLosses", "Annotations, which become text: %1")},
    {InlineNotes,  Html,                                QT_TRANSLATE_NOOP("MRVDocumentLosses", "Footnotes within the text, which become others: %1")},
    {MovedNotes,   Markdown | PlainText,                QT_TRANSLATE_NOOP("MRVDocumentLosses", "Footnotes within the text, which become others: %1")},
    {NotesInBrackets, Markdown | PlainText,             QT_TRANSLATE_NOOP("MRVDocumentLosses", "Footnotes within the text, which become text in brackets: %1")},
    {Comments,     Html | PlainText,                    QT_TRANSLATE_NOOP("MRVDocumentLosses", "Comments: %1")},
    {Footnotes,    Html | Markdown | PlainText,         QT_TRANSLATE_NOOP("MRVDocumentLosses", "Footnotes in the margin, which go to the end: %1")},
    {Styles,       PlainText,                           QT_TRANSLATE_NOOP("MRVDocumentLosses", "Bold, italic and other styles of text: %1")},
    {Links,        PlainText,                           QT_TRANSLATE_NOOP("MRVDocumentLosses", "Links, whose addresses become text: %1")},
    {LinkTitles,   PlainText | Script,                  QT_TRANSLATE_NOOP("MRVDocumentLosses", "Titles of links: %1")},
    {Pictures,     PlainText,                           QT_TRANSLATE_NOOP("MRVDocumentLosses", "Pictures, which give way to their names: %1")},
    {Headings,     PlainText,                           QT_TRANSLATE_NOOP("MRVDocumentLosses", "Headings: %1")},
    {Quotations,   PlainText,                           QT_TRANSLATE_NOOP("MRVDocumentLosses", "Quotations: %1")},
    {Alignments,   Markdown | PlainText,                QT_TRANSLATE_NOOP("MRVDocumentLosses", "Paragraph alignments: %1")},
    {Indents,      Markdown | PlainText,                QT_TRANSLATE_NOOP("MRVDocumentLosses", "Paragraph indents: %1")},
    {LineSpacings, Html | Markdown | PlainText,         QT_TRANSLATE_NOOP("MRVDocumentLosses", "Line spacings: %1")},
    {PageBreaks,   Markdown | PlainText,                QT_TRANSLATE_NOOP("MRVDocumentLosses", "Page breaks: %1")},
    {Backgrounds,  Markdown | PlainText,                QT_TRANSLATE_NOOP("MRVDocumentLosses", "Paragraph backgrounds: %1")},
    {CodeLanguages,Html | PlainText | Script,           QT_TRANSLATE_NOOP("MRVDocumentLosses", "Languages of code: %1")},
    {Markers,      Markdown,                            QT_TRANSLATE_NOOP("MRVDocumentLosses", "List markers other than bullets and figures: %1")},
    {Tables,       PlainText,                           QT_TRANSLATE_NOOP("MRVDocumentLosses", "Tables, whose rows become lines: %1")},
    {Frames,       Markdown | PlainText | Script,       QT_TRANSLATE_NOOP("MRVDocumentLosses", "Frames: %1")},
    {Blanks,       Markdown,                            QT_TRANSLATE_NOOP("MRVDocumentLosses", "Tabs and several blanks in a row: %1")},
    {Lists,        Script,                              QT_TRANSLATE_NOOP("MRVDocumentLosses", "Lists: %1")},
    {Comments,     Script,                              QT_TRANSLATE_NOOP("MRVDocumentLosses", "Comments in the margin: %1")},
    {Footnotes,    Script,                              QT_TRANSLATE_NOOP("MRVDocumentLosses", "Footnotes in the margin: %1")},
    {Links,        Script,                              QT_TRANSLATE_NOOP("MRVDocumentLosses", "Addresses of links: %1")},
    {Pictures,     Script,                              QT_TRANSLATE_NOOP("MRVDocumentLosses", "Pictures: %1")},
    {Tables,       Script,                              QT_TRANSLATE_NOOP("MRVDocumentLosses", "Tables, whose cells become paragraphs: %1")},
    {InlineNotes,  Script,                              QT_TRANSLATE_NOOP("MRVDocumentLosses", "Marks of footnotes within the text: %1")},
};
// clang-format on

using Features = quint32;
static_assert(FeatureCount <= 32, "each feature is a bit");

/** Counts places: a feature that the last one had, too, is the same place. */
class Counter
{
public:
    void add(Features found)
    {
        for (Features begun = found & ~m_last; begun != 0; begun &= begun - 1) {
            ++m_counts[qCountTrailingZeroBits(begun)];
        }
        m_last = found;
    }
    void add(Feature feature) { ++m_counts[feature]; }
    int count(Feature feature) const { return m_counts[feature]; }

private:
    std::array<int, FeatureCount> m_counts{};
    Features m_last = 0;
};

class FeatureSet
{
public:
    void add(Feature feature, bool isSet) { m_bits |= isSet ? 1U << feature : 0U; }
    Features bits() const { return m_bits; }

private:
    Features m_bits = 0;
};

Features featuresOfText(const QTextCharFormat &format)
{
    FeatureSet found;
    const unsigned marks = mrvInlineMarks(format);
    const bool isLink = marks & MRVLinkMark;
    const auto capitals = format.fontCapitalization();
    found.add(Links, isLink);
    found.add(LinkTitles, isLink && !format.toolTip().isEmpty());
    found.add(Pictures, format.isImageFormat());
    if (format.isImageFormat()) {
        return found.bits();
    }
    const bool hasFamily = format.hasProperty(QTextFormat::FontFamily)
        || format.hasProperty(QTextFormat::FontFamilies);
    found.add(Fonts, hasFamily && !(marks & MRVCodeMark));
    found.add(FontSizes,
              format.hasProperty(QTextFormat::FontPointSize)
                  || format.hasProperty(QTextFormat::FontPixelSize));
    found.add(Colours, format.hasProperty(QTextFormat::ForegroundBrush) && !isLink);
    found.add(Highlights, format.background().style() != Qt::NoBrush);
    found.add(Letters,
              (capitals != QFont::MixedCase && capitals != QFont::SmallCaps)
                  || format.fontOverline() || format.hasProperty(QTextFormat::FontLetterSpacing));
    found.add(Languages, format.hasProperty(MRVTextFormat::LanguageProperty));
    found.add(Revisions, format.intProperty(MRVTextFormat::RevisionLevelProperty) > 0);
    found.add(Annotations, format.boolProperty(MRVTextFormat::InlineAnnotationProperty));
    found.add(InlineNotes, format.boolProperty(MRVTextFormat::InlineFootnoteProperty));
    found.add(Styles, (marks & ~unsigned(MRVLinkMark)) != 0);
    return found.bits();
}

Features featuresOfParagraph(const QTextBlockFormat &format, const MRVFlowParagraph &paragraph)
{
    FeatureSet found;
    const bool isQuoted = format.intProperty(QTextFormat::BlockQuoteLevel) > 0;
    const Qt::Alignment alignment = format.alignment() & Qt::AlignHorizontal_Mask;
    found.add(Headings, paragraph.headingLevel > 0);
    found.add(Quotations, isQuoted);
    found.add(Alignments,
              format.hasProperty(QTextFormat::BlockAlignment) && !(alignment & Qt::AlignLeft));
    found.add(Indents,
              format.textIndent() != 0
                  || (!isQuoted && (format.leftMargin() > 0 || format.rightMargin() > 0))
                  || format.doubleProperty(MRVTextFormat::BlockLeftIndent) > 0
                  || format.doubleProperty(MRVTextFormat::BlockRightIndent) > 0);
    found.add(LineSpacings, format.doubleProperty(MRVTextFormat::BlockSpacing) > 0);
    found.add(PageBreaks, format.pageBreakPolicy() != QTextFormat::PageBreak_Auto);
    found.add(Backgrounds, format.background().style() != Qt::NoBrush);
    return found.bits();
}

// What becomes of notes within the text depends on where they stand.
void countNotes(const MRVDocumentFlow &flow, const MRVTextNotes &notes, Counter *counter)
{
    QHash<int, bool> known; // whether text of a format is a note
    for (int i = 0; i < flow.count(); ++i) {
        int at = flow.paragraphs.at(i).position;
        const int end = flow.paragraphs.at(i + 1).firstFragment;
        for (int k = flow.paragraphs.at(i).firstFragment; k < end; ++k) {
            const int format = flow.fragments.at(k).format;
            auto isNote = known.constFind(format);
            if (isNote == known.constEnd()) {
                isNote = known.insert(
                    format,
                    flow.formats.at(format).boolProperty(MRVTextFormat::InlineFootnoteProperty));
            }
            const auto cut = notes.cutAt(at + 1);
            const bool isMoved = cut != notes.cuts().constEnd() && cut->begin <= at;
            FeatureSet found;
            found.add(MovedNotes, *isNote && isMoved);
            found.add(NotesInBrackets, *isNote && !isMoved);
            counter->add(found.bits());
            at += flow.fragments.at(k).length;
        }
        counter->add(Features(0));
    }
}

// Readers know bullets and figures; the other markers of items are not written.
bool hasOtherMarkers(const QTextListFormat &format)
{
    const int levels = qMax(1, MRVTextListFormat::levels(format).size());
    for (int level = 0; level < levels; ++level) {
        const QTextListFormat::Style style = MRVTextListFormat::shownStyle(format, level);
        if (style != QTextListFormat::ListDisc && style != QTextListFormat::ListDecimal) {
            return true;
        }
    }
    return false;
}

void countText(const MRVDocumentFlow &flow, Counter *counter)
{
    QHash<int, Features> known; // by format
    for (int i = 0; i < flow.count(); ++i) {
        const int end = flow.paragraphs.at(i + 1).firstFragment;
        for (int k = flow.paragraphs.at(i).firstFragment; k < end; ++k) {
            const int format = flow.fragments.at(k).format;
            auto features = known.constFind(format);
            if (features == known.constEnd()) {
                features =
                    known.insert(format, featuresOfText(flow.formats.at(format).toCharFormat()));
            }
            counter->add(*features);
        }
        counter->add(Features(0));
    }
}

// Columns of tables have alignments; where one has none, readers centre its heading.
QSet<int> paragraphsAlignedByTables(const MRVDocumentFlow &flow)
{
    QSet<int> aligned;
    const auto isAligned = [](const QTextTableCell &cell, Qt::Alignment as) {
        const QTextBlockFormat format = cell.firstCursorPosition().blockFormat();
        return (format.alignment() & Qt::AlignHorizontal_Mask) == (as & Qt::AlignHorizontal_Mask);
    };
    for (const MRVFlowFrame &frame : flow.frames) {
        const QTextTable *const table = frame.table;
        const int headings = table ? table->format().headerRowCount() : 0;
        for (int column = 0; table && column < table->columns(); ++column) {
            const QTextBlockFormat first = headings < table->rows()
                ? table->cellAt(headings, column).firstCursorPosition().blockFormat()
                : QTextBlockFormat();
            const bool hasAlignment = first.hasProperty(QTextFormat::BlockAlignment);
            for (int row = 0; row < table->rows(); ++row) {
                const QTextTableCell cell = table->cellAt(row, column);
                if (isAligned(cell,
                              row < headings && !hasAlignment ? Qt::AlignHCenter
                                                              : first.alignment())) {
                    aligned.insert(flow.paragraphAt(cell.firstPosition()));
                }
            }
        }
    }
    return aligned;
}

void countParagraphs(const MRVDocumentFlow &flow, Counter *counter)
{
    const QSet<int> aligned = paragraphsAlignedByTables(flow);
    QSet<int> lists;
    QString languageBefore; // code in one language is counted once
    for (int i = 0; i < flow.count(); ++i) {
        const MRVFlowParagraph &paragraph = flow.paragraphs.at(i);
        const QTextBlockFormat format = flow.formats.at(paragraph.format).toBlockFormat();
        counter->add(Features(0));
        Features features = featuresOfParagraph(format, paragraph);
        if (aligned.contains(i)) {
            features &= ~(Features(1) << Alignments);
        }
        counter->add(features);
        const QString language = format.nonBreakableLines()
            ? format.stringProperty(QTextFormat::BlockCodeLanguage)
            : QString();
        if (!language.isEmpty() && language != languageBefore) {
            counter->add(CodeLanguages);
        }
        languageBefore = language;
        if (paragraph.list >= 0 && !lists.contains(paragraph.list)) {
            lists.insert(paragraph.list);
            counter->add(Lists);
            const QTextFormat list = flow.document.object(paragraph.list)->format();
            if (hasOtherMarkers(list.toListFormat())) {
                counter->add(Markers);
            }
        }
    }
    for (const MRVFlowFrame &frame : flow.frames) {
        counter->add(frame.table ? Tables : Frames);
    }
}

// Code keeps them.
void countBlanks(const MRVDocumentFlow &flow, Counter *counter)
{
    for (int i = 0; i < flow.count(); ++i) {
        const MRVFlowParagraph &paragraph = flow.paragraphs.at(i);
        const QStringView text = flow.textOf(paragraph);
        const bool isCode = flow.formats.at(paragraph.format).toBlockFormat().nonBreakableLines();
        for (int k = 0; k < text.size() && !isCode; ++k) {
            const int begin = k;
            while (k < text.size() && (text[k] == u' ' || text[k] == u'\t')) {
                ++k;
            }
            const bool isAtEdge = begin == 0 || k == text.size();
            if (k > begin && (k > begin + 1 || text[begin] == u'\t' || isAtEdge)) {
                counter->add(Blanks);
            }
        }
    }
}

} // namespace

QStringList MRVDocumentLosses::of(const QTextDocument &document, Format format)
{
    const MRVDocumentFlow flow(document);
    Counter counter;
    countText(flow, &counter);
    const auto code =
        format == Markdown ? MRVTextNotes::Code::HasNoMarks : MRVTextNotes::Code::HasMarks;
    countNotes(flow, MRVTextNotes(flow, code), &counter);
    countParagraphs(flow, &counter);
    countBlanks(flow, &counter);
    const QVector<MRVMarginNote> notes = MRVMarginNotes::all(&document);
    for (const MRVMarginNote &note : notes) {
        counter.add(note.kind == MRVMarginNote::Comment ? Comments : Footnotes);
    }
    QStringList losses;
    for (const Row &row : rows) {
        const int count = counter.count(row.feature);
        if ((row.lostIn & format) && count > 0) {
            losses.append(tr(row.text).arg(count));
        }
    }
    return losses;
}
