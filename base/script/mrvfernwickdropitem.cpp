#include "script/mrvfernwickdropitem.h"

#include "gui/mrvguiutil.h"
#include "script/mrvcheckedstream_p.h"

#include <QDataStream>
#include <QDateTime>
#include <QImage>
#include <QStringList>
#include <QUrl>
#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

constexpr qint32 FormatVersion = 1;
constexpr char TypeName[] = "MRVFernwickDropItem";

// Limits, far above what a note holds.
constexpr int MaxDepth = 32;
constexpr qint64 MostPictureBytes = 512 << 20;
// Deflate makes no more of a byte (RFC 1951), so that a picture that claims more is damaged.
constexpr qint64 MostInflated = 1032;

// Types of a fixed length.
constexpr int PlainTypes[] = {QMetaType::Bool,     QMetaType::Int,     QMetaType::UInt,
                              QMetaType::LongLong, QMetaType::Double,  QMetaType::ULongLong,
                              QMetaType::QChar,    QMetaType::QDate,   QMetaType::QTime,
                              QMetaType::QPoint,   QMetaType::QPointF, QMetaType::QSize,
                              QMetaType::QSizeF,   QMetaType::QRect,   QMetaType::QRectF};

void registerType()
{
    static const int type = [] {
        qRegisterMetaTypeStreamOperators<MRVFernwickDropItem>(TypeName);
        QMetaType::registerEqualsComparator<MRVFernwickDropItem>();
        return qRegisterMetaType<MRVFernwickDropItem>(TypeName);
    }();
    Q_UNUSED(type)
}

} // namespace

// Reads an item with its payload. Qt's own reader of variants believes every count and type it finds.
/** What the first chunk of a PNG picture says (ISO/IEC 15948, section 11.2.2). */
struct PictureHeader
{
    qint64 width = 0;
    qint64 height = 0;
    int depth = 0; // bits a channel
    int channels = 0;

    bool read(const QByteArray &png)
    {
        constexpr int HeaderEnd = 26;
        constexpr int channelsOfTypes[] = {1, 0, 3, 1, 2, 0, 4};
        if (png.size() < HeaderEnd)
            return false;
        const int type = uchar(png[25]);
        width = qFromBigEndian<quint32>(png.constData() + 16);
        height = qFromBigEndian<quint32>(png.constData() + 20);
        depth = uchar(png[24]);
        channels = type < int(std::size(channelsOfTypes)) ? channelsOfTypes[type] : 0;
        constexpr qint64 MostPixels = 1LL << 32; // so that no product below overflows
        return channels > 0 && depth <= 16 && width > 0 && height > 0
            && width <= MostPixels / height;
    }
    qint64 storedSize() const { return (width * channels * depth + 7) / 8 * height; }
    qint64 decodedSize() const { return width * height * (depth == 16 ? 8 : 4); }
};

class DropItemReader
{
public:
    explicit DropItemReader(QDataStream *stream)
        : m_stream(*stream)
    {
    }

    MRVFernwickDropItem item();

private:
    bool isSound() const { return m_stream.status() == QDataStream::Ok; }
    QVariant refused()
    {
        m_stream.setStatus(QDataStream::ReadCorruptData);
        return QVariant();
    }

    QVariant variant();
    QVariant value(quint32 type);
    QVariant nested(quint32 type);
    QVariant list();
    QVariant map();
    QVariant text(quint32 type);
    QVariant dateTime();
    QVariant stringList();
    QVariant image();
    bool png(QByteArray *bytes);

    QDataStream &m_stream;
    int m_depth = 0;
    qint64 m_pictureBytes = MostPictureBytes; // what pictures to come may take
};

MRVFernwickDropItem DropItemReader::item()
{
    qint32 version = 0;
    m_stream >> version;
    MRVFernwickDropItem read;
    if (mrvReadString(m_stream, &read.m_label)) {
        read.m_payload = variant();
    }
    return isSound() ? read : MRVFernwickDropItem();
}

QVariant DropItemReader::variant()
{
    quint32 type = 0;
    quint8 isNull = 0;
    m_stream >> type >> isNull;
    if (!isSound() || type == QMetaType::UnknownType)
        return QVariant();
    const QVariant read = value(type);
    return isNull != 0 && isSound() ? QVariant(QVariant::Type(read.userType())) : read;
}

QVariant DropItemReader::value(quint32 type)
{
    if (std::find(std::begin(PlainTypes), std::end(PlainTypes), int(type))
        != std::end(PlainTypes)) {
        QVariant plain(int(type), nullptr);
        return QMetaType::load(m_stream, int(type), plain.data()) ? plain : refused();
    }
    if (type == QMetaType::QString || type == QMetaType::QByteArray || type == QMetaType::QUrl)
        return text(type);
    if (type == QMetaType::QDateTime)
        return dateTime();
    if (type == QMetaType::QStringList)
        return stringList();
    if (type == QMetaType::QImage)
        return image();
    if (m_depth == MaxDepth)
        return refused();
    ++m_depth;
    const QVariant read = nested(type);
    --m_depth;
    return read;
}

