#include "screenplay/mrvpagebreaks_p.h"

#include "screenplay/mrvscriptpaper_p.h"
#include "screenplay/mrvscripttypesetter_p.h"

#include <algorithm>

namespace {

using Element = MRVFountainElement;
using Unit = MrvScriptUnit;
using Cut = MrvScriptCut;

constexpr qreal Tolerance = MrvScriptPaper::Tolerance;
constexpr int LeastLines = 2; // on either side of a page break
// A paragraph of more lines is divided at any line, so that looking for sentences on each of its
// pages does not cost the square of its length.
constexpr int MostLinesWithSentences = 400;

QVector<int> sentenceEnds(const MrvPrintedParagraph &paragraph)
{
    return paragraph.lines.size() <= MostLinesWithSentences ? paragraph.sentenceEnds()
                                                            : QVector<int>();
}

} // namespace

MrvPageBreaks::MrvPageBreaks(const QVector<MrvPrintedParagraph> &paragraphs,
                             const MrvScriptTypesetter &setter, qreal moreHeight, qreal pageHeight)
    : m_paragraphs(paragraphs)
    , m_setter(setter)
    , m_moreHeight(moreHeight)
    , m_height(pageHeight)
{
}

int MrvPageBreaks::lineCountUntil(const MrvPrintedParagraph &paragraph, int position)
{
    const auto end =
        std::lower_bound(paragraph.lines.cbegin(), paragraph.lines.cend(), position,
                         [](const MrvPrintedLine &line, int value) { return line.start < value; });
    return int(end - paragraph.lines.cbegin());
}

bool MrvPageBreaks::hasCue(const Unit &unit) const
{
    return unit.kind != Unit::Plain && m_paragraphs.at(unit.first).kind == Element::Character;
}

qreal MrvPageBreaks::unitHeight(const Unit &unit) const
{
    qreal height = 0;
    qreal firstHeight = 0;
    // How much more than a page it is makes no difference.
    for (int i = unit.first; i < unit.end && qMax(height, firstHeight) <= 2 * m_height; ++i) {
        const MrvPrintedParagraph &paragraph = m_paragraphs.at(i);
        if (unit.kind == Unit::Beside && i == unit.second) {
            firstHeight = height;
            height = 0;
        }
        height += paragraph.height();
        if (i + 1 < unit.end && i + 1 != unit.second) {
            height += qMax(paragraph.after, m_paragraphs.at(i + 1).before);
        }
    }
    return qMax(height, firstHeight);
}

// The lines of a speech after its cue, or more than two pages have.
int MrvPageBreaks::speechLineCount(const Unit &unit) const
{
    int count = 0;
    qreal height = 0;
    for (int i = unit.first + (hasCue(unit) ? 1 : 0); i < unit.end && height <= 2 * m_height; ++i) {
        count += m_paragraphs.at(i).lines.size();
        height += m_paragraphs.at(i).height();
    }
    return count;
}

// Where a speech may be divided, in its order.
QVector<Cut> MrvPageBreaks::speechCuts(const Unit &unit) const
{
    QVector<Cut> cuts;
    const int total = speechLineCount(unit);
    if (total < 2 * LeastLines) {
        return cuts;
    }
    int before = 0;
    qreal height = 0;
    for (int i = unit.first + (hasCue(unit) ? 1 : 0); i < unit.end && height < m_height; ++i) {
        const MrvPrintedParagraph &paragraph = m_paragraphs.at(i);
        height += paragraph.height();
        const auto add = [&](int position, int lines) {
            if (before + lines < LeastLines) {
                return;
            }
            const bool isEnd = position == paragraph.text.size();
            // The rest has at least the lines after that in which the sentence ends.
            int rest = total - before - lines;
            if (rest < LeastLines && !isEnd) {
                rest += m_setter.linesFrom(paragraph, position).size()
                    - (paragraph.lines.size() - lines);
            }
            if (rest >= LeastLines) {
                cuts.append(isEnd ? Cut{i + 1, 0} : Cut{i, position});
            }
        };
        if (paragraph.kind != Element::Parenthetical) {
            for (const int position : sentenceEnds(paragraph)) {
                add(position, lineCountUntil(paragraph, position));
            }
            if (i + 1 < unit.end) {
                add(paragraph.text.size(), paragraph.lines.size());
            }
        }
        before += paragraph.lines.size();
    }
    return cuts;
}

// The height of a speech up to a cut.
qreal MrvPageBreaks::speechHeight(const Unit &unit, const Cut &cut) const
{
    qreal height = 0;
    for (int i = unit.first; i < unit.end && i <= cut.paragraph; ++i) {
        const MrvPrintedParagraph &paragraph = m_paragraphs.at(i);
        const int lines =
            i < cut.paragraph ? paragraph.lines.size() : lineCountUntil(paragraph, cut.position);
        if (lines > 0 && i > unit.first) {
            height += qMax(m_paragraphs.at(i - 1).after, paragraph.before);
        }
        height += lines * paragraph.lineHeight;
    }
    return height;
}

