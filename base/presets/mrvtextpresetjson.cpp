#include "presets/mrvtextpresetjson.h"

#include "presets/mrvtextpreset.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvfailure.h"

#include <QBrush>
#include <QJsonArray>
#include <QTextFormat>

#include <optional>

namespace {

enum Kind { Text, Integer, Real, Flag, Color, Alignment };
using Part = MRVTextPreset::ApplyFlag;
constexpr Part Characters = MRVTextPreset::ApplyCharFormat;
constexpr Part Paragraphs = MRVTextPreset::ApplyBlockFormat;

struct PropertyRow
{
    int property;
    const char *name;
    Part part;
    Kind kind;
    int least = 0; // of numbers
    int most = 0;
};

// clang-format off
constexpr PropertyRow propertyRows[] = {
    {QTextFormat::FontFamily, "family", Characters, Text},
    {QTextFormat::FontPointSize, "size", Characters, Real, 1, 1000},
    {QTextFormat::FontWeight, "weight", Characters, Integer, 0, 99},
    {QTextFormat::FontItalic, "italic", Characters, Flag},
    {QTextFormat::TextUnderlineStyle, "underline", Characters, Integer, QTextCharFormat::NoUnderline, QTextCharFormat::WaveUnderline},
    {QTextFormat::FontStrikeOut, "strikeOut", Characters, Flag},
    {QTextFormat::FontCapitalization, "capitalization", Characters, Integer, QFont::MixedCase, QFont::Capitalize},
    {QTextFormat::ForegroundBrush, "color", Characters, Color},
    {QTextFormat::BackgroundBrush, "background", Characters, Color},
    {MRVTextFormat::PreserveFormatProperty, "preserved", Characters, Flag},
    {QTextFormat::BlockAlignment, "alignment", Paragraphs, Alignment},
    {QTextFormat::BlockLeftMargin, "left", Paragraphs, Real, 0, 1000},
    {QTextFormat::BlockRightMargin, "right", Paragraphs, Real, 0, 1000},
    {QTextFormat::TextIndent, "firstLine", Paragraphs, Real, -1000, 1000},
    {QTextFormat::BlockTopMargin, "above", Paragraphs, Real, 0, 1000},
    {QTextFormat::BlockBottomMargin, "below", Paragraphs, Real, 0, 1000},
    {MRVTextFormat::BlockSpacing, "spacing", Paragraphs, Real, 1, 1000},
    {MRVTextFormat::BlockBaseSpacing, "baseSpacing", Paragraphs, Real, 1, 1000},
};

struct AlignmentRow
{
    Qt::AlignmentFlag alignment;
    const char *name;
};

constexpr AlignmentRow alignmentRows[] = {
    {Qt::AlignLeft,    "left"},
    {Qt::AlignRight,   "right"},
    {Qt::AlignHCenter, "center"},
    {Qt::AlignJustify, "justify"},
};
// clang-format on

QJsonValue jsonOf(int property, const QVariant &value)
{
    if (value.userType() == QMetaType::QBrush) {
        const QColor color = value.value<QBrush>().color();
        return color.name(color.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb);
    }
    if (property == QTextFormat::BlockAlignment) {
        for (const AlignmentRow &row : alignmentRows) {
            if (value.toInt() & row.alignment) {
                return QLatin1String(row.name);
            }
        }
    }
    const QJsonValue json = QJsonValue::fromVariant(value);
    return json.isNull() || json.isArray() ? QJsonValue(QLatin1String(value.typeName())) : json;
}

QString nameOf(int property)
{
    for (const PropertyRow &row : propertyRows) {
        if (row.property == property) {
            return QLatin1String(row.name);
        }
    }
    return QStringLiteral("0x%1").arg(property, 0, 16);
}

constexpr struct
{
    Part part;
    const char *name;
} partRows[] = {{Characters, "characters"}, {Paragraphs, "paragraphs"}};

bool isYes(const QString &text)
{
    return text == QLatin1String("true") || text == QLatin1String("yes");
}

bool isNo(const QString &text)
{
    return text == QLatin1String("false") || text == QLatin1String("no");
}

// Nothing where the text is not of the kind, or beyond the limits.
std::optional<QVariant> valueOf(const PropertyRow &row, const QString &text)
{
    bool ok = true;
    QVariant value;
    switch (row.kind) {
    case Text:
        value = text;
        break;
    case Integer:
    case Real: {
        const double number = row.kind == Real ? text.toDouble(&ok) : text.toInt(&ok);
        ok = ok && number >= row.least && number <= row.most; // NaN lies within no limits
        value = row.kind == Real ? QVariant(number) : QVariant(int(number));
        break;
    }
    case Flag:
        ok = isYes(text) || isNo(text);
        value = isYes(text);
        break;
    case Color:
        ok = QColor::isValidColor(text);
        value = QBrush(QColor(text));
        break;
    case Alignment:
        ok = false;
        for (const AlignmentRow &alignment : alignmentRows) {
            if (text == QLatin1String(alignment.name)) {
                ok = true;
                value = int(alignment.alignment);
            }
        }
        break;
    }
    return ok ? std::make_optional(value) : std::nullopt;
}

void setProperty(MRVTextPreset *preset, const PropertyRow &row, const QVariant &value)
{
    if (row.part == Characters) {
        QTextCharFormat format = preset->charFormat();
        format.setProperty(row.property, value); // an invalid value clears it
        preset->setCharFormat(format);
    } else {
        QTextBlockFormat format = preset->blockFormat();
        format.setProperty(row.property, value);
        preset->setBlockFormat(format);
    }
    if (value.isValid()) {
        preset->setApplyFlags(preset->applyFlags() | row.part);
    }
}

// -1 where a word is not the name of a part.
int partsOf(const QString &text)
{
    int parts = 0;
    const QStringList words = text.split(u',', Qt::SkipEmptyParts);
    for (const QString &word : words) {
        int part = 0;
        for (const auto &row : partRows) {
            part |= word.trimmed() == QLatin1String(row.name) ? row.part : 0;
        }
        if (part == 0) {
            return -1;
        }
        parts |= part;
    }
    return parts;
}

} // namespace

