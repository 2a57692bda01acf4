// Feeds arbitrary bytes to the readers of stored auto-replace lists and entries, and looks up texts
// in what they give. Not part of the normal build:
//
//   clang++-14 -O1 -g -fPIC -std=c++17 -fsanitize=fuzzer,address,undefined -fno-sanitize=vptr
//     -Ibase $(pkg-config --cflags --libs Qt5Core) fuzz/fuzz_autoreplace.cpp
//     base/autoreplace/*.cpp -o fuzz_autoreplace
//   ./fuzz_autoreplace -rss_limit_mb=512 CORPUS

#include "autoreplace/mrvautoreplaceindex_p.h"
#include "autoreplace/mrvautoreplacelist.h"

#include <QDataStream>

#include <cstdlib>

namespace {

void check(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void lookUp(const MRVAutoReplaceList &list, const QString &text)
{
    int best = -1;
    int length = 0;
    for (int i = 0; i < list.size(); ++i) {
        const MRVAutoReplace &entry = list.at(i);
        if (entry.enabled && entry.match.size() > length && text.endsWith(entry.match)) {
            best = i;
            length = entry.match.size();
        }
    }
    check(MRVAutoReplaceIndex(list).find(text) == best);
    check(list.bestMatch(text) == (best < 0 ? MRVAutoReplace() : list.at(best)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    MRVAutoReplaceList list;
    list.fromByteArray(bytes);
    // What was read can be written and read again.
    MRVAutoReplaceList again;
    again.fromByteArray(list.toByteArray());
    check(again == list);
    if (list.size() < 1000 && size < 10000) {
        QString all;
        for (const MRVAutoReplace &entry : qAsConst(list)) {
            all += entry.replacement + entry.match;
            lookUp(list, all);
            lookUp(list, entry.match);
        }
    }
    MRVAutoReplace entry;
    QDataStream stream(bytes);
    stream >> entry;
    return 0;
}
