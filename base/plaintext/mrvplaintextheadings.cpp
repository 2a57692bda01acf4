#include "plaintext/mrvplaintextheadings_p.h"

namespace {

using Kind = MRVPlainMark::Kind;

// So many headings without text between them are a table of contents.
constexpr int ContentsLength = 3;

bool isHeading(Kind kind)
{
    return kind == Kind::Part || kind == Kind::Chapter || kind == Kind::Number;
}

// Numbers alone in a paragraph are headings where they go on from 1, and not pages or years.
void keepCounting(bool isRoman, QVector<MRVPlainMark> *marks)
{
    QVector<int> counting;
    int last = 0;
    for (int i = 0; i < marks->size(); ++i) {
        MRVPlainMark &mark = (*marks)[i];
        if (mark.kind != Kind::Number || mark.isRoman != isRoman) {
            continue;
        }
        if (mark.number == last + 1 || mark.number == 1) {
            last = mark.number;
            counting.append(i);
        } else {
            mark.kind = Kind::Text;
        }
    }
    if (last < 2 && counting.size() < 2) {
        for (const int i : qAsConst(counting)) {
            (*marks)[i].kind = Kind::Text;
        }
    }
}

// A heading without a title takes the short line after it.
QVector<MRVPlainBlock> withTitles(const QVector<MRVPlainGroup> &groups,
                                  const QVector<MRVPlainMark> &marks)
{
    QVector<MRVPlainBlock> blocks;
    for (int i = 0; i < groups.size(); ++i) {
        MRVPlainBlock block;
        block.kind = marks.at(i).kind;
        const bool hasTitle = isHeading(block.kind) && !marks.at(i).isComplete
            && i + 2 < groups.size() && marks.at(i + 1).kind == Kind::Text
            && mrvIsPlainSubtitle(groups.at(i + 1), QStringLiteral(".,;:!?-\"'”’»…"));
        block.groups = hasTitle ? 2 : 1;
        i += block.groups - 1;
        blocks.append(block);
    }
    return blocks;
}

// What a table of contents repeats is the heading itself.
int endOfRun(const QVector<MRVPlainGroup> &groups, const QVector<MRVPlainBlock> &blocks,
             const QVector<int> &firstGroups, int begin)
{
    const QString first = groups.at(firstGroups.at(begin)).constFirst().text;
    int end = begin + 1;
    while (end < blocks.size() && isHeading(blocks.at(end).kind)
           && groups.at(firstGroups.at(end)).constFirst().text != first) {
        ++end;
    }
    return end;
}

void dropContents(const QVector<MRVPlainGroup> &groups, QVector<MRVPlainBlock> *blocks)
{
    QVector<int> firstGroups;
    int group = 0;
    for (const MRVPlainBlock &block : qAsConst(*blocks)) {
        firstGroups.append(group);
        group += block.groups;
    }
    QVector<MRVPlainBlock> kept;
    for (int begin = 0, end = 0; begin < blocks->size(); begin = end) {
        end = begin + 1;
        int counts[Kind::Number + 1] = {};
        if (isHeading(blocks->at(begin).kind)) {
            end = endOfRun(groups, *blocks, firstGroups, begin);
        }
        for (int i = begin; i < end; ++i) {
            ++counts[blocks->at(i).kind];
        }
        const bool isContents = counts[Kind::Part] >= ContentsLength
            || counts[Kind::Chapter] >= ContentsLength || counts[Kind::Number] >= ContentsLength;
        for (int i = begin; i < end; ++i) {
            if (isContents) {
                kept += QVector<MRVPlainBlock>(blocks->at(i).groups);
            } else {
                kept.append(blocks->at(i));
            }
        }
    }
    *blocks = kept;
}

void setLevels(QVector<MRVPlainBlock> *blocks)
{
    bool has[Kind::Number + 1] = {};
    for (const MRVPlainBlock &block : qAsConst(*blocks)) {
        has[block.kind] = true;
    }
    const int chapter = has[Kind::Part] ? 2 : 1;
    const int number = has[Kind::Chapter] ? chapter + 1 : chapter;
    for (MRVPlainBlock &block : *blocks) {
        block.level = block.kind == Kind::Part ? 1
            : block.kind == Kind::Chapter      ? chapter
            : block.kind == Kind::Number       ? number
                                               : 0;
    }
}

} // namespace

QVector<MRVPlainBlock> mrvPlainBlocks(const QVector<MRVPlainGroup> &groups)
{
    QVector<MRVPlainMark> marks;
    for (const MRVPlainGroup &group : groups) {
        marks.append(mrvPlainMark(group));
    }
    keepCounting(true, &marks);
    keepCounting(false, &marks);
    QVector<MRVPlainBlock> blocks = withTitles(groups, marks);
    dropContents(groups, &blocks);
    setLevels(&blocks);
    return blocks;
}
