#include "update/msharedresources.h"

#include "core/mrvcore.h"

QString MSharedResources::updatesIniFileLocation()
{
    return MrvCore::isAppMorvane()
        ? QStringLiteral(":CheckForUpdate/Resources/updates.ini")
        : QStringLiteral(":CheckForUpdate/resources/updates/updates.ini");
}

QString MSharedResources::productPage()
{
    return MrvCore::isAppMorvane() ? QStringLiteral("https://www.morvane.example/download")
                                   : QStringLiteral("https://www.fernwick.example/download");
}
