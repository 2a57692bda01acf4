#include "presets/mrvtextpresetjson.h"

#include "presets/mrvtextpreset.h"
#include "textformat/mrvtextformat.h"

#include <QBrush>
#include <QJsonArray>
#include <QTextFormat>

namespace {

struct PropertyRow
{
    int property;
    const char *name;
};

// clang-format off
constexpr PropertyRow propertyRows[] = {
    {QTextFormat::FontFamily,               "family"},
    {QTextFormat::FontPointSize,            "size"},
    {QTextFormat::FontWeight,               "weight"},
    {QTextFormat::FontItalic,               "italic"},
    {QTextFormat::TextUnderlineStyle,       "underline"},
    {QTextFormat::FontStrikeOut,            "strikeOut"},
    {QTextFormat::FontCapitalization,       "capitalization"},
    {QTextFormat::ForegroundBrush,          "color"},
    {QTextFormat::BackgroundBrush,          "background"},
    {MRVTextFormat::PreserveFormatProperty, "preserved"},
    {QTextFormat::BlockAlignment,           "alignment"},
    {QTextFormat::BlockLeftMargin,          "left"},
    {QTextFormat::BlockRightMargin,         "right"},
    {QTextFormat::TextIndent,               "firstLine"},
    {QTextFormat::BlockTopMargin,           "above"},
    {QTextFormat::BlockBottomMargin,        "below"},
    {MRVTextFormat::BlockSpacing,           "spacing"},
    {MRVTextFormat::BlockBaseSpacing,       "baseSpacing"},
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
        return value.value<QBrush>().color().name();
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

} // namespace

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
    if (preset.applyFlags() & MRVTextPreset::ApplyCharFormat) {
        parts.append(QStringLiteral("characters"));
    }
    if (preset.applyFlags() & MRVTextPreset::ApplyBlockFormat) {
        parts.append(QStringLiteral("paragraphs"));
    }
    return {{QStringLiteral("name"), name},
            {QStringLiteral("applies"), parts},
            {QStringLiteral("characters"), toJson(preset.charFormat())},
            {QStringLiteral("paragraphs"), toJson(preset.blockFormat())}};
}
