#include "screenplay/mrvscriptpagination.h"

#include "screenplay/mrvfountainsyntax_p.h"
#include "screenplay/mrvscripttypesetter_p.h"
#include "screenplay/mrvtitlepage_p.h"
#include "scriptmode/mrvscriptmode.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Element = MRVFountainElement;
using Run = MRVFountainRun;
using Line = MRVScriptLine;
using Page = MRVScriptPage;
using Pagination = MRVScriptPagination;

constexpr qreal Inch = 72;
constexpr qreal ColumnWidth = 6 * Inch;
constexpr qreal TopMargin = Inch;
constexpr qreal BottomMargin = Inch;
constexpr qreal NumberTop = Inch / 2; // of the page's number
constexpr qreal ContinuedDistance = 24; // of "CONTINUED:" from the text's edge, to its own top
constexpr qreal ContinuesDistance = 12;
constexpr qreal SceneNumberLeft = 0.75 * Inch;
constexpr qreal SceneNumberGap = 10;
constexpr qreal Tolerance = 0.1; // lengths of modes are rounded to twentieths of points
constexpr int LeastLines = 2; // on either side of a page break
constexpr int EighthsPerPage = 8;
// A paragraph of more lines is divided at any line, so that looking for sentences on each of its
// pages does not cost the square of its length.
constexpr int MostLinesWithSentences = 400;
// What is longer is no name, and neither repeated nor kept in one piece.
constexpr int MostCueLines = 4;
constexpr qreal TitleTop = 3 * Inch; // of a title page's first line in the middle
constexpr qreal TitleGap = 12; // between entries of a title page
constexpr qreal AfterTitleGap = 36;

static_assert(Pagination::TabDistance == MrvPrintedParagraph::TabDistance);

struct PaperSize
{
    Pagination::Paper paper;
    const char *name;
    qreal width;
    qreal height;
    qreal left; // margin
};

constexpr PaperSize papers[] = {
    {Pagination::Letter, "letter", 612, 792, 1.5 * Inch},
    {Pagination::A4, "a4", 595.2756, 841.8898, 1.25 * Inch},
};

const PaperSize &paperOf(Pagination::Paper paper, const MRVScriptMode &mode)
{
    const Pagination::Paper wanted = paper != Pagination::PaperOfMode ? paper
        : mode.units() == MRVUnit::Centimeter                         ? Pagination::A4
                                                                      : Pagination::Letter;
    return papers[wanted == Pagination::A4 ? 1 : 0];
}

bool isPrinted(const Element &element)
{
    return element.kind < Element::Note;
}

bool isSpoken(const Element &element)
{
    return element.kind == Element::Dialogue || element.kind == Element::Parenthetical
        || (element.kind == Element::Lyrics && !element.apart);
}

// What is placed together: a paragraph, a speech from its cue on, or two of them side by side.
struct Unit
{
    enum Kind { Plain, Speech, Beside };

    Kind kind = Plain;
    int first = 0; // index of a paragraph
    int second = 0; // of Beside, where the second speech begins
    int end = 0;
};

// Where a unit is divided: before a position of a paragraph.
struct Cut
{
    int paragraph = -1;
    int position = 0;

    bool isValid() const { return paragraph >= 0; }
};

QVector<int> sentenceEnds(const MrvPrintedParagraph &paragraph)
{
    return paragraph.lines.size() <= MostLinesWithSentences ? paragraph.sentenceEnds()
                                                            : QVector<int>();
}

// How many lines begin before a position.
int lineCountUntil(const MrvPrintedParagraph &paragraph, int position)
{
    const auto end =
        std::lower_bound(paragraph.lines.cbegin(), paragraph.lines.cend(), position,
                         [](const MrvPrintedLine &line, int value) { return line.start < value; });
    return int(end - paragraph.lines.cbegin());
}

} // namespace

/** Places the paragraphs of a script on pages. */
class MrvScriptPaginator
{
public:
    MrvScriptPaginator(const MRVFountainScript &script, const MRVScriptMode &mode,
                       const Pagination::Options &options, Pagination *result)
        : m_script(script)
        , m_options(options)
        , m_paper(paperOf(options.paper, mode))
        , m_setter(mode, ColumnWidth)
        , m_result(*result)
        , m_height(m_paper.height - TopMargin - BottomMargin)
    {
    }

    void run();

private:
    void collect();
    int collectSpeech(int cue);
    void collectPlain(int element);
    bool isBesideTheLast(int cue) const;
    void addUnit(Unit::Kind kind, int first);

