#include "text/mrvtextlistformat.h"

#include "textformat/mrvtextformat.h"

#include <QHash>
#include <QPair>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QVector>

namespace {

struct StyleRow
{
    QTextListFormat::Style style;
    int numberStyle;
    ushort bullet; ///< for number style 0
};

// clang-format off
constexpr StyleRow Styles[] = {
    {QTextListFormat::ListDecimal,    1, 0},
    {QTextListFormat::ListLowerAlpha, 2, 0},
    {QTextListFormat::ListUpperAlpha, 3, 0},
    {QTextListFormat::ListLowerRoman, 4, 0},
    {QTextListFormat::ListUpperRoman, 5, 0},
    {QTextListFormat::ListSquare,     0, 0x25a0},
    {QTextListFormat::ListCircle,     0, 0x25cb},
    {QTextListFormat::ListDisc,       0, 0x25cf},
};
// clang-format on

constexpr double LeftIndent = 36.0;
constexpr double TextIndent = 18.0;

MRVTextListLevel levelOf(QTextListFormat::Style style)
{
    MRVTextListLevel level;
    for (const StyleRow &row : Styles) {
        if (row.style == style) {
            level.numberStyle = row.numberStyle;
            level.text = row.numberStyle > 0 ? QStringLiteral("%0.") : QString(QChar(row.bullet));
        }
    }
    level.leftIndent = LeftIndent;
    level.textIndent = TextIndent;
    return level;
}

QTextListFormat::Style styleOf(const MRVTextListLevel &level)
{
    const ushort bullet = level.text.isEmpty() ? 0 : level.text.at(0).unicode();
    for (const StyleRow &row : Styles) {
        if (row.numberStyle > 0 ? row.numberStyle == level.numberStyle : row.bullet == bullet) {
            return row.style;
        }
    }
    return QTextListFormat::ListDisc;
}

constexpr char BlockLevelsProperty[] = "BlockLevels";
// The map that setBlockLevels() has put there, whose paragraphs carry their levels themselves.
constexpr char AppliedLevelsProperty[] = "_mrv_AppliedBlockLevels";

QTextBlock blockAt(const QTextDocument *document, int position)
{
    return document ? document->findBlock(position) : QTextBlock();
}

QTextBlock blockAt(const QTextCursor &cursor)
{
    return cursor.isNull() ? QTextBlock() : cursor.block();
}

void clearProperties(const QTextBlock &block)
{
    if (!block.isValid()) {
        return;
    }
    const QTextBlockFormat format = block.blockFormat();
    const QTextBlockFormat cleared = MRVTextListFormat::clearListProperties(format);
    if (cleared != format) {
        QTextCursor(block).setBlockFormat(cleared);
    }
}

void clearPropertiesAndList(const QTextBlock &block)
{
    if (!block.isValid()) {
        return;
    }
    QTextCursor cursor(block);
    cursor.beginEditBlock();
    mrvRemoveFromList(block);
    clearProperties(block);
    cursor.endEditBlock();
}

// By index: blocks of an older map may have been deleted, and comparing those is not safe.
QHash<int, int> levelsByIndex(const MRVTextBlockLevelMap &levels)
{
    QHash<int, int> result;
    for (auto it = levels.cbegin(); it != levels.cend(); ++it) {
        result.insert(it.key().fragmentIndex(), it.value());
    }
    return result;
}

} // namespace

bool operator==(const MRVTextListLevel &a, const MRVTextListLevel &b)
{
    // The documented tolerance is that of Qt's comparison.
    return a.text == b.text && a.numberStyle == b.numberStyle
        && qFuzzyCompare(a.leftIndent, b.leftIndent) && qFuzzyCompare(a.textIndent, b.textIndent);
}

MRVQtListLevel MRVTextListFormat::toQtListLevel(const MRVTextListLevel &level)
{
    return {level.text, level.numberStyle, level.leftIndent, level.textIndent};
}

MRVTextListLevel MRVTextListFormat::toMrvListLevel(const MRVQtListLevel &level)
{
    return {level.text, level.numberStyle, level.leftIndent, level.textIndent};
}

QList<MRVTextListLevel> MRVTextListFormat::levels(const QTextListFormat &format)
{
    QList<MRVTextListLevel> result;
    const QVariantList stored = format.property(MRVListLevelsProperty).toList();
    for (const QVariant &level : stored) {
        result.append(toMrvListLevel(qvariant_cast<MRVQtListLevel>(level)));
    }
    return result;
}

void MRVTextListFormat::setLevels(QTextListFormat &format, const QList<MRVTextListLevel> &levels)
{
    QVariantList stored;
    for (const MRVTextListLevel &level : levels) {
        stored.append(QVariant::fromValue(toQtListLevel(level)));
    }
    format.setProperty(MRVListLevelsProperty, stored);
}

QString MRVTextListFormat::itemText(const QTextListFormat &format, int level)
{
    return levels(format).value(level).text;
}

int MRVTextListFormat::numberStyle(const QTextListFormat &format, int level)
{
    return levels(format).value(level).numberStyle;
}

double MRVTextListFormat::leftIndent(const QTextListFormat &format, int level)
{
    return levels(format).value(level).leftIndent;
}

double MRVTextListFormat::textIndent(const QTextListFormat &format, int level)
{
    return levels(format).value(level).textIndent;
}

