#include "html/mrvhtmlbuilder_p.h"

#include "textformat/mrvtextformat.h"

#include "core/mrvinputlimits.h"

#include <QTextFrame>

namespace {

// What HTML allows of spans, and Qt's grid of memory.
constexpr int MostColumns = 1000;
constexpr int MostRows = 65534;

int spanOf(const GumboNode *cell, const char *name, int most)
{
    return qBound(1, mrvAttributeOf(cell, name).toInt(), most);
}

qreal lengthOf(const GumboNode *element, const char *name, qreal otherwise)
{
    bool ok = false;
    const qreal length = mrvAttributeOf(element, name).toDouble(&ok);
    return ok && length >= 0 && length < 10000 ? length : otherwise;
}

void setFrameLook(const GumboNode *element, const MRVHtmlStyle &style, QTextFrameFormat *format)
{
    const MRVHtmlBorder &border = style.borders[int(MRVHtmlSide::Top)];
    format->setBorder(lengthOf(element, "border", border.isVisible() ? border.width : 0));
    if (border.isVisible()) {
        format->setBorderStyle(border.style);
        format->setBorderBrush(border.brush);
    }
    format->setTopMargin(style.margin(MRVHtmlSide::Top));
    format->setRightMargin(style.margin(MRVHtmlSide::Right));
    format->setBottomMargin(style.margin(MRVHtmlSide::Bottom));
    format->setLeftMargin(style.margin(MRVHtmlSide::Left));
    if (style.width.type() != QTextLength::VariableLength) {
        format->setWidth(style.width);
    }
    if (style.height.type() != QTextLength::VariableLength) {
        format->setHeight(style.height);
    }
    if (style.background.style() != Qt::NoBrush) {
        format->setBackground(style.background);
    }
    format->setPosition(style.position);
}

QTextTableCellFormat cellFormat(const MRVHtmlStyle &style, bool isHeader)
{
    QTextTableCellFormat format;
    for (const MRVHtmlSide side :
         {MRVHtmlSide::Top, MRVHtmlSide::Right, MRVHtmlSide::Bottom, MRVHtmlSide::Left}) {
        // The properties of a cell go by top, bottom, left and right.
        constexpr int offsets[] = {0, 3, 1, 2};
        const int offset = offsets[int(side)];
        const MRVHtmlBorder &border = style.borders[int(side)];
        if (style.paddings[int(side)] >= 0) {
            format.setProperty(QTextFormat::TableCellTopPadding + offset,
                               style.paddings[int(side)]);
        }
        if (border.isVisible()) {
            format.setProperty(QTextFormat::TableCellTopBorder + offset, border.width);
            format.setProperty(QTextFormat::TableCellTopBorderStyle + offset, int(border.style));
            format.setProperty(QTextFormat::TableCellTopBorderBrush + offset, border.brush);
        }
    }
    if (style.background.style() != Qt::NoBrush) {
        format.setBackground(style.background);
    }
    if (style.verticalAlignment != QTextCharFormat::AlignNormal) {
        format.setVerticalAlignment(style.verticalAlignment);
    }
    if (isHeader) {
        format.setProperty(MRVTextFormat::HeaderCellProperty, true);
    }
    return format;
}

// Where in its line a table stands; 0 for the usual place.
Qt::Alignment tableAlignment(const GumboNode *element, const MRVHtmlStyle &style)
{
    const QString named = mrvAttributeOf(element, "align").toLower();
    const bool isFree =
        style.isFree[int(MRVHtmlSide::Left)] && style.isFree[int(MRVHtmlSide::Right)];
    return named == QLatin1String("center") || isFree ? Qt::AlignHCenter : Qt::Alignment();
}

} // namespace

/** The cells of a table by their places in its grid. */
struct MRVHtmlBuilder::Table
{
    struct Cell
    {
        const GumboNode *node;
        MRVHtmlStyle style;
        const MRVCssElement *css;
        int row;
        int column;
        int rowSpan;
        int columnSpan;
        QStringList names; // its own, and those of what begins with it
    };

