#include "pdf/mrvprinteddocument_p.h"

#include "document/mrvdocumentcopy.h"
#include "document/mrvdocumentpictures.h"
#include "document/mtextdoc.h"
#include "input/mrvguardeddocument.h"
#include "pdf/mrvpdfwriter.h"
#include "pdf/mrvprintstyler_p.h"
#include "text/mrvnestedlists.h"
#include "textformat/mrvtextblockformat.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvprogress.h"

#include <QAbstractTextDocumentLayout>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QUrl>

#include <algorithm>

namespace {

constexpr qreal Scale = MRVPdfWriter::DotsPerPoint;
constexpr qreal DotsPerPixel = MRVPdfWriter::DotsPerInch / 96.0;
constexpr qreal DotsPerPrintedPixel = MRVPdfWriter::DotsPerInch / 300.0; // finer is not seen
constexpr qreal Tolerance = 1; // in dots
constexpr int LeastLines = 2;
constexpr qreal LastDot = 1 << 23; // of lengths that Qt lays out and paints
// Qt adds borders to the full width; the margin has space for them.
constexpr qreal OverhangOfTables = 10 * Scale;

// Without the marks of notes.
QString headingText(const QTextBlock &heading)
{
    QString text;
    for (auto it = heading.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const int link = fragment.charFormat().intProperty(MRVTextFormat::NoteLinkProperty);
        text += link == MRVTextFormat::NoteMark ? QString() : fragment.text();
    }
    return text.simplified();
}

} // namespace

MrvPrintedDocument::MrvPrintedDocument(const QTextBlock &first, const QTextBlock &last,
                                       const MrvPrintLook &look, const QTextDocument &original,
                                       const QHash<QString, QSize> &pictureSizes)
    : m_original(original)
    , m_look(look)
    , m_copy(mrvDocumentCopy(first, last))
    , m_pictureSizes(pictureSizes)
{
    // Qt's layout takes twice the time for each level.
    constexpr int MostNestedTables = 4;
    m_flattenedTables = MTextDoc::nestedTablesToText(m_copy.get(), MostNestedTables);
    MRVNestedLists::fromLevels(m_copy.get());
}

QHash<QString, QSize> MrvPrintedDocument::pictureSizesOf(const QTextDocument &document)
{
    QHash<QString, QSize> sizes;
    const MRVDocumentPictures pictures(document);
    const QVector<MRVDocumentPicture> all = pictures.all();
    const QVector<QTextFormat> formats = document.allFormats();
    for (const QTextFormat &format : formats) {
        if (format.isImageFormat()) {
            const QString id = MRVTextFormat::imageResourceId(format.toImageFormat());
            const int index = pictures.indexOf(id);
            if (index >= 0) {
                sizes.insert(id, all.at(index).size());
            }
        }
    }
    return sizes;
}

QVector<QTextBlock> MrvPrintedDocument::piecesOf(const QTextDocument &document, int chapterLevel)
{
    // In characters, of which a page of a manuscript has some 1,500.
    constexpr int LeastLength = 50000;
    constexpr int MostLength = 400000;
    constexpr int OfParagraph = 60; // a line at least
    constexpr int OfPicture = 2000; // a page at most
    QVector<QTextBlock> pieces{document.begin()};
    const QTextFrame *root = document.rootFrame();
    int length = 0;
    bool isFree = false; // the paragraph before is in no table, frame or list
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextBlockFormat format = block.blockFormat();
        const int level = MRVTextBlockFormat::headingLevel(format);
        const bool isOutside = QTextCursor(block).currentFrame() == root && !block.textList();
        const bool begins = (level > 0 && level <= chapterLevel)
            || (format.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore);
        if (isFree && isOutside && length > (begins ? LeastLength : MostLength)) {
            pieces.append(block);
            length = 0;
        }
        isFree = isOutside;
        length += qMax(OfParagraph, block.length());
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            length += it.fragment().charFormat().isImageFormat() ? OfPicture : 0;
        }
    }
    return pieces;
}

// An estimate of a paragraph's height in a column of a table, or of the page.
qreal MrvPrintedDocument::likelyHeight(const QTextBlock &block, int columns) const
{
    const QFontMetricsF metrics(m_look.font);
    const qreal size = m_look.font.pointSizeF();
    const qreal pixels = QFontInfo(m_look.font).pixelSize();
    const qreal columnWidth = m_look.text.width() / Scale / columns;
    qreal lines = 1;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const qreal own = fragment.charFormat().fontPointSize() / size;
        const qreal area = !m_look.isManuscript && own > 1 ? own * own : 1;
        qreal width = 0;
        const QString text = fragment.text();
        for (const QChar letter : text) {
            width += letter.unicode() < 0x1100 ? metrics.horizontalAdvance(letter) : pixels;
        }
        lines += area * width * size / pixels / columnWidth;
    }
    return lines * m_look.lineHeight * Scale;
}

