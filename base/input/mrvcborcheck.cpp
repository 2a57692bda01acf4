#include "input/mrvcborcheck_p.h"

#include "core/mrvinputlimits.h"

namespace {

// The major types whose argument is not the value itself.
enum MajorType { Bytes = 2, Text = 3, Array = 4, Map = 5, Tag = 6 };

} // namespace

// The number in the head of a value: in its first byte, or in the 1, 2, 4 or 8 bytes after it.
bool MRVCborCheck::argument(int additional, quint64 *number)
{
    constexpr int OneByte = 24;
    constexpr int EightBytes = 27;
    *number = quint64(additional);
    if (additional < OneByte) {
        return true;
    }
    const int size = 1 << (additional - OneByte);
    if (additional > EightBytes || m_bytes.size() - m_position < size) {
        return false;
    }
    *number = 0;
    for (const int end = m_position + size; m_position < end; ++m_position) {
        *number = *number << 8 | uchar(m_bytes[m_position]);
    }
    return true;
}

bool MRVCborCheck::value(int depth)
{
    if (m_position == m_bytes.size() || depth == MRVInputLimits::VariantDepth) {
        return false;
    }
    const uchar head = uchar(m_bytes[m_position++]);
    quint64 number = 0;
    if (!argument(head & 0x1f, &number)) {
        return false;
    }
    const quint64 left = quint64(m_bytes.size() - m_position);
    switch (head >> 5) {
    case Bytes:
    case Text:
        m_position += number <= left ? int(number) : 0;
        return number <= left;
    case Tag:
        return value(depth + 1);
    case Array:
    case Map: {
        quint64 items = number <= left ? number * ((head >> 5) == Map ? 2 : 1) : left + 1;
        while (items <= left && items > 0 && value(depth + 1)) {
            --items;
        }
        return items == 0;
    }
    default:
        return true;
    }
}
