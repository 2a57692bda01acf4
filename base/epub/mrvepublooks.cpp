#include "epub/mrvepublooks_p.h"

#include <QColor>

#include <algorithm>
#include <cmath>

namespace {

using Look = MRVEPubParagraphLook;
using Text = MRVEPubTextLook;

constexpr int BodyPixels = 16;

// clang-format off
constexpr struct
{
    const char *element;
    int size;
    int top; // in pixels
    int bottom;
} kinds[] = {
    {"p",      100, 12, 12},
    {"h1",     200, 18, 12},
    {"h2",     150, 16, 12},
    {"h3",     120, 14, 12},
    {"h4",     100, 12, 12},
    {"h5",      80, 12,  4},
    {"h6",      70, 12,  4},
    {"li",     100,  0,  0},
    {"td, th", 100,  0,  0},
};
// clang-format on
constexpr int KindCount = std::size(kinds);
static_assert(KindCount == int(MRVEPubKind::Cell) + 1, "one row a kind");

// A number without the zeros that say nothing.
QByteArray number(double value)
{
    QByteArray text = QByteArray::number(value, 'f', 3);
    while (text.endsWith('0')) {
        text.chop(1);
    }
    if (text.endsWith('.')) {
        text.chop(1);
    }
    return text == "-0" ? QByteArray("0") : text;
}

QByteArray em(int thousandths)
{
    const QByteArray length = number(thousandths / 1000.0);
    return length == "0" ? length : length + "em";
}

// Of the width of the text; @p size is that of the paragraph's own text.
QByteArray percent(int thousandths, int size, double textWidth)
{
    const QByteArray length = number(thousandths / 1000.0 * size / textWidth);
    return length == "0" ? length : length + '%';
}

QByteArray declaration(const char *property, const QByteArray &value)
{
    return QByteArray("    ") + property + ": " + value + ";\n";
}

constexpr const char *alignments[] = {"start", "left", "right", "center", "justify"};

QByteArray color(QRgb rgb)
{
    return QColor(rgb).name().toLatin1();
}

// Text on a colour of its own has to stay readable whatever the reader's page looks like.
QByteArray background(QRgb rgb, bool hasColor)
{
    const QByteArray own = declaration("background-color", color(rgb));
    const char *ink = qGray(rgb) > 128 ? "#000000" : "#ffffff";
    return hasColor ? own : own + declaration("color", ink);
}

bool saysNothing(const Look &look)
{
    Look plain = mrvEPubPlainLook(look.kind);
    if (look == plain) {
        return true;
    }
    plain[Look::Top] = plain[Look::Bottom] = 0;
    return look == plain;
}

constexpr const char *alignmentNames[] = {"start", "left", "right", "centered", "justified"};

const char *nameOf(const Look &look, const Look &usual)
{
    if (look[Look::Align] == Look::Centered || look[Look::Align] == Look::RightSide) {
        return alignmentNames[look[Look::Align]];
    }
    if (look[Look::Indent] < 0 && look[Look::Left] > 0) {
        return "hanging";
    }
    if (look[Look::Left] > usual[Look::Left]) {
        return "indented";
    }
    if (look[Look::Size] < usual[Look::Size]) {
        return "small";
    }
    if (look[Look::Size] > usual[Look::Size]) {
        return "large";
    }
    if (look[Look::Indent] == 0 && usual[Look::Indent] > 0) {
        return "first";
    }
    constexpr struct
    {
        Look::Value value;
        const char *more;
        const char *less;
    } rows[] = {{Look::Top, "apart", "tight"},    {Look::Bottom, "apart", "tight"},
                {Look::Right, "narrow", "wide"},  {Look::Left, "indented", "wide"},
                {Look::Indent, "begun", "flush"}, {Look::LineHeight, "open", "dense"},
                {Look::Weight, "light", "heavy"}, {Look::Background, "shaded", "shaded"}};
    for (const auto &row : rows) {
        if (look[row.value] != usual[row.value]) {
            return look[row.value] > usual[row.value] ? row.more : row.less;
        }
    }
    return alignmentNames[look[Look::Align]];
}

const char *nameOf(const Text &look)
{
    constexpr const char *caps[] = {"", "uppercase", "lowercase", "smallcaps", "capitalized"};
    if (look[Text::Caps]) {
        return caps[look[Text::Caps]];
    }
    if (look[Text::Lines]) {
        return look[Text::Lines] & Text::Underline ? "underlined" : "overlined";
    }
    if (look[Text::Size]) {
        return look[Text::Size] < 100 ? "smaller" : "larger";
    }
    if (look[Text::Weight]) {
        return look[Text::Weight] < 0 ? "regular" : "thin";
    }
    return look[Text::Background] ? "highlighted"
        : look[Text::Color]       ? "colored"
        : look[Text::Family]      ? "typeface"
        : look[Text::Spacing]     ? "letterspaced"
                                  : "wordspaced";
}

template<typename Values>
uint hashOf(const Values &values, uint seed)
{
    return qHashRange(values.begin(), values.end(), seed);
}

} // namespace

