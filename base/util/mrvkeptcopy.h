#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QString>

namespace MRV {

/**
 * Keeps @p bytes, those of a file that is about to be replaced: in the file @p path or, where that
 * is there with other bytes, in one whose name MRVCoreUtil::GetUniqueFileName() makes of it, so
 * that nothing that was kept earlier goes.
 *
 * @param error if given, receives one translated line that names the file on failure; untouched on
 *              success.
 * @return false where the bytes are not kept.
 * @since 1.0
 */
MRVBASE_EXPORT bool keepCopy(const QString &path, const QByteArray &bytes,
                             MRVErrorSink error = nullptr);

} // namespace MRV