    QVector<Cell> cells;
    QStringList names; // of rows and groups of rows without a cell so far
    QVector<int> freeFrom; // by column: the first row that nothing spans
    QVector<QTextLength> widths; // of columns
    int rows = 0;
    int headerRows = 0;
    bool isHeader = false; // while its head is collected
    int sectionEnd = 0; // where its rows end: no cell spans further
    std::deque<Siblings> siblings; // selectors of the cells look at them

    void add(const GumboNode *node, const MRVHtmlStyle &style, const MRVCssElement *css)
    {
        Cell cell{node,
                  style,
                  css,
                  rows - 1,
                  m_next,
                  spanOf(node, "rowspan", MostRows),
                  spanOf(node, "colspan", MostColumns),
                  names + QStringList(mrvAttributeOf(node, "id"))};
        names.clear();
        cell.rowSpan = qMin(cell.rowSpan, sectionEnd - cell.row);
        while (cell.column < freeFrom.size() && freeFrom.at(cell.column) > cell.row) {
            ++cell.column;
        }
        m_next = cell.column + cell.columnSpan;
        if (freeFrom.size() < m_next) {
            freeFrom.resize(m_next);
        }
        for (int column = cell.column; column < m_next; ++column) {
            // Where spans cross, the cell is as wide as is free.
            if (freeFrom.at(column) > cell.row) {
                m_next = column;
                cell.columnSpan = column - cell.column;
                break;
            }
            freeFrom[column] = cell.row + cell.rowSpan;
        }
        setWidth(cell);
        cells.append(cell);
    }

    void beginRow()
    {
        ++rows;
        m_next = 0;
    }

    // Qt keeps a grid of all places, so that a few spans could ask for any amount of memory.
    bool fitsGrid() const
    {
        const qint64 places = qint64(rows) * freeFrom.size();
        return places <= qMax<qint64>(1 << 16, qint64(cells.size()) * 64);
    }

private:
    void setWidth(const Cell &cell)
    {
        if (cell.columnSpan == 1 && cell.style.width.type() != QTextLength::VariableLength) {
            if (widths.size() <= cell.column) {
                widths.resize(cell.column + 1);
            }
            if (widths.at(cell.column).type() == QTextLength::VariableLength) {
                widths[cell.column] = cell.style.width;
            }
        }
    }

    int m_next = 0; // column
};

void MRVHtmlBuilder::readTable(const GumboNode *element, const MRVHtmlStyle &style,
                               const MRVCssElement *css)
{
    if (!style.tableType.isEmpty()) {
        readFrame(element, style, css);
        return;
    }
    m_writer.endParagraph();
    Table table;
    collectTable(element, style, css, &table);
    if (table.cells.isEmpty() || !table.fitsGrid()) {
        writeAsParagraphs(table);
        return;
    }
    QTextTableFormat format;
    setFrameLook(element, style, &format);
    format.setCellSpacing(lengthOf(element, "cellspacing", style.collapsesBorders ? 0 : 2));
    format.setCellPadding(lengthOf(element, "cellpadding", 0));
    format.setBorderCollapse(style.collapsesBorders);
    format.setHeaderRowCount(table.headerRows);
    format.setAlignment(tableAlignment(element, style));
    if (!table.widths.isEmpty()) {
        table.widths.resize(table.freeFrom.size());
        format.setColumnWidthConstraints(table.widths);
    }
    writeGrid(table, format);
}

void MRVHtmlBuilder::collectTable(const GumboNode *parent, const MRVHtmlStyle &style,
                                  const MRVCssElement *css, Table *table)
{
    table->siblings.emplace_back();
    Siblings *siblings = &table->siblings.back();
    const bool isTable = parent->v.element.tag == GUMBO_TAG_TABLE;
    table->sectionEnd = table->rows;
    for (const GumboNode *child : MRVHtmlChildren(parent)) {
        table->sectionEnd += !isTable && mrvIsElement(child, GUMBO_TAG_TR) ? 1 : 0;
    }
    for (const GumboNode *child : MRVHtmlChildren(parent)) {
        if (!mrvIsElement(child)) {
            continue;
        }
        const MRVCssElement *childCss = cssElement(child, css, siblings);
        if (mrvIsElement(child, GUMBO_TAG_CAPTION)) {
            readElement(child, style.inherited(), childCss);
            continue;
        }
        MRVHtmlStyle childStyle = styleOf(child, style, childCss);
        table->names.append(mrvAttributeOf(child, "id"));
        keepDisplay(child, childStyle);
        if (childStyle.display == MRVHtmlStyle::Hidden) {
            continue;
        }
        if (childStyle.background.style() == Qt::NoBrush && !isTable) {
            childStyle.background = style.background;
        }
        if (mrvIsElement(child, GUMBO_TAG_TR)) {
            collectRow(child, childStyle, childCss, table);
        } else {
            const int before = table->rows;
            collectTable(child, childStyle, childCss, table);
            if (mrvIsElement(child, GUMBO_TAG_THEAD) && before == table->headerRows) {
                table->headerRows = table->rows;
            }
        }
    }
}

