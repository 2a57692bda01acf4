#pragma once

#include "util/mrvbase_export.h"

#include <QColor>
#include <QString>

/**
 * Colours as texts, and which colour reads well on another.
 *
 * @since 1.0
 */
namespace MRV {

/**
 * Red, green and blue as reals from 0 to 1 with six decimals, separated by blanks, such as
 * "1.000000 0.501961 0.000000". The alpha channel is not kept; an invalid colour reads as black,
 * and components outside 0 to 1 are clamped.
 */
MRVBASE_EXPORT QString colorToFloatString(const QColor &color);

/**
 * The opaque colour of three reals separated by white space. What is no number counts as 0, and so
 * do NaN and what exceeds a double; numbers outside 0 to 1 are clamped.
 *
 * @return an invalid colour unless the text has exactly three parts.
 */
MRVBASE_EXPORT QColor floatStringToColor(const QString &text);

/** Black or white, whichever reads better on @p background; see MRVGuiUtil. */
MRVBASE_EXPORT QColor textColorForBackground(const QColor &background);

} // namespace MRV
