#include "clipboard/mrvdocumentmimedata.h"

#include "fragment/mrvdocumentfragment.h"
#include "input/mrvguardeddocument.h"
#include "xhtml/mrvdocumenthtml.h"

#include <QMimeData>
#include <QTextCursor>

QString MRVDocumentMimeData::mimeType()
{
    return QStringLiteral("application/x-morvane-document");
}

QMimeData *MRVDocumentMimeData::createMimeData(const QTextCursor &cursor)
{
    if (!cursor.hasSelection()) {
        return nullptr;
    }
    const MRVDocumentFragment fragment = MRVDocumentFragment::fromCursor(cursor);
    MRVGuardedDocument copy;
    copy.setUndoRedoEnabled(false);
    copy.setDefaultFont(cursor.document()->defaultFont());
    QTextCursor target(&copy);
    fragment.insert(&target);
    auto *data = new QMimeData;
    data->setData(mimeType(), fragment.toByteArray());
    data->setText(copy.toPlainText());
    data->setHtml(mrvDocumentHtml(copy));
    return data;
}

bool MRVDocumentMimeData::hasFragment(const QMimeData *source)
{
    return source && source->hasFormat(mimeType());
}

bool MRVDocumentMimeData::insert(QTextCursor *cursor, const QMimeData *source)
{
    MRVDocumentFragment fragment;
    if (!cursor || cursor->isNull() || !hasFragment(source)
        || !MRVDocumentFragment::fromByteArray(source->data(mimeType()), &fragment)) {
        return false;
    }
    fragment.insert(cursor);
    return true;
}
