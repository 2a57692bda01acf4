// Included by each source that tools/mutate puts mutants into; no part of the product. One process
// runs one mutant: the one that MRV_MUTANT names. With MRV_MUTANT_TRACE, the numbers of those that
// a process comes to are appended to that file. Nothing here needs a constructor, so that the
// libraries still load without running code.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

// Mutants need not be fast, but many of them soon.
#pragma GCC optimize("O1")
#pragma GCC diagnostic ignored "-Wbool-compare"
#pragma GCC diagnostic ignored "-Wbool-operation"
#pragma GCC diagnostic ignored "-Wdiv-by-zero"
#pragma GCC diagnostic ignored "-Wint-in-bool-context"
#pragma GCC diagnostic ignored "-Wlogical-not-parentheses"
#pragma GCC diagnostic ignored "-Wmaybe-uninitialized"
#pragma GCC diagnostic ignored "-Wparentheses"
#pragma GCC diagnostic ignored "-Wsign-compare"
#pragma GCC diagnostic ignored "-Wtautological-compare"
#pragma GCC diagnostic ignored "-Wtype-limits"

namespace {

constexpr int mrvLastMutant = 9999;
int mrvActiveMutant = -1; // not known yet
bool mrvTracesMutants = false;
bool mrvMutantWasReached[mrvLastMutant + 1];

[[maybe_unused]] void mrvTraceMutant(int number)
{
    if (mrvMutantWasReached[number]) {
        return;
    }
    mrvMutantWasReached[number] = true;
    char line[16];
    const int length = std::snprintf(line, sizeof(line), "%d\n", number);
    const int file =
        ::open(std::getenv("MRV_MUTANT_TRACE"), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
    if (file >= 0) {
        [[maybe_unused]] const auto written = ::write(file, line, size_t(length));
        ::close(file);
    }
}

/** Whether mutant @p number is to run in this process. */
[[maybe_unused]] bool mrvMutant(int number)
{
    if (mrvActiveMutant < 0) {
        const char *text = std::getenv("MRV_MUTANT");
        mrvTracesMutants = std::getenv("MRV_MUTANT_TRACE") != nullptr;
        mrvActiveMutant = text ? std::atoi(text) : 0;
    }
    if (mrvTracesMutants) {
        mrvTraceMutant(number);
    }
    return number == mrvActiveMutant;
}

} // namespace
