#pragma once

#include "util/mrvbase_export.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QtGlobal>

class QTextDocument;

/**
 * A piece of a document by its positions: from start() up to, but not including, end().
 *
 * It knows no document, so it costs nothing while the document is edited, and it is not moved by
 * edits either. Never is start() greater than end(). Ranges are ordered by start(), then by end().
 *
 * @code
 * // Remembered as numbers, a place costs nothing while the document is edited elsewhere.
 * const MRVTextRange range(cursor);
 * QTextCursor again = range.toTextCursor(&document);
 * again.mergeCharFormat(QTextCharFormat());
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextRange
{
public:
    /** The empty range at 0. */
    constexpr MRVTextRange() = default;
    /** The range between the positions @p start and @p end, in whichever order they come. */
    constexpr MRVTextRange(int start, int end)
        : m_start(start < end ? start : end)
        , m_end(start < end ? end : start)
    {
    }
    /** The selection of @p cursor, or its position twice; the default range for a null cursor. */
    explicit MRVTextRange(const QTextCursor &cursor);

    /** Position of the first character. */
    constexpr int start() const { return m_start; }
    /** Position after the last character. */
    constexpr int end() const { return m_end; }

    /**
     * A cursor with the anchor at start() and the position at end(). What lies outside the document
     * is moved to its nearest end. Null for a null document.
     */
    QTextCursor toTextCursor(QTextDocument *document) const;

private:
    int m_start = 0;
    int m_end = 0;
};

Q_DECLARE_TYPEINFO(MRVTextRange, Q_MOVABLE_TYPE);

constexpr bool operator==(const MRVTextRange &a, const MRVTextRange &b)
{
    return a.start() == b.start() && a.end() == b.end();
}

constexpr bool operator!=(const MRVTextRange &a, const MRVTextRange &b)
{
    return !(a == b);
}

constexpr bool operator<(const MRVTextRange &a, const MRVTextRange &b)
{
    return a.start() < b.start() || (a.start() == b.start() && a.end() < b.end());
}

/**
 * A range and the formats that were found there. It outlives the document.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVTextRangeInfo
{
    MRVTextRangeInfo() = default;
    /**
     * The range of @p cursor and its formats: of a selection those at its end, whichever end the
     * position is at. A null cursor gives the default range and empty formats.
     */
    explicit MRVTextRangeInfo(const QTextCursor &cursor);

    MRVTextRange range;
    QTextCharFormat charFormat;
    QTextBlockFormat blockFormat;
};

/**
 * A cursor and the formats that were found there. The cursor moves with edits; the formats stay as
 * they were.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVTextCursorInfo
{
    /** A null cursor and empty formats. */
    MRVTextCursorInfo() = default;
    /** A copy of @p cursor, and the formats that MRVTextRangeInfo finds at it. */
    explicit MRVTextCursorInfo(const QTextCursor &cursor);

    /** The cursor's present range with the formats as they are kept here. */
    MRVTextRangeInfo toTextRangeInfo() const;
    /**
     * The range of @p info as a cursor on @p document (see MRVTextRange::toTextCursor()), with the
     * formats of @p info, not those of the document.
     */
    static MRVTextCursorInfo fromTextRangeInfo(const MRVTextRangeInfo &info,
                                               QTextDocument *document);

    QTextCursor cursor;
    QTextCharFormat charFormat;
    QTextBlockFormat blockFormat;
};
