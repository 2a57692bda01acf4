#pragma once

#include <QSizeF>

/** Lengths of a script's page, in points. */
struct MrvScriptPaper
{
    static constexpr qreal Inch = 72;
    static constexpr qreal ColumnWidth = 6 * Inch; ///< on all paper, so that lines break alike
    static constexpr qreal TopMargin = Inch;
    static constexpr qreal BottomMargin = Inch;
    static constexpr qreal Tolerance = 0.1; ///< lengths of modes are rounded to 20ths of points

    QSizeF size;
    qreal left; ///< margin

    qreal textHeight() const { return size.height() - TopMargin - BottomMargin; }
};
