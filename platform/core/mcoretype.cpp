#include "core/mcoretype.h"

#include <QStringList>

#include <cmath>

namespace {

bool toNumber(const QString &text, int *number)
{
    bool ok = false;
    *number = text.toInt(&ok);
    return ok;
}

bool toNumber(const QString &text, double *number)
{
    bool ok = false;
    *number = text.toDouble(&ok);
    return ok && std::isfinite(*number);
}

template<typename Number>
QPair<Number, Number> toPair(const QString &text, bool *ok)
{
    QPair<Number, Number> pair{};
    const QStringList parts = text.split(QLatin1Char(','));
    const bool isPair = parts.size() == 2 && toNumber(parts.at(0), &pair.first)
        && toNumber(parts.at(1), &pair.second);
    if (ok) {
        *ok = isPair;
    }
    return isPair ? pair : QPair<Number, Number>{};
}

} // namespace

QPair<int, int> MCoreType::toIntPair(const QString &text, bool *ok)
{
    return toPair<int>(text, ok);
}

QPair<double, double> MCoreType::toDoublePair(const QString &text, bool *ok)
{
    return toPair<double>(text, ok);
}
