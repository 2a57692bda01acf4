#include "exchange/mrvreference.h"

#include "core/mcoretype.h"
#include "core/mrvcheckedstream.h"

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
    MRVCheckedStream in(&stream);
    MRVReference read;
    qint16 version = 0;
    QByteArray address;
    const bool isWhole = in.read(&version) && in.read(&read.title) && in.read(&address)
        && in.read(&read.internalLink);
    read.url.setUrl(QString::fromUtf8(address));
    reference = isWhole ? read : MRVReference();
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
