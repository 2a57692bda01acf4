#include "xhtml/mrvhtmltag.h"

#include "xhtml/mrvhtmltext.h"

#include <algorithm>
#include <iterator>

namespace {

enum class Move {
    Drop,
    Value, // %1 is the value
    Length, // %1 is the value as a CSS length
    ListType,
    ListStart,
    TableAlign,
    Pixels, // stays an attribute, a whole number above 0; others mean a size that Qt does not know
};

struct AttributeRule
{
    const char *elements; // each between blanks
    const char *attribute;
    Move move;
    const char *declaration;
    bool html5Only;
};

// Attributes that Qt's HTML may have and that the document types of the pages lack.
// clang-format off
constexpr AttributeRule rules[] = {
    {" p h1 h2 h3 h4 h5 h6 pre li td ", "align",       Move::Value,      "text-align:%1;",              false},
    {" table hr ",                      "align",       Move::TableAlign, "",                            false},
    {" body table td ",                 "bgcolor",     Move::Value,      "background-color:%1;",        false},
    {" body table td ",                 "background",  Move::Value,      "background-image:url('%1');", false},
    {" td hr ",                         "width",       Move::Length,     "width:%1;",                   false},
    {" table ",                         "height",      Move::Length,     "height:%1;",                  false},
    {" ul ol ",                         "type",        Move::ListType,   "list-style-type:%1;",         false},
    {" ol ",                            "start",       Move::ListStart,  "counter-reset:list-item %1;", false},
    {" table ",                         "width",       Move::Length,     "width:%1;",                   true},
    {" table ",                         "border",      Move::Length,     "border:%1 outset;",           true},
    {" table ",                         "cellspacing", Move::Length,     "border-spacing:%1;",          true},
    {" table ",                         "cellpadding", Move::Drop,       "",                            true},
    {" img ",                           "width",       Move::Pixels,     "",                            false},
    {" img ",                           "height",      Move::Pixels,     "",                            false},
};

constexpr struct { const char *type; const char *style; } listTypes[] = {
    {"a", "lower-alpha"}, {"A", "upper-alpha"}, {"i", "lower-roman"}, {"I", "upper-roman"},
    {"1", "decimal"},     {"circle", "circle"}, {"square", "square"}, {"disc", "disc"},
};
// clang-format on

QString cssLength(const QString &value)
{
    return value.endsWith(u'%') ? value : value + QLatin1String("px");
}

QString declaration(const AttributeRule &rule, const QString &value)
{
    const QString pattern = QString::fromLatin1(rule.declaration);
    switch (rule.move) {
    case Move::Value:
        // An escaped quote in a url would end it early: the address is escaped once more as an
        // address.
        return value.isEmpty() ? QString()
                               : pattern.arg(QString(value).replace(u'\'', QLatin1String("%27")));
    case Move::Length:
        return value.isEmpty() ? QString() : pattern.arg(cssLength(value));
    case Move::ListType:
        for (const auto &list : listTypes) {
            if (value == QLatin1String(list.type)) {
                return pattern.arg(QLatin1String(list.style));
            }
        }
        break;
    case Move::ListStart: // %1 is what the first item adds 1 to
        return pattern.arg(value.toInt() - 1);
    case Move::TableAlign:
    case Move::Drop:
    case Move::Pixels:
        break;
    }
    return QString();
}

// Qt writes the margins of a table, too; the alignment overrides those of the aligned sides.
void alignTable(MRVHtmlTag *tag, const QString &alignment)
{
    const bool right = alignment == QLatin1String("right");
    if (!right && alignment != QLatin1String("center")) {
        return;
    }
    QString kept;
    const QString old = tag->take(QLatin1String("style"));
    const QVector<QStringView> declarations = MRVHtmlText::declarations(old);
    for (const QStringView declaration : declarations) {
        const QStringView property = declaration.left(declaration.indexOf(u':')).trimmed();
        if (property != QLatin1String("margin-left") && property != QLatin1String("margin-right")) {
            kept += declaration.toString() + u';';
        }
    }
    tag->addStyle(kept
                  + QLatin1String(right ? " margin-left:auto; margin-right:0px;"
                                        : " margin-left:auto; margin-right:auto;"));
}

void applyRules(MRVHtmlTag *tag, MRVHtmlDialect dialect)
{
    const QString element = u' ' + tag->name + u' ';
    for (const AttributeRule &rule : rules) {
        const QLatin1String name(rule.attribute);
        const int index = tag->indexOf(name);
        const bool isHtml5 = dialect == MRVHtmlDialect::Html5;
        if (index < 0 || (rule.html5Only && !isHtml5) || (rule.move == Move::ListStart && isHtml5)
            || !QLatin1String(rule.elements).contains(element)) {
            continue;
        }
        if (rule.move == Move::Pixels) {
            const double length = tag->attributes.at(index).value.toDouble();
            if (length < 0.5 || length > 1e6) {
                tag->take(name);
            } else {
                tag->attributes[index].value = QString::number(qRound(length));
            }
        } else if (rule.move == Move::TableAlign) {
            alignTable(tag, tag->take(name));
        } else {
            tag->addStyle(declaration(rule, tag->take(name)));
        }
    }
}

// List prefixes are copied by Qt as they are: they may hold markup characters, and semicolons that
// would end the declaration.
QString escapedStyle(const QString &style)
{
    QString result;
    bool quoted = false;
    for (int i = 0; i < style.size(); ++i) {
        const QChar c = style.at(i);
        quoted ^= c == u'\'';
        if (quoted && c == u';') {
            result += QLatin1String("\\3b ");
        } else if (quoted && c == u'<') {
            result += QLatin1String("&lt;");
        } else if (quoted && c == u'>') {
            result += QLatin1String("&gt;");
        } else if (quoted && c == u'&') {
            result += QLatin1String("&amp;");
        } else {
            result += c;
        }
    }
    return result;
}

int openingTagSize(const QString &text)
{
    bool quoted = false;
    for (int i = 0; i < text.size(); ++i) {
        quoted ^= text.at(i) == u'"';
        if (!quoted && text.at(i) == u'>') {
            return i + 1;
        }
    }
    return text.size();
}

void joinStyles(MRVHtmlTag *tag)
{
    const QLatin1String style("style");
    const int first = tag->indexOf(style);
    for (int i = tag->attributes.size() - 1; first >= 0 && i > first; --i) {
        if (tag->attributes.at(i).name != style) {
            continue;
        }
        // Nothing stands between the two, as when the chain joins them.
        QString joined = tag->attributes.at(first).value + tag->attributes.at(i).value;
        tag->attributes.remove(i);
        tag->attributes[first].value = joined;
    }
}

} // namespace

