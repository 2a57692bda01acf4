#include "html/mrvhtmlbuilder_p.h"

#include "textformat/mrvformatspread.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvnames.h"

#include <QFont>
#include <QRegularExpression>
#include <QTextFrame>
#include <QUrl>

#include <algorithm>

namespace {

constexpr qreal DefaultPoints = 12; // 16 pixels

bool isQtPage(const GumboNode *root)
{
    for (const GumboNode *child : MRVHtmlChildren(root)) {
        if (mrvIsElement(child, GUMBO_TAG_HEAD)) {
            for (const GumboNode *meta : MRVHtmlChildren(child)) {
                if (mrvIsElement(meta, GUMBO_TAG_META)
                    && mrvAttributeOf(meta, "name") == QLatin1String("qrichtext")) {
                    return true;
                }
            }
        }
    }
    return false;
}

const GumboNode *childOf(const GumboNode *element, GumboTag tag)
{
    for (const GumboNode *child : MRVHtmlChildren(element)) {
        if (mrvIsElement(child, tag)) {
            return child;
        }
    }
    return nullptr;
}

// Formats have them once for each line and each stretch of text.
constexpr int LongestLanguage = 1000;
constexpr int LongestTitle = 10000;

// HTML recommends such classes (HTML Living Standard, 4.4.3 and 4.5.15); the attribute is cmark's.
QString codeLanguageOf(const GumboNode *pre)
{
    const GumboNode *const code = childOf(pre, GUMBO_TAG_CODE);
    if (!code) {
        return QString();
    }
    static const QRegularExpression name(
        QStringLiteral("(?:^|[ \\t\\n\\f\\r])language-([^ \\t\\n\\f\\r]+)"));
    const QString language = name.match(mrvAttributeOf(code, "class")).captured(1);
    const QString more = mrvAttributeOf(code, "data-meta");
    const QString all = language.isEmpty() || more.isEmpty() ? language : language + u' ' + more;
    return all.size() <= LongestLanguage ? all : QString();
}

const QVector<MRVCssDeclaration> &innerListDeclarations()
{
    static const QVector<MRVCssDeclaration> declarations =
        MRVStyleSheet::parseDeclarations(QStringLiteral("margin-top:0;margin-bottom:0"));
    return declarations;
}

bool isBlank(const GumboNode *node)
{
    return node->type == GUMBO_NODE_COMMENT
        || (!mrvIsElement(node) && mrvTextOf(node).trimmed().isEmpty());
}

// Whether an element fills a line: between line ends, or the beginning or end of its block.
bool fillsLine(const GumboNode *element)
{
    const GumboNode *parent = element->parent;
    if (!mrvIsElement(parent) || mrvHtmlElement(parent).display == MRVHtmlStyle::Inline) {
        return false;
    }
    const GumboVector &siblings = parent->v.element.children;
    bool hasLineEnd = false;
    for (const int step : {-1, 1}) {
        size_t at = element->index_within_parent + size_t(step);
        while (at < siblings.length && isBlank(static_cast<GumboNode *>(siblings.data[at]))) {
            at += size_t(step); // before the first one it is beyond the last
        }
        if (at < siblings.length) {
            if (!mrvIsElement(static_cast<GumboNode *>(siblings.data[at]), GUMBO_TAG_BR)) {
                return false;
            }
            hasLineEnd = true;
        }
    }
    return hasLineEnd;
}

// A line of verse with a margin of its own. Rich text knows margins of paragraphs only.
void makeIndentedLine(const GumboNode *element, MRVHtmlStyle *style)
{
    const qreal indent = style->margin(MRVHtmlSide::Left);
    if (style->display == MRVHtmlStyle::Inline && indent > 0 && style->textIndent == 0
        && fillsLine(element)) {
        style->display = MRVHtmlStyle::Block;
        std::fill(std::begin(style->margins), std::end(style->margins), 0);
        style->margins[int(MRVHtmlSide::Left)] = indent;
    }
}

// Adds the direction that an element in a line sets for what it holds. More levels than texts have
// would only make formats long.
void addDirection(const GumboNode *element, QTextCharFormat *text)
{
    constexpr int MostLevels = 8;
    QString direction = mrvAttributeOf(element, "dir").toLower();
    const bool isFixed = direction == QLatin1String("ltr") || direction == QLatin1String("rtl");
    if (mrvIsElement(element, GUMBO_TAG_BDI) && !isFixed) {
        direction = QStringLiteral("auto");
    } else if (mrvIsElement(element, GUMBO_TAG_BDO) && isFixed) {
        direction += QLatin1String("-override");
    } else if (!isFixed && direction != QLatin1String("auto")) {
        return;
    }
    const QString outside = text->stringProperty(MRVTextFormat::DirectionProperty);
    if (outside.count(u' ') + 1 < MostLevels) {
        text->setProperty(MRVTextFormat::DirectionProperty,
                          QString(outside + u' ' + direction).trimmed());
    }
}

bool hasNextElement(const GumboNode *element)
{
    const GumboVector &siblings = element->parent->type == GUMBO_NODE_DOCUMENT
        ? element->parent->v.document.children
        : element->parent->v.element.children;
    for (size_t i = element->index_within_parent + 1; i < siblings.length; ++i) {
        if (mrvIsElement(static_cast<const GumboNode *>(siblings.data[i]))) {
            return true;
        }
    }
    return false;
}

int itemCount(const GumboNode *list)
{
    const MRVHtmlChildren children(list);
    return int(std::count_if(children.begin(), children.end(), [](const GumboNode *child) {
        return mrvIsElement(child, GUMBO_TAG_LI);
    }));
}

void setNoteLink(int link, QTextCharFormat *format)
{
    if (link != 0) {
        format->setProperty(MRVTextFormat::NoteLinkProperty, link);
    } else {
        format->clearProperty(MRVTextFormat::NoteLinkProperty);
    }
}

const QVector<MRVCssDeclaration> &linkDeclarations()
{
    // The colour does not come from the palette of the machine that reads: the same page gives the
    // same document everywhere.
    static const QVector<MRVCssDeclaration> declarations =
        MRVStyleSheet::parseDeclarations(QStringLiteral("color:#0000ff;text-decoration:underline"));
    return declarations;
}

} // namespace

