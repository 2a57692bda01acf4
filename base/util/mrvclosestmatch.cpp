#include "util/mrvclosestmatch.h"

#include <QVector>

namespace {

constexpr int MaxWordLength = 200; // longer ones are not names that somebody mistyped

// The restricted Damerau-Levenshtein distance, by its recurrence over three rows.
int distance(const QString &a, const QString &b)
{
    QVector<int> beforeLast(b.size() + 1);
    QVector<int> last(b.size() + 1);
    QVector<int> row(b.size() + 1);
    for (int j = 0; j <= b.size(); ++j) {
        row[j] = j;
    }
    for (int i = 1; i <= a.size(); ++i) {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const int replaced = last[j - 1] + (a[i - 1] != b[j - 1]);
            row[j] = qMin(replaced, qMin(last[j], row[j - 1]) + 1);
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                row[j] = qMin(row[j], beforeLast[j - 2] + 1);
            }
        }
    }
    return row[b.size()];
}

} // namespace

QString MRV::closestMatch(const QString &word, const QStringList &candidates)
{
    if (word.size() > MaxWordLength) {
        return QString();
    }
    QString best;
    int fewest = qMax(1, word.size() / 3) + 1;
    for (const QString &candidate : candidates) {
        // It takes at least as many edits as the lengths differ by.
        if (qAbs(candidate.size() - word.size()) < fewest) {
            const int edits = distance(word.toLower(), candidate.toLower());
            if (edits < fewest) {
                fewest = edits;
                best = candidate;
            }
        }
    }
    return best;
}
