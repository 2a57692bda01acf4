// Feeds arbitrary bytes to the reader of the clipboard's form of a document; the first byte says
// where they are pasted. What was pasted must go with one undo and survive being copied again; what
// is refused must change nothing.

#include "guiapplication.h"

#include "clipboard/mrvdocumentmimedata.h"
#include "input/mrvguardeddocument.h"
#include "xhtml/mrvdocumenthtml.h"

#include <QAbstractTextDocumentLayout>
#include <QMimeData>
#include <QTextCursor>
#include <QTextTable>

#include <cstdlib>
#include <memory>

namespace {

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

// An empty document, text, a list or a cell, with something selected or not.
QTextCursor placeIn(QTextDocument *document, int place)
{
    QTextCursor cursor(document);
    if (place & 1) {
        cursor.insertText(QStringLiteral("before and after"));
    }
    if (place & 2) {
        cursor.insertList(QTextListFormat::ListDecimal);
        cursor.insertText(QStringLiteral("item"));
    }
    if (place & 4) {
        cursor = cursor.insertTable(2, 2)->cellAt(0, 1).firstCursorPosition();
        cursor.insertText(QStringLiteral("cell"));
    }
    if (place & 8) {
        cursor.movePosition(QTextCursor::Left);
    }
    if (place & 16) {
        cursor.movePosition(QTextCursor::WordLeft, QTextCursor::KeepAnchor);
    }
    document->clearUndoRedoStacks();
    document->setModified(false);
    return cursor;
}

void copyAgain(QTextDocument *document)
{
    QTextCursor all(document);
    all.select(QTextCursor::Document);
    const std::unique_ptr<QMimeData> copied(MRVDocumentMimeData::createMimeData(all));
    MRVGuardedDocument other;
    QTextCursor cursor(&other);
    if (copied) {
        require(MRVDocumentMimeData::insert(&cursor, copied.get()));
        require(other.toRawText() == document->toRawText());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0) {
        return 0;
    }
    QMimeData source;
    source.setData(MRVDocumentMimeData::mimeType(),
                   QByteArray(reinterpret_cast<const char *>(data) + 1, int(size) - 1));
    MRVGuardedDocument document;
    QTextCursor cursor = placeIn(&document, data[0]);
    const QString before = document.toRawText();
    if (!MRVDocumentMimeData::insert(&cursor, &source)) {
        require(document.toRawText() == before);
        require(!document.isModified());
        return 0;
    }
    copyAgain(&document);
    mrvDocumentHtml(document);
    document.documentLayout();
    document.setTextWidth(500);
    document.undo();
    require(document.toRawText() == before);
    require(!document.isUndoAvailable());
    return 0;
}
