#include "html/mrvhtmlelements_p.h"

#include "html/mrvhtmltree_p.h"
#include "textformat/mrvtextformat.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

using Element = MRVHtmlElement;
using Style = MRVHtmlStyle;

constexpr const char *Paragraph = "margin-top:12px;margin-bottom:12px";
constexpr const char *Quote =
    "margin-top:12px;margin-bottom:12px;margin-left:40px;margin-right:40px";
constexpr const char *Bullets = "list-style-type:disc;margin-top:12px;margin-bottom:12px";
constexpr const char *Numbers = "list-style-type:decimal;margin-top:12px;margin-bottom:12px";
constexpr const char *Code = "font-family:monospace";
constexpr const char *Preformatted =
    "font-family:monospace;white-space:pre;margin-top:12px;margin-bottom:12px";

// clang-format off
constexpr struct
{
    GumboTag tag;
    Style::Display display;
    const char *style;
    Element::Kind kind = Element::Plain;
    int headingLevel = 0;
} rows[] = {
    {GUMBO_TAG_HTML,       Style::Block,  ""},
    {GUMBO_TAG_BODY,       Style::Block,  ""},
    {GUMBO_TAG_HEAD,       Style::Hidden, "", Element::Skipped},
    {GUMBO_TAG_TITLE,      Style::Hidden, "", Element::Skipped},
    {GUMBO_TAG_BASE,       Style::Hidden, "", Element::Skipped},
    {GUMBO_TAG_LINK,       Style::Hidden, "", Element::Skipped},
    {GUMBO_TAG_META,       Style::Hidden, "", Element::Skipped},
    {GUMBO_TAG_STYLE,      Style::Hidden, "", Element::Skipped},
    {GUMBO_TAG_SCRIPT,     Style::Hidden, "", Element::Skipped},
    {GUMBO_TAG_TEMPLATE,   Style::Hidden, "", Element::Skipped},
    {GUMBO_TAG_NOFRAMES,   Style::Hidden, "", Element::Skipped},
    {GUMBO_TAG_NOEMBED,    Style::Hidden, "", Element::Skipped},
    {GUMBO_TAG_IFRAME,     Style::Hidden, "", Element::Skipped},
    {GUMBO_TAG_DATALIST,   Style::Hidden, "", Element::Skipped},
    {GUMBO_TAG_AUDIO,      Style::Hidden, "", Element::Skipped},
    {GUMBO_TAG_VIDEO,      Style::Hidden, "", Element::Skipped},

    {GUMBO_TAG_H1, Style::Block, "font-size:xx-large;font-weight:bold;margin-top:18px;margin-bottom:12px", Element::Plain, 1},
    {GUMBO_TAG_H2, Style::Block, "font-size:x-large;font-weight:bold;margin-top:16px;margin-bottom:12px", Element::Plain, 2},
    {GUMBO_TAG_H3, Style::Block, "font-size:large;font-weight:bold;margin-top:14px;margin-bottom:12px", Element::Plain, 3},
    {GUMBO_TAG_H4, Style::Block, "font-size:medium;font-weight:bold;margin-top:12px;margin-bottom:12px", Element::Plain, 4},
    {GUMBO_TAG_H5, Style::Block, "font-size:small;font-weight:bold;margin-top:12px;margin-bottom:4px", Element::Plain, 5},
    {GUMBO_TAG_H6, Style::Block, "font-size:x-small;font-weight:bold;margin-top:12px;margin-bottom:4px", Element::Plain, 6},

    {GUMBO_TAG_P,          Style::Block,  Paragraph},
    {GUMBO_TAG_BLOCKQUOTE, Style::Block,  Quote},
    {GUMBO_TAG_FIGURE,     Style::Block,  Quote},
    {GUMBO_TAG_PRE,        Style::Block,  Preformatted},
    {GUMBO_TAG_LISTING,    Style::Block,  Preformatted},
    {GUMBO_TAG_XMP,        Style::Block,  Preformatted},
    {GUMBO_TAG_PLAINTEXT,  Style::Block,  Preformatted},
    {GUMBO_TAG_TEXTAREA,   Style::Block,  Preformatted},
    {GUMBO_TAG_CENTER,     Style::Block,  "text-align:center"},
    {GUMBO_TAG_ADDRESS,    Style::Block,  "font-style:italic"},
    {GUMBO_TAG_DL,         Style::Block,  "margin-top:8px;margin-bottom:8px"},
    {GUMBO_TAG_DT,         Style::Block,  ""},
    {GUMBO_TAG_DD,         Style::Block,  "margin-left:30px"},
    {GUMBO_TAG_DIV,        Style::Block,  ""},
    {GUMBO_TAG_ARTICLE,    Style::Block,  ""},
    {GUMBO_TAG_ASIDE,      Style::Block,  ""},
    {GUMBO_TAG_DETAILS,    Style::Block,  ""},
    {GUMBO_TAG_SUMMARY,    Style::Block,  ""},
    {GUMBO_TAG_FIELDSET,   Style::Block,  ""},
    {GUMBO_TAG_LEGEND,     Style::Block,  ""},
    {GUMBO_TAG_FIGCAPTION, Style::Block,  ""},
    {GUMBO_TAG_FOOTER,     Style::Block,  ""},
    {GUMBO_TAG_FORM,       Style::Block,  ""},
    {GUMBO_TAG_HEADER,     Style::Block,  ""},
    {GUMBO_TAG_HGROUP,     Style::Block,  ""},
    {GUMBO_TAG_MAIN,       Style::Block,  ""},
    {GUMBO_TAG_NAV,        Style::Block,  ""},
    {GUMBO_TAG_SECTION,    Style::Block,  ""},
    {GUMBO_TAG_OPTGROUP,   Style::Block,  ""},
    {GUMBO_TAG_OPTION,     Style::Block,  ""},
    {GUMBO_TAG_CAPTION,    Style::Block,  "text-align:center"},
    {GUMBO_TAG_UL,         Style::Block,  Bullets, Element::List},
    {GUMBO_TAG_OL,         Style::Block,  Numbers, Element::List},
    {GUMBO_TAG_MENU,       Style::Block,  Bullets, Element::List},
    {GUMBO_TAG_DIR,        Style::Block,  Bullets, Element::List},
    {GUMBO_TAG_LI,         Style::ListItem, "", Element::Item},
    {GUMBO_TAG_TABLE,      Style::Block,  "", Element::Table},
    {GUMBO_TAG_HR,         Style::Block,  "", Element::Rule},

    {GUMBO_TAG_BR,         Style::Inline, "", Element::LineEnd},
    {GUMBO_TAG_IMG,        Style::Inline, "", Element::Picture},
    {GUMBO_TAG_IMAGE,      Style::Inline, "", Element::Picture},
    {GUMBO_TAG_OBJECT,     Style::Inline, "", Element::Picture},
    {GUMBO_TAG_EMBED,      Style::Inline, "", Element::Picture},
    {GUMBO_TAG_INPUT,      Style::Inline, "", Element::Input},
    {GUMBO_TAG_Q,          Style::Inline, "", Element::Quotation},
    {GUMBO_TAG_RT,         Style::Inline, "", Element::Reading},

    {GUMBO_TAG_BUTTON,     Style::Apart,  ""},
    {GUMBO_TAG_CANVAS,     Style::Apart,  ""},
    {GUMBO_TAG_METER,      Style::Apart,  ""},
    {GUMBO_TAG_PROGRESS,   Style::Apart,  ""},

    {GUMBO_TAG_B,          Style::Inline, "font-weight:bold"},
    {GUMBO_TAG_STRONG,     Style::Inline, "font-weight:bold"},
    {GUMBO_TAG_TH,         Style::Block,  "font-weight:bold;text-align:center"},
    {GUMBO_TAG_TD,         Style::Block,  ""},
    {GUMBO_TAG_I,          Style::Inline, "font-style:italic"},
    {GUMBO_TAG_EM,         Style::Inline, "font-style:italic"},
    {GUMBO_TAG_CITE,       Style::Inline, "font-style:italic"},
    {GUMBO_TAG_VAR,        Style::Inline, "font-style:italic"},
    {GUMBO_TAG_DFN,        Style::Inline, "font-style:italic"},
    {GUMBO_TAG_U,          Style::Inline, "text-decoration:underline"},
    {GUMBO_TAG_INS,        Style::Inline, "text-decoration:underline"},
    {GUMBO_TAG_S,          Style::Inline, "text-decoration:line-through"},
    {GUMBO_TAG_STRIKE,     Style::Inline, "text-decoration:line-through"},
    {GUMBO_TAG_DEL,        Style::Inline, "text-decoration:line-through"},
    {GUMBO_TAG_SMALL,      Style::Inline, "font-size:smaller"},
    {GUMBO_TAG_BIG,        Style::Inline, "font-size:larger"},
    {GUMBO_TAG_SUB,        Style::Inline, "vertical-align:sub"},
    {GUMBO_TAG_SUP,        Style::Inline, "vertical-align:super"},
    {GUMBO_TAG_CODE,       Style::Inline, Code},
    {GUMBO_TAG_TT,         Style::Inline, Code},
    {GUMBO_TAG_KBD,        Style::Inline, Code},
    {GUMBO_TAG_SAMP,       Style::Inline, Code},
    {GUMBO_TAG_MARK,       Style::Inline, "background-color:#ffff00"},
    {GUMBO_TAG_NOBR,       Style::Inline, "white-space:nowrap"},
};
// clang-format on

