#pragma once

#include "util/mrvbase_export.h"

#include <QString>
#include <QStringList>

/**
 * What MRVGuiUtil tells of the installed image plug-ins, for code that knows only this library.
 *
 * @since 1.0
 */
namespace MRV {

/** MRVGuiUtil::readImageFormats(). */
MRVBASE_EXPORT QStringList displayImageFormats();
/** MRVGuiUtil::writeImageFormats(). */
MRVBASE_EXPORT QStringList writeImageFormats();
/** MRVGuiUtil::readWriteImageFormats(). */
MRVBASE_EXPORT QStringList readWriteImageFormats();
/** MRVGuiUtil::readImageFileFilters(). */
MRVBASE_EXPORT QStringList imageFileFilters();
/** MRVGuiUtil::writeImageFileFilters(). */
MRVBASE_EXPORT QStringList writeImageFileFilters();
/** MRVGuiUtil::createFormatFilter(), with the same @p description and @p suffixes. */
MRVBASE_EXPORT QString createFormatFilter(const QString &description, const QStringList &suffixes);

} // namespace MRV
