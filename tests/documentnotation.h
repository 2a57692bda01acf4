#pragma once

#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

/**
 * Fills an empty document with @p text, in which "{" starts a table and each further cell of it,
 * "/" its second row, and "}" ends it; "<" and ">" bound a frame.
 */
inline void fillDocument(QTextDocument *document, const QString &text)
{
    QTextCursor cursor(document);
    QTextTable *table = nullptr;
    const int rows = text.count('/') + 1;
    int cell = 0;
    for (const QChar c : text) {
        if (c == '{') {
            if (!table) {
                table = cursor.insertTable(rows, text.count('{') / rows);
            }
            const int row = cell / table->columns();
            cursor = table->cellAt(row, cell++ % table->columns()).firstCursorPosition();
        } else if (c == '<') {
            cursor.insertFrame(QTextFrameFormat());
        } else if (c == '>' || c == '}') {
            cursor.movePosition(QTextCursor::End);
        } else if (c != '/') {
            cursor.insertText(c);
        }
    }
}