uint qHash(const MRVEPubParagraphLook &look, uint seed)
{
    return hashOf(look.values, seed) ^ uint(look.kind);
}

uint qHash(const MRVEPubTextLook &look, uint seed)
{
    return hashOf(look.values, seed);
}

int mrvEPubLength(double pixels, int size)
{
    return int(std::lround(pixels * 1000 * 100 / BodyPixels / size));
}

MRVEPubParagraphLook mrvEPubPlainLook(MRVEPubKind kind)
{
    Look look;
    look.kind = kind;
    const auto &row = kinds[int(kind)];
    look[Look::Size] = row.size;
    look[Look::Top] = mrvEPubLength(row.top, row.size);
    look[Look::Bottom] = mrvEPubLength(row.bottom, row.size);
    return look;
}

int MRVEPubLooks::add(const MRVEPubParagraphLook &look)
{
    auto known = m_paragraphNumbers.constFind(look);
    if (known == m_paragraphNumbers.constEnd()) {
        known = m_paragraphNumbers.insert(look, m_paragraphs.size());
        m_paragraphs.append({look, 0});
    }
    return *known;
}

int MRVEPubLooks::familyNumber(const QString &family)
{
    const int known = m_families.indexOf(family);
    if (known < 0) {
        m_families.append(family);
    }
    return known < 0 ? m_families.size() : known + 1;
}

QByteArray MRVEPubLooks::freeName(const QByteArray &base)
{
    const int number = ++m_names[base];
    return number == 1 ? base : base + QByteArray::number(number);
}

QByteArray MRVEPubLooks::textClass(const MRVEPubTextLook &look)
{
    const auto known = m_textNumbers.constFind(look);
    if (known != m_textNumbers.constEnd()) {
        return m_named.at(*known).name;
    }
    const QByteArray name = freeName(nameOf(look));
    m_textNumbers.insert(look, m_named.size());
    m_named.append({name, declarations(look)});
    return name;
}

QByteArray MRVEPubLooks::boxClass(const char *base, const QByteArray &rule)
{
    if (rule.isEmpty()) {
        return QByteArray();
    }
    const auto known = m_boxNumbers.constFind(rule);
    if (known != m_boxNumbers.constEnd()) {
        return m_named.at(*known).name;
    }
    const QByteArray name = freeName(base);
    m_boxNumbers.insert(rule, m_named.size());
    m_named.append({name, rule});
    return name;
}

int MRVEPubLooks::common(MRVEPubKind kind) const
{
    int best = -1;
    for (int i = 0; i < m_paragraphs.size(); ++i) {
        const Paragraph &paragraph = m_paragraphs.at(i);
        if (paragraph.look.kind == kind
            && (best < 0 || paragraph.uses > m_paragraphs.at(best).uses)) {
            best = i;
        }
    }
    return best;
}

QVector<QByteArray> MRVEPubLooks::paragraphClasses() const
{
    QVector<int> usual;
    for (int kind = 0; kind < KindCount; ++kind) {
        usual.append(common(MRVEPubKind(kind)));
    }
    QHash<QByteArray, int> names[KindCount];
    QVector<QByteArray> classes;
    for (int i = 0; i < m_paragraphs.size(); ++i) {
        const Look &look = m_paragraphs.at(i).look;
        const int rule = usual.at(int(look.kind));
        if (i == rule) {
            classes.append(QByteArray());
            continue;
        }
        const QByteArray base = nameOf(look, m_paragraphs.at(rule).look);
        const int number = ++names[int(look.kind)][base];
        classes.append(number == 1 ? base : base + QByteArray::number(number));
    }
    return classes;
}

