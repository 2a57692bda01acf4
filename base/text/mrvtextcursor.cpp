#include "text/mrvtextcursor.h"

#include "text/mrvreplacetext.h"
#include "textformat/mrvtextformat.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

namespace {

bool isSeparator(const QTextDocument *document, int position)
{
    return document->characterAt(position) == QChar::ParagraphSeparator;
}

// The character that holds a position; of a surrogate pair, whichever half that is.
uint codePointAt(const QTextDocument *document, int position)
{
    const QChar character = document->characterAt(position);
    if (character.isHighSurrogate()) {
        const QChar low = document->characterAt(position + 1);
        if (low.isLowSurrogate()) {
            return QChar::surrogateToUcs4(character, low);
        }
    } else if (character.isLowSurrogate() && position > 0) {
        const QChar high = document->characterAt(position - 1);
        if (high.isHighSurrogate()) {
            return QChar::surrogateToUcs4(high, character);
        }
    }
    return character.unicode();
}

bool isWordBorder(const QTextDocument *document, int position)
{
    const uint character = codePointAt(document, position);
    return QChar::isSpace(character) || QChar::isPunct(character)
        || MRVTextFormat::hasFrameInString(document->characterAt(position));
}

// Where a paragraph begins, including the separator before it. The marks that take its place at the
// start of a cell and after a table do not count: including them would select the whole table.
int startWithSeparator(const QTextBlock &block)
{
    const int start = block.position();
    return start > 0 && isSeparator(block.document(), start - 1) ? start - 1 : start;
}

int textEnd(const QTextBlock &block)
{
    return block.position() + block.length() - 1;
}

void select(QTextCursor *cursor, int start, int end)
{
    cursor->setPosition(start);
    cursor->setPosition(end, QTextCursor::KeepAnchor);
}

} // namespace

QVector<MRVTextRange> MRVTextCursor::selectedRanges(const QTextCursor &cursor)
{
    // A cursor whose document was deleted is null, yet may report a selection.
    if (cursor.isNull() || !cursor.hasSelection()) {
        return {};
    }
    const QTextTable *table = cursor.hasComplexSelection() ? cursor.currentTable() : nullptr;
    if (!table) {
        return {MRVTextRange(cursor.selectionStart(), cursor.selectionEnd())};
    }
    int firstRow = 0;
    int rows = 0;
    int firstColumn = 0;
    int columns = 0;
    cursor.selectedTableCells(&firstRow, &rows, &firstColumn, &columns);
    QVector<MRVTextRange> ranges;
    for (int row = firstRow; row < firstRow + rows; ++row) {
        for (int column = firstColumn; column < firstColumn + columns; ++column) {
            const QTextTableCell cell = table->cellAt(row, column);
            if (cell.row() == row && cell.column() == column) { // else part of a merged one
                ranges.append(MRVTextRange(cell.firstPosition(), cell.lastPosition()));
            }
        }
    }
    return ranges;
}

QTextTable *MRVTextCursor::complexSelectionTable(const QTextCursor &cursor)
{
    QTextTable *table = cursor.hasSelection() ? cursor.currentTable() : nullptr;
    if (!table) {
        return nullptr;
    }
    return table->cellAt(cursor.selectionStart()) == table->cellAt(cursor.selectionEnd()) ? nullptr
                                                                                          : table;
}

QTextCursor MRVTextCursor::selectImage(const QTextCursor &cursor)
{
    QTextCursor image = cursor;
    if (image.isNull() || image.hasSelection()) {
        return image;
    }
    if (!image.atBlockStart()) {
        image.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
    } else if (image.block().length() > 1
               || (isSeparator(image.document(), image.position())
                   && image.block().next().isValid())) {
        image.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    }
    return image;
}

bool MRVTextCursor::hasWordBorderBefore(const QTextCursor &cursor, bool atEdge)
{
    if (cursor.isNull()) {
        return false;
    }
    const int start = cursor.selectionStart();
    return start == 0 ? atEdge : isWordBorder(cursor.document(), start - 1);
}

bool MRVTextCursor::hasWordBorderAfter(const QTextCursor &cursor, bool atEdge)
{
    if (cursor.isNull()) {
        return false;
    }
    const int end = cursor.selectionEnd();
    return end >= cursor.document()->characterCount() - 1 ? atEdge
                                                          : isWordBorder(cursor.document(), end);
}

bool MRVTextCursor::hasMultipleBlocksSelected(const QTextCursor &cursor)
{
    // A cursor whose document was deleted is null, yet may report a selection.
    if (cursor.isNull() || !cursor.hasSelection() || cursor.hasComplexSelection()) {
        return false;
    }
    const QTextBlock next = cursor.document()->findBlock(cursor.selectionStart()).next();
    return next.isValid() && cursor.selectionEnd() >= next.position();
}

void MRVTextCursor::trimTrailingSpaces(QTextCursor *cursor)
{
    if (!cursor || cursor->isNull()) {
        return;
    }
    if (!cursor->hasComplexSelection() && cursor->selectedText().trimmed().isEmpty()) {
        // Paragraph ends are white space; the marks of tables and frames are not, so that the
        // cursor does not leave its frame or cell.
        int start = cursor->position();
        while (start > 0 && cursor->document()->characterAt(start - 1).isSpace()) {
            --start;
        }
        cursor->setPosition(start, QTextCursor::KeepAnchor);
    }
    if (cursor->hasSelection()) {
        cursor->removeSelectedText();
    }
}

void MRVTextCursor::selectBlockUnderCursor(QTextCursor *cursor, bool withSeparator)
{
    if (!cursor || cursor->isNull()) {
        return;
    }
    if (!cursor->hasSelection()) {
        const QTextBlock block = cursor->block();
        const int start = withSeparator ? startWithSeparator(block) : block.position();
        if (start < textEnd(block)) {
            select(cursor, start, textEnd(block));
        }
        return;
    }
    const QTextDocument *document = cursor->document();
    const QTextBlock first = document->findBlock(cursor->selectionStart());
    const QTextBlock last = document->findBlock(cursor->selectionEnd());
    int start = cursor->selectionStart();
    int end = cursor->selectionEnd();
    if (first.length() > 1) {
        start = withSeparator ? startWithSeparator(first) : first.position();
    }
    if (last.length() > 1) {
        end = textEnd(last);
    }
    // Deliberate: an end that already is at its paragraph's edge keeps the other end in place.
    if (start != cursor->selectionStart() && end != cursor->selectionEnd()) {
        select(cursor, start, end);
    }
}

void MRVTextCursor::replaceText(QTextCursor &cursor, const QString &text)
{
    mrvReplaceText(cursor, text);
}

QTextCharFormat MRVTextCursor::selectionEndCharFormat(const QTextCursor &cursor)
{
    if (cursor.isNull()) {
        return QTextCharFormat();
    }
    QTextCursor end = cursor;
    end.setPosition(cursor.selectionEnd());
    return end.charFormat();
}
