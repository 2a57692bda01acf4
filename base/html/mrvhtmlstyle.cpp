#include "html/mrvhtmlstyle_p.h"

#include "css/mrvcssvalue.h"
#include "textformat/mrvtextformat.h"

#include <QFont>
#include <QHash>

#include <limits>

namespace {

/** Pages have no width here; percentages are those of a column of this many pixels. */
constexpr qreal ColumnPixels = 640;
constexpr qreal PointsPerPixel = 0.75;
/** CSS weights above this are bold. Fonts of text have few weights, and "bold" is the one meant. */
constexpr int BoldFrom = 600;

struct Value
{
    const QString &property;
    const QString &text;
    const MRVHtmlStyle &outside;
    qreal rootPixels;
    bool isQtPage;
};

using Handler = void (*)(const Value &, MRVHtmlStyle *);

bool toPixels(const Value &value, const QString &text, qreal em, qreal percentBase, qreal *pixels)
{
    const MRVCssLength length = MRVCssLength::parsed(text);
    bool ok = false;
    const qreal result = length.toPixels(em, value.rootPixels, percentBase, &ok);
    // No page is that large, and beyond it sums would not be exact.
    constexpr qreal Most = 100000;
    if (ok && qAbs(result) <= Most) {
        *pixels = result;
    }
    return ok && qAbs(result) <= Most;
}

int sideOf(const QString &property)
{
    constexpr const char *names[] = {"-top", "-right", "-bottom", "-left"};
    for (int side = 0; side < 4; ++side) {
        if (property.contains(QLatin1String(names[side]))) {
            return side;
        }
    }
    return 0;
}

// The place of a text in a list of words; -1 where it is missing.
template<int Count>
int wordIn(const char *const (&words)[Count], const QString &text)
{
    for (int i = 0; i < Count; ++i) {
        if (text.compare(QLatin1String(words[i]), Qt::CaseInsensitive) == 0) {
            return i;
        }
    }
    return -1;
}

// As text formats hold sizes: whole pixels, else points; none where it is that of the outside.
void setFontPixels(qreal pixels, MRVHtmlStyle *style)
{
    style->text.clearProperty(QTextFormat::FontSizeAdjustment);
    style->text.clearProperty(QTextFormat::FontPixelSize);
    style->fontPixels = pixels;
    style->text.setFontPointSize(qRound(pixels * PointsPerPixel * 100) / 100.0);
}

void setFontStep(int step, MRVHtmlStyle *style)
{
    // What a step of FontSizeAdjustment makes of the size.
    constexpr qreal factors[] = {0.7, 0.8, 1, 1.2, 1.5, 2, 2.4};
    style->text.clearProperty(QTextFormat::FontPointSize);
    style->text.clearProperty(QTextFormat::FontPixelSize);
    style->text.setProperty(QTextFormat::FontSizeAdjustment, qBound(-2, step, 4));
    style->fontPixels = 16 * factors[qBound(-2, step, 4) + 2];
}

void fontSize(const Value &value, MRVHtmlStyle *style)
{
    constexpr const char *steps[] = {"xx-small", "x-small", "small",    "medium",
                                     "large",    "x-large", "xx-large", "xxx-large"};
    constexpr int stepOf[] = {-2, -2, -1, 0, 1, 2, 3, 4};
    constexpr const char *relative[] = {"smaller", "larger"};
    const int step = wordIn(steps, value.text);
    if (step >= 0) {
        setFontStep(stepOf[step], style);
        return;
    }
    const int direction = wordIn(relative, value.text);
    if (direction >= 0) {
        const int before = style->text.intProperty(QTextFormat::FontSizeAdjustment);
        if (style->text.hasProperty(QTextFormat::FontPointSize)) {
            setFontPixels(value.outside.fontPixels * (direction ? 1.2 : 1 / 1.2), style);
        } else {
            setFontStep(before + (direction ? 1 : -1), style);
        }
        return;
    }
    qreal pixels = 0;
    const qreal em = value.outside.fontPixels;
    if (!toPixels(value, value.text, em, em, &pixels) || pixels <= 0) {
        return;
    }
    setFontPixels(pixels, style);
    if (qFuzzyCompare(pixels, em)) {
        for (const auto property : {QTextFormat::FontSizeAdjustment, QTextFormat::FontPointSize}) {
            style->text.setProperty(property, value.outside.text.property(property));
        }
    }
}

void fontFamily(const Value &value, MRVHtmlStyle *style)
{
    QStringList families;
    QString words;
    for (const QString &part : mrvCssParts(value.text) + QStringList(QStringLiteral(","))) {
        if (part != QLatin1String(",")) {
            words += u' ' + part;
            continue;
        }
        const QString family = mrvCssText(words.trimmed());
        words.clear();
        if (!family.isEmpty()) {
            families.append(family);
        }
    }
    if (families.isEmpty()) {
        return;
    }
    style->text.setFontFamily(families.first());
    style->text.setFontFamilies(families);
    const bool fixed = families.last() == QLatin1String("monospace");
    if (fixed) {
        style->text.setFontFixedPitch(true);
    } else {
        style->text.clearProperty(QTextFormat::FontFixedPitch);
    }
}

void setWeight(int weight, MRVHtmlStyle *style)
{
    if (weight == QFont::Normal) {
        style->text.clearProperty(QTextFormat::FontWeight);
    } else {
        style->text.setFontWeight(weight);
    }
}

void fontWeight(const Value &value, MRVHtmlStyle *style)
{
    constexpr const char *words[] = {"normal", "bold", "bolder", "lighter"};
    constexpr int weights[] = {QFont::Normal, QFont::Bold, QFont::Bold, QFont::Normal};
    const int word = wordIn(words, value.text);
    bool ok = false;
    const int number = value.text.toInt(&ok);
    if (word >= 0) {
        setWeight(weights[word], style);
    } else if (ok && number >= 0 && number <= 1000) {
        // QFont's weights go from 0 to 99.
        constexpr int ofHundreds[] = {12, 12, 12, QFont::Light, QFont::Normal, QFont::Medium};
        const int standard = number >= BoldFrom
            ? (number >= 800 ? int(QFont::ExtraBold) : int(QFont::Bold))
            : ofHundreds[number / 100];
        setWeight(value.isQtPage ? qMin(number / 8, 99) : standard, style);
    }
}

void fontStyle(const Value &value, MRVHtmlStyle *style)
{
    if (value.text == QLatin1String("normal")) {
        style->text.clearProperty(QTextFormat::FontItalic);
    } else if (value.text == QLatin1String("italic")
               || value.text.startsWith(QLatin1String("oblique"))) {
        style->text.setFontItalic(true);
    }
}

void capitalization(const Value &value, MRVHtmlStyle *style)
{
    constexpr const char *words[] = {"uppercase",  "lowercase", "capitalize",
                                     "small-caps", "none",      "normal"};
    constexpr QFont::Capitalization meanings[] = {QFont::AllUppercase, QFont::AllLowercase,
                                                  QFont::Capitalize, QFont::SmallCaps};
    const int word = wordIn(words, value.text);
    if (word >= 0 && word < 4) {
        style->text.setFontCapitalization(meanings[word]);
    } else if (word >= 4) {
        style->text.clearProperty(QTextFormat::FontCapitalization);
    }
}

// Lines go on through the elements inside: "none" ends only the element's own.
void textDecoration(const Value &value, MRVHtmlStyle *style)
{
    const QString words = value.text;
    const bool none = words.contains(QLatin1String("none"));
    const auto set = [&](const char *word, void (QTextCharFormat::*setter)(bool), int property) {
        if (words.contains(QLatin1String(word))) {
            (style->text.*setter)(true);
        } else if (none && !value.outside.text.boolProperty(property)) {
            style->text.clearProperty(property);
            if (property == QTextFormat::FontUnderline) {
                style->text.clearProperty(QTextFormat::TextUnderlineStyle);
            }
        }
    };
    set("underline", &QTextCharFormat::setFontUnderline, QTextFormat::FontUnderline);
    set("line-through", &QTextCharFormat::setFontStrikeOut, QTextFormat::FontStrikeOut);
    set("overline", &QTextCharFormat::setFontOverline, QTextFormat::FontOverline);
    if (words.contains(QLatin1String("underline"))) {
        // Both properties, as stored documents have them.
        style->text.setProperty(QTextFormat::FontUnderline, true);
    }
}

void spacing(const Value &value, MRVHtmlStyle *style)
{
    const bool letters = value.property == QLatin1String("letter-spacing");
    const int property = letters ? QTextFormat::FontLetterSpacing : QTextFormat::FontWordSpacing;
    qreal pixels = 0;
    if (value.text == QLatin1String("normal")) {
        style->text.clearProperty(property);
    } else if (toPixels(value, value.text, style->fontPixels, style->fontPixels, &pixels)) {
        style->text.setProperty(property, pixels);
        if (letters) {
            style->text.setFontLetterSpacingType(QFont::AbsoluteSpacing);
        }
    }
}

void verticalAlign(const Value &value, MRVHtmlStyle *style)
{
    constexpr const char *words[] = {"baseline", "sub",    "super",       "middle",
                                     "top",      "bottom", "text-bottom", "text-top"};
    constexpr QTextCharFormat::VerticalAlignment meanings[] = {
        QTextCharFormat::AlignNormal,      QTextCharFormat::AlignSubScript,
        QTextCharFormat::AlignSuperScript, QTextCharFormat::AlignMiddle,
        QTextCharFormat::AlignTop,         QTextCharFormat::AlignBottom,
        QTextCharFormat::AlignBottom,      QTextCharFormat::AlignTop};
    const int word = wordIn(words, value.text);
    if (word >= 0) {
        style->verticalAlignment = meanings[word];
    }
}

void color(const Value &value, MRVHtmlStyle *style)
{
    const QColor color = mrvCssColor(value.text);
    if (value.text == QLatin1String("inherit")) {
        style->text.setProperty(QTextFormat::ForegroundBrush,
                                value.outside.text.property(QTextFormat::ForegroundBrush));
    } else if (color.isValid()) {
        style->text.setForeground(color);
    }
}

void backgroundColor(const Value &value, MRVHtmlStyle *style)
{
    const QColor color = mrvCssColor(value.text);
    if (color.isValid()) {
        style->background = color.alpha() ? QBrush(color) : QBrush();
    }
}

void textAlign(const Value &value, MRVHtmlStyle *style)
{
    constexpr const char *words[] = {"left", "right", "center", "justify", "start", "end"};
    constexpr int meanings[] = {
        Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter, Qt::AlignJustify, 0, Qt::AlignTrailing};
    const int word = wordIn(words, value.text);
    if (word >= 0) {
        style->alignment = Qt::Alignment(meanings[word]);
        if (word < 2) {
            // The side itself, not where lines begin.
            style->alignment |= Qt::AlignAbsolute;
        }
    }
}

void direction(const Value &value, MRVHtmlStyle *style)
{
    if (value.text == QLatin1String("rtl")) {
        style->direction = Qt::RightToLeft;
    } else if (value.text == QLatin1String("ltr")) {
        style->direction = Qt::LeftToRight;
    }
}

void textIndent(const Value &value, MRVHtmlStyle *style)
{
    toPixels(value, value.text, style->fontPixels, ColumnPixels, &style->textIndent);
}

void lineHeight(const Value &value, MRVHtmlStyle *style)
{
    bool isNumber = false;
    qreal height = value.text.toDouble(&isNumber);
    if (value.text == QLatin1String("normal")) {
        style->lineHeight = 0;
        style->lineHeightType = QTextBlockFormat::SingleHeight;
    } else if (isNumber || value.text.endsWith(QLatin1Char('%'))
               || value.text.endsWith(QLatin1String("em"))) {
        if (isNumber || toPixels(value, value.text, 1, 1, &height)) {
            style->lineHeight = qBound<qreal>(0, height * 100, 10000);
            style->lineHeightType = QTextBlockFormat::ProportionalHeight;
        }
    } else if (toPixels(value, value.text, style->fontPixels, style->fontPixels, &height)) {
        style->lineHeight = height;
        style->lineHeightType = QTextBlockFormat::MinimumHeight;
    }
}

void lineHeightType(const Value &value, MRVHtmlStyle *style)
{
    constexpr const char *words[] = {"proportional", "fixed", "minimum", "line-distance"};
    const int word = wordIn(words, value.text);
    if (word >= 0) {
        style->lineHeightType = QTextBlockFormat::ProportionalHeight + word;
    }
}

void whiteSpace(const Value &value, MRVHtmlStyle *style)
{
    constexpr const char *words[] = {"normal",   "nowrap",   "pre",
                                     "pre-wrap", "pre-line", "break-spaces"};
    constexpr MRVHtmlStyle::WhiteSpace meanings[] = {
        MRVHtmlStyle::Collapsed,         MRVHtmlStyle::Unwrapped,
        MRVHtmlStyle::Preformatted,      MRVHtmlStyle::PreformattedWrapped,
        MRVHtmlStyle::PreformattedLines, MRVHtmlStyle::PreformattedWrapped};
    const int word = wordIn(words, value.text);
    if (word >= 0) {
        style->whiteSpace = meanings[word];
    }
}

void listStyleType(const Value &value, MRVHtmlStyle *style)
{
    constexpr const char *words[] = {"none",        "disc",        "circle",      "square",
                                     "decimal",     "lower-alpha", "lower-latin", "upper-alpha",
                                     "upper-latin", "lower-roman", "upper-roman"};
    constexpr int meanings[] = {
        QTextListFormat::ListStyleUndefined, QTextListFormat::ListDisc,
        QTextListFormat::ListCircle,         QTextListFormat::ListSquare,
        QTextListFormat::ListDecimal,        QTextListFormat::ListLowerAlpha,
        QTextListFormat::ListLowerAlpha,     QTextListFormat::ListUpperAlpha,
        QTextListFormat::ListUpperAlpha,     QTextListFormat::ListLowerRoman,
        QTextListFormat::ListUpperRoman};
    const int word = wordIn(words, value.text);
    if (word >= 0) {
        style->listStyle = meanings[word];
    }
}

// As the exporter writes where a list begins, in pages that have no attribute for it.
void counterReset(const Value &value, MRVHtmlStyle *style)
{
    const QStringList words = value.text.simplified().split(u' ');
    bool ok = false;
    const int before = words.value(1).toInt(&ok);
    style->hasListStart = words.constFirst() == QLatin1String("list-item") && words.size() == 2
        && ok && before < std::numeric_limits<int>::max();
    style->listStart = style->hasListStart ? before + 1 : 1;
}

void visibility(const Value &value, MRVHtmlStyle *style)
{
    if (value.text == QLatin1String("visible") || value.text == QLatin1String("initial")) {
        style->isInvisible = false;
    } else if (value.text == QLatin1String("hidden") || value.text == QLatin1String("collapse")) {
        style->isInvisible = true;
    }
}

void display(const Value &value, MRVHtmlStyle *style)
{
    // Rows, cells, grids and the like are paragraphs, at least.
    constexpr const char *blocks[] = {"block",
                                      "flow-root",
                                      "flex",
                                      "grid",
                                      "table",
                                      "table-row",
                                      "table-cell",
                                      "table-caption",
                                      "table-row-group",
                                      "table-header-group",
                                      "table-footer-group"};
    const QString outer = value.text.section(u' ', 0, 0);
    if (outer == QLatin1String("none")) {
        style->display = MRVHtmlStyle::Hidden;
    } else if (outer == QLatin1String("list-item")) {
        style->display = MRVHtmlStyle::ListItem;
    } else if (outer.startsWith(QLatin1String("inline")) || outer == QLatin1String("contents")) {
        style->display = MRVHtmlStyle::Inline;
    } else if (wordIn(blocks, outer) >= 0) {
        style->display = MRVHtmlStyle::Block;
    }
    // There, each element is a box of its own.
    if (value.text.endsWith(QLatin1String("flex")) || value.text.endsWith(QLatin1String("grid"))) {
        style->innerDisplay = style->isInLine() ? MRVHtmlStyle::Apart : MRVHtmlStyle::Block;
    } else {
        style->innerDisplay = MRVHtmlStyle::Inline;
    }
}

void margin(const Value &value, MRVHtmlStyle *style)
{
    qreal pixels = 0;
    const bool isFree = value.text == QLatin1String("auto");
    if (isFree || toPixels(value, value.text, style->fontPixels, ColumnPixels, &pixels)) {
        style->margins[sideOf(value.property)] = pixels;
        style->isFree[sideOf(value.property)] = isFree;
    }
}

void padding(const Value &value, MRVHtmlStyle *style)
{
    qreal pixels = 0;
    if (toPixels(value, value.text, style->fontPixels, ColumnPixels, &pixels) && pixels >= 0) {
        style->paddings[sideOf(value.property)] = pixels;
    }
}

void borderWidth(const Value &value, MRVHtmlStyle *style)
{
    constexpr const char *words[] = {"thin", "medium", "thick"};
    const int word = wordIn(words, value.text);
    qreal pixels = 1 + 2 * word;
    if (word >= 0 || toPixels(value, value.text, style->fontPixels, 0, &pixels)) {
        style->borders[sideOf(value.property)].width = qMax<qreal>(0, pixels);
    }
}

// Other words than these would be styles that Qt's writer of HTML does not survive.
void borderStyle(const Value &value, MRVHtmlStyle *style)
{
    constexpr const char *words[] = {"none",   "dotted",   "dashed",       "solid",
                                     "double", "dot-dash", "dot-dot-dash", "groove",
                                     "ridge",  "inset",    "outset"};
    const int word = wordIn(words, value.text);
    MRVHtmlBorder &border = style->borders[sideOf(value.property)];
    border.style = QTextFrameFormat::BorderStyle(qMax(0, word));
    if (word > 0 && border.width == 0) {
        border.width = 3; // "medium"
    }
}

void borderColor(const Value &value, MRVHtmlStyle *style)
{
    const QColor color = mrvCssColor(value.text);
    if (color.isValid()) {
        style->borders[sideOf(value.property)].brush = color;
    }
}

void pageBreak(const Value &value, MRVHtmlStyle *style)
{
    constexpr const char *always[] = {"always", "page", "left", "right", "recto", "verso"};
    const bool breaks = wordIn(always, value.text) >= 0;
    (value.property.endsWith(QLatin1String("before")) ? style->breaksBefore : style->breaksAfter) =
        breaks;
}

void floating(const Value &value, MRVHtmlStyle *style)
{
    style->position = value.text == QLatin1String("left") ? QTextFrameFormat::FloatLeft
        : value.text == QLatin1String("right")            ? QTextFrameFormat::FloatRight
                                                          : QTextFrameFormat::InFlow;
}

void extent(const Value &value, MRVHtmlStyle *style)
{
    QTextLength &extent = value.property == QLatin1String("width") ? style->width : style->height;
    qreal pixels = 0;
    if (value.text.endsWith(QLatin1Char('%'))) {
        if (toPixels(value, value.text, 0, 100, &pixels) && pixels >= 0) {
            extent = QTextLength(QTextLength::PercentageLength, pixels);
        }
    } else if (toPixels(value, value.text, style->fontPixels, 0, &pixels) && pixels >= 0) {
        extent = QTextLength(QTextLength::FixedLength, pixels);
    }
}

void borderCollapse(const Value &value, MRVHtmlStyle *style)
{
    style->collapsesBorders = value.text == QLatin1String("collapse");
}

// What Qt writes into pages beside CSS.
void ofQt(const Value &value, MRVHtmlStyle *style)
{
    constexpr const char *names[] = {
        "-qt-block-indent",       "-qt-list-indent",    "-qt-user-state", "-qt-list-number-prefix",
        "-qt-list-number-suffix", "-qt-paragraph-type", "-qt-table-type"};
    if (!value.isQtPage) {
        return;
    }
    const int number = qBound(-1, value.text.toInt(), 1000);
    switch (wordIn(names, value.property)) {
    case 0:
        style->blockIndent = qMax(0, number);
        break;
    case 1:
        style->listIndent = qMax(0, number);
        break;
    case 2:
        style->userState = value.text.toInt();
        break;
    case 3:
        style->numberPrefix = mrvCssText(value.text);
        style->hasNumberPrefix = true;
        break;
    case 4:
        style->numberSuffix = mrvCssText(value.text);
        style->hasNumberSuffix = true;
        break;
    case 5:
        style->isEmptyParagraph = value.text == QLatin1String("empty");
        break;
    case 6:
        style->tableType = value.text;
        break;
    default:
        break;
    }
}

// clang-format off
constexpr struct
{
    const char *property;
    Handler handler;
} handlers[] = {
    {"font-family", fontFamily},
    {"font-weight", fontWeight},
    {"font-style", fontStyle},
    {"font-variant", capitalization},
    {"font-variant-caps", capitalization},
    {"text-transform", capitalization},
    {"text-decoration", textDecoration},
    {"text-decoration-line", textDecoration},
    {"letter-spacing", spacing},
    {"word-spacing", spacing},
    {"vertical-align", verticalAlign},
    {"color", color},
    {"background-color", backgroundColor},
    {"text-align", textAlign},
    {"direction", direction},
    {"text-indent", textIndent},
    {"line-height", lineHeight},
    {"-qt-line-height-type", lineHeightType},
    {"white-space", whiteSpace},
    {"list-style-type", listStyleType},
    {"counter-reset", counterReset},
    {"visibility", visibility},
    {"display", display},
    {"margin-top", margin},
    {"margin-right", margin},
    {"margin-bottom", margin},
    {"margin-left", margin},
    {"padding-top", padding},
    {"padding-right", padding},
    {"padding-bottom", padding},
    {"padding-left", padding},
    {"border-top-width", borderWidth},
    {"border-right-width", borderWidth},
    {"border-bottom-width", borderWidth},
    {"border-left-width", borderWidth},
    {"border-top-style", borderStyle},
    {"border-right-style", borderStyle},
    {"border-bottom-style", borderStyle},
    {"border-left-style", borderStyle},
    {"border-top-color", borderColor},
    {"border-right-color", borderColor},
    {"border-bottom-color", borderColor},
    {"border-left-color", borderColor},
    {"border-collapse", borderCollapse},
    {"page-break-before", pageBreak},
    {"page-break-after", pageBreak},
    {"break-before", pageBreak},
    {"break-after", pageBreak},
    {"float", floating},
    {"width", extent},
    {"height", extent},
    {"-qt-block-indent", ofQt},
    {"-qt-list-indent", ofQt},
    {"-qt-user-state", ofQt},
    {"-qt-list-number-prefix", ofQt},
    {"-qt-list-number-suffix", ofQt},
    {"-qt-paragraph-type", ofQt},
    {"-qt-table-type", ofQt},
};
// clang-format on

Handler handlerOf(const QString &property)
{
    static const QHash<QString, Handler> table = [] {
        QHash<QString, Handler> rows;
        for (const auto &row : handlers) {
            rows.insert(QLatin1String(row.property), row.handler);
        }
        return rows;
    }();
    return table.value(property);
}

} // namespace

