#include "dom/mrvdomsource.h"

#include "dom/mrvdomblanks_p.h"
#include "dom/mrvdomdoc.h"
#include "dom/mrvdompatch_p.h"
#include "dom/mrvdomwriter_p.h"
#include "input/mrvsourceencoding.h"
#include "input/mrvxmlreader.h"
#include "util/mrvfailure.h"

#include <QBuffer>

namespace {

// What is written of a document that is read from the bytes; null where that fails.
QByteArray readAgain(QByteArray bytes)
{
    MRVDomDoc doc;
    QBuffer buffer(&bytes);
    QByteArray written;
    return doc.setContent(&buffer) && mrvWriteXml(doc.document(), &written, nullptr) ? written
                                                                                     : QByteArray();
}

} // namespace

class MRVDomSource::Private
{
public:
    MRVSourceEncoding encoding;
    bool isKept = false; // the bytes can be
    QString xml;
    MRVDomPieces pieces;
    QString objection; // to keeping the bytes
};

MRVDomSource::MRVDomSource()
    : d(std::make_unique<Private>())
{
}

MRVDomSource::~MRVDomSource() = default;

bool MRVDomSource::read(const QByteArray &bytes, MRVDomDoc *doc)
{
    *d = Private();
    QByteArray source = bytes;
    QBuffer buffer(&source);
    if (!doc->setContent(&buffer)) {
        return false;
    }
    MRVTextFault fault;
    MRVXmlReader::decode(bytes, &d->xml, &fault);
    if (!d->encoding.find(bytes, MRVTextDecoder::XmlDeclaration, d->xml)) {
        d->objection = tr("its encoding writes some characters in several ways");
    } else if (!mrvDomPieces(d->xml, doc->document(), &d->pieces)) {
        d->objection = tr("its document type declares entities");
    } else {
        d->isKept = true;
    }
    return true;
}

bool MRVDomSource::write(const MRVDomDoc &doc, QByteArray *bytes, QString *note,
                         MRVErrorSink error) const
{
    QByteArray whole;
    if (!mrvWriteXml(doc.document(), &whole, error)) {
        return false;
    }
    QString objection = d->objection;
    if (d->isKept) {
        QString patched;
        if (mrvPatchXml(d->xml, d->pieces, d->encoding, doc.document(), &patched)) {
            const QByteArray result = d->encoding.encode(patched);
            const QByteArray again = readAgain(result);
            // An empty text is gone after saving and loading.
            if (again == whole || (!again.isNull() && again == readAgain(whole))) {
                *bytes = result;
                return true;
            }
        }
        objection = tr("the change goes beyond single elements");
    }
    if (note && !objection.isEmpty()) {
        *note = tr("the whole document would be laid out anew: %1").arg(objection);
    }
    *bytes = whole;
    return true;
}
