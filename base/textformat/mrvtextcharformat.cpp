#include "textformat/mrvtextcharformat.h"

#include "core/mrvfuzzycompare.h"
#include "textformat/mrvtextformat_p.h"
#include "textformat/mrvtextformatmerge_p.h"

#include <QColor>
#include <QFont>
#include <QPen>

#include <limits>

namespace {

enum Group : unsigned {
    Data = 1, ///< no style at all: always kept
    Size = 2,
    Colors = 4,
    Emphasis = 8,
    Family = 16,
};

// clang-format off
constexpr MrvFormatMerge::Row Rows[] = {
    {QTextFormat::ObjectIndex,           QTextFormat::ObjectIndex,           Data},
    {QTextFormat::CssFloat,              QTextFormat::CssFloat,              Data},
    {QTextFormat::OutlinePen,            QTextFormat::OutlinePen,            Colors},
    {QTextFormat::BackgroundBrush,       QTextFormat::BackgroundBrush,       Colors},
    {QTextFormat::ForegroundBrush,       QTextFormat::ForegroundBrush,       Colors},
    {QTextFormat::BackgroundImageUrl,    QTextFormat::BackgroundImageUrl,    Colors},
    {QTextFormat::FontCapitalization,    QTextFormat::FontCapitalization,    Emphasis},
    {QTextFormat::FontStyleHint,         QTextFormat::FontStyleHint,         Family},
    {QTextFormat::FontFamilies,          QTextFormat::FontFamilies,          Family},
    {QTextFormat::FontStyleName,         QTextFormat::FontStyleName,         Family},
    {QTextFormat::FontFamily,            QTextFormat::FontFamily,            Family},
    {QTextFormat::FontPointSize,         QTextFormat::FontPointSize,         Size},
    {QTextFormat::FontSizeAdjustment,    QTextFormat::FontSizeAdjustment,    Size},
    {QTextFormat::FontWeight,            QTextFormat::FontWeight,            Emphasis},
    {QTextFormat::FontItalic,            QTextFormat::FontItalic,            Emphasis},
    {QTextFormat::FontUnderline,         QTextFormat::FontUnderline,         Emphasis},
    {QTextFormat::FontOverline,          QTextFormat::FontOverline,          Emphasis},
    {QTextFormat::FontStrikeOut,         QTextFormat::FontStrikeOut,         Emphasis},
    {QTextFormat::FontFixedPitch,        QTextFormat::FontFixedPitch,        Family},
    {QTextFormat::FontPixelSize,         QTextFormat::FontPixelSize,         Size},
    {QTextFormat::TextUnderlineColor,    QTextFormat::TextUnderlineColor,    Emphasis},
    {QTextFormat::TextVerticalAlignment, QTextFormat::TextVerticalAlignment, Data},
    {QTextFormat::TextOutline,           QTextFormat::TextOutline,           Emphasis},
    {QTextFormat::TextUnderlineStyle,    QTextFormat::TextUnderlineStyle,    Emphasis},
    {QTextFormat::TextToolTip,           QTextFormat::TextToolTip,           Data},
    {QTextFormat::IsAnchor,              QTextFormat::AnchorName,            Data},
    {QTextFormat::ObjectType,            QTextFormat::ObjectType,            Data},
    {QTextFormat::ListStyle,             QTextFormat::ListNumberSuffix,      Data},
    // Frames, tables and cells: without them merged cells fall apart.
    {QTextFormat::FrameBorder,           QTextFormat::TableCellRightBorderBrush, Data},
    {QTextFormat::ImageName,             QTextFormat::ImageQuality,          Data},
    {QTextFormat::PageBreakPolicy,       QTextFormat::PageBreakPolicy,       Data},
    // The application's own properties, including those that are added later.
    {QTextFormat::UserProperty,          std::numeric_limits<int>::max(),    Data},
};
// clang-format on
static_assert(MrvFormatMerge::isAscending(Rows));

// 0 and unset mean normal.
int weightOf(const QTextCharFormat &format)
{
    const int weight = format.property(QTextFormat::FontWeight).toInt();
    return weight == 0 ? int(QFont::Normal) : weight;
}

void setWeight(QTextCharFormat *format, int weight)
{
    if (weight == QFont::Normal) {
        format->clearProperty(QTextFormat::FontWeight);
    } else {
        format->setProperty(QTextFormat::FontWeight, weight);
    }
}

// Whether a value emphasizes; a decoration that is switched off and an invalid colour do not.
bool isEmphasis(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::QColor:
        return value.value<QColor>().isValid();
    case QMetaType::QPen:
        return value.value<QPen>().style() != Qt::NoPen;
    default:
        return value.toInt() != 0;
    }
}

// Adds the existing emphasis to a result that has the new emphasis.
void addEmphasis(QTextCharFormat *result, const QTextCharFormat &existing)
{
    setWeight(result, qMax(weightOf(*result), weightOf(existing)));
    for (const MrvFormatMerge::Row &row : Rows) {
        if (row.group != Emphasis || row.first == QTextFormat::FontWeight) {
            continue;
        }
        const QVariant value = existing.property(row.first);
        if (isEmphasis(value)) {
            result->setProperty(row.first, value);
        }
    }
}

} // namespace

QTextCharFormat MRVTextCharFormat::merge(const QTextCharFormat &existing,
                                         const QTextCharFormat &with, bool keepSize,
                                         bool keepColors, bool keepEmphasis, bool keepFamily,
                                         const QList<int> &keep, bool overridePreserved,
                                         bool combineEmphasis)
{
    if (!overridePreserved && mrvIsPreserved(existing)) {
        return existing;
    }

    unsigned taken = Data;
    if (keepSize) {
        taken |= Size;
    }
    if (keepColors) {
        taken |= Colors;
    }
    if (keepEmphasis && !combineEmphasis) {
        taken |= Emphasis;
    }
    if (keepFamily) {
        taken |= Family;
    }

    QTextCharFormat result = with;
    MrvFormatMerge::takeGroups(&result, existing, Rows, taken);
    if (combineEmphasis) {
        addEmphasis(&result, existing);
    }
    // The block character format of a cell is the cell's format, and its brush the cell's
    // background.
    if (existing.objectType() == QTextFormat::TableCellObject) {
        MrvFormatMerge::takeProperties(
            &result, existing, {QTextFormat::BackgroundBrush, QTextFormat::BackgroundImageUrl});
    }
    if (keepSize
        && mrvFuzzyCompare(existing.property(QTextFormat::FontPointSize).toDouble(), 0.0)) {
        result.clearProperty(QTextFormat::FontPointSize);
        result.clearProperty(QTextFormat::FontPixelSize);
    }
    MrvFormatMerge::takeProperties(&result, existing, keep);
    setWeight(&result, weightOf(result));
    return result;
}
