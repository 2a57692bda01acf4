// Feeds arbitrary bytes to QSettings as a file, after what would do harm was taken out. Not part of
// the normal build:
//
//   clang++-14 -O1 -g -fPIC -std=c++17 -fsanitize=fuzzer,address,undefined -fno-sanitize=vptr
//     -Ibase -Iplatform $(pkg-config --cflags --libs Qt5Gui) fuzz/fuzz_settings.cpp
//     base/settings/mrvsettingsfile.cpp base/settings/mrvsettingsguard.cpp
//     platform/core/mcoretype.cpp platform/core/mrvcoreutil.cpp platform/core/mrvfilewriter.cpp
//     -o fuzz_settings
//   LSAN_OPTIONS=suppressions=tests/lsan.supp ./fuzz_settings -malloc_limit_mb=16 CORPUS

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