// What differs from the look that the element has without a class.
QByteArray MRVEPubLooks::declarations(const MRVEPubParagraphLook &look,
                                      const MRVEPubParagraphLook &usual, double textWidth) const
{
    constexpr struct
    {
        Look::Value value;
        const char *property;
        bool isAcross;
    } lengths[] = {{Look::Top, "margin-top", false},
                   {Look::Right, "margin-right", true},
                   {Look::Bottom, "margin-bottom", false},
                   {Look::Left, "margin-left", true},
                   {Look::Indent, "text-indent", true}};
    const bool isSet = look[Look::Align] == Look::Centered || look[Look::Align] == Look::RightSide;
    QByteArray text;
    if (look[Look::Align] != usual[Look::Align]) {
        text += declaration("text-align", alignments[look[Look::Align]]);
    }
    for (const auto &length : lengths) {
        // The base indents paragraphs, which these are not meant for.
        const bool resets = length.value == Look::Indent && look[length.value] == 0
            && look.kind == MRVEPubKind::Paragraph && (isSet || look[Look::Left] > 0);
        if (look[length.value] != usual[length.value] || resets) {
            QByteArray property = length.property;
            if (look.kind == MRVEPubKind::Cell) { // which has no margins
                property.replace("margin", "padding");
            }
            text += declaration(property.constData(),
                                length.isAcross && textWidth > 0
                                    ? percent(look[length.value], look[Look::Size], textWidth)
                                    : em(look[length.value]));
        }
    }
    if (look[Look::Size] != usual[Look::Size]) {
        text += declaration("font-size", number(look[Look::Size] / 100.0) + "em");
    }
    if (look[Look::LineHeight] != usual[Look::LineHeight]) {
        text += declaration("line-height",
                            look[Look::LineHeight] == 0 ? QByteArray("normal")
                                                        : number(look[Look::LineHeight] / 100.0));
    }
    if (look[Look::Weight] != usual[Look::Weight]) {
        text += declaration("font-weight", look[Look::Weight] ? "normal" : "bold");
    }
    if (look[Look::Background] != usual[Look::Background]) {
        text += look[Look::Background] ? background(QRgb(look[Look::Background]), false)
                                       : declaration("background-color", "transparent");
    }
    return text;
}

QByteArray MRVEPubLooks::declarations(const MRVEPubTextLook &look) const
{
    QByteArray text;
    if (look[Text::Size]) {
        text += declaration("font-size", number(look[Text::Size] / 100.0) + "em");
    }
    if (look[Text::Weight]) {
        text += declaration("font-weight", look[Text::Weight] < 0 ? "normal" : "300");
    }
    constexpr const char *caps[] = {"", "text-transform: uppercase", "text-transform: lowercase",
                                    "font-variant: small-caps", "text-transform: capitalize"};
    if (look[Text::Caps]) {
        text += QByteArray("    ") + caps[look[Text::Caps]] + ";\n";
    }
    QByteArray lines;
    lines += look[Text::Lines] & Text::Underline ? " underline" : "";
    lines += look[Text::Lines] & Text::Overline ? " overline" : "";
    lines += look[Text::Lines] & Text::LineThrough ? " line-through" : "";
    if (!lines.isEmpty()) {
        text += declaration("text-decoration", lines.trimmed());
    }
    if (look[Text::Spacing]) {
        text += declaration("letter-spacing", number(look[Text::Spacing] / 1000.0) + "em");
    }
    if (look[Text::WordSpacing]) {
        text += declaration("word-spacing", number(look[Text::WordSpacing] / 1000.0) + "em");
    }
    if (look[Text::Color]) {
        text += declaration("color", color(QRgb(look[Text::Color])));
    }
    if (look[Text::Background]) {
        text += background(QRgb(look[Text::Background]), look[Text::Color] != 0);
    }
    if (look[Text::Family]) {
        text += declaration("font-family", m_families.at(look[Text::Family] - 1).toUtf8());
    }
    return text;
}

QByteArray MRVEPubLooks::rules(double textWidth) const
{
    QByteArray text;
    const auto add = [&text](const QByteArray &selector, const QByteArray &declarations) {
        if (!declarations.isEmpty()) {
            text += selector + " {\n" + declarations + "}\n";
        }
    };
    QVector<Look> usual;
    for (int kind = 0; kind < KindCount; ++kind) {
        const int rule = common(MRVEPubKind(kind));
        const Look plain = mrvEPubPlainLook(MRVEPubKind(kind));
        usual.append(rule < 0 ? plain : m_paragraphs.at(rule).look);
        if (!saysNothing(usual.constLast())) {
            add(kinds[kind].element, declarations(usual.constLast(), plain, textWidth));
        }
    }
    const QVector<QByteArray> classes = paragraphClasses();
    for (int i = 0; i < m_paragraphs.size(); ++i) {
        const Look &look = m_paragraphs.at(i).look;
        if (!classes.at(i).isEmpty()) {
            // As strong as what the base says of what follows a heading.
            add(QByteArray(kinds[int(look.kind)].element).replace(',', '.' + classes.at(i) + ',')
                    + '.' + classes.at(i),
                declarations(look, usual.at(int(look.kind)), textWidth));
        }
    }
    for (const Named &named : m_named) {
        add('.' + named.name, named.rule);
    }
    return text;
}
