#pragma once

#include "util/mrvbase_export.h"

#include <QString>

/**
 * Where the running application keeps the Qt resources that the library reads.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MSharedResources
{
public:
    MSharedResources() = delete;

    /** The update settings: four lines that MRVUpdateModel describes. */
    static QString updatesIniFileLocation();
};
