#include "editor/mrvlistmarkerpainter.h"

#include "text/mrvtextcursor.h"
#include "text/mrvtextlistformat.h"
#include "text/mrvtextrange.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextLayout>
#include <QTextList>
#include <QTextTable>

namespace {

// What stands before a paragraph: text, or one of the shapes that Qt draws for bullets.
struct Look
{
    QTextListFormat::Style shape = QTextListFormat::ListStyleUndefined;
    QString text;

    bool isEmpty() const { return shape == QTextListFormat::ListStyleUndefined && text.isEmpty(); }
    bool operator==(const Look &other) const { return shape == other.shape && text == other.text; }
};

bool isShape(QTextListFormat::Style style)
{
    return style == QTextListFormat::ListDisc || style == QTextListFormat::ListCircle
        || style == QTextListFormat::ListSquare;
}

// As QTextDocument's layout decides it.
Look lookByQt(const QTextList &list, const QTextBlock &block)
{
    const QTextBlockFormat format = block.blockFormat();
    QTextListFormat::Style style = MRVTextListFormat::qtStyle(list.format());
    if (style != QTextListFormat::ListStyleUndefined
        && format.hasProperty(QTextFormat::ListStyle)) {
        QTextListFormat own;
        own.setProperty(QTextFormat::ListStyle, format.intProperty(QTextFormat::ListStyle));
        style = MRVTextListFormat::qtStyle(own);
    }
    Look look;
    if (isShape(style)) {
        look.shape = style;
    } else if (style <= QTextListFormat::ListDecimal) {
        look.text = list.itemText(block); // its parts the other way round from right to left
    }
    return look;
}

Look lookOf(const MRVListMarker &marker, const QTextListFormat &format)
{
    Look look;
    const QTextListFormat::Style style = MRVTextListFormat::shownStyle(format, marker.level);
    QTextListFormat plain;
    plain.setStyle(style);
    if (isShape(style) && MRVTextListFormat::shownLevel(plain, 0).text == marker.text) {
        look.shape = style;
    } else {
        look.text = marker.text;
    }
    return look;
}

// Where the text of a paragraph begins.
struct Place
{
    QPointF start; // at the top of the first line
    qreal ascent; // of the line
    bool isRightToLeft;
    QTextCharFormat format;
    QFont font;
};

Place placeOf(const QTextBlock &block, const QAbstractTextDocumentLayout &layout, QPointF origin)
{
    Place place;
    const QTextLine line = block.layout()->lineAt(0);
    const QRectF text = line.naturalTextRect();
    place.isRightToLeft = block.textDirection() == Qt::RightToLeft;
    // Rounded one by one, as Qt does: another sum would leave a column of pixels.
    const QPoint corner =
        (origin + layout.blockBoundingRect(block).topLeft()).toPoint() + text.topLeft().toPoint();
    place.start = QPointF(corner) + QPointF(place.isRightToLeft ? text.width() : 0.0, 0.0);
    place.ascent = line.ascent();
    place.format = QTextCursor(block).charFormat();
    place.font = place.format.font();
    if (QPaintDevice *device = layout.paintDevice()) {
        place.font = QFont(place.font, device);
    }
    return place;
}

QRectF rectOf(const Look &look, const Place &place)
{
    const QFontMetrics metrics(place.font);
    QSizeF size(metrics.horizontalAdvance(look.text), metrics.height());
    if (isShape(look.shape)) {
        size = QSizeF(metrics.lineSpacing() / 3, metrics.lineSpacing() / 3);
    }
    const int gap = metrics.horizontalAdvance(QLatin1Char(' '));
    const qreal x = place.isRightToLeft ? gap : -gap - size.width();
    const qreal y = metrics.height() / 2 - size.height() / 2;
    return QRectF(place.start + QPointF(x, y), size);
}

// The outermost table or frame that a paragraph stands in; null for the document itself.
const QTextFrame *frameAround(const QTextBlock &block)
{
    const QTextFrame *around = nullptr;
    for (const QTextFrame *frame = QTextCursor(block).currentFrame(); frame && frame->parentFrame();
         frame = frame->parentFrame()) {
        around = frame;
    }
    return around;
}

// The first paragraph of the table or frame around a paragraph, else the paragraph itself, or the
// one before it that is not hidden.
QTextBlock beginningOf(QTextBlock block)
{
    if (const QTextFrame *frame = frameAround(block)) {
        return block.document()->findBlock(frame->firstPosition());
    }
    while (!block.isVisible() && block.previous().isValid()) {
        block = block.previous();
    }
    return block;
}

// Qt lays out a document while it is shown. To ask it for the place of a paragraph that it has not
// come to yet would have it lay out all before that at once.
bool isLaidOut(const QTextBlock &block)
{
    return block.layout()->lineCount() > 0;
}

// Draws markers on a viewport, in its coordinates.
class Drawing
{
public:
    explicit Drawing(QTextEdit *editor)
        : m_editor(*editor)
        , m_document(*editor->document())
        , m_layout(*m_document.documentLayout())
        , m_painter(editor->viewport())
    {
        const QScrollBar *across = editor->horizontalScrollBar();
        const int x =
            editor->isRightToLeft() ? across->maximum() - across->value() : across->value();
        m_origin = QPointF(-x, -editor->verticalScrollBar()->value());
        const auto extra = editor->extraSelections();
        for (const QTextEdit::ExtraSelection &selection : extra) {
            addSelection(selection.cursor, selection.format);
        }
        const auto group = editor->hasFocus() ? QPalette::Active : QPalette::Inactive;
        QTextCharFormat selected;
        selected.setBackground(editor->palette().brush(group, QPalette::Highlight));
        selected.setForeground(editor->palette().brush(group, QPalette::HighlightedText));
        addSelection(editor->textCursor(), selected);
        m_painter.setRenderHint(QPainter::Antialiasing);
    }

