#include "util/mrvmeasure.h"

#include <limits>

bool MRVMeasure::parse(const QString &text, MRVMeasure *measure)
{
    return MRVUnit::parseMeasure(text, measure->pattern, measure->decimals, measure->value,
                                 measure->points, measure->unit);
}

double MRVMeasure::in(const QString &unitName) const
{
    MRVMeasure one;
    if (!parse(u'1' + unitName, &one)) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return one.pattern == pattern ? value : points / one.points;
}

QString MRVMeasure::toText(const QString &unitName) const
{
    MRVMeasure one;
    return parse(u'1' + unitName, &one) ? one.pattern.arg(in(unitName), 0, 'g', -1, u' ')
                                        : QString();
}
