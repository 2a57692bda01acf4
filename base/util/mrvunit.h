#pragma once

#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QString>

/**
 * Typographic measures as people type them ("12pt", "2.5 cm", "1in"), and what they are in points,
 * pixels of the screen and twips.
 *
 * GUI thread only.
 *
 * @code
 * const double points = MRVUnit::toPoint(QStringLiteral("2.5 cm"));
 * const QString inches = MRVUnit::toText(MRVUnit::Inch, MRVUnit::fromPoint(MRVUnit::Inch, points));
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVUnit
{
    Q_DECLARE_TR_FUNCTIONS(MRVUnit)

public:
    MRVUnit() = delete;

    /** Settings are stored with these numbers. */
    enum Unit : int {
        None = 0, ///< didot points and ciceros, which have no unit of their own
        Inch = 1,
        Decimeter = 2,
        Centimeter = 3,
        Millimeter = 4,
        Pixel = 5, ///< a point in every conversion but pointsToPixels() and pixelsToPoints()
        Pica = 6,
        Point = 7,
    };

    /**
     * Reads a number and the unit after it: "pt", "px", "cm", "mm", "dm", "inch", "in", a double
     * quote, "pi", "dd" (didot) or "cc" (cicero). White space does not count wherever it stands,
     * case does, and a number alone is refused. The number is what QString::toDouble() takes, with
     * a dot; that includes "inf" and "nan", and the points of a large number may be infinite where
     * it is not.
     *
     * An inch is 72 points and a centimetre 28.3465058, so that an inch is 2.5399956 cm.
     * Deliberate: a didot counts 154.08124 points, twelve ciceros.
     *
     * @param pattern  receives the form of the unit's output, with "%1" in place of the number.
     * @param decimals receives how many characters lie between the last dot and the unit.
     * @param value    receives the number as it was read.
     * @param points   receives the same length in points.
     * @param unit     receives the unit; None for didots and ciceros.
     * @return false, with all the others untouched, where @p text is not a measure.
     */
    static bool parseMeasure(const QString &text, QString &pattern, int &decimals, double &value,
                             double &points, Unit &unit);

    /** The points of a measure; 0 where it is none. */
    static double toPoint(const QString &text);
    /** The unit of a measure; None where it is none. */
    static Unit toUnit(const QString &text);

    /** @p value, a length in @p from, as one in @p to. None stands for ciceros here. */
    static double toUnit(Unit to, Unit from, double value);
    /** A length of @p points as one in @p unit; None stands for ciceros here. */
    static double fromPoint(Unit unit, double points);
    /** The points of @p value, a length in @p unit; None stands for ciceros here. */
    static double toPoint(Unit unit, double value);
    /** A measure in @p unit; 0 where @p text is none. None stands for didots here. */
    static double toUnitEquivalent(Unit unit, const QString &text);

    /** The measure @p value as text, with six significant digits at most: "12.5pt", "1.5\"". */
    static QString toText(Unit unit, double value);
    /** What to show after a number, translated, with a blank before it; empty for None. */
    static QString suffix(Unit unit);
    /** "in", "dm", "cm", "mm", "px", "pi" or "pt"; empty for None. */
    static QString shortSuffix(Unit unit);

    /**
     * Pixels of the screen, cut to a whole number towards zero. The resolution is Qt's default one,
     * and is asked for once in the life of the process. What exceeds an int becomes the nearest
     * int.
     */
    static int pointsToPixels(double points);
    /** The inverse of pointsToPixels(), not rounded. */
    static double pixelsToPoints(int pixels);
    /** Twentieths of a point, cut to a whole number towards zero. */
    static int pixelsToTwips(int pixels);
    /** The inverse of pixelsToTwips(), cut to a whole number towards zero. */
    static int twipsToPixels(int twips);
    /** The same as pixelsToTwips(), under the name that belongs to RTF. */
    static int rtfPixelsToTwips(int pixels);
    /** The same as twipsToPixels(), under the name that belongs to RTF. */
    static int rtfTwipsToPixels(int twips);
};