    void measure();
    qreal unitHeight(const Unit &unit) const;
    qreal leastHeight(const Unit &unit) const;
    bool isLonger(const Unit &unit) const;
    qreal forcedHeight(const Unit &unit) const;
    qreal spaceBefore(const Unit &unit) const;

    void place(int index);
    void placePart(Unit unit);
    Cut bestCut(const Unit &unit, qreal height) const;
    Cut plainCut(const Unit &unit, qreal height) const;
    Cut speechCut(const Unit &unit, qreal height) const;
    Cut forcedCut(const Unit &unit, qreal height) const;
    int speechLineCount(const Unit &unit) const;
    QVector<Cut> speechCuts(const Unit &unit) const;
    qreal speechHeight(const Unit &unit, const Cut &cut) const;
    qreal moreHeight() const;
    bool hasCue(const Unit &unit) const;
    void emitUntil(Unit *unit, const Cut &cut);
    void cutBeside(Unit *unit, qreal height);

    void newPage();
    void emitUnit(const Unit &unit);
    qreal emitLines(const MrvPrintedParagraph &paragraph, int count, qreal top);
    void addLine(Line::Kind kind, const MrvPrintedParagraph &paragraph, int line, qreal top);
    void addMarginLine(Page *page, Line::Kind kind, const QString &text, qreal left, qreal width,
                       qreal top, Qt::Alignment alignment, int element = -1);
    void addMargins();
    void addSceneContinuations();
    void addSceneNumbers();
    MrvPrintedParagraph repeatedCue(const MrvPrintedParagraph &cue);
    void addTitlePages();
    qreal addTitleLines(const QVector<MrvPrintedParagraph> &paragraphs, qreal top, qreal left);

    const MRVFountainScript &m_script;
    const Pagination::Options &m_options;
    const PaperSize &m_paper;
    MrvScriptTypesetter m_setter;
    Pagination &m_result;
    const qreal m_height; // of the text
    QVector<MrvPrintedParagraph> m_paragraphs;
    QVector<Unit> m_units;
    QVector<qreal> m_needed; // by each unit, with what it keeps with, at the foot of a page
    MrvPrintedParagraph m_more;
    qreal m_y = 0; // on the page, from the text's top
    qreal m_lastAfter = 0; // the space that the last paragraph wants after it
    qreal m_space = 0; // above the next line, which counts for its element
    bool m_hasOnlyHeadings = true; // on the page so far
};

void MrvScriptPaginator::addUnit(Unit::Kind kind, int first)
{
    Unit unit;
    unit.kind = kind;
    unit.first = first;
    unit.end = m_paragraphs.size();
    unit.second = unit.end;
    m_units.append(unit);
}

void MrvScriptPaginator::collectPlain(int index)
{
    MrvPrintedParagraph paragraph = m_setter.paragraph(m_script.elements.at(index), index);
    if (paragraph.lines.isEmpty()) {
        return;
    }
    // A song apart from any speech stands apart from what is before it, too.
    const bool isSong = paragraph.kind == Element::Lyrics;
    if (isSong && !m_paragraphs.isEmpty() && m_paragraphs.constLast().kind != Element::Lyrics) {
        paragraph.before = qMax(paragraph.before, paragraph.lineHeight);
    }
    m_paragraphs.append(paragraph);
    addUnit(Unit::Plain, m_paragraphs.size() - 1);
}

bool MrvScriptPaginator::isBesideTheLast(int cue) const
{
    if (!m_script.elements.at(cue).dual || m_setter.hasHangingSpeeches() || m_units.isEmpty()
        || m_units.constLast().kind != Unit::Speech) {
        return false;
    }
    // Nothing printed stands between the two.
    int before = cue - 1;
    while (before >= 0 && !isPrinted(m_script.elements.at(before))) {
        --before;
    }
    return before >= 0 && m_script.elements.at(before).kind != Element::PageBreak
        && m_paragraphs.at(m_units.constLast().end - 1).element <= before
        && (isSpoken(m_script.elements.at(before))
            || m_script.elements.at(before).kind == Element::Character);
}