void MRVHtmlBuilder::collectRow(const GumboNode *row, const MRVHtmlStyle &style,
                                const MRVCssElement *css, Table *table)
{
    table->siblings.emplace_back();
    Siblings *siblings = &table->siblings.back();
    table->beginRow();
    for (const GumboNode *child : MRVHtmlChildren(row)) {
        if (!mrvIsElement(child)) {
            continue;
        }
        const MRVCssElement *childCss = cssElement(child, css, siblings);
        MRVHtmlStyle cell = styleOf(child, style, childCss);
        keepDisplay(child, cell);
        if (cell.display == MRVHtmlStyle::Hidden) {
            continue;
        }
        if (cell.background.style() == Qt::NoBrush) {
            cell.background = style.background;
        }
        table->add(child, cell, childCss);
    }
}

void MRVHtmlBuilder::writeGrid(const Table &table, const QTextTableFormat &format)
{
    QTextTable *grid = m_writer.writeTable(table.rows, table.freeFrom.size(), format);
    // From the end, so that merging moves no cell that is still to be merged.
    for (int i = table.cells.size() - 1; i >= 0; --i) {
        const Table::Cell &cell = table.cells.at(i);
        if (cell.rowSpan > 1 || cell.columnSpan > 1) {
            grid->mergeCells(cell.row, cell.column, cell.rowSpan, cell.columnSpan);
        }
    }
    for (const Table::Cell &cell : table.cells) {
        QTextTableCell place = grid->cellAt(cell.row, cell.column);
        QTextTableCellFormat look = cellFormat(cell.style, mrvIsElement(cell.node, GUMBO_TAG_TH));
        for (const int property :
             {QTextFormat::TableCellRowSpan, QTextFormat::TableCellColumnSpan}) {
            look.setProperty(property, place.format().property(property));
        }
        place.setFormat(look);
        addNames(cell.names);
        m_writer.enterCell(place, cell.style);
        readChildren(cell.node, cell.style.inherited(), cell.css);
        m_writer.leaveCell();
    }
    m_writer.leaveTable(grid);
    addNames(table.names);
}

void MRVHtmlBuilder::addNames(const QStringList &names)
{
    for (const QString &name : names) {
        m_writer.addName(name);
    }
}

void MRVHtmlBuilder::writeAsParagraphs(const Table &table)
{
    for (const Table::Cell &cell : table.cells) {
        addNames(cell.names);
        m_writer.enter(cell.style.inherited(), MRVHtmlBox());
        readChildren(cell.node, cell.style.inherited(), cell.css);
        m_writer.leave();
    }
    addNames(table.names);
}

// QTextDocument::toHtml() writes frames as tables of one cell.
void MRVHtmlBuilder::readFrame(const GumboNode *element, const MRVHtmlStyle &style,
                               const MRVCssElement *css)
{
    Table table;
    collectTable(element, style, css, &table);
    QTextFrameFormat format;
    setFrameLook(element, style, &format);
    const bool isRoot = style.tableType == QLatin1String("root");
    if (isRoot) {
        m_document->rootFrame()->setFrameFormat(format);
    } else {
        m_writer.enterFrame(format, style);
    }
    for (const Table::Cell &cell : table.cells) {
        readChildren(cell.node, cell.style.inherited(), cell.css);
    }
    if (!isRoot) {
        m_writer.leaveFrame();
    }
}
