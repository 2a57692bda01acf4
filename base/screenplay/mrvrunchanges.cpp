#include "screenplay/mrvrunchanges_p.h"

#include <algorithm>

namespace {

/** A text as words, and single characters between them. */
class Words
{
public:
    explicit Words(const MrvRunUnits &units)
        : m_units(units)
    {
        for (int at = 0; at < units.size(); ++at) {
            if (at == 0 || !isOneWord(units.at(at - 1), units.at(at))) {
                m_starts.append(at);
            }
        }
        m_starts.append(units.size());
    }

    int count() const { return m_starts.size() - 1; }
    /** Where a word begins; for count(), the end of the text. */
    int start(int word) const { return m_starts.at(word); }
    bool isSame(int word, const Words &other, int otherWord) const
    {
        const auto begin = m_units.cbegin();
        const auto otherBegin = other.m_units.cbegin();
        return std::equal(begin + start(word), begin + start(word + 1),
                          otherBegin + other.start(otherWord),
                          otherBegin + other.start(otherWord + 1));
    }

private:
    static bool isInWord(QChar c) { return c.isLetterOrNumber() || c.isMark(); }
    static bool isOneWord(const MrvRunUnit &left, const MrvRunUnit &right)
    {
        return left.kind == right.kind
            && ((isInWord(left.character) && isInWord(right.character))
                || (left.character.isHighSurrogate() && right.character.isLowSurrogate()));
    }

    const MrvRunUnits &m_units;
    QVector<int> m_starts;
};

/** Goes through two texts side by side. */
class Comparison
{
public:
    Comparison(const MrvRunUnits &before, const MrvRunUnits &after)
        : m_before(before)
        , m_after(after)
    {
    }

    QVector<MrvRunChange> changes()
    {
        QVector<MrvRunChange> changes;
        int i = 0;
        int j = 0;
        while (i < m_before.count() || j < m_after.count()) {
            if (isSame(i, j)) {
                ++i;
                ++j;
                continue;
            }
            const QPair<int, int> passed = toAgreement(i, j);
            changes.append({m_before.start(i), m_before.start(i + passed.first), m_after.start(j),
                            m_after.start(j + passed.second)});
            i += passed.first;
            j += passed.second;
        }
        return changes;
    }

private:
    bool isSame(int i, int j) const
    {
        return i < m_before.count() && j < m_after.count() && m_before.isSame(i, m_after, j);
    }
    bool areAtEnd(int i, int j) const { return i == m_before.count() && j == m_after.count(); }

    // Whether both go on alike. A single word is enough where as many words came as went.
    bool agree(int i, int j, bool isReplaced) const
    {
        return areAtEnd(i, j)
            || (isSame(i, j) && (isReplaced || areAtEnd(i + 1, j + 1) || isSame(i + 1, j + 1)));
    }

    // How many words of both are to be passed to where they agree again.
    QPair<int, int> toAgreement(int i, int j) const
    {
        constexpr int Farthest = 48;
        for (int sum = 1; sum <= Farthest; ++sum) {
            for (int passed = 0; passed <= sum; ++passed) {
                if (i + passed <= m_before.count() && j + sum - passed <= m_after.count()
                    && agree(i + passed, j + sum - passed, 2 * passed == sum)) {
                    return {passed, sum - passed};
                }
            }
        }
        int left = m_before.count();
        int newLeft = m_after.count();
        while (left > i && newLeft > j && isSame(left - 1, newLeft - 1)) {
            --left;
            --newLeft;
        }
        return {left - i, newLeft - j};
    }

    const Words m_before;
    const Words m_after;
};

} // namespace

MrvRunUnits mrvRunUnits(const MRVFountainRuns &runs)
{
    MrvRunUnits units;
    for (const MRVFountainRun &run : runs) {
        for (const QChar character : run.text) {
            units.append({character, run.kind, run.emphasis});
        }
    }
    return units;
}

QVector<MrvRunChange> mrvRunChanges(const MrvRunUnits &before, const MrvRunUnits &after)
{
    return Comparison(before, after).changes();
}