QVector<Element> elementTable()
{
    QVector<Element> table(GUMBO_TAG_LAST + 1);
    for (const auto &row : rows) {
        Element &element = table[row.tag];
        element.kind = row.kind;
        element.headingLevel = row.headingLevel;
        element.isQuote = row.tag == GUMBO_TAG_BLOCKQUOTE;
        element.display = row.display;
        element.declarations = MRVStyleSheet::parseDeclarations(QString::fromLatin1(row.style));
    }
    return table;
}

// Attributes that say the same as a property of CSS with their value.
constexpr struct
{
    const char *attribute;
    const char *property;
} hints[] = {
    {"bgcolor", "background-color"},
    {"color", "color"},
    {"face", "font-family"},
    {"dir", "direction"},
};

// Lengths of attributes have no unit.
QString lengthOf(const QString &value)
{
    const QString length = value.trimmed();
    return length.endsWith(u'%') ? length : length + QLatin1String("px");
}

// What the attribute "type" of a list means.
const char *markerOf(const QString &type)
{
    constexpr struct
    {
        const char *type;
        const char *marker;
    } types[] = {{"1", "decimal"},     {"a", "lower-alpha"}, {"A", "upper-alpha"},
                 {"i", "lower-roman"}, {"I", "upper-roman"}, {"disc", "disc"},
                 {"circle", "circle"}, {"square", "square"}, {"none", "none"}};
    for (const auto &row : types) {
        const bool isLetter = row.type[1] == 0;
        const auto sensitivity = isLetter ? Qt::CaseSensitive : Qt::CaseInsensitive;
        if (type.compare(QLatin1String(row.type), sensitivity) == 0) {
            return row.marker;
        }
    }
    return "";
}