MRVHtmlStyle MRVHtmlStyle::inherited() const
{
    MRVHtmlStyle inside;
    inside.text = text;
    inside.fontPixels = fontPixels;
    inside.alignment = alignment;
    inside.direction = direction;
    inside.textIndent = textIndent;
    inside.lineHeight = lineHeight;
    inside.lineHeightType = lineHeightType;
    inside.whiteSpace = whiteSpace;
    inside.listStyle = listStyle;
    inside.language = language;
    inside.codeLanguage = codeLanguage;
    inside.isInvisible = isInvisible;
    inside.innerDisplay = innerDisplay;
    return inside;
}

void MRVHtmlStyler::apply(const QVector<MRVCssDeclaration> &declarations,
                          const MRVHtmlStyle &outside, MRVHtmlStyle *style) const
{
    const QLatin1String size("font-size");
    // An em of the other properties is the element's own size.
    for (const MRVCssDeclaration &declaration : declarations) {
        if (declaration.property == size) {
            fontSize({declaration.property, declaration.value, outside, m_rootPixels, m_isQtPage},
                     style);
        }
    }
    for (const MRVCssDeclaration &declaration : declarations) {
        if (const Handler handler = handlerOf(declaration.property)) {
            // Names of fonts and texts have capitals; keywords mean the same in any case.
            const bool isText = handler == fontFamily || handler == ofQt;
            const QString value = isText ? declaration.value : declaration.value.toLower();
            handler({declaration.property, value, outside, m_rootPixels, m_isQtPage}, style);
        }
    }
}