    // The first paragraph that may reach down to a height of the viewport.
    QTextBlock firstAt(int y) const
    {
        int first = 0;
        int end = m_document.blockCount();
        while (end - first > 1) {
            const int middle = first + (end - first) / 2;
            const QTextBlock block = beginningOf(m_document.findBlockByNumber(middle));
            (isLaidOut(block) && boundsOf(block).top() <= y ? first : end) = middle;
        }
        return beginningOf(m_document.findBlockByNumber(first));
    }

    // Whether a paragraph begins below a height of the viewport, with all that follow. Cells that
    // stand side by side are far apart in the document, so nothing is known from one of them.
    bool isBelow(const QTextBlock &block, int y) const
    {
        return block.isVisible() && !frameAround(block)
            && (!isLaidOut(block) || boundsOf(block).top() > y);
    }

    // Markers stand beside the paragraph, so its height alone counts.
    bool isInSight(const QTextBlock &block, const QRect &exposed) const
    {
        if (!block.isVisible() || !isLaidOut(block)) {
            return false;
        }
        const QRectF bounds = boundsOf(block);
        return bounds.top() <= exposed.bottom() + 1 && bounds.bottom() >= exposed.top();
    }

    // All are erased before the first is drawn: edges of letters reach into the next line.
    void erase(const QTextBlock &block, const Look &look)
    {
        if (look.isEmpty()) {
            return;
        }
        const Place place = placeOf(block, m_layout, m_origin);
        const QRectF rect = rectOf(look, place);
        // Smoothed edges and slanted letters reach a little over the edge. But the text's side of
        // the gap is the text's, whose letters and cursor may do so as well, and above and below
        // there may be the text of other lines.
        constexpr qreal Overhang = 3.0;
        const QFontMetrics metrics(place.font);
        const qreal gap = metrics.horizontalAdvance(QLatin1Char(' ')) / 2;
        QRectF area = place.isRightToLeft ? rect.adjusted(-gap, 0, Overhang, 0)
                                          : rect.adjusted(-Overhang, 0, gap, 0);
        area.setTop(place.start.y());
        area.setHeight(metrics.height());
        fillBackground(block, area.toAlignedRect());
    }

    void draw(const QTextBlock &block, const Look &look)
    {
        if (look.isEmpty()) {
            return;
        }
        Place place = placeOf(block, m_layout, m_origin);
        // Qt draws from the top, so that the marker of a line with a picture stands above its text.
        place.start.ry() += place.ascent - QFontMetrics(place.font).ascent();
        const QRectF rect = rectOf(look, place);
        // As with Qt, bullets that are shapes do not have the text's colour.
        QBrush colour = place.format.foreground();
        if (colour.style() == Qt::NoBrush || look.text.isEmpty()) {
            colour = m_editor.palette().text();
        }
        if (const QTextCharFormat *selection = selectionBefore(block.position())) {
            // A bullet alone would not be seen to be selected, so its line is.
            const qreal wider = look.text.isEmpty() ? 1 : 0;
            const QRectF line(rect.left() - wider, place.start.y(), rect.width() + 2 * wider,
                              QFontMetrics(place.font).height());
            m_painter.fillRect(line, selection->background());
            colour = selection->foreground();
        }
        drawLook(look, rect, place, colour);
    }

private:
    struct Selection
    {
        MRVTextRange range;
        QTextCharFormat format;
    };

    QRectF boundsOf(const QTextBlock &block) const
    {
        return m_layout.blockBoundingRect(block).translated(m_origin);
    }

