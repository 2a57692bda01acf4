// Feeds arbitrary bytes to the reader of shortcut schemes. Not part of the normal build:
//
//   /usr/lib/qt5/bin/moc base/shortcuts/mrvshortcut.h -p settings -o moc_mrvshortcut.cpp
//   clang++-14 -O1 -g -fPIC -std=c++17 -fsanitize=fuzzer,address,undefined -fno-sanitize=vptr
//     -Ibase -Iplatform $(pkg-config --cflags --libs Qt5Gui) fuzz/fuzz_shortcuts.cpp
//     base/settings/mrvshortcut*.cpp moc_mrvshortcut.cpp platform/core/mcoretype.cpp
//     platform/core/mrvcoreutil.cpp platform/core/mrvfilewriter.cpp -o fuzz_shortcuts
//   LSAN_OPTIONS=suppressions=tests/lsan.supp ./fuzz_shortcuts -rss_limit_mb=512 CORPUS
//
// Only what reads schemes is compiled in, so that it is instrumented; Qt is not.

#include "shortcuts/mrvshortcutcheck.h"
#include "shortcuts/mrvshortcutscheme.h"

#include <QGuiApplication>

#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const MRVShortcutScheme scheme = MRVShortcutScheme::fromByteArray(bytes);
    // What was read can be written and read again.
    if (MRVShortcutScheme::fromByteArray(scheme.toByteArray()) != scheme) {
        std::abort();
    }
    const MRVShortcutScheme merged(bytes, true);
    if (merged.shortcuts().size() != MRVShortcutScheme::morvane().shortcuts().size()) {
        std::abort();
    }
    const auto conflicts = MRVShortcutCheck::conflicts(scheme);
    for (const auto &conflict : conflicts) {
        if (MRVShortcutCheck::describe(conflict, scheme).isEmpty()) {
            std::abort();
        }
    }
    return 0;
}
