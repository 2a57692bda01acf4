#include "epub/mrvepubwriter_p.h"

#include "textformat/mrvtextformat.h"

#include <QTextCursor>
#include <QTextTable>

#include <algorithm>

namespace {

constexpr const char *borderStyles[] = {"none",   "dotted", "dashed", "solid", "double", "dashed",
                                        "dotted", "groove", "ridge",  "inset", "outset"};

QByteArray lengthText(double pixels, double bodyPixels)
{
    QByteArray number = QByteArray::number(pixels / bodyPixels, 'f', 3);
    while (number.endsWith('0')) {
        number.chop(1);
    }
    if (number.endsWith('.')) {
        number.chop(1);
    }
    return number == "0" ? number : number + "em";
}

QByteArray declaration(const char *property, const QByteArray &value)
{
    return QByteArray("    ") + property + ": " + value + ";\n";
}

// Lines take the colour of the text, which the reader may have turned to white.
QByteArray border(const char *property, double width, int style)
{
    const bool isKnown = style > 0 && style <= QTextFrameFormat::BorderStyle_Outset;
    if (width <= 0 || !isKnown) {
        return QByteArray();
    }
    return declaration(
        property, QByteArray::number(qBound(1, qRound(width), 20)) + "px " + borderStyles[style]);
}

QByteArray background(const QBrush &brush)
{
    const QColor color = brush.color();
    if (brush.style() != Qt::SolidPattern || color.alpha() == 0 || color == QColor(Qt::white)) {
        return QByteArray();
    }
    const char *ink = qGray(color.rgb()) > 128 ? "#000000" : "#ffffff";
    return declaration("background-color", color.name().toLatin1()) + declaration("color", ink);
}

QByteArray frameRule(const QTextFrameFormat &format, double bodyPixels)
{
    QByteArray rule =
        border("border", format.border(), format.borderStyle()) + background(format.background());
    if (format.position() != QTextFrameFormat::InFlow) {
        rule += declaration("float",
                            format.position() == QTextFrameFormat::FloatLeft ? "left" : "right");
    }
    if (format.padding() > 0) {
        rule += declaration("padding", lengthText(format.padding(), bodyPixels));
    }
    if (format.width().type() == QTextLength::PercentageLength) {
        rule += declaration("width", QByteArray::number(qRound(format.width().rawValue())) + '%');
    }
    return rule;
}

} // namespace

void MRVEPubWriter::writeFrame(int frame)
{
    const MRVFlowFrame &place = m_flow.frames.at(frame);
    const int outside = std::exchange(m_openFrame, frame);
    const int depth = m_depth;
    constexpr int InTable = 4;
    const bool isTooDeep = isDeep();
    m_depth += InList * m_containers.size() + (isTooDeep ? 0 : place.table ? InTable : 1);
    if (isTooDeep) {
        const int caption = std::exchange(m_caption, -1);
        if (caption >= 0) {
            writeParagraph(caption, MRVEPubKind::Paragraph, "p");
        }
        writeFlow(place.begin, place.end);
    } else if (place.table) {
        writeTable(frame);
    } else {
        writeBox(frame);
    }
    m_depth = depth;
    m_openFrame = outside;
}

void MRVEPubWriter::writeBox(int frame)
{
    const MRVFlowFrame &place = m_flow.frames.at(frame);
    const QByteArray rule = frameRule(place.frame->frameFormat(), m_formats.bodyPixels());
    const QByteArray name = m_book.looks.boxClass("frame", rule);
    m_out.append(name.isEmpty() ? QByteArray("<div>\n") : "<div class=\"" + name + "\">\n");
    writeFlow(place.begin, place.end);
    m_out.append(QLatin1String("</div>\n"));
}

void MRVEPubWriter::writeTable(int frame)
{
    const QTextTable &table = *m_flow.frames.at(frame).table;
    const QTextTableFormat format = table.format();
    QByteArray rule = frameRule(format, m_formats.bodyPixels());
    if (format.alignment() & Qt::AlignHCenter) {
        rule += declaration("margin-left", "auto") + declaration("margin-right", "auto");
    }
    QByteArray name = m_book.looks.boxClass("table", rule);
    // Qt draws the border of a table around its cells, too.
    name += format.border() > 0 ? (name.isEmpty() ? "ruled" : " ruled") : "";
    m_out.append(name.isEmpty() ? QByteArray("<table") : "<table class=\"" + name + '"');
    const Qt::LayoutDirection around = m_boxDirection;
    m_boxDirection = isRightToLeft(frame) ? Qt::RightToLeft : around;
    writeDirection(m_boxDirection, around);
    m_out.append(QLatin1String(">\n"));
    const int caption = std::exchange(m_caption, -1);
    if (caption >= 0) {
        writeCaption(caption, QLatin1String("<caption"), QLatin1String("</caption>\n"));
    }
    const int headers = qBound(0, format.headerRowCount(), table.rows());
    if (headers > 0 && headers < table.rows()) {
        m_out.append(QLatin1String("<thead>\n"));
        writeRows(frame, 0, headers);
        m_out.append(QLatin1String("</thead>\n"));
    }
    m_out.append(QLatin1String("<tbody>\n"));
    writeRows(frame, headers < table.rows() ? headers : 0, table.rows());
    m_out.append(QLatin1String("</tbody>\n</table>\n"));
    m_boxDirection = around;
}

