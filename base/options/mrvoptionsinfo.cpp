#include "options/mrvoptionstables_p.h"

#include <algorithm>

using namespace MRVOptionsTables;

namespace {

template<typename Setting>
QString labelOf(Setting setting)
{
    const auto *row = rowOf(setting);
    return row ? MRVOptions::tr(row->label) : QString();
}

template<typename Setting>
QString descriptionOf(Setting setting)
{
    const auto *row = rowOf(setting);
    return row ? MRVOptions::tr(row->description) : QString();
}

template<typename Entry>
const char *groupTitle(const Entry &row)
{
    return groupOf(row.key);
}

const char *groupTitle(const ColorRow &row)
{
    return titleOf(row.value.group);
}

template<typename Setting>
int numberOf(Setting setting)
{
    return setting;
}

int numberOf(SeparatorSetting)
{
    return -1;
}

// What the settings of some types accept.
template<typename Entry>
void addLimits(const Entry &, MRVOptions::SettingInfo *)
{
}

template<typename Default>
Choices choicesOf(const Default &value)
{
    return value.choices ? value.choices() : Choices();
}

void addLimits(const IntRow &row, MRVOptions::SettingInfo *info)
{
    info->least = int(row.value.least);
    info->most = int(row.value.most);
    info->unit = MRVOptions::tr(row.value.unit);
    info->choices = choicesOf(row.value);
}

void addLimits(const RealRow &row, MRVOptions::SettingInfo *info)
{
    info->least = row.value.least;
    info->most = row.value.most;
    info->unit = MRVOptions::tr(row.value.unit);
}

template<typename Setting>
void addLimits(const Row<Setting, TextDefault> &row, MRVOptions::SettingInfo *info)
{
    info->form = row.value.form;
    info->choices = choicesOf(row.value);
}

void addLimits(const ByteArrayRow &row, MRVOptions::SettingInfo *info)
{
    info->choices = choicesOf(row.value);
}

QString rangeOf(const MRVOptions::SettingInfo &info)
{
    const QString range =
        MRVOptions::tr("%1 to %2").arg(info.least.toString(), info.most.toString());
    return info.unit.isEmpty() ? range : range + u' ' + info.unit;
}

template<typename Entry>
MRVOptions::SettingInfo infoOf(const Entry &row)
{
    MRVOptions::SettingInfo info;
    info.key = QString::fromLatin1(row.key);
    info.type = typeOf(row.setting);
    info.number = numberOf(row.setting);
    info.group = MRVOptions::tr(groupTitle(row));
    info.label = MRVOptions::tr(row.label);
    info.description = MRVOptions::tr(row.description);
    info.isPreference = row.use == Chosen;
    addLimits(row, &info);
    return info;
}

} // namespace

MRVOptions::SettingInfo MRVOptionsTables::infoOf(const QString &key)
{
    MRVOptions::SettingInfo info;
    forEachRow([&](const auto &row) {
        if (info.key.isEmpty() && key == QLatin1String(row.key)) {
            info = ::infoOf(row);
        }
    });
    return info;
}

QString MRVOptions::SettingInfo::accepts() const
{
    return least.isValid() ? rangeOf(*this) : wordsOf(choices).join(QLatin1String(", "));
}

QList<MRVOptions::SettingInfo> MRVOptions::settings()
{
    QList<SettingInfo> infos;
    QList<QPair<int, int>> places; // of the group, and among all
    forEachRow([&](const auto &row) {
        places.append({placeOfGroup(groupTitle(row)), infos.size()});
        infos.append(::infoOf(row));
    });
    std::sort(places.begin(), places.end());
    QList<SettingInfo> sorted;
    for (const QPair<int, int> &place : qAsConst(places)) {
        sorted.append(infos.at(place.second));
    }
    return sorted;
}

QString MRVOptions::label(const QString &key)
{
    return MRVOptionsTables::infoOf(key).label;
}

QString MRVOptions::description(const QString &key)
{
    return MRVOptionsTables::infoOf(key).description;
}

// clang-format off
QString MRVOptions::label(FlagSetting setting) { return labelOf(setting); }
QString MRVOptions::label(IntSetting setting) { return labelOf(setting); }
QString MRVOptions::label(RealSetting setting) { return labelOf(setting); }
QString MRVOptions::label(StringSetting setting) { return labelOf(setting); }
QString MRVOptions::label(StringListSetting setting) { return labelOf(setting); }
QString MRVOptions::label(ColorSetting setting) { return labelOf(setting); }
QString MRVOptions::label(DateTimeSetting setting) { return labelOf(setting); }
QString MRVOptions::label(FontSetting setting) { return labelOf(setting); }
QString MRVOptions::label(IntListSetting setting) { return labelOf(setting); }
QString MRVOptions::label(ByteArraySetting setting) { return labelOf(setting); }
QString MRVOptions::label(TextCharFormat setting) { return labelOf(setting); }
QString MRVOptions::label(TextBlockFormat setting) { return labelOf(setting); }
QString MRVOptions::description(FlagSetting setting) { return descriptionOf(setting); }
QString MRVOptions::description(IntSetting setting) { return descriptionOf(setting); }
QString MRVOptions::description(RealSetting setting) { return descriptionOf(setting); }
QString MRVOptions::description(StringSetting setting) { return descriptionOf(setting); }
QString MRVOptions::description(StringListSetting setting) { return descriptionOf(setting); }
QString MRVOptions::description(ColorSetting setting) { return descriptionOf(setting); }
QString MRVOptions::description(DateTimeSetting setting) { return descriptionOf(setting); }
QString MRVOptions::description(FontSetting setting) { return descriptionOf(setting); }
QString MRVOptions::description(IntListSetting setting) { return descriptionOf(setting); }
QString MRVOptions::description(ByteArraySetting setting) { return descriptionOf(setting); }
QString MRVOptions::description(TextCharFormat setting) { return descriptionOf(setting); }
QString MRVOptions::description(TextBlockFormat setting) { return descriptionOf(setting); }
// clang-format on
