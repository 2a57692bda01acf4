#include "textformat/mrvtextformat.h"

#include "input/mrvvariantguard.h"
#include "textformat/mrvformatspread.h"
#include "textformat/mrvlistlevel.h"
#include "textformat/mrvtextformat_p.h"

#include <QDataStream>
#include <QIODevice>
#include <QLoggingCategory>
#include <QMetaType>
#include <QTextOption>
#include <QtEndian>

#include <algorithm>

namespace {

Q_LOGGING_CATEGORY(lcText, "mrv.text")

// By name, so that stored formats stay the same under a newer Qt.
constexpr int StreamVersion = QDataStream::Qt_5_15;

// Position, type as quint32, delimiter. MRVVariantGuard knows this layout.
void saveTab(QDataStream &stream, const void *value)
{
    const auto *tab = static_cast<const QTextOption::Tab *>(value);
    stream << double(tab->position) << quint32(tab->type) << tab->delimiter;
}

void loadTab(QDataStream &stream, void *value)
{
    double position = 0.0;
    quint32 type = 0;
    QChar delimiter;
    stream >> position >> type >> delimiter;
    if (type > QTextOption::DelimiterTab) {
        stream.setStatus(QDataStream::ReadCorruptData);
    }
    if (stream.status() == QDataStream::Ok) {
        *static_cast<QTextOption::Tab *>(value) =
            QTextOption::Tab(position, QTextOption::TabType(type), delimiter);
    }
}

bool registerTextTypes()
{
    const int tab = qRegisterMetaType<QTextOption::Tab>("QTextOption::Tab");
    QMetaType::registerStreamOperators(tab, saveTab, loadTab);
    if (!QMetaType::hasRegisteredComparators(tab)) {
        QMetaType::registerEqualsComparator<QTextOption::Tab>();
    }
    qMetaTypeId<MRVQtListLevel>(); // registers it, so that streams can read it
    return true;
}

MRVVariantGuard::Form form(int type)
{
    return type == QTextFormat::CharFormat ? MRVVariantGuard::CharFormat
                                           : MRVVariantGuard::BlockFormat;
}

QByteArray write(const QTextFormat &format)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    stream << format;
    return bytes;
}

enum class Reading {
    Whole, ///< it comes back as it was
    Kept, ///< it has a type that only some processes know, and comes back as bytes elsewhere
    None
};

Reading readingOf(const QByteArray &bytes, int type)
{
    QDataStream stream(bytes);
    MRVVariantGuard::Rest rest;
    if (MRVVariantGuard::takeFormat(stream, form(type), &rest).isEmpty()) {
        return Reading::None;
    }
    return rest.properties == 0 ? Reading::Whole : Reading::Kept;
}

bool isReadable(const QByteArray &bytes, int type)
{
    return readingOf(bytes, type) == Reading::Whole;
}

// Whether Qt can write a value: where it cannot, it leaves a gap.
bool isWritable(const QVariant &value)
{
    if (value.userType() == QMetaType::QVariantList || value.userType() == QMetaType::QVariantMap) {
        const QVariantList items =
            value.userType() == QMetaType::QVariantMap ? value.toMap().values() : value.toList();
        return std::all_of(items.cbegin(), items.cend(), isWritable);
    }
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    return value.userType() < QMetaType::User
        || QMetaType::save(stream, value.userType(), value.constData());
}

// A value as it can be written. The order of a hash differs in every process; the order of a map
// does not.
QVariant ordered(const QVariant &value)
{
    QVariantMap map;
    QVariantList list;
    switch (value.userType()) {
    case QMetaType::QVariantHash: {
        const QVariantHash hash = value.toHash();
        for (auto it = hash.cbegin(); it != hash.cend(); ++it) {
            map.insert(it.key(), ordered(it.value()));
        }
        return map;
    }
    case QMetaType::QVariantMap:
        map = value.toMap();
        for (auto it = map.begin(); it != map.end(); ++it) {
            *it = ordered(*it);
        }
        return map;
    case QMetaType::QVariantList:
        for (const QVariant &item : value.toList()) {
            list << ordered(item);
        }
        return list;
    case QMetaType::QDateTime:
        return MRVVariantGuard::storable(value, MRVVariantGuard::CharFormat);
    default:
        return value;
    }
}

QTextFormat ordered(QTextFormat format)
{
    format.clearProperty(MRVFormatSpread::Property);
    format.clearProperty(MRVTextFormat::UnreadProperty);
    const QMap<int, QVariant> properties = format.properties();
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        const int type = it.value().userType();
        if (type == QMetaType::QVariantHash || type == QMetaType::QVariantMap
            || type == QMetaType::QVariantList || type == QMetaType::QDateTime) {
            format.setProperty(it.key(), ordered(it.value()));
        }
    }
    return format;
}

QTextFormat firstProperties(const QTextFormat &format, int count)
{
    QTextFormat first = format;
    const QList<int> properties = format.properties().keys();
    for (int property : properties.mid(count)) {
        first.clearProperty(property);
    }
    return first;
}