// 3 is the size of the text around; a sign counts from there.
QString fontSizeOf(const QString &size)
{
    constexpr const char *words[] = {"x-small", "small",    "medium",   "large",
                                     "x-large", "xx-large", "xxx-large"};
    const QString text = size.trimmed();
    bool ok = false;
    const int number = text.toInt(&ok) + (text.startsWith(u'+') || text.startsWith(u'-') ? 3 : 0);
    return ok ? QString::fromLatin1(words[qBound(1, number, 7) - 1]) : QString();
}

void appendHint(const QByteArray &attribute, const QString &value, GumboTag tag,
                QVector<MRVCssDeclaration> *declarations)
{
    const auto add = [declarations](const char *property, const QString &meaning) {
        declarations->append({QString::fromLatin1(property), meaning.toLower(), false});
    };
    for (const auto &hint : hints) {
        if (attribute == hint.attribute) {
            declarations->append({QString::fromLatin1(hint.property), value, false});
        }
    }
    if (attribute == "align") {
        const bool floats = tag == GUMBO_TAG_IMG || tag == GUMBO_TAG_TABLE;
        add(floats ? "float" : "text-align", value);
    } else if (attribute == "valign") {
        add("vertical-align", value);
    } else if (attribute == "hidden") {
        add("display", QStringLiteral("none"));
    } else if (attribute == "width" || attribute == "height") {
        add(attribute.constData(), lengthOf(value));
    } else if (attribute == "type" && tag != GUMBO_TAG_INPUT) {
        add("list-style-type", QString::fromLatin1(markerOf(value)));
    } else if (attribute == "size" && tag == GUMBO_TAG_FONT) {
        add("font-size", fontSizeOf(value));
    } else if (attribute == "display" && tag == GUMBO_TAG_MATH) {
        add("display", value);
    }
}

