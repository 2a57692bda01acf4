#include "markdown/mrvfrontmatter.h"

#include "markdown/mrvfrontmatter_p.h"
#include "markdown/mrvmarkdownhead.h"
#include "util/mrvnames.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QVector>

#include <algorithm>
#include <climits>

namespace {

enum Field { Unknown, Other, Title, Author, Description, Language, Date };

// A block without one of these is text: a scene may begin with "Note: he came" or, after a line of
// hyphens, be a dialogue. Other are keys that many programs write and this one does not need.
constexpr struct
{
    const char *key;
    Field field;
} knownKeys[] = {
    {"title", Title},
    {"author", Author},
    {"authors", Author},
    {"creator", Author},
    {"description", Description},
    {"summary", Description},
    {"abstract", Description},
    {"lang", Language},
    {"language", Language},
    {"date", Date},
    {"bibliography", Other},
    {"categories", Other},
    {"category", Other},
    {"copyright", Other},
    {"cover-image", Other},
    {"css", Other},
    {"draft", Other},
    {"identifier", Other},
    {"isbn", Other},
    {"keywords", Other},
    {"layout", Other},
    {"permalink", Other},
    {"publisher", Other},
    {"rights", Other},
    {"series", Other},
    {"slug", Other},
    {"status", Other},
    {"subject", Other},
    {"subtitle", Other},
    {"tags", Other},
    {"toc", Other},
    {"version", Other},
    {"weight", Other},
};

Field fieldOf(const QString &key)
{
    for (const auto &row : knownKeys) {
        if (key == QLatin1String(row.key)) {
            return row.field;
        }
    }
    return Unknown;
}

struct Entry
{
    QString key; // in lower case
    int line; // from 1
    QString value; // what stands in the line of the key
    QStringList lines; // those that continue it, with their indents
};

/** The lines of a text, one after the other, without their ends. */
class Lines
{
public:
    explicit Lines(const QString &text)
        : m_text(text)
        , m_at(text.startsWith(QChar::ByteOrderMark) ? 1 : 0)
    {
    }

    bool atEnd() const { return m_at >= m_text.size(); }
    int position() const { return m_at; }
    int number() const { return m_number; } // of the last line, from 1

    QString next()
    {
        const int start = m_at;
        ++m_number;
        while (m_at < m_text.size() && m_text.at(m_at) != u'\n' && m_text.at(m_at) != u'\r') {
            ++m_at;
        }
        const QString line = m_text.mid(start, m_at - start);
        m_at += m_text.midRef(m_at, 2) == QLatin1String("\r\n") ? 2 : 1;
        return line;
    }

private:
    const QString m_text;
    int m_at;
    int m_number = 0;
};

/** The text of a value in quotes. */
QString unquoted(const QString &text)
{
    const QChar quote = text.at(0);
    QString result;
    for (int i = 1; i < text.size(); ++i) {
        QChar c = text.at(i);
        if (c == quote) {
            if (quote == u'"' || i + 1 == text.size() || text.at(i + 1) != quote) {
                break;
            }
            ++i; // two single quotes stand for one
        } else if (c == u'\\' && quote == u'"' && i + 1 < text.size()) {
            c = text.at(++i);
            c = c == u'n' || c == u't' ? QChar(u' ') : c;
        }
        result += c;
    }
    return result;
}

QString scalar(const QString &text)
{
    static const QRegularExpression comment(QStringLiteral("(?:^|\\s)#.*$"));
    const QString value = text.trimmed();
    if (value.startsWith(u'"') || value.startsWith(u'\'')) {
        return unquoted(value).trimmed();
    }
    // References, tags and maps are not read.
    if (value.isEmpty() || QStringView(u"&*!{~").contains(value.at(0))
        || value == QLatin1String("null")) {
        return QString();
    }
    return QString(value).remove(comment).trimmed();
}

QStringList flowList(const QString &text)
{
    QStringList items;
    QString item;
    QChar quote;
    for (const QChar c : text.mid(1)) {
        if (quote.isNull() && (c == u',' || c == u']')) {
            items.append(scalar(item));
            item.clear();
            if (c == u']') {
                break;
            }
            continue;
        }
        if (c == quote) {
            quote = QChar();
        } else if (quote.isNull() && item.trimmed().isEmpty() && (c == u'"' || c == u'\'')) {
            quote = c;
        }
        item += c;
    }
    return items;
}

/** A text below "|", which keeps its lines, or ">", which joins those of a paragraph. */
QString blockText(const QStringList &lines, bool folded)
{
    QString text;
    for (const QString &line : lines) {
        const QString words = line.trimmed();
        const bool joined = folded && !words.isEmpty();
        if (!text.isEmpty() && !(joined && text.endsWith(u'\n'))) {
            text += joined ? u' ' : u'\n';
        }
        text += words;
    }
    return text.trimmed();
}

/** Reads the lines below a key: a list, of whose maps only the names count, or one such map. */
class Items
{
public:
    explicit Items(const Entry &entry)
        : m_keepsPairs(entry.key.startsWith(QLatin1String("contributor")))
    {
        for (const QString &line : entry.lines) {
            read(line);
        }
    }