MRVHtmlBuilder::MRVHtmlBuilder(const MRVHtmlTree &tree, const MRVStyleSheet *sheets,
                               QTextDocument *document)
    : m_tree(tree)
    , m_sheets(sheets)
    , m_document(document)
    , m_isQtPage(isQtPage(tree.root()))
    , m_writer(document)
{
    m_writer.setIsQtPage(m_isQtPage);
    m_styler.setIsQtPage(m_isQtPage);
}

void MRVHtmlBuilder::build(MRVHtmlRuns *runs)
{
    m_runs = runs;
    Siblings roots;
    Siblings bodies;
    const GumboNode *root = m_tree.root();
    const MRVCssElement *rootCss = cssElement(root, nullptr, &roots);
    MRVHtmlStyle rootStyle = styleOf(root, MRVHtmlStyle(), rootCss);
    rootStyle.isInvisible = false; // until a script shows the page
    m_language = rootStyle.language;
    m_styler.setRootPixels(rootStyle.fontPixels);
    m_writer.addName(mrvAttributeOf(root, "id"));
    const GumboNode *body = childOf(root, GUMBO_TAG_BODY);
    if (!body) {
        body = childOf(root, GUMBO_TAG_FRAMESET);
    }
    if (body) {
        const MRVCssElement *css = cssElement(body, rootCss, &bodies);
        MRVHtmlStyle style = styleOf(body, rootStyle, css);
        style.isInvisible = false;
        if (m_language.isEmpty()) {
            m_language = style.language;
        }
        style.text.clearProperty(MRVTextFormat::LanguageProperty);
        if (m_isQtPage) {
            style.whiteSpace = MRVHtmlStyle::PreformattedWrapped;
        }
        prepareDocument(style);
        style.text.clearProperty(QTextFormat::FontFamily);
        style.text.clearProperty(QTextFormat::FontFamilies);
        style.text.clearProperty(QTextFormat::FontPointSize);
        style.text.clearProperty(QTextFormat::FontSizeAdjustment);
        m_writer.addName(mrvAttributeOf(body, "id"));
        m_writer.enter(style.inherited(), MRVHtmlBox());
        readChildren(body, style.inherited(), css);
        m_writer.leave();
    }
    m_writer.finish();
}

