#include "shortcuts/mrvshortcutcheck.h"
#include "shortcuts/mrvshortcutscheme.h"

#include <benchmark/benchmark.h>

/**
 * A scheme of all commands: writing and reading it must take less than a millisecond together,
 * since an application does both when it starts.
 */
static void writeAndRead(benchmark::State &state)
{
    const MRVShortcutScheme scheme = MRVShortcutScheme::morvane();
    for (auto _ : state) {
        benchmark::DoNotOptimize(MRVShortcutScheme::fromByteArray(scheme.toByteArray()));
    }
}
BENCHMARK(writeAndRead)->Unit(benchmark::kMicrosecond);

static void readAndMergeDefaults(benchmark::State &state)
{
    const QByteArray bytes = MRVShortcutScheme::morvane().toByteArray();
    for (auto _ : state) {
        benchmark::DoNotOptimize(MRVShortcutScheme(bytes, true));
    }
}
BENCHMARK(readAndMergeDefaults)->Unit(benchmark::kMicrosecond);

/** As a preferences page does at each key that is pressed. */
static void conflicts(benchmark::State &state)
{
    const MRVShortcutScheme scheme = MRVShortcutScheme::morvane();
    for (auto _ : state) {
        benchmark::DoNotOptimize(MRVShortcutCheck::conflicts(scheme));
    }
}
BENCHMARK(conflicts)->Unit(benchmark::kMicrosecond);