MRVHtmlTag MRVHtmlTag::parsed(QStringView tag)
{
    MRVHtmlTag result;
    int pos = 1;
    const int size = int(tag.size());
    auto isNameEnd = [](QChar c) { return c.isSpace() || c == u'=' || c == u'>' || c == u'/'; };
    auto readName = [&] {
        const int begin = pos;
        while (pos < size && !isNameEnd(tag[pos])) {
            ++pos;
        }
        return tag.mid(begin, pos - begin).toString();
    };
    result.name = readName();
    while (pos < size) {
        const int before = pos;
        while (pos < size && tag[pos].isSpace()) {
            ++pos;
        }
        if (pos >= size || tag[pos] == u'>' || tag[pos] == u'/') {
            result.ending = tag.mid(before).toString();
            break;
        }
        Attribute attribute;
        attribute.name = readName();
        if (pos + 1 < size && tag[pos] == u'=' && (tag[pos + 1] == u'"' || tag[pos + 1] == u'\'')) {
            attribute.quote = tag[pos + 1];
            const int end = int(tag.indexOf(attribute.quote, pos + 2));
            if (end < 0) {
                break;
            }
            attribute.value = tag.mid(pos + 2, end - pos - 2).toString();
            pos = end + 1;
            result.attributes.append(attribute);
        } else if (pos == before || attribute.name.isEmpty()) {
            ++pos; // not markup as Qt writes it: continue after it
        }
    }
    if (result.ending.isEmpty()) {
        result.ending = QStringLiteral(">");
    }
    return result;
}

