#include "search/mrvreplacementtext_p.h"

#include <algorithm>

namespace {

/// The text with its first letter as a capital or a small letter.
QString withFirstLetter(const QString &text, bool isCapital)
{
    int at = 0;
    while (at < text.size() && !text.at(at).isLetter() && !text.at(at).isSurrogate()) {
        ++at;
    }
    const QString first = text.mid(at, at < text.size() && text.at(at).isSurrogate() ? 2 : 1);
    QString changed = isCapital ? first.toUpper() : first.toLower();
    if (isCapital && changed.size() > first.size()) {
        changed = changed.left(1) + changed.mid(1).toLower(); // the sharp s, ligatures
    }
    return text.left(at) + changed + text.mid(at + first.size());
}

QString inCaseOf(const QString &find, const QString &text)
{
    const auto letters = std::count_if(find.cbegin(), find.cend(),
                                       [](QChar c) { return c.isLetter() || c.isSurrogate(); });
    if (letters > 1 && find == find.toUpper() && find != find.toLower()) {
        return text.toUpper();
    }
    return find != withFirstLetter(find, false) ? withFirstLetter(text, true) : text;
}

/// Expands the text of a replacement for an expression.
class Expansion
{
public:
    Expansion(const QString &text, const MRVQueryFind &find, int number)
        : m_text(text)
        , m_find(find)
        , m_number(number)
        , m_groups(find.expression->groupCount())
    {
    }

    QString expanded()
    {
        while (m_at < m_text.size()) {
            const QChar c = m_text.at(m_at++);
            if (c != QLatin1Char('\\') && c != QLatin1Char('$')) {
                append(c);
            } else if (!takeGroup() && !takeCharacter(c) && !takeCase(c)
                       && !(c == QLatin1Char('$') && takeNamed())) {
                append(c);
            }
        }
        return m_result;
    }

private:
    /// In the case that is asked for.
    void append(const QString &text)
    {
        QString piece = m_all == QLatin1Char('U') ? text.toUpper()
            : m_all == QLatin1Char('L')           ? text.toLower()
                                                  : text;
        const auto isLetter = [](QChar c) { return c.isLetter() || c.isSurrogate(); };
        if (!m_first.isNull() && std::any_of(piece.cbegin(), piece.cend(), isLetter)) {
            piece = withFirstLetter(piece, m_first == QLatin1Char('u'));
            m_first = QChar();
        }
        m_result += piece;
    }

    QString group(int number) const
    {
        const MRVTextMatch part = m_find.expression->captured(number);
        return part ? m_find.text.original(part) : QString();
    }

    int digitAt(int at) const
    {
        const ushort c = at < m_text.size() ? m_text.at(at).unicode() : 0;
        return c >= '0' && c <= '9' ? c - '0' : -1;
    }

    bool takeGroup()
    {
        int number = digitAt(m_at);
        if (number < 0 || number > m_groups) {
            return false;
        }
        ++m_at;
        const int second = digitAt(m_at);
        if (number > 0 && second >= 0 && number * 10 + second <= m_groups) {
            number = number * 10 + second;
            ++m_at;
        }
        append(group(number));
        return true;
    }

    bool takeCharacter(QChar sign)
    {
        const QChar c = m_at < m_text.size() ? m_text.at(m_at) : QChar();
        const bool backslash = sign == QLatin1Char('\\');
        if (c == sign) {
            append(c);
        } else if (backslash && c == QLatin1Char('n')) {
            append(QChar(QChar::ParagraphSeparator));
        } else if (backslash && c == QLatin1Char('t')) {
            append(QChar(QChar::Tabulation));
        } else if (backslash && c == QLatin1Char('#')) {
            append(QString::number(m_number));
        } else if (!backslash && c == QLatin1Char('&')) {
            append(group(0));
        } else {
            return false;
        }
        ++m_at;
        return true;
    }

    bool takeCase(QChar sign)
    {
        const QChar c = m_at < m_text.size() ? m_text.at(m_at) : QChar();
        if (sign != QLatin1Char('\\') || !QStringLiteral("ULEul").contains(c)) {
            return false;
        }
        ++m_at;
        (c.isUpper() ? m_all : m_first) = c;
        return true;
    }

    bool takeNamed()
    {
        const int end = m_text.indexOf(QLatin1Char('}'), m_at);
        if (end < 0 || m_text.at(m_at) != QLatin1Char('{')) {
            return false;
        }
        const QString name = m_text.mid(m_at + 1, end - m_at - 1);
        bool isNumber = false;
        int number = name.toInt(&isNumber);
        if (!isNumber) {
            number = m_find.expression->groupNamed(name);
        }
        if (number < 0 || number > m_groups) {
            return false;
        }
        m_at = end + 1;
        append(group(number));
        return true;
    }

    const QString &m_text;
    const MRVQueryFind &m_find;
    const int m_number;
    const int m_groups;
    QString m_result;
    QChar m_all; // what is asked for all that follows: U or L; else E, or null
    QChar m_first; // and for the next letter: u or l, or null
    int m_at = 0;
};

} // namespace

MRVReplacementText::MRVReplacementText(const MRVTextReplacement &replacement)
    : m_replacement(replacement)
    , m_number(replacement.firstNumber)
{
}

QString MRVReplacementText::next(const MRVQueryFind &find)
{
    if (m_replacement.keepsText) {
        return find.before();
    }
    const QString text = find.expression
        ? Expansion(m_replacement.text, find, m_number++).expanded()
        : m_replacement.text;
    return m_replacement.preservesCase ? inCaseOf(find.before(), text) : text;
}
