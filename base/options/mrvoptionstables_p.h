#pragma once

#include "options/mrvoptions.h"

#include <QRgb>

#include <iterator>

/**
 * The tables of the options: one row a setting, in ascending order of the settings' numbers, in one
 * table for each type. Keys and defaults stand nowhere else.
 */
namespace MRVOptionsTables {

/** A setting, its key below "Options", and the source of its default. */
template<typename Setting, typename Default>
struct Row
{
    Setting setting;
    const char *key;
    QString (*keyText)(); // the same without a copy of the characters
    Default value;
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

struct IntDefault
{
    qint16 value;
    qint16 least; // limits of what makes sense; stored values are read as they are
    qint16 most;
};

struct RealDefault
{
    double value;
    double least;
    double most;
};

struct TextDefault
{
    const char *utf8;
    QString (*ask)() = nullptr; // what only the system knows; utf8 is null then
    QStringList (*words)() = nullptr; // all that the setting takes, where it does not take any text
    bool isPair = false; // of quotes, see MRVOptions::singleQuotes()
    bool (*accepts)(const QString &text) =
        nullptr; // with ask, whose text is one of those; null for any
};

struct ColorDefault
{
    QRgb color;
    MRVSettings::ColorSettingGroup group;
    const char *name; // to be translated in the context "MRVOptions"
};

struct BytesDefault
{
    QByteArray (*make)();
    bool (*accepts)(const QByteArray &bytes) =
        nullptr; // whether they are what is kept there; null for any
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
// clang-format on

/** Calls @p visit with each row of each table, the tables in the order of SettingType. */
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
}

/** A separator that can be set: two texts under keys without a number. */
struct SeparatorRow
{
    MRV::SeparatorContext context;
    const char *typeKey;
    const char *customKey;
    MRV::SeparatorType type; // the default
};

Rows<SeparatorRow> separators();
/** The default text of a custom separator. */
QString defaultCustomSeparator();

/** The words that are stored for an enumeration, in its order. */
QStringList cornerStyleWords();
QStringList labelIndicatorWords();
QStringList spaceDoubleClickWords();
QStringList separatorTypeWords();

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
QStringList measureWords();
QStringList orientationWords();
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
