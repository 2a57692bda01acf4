#include "search/mrvtextfold_p.h"

#include <algorithm>

namespace {

QChar foldCharacter(QChar c)
{
    switch (c.unicode()) {
    case 0x2018: // quotation marks and apostrophes, single: left, right, low, reversed, a letter
    case 0x2019:
    case 0x201a:
    case 0x201b:
    case 0x02bc:
        return QLatin1Char('\'');
    case 0x201c: // and double
    case 0x201d:
    case 0x201e:
    case 0x201f:
        return QLatin1Char('"');
    case 0x2010: // hyphen, no-break hyphen, figure and en dash, minus, small and full-width hyphen;
    case 0x2011: // not the em dash, which is a different character to writers
    case 0x2012:
    case 0x2013:
    case 0x2212:
    case 0xfe63:
    case 0xff0d:
        return QLatin1Char('-');
    case 0x00a0: // no-break spaces and objects
    case 0x2007:
    case 0x202f:
    case 0xfffc:
        return QLatin1Char(' ');
    default:
        return c;
    }
}

/// Whether a character composes with the one before it.
bool isJoined(QChar c)
{
    return c.unicode() >= 0x300
        && (c.isMark()
            || (c.unicode() >= 0x1160 && c.unicode() <= 0x11ff)); // Hangul vowels, finals
}

bool needsComposing(QChar c)
{
    return isJoined(c)
        || (c.unicode() >= 0x340 && c.decompositionTag() == QChar::Canonical && !c.isSurrogate());
}

} // namespace

MRVFoldedText::MRVFoldedText(const QString &original)
    : m_text(original)
{
    for (int i = 0; i < original.size(); ++i) {
        const QChar c = original.at(i);
        const QChar folded = c.unicode() < 0x80 ? c : foldCharacter(c);
        if (folded != c) {
            m_text[i] = folded;
        }
    }
    if (std::any_of(m_text.cbegin(), m_text.cend(), needsComposing)) {
        compose();
    }
}

void MRVFoldedText::compose()
{
    const QString text = m_text;
    m_text.clear();
    for (int start = 0, end = 0; start < text.size(); start = end) {
        end = start + 1;
        if (text.at(start).isHighSurrogate() && end < text.size()
            && text.at(end).isLowSurrogate()) {
            ++end;
        }
        while (end < text.size() && isJoined(text.at(end))) {
            ++end;
        }
        QString cluster = text.mid(start, end - start);
        if (std::any_of(cluster.cbegin(), cluster.cend(), needsComposing)) {
            cluster = cluster.normalized(QString::NormalizationForm_C);
        }
        m_text += cluster;
        m_starts.insert(m_starts.size(), cluster.size(), start);
        m_ends.insert(m_ends.size(), cluster.size(), end);
    }
}

int MRVFoldedText::fromOriginal(int offset) const
{
    if (m_starts.isEmpty()) {
        return qMin(offset, m_text.size());
    }
    return int(std::lower_bound(m_starts.cbegin(), m_starts.cend(), offset) - m_starts.cbegin());
}

int MRVFoldedText::toOriginalStart(int index) const
{
    if (m_starts.isEmpty()) {
        return index;
    }
    return index < m_starts.size() ? m_starts.at(index) : m_ends.last();
}

int MRVFoldedText::toOriginalEnd(int index) const
{
    if (m_ends.isEmpty()) {
        return index;
    }
    return index > 0 ? m_ends.at(index - 1) : 0;
}

QString MRVFoldedText::foldPattern(const QString &text)
{
    return MRVFoldedText(text).text();
}

QString MRVFoldedText::foldExpression(const QString &pattern)
{
    QString result;
    bool escaped = false;
    bool quoted = false; // between \Q and \E
    for (const QChar c : pattern) {
        const QChar folded = foldCharacter(c);
        if (folded != c && folded == QLatin1Char('-') && !escaped && !quoted) {
            result += QLatin1Char('\\');
        }
        if (escaped && (c == QLatin1Char('Q') || c == QLatin1Char('E'))) {
            quoted = c == QLatin1Char('Q');
        }
        escaped = !escaped && c == QLatin1Char('\\');
        result += folded;
    }
    return result.normalized(QString::NormalizationForm_C);
}
