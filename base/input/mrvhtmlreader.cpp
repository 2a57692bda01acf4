#include "input/mrvhtmlreader.h"

#include "util/mrvnames.h"

#include "core/mrvinputlimits.h"

#include <QHash>
#include <QRegularExpression>
#include <QTextCodec>
#include <QTextDocument>
#include <QVector>

#include <array>

namespace {

struct Tag
{
    QString name; // in lower case
    QStringView attributes;
    bool end = false; // "</name>"
    bool whole = false; // "<name/>", or an element that has no content
};

constexpr const char *voidElements[] = {"area", "base",  "br",     "col",  "embed", "hr",  "img",
                                        "link", "input", "source", "meta", "param", "wbr", "track"};

// Elements that end where another of their group begins, unless a list or a table begins between
// them.
constexpr int NoGroup = 0;
constexpr struct
{
    const char *name;
    int group;
} selfEnding[] = {
    {"p", 1},  {"li", 2},    {"dt", 3},    {"dd", 3},    {"td", 4},     {"th", 4},
    {"tr", 5}, {"thead", 6}, {"tbody", 6}, {"tfoot", 6}, {"option", 7},
};

constexpr const char *barriers[] = {"ul", "ol", "dl", "table", "select"};

template<typename Names>
bool contains(const Names &names, const QString &name)
{
    for (const char *known : names) {
        if (name == QLatin1String(known)) {
            return true;
        }
    }
    return false;
}

int groupOf(const QString &name)
{
    for (const auto &row : selfEnding) {
        if (name == QLatin1String(row.name)) {
            return row.group;
        }
    }
    return NoGroup;
}

// Reads the tags of a page one by one, without comments, declarations and the content of scripts
// and styles.
class TagReader
{
public:
    explicit TagReader(const QString &html)
        : m_html(html)
    {
    }

    bool next(Tag *tag)
    {
        while ((m_at = m_html.indexOf(u'<', m_at)) >= 0) {
            if (m_html.midRef(m_at, 4) == QLatin1String("<!--")) {
                const int end = m_html.indexOf(QLatin1String("-->"), m_at + 2);
                m_at = end < 0 ? m_html.size() : end + 3;
            } else if (read(tag)) {
                return true;
            }
        }
        return false;
    }

private:
    bool read(Tag *tag)
    {
        tag->end = m_at + 1 < m_html.size() && m_html[m_at + 1] == u'/';
        const int begin = m_at + (tag->end ? 2 : 1);
        int after = begin;
        while (after < m_html.size()
               && (m_html[after].isLetterOrNumber() || m_html[after] == u':')) {
            ++after;
        }
        m_at = after;
        if (after == begin || !m_html[begin].isLetter()) {
            return false;
        }
        m_at = endOf(after);
        tag->name = m_html.mid(begin, after - begin).toLower();
        tag->attributes = QStringView(m_html).mid(after, m_at - after);
        tag->whole = tag->attributes.endsWith(u'/') || contains(voidElements, tag->name);
        if (!tag->end
            && (tag->name == QLatin1String("script") || tag->name == QLatin1String("style"))) {
            const int end =
                m_html.indexOf(QLatin1String("</") + tag->name, m_at, Qt::CaseInsensitive);
            m_at = end < 0 ? m_html.size() : end;
        }
        return true;
    }

    // Where the tag's ">" is; one in quotes does not count.
    int endOf(int at) const
    {
        QChar quote;
        for (; at < m_html.size(); ++at) {
            const QChar c = m_html[at];
            if (quote.isNull() ? c == u'>' : c == quote) {
                if (quote.isNull()) {
                    return at;
                }
                quote = QChar();
            } else if (quote.isNull() && (c == u'"' || c == u'\'') && m_html[at - 1] == u'=') {
                quote = c;
            }
        }
        return at;
    }

