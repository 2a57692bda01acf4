// Feeds arbitrary bytes to the readers of stored text formats. Not part of the normal build:
//
//   clang++-14 -O1 -g -fPIC -std=c++17 -fsanitize=fuzzer,address,undefined -fno-sanitize=vptr
//     -Ibase -Iplatform $(pkg-config --cflags --libs Qt5Gui) fuzz/fuzz_textformat.cpp
//     base/textformat/mrvtextformatreader.cpp base/textformat/mrvtextformatstream.cpp
//     base/textformat/mrvlistlevel.cpp -o fuzz_textformat
//   LSAN_OPTIONS=suppressions=tests/lsan.supp ./fuzz_textformat -rss_limit_mb=512 CORPUS
//
// Only the readers are compiled in, so that they are instrumented; Qt is not.

#include "guiapplication.h"
#include "textformat/mrvtextformat.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const QTextCharFormat charFormat = MRVTextFormat::toCharFormat(bytes);
    const QTextBlockFormat blockFormat = MRVTextFormat::toBlockFormat(bytes);
    if (!charFormat.isCharFormat() || !blockFormat.isBlockFormat()) {
        std::abort();
    }
    // What was read can be written and read again.
    const QByteArray stored = MRVTextFormat::toByteArray(charFormat);
    const QTextCharFormat again = MRVTextFormat::toCharFormat(stored);
    if (again.properties().keys() != charFormat.properties().keys()) {
        std::abort();
    }
    return 0;
}