Cut MrvPageBreaks::plainCut(const Unit &unit, qreal height) const
{
    const MrvPrintedParagraph &paragraph = m_paragraphs.at(unit.first);
    const int count = paragraph.lines.size();
    const int fitting = qMin(int((height + Tolerance) / paragraph.lineHeight), count - LeastLines);
    if (fitting < LeastLines || paragraph.keepsWithNext) {
        return {};
    }
    const QVector<int> ends = sentenceEnds(paragraph);
    for (auto end = ends.crbegin(); end != ends.crend(); ++end) {
        const int lines = lineCountUntil(paragraph, *end);
        if (lines < LeastLines) {
            break;
        }
        if (lines <= fitting && m_setter.linesFrom(paragraph, *end).size() >= LeastLines) {
            return {unit.first, *end};
        }
    }
    return {unit.first, paragraph.lines.at(fitting).start};
}

Cut MrvPageBreaks::speechCut(const Unit &unit, qreal height) const
{
    const QVector<Cut> cuts = speechCuts(unit);
    for (auto cut = cuts.crbegin(); cut != cuts.crend(); ++cut) {
        if (speechHeight(unit, *cut) + m_moreHeight <= height + Tolerance) {
            return *cut;
        }
    }
    return {};
}

Cut MrvPageBreaks::bestCut(const Unit &unit, qreal height) const
{
    switch (unit.kind) {
    case Unit::Plain:
        return plainCut(unit, height);
    case Unit::Speech:
        return speechCut(unit, height);
    case Unit::Beside:
        break;
    }
    return {};
}

Cut MrvPageBreaks::forcedCut(const Unit &unit, qreal height) const
{
    qreal left = height + Tolerance - (unit.kind == Unit::Speech ? m_moreHeight : 0);
    const int body = unit.first + (hasCue(unit) ? 1 : 0);
    Cut cut;
    for (int i = unit.first; i < unit.end; ++i) {
        const MrvPrintedParagraph &paragraph = m_paragraphs.at(i);
        left -= i > unit.first ? qMax(m_paragraphs.at(i - 1).after, paragraph.before) : 0;
        // At least a line is placed, however small the page is.
        const int least = i == body ? 1 : 0;
        const int lines = qBound(least, int(left / paragraph.lineHeight), paragraph.lines.size());
        if (lines < paragraph.lines.size() && i >= body) {
            return {i, paragraph.lines.at(lines).start};
        }
        left -= lines * paragraph.lineHeight;
    }
    return cut;
}

// The smallest part of a unit that may stand at the foot of a page.
qreal MrvPageBreaks::leastHeight(const Unit &unit) const
{
    const qreal whole = unitHeight(unit);
    if (unit.kind == Unit::Plain) {
        const MrvPrintedParagraph &paragraph = m_paragraphs.at(unit.first);
        return paragraph.lines.size() < 2 * LeastLines || paragraph.keepsWithNext
            ? whole
            : LeastLines * paragraph.lineHeight;
    }
    const QVector<Cut> cuts = unit.kind == Unit::Speech ? speechCuts(unit) : QVector<Cut>();
    if (!cuts.isEmpty()) {
        return qMin(whole, speechHeight(unit, cuts.constFirst()) + m_moreHeight);
    }
    return isLonger(unit) ? forcedHeight(unit) : whole;
}

bool MrvPageBreaks::isLonger(const Unit &unit) const
{
    return unitHeight(unit) > m_height + Tolerance;
}

qreal MrvPageBreaks::forcedHeight(const Unit &unit) const
{
    const MrvPrintedParagraph &first = m_paragraphs.at(unit.first);
    qreal cue = hasCue(unit) ? first.height() : 0;
    if (unit.kind == Unit::Beside) {
        cue = qMax(cue, m_paragraphs.at(unit.second).height());
    }
    return qMin(m_height, cue + LeastLines * first.lineHeight + m_moreHeight);
}

// What keeps with the next is measured with it, from the last unit on.
QVector<qreal> MrvPageBreaks::neededHeights(const QVector<Unit> &units) const
{
    QVector<qreal> result(units.size());
    // What a heading before the unit needs: an empty line between it and its text is no text.
    qreal afterHeading = 0;
    for (int i = units.size() - 1; i >= 0; --i) {
        const Unit &unit = units.at(i);
        const MrvPrintedParagraph &last = m_paragraphs.at(unit.end - 1);
        const qreal least = leastHeight(unit);
        qreal withNext = least;
        if (i + 1 < units.size()) {
            const MrvPrintedParagraph &next = m_paragraphs.at(units.at(i + 1).first);
            withNext += next.breaksBefore ? 0 : qMax(last.after, next.before) + afterHeading;
        }
        withNext = qMin(withNext, m_height);
        const bool isPlain = unit.kind == Unit::Plain;
        result[i] = isPlain && last.keepsWithNext ? withNext : least;
        afterHeading = isPlain && last.text.isEmpty() ? withNext : result.at(i);
    }
    return result;
}
