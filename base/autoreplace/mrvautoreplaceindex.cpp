#include "autoreplace/mrvautoreplaceindex_p.h"

#include <algorithm>

/** Matches from m_order that share their last @c depth characters, to become a node. */
struct MRVAutoReplaceIndex::Range
{
    std::size_t from;
    std::size_t to;
    QChar key;
};

namespace {

QChar fromEnd(const QString &text, int distance)
{
    return text.at(text.size() - 1 - distance);
}

int commonEnd(const QString &a, const QString &b)
{
    const int shorter = qMin(a.size(), b.size());
    int length = 0;
    while (length < shorter && fromEnd(a, length) == fromEnd(b, length)) {
        ++length;
    }
    return length;
}

bool isLessBackwards(const QString &a, const QString &b)
{
    const int common = commonEnd(a, b);
    if (common == a.size() || common == b.size()) {
        return a.size() < b.size();
    }
    return fromEnd(a, common) < fromEnd(b, common);
}

} // namespace

MRVAutoReplaceIndex::MRVAutoReplaceIndex(const QList<MRVAutoReplace> &entries)
    : m_entries(entries)
{
    for (int i = 0; i < m_entries.size(); ++i) {
        if (m_entries.at(i).enabled && !m_entries.at(i).match.isEmpty()) {
            m_order.push_back(i);
        }
    }
    // Stable: of equal matches the first in the list stays first, and only it can win.
    std::stable_sort(m_order.begin(), m_order.end(), [this](int a, int b) {
        return isLessBackwards(m_entries.at(a).match, m_entries.at(b).match);
    });
    const auto isSame = [this](int a, int b) {
        return m_entries.at(a).match == m_entries.at(b).match;
    };
    m_order.erase(std::unique(m_order.begin(), m_order.end(), isSame), m_order.end());

    // Breadth first, so that the children of a node are adjacent.
    std::vector<Range> ranges{{0, m_order.size(), QChar()}};
    for (std::size_t i = 0; i < ranges.size() && !m_order.empty(); ++i) {
        const Range range = ranges[i];
        addNode(range, &ranges);
    }
}

void MRVAutoReplaceIndex::addNode(const Range &range, std::vector<Range> *pending)
{
    const auto matchOf = [this](std::size_t i) -> const QString & {
        return m_entries.at(m_order[i]).match;
    };
    const QString &first = matchOf(range.from);
    // The root stands for the empty text, whatever the matches have in common.
    const int depth = m_nodes.empty() ? 0 : commonEnd(first, matchOf(range.to - 1));
    Node node{depth, -1, m_order[range.from], int(pending->size()), 0};
    std::size_t from = range.from;
    if (first.size() == depth) {
        node.entry = m_order[from++]; // the shortest match comes first
    }
    while (from < range.to) {
        const QChar key = fromEnd(matchOf(from), depth);
        std::size_t to = from + 1;
        while (to < range.to && fromEnd(matchOf(to), depth) == key) {
            ++to;
        }
        pending->push_back({from, to, key});
        ++node.childCount;
        from = to;
    }
    m_nodes.push_back(node);
    m_keys.push_back(range.key);
}

int MRVAutoReplaceIndex::childOf(const Node &node, QChar key) const
{
    const auto begin = m_keys.begin() + node.firstChild;
    const auto end = begin + node.childCount;
    const auto it = std::lower_bound(begin, end, key);
    return it != end && *it == key ? int(it - m_keys.begin()) : -1;
}

// The first character is known to match; the others are those that all matches below share.
bool MRVAutoReplaceIndex::endsAlike(const QString &text, const Node &node, int from) const
{
    if (node.depth > text.size()) {
        return false;
    }
    if (node.depth - from == 1) {
        return true;
    }
    const QString &sample = m_entries.at(node.sample).match;
    const int length = node.depth - from - 1;
    return text.midRef(text.size() - node.depth, length)
        == sample.midRef(sample.size() - node.depth, length);
}

int MRVAutoReplaceIndex::find(const QString &text) const
{
    int best = -1;
    if (m_nodes.empty()) {
        return best;
    }
    const Node *node = &m_nodes.front();
    while (node->depth < text.size()) {
        const int child = childOf(*node, fromEnd(text, node->depth));
        if (child < 0 || !endsAlike(text, m_nodes[std::size_t(child)], node->depth)) {
            break;
        }
        node = &m_nodes[std::size_t(child)];
        if (node->entry >= 0) {
            best = node->entry;
        }
    }
    return best;
}
