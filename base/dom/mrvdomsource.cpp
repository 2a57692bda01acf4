#include "dom/mrvdomsource.h"

#include "dom/mrvdomblanks_p.h"
#include "dom/mrvdomdoc.h"
#include "dom/mrvdompatch_p.h"
#include "dom/mrvdomwriter_p.h"
#include "input/mrvxmlreader.h"
#include "util/mrvfailure.h"

#include <QBuffer>
#include <QTextCodec>

namespace {

QByteArray encoded(const QTextCodec *codec, const QString &text)
{
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    return codec->fromUnicode(text.constData(), text.size(), &state);
}

// What is written of a document that is read from the bytes; null where that fails.
QByteArray readAgain(QByteArray bytes)
{
    MRVDomDoc doc;
    QBuffer buffer(&bytes);
    QByteArray written;
    QString reason;
    return doc.setContent(&buffer) && mrvWriteXml(doc.document(), &written, &reason) ? written
                                                                                     : QByteArray();
}

} // namespace

class MRVDomSource::Private
{
public:
    QByteArray mark; // of the byte order
    const QTextCodec *codec = nullptr; // null where the bytes cannot be kept
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
    const QByteArray name = MRVTextDecoder::encodingOf(bytes, MRVTextDecoder::XmlDeclaration);
    const QTextCodec *codec = QTextCodec::codecForName(name);
    codec = codec ? codec : QTextCodec::codecForName("UTF-8");
    MRVXmlReader::decode(bytes, &d->xml, &fault);
    // A mark of the byte order is not part of the text.
    constexpr int LongestMark = 4;
    const QByteArray again = encoded(codec, d->xml);
    const int markLength = bytes.size() - again.size();
    if (markLength < 0 || markLength > LongestMark || !bytes.endsWith(again)) {
        d->objection = tr("its encoding writes some characters in several ways");
    } else if (!mrvDomPieces(d->xml, doc->document(), &d->pieces)) {
        d->objection = tr("its document type declares entities");
    } else {
        d->codec = codec;
        d->mark = bytes.left(markLength);
    }
    return true;
}

bool MRVDomSource::write(const MRVDomDoc &doc, QByteArray *bytes, QString *note,
                         QString *error) const
{
    QByteArray whole;
    QString reason;
    if (!mrvWriteXml(doc.document(), &whole, &reason)) {
        return MRV::fail(error, reason);
    }
    QString objection = d->objection;
    if (d->codec) {
        QString patched;
        if (mrvPatchXml(d->xml, d->pieces, d->codec, doc.document(), &patched)) {
            const QByteArray result = d->mark + encoded(d->codec, patched);
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