bool MrvPrintedDocument::mayBeTooLong(const QTextBlock &first, const QTextBlock &last,
                                      int columns) const
{
    constexpr int SurelyShort = 20000; // in characters
    constexpr qreal Most = 0.8 * LastDot; // lines are not full
    if (last.position() + last.length() - first.position() < SurelyShort / columns) {
        return false;
    }
    qreal height = 0;
    for (QTextBlock block = first; block.isValid() && height <= Most; block = block.next()) {
        height += likelyHeight(block, columns);
        if (block == last) {
            break;
        }
    }
    return height > Most;
}

// Qt's layout does not return from a paragraph, or the cell of a table, that is longer.
bool MrvPrintedDocument::hasEndlessPart() const
{
    for (QTextBlock block = m_copy->begin(); block.isValid(); block = block.next()) {
        if (mayBeTooLong(block, block, 1)) {
            return true;
        }
    }
    const QVector<QTextFrame *> frames = MrvPrintStyler::framesOf(m_copy->rootFrame());
    for (QTextFrame *frame : frames) {
        auto *table = qobject_cast<QTextTable *>(frame);
        const QTextBlock first = m_copy->findBlock(frame->firstPosition());
        const QTextBlock last = m_copy->findBlock(frame->lastPosition());
        if (!mayBeTooLong(first, last, table ? table->columns() : 1)) {
            continue;
        }
        for (int cell = 0; table && cell < table->rows() * table->columns(); ++cell) {
            const QTextTableCell here =
                table->cellAt(cell / table->columns(), cell % table->columns());
            if (mayBeTooLong(here.firstCursorPosition().block(), here.lastCursorPosition().block(),
                             table->columns())) {
                return true;
            }
        }
        if (!table) {
            return true;
        }
    }
    return false;
}

MrvPrintedDocument::~MrvPrintedDocument() = default;

void MrvPrintedDocument::insertHeading(const QString &text, int level)
{
    QTextCursor cursor(m_copy.get());
    const QTextBlockFormat first = cursor.blockFormat();
    const QTextCharFormat firstChars = cursor.blockCharFormat();
    QTextBlockFormat format;
    format.setHeadingLevel(level);
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    bold.setProperty(QTextFormat::FontSizeAdjustment, 2);
    cursor.insertBlock(first, firstChars);
    cursor.movePosition(QTextCursor::Start);
    cursor.setBlockFormat(format);
    cursor.insertText(text, bold);
}

