#include "html/mrvhtmlwriter_p.h"

#include "html/mrvhtmlelements_p.h"
#include "textformat/mrvformatspread.h"
#include "textformat/mrvnoteproperty.h"
#include "textformat/mrvtextformat.h"

#include <algorithm>
#include <utility>

namespace {

// Qt visits all items of a list when one is added, and nothing that it offers adds several at once:
// ten thousand in one list take six seconds, four thousand one. Longer lists go on in another one;
// of numbered lists few are that long, as Qt's HTML numbers each list from 1.
constexpr int MostItems = 1000;
constexpr int MostNumberedItems = 4000;

bool isSpace(QChar character)
{
    return character == u' ' || (character >= u'\t' && character <= u'\r' && character != u'\v');
}

QTextBlockFormat lookOf(const MRVHtmlStyle &style)
{
    QTextBlockFormat format;
    if (style.alignment) {
        format.setAlignment(style.alignment);
    }
    if (style.direction != Qt::LayoutDirectionAuto) {
        format.setLayoutDirection(style.direction);
    }
    if (style.textIndent != 0) {
        format.setTextIndent(style.textIndent);
    }
    if (style.lineHeightType != QTextBlockFormat::SingleHeight) {
        format.setLineHeight(style.lineHeight, style.lineHeightType);
    }
    if (style.blockIndent > 0) {
        format.setIndent(style.blockIndent);
    }
    if (style.whiteSpace == MRVHtmlStyle::Preformatted) {
        format.setNonBreakableLines(true);
        if (!style.codeLanguage.isEmpty()) {
            format.setProperty(QTextFormat::BlockCodeLanguage, style.codeLanguage);
        }
    }
    if (style.userState >= 0) {
        format.setProperty(QTextFormat::UserProperty, style.userState);
    }
    return format;
}

} // namespace

bool MRVHtmlList::isNumbered() const
{
    return format.style() <= QTextListFormat::ListDecimal;
}

void MRVHtmlList::goOnWith(int next)
{
    list = nullptr;
    number = next;
    if (isNumbered()) {
        format.setProperty(MRVTextFormat::ListStartProperty, next);
    }
}

MRVHtmlWriter::MRVHtmlWriter(QTextDocument *document)
    : m_document(document)
    , m_cursor(document)
{
    m_boxes.append(Box());
    m_cursor.beginEditBlock();
}

void MRVHtmlWriter::enter(const MRVHtmlStyle &style, const MRVHtmlBox &box)
{
    endParagraph();
    Box &outside = m_boxes.last();
    if (outside.endsWithText && m_place == Place::Closed
        && outside.style.margin(MRVHtmlSide::Bottom) > 0) {
        setBottomMargin(0); // the space is after all that the element holds
    }
    outside.endsWithText = false;
    Box inside;
    inside.style = style;
    inside.box = box;
    inside.left = outside.left + style.margin(MRVHtmlSide::Left);
    inside.right = outside.right + style.margin(MRVHtmlSide::Right);
    inside.top = style.margin(MRVHtmlSide::Top);
    inside.headingLevel = box.headingLevel ? box.headingLevel : outside.headingLevel;
    inside.caption = box.caption ? box.caption : outside.caption;
    inside.note = box.note ? box.note : outside.note;
    inside.quoteLevel = outside.quoteLevel + (box.isQuote ? 1 : 0);
    inside.listDepth = outside.listDepth + (box.list ? 1 : 0);
    inside.list = box.list ? box.list : outside.list;
    inside.background =
        style.background.style() == Qt::NoBrush ? outside.background : style.background;
    inside.breaksBefore = style.breaksBefore;
    inside.marker = box.marker;
    m_boxes.append(inside);
}

void MRVHtmlWriter::leave()
{
    Box &box = m_boxes.last();
    if (box.box.isItem && !box.isItemStarted && box.list && box.list->isNumbered()) {
        openParagraph(); // the numbers of the items after it count it
    }
    if (m_isQtPage && box.style.whiteSpace == MRVHtmlStyle::Preformatted) {
        writeBlanks(); // a line of them
    }
    endParagraph();
    const qreal bottom = box.style.margin(MRVHtmlSide::Bottom);
    if (box.isStarted && m_place == Place::Closed
        && bottom > m_cursor.blockFormat().bottomMargin()) {
        setBottomMargin(bottom);
    }
    m_breakIsPending = m_breakIsPending || box.style.breaksAfter;
    m_boxes.removeLast();
}

void MRVHtmlWriter::setBottomMargin(qreal margin)
{
    QTextBlockFormat format = m_cursor.blockFormat();
    format.setBottomMargin(margin);
    m_cursor.setBlockFormat(format);
}

