#include "textformat/mrvtextblockformat.h"

#include "textformat/mrvtextformat.h"
#include "textformat/mrvtextformatmerge_p.h"

#include <limits>

namespace {

enum Group : unsigned {
    Data = 1, ///< no style at all: always kept
    Indents = 2,
    Spacing = 4,
    Alignment = 8,
};

// clang-format off
constexpr MrvFormatMerge::Row Rows[] = {
    // Index of the list; in another document it would name a different list.
    {QTextFormat::ObjectIndex,            QTextFormat::ObjectIndex,            Data},
    {QTextFormat::CssFloat,               QTextFormat::CssFloat,               Data},
    {QTextFormat::LayoutDirection,        QTextFormat::LayoutDirection,        Alignment},
    {QTextFormat::BlockAlignment,         QTextFormat::BlockAlignment,         Alignment},
    {QTextFormat::BlockTopMargin,         QTextFormat::BlockTopMargin,         Spacing},
    {QTextFormat::BlockBottomMargin,      QTextFormat::BlockBottomMargin,      Spacing},
    {QTextFormat::BlockLeftMargin,        QTextFormat::BlockLeftMargin,        Indents},
    {QTextFormat::BlockRightMargin,       QTextFormat::BlockRightMargin,       Indents},
    {QTextFormat::TextIndent,             QTextFormat::TextIndent,             Indents},
    {QTextFormat::TabPositions,           QTextFormat::TabPositions,           Indents},
    {MRVTextFormat::BlockLeftIndent,      MRVTextFormat::BlockLeftIndent,      Indents},
    {MRVTextFormat::BlockRightIndent,     MRVTextFormat::BlockRightIndent,     Indents},
    {QTextFormat::BlockIndent,            QTextFormat::BlockIndent,            Indents},
    {QTextFormat::LineHeight,             QTextFormat::LineHeight,             Spacing},
    {QTextFormat::LineHeightType,         QTextFormat::LineHeightType,         Spacing},
    {QTextFormat::BlockNonBreakableLines, QTextFormat::BlockNonBreakableLines, Data},
    {QTextFormat::BlockTrailingHorizontalRulerWidth,
                                 QTextFormat::BlockTrailingHorizontalRulerWidth, Data},
    {MRVTextFormat::BlockSpacing,         MRVTextFormat::BlockSpacing,         Spacing},
    {MRVTextFormat::BlockBaseSpacing,     MRVTextFormat::BlockBaseSpacing,     Spacing},
    {QTextFormat::BlockQuoteLevel,        QTextFormat::BlockQuoteLevel,        Data},
    {QTextFormat::BlockCodeLanguage,      QTextFormat::BlockCodeLanguage,      Data},
    {QTextFormat::BlockCodeFence,         QTextFormat::BlockCodeFence,         Data},
    {QTextFormat::BlockMarker,            QTextFormat::BlockMarker,            Data},
    {QTextFormat::ObjectType,             QTextFormat::ObjectType,             Data},
    {QTextFormat::ListStyle,              QTextFormat::ListNumberSuffix,       Data},
    // Frames, tables and cells: without them merged cells fall apart.
    {QTextFormat::FrameBorder,            QTextFormat::TableCellRightBorderBrush, Data},
    {QTextFormat::PageBreakPolicy,        QTextFormat::PageBreakPolicy,        Data},
    // The application's own properties, including those that are added later.
    {QTextFormat::UserProperty,           std::numeric_limits<int>::max(),     Data},
};
// clang-format on
static_assert(MrvFormatMerge::isAscending(Rows));

bool hasLineSpacing(const QTextBlockFormat &format)
{
    return format.property(MRVTextFormat::BlockSpacing).userType() == QMetaType::Double;
}

// A value under the number of the line spacing that is not a double is a heading level.
bool hasHeadingLevel(const QTextBlockFormat &format)
{
    return format.hasProperty(MRVTextFormat::BlockSpacing) && !hasLineSpacing(format);
}

void keepHeadingLevel(QTextBlockFormat *format, int level)
{
    if (level > 0) {
        format->setProperty(MRVTextFormat::HeadingLevelProperty, level);
    }
}

} // namespace

int MRVTextBlockFormat::headingLevel(const QTextBlockFormat &format)
{
    for (int property :
         {int(MRVTextFormat::HeadingLevelProperty), int(QTextFormat::HeadingLevel)}) {
        const int level = format.intProperty(property);
        if (level >= 1 && level <= 6) {
            return level;
        }
    }
    return 0;
}

void MRVTextBlockFormat::setLineSpacing(QTextBlockFormat *format, double spacing, double base)
{
    if (!format) {
        return;
    }
    keepHeadingLevel(format, headingLevel(*format));
    format->setProperty(MRVTextFormat::BlockSpacing, spacing);
    format->setProperty(MRVTextFormat::BlockBaseSpacing, base);
}

QTextBlockFormat MRVTextBlockFormat::merge(const QTextBlockFormat &existing,
                                           const QTextBlockFormat &with, bool keepIndents,
                                           bool keepSpacing, bool keepAlignment,
                                           const QList<int> &keep)
{
    unsigned taken = Data;
    if (keepIndents) {
        taken |= Indents;
    }
    if (keepSpacing) {
        taken |= Spacing;
    }
    if (keepAlignment) {
        taken |= Alignment;
    }

    QTextBlockFormat result = with;
    MrvFormatMerge::takeGroups(&result, existing, Rows, taken);
    // The language of the text, not its style, sets the direction.
    if (!with.hasProperty(QTextFormat::LayoutDirection)) {
        MrvFormatMerge::takeProperties(&result, existing, {QTextFormat::LayoutDirection});
    }
    if (!keepSpacing && !hasLineSpacing(with)) {
        result.clearProperty(QTextFormat::HeadingLevel);
        if (hasHeadingLevel(existing)) {
            result.setProperty(QTextFormat::HeadingLevel,
                               existing.property(QTextFormat::HeadingLevel));
        }
    }
    if (hasLineSpacing(result)) {
        keepHeadingLevel(&result, headingLevel(existing));
    }
    MrvFormatMerge::takeProperties(&result, existing, keep);
    return result;
}
