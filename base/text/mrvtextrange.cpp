#include "text/mrvtextrange.h"

#include <QTextDocument>

namespace {

// Qt takes the format from the character before the position. In a selection that was made
// backwards, that character lies before the selection.
QTextCursor forward(QTextCursor cursor)
{
    if (cursor.position() < cursor.anchor()) {
        cursor.setPosition(cursor.anchor());
    }
    return cursor;
}

} // namespace

MRVTextRange::MRVTextRange(const QTextCursor &cursor)
{
    if (!cursor.isNull()) {
        *this = MRVTextRange(cursor.anchor(), cursor.position());
    }
}

QTextCursor MRVTextRange::toTextCursor(QTextDocument *document) const
{
    if (!document) {
        return QTextCursor();
    }
    // Qt would warn about a position outside the document, and leave the cursor where it is.
    const int last = document->characterCount() - 1;
    QTextCursor cursor(document);
    cursor.setPosition(qBound(0, m_start, last));
    cursor.setPosition(qBound(0, m_end, last), QTextCursor::KeepAnchor);
    return cursor;
}

MRVTextRangeInfo::MRVTextRangeInfo(const QTextCursor &cursor)
    : range(cursor)
{
    if (!cursor.isNull()) {
        const QTextCursor end = forward(cursor);
        charFormat = end.charFormat();
        blockFormat = end.blockFormat();
    }
}

MRVTextCursorInfo::MRVTextCursorInfo(const QTextCursor &textCursor)
    : cursor(textCursor)
{
    const MRVTextRangeInfo info(textCursor);
    charFormat = info.charFormat;
    blockFormat = info.blockFormat;
}

MRVTextRangeInfo MRVTextCursorInfo::toTextRangeInfo() const
{
    MRVTextRangeInfo info;
    info.range = MRVTextRange(cursor);
    info.charFormat = charFormat;
    info.blockFormat = blockFormat;
    return info;
}

MRVTextCursorInfo MRVTextCursorInfo::fromTextRangeInfo(const MRVTextRangeInfo &info,
                                                       QTextDocument *document)
{
    MRVTextCursorInfo result;
    result.cursor = info.range.toTextCursor(document);
    result.charFormat = info.charFormat;
    result.blockFormat = info.blockFormat;
    return result;
}