    const QString &m_html;
    int m_at = 0;
};

QString plainText(QString value)
{
    QTextDocument plain;
    plain.setHtml(value.replace(u'<', QLatin1String("&lt;")));
    return plain.toPlainText().simplified();
}

// The value of the first of the names that the tag has.
QString attribute(const Tag &tag, const QString &name)
{
    static const QRegularExpression pattern(
        QStringLiteral("([^\\s=\"'/]+)\\s*=\\s*(?:\"([^\"]*)\"|'([^']*)'|([^\\s\"'>]+))"));
    for (auto it = pattern.globalMatch(tag.attributes.toString()); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        if (match.captured(1).compare(name, Qt::CaseInsensitive) == 0) {
            return plainText(match.captured(match.lastCapturedIndex()));
        }
    }
    return QString();
}

void readMeta(const Tag &tag, MRVHtmlHead *head, QString *creator)
{
    const QString content = attribute(tag, QStringLiteral("content"));
    QString name = attribute(tag, QStringLiteral("name")).toLower();
    for (const char *prefix : {"dc.", "dcterms."}) {
        if (name.startsWith(QLatin1String(prefix))) {
            name.remove(0, int(qstrlen(prefix)));
        }
    }
    if (content.isEmpty()) {
        return;
    }
    if (name == QLatin1String("author") && !head->authors.contains(content)) {
        head->authors.append(content);
    } else if (name == QLatin1String("creator") && creator->isEmpty()) {
        *creator = content;
    } else if (name == QLatin1String("description") && head->description.isEmpty()) {
        head->description = content;
    } else if (name == QLatin1String("language") && head->language.isEmpty()) {
        head->language = MRV::languageTag(content);
    }
}

// Elements that a parser opens again in each paragraph after the one that they were left open in.
constexpr const char *formatting[] = {"b", "big",   "code",   "em",     "font", "i",
                                      "s", "small", "strike", "strong", "tt",   "u"};

/** The elements of formatting that are open in a cell, or outside of cells. */
class OpenFormatting
{
public:
    int count() const { return m_count; }

    // Of equal ones, a parser keeps three.
    void begin(const Tag &tag)
    {
        constexpr int MostEqual = 3;
        const QString whole = tag.name + u' ' + tag.attributes.toString();
        if (m_equal.value(whole) < MostEqual) {
            ++m_equal[whole];
            m_open[tag.name].append(whole);
            ++m_count;
        }
    }

    void end(const QString &name)
    {
        const auto open = m_open.find(name);
        if (open != m_open.end() && !open->isEmpty()) {
            --m_equal[open->takeLast()];
            --m_count;
        }
    }

private:
    QHash<QString, int> m_equal; // by name and attributes
    QHash<QString, QStringList> m_open; // by name
    int m_count = 0;
};

/** The elements that are open at a place of a page. */
class OpenElements
{
public:
    int depth() const { return m_elements.size() + m_formatting.constLast().count(); }
    qint64 repeats() const { return m_repeats; }

    void begin(const Tag &tag)
    {
        if (contains(formatting, tag.name)) {
            m_formatting.last().begin(tag);
        } else {
            m_repeats += m_formatting.constLast().count();
        }
        const int group = groupOf(tag.name);
        if (group != NoGroup && m_groups.at(group) > 0) {
            int last = m_elements.size() - 1;
            while (m_elements.at(last).group != group) {
                --last;
            }
            shrink(last);
        }
        if (!tag.whole) {
            push(tag.name, group);
        }
    }

    void end(const QString &name)
    {
        m_formatting.last().end(name);
        // Tags that end nothing must not cost a search each.
        if (m_counts.value(name) > 0) {
            int last = m_elements.size() - 1;
            while (m_elements.at(last).name != name) {
                --last;
            }
            shrink(last);
        }
    }

private:
    using Groups = std::array<int, 8>; // how many are open since the last barrier

    struct Element
    {
        QString name;
        int group;
        bool isBarrier;
        Groups groups; // those outside, for a barrier
    };

    static bool isCell(const QString &name)
    {
        return name == QLatin1String("td") || name == QLatin1String("th")
            || name == QLatin1String("caption");
    }

