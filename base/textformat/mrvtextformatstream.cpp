#include "textformat/mrvtextformat.h"

#include "textformat/mrvlistlevel.h"
#include "textformat/mrvtextformat_p.h"
#include "textformat/mrvtextformatreader_p.h"

#include <QDataStream>
#include <QIODevice>
#include <QLoggingCategory>
#include <QMetaType>
#include <QTextOption>

namespace {

Q_LOGGING_CATEGORY(lcText, "mrv.text")

// By name, so that stored formats stay the same under a newer Qt.
constexpr int StreamVersion = QDataStream::Qt_5_15;

// Position, type as quint32, delimiter. mrvIsReadableFormat() knows this layout.
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

QByteArray write(const QTextFormat &format)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    stream << format;
    return bytes;
}

// The order of a hash differs in every process; the order of a map does not.
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
    default:
        return value;
    }
}

QTextFormat ordered(QTextFormat format)
{
    const QMap<int, QVariant> properties = format.properties();
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        const int type = it.value().userType();
        if (type == QMetaType::QVariantHash || type == QMetaType::QVariantMap
            || type == QMetaType::QVariantList) {
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
        if (mrvIsReadableFormat(write(firstProperties(format, count)), format.type())) {
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

QByteArray store(const QTextFormat &unordered)
{
    mrvRegisterTextTypes();
    const QTextFormat format = ordered(unordered);
    const QByteArray bytes = write(format);
    if (mrvIsReadableFormat(bytes, format.type())) {
        return bytes;
    }

    QTextFormat readable = format;
    const QMap<int, QVariant> properties = format.properties();
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        QTextFormat single(format.type());
        single.setProperty(it.key(), it.value());
        if (mrvIsReadableFormat(write(single), format.type())) {
            continue;
        }
        qCWarning(lcText, "Property 0x%x of type %s cannot be stored and is left out",
                  uint(it.key()), it.value().typeName());
        readable.clearProperty(it.key());
    }
    return storeFirst(readable);
}

template<typename Format>
Format restore(const QByteArray &bytes, QTextFormat::FormatType type)
{
    if (!mrvIsReadableFormat(bytes, type)) {
        return Format();
    }
    mrvRegisterTextTypes();
    QDataStream stream(bytes);
    stream.setVersion(StreamVersion);
    // Reading adds to what a format holds, so it needs a fresh one.
    Format format;
    stream >> format;
    return stream.status() == QDataStream::Ok && format.type() == type ? format : Format();
}

// Only its bytes tell how long the next format is. So ever larger pieces of the stream are examined
// instead of all that follows, which a scheme of many presets would copy once for each of them.
template<typename Format>
bool take(QDataStream &stream, QTextFormat::FormatType type, Format *format)
{
    QIODevice *device = stream.device();
    if (stream.status() != QDataStream::Ok || !device) {
        return false;
    }
    const qint64 available = device->bytesAvailable();
    for (qint64 size = 1024;; size *= 4) {
        const QByteArray piece = device->peek(qMin(size, available));
        const qint64 length = mrvReadableFormatLength(piece, type);
        if (length >= 0) {
            stream.skipRawData(int(length));
            *format = restore<Format>(piece.left(int(length)), type);
            return true;
        }
        if (size >= available) {
            stream.setStatus(QDataStream::ReadCorruptData);
            return false;
        }
    }
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
    return restore<QTextCharFormat>(bytes, QTextFormat::CharFormat);
}

QTextBlockFormat MRVTextFormat::toBlockFormat(const QByteArray &bytes)
{
    return restore<QTextBlockFormat>(bytes, QTextFormat::BlockFormat);
}

bool MRVTextFormat::read(QDataStream &stream, QTextCharFormat *format)
{
    return take(stream, QTextFormat::CharFormat, format);
}

bool MRVTextFormat::read(QDataStream &stream, QTextBlockFormat *format)
{
    return take(stream, QTextFormat::BlockFormat, format);
}

QTextCharFormat MRVTextFormat::toCharFormat(const QVariant &value)
{
    return toCharFormat(value.toByteArray());
}

QTextBlockFormat MRVTextFormat::toBlockFormat(const QVariant &value)
{
    return toBlockFormat(value.toByteArray());
}
