#pragma once

#include "util/mrvbase_export.h"

#include <QByteArray>

/**
 * A zip archive of the files that a damaged one, or the beginning of one, still has.
 *
 * The files are found by their own heads, one after the other from the beginning, as far as these
 * tell the length of what follows, and get a directory of their own. No file is unpacked here:
 * MRVZipReader checks the result as it does any archive.
 *
 * @param bytes any.
 * @return null where no file is found.
 * @since 1.0
 */
MRVBASE_EXPORT QByteArray mrvRepairZip(const QByteArray &bytes);
