#include "options/mrvoptionstables_p.h"

using namespace MRVOptionsTables;

namespace {

struct ThemeRow
{
    const char *name;
    QRgb card;
    QRgb border;
};

// clang-format off
// The first is the default; its colours are the defaults of the two settings.
constexpr ThemeRow Themes[] = {
    {QT_TRANSLATE_NOOP("MRVOptions", "White"),    0xffffffff, 0xff8a8f98},
    {QT_TRANSLATE_NOOP("MRVOptions", "Ivory"),    0xfffffbea, 0xff9b8f63},
    {QT_TRANSLATE_NOOP("MRVOptions", "Manila"),   0xfff6e3b4, 0xff9a7d43},
    {QT_TRANSLATE_NOOP("MRVOptions", "Mint"),     0xffe4f4e4, 0xff6b926f},
    {QT_TRANSLATE_NOOP("MRVOptions", "Sky"),      0xffe3effb, 0xff6d8aab},
    {QT_TRANSLATE_NOOP("MRVOptions", "Lavender"), 0xffefe8fa, 0xff8e7caf},
    {QT_TRANSLATE_NOOP("MRVOptions", "Rose"),     0xfffce8ec, 0xffad7782},
    {QT_TRANSLATE_NOOP("MRVOptions", "Slate"),    0xffe4e7ec, 0xff798290},
};
// clang-format on

MRVOptions::IndexCardTheme themeOf(const ThemeRow &row)
{
    return {MRVOptions::tr(row.name), {QColor(row.card), QColor(row.border)}};
}

} // namespace

QMap<MRVSettings::ColorSettingGroup, QList<MRVSettings::ColorSetting>> MRVOptions::colorGroupMap()
{
    QMap<ColorSettingGroup, QList<ColorSetting>> map;
    for (const ColorRow &row : tableOf(ColorSetting())) {
        map[row.value.group].append(row.setting);
    }
    return map;
}

QString MRVOptions::colorGroupName(ColorSettingGroup group)
{
    const char *title = titleOf(group);
    return title ? tr(title) : QString();
}

QString MRVOptions::colorName(ColorSetting setting)
{
    return label(setting);
}

QList<MRVOptions::IndexCardTheme> MRVOptions::indexCardThemes()
{
    QList<IndexCardTheme> themes;
    for (const ThemeRow &row : Themes) {
        themes.append(themeOf(row));
    }
    return themes;
}

int MRVOptions::findIndexCardTheme(const QPair<QColor, QColor> &colors)
{
    if (!colors.first.isValid() || !colors.second.isValid()) {
        return -1;
    }
    for (std::size_t i = 0; i < std::size(Themes); ++i) {
        const ThemeRow &row = Themes[i];
        if (colors.first.rgb() == row.card && colors.second.rgb() == row.border) {
            return int(i);
        }
    }
    return -1;
}

MRVOptions::IndexCardTheme MRVOptions::defaultIndexCardTheme()
{
    return themeOf(Themes[0]);
}
