#pragma once

#include "util/mrvbase_export.h"

#include <QString>

namespace MRV {

/**
 * Whether an address that a page names is on another machine: whether it has a scheme other than
 * "file", or begins with "//". A single letter is no scheme, but a drive. "data:" addresses count
 * as elsewhere, as they name no file.
 *
 * @since 1.0
 */
MRVBASE_EXPORT bool isElsewhere(const QString &address);

/**
 * The path of the file that an address on this machine names.
 *
 * @param address a path or a URL, with or without percent encoding; a file that has the name as it
 *                stands counts for more. Without such a file, a query and a fragment are left out.
 * @param folder  absolute; where relative addresses count from.
 * @return an absolute path; the file may be missing.
 * @since 1.0
 */
MRVBASE_EXPORT QString localFile(const QString &address, const QString &folder);

/**
 * A path that is the same for all paths of one file: relative or absolute, through links, with "."
 * and "..". The file need not exist.
 *
 * @since 1.0
 */
MRVBASE_EXPORT QString fileIdentity(const QString &path);

} // namespace MRV
