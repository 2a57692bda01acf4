#include "epub/mrvpagestarts_p.h"

#include "xhtml/mrvhtmltext.h"

#include <algorithm>

namespace {

using Block = MRVPageWriter::Block;

constexpr int LargePage = 250000; // characters
constexpr int LargestPage = 1000000;

bool isBlank(QStringView markup)
{
    if (markup.contains(QLatin1String("<img"))) {
        return false;
    }
    QString text;
    bool inTag = false;
    for (const QChar c : markup) {
        inTag = c == u'<' || (inTag && c != u'>');
        if (!inTag && c != u'>') {
            text += c;
        }
    }
    return MRVHtmlText::unescaped(text).trimmed().isEmpty();
}

class PageStarts
{
public:
    PageStarts(const QVector<Block> &blocks, QStringView page, int begin, int end)
        : m_blocks(blocks)
        , m_page(page)
        , m_bounds{begin, end}
    {
        const int level = splitLevel();
        cutPagesAbove(0, [level](const Block &block) {
            return block.startsPage || (block.headingLevel > 0 && block.headingLevel <= level);
        });
        for (int lesser = level + 1; lesser <= 6; ++lesser) {
            cutPagesAbove(LargePage,
                          [lesser](const Block &block) { return block.headingLevel == lesser; });
        }
        cutPagesAbove(LargestPage, [](const Block &) { return true; });
    }

    QVector<int> starts() const { return m_bounds.mid(0, m_bounds.size() - 1); }

private:
    // The outermost level of headings that occurs more than once: a level that occurs once is the
    // book's title.
    int splitLevel() const
    {
        int counts[7] = {};
        for (const Block &block : m_blocks) {
            ++counts[block.headingLevel];
        }
        const int *level =
            std::find_if(counts + 1, counts + 7, [](int count) { return count > 1; });
        return level == counts + 7 ? 0 : int(level - counts);
    }

    // Cuts the pages above a size where a predicate holds, but not into pages smaller than half of
    // it.
    template<typename IsStart>
    void cutPagesAbove(int size, IsStart isStart)
    {
        QVector<int> bounds;
        auto block = m_blocks.begin();
        for (int i = 0; i + 1 < m_bounds.size(); ++i) {
            const int end = m_bounds.at(i + 1);
            const bool large = end - m_bounds.at(i) > size;
            bounds.append(m_bounds.at(i));
            int blankTo = m_bounds.at(i);
            for (; block != m_blocks.end() && block->offset < end; ++block) {
                if (!large || block->offset - bounds.constLast() < size / 2 || !isStart(*block)) {
                    continue;
                }
                if (!isBlank(m_page.mid(blankTo, block->offset - blankTo))) {
                    bounds.append(block->offset);
                }
                blankTo = block->offset;
            }
        }
        bounds.append(m_bounds.constLast());
        m_bounds = bounds;
    }

    const QVector<Block> &m_blocks;
    QStringView m_page;
    QVector<int> m_bounds; // the starts and the end
};

} // namespace

QVector<int> mrvPageStarts(const QVector<Block> &blocks, QStringView page, int begin, int end)
{
    return PageStarts(blocks, page, begin, end).starts();
}
