#include "core/mrvcheckedstream.h"

#include "core/mrvinputlimits.h"

#include <QIODevice>
#include <QtEndian>

bool MRVCheckedStream::fail()
{
    m_stream->setStatus(QDataStream::ReadCorruptData);
    return false;
}

// Each step is as long as all before it, so that a length takes memory only as its bytes come.
template<typename Units>
bool MRVCheckedStream::readUnits(quint32 count, Units *units)
{
    constexpr quint32 FirstStep = 16 * 1024;
    constexpr int UnitSize = int(sizeof(*units->data()));
    while (count > 0 && isOk()) {
        const int before = units->size();
        const int step = int(qMin(count, qMax(FirstStep, quint32(before))));
        units->resize(before + step);
        char *target = reinterpret_cast<char *>(units->data() + before);
        if (m_stream->readRawData(target, step * UnitSize) != step * UnitSize) {
            m_stream->setStatus(QDataStream::ReadPastEnd);
        }
        count -= quint32(step);
    }
    return isOk();
}

bool MRVCheckedStream::readLength(quint32 *length, bool *isNull)
{
    constexpr quint32 NullLength = 0xffffffff;
    if (!read(length)) {
        return false;
    }
    *isNull = *length == NullLength;
    return *isNull || *length <= MRVInputLimits::StreamBytes || fail();
}

bool MRVCheckedStream::read(QString *text)
{
    quint32 length = 0;
    bool isNull = false;
    *text = QString();
    if (!readLength(&length, &isNull) || isNull) {
        return isOk();
    }
    if (length % sizeof(QChar) != 0) {
        return fail();
    }
    QString read = QString(QLatin1String("")); // empty and not null
    if (!readUnits(length / sizeof(QChar), &read)) {
        return false;
    }
    if (m_stream->byteOrder() == QDataStream::BigEndian) {
        qFromBigEndian<quint16>(read.constData(), read.size(), read.data());
    } else {
        qFromLittleEndian<quint16>(read.constData(), read.size(), read.data());
    }
    *text = read;
    return true;
}

bool MRVCheckedStream::read(QByteArray *bytes)
{
    quint32 length = 0;
    bool isNull = false;
    *bytes = QByteArray();
    if (!readLength(&length, &isNull) || isNull) {
        return isOk();
    }
    QByteArray read(""); // empty and not null
    if (!readUnits(length, &read)) {
        return false;
    }
    *bytes = read;
    return true;
}

bool MRVCheckedStream::readRaw(quint32 size, QByteArray *bytes)
{
    if (size > MRVInputLimits::StreamBytes - quint32(bytes->size())) {
        return fail();
    }
    return readUnits(size, bytes);
}

bool MRVCheckedStream::readCount(quint32 *count, int leastSize)
{
    if (read(count) && checkCount(*count, leastSize)) {
        return true;
    }
    *count = 0;
    return false;
}

bool MRVCheckedStream::checkCount(quint32 count, int leastSize)
{
    const QIODevice *device = m_stream->device();
    return isOk()
        && (device->isSequential() || qint64(count) * leastSize <= device->bytesAvailable()
            || fail());
}
