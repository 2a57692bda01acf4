#include "pdf/mrvprintstyler_p.h"

#include "pdf/mrvpdfwriter.h"
#include "pdf/mrvprintlook_p.h"
#include "textformat/mrvtextblockformat.h"
#include "textformat/mrvtextformat.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>

#include <algorithm>

namespace {

constexpr qreal Scale = MRVPdfWriter::DotsPerPoint;
constexpr qreal PixelsPerPoint =
    96.0 / 72; // Qt's layout scales lengths of formats from 96 to the inch
constexpr qreal DotsPerPixel = MRVPdfWriter::DotsPerInch / 96.0;
constexpr qreal LargestUsualMargin = 16; // in pixels: HTML's distance of paragraphs
constexpr qreal ShareWithoutPadding = 0.9;

bool isText(const QTextBlockFormat &format)
{
    const Qt::Alignment alignment = format.alignment() & Qt::AlignHorizontal_Mask;
    return !alignment || alignment == Qt::AlignLeft || alignment == Qt::AlignJustify;
}

// Qt draws it below the lines, and as far in as they are.
bool hasRule(const QTextBlockFormat &format)
{
    return format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth);
}

bool hasPicture(const QTextBlock &block)
{
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        if (it.fragment().charFormat().isImageFormat()) {
            return true;
        }
    }
    return false;
}

bool isPreformatted(const QTextBlock &block)
{
    return block.blockFormat().nonBreakableLines();
}

// Whether lines of a given height would cut off something, or lie over each other.
bool hasLargeText(const QTextBlock &block, const QFont &font)
{
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextCharFormat format = it.fragment().charFormat();
        const qreal pixels = format.intProperty(QTextFormat::FontPixelSize);
        if (format.isImageFormat() || format.intProperty(QTextFormat::FontSizeAdjustment) > 0
            || format.fontPointSize() > font.pointSizeF()
            || pixels > font.pointSizeF() * PixelsPerPoint) {
            return true;
        }
    }
    return false;
}

// A piece of text, by integers: cursors would each follow each change.
struct Restyled
{
    int start;
    int end;
    QTextCharFormat format;
};

void select(const Restyled &text, QTextCursor *cursor)
{
    cursor->setPosition(text.start);
    cursor->setPosition(text.end, QTextCursor::KeepAnchor);
}

} // namespace

MrvPrintStyler::MrvPrintStyler(QTextDocument *document, const MrvPrintLook &look)
    : m_copy(document)
    , m_look(look)
{
}

QVector<QTextFrame *> MrvPrintStyler::framesOf(QTextFrame *frame)
{
    QVector<QTextFrame *> frames{frame};
    for (int i = 0; i < frames.size(); ++i) {
        for (QTextFrame *child : frames.at(i)->childFrames()) {
            frames.append(child);
        }
    }
    return frames.mid(1);
}

// Fonts that a typewriter does not have.
void MrvPrintStyler::clearLook(QTextCharFormat *format)
{
    for (const int property :
         {int(QTextFormat::FontFamily), int(QTextFormat::FontFamilies),
          int(QTextFormat::FontPointSize), int(QTextFormat::FontPixelSize),
          int(QTextFormat::FontSizeAdjustment), int(QTextFormat::ForegroundBrush),
          int(QTextFormat::BackgroundBrush)}) {
        format->clearProperty(property);
    }
}

// Replaces a small capital by a capital in smaller type: painted into a PDF document, Qt's own are
// lost.
void MrvPrintStyler::setSmallCapitals(QTextCursor *cursor, const QTextCharFormat &format) const
{
    QTextCharFormat large = format;
    large.clearProperty(QTextFormat::FontCapitalization);
    QTextCharFormat small = large;
    makeSmaller(&small);
    const QString text = cursor->selectedText();
    for (int start = 0; start < text.size();) {
        const bool isLower = text.at(start).isLower();
        int end = start + 1;
        while (end < text.size() && text.at(end).isLower() == isLower) {
            ++end;
        }
        const QString piece = text.mid(start, end - start);
        cursor->insertText(isLower ? piece.toUpper() : piece, isLower ? small : large);
        start = end;
    }
}

