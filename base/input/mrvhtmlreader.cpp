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
    int attributeCount = 0;
    bool end = false; // "</name>"
    bool whole = false; // "<name/>"
};

// What a parser does with kinds of elements, as the standard of HTML names it.
enum Trait : quint16 {
    Void = 1, // without content
    Raw = 2, // with text only, up to its end tag
    Special = 4, // ends the search for the element that an end tag ends
    Scope = 8, // as Special, for end tags of all elements but tables' parts
    Part = 16, // of a table; its end tag is looked for as far as the table
    Formatting = 32, // its end tag ends no blocks in it
    Leaving = 64, // ends drawings and formulas that are left open
    Ignored = 128, // the parser knows better where it begins and ends
};

constexpr struct
{
    int traits;
    const char *names; // between blanks
} kinds[] = {
    {Void, " area base br col embed hr img input link meta param source track wbr "},
    {Raw, " iframe noembed noframes plaintext script style textarea title xmp "},
    {Special | Scope, " applet marquee object template "},
    {Special | Scope | Part, " caption table td th "},
    {Special | Part, " tbody tfoot thead tr "},
    {Special,
     " address article aside blockquote button center dd details dir div dl dt fieldset figcaption "
     "figure footer form h1 h2 h3 h4 h5 h6 header hgroup isindex li listing main menu nav ol p pre "
     "section select summary ul "},
    {Formatting, " a b big code em font form i nobr s small strike strong tt u "},
    {Leaving,
     " b big blockquote body br center code dd div dl dt em embed h1 h2 h3 h4 h5 h6 head hr i img "
     "li "
     "listing menu meta nobr ol p pre ruby s small span strike strong sub sup table tt u ul var "},
    {Ignored, " body frame frameset head html "},
};

int traitsOf(const QString &name)
{
    static const QHash<QString, int> table = [] {
        QHash<QString, int> traits;
        for (const auto &kind : kinds) {
            const auto names = QString::fromLatin1(kind.names).split(u' ', Qt::SkipEmptyParts);
            for (const QString &known : names) {
                traits[known] |= kind.traits;
            }
        }
        return traits;
    }();
    return table.value(name);
}

// Elements that end where another of their group begins.
enum Group {
    NoGroup,
    ParagraphGroup,
    ItemGroup,
    TermGroup,
    CellGroup,
    RowGroup,
    RowsGroup,
    OptionGroup
};

constexpr struct
{
    const char *name;
    Group group;
} selfEnding[] = {
    {"p", ParagraphGroup}, {"li", ItemGroup},    {"dt", TermGroup},       {"dd", TermGroup},
    {"td", CellGroup},     {"th", CellGroup},    {"tr", RowGroup},        {"thead", RowsGroup},
    {"tbody", RowsGroup},  {"tfoot", RowsGroup}, {"option", OptionGroup},
};

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

Group groupOf(const QString &name)
{
    for (const auto &row : selfEnding) {
        if (name == QLatin1String(row.name)) {
            return row.group;
        }
    }
    return NoGroup;
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
}

bool isLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

// Reads the tags of a page one by one, as the standard of HTML says where they begin and end:
// without comments, declarations and the content of scripts and the like.
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
            tag->end = at(m_at + 1) == u'/';
            const int begin = m_at + (tag->end ? 2 : 1);
            if (isLetter(at(begin))) {
                return read(begin, tag);
            }
            if (m_isForeign && m_html.midRef(m_at, 9) == QLatin1String("<![CDATA[")) {
                m_at = endOf(QLatin1String("]]>"), begin);
            } else if (m_html.midRef(m_at, 4) == QLatin1String("<!--")) {
                m_at = endOfComment(m_at + 2);
            } else if (tag->end || at(begin) == u'!' || at(begin) == u'?') {
                m_at = endOf(QLatin1String(">"), begin);
            } else {
                m_at = begin;
            }
        }
        return false;
    }

    /** Whether the next tag is read in a drawing or a formula, which may have sections of text. */
    void setForeign(bool is) { m_isForeign = is; }

    /** Passes over the text of an element whose begin was read last, and which holds no tags. */
    void skipContent(const Tag &tag)
    {
        const QString end = QLatin1String("</") + tag.name;
        do {
            m_at = m_html.indexOf(end, m_at, Qt::CaseInsensitive);
            if (m_at < 0 || tag.name == QLatin1String("plaintext")) {
                m_at = m_html.size();
            } else if (endsName(at(m_at + end.size()))) {
                return;
            } else {
                ++m_at;
            }
        } while (m_at < m_html.size());
    }