// Returns the index after the speech that begins at a cue, or at speech without one.
int MrvScriptPaginator::collectSpeech(int cue)
{
    const QVector<Element> &elements = m_script.elements;
    bool hasCue = elements.at(cue).kind == Element::Character;
    int end = cue + (hasCue ? 1 : 0);
    QVector<int> parts;
    for (; end < elements.size() && elements.at(end).kind != Element::PageBreak
         && (isSpoken(elements.at(end)) || !isPrinted(elements.at(end)));
         ++end) {
        if (isSpoken(elements.at(end))) {
            parts.append(end);
        }
    }
    const int first = m_paragraphs.size();
    if (hasCue && m_setter.hasHangingSpeeches()) {
        m_paragraphs.append(m_setter.hangingSpeech(m_script, cue, end));
        addUnit(Unit::Plain, first);
        return end;
    }
    if (hasCue) {
        const MrvPrintedParagraph paragraph = m_setter.paragraph(elements.at(cue), cue);
        if (paragraph.lines.size() > MostCueLines) {
            m_paragraphs.append(paragraph);
            m_paragraphs.last().keepsWithNext = false;
            addUnit(Unit::Plain, first);
            hasCue = false;
        } else {
            parts.prepend(cue);
        }
    }
    const int firstSpoken = m_paragraphs.size();
    const bool isBeside = hasCue && isBesideTheLast(cue);
    for (const int part : qAsConst(parts)) {
        const Element &element = elements.at(part);
        const MrvPrintedParagraph paragraph = isBeside ? m_setter.besideParagraph(element, part, 1)
                                                       : m_setter.paragraph(element, part);
        if (!paragraph.lines.isEmpty()) {
            m_paragraphs.append(paragraph);
        }
    }
    if (isBeside) {
        Unit &unit = m_units.last();
        for (int i = unit.first; i < unit.end; ++i) {
            const int element = m_paragraphs.at(i).element;
            m_paragraphs[i] = m_setter.besideParagraph(elements.at(element), element, 0);
        }
        unit.kind = Unit::Beside;
        unit.second = unit.end;
        unit.end = m_paragraphs.size();
    } else if (m_paragraphs.size() > firstSpoken) {
        addUnit(Unit::Speech, firstSpoken);
    }
    return end;
}

void MrvScriptPaginator::collect()
{
    bool breaks = false;
    for (int i = 0; i < m_script.elements.size();) {
        const Element &element = m_script.elements.at(i);
        const int count = m_units.size();
        if (element.kind == Element::PageBreak) {
            breaks = true;
            ++i;
        } else if (element.kind == Element::Character || isSpoken(element)) {
            i = collectSpeech(i);
        } else {
            if (isPrinted(element)) {
                collectPlain(i);
            }
            ++i;
        }
        if (breaks && m_units.size() > count) {
            m_paragraphs[m_units.constLast().first].breaksBefore = true;
            breaks = false;
        }
    }
}

bool MrvScriptPaginator::hasCue(const Unit &unit) const
{
    return unit.kind != Unit::Plain && m_paragraphs.at(unit.first).kind == Element::Character;
}

qreal MrvScriptPaginator::moreHeight() const
{
    return m_more.lineHeight;
}

qreal MrvScriptPaginator::unitHeight(const Unit &unit) const
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

qreal MrvScriptPaginator::spaceBefore(const Unit &unit) const
{
    return qMax(m_paragraphs.at(unit.first).before, m_lastAfter);
}

// The lines of a speech after its cue, or more than two pages have.
int MrvScriptPaginator::speechLineCount(const Unit &unit) const
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
QVector<Cut> MrvScriptPaginator::speechCuts(const Unit &unit) const
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
qreal MrvScriptPaginator::speechHeight(const Unit &unit, const Cut &cut) const
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

Cut MrvScriptPaginator::plainCut(const Unit &unit, qreal height) const
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

Cut MrvScriptPaginator::speechCut(const Unit &unit, qreal height) const
{
    const QVector<Cut> cuts = speechCuts(unit);
    for (auto cut = cuts.crbegin(); cut != cuts.crend(); ++cut) {
        if (speechHeight(unit, *cut) + moreHeight() <= height + Tolerance) {
            return *cut;
        }
    }
    return {};
}

Cut MrvScriptPaginator::bestCut(const Unit &unit, qreal height) const
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

// For what is longer than a page and has no better place.
Cut MrvScriptPaginator::forcedCut(const Unit &unit, qreal height) const
{
    qreal left = height + Tolerance - (unit.kind == Unit::Speech ? moreHeight() : 0);
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
qreal MrvScriptPaginator::leastHeight(const Unit &unit) const
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
        return qMin(whole, speechHeight(unit, cuts.constFirst()) + moreHeight());
    }
    return isLonger(unit) ? forcedHeight(unit) : whole;
}

