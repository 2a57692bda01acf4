#include "manuscript/mrvsourceplaces_p.h"

#include "manuscript/mrvmanuscriptdocument_p.h"

#include <QHash>
#include <QRegularExpression>

namespace {

const QRegularExpression &htmlMarkup()
{
    static const QRegularExpression markup(
        QStringLiteral("<!--.*?-->|<(head|title|style|script)\\b[^>]*>.*?</\\1\\s*>"
                       "|<[!?/A-Za-z](?:\"[^\"]*+\"|'[^']*+'|[^'\">]++)*+>"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    return markup;
}

// Pictures, link targets, link definitions, fences, comments, tags, check boxes, list numbers, and
// the characters that mark something.
const QRegularExpression &markdownMarkup()
{
    static const QRegularExpression markup(
        QStringLiteral(
            "!\\[[^\\]]*\\](?:\\([^)]*\\)|\\[[^\\]]*\\])|\\](?:\\([^)]*\\)|\\[[^\\]]*\\])"
            "|^ {0,3}\\[[^\\]]*\\]:.*$|^ {0,3}(?:```|~~~).*$|<!--(?s:.*?)-->"
            "|</?[A-Za-z][^>:@]*>|\\[[ xX]\\]|^\\s*\\d+[.)]"
            "|[*_#>`\\-+|\\\\~=:\\[\\]()!.<]"),
        QRegularExpression::MultilineOption);
    return markup;
}

/**
 * Walks along a source and the text of the document that was read from it, and notes which
 * characters correspond.
 */
class Alignment
{
public:
    Alignment(const QString &source, const QString &text, bool html)
        : m_source(source)
        , m_text(text)
        , m_html(html)
        , m_places(text.size())
    {
    }

    /** Empty where the two do not match. */
    MRVSourcePlaces places()
    {
        if (!m_source.isValidUtf16()) {
            return MRVSourcePlaces(); // which expressions must not meet
        }
        while (m_at < m_source.size()) {
            if (m_html && m_source.at(m_at) == u'<' && skipMarkup()) {
                continue;
            }
            if (mrvIsBlank(m_source.at(m_at))) {
                m_blanks.append(m_at++);
            } else if (!takeText() && (m_html || !skipMarkup())) {
                return MRVSourcePlaces();
            }
        }
        passBlanks();
        return m_position == m_text.size() ? m_places : MRVSourcePlaces();
    }

private:
    // Without checking each time that the rest of the source is valid, which is quadratic.
    QRegularExpressionMatch matchHere(const QRegularExpression &expression) const
    {
        return expression.match(m_source, m_at, QRegularExpression::NormalMatch,
                                QRegularExpression::AnchoredMatchOption
                                    | QRegularExpression::DontCheckSubjectStringMatchOption);
    }

    bool skipMarkup()
    {
        const auto match = matchHere(m_html ? htmlMarkup() : markdownMarkup());
        m_at += match.capturedLength();
        return match.capturedLength() > 0;
    }

    bool takeText()
    {
        int position = m_position;
        while (position < m_text.size()
               && (mrvIsBlank(m_text.at(position)) || mrvIsStructure(m_text.at(position))
                   || isGenerated(position))) {
            ++position;
        }
        int length = 1;
        const QString text = textAt(position, &length);
        if (m_text.midRef(position, text.size()) != text) {
            return false;
        }
        passBlanks();
        m_places[position] = {m_at, length};
        for (int i = 1; i < text.size(); ++i) {
            m_places[position + i] = {m_at + length, 0};
        }
        m_position = position + text.size();
        m_at += length;
        return true;
    }

    // Whether a character is a mark that <q> means, which the source does not have here.
    bool isGenerated(int position) const
    {
        const QChar mark = m_text.at(position);
        const bool isMark = mark == QChar(0x2018) || mark == QChar(0x2019) || mark == QChar(0x201c)
            || mark == QChar(0x201d);
        return m_html && isMark
            && (m_at >= m_source.size()
                || (m_source.at(m_at) != mark && m_source.at(m_at) != u'&'));
    }

    // The text that the source means at this place, and how much of the source that is. In code of
    // Markdown a character reference is plain text.
    QString textAt(int position, int *length)
    {
        static const QRegularExpression entity(
            QStringLiteral("&(?:#[0-9]{1,7}|#[xX][0-9a-fA-F]{1,6}|[A-Za-z][A-Za-z0-9]*);"));
        const QChar character = m_source.at(m_at);
        if (character != u'&') {
            return character;
        }
        const QString name = matchHere(entity).captured();
        if (name.isEmpty() || (!m_html && m_text.midRef(position, name.size()) == name)) {
            return character;
        }
        QString &text = m_entities[name];
        if (text.isEmpty()) {
            text = mrvNewDocument(name, MRVManuscript::Html, {})->toRawText();
        }
        if (text.isEmpty() || mrvIsBlank(text.at(0))) {
            return character;
        }
        *length = name.size();
        return text;
    }

    // The blanks up to the next text. Those of the document are known where their number is the
    // same, or where there is only one.
    void passBlanks()
    {
        QVector<int> positions;
        for (; m_position < m_text.size(); ++m_position) {
            if (mrvIsBlank(m_text.at(m_position))) {
                positions.append(m_position);
            } else if (!mrvIsStructure(m_text.at(m_position)) && !isGenerated(m_position)) {
                break;
            }
        }
        if (positions.size() == m_blanks.size()) {
            for (int i = 0; i < positions.size(); ++i) {
                m_places[positions.at(i)] = {m_blanks.at(i), 1};
            }
        } else if (positions.size() == 1 && !m_blanks.isEmpty()
                   && m_blanks.last() - m_blanks.first() == m_blanks.size() - 1) {
            m_places[positions.first()] = {m_blanks.first(), m_blanks.size()};
        }
        m_blanks.clear();
    }

    const QString &m_source;
    const QString &m_text;
    const bool m_html;
    MRVSourcePlaces m_places;
    QHash<QString, QString> m_entities;
    QVector<int> m_blanks; // in the source, since the last text
    int m_at = 0; // in the source
    int m_position = 0; // in the document
};

// Plain text is its own source; only a line end may be two characters.
MRVSourcePlaces plainPlaces(const QString &source)
{
    MRVSourcePlaces places;
    places.reserve(source.size());
    for (int at = 0; at < source.size(); at += places.constLast().length) {
        places.append({at, source.midRef(at, 2) == QLatin1String("\r\n") ? 2 : 1});
    }
    return places;
}

} // namespace

MRVSourcePlaces mrvSourcePlaces(const QString &source, const QString &text,
                                MRVManuscript::Format format)
{
    return format == MRVManuscript::PlainText
        ? plainPlaces(source)
        : Alignment(source, text, format == MRVManuscript::Html).places();
}