    QStringList values() const
    {
        QStringList values;
        for (const QString &text : m_texts) {
            values.append(scalar(text));
        }
        return values;
    }
    /** The keys of maps that were not read. */
    QStringList otherKeys() const { return m_otherKeys; }

private:
    void read(const QString &line)
    {
        static const QRegularExpression marker(QStringLiteral("^-\\s+"));
        static const QRegularExpression pair(QStringLiteral("^([\\w-]+):(?:\\s+(.*))?$"));
        const QString text = line.trimmed();
        if (text.startsWith(u'#')) {
            return;
        }
        const int indent = line.indexOf(text);
        const QRegularExpressionMatch mark = marker.match(text);
        const bool isItem = mark.hasMatch() && (m_itemIndent < 0 || indent == m_itemIndent);
        const int begin = isItem ? mark.capturedLength() : 0;
        const QRegularExpressionMatch match = pair.match(text.mid(begin));
        const bool isName = match.captured(1) == QLatin1String("name");
        if (isItem || (m_keyIndent < 0 && match.hasMatch())) {
            // "- editor: Name" is a map for YAML.
            const bool isMap = match.hasMatch() && (isName || !m_keepsPairs);
            m_itemIndent = isItem ? indent : m_itemIndent;
            m_keyIndent = isMap ? indent + begin : None;
        }
        const bool isKey = match.hasMatch() && indent + begin == m_keyIndent;
        if (isKey && !isName) {
            m_otherKeys.append(match.captured(1));
            m_textIndent = None;
        } else if (isKey || isItem) {
            m_texts.append(isKey ? match.captured(2) : text.mid(begin));
            m_textIndent = isKey ? m_keyIndent : m_itemIndent;
        } else if (indent > m_textIndent) {
            m_texts.last() += u' ' + text;
        }
    }

    static constexpr int None = INT_MAX; // nothing is indented as far

