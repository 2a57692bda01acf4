#include "util/mrvimageformats.h"

#include "gui/mrvguiutil.h"

QStringList MRV::displayImageFormats()
{
    return MRVGuiUtil::readImageFormats();
}

QStringList MRV::writeImageFormats()
{
    return MRVGuiUtil::writeImageFormats();
}

QStringList MRV::readWriteImageFormats()
{
    return MRVGuiUtil::readWriteImageFormats();
}

QStringList MRV::imageFileFilters()
{
    return MRVGuiUtil::readImageFileFilters();
}

QStringList MRV::writeImageFileFilters()
{
    return MRVGuiUtil::writeImageFileFilters();
}

QString MRV::createFormatFilter(const QString &description, const QStringList &suffixes)
{
    return MRVGuiUtil::createFormatFilter(description, suffixes);
}
