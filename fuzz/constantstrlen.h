#pragma once

// Included before all else in the fuzz build. Constant QLatin1Strings call strlen(), which clang
// takes for a constant only under its builtin name.

#include <cstring>

constexpr std::size_t constantStrlen(const char *text)
{
    return __builtin_strlen(text);
}

namespace std {
using ::constantStrlen;
}

#define strlen constantStrlen
