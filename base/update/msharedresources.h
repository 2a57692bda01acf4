#pragma once

#include "util/mrvbase_export.h"

#include <QString>

/**
 * Where the running application keeps the Qt resources that the library reads, and its product's
 * page.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MSharedResources
{
public:
    MSharedResources() = delete;

    /** The update settings: four lines that MRVUpdateModel describes. */
    static QString updatesIniFileLocation();
    /** The address of the page from which users download the running application themselves. */
    static QString productPage();
};
