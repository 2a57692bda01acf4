#include "textexport/mrvmarkdownblocks_p.h"

#include "util/mrvescape.h"

#include <QTextDocument>
#include <QTextTable>

#include <algorithm>

// Rows of cells between bars have one row of headings, and in each cell one paragraph at most.
bool MRVMarkdownBlocks::isPipeTable(const MRVTextBlock &table) const
{
    return std::all_of(table.children.begin(), table.children.end(), [](const MRVTextBlock &cell) {
        return cell.rowSpan == 1 && cell.columnSpan == 1 && cell.isHeader == (cell.row == 0)
            && cell.children.size() <= 1
            && (cell.children.empty() || cell.children.front().kind == MRVTextBlock::Paragraph);
    });
}

// The alignment of a column is that of its first cell below the heading.
QString MRVMarkdownBlocks::delimiterRow(const MRVTextBlock &table) const
{
    const int columns = table.table->columns();
    QString row = QStringLiteral("|");
    for (int column = 0; column < columns; ++column) {
        const std::size_t cell = std::size_t(columns + column);
        Qt::Alignment alignment = Qt::AlignLeft;
        if (cell < table.children.size() && !table.children[cell].children.empty()) {
            const int first = table.children[cell].children.front().first;
            const int format = m_flow.paragraphs.at(first).format;
            const QTextBlockFormat full = m_flow.formats.at(format).toBlockFormat();
            alignment =
                full.hasProperty(QTextFormat::BlockAlignment) ? full.alignment() : Qt::Alignment();
        }
        row += alignment & Qt::AlignHCenter ? QStringLiteral(" :-: |")
            : alignment & Qt::AlignRight    ? QStringLiteral(" --: |")
            : alignment & Qt::AlignLeft     ? QStringLiteral(" :-- |")
                                            : QStringLiteral(" --- |");
    }
    return row;
}

void MRVMarkdownBlocks::writeTable(const MRVTextBlock &table)
{
    if (!isPipeTable(table)) {
        const QStringList lines = htmlOfTable(table).split(u'\n');
        std::for_each(lines.begin(), lines.end(), [this](const QString &one) { line(one); });
        return;
    }
    QString row = QStringLiteral("|");
    const int columns = table.table->columns();
    for (const MRVTextBlock &cell : table.children) {
        const auto place = cell.isHeader ? MRVInlineWriter::HeaderCell : MRVInlineWriter::Cell;
        const QString text = cell.children.empty()
            ? QString()
            : m_inline.paragraph(cell.children.front().first, place);
        row += u' ' + text + QLatin1String(" |");
        if (cell.column + 1 == columns) {
            line(row);
            row = QStringLiteral("|");
            if (cell.row == 0) {
                line(delimiterRow(table));
            }
        }
    }
}

// A row is a line, since an empty one would end the HTML.
QString MRVMarkdownBlocks::htmlOfTable(const MRVTextBlock &table)
{
    const int headerRows = table.table->format().headerRowCount();
    QString html =
        headerRows > 0 ? QStringLiteral("<table><thead>\n") : QStringLiteral("<table>\n");
    int row = -1;
    for (const MRVTextBlock &cell : table.children) {
        if (cell.row != row) {
            html += row < 0 ? QString() : QStringLiteral("</tr>\n");
            html += cell.row == headerRows && row >= 0 && headerRows > 0
                ? QStringLiteral("</thead><tr>")
                : QStringLiteral("<tr>");
            row = cell.row;
        }
        const QString name = cell.isHeader ? QStringLiteral("th") : QStringLiteral("td");
        html += u'<' + name;
        if (cell.columnSpan > 1) {
            html += QStringLiteral(" colspan=\"%1\"").arg(cell.columnSpan);
        }
        if (cell.rowSpan > 1) {
            html += QStringLiteral(" rowspan=\"%1\"").arg(cell.rowSpan);
        }
        const bool isText =
            cell.children.size() == 1 && cell.children.front().kind == MRVTextBlock::Paragraph;
        const auto place = cell.isHeader ? MRVInlineWriter::HeaderHtml : MRVInlineWriter::Html;
        html += u'>'
            + (isText ? m_inline.paragraph(cell.children.front().first, place)
                      : htmlOfChildren(cell, cell.isHeader))
            + QLatin1String("</") + name + u'>';
    }
    return html + (row < 0 ? QString() : QStringLiteral("</tr>\n")) + QLatin1String("</table>");
}

QString MRVMarkdownBlocks::htmlOfChildren(const MRVTextBlock &parent, bool isHeader)
{
    QString html;
    for (const MRVTextBlock &block : parent.children) {
        html += htmlOf(block, isHeader);
    }
    return html;
}

QString MRVMarkdownBlocks::htmlOf(const MRVTextBlock &block, bool isHeader)
{
    const auto inElement = [](const QString &name, const QString &content) {
        return u'<' + name + u'>' + content + QLatin1String("</") + name + u'>';
    };
    const auto place = isHeader || block.kind == MRVTextBlock::Heading ? MRVInlineWriter::HeaderHtml
                                                                       : MRVInlineWriter::Html;
    switch (block.kind) {
    case MRVTextBlock::Paragraph:
    case MRVTextBlock::Heading: {
        const QString name = block.kind == MRVTextBlock::Heading
            ? u'h' + QString::number(block.number)
            : QStringLiteral("p");
        const QString text = m_inline.paragraph(block.first, place);
        return inElement(name, text.isEmpty() ? QStringLiteral("<br>") : text);
    }
    case MRVTextBlock::Code:
        return htmlOfCode(block);
    case MRVTextBlock::Rule:
        return QStringLiteral("<hr>");
    case MRVTextBlock::Quote:
        return inElement(QStringLiteral("blockquote"), htmlOfChildren(block, isHeader));
    case MRVTextBlock::List: {
        const QString name = block.isNumbered ? QStringLiteral("ol") : QStringLiteral("ul");
        const int start = block.children.empty() ? 1 : block.children.front().number;
        const QString number =
            block.isNumbered && start != 1 ? QStringLiteral(" start=\"%1\"").arg(start) : QString();
        return u'<' + name + number + u'>' + htmlOfChildren(block, isHeader) + QLatin1String("</")
            + name + u'>';
    }
    case MRVTextBlock::Item:
        return inElement(QStringLiteral("li"), htmlOfChildren(block, isHeader));
    case MRVTextBlock::Table:
        return htmlOfTable(block);
    default:
        return htmlOfChildren(block, isHeader);
    }
}

// In one line, since an empty one would end the HTML.
QString MRVMarkdownBlocks::htmlOfCode(const MRVTextBlock &block)
{
    // As other writers of HTML have it: the first word is the name of the language.
    const QString info = languageOf(block);
    const QString language = info.section(u' ', 0, 0);
    const QString more = info.section(u' ', 1);
    QString html = QStringLiteral("<pre>");
    if (!info.isEmpty()) {
        html += QStringLiteral("<code")
            + MRVInlineWriter::attribute("class", QLatin1String("language-") + language);
        html += (more.isEmpty() ? more : MRVInlineWriter::attribute("data-meta", more)) + u'>';
    }
    for (int i = block.first; i < block.end; ++i) {
        html += m_inline.paragraph(i, MRVInlineWriter::CodeHtml);
        html += i + 1 < block.end ? QStringLiteral("&#10;") : QString();
    }
    return html + QLatin1String(info.isEmpty() ? "</pre>" : "</code></pre>");
}
