#pragma once

#include "util/mrvbase_export.h"

#include <QTextFormat>

/**
 * Keeps documents fast that have many links, named places and pictures.
 *
 * Qt looks a format up by the sum of the hashes of its properties. A list of names has the same
 * hash whatever it holds, and those of an address and a name may cancel each other out: fifty
 * thousand links and names that count in opposite directions gave a few sums, and took a minute.
 * Formats with two such texts, or a list, therefore get a number that depends on all of them.
 *
 * The number means nothing. It is not stored, and formats that differ in it alone are equivalent.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVFormatSpread
{
public:
    MRVFormatSpread() = delete;

    enum {
        /** int; far from MRVTextFormat's and applications' own, as no document is saved with it. */
        Property = 0x1fff00,
    };

    /**
     * Gives @p format the number that its texts need, or takes away one that they do not. To be
     * called when addresses, names and texts of pictures are set; equal ones give equal numbers.
     */
    static void update(QTextFormat *format);
};