// What the whole page looks like is the document's own look.
void MRVHtmlBuilder::prepareDocument(const MRVHtmlStyle &body)
{
    QFont font = m_document->defaultFont();
    const QString family = body.text.fontFamily();
    if (!family.isEmpty()) {
        font.setFamily(family);
    }
    font.setPointSizeF(qRound(body.fontPixels * 0.75 * 100) / 100.0);
    if (body.fontPixels == 16) {
        font.setPointSizeF(DefaultPoints);
    }
    m_document->setDefaultFont(font);
    if (body.background.style() != Qt::NoBrush) {
        QTextFrameFormat format = m_document->rootFrame()->frameFormat();
        format.setBackground(body.background);
        m_document->rootFrame()->setFrameFormat(format);
    }
}

const MRVCssElement *MRVHtmlBuilder::cssElement(const GumboNode *element,
                                                const MRVCssElement *parent,
                                                Siblings *siblings) const
{
    if (!m_sheets) {
        return nullptr;
    }
    MRVCssElement css;
    css.parent = parent;
    css.name = mrvNameOf(element);
    const GumboVector &attributes = element->v.element.attributes;
    for (unsigned i = 0; i < attributes.length; ++i) {
        const auto *attribute = static_cast<const GumboAttribute *>(attributes.data[i]);
        css.attributes.append(
            {QString::fromUtf8(attribute->name), QString::fromUtf8(attribute->value)});
    }
    css.id = mrvAttributeOf(element, "id");
    css.classes = mrvAttributeOf(element, "class").simplified().split(u' ', Qt::SkipEmptyParts);
    if (!siblings->elements.empty()) {
        css.previous = &siblings->elements.back();
        css.index = css.previous->index + 1;
    }
    css.typeIndex = ++siblings->counts[css.name];
    css.isLast = !hasNextElement(element);
    siblings->elements.push_back(css);
    return &siblings->elements.back();
}

MRVHtmlStyle MRVHtmlBuilder::styleOf(const GumboNode *element, const MRVHtmlStyle &outside,
                                     const MRVCssElement *css) const
{
    const MRVHtmlElement &kind = mrvHtmlElement(element);
    MRVHtmlStyle style = outside.inherited();
    style.display = kind.display;
    style.innerDisplay = MRVHtmlStyle::Inline;
    const QString address = m_tree.addressOf(element);
    // A list in a list has no space around it.
    const bool isInner = kind.kind == MRVHtmlElement::List && m_writer.listDepth() > 0;
    QVector<MRVCssDeclaration> declarations = kind.declarations;
    if (isInner) {
        declarations += innerListDeclarations();
    }
    declarations += mrvHtmlHints(element);
    if (!address.isEmpty()) {
        declarations += linkDeclarations();
    }
    const QVector<MRVCssDeclaration> own =
        MRVStyleSheet::parseDeclarations(mrvAttributeOf(element, "style"));
    declarations += css ? m_sheets->declarations(*css, own) : own;
    if (!declarations.isEmpty()) {
        m_styler.apply(declarations, outside, &style);
    }
    if (style.display == MRVHtmlStyle::Inline) {
        style.display = outside.innerDisplay;
    }
    if (!address.isEmpty()) {
        style.text.setAnchor(true);
        style.text.setAnchorHref(address);
        const QString title = mrvAttributeOf(element, "title");
        style.text.setProperty(QTextFormat::TextToolTip,
                               title.isEmpty() || title.size() > LongestTitle ? QVariant()
                                                                              : QVariant(title));
        MRVFormatSpread::update(&style.text);
        setNoteLink(mrvNoteLinkOf(element), &style.text);
    }
    if (mrvIsElement(element, GUMBO_TAG_PRE)) {
        style.codeLanguage = codeLanguageOf(element);
    }
    setLanguage(element, outside, &style);
    return style;
}