void MRVHtmlWriter::endParagraph()
{
    m_blanks.clear();
    if (m_place != Place::Open && m_lineEnds.isEmpty()) {
        m_spaceIsPending = false;
        return;
    }
    if (!m_lineEnds.isEmpty()) {
        // The last one ends the line that the paragraph's end ends, too.
        const bool isEmpty = m_place != Place::Open;
        if (!m_isQtPage) {
            m_lineEnds.removeLast();
            m_settledEnds = qMin(m_settledEnds, m_lineEnds.size());
        }
        if (isEmpty) {
            openParagraph();
        }
        writePendingLineEnds();
    }
    flush();
    m_place = Place::Closed;
    m_spaceIsPending = false;
    m_atLineStart = true;
}

void MRVHtmlWriter::writeEmptyParagraph()
{
    if (m_place != Place::Open) {
        openParagraph();
    }
    m_lineEnds.clear();
    m_settledEnds = 0;
    endParagraph();
}

// Gives the first paragraph of each element around it what is the element's.
void MRVHtmlWriter::startBoxes(QTextBlockFormat *format)
{
    qreal top = 0;
    bool breaks = m_breakIsPending;
    m_breakIsPending = false;
    for (int i = m_boxes.size() - 1; i >= 0 && !m_boxes.at(i).isStarted; --i) {
        Box &box = m_boxes[i];
        box.isStarted = true;
        top = qMax(top, box.top);
        breaks = breaks || box.breaksBefore;
    }
    if (top > 0) {
        format->setTopMargin(top);
    }
    if (breaks) {
        format->setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    }
}

QTextBlockFormat MRVHtmlWriter::paragraphFormat()
{
    Box &box = m_boxes.last();
    QTextBlockFormat format = lookOf(box.style);
    startBoxes(&format);
    box.endsWithText = true;
    const qreal bottom = box.style.margin(MRVHtmlSide::Bottom);
    if (bottom > 0) {
        format.setBottomMargin(bottom);
    }
    if (box.left != 0) {
        format.setLeftMargin(box.left);
    }
    if (box.right != 0) {
        format.setRightMargin(box.right);
    }
    if (box.headingLevel > 0) {
        format.setHeadingLevel(box.headingLevel);
        format.setProperty(MRVTextFormat::HeadingLevelProperty, box.headingLevel);
    }
    if (box.caption > 0) {
        format.setProperty(MRVTextFormat::CaptionProperty, box.caption);
    }
    if (box.note > 0) {
        format.setProperty(MRVParagraphNoteProperty, box.note);
    }
    if (box.quoteLevel > 0) {
        format.setProperty(QTextFormat::BlockQuoteLevel, box.quoteLevel);
    }
    if (box.background.style() != Qt::NoBrush) {
        format.setBackground(box.background);
    }
    return format;
}

// Whether a paragraph is an item of a list. One without a mark is indented as items are.
bool MRVHtmlWriter::joinList(QTextBlockFormat *format)
{
    const Box &last = m_boxes.constLast();
    if (last.listDepth == 0) {
        return false;
    }
    int at = m_boxes.size() - 1;
    while (at > 0 && !m_boxes.at(at).box.isItem && !m_boxes.at(at).box.list) {
        --at;
    }
    Box &box = m_boxes[at];
    MRVHtmlList &list = *last.list;
    if (!box.box.isItem || box.isItemStarted
        || list.format.style() == QTextListFormat::ListStyleUndefined) {
        box.isItemStarted = box.isItemStarted || box.box.isItem;
        if (list.format.indent() > 0) {
            format->setIndent(list.format.indent());
        }
        return false;
    }
    box.isItemStarted = true;
    const int most = list.isNumbered() ? MostNumberedItems : MostItems;
    // A list of rich text counts up.
    if (list.list && (list.step < 0 || list.list->count() >= most)) {
        list.goOnWith(list.number);
    }
    if (box.marker != QTextBlockFormat::MarkerType::NoMarker) {
        format->setMarker(box.marker);
    }
    list.number += list.step;
    return true;
}

void MRVHtmlWriter::setParagraphFormat(const QTextBlockFormat &format, const QTextCharFormat &text)
{
    if (m_place == Place::Closed) {
        m_cursor.insertBlock(format, text);
    } else {
        m_cursor.setBlockFormat(format);
        if (!m_isCellStart) {
            m_cursor.setBlockCharFormat(text);
        }
    }
    m_isCellStart = false;
}

