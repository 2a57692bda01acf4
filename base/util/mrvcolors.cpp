#include "util/mrvcolors.h"

#include "gui/mrvguiutil.h"

#include <QStringList>

namespace {

double toComponent(const QString &text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    // Written so that NaN, for which every comparison is false, gives 0. Where a number is too
    // large for a double, Qt returns infinity but reports an error.
    return ok && value > 0.0 ? qMin(value, 1.0) : 0.0;
}

} // namespace

QString MRV::colorToFloatString(const QColor &any)
{
    // An extended colour may hold components beyond 0 to 1.
    const QColor color = any.toRgb();
    return QStringLiteral("%1 %2 %3")
        .arg(QString::number(color.redF(), 'f', 6), QString::number(color.greenF(), 'f', 6),
             QString::number(color.blueF(), 'f', 6));
}

QColor MRV::floatStringToColor(const QString &text)
{
    const QStringList parts = text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (parts.size() != 3) {
        return QColor();
    }
    return QColor::fromRgbF(toComponent(parts.at(0)), toComponent(parts.at(1)),
                            toComponent(parts.at(2)));
}

QColor MRV::textColorForBackground(const QColor &background)
{
    return MRVGuiUtil::textColorForBackground(background);
}
