#include "options/mrvoptionstables_p.h"

#include <QLocale>

#include <algorithm>
#include <cstring>

namespace MRVOptionsTables {
namespace {

// clang-format off
struct GroupRow
{
    const char *prefix; // of keys; null for a group of colours only
    const char *title;
};

// In the order in which they are shown.
constexpr GroupRow Groups[] = {
    {"General", QT_TRANSLATE_NOOP("MRVOptions", "General")},
    {"Appearance", QT_TRANSLATE_NOOP("MRVOptions", "Appearance")},
    {nullptr, QT_TRANSLATE_NOOP("MRVOptions", "Backgrounds")},
    {"TextEditing", QT_TRANSLATE_NOOP("MRVOptions", "Editor")},
    {"Ruler", QT_TRANSLATE_NOOP("MRVOptions", "Ruler")},
    {"FullScreen", QT_TRANSLATE_NOOP("MRVOptions", "Full screen")},
    {nullptr, QT_TRANSLATE_NOOP("MRVOptions", "Revisions")},
    {"AutoCorrection", QT_TRANSLATE_NOOP("MRVOptions", "Corrections")},
    {"Navigation", QT_TRANSLATE_NOOP("MRVOptions", "Navigation")},
    {"Corkboard", QT_TRANSLATE_NOOP("MRVOptions", "Corkboard")},
    {"IndexCard", QT_TRANSLATE_NOOP("MRVOptions", "Index cards")},
    {"Inspector", QT_TRANSLATE_NOOP("MRVOptions", "Inspector")},
    {"General/ScratchPad", QT_TRANSLATE_NOOP("MRVOptions", "Scratch pad")},
    {"Separators", QT_TRANSLATE_NOOP("MRVOptions", "Separators")},
    {"Media", QT_TRANSLATE_NOOP("MRVOptions", "Recordings")},
    {"Shortcut", QT_TRANSLATE_NOOP("MRVOptions", "Keyboard")},
    {"Backups", QT_TRANSLATE_NOOP("MRVOptions", "Backups")},
    {"Templates", QT_TRANSLATE_NOOP("MRVOptions", "Templates")},
    {"Import", QT_TRANSLATE_NOOP("MRVOptions", "Import and export")},
    {"Opml", QT_TRANSLATE_NOOP("MRVOptions", "OPML files")},
    {"Compile", QT_TRANSLATE_NOOP("MRVOptions", "E-books")},
    {"PdfSettings", QT_TRANSLATE_NOOP("MRVOptions", "PDF files")},
    {"Geometry", QT_TRANSLATE_NOOP("MRVOptions", "Windows")},
};

// By ColorSettingGroup.
constexpr const char *ColorGroups[] = {"Editor", "Full screen", "Index cards", "Revisions", "Backgrounds", "Scratch pad"};

// A value that a setting takes, and what the user chooses it by.
struct ChoiceRow
{
    const char *word;
    const char *label;
};

constexpr ChoiceRow PaperPositions[] = {
    {"0", QT_TRANSLATE_NOOP("MRVOptions", "Left")},
    {"1", QT_TRANSLATE_NOOP("MRVOptions", "Centre")},
    {"2", QT_TRANSLATE_NOOP("MRVOptions", "Right")},
};

constexpr ChoiceRow LinkTargets[] = {
    {"0", QT_TRANSLATE_NOOP("MRVOptions", "The other editor")},
    {"1", QT_TRANSLATE_NOOP("MRVOptions", "The current editor")},
    {"2", QT_TRANSLATE_NOOP("MRVOptions", "A reference panel")},
};

constexpr ChoiceRow Measures[] = {
    {"in", QT_TRANSLATE_NOOP("MRVOptions", "Inches")},
    {"cm", QT_TRANSLATE_NOOP("MRVOptions", "Centimetres")},
    {"mm", QT_TRANSLATE_NOOP("MRVOptions", "Millimetres")},
    {"pi", QT_TRANSLATE_NOOP("MRVOptions", "Picas")},
    {"pt", QT_TRANSLATE_NOOP("MRVOptions", "Points")},
    {"px", QT_TRANSLATE_NOOP("MRVOptions", "Pixels")},
};

constexpr ChoiceRow Orientations[] = {
    {"Vertical", QT_TRANSLATE_NOOP("MRVOptions", "Above the text")},
    {"Horizontal", QT_TRANSLATE_NOOP("MRVOptions", "Beside the text")},
};

constexpr ChoiceRow LabelIndicators[] = {
    {"NoLabelIndicator", QT_TRANSLATE_NOOP("MRVOptions", "Not at all")},
    {"PinIndicator", QT_TRANSLATE_NOOP("MRVOptions", "As a pin")},
    {"CornerIndicator", QT_TRANSLATE_NOOP("MRVOptions", "As a coloured corner")},
    {"StripeIndicator", QT_TRANSLATE_NOOP("MRVOptions", "As a stripe")},
};

constexpr ChoiceRow CornerStyles[] = {
    {"SquareCorners", QT_TRANSLATE_NOOP("MRVOptions", "Square")},
    {"RoundedCorners", QT_TRANSLATE_NOOP("MRVOptions", "Rounded")},
};

constexpr ChoiceRow SpaceDoubleClickModes[] = {
    {"SpaceDoubleClickDoesNothing", QT_TRANSLATE_NOOP("MRVOptions", "Does nothing")},
    {"SpaceDoubleClickCreatesCard", QT_TRANSLATE_NOOP("MRVOptions", "Creates a card")},
    {"SpaceDoubleClickOpensParent", QT_TRANSLATE_NOOP("MRVOptions", "Goes up to the folder above")},
};

constexpr ChoiceRow SeparatorTypes[] = {
    {"SingleReturn", QT_TRANSLATE_NOOP("MRVOptions", "Single return")},
    {"EmptyLine", QT_TRANSLATE_NOOP("MRVOptions", "Empty line")},
    {"CustomSeparator", QT_TRANSLATE_NOOP("MRVOptions", "A separator of your own")},
};
// clang-format on

static_assert(std::size(ColorGroups) == int(MRVOptions::ScratchPadColors) + 1);
static_assert(std::size(PaperPositions) == 2 + 1);
static_assert(std::size(LinkTargets) == MRV::OpenInReferencePanel + 1);
static_assert(std::size(CornerStyles) == MRVOptions::RoundedCorners + 1);
static_assert(std::size(LabelIndicators) == MRVOptions::StripeIndicator + 1);
static_assert(std::size(SpaceDoubleClickModes) == MRVOptions::SpaceDoubleClickOpensParent + 1);
static_assert(std::size(SeparatorTypes) == MRV::CustomSeparator + 1);

template<std::size_t Size>
Choices choicesOf(const ChoiceRow (&rows)[Size])
{
    Choices choices;
    for (const ChoiceRow &row : rows) {
        choices.append({QString::fromLatin1(row.word), MRVOptions::tr(row.label)});
    }
    return choices;
}

template<std::size_t Size>
Choices numberedChoicesOf(const ChoiceRow (&rows)[Size])
{
    Choices choices = choicesOf(rows);
    for (MRVOptions::Choice &choice : choices) {
        choice.value = choice.value.toInt();
    }
    return choices;
}

} // namespace

// clang-format off
Choices paperPositions() { return numberedChoicesOf(PaperPositions); }
Choices linkTargets() { return numberedChoicesOf(LinkTargets); }
Choices measures() { return choicesOf(Measures); }
Choices orientations() { return choicesOf(Orientations); }
Choices labelIndicators() { return choicesOf(LabelIndicators); }
Choices cornerStyles() { return choicesOf(CornerStyles); }
Choices spaceDoubleClickModes() { return choicesOf(SpaceDoubleClickModes); }
Choices separatorTypes() { return choicesOf(SeparatorTypes); }
// clang-format on

Choices opmlImportTypes()
{
    Choices choices;
    const QMap<MRV::OpmlImportType, QString> labels = MRV::opmlImportTypesDescr();
    for (auto it = labels.begin(); it != labels.end(); ++it) {
        choices.append({int(it.key()), it.value()});
    }
    return choices;
}

Choices urlImportTypes()
{
    Choices choices;
    const QMap<MRVImportExport::UrlImportType, QString> labels =
        MRVImportExport::urlImportTypesDescr();
    for (auto it = labels.begin(); it != labels.end(); ++it) {
        choices.append({QString::fromLatin1(MRVImportExport::toByteArray(it.key())), it.value()});
    }
    return choices;
}

// Each language by its own name, for a reader who understands none of the others.
Choices guiLanguages()
{
    Choices choices;
    const QStringList codes = MRVOptions::guiLanguages();
    for (const QString &code : codes) {
        choices.append({code, QLocale(code).nativeLanguageName()});
    }
    return choices;
}

QStringList wordsOf(const Choices &choices)
{
    QStringList words;
    for (const MRVOptions::Choice &choice : choices) {
        words.append(choice.value.toString());
    }
    return words;
}

// The group with the longest prefix.
const char *groupOf(const char *key)
{
    const GroupRow *found = nullptr;
    for (const GroupRow &row : Groups) {
        const std::size_t length = row.prefix ? std::strlen(row.prefix) : 0;
        const bool isPrefix = length > 0 && std::strncmp(key, row.prefix, length) == 0
            && (key[length] == '/' || key[length] == 0);
        if (isPrefix && (!found || length > std::strlen(found->prefix))) {
            found = &row;
        }
    }
    return found ? found->title : nullptr;
}

int placeOfGroup(const char *title)
{
    const auto *const found =
        std::find_if(std::begin(Groups), std::end(Groups),
                     [title](const GroupRow &row) { return std::strcmp(row.title, title) == 0; });
    return int(found - std::begin(Groups));
}

const char *titleOf(MRVSettings::ColorSettingGroup group)
{
    return uint(group) < std::size(ColorGroups) ? ColorGroups[group] : nullptr;
}

} // namespace MRVOptionsTables
