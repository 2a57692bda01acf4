#pragma once

#include "util/mrvbase_export.h"

#include <QSizeF>
#include <QString>

/**
 * Sizes of paper in points, upright.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVPaperSize
{
public:
    MRVPaperSize() = delete;

    static constexpr QSizeF Letter{612, 792}; ///< of the US
    static constexpr QSizeF A4{595.2756, 841.8898}; ///< of ISO 216
    static constexpr QSizeF A5{419.5276, 595.2756}; ///< of ISO 216

    /** The size named "letter", "a4" or "a5"; empty for any other text. */
    static QSizeF named(const QString &name);
};