bool MRVTextPresetJson::setFromText(MRVTextPreset *preset, const QString &property,
                                    const QString &text, MRVErrorSink error)
{
    if (property == QLatin1String("applies")) {
        const int parts = partsOf(text);
        if (parts < 0) {
            return MRV::fail(error,
                             tr("'%1' is not a list of characters and paragraphs").arg(text));
        }
        preset->setApplyFlags(MRVTextPreset::ApplyFlags(parts));
        return true;
    }
    QStringList names;
    for (const PropertyRow &row : propertyRows) {
        names.append(QLatin1String(row.name));
        if (property != names.constLast()) {
            continue;
        }
        const auto value = text.isEmpty() ? std::make_optional(QVariant()) : valueOf(row, text);
        if (!value) {
            return MRV::fail(error,
                             tr("'%1' is not a value of the property %2").arg(text, property));
        }
        setProperty(preset, row, *value);
        return true;
    }
    return MRV::fail(
        error,
        tr("'%1' is not one of the properties %2").arg(property, names.join(QLatin1String(", "))));
}

QJsonObject MRVTextPresetJson::toJson(const QTextFormat &format)
{
    QJsonObject object;
    const QMap<int, QVariant> properties = format.properties();
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        object.insert(nameOf(it.key()), jsonOf(it.key(), it.value()));
    }
    return object;
}

QJsonObject MRVTextPresetJson::toJson(const QString &name, const MRVTextPreset &preset)
{
    QJsonArray parts;
    for (const auto &row : partRows) {
        if (preset.applyFlags() & row.part) {
            parts.append(QLatin1String(row.name));
        }
    }
    return {{QStringLiteral("name"), name},
            {QStringLiteral("applies"), parts},
            {QStringLiteral("characters"), toJson(preset.charFormat())},
            {QStringLiteral("paragraphs"), toJson(preset.blockFormat())}};
}
