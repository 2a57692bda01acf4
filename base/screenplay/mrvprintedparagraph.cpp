#include "screenplay/mrvprintedparagraph_p.h"

#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <algorithm>

namespace {

constexpr qreal CellsPerEm = 0.6; // Courier: 7.2 points of 12
constexpr qreal Tolerance = 0.01; // in cells: lengths are rounded to twentieths of points
constexpr int TabCells = 4; // MrvPrintedParagraph::TabDistance at 12 points

// Breaks lines of fixed pitch.
class CellBreaker
{
public:
    CellBreaker(const QString &text, int firstWidth, int width, int tabStop)
        : m_text(text)
        , m_finder(QTextBoundaryFinder::Line, text)
        , m_width(qMax(1, firstWidth))
        , m_nextWidth(qMax(1, width))
        , m_tabStop(tabStop)
    {
    }

    QVector<MrvPrintedLine> lines(int from);

private:
    void take(int at, uint codePoint);
    void endLine(int end, int next, bool isLast);
    bool canBreakAfter(int at);

    const QString &m_text;
    QTextBoundaryFinder m_finder;
    int m_width;
    int m_nextWidth;
    int m_tabStop;
    QVector<MrvPrintedLine> m_lines;
    int m_start = 0;
    int m_column = 0;
    int m_break = -1; // where the line can be broken last
    int m_breakColumn = 0;
};

void CellBreaker::endLine(int end, int next, bool isLast)
{
    while (end > m_start && m_text.at(end - 1).isSpace() && !isLast) {
        --end;
    }
    m_lines.append({m_start, end, isLast});
    m_start = next;
    m_break = -1;
    m_width = m_nextWidth;
}

bool CellBreaker::canBreakAfter(int at)
{
    m_finder.setPosition(at);
    // "INT./EXT." stays together, as on a typewriter.
    return m_finder.isAtBoundary() && at > 0 && m_text.at(at - 1) != u'/';
}

void CellBreaker::take(int at, uint codePoint)
{
    if (codePoint == u'\t') {
        m_column = m_column < m_tabStop && m_lines.isEmpty() ? m_tabStop
                                                             : (m_column / TabCells + 1) * TabCells;
        return;
    }
    const int cells = mrvCellCount(codePoint);
    if (!QChar::isSpace(codePoint) && m_column + cells > m_width && at > m_start) {
        const bool atBreak = m_break > m_start;
        m_column -= atBreak ? m_breakColumn : m_column;
        endLine(atBreak ? m_break : at, atBreak ? m_break : at, false);
    }
    m_column += cells;
}

QVector<MrvPrintedLine> CellBreaker::lines(int from)
{
    m_start = from;
    for (int at = from; at < m_text.size(); ++at) {
        if (at > m_start && canBreakAfter(at)) {
            m_break = at;
            m_breakColumn = m_column;
        }
        const QChar unit = m_text.at(at);
        if (unit == u'\n') {
            endLine(at, at + 1, true);
            m_column = 0;
        } else if (unit.isHighSurrogate() && at + 1 < m_text.size()) {
            take(at, QChar::surrogateToUcs4(unit, m_text.at(at + 1)));
            ++at;
        } else {
            take(at, unit.unicode());
        }
    }
    endLine(m_text.size(), m_text.size(), true);
    return m_lines;
}

QVector<MrvPrintedLine> measuredLines(const MrvPrintedParagraph &paragraph, int from,
                                      const QFont &font)
{
    constexpr qreal scale = MrvPrintedParagraph::DotsPerInch / 72.0;
    QString text = paragraph.text.mid(from);
    text.replace(u'\n', QChar(QChar::LineSeparator));
    QVector<QTextLayout::FormatRange> formats;
    for (int i = 0; i < paragraph.starts.size(); ++i) {
        const int start = qMax(0, paragraph.starts.at(i) - from);
        const int end =
            i + 1 < paragraph.starts.size() ? paragraph.starts.at(i + 1) - from : text.size();
        if (end > start) {
            QTextCharFormat format;
            format.setFontItalic(paragraph.emphasis.at(i).testFlag(MRVFountainRun::Italic));
            format.setFontWeight(paragraph.emphasis.at(i).testFlag(MRVFountainRun::Bold)
                                     ? QFont::Bold
                                     : QFont::Normal);
            formats.append({start, end - start, format});
        }
    }
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(paragraph.text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setTabStopDistance(MrvPrintedParagraph::TabDistance * scale);
    const bool isFirst = from == 0;
    if (paragraph.tabStop > 0 && isFirst) {
        option.setTabArray({paragraph.tabStop * scale});
    }
    layout.setTextOption(option);
    layout.setFormats(formats);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        const qreal indent = isFirst && line.textStart() == 0 ? paragraph.firstIndent : 0;
        line.setLineWidth(qMax(1.0, (paragraph.width - indent) * scale));
    }
    layout.endLayout();
    QVector<MrvPrintedLine> result;
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine line = layout.lineAt(i);
        int end = line.textStart() + line.textLength();
        const bool isLast = end >= text.size() || text.at(end - 1) == QChar::LineSeparator;
        while (end > line.textStart() && text.at(end - 1).isSpace()) {
            --end;
        }
        result.append({line.textStart() + from, end + from, isLast});
    }
    if (result.isEmpty()) {
        result.append({from, from, true});
    }
    return result;
}

