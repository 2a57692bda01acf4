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

// The lines that replace a table. Tables within it give theirs where they stand, so that each text
// is taken once, however deeply it is nested.
class TableLines
{
public:
    explicit TableLines(const QTextTable &table) { addTable(table); }

    const std::vector<Line> &lines() const { return m_lines; }

private:
    enum Start { NewLine, AfterTab, SameLine }; // where the next paragraph begins

    void addTable(const QTextTable &table);
    void addContents(QTextFrame::iterator it);
    void addParagraph(const QTextBlock &block);
    void takeBack(Start start);

    std::vector<Line> m_lines;
    Start m_start = NewLine;
};

void TableLines::addParagraph(const QTextBlock &block)
{
    if (m_start == NewLine) {
        Line line;
        line.format = block.blockFormat();
        line.format.clearProperty(QTextFormat::ObjectIndex);
        m_lines.push_back(line);
    } else if (m_start == AfterTab) {
        Line &line = m_lines.back();
        QTextCharFormat format = line.lastFormat();
        if (format.isImageFormat()) {
            format = QTextCharFormat();
        }
        line.pieces.push_back({QStringLiteral("\t"), format});
    }
    for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it) {
        m_lines.back().pieces.push_back({it.fragment().text(), it.fragment().charFormat()});
    }
    m_start = NewLine;
}

// Uses up an empty paragraph, which began at start, for the table after it.
void TableLines::takeBack(Start start)
{
    if (start == NewLine) {
        m_lines.pop_back();
    } else {
        m_start = SameLine;
    }
}

// The first paragraph continues the last line, or starts a line at the row's start.
void TableLines::addContents(QTextFrame::iterator it)
{
    bool followsTable = false;
    while (!it.atEnd()) {
        QTextFrame *frame = it.currentFrame();
        const QTextBlock block = it.currentBlock();
        ++it;
        auto *table = qobject_cast<QTextTable *>(frame);
        if (table) {
            addTable(*table);
        } else if (frame) {
            addContents(frame->begin());
        } else if (block.length() > 1) {
            addParagraph(block);
        } else if (!followsTable || (!it.atEnd() && !it.currentFrame())) {
            const Start start = m_start;
            addParagraph(block);
            if (!it.atEnd() && qobject_cast<QTextTable *>(it.currentFrame())) {
                takeBack(start);
            }
        }
        followsTable = table;
    }
}

void TableLines::addTable(const QTextTable &table)
{
    for (int row = 0; row < table.rows(); ++row) {
        bool startsRow = true;
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            if (cell.row() != row || cell.column() != column) {
                continue; // covered by a cell that was visited already
            }
            if (!startsRow) {
                m_start = AfterTab;
            }
            addContents(cell.begin());
            m_start = NewLine;
            startsRow = false;
        }
    }
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
    const TableLines lines(table);
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
    insertLines(cursor, lines.lines(), keepsBefore);
}

// The tables with a number of tables around them, each once: a walk over cells would meet them
// again for each place that a cell covers.
std::vector<QTextTable *> tablesOf(const QTextDocument &document, int depth, int *count)
{
    struct Nested
    {
        QTextFrame *frame;
        int depth;
    };
    std::vector<QTextTable *> tables;
    std::vector<Nested> frames{{document.rootFrame(), 0}};
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const Nested outer = frames[i];
        auto *table = qobject_cast<QTextTable *>(outer.frame);
        *count += table && outer.depth >= depth ? 1 : 0;
        if (table && outer.depth == depth) {
            tables.push_back(table);
        }
        const QList<QTextFrame *> children = outer.frame->childFrames();
        for (QTextFrame *child : children) {
            frames.push_back({child, outer.depth + (table ? 1 : 0)});
        }
    }
    return tables;
}

} // namespace

void MTextDoc::tablesToText(QTextDocument *document)
{
    nestedTablesToText(document, 0);
}

int MTextDoc::nestedTablesToText(QTextDocument *document, int depth)
{
    int count = 0;
    const auto tables =
        document ? tablesOf(*document, qMax(0, depth), &count) : std::vector<QTextTable *>();
    if (tables.empty()) {
        return 0;
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    // The tables and not their ranges are kept: the removal of one moves others.
    for (auto it = tables.rbegin(); it != tables.rend(); ++it) {
        replaceByText(&cursor, **it);
    }
    cursor.endEditBlock();
    return count;
}
