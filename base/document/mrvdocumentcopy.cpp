#include "document/mrvdocumentcopy.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextList>

namespace {

// What Qt leaves behind of the first paragraph.
void completeStart(QTextDocument *copy, const QTextBlock &first)
{
    copy->setUndoRedoEnabled(false);
    QTextBlockFormat format = first.blockFormat();
    format.setObjectIndex(copy->begin().blockFormat().objectIndex());
    QTextCursor cursor(copy);
    cursor.setBlockFormat(format);
    cursor.setBlockCharFormat(first.charFormat());
    const QTextList *list = first.textList();
    if (list && list->count() > 1 && !cursor.currentList()) {
        copy->findBlockByNumber(list->item(1).blockNumber()).textList()->add(cursor.block());
    } else if (list && !cursor.currentList()) {
        cursor.createList(list->format());
    }
}

} // namespace

std::unique_ptr<QTextDocument> mrvDocumentCopy(const QTextDocument &document)
{
    std::unique_ptr<QTextDocument> copy(document.clone());
    completeStart(copy.get(), document.begin());
    return copy;
}

std::unique_ptr<QTextDocument> mrvDocumentCopy(const QTextBlock &first, const QTextBlock &last)
{
    const QTextDocument *document = first.document();
    auto copy = std::make_unique<QTextDocument>();
    copy->setUndoRedoEnabled(false);
    copy->setDefaultFont(document->defaultFont());
    copy->setIndentWidth(document->indentWidth());
    copy->setDefaultTextOption(document->defaultTextOption());
    QTextCursor part(first);
    part.setPosition(last.position() + last.length() - 1, QTextCursor::KeepAnchor);
    QTextCursor(copy.get()).insertFragment(QTextDocumentFragment(part));
    if (!first.textList()) {
        completeStart(copy.get(), first);
    }
    return copy;
}
