#include "epub/mrvepubpages_p.h"

#include "epub/mrvepubformats_p.h"
#include "epub/mrvepubsections_p.h"

#include <QTextFrame>

#include <algorithm>

namespace {

constexpr int LargestPage = 1000000; // characters

} // namespace

MRVEPubPages::MRVEPubPages(const MRVDocumentFlow &flow, MRVEPubFormats *formats,
                           const QString &title, const MRVEPubOptions &options)
    : m_flow(flow)
    , m_bounds{0, flow.count()}
{
    readBlocks(formats);
    findLevels(options.pageDepth);
    if (options.areChapters) {
        keepChapter(title);
    }
    cutAtHeadings();
    for (int level = m_lastLevel + 1; level <= 6; ++level) {
        cutPagesAbove(options.largePage,
                      [level](const Block &block) { return block.level == level; });
    }
    cutPagesAbove(LargestPage, [](const Block &) { return true; });
}

void MRVEPubPages::readBlocks(MRVEPubFormats *formats)
{
    auto frame = m_flow.frames.begin();
    bool breaks = false;
    for (int i = 0; i < m_flow.count(); ++i) {
        while (frame != m_flow.frames.end() && frame->begin < i) {
            ++frame; // inside of the one before
        }
        if (frame != m_flow.frames.end() && frame->begin == i) {
            const auto policy = frame->frame->frameFormat().pageBreakPolicy();
            const bool isBefore = policy & QTextFormat::PageBreak_AlwaysBefore;
            m_blocks.append({i, 0, breaks || isBefore, false});
            breaks = policy & QTextFormat::PageBreak_AlwaysAfter;
            i = frame->end - 1;
            continue;
        }
        const MRVFlowParagraph &paragraph = m_flow.paragraphs.at(i);
        const MRVEPubParagraphFormat &format = formats->paragraph(paragraph.format);
        m_blocks.append(
            {i, paragraph.headingLevel, breaks || format.breaksBefore, m_flow.isBlank(i)});
        breaks = format.breaksAfter;
    }
}

void MRVEPubPages::findLevels(int depth)
{
    int counts[7] = {};
    int parts[7] = {};
    int others[7] = {}; // front and back matter
    for (int i = 0; i < m_blocks.size(); ++i) {
        const Block &block = m_blocks.at(i);
        ++counts[block.level];
        if (block.level > 0 && isNamed(block, false)) {
            ++others[block.level];
            continue;
        }
        int next = i + 1;
        while (next < m_blocks.size() && m_blocks.at(next).isBlank) {
            ++next;
        }
        const bool isPart = next < m_blocks.size() && m_blocks.at(next).level > block.level;
        if (block.level > 0 && (isPart || isNamed(block, true))) {
            ++parts[block.level];
        }
    }
    const auto repeated = [&counts, depth](int from) {
        for (int level = from; level <= qMin(depth, 6); ++level) {
            if (counts[level] > 1) {
                return level;
            }
        }
        return 0;
    };
    m_firstLevel = repeated(1); // a level that occurs once is the book's title
    m_lastLevel = m_firstLevel;
    const int chapters = m_firstLevel > 0 ? repeated(m_firstLevel + 1) : 0;
    if (chapters > 0 && 2 * parts[m_firstLevel] > counts[m_firstLevel] - others[m_firstLevel]) {
        m_lastLevel = chapters;
    }
}

// Whether a heading says that it is a part, or front or back matter.
bool MRVEPubPages::isNamed(const Block &heading, bool isPart) const
{
    const MRVEPubSection *section = mrvEPubSectionOf(
        m_flow.textOf(m_flow.paragraphs.at(heading.first)).toString().simplified());
    return section && qstrcmp(section->type, "chapter") != 0
        && (qstrcmp(section->type, "part") == 0) == isPart;
}

// A document with one outermost heading is the chapter that it names, or the part.
void MRVEPubPages::keepChapter(const QString &title)
{
    const auto first = std::min_element(
        m_blocks.begin(), m_blocks.end(), [](const Block &one, const Block &other) {
            return one.level > 0 && (other.level == 0 || one.level < other.level);
        });
    if (first == m_blocks.end() || first->level == 0 || first->level == m_firstLevel) {
        return;
    }
    const QString text = m_flow.textOf(m_flow.paragraphs.at(first->first)).toString().simplified();
    const bool hasChapters =
        std::any_of(m_blocks.begin(), m_blocks.end(), [this](const Block &block) {
            return block.level > 0 && block.level == m_firstLevel
                && mrvEPubSectionOf(
                       m_flow.textOf(m_flow.paragraphs.at(block.first)).toString().simplified());
        });
    const bool isPart = isNamed(*first, true);
    if (text.compare(title, Qt::CaseInsensitive) != 0 && (isPart || !hasChapters)) {
        m_lastLevel = isPart && m_firstLevel > 0 ? m_firstLevel : first->level;
        m_firstLevel = first->level;
    }
}

void MRVEPubPages::cutAtHeadings()
{
    QVector<int> bounds{0};
    bool isEmpty = true; // what the present page shows
    int innermost = 0; // of its headings; 7: there is text, too
    for (const Block &block : qAsConst(m_blocks)) {
        const bool isHeading = block.level > 0 && block.level <= m_lastLevel;
        const bool isOfPart = innermost >= m_firstLevel && innermost < block.level;
        if (!isEmpty && (block.startsPage || (isHeading && !isOfPart))) {
            bounds.append(block.first);
            isEmpty = true;
            innermost = 0;
        }
        if (!block.isBlank) {
            isEmpty = false;
            innermost = block.level > 0 ? qMax(innermost, block.level) : 7;
        }
    }
    bounds.append(m_flow.count());
    m_bounds = bounds;
}

int MRVEPubPages::lengthOf(int begin, int end) const
{
    return m_flow.paragraphs.at(end).position - m_flow.paragraphs.at(begin).position;
}

// Cuts the pages above a size where a predicate holds, but not into pages smaller than half of it.
template<typename IsStart>
void MRVEPubPages::cutPagesAbove(int size, IsStart isStart)
{
    QVector<int> bounds;
    auto block = m_blocks.constBegin();
    for (int i = 0; i + 1 < m_bounds.size(); ++i) {
        const int end = m_bounds.at(i + 1);
        const bool isLarge = lengthOf(m_bounds.at(i), end) > size;
        bounds.append(m_bounds.at(i));
        for (; block != m_blocks.constEnd() && block->first < end; ++block) {
            if (isLarge && lengthOf(bounds.constLast(), block->first) >= size / 2
                && isStart(*block)) {
                bounds.append(block->first);
            }
        }
    }
    bounds.append(m_bounds.constLast());
    m_bounds = bounds;
}
