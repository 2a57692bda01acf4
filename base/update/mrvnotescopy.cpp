#include "update/mrvnotescopy_p.h"

#include "textformat/mrvformatspread.h"

#include <QFontInfo>

namespace {

// Paragraphs are split at the first blank after so many characters ...
constexpr int LongBlock = 2000;
// ... and in a word of so many, since scripts without blanks, and mixed directions, take time that
// grows with its square.
constexpr int LongestWord = 200;
constexpr int MostMarks = 16;
constexpr ushort EmSpace = 0x2003;
constexpr int MostIndent = 10;
constexpr qreal LargestMargin = 32;
constexpr qreal LargestIndent = 240;
constexpr qreal LargestPicture = 1000;

constexpr int MostItems = 1000;

constexpr int DeepestTable = 5;
constexpr int MostColumns = 20;
constexpr int MostCells = 2000; // of all tables
// Qt lays out what is in a cell three times, and so for each table around it. What counts is how
// many characters that makes for all tables; a paragraph takes as long as twelve characters.
constexpr int LayoutsPerTable = 3;
constexpr qint64 CharactersPerBlock = 12;
constexpr qint64 MostLaidOut = 600000;

// The sizes of headings, as steps of CSS above and below that of the text.
constexpr int headingSizes[] = {3, 2, 1, 0, 0, 0};

bool isOnTheWeb(const QUrl &url)
{
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

bool isMark(uint c)
{
    const QChar::Category category = QChar::category(c);
    return category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing
        || category == QChar::Mark_SpacingCombining || category == QChar::Other_Format;
}

int headingLevelOf(const QTextBlock &block)
{
    return qBound(0, block.blockFormat().headingLevel(), int(std::size(headingSizes)));
}

// Each line of such a text is a paragraph.
bool isPreformatted(const QTextBlock &block)
{
    return block.isValid() && block.blockFormat().nonBreakableLines();
}

QTextBlockFormat blockFormat(const QTextBlockFormat &from)
{
    QTextBlockFormat format;
    format.setAlignment(from.alignment());
    format.setLayoutDirection(from.layoutDirection());
    format.setTopMargin(qBound(0.0, from.topMargin(), LargestMargin));
    format.setBottomMargin(qBound(0.0, from.bottomMargin(), LargestMargin));
    format.setLeftMargin(qBound(0.0, from.leftMargin(), LargestIndent));
    format.setIndent(qBound(0, from.indent(), MostIndent));
    if (from.headingLevel() > 0) {
        format.setHeadingLevel(from.headingLevel());
    }
    if (from.marker() != QTextBlockFormat::MarkerType::NoMarker) {
        format.setMarker(from.marker());
    }
    if (from.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth)) {
        format.setProperty(QTextFormat::BlockTrailingHorizontalRulerWidth,
                           QTextLength(QTextLength::PercentageLength, 100));
    }
    return format;
}

QTextTableFormat tableFormat()
{
    QTextTableFormat format;
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderCollapse(true);
    format.setCellPadding(3);
    format.setTopMargin(8);
    format.setBottomMargin(8);
    return format;
}

qint64 lengthOf(const QTextFrame *frame)
{
    const int blocks = frame->lastCursorPosition().block().blockNumber()
        - frame->firstCursorPosition().block().blockNumber();
    return frame->lastPosition() - frame->firstPosition() + blocks * CharactersPerBlock;
}

} // namespace

MRVNotesCopy::MRVNotesCopy(const MRVNotesLook &look, QTextDocument *to)
    : m_look(look)
    , m_fixedFamily(QFontInfo(QFont(QStringLiteral("monospace"))).family())
    , m_cursor(to)
{
}

void MRVNotesCopy::copy(const QTextDocument &from)
{
    // No title: Qt writes it into HTML as it stands.
    m_cursor.beginEditBlock();
    copyFlow(from.rootFrame()->begin());
    m_cursor.endEditBlock();
}

// What stands in a frame or in a cell.
void MRVNotesCopy::copyFlow(QTextFrame::iterator it)
{
    for (; !it.atEnd(); ++it) {
        const QTextFrame *const inner = it.currentFrame();
        const auto *const table = qobject_cast<const QTextTable *>(inner);
        if (!inner) {
            copyBlock(it.currentBlock());
        } else if (!table || !copyTable(table)) {
            copyFlow(inner->begin());
        }
    }
}

