#include "exchange/mrvfernwickdropitem.h"

#include "exchange/mrvcheckedstream_p.h"
#include "gui/mrvguiutil.h"

#include <QColor>
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

void registerType()
{
    static const int type = [] {
        qRegisterMetaTypeStreamOperators<MRVFernwickDropItem>(TypeName);
        QMetaType::registerEqualsComparator<MRVFernwickDropItem>();
        return qRegisterMetaType<MRVFernwickDropItem>(TypeName);
    }();
    Q_UNUSED(type)
}

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
        if (png.size() < HeaderEnd) {
            return false;
        }
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

} // namespace

// Reads an item with its payload. Qt's own reader of variants believes every count and type it
// finds.
class DropItemReader
{
public:
    explicit DropItemReader(QDataStream *stream)
        : m_stream(*stream)
    {
    }

    MRVFernwickDropItem item();

    /** Whether values of a type are read, and so may be written. */
    static bool isRead(int type) { return rowOf(type) != nullptr; }

private:
    struct TypeRow
    {
        int type;
        QVariant (
            DropItemReader::*read)(); // of a type whose form has no fixed length, or may be damaged
    };
    static const TypeRow Types[];
    static const TypeRow *rowOf(int type);

    bool isSound() const { return m_stream.status() == QDataStream::Ok; }
    QVariant refused()
    {
        m_stream.setStatus(QDataStream::ReadCorruptData);
        return QVariant();
    }

    QVariant variant();
    QVariant list();
    QVariant map();
    QVariant userValue();
    QVariant text();
    QVariant byteArray();
    QVariant url();
    QVariant color();
    QVariant dateTime();
    QVariant stringList();
    QVariant image();
    template<typename T>
    T fromBytes(const QByteArray &bytes) const;
    bool png(QByteArray *bytes);

    QDataStream &m_stream;
    int m_depth = 0;
    qint64 m_pictureBytes = MostPictureBytes; // what pictures to come may take
};

// clang-format off
constexpr DropItemReader::TypeRow DropItemReader::Types[] = {
    {QMetaType::Bool,         nullptr},
    {QMetaType::Int,          nullptr},
    {QMetaType::UInt,         nullptr},
    {QMetaType::LongLong,     nullptr},
    {QMetaType::ULongLong,    nullptr},
    {QMetaType::Double,       nullptr},
    {QMetaType::Float,        nullptr},
    {QMetaType::Long,         nullptr},
    {QMetaType::ULong,        nullptr},
    {QMetaType::Short,        nullptr},
    {QMetaType::UShort,       nullptr},
    {QMetaType::Char,         nullptr},
    {QMetaType::SChar,        nullptr},
    {QMetaType::UChar,        nullptr},
    {QMetaType::QChar,        nullptr},
    {QMetaType::QDate,        nullptr},
    {QMetaType::QTime,        nullptr},
    {QMetaType::QPoint,       nullptr},
    {QMetaType::QPointF,      nullptr},
    {QMetaType::QSize,        nullptr},
    {QMetaType::QSizeF,       nullptr},
    {QMetaType::QRect,        nullptr},
    {QMetaType::QRectF,       nullptr},
    {QMetaType::QUuid,        nullptr},
    {QMetaType::QColor,       &DropItemReader::color},
    {QMetaType::QString,      &DropItemReader::text},
    {QMetaType::QByteArray,   &DropItemReader::byteArray},
    {QMetaType::QUrl,         &DropItemReader::url},
    {QMetaType::QDateTime,    &DropItemReader::dateTime},
    {QMetaType::QStringList,  &DropItemReader::stringList},
    {QMetaType::QImage,       &DropItemReader::image},
    {QMetaType::QVariantList, &DropItemReader::list},
    {QMetaType::QVariantMap,  &DropItemReader::map},
    {QMetaType::User,         &DropItemReader::userValue},
};
// clang-format on

const DropItemReader::TypeRow *DropItemReader::rowOf(int type)
{
    const auto row = std::find_if(std::begin(Types), std::end(Types),
                                  [type](const TypeRow &known) { return known.type == type; });
    return row == std::end(Types) ? nullptr : row;
}

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
    if (!isSound() || type == QMetaType::UnknownType) {
        return QVariant();
    }
    const TypeRow *row = rowOf(int(type));
    if (!row || m_depth == MaxDepth) {
        return refused();
    }
    QVariant read;
    if (row->read) {
        ++m_depth;
        read = (this->*row->read)();
        --m_depth;
    } else {
        read = QVariant(int(type), nullptr);
        if (!QMetaType::load(m_stream, int(type), read.data())) {
            return refused();
        }
    }
    return isNull != 0 && isSound() ? QVariant(QVariant::Type(read.userType())) : read;
}

