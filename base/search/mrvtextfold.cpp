#include "search/mrvtextfold_p.h"

#include <QRegularExpression>
#include <QSet>
#include <QStringList>

#include <algorithm>

namespace {

using Fold = MRVFoldedText;

QChar foldPunctuation(QChar c)
{
    switch (c.unicode()) {
    case 0x2018: // quotation marks and apostrophes, single: left, right, low, reversed, a letter
    case 0x2019:
    case 0x201a:
    case 0x201b:
    case 0x2039: // and pointed
    case 0x203a:
    case 0x02bc:
        return QLatin1Char('\'');
    case 0x201c: // and double
    case 0x201d:
    case 0x201e:
    case 0x201f:
    case 0x00ab:
    case 0x00bb:
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

/// Soft hyphens, variation selectors, and format characters except those that are seen: signs
/// before Arabic and Syriac numbers.
bool hasNoWidth(QChar c)
{
    const ushort code = c.unicode();
    if (c.category() == QChar::Other_Format) {
        return code != 0x6dd && code != 0x70f && code != 0x8e2 && (code < 0x600 || code > 0x605);
    }
    return code >= 0xfe00 && code <= 0xfe0f;
}

/// Whether a character stands for others that would be typed: ligatures, full-width letters, dots.
bool isSpelledOut(QChar c)
{
    switch (c.decompositionTag()) {
    case QChar::Wide:
    case QChar::Narrow:
    case QChar::Initial:
    case QChar::Medial:
    case QChar::Final:
    case QChar::Isolated:
        return true;
    case QChar::Compat: // but not accents on a blank
        return c.decomposition().size() == 1 || !c.decomposition().startsWith(QLatin1Char(' '));
    default:
        return false;
    }
}

/// Of the letters whose case folding is longer, those that no decomposition makes so.
bool hasLongCase(QChar c)
{
    const ushort code = c.unicode();
    return code == 0xdf || code == 0x130 || code == 0x1e9e || (code >= 0x1f80 && code <= 0x1ffc);
}

/// Accents, and the points of Hebrew and Arabic; not marks that are letters, as vowels of Thai, or
/// make other letters, as the voicing of kana.
bool isAccent(QChar c)
{
    const int kind = c.combiningClass();
    return c.isMark() && (kind == 1 || (kind >= 10 && kind <= 35) || kind >= 200);
}

/// Whether folding a character depends on its neighbours, or gives other than one character.
bool needsFolding(QChar c, Fold::Options options)
{
    if (c.unicode() < 0x80 || c.isSurrogate()) {
        return false;
    }
    const bool decomposes = c.decompositionTag() == QChar::Canonical;
    return isJoined(c) || (decomposes && (c.unicode() >= 0x340 || (options & Fold::Accents)))
        || ((options & Fold::Typography) && (hasNoWidth(c) || isSpelledOut(c)))
        || ((options & Fold::Case) && hasLongCase(c));
}

/// A letter with all that composes with it.
QString foldLetter(const QString &letter, Fold::Options options)
{
    QString folded;
    const QString composed = letter.normalized(QString::NormalizationForm_C);
    for (const QChar c : composed) {
        if ((options & Fold::Typography) && hasNoWidth(c)) {
            continue;
        }
        if ((options & Fold::Typography) && isSpelledOut(c)) {
            folded += QString(c).normalized(QString::NormalizationForm_KD);
        } else if ((options & Fold::Case) && hasLongCase(c)) {
            // Qt folds by one character for another, but knows what several are made of.
            folded += QString(c).toLower().toUpper().toCaseFolded();
        } else {
            folded += c;
        }
    }
    if (options & Fold::Typography) {
        std::transform(folded.cbegin(), folded.cend(), folded.begin(), foldPunctuation);
    }
    if (options & Fold::Accents) {
        folded = folded.normalized(QString::NormalizationForm_D);
        const auto kept = std::remove_if(folded.begin(), folded.end(), isAccent);
        folded.truncate(int(kept - folded.begin()));
    }
    return folded.normalized(QString::NormalizationForm_C);
}

/// Where the letter ends that starts at @p start.
int letterEnd(const QString &text, int start)
{
    int end = start + 1;
    if (text.at(start).isHighSurrogate() && end < text.size() && text.at(end).isLowSurrogate()) {
        ++end;
    }
    while (end < text.size() && isJoined(text.at(end))) {
        ++end;
    }
    return end;
}

/// Folds the literal characters of an expression, and copies all else.
class ExpressionFolder
{
public:
    ExpressionFolder(const QString &pattern, Fold::Options options)
        : m_pattern(pattern)
        , m_options(options)
    {
    }

    QString folded()
    {
        while (m_at < m_pattern.size()) {
            const QChar c = m_pattern.at(m_at);
            if (c == QLatin1Char('\\')) {
                takeEscape();
            } else if (m_class >= 0 && isRange()) {
                takeRange();
            } else if (m_isQuoted || c.unicode() >= 0x80) {
                takeLetter();
            } else if (m_class < 0 && c == QLatin1Char('[')) {
                openClass();
            } else if (m_class >= 0 && c == QLatin1Char(']')) {
                closeClass();
            } else if (m_class >= 0 && m_pattern.mid(m_at, 2) == QLatin1String("[:")) {
                copy(qMax(2, m_pattern.indexOf(QLatin1String(":]"), m_at) + 2 - m_at));
            } else if (c.isLetterOrNumber() && accentAfter(m_at + 1) > 0) {
                takeLetter();
            } else {
                copy(1);
            }
        }
        // What is left of characters that are passed over would match everywhere.
        return QString(m_result).remove(QLatin1String("(?:)")).isEmpty() ? QString() : m_result;
    }

private:
    void copy(int length)
    {
        m_result += m_pattern.midRef(m_at, length);
        m_at += length;
    }

    // Where a character stands that composes with those before a place, perhaps after a backslash,
    // which QRegularExpression::escape() puts before it; 0 where there is another one.
    int accentAfter(int at) const
    {
        at += !m_isQuoted && at < m_pattern.size() && m_pattern.at(at) == QLatin1Char('\\') ? 1 : 0;
        return at < m_pattern.size() && isJoined(m_pattern.at(at)) ? at : 0;
    }

    void takeLetter()
    {
        int end = letterEnd(m_pattern, m_at);
        QString letter = m_pattern.mid(m_at, end - m_at);
        while (const int accent = accentAfter(end)) {
            end = letterEnd(m_pattern, accent);
            letter += m_pattern.midRef(accent, end - accent);
        }
        emitLetter(letter);
        m_at = end;
    }

    // Of literal characters, one of which may be folded.
    bool isRange() const
    {
        const QStringView range = QStringView(m_pattern).mid(m_at, 3);
        return !m_isQuoted && range.size() == 3 && range.at(1) == u'-' && range.at(0) <= range.at(2)
            && range.at(2).unicode() >= 0x80 && !range.at(0).isSurrogate()
            && !range.at(2).isSurrogate() && accentAfter(m_at + 3) == 0;
    }

    // All of a range stays, as folded ends would leave another one; what its characters are folded
    // to is added.
    void takeRange()
    {
        const ushort last = m_pattern.at(m_at + 2).unicode();
        QSet<QString> known;
        uint code = m_pattern.at(m_at).unicode();
        copy(3);
        for (; code <= last; ++code) {
            const QString letter(QChar{ushort(code)});
            const QString folded =
                needsFolding(letter.at(0), m_options) ? foldLetter(letter, m_options) : letter;
            if (folded != letter && !known.contains(folded)) {
                known.insert(folded);
                emitLetter(letter);
            }
        }
    }

    void takeEscape()
    {
        const QStringView rest = QStringView(m_pattern).mid(m_at);
        if (m_isQuoted || rest.startsWith(QLatin1String("\\Q"))) {
            const bool isLiteral = m_isQuoted && !rest.startsWith(QLatin1String("\\E"));
            m_isQuoted = isLiteral || !m_isQuoted;
            copy(isLiteral ? 1 : 2);
            return;
        }
        if (rest.size() > 1 && rest.at(1).unicode() >= 0x80) {
            ++m_at; // such a character stands for itself anyway
            takeLetter();
            return;
        }
        static const QRegularExpression number(
            QStringLiteral("\\G\\\\x(?:\\{([0-9A-Fa-f]{1,6})\\}|([0-9A-Fa-f]{2}))"));
        const QRegularExpressionMatch match = number.match(m_pattern, m_at);
        const uint code = (match.captured(1) + match.captured(2)).toUInt(nullptr, 16);
        if (code < 0x80 || code > QChar::LastValidCodePoint) {
            copy(rest.size() > 1 ? 2 : 1);
            return;
        }
        emitLetter(QString::fromUcs4(&code, 1));
        m_at += match.capturedLength();
    }

    void emitLetter(const QString &letter)
    {
        QString folded = foldLetter(letter, m_options);
        if (folded == letter || m_isQuoted) {
            m_result += folded;
            return;
        }
        const bool isOne = folded.size() == 1;
        folded = QRegularExpression::escape(folded);
        if (isOne) {
            m_result += folded;
        } else if (m_class < 0) {
            m_result += QLatin1String("(?:") + folded + QLatin1Char(')');
        } else if (m_isNegated) {
            m_result += letter;
        } else if (!folded.isEmpty()) {
            m_longOnes.append(folded);
        }
    }

    void openClass()
    {
        m_class = m_result.size();
        copy(1);
        m_isNegated = m_at < m_pattern.size() && m_pattern.at(m_at) == QLatin1Char('^');
        copy(m_isNegated ? 1 : 0);
        // As the first character, a bracket is one of the class.
        copy(m_at < m_pattern.size() && m_pattern.at(m_at) == QLatin1Char(']') ? 1 : 0);
    }

    // A class is one character, so letters that are folded to several become alternatives of it.
    void closeClass()
    {
        copy(1);
        const QString single = m_result.mid(m_class);
        const bool isEmpty = single == QLatin1String("[]");
        if (isEmpty || !m_longOnes.isEmpty()) {
            if (!isEmpty) {
                m_longOnes.append(single);
            }
            m_result.truncate(m_class);
            m_result += QLatin1String("(?:") + m_longOnes.join(QLatin1Char('|')) + QLatin1Char(')');
            m_longOnes.clear();
        }
        m_class = -1;
    }

    const QString &m_pattern;
    const Fold::Options m_options;
    QString m_result;
    QStringList m_longOnes; // of the class
    int m_at = 0;
    int m_class = -1; // where in the result the class starts that is open; negative: none is
    bool m_isNegated = false;
    bool m_isQuoted = false; // between \Q and \E
};

} // namespace

MRVFoldedText::MRVFoldedText(const QString &original, Options options)
    : m_text(original)
{
    if (!options) {
        return;
    }
    bool isLonger = false;
    for (int i = 0; i < original.size(); ++i) {
        const QChar c = original.at(i);
        if (c.unicode() < 0x80) {
            continue;
        }
        isLonger = isLonger || needsFolding(c, options);
        const QChar folded = options & Typography ? foldPunctuation(c) : c;
        if (folded != c) {
            m_text[i] = folded;
        }
    }
    if (isLonger) {
        foldLetters(options);
    }
}

void MRVFoldedText::foldLetters(Options options)
{
    const QString text = m_text;
    m_text.clear();
    for (int start = 0, end = 0; start < text.size(); start = end) {
        end = letterEnd(text, start);
        QString letter = text.mid(start, end - start);
        const auto needs = [options](QChar c) { return needsFolding(c, options); };
        if (std::any_of(letter.cbegin(), letter.cend(), needs)) {
            letter = foldLetter(letter, options);
        }
        m_text += letter;
        m_starts.insert(m_starts.size(), letter.size(), start);
        m_ends.insert(m_ends.size(), letter.size(), end);
    }
    m_starts.append(text.size());
    m_ends.append(text.size());
}

int MRVFoldedText::fromOriginal(int offset) const
{
    if (m_starts.isEmpty()) {
        return qMin(offset, m_text.size());
    }
    const auto found = std::lower_bound(m_starts.cbegin(), m_starts.cend(), offset);
    return qMin(int(found - m_starts.cbegin()), m_text.size());
}

int MRVFoldedText::toOriginalStart(int index) const
{
    return m_starts.isEmpty() ? index : m_starts.at(index);
}

int MRVFoldedText::toOriginalEnd(int index) const
{
    if (m_ends.isEmpty()) {
        return index;
    }
    return index > 0 ? m_ends.at(index - 1) : 0;
}

bool MRVFoldedText::isBoundary(int index) const
{
    return m_starts.isEmpty() || index == 0 || m_starts.at(index) != m_starts.at(index - 1)
        || index == m_text.size();
}

QString MRVFoldedText::foldExpression(const QString &pattern, Options options)
{
    return options ? ExpressionFolder(pattern, options).folded() : pattern;
}