// Whether a unit has to be divided wherever it stands.
bool MrvScriptPaginator::isLonger(const Unit &unit) const
{
    return unitHeight(unit) > m_height + Tolerance;
}

// What of such a unit has to be on its first page: the cue and a few lines.
qreal MrvScriptPaginator::forcedHeight(const Unit &unit) const
{
    const MrvPrintedParagraph &first = m_paragraphs.at(unit.first);
    const qreal cue = hasCue(unit) ? first.height() : 0;
    return qMin(m_height, cue + LeastLines * first.lineHeight + moreHeight());
}

// What keeps with the next is measured with it, from the last unit on.
void MrvScriptPaginator::measure()
{
    m_needed.resize(m_units.size());
    // What a heading before the unit needs: an empty line between it and its text is no text.
    qreal afterHeading = 0;
    for (int i = m_units.size() - 1; i >= 0; --i) {
        const Unit &unit = m_units.at(i);
        const MrvPrintedParagraph &last = m_paragraphs.at(unit.end - 1);
        const qreal least = leastHeight(unit);
        qreal withNext = least;
        if (i + 1 < m_units.size()) {
            const MrvPrintedParagraph &next = m_paragraphs.at(m_units.at(i + 1).first);
            withNext += next.breaksBefore ? 0 : qMax(last.after, next.before) + afterHeading;
        }
        withNext = qMin(withNext, m_height);
        const bool isPlain = unit.kind == Unit::Plain;
        m_needed[i] = isPlain && last.keepsWithNext ? withNext : least;
        afterHeading = isPlain && last.text.isEmpty() ? withNext : m_needed.at(i);
    }
}

void MrvScriptPaginator::newPage()
{
    Page page;
    page.number = m_result.m_pages.size() + 1;
    m_result.m_pages.append(page);
    m_y = 0;
    m_lastAfter = 0;
    m_space = 0;
    m_hasOnlyHeadings = true;
}

void MrvScriptPaginator::addLine(Line::Kind kind, const MrvPrintedParagraph &paragraph, int index,
                                 qreal top)
{
    const MrvPrintedLine &broken = paragraph.lines.at(index);
    const bool isFirst = broken.start == 0 && kind == Line::Text;
    const qreal indent = isFirst ? paragraph.firstIndent : 0;
    Line line;
    line.kind = kind;
    line.element = paragraph.element;
    line.runs = paragraph.runs(broken.start, broken.end);
    line.style = paragraph.style;
    line.left = m_paper.left + paragraph.left + indent;
    line.width = paragraph.width - indent;
    line.top = top;
    line.height = paragraph.lineHeight;
    line.tabStop = isFirst ? paragraph.tabStop : 0;
    line.alignment = paragraph.alignment == Qt::AlignJustify && broken.isLast ? Qt::AlignLeft
                                                                              : paragraph.alignment;
    line.isRightToLeft = paragraph.text.isRightToLeft();
    if (line.isRightToLeft) {
        line.left = 2 * m_paper.left + ColumnWidth - line.left - line.width;
        line.alignment = line.alignment == Qt::AlignRight ? Qt::AlignLeft
            : line.alignment == Qt::AlignHCenter          ? Qt::AlignHCenter
                                                          : Qt::AlignRight;
    }
    m_result.m_pages.last().lines.append(line);
}

// Places lines from the first on, and returns where they end, from the text's top.
qreal MrvScriptPaginator::emitLines(const MrvPrintedParagraph &paragraph, int count, qreal top)
{
    const int page = m_result.m_pages.size() - 1;
    for (int i = 0; i < count; ++i) {
        addLine(Line::Text, paragraph, i, TopMargin + top + i * paragraph.lineHeight);
    }
    Pagination::Extent &extent = m_result.m_extents[paragraph.element];
    if (extent.lines == 0) {
        extent.page = page;
    }
    extent.lines += count;
    extent.height += m_space + count * paragraph.lineHeight;
    m_space = 0;
    return top + count * paragraph.lineHeight;
}