    const bool m_keepsPairs;
    int m_itemIndent = -1;
    int m_keyIndent = -1; // of the map that is being read
    int m_textIndent = None; // what is indented further continues the last text
    QStringList m_texts;
    QStringList m_otherKeys;
};

/**
 * The values of an entry in YAML; empty where they are not understood.
 *
 * @param otherKeys receives those of maps whose names are the values.
 */
QStringList valuesOf(const Entry &entry, QStringList *otherKeys)
{
    static const QRegularExpression block(QStringLiteral("^([|>])[-+0-9]*\\s*(?:#.*)?$"));
    static const QRegularExpression mapping(QStringLiteral("^\\s*[\\w-]+:(?:\\s|$)"));
    const QRegularExpressionMatch header = block.match(entry.value);
    if (header.hasMatch()) {
        return {blockText(entry.lines, header.capturedView(1) == u">")};
    }
    if (entry.value.startsWith(u'[')) {
        return flowList(entry.value + entry.lines.join(u' '));
    }
    const auto isText = [](const QString &line) {
        return !line.trimmed().isEmpty() && !line.trimmed().startsWith(u'#');
    };
    const auto begin = std::find_if(entry.lines.begin(), entry.lines.end(), isText);
    const QString first = begin == entry.lines.end() ? QString() : begin->trimmed();
    const bool isMap = mapping.match(first).hasMatch();
    if (!scalar(entry.value).isEmpty() || !(isMap || first.startsWith(u'-'))) {
        return isMap ? QStringList()
                     : QStringList(scalar(entry.value + u' ' + blockText(entry.lines, true)));
    }
    const Items items(entry);
    if (!items.values().isEmpty()) {
        *otherKeys = items.otherKeys();
        otherKeys->removeDuplicates();
    }
    return items.values();
}

/** Adds what an entry says, and the other keys of its maps as entries without values. */
void append(const Entry &entry, bool yaml, QVector<MRVMetadataEntry> *entries)
{
    const QString text = (entry.value + u' ' + blockText(entry.lines, true)).trimmed();
    if (text.isEmpty() || (yaml && (text == QLatin1String("null") || text == u'~'))) {
        return;
    }
    QStringList otherKeys;
    QStringList values = yaml ? valuesOf(entry, &otherKeys) : QStringList(text);
    values.removeAll(QString());
    entries->append({entry.key, values, entry.line});
    for (const QString &key : qAsConst(otherKeys)) {
        entries->append({entry.key + u'.' + key, {}, entry.line});
    }
}

void store(Field field, const QStringList &values, MRVMarkdownHead *head)
{
    for (const QString &value : values) {
        if (value.isEmpty()) {
            continue;
        }
        if (field == Author) {
            head->authors.append(value);
            continue;
        }
        QString *const text = field == Title ? &head->title
            : field == Description           ? &head->description
            : field == Language              ? &head->language
            : field == Date                  ? &head->date
                                             : nullptr;
        if (text && text->isEmpty()) {
            *text = field == Language ? MRV::languageTag(value) : value;
        }
    }
}

/** Adds a line to the entries; false where it cannot be one of the block. */
bool addLine(const QString &line, int number, const QRegularExpression &key, bool yaml,
             QVector<Entry> *entries)
{
    const QRegularExpressionMatch match = key.match(line);
    if (match.hasMatch()) {
        entries->append({match.captured(1).toLower(), number, match.captured(2).trimmed(), {}});
        return true;
    }
    if (yaml && line.startsWith(u'#')) {
        return true;
    }
    const bool continues = line.startsWith(u' ') || line.startsWith(u'\t')
        || (yaml && (line.isEmpty() || line.startsWith(QLatin1String("- "))));
    if (entries->isEmpty() || !continues) {
        return yaml && line.trimmed().isEmpty();
    }
    entries->last().lines.append(line);
    return true;
}

bool has(const QVector<Entry> &entries, std::initializer_list<Field> fields)
{
    for (const Entry &entry : entries) {
        if (std::find(fields.begin(), fields.end(), fieldOf(entry.key)) != fields.end()) {
            return true;
        }
    }
    return false;
}

const QRegularExpression &yamlKey()
{
    static const QRegularExpression key(
        QStringLiteral("^[\"']?([A-Za-z_][\\w.-]*)[\"']?\\s*:(?:\\s+(.*))?$"));
    return key;
}

/** What MRVMarkdownHead has no members for and can be written; each key once, as in YAML. */
QVector<MRVMetadataEntry> othersOf(const QVector<MRVMetadataEntry> &entries)
{
    static const QRegularExpression key(QStringLiteral("^[A-Za-z_][\\w.-]*$"));
    QVector<MRVMetadataEntry> others;
    QHash<QString, int> places;
    for (const MRVMetadataEntry &entry : entries) {
        QStringList values = entry.values;
        values.removeAll(QString());
        const Field field = fieldOf(entry.key);
        if (values.isEmpty() || (field != Unknown && field != Other)
            || !key.match(entry.key).hasMatch()) {
            continue;
        }
        const int place = places.value(entry.key, others.size());
        if (place == others.size()) {
            places.insert(entry.key, place);
            others.append({entry.key, {}, 0});
        }
        others[place].values += values;
    }
    return others;
}

/** In quotes where it is another thing than a text for YAML. */
QString writtenKey(const QString &key)
{
    static const QRegularExpression special(
        QStringLiteral("^(?:null|true|false|yes|no|on|off|y|n)$"),
        QRegularExpression::CaseInsensitiveOption);
    return special.match(key).hasMatch() ? u'"' + key + u'"' : key;
}

bool isFence(const QString &line)
{
    static const QRegularExpression fence(QStringLiteral("^(?:---|\\.\\.\\.)\\s*$"));
    return fence.match(line).hasMatch();
}

/** The length of a block of YAML, its fences included; 0 where the text begins with none. */
int readYaml(const QString &text, QVector<Entry> *entries)
{
    Lines lines(text);
    const QString opening = lines.next();
    if (!opening.startsWith(u'-') || !isFence(opening)) {
        return 0;
    }
    while (!lines.atEnd()) {
        const QString line = lines.next();
        if (isFence(line)) {
            const bool known = has(*entries, {Other, Title, Author, Description, Language, Date});
            return known ? qMin(lines.position(), text.size()) : 0;
        }
        if (!addLine(line, lines.number(), yamlKey(), true, entries)) {
            break;
        }
    }
    return 0;
}

/** The length of "Title: ..." lines; 0 where the text begins with none. */
int readTitleLines(const QString &text, QVector<Entry> *entries)
{
    static const QRegularExpression key(QStringLiteral("^([A-Za-z][\\w -]*+):(?:\\s+(.*))?$"));
    Lines lines(text);
    while (!lines.atEnd()) {
        const int start = lines.position();
        const QString line = lines.next();
        if (line.trimmed().isEmpty()) {
            return has(*entries, {Title, Author, Language}) ? start : 0;
        }
        if (!addLine(line, lines.number(), key, false, entries)
            || fieldOf(entries->first().key) == Unknown) {
            break;
        }
    }
    return 0;
}

} // namespace

