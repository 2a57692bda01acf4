#pragma once

#include "core/mrvcore_export.h"

#include <QByteArray>
#include <QDataStream>
#include <QString>

#include <type_traits>

/**
 * Reads what QDataStream writes where the bytes may be damaged.
 *
 * Qt's own operators reserve memory on the word of a length. These functions take at most twice
 * what was read, on sequential devices, too.
 *
 * Each returns whether its value was there whole. The first failure sets the stream's status, and
 * everything after it fails: after damage nobody knows where the next value begins. A value that
 * failed is empty or 0.
 *
 * @code
 * QFile file(QStringLiteral("names.bin"));
 * if (!file.open(QIODevice::ReadOnly)) {
 *     return;
 * }
 * QDataStream stream(&file);
 * stream.setVersion(MCoreType::StreamVersion);
 * MRVCheckedStream in(&stream);
 * QString name;
 * qint32 size = 0;
 * if (!in.read(&name) || !in.read(&size)) {
 *     qWarning("names.bin is damaged");
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVCORE_EXPORT MRVCheckedStream
{
public:
    /** @p stream outlives this object; its byte order and its status count. */
    explicit MRVCheckedStream(QDataStream *stream)
        : m_stream(stream)
    {
    }

    /** Whether nothing has failed yet; false without a device. */
    bool isOk() const { return m_stream->device() && m_stream->status() == QDataStream::Ok; }
    /** Marks the stream as corrupt, unless it has failed before. @return false */
    bool fail();

    /** The form of a QString: its length in bytes and its UTF-16 units, or no text at all. */
    bool read(QString *text);
    /** The form of a QByteArray, which QUrl and the names of types have, too. */
    bool read(QByteArray *bytes);
    /** An integer, a real or a boolean, with Qt's own operator. */
    template<typename Number>
    bool read(Number *number)
    {
        static_assert(std::is_arithmetic_v<Number>, "only numbers have a fixed size");
        *number = Number();
        if (isOk()) {
            *m_stream >> *number;
        }
        return isOk();
    }
    /** Appends @p size bytes to @p bytes; of a failure, none or some. */
    bool readRaw(quint32 size, QByteArray *bytes);
    /**
     * Reads into @p count the number of items that take @p leastSize bytes each or more. Of a
     * sequential device nobody knows what will still arrive, so there any count passes.
     */
    bool readCount(quint32 *count, int leastSize);
    /** The check of readCount(), of @p count and @p leastSize, for one that was read before. */
    bool checkCount(quint32 count, int leastSize);

private:
    template<typename Units>
    bool readUnits(quint32 count, Units *units);
    bool readLength(quint32 *length, bool *isNull);

    QDataStream *m_stream;
};