void MrvPrintedDocument::removeHeading(const QString &text)
{
    const QTextBlock first = m_copy->begin();
    const bool isSame = MRVTextBlockFormat::headingLevel(first.blockFormat()) > 0
        && first.text().simplified().compare(text.simplified(), Qt::CaseInsensitive) == 0;
    if (isSame && first.next().isValid() && !QTextCursor(first.next()).currentTable()) {
        QStringList names;
        for (auto it = first.begin(); !it.atEnd(); ++it) {
            names += it.fragment().charFormat().anchorNames();
        }
        QTextCursor cursor(first);
        cursor.setPosition(first.next().position(), QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        // Links to the heading lead to what comes after it.
        const auto next = m_copy->begin().begin();
        if (!names.isEmpty() && !next.atEnd()) {
            QTextCharFormat format = next.fragment().charFormat();
            format.setAnchorNames(names + format.anchorNames());
            cursor.setPosition(next.fragment().position());
            cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
            cursor.setCharFormat(format);
        }
    }
}

QSizeF MrvPrintedDocument::intrinsicSize(QTextDocument *, int, const QTextFormat &format)
{
    const QTextImageFormat image = format.toImageFormat();
    QSizeF size = m_pictureSizes.value(MRVTextFormat::imageResourceId(image));
    const QSizeF natural = size;
    const qreal width = image.width();
    const qreal height = image.height();
    if (width > 0) {
        size = QSizeF(width, natural.width() > 0 ? width * natural.height() / natural.width() : 0);
    }
    if (height > 0) {
        const qreal fitting =
            natural.height() > 0 ? height * natural.width() / natural.height() : 0;
        size = QSizeF(width > 0 ? width : fitting, height);
    }
    size *= DotsPerPixel;
    if (size.isEmpty()) {
        return QSizeF(0, 0);
    }
    const qreal share = format.hasProperty(MrvPrintStyler::ShareProperty)
        ? format.doubleProperty(MrvPrintStyler::ShareProperty)
        : 1;
    // A line below a picture must still fit, and a heading above it.
    const qreal lines = (format.boolProperty(MrvPrintStyler::BelowHeadingProperty) ? 6 : 2)
        * m_look.lineHeight * Scale;
    const qreal above =
        format.boolProperty(MrvPrintStyler::BelowHeadingProperty) ? m_look.chapterTop : 0;
    const QSizeF most(m_look.text.width() * share, m_look.text.height() - lines - above);
    return size.width() > most.width() || size.height() > most.height()
        ? size.scaled(most, Qt::KeepAspectRatio)
        : size;
}

void MrvPrintedDocument::drawObject(QPainter *painter, const QRectF &area, QTextDocument *, int,
                                    const QTextFormat &format)
{
    if (area.isEmpty()) {
        return;
    }
    QImage image = MRVGuardedDocument::picture(m_original, QUrl(format.toImageFormat().name()));
    const QSize most = (area.size() / DotsPerPrintedPixel).toSize();
    if (image.width() > most.width() || image.height() > most.height()) {
        image = image.scaled(most, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    if (!image.isNull()) {
        painter->drawImage(area, image);
    }
}

// What asks for the place of a paragraph has the document laid out up to there. All of it at once
// could not be cancelled.
bool MrvPrintedDocument::layOutSlowly(MRVProgressMeter *meter) const
{
    for (QTextBlock block = m_copy->begin(); block.isValid(); block = block.next()) {
        m_copy->documentLayout()->blockBoundingRect(block);
        if (!meter->advance(block.length())) {
            return false;
        }
    }
    return true;
}

bool MrvPrintedDocument::layOut(QPaintDevice *device, int chapterLevel, MRVProgressMeter *meter)
{
    if (hasEndlessPart()) {
        return false;
    }
    MrvPrintStyler styler(m_copy.get(), m_look);
    styler.restyle();
    setWrapMode(QTextOption::WordWrap);
    QAbstractTextDocumentLayout *layout = m_copy->documentLayout();
    layout->setPaintDevice(device);
    layout->registerHandler(QTextFormat::ImageObject, this);
    m_copy->setTextWidth(m_look.text.width());
    if (!layOutSlowly(meter)) {
        return false;
    }
    shrinkTables(&styler);
    if (layout->documentSize().height() >= LastDot) {
        return false;
    }
    collect(m_copy->rootFrame(), chapterLevel);
    if (!m_boxes.isEmpty()) {
        m_boxes.first().beginsChapter = true;
    }
    divide();
    collectPlaces();
    return true;
}

void MrvPrintedDocument::setWrapMode(QTextOption::WrapMode mode)
{
    QTextOption option = m_copy->defaultTextOption();
    option.setWrapMode(mode);
    m_copy->setDefaultTextOption(option);
}

QVector<QTextTable *> MrvPrintedDocument::wideTablesNow() const
{
    QVector<QTextTable *> tables;
    const QVector<QTextFrame *> frames = MrvPrintStyler::framesOf(m_copy->rootFrame());
    for (QTextFrame *frame : frames) {
        auto *table = qobject_cast<QTextTable *>(frame);
        const QRectF area = m_copy->documentLayout()->frameBoundingRect(frame);
        if (table && area.right() > m_look.text.width() + OverhangOfTables) {
            tables.append(table);
        }
    }
    return tables;
}

// Qt lets a table whose words need more than the width leave the paper.
void MrvPrintedDocument::shrinkTables(MrvPrintStyler *styler)
{
    constexpr int MostSteps = 4; // to less than half the size
    QVector<QTextTable *> tables = wideTablesNow();
    for (int step = 0; step < MostSteps && !tables.isEmpty(); ++step) {
        QTextCursor edit(m_copy.get());
        edit.beginEditBlock();
        for (const QTextTable *table : qAsConst(tables)) {
            styler->shrink(*table);
        }
        edit.endEditBlock();
        m_copy->documentLayout()->documentSize();
        tables = wideTablesNow();
    }
    if (!tables.isEmpty()) {
        setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        m_copy->documentLayout()->documentSize();
        tables = wideTablesNow();
    }
    m_wideTables = tables.size();
}

void MrvPrintedDocument::collectBlock(const QTextBlock &block, int chapterLevel)
{
    const QTextBlockFormat format = block.blockFormat();
    const int level = MRVTextBlockFormat::headingLevel(format);
    const bool isHeading = level > 0 && !block.text().trimmed().isEmpty();
    const bool isChapter = isHeading && level <= chapterLevel;
    const QTextBlockFormat before = block.previous().blockFormat();
    const bool breaks = isChapter
        || (format.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore)
        || (before.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysAfter);
    const QTextLayout *lines = block.layout();
    const QRectF area = m_copy->documentLayout()->blockBoundingRect(block);
    for (int i = 0; i < lines->lineCount(); ++i) {
        const QTextLine line = lines->lineAt(i);
        Box box;
        box.top = area.top() + line.y();
        box.bottom = box.top + line.height();
        box.line = i;
        box.lineCount = lines->lineCount();
        box.keepsWithNext = isHeading;
        box.breaksBefore = i == 0 && breaks;
        box.beginsChapter = i == 0 && isChapter;
        m_boxes.append(box);
    }
    if (area.height() > m_look.text.height()) {
        m_longParagraphs.append({area.top(), area.bottom(), block.layout()});
    }
    if (lines->lineCount() > 0
        && format.hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth)) {
        m_boxes.last().bottom = qMax(m_boxes.constLast().bottom, area.bottom()) + Scale;
    }
}

// What stands side by side cannot be divided where one of it has a line.
void MrvPrintedDocument::collectRow(const QVector<QTextBlock> &blocks, qreal padding)
{
    const int first = m_boxes.size();
    for (const QTextBlock &block : blocks) {
        collectBlock(block, 0);
    }
    if (m_boxes.size() == first) {
        return;
    }
    std::sort(m_boxes.begin() + first, m_boxes.end(),
              [](const Box &a, const Box &b) { return a.top < b.top; });
    QVector<Box> joined;
    qreal bottom = m_boxes.at(first).bottom;
    for (int i = first; i < m_boxes.size(); ++i) {
        Box box = m_boxes.at(i);
        box.line = 0;
        box.lineCount = 1;
        box.keepsWithNext = box.breaksBefore = box.beginsChapter = false;
        bottom = qMax(bottom, box.bottom);
        if (!joined.isEmpty() && box.top < joined.constLast().bottom - Tolerance) {
            joined.last().bottom = qMax(joined.constLast().bottom, box.bottom);
        } else {
            joined.append(box);
        }
    }
    joined.first().top -= padding;
    joined.last().bottom += padding;
    m_boxes.resize(first);
    const qreal height = joined.constLast().bottom - joined.constFirst().top;
    if (height <= m_look.text.height()) {
        joined.first().bottom = joined.constLast().bottom;
        joined.resize(1);
    }
    m_boxes += joined;
}

void MrvPrintedDocument::collectTable(QTextTable *table)
{
    const QTextTableFormat format = table->format();
    const qreal padding = (format.cellPadding() + format.border()) * DotsPerPixel;
    QVector<QTextBlock> blocks;
    int end = 0; // of the rows that cells of the row so far reach into
    for (int row = 0; row < table->rows(); ++row) {
        for (int column = 0; column < table->columns(); ++column) {
            const QTextTableCell cell = table->cellAt(row, column);
            if (cell.row() != row || cell.column() != column) {
                continue;
            }
            end = qMax(end, row + cell.rowSpan());
            const int last = m_copy->findBlock(cell.lastPosition()).blockNumber();
            for (QTextBlock block = m_copy->findBlock(cell.firstPosition());
                 block.isValid() && block.blockNumber() <= last; block = block.next()) {
                blocks.append(block);
            }
        }
        if (row + 1 >= end) {
            collectRow(blocks, padding);
            blocks.clear();
            if (!m_boxes.isEmpty() && end < table->rows()
                && row < qMax(1, format.headerRowCount())) {
                m_boxes.last().keepsWithNext = true; // the head of the table
            }
        }
    }
}

void MrvPrintedDocument::collect(QTextFrame *frame, int chapterLevel)
{
    for (auto it = frame->begin(); !it.atEnd(); ++it) {
        if (auto *table = qobject_cast<QTextTable *>(it.currentFrame())) {
            collectTable(table);
        } else if (it.currentFrame()) {
            collect(it.currentFrame(), chapterLevel);
        } else {
            collectBlock(it.currentBlock(), chapterLevel);
        }
    }
}

bool MrvPrintedDocument::mayBreakBefore(int index) const
{
    const Box &box = m_boxes.at(index);
    return !m_boxes.at(index - 1).keepsWithNext
        && (box.line == 0 || (box.line >= LeastLines && box.lineCount - box.line >= LeastLines));
}

void MrvPrintedDocument::divide()
{
    for (int first = 0; first < m_boxes.size();) {
        const bool begins = m_boxes.at(first).beginsChapter;
        const qreal top = m_boxes.at(first).top;
        const qreal height = m_look.text.height() - (begins ? m_look.chapterTop : 0) + Tolerance;
        int end = first + 1; // what is too high has a page for itself
        while (end < m_boxes.size() && !m_boxes.at(end).breaksBefore
               && m_boxes.at(end).bottom - top <= height) {
            ++end;
        }
        if (end < m_boxes.size() && !m_boxes.at(end).breaksBefore) {
            int best = end;
            while (best > first && !mayBreakBefore(best)) {
                --best;
            }
            end = best > first ? best : end;
        }
        m_pages.append({top, m_boxes.at(end - 1).bottom, begins});
        first = end;
    }
}

void MrvPrintedDocument::collectLink(const QTextLayout &lines, const QPointF &origin,
                                     const LinkedText &link)
{
    for (int i = link.firstLine; i < lines.lineCount() && !link.address.isEmpty(); ++i) {
        const QTextLine line = lines.lineAt(i);
        if (line.textStart() >= link.end) {
            return;
        }
        const int from = qMax(link.start, line.textStart());
        const int to = qMin(link.end, line.textStart() + line.textLength());
        if (from < to) {
            const QPointF corner(line.cursorToX(from), line.y());
            const QPointF other(line.cursorToX(to), line.y() + line.height());
            const QRectF shown = QRectF(corner + origin, other + origin).normalized();
            m_links.append({shown.top(), shown, link.address});
        }
    }
}

void MrvPrintedDocument::collectPlaces(const QTextBlock &block)
{
    const QPointF origin = m_copy->documentLayout()->blockBoundingRect(block).topLeft();
    const int level = MRVTextBlockFormat::headingLevel(block.blockFormat());
    const QTextLayout &lines = *block.layout();
    const QString text = level > 0 ? headingText(block) : QString();
    if (!text.isEmpty()) {
        m_headings.append({origin.y() + lines.lineAt(0).y(), level, text});
    }
    LinkedText link;
    int line = 0;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const QTextCharFormat format = fragment.charFormat();
        const int at = fragment.position() - block.position();
        while (line + 1 < lines.lineCount() && lines.lineAt(line + 1).textStart() <= at) {
            ++line;
        }
        const QStringList names = format.anchorNames();
        for (const QString &name : names) {
            m_targets.append(
                {origin.y() + (lines.lineCount() > 0 ? lines.lineAt(line).y() : 0), name});
        }
        if (format.anchorHref() != link.address) {
            collectLink(lines, origin, link);
            link = {format.anchorHref(), at, at, line};
        }
        link.end = at + fragment.length();
    }
    collectLink(lines, origin, link);
}

void MrvPrintedDocument::collectPlaces()
{
    for (QTextBlock block = m_copy->begin(); block.isValid(); block = block.next()) {
        collectPlaces(block);
    }
    // Cells of a table stand side by side.
    const auto isHigher = [](const auto &a, const auto &b) { return a.y < b.y; };
    std::stable_sort(m_headings.begin(), m_headings.end(), isHigher);
    std::stable_sort(m_targets.begin(), m_targets.end(), isHigher);
    std::stable_sort(m_links.begin(), m_links.end(), isHigher);
}

void MrvPrintedDocument::paint(QPainter *painter, const MrvPrintedPage &page) const
{
    painter->save();
    painter->translate(0, -page.top);
    QAbstractTextDocumentLayout::PaintContext context;
    // Lines that only touch the edge belong to the pages before and after.
    const qreal left = -m_look.text.left();
    context.clip = QRectF(left, page.top + Tolerance, m_look.paper.width(),
                          page.bottom - page.top - 2 * Tolerance);
    context.palette.setColor(QPalette::Text, Qt::black);
    painter->setClipRect(context.clip.adjusted(0, -Scale, 0, Scale));
    for (const LongParagraph &paragraph : m_longParagraphs) {
        if (paragraph.bottom > page.top && paragraph.top < page.bottom) {
            paragraph.lines->setCacheEnabled(paragraph.bottom > page.bottom);
        }
    }
    m_copy->documentLayout()->draw(painter, context);
    painter->restore();
}
