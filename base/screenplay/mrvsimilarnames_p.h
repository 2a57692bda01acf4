#pragma once

#include <QHash>
#include <QString>
#include <QVector>

/**
 * Finds names that are nearly the same: one letter apart, or the same but for accents and signs.
 *
 * Each name meets only the few that share all letters but one with it, so that comparing all with
 * all takes linear time. Of very many names that are all alike, not every pair is found.
 */
class MrvSimilarNames
{
public:
    /** A pair of names. */
    struct Pair
    {
        int rare; // index of the name that was added less often, or later
        int usual;
        bool isSpelling; // they differ only in accents and signs
    };

    /** Adds a name, or counts it once more. @return its index, from 0 in the order of addition. */
    int add(const QString &name);
    QString name(int index) const { return m_names.at(index).text; }
    /** At most one pair for each name, ordered by the rare one. */
    QVector<Pair> pairs() const;

private:
    struct Name
    {
        QString text;
        QString folded;
        int count;
    };

    QVector<Name> m_names;
    QHash<QString, int> m_index;
};