QVariant DropItemReader::nested(quint32 type)
{
    if (type == QMetaType::QVariantList)
        return list();
    if (type == QMetaType::QVariantMap)
        return map();
    QByteArray name;
    if (type == QMetaType::User) {
        mrvReadBytes(m_stream, &name); // stored with the zero that ends it
    }
    if (name != QByteArray::fromRawData(TypeName, sizeof TypeName))
        return refused();
    return QVariant::fromValue(item());
}

QVariant DropItemReader::list()
{
    quint32 count = 0;
    m_stream >> count;
    QVariantList entries;
    for (quint32 i = 0; i < count && isSound(); ++i) {
        entries.append(variant());
    }
    return entries;
}

QVariant DropItemReader::map()
{
    quint32 count = 0;
    m_stream >> count;
    QVariantMap entries;
    for (quint32 i = 0; i < count && isSound(); ++i) {
        QString key;
        mrvReadString(m_stream, &key);
        entries.insert(key, variant());
    }
    return entries;
}

QVariant DropItemReader::text(quint32 type)
{
    if (type == QMetaType::QString) {
        QString read;
        mrvReadString(m_stream, &read);
        return read;
    }
    QByteArray bytes;
    mrvReadBytes(m_stream, &bytes);
    return type == QMetaType::QByteArray ? QVariant(bytes)
                                         : QVariant(QUrl(QString::fromUtf8(bytes)));
}

// A named time zone would make Qt look it up in the system.
QVariant DropItemReader::dateTime()
{
    constexpr int SpecAt = 12; // behind the date and the time
    QByteArray bytes;
    if (!mrvReadRaw(m_stream, SpecAt + 1, &bytes))
        return QVariant();
    const int spec = bytes.at(SpecAt);
    if (spec != Qt::LocalTime && spec != Qt::UTC && spec != Qt::OffsetFromUTC)
        return refused();
    if (spec == Qt::OffsetFromUTC) {
        mrvReadRaw(m_stream, 4, &bytes);
    }
    QDataStream stream(bytes);
    stream.setVersion(m_stream.version());
    stream.setByteOrder(m_stream.byteOrder());
    QDateTime time;
    stream >> time;
    return time;
}

QVariant DropItemReader::stringList()
{
    quint32 count = 0;
    m_stream >> count;
    QStringList entries;
    for (quint32 i = 0; i < count && isSound(); ++i) {
        QString entry;
        mrvReadString(m_stream, &entry);
        entries.append(entry);
    }
    return entries;
}

// A picture lies in the stream as a PNG file, of a length that only its chunks tell.
bool DropItemReader::png(QByteArray *bytes)
{
    static constexpr char Signature[] = "\x89PNG\r\n\x1a\n";
    if (!mrvReadRaw(m_stream, 8, bytes) || std::memcmp(bytes->constData(), Signature, 8) != 0)
        return false;
    for (;;) {
        const int start = bytes->size();
        if (!mrvReadRaw(m_stream, 8, bytes))
            return false;
        const quint32 length = qFromBigEndian<quint32>(bytes->constData() + start);
        const bool last = std::memcmp(bytes->constData() + start + 4, "IEND", 4) == 0;
        if (length > 0x7fffffff - 4 || !mrvReadRaw(m_stream, length + 4, bytes)) // and the checksum
            return false;
        if (last)
            return true;
    }
}

QVariant DropItemReader::image()
{
    qint32 present = 0;
    m_stream >> present;
    if (!isSound() || present == 0)
        return QImage();
    QByteArray bytes;
    PictureHeader header;
    if (!png(&bytes) || !header.read(bytes) || header.storedSize() > MostInflated * bytes.size())
        return refused();
    if (header.decodedSize() > m_pictureBytes)
        return QImage(); // what else the item holds is worth more than its picture
    const QImage image = MRVGuiUtil::toImage(bytes, "PNG");
    m_pictureBytes -= qint64(image.sizeInBytes());
    return image.isNull() ? refused() : QVariant(image);
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
    registerType();
    return QVariant::fromValue(*this);
}

MRVFernwickDropItem MRVFernwickDropItem::fromVariant(const QVariant &variant)
{
    registerType();
    if (variant.userType() == qMetaTypeId<MRVFernwickDropItem>())
        return variant.value<MRVFernwickDropItem>();
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
    registerType();
    return stream << FormatVersion << item.label() << item.payload();
}

QDataStream &operator>>(QDataStream &stream, MRVFernwickDropItem &item)
{
    registerType();
    item =
        stream.status() == QDataStream::Ok ? DropItemReader(&stream).item() : MRVFernwickDropItem();
    return stream;
}
