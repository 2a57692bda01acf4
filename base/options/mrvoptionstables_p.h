#pragma once

#include "options/mrvoptions.h"

#include <QRgb>

#include <iterator>

/**
 * The tables of the options: one row a setting, in ascending order of the settings' numbers, in one
 * table for each type. Keys, defaults, limits and the texts for the user stand nowhere else.
 */
namespace MRVOptionsTables {

/** Who changes a setting. */
enum Use : bool {
    Chosen, ///< the user, as a preference
    Remembered, ///< the application, to find it again
};

/** A setting, its key below "Options", the source of its default, and its texts for the user. */
template<typename Setting, typename Default>
struct Row
{
    Setting setting;
    const char *key;
    QString (*keyText)(); // the same without a copy of the characters
    Default value;
    const char *label; // to be translated in the context "MRVOptions", as all texts here
    const char *description;
    Use use = Chosen;
};

/** A table, or a part of one. */
template<typename Entry>
struct Rows
{
    const Entry *first;
    const Entry *last; // one past the end

    const Entry *begin() const { return first; }
    const Entry *end() const { return last; }
};

/** No default other than the empty value of the type. */
struct Empty
{
};

using Choices = QList<MRVOptions::Choice>;

struct IntDefault
{
    qint16 value;
    qint16 least; // what MRVOptions::value() keeps to
    qint16 most;
    Choices (*choices)() = nullptr; // for each number from least to most, where they have names
    const char *unit = nullptr; // to be translated
};

struct RealDefault
{
    double value;
    double least;
    double most;
    const char *unit = nullptr; // to be translated
};

struct TextDefault
{
    const char *utf8;
    QString (*ask)() = nullptr; // what only the system knows; utf8 is null then
    Choices (*choices)() = nullptr; // all that the setting takes, where it does not take any text
    MRVOptions::TextForm form = MRVOptions::Line;
    bool (*accepts)(const QString &text) =
        nullptr; // with ask, whose text is one of those; null for any
};

struct ColorDefault
{
    QRgb color;
    MRVSettings::ColorSettingGroup group; // within which the label is unique
    bool isRead = false; // colours text; others may be left out by making them transparent
};

struct BytesDefault
{
    QByteArray (*make)();
    bool (*accepts)(const QByteArray &bytes) =
        nullptr; // whether they are what is kept there; null for any
    Choices (*choices)() = nullptr; // all that the setting takes, where it is a word
};

/** The type or the custom text of a separator: settings without a number. */
struct SeparatorSetting
{
    MRV::SeparatorContext context;
    enum Part : bool { Type, Custom } part;
};

/** The system's font, larger or smaller. */
struct FontDefault
{
    int percent;
    bool bold = false;
};

using FlagRow = Row<MRVSettings::FlagSetting, bool>;
using IntRow = Row<MRVSettings::IntSetting, IntDefault>;
using RealRow = Row<MRVSettings::RealSetting, RealDefault>;
using StringRow = Row<MRVSettings::StringSetting, TextDefault>;
using StringListRow = Row<MRVSettings::StringListSetting, Empty>;
using ColorRow = Row<MRVSettings::ColorSetting, ColorDefault>;
using DateTimeRow = Row<MRVSettings::DateTimeSetting, Empty>;
using FontRow = Row<MRVSettings::FontSetting, FontDefault>;
using IntListRow = Row<MRVSettings::IntListSetting, Empty>;
using ByteArrayRow = Row<MRVSettings::ByteArraySetting, BytesDefault>;
using CharFormatRow = Row<MRVSettings::TextCharFormat, QTextCharFormat (*)()>;
using BlockFormatRow = Row<MRVSettings::TextBlockFormat, QTextBlockFormat (*)()>;
using SeparatorRow = Row<SeparatorSetting, TextDefault>;

// The table that a setting belongs to; the value of the setting does not matter.
Rows<FlagRow> tableOf(MRVSettings::FlagSetting);
Rows<IntRow> tableOf(MRVSettings::IntSetting);
Rows<RealRow> tableOf(MRVSettings::RealSetting);
Rows<StringRow> tableOf(MRVSettings::StringSetting);
Rows<StringListRow> tableOf(MRVSettings::StringListSetting);
Rows<ColorRow> tableOf(MRVSettings::ColorSetting);
Rows<DateTimeRow> tableOf(MRVSettings::DateTimeSetting);
Rows<FontRow> tableOf(MRVSettings::FontSetting);
Rows<IntListRow> tableOf(MRVSettings::IntListSetting);
Rows<ByteArrayRow> tableOf(MRVSettings::ByteArraySetting);
Rows<CharFormatRow> tableOf(MRVSettings::TextCharFormat);
Rows<BlockFormatRow> tableOf(MRVSettings::TextBlockFormat);
Rows<SeparatorRow> tableOf(SeparatorSetting);

// The row of a setting; null where it has none.
const FlagRow *rowOf(MRVSettings::FlagSetting setting);
const IntRow *rowOf(MRVSettings::IntSetting setting);
const RealRow *rowOf(MRVSettings::RealSetting setting);
const StringRow *rowOf(MRVSettings::StringSetting setting);
const StringListRow *rowOf(MRVSettings::StringListSetting setting);
const ColorRow *rowOf(MRVSettings::ColorSetting setting);
const DateTimeRow *rowOf(MRVSettings::DateTimeSetting setting);
const FontRow *rowOf(MRVSettings::FontSetting setting);
const IntListRow *rowOf(MRVSettings::IntListSetting setting);
const ByteArrayRow *rowOf(MRVSettings::ByteArraySetting setting);
const CharFormatRow *rowOf(MRVSettings::TextCharFormat setting);
const BlockFormatRow *rowOf(MRVSettings::TextBlockFormat setting);
const SeparatorRow *rowOf(SeparatorSetting setting);

/** The type that a setting's enumeration stands for. */
// clang-format off
constexpr MRVOptions::SettingType typeOf(MRVSettings::FlagSetting) { return MRVOptions::FlagType; }
constexpr MRVOptions::SettingType typeOf(MRVSettings::IntSetting) { return MRVOptions::IntType; }
constexpr MRVOptions::SettingType typeOf(MRVSettings::RealSetting) { return MRVOptions::RealType; }
constexpr MRVOptions::SettingType typeOf(MRVSettings::StringSetting) { return MRVOptions::StringType; }
constexpr MRVOptions::SettingType typeOf(MRVSettings::StringListSetting) { return MRVOptions::StringListType; }
constexpr MRVOptions::SettingType typeOf(MRVSettings::ColorSetting) { return MRVOptions::ColorType; }
constexpr MRVOptions::SettingType typeOf(MRVSettings::DateTimeSetting) { return MRVOptions::DateTimeType; }
constexpr MRVOptions::SettingType typeOf(MRVSettings::FontSetting) { return MRVOptions::FontType; }
constexpr MRVOptions::SettingType typeOf(MRVSettings::IntListSetting) { return MRVOptions::IntListType; }
constexpr MRVOptions::SettingType typeOf(MRVSettings::ByteArraySetting) { return MRVOptions::ByteArrayType; }
constexpr MRVOptions::SettingType typeOf(MRVSettings::TextCharFormat) { return MRVOptions::CharFormatType; }
constexpr MRVOptions::SettingType typeOf(MRVSettings::TextBlockFormat) { return MRVOptions::BlockFormatType; }
constexpr MRVOptions::SettingType typeOf(SeparatorSetting) { return MRVOptions::StringType; }
// clang-format on

/**
 * Calls @p visit with each row of each table: the tables in the order of SettingType, then that of
 * the separators.
 */
template<typename Visitor>
void forEachRow(const Visitor &visit)
{
    const auto all = [&visit](const auto &rows) {
        for (const auto &row : rows) {
            visit(row);
        }
    };
    all(tableOf(MRVSettings::FlagSetting()));
    all(tableOf(MRVSettings::IntSetting()));
    all(tableOf(MRVSettings::RealSetting()));
    all(tableOf(MRVSettings::StringSetting()));
    all(tableOf(MRVSettings::StringListSetting()));
    all(tableOf(MRVSettings::ColorSetting()));
    all(tableOf(MRVSettings::DateTimeSetting()));
    all(tableOf(MRVSettings::FontSetting()));
    all(tableOf(MRVSettings::IntListSetting()));
    all(tableOf(MRVSettings::ByteArraySetting()));
    all(tableOf(MRVSettings::TextCharFormat()));
    all(tableOf(MRVSettings::TextBlockFormat()));
    all(tableOf(SeparatorSetting()));
}

/** The title of the group of settings that a key belongs to; null for a key of no group. */
const char *groupOf(const char *key);
/** The place of a group's title among all; the number of groups for another text. */
int placeOfGroup(const char *title);
/** The title of a group of colours; null for a number outside the table. */
const char *titleOf(MRVSettings::ColorSettingGroup group);

// What a setting takes, in the order in which it is offered.
Choices paperPositions();
Choices linkTargets();
Choices opmlImportTypes();
Choices measures();
Choices orientations();
Choices guiLanguages();
Choices labelIndicators();
Choices cornerStyles();
Choices spaceDoubleClickModes();
Choices urlImportTypes();
Choices separatorTypes();
/** The values of choices as texts. */
QStringList wordsOf(const Choices &choices);

/** What is known of the setting of a key; without a key where there is none. */
MRVOptions::SettingInfo infoOf(const QString &key);
/**
 * What is wrong with a stored value, the raw text included; a problem without a key where nothing
 * is.
 */
MRVOptions::Problem problemOf(const QString &key, const QVariant &stored);
/** The problem of a value that could not be decoded. */
MRVOptions::Problem problemOfDamage(const QString &key, const QString &text);

/** Whether a text is a pair of quotes: two halves of equal length, neither of them empty. */
inline bool isQuotePair(const QString &text)
{
    return !text.isEmpty() && text.size() % 2 == 0;
}

/** See MRVOptions::warningKeys(). */
Rows<const char *> warningRows();

// What is needed to make defaults.
QString defaultTemplatesPath();
QString defaultScratchPadPath();
QString systemLocaleName();
QString systemMeasure();
QString systemSnap();
QByteArray noBytes();
QByteArray defaultShortcutScheme();
QByteArray defaultTextPresets();
QByteArray defaultUrlImportType();
QByteArray defaultCodec();
QByteArray defaultImportEngines();
QByteArray defaultExportEngines();
bool isMeasure(const QString &text);
bool isLocaleName(const QString &text);
bool isShortcutScheme(const QByteArray &bytes);
bool isPresetScheme(const QByteArray &bytes);
bool isPicture(const QByteArray &bytes);
bool isAutoReplaceList(const QByteArray &bytes);
bool isUrlImportType(const QByteArray &bytes);
bool isCodec(const QByteArray &bytes);
bool isEngineMap(const QByteArray &bytes);
QTextCharFormat defaultCharFormat();
QTextBlockFormat defaultBlockFormat();
/** The system's general font in @p percent of its size; a plain font without a QGuiApplication. */
QFont systemFont(int percent);

} // namespace MRVOptionsTables