void MRVHtmlWriter::openParagraph()
{
    flush();
    QTextBlockFormat format = paragraphFormat();
    const std::shared_ptr<MRVHtmlList> list = m_boxes.constLast().list;
    const bool isItem = joinList(&format);
    setParagraphFormat(format, m_boxes.constLast().style.text);
    if (isItem && list->list) {
        list->list->add(m_cursor.block());
    } else if (isItem) {
        list->list = m_cursor.createList(list->format);
    }
    m_place = Place::Open;
    m_atLineStart = true;
}

void MRVHtmlWriter::writeText(const QString &text, const MRVHtmlStyle &style)
{
    const QString plain = mrvShownText(text);
    if (style.whiteSpace == MRVHtmlStyle::Collapsed
        || style.whiteSpace == MRVHtmlStyle::Unwrapped) {
        writeCollapsed(plain, style);
    } else {
        writePreformatted(plain, style);
    }
}

void MRVHtmlWriter::writeCollapsed(const QString &text, const MRVHtmlStyle &style)
{
    QString visible;
    visible.reserve(text.size());
    for (const QChar character : text) {
        if (!isSpace(character)) {
            if (m_spaceIsPending && !visible.isEmpty()) {
                visible += u' ';
                m_spaceIsPending = false;
            } else if (visible.isEmpty()) {
                prepareContent();
            }
            visible += character;
        } else if (!m_spaceIsPending && (!visible.isEmpty() || !m_atLineStart)) {
            m_spaceIsPending = true;
            m_spaceFormat = style.text;
            m_spaceIsSettled = false;
        }
    }
    append(visible, style.text);
}

// Line ends are paragraphs in <pre>, whose lines Qt does not break, and line ends elsewhere.
void MRVHtmlWriter::writePreformatted(const QString &text, const MRVHtmlStyle &style)
{
    QString lines = text;
    if (m_isQtPage && style.whiteSpace == MRVHtmlStyle::PreformattedWrapped) {
        lines.remove(u'\n'); // between tags; those of the text are elements
    }
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
    if (style.whiteSpace == MRVHtmlStyle::PreformattedLines) {
        const QStringList parts = lines.split(u'\n');
        for (int i = 0; i < parts.size(); ++i) {
            if (i > 0) {
                writeLineEnd(style);
            }
            writeCollapsed(parts.at(i), style);
        }
        return;
    }
    if (m_place != Place::Open && std::all_of(lines.cbegin(), lines.cend(), isSpace)) {
        // Between blocks, unless text comes.
        const bool isSame = !m_blanks.isEmpty() && m_blanks.constLast().style.text == style.text
            && m_blanks.constLast().style.whiteSpace == style.whiteSpace;
        if (isSame) {
            m_blanks.last().text += lines;
        } else {
            m_blanks.append({lines, style});
        }
        return;
    }
    writeBlanks();
    writeLines(lines, style);
}

void MRVHtmlWriter::writeBlanks()
{
    const QVector<Blanks> blanks = std::exchange(m_blanks, {});
    for (const Blanks &one : blanks) {
        writeLines(one.text, one.style);
    }
}

void MRVHtmlWriter::writeLines(const QString &lines, const MRVHtmlStyle &style)
{
    for (int begin = 0; begin <= lines.size();) {
        const int end = lines.indexOf(u'\n', begin);
        const QString line = lines.mid(begin, end < 0 ? -1 : end - begin);
        if (!line.isEmpty()) {
            prepareContent();
            append(line, style.text);
        }
        if (end < 0) {
            break;
        }
        writeLineEnd(style);
        begin = end + 1;
    }
}

void MRVHtmlWriter::writeLineEnd(const MRVHtmlStyle &style)
{
    writeBlanks();
    if (style.whiteSpace == MRVHtmlStyle::Preformatted) {
        if (m_place != Place::Open) {
            openParagraph();
        }
        endParagraph();
        return;
    }
    m_spaceIsPending = false;
    m_atLineStart = true;
    m_lineEnds.append(style.text);
}

// Writes what was put off until something is shown: the paragraph, line ends, white space.
void MRVHtmlWriter::prepareContent()
{
    writeBlanks();
    if (m_place != Place::Open) {
        openParagraph();
    }
    writePendingLineEnds();
    if (m_spaceIsPending && !m_atLineStart) {
        settlePending();
        put(QStringLiteral(" "), m_spaceFormat);
    }
    m_spaceIsPending = false;
    m_atLineStart = false;
}

void MRVHtmlWriter::writePendingLineEnds()
{
    const bool areCommented = isCommenting() && m_settledEnds < m_lineEnds.size();
    settlePending();
    for (const QTextCharFormat &format : qAsConst(m_lineEnds)) {
        put(QString(QChar::LineSeparator), format);
    }
    if (areCommented) {
        m_comments.setWritten();
    }
    m_lineEnds.clear();
    m_settledEnds = 0;
}