// Whether all that a table holds says that it goes from right to left, as its columns then do.
bool MRVEPubWriter::isRightToLeft(int frame) const
{
    const MRVFlowFrame &place = m_flow.frames.at(frame);
    return std::all_of(m_flow.paragraphs.begin() + place.begin,
                       m_flow.paragraphs.begin() + place.end, [this](const auto &paragraph) {
                           const QTextFormat &format = m_flow.formats.at(paragraph.format);
                           return format.layoutDirection() == Qt::RightToLeft;
                       });
}

void MRVEPubWriter::writeRows(int frame, int begin, int end)
{
    const QTextTable &table = *m_flow.frames.at(frame).table;
    for (int row = begin; row < end; ++row) {
        m_out.append(QLatin1String("<tr>\n"));
        bool isEmpty = true;
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            if (cell.row() == row && cell.column() == column) {
                writeCell(frame, cell, end);
                isEmpty = false;
            }
        }
        if (isEmpty) { // all cells are covered by cells above, but a row must have one
            m_out.append(QLatin1String("<td class=\"covered\"></td>\n"));
        }
        m_out.append(QLatin1String("</tr>\n"));
    }
}

void MRVEPubWriter::writeCell(int frame, const QTextTableCell &cell, int lastRow)
{
    const QTextTable &table = *m_flow.frames.at(frame).table;
    const QTextTableCellFormat format = cell.format().toTableCellFormat();
    const bool isHeader = cell.row() < table.format().headerRowCount()
        || format.boolProperty(MRVTextFormat::HeaderCellProperty);
    const int begin = m_flow.paragraphAt(cell.firstPosition());
    const int end = m_flow.paragraphAt(cell.lastPosition()) + 1;
    m_out.append(isHeader ? QLatin1String("<th") : QLatin1String("<td"));
    // A cell goes on no further than its group of rows.
    const int rows = qMin(cell.rowSpan(), lastRow - cell.row());
    if (cell.columnSpan() > 1) {
        m_out.append(" colspan=\"" + QByteArray::number(cell.columnSpan()) + '"');
    }
    if (rows > 1) {
        m_out.append(" rowspan=\"" + QByteArray::number(rows) + '"');
    }
    const QByteArray rule = cellRule(format);
    const QByteArray box = m_book.looks.boxClass("cell", rule);
    const bool isText = end == begin + 1 && m_flow.paragraphs.at(begin).list < 0
        && m_flow.paragraphs.at(begin).headingLevel == 0 && !m_flow.hasRule(begin)
        && !m_formats.paragraph(m_flow.paragraphs.at(begin).format).isPreformatted
        && m_notes.beginningAt(begin) < 0;
    if (isText) {
        writeCellText(begin, box, isHeader);
    } else {
        m_out.append(box.isEmpty() ? QByteArray(">\n") : " class=\"" + box + "\">\n");
        writeFlow(begin, end);
    }
    m_out.append(isHeader ? QLatin1String("</th>\n") : QLatin1String("</td>\n"));
}

// The only paragraph of a cell is the cell.
void MRVEPubWriter::writeCellText(int paragraph, const QByteArray &box, bool isHeader)
{
    using Look = MRVEPubParagraphLook;
    const QVector<Container> outside = std::exchange(m_containers, {});
    MRVEPubContext context;
    Look look = m_formats.look(paragraph, MRVEPubKind::Cell, 0, &context);
    look[Look::Top] = look[Look::Bottom] = 0;
    if (isHeader) {
        // That its text is bold and centered is the element's.
        context.isBold = true;
        look[Look::Align] = look[Look::Align] == Look::Centered ? Look::Start : look[Look::Align];
    }
    const int hole = writeClass(m_book.looks.add(look));
    if (!box.isEmpty()) {
        m_page.holes[hole].extra = m_page.attributes.size();
        m_page.attributes.append(box);
    }
    writeAttributes(paragraph, context, QByteArray());
    m_out.append('>');
    m_page.holes[hole].flags |= writeText(paragraph, context) ? MRVEPubHole::Spaced : 0;
    m_containers = outside;
}

QByteArray MRVEPubWriter::cellRule(const QTextTableCellFormat &format) const
{
    constexpr struct
    {
        const char *border;
        const char *padding;
    } sides[] = {{"border-top", "padding-top"},
                 {"border-bottom", "padding-bottom"},
                 {"border-left", "padding-left"},
                 {"border-right", "padding-right"}};
    QByteArray rule = background(format.background());
    for (int side = 0; side < 4; ++side) {
        rule += border(sides[side].border,
                       format.doubleProperty(QTextFormat::TableCellTopBorder + side),
                       format.intProperty(QTextFormat::TableCellTopBorderStyle + side));
        const int padding = QTextFormat::TableCellTopPadding + side;
        if (format.hasProperty(padding)) {
            rule += declaration(
                sides[side].padding,
                lengthText(qMax(0.0, format.doubleProperty(padding)), m_formats.bodyPixels()));
        }
    }
    switch (format.verticalAlignment()) {
    case QTextCharFormat::AlignTop:
        return rule + declaration("vertical-align", "top");
    case QTextCharFormat::AlignMiddle:
        return rule + declaration("vertical-align", "middle");
    case QTextCharFormat::AlignBottom:
        return rule + declaration("vertical-align", "bottom");
    default:
        return rule;
    }
}
