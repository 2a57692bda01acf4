#include "document/mtextdoc.h"

#include "document/mtextdocsweep_p.h"
#include "search/mrvtextfinder.h"
#include "textformat/mrvtextformat.h"

#include <QTextCursor>

namespace {

QTextCharFormat withoutComment(QTextCharFormat format)
{
    MTextDoc::clearCommentProperties(&format);
    return format;
}

} // namespace

void MTextDoc::clearCommentProperties(QTextCharFormat *format)
{
    if (!format) {
        return;
    }
    for (int property : {int(MRVTextFormat::InspectorCommentProperty),
                         int(MRVTextFormat::InspectorFootnoteProperty),
                         int(MRVTextFormat::CommentData0), int(MRVTextFormat::CommentData1),
                         int(MRVTextFormat::CommentData2), int(QTextFormat::AnchorHref)}) {
        format->clearProperty(property);
    }
}

void MTextDoc::clearCommentPropertiesCursor(QTextCursor *cursor)
{
    MrvSweep::changeSelection(cursor, withoutComment);
}

void MTextDoc::removeComments(QTextDocument *document, int property)
{
    MrvSweep::changeRuns(document, MrvSweep::pattern(property, true), true, withoutComment);
}

void MTextDoc::removeInspectorComments(QTextDocument *document)
{
    removeComments(document, MRVTextFormat::InspectorCommentProperty);
}

void MTextDoc::removeInspectorFootnotes(QTextDocument *document)
{
    removeComments(document, MRVTextFormat::InspectorFootnoteProperty);
}

void MTextDoc::removeInspectorCommentsAndFootnotes(QTextDocument *document)
{
    // The data of a comment may be of any type, so the only test is whether there are any.
    MrvSweep::changeRuns(document, MrvSweep::pattern(MRVTextFormat::CommentData0, true), false,
                         withoutComment);
}

void MTextDoc::removeCommentsWithinSelection(const QTextCursor &cursor, int property)
{
    if (cursor.isNull()) {
        return;
    }
    const QList<MRVTextRange> ranges =
        MRVTextFinder::findFragmentsByFormat(cursor, MrvSweep::pattern(property, true));
    MrvSweep::changeRanges(cursor.document(), ranges.toVector(), withoutComment);
}
