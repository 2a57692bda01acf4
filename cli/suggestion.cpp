#include "suggestion.h"

#include <QVector>

namespace {

constexpr int MaxWordLength = 200; // longer ones are no slips of the finger

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

QString nearest(const QString &word, const QStringList &candidates)
{
    if (word.size() > MaxWordLength) {
        return QString();
    }
    QString best;
    int fewest = qMax(1, word.size() / 3) + 1;
    for (const QString &candidate : candidates) {
        // The lengths alone tell of so many edits.
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

QString didYouMean(const QString &word, const QStringList &candidates)
{
    const QString candidate = nearest(word, candidates);
    return candidate.isNull() ? QString() : QStringLiteral("; did you mean '%1'?").arg(candidate);
}