private:
    QChar at(int place) const { return place < m_html.size() ? m_html.at(place) : QChar(); }
    static bool endsName(QChar c) { return isBlank(c) || c == u'/' || c == u'>'; }

    int endOf(QLatin1String mark, int from) const
    {
        const int found = m_html.indexOf(mark, from);
        return found < 0 ? m_html.size() : found + mark.size();
    }

    // "<!-->" and "<!--->" are whole.
    int endOfComment(int dashes) const
    {
        for (int i = dashes; (i = m_html.indexOf(QLatin1String("--"), i)) >= 0; ++i) {
            if (at(i + 2) == u'>') {
                return i + 3;
            }
            if (i >= dashes + 2 && at(i + 2) == u'!' && at(i + 3) == u'>') {
                return i + 4;
            }
        }
        return m_html.size();
    }

    bool read(int begin, Tag *tag)
    {
        m_at = begin;
        while (m_at < m_html.size() && !endsName(m_html.at(m_at))) {
            ++m_at;
        }
        const int after = m_at;
        tag->name = m_html.mid(begin, after - begin).toLower();
        tag->attributeCount = 0;
        tag->whole = false;
        while (m_at < m_html.size() && m_html.at(m_at) != u'>') {
            readAttribute(tag);
        }
        tag->attributes = QStringView(m_html).mid(after, m_at - after);
        return true;
    }

    // Up to a ">" or to what may be another attribute.
    void readAttribute(Tag *tag)
    {
        tag->whole = m_html.at(m_at) == u'/';
        if (tag->whole || isBlank(m_html.at(m_at))) {
            ++m_at;
            return;
        }
        ++tag->attributeCount;
        for (++m_at; !endsName(at(m_at)) && at(m_at) != u'=' && m_at < m_html.size();) {
            ++m_at;
        }
        skipBlanks();
        if (at(m_at) != u'=') {
            return;
        }
        ++m_at;
        skipBlanks();
        const QChar quote = at(m_at);
        if (quote == u'"' || quote == u'\'') {
            m_at = endOf(QLatin1String(quote == u'"' ? "\"" : "'"), m_at + 1);
            return;
        }
        while (m_at < m_html.size() && !isBlank(m_html.at(m_at)) && m_html.at(m_at) != u'>') {
            ++m_at;
        }
    }

    void skipBlanks()
    {
        while (isBlank(at(m_at))) {
            ++m_at;
        }
    }

    const QString &m_html;
    int m_at = 0;
    bool m_isForeign = false;
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
    if (!name.isEmpty()) {
        head->entries.append({name, {content}, 0});
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

/** The elements that are open at a place of a page, at least as many as a parser has open there. */
class OpenElements
{
public:
    int depth() const { return m_elements.size() + m_formatting.constLast().count(); }
    qint64 repeats() const { return m_repeats; }
    /** Whether the last element is part of a drawing or formula, where tags mean something else. */
    bool isForeign() const { return !m_elements.isEmpty() && m_elements.constLast().isForeign; }

    /** Whether a parser passes over a tag: a list of options holds nothing else. */
    bool ignores(const Tag &tag)
    {
        constexpr const char *options[] = {"option", "optgroup"};
        constexpr const char *known[] = {"option", "optgroup", "template", "script"};
        constexpr const char *ends[] = {"select", "input", "keygen", "textarea"};
        int last = m_elements.size() - 1;
        while (last >= 0 && contains(options, m_elements.at(last).name)) {
            --last;
        }
        if (last < 0 || m_elements.at(last).name != QLatin1String("select")) {
            return false;
        }
        const bool isPart = (traitsOf(tag.name) & Part) || tag.name == QLatin1String("table");
        if (tag.name == QLatin1String("select") || (!tag.end && contains(ends, tag.name))
            || (isPart && m_counts.value(QStringLiteral("table")) > 0)) {
            shrink(last);
            return tag.name == QLatin1String("select");
        }
        return !contains(known, tag.name);
    }

    void begin(const Tag &tag)
    {
        const int traits = traitsOf(tag.name);
        while (isForeign() && (traits & Leaving)) {
            shrink(m_elements.size() - 1);
        }
        if (contains(formatting, tag.name)) {
            m_formatting.last().begin(tag);
        } else {
            m_repeats += m_formatting.constLast().count();
        }
        if (tag.name == QLatin1String("a") || tag.name == QLatin1String("nobr")) {
            end(tag.name);
        }
        endGroup(groupOf(tag.name));
        const bool isWhole = (traits & (Void | Ignored)) || (tag.whole && startsForeign(tag.name));
        if (!isWhole) {
            push(tag.name, traits);
        }
    }

    void end(const QString &name)
    {
        m_formatting.last().end(name);
        const int traits = traitsOf(name);
        // Tags that end nothing must not cost a search each.
        if (m_counts.value(name) == 0 || (traits & Ignored)) {
            return;
        }
        const bool isInline = !(traits & (Special | Formatting));
        bool hasBlocks = false;
        for (int i = m_elements.size() - 1; i >= 0; --i) {
            const Element &element = m_elements.at(i);
            if (element.name == name) {
                if (hasBlocks && (traits & Formatting)) {
                    --m_counts[name];
                    m_elements.remove(i);
                } else {
                    shrink(i);
                }
                return;
            }
            hasBlocks = hasBlocks || (element.traits & Special);
            const bool isBarrier = (traits & Part) ? element.name == QLatin1String("table")
                                                   : (element.traits & Scope) != 0;
            if (isBarrier || (isInline && hasBlocks)) {
                return;
            }
        }
    }

private:
    struct Element
    {
        QString name;
        int traits;
        Group group;
        bool isForeign;
    };

    static bool isCell(const QString &name)
    {
        return name == QLatin1String("td") || name == QLatin1String("th")
            || name == QLatin1String("caption");
    }

    bool startsForeign(const QString &name) const
    {
        constexpr const char *roots[] = {"svg", "math"};
        constexpr const char *islands[] = {
            "foreignobject", "desc", "title", "annotation-xml", "mi", "mo", "mn", "ms", "mtext"};
        return contains(roots, name) || (isForeign() && !contains(islands, name));
    }

    // Ends the last element of a group, as where another one begins.
    void endGroup(int group)
    {
        for (int i = m_elements.size() - 1; i >= 0 && group != NoGroup; --i) {
            const Element &element = m_elements.at(i);
            if (element.group == group) {
                shrink(i);
                return;
            }
            if (keepsOpen(element, group)) {
                return;
            }
        }
    }

    // Whether elements of a group outside of this one stay open in it.
    static bool keepsOpen(const Element &element, int group)
    {
        constexpr const char *passed[] = {"p", "div", "address"};
        switch (group) {
        case ParagraphGroup:
            return (element.traits & Scope) || element.name == QLatin1String("button");
        case CellGroup:
        case RowGroup:
        case RowsGroup:
            return element.name == QLatin1String("table");
        default:
            return (element.traits & Special) && !contains(passed, element.name);
        }
    }

    void push(const QString &name, int traits)
    {
        m_elements.append({name, traits, groupOf(name), startsForeign(name)});
        ++m_counts[name];
        if (isCell(name)) {
            m_formatting.append(OpenFormatting());
        }
    }

    void shrink(int count)
    {
        while (m_elements.size() > count) {
            const Element element = m_elements.takeLast();
            --m_counts[element.name];
            if (isCell(element.name)) {
                m_formatting.removeLast();
            }
        }
    }

    QVector<Element> m_elements;
    QHash<QString, int> m_counts; // by name
    QVector<OpenFormatting> m_formatting{1}; // by cells in each other
    qint64 m_repeats = 0;
};

} // namespace

