// Feeds arbitrary bytes to the reader of script modes. Not part of the normal build:
//
//   clang++-14 -O1 -g -fPIC -std=c++17 -fsanitize=fuzzer,address,undefined -fno-sanitize=vptr
//     -Ibase -Iplatform $(pkg-config --cflags --libs Qt5Gui) fuzz/fuzz_scriptmode.cpp
//     base/script/mrvscript*.cpp base/util/mrvunit.cpp base/util/mrvcolors.cpp
//     base/util/mrvnames.cpp build/release/base/mrvdefaultscriptmode.cpp -Lbuild/release/lib
//     -lMrvBase -lMrvCore -lMrvGui
//     -Wl,-rpath,build/release/lib -o fuzz_scriptmode
//   ./fuzz_scriptmode -rss_limit_mb=1024 -detect_leaks=0 CORPUS
//     base/resources/scriptformats
//
// Only what reads and writes modes is compiled in, so that it is instrumented; the rest is not.

#include "guiapplication.h"
#include "scriptmode/mrvscriptmode.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    MRVScriptMode mode;
    QString error;
    QStringList remarks;
    if (!mode.fromXml(bytes, &error, &remarks)) {
        // A refusal has a reason and changes nothing.
        if (error.isEmpty() || mode != MRVScriptMode()) {
            std::abort();
        }
        return 0;
    }
    // What was read is written so that it is read again without a remark, and then is written as
    // the same bytes.
    const QByteArray written = mode.toXml();
    MRVScriptMode again;
    remarks.clear();
    if (!again.fromXml(written, &error, &remarks) || !remarks.isEmpty()
        || again.toXml() != written) {
        std::abort();
    }
    again.makeElementsUnique();
    return 0;
}
