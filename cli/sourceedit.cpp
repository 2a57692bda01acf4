#include "sourceedit.h"

#include "documentinput.h"

#include <QHash>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCodec>
#include <QTextDocument>

namespace {

// Where a character of a document stands in the source; negative: nowhere, or not to be told.
struct Place
{
    int start = -1;
    int length = 0;

    int end() const { return start + length; }
};

using Places = QVector<Place>; // by position in the document

bool isBlank(QChar character)
{
    return character == u' ' || (character >= u'\t' && character <= u'\r');
}

// What a document holds between its text: ends of lines, paragraphs and cells, and pictures.
bool isStructure(QChar character)
{
    return character == QChar::ParagraphSeparator || character == QChar::LineSeparator
        || character == QChar::ObjectReplacementCharacter || character == QChar(0xfdd0)
        || character == QChar(0xfdd1);
}

const QRegularExpression &htmlMarkup()
{
    static const QRegularExpression markup(
        QStringLiteral("<!--.*?-->|<(head|title|style|script)\\b[^>]*>.*?</\\1\\s*>"
                       "|<[!?/A-Za-z](?:\"[^\"]*+\"|'[^']*+'|[^'\">]++)*+>"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    return markup;
}

// Pictures, link targets, definitions of links, fences, comments, tags, boxes to tick, numbers of
// lists, and the characters that mark something.
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
 * Goes along a source and the text of the document that was read from it, and notes what belongs
 * together.
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

    /** Empty when the two do not go together. */
    Places places()
    {
        while (m_at < m_source.size()) {
            if (m_html && m_source.at(m_at) == u'<' && skipMarkup()) {
                continue;
            }
            if (isBlank(m_source.at(m_at))) {
                m_blanks.append(m_at++);
            } else if (!takeText() && (m_html || !skipMarkup())) {
                return Places();
            }
        }
        passBlanks();
        return m_position == m_text.size() ? m_places : Places();
    }

private:
    bool skipMarkup()
    {
        const auto match = (m_html ? htmlMarkup() : markdownMarkup())
                               .match(m_source, m_at, QRegularExpression::NormalMatch,
                                      QRegularExpression::AnchoredMatchOption);
        m_at += match.capturedLength();
        return match.capturedLength() > 0;
    }

    bool takeText()
    {
        int position = m_position;
        while (position < m_text.size()
               && (isBlank(m_text.at(position)) || isStructure(m_text.at(position)))) {
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

    // The text that the source means where it stands, and how much of the source that is. In code
    // of Markdown a reference to a character means none.
    QString textAt(int position, int *length)
    {
        static const QRegularExpression entity(
            QStringLiteral("&(?:#[0-9]{1,7}|#[xX][0-9a-fA-F]{1,6}|[A-Za-z][A-Za-z0-9]*);"));
        const QChar character = m_source.at(m_at);
        if (character != u'&') {
            return character;
        }
        const QString name = entity
                                 .match(m_source, m_at, QRegularExpression::NormalMatch,
                                        QRegularExpression::AnchoredMatchOption)
                                 .captured();
        if (name.isEmpty() || (!m_html && m_text.midRef(position, name.size()) == name)) {
            return character;
        }
        QString &text = m_entities[name];
        if (text.isEmpty()) {
            text = newDocument(name, QStringLiteral("html"))->toRawText();
        }
        if (text.isEmpty() || isBlank(text.at(0))) {
            return character;
        }
        *length = name.size();
        return text;
    }

    // The blanks up to the next text: those of the document are told where they are as many, or but
    // one.
    void passBlanks()
    {
        QVector<int> positions;
        for (; m_position < m_text.size(); ++m_position) {
            if (isBlank(m_text.at(m_position))) {
                positions.append(m_position);
            } else if (!isStructure(m_text.at(m_position))) {
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
    Places m_places;
    QHash<QString, QString> m_entities;
    QVector<int> m_blanks; // in the source, since the last text
    int m_at = 0; // in the source
    int m_position = 0; // in the document
};

// In plain text all stands where it is; only an end of a line may be two characters.
Places plainPlaces(const QString &source)
{
    Places places;
    places.reserve(source.size());
    for (int at = 0; at < source.size(); at += places.constLast().length) {
        places.append({at, source.midRef(at, 2) == QLatin1String("\r\n") ? 2 : 1});
    }
    return places;
}

/** Writes new text as the format and the encoding of a source want it. */
class Writer
{
public:
    Writer(const DocumentInput &input, const QString &source)
        : m_format(input.format)
        , m_codec(QTextCodec::codecForName(input.encoding))
        , m_lineEnd(source.contains(QLatin1String("\r\n")) ? QLatin1String("\r\n")
                                                           : QLatin1String("\n"))
    {
    }

    QString written(const QString &text) const
    {
        if (m_format == QLatin1String("markdown")) {
            static const QRegularExpression marks(QStringLiteral("([\\\\`*_\\[\\]<>&])"));
            return QString(text).replace(marks, QStringLiteral("\\\\1"));
        }
        if (m_format == QLatin1String("text")) {
            return QString(text)
                .replace(u'\n', m_lineEnd)
                .replace(QChar::ParagraphSeparator, m_lineEnd);
        }
        QString html;
        for (const QChar character : text) {
            if (character == u'<') {
                html += QLatin1String("&lt;");
            } else if (character == u'>') {
                html += QLatin1String("&gt;");
            } else if (character == u'&') {
                html += QLatin1String("&amp;");
            } else if (!character.isSurrogate() && !m_codec->canEncode(character)) {
                html += QStringLiteral("&#%1;").arg(character.unicode());
            } else {
                html += character;
            }
        }
        return html;
    }

private:
    const QString m_format;
    const QTextCodec *m_codec;
    const QLatin1String m_lineEnd;
};

struct Edit
{
    Place place;
    QString text;
};

// Where text can be put in that takes the place of none: beside the text that it gets its format
// from.
bool insertionPlace(const Places &places, int position, bool preferFront, Place *place)
{
    const Place front = places.value(position - 1);
    const Place behind = places.value(position);
    if (front.start >= 0 && (preferFront || behind.start < 0)) {
        *place = {front.end(), 0};
        return true;
    }
    *place = {places.isEmpty() ? 0 : behind.start, 0};
    return place->start >= 0;
}

/**
 * What a change means in the source. As in the document, texts of the same length go character by
 * character, and else the new text takes the place of the first character that goes.
 */
bool appendEdits(const MRVTextChange &change, const Places &places, const Writer &writer,
                 QVector<Edit> *edits)
{
    const QString &before = change.before;
    const QString &after = change.after;
    const int shorter = qMin(before.size(), after.size());
    int head = 0;
    while (head < shorter && before.at(head) == after.at(head)) {
        ++head;
    }
    int tail = 0;
    while (tail < shorter - head
           && before.at(before.size() - 1 - tail) == after.at(after.size() - 1 - tail)) {
        ++tail;
    }
    const int start = change.range.start() + head;
    const int end = change.range.end() - tail;
    const QString text = after.mid(head, after.size() - head - tail);
    if (start == end) {
        Place place;
        const bool fits = insertionPlace(places, start, head > 0, &place);
        edits->append({place, writer.written(text)});
        return fits;
    }
    const bool single = before.size() == after.size();
    for (int position = start; position < end; ++position) {
        const Place place = places.value(position);
        if (place.start < 0) {
            return false;
        }
        const QString part = single ? text.mid(position - start, 1)
            : position == start     ? text
                                    : QString();
        edits->append({place, writer.written(part)});
    }
    return true;
}

QString edited(const QString &source, const QVector<Edit> &edits)
{
    QString result;
    result.reserve(source.size());
    int done = 0;
    for (const Edit &edit : edits) {
        result += source.midRef(done, edit.place.start - done);
        result += edit.text;
        done = edit.place.end();
    }
    return result + source.midRef(done);
}

bool changedSource(const DocumentInput &input, const QString &source,
                   const QVector<MRVTextChange> &changes, QString *result, QString *error)
{
    const QString text = input.document->toRawText();
    const Places places = input.format == QLatin1String("text")
        ? plainPlaces(source)
        : Alignment(source, text, input.format == QLatin1String("html")).places();
    const Writer writer(input, source);
    QVector<Edit> edits;
    for (const MRVTextChange &change : changes) {
        // A new end of a paragraph would have to be told in markup.
        const bool parts = input.format != QLatin1String("text")
            && change.after.contains(QChar::ParagraphSeparator);
        if (parts || !appendEdits(change, places, writer, &edits)) {
            const QTextBlock block = input.document->findBlock(change.range.start());
            *error = QStringLiteral("the change in paragraph %1 does not fit into the markup there")
                         .arg(block.blockNumber() + 1);
            return false;
        }
    }
    *result = edited(source, edits);
    return true;
}

QString writtenAnew(const DocumentInput &input)
{
    if (input.format == QLatin1String("html")) {
        return input.document->toHtml(input.encoding);
    }
    if (input.format == QLatin1String("markdown")) {
        return input.document->toMarkdown();
    }
    return input.document->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

// Blanks side by side, and at an end of a line, are no text where there is markup.
QString comparable(const QTextDocument &document, const QString &format)
{
    const QString text = document.toRawText();
    if (format == QLatin1String("text")) {
        return text;
    }
    QString result;
    result.reserve(text.size());
    bool blank = false;
    for (const QChar character : text) {
        if (isBlank(character)) {
            blank = true;
            continue;
        }
        if (blank && !result.isEmpty() && !isStructure(character)
            && !isStructure(result.at(result.size() - 1))) {
            result += u' ';
        }
        result += character;
        blank = false;
    }
    return result;
}

// A byte order mark is written where there was one; that is known by writing the old text first.
bool encoded(const QString &text, const QString &source, const DocumentInput &input,
             QByteArray *bytes, QString *error)
{
    const QTextCodec *codec = QTextCodec::codecForName(input.encoding);
    for (const auto flag : {QTextCodec::IgnoreHeader, QTextCodec::DefaultConversion}) {
        QTextCodec::ConverterState before(flag);
        if (codec->fromUnicode(source.constData(), source.size(), &before) != input.bytes) {
            continue;
        }
        QTextCodec::ConverterState state(flag);
        const QByteArray result = codec->fromUnicode(text.constData(), text.size(), &state);
        if (state.invalidChars > 0 || state.remainingChars > 0) {
            *error = QStringLiteral("the encoding %1 does not have all characters of the new text")
                         .arg(QString::fromLatin1(input.encoding));
            return false;
        }
        *bytes = result;
        return true;
    }
    *error = QStringLiteral("the encoding %1 cannot be written back as it was")
                 .arg(QString::fromLatin1(input.encoding));
    return false;
}

} // namespace

QString sourceText(const DocumentInput &input)
{
    QTextCodec::ConverterState state;
    return QTextCodec::codecForName(input.encoding)
        ->toUnicode(input.bytes.constData(), input.bytes.size(), &state);
}

bool changedBytes(const DocumentInput &input, const QVector<MRVTextChange> &changes, bool anew,
                  QByteArray *bytes, QString *error)
{
    const QString source = sourceText(input);
    QString text;
    if (!anew && !changedSource(input, source, changes, &text, error)) {
        return false;
    }
    if (MRVTextReplacer::apply(input.document.get(), changes) != changes.size()) {
        *error = QStringLiteral("the changes exclude each other");
        return false;
    }
    if (anew) {
        text = writtenAnew(input);
    }
    if (comparable(*newDocument(text, input.format), input.format)
        != comparable(*input.document, input.format)) {
        *error = QStringLiteral("the new text would not be read back as it is");
        return false;
    }
    return encoded(text, source, input, bytes, error);
}