void MrvScriptPaginator::emitUnit(const Unit &unit)
{
    const qreal start = m_y;
    qreal bottom = m_y;
    for (int i = unit.first; i < unit.end; ++i) {
        const MrvPrintedParagraph &paragraph = m_paragraphs.at(i);
        if (unit.kind == Unit::Beside && i == unit.second) {
            bottom = qMax(bottom, m_y);
            m_y = start;
        } else if (i > unit.first) {
            m_y += qMax(m_paragraphs.at(i - 1).after, paragraph.before);
        }
        m_y = emitLines(paragraph, paragraph.lines.size(), m_y);
    }
    // Of speeches side by side, the longer one counts.
    const bool firstIsLonger = bottom > m_y;
    const int shorter = firstIsLonger ? unit.second : unit.first;
    const int shorterEnd = firstIsLonger ? unit.end : unit.second;
    for (int i = shorter; unit.kind == Unit::Beside && i < shorterEnd; ++i) {
        m_result.m_extents[m_paragraphs.at(i).element].height = 0;
    }
    m_y = qMax(bottom, m_y);
    m_lastAfter = m_paragraphs.at(unit.end - 1).after;
}

MrvPrintedParagraph MrvScriptPaginator::repeatedCue(const MrvPrintedParagraph &cue)
{
    MrvPrintedParagraph result = cue;
    QString plain = cue.text;
    plain.replace(QChar(0x2019), u'\'');
    if (!plain.contains(m_options.continuedCue, Qt::CaseInsensitive)) {
        result.append(u' ' + m_options.continuedCue, {});
    }
    result.lines = m_setter.linesFrom(result, 0);
    return result;
}

// Places the part before a cut, begins a page, and leaves the rest in the unit.
void MrvScriptPaginator::emitUntil(Unit *unit, const Cut &cut)
{
    for (int i = unit->first; i < unit->end && i <= cut.paragraph; ++i) {
        const MrvPrintedParagraph &paragraph = m_paragraphs.at(i);
        const int count =
            i < cut.paragraph ? paragraph.lines.size() : lineCountUntil(paragraph, cut.position);
        if (count == 0) {
            continue;
        }
        m_y += i > unit->first ? qMax(m_paragraphs.at(i - 1).after, paragraph.before) : 0;
        MrvPrintedParagraph part = paragraph;
        if (i == cut.paragraph) {
            // A sentence may end within a line, of which the rest goes to the next page.
            part.lines.resize(count);
            MrvPrintedLine &last = part.lines.last();
            last.end = qMin(last.end, cut.position);
            while (last.end > last.start && part.text.at(last.end - 1).isSpace()) {
                --last.end;
            }
            last.isLast = true;
        }
        m_y = emitLines(part, count, m_y);
    }
    const bool isSpeech = hasCue(*unit);
    const MrvPrintedParagraph cue = m_paragraphs.at(unit->first);
    if (isSpeech) {
        MrvPrintedParagraph more = m_more;
        more.element = cue.element;
        addLine(Line::More, more, 0, TopMargin + m_y);
    }
    newPage();
    MrvPrintedParagraph &rest = m_paragraphs[cut.paragraph];
    if (cut.position > 0) {
        const int next = lineCountUntil(rest, cut.position);
        const bool isWhole = next < rest.lines.size() && rest.lines.at(next).start == cut.position;
        rest.lines = isWhole ? rest.lines.mid(next) : m_setter.linesFrom(rest, cut.position);
        rest.breaksBefore = false;
    }
    unit->first = cut.paragraph;
    if (!isSpeech) {
        return;
    }
    // The cue takes the place of the paragraph before, of which nothing is left.
    unit->first = cut.paragraph - 1;
    m_paragraphs[unit->first] = cue;
    const MrvPrintedParagraph shown = repeatedCue(cue);
    for (int i = 0; i < shown.lines.size(); ++i) {
        addLine(Line::RepeatedCue, shown, i, TopMargin + m_y);
        m_y += shown.lineHeight;
    }
    m_paragraphs[unit->first].lines.clear();
}

// Two speeches side by side that are longer than a page: each goes on on the next one.
void MrvScriptPaginator::cutBeside(Unit *unit, qreal height)
{
    const qreal start = m_y;
    const int ends[] = {unit->second, unit->end};
    for (int side = 0; side < 2; ++side) {
        m_y = start;
        for (int i = side == 0 ? unit->first : unit->second; i < ends[side]; ++i) {
            MrvPrintedParagraph &paragraph = m_paragraphs[i];
            const qreal left = height - (m_y - start) + Tolerance;
            const int least = m_y == start ? 1 : 0;
            const int count =
                qMin(paragraph.lines.size(), qMax(least, int(left / paragraph.lineHeight)));
            if (count > 0) {
                m_y = emitLines(paragraph, count, m_y);
                paragraph.lines.remove(0, count);
            }
            if (!paragraph.lines.isEmpty()) {
                break;
            }
        }
    }
    while (unit->first < unit->second && m_paragraphs.at(unit->first).lines.isEmpty()) {
        ++unit->first;
    }
    while (unit->second < unit->end && m_paragraphs.at(unit->second).lines.isEmpty()
           && unit->first == unit->second) {
        unit->first = ++unit->second;
    }
    if (unit->first < unit->end && unitHeight(*unit) > 0) {
        newPage();
    }
}