    void push(const QString &name, int group)
    {
        const bool isBarrier = contains(barriers, name);
        m_elements.append({name, group, isBarrier, m_groups});
        ++m_counts[name];
        if (isBarrier) {
            m_groups.fill(0);
        } else {
            ++m_groups[group];
        }
        if (isCell(name)) {
            m_formatting.append(OpenFormatting());
        }
    }

    void shrink(int count)
    {
        while (m_elements.size() > count) {
            const Element element = m_elements.takeLast();
            --m_counts[element.name];
            if (element.isBarrier) {
                m_groups = element.groups;
            } else {
                --m_groups[element.group];
            }
            if (isCell(element.name)) {
                m_formatting.removeLast();
            }
        }
    }

    QVector<Element> m_elements;
    QHash<QString, int> m_counts; // by name
    Groups m_groups{};
    QVector<OpenFormatting> m_formatting{1}; // by cells in each other
    qint64 m_repeats = 0;
};

// Those that a tag has at least: a value in quotes may hold anything.
int attributeCount(QStringView attributes)
{
    int count = 0;
    QChar quote;
    bool inside = false;
    for (const QChar character : attributes) {
        if (!quote.isNull()) {
            quote = character == quote ? QChar() : quote;
        } else if (character.isSpace() || character == u'/') {
            inside = false;
        } else {
            count += inside ? 0 : 1;
            inside = true;
            if (character == u'"' || character == u'\'') {
                quote = character;
                inside = false; // another attribute may follow without a blank
            }
        }
    }
    return count;
}

} // namespace

MRVHtmlHead MRVHtmlReader::head(const QString &html)
{
    MRVHtmlHead head;
    QString creator;
    TagReader reader(html);
    for (Tag tag; reader.next(&tag) && tag.name != QLatin1String("body");) {
        if (tag.name == QLatin1String("html") && !tag.end) {
            for (const char *name : {"lang", "xml:lang"}) {
                if (head.language.isEmpty()) {
                    head.language = MRV::languageTag(attribute(tag, QLatin1String(name)));
                }
            }
        } else if (tag.name == QLatin1String("meta")) {
            readMeta(tag, &head, &creator);
        } else if (tag.name == QLatin1String("head") && tag.end) {
            break;
        }
    }
    if (head.authors.isEmpty() && !creator.isEmpty()) {
        head.authors.append(creator);
    }
    return head;
}

bool MRVHtmlReader::looksLikeHtml(const QByteArray &bytes)
{
    constexpr int StartSize = 64 * 1024;
    static const QRegularExpression prologue(
        QStringLiteral("^(?:\\x{FEFF}|\\s+|<\\?xml\\b[^>]*>|<!--.*?-->)*+"),
        QRegularExpression::DotMatchesEverythingOption);
    const QTextCodec *codec = QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName("UTF-8"));
    const QString start = codec->toUnicode(bytes.left(StartSize));
    const QString text = start.mid(prologue.match(start).capturedLength());
    // Not every text with a tag somewhere in it.
    return text.startsWith(u'<')
        && (text.startsWith(QLatin1String("<!doctype html"), Qt::CaseInsensitive)
            || Qt::mightBeRichText(text));
}

QString MRVHtmlReader::whyTooComplex(const QString &html)
{
    OpenElements open;
    TagReader reader(html);
    for (Tag tag; reader.next(&tag);) {
        if (tag.end) {
            open.end(tag.name);
        } else {
            open.begin(tag);
        }
        if (open.depth() > MRVInputLimits::HtmlDepth) {
            return tr("elements are nested more than %1 levels deep")
                .arg(MRVInputLimits::HtmlDepth);
        }
        if (tag.attributes.size() > MRVInputLimits::HtmlAttributes
            && attributeCount(tag.attributes) > MRVInputLimits::HtmlAttributes) {
            return tr("an element has more than %1 attributes").arg(MRVInputLimits::HtmlAttributes);
        }
        if (open.repeats() > MRVInputLimits::HtmlRepeats) {
            return tr("too many elements such as <%1> are left open").arg(QLatin1String("font"));
        }
    }
    return QString();
}
