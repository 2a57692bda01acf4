#pragma once

#include "util/mrvbase_export.h"

class QString;
class QTextCursor;

/**
 * Puts @p text in place of the selection of @p cursor and keeps the formats of what it replaces.
 *
 * - Where old and new text have the same length, each character takes the format of the one in its
 *   place, and characters that do not change are not touched.
 * - Otherwise the characters that both texts begin with and end with stay, and what is between gets
 *   the format of the first character that it replaces. Where it replaces none, that of the
 *   character before it in the selection, or else after it.
 * - A selection that holds tables or frames, or cells of a table, is replaced as a whole, with the
 *   format of its first character.
 * - Without a selection, @p text is inserted with the format of the cursor.
 *
 * The format of a paragraph's end is the character format of the paragraph after it. The halves of
 * a surrogate pair stay together. Line feeds, carriage returns and U+2029 part paragraphs. Text
 * that takes the place of an image gets the image's character format without what makes it an
 * image.
 *
 * One undo step; none where nothing changes. Afterwards the cursor stands after the new text,
 * without a selection. A null cursor does nothing.
 *
 * @since 1.0
 */
MRVBASE_EXPORT void mrvReplaceText(QTextCursor &cursor, const QString &text);