void MrvScriptPaginator::placePart(Unit unit)
{
    while (unit.first < unit.end) {
        if (unitHeight(unit) <= m_height - m_y + Tolerance) {
            emitUnit(unit);
            return;
        }
        const bool isAtHead = m_result.m_pages.constLast().lines.isEmpty()
            || m_result.m_pages.constLast().lines.constLast().kind == Line::RepeatedCue;
        Cut cut = bestCut(unit, m_height - m_y);
        // Not on any page, or not below a heading that has a page for itself.
        const bool fitsNowhere = isLonger(unit) || m_hasOnlyHeadings;
        const bool mayBeForced =
            isAtHead || (fitsNowhere && m_y + forcedHeight(unit) <= m_height + Tolerance);
        if (!cut.isValid() && !mayBeForced) {
            newPage();
            continue;
        }
        if (unit.kind == Unit::Beside) {
            cutBeside(&unit, m_height - m_y);
            continue;
        }
        cut = cut.isValid() ? cut : forcedCut(unit, m_height - m_y);
        if (!cut.isValid()) {
            emitUnit(unit); // a single line that is higher than the page
            return;
        }
        emitUntil(&unit, cut);
    }
}

void MrvScriptPaginator::place(int index)
{
    const Unit &unit = m_units.at(index);
    if (m_result.m_pages.isEmpty()
        || (m_paragraphs.at(unit.first).breaksBefore
            && !m_result.m_pages.constLast().lines.isEmpty())) {
        newPage();
    }
    if (!m_result.m_pages.constLast().lines.isEmpty()) {
        m_space = spaceBefore(unit);
        m_y += m_space;
        if (!m_hasOnlyHeadings && m_y + m_needed.at(index) > m_height + Tolerance) {
            newPage();
        }
    }
    placePart(unit);
    const MrvPrintedParagraph &last = m_paragraphs.at(unit.end - 1);
    m_hasOnlyHeadings = m_hasOnlyHeadings && unit.kind == Unit::Plain
        && (last.keepsWithNext || last.text.isEmpty());
}

void MrvScriptPaginator::addMarginLine(Page *page, Line::Kind kind, const QString &text, qreal left,
                                       qreal width, qreal top, Qt::Alignment alignment, int element)
{
    MrvPrintedParagraph paragraph = m_setter.lineLike(Element::Action, text);
    Line line;
    line.kind = kind;
    line.element = element;
    line.runs = {{text, {}, Run::Text}};
    line.style = paragraph.style;
    line.left = left;
    line.width = width;
    line.top = top;
    line.height = paragraph.lineHeight;
    line.alignment = alignment;
    page->lines.append(line);
}

void MrvScriptPaginator::addSceneContinuations()
{
    int scene = -1; // the last heading before the page
    for (int i = 0; i < m_result.m_pages.size(); ++i) {
        Page &page = m_result.m_pages[i];
        const int first = page.lines.constFirst().element;
        const bool goesOn = scene >= 0
            && (m_script.elements.at(first).kind != Element::SceneHeading || first == scene);
        if (goesOn) {
            addMarginLine(&page, Line::SceneContinued, m_options.sceneContinued, m_paper.left,
                          ColumnWidth, TopMargin - ContinuedDistance, Qt::AlignLeft, scene);
            page.lines.move(page.lines.size() - 1, 0);
            Page &before = m_result.m_pages[i - 1];
            addMarginLine(&before, Line::SceneContinues, m_options.sceneContinues, m_paper.left,
                          ColumnWidth, TopMargin + m_height + ContinuesDistance, Qt::AlignRight,
                          scene);
        }
        for (const Line &line : qAsConst(page.lines)) {
            if (line.kind == Line::Text
                && m_script.elements.at(line.element).kind == Element::SceneHeading) {
                scene = line.element;
            }
        }
    }
}

