#include "search/mrvtextmatcher_p.h"

#include <algorithm>

namespace {

inline ushort foldCase(ushort c)
{
    if (c < 0x80) {
        return c >= 'A' && c <= 'Z' ? c | 0x20 : c;
    }
    return ushort(QChar::toCaseFolded(uint(c)));
}

template<bool Fold>
inline ushort unit(ushort c)
{
    return Fold ? foldCase(c) : c;
}

QString folded(QString text)
{
    for (QChar &c : text) {
        c = QChar(foldCase(c.unicode()));
    }
    return text;
}

inline bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || c == QChar::Nbsp || c == QChar::ObjectReplacementCharacter;
}

/// How rare a character is in prose; -1 where a case-insensitive search cannot use it as anchor.
int rarity(QChar c, bool fold)
{
    // From the most frequent to the least; capitals, digits and other signs are rare, too.
    static constexpr char Frequent[] = " etaoinshrdlucm,wfgyp.bv\"'k-xqjz";
    const ushort code = c.unicode();
    // Beyond ASCII, and for these two letters, there may be a third character of the same fold.
    if (fold && (code >= 0x80 || code == 'k' || code == 's')) {
        return -1;
    }
    for (int i = 0; Frequent[i]; ++i) {
        if (code == uchar(Frequent[i])) {
            return i;
        }
    }
    return int(sizeof Frequent);
}

bool hasSurrogate(const QString &text)
{
    // Without an early exit and in the width of a character, so that the compiler vectorizes it.
    ushort found = 0;
    const ushort *units = text.utf16();
    for (int i = 0, n = text.size(); i < n; ++i) {
        found |= ushort((units[i] & 0xf800) == 0xd800);
    }
    return found;
}

void replaceLoneSurrogates(QString *text)
{
    for (int i = 0; i < text->size(); ++i) {
        const QChar c = text->at(i);
        if (!c.isSurrogate()) {
            continue;
        }
        if (c.isHighSurrogate() && i + 1 < text->size() && text->at(i + 1).isLowSurrogate()) {
            ++i;
        } else {
            (*text)[i] = QChar(QChar::ReplacementCharacter);
        }
    }
}

// From each of its starts, an expression may look at all of the text.
int firstWindow(int length)
{
    return qMax(64, (1 << 22) / qMax(1, length));
}

} // namespace

void mrvBlankObjects(QString *text)
{
    const auto isObject = [](ushort c) { return c == 0xfffc || c == 0xa0; };
    ushort found = 0; // as above
    const ushort *units = text->utf16();
    for (int i = 0, n = text->size(); i < n; ++i) {
        found |= ushort(units[i] == 0xfffc) | ushort(units[i] == 0xa0);
    }
    if (!found) {
        return;
    }
    for (QChar &c : *text) {
        if (isObject(c.unicode())) {
            c = QLatin1Char(' ');
        }
    }
}

MRVLiteralMatcher::MRVLiteralMatcher(const QString &text, Qt::CaseSensitivity sensitivity)
    : m_text(text)
    , m_folded(sensitivity == Qt::CaseSensitive ? text : folded(text))
    , m_sensitivity(sensitivity)
    , m_blanks(std::any_of(text.cbegin(), text.cend(), isBlank))
{
    // A step is at most 255, so a longer text is skipped along by its last 255 characters only.
    const int size = text.size();
    m_skip.fill(uchar(qMin(size, 255)));
    for (int i = qMax(0, size - 255); i < size - 1; ++i) {
        m_skip[m_folded.at(i).unicode() & 0xff] = uchar(size - 1 - i);
    }
    const bool fold = sensitivity == Qt::CaseInsensitive;
    for (int i = 0, best = -1; i < size; ++i) {
        const int rare = rarity(m_folded.at(i), fold);
        if (rare > best) {
            best = rare;
            m_anchor = i;
            m_anchorCharacter = m_folded.at(i);
            m_otherCase = fold ? m_anchorCharacter.toUpper() : m_anchorCharacter;
        }
    }
}

