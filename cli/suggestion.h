#pragma once

#include "util/mrvclosestmatch.h"

/** "; did you mean 'x'?", or nothing for a null text. */
inline QString didYouMean(const QString &meant)
{
    return meant.isNull() ? QString() : QStringLiteral("; did you mean '%1'?").arg(meant);
}

/** As above, for the nearest candidate. */
inline QString didYouMean(const QString &word, const QStringList &candidates)
{
    return didYouMean(MRV::closestMatch(word, candidates));
}