void MrvScriptPaginator::addSceneNumbers()
{
    const bool hasOwn =
        std::any_of(m_script.elements.cbegin(), m_script.elements.cend(),
                    [](const Element &element) { return !element.sceneNumber.isEmpty(); });
    const qreal right = m_paper.left + ColumnWidth + SceneNumberGap;
    int count = 0;
    int last = -1;
    for (Page &page : m_result.m_pages) {
        for (int i = 0; i < page.lines.size(); ++i) {
            const Line line = page.lines.at(i);
            if (line.kind != Line::Text || line.element == last
                || m_script.elements.at(line.element).kind != Element::SceneHeading) {
                continue;
            }
            last = line.element;
            const QString own = m_script.elements.at(last).sceneNumber;
            const QString number = hasOwn ? own : QString::number(++count);
            if (number.isEmpty()) {
                continue;
            }
            addMarginLine(&page, Line::SceneNumber, number, SceneNumberLeft,
                          m_paper.left - SceneNumberLeft - SceneNumberGap, line.top, Qt::AlignLeft,
                          last);
            page.lines.move(page.lines.size() - 1, i++);
            addMarginLine(&page, Line::SceneNumber, number, right,
                          m_paper.width - right - SceneNumberGap, line.top, Qt::AlignLeft, last);
            page.lines.move(page.lines.size() - 1, ++i);
        }
    }
}

void MrvScriptPaginator::addMargins()
{
    if (m_options.sceneNumbers) {
        addSceneNumbers();
    }
    if (m_options.sceneContinuations) {
        addSceneContinuations();
    }
    for (int i = 1; i < m_result.m_pages.size(); ++i) {
        Page &page = m_result.m_pages[i];
        addMarginLine(&page, Line::PageNumber, QString::number(page.number) + u'.', m_paper.left,
                      ColumnWidth, NumberTop, Qt::AlignRight);
        page.lines.move(page.lines.size() - 1, 0);
    }
}

// Places lines one below the other, and returns where they end.
qreal MrvScriptPaginator::addTitleLines(const QVector<MrvPrintedParagraph> &paragraphs, qreal top,
                                        qreal left)
{
    for (const MrvPrintedParagraph &paragraph : paragraphs) {
        for (const MrvPrintedLine &broken : paragraph.lines) {
            if (top + paragraph.lineHeight > TopMargin + m_height + Tolerance) {
                m_result.m_titlePages.append(Page());
                top = TopMargin;
            }
            Line line;
            line.runs = paragraph.runs(broken.start, broken.end);
            line.style = paragraph.style;
            line.left = left;
            line.width = paragraph.width;
            line.top = top;
            line.height = paragraph.lineHeight;
            line.alignment = paragraph.alignment;
            m_result.m_titlePages.last().lines.append(line);
            top += paragraph.lineHeight;
        }
        top += paragraph.after;
    }
    return top;
}

// The title in the middle, dates at the lower right, contact and all else at the lower left.
void MrvScriptPaginator::addTitlePages()
{
    QVector<MrvPrintedParagraph> middle;
    QVector<MrvPrintedParagraph> corners[2];
    for (const MRVFountainTitle &title : m_script.titles) {
        if (title.text().trimmed().isEmpty()) {
            continue;
        }
        const Qt::AlignmentFlag place = mrvTitleAlignment(title.key);
        const bool isMiddle = place == Qt::AlignHCenter;
        MRVFountainRuns runs = title.value;
        runs.prepend({mrvTitleLabel(title.key), {}, Run::Text});
        MrvPrintedParagraph paragraph =
            m_setter.titleParagraph(runs, isMiddle ? Qt::AlignHCenter : Qt::AlignLeft,
                                    isMiddle ? ColumnWidth : ColumnWidth / 2);
        const bool isTitle = title.key.compare(QLatin1String("Title"), Qt::CaseInsensitive) == 0;
        paragraph.after = isTitle ? AfterTitleGap : isMiddle ? TitleGap : 0;
        (isMiddle ? middle : corners[place == Qt::AlignRight ? 1 : 0]).append(paragraph);
    }
    if (middle.isEmpty() && corners[0].isEmpty() && corners[1].isEmpty()) {
        return;
    }
    m_result.m_titlePages.append(Page());
    const qreal end = addTitleLines(middle, TitleTop, m_paper.left);
    const int page = m_result.m_titlePages.size();
    for (int side = 0; side < 2; ++side) {
        qreal height = 0;
        for (const MrvPrintedParagraph &paragraph : qAsConst(corners[side])) {
            height += paragraph.height() + paragraph.after;
        }
        const qreal top = TopMargin + m_height - height;
        // Where the corners do not fit below the middle, they follow one after the other.
        const bool fits = top >= end && m_result.m_titlePages.size() == page;
        const qreal left = m_paper.left + (side == 1 ? ColumnWidth / 2 : 0);
        addTitleLines(corners[side], fits ? top : TopMargin + m_height, left);
    }
}

