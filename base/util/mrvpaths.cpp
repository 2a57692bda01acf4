#include "util/mrvpaths.h"

#include <QCoreApplication>

QDir MRV::morvaneRootDir()
{
    return QDir(QCoreApplication::applicationDirPath());
}

QDir MRV::resourceDir()
{
    QDir dir = morvaneRootDir();
    dir.cd(QStringLiteral("resources"));
    return dir;
}