void MrvPrintStyler::makeSmaller(QTextCharFormat *format) const
{
    constexpr qreal factor = 0.8;
    if (format->hasProperty(QTextFormat::FontPixelSize)) {
        const int pixels = format->intProperty(QTextFormat::FontPixelSize);
        format->setProperty(QTextFormat::FontPixelSize, qMax(1, qRound(pixels * factor)));
        return;
    }
    // As Qt adjusts the size of a font, which it does in seven steps only.
    constexpr qreal adjusted[] = {0.7, 0.8, 1, 1.2, 1.5, 2, 2.4};
    const int step = format->intProperty(QTextFormat::FontSizeAdjustment) + 2;
    const qreal own =
        format->fontPointSize() > 0 ? format->fontPointSize() : m_look.font.pointSizeF();
    format->clearProperty(QTextFormat::FontSizeAdjustment);
    format->setFontPointSize(own * adjusted[qBound(0, step, 6)] * factor);
}

void MrvPrintStyler::restyleText(const QTextBlock &block)
{
    // The cells of a small page are narrow, and lines that an author has broken are long.
    const bool isTight = QTextCursor(block).currentTable() || isPreformatted(block);
    restyle(block, [this, isTight](QTextCharFormat *format) {
        if (m_look.isManuscript) {
            clearLook(format);
        } else if (isTight) {
            makeSmaller(format);
        }
        format->clearProperty(QTextFormat::IsAnchor); // Qt would make links of their own of it
    });
}

// For the layout, within which a document cannot be asked for its tables.
void MrvPrintStyler::limitPictures(const QTextBlock &block, bool isBelowHeading)
{
    QVector<Restyled> changes;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        QTextCharFormat format = fragment.charFormat();
        if (!format.isImageFormat()) {
            continue;
        }
        if (const QTextTable *table = QTextCursor(block).currentTable()) {
            const QTextTableCell cell = table->cellAt(block.position());
            format.setProperty(ShareProperty,
                               ShareWithoutPadding * cell.columnSpan() / table->columns());
        }
        format.setProperty(BelowHeadingProperty, isBelowHeading);
        changes.append({fragment.position(), fragment.position() + fragment.length(), format});
    }
    QTextCursor cursor(m_copy);
    for (const Restyled &picture : qAsConst(changes)) {
        select(picture, &cursor);
        cursor.setCharFormat(picture.format);
    }
}

// Lines are broken between words, so that cells of tables do not cut theirs; but an address may be
// longer than a line.
void MrvPrintStyler::divideLongWords(const QTextBlock &block)
{
    constexpr int MostLetters = 30;
    constexpr int Piece = 10;
    constexpr QChar Opportunity(0x200b); // a space without width
    const QString text = block.text();
    QVector<int> places;
    for (int start = 0, at = 0; at <= text.size(); ++at) {
        if (at < text.size() && !text.at(at).isSpace()) {
            continue;
        }
        for (int place = start + Piece; at - start > MostLetters && place < at; place += Piece) {
            const bool isInside = text.at(place).isLowSurrogate() || text.at(place).isMark();
            places.append(place - (isInside ? 1 : 0));
        }
        start = at + 1;
    }
    QTextCursor cursor(m_copy);
    for (auto place = places.crbegin(); place != places.crend(); ++place) {
        cursor.setPosition(block.position() + *place);
        cursor.insertText(Opportunity);
    }
}

// Changes the formats of a paragraph's text, and its small capitals.
void MrvPrintStyler::restyle(const QTextBlock &block, const CharFormatChange &change)
{
    QVector<Restyled> all;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        QTextCharFormat format = fragment.charFormat();
        if (format.isImageFormat()) {
            continue;
        }
        change(&format);
        if (format != fragment.charFormat() || format.fontCapitalization() == QFont::SmallCaps) {
            all.append({fragment.position(), fragment.position() + fragment.length(), format});
        }
    }
    QTextCursor cursor(m_copy);
    for (auto text = all.crbegin(); text != all.crend(); ++text) { // capitals may be more letters
        select(*text, &cursor);
        if (text->format.fontCapitalization() == QFont::SmallCaps) {
            setSmallCapitals(&cursor, text->format);
        } else {
            cursor.setCharFormat(text->format);
        }
    }
}