// Where there are too many properties, or too large pictures, as many as can be read are written.
QByteArray storeFirst(const QTextFormat &format)
{
    int stored = 0;
    int tooMany = format.propertyCount() + 1;
    while (tooMany - stored > 1) {
        const int count = stored + (tooMany - stored) / 2;
        if (isReadable(write(firstProperties(format, count)), format.type())) {
            stored = count;
        } else {
            tooMany = count;
        }
    }
    if (stored < format.propertyCount()) {
        qCWarning(lcText, "A format is too large: %d of its %d properties are left out",
                  format.propertyCount() - stored, format.propertyCount());
    }
    return write(firstProperties(format, stored));
}

quint32 numberAt(const QByteArray &bytes, int offset)
{
    return qFromBigEndian<quint32>(bytes.constData() + offset);
}

// A stored format with more properties at its end: "tail" has their number and then each of them,
// as a format has after its type.
QByteArray withTail(QByteArray format, const QByteArray &tail)
{
    constexpr int Count = sizeof(quint32);
    if (tail.size() < Count) {
        return format;
    }
    qToBigEndian(numberAt(format, Count) + numberAt(tail, 0), format.data() + Count);
    return format + tail.mid(Count);
}

QByteArray store(const QTextFormat &unordered)
{
    mrvRegisterTextTypes();
    const QTextFormat format = ordered(unordered);
    const QByteArray unread = unordered.property(MRVTextFormat::UnreadProperty).toByteArray();
    const QByteArray bytes = write(format);
    if (unread.isEmpty() && isReadable(bytes, format.type())) {
        return bytes;
    }

    QTextFormat readable = format;
    QTextFormat kept(format.type());
    const QMap<int, QVariant> properties = format.properties();
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        QTextFormat single(format.type());
        single.setProperty(it.key(), it.value());
        const Reading reading =
            isWritable(it.value()) ? readingOf(write(single), format.type()) : Reading::None;
        if (reading == Reading::Whole) {
            continue;
        }
        readable.clearProperty(it.key());
        if (reading == Reading::Kept) {
            kept.setProperty(it.key(), it.value());
        } else {
            qCWarning(lcText, "Property 0x%x of type %s cannot be stored and is left out",
                      uint(it.key()), it.value().typeName());
        }
    }
    const QByteArray tail = write(kept).mid(sizeof(qint32));
    return withTail(withTail(storeFirst(readable), tail), unread);
}

template<typename Format>
bool decode(const QByteArray &bytes, Format *format)
{
    mrvRegisterTextTypes();
    QDataStream checked(bytes);
    checked.setVersion(StreamVersion);
    checked >> *format;
    return checked.status() == QDataStream::Ok;
}

template<typename Format>
bool take(QDataStream &stream, Format *format)
{
    // Reading adds to what a format holds, so it needs a fresh one, which also tells its type.
    Format read;
    // The stored form has its own byte order, whatever stream it lies in.
    const QDataStream::ByteOrder order = stream.byteOrder();
    stream.setByteOrder(QDataStream::BigEndian);
    const QByteArray bytes = MRVVariantGuard::take(stream, form(read.type()));
    stream.setByteOrder(order);
    if (bytes.isEmpty()) {
        return false;
    }
    if (!decode(bytes, &read)) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return false;
    }
    *format = read;
    return true;
}

template<typename Format>
Format restore(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    Format format;
    MRVVariantGuard::Rest rest;
    const QByteArray known = MRVVariantGuard::takeFormat(stream, form(format.type()), &rest);
    if (known.isEmpty() || !decode(known, &format)) {
        return Format();
    }
    if (rest.properties > 0) {
        QByteArray unread(sizeof(quint32), '\0');
        qToBigEndian(rest.properties, unread.data());
        format.setProperty(MRVTextFormat::UnreadProperty, unread + rest.bytes);
    }
    return format;
}

} // namespace

void mrvRegisterTextTypes()
{
    static const bool registered = registerTextTypes();
    Q_UNUSED(registered)
}

QByteArray MRVTextFormat::toByteArray(const QTextCharFormat &format)
{
    return store(format);
}

QByteArray MRVTextFormat::toByteArray(const QTextBlockFormat &format)
{
    return store(format);
}

QTextCharFormat MRVTextFormat::toCharFormat(const QByteArray &bytes)
{
    return restore<QTextCharFormat>(bytes);
}

QTextBlockFormat MRVTextFormat::toBlockFormat(const QByteArray &bytes)
{
    return restore<QTextBlockFormat>(bytes);
}

void MRVTextFormat::registerStoredType(int type)
{
    MRVVariantGuard::registerType(type);
}

bool MRVTextFormat::read(QDataStream &stream, QTextCharFormat *format)
{
    return take(stream, format);
}

bool MRVTextFormat::read(QDataStream &stream, QTextBlockFormat *format)
{
    return take(stream, format);
}

QTextCharFormat MRVTextFormat::toCharFormat(const QVariant &value)
{
    return toCharFormat(value.toByteArray());
}

QTextBlockFormat MRVTextFormat::toBlockFormat(const QVariant &value)
{
    return toBlockFormat(value.toByteArray());
}
