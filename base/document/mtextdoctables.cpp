#include "document/mtextdoc.h"

#include "textformat/mrvtextformatchanges.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <vector>

namespace {

struct Piece
{
    QString text;
    QTextCharFormat format;
};

// A paragraph that replaces a row, or a part of it.
struct Line
{
    QTextBlockFormat format;
    std::vector<Piece> pieces;

    QTextCharFormat firstFormat() const
    {
        return pieces.empty() ? QTextCharFormat() : pieces.front().format;
    }
    QTextCharFormat lastFormat() const
    {
        return pieces.empty() ? QTextCharFormat() : pieces.back().format;
    }
};

Line emptyLine(const QTextBlock &block)
{
    Line line;
    line.format = block.blockFormat();
    line.format.clearProperty(QTextFormat::ObjectIndex);
    return line;
}

void appendRuns(Line *line, const QTextBlock &block)
{
    for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it) {
        line->pieces.push_back({it.fragment().text(), it.fragment().charFormat()});
    }
}

// The cell's first paragraph continues the last line, or starts a line at the row's start.
void appendCell(std::vector<Line> *lines, const QTextTableCell &cell, bool startsRow)
{
    QTextBlock block = cell.firstCursorPosition().block();
    if (startsRow) {
        lines->push_back(emptyLine(block));
    } else {
        Line &line = lines->back();
        QTextCharFormat format = line.lastFormat();
        if (format.isImageFormat()) {
            format = QTextCharFormat();
        }
        line.pieces.push_back({QStringLiteral("\t"), format});
    }
    appendRuns(&lines->back(), block);
    for (block = block.next(); block.isValid() && block.position() <= cell.lastPosition();
         block = block.next()) {
        lines->push_back(emptyLine(block));
        appendRuns(&lines->back(), block);
    }
}

std::vector<Line> linesOf(const QTextTable &table)
{
    std::vector<Line> lines;
    for (int row = 0; row < table.rows(); ++row) {
        bool startsRow = true;
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            if (cell.row() != row || cell.column() != column) {
                continue; // covered by a cell that was visited already
            }
            appendCell(&lines, cell, startsRow);
            startsRow = false;
        }
    }
    return lines;
}

// Whether an empty paragraph after a table exists only because a document must end with one.
bool onlyCloses(const QTextDocument &document, const QTextBlock &block)
{
    return block.length() == 1
        && (!block.next().isValid()
            || document.characterAt(block.position()) != QChar::ParagraphSeparator);
}

void setBlockFormat(QTextCursor *cursor, const QTextBlockFormat &format)
{
    if (!mrvIsSameFormat(format, cursor->blockFormat())) {
        cursor->setBlockFormat(format);
    }
}

void insertLines(QTextCursor *cursor, const std::vector<Line> &lines, bool startsParagraph)
{
    for (const Line &line : lines) {
        QTextCharFormat first = line.firstFormat();
        if (first.isImageFormat()) {
            first = QTextCharFormat();
        }
        if (startsParagraph) {
            cursor->insertBlock(line.format, first);
        } else {
            setBlockFormat(cursor, line.format);
        }
        startsParagraph = true;
        for (const Piece &piece : line.pieces) {
            cursor->insertText(piece.text, piece.format);
        }
    }
}

// Within an edit block of cursor. A table reaches from the character before its first position,
// which ends the paragraph before it, to the character at its last position.
void replaceByText(QTextCursor *cursor, const QTextTable &table)
{
    const QTextDocument *document = cursor->document();
    const int start = table.firstPosition() - 1;
    const int end = table.lastPosition() + 1;
    const std::vector<Line> lines = linesOf(table);
    const bool keepsBefore = document->findBlock(start).length() > 1;
    const QTextBlock after = document->findBlock(end);
    const bool keepsAfter = !onlyCloses(*document, after);
    const QTextBlockFormat afterFormat = after.blockFormat();
    // The paragraph's own character format is part of the table when it follows a table.
    const QTextCharFormat afterCharFormat =
        after.begin().atEnd() ? QTextCharFormat() : after.begin().fragment().charFormat();

    cursor->setPosition(start);
    cursor->setPosition(end, QTextCursor::KeepAnchor);
    cursor->removeSelectedText();
    // What is left before and after the table is one paragraph now, in the format of the paragraph
    // before unless that was empty.
    if (keepsAfter) {
        cursor->insertBlock(afterFormat, afterCharFormat);
        cursor->setPosition(start);
    }
    insertLines(cursor, lines, keepsBefore);
}

// Each table once, an outer one before those in its cells, which a walk over cells would meet again
// for each place that a cell covers.
std::vector<QTextTable *> tablesOf(const QTextDocument &document)
{
    std::vector<QTextTable *> tables;
    std::vector<QTextFrame *> frames{document.rootFrame()};
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const QList<QTextFrame *> children = frames[i]->childFrames();
        frames.insert(frames.end(), children.begin(), children.end());
        if (auto *table = qobject_cast<QTextTable *>(frames[i])) {
            tables.push_back(table);
        }
    }
    return tables;
}

} // namespace

void MTextDoc::tablesToText(QTextDocument *document)
{
    const auto tables = document ? tablesOf(*document) : std::vector<QTextTable *>();
    if (tables.empty()) {
        return;
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    // The tables and not their ranges are kept: the removal of one moves others.
    for (auto it = tables.rbegin(); it != tables.rend(); ++it) {
        replaceByText(&cursor, **it);
    }
    cursor.endEditBlock();
}