    void addSelection(const QTextCursor &cursor, const QTextCharFormat &format)
    {
        const QVector<MRVTextRange> ranges = MRVTextCursor::selectedRanges(cursor);
        for (const MRVTextRange &range : ranges) {
            m_selections.append({range, format});
        }
    }

    // The last one counts, as in Qt.
    const QTextCharFormat *selectionBefore(int position) const
    {
        const QTextCharFormat *format = nullptr;
        for (const Selection &selection : m_selections) {
            if (selection.range.start() < position && selection.range.end() > position) {
                format = &selection.format;
            }
        }
        return format;
    }

    void fillBackground(const QTextBlock &block, const QRect &pixels)
    {
        const QWidget *viewport = m_editor.viewport();
        m_painter.fillRect(pixels, viewport->palette().brush(viewport->backgroundRole()));
        QVector<QBrush> brushes; // innermost first
        for (QTextFrame *frame = QTextCursor(block).currentFrame(); frame;
             frame = frame->parentFrame()) {
            if (const auto *table = qobject_cast<QTextTable *>(frame)) {
                brushes.append(table->cellAt(block.position()).format().background());
            }
            brushes.append(frame->frameFormat().background());
        }
        for (int i = brushes.size() - 1; i >= 0; --i) {
            m_painter.fillRect(pixels, brushes.at(i));
        }
    }

    void drawLook(const Look &look, const QRectF &rect, const Place &place, const QBrush &colour)
    {
        m_painter.setPen(QPen(colour, 0));
        m_painter.setBrush(Qt::NoBrush);
        switch (look.shape) {
        case QTextListFormat::ListSquare:
            m_painter.fillRect(rect, colour);
            break;
        case QTextListFormat::ListCircle:
            m_painter.drawEllipse(rect.translated(0.5, 0.5));
            break;
        case QTextListFormat::ListDisc:
            m_painter.setPen(Qt::NoPen);
            m_painter.setBrush(colour);
            m_painter.drawEllipse(rect);
            break;
        default:
            m_painter.setFont(place.font);
            m_painter.setLayoutDirection(place.isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
            m_painter.drawText(QPointF(rect.left(), rect.top() + QFontMetrics(place.font).ascent()),
                               look.text);
        }
    }

    QTextEdit &m_editor;
    QTextDocument &m_document;
    QAbstractTextDocumentLayout &m_layout;
    QPainter m_painter;
    QPointF m_origin; // of the document
    QVector<Selection> m_selections;
};

} // namespace

MRVListMarkerPainter::MRVListMarkerPainter(QTextEdit *editor)
    : QObject(editor)
    , m_editor(editor)
{
    editor->viewport()->installEventFilter(this);
    editor->viewport()->update();
}

bool MRVListMarkerPainter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Paint || watched != m_editor->viewport() || m_isInEditor) {
        return QObject::eventFilter(watched, event);
    }
    const QRect exposed = static_cast<QPaintEvent *>(event)->rect();
    m_isInEditor = true;
    QCoreApplication::sendEvent(watched, event);
    m_isInEditor = false;
    paint(exposed);
    return true;
}

void MRVListMarkerPainter::paint(const QRect &exposed)
{
    struct Replacement
    {
        QTextBlock block;
        Look byQt;
        Look look;
    };
    follow();
    QVector<Replacement> replacements;
    Drawing drawing(m_editor);
    for (QTextBlock block = drawing.firstAt(exposed.top());
         block.isValid() && !drawing.isBelow(block, exposed.bottom() + 1); block = block.next()) {
        const MRVListMarker marker = m_markers->marker(block);
        const QTextList *list = marker.level >= 0 ? block.textList() : nullptr;
        // Of a task, the box is the marker.
        if (list && block.blockFormat().marker() == QTextBlockFormat::MarkerType::NoMarker
            && drawing.isInSight(block, exposed)) {
            const Look look = lookOf(marker, list->format());
            const Look byQt = lookByQt(*list, block);
            if (!(look == byQt)) {
                replacements.append({block, byQt, look});
            }
        }
    }
    for (const Replacement &replacement : qAsConst(replacements)) {
        drawing.erase(replacement.block, replacement.byQt);
    }
    for (const Replacement &replacement : qAsConst(replacements)) {
        drawing.draw(replacement.block, replacement.look);
    }
}

// An editor does not tell when it gets another document.
void MRVListMarkerPainter::follow()
{
    if (m_markers && m_markers->document() == m_editor->document()) {
        return;
    }
    m_markers.reset(new MRVListMarkerCache(m_editor->document()));
    connect(m_markers.data(), &MRVListMarkerCache::markersChanged, m_editor->viewport(),
            QOverload<>::of(&QWidget::update));
}
