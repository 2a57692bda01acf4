#include "exchange/mrvfernwickdropitem.h"

#include "core/mcoretype.h"
#include "input/mrvvariantguard.h"

#include <QDataStream>
#include <QImage>

// The form of an item without any check. Items within a payload are read and written by these
// functions, since the outermost one was checked with all that it holds.
class DropItemStream
{
public:
    static void write(QDataStream &stream, const void *item)
    {
        const auto *source = static_cast<const MRVFernwickDropItem *>(item);
        stream << FormatVersion << source->m_label
               << MRVVariantGuard::storable(source->m_payload, MRVVariantGuard::DropItem);
    }
    static void read(QDataStream &stream, void *item)
    {
        auto *target = static_cast<MRVFernwickDropItem *>(item);
        qint32 version = 0;
        stream >> version >> target->m_label >> target->m_payload;
    }

private:
    static constexpr qint32 FormatVersion = 1;
};

int MRVFernwickDropItem::metaType()
{
    static const int type = [] {
        const int id = qRegisterMetaType<MRVFernwickDropItem>("MRVFernwickDropItem");
        QMetaType::registerStreamOperators(id, DropItemStream::write, DropItemStream::read);
        QMetaType::registerEqualsComparator<MRVFernwickDropItem>();
        return id;
    }();
    return type;
}

MRVFernwickDropItem::MRVFernwickDropItem(const QString &label, const QString &text)
    : m_label(label)
    , m_payload(text)
{
}

MRVFernwickDropItem::MRVFernwickDropItem(const QString &label, const QImage &image)
    : m_label(label)
    , m_payload(image)
{
}

MRVFernwickDropItem::MRVFernwickDropItem(const QList<QVariant> &list)
    : m_payload(list)
{
}

QVariant MRVFernwickDropItem::toVariant() const
{
    MRVFernwickDropItem::metaType();
    return QVariant::fromValue(*this);
}

MRVFernwickDropItem MRVFernwickDropItem::fromVariant(const QVariant &variant)
{
    if (variant.userType() == metaType()) {
        return variant.value<MRVFernwickDropItem>();
    }
    MRVFernwickDropItem item;
    item.m_payload = variant;
    return item;
}

QList<MRVFernwickDropItem> MRVFernwickDropItem::fromVariant(const QList<QVariant> &list)
{
    QList<MRVFernwickDropItem> items;
    items.reserve(list.size());
    for (const QVariant &entry : list) {
        items.append(fromVariant(entry));
    }
    return items;
}

QDataStream &operator<<(QDataStream &stream, const MRVFernwickDropItem &item)
{
    MRVFernwickDropItem::metaType();
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setVersion(MCoreType::StreamVersion);
    out.setByteOrder(stream.byteOrder());
    DropItemStream::write(out, &item);
    QDataStream written(bytes);
    written.setByteOrder(stream.byteOrder());
    if (MRVVariantGuard::take(written, MRVVariantGuard::DropItem).isEmpty()) {
        stream.setStatus(QDataStream::WriteFailed);
        return stream;
    }
    stream.writeRawData(bytes.constData(), bytes.size());
    return stream;
}

QDataStream &operator>>(QDataStream &stream, MRVFernwickDropItem &item)
{
    MRVFernwickDropItem::metaType();
    const QByteArray bytes = MRVVariantGuard::take(stream, MRVVariantGuard::DropItem);
    QDataStream checked(bytes);
    checked.setVersion(MCoreType::StreamVersion);
    checked.setByteOrder(stream.byteOrder());
    MRVFernwickDropItem read;
    DropItemStream::read(checked, &read);
    if (stream.status() == QDataStream::Ok) {
        stream.setStatus(checked.status());
    }
    item = stream.status() == QDataStream::Ok ? read : MRVFernwickDropItem();
    return stream;
}
