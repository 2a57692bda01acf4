#include "markdown/mrvfrontmatter.h"

#include "markdown/mrvfrontmatter_p.h"
#include "markdown/mrvmarkdownhead.h"
#include "markdown/mrvyamlvalue_p.h"
#include "util/mrvnames.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QVector>

#include <algorithm>

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

/** What lines say that are no YAML: items after hyphens, or one text. */
QStringList plainTexts(const QStringList &lines)
{
    static const QRegularExpression marker(QStringLiteral("(?:^|\\n)[ \\t]*-[ \\t]"));
    const QString text = lines.join(u'\n').trimmed();
    QStringList texts = text.startsWith(u'-') ? text.split(marker) : QStringList(text);
    for (QString &one : texts) {
        one = one.simplified();
    }
    return texts;
}

/** Whether a line, though YAML, is meant as it stands: "#1 in Paris", "!Wow", "Salt & #2". */
bool isNoYaml(const QString &line)
{
    static const QRegularExpression tag(QStringLiteral("^(?:![^!]|&\\S*$)"));
    static const QRegularExpression number(
        QStringLiteral("^(?!['\"\\[{|>]).*(?:^|(?<=\\s))#[^\\s#]"));
    return tag.match(line).hasMatch() || number.match(line).hasMatch();
}

/** Adds what an entry says, and the other keys of its maps as entries without values. */
void append(const Entry &entry, bool yaml, QVector<MRVMetadataEntry> *entries)
{
    const QStringList lines = QStringList(entry.value) + entry.lines;
    MRVYamlValue value;
    // For YAML, "- editor: Name" is a map, and "title: Ahab: a Life" a mistake.
    const bool pairs = entry.key.startsWith(QLatin1String("contributor"));
    const bool isSingle = entry.lines.join(QString()).trimmed().isEmpty();
    const Field field = fieldOf(entry.key);
    const bool isProse = field != Language && field != Date; // in which "#" may begin a word
    const bool isLine = !yaml || (isSingle && isProse && isNoYaml(entry.value));
    if (isLine || !mrvReadYamlValue(lines.join(u'\n'), pairs, &value)) {
        value.texts = isLine ? QStringList(lines.join(u' ').simplified()) : plainTexts(lines);
        value.texts.removeAll(QString());
        value.isNull = value.texts.isEmpty();
    }
    if (value.isNull) {
        return;
    }
    entries->append({entry.key, value.texts, entry.line});
    for (const QString &key : qAsConst(value.otherKeys)) {
        if (!value.texts.isEmpty()) {
            entries->append({entry.key + u'.' + key, {}, entry.line});
        }
    }
}

void store(Field field, const QStringList &values, MRVMarkdownHead *head)
{
    for (const QString &value : values) {
        if (value.isEmpty()) {
            continue;
        }
        if (field == Author) {
            head->authors.append(value.simplified());
            continue;
        }
        QString *const text = field == Title ? &head->title
            : field == Description           ? &head->description
            : field == Language              ? &head->language
            : field == Date                  ? &head->date
                                             : nullptr;
        if (text && text->isEmpty()) {
            *text = field == Language  ? MRV::languageTag(value)
                : field == Description ? value
                                       : value.simplified();
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
    // Some formatters put the end of a list there.
    const bool ends = yaml && (line.startsWith(u']') || line.startsWith(u'}'));
    if (entries->isEmpty() || !(continues || ends)) {
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
        QStringLiteral("^[\"']?([\\p{L}_][\\p{L}\\p{N}_.-]*)[\"']?\\s*:(?:\\s+(.*))?$"));
    return key;
}

/** What MRVMarkdownHead has no members for and can be written; each key once, as in YAML. */
QVector<MRVMetadataEntry> othersOf(const QVector<MRVMetadataEntry> &entries)
{
    static const QRegularExpression key(QStringLiteral("^[\\p{L}_][\\p{L}\\p{N}_.-]*$"));
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
        QString escaped;
        for (const QChar c : text.simplified()) {
            escaped += c == u'"' || c == u'\\' ? QStringLiteral("\\") + c
                : mrvIsYamlControl(c)
                ? QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'))
                : QString(c);
        }
        return u'"' + escaped + u'"';
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
