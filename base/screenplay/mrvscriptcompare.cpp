#include "screenplay/mrvscriptcompare.h"

#include "screenplay/mrvfountainsyntax_p.h"

#include <QHash>

#include <algorithm>

namespace {

constexpr int DeepestLevel = 8;
constexpr int Several = -1; // places of an item

// What is compared: equal items have equal numbers, and items of one kind can be changed into each
// other.
struct Item
{
    int number;
    int kind;
};

struct Span
{
    int begin;
    int end;
    int size() const { return end - begin; }
};

class Comparison
{
public:
    Comparison(const QVector<Item> &before, const QVector<Item> &after)
        : m_before(before)
        , m_after(after)
    {
    }

    QVector<MRVScriptChange> changes()
    {
        compare({0, m_before.size()}, {0, m_after.size()}, 0);
        return m_changes;
    }

private:
    void compare(Span before, Span after, int level);
    QVector<MRVScriptChange> anchors(const Span &before, const Span &after) const;
    void addGap(Span before, Span after);

    const QVector<Item> &m_before;
    const QVector<Item> &m_after;
    QVector<MRVScriptChange> m_changes;
};

// The longest sequence of pairs, ordered by the first of each, whose second ones ascend, too.
QVector<MRVScriptChange> longestAscending(const QVector<MRVScriptChange> &pairs)
{
    QVector<int> tails; // indexes of the pairs that end the best sequences of each length
    QVector<int> previous(pairs.size(), -1);
    for (int i = 0; i < pairs.size(); ++i) {
        const auto place =
            std::lower_bound(tails.begin(), tails.end(), i, [&pairs](int tail, int pair) {
                return pairs.at(tail).after < pairs.at(pair).after;
            });
        previous[i] = place == tails.begin() ? -1 : *(place - 1);
        if (place == tails.end()) {
            tails.append(i);
        } else {
            *place = i;
        }
    }
    QVector<MRVScriptChange> best;
    for (int i = tails.isEmpty() ? -1 : tails.constLast(); i >= 0; i = previous.at(i)) {
        best.append(pairs.at(i));
    }
    std::reverse(best.begin(), best.end());
    return best;
}

// Items that occur once on both sides, as far as they are in the same order.
QVector<MRVScriptChange> Comparison::anchors(const Span &before, const Span &after) const
{
    const auto places = [](const QVector<Item> &items, const Span &span) {
        QHash<int, int> found;
        for (int i = span.begin; i < span.end; ++i) {
            const int number = items.at(i).number;
            found.insert(number, found.contains(number) ? Several : i);
        }
        return found;
    };
    const QHash<int, int> inBefore = places(m_before, before);
    const QHash<int, int> inAfter = places(m_after, after);
    QVector<MRVScriptChange> pairs;
    for (int i = before.begin; i < before.end; ++i) {
        const int number = m_before.at(i).number;
        const int other = inAfter.value(number, Several);
        if (other != Several && inBefore.value(number) != Several) {
            pairs.append({i, other});
        }
    }
    return longestAscending(pairs);
}

void Comparison::compare(Span before, Span after, int level)
{
    const auto isEqual = [this](int one, int other) {
        return m_before.at(one).number == m_after.at(other).number;
    };
    while (before.size() > 0 && after.size() > 0 && isEqual(before.begin, after.begin)) {
        ++before.begin;
        ++after.begin;
    }
    while (before.size() > 0 && after.size() > 0 && isEqual(before.end - 1, after.end - 1)) {
        --before.end;
        --after.end;
    }
    QVector<MRVScriptChange> pairs;
    if (before.size() > 0 && after.size() > 0 && level < DeepestLevel) {
        pairs = anchors(before, after);
    }
    if (pairs.isEmpty()) {
        addGap(before, after);
        return;
    }
    pairs.append({before.end, after.end});
    for (const MRVScriptChange &pair : qAsConst(pairs)) {
        compare({before.begin, pair.before}, {after.begin, pair.after}, level + 1);
        before.begin = pair.before + 1;
        after.begin = pair.after + 1;
    }
}

// What is left: items of one kind are pairs, and of the others, the longer side goes first.
void Comparison::addGap(Span before, Span after)
{
    while (before.size() > 0 || after.size() > 0) {
        const bool isPair = before.size() > 0 && after.size() > 0
            && m_before.at(before.begin).kind == m_after.at(after.begin).kind;
        if (isPair) {
            if (m_before.at(before.begin).number != m_after.at(after.begin).number) {
                m_changes.append({before.begin, after.begin});
            }
            ++before.begin;
            ++after.begin;
        } else if (before.size() > 0 && before.size() >= after.size()) {
            m_changes.append({before.begin++, -1});
        } else {
            m_changes.append({-1, after.begin++});
        }
    }
}

// Numbers texts by when they first appear.
class Numbering
{
public:
    int of(const QString &text)
    {
        const auto known = m_numbers.constFind(text);
        return known != m_numbers.constEnd() ? *known : *m_numbers.insert(text, m_numbers.size());
    }

private:
    QHash<QString, int> m_numbers;
};

// A text with its marks, which tell all of it apart.
QString marked(const MRVFountainRuns &runs)
{
    QStringList lines;
    const QVector<MRVFountainRuns> parts = MrvFountain::linesOf(runs);
    for (const MRVFountainRuns &line : parts) {
        lines.append(MrvFountain::inlineText(line));
    }
    return lines.join(u'\n');
}

QVector<Item> itemsOf(const QVector<MRVFountainElement> &elements, Numbering *numbering)
{
    QVector<Item> items;
    for (const MRVFountainElement &element : elements) {
        const QString text = QStringLiteral("%1 %2 %3 ")
                                 .arg(QString::number(element.kind), QString::number(element.level),
                                      QString::number(int(element.dual) + 2 * int(element.apart)));
        items.append({numbering->of(text + element.sceneNumber + u' ' + marked(element.runs)),
                      element.kind});
    }
    return items;
}

QVector<Item> itemsOf(const QVector<MRVFountainTitle> &titles, Numbering *keys, Numbering *values)
{
    QVector<Item> items;
    for (const MRVFountainTitle &title : titles) {
        const QString key = title.key.toCaseFolded();
        items.append({values->of(key + u':' + marked(title.value)), keys->of(key)});
    }
    return items;
}

} // namespace

QVector<MRVScriptChange> MRVScriptCompare::elements(const MRVFountainScript &before,
                                                    const MRVFountainScript &after)
{
    Numbering numbering;
    const QVector<Item> one = itemsOf(before.normalized().elements, &numbering);
    const QVector<Item> other = itemsOf(after.normalized().elements, &numbering);
    return Comparison(one, other).changes();
}

QVector<MRVScriptChange> MRVScriptCompare::titles(const MRVFountainScript &before,
                                                  const MRVFountainScript &after)
{
    Numbering keys;
    Numbering values;
    const QVector<Item> one = itemsOf(before.titles, &keys, &values);
    const QVector<Item> other = itemsOf(after.titles, &keys, &values);
    return Comparison(one, other).changes();
}

QString MRVScriptCompare::text(const MRVFountainElement &element)
{
    const QString number = element.sceneNumber.isEmpty()
        ? QString()
        : QLatin1String(" #") + element.sceneNumber + u'#';
    return marked(element.runs).replace(u'\n', QLatin1String(" / ")) + number
        + (element.dual ? QLatin1String(" ^") : QLatin1String());
}
