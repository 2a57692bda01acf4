#pragma once

#include <cmath>

/**
 * Whether @p a and @p b are equal except for rounding.
 *
 * The tolerance is 1e-12 of the larger magnitude, and 1e-12 itself where both lie below 1, so that
 * a computed zero equals 0.0. An infinity equals only itself; a NaN equals nothing.
 *
 * @since 1.0
 */
inline bool mrvFuzzyCompare(double a, double b)
{
    if (!std::isfinite(a) || !std::isfinite(b)) {
        return a == b;
    }
    const double magnitude = std::fmax(1.0, std::fmax(std::fabs(a), std::fabs(b)));
    return std::fabs(a - b) <= 1e-12 * magnitude;
}
