#include "autoreplace/mrvtyping.h"

namespace {

/**
 * The end of the text before the caret, as long as any match, and where each character of it comes
 * from.
 */
class BeforeCaret
{
public:
    explicit BeforeCaret(const MRVAutoReplaceList &list)
    {
        for (const MRVAutoReplace &entry : list) {
            m_longest = entry.enabled ? qMax(m_longest, entry.match.size()) : m_longest;
        }
    }

    const QString &text() const { return m_text; }

    void type(QChar character, int origin)
    {
        m_text += character;
        m_origins.append(origin);
        // Not at each character: cutting off the front moves all the rest.
        if (m_text.size() > 2 * m_longest + 1000) {
            m_origins.remove(0, m_text.size() - m_longest);
            m_text = m_text.right(m_longest);
        }
    }

    /** @return where in the line the match begins. */
    int replace(const MRVAutoReplace &entry)
    {
        const int kept = m_text.size() - entry.match.size();
        const int origin = m_origins.at(kept);
        m_text.truncate(kept);
        m_text += entry.replacement.rightRef(m_longest);
        m_origins.resize(kept);
        m_origins.insert(kept, m_text.size() - kept, origin);
        return origin;
    }

private:
    QString m_text;
    QVector<int> m_origins;
    int m_longest = 0;
};

bool isLookedUp(const QString &line, int end, MRVTypingLookUp lookUp)
{
    if (end < line.size() && line.at(end - 1).isHighSurrogate() && line.at(end).isLowSurrogate()) {
        return false;
    }
    return lookUp == MRVTypingLookUp::AfterEachCharacter || end == line.size()
        || line.at(end).isSpace();
}

} // namespace

QVector<MRVTypedReplacement> mrvTypeLine(const QString &line, const MRVAutoReplaceList &list,
                                         MRVTypingLookUp lookUp)
{
    QVector<MRVTypedReplacement> replacements;
    BeforeCaret before(list);
    for (int i = 0; i < line.size(); ++i) {
        before.type(line.at(i), i);
        if (!isLookedUp(line, i + 1, lookUp)) {
            continue;
        }
        const MRVAutoReplace entry = list.bestMatch(before.text());
        if (entry.enabled) {
            replacements.append({before.replace(entry), i + 1, entry});
        }
    }
    return replacements;
}
