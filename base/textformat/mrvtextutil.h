#pragma once

#include "util/mrvbase_export.h"

#include <QString>

/**
 * What the installed font families can do.
 *
 * A family that is empty or not installed is taken to have every weight: text keeps the weight that
 * it was given, for a machine that has the font.
 *
 * Weights are Qt's, 0 to 99 (50 is normal, 75 bold). Nothing is cached, so that fonts that come and
 * go while the application runs are seen; ask once for a format, not once for a fragment.
 * GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextUtil
{
public:
    MRVTextUtil() = delete;

    /** Whether one of the styles of @p family has exactly the @p weight. */
    static bool hasWeight(const QString &family, int weight);

    /**
     * The weight of @p family that is nearest to @p weight: @p weight itself where the family has
     * it. Of two that are equally near, the heavier one for a weight above normal, else the
     * lighter.
     */
    static int closestFontWeight(const QString &family, int weight);
};