void MRVHtmlBuilder::setLanguage(const GumboNode *element, const MRVHtmlStyle &outside,
                                 MRVHtmlStyle *style) const
{
    for (const char *name : {"lang", "xml:lang"}) {
        const QString language = MRV::languageTag(mrvAttributeOf(element, name));
        if (!language.isEmpty()) {
            style->language = language;
        }
    }
    if (style->language == outside.language) {
        return;
    }
    if (style->language == m_language) {
        style->text.clearProperty(MRVTextFormat::LanguageProperty);
    } else {
        style->text.setProperty(MRVTextFormat::LanguageProperty, style->language);
    }
}

void MRVHtmlBuilder::readChildren(const GumboNode *parent, const MRVHtmlStyle &style,
                                  const MRVCssElement *css)
{
    Siblings siblings;
    bool isLineEnded = false; // an indented line has become a paragraph, which ends it
    for (const GumboNode *child : MRVHtmlChildren(parent)) {
        if (mrvIsElement(child)) {
            const MRVCssElement *childCss = cssElement(child, css, &siblings);
            const bool isEnd = isLineEnded && mrvIsElement(child, GUMBO_TAG_BR);
            isLineEnded = !isEnd && readElement(child, style, childCss);
        } else if (child->type != GUMBO_NODE_COMMENT && !style.isInvisible) {
            isLineEnded = isLineEnded && isBlank(child);
            writeText(mrvTextOf(child), style, child);
        }
    }
}

// Without a node, it is a text that the page only implies.
void MRVHtmlBuilder::writeText(const QString &text, const MRVHtmlStyle &style,
                               const GumboNode *node)
{
    if (m_runs) {
        m_runs->append({node, text});
    }
    m_writer.writeText(text, style);
}

// Tells whether the element was an indented line.
bool MRVHtmlBuilder::readElement(const GumboNode *element, const MRVHtmlStyle &outside,
                                 const MRVCssElement *css)
{
    if (mrvHtmlElement(element).kind == MRVHtmlElement::Skipped) {
        return false;
    }
    if (mrvIsComment(element)) {
        readComment(element);
    }
    MRVHtmlStyle style = styleOf(element, outside, css);
    const MRVHtmlStyle::Display display = style.display;
    makeIndentedLine(element, &style);
    const bool isName = element->v.element.tag == GUMBO_TAG_A;
    m_writer.addName(mrvAttributeOf(element, "id"));
    m_writer.addName(isName ? mrvAttributeOf(element, "name") : QString());
    keepDisplay(element, style);
    if (style.display == MRVHtmlStyle::Hidden) {
        return false;
    }
    if (style.isInvisible) {
        readInvisible(element, style, css);
    } else {
        readShown(element, style, css);
    }
    return style.display != display;
}

void MRVHtmlBuilder::keepDisplay(const GumboNode *element, const MRVHtmlStyle &style)
{
    if (style.display != mrvHtmlElement(element).display || style.isInvisible) {
        m_displays.insert(element, {style.display, style.isInvisible});
    }
}

// The space that it takes up in a browser is left out. What is visible inside of it is shown.
void MRVHtmlBuilder::readInvisible(const GumboNode *element, const MRVHtmlStyle &style,
                                   const MRVCssElement *css)
{
    if (mrvHtmlElement(element).kind == MRVHtmlElement::Picture) {
        return;
    }
    if (style.isInLine()) {
        readChildren(element, style.inherited(), css);
    } else {
        m_writer.enter(style.inherited(), MRVHtmlBox());
        readChildren(element, style.inherited(), css);
        m_writer.leave();
    }
}

