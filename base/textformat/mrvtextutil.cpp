#include "textformat/mrvtextutil.h"

#include <QFont>
#include <QFontDatabase>
#include <QList>

#include <cstdlib>

namespace {

QList<int> weightsOf(const QString &family)
{
    QList<int> weights;
    // For an empty name Qt would return the styles of a default family.
    if (family.isEmpty()) {
        return weights;
    }
    const QFontDatabase fonts;
    for (const QString &style : fonts.styles(family)) {
        const int weight = fonts.weight(family, style);
        // -1 where the style was removed in between.
        if (weight >= 0) {
            weights << weight;
        }
    }
    return weights;
}

} // namespace

bool MRVTextUtil::hasWeight(const QString &family, int weight)
{
    const QList<int> weights = weightsOf(family);
    return weights.isEmpty() || weights.contains(weight);
}

int MRVTextUtil::closestFontWeight(const QString &family, int weight)
{
    const QList<int> weights = weightsOf(family);
    if (weights.isEmpty()) {
        return weight;
    }
    int closest = weights.first();
    for (int candidate : weights) {
        const int distance = std::abs(candidate - weight);
        const int best = std::abs(closest - weight);
        const bool preferred = weight > QFont::Normal ? candidate > closest : candidate < closest;
        if (distance < best || (distance == best && preferred)) {
            closest = candidate;
        }
    }
    return closest;
}