bool MRVLiteralMatcher::canMatch(const QString &text, Qt::CaseSensitivity sensitivity)
{
    return sensitivity == Qt::CaseSensitive
        || (!hasSurrogate(text) && !text.contains(QChar(0x130)));
}

void MRVLiteralMatcher::prepare(QString *text) const
{
    // Objects and no-break spaces are not letters, so the word rules work without replacing them.
    if (m_blanks) {
        mrvBlankObjects(text);
    }
}

bool MRVLiteralMatcher::isAt(const QString &text, int at) const
{
    const QChar *start = text.constData() + at;
    if (m_sensitivity == Qt::CaseSensitive) {
        return std::equal(m_text.cbegin(), m_text.cend(), start);
    }
    return std::equal(m_folded.cbegin(), m_folded.cend(), start,
                      [](QChar a, QChar b) { return a.unicode() == foldCase(b.unicode()); });
}

// Either case of the anchor. In windows, since searching up to the end of the text for the case
// that does not occur would make many matches in a long paragraph quadratic.
int MRVLiteralMatcher::nearestAnchor(const QString &text, int from) const
{
    if (m_otherCase == m_anchorCharacter) {
        const int at = text.indexOf(m_anchorCharacter, from);
        return at < 0 ? text.size() : at;
    }
    for (int width = 256; from < text.size(); from += width, width *= 2) {
        QStringView window = QStringView(text).mid(from, qMin(width, text.size() - from));
        int at = int(window.indexOf(m_anchorCharacter));
        window = at < 0 ? window : window.left(at);
        const int other = int(window.indexOf(m_otherCase));
        at = other < 0 ? at : other;
        if (at >= 0) {
            return from + at;
        }
    }
    return text.size();
}

int MRVLiteralMatcher::byAnchor(const QString &text, int offset) const
{
    // Qt searches for single characters in vector code, so this is faster than any skip table as
    // long as the anchor is rare.
    constexpr int ManyAnchors = 16;
    constexpr int TooClose = 8;
    const int size = m_folded.size();
    int from = offset + m_anchor;
    for (int tries = 1;; ++tries) {
        const int anchor = nearestAnchor(text, from);
        const int at = anchor - m_anchor;
        if (anchor == text.size() || at + size > text.size()) {
            return -1;
        }
        if (isAt(text, at)) {
            return at;
        }
        if (tries == ManyAnchors && at - offset < ManyAnchors * TooClose) {
            return m_sensitivity == Qt::CaseSensitive
                ? bySkipping<false>(text.utf16(), text.size(), at + 1)
                : bySkipping<true>(text.utf16(), text.size(), at + 1);
        }
        from = anchor + 1;
    }
}

template<bool Fold>
int MRVLiteralMatcher::bySkipping(const ushort *text, int length, int offset) const
{
    const int size = m_folded.size();
    const ushort *pattern = m_folded.utf16();
    const ushort last = pattern[size - 1];
    for (int at = offset + size - 1; at < length;) {
        const ushort c = unit<Fold>(text[at]);
        if (c == last) {
            int i = size - 1;
            const ushort *start = text + at - i;
            while (i > 0 && unit<Fold>(start[i - 1]) == pattern[i - 1]) {
                --i;
            }
            if (i == 0) {
                return at - size + 1;
            }
        }
        at += m_skip[c & 0xff];
    }
    return -1;
}

MRVTextMatch MRVLiteralMatcher::next(const QString &text, int offset, MRVEmptyMatch) const
{
    if (m_text.isEmpty()) {
        return MRVTextMatch();
    }
    // Without an anchor case does not matter.
    const int at = m_anchor >= 0 ? byAnchor(text, offset)
                                 : bySkipping<true>(text.utf16(), text.size(), offset);
    return {at, m_text.size()};
}

MRVTextMatch MRVLiteralMatcher::last(const QString &text, int offset) const
{
    if (m_text.isEmpty()) {
        return MRVTextMatch();
    }
    // QRegExp compares lower-case letters here, not folded ones as it does forward: a final sigma
    // and a sigma then differ.
    const bool lower = m_sensitivity == Qt::CaseInsensitive;
    const auto same = [lower](QChar a, QChar b) {
        return a == b || (lower && a.toLower() == b.toLower());
    };
    for (int at = qMin(offset, text.size() - m_text.size()); at >= 0; --at) {
        if (std::equal(m_text.cbegin(), m_text.cend(), text.cbegin() + at, same)) {
            return {at, m_text.size()};
        }
    }
    return MRVTextMatch();
}

