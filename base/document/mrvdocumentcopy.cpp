#include "document/mrvdocumentcopy.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>

std::unique_ptr<QTextDocument> mrvDocumentCopy(const QTextDocument &document)
{
    std::unique_ptr<QTextDocument> copy(document.clone());
    copy->setUndoRedoEnabled(false);
    const QTextBlock first = document.begin();
    QTextBlockFormat format = first.blockFormat();
    format.setObjectIndex(copy->begin().blockFormat().objectIndex());
    QTextCursor cursor(copy.get());
    cursor.setBlockFormat(format);
    cursor.setBlockCharFormat(first.charFormat());
    const QTextList *list = first.textList();
    if (list && list->count() > 1 && !cursor.currentList()) {
        copy->findBlockByNumber(list->item(1).blockNumber()).textList()->add(cursor.block());
    } else if (list && !cursor.currentList()) {
        cursor.createList(list->format());
    }
    return copy;
}
