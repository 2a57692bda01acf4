#include "screenplay/mrvsimilarnames_p.h"

#include <QSet>

#include <algorithm>

namespace {

constexpr int LongestName = 40;
constexpr int ShortestName = 3;
constexpr int MostInBucket = 8;

// In capitals, without accents and apostrophes, with a blank for other signs.
QString folded(const QString &name)
{
    QString text;
    const QString apart = name.toUpper().normalized(QString::NormalizationForm_D);
    for (const QChar c : apart) {
        if (c.isLetterOrNumber() || c.isSurrogate()) {
            text += c;
        } else if (!c.isMark() && c != u'\'' && c != u'\u2019') {
            text += u' ';
        }
    }
    return text.simplified();
}

// Whether the word at a position tells one of several from the others: "2", "B", "III".
bool isOrdinal(const QString &name, int at)
{
    int start = qMin(at, name.size());
    int end = start;
    while (start > 0 && name.at(start - 1) != u' ') {
        --start;
    }
    while (end < name.size() && name.at(end) != u' ') {
        ++end;
    }
    const QStringRef word = name.midRef(start, end - start);
    const auto isDigit = [](QChar c) { return c.isDigit(); };
    const auto isRoman = [](QChar c) { return c == u'I' || c == u'V' || c == u'X'; };
    return word.size() < 2 || std::any_of(word.begin(), word.end(), isDigit)
        || std::all_of(word.begin(), word.end(), isRoman);
}

// Whether one letter more, less, or another, or two that are swapped, make one name the other.
bool isOneApart(const QString &one, const QString &other)
{
    int start = 0;
    while (start < qMin(one.size(), other.size()) && one.at(start) == other.at(start)) {
        ++start;
    }
    int ends[] = {one.size(), other.size()};
    while (ends[0] > start && ends[1] > start && one.at(ends[0] - 1) == other.at(ends[1] - 1)) {
        --ends[0];
        --ends[1];
    }
    const QStringRef left = one.midRef(start, ends[0] - start);
    const QStringRef right = other.midRef(start, ends[1] - start);
    const bool isSwapped = left.size() == 2 && right.size() == 2 && left.at(0) == right.at(1)
        && left.at(1) == right.at(0);
    return (isSwapped || (left.size() < 2 && right.size() < 2)) && !isOrdinal(one, start)
        && !isOrdinal(other, start);
}

QStringList keysOf(const QString &name)
{
    QStringList keys{name};
    for (int i = 0; i < name.size(); ++i) {
        keys.append(QString(name).remove(i, 1));
    }
    keys.removeDuplicates();
    return keys;
}

} // namespace

int MrvSimilarNames::add(const QString &name)
{
    const auto known = m_index.constFind(name);
    if (known != m_index.constEnd()) {
        ++m_names[*known].count;
        return *known;
    }
    m_index.insert(name, m_names.size());
    m_names.append({name, folded(name), 1});
    return m_names.size() - 1;
}

QVector<MrvSimilarNames::Pair> MrvSimilarNames::pairs() const
{
    QHash<QString, QVector<int>> buckets;
    QVector<Pair> pairs;
    QSet<int> reported;
    for (int i = 0; i < m_names.size(); ++i) {
        const QString own = m_names.at(i).folded;
        if (own.size() < ShortestName || own.size() > LongestName) {
            continue;
        }
        const QStringList keys = keysOf(own);
        for (const QString &key : keys) {
            QVector<int> &bucket = buckets[key];
            for (const int other : qAsConst(bucket)) {
                const bool isSpelling = m_names.at(other).folded == own;
                const int rare = m_names.at(i).count > m_names.at(other).count ? other : i;
                if (!reported.contains(rare)
                    && (isSpelling || isOneApart(m_names.at(other).folded, own))) {
                    reported.insert(rare);
                    pairs.append({rare, rare == i ? other : i, isSpelling});
                }
            }
            if (bucket.size() < MostInBucket) {
                bucket.append(i);
            }
        }
    }
    std::sort(pairs.begin(), pairs.end(),
              [](const Pair &one, const Pair &other) { return one.rare < other.rare; });
    return pairs;
}