MRVTextListLevel MRVTextListFormat::shownLevel(const QTextListFormat &format, int level)
{
    level = qMax(0, level);
    const QList<MRVTextListLevel> own = levels(format);
    if (!own.isEmpty()) {
        MRVTextListLevel shown = own.at(qMin(level, own.size() - 1));
        shown.leftIndent += LeftIndent * qMax(0, level - (own.size() - 1));
        return shown;
    }
    MRVTextListLevel shown = levelOf(qtStyle(format));
    if (shown.numberStyle > 0) {
        const bool hasSuffix = format.hasProperty(QTextFormat::ListNumberSuffix);
        shown.text = format.numberPrefix() + QLatin1String("%0")
            + (hasSuffix ? format.numberSuffix() : QStringLiteral("."));
    }
    shown.leftIndent = LeftIndent * (qMax(1, format.indent()) + double(level));
    return shown;
}

QTextListFormat::Style MRVTextListFormat::qtStyle(const QTextListFormat &format)
{
    const int number = format.intProperty(QTextFormat::ListStyle);
    return number < QTextListFormat::ListUpperRoman || number > QTextListFormat::ListStyleUndefined
        ? QTextListFormat::ListStyleUndefined
        : QTextListFormat::Style(number);
}

void MRVTextListFormat::setStyle(QTextListFormat &format, QTextListFormat::Style style)
{
    setLevels(format, {levelOf(style)});
    format.setStyle(style);
}

QTextListFormat::Style MRVTextListFormat::shownStyle(const QTextListFormat &format, int level)
{
    const bool hasLevels = !levels(format).isEmpty();
    return hasLevels ? styleOf(shownLevel(format, level)) : qtStyle(format);
}

QTextListFormat::Style MRVTextListFormat::style(const QTextListFormat &format)
{
    return styleOf(levels(format).value(0));
}

void MRVTextListFormat::setBlockLevel(QTextList &list, const QTextBlock &block, int level)
{
    mrvSetListLevel(list, block, level);
}

int MRVTextListFormat::blockLevel(const QTextList &list, const QTextBlock &block)
{
    return mrvListLevel(list, block);
}

QTextBlockFormat MRVTextListFormat::clearListProperties(const QTextBlockFormat &format)
{
    QTextBlockFormat cleared = mrvWithoutListLevel(format);
    for (int property : {int(QTextFormat::ObjectIndex), int(MRVTextFormat::ListExtraProperty1),
                         int(MRVTextFormat::ListExtraProperty2), int(MRVListLevelsProperty)}) {
        cleared.clearProperty(property);
    }
    return cleared;
}

void MRVTextListFormat::clearListProperties(QTextCursor &cursor)
{
    clearProperties(blockAt(cursor));
}

void MRVTextListFormat::clearListProperties(QTextDocument *document, int position)
{
    clearProperties(blockAt(document, position));
}

void MRVTextListFormat::clearBlockAtPositionFromTextList(QTextDocument *document, int position)
{
    mrvRemoveFromList(blockAt(document, position));
}

void MRVTextListFormat::clearBlockAtPositionFromTextList(const QTextCursor &cursor)
{
    mrvRemoveFromList(blockAt(cursor));
}

void MRVTextListFormat::clearSelectedBlocksFromTextList(const QTextCursor &cursor)
{
    if (cursor.isNull()) {
        return;
    }
    const QTextDocument *document = cursor.document();
    const QTextBlock end = document->findBlock(cursor.selectionEnd()).next();
    QTextCursor edit = cursor;
    edit.beginEditBlock();
    for (QTextBlock block = document->findBlock(cursor.selectionStart());
         block.isValid() && block != end; block = block.next()) {
        mrvRemoveFromList(block);
    }
    edit.endEditBlock();
}

void MRVTextListFormat::clearListPropertiesAndTextList(QTextCursor &cursor)
{
    clearPropertiesAndList(blockAt(cursor));
}

void MRVTextListFormat::clearListPropertiesAndTextList(QTextDocument *document, int position)
{
    clearPropertiesAndList(blockAt(document, position));
}

void setBlockLevels(QTextList &list, const MRVTextBlockLevelMap &levels)
{
    const QHash<int, int> byIndex = levelsByIndex(levels);
    QTextCursor cursor(list.document());
    cursor.beginEditBlock();
    for (int i = 0; i < list.count(); ++i) {
        const QTextBlock block = list.item(i);
        mrvSetListLevel(list, block, byIndex.value(block.fragmentIndex()));
    }
    cursor.endEditBlock();
    list.setProperty(BlockLevelsProperty, QVariant::fromValue(levels));
    list.setProperty(AppliedLevelsProperty, QVariant::fromValue(levels));
}

MRVTextBlockLevelMap blockLevels(const QTextList &list)
{
    const QVariant kept = list.property(BlockLevelsProperty);
    if (kept.userType() != qMetaTypeId<MRVTextBlockLevelMap>()) {
        return MRVTextBlockLevelMap();
    }
    const auto levels = kept.value<MRVTextBlockLevelMap>();
    const QVariant applied = list.property(AppliedLevelsProperty);
    if (!applied.isValid() || applied.value<MRVTextBlockLevelMap>() != levels) {
        return levels;
    }
    MRVTextBlockLevelMap result;
    const QHash<int, int> named = levelsByIndex(levels);
    for (int i = 0; i < list.count(); ++i) {
        const QTextBlock block = list.item(i);
        const int level = mrvListLevel(list, block);
        if (level > 0 || named.contains(block.fragmentIndex())) {
            result.insert(block, level);
        }
    }
    return result;
}