// Whether a layout can be given the table here; its cost then counts.
bool MRVNotesCopy::takeTable(const QTextTable *table)
{
    qint64 laidOut = lengthOf(table);
    for (int i = 0; i <= m_tableDepth; ++i) {
        laidOut *= LayoutsPerTable;
    }
    if (m_tableDepth >= DeepestTable || table->columns() > MostColumns
        || table->rows() > (MostCells - m_cells) / table->columns()
        || m_laidOut + laidOut > MostLaidOut) {
        return false;
    }
    m_cells += table->rows() * table->columns();
    m_laidOut += laidOut;
    return true;
}

// False where it is too much for a layout; nothing is copied then.
bool MRVNotesCopy::copyTable(const QTextTable *table)
{
    if (!takeTable(table)) {
        return false;
    }
    ++m_tableDepth;
    QTextTable *const copy = m_cursor.insertTable(table->rows(), table->columns(), tableFormat());
    for (int row = 0; row < table->rows(); ++row) {
        for (int column = 0; column < table->columns(); ++column) {
            const QTextTableCell cell = table->cellAt(row, column);
            if (cell.row() != row || cell.column() != column) {
                continue; // a part of another one
            }
            if (cell.rowSpan() > 1 || cell.columnSpan() > 1) {
                copy->mergeCells(row, column, cell.rowSpan(), cell.columnSpan());
            }
            m_cursor = copy->cellAt(row, column).firstCursorPosition();
            m_isBlockFree = true;
            copyFlow(cell.begin());
        }
    }
    --m_tableDepth;
    m_cursor = copy->lastCursorPosition();
    m_cursor.movePosition(QTextCursor::NextBlock);
    m_isBlockFree = true;
    return true;
}

// Whatever follows a table, or begins a cell, already has its paragraph.
void MRVNotesCopy::startBlock(const QTextBlock &block)
{
    QTextBlockFormat format = blockFormat(block.blockFormat());
    if (isPreformatted(block) && isPreformatted(block.next())) {
        format.setBottomMargin(0);
    }
    if (m_isBlockFree) {
        m_cursor.setBlockFormat(format);
    } else {
        m_cursor.insertBlock(format, QTextCharFormat());
    }
    m_isBlockFree = false;
    m_blockLength = 0;
    m_wordLength = 0;
    m_marks = 0;
}

void MRVNotesCopy::addToList(const QTextBlock &block)
{
    const QTextList *const from = block.textList();
    if (!from) {
        return;
    }
    QTextList *&list = m_lists[from];
    if (list && list->count() < MostItems) {
        list->add(m_cursor.block());
    }
    if (list) {
        return;
    }
    QTextListFormat format;
    format.setStyle(from->format().style());
    format.setIndent(qBound(0, from->format().indent(), MostIndent));
    list = m_cursor.createList(format);
}

void MRVNotesCopy::copyBlock(const QTextBlock &block)
{
    startBlock(block);
    addToList(block);
    const int headingLevel = headingLevelOf(block);
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        copyFragment(it.fragment(), headingLevel);
    }
}

void MRVNotesCopy::copyFragment(const QTextFragment &fragment, int headingLevel)
{
    const QTextCharFormat from = fragment.charFormat();
    const QTextCharFormat format = charFormat(from, headingLevel);
    if (!from.isImageFormat()) {
        copyText(fragment.text(), format);
        return;
    }
    for (int i = 0; i < fragment.length(); ++i) {
        copyPicture(from.toImageFormat(), format);
    }
}

bool MRVNotesCopy::mustBreakBefore(uint c) const
{
    return m_marks == 0
        && (m_wordLength >= LongestWord || (m_blockLength >= LongBlock && QChar::isSpace(c)));
}

// Goes on in another paragraph, which looks like the next line of this one.
void MRVNotesCopy::insertBreak()
{
    QTextBlockFormat format = m_cursor.blockFormat();
    QTextBlockFormat next = format;
    next.setTopMargin(0);
    next.setMarker(QTextBlockFormat::MarkerType::NoMarker);
    next.setObjectIndex(-1);
    format.setBottomMargin(0);
    m_cursor.setBlockFormat(format);
    m_cursor.insertBlock(next, QTextCharFormat());
    m_blockLength = 0;
    m_wordLength = 0;
}

