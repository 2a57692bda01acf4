#pragma once

#include "util/mrvbase_export.h"

#include <QString>
#include <QTextCharFormat>

#include <type_traits>

/**
 * What takes the place of a find: a text, a format, or both.
 *
 * In the #text for a regular expression these stand for something else:
 *
 * - \\0 or $0 or $&: all of the find. \\1 or $1, to 99: the group of that number, or nothing where
 *   it took no part. Of two digits the second counts as text where there are fewer groups. ${name}:
 *   the group of that name or number.
 * - \\n: a paragraph end. \\t: a tab. \\\\ and $$: a backslash, a dollar.
 * - \\U and \\L: what follows in capitals or in small letters, up to \\E or the end. \\u and \\l:
 *   the same for the next letter alone, also before \\L and \\U: "\\u\\L$0".
 * - \\#: the number of the find, in the order of the document.
 *
 * All else stands as it is, a group that the expression does not have included. Groups give the
 * text as it is in the document. For plain text, #text stands as it is.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVTextReplacement
{
    /** Removes finds. */
    MRVTextReplacement() = default;
    /** Puts a text in the place of finds; whatever converts to a text can be passed for it. */
    template<typename Text, typename = std::enable_if_t<std::is_convertible_v<Text, QString>>>
    MRVTextReplacement(const Text &replacement)
        : text(replacement)
    {
    }

    QString text;
    /** Whether the text stays, so that finds only get the #format. */
    bool keepsText = false;
    /**
     * Whether the new text takes over how the find is capitalized: for a find of two letters or
     * more in capitals it is in capitals, else for one that begins with a capital, so does it.
     */
    bool preservesCase = false;
    /** The first number that \\# stands for. */
    int firstNumber = 1;
    /** Merged into the formats of the new text. */
    QTextCharFormat format;
};