QString MRVHtmlTag::text() const
{
    QString result = u'<' + name;
    for (const Attribute &attribute : attributes) {
        result +=
            u' ' + attribute.name + u'=' + attribute.quote + attribute.value + attribute.quote;
    }
    return result + ending;
}

int MRVHtmlTag::indexOf(QLatin1String attribute) const
{
    for (int i = 0; i < attributes.size(); ++i) {
        if (attributes.at(i).name == attribute) {
            return i;
        }
    }
    return -1;
}

QString MRVHtmlTag::value(QLatin1String attribute) const
{
    const int index = indexOf(attribute);
    return index < 0 ? QString() : attributes.at(index).value;
}

QString MRVHtmlTag::take(QLatin1String attribute)
{
    const int index = indexOf(attribute);
    return index < 0 ? QString() : attributes.takeAt(index).value;
}

void MRVHtmlTag::moveToFront(QLatin1String attribute)
{
    const int index = indexOf(attribute);
    if (index > 0) {
        attributes.move(index, 0);
    }
}

void MRVHtmlTag::addStyle(const QString &declarations)
{
    if (declarations.isEmpty()) {
        return;
    }
    const int index = indexOf(QLatin1String("style"));
    if (index < 0) {
        attributes.append({QStringLiteral("style"), declarations, u'"'});
    } else {
        const QString old = attributes.at(index).value;
        const bool apart = !old.isEmpty() && !old.startsWith(u' ');
        attributes[index].value = declarations + (apart ? QStringLiteral(" ") : QString()) + old;
    }
}

QString mrvNormalisedTag(const QString &tag)
{
    const QLatin1String opening("style=\"");
    const bool list = tag.startsWith(QLatin1String("<ul")) || tag.startsWith(QLatin1String("<ol"));
    const bool styles = tag.indexOf(opening) != tag.lastIndexOf(opening);
    if (!list && !styles && !tag.startsWith(QLatin1String("<img"))
        && !tag.contains(QLatin1String("align=\""))) {
        return tag;
    }
    const int size = openingTagSize(tag);
    MRVHtmlTag parts = MRVHtmlTag::parsed(QStringView(tag).left(size));
    joinStyles(&parts);
    const int style = parts.indexOf(QLatin1String("style"));
    if (style >= 0 && (parts.name == QLatin1String("ul") || parts.name == QLatin1String("ol"))) {
        parts.attributes[style].value = escapedStyle(parts.attributes.at(style).value);
    }
    const QLatin1String align("align");
    const QLatin1String alt("alt");
    const bool block = parts.name == QLatin1String("p") || parts.name == QLatin1String("li");
    if (block && parts.indexOf(align) >= 0) {
        parts.moveToFront(QLatin1String("style"));
        parts.moveToFront(align);
    } else if (parts.name == QLatin1String("img") && parts.indexOf(alt) >= 0) {
        parts.moveToFront(alt);
    }
    return parts.text() + tag.mid(size);
}

QString mrvValidTag(const QString &tag, MRVHtmlDialect dialect, const QString &cellStyle)
{
    const bool concerned = !cellStyle.isEmpty()
        || std::any_of(std::begin(rules), std::end(rules), [&](const AttributeRule &rule) {
               return tag.contains(QLatin1String(rule.attribute));
           });
    if (!concerned) {
        return tag;
    }
    const int size = openingTagSize(tag);
    MRVHtmlTag parts = MRVHtmlTag::parsed(QStringView(tag).left(size));
    applyRules(&parts, dialect);
    if (parts.name == QLatin1String("td")) {
        parts.addStyle(cellStyle);
    }
    return parts.text() + tag.mid(size);
}

QString mrvCellStyle(QStringView tableTag)
{
    const MRVHtmlTag table = MRVHtmlTag::parsed(tableTag);
    QString style;
    if (table.value(QLatin1String("border")).toDouble() > 0) {
        style += QLatin1String("border:1px inset;");
    }
    const QString padding = table.value(QLatin1String("cellpadding"));
    if (!padding.isEmpty()) {
        style += QLatin1String("padding:") + cssLength(padding) + u';';
    }
    return style;
}