MRVTextMatch MRVRegExpMatcher::next(const QString &text, int offset, MRVEmptyMatch empty) const
{
    int at = m_expression.indexIn(text, offset);
    if (empty == MRVEmptyMatch::NotAtStart && at == offset && m_expression.matchedLength() == 0) {
        at = m_expression.indexIn(text, offset + 1);
    }
    return {at, m_expression.matchedLength()};
}

MRVTextMatch MRVRegExpMatcher::last(const QString &text, int offset) const
{
    const int at = m_expression.lastIndexIn(text, offset);
    return {at, m_expression.matchedLength()};
}

MRVRegularExpressionMatcher::MRVRegularExpressionMatcher(const QRegularExpression &expression,
                                                         MRVSearchGuard *guard)
    : m_expression(expression)
    , m_guard(guard)
    , m_isEmpty(expression.pattern().isEmpty() || !m_expression.isValid())
{
}

void MRVRegularExpressionMatcher::prepare(QString *text) const
{
    mrvBlankObjects(text);
    if (hasSurrogate(*text)) {
        replaceLoneSurrogates(text);
    }
}

// In windows, so that a search of a long text can be given up in time. They grow, since each may
// look further ahead in the text, but not where that already takes long.
MRVTextMatch MRVRegularExpressionMatcher::search(const QString &text, int from, int last,
                                                 MRVEmptyMatch empty) const
{
    constexpr qint64 LongTime = 5; // milliseconds
    int window = m_expression.dependsOnStart() ? text.size() : firstWindow(text.size());
    QElapsedTimer clock;
    while (from <= last) {
        // A search must not start in the middle of a surrogate pair.
        if (from > 0 && from < text.size() && text.at(from).isLowSurrogate()
            && text.at(from - 1).isHighSurrogate()) {
            ++from;
        }
        const int end = last - from > window ? from + window : qMax(from, last);
        const MRVExpression::Result result = m_expression.match(text, from, end, empty);
        if (result == MRVExpression::Found) {
            return m_expression.captured(0);
        }
        if (result == MRVExpression::TooCostly) {
            m_guard->giveUp();
        }
        if (end >= last || !m_guard->goesOn()) {
            break;
        }
        from = end + 1;
        empty = MRVEmptyMatch::Allowed;
        if (!clock.isValid() || clock.elapsed() < LongTime) {
            window += qMin(window, text.size());
        }
        clock.start();
    }
    return MRVTextMatch();
}

MRVTextMatch MRVRegularExpressionMatcher::next(const QString &text, int offset,
                                               MRVEmptyMatch empty) const
{
    return search(text, offset, text.size(), empty);
}

MRVTextMatch MRVRegularExpressionMatcher::last(const QString &text, int offset) const
{
    // The expression only searches forward. So the search starts further and further back until it
    // finds a match that starts at or before the offset; then the last such match is looked for.
    for (int reach = 16;; reach = qMin(reach, offset) * 4) {
        const int from = qMax(0, offset - reach);
        MRVTextMatch best;
        for (MRVTextMatch match = search(text, from, offset, MRVEmptyMatch::Allowed);
             match && match.start <= offset;
             match = search(text, match.start + 1, offset, MRVEmptyMatch::Allowed)) {
            best = match;
            if (match.start == offset) {
                break;
            }
        }
        if (best || from == 0 || !m_guard->isComplete()) {
            return best;
        }
    }
}

bool mrvKeepsWordRules(const QString &text, MRVTextMatch match, MRVTextFinder::FindFlags flags)
{
    if ((flags & MRVTextFinder::FindWordStart) && match.start > 0
        && text.at(match.start - 1).isLetterOrNumber()) {
        return false;
    }
    return !(flags & MRVTextFinder::FindWordEnd) || match.end() >= text.size()
        || !text.at(match.end()).isLetterOrNumber();
}