void MrvScriptPaginator::run()
{
    m_result.m_paperSize = QSizeF(m_paper.width, m_paper.height);
    m_result.m_textHeight = m_height;
    m_result.m_extents.resize(m_script.elements.size());
    m_more = m_setter.lineLike(Element::Character, m_options.more);
    addTitlePages();
    collect();
    measure();
    for (int i = 0; i < m_units.size(); ++i) {
        place(i);
    }
    m_result.m_lastHeight = m_y;
    int page = qMax(0, m_result.m_pages.size() - 1);
    for (int i = m_result.m_extents.size() - 1; i >= 0; --i) {
        Pagination::Extent &extent = m_result.m_extents[i];
        page = extent.lines > 0 ? extent.page : page;
        extent.page = page;
    }
    addMargins();
    m_result.m_styles = m_setter.styles();
}

QString MRVScriptLine::text() const
{
    QString result;
    for (const MRVFountainRun &run : runs) {
        result += run.text;
    }
    return result;
}

MRVScriptPagination::Paper MRVScriptPagination::paperNamed(const QString &name)
{
    for (const PaperSize &paper : papers) {
        if (name.compare(QLatin1String(paper.name), Qt::CaseInsensitive) == 0) {
            return paper.paper;
        }
    }
    return PaperOfMode;
}

MRVScriptPagination::MRVScriptPagination() = default;

MRVScriptPagination::MRVScriptPagination(const MRVFountainScript &script, const MRVScriptMode &mode)
    : MRVScriptPagination(script, mode, Options())
{
}

MRVScriptPagination::MRVScriptPagination(const MRVFountainScript &script, const MRVScriptMode &mode,
                                         const Options &options)
{
    MrvScriptPaginator(MrvFountain::withoutPrivateText(script), mode, options, this).run();
}

MRVScriptPagination::MRVScriptPagination(const MRVScriptPagination &other) = default;
MRVScriptPagination &MRVScriptPagination::operator=(const MRVScriptPagination &other) = default;
MRVScriptPagination::~MRVScriptPagination() = default;

int MRVScriptPagination::eighths() const
{
    if (m_pages.isEmpty()) {
        return 0;
    }
    const int last = int(std::ceil(m_lastHeight * EighthsPerPage / m_textHeight - 0.001));
    return (m_pages.size() - 1) * EighthsPerPage + qBound(1, last, EighthsPerPage);
}

int MRVScriptPagination::eighths(int first, int end) const
{
    qreal height = 0;
    for (int i = qMax(0, first); i < qMin(end, m_extents.size()); ++i) {
        height += m_extents.at(i).height;
    }
    return int(std::ceil(height * EighthsPerPage / m_textHeight - 0.001));
}

int MRVScriptPagination::pageOf(int element) const
{
    return element >= 0 && element < m_extents.size() ? m_extents.at(element).page + 1 : 1;
}

int MRVScriptPagination::lineCount(int element) const
{
    return element >= 0 && element < m_extents.size() ? m_extents.at(element).lines : 0;
}

QString MRVScriptPagination::eighthsText(int eighths)
{
    const QString part = QStringLiteral("%1/8").arg(eighths % EighthsPerPage);
    if (eighths % EighthsPerPage == 0) {
        return QString::number(eighths / EighthsPerPage);
    }
    return eighths < EighthsPerPage ? part
                                    : QString::number(eighths / EighthsPerPage) + u' ' + part;
}

QFont MRVScriptPagination::font(int style, MRVFountainRun::Emphasis emphasis, int dotsPerInch) const
{
    return style >= 0 && style < m_styles.size()
        ? mrvScriptFont(m_styles.at(style), emphasis, dotsPerInch)
        : QFont();
}

QColor MRVScriptPagination::color(int style) const
{
    const bool isSet = style >= 0 && style < m_styles.size() && m_styles.at(style).color.isValid();
    return isSet ? m_styles.at(style).color : QColor(Qt::black);
}
