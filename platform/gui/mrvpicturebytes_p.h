#pragma once

#include <QByteArray>
#include <QtEndian>

#include <cstring>

/**
 * Reads numbers at any place in bytes that were not checked: what lies outside of them is zero.
 */
class MRVPictureBytes
{
public:
    explicit MRVPictureBytes(const QByteArray &bytes)
        : m_data(bytes.constData())
        , m_size(bytes.size())
    {
    }

    qint64 size() const { return m_size; }
    bool holds(qint64 at, qint64 length) const
    {
        return at >= 0 && length >= 0 && length <= m_size && at <= m_size - length;
    }
    template<typename T>
    T big(qint64 at) const
    {
        return holds(at, sizeof(T)) ? qFromBigEndian<T>(m_data + at) : T(0);
    }
    template<typename T>
    T little(qint64 at) const
    {
        return holds(at, sizeof(T)) ? qFromLittleEndian<T>(m_data + at) : T(0);
    }
    quint8 byte(qint64 at) const { return big<quint8>(at); }
    /** Whether @p text stands there, without the zero that ends it. */
    template<int Size>
    bool matches(qint64 at, const char (&text)[Size]) const
    {
        return holds(at, Size - 1) && std::memcmp(m_data + at, text, Size - 1) == 0;
    }

private:
    const char *m_data;
    qint64 m_size;
};
