#pragma once

#include <QByteArray>

/**
 * Follows one value in CBOR (RFC 8949) as Qt writes it: with a length for each text, array and map,
 * which is there.
 */
class MRVCborCheck
{
public:
    explicit MRVCborCheck(const QByteArray &bytes)
        : m_bytes(bytes)
    {
    }

    /** Whether the bytes are one value, nested as deeply as MRVInputLimits::VariantDepth allows. */
    bool isWhole() { return value(0) && m_position == m_bytes.size(); }

private:
    bool argument(int additional, quint64 *number);
    bool value(int depth);

    const QByteArray &m_bytes;
    int m_position = 0;
};
