#pragma once

#include <QVector>

/**
 * Where a character of a text stands in the source that the text was read from.
 *
 * @since 1.0
 */
struct MRVSourcePlace
{
    /** How the source writes text there. */
    enum Syntax : unsigned char {
        Plain, ///< as it is, as in code of Markdown
        Page, ///< with the references of HTML
        Markdown, ///< with the escapes and references of Markdown
    };

    int start = -1; ///< offset in UTF-16 units; negative: nowhere, or unknown
    int length = 0; ///< in units; 0 for what a character before it stands for, too
    Syntax syntax = Plain; ///< there

    /** The offset after the last unit. */
    int end() const { return start + length; }
    /** Whether the character stands anywhere. */
    bool isKnown() const { return start >= 0; }
};

/** By position in the text, one for each unit of UTF-16. */
using MRVSourcePlaces = QVector<MRVSourcePlace>;