void MRVNotesCopy::copyText(const QString &text, const QTextCharFormat &format)
{
    QString kept;
    for (int i = 0; i < text.size(); ++i) {
        const bool isPair = text.at(i).isHighSurrogate() && i + 1 < text.size();
        const uint c =
            isPair ? QChar::surrogateToUcs4(text.at(i), text.at(i + 1)) : text.at(i).unicode();
        m_marks = isMark(c) ? m_marks + 1 : 0;
        if (c == QChar::LineSeparator || mustBreakBefore(c)) {
            m_cursor.insertText(kept, format);
            kept.clear();
            insertBreak();
        }
        if (c == QChar::LineSeparator) {
            continue;
        }
        if (m_marks <= MostMarks && c != QChar::ObjectReplacementCharacter) {
            // The stops of a thousand tabs take long to find.
            kept += c == '\t' ? QString(QChar(EmSpace)) : text.mid(i, isPair ? 2 : 1);
            ++m_blockLength;
            m_wordLength = QChar::isSpace(c) ? 0 : m_wordLength + 1;
        }
        i += isPair;
    }
    m_cursor.insertText(kept, format);
}

void MRVNotesCopy::copyPicture(const QTextImageFormat &picture, const QTextCharFormat &format)
{
    const QUrl url = m_look.page.resolved(QUrl(picture.name()));
    // A web engine decodes those that are in the page by itself, whatever they take.
    if (m_look.pictures == MRVNotesPictures::Text || !isOnTheWeb(url)) {
        copyText(picture.stringProperty(QTextFormat::ImageAltText), format);
        return;
    }
    QTextImageFormat copy;
    copy.setName(url.toString(QUrl::FullyEncoded));
    copy.setProperty(QTextFormat::ImageAltText, picture.property(QTextFormat::ImageAltText));
    if (picture.width() > 0) {
        copy.setWidth(qMin(picture.width(), LargestPicture));
    }
    if (picture.height() > 0) {
        copy.setHeight(qMin(picture.height(), LargestPicture));
    }
    MRVFormatSpread::update(&copy);
    m_cursor.insertImage(copy);
}

QTextCharFormat MRVNotesCopy::charFormat(const QTextCharFormat &from, int headingLevel) const
{
    QTextCharFormat format;
    if (headingLevel > 0) {
        format.setProperty(QTextFormat::FontSizeAdjustment, headingSizes[headingLevel - 1]);
    }
    if (headingLevel > 0 || from.fontWeight() > QFont::Medium) {
        format.setFontWeight(QFont::Bold);
    }
    format.setFontItalic(from.fontItalic());
    format.setFontUnderline(from.fontUnderline());
    format.setFontStrikeOut(from.fontStrikeOut());
    if (from.fontFixedPitch()) {
        format.setFontFamily(m_fixedFamily);
        format.setFontFixedPitch(true);
    }
    const QTextCharFormat::VerticalAlignment place = from.verticalAlignment();
    if (place == QTextCharFormat::AlignSuperScript || place == QTextCharFormat::AlignSubScript) {
        format.setVerticalAlignment(place);
    }
    setAnchor(from, &format);
    return format;
}

void MRVNotesCopy::setAnchor(const QTextCharFormat &from, QTextCharFormat *format) const
{
    const QString link = linkTo(from.anchorHref());
    if (!link.isEmpty()) {
        format->setAnchor(true);
        format->setAnchorHref(link);
        format->setFontUnderline(true);
        format->setForeground(m_look.linkColor);
    }
    if (!from.anchorNames().isEmpty()) {
        format->setAnchor(true);
        format->setAnchorNames(from.anchorNames());
    }
    MRVFormatSpread::update(format);
}

// Empty for what does not lead to the web, or to a place of this page.
QString MRVNotesCopy::linkTo(const QString &address) const
{
    const QUrl url = m_look.page.resolved(QUrl(address));
    if (address.isEmpty() || (!isOnTheWeb(url) && url.scheme() != QLatin1String("mailto"))) {
        return QString();
    }
    const bool isHere = url.hasFragment() && url.matches(m_look.page, QUrl::RemoveFragment);
    return isHere ? u'#' + url.fragment() : url.toString(QUrl::FullyEncoded);
}
