#pragma once

#include "util/mrvbase_export.h"

#include <QDir>

/**
 * Folders of the running program.
 *
 * @since 1.0
 */
namespace MRV {

/** The folder of the running program's file. Needs an application object. */
MRVBASE_EXPORT QDir morvaneRootDir();

/** The folder "resources" in morvaneRootDir(); morvaneRootDir() itself where there is none. */
MRVBASE_EXPORT QDir resourceDir();

} // namespace MRV