QVariant DropItemReader::userValue()
{
    QByteArray name;
    mrvReadBytes(m_stream, &name); // stored with the zero that ends it
    if (name != QByteArray::fromRawData(TypeName, sizeof TypeName)) {
        return refused();
    }
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

QVariant DropItemReader::text()
{
    QString read;
    mrvReadString(m_stream, &read);
    return read;
}

QVariant DropItemReader::byteArray()
{
    QByteArray read;
    mrvReadBytes(m_stream, &read);
    return read;
}

QVariant DropItemReader::url()
{
    return QUrl(QString::fromUtf8(byteArray().toByteArray()));
}

template<typename T>
T DropItemReader::fromBytes(const QByteArray &bytes) const
{
    QDataStream stream(bytes);
    stream.setVersion(m_stream.version());
    stream.setByteOrder(m_stream.byteOrder());
    T value;
    stream >> value;
    return value;
}

// Qt takes any number for the kind of a colour.
QVariant DropItemReader::color()
{
    constexpr int Length = 11;
    QByteArray bytes;
    if (!mrvReadRaw(m_stream, Length, &bytes)) {
        return QVariant();
    }
    if (bytes.at(0) < QColor::Invalid || bytes.at(0) > QColor::ExtendedRgb) {
        return refused();
    }
    return fromBytes<QColor>(bytes);
}

// A named time zone would make Qt look it up in the system.
QVariant DropItemReader::dateTime()
{
    constexpr int SpecAt = 12; // behind the date and the time
    QByteArray bytes;
    if (!mrvReadRaw(m_stream, SpecAt + 1, &bytes)) {
        return QVariant();
    }
    const int spec = bytes.at(SpecAt);
    if (spec != Qt::LocalTime && spec != Qt::UTC && spec != Qt::OffsetFromUTC) {
        return refused();
    }
    if (spec == Qt::OffsetFromUTC) {
        mrvReadRaw(m_stream, 4, &bytes);
    }
    return fromBytes<QDateTime>(bytes);
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
    if (!mrvReadRaw(m_stream, 8, bytes) || std::memcmp(bytes->constData(), Signature, 8) != 0) {
        return false;
    }
    for (;;) {
        const int start = bytes->size();
        if (!mrvReadRaw(m_stream, 8, bytes)) {
            return false;
        }
        const quint32 length = qFromBigEndian<quint32>(bytes->constData() + start);
        const bool last = std::memcmp(bytes->constData() + start + 4, "IEND", 4) == 0;
        if (length > 0x7fffffff - 4
            || !mrvReadRaw(m_stream, length + 4, bytes)) { // and the checksum
            return false;
        }
        if (last) {
            return true;
        }
    }
}

QVariant DropItemReader::image()
{
    qint32 present = 0;
    m_stream >> present;
    if (!isSound() || present == 0) {
        return QImage();
    }
    QByteArray bytes;
    PictureHeader header;
    if (!png(&bytes) || !header.read(bytes) || header.storedSize() > MostInflated * bytes.size()) {
        return refused();
    }
    if (header.decodedSize() > m_pictureBytes) {
        return QImage(); // what else the item holds is worth more than its picture
    }
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
    if (variant.userType() == qMetaTypeId<MRVFernwickDropItem>()) {
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

// Whether all of a value would be read again. Hashes are not: their order is another one in each
// process.
static bool isWritable(const QVariant &value, int depth = 0)
{
    const auto isEntryWritable = [depth](const QVariant &entry) {
        return isWritable(entry, depth + 1);
    };
    const int type = value.userType();
    if (!value.isValid()) {
        return true;
    }
    if (depth == MaxDepth) {
        return false;
    }
    if (type == qMetaTypeId<MRVFernwickDropItem>()) {
        return isEntryWritable(value.value<MRVFernwickDropItem>().payload());
    }
    if (type == QMetaType::QDateTime) {
        return value.toDateTime().timeSpec() != Qt::TimeZone;
    }
    if (type == QMetaType::QVariantMap) {
        const QVariantMap entries = value.toMap();
        return std::all_of(entries.cbegin(), entries.cend(), isEntryWritable);
    }
    if (type == QMetaType::QVariantList) {
        const QVariantList entries = value.toList();
        return std::all_of(entries.cbegin(), entries.cend(), isEntryWritable);
    }
    return DropItemReader::isRead(type);
}

QDataStream &operator<<(QDataStream &stream, const MRVFernwickDropItem &item)
{
    registerType();
    if (!isWritable(item.payload())) {
        stream.setStatus(QDataStream::WriteFailed);
        return stream;
    }
    return stream << FormatVersion << item.label() << item.payload();
}

QDataStream &operator>>(QDataStream &stream, MRVFernwickDropItem &item)
{
    registerType();
    item =
        stream.status() == QDataStream::Ok ? DropItemReader(&stream).item() : MRVFernwickDropItem();
    return stream;
}
