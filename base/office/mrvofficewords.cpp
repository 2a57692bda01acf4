#include "office/mrvofficewords_p.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <iterator>

namespace {

constexpr int WordsBefore = 4; // that show a place

/** Calls @p take(word) for each word. */
template<typename Take>
void forEachWord(const QString &text, const Take &take)
{
    QString word;
    bool hasDigits = false;
    const auto end = [&] {
        if (!word.isEmpty()) {
            take(word);
            word.resize(0);
        }
    };
    for (const QChar character : text) {
        const bool isDigit = character.isDigit();
        const bool isLetter = character.isLetter() || character.isMark() || character.isSurrogate();
        if (character == QChar::SoftHyphen) {
            continue;
        }
        if ((!isDigit && !isLetter) || isDigit != hasDigits) {
            end();
        }
        hasDigits = isDigit;
        if (isDigit || isLetter) {
            word += character.toCaseFolded();
        }
    }
    end();
}

QHash<QString, int> countedWords(const QString &text)
{
    QHash<QString, int> counts;
    forEachWord(text, [&counts](const QString &word) { ++counts[word]; });
    return counts;
}

uint pairOf(const QString &one, const QString &other)
{
    return qHash(one) * 31 + qHash(other);
}

/** Finds the places of words that are known to be missing. */
class Places
{
public:
    Places(QHash<QString, int> *missing, const QString &page)
        : m_missing(*missing)
    {
        QString before;
        forEachWord(page, [&](const QString &word) {
            m_pairs.insert(pairOf(before, word));
            before = word;
        });
    }

    // One is missing where it does not follow the word before it in the page.
    void visit(const QString &word)
    {
        const auto missing = m_missing.find(word);
        const bool isMissing = missing != m_missing.end() && *missing > 0
            && !m_pairs.contains(
                pairOf(m_before.isEmpty() ? QString() : m_before.constLast(), word));
        if (isMissing) {
            --*missing;
            if (m_isAfterMissing) {
                m_losses.last().words += u' ' + word;
            } else {
                m_losses.append({word, m_before.join(u' ')});
            }
        }
        m_isAfterMissing = isMissing;
        m_before.append(word);
        if (m_before.size() > WordsBefore) {
            m_before.removeFirst();
        }
    }

    QVector<MRVOfficeLoss> losses() const { return m_losses; }

private:
    QHash<QString, int> &m_missing; // that have no place yet
    QSet<uint> m_pairs; // of neighbours in the page
    QStringList m_before;
    bool m_isAfterMissing = false;
    QVector<MRVOfficeLoss> m_losses;
};

} // namespace

QVector<MRVOfficeLoss> mrvMissingWords(const QString &text, const QString &unplaced,
                                       const QString &page)
{
    const QHash<QString, int> held = countedWords(page);
    QHash<QString, int> missing = countedWords(text + u' ' + unplaced);
    for (auto it = missing.begin(); it != missing.end();) {
        *it -= held.value(it.key());
        it = *it > 0 ? std::next(it) : missing.erase(it);
    }
    if (missing.isEmpty()) {
        return {};
    }
    Places places(&missing, page);
    forEachWord(text, [&places](const QString &word) { places.visit(word); });
    QStringList rest;
    for (auto it = missing.constBegin(); it != missing.constEnd(); ++it) {
        for (int i = 0; i < it.value(); ++i) {
            rest.append(it.key());
        }
    }
    rest.sort();
    QVector<MRVOfficeLoss> losses = places.losses();
    if (!rest.isEmpty()) {
        losses.append({rest.join(u' '), QString()});
    }
    return losses;
}