template<int Count>
bool isOneOf(const QString &name, const char *const (&words)[Count])
{
    return std::any_of(std::begin(words), std::end(words),
                       [&](const char *word) { return name == QLatin1String(word); });
}

// Of elements that are younger than the parser.
bool isNamed(const GumboNode *element, const char *name)
{
    return element->v.element.tag == GUMBO_TAG_UNKNOWN && mrvNameOf(element) == QLatin1String(name);
}

bool isDialog(const GumboNode *element)
{
    return isNamed(element, "dialog");
}

bool isNewBlock(const GumboNode *element)
{
    return isDialog(element) || isNamed(element, "search");
}

// Whether the page itself puts brackets around a reading, where it cannot stand above.
bool hasBrackets(const GumboNode *reading)
{
    const GumboNode *before = mrvElementBefore(reading);
    return before && mrvIsElement(before, GUMBO_TAG_RP);
}

// Whether a reading stands in brackets of ours: one without text shows none.
bool needsBrackets(const GumboNode *element)
{
    return mrvHtmlElement(element).kind == MRVHtmlElement::Reading
        && element->v.element.children.length > 0 && !hasBrackets(element);
}

// The first of the pictures that an image is a choice of: "a.png, b.png 2x".
QString firstSource(const QString &choice)
{
    static const QRegularExpression first(QStringLiteral("[^\\s,]\\S*"));
    QString name = first.match(choice).captured();
    while (name.endsWith(u',')) {
        name.chop(1);
    }
    return name;
}

// What an element is said to be, in e-books and to those who hear a page.
QStringList kindsOf(const GumboNode *element)
{
    const QString words =
        mrvAttributeOf(element, "epub:type") + u' ' + mrvAttributeOf(element, "role");
    return words.toLower().simplified().split(u' ');
}

} // namespace

const MRVHtmlElement &mrvHtmlElement(const GumboNode *element)
{
    static const QVector<Element> table = elementTable();
    const GumboTag tag = element->v.element.tag;
    if (element->v.element.tag_namespace == GUMBO_NAMESPACE_HTML) {
        return table.at(isNewBlock(element) ? GUMBO_TAG_DIV : tag);
    }
    // Of pictures and formulas, the texts are shown; these hold none of them.
    constexpr const char *unseen[] = {"style", "script", "title", "desc", "metadata", "annotation"};
    // Texts of a drawing stand apart, wherever it puts them.
    constexpr const char *drawn[] = {"svg", "text"};
    const QString name = mrvNameOf(element);
    const bool isDrawn =
        element->v.element.tag_namespace == GUMBO_NAMESPACE_SVG && isOneOf(name, drawn);
    return table.at(isOneOf(name, unseen) ? GUMBO_TAG_SCRIPT
                        : isDrawn         ? GUMBO_TAG_CANVAS
                                          : GUMBO_TAG_UNKNOWN);
}

QVector<MRVCssDeclaration> mrvHtmlHints(const GumboNode *element)
{
    QVector<MRVCssDeclaration> declarations;
    const GumboVector &attributes = element->v.element.attributes;
    for (unsigned i = 0; i < attributes.length; ++i) {
        const auto *attribute = static_cast<const GumboAttribute *>(attributes.data[i]);
        appendHint(attribute->name, QString::fromUtf8(attribute->value), element->v.element.tag,
                   &declarations);
    }
    if (isDialog(element) && !mrvHasAttribute(element, "open")) {
        declarations.append({QStringLiteral("display"), QStringLiteral("none"), false});
    }
    return declarations;
}

