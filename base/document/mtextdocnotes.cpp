#include "document/mtextdoc.h"

#include "document/mtextdocsweep_p.h"
#include "search/mrvtextfinder.h"
#include "textformat/mrvtextformat.h"

#include <QTextCursor>
#include <QTextDocument>

namespace {

QTextCharFormat withoutNote(QTextCharFormat format)
{
    MTextDoc::clearInlineProperties(&format);
    return format;
}

QVector<MRVTextRange> notes(const QTextDocument *document, MRVTextFormat::Property property)
{
    return MRVTextFinder::findAllFragments(document, MrvSweep::pattern(property, true), true);
}

} // namespace

void MTextDoc::clearInlineProperties(QTextCharFormat *format)
{
    if (!format) {
        return;
    }
    format->clearProperty(MRVTextFormat::InlineAnnotationProperty);
    format->clearProperty(MRVTextFormat::InlineFootnoteProperty);
}

void MTextDoc::clearInlinePropertiesCursor(QTextCursor *cursor)
{
    MrvSweep::changeSelection(cursor, withoutNote);
}

void MTextDoc::removeAnnotations(QTextDocument *document)
{
    if (!document) {
        return;
    }
    QVector<MRVTextRange> ranges = notes(document, MRVTextFormat::InlineAnnotationProperty);
    for (MRVTextRange &range : ranges) {
        // At the end of a table cell and before a table there is a different character, and to
        // include it would select the row or the table.
        const int end = range.end();
        if (document->characterAt(end) == QChar::ParagraphSeparator
            && end + 1 < document->characterCount()) {
            range = MRVTextRange(range.start(), end + 1);
        }
    }
    MrvSweep::removeRanges(document, ranges);
}

void MTextDoc::removeInlineFootnotes(QTextDocument *document)
{
    if (document) {
        MrvSweep::removeRanges(document, notes(document, MRVTextFormat::InlineFootnoteProperty));
    }
}

void MTextDoc::inlineAnnotationsToText(QTextDocument *document)
{
    MrvSweep::changeRuns(document, MrvSweep::pattern(MRVTextFormat::InlineAnnotationProperty, true),
                         true, withoutNote);
}

void MTextDoc::inlineFootnotesToText(QTextDocument *document)
{
    MrvSweep::changeRuns(document, MrvSweep::pattern(MRVTextFormat::InlineFootnoteProperty, true),
                         true, withoutNote);
}
