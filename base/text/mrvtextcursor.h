#pragma once

#include "text/mrvtextrange.h"
#include "util/mrvbase_export.h"

#include <QString>
#include <QTextCharFormat>
#include <QVector>

class QTextCursor;
class QTextTable;

/**
 * What selections are made of, and what can be done with them.
 *
 * A null cursor gives an empty result and is left alone. GUI thread only.
 *
 * @code
 * // Replace the words at the cursor without losing their formats.
 * MRVTextCursor::selectBlockUnderCursor(&cursor, false);
 * MRVTextCursor::replaceText(cursor, cursor.selectedText().toUpper());
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextCursor
{
public:
    MRVTextCursor() = delete;

    /**
     * What @p cursor has selected, in the order of the document: the content of each cell where
     * cells of a table are selected, which may leave out others between them; else the one range
     * that the cursor shows, with all of a table that it reaches into. Empty without a selection.
     */
    static QVector<MRVTextRange> selectedRanges(const QTextCursor &cursor);

    /** The table of which more than one cell is selected, or null. It belongs to its document. */
    static QTextTable *complexSelectionTable(const QTextCursor &cursor);

    /**
     * A copy that has something selected: the selection of @p cursor, or else the character after
     * it at the start of a paragraph, and the one before it elsewhere. Nothing is selected where
     * there is no such character but the end of a table cell or of the document, or a table.
     */
    static QTextCursor selectImage(const QTextCursor &cursor);

    /**
     * Whether the character before the selection, or of the position, ends a word: white space,
     * punctuation, the end of a paragraph, table or cell.
     *
     * @param atEdge the answer at the start of the document.
     */
    static bool hasWordBorderBefore(const QTextCursor &cursor, bool atEdge);
    /** The same for the character after it. @p atEdge is the answer at the end of the document. */
    static bool hasWordBorderAfter(const QTextCursor &cursor, bool atEdge);

    /**
     * Whether the selection reaches into a second paragraph. Its start counts as reached. False
     * where cells of a table are selected.
     */
    static bool hasMultipleBlocksSelected(const QTextCursor &cursor);

    /**
     * Deletes the white space before the cursor, the ends of empty paragraphs and of the one before
     * them included, and leaves the cursor where it began. It stops at the start of a table cell. A
     * selection of white space ends where it was anchored, and what is before it goes; any other
     * selection is deleted itself, and no more. One undo step; none without white space. Null does
     * nothing.
     */
    static void trimTrailingSpaces(QTextCursor *cursor);

    /**
     * Extends the selection to whole paragraphs, with the position at its end. Null does nothing.
     *
     * Without a selection, that is the paragraph of the cursor; an empty one is not selected
     * without its separator. With a selection, an end in an empty paragraph stays, and it is all or
     * nothing: where one end would stay where it is, so does the other.
     *
     * @param withSeparator takes the separator before the first paragraph, too, if there is one:
     *                      the first paragraph of the document or of a table cell has none, nor has
     *                      one that follows a table.
     */
    static void selectBlockUnderCursor(QTextCursor *cursor, bool withSeparator);

    /**
     * mrvReplaceText(), which says what becomes of formats: the selection of @p cursor becomes
     * @p text.
     */
    static void replaceText(QTextCursor &cursor, const QString &text);

    /** The format of the selection's last character, whichever end the position is at. */
    static QTextCharFormat selectionEndCharFormat(const QTextCursor &cursor);
};
