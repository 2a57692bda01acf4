#include "exchange/mrvcheckedstream_p.h"

#include <QtEndian>

namespace {
constexpr quint32 NullLength = 0xffffffff;
constexpr quint32 MaxLength = 0x7fffff00; // what a QByteArray holds
} // namespace

bool mrvReadRaw(QDataStream &stream, quint32 size, QByteArray *bytes)
{
    constexpr quint32 Block = 1 << 14;
    char block[Block];
    while (size > 0 && stream.status() == QDataStream::Ok) {
        const int part = int(qMin(size, Block));
        if (stream.readRawData(block, part) < part) {
            stream.setStatus(QDataStream::ReadPastEnd);
            return false;
        }
        bytes->append(block, part);
        size -= quint32(part);
    }
    return stream.status() == QDataStream::Ok;
}

bool mrvReadBytes(QDataStream &stream, QByteArray *bytes)
{
    quint32 size = 0;
    stream >> size;
    bytes->clear();
    if (stream.status() != QDataStream::Ok || size == NullLength) {
        return stream.status() == QDataStream::Ok;
    }
    if (size > MaxLength) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return false;
    }
    *bytes = QByteArray(""); // empty and not null
    return mrvReadRaw(stream, size, bytes);
}

bool mrvReadString(QDataStream &stream, QString *text)
{
    QByteArray bytes;
    text->clear();
    if (!mrvReadBytes(stream, &bytes)) {
        return false;
    }
    if (bytes.size() % 2 != 0) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return false;
    }
    if (bytes.isNull()) {
        return true;
    }
    *text = QString(bytes.size() / 2, Qt::Uninitialized);
    const bool isBig = stream.byteOrder() == QDataStream::BigEndian;
    for (int i = 0; i < text->size(); ++i) {
        const char *at = bytes.constData() + 2 * i;
        (*text)[i] = QChar(isBig ? qFromBigEndian<quint16>(at) : qFromLittleEndian<quint16>(at));
    }
    return true;
}