void MRVHtmlBuilder::readShown(const GumboNode *element, const MRVHtmlStyle &style,
                               const MRVCssElement *css)
{
    switch (mrvHtmlElement(element).kind) {
    case MRVHtmlElement::LineEnd:
        m_writer.writeLineEnd(style);
        break;
    case MRVHtmlElement::Rule:
        m_writer.writeRule(style.width, style);
        break;
    case MRVHtmlElement::Table:
        readTable(element, style, css);
        break;
    case MRVHtmlElement::Input:
        readInput(element, style);
        break;
    case MRVHtmlElement::Picture:
        if (style.isInLine()) {
            readPicture(element, style, css);
        } else {
            m_writer.enter(style, MRVHtmlBox());
            readPicture(element, style.inherited(), css);
            m_writer.leave();
        }
        break;
    default:
        if (style.isInLine()) {
            readInline(element, style, css);
        } else {
            readBlock(element, style, css);
        }
        break;
    }
}

void MRVHtmlBuilder::readBlock(const GumboNode *element, const MRVHtmlStyle &style,
                               const MRVCssElement *css)
{
    m_writer.enter(style, boxOf(element, style));
    if (style.isEmptyParagraph && mrvTextIn(element).trimmed().isEmpty()) {
        m_writer.writeEmptyParagraph();
    } else {
        readInside(element, style.inherited(), css);
    }
    m_writer.leave();
}

void MRVHtmlBuilder::readInline(const GumboNode *element, MRVHtmlStyle style,
                                const MRVCssElement *css)
{
    if (style.verticalAlignment != QTextCharFormat::AlignNormal) {
        style.text.setVerticalAlignment(style.verticalAlignment);
    }
    if (style.background.style() != Qt::NoBrush) {
        style.text.setBackground(style.background);
    }
    addDirection(element, &style.text);
    const bool isApart = style.display == MRVHtmlStyle::Apart;
    if (isApart) {
        separate(style);
    }
    if (mrvIsPicture(element)) { // of SVG
        readPicture(element, style, css);
    }
    readInside(element, style.inherited(), css);
    if (isApart) {
        separate(style);
    }
}

// Blanks that are not the page's; where lines begin, they do not count.
void MRVHtmlBuilder::separate(const MRVHtmlStyle &style)
{
    if (m_runs) {
        m_runs->append({nullptr, QStringLiteral(" ")});
    }
    m_writer.writeSpace(style);
}

void MRVHtmlBuilder::readInside(const GumboNode *element, const MRVHtmlStyle &style,
                                const MRVCssElement *css)
{
    writeText(m_marks.before(element), style);
    readChildren(element, style, css);
    writeText(m_marks.after(element), style);
}

void MRVHtmlBuilder::readPicture(const GumboNode *element, const MRVHtmlStyle &style,
                                 const MRVCssElement *css)
{
    if (!mrvIsPicture(element)) {
        // Without a picture, its texts are shown.
        writeText(mrvAttributeOf(element, "alt"), style);
        readChildren(element, style.inherited(), css);
        return;
    }
    QTextImageFormat image;
    image.setName(mrvPictureName(element));
    if (style.width.type() == QTextLength::FixedLength) {
        image.setWidth(style.width.rawValue());
    }
    if (style.height.type() == QTextLength::FixedLength) {
        image.setHeight(style.height.rawValue());
    }
    QString text = mrvAttributeOf(element, "alt");
    if (mrvIsElement(element, GUMBO_TAG_OBJECT)) {
        text = mrvTextIn(element).simplified();
    }
    if (!text.isNull()) {
        image.setProperty(QTextFormat::ImageAltText, text);
    }
    const QString title = mrvAttributeOf(element, "title");
    if (!title.isEmpty()) {
        image.setProperty(QTextFormat::ImageTitle, title);
    }
    if (style.verticalAlignment != QTextCharFormat::AlignNormal) {
        image.setVerticalAlignment(style.verticalAlignment);
    }
    m_writer.writeImage(image, style);
}

