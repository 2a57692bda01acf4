// Reads arbitrary bytes as a settings file, and writes again what was read.

#include "guiapplication.h"
#include "settings/mrvsettingstext_p.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const MRVSettingsMap values = mrvReadSettings(bytes).values;
    const MRVSettingsText again = mrvReadSettings(mrvWriteSettings(values));
    if (again.isDamaged || again.values.keys() != values.keys()) {
        std::abort();
    }
    return 0;
}
