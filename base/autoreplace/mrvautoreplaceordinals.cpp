#include "autoreplace/mrvautoreplace.h"

#include "autoreplace/mrvautoreplacelist.h"

namespace {

struct Ordinal
{
    int number;
    const char *match;
    const char *shortened;
};

constexpr Ordinal ordinalTexts[] = {{1, "1st", "1r"}, {2, "2nd", "2n"}, {3, "3rd", "3r"}};

} // namespace

MRVAutoReplaceList MRVAutoReplace::ordinals()
{
    constexpr QChar degree(0xB0);
    MRVAutoReplaceList list;
    for (const Ordinal &ordinal : ordinalTexts) {
        list.append(
            {false, QLatin1String(ordinal.match), QString::number(ordinal.number) + degree});
    }
    for (const Ordinal &ordinal : ordinalTexts) {
        list.append({false, QLatin1String(ordinal.match), QLatin1String(ordinal.shortened)});
    }
    return list;
}
