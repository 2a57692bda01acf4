#pragma once

#include "util/mrvbase_export.h"

#include <QList>
#include <QTextBlockFormat>

/**
 * How a paragraph is re-styled: what of its block format stays, and what the new style brings.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextBlockFormat
{
public:
    MRVTextBlockFormat() = delete;

    /**
     * The level of the heading that a paragraph is, 1 to 6; 0 for any other paragraph.
     *
     * MRVTextFormat::HeadingLevelProperty comes first, then Qt's own level. That one is lost where
     * a line spacing is written, since both have one number.
     */
    static int headingLevel(const QTextBlockFormat &format);

    /**
     * Writes a line spacing. A heading keeps its headingLevel().
     *
     * @param format  null does nothing.
     * @param spacing MRVTextFormat::BlockSpacing, in points.
     * @param base    MRVTextFormat::BlockBaseSpacing, in points.
     */
    static void setLineSpacing(QTextBlockFormat *format, double spacing, double base);

    /**
     * @p existing re-styled by @p with.
     *
     * The result is @p with, except for what it takes from @p existing; a property that is taken
     * and that @p existing does not set is unset in the result. Always taken is what is no style:
     * - the list that the paragraph belongs to, tables and frames, page breaks, the horizontal
     * rule;
     * - block quotes, code blocks, preformatted text and task list markers;
     * - all properties of the application (0x100000 and above).
     *
     * The headingLevel() is no style either: it is never taken from @p with, and stays in the
     * result even where @p with brings a line spacing, which has the number of Qt's own level.
     *
     * @param keepIndents   takes the geometry of the paragraph, which in a list is that of the
     *                      list: left, right and first-line indent, left and right margin, indent
     *                      level and tab stops.
     * @param keepSpacing   takes space above and below, line height and line spacing.
     * @param keepAlignment takes alignment and writing direction.
     * @param keep          properties that are taken as they are, whatever else is said here.
     */
    static QTextBlockFormat merge(const QTextBlockFormat &existing, const QTextBlockFormat &with,
                                  bool keepIndents, bool keepSpacing, bool keepAlignment,
                                  const QList<int> &keep);
};
