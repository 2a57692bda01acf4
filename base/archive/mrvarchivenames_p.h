#pragma once

#include <QLatin1String>

/** The type of an archive, and its files. */
struct MRVArchiveNames
{
    static constexpr QLatin1String Type{"application/x-morvane-archive"};
    static constexpr QLatin1String TypeFile{"mimetype"};
    static constexpr QLatin1String TextFile{"text.txt"};
    static constexpr QLatin1String DocumentFile{"document"};
    static constexpr QLatin1String PropertyFolder{"properties/"};
};
