// Feeds arbitrary bytes to QSettings as a file, after what would do harm was taken out.

#include "guiapplication.h"
#include "settings/mrvsettingsfile_p.h"
#include "settings/mrvsettingsguard_p.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const QByteArray safe = mrvSafeSettings(bytes);
    if (mrvSafeSettings(safe) != safe) {
        std::abort();
    }
    MRVSettingsMap values;
    mrvReadSettings(safe, QSettings::IniFormat, &values);
    mrvIsSettings(bytes);
    return 0;
}