// The comment and the names of the next character.
QTextCharFormat MRVHtmlWriter::withNames(const QTextCharFormat &format)
{
    QTextCharFormat named = format;
    if (m_comments.isOpen()) {
        named = m_comments.added(named);
        m_comments.setWritten();
    }
    if (m_names.isEmpty()) {
        return named;
    }
    named.setAnchor(true);
    m_names.removeDuplicates();
    // As one text where there is one, which needs no number to be found.
    if (m_names.size() == 1) {
        named.setProperty(QTextFormat::AnchorName, m_names.constFirst());
    } else {
        named.setAnchorNames(m_names);
    }
    m_names.clear();
    MRVFormatSpread::update(&named);
    return named;
}

void MRVHtmlWriter::append(const QString &text, const QTextCharFormat &format)
{
    if (text.isEmpty()) {
        return;
    }
    QString rest = text;
    const bool isSeen = text.at(0) != QChar::LineSeparator && text != QLatin1String(" ");
    if ((!m_names.isEmpty() || m_comments.isPoint()) && isSeen) {
        flush();
        const int length = text.size() > 1 && text.at(0).isHighSurrogate() ? 2 : 1;
        m_cursor.insertText(text.left(length), withNames(format));
        rest.remove(0, length);
    }
    const bool isCommented = isCommenting();
    put(rest, isCommented ? m_comments.added(format) : format);
    if (isCommented && isSeen) {
        m_comments.setWritten();
    }
}

void MRVHtmlWriter::put(const QString &text, const QTextCharFormat &format)
{
    if (!m_text.isEmpty() && m_textFormat != format) {
        flush();
    }
    m_text += text;
    m_textFormat = format;
}

bool MRVHtmlWriter::isCommenting() const
{
    return m_comments.isOpen() && !m_comments.isPoint();
}

void MRVHtmlWriter::settlePending()
{
    for (; m_settledEnds < m_lineEnds.size(); ++m_settledEnds) {
        if (isCommenting()) {
            m_lineEnds[m_settledEnds] = m_comments.added(m_lineEnds.at(m_settledEnds));
        }
    }
    if (m_spaceIsPending && !m_spaceIsSettled && isCommenting()) {
        m_spaceFormat = m_comments.added(m_spaceFormat);
    }
    m_spaceIsSettled = true;
}

void MRVHtmlWriter::beginComment(const MRVHtmlComment &comment)
{
    writeBlanks();
    if (!m_comments.isWaiting()) {
        settlePending();
    }
    m_comments.begin(comment);
}

void MRVHtmlWriter::endComment(int number)
{
    writeBlanks();
    if (!m_comments.isWaiting()) {
        settlePending();
    }
    m_comments.end(number);
    if (m_comments.isPoint()) {
        settlePending(); // without it: the comment goes to a character that is seen
    }
    if (!m_comments.isPoint() || m_place != Place::Open) {
        return;
    }
    flush();
    const int before = m_cursor.position() - 1;
    if (!m_cursor.atBlockStart() && m_document->characterAt(before) != QChar::LineSeparator
        && !m_cursor.charFormat().hasProperty(MRVTextFormat::CommentData0)) {
        markCharacter(before);
    }
}

// Gives a character of the document the comment and the names of the next one.
void MRVHtmlWriter::markCharacter(int position)
{
    const int end = m_cursor.position();
    const bool isPair = m_document->characterAt(position).isLowSurrogate();
    m_cursor.setPosition(isPair ? position - 1 : position);
    m_cursor.setPosition(position + 1, QTextCursor::KeepAnchor);
    if (!m_names.isEmpty()) {
        m_names = m_cursor.charFormat().anchorNames() + m_names;
    }
    m_cursor.setCharFormat(withNames(m_cursor.charFormat()));
    m_cursor.setPosition(end);
}

void MRVHtmlWriter::flush()
{
    if (!m_text.isEmpty()) {
        m_cursor.insertText(m_text, m_textFormat);
        m_text.clear();
    }
}

void MRVHtmlWriter::writeImage(const QTextImageFormat &image, const MRVHtmlStyle &style)
{
    prepareContent();
    flush();
    QTextImageFormat format = image;
    if (style.text.isAnchor()) {
        format.setAnchor(true);
        format.setAnchorHref(style.text.anchorHref());
        if (!style.text.toolTip().isEmpty()) { // or the link would be two
            format.setToolTip(style.text.toolTip());
        }
    }
    if (!m_names.isEmpty() || m_comments.isOpen()) {
        format.merge(withNames(QTextCharFormat()));
    }
    MRVFormatSpread::update(&format);
    if (style.position == QTextFrameFormat::InFlow) {
        m_cursor.insertImage(format);
    } else {
        m_cursor.insertImage(format, style.position);
    }
}

