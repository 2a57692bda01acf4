#include "exchange/mrvreference.h"

#include "core/mcoretype.h"
#include "exchange/mrvcheckedstream_p.h"

#include <QDataStream>
#include <QDebug>

namespace {
constexpr qint16 FormatVersion = 1;
}

void MRVReference::setUrl(const QUrl &address)
{
    url = address;
    internalLink = -1;
}

void MRVReference::setInternalLink(int id)
{
    url.clear();
    internalLink = id;
}

QByteArray MRVReference::toByteArray(const QList<MRVReference> &references)
{
    return MCoreType::toByteArray(references);
}

QList<MRVReference> MRVReference::toReferenceList(const QByteArray &bytes)
{
    return MCoreType::fromByteArray<QList<MRVReference>>(bytes);
}

QDataStream &operator<<(QDataStream &stream, const MRVReference &reference)
{
    return stream << FormatVersion << reference.title << reference.url << reference.internalLink;
}

QDataStream &operator>>(QDataStream &stream, MRVReference &reference)
{
    MRVReference read;
    qint16 version = 0;
    QByteArray address;
    stream >> version;
    if (mrvReadString(stream, &read.title) && mrvReadBytes(stream, &address)) {
        read.url.setUrl(QString::fromUtf8(address));
        stream >> read.internalLink;
    }
    reference = stream.status() == QDataStream::Ok ? read : MRVReference();
    return stream;
}

QDebug operator<<(QDebug debug, const MRVReference &reference)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "Reference[" << reference.title << ", ";
    if (reference.internalLink != -1) {
        debug << reference.internalLink;
    } else {
        debug.noquote() << reference.url.toString();
    }
    debug << ']';
    return debug;
}