// What is a name's beginning rather than a sentence's end, beside single letters.
bool isTitle(const QStringRef &word)
{
    static const QStringList titles =
        QStringLiteral("Mr Mrs Ms Mx Dr St Jr Sr Prof Rev Hon Lt Sgt Cpl Capt Maj Col Gen Gov Sen "
                       "Rep vs Hr Fr Frl Mme Mlle Sra Srta")
            .split(u' ');
    return std::any_of(titles.cbegin(), titles.cend(), [&word](const QString &title) {
        return word.compare(title, Qt::CaseInsensitive) == 0;
    });
}

// "Mr. Fox" is no end of a sentence, nor is "J. Smith", nor the end of a line of verse as such.
bool isSentenceEnd(const QString &text, int end)
{
    while (end > 0 && text.at(end - 1).isSpace()) {
        --end;
    }
    if (end == 0 || text.at(end - 1).isLetterOrNumber() || text.at(end - 1) == u',') {
        return false;
    }
    if (text.at(end - 1) != u'.') {
        return true;
    }
    int start = --end;
    while (start > 0 && text.at(start - 1).isLetter()) {
        --start;
    }
    return end - start != 1 && !isTitle(text.midRef(start, end - start));
}

} // namespace

int mrvCellCount(uint codePoint)
{
    switch (QChar::category(codePoint)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return 0;
    default:
        break;
    }
    switch (QChar::script(codePoint)) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Hangul:
    case QChar::Script_Bopomofo:
    case QChar::Script_Yi:
        return 2;
    default:
        break;
    }
    const bool isWide = (codePoint >= 0x3000 && codePoint <= 0x303e) // CJK punctuation
        || (codePoint >= 0xff01 && codePoint <= 0xff60) // full-width forms
        || (codePoint >= 0x1f300 && codePoint <= 0x1faff); // emoji
    return isWide ? 2 : 1;
}

void MrvPrintedParagraph::append(const QString &more, MRVFountainRun::Emphasis moreEmphasis)
{
    if (more.isEmpty()) {
        return;
    }
    if (emphasis.isEmpty() || emphasis.constLast() != moreEmphasis) {
        starts.append(text.size());
        emphasis.append(moreEmphasis);
    }
    text += more;
}

MRVFountainRuns MrvPrintedParagraph::runs(int start, int end) const
{
    MRVFountainRuns result;
    const auto first = std::upper_bound(starts.cbegin(), starts.cend(), start);
    int piece = qMax(0, int(first - starts.cbegin()) - 1);
    for (; piece < starts.size() && starts.at(piece) < end; ++piece) {
        const int from = qMax(start, starts.at(piece));
        const int to = piece + 1 < starts.size() ? qMin(end, starts.at(piece + 1)) : end;
        if (to > from) {
            result.append({text.mid(from, to - from), emphasis.at(piece), MRVFountainRun::Text});
        }
    }
    return result;
}

QVector<MrvPrintedLine> MrvPrintedParagraph::linesFrom(int start, const MrvPrintedFont &font) const
{
    if (!font.isFixedPitch) {
        return measuredLines(*this, start, font.font);
    }
    const qreal cell = font.size * CellsPerEm;
    const int cells = int(width / cell + Tolerance);
    const int firstCells = start == 0 ? int((width - firstIndent) / cell + Tolerance) : cells;
    return CellBreaker(text, firstCells, cells, int(tabStop / cell + 1 - Tolerance)).lines(start);
}

QVector<int> MrvPrintedParagraph::sentenceEnds() const
{
    QVector<int> ends;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Sentence, text);
    for (int at = finder.toNextBoundary(); at > 0 && at < text.size();
         at = finder.toNextBoundary()) {
        if (isSentenceEnd(text, at)) {
            ends.append(at);
        }
    }
    return ends;
}
