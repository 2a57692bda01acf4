#include "screenplay/mrvscriptpagination.h"

#include "screenplay/mrvfountainsyntax_p.h"
#include "screenplay/mrvpagebreaks_p.h"
#include "screenplay/mrvscriptmargins_p.h"
#include "screenplay/mrvscriptpaper_p.h"
#include "screenplay/mrvscripttitlepages_p.h"
#include "screenplay/mrvscripttypesetter_p.h"
#include "scriptmode/mrvscriptmode.h"
#include "util/mrvpapersize.h"

#include <array>
#include <cmath>

namespace {

using Line = MRVScriptLine;
using Page = MRVScriptPage;
using Pagination = MRVScriptPagination;
using Unit = MrvScriptUnit;
using Cut = MrvScriptCut;

constexpr qreal ColumnWidth = MrvScriptPaper::ColumnWidth;
constexpr qreal TopMargin = MrvScriptPaper::TopMargin;
constexpr qreal Tolerance = MrvScriptPaper::Tolerance;
constexpr int EighthsPerPage = 8;

static_assert(Pagination::TabDistance == MrvPrintedParagraph::TabDistance);

struct NamedPaper
{
    Pagination::Paper kind;
    const char *name;
    MrvScriptPaper paper;
};

constexpr NamedPaper papers[] = {
    {Pagination::Letter, "letter", {MRVPaperSize::Letter, 1.5 * MrvScriptPaper::Inch}},
    {Pagination::A4, "a4", {MRVPaperSize::A4, 1.25 * MrvScriptPaper::Inch}},
};

const MrvScriptPaper &paperOf(Pagination::Paper paper, const MRVScriptMode &mode)
{
    const Pagination::Paper wanted = paper != Pagination::PaperOfMode ? paper
        : mode.units() == MRVUnit::Centimeter                         ? Pagination::A4
                                                                      : Pagination::Letter;
    return papers[wanted == Pagination::A4 ? 1 : 0].paper;
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
        , m_more(m_setter.lineLike(MRVFountainElement::Character, options.more))
        , m_result(*result)
        , m_height(m_paper.textHeight())
        , m_collected(script, &m_setter)
        , m_paragraphs(m_collected.paragraphs())
        , m_breaks(m_paragraphs, m_setter, m_more.lineHeight, m_height)
    {
    }

    void run();

private:
    // One of two speeches side by side that are longer than a page.
    struct Side
    {
        int next; // the paragraph of which line is the first that is not on a page yet
        int line;
        int end;
        MrvPrintedParagraph cue; // without lines where the speech has none, and "(MORE)", too
        MrvPrintedParagraph more;
        qreal height; // so far
    };

    qreal spaceBefore(const Unit &unit) const;
    void place(int index);
    void placePart(Unit unit);
    void emitUntil(Unit *unit, const Cut &cut);
    bool fits(const Side &side) const;
    void emitSide(Side *side);
    void repeatCues(const std::array<Side, 2> &sides);
    void placeBeside(const Unit &unit);
    void countLonger(const Unit &unit, bool isFirst);

    void newPage();
    void emitUnit(const Unit &unit);
    qreal emitLines(const MrvPrintedParagraph &paragraph, int first, int count, qreal top);
    void emitRepeatedCue(const MrvPrintedParagraph &cue);
    void addLine(Line::Kind kind, const MrvPrintedParagraph &paragraph, int line, qreal top);
    MrvPrintedParagraph repeatedCue(const MrvPrintedParagraph &cue);

    const MRVFountainScript &m_script;
    const Pagination::Options &m_options;
    const MrvScriptPaper &m_paper;
    MrvScriptTypesetter m_setter;
    const MrvPrintedParagraph m_more;
    Pagination &m_result;
    const qreal m_height; // of the text
    MrvScriptUnits m_collected;
    QVector<MrvPrintedParagraph> &m_paragraphs;
    const MrvPageBreaks m_breaks;
    QVector<qreal> m_needed; // by each unit, with what it keeps with, at the foot of a page
    qreal m_y = 0; // on the page, from the text's top
    qreal m_lastAfter = 0; // the space that the last paragraph wants after it
    qreal m_space = 0; // above the next line, which counts for its element
    bool m_hasOnlyHeadings = true; // on the page so far
};

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

// Places some lines, and returns where they end, from the text's top.
qreal MrvScriptPaginator::emitLines(const MrvPrintedParagraph &paragraph, int first, int count,
                                    qreal top)
{
    const int page = m_result.m_pages.size() - 1;
    for (int i = 0; i < count; ++i) {
        addLine(Line::Text, paragraph, first + i, TopMargin + top + i * paragraph.lineHeight);
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
        m_y = emitLines(paragraph, 0, paragraph.lines.size(), m_y);
    }
    if (unit.kind == Unit::Beside) {
        countLonger(unit, bottom > m_y);
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

void MrvScriptPaginator::emitRepeatedCue(const MrvPrintedParagraph &cue)
{
    const MrvPrintedParagraph shown = repeatedCue(cue);
    for (int i = 0; i < shown.lines.size(); ++i) {
        addLine(Line::RepeatedCue, shown, i, TopMargin + m_y);
        m_y += shown.lineHeight;
    }
}

// Places the part before a cut, begins a page, and leaves the rest in the unit.
void MrvScriptPaginator::emitUntil(Unit *unit, const Cut &cut)
{
    for (int i = unit->first; i < unit->end && i <= cut.paragraph; ++i) {
        const MrvPrintedParagraph &paragraph = m_paragraphs.at(i);
        const int count = i < cut.paragraph
            ? paragraph.lines.size()
            : MrvPageBreaks::lineCountUntil(paragraph, cut.position);
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
        m_y = emitLines(part, 0, count, m_y);
    }
    const bool isSpeech = m_breaks.hasCue(*unit);
    const MrvPrintedParagraph cue = m_paragraphs.at(unit->first);
    if (isSpeech) {
        MrvPrintedParagraph more = m_more;
        more.element = cue.element;
        addLine(Line::More, more, 0, TopMargin + m_y);
    }
    newPage();
    MrvPrintedParagraph &rest = m_paragraphs[cut.paragraph];
    if (cut.position > 0) {
        const int next = MrvPageBreaks::lineCountUntil(rest, cut.position);
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
    emitRepeatedCue(cue);
    m_paragraphs[unit->first].lines.clear();
}

// Whether what is left of one of two speeches fits on the page.
bool MrvScriptPaginator::fits(const Side &side) const
{
    qreal y = m_y;
    for (int i = side.next; i < side.end && y <= m_height + Tolerance; ++i) {
        const MrvPrintedParagraph &paragraph = m_paragraphs.at(i);
        y += i > side.next ? qMax(m_paragraphs.at(i - 1).after, paragraph.before) : 0;
        const int done = i == side.next ? side.line : 0;
        y += (paragraph.lines.size() - done) * paragraph.lineHeight;
    }
    return y <= m_height + Tolerance;
}

// Places what fits of one of two speeches, and "(MORE)" where something is left.
void MrvScriptPaginator::emitSide(Side *side)
{
    const qreal bottom = m_height + Tolerance - (fits(*side) ? 0 : side->more.lineHeight);
    bool hasSpeech = false; // on this page, on which there has to be some
    for (bool isFirst = true; side->next < side->end; isFirst = false) {
        const MrvPrintedParagraph &paragraph = m_paragraphs.at(side->next);
        m_y += isFirst ? 0 : qMax(m_paragraphs.at(side->next - 1).after, paragraph.before);
        const bool isCue = paragraph.kind == MRVFountainElement::Character;
        const int rest = paragraph.lines.size() - side->line;
        const int count = isCue
            ? rest
            : qMin(rest, qMax(hasSpeech ? 0 : 1, int((bottom - m_y) / paragraph.lineHeight)));
        m_y = emitLines(paragraph, side->line, count, m_y);
        hasSpeech = hasSpeech || !isCue;
        side->line += count;
        if (count < rest) {
            if (!side->more.lines.isEmpty()) {
                addLine(Line::More, side->more, 0, TopMargin + m_y);
            }
            return;
        }
        side->line = 0;
        ++side->next;
    }
}

// Begins a page with the cues of those speeches of which something is left.
void MrvScriptPaginator::repeatCues(const std::array<Side, 2> &sides)
{
    newPage();
    qreal bottom = 0;
    for (const Side &side : sides) {
        if (side.next < side.end && !side.cue.lines.isEmpty()) {
            m_y = 0;
            emitRepeatedCue(side.cue);
            bottom = qMax(bottom, m_y);
        }
    }
    m_y = bottom;
}

// Two speeches side by side that are longer than a page: each goes on on the next one.
void MrvScriptPaginator::placeBeside(const Unit &unit)
{
    MRVFountainElement more;
    more.kind = MRVFountainElement::Character;
    more.runs = {{m_options.more, {}, MRVFountainRun::Text}};
    std::array<Side, 2> sides;
    sides[0] = {unit.first, 0, unit.second, {}, {}, 0};
    sides[1] = {unit.second, 0, unit.end, {}, {}, 0};
    for (int i = 0; i < 2; ++i) {
        const MrvPrintedParagraph &first = m_paragraphs.at(sides[i].next);
        if (first.kind == MRVFountainElement::Character) {
            sides[i].cue = first;
            sides[i].more = m_setter.besideParagraph(more, first.element, i);
        }
    }
    while (true) {
        const qreal start = m_y;
        qreal bottom = start;
        for (Side &side : sides) {
            m_y = start;
            emitSide(&side);
            side.height += m_y - start;
            bottom = qMax(bottom, m_y);
        }
        m_y = bottom;
        if (sides[0].next == sides[0].end && sides[1].next == sides[1].end) {
            break;
        }
        repeatCues(sides);
    }
    countLonger(unit, sides[0].height > sides[1].height);
    m_lastAfter = m_paragraphs.at(unit.end - 1).after;
}

// Of speeches side by side, the longer one counts.
void MrvScriptPaginator::countLonger(const Unit &unit, bool isFirst)
{
    const int end = isFirst ? unit.end : unit.second;
    for (int i = isFirst ? unit.second : unit.first; i < end; ++i) {
        m_result.m_extents[m_paragraphs.at(i).element].height = 0;
    }
}

qreal MrvScriptPaginator::spaceBefore(const Unit &unit) const
{
    return qMax(m_paragraphs.at(unit.first).before, m_lastAfter);
}

void MrvScriptPaginator::placePart(Unit unit)
{
    while (unit.first < unit.end) {
        if (m_breaks.unitHeight(unit) <= m_height - m_y + Tolerance) {
            emitUnit(unit);
            return;
        }
        const bool isAtHead = m_result.m_pages.constLast().lines.isEmpty()
            || m_result.m_pages.constLast().lines.constLast().kind == Line::RepeatedCue;
        Cut cut = m_breaks.bestCut(unit, m_height - m_y);
        // Not on any page, or not below a heading that has a page for itself.
        const bool fitsNowhere = m_breaks.isLonger(unit) || m_hasOnlyHeadings;
        const bool mayBeForced =
            isAtHead || (fitsNowhere && m_y + m_breaks.forcedHeight(unit) <= m_height + Tolerance);
        if (!cut.isValid() && !mayBeForced) {
            newPage();
            continue;
        }
        if (unit.kind == Unit::Beside) {
            placeBeside(unit);
            return;
        }
        cut = cut.isValid() ? cut : m_breaks.forcedCut(unit, m_height - m_y);
        if (!cut.isValid()) {
            emitUnit(unit); // a single line that is higher than the page
            return;
        }
        emitUntil(&unit, cut);
    }
}

void MrvScriptPaginator::place(int index)
{
    const Unit &unit = m_collected.units().at(index);
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

void MrvScriptPaginator::run()
{
    m_result.m_paperSize = m_paper.size;
    m_result.m_textHeight = m_height;
    m_result.m_extents.resize(m_script.elements.size());
    m_result.m_titlePages = mrvScriptTitlePages(m_script, m_paper, &m_setter);
    m_collected.collect();
    m_needed = m_breaks.neededHeights(m_collected.units());
    for (int i = 0; i < m_collected.units().size(); ++i) {
        place(i);
    }
    m_result.m_lastHeight = m_y;
    int page = qMax(0, m_result.m_pages.size() - 1);
    for (int i = m_result.m_extents.size() - 1; i >= 0; --i) {
        Pagination::Extent &extent = m_result.m_extents[i];
        page = extent.lines > 0 ? extent.page : page;
        extent.page = page;
    }
    MrvScriptMargins margins(m_script, m_paper, &m_setter, &m_result.m_pages);
    if (m_options.sceneNumbers) {
        margins.addSceneNumbers();
    }
    if (m_options.sceneContinuations) {
        margins.addSceneContinuations(m_options.sceneContinues, m_options.sceneContinued);
    }
    margins.addPageNumbers();
    m_result.m_styles = m_setter.styles();
}

MRVScriptPagination::Paper MRVScriptPagination::paperNamed(const QString &name)
{
    for (const NamedPaper &paper : papers) {
        if (name.compare(QLatin1String(paper.name), Qt::CaseInsensitive) == 0) {
            return paper.kind;
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