QString mrvShownText(const QString &text)
{
    const auto isStructure = [](QChar c) {
        return c == QChar::ObjectReplacementCharacter || (c >= QChar(0xfdd0) && c <= QChar(0xfdef))
            || c == QChar::ParagraphSeparator;
    };
    if (std::none_of(text.cbegin(), text.cend(), isStructure)) {
        return text;
    }
    QString plain;
    for (const QChar character : text) {
        if (character == QChar::ParagraphSeparator) {
            plain += QChar::LineSeparator;
        } else if (!isStructure(character)) {
            plain += character;
        }
    }
    return plain;
}

QString MRVHtmlMarks::before(const GumboNode *element)
{
    const MRVHtmlElement::Kind kind = mrvHtmlElement(element).kind;
    if (kind == MRVHtmlElement::Quotation) {
        return QChar(m_quotations++ % 2 == 0 ? 0x201c : 0x2018);
    }
    return needsBrackets(element) ? QStringLiteral("(") : QString();
}

QString MRVHtmlMarks::after(const GumboNode *element)
{
    const MRVHtmlElement::Kind kind = mrvHtmlElement(element).kind;
    if (kind == MRVHtmlElement::Quotation) {
        return QChar(--m_quotations % 2 == 0 ? 0x201d : 0x2019);
    }
    return needsBrackets(element) ? QStringLiteral(")") : QString();
}

bool mrvIsField(const GumboNode *element)
{
    const QString type = mrvAttributeOf(element, "type").toLower();
    return mrvIsElement(element, GUMBO_TAG_INPUT) && type != QLatin1String("hidden")
        && type != QLatin1String("image");
}

QString mrvFieldText(const GumboNode *element)
{
    constexpr const char *WithoutText[] = {"checkbox", "color", "file",
                                           "password", "radio", "range"};
    const QString type = mrvAttributeOf(element, "type").toLower();
    const bool hasText =
        std::none_of(std::begin(WithoutText), std::end(WithoutText),
                     [&](const char *other) { return type == QLatin1String(other); });
    return hasText && mrvIsField(element)
        ? mrvShownText(mrvAttributeOf(element, "value")).simplified()
        : QString();
}

bool mrvIsNote(const GumboNode *element)
{
    constexpr const char *notes[] = {"footnote", "endnote", "rearnote", "doc-footnote",
                                     "doc-endnote"};
    const QStringList said = kindsOf(element);
    return std::any_of(std::begin(notes), std::end(notes),
                       [&said](const char *note) { return said.contains(QLatin1String(note)); });
}

int mrvNoteLinkOf(const GumboNode *element)
{
    constexpr struct
    {
        const char *word;
        MRVTextFormat::NoteLink link;
    } links[] = {{"noteref", MRVTextFormat::NoteMark},
                 {"doc-noteref", MRVTextFormat::NoteMark},
                 {"backlink", MRVTextFormat::NoteBackLink},
                 {"doc-backlink", MRVTextFormat::NoteBackLink}};
    const QStringList said = kindsOf(element);
    for (const auto &one : links) {
        if (said.contains(QLatin1String(one.word))) {
            return one.link;
        }
    }
    return 0;
}

bool mrvIsComment(const GumboNode *element)
{
    return isNamed(element, "mrv-comment");
}

QString mrvPictureName(const GumboNode *element)
{
    QString name;
    for (const char *attribute : {"src", "data", "xlink:href", "href"}) {
        if (name.isEmpty()) {
            name = mrvAttributeOf(element, attribute);
        }
    }
    return name.isEmpty() ? firstSource(mrvAttributeOf(element, "srcset")) : name.trimmed();
}

bool mrvIsImage(const GumboNode *element)
{
    return mrvHtmlElement(element).kind == MRVHtmlElement::Picture
        || (element->v.element.tag_namespace == GUMBO_NAMESPACE_SVG
            && mrvNameOf(element) == QLatin1String("image"))
        || (mrvIsElement(element, GUMBO_TAG_INPUT)
            && mrvAttributeOf(element, "type").toLower() == QLatin1String("image"));
}

bool mrvIsPicture(const GumboNode *element)
{
    const bool isObject = element->v.element.tag == GUMBO_TAG_OBJECT;
    const QString type = mrvAttributeOf(element, "type");
    return mrvIsImage(element) && !mrvPictureName(element).isEmpty()
        && (!isObject || type.isEmpty() || type.startsWith(QLatin1String("image/")));
}