QString mrvTakeFrontMatter(const QString &markdown, MRVMarkdownHead *head)
{
    QVector<Entry> entries;
    int length = readYaml(markdown, &entries);
    const bool yaml = length > 0;
    if (!yaml) {
        entries.clear();
        length = readTitleLines(markdown, &entries);
    }
    if (length == 0) {
        return markdown;
    }
    QVector<MRVMetadataEntry> read;
    for (const Entry &entry : qAsConst(entries)) {
        append(entry, yaml, &read);
    }
    *head = MRVFrontMatter::head(read);
    // The numbers of the lines below stay.
    static const QRegularExpression words(QStringLiteral("[^\\r\\n]+"));
    return markdown.left(length).remove(words) + markdown.midRef(length);
}

int MRVFrontMatter::read(const QString &text, QVector<MRVMetadataEntry> *entries)
{
    QVector<Entry> read;
    Lines lines(text);
    int refused = 0;
    while (!lines.atEnd() && refused == 0) {
        const QString line = lines.next();
        if (isFence(line)) {
            if (!read.isEmpty()) {
                break;
            }
        } else if (!addLine(line, lines.number(), yamlKey(), true, &read)) {
            refused = lines.number();
        }
    }
    for (const Entry &entry : qAsConst(read)) {
        append(entry, true, entries);
    }
    return refused;
}

MRVMarkdownHead MRVFrontMatter::head(const QVector<MRVMetadataEntry> &entries)
{
    MRVMarkdownHead head;
    for (const MRVMetadataEntry &entry : entries) {
        store(fieldOf(entry.key), entry.values, &head);
    }
    head.authors.removeDuplicates();
    head.entries = entries;
    return head;
}

QString MRVFrontMatter::write(const MRVMarkdownHead &head)
{
    const auto quoted = [](const QString &text) {
        static const QRegularExpression special(QStringLiteral("([\\\\\"])"));
        return u'"' + text.simplified().replace(special, QStringLiteral("\\\\1")) + u'"';
    };
    QString lines;
    const auto add = [&](const QString &key, const QStringList &values, bool isList) {
        if (isList) {
            lines += key + QLatin1String(":\n");
        }
        for (const QString &value : values) {
            lines +=
                (isList ? QStringLiteral("- ") : key + QLatin1String(": ")) + quoted(value) + u'\n';
        }
    };
    const auto addText = [&](QLatin1String key, const QString &value) {
        if (!value.isEmpty()) {
            add(key, {value}, false);
        }
    };
    addText(QLatin1String("title"), head.title);
    if (!head.authors.isEmpty()) {
        add(QStringLiteral("author"), head.authors, true);
    }
    addText(QLatin1String("description"), head.description);
    addText(QLatin1String("language"), head.language);
    addText(QLatin1String("date"), head.date);
    bool isFrontMatter = !lines.isEmpty(); // without a key that is known, it would be text
    const QVector<MRVMetadataEntry> others = othersOf(head.entries);
    for (const MRVMetadataEntry &entry : others) {
        add(writtenKey(entry.key), entry.values, entry.values.size() > 1);
        isFrontMatter = isFrontMatter || fieldOf(entry.key) == Other;
    }
    return isFrontMatter ? QLatin1String("---\n") + lines + QLatin1String("---\n") : QString();
}

QStringList MRVFrontMatter::lostKeys(const MRVMarkdownHead &head)
{
    QVector<MRVMetadataEntry> entries;
    read(write(head), &entries);
    QSet<QString> written;
    for (const MRVMetadataEntry &entry : qAsConst(entries)) {
        written += QSet<QString>(entry.values.begin(), entry.values.end());
    }
    QStringList lost;
    for (const MRVMetadataEntry &entry : head.entries) {
        const auto isWritten = [&](const QString &value) {
            return written.contains(value.simplified());
        };
        if (entry.values.isEmpty()
            || !std::all_of(entry.values.cbegin(), entry.values.cend(), isWritten)) {
            lost.append(entry.key);
        }
    }
    lost.removeDuplicates();
    return lost;
}
