#pragma once

#include "util/mrvbase_export.h"
#include "util/mrvunit.h"

#include <QString>

/**
 * A measure that somebody has typed, to be shown in other units.
 *
 * Units are given as they are spelled after a number (MRVUnit::parseMeasure() lists them), so that
 * didots and ciceros, which share MRVUnit::None, are told apart.
 *
 * @code
 * MRVMeasure measure;
 * if (MRVMeasure::parse(QStringLiteral("2.5 cm"), &measure)) {
 *     qDebug() << measure.in(QStringLiteral("pt")) << measure.toText(QStringLiteral("in"));
 * }
 * @endcode
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVMeasure
{
    QString pattern; ///< the form of the unit's output, with "%1" in place of the number
    double value = 0.0; ///< the number as it was typed
    double points = 0.0; ///< the same length in points; may be infinite or no number
    int decimals = 0; ///< characters between the last dot and the unit
    MRVUnit::Unit unit = MRVUnit::None;

    /**
     * Reads a measure as MRVUnit::parseMeasure() does.
     *
     * @return false, with @p measure untouched, where @p text is not one.
     */
    static bool parse(const QString &text, MRVMeasure *measure);

    /**
     * The number in the unit that is spelled @p unitName, such as "cm"; in the measure's own unit,
     * as it was typed. NaN for a text that is no unit.
     */
    double in(const QString &unitName) const;
    /** The same with the unit, in six significant digits at most; empty for no unit. */
    QString toText(const QString &unitName) const;
};