MRVHtmlHead MRVHtmlReader::head(const QString &html)
{
    MRVHtmlHead head;
    QString creator;
    TagReader reader(html);
    for (Tag tag; reader.next(&tag) && tag.name != QLatin1String("body");) {
        if (!tag.end && (traitsOf(tag.name) & Raw)) {
            reader.skipContent(tag);
        } else if (tag.name == QLatin1String("html") && !tag.end) {
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
    for (Tag tag; reader.next(&tag); reader.setForeign(open.isForeign())) {
        if (open.ignores(tag)) {
            continue;
        }
        if (tag.end) {
            open.end(tag.name);
        } else if ((traitsOf(tag.name) & Raw) && !open.isForeign()) {
            reader.skipContent(tag);
        } else {
            open.begin(tag);
        }
        if (open.depth() > MRVInputLimits::HtmlDepth) {
            return tr("elements are nested more than %1 levels deep")
                .arg(MRVInputLimits::HtmlDepth);
        }
        if (tag.attributeCount > MRVInputLimits::HtmlAttributes) {
            return tr("an element has more than %1 attributes").arg(MRVInputLimits::HtmlAttributes);
        }
        if (open.repeats() > MRVInputLimits::HtmlRepeats) {
            return tr("too many elements such as <%1> are left open").arg(QLatin1String("font"));
        }
    }
    return QString();
}
