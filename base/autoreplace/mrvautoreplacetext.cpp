#include "autoreplace/mrvautoreplacetext_p.h"

#include <QDataStream>
#include <QString>
#include <QtEndian>

void mrvReadText(QDataStream &stream, QString *text)
{
    constexpr quint32 NullText = 0xFFFFFFFF;
    constexpr quint32 FirstStep = 16 * 1024;
    *text = QString();
    if (stream.status() != QDataStream::Ok) {
        return;
    }
    quint32 bytes = 0;
    stream >> bytes;
    if (stream.status() != QDataStream::Ok || bytes == NullText) {
        return;
    }
    if (bytes % 2 != 0) {
        stream.setStatus(QDataStream::ReadCorruptData);
        return;
    }
    QString read = QString(QLatin1String("")); // empty, not null
    for (quint32 left = bytes / 2; left > 0;) {
        const int before = read.size();
        const int step = int(qMin(left, qMax(FirstStep, quint32(before))));
        read.resize(before + step);
        QChar *units = read.data() + before;
        if (stream.readRawData(reinterpret_cast<char *>(units), step * 2) != step * 2) {
            stream.setStatus(QDataStream::ReadPastEnd);
            return;
        }
        if (stream.byteOrder() == QDataStream::BigEndian) {
            qFromBigEndian<quint16>(units, step, units);
        } else {
            qFromLittleEndian<quint16>(units, step, units);
        }
        left -= quint32(step);
    }
    *text = read;
}
