#include "manuscript/mrvsourcemisfit.h"

QString MRVSourceMisfit::text() const
{
    constexpr int Longest = 40;
    const QString what = change.before.size() > Longest
        ? change.before.left(Longest) + QChar(0x2026)
        : change.before;
    return line > 0
        ? tr("line %1: \"%2\" cannot be replaced: %3").arg(QString::number(line), what, reason)
        : tr("\"%1\" cannot be replaced: %2").arg(what, reason);
}
