#pragma once

#include "util/mrvbase_export.h"

#include <QList>
#include <QTextCharFormat>

/**
 * How a fragment of text is re-styled: what of its character format stays, and what the new style
 * brings.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextCharFormat
{
public:
    MRVTextCharFormat() = delete;

    /**
     * @p existing re-styled by @p with.
     *
     * The result is @p with, except for what it takes from @p existing; a property that is taken
     * and that @p existing does not set is unset in the result. Always taken is what is no style:
     * - the kind of object and its index, images, tables, frames and lists, page breaks;
     * - anchors, tool tips, vertical alignment;
     * - all properties of the application (0x100000 and above).
     *
     * Normal weight is stored as unset. The two properties in which Qt keeps a family (FontFamily
     * and FontFamilies) are treated as one.
     *
     * @param keepSize          takes the point size, with pixel size and size adjustment. An
     *                          existing point size of 0, or none, leaves neither point nor pixel
     *                          size.
     * @param keepColors        takes foreground, background (brush and image) and outline pen.
     * @param keepEmphasis      takes weight, italic, underline (style and colour), overline,
     *                          strike-out, text outline and capitalisation.
     * @param keepFamily        takes the family, with style name, style hint and fixed pitch.
     * @param keep              properties that are taken as they are, whatever else is said here.
     * @param overridePreserved re-styles text that is marked PreserveFormatProperty, too; otherwise
     *                          such a format is returned unchanged.
     * @param combineEmphasis   joins the emphasis of both, whatever @p keepEmphasis says: the
     *                          larger weight, every decoration that either has, and of two
     *                          underlines, underline colours, outlines or capitalisations the
     *                          existing one.
     */
    static QTextCharFormat merge(const QTextCharFormat &existing, const QTextCharFormat &with,
                                 bool keepSize, bool keepColors, bool keepEmphasis, bool keepFamily,
                                 const QList<int> &keep, bool overridePreserved,
                                 bool combineEmphasis);
};
