#include "text/mrvlistmarkers.h"

#include "text/mrvtextlistformat.h"
#include "textformat/mrvtextformat.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <limits>

namespace {

enum NumberStyle {
    Bullet = 0,
    LowerLetters = 2,
    UpperLetters = 3,
    LowerRoman = 4,
    UpperRoman = 5,
};

QString lettersOf(int number)
{
    QString letters;
    for (; number > 0; number = (number - 1) / 26) {
        letters.prepend(QChar('a' + (number - 1) % 26));
    }
    return letters;
}

QString romanOf(int number)
{
    constexpr struct
    {
        int value;
        const char *figures;
    } rows[] = {{1000, "m"}, {900, "cm"}, {500, "d"}, {400, "cd"}, {100, "c"},
                {90, "xc"},  {50, "l"},   {40, "xl"}, {10, "x"},   {9, "ix"},
                {5, "v"},    {4, "iv"},   {1, "i"}};
    QString roman;
    for (const auto &row : rows) {
        for (; number >= row.value; number -= row.value) {
            roman += QLatin1String(row.figures);
        }
    }
    return roman;
}

} // namespace

int MRVListCounter::next(const QTextListFormat &format, int list, int level)
{
    QVector<Item> &open = m_open[list];
    while (!open.isEmpty() && open.constLast().level > level) {
        open.removeLast();
    }
    if (open.isEmpty() || open.constLast().level < level) {
        const bool starts = level == 0 && format.hasProperty(MRVTextFormat::ListStartProperty);
        open.append({level, starts ? format.intProperty(MRVTextFormat::ListStartProperty) : 1});
    } else if (open.constLast().number < std::numeric_limits<int>::max()) {
        ++open.last().number;
    }
    return open.constLast().number;
}

QString mrvListNumberText(int number, int numberStyle)
{
    constexpr int LargestRoman = 3999;
    const bool isRoman = numberStyle == LowerRoman || numberStyle == UpperRoman;
    const bool isLetters = numberStyle == LowerLetters || numberStyle == UpperLetters;
    if (number < 1 || (!isRoman && !isLetters) || (isRoman && number > LargestRoman)) {
        return QString::number(number);
    }
    const QString text = isRoman ? romanOf(number) : lettersOf(number);
    const bool isUpper = numberStyle == UpperLetters || numberStyle == UpperRoman;
    return isUpper ? text.toUpper() : text;
}

QString mrvListMarkerText(const MRVTextListLevel &level, int number)
{
    if (level.numberStyle == Bullet) {
        return level.text;
    }
    QString text = level.text;
    return text.replace(QLatin1String("%0"), mrvListNumberText(number, level.numberStyle));
}

QVector<MRVListMarker> mrvListMarkers(const QTextDocument &document)
{
    QVector<MRVListMarker> markers;
    markers.reserve(document.blockCount());
    QHash<const QTextList *, QTextListFormat> formats;
    QHash<QPair<const QTextList *, int>, MRVTextListLevel> levels;
    MRVListCounter counter;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        MRVListMarker marker;
        if (const QTextList *list = block.textList()) {
            marker.level = mrvListLevel(*list, block);
            auto format = formats.constFind(list);
            if (format == formats.constEnd()) {
                format = formats.insert(list, list->format());
            }
            auto level = levels.constFind({list, marker.level});
            if (level == levels.constEnd()) {
                level = levels.insert({list, marker.level},
                                      MRVTextListFormat::shownLevel(*format, marker.level));
            }
            marker.number = counter.next(*format, list->objectIndex(), marker.level);
            marker.text = mrvListMarkerText(*level, marker.number);
        }
        markers.append(marker);
    }
    return markers;
}