void MRVHtmlWriter::writeRule(const QTextLength &width, const MRVHtmlStyle &style)
{
    enter(style, MRVHtmlBox());
    openParagraph();
    QTextBlockFormat format = m_cursor.blockFormat();
    format.setProperty(QTextFormat::BlockTrailingHorizontalRulerWidth, width);
    m_cursor.setBlockFormat(format);
    leave();
}

void MRVHtmlWriter::addName(const QString &name)
{
    if (!name.isEmpty()) {
        m_names.append(name);
    }
}

void MRVHtmlWriter::setMarker(QTextBlockFormat::MarkerType marker)
{
    if (m_place == Place::Open) {
        flush();
        QTextBlockFormat format = m_cursor.blockFormat();
        format.setMarker(marker);
        m_cursor.setBlockFormat(format);
    } else {
        for (int i = m_boxes.size() - 1; i > 0; --i) {
            if (m_boxes.at(i).box.isItem) {
                m_boxes[i].marker = marker;
                break;
            }
        }
    }
}

// Makes the first paragraph of an item that begins with a table, so that its number stands above.
void MRVHtmlWriter::startItem()
{
    endParagraph();
    const auto isItem = [](const Box &box) { return box.box.isItem || box.box.list; };
    const auto box = std::find_if(m_boxes.rbegin(), m_boxes.rend(), isItem);
    if (box != m_boxes.rend() && box->box.isItem && !box->isItemStarted && box->list
        && box->list->format.style() != QTextListFormat::ListStyleUndefined) {
        openParagraph();
        endParagraph();
    }
}

QTextTable *MRVHtmlWriter::writeTable(int rows, int columns, const QTextTableFormat &format)
{
    startItem();
    QTextTableFormat placed = format;
    const Box &box = m_boxes.constLast();
    if (box.listDepth > 0 && box.list->format.indent() > 0) {
        placed.setProperty(QTextFormat::BlockIndent, box.list->format.indent());
    }
    if (box.quoteLevel > 0) {
        placed.setProperty(QTextFormat::BlockQuoteLevel, box.quoteLevel);
    }
    QTextBlockFormat first;
    startBoxes(&first);
    if (first.pageBreakPolicy() != QTextFormat::PageBreak_Auto) {
        placed.setPageBreakPolicy(first.pageBreakPolicy());
    }
    return m_cursor.insertTable(rows, columns, placed);
}

// Lists, margins and backgrounds of the outside do not count in here.
void MRVHtmlWriter::startInside(const MRVHtmlStyle &style)
{
    Box box;
    box.style = style.inherited();
    m_boxes.append(box);
    m_place = Place::Fresh;
    m_atLineStart = true;
}

void MRVHtmlWriter::enterCell(const QTextTableCell &cell, const MRVHtmlStyle &style)
{
    startInside(style);
    m_cursor = cell.firstCursorPosition();
    m_isCellStart = true;
}

void MRVHtmlWriter::leaveCell()
{
    endParagraph();
    m_boxes.removeLast();
    m_isCellStart = false;
}

void MRVHtmlWriter::leaveTable(const QTextFrame *table)
{
    m_cursor.setPosition(table->lastPosition() + 1);
    m_place = Place::Fresh;
    m_isCellStart = false;
    m_atLineStart = true;
}

void MRVHtmlWriter::enterFrame(const QTextFrameFormat &format, const MRVHtmlStyle &style)
{
    endParagraph();
    m_cursor.insertFrame(format);
    startInside(style);
}

void MRVHtmlWriter::leaveFrame()
{
    endParagraph();
    m_boxes.removeLast();
    leaveTable(m_cursor.currentFrame());
}

void MRVHtmlWriter::finish()
{
    endParagraph();
    // Names and comments after the last character have none to go to but that.
    const auto isShown = [this](int position) {
        const QChar character = m_document->characterAt(position);
        return character == QChar::ObjectReplacementCharacter
            || !mrvShownText(character).trimmed().isEmpty();
    };
    const bool isNeeded = !m_names.isEmpty() || m_comments.isWaiting();
    int last = m_cursor.position() - 1;
    while (isNeeded && last >= 0 && !isShown(last)) {
        --last;
    }
    if (isNeeded && last >= 0) {
        markCharacter(last);
    }
    m_cursor.endEditBlock();
}