// Text inside of the element, which has none, is shown as that of any other.
void MRVHtmlBuilder::readComment(const GumboNode *element)
{
    const int begin = mrvAttributeOf(element, "begin").toInt();
    if (begin > 0) {
        m_writer.beginComment({begin, mrvAttributeOf(element, "author"),
                               mrvAttributeOf(element, "date"), mrvAttributeOf(element, "text")});
    } else {
        m_writer.endComment(mrvAttributeOf(element, "end").toInt());
    }
}

void MRVHtmlBuilder::readInput(const GumboNode *element, const MRVHtmlStyle &style)
{
    const QString type = mrvAttributeOf(element, "type").toLower();
    if (type == QLatin1String("checkbox")) {
        m_writer.setMarker(mrvHasAttribute(element, "checked")
                               ? QTextBlockFormat::MarkerType::Checked
                               : QTextBlockFormat::MarkerType::Unchecked);
    } else if (type == QLatin1String("image")) {
        readPicture(element, style, nullptr);
    }
    if (mrvIsField(element)) {
        separate(style);
        writeText(mrvFieldText(element), style);
        separate(style);
    }
}

// What the element captions: an MRVTextFormat::Caption; 0 for another element. The caption of a
// table is written before it.
int MRVHtmlBuilder::captionOf(const GumboNode *element)
{
    if (element->v.element.tag == GUMBO_TAG_CAPTION) {
        return MRVTextFormat::CaptionOfNext;
    }
    if (element->v.element.tag != GUMBO_TAG_FIGCAPTION) {
        return 0;
    }
    return mrvElementBefore(element) ? MRVTextFormat::CaptionOfPrevious
                                     : MRVTextFormat::CaptionOfNext;
}

MRVHtmlBox MRVHtmlBuilder::boxOf(const GumboNode *element, const MRVHtmlStyle &style)
{
    const MRVHtmlElement &kind = mrvHtmlElement(element);
    MRVHtmlBox box;
    box.headingLevel = kind.headingLevel;
    box.isQuote = kind.isQuote;
    box.caption = captionOf(element);
    box.note = mrvIsNote(element) ? ++m_noteCount : 0;
    if (kind.kind == MRVHtmlElement::List) {
        box.list = listOf(element, style);
    } else if (kind.kind == MRVHtmlElement::Item && style.display == MRVHtmlStyle::ListItem) {
        continueList(element, &box);
    }
    return box;
}

std::shared_ptr<MRVHtmlList> MRVHtmlBuilder::listOf(const GumboNode *element,
                                                    const MRVHtmlStyle &style) const
{
    auto list = std::make_shared<MRVHtmlList>();
    list->format.setStyle(QTextListFormat::Style(style.listStyle));
    const bool isFlat = style.listStyle == QTextListFormat::ListStyleUndefined
        && style.paddings[int(MRVHtmlSide::Left)] == 0;
    const int depth = style.listIndent > 0 ? style.listIndent : m_writer.listDepth() + 1;
    list->format.setIndent(isFlat ? m_writer.listDepth() : depth);
    if (style.hasNumberPrefix) {
        list->format.setNumberPrefix(style.numberPrefix);
    }
    if (style.hasNumberSuffix) {
        list->format.setNumberSuffix(style.numberSuffix);
    }
    if (element->v.element.tag == GUMBO_TAG_OL) {
        const bool isReversed = mrvHasAttribute(element, "reversed");
        bool ok = false;
        const int start = mrvAttributeOf(element, "start").toInt(&ok);
        list->step = isReversed ? -1 : 1;
        list->number = ok        ? start
            : style.hasListStart ? style.listStart
            : isReversed         ? itemCount(element)
                                 : 1;
    }
    if (list->number != 1) {
        list->format.setProperty(MRVTextFormat::ListStartProperty, list->number);
    }
    return list;
}

// An item of another number than the next one begins another list, as rich text counts items.
void MRVHtmlBuilder::continueList(const GumboNode *item, MRVHtmlBox *box)
{
    box->isItem = true;
    MRVHtmlList *list = m_writer.list();
    bool ok = false;
    const int number = mrvAttributeOf(item, "value").toInt(&ok);
    if (list && ok && number != list->number) {
        list->goOnWith(number);
    }
}
