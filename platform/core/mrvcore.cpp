#include "core/mrvcore.h"

#include <QCoreApplication>

QString MrvCore::supportEmail()
{
    return QStringLiteral("support@morvane.example");
}

bool MrvCore::isAppMorvane()
{
    return QCoreApplication::applicationName() != QLatin1String("Fernwick");
}