void MrvPrintStyler::restyleBlock(const QTextBlock &block, bool isFirst)
{
    QTextBlockFormat format = block.blockFormat();
    QTextCursor cursor(block);
    const bool isHeading = MRVTextBlockFormat::headingLevel(format) > 0;
    const bool isPlain =
        !isHeading && !block.textList() && !cursor.currentTable() && !isPreformatted(block);
    for (const auto &indent : {qMakePair(int(MRVTextFormat::BlockLeftIndent), true),
                               qMakePair(int(MRVTextFormat::BlockRightIndent), false)}) {
        const qreal length = format.doubleProperty(indent.first) * PixelsPerPoint;
        if (length > 0 && indent.second) {
            format.setLeftMargin(format.leftMargin() + length);
        } else if (length > 0) {
            format.setRightMargin(format.rightMargin() + length);
        }
    }
    // Of lengths across the page, Qt's layout scales none to the device.
    format.setTextIndent(format.textIndent() * DotsPerPixel);
    if (isPlain) {
        const QTextBlock before = block.previous();
        const bool isApart = before.textList() || QTextCursor(before).currentTable();
        if (format.topMargin() <= LargestUsualMargin) {
            format.setTopMargin(isApart ? m_look.lineHeight / 2 * PixelsPerPoint : 0);
        }
        if (format.bottomMargin() <= LargestUsualMargin) {
            format.setBottomMargin(0);
        }
        if (isText(format) && format.leftMargin() <= 0 && format.textIndent() == 0
            && !hasRule(format) && (!isFirst || m_look.isManuscript)) {
            format.setTextIndent(m_look.indent * Scale);
        }
    }
    // They were meant for a screen, in pixels, which Qt's layout does not scale either.
    const qreal margins = (format.leftMargin() + format.rightMargin()) * DotsPerPixel;
    const qreal fitting = DotsPerPixel * qMin(1.0, m_look.text.width() / 3 / qMax(1.0, margins));
    format.setLeftMargin(format.leftMargin() * fitting);
    format.setRightMargin(format.rightMargin() * fitting);
    if (isPlain && isText(format)) {
        format.setAlignment(m_look.isManuscript ? Qt::AlignLeft : Qt::AlignJustify);
    }
    if (isHeading && m_look.isManuscript) {
        format.setAlignment(Qt::AlignHCenter);
    }
    const bool isLarge = m_look.isManuscript ? hasPicture(block) : hasLargeText(block, m_look.font);
    if (!isLarge && (isPlain || (m_look.isManuscript && !cursor.currentTable()))) {
        format.setLineHeight(m_look.lineHeight * PixelsPerPoint, QTextBlockFormat::FixedHeight);
    }
    format.clearProperty(QTextFormat::BlockNonBreakableLines); // they would leave the paper
    cursor.setBlockFormat(format);
}

// Widths in pixels were meant for a screen, and may be wider than the paper.
void MrvPrintStyler::restyleFrame(QTextFrame *frame)
{
    const auto isTooWide = [this](const QTextLength &length) {
        return length.type() == QTextLength::FixedLength
            && length.rawValue() * DotsPerPixel > m_look.text.width();
    };
    auto *table = qobject_cast<QTextTable *>(frame);
    QTextFrameFormat format = frame->frameFormat();
    if (isTooWide(format.width())) {
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
        frame->setFrameFormat(format);
    }
    if (table) {
        QTextTableFormat look = table->format();
        const QVector<QTextLength> columns = look.columnWidthConstraints();
        const bool isFixed = std::any_of(columns.cbegin(), columns.cend(), [](const auto &width) {
            return width.type() == QTextLength::FixedLength;
        });
        if (isFixed) {
            look.clearColumnWidthConstraints();
            table->setFormat(look);
        }
    }
}

void MrvPrintStyler::restyle()
{
    m_copy->setDefaultFont(m_look.font);
    m_copy->setDocumentMargin(0);
    const QVector<QTextFrame *> frames = framesOf(m_copy->rootFrame());
    for (QTextFrame *frame : frames) {
        restyleFrame(frame);
    }
    QTextCursor edit(m_copy);
    edit.beginEditBlock();
    // The first paragraph after a heading, a blank or a rule has no indent.
    bool isFirst = true;
    for (QTextBlock block = m_copy->begin(); block.isValid(); block = block.next()) {
        const QTextBlockFormat format = block.blockFormat();
        const bool isHeading = MRVTextBlockFormat::headingLevel(format) > 0;
        const bool isBlank = block.text().trimmed().isEmpty();
        const bool isBelowHeading =
            MRVTextBlockFormat::headingLevel(block.previous().blockFormat()) > 0;
        // The beginning of the document stands down the page as a chapter does.
        limitPictures(block, isHeading || isBelowHeading || block == m_copy->begin());
        restyleText(block);
        divideLongWords(block);
        restyleBlock(block, isFirst);
        isFirst = isHeading || hasRule(format) || isBlank || !isText(format) || hasPicture(block);
    }
    edit.endEditBlock();
}

void MrvPrintStyler::shrink(const QTextTable &table)
{
    const int end = table.lastPosition();
    for (QTextBlock block = m_copy->findBlock(table.firstPosition());
         block.isValid() && block.position() <= end; block = block.next()) {
        restyle(block, [this](QTextCharFormat *format) { makeSmaller(format); });
    }
}
