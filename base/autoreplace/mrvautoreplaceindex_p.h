#pragma once

#include "autoreplace/mrvautoreplace.h"

#include <QList>
#include <QString>

#include <vector>

/**
 * Finds the longest match that ends a text, in a time that grows with the match and not with the
 * number of entries: a radix tree over the enabled matches, read backwards.
 *
 * It keeps a shared copy of the list. So a list that is changed is detached from it first, and
 * holdsFor() tells that in one comparison.
 */
class MRVAutoReplaceIndex
{
public:
    explicit MRVAutoReplaceIndex(const QList<MRVAutoReplace> &entries);

    bool holdsFor(const QList<MRVAutoReplace> &entries) const
    {
        return m_entries.isSharedWith(entries);
    }
    /** Number of the entry in the list; -1 if none applies. */
    int find(const QString &text) const;

private:
    struct Node
    {
        int depth; // characters from the end that all matches below have in common
        int entry; // whose match has this very length; -1 if none
        int sample; // any entry below, to read these characters from
        int firstChild;
        int childCount; // ascending by key
    };
    struct Range;

    void addNode(const Range &range, std::vector<Range> *pending);
    int childOf(const Node &node, QChar key) const;
    bool endsAlike(const QString &text, const Node &node, int from) const;

    QList<MRVAutoReplace> m_entries;
    std::vector<int> m_order; // enabled entries, ascending by the match read backwards
    std::vector<Node> m_nodes; // the root first
    std::vector<QChar> m_keys; // by node: its first character after those of its parent
};
