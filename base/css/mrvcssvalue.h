#pragma once

#include "util/mrvbase_export.h"

#include <QColor>
#include <QString>
#include <QStringList>

/**
 * A number of a style sheet with its unit.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVCssLength
{
    enum Unit : quint8 {
        Invalid,
        Number, ///< without a unit; as a length only 0 counts
        Percent,
        Em,
        Rem,
        Ex,
        Ch,
        Pixel,
        Point,
        Pica,
        Inch,
        Centimeter,
        Millimeter,
        QuarterMillimeter,
    };

    double number = 0; ///< within ±10^9
    Unit unit = Invalid;

    /**
     * Reads "1.5em", "50%", "0" or one of the widths "thin", "medium" and "thick", which are 1, 3
     * and 5 pixels. White space around it does not count, nor does case.
     *
     * @return a length with the unit Invalid for all other text, calc() and units of the window
     *         (vw, vh) included.
     */
    static MRVCssLength parsed(const QString &value);

    /** Whether it was read; a number without a unit was, too. */
    bool isValid() const { return unit != Invalid; }

    /**
     * The length in pixels, 96 an inch; ex and ch count as half an em.
     *
     * @param em      the font's size in pixels, for em, ex and ch.
     * @param rem     the size of the document's own font in pixels; 16 where nothing sets it.
     * @param percent what 100% is, in pixels.
     * @param ok      receives false where it is no length, which includes a number other than 0.
     * @return 0 where it is no length.
     */
    double toPixels(double em, double rem, double percent, bool *ok = nullptr) const;
};

/**
 * Reads a colour: a name, "#rgb", "#rgba", "#rrggbb", "#rrggbbaa", rgb(), rgba(), hsl() or hsla(),
 * with commas or with blanks, or "transparent", which is valid and has the alpha 0.
 *
 * @return an invalid colour for all other text, "currentcolor" included.
 * @since 1.0
 */
MRVBASE_EXPORT QColor mrvCssColor(const QString &value);

/**
 * The parts of a value, such as "0", "1em" of "0 1em". White space outside brackets and strings
 * separates them; a comma or a slash outside is a part of its own. Comments are left out.
 *
 * @since 1.0
 */
MRVBASE_EXPORT QStringList mrvCssParts(const QString &value);

/**
 * What a part says, without quotes and escapes: the content of a string, the address in a url(), a
 * word. Several words ("Times New Roman") keep one blank between them.
 *
 * @return empty when it is anything else.
 * @since 1.0
 */
MRVBASE_EXPORT QString mrvCssText(const QString &part);
