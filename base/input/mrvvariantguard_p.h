#pragma once

#include "input/mrvvariantguard.h"

#include "core/mrvcheckedstream.h"
#include "core/mrvinputlimits.h"

#include <QByteArray>
#include <QDataStream>
#include <QTextFormat>
#include <QtEndian>

/**
 * Moves one value from a stream to a byte array, by tables of the types that its form may hold.
 * Each function takes one thing and returns false where it is not there whole, or not as Qt writes
 * it.
 */
class MRVVariantWalker
{
public:
    MRVVariantWalker(QDataStream *stream, MRVVariantGuard::Form form)
        : m_stream(stream)
        , m_in(stream)
        , m_form(1u << form)
    {
    }

    bool variant();
    bool format(QTextFormat::FormatType expected);
    bool item();

    /** See MRVVariantGuard::registerType(). */
    static void registerType(int type);

    const QByteArray &taken() const { return m_taken; }
    /** Whether a type that this process does not know ended the walk. */
    bool isUnknown() const { return m_isUnknown; }
    /** Of a format of which not all was taken: the whole properties, and the bytes after them. */
    QByteArray wholeProperties() const;
    MRVVariantGuard::Rest rest() const;

private:
    using Step = bool (MRVVariantWalker::*)();
    struct TypeRow
    {
        int type;
        uint forms;
        quint32 size; ///< of the value where that is fixed, else 0
        Step step;
    };
    struct UserTypeRow
    {
        const char *name;
        uint forms;
        quint32 size;
        Step step;
    };
    static const TypeRow Types[];
    static const UserTypeRow UserTypes[];

    bool isItem() const { return m_form == 1u << MRVVariantGuard::DropItem; }
    bool skip(quint32 size) { return m_in.readRaw(size, &m_taken); }
    template<typename Number>
    bool read(Number *number);
    bool count(quint32 *items, int leastSize);
    template<typename Enum>
    bool enumerator(Enum last);
    template<typename TakeItem>
    bool items(int leastSize, const TakeItem &takeItem);
    template<typename TakeValue>
    bool nested(const TakeValue &takeValue);

    bool bytes();
    bool text();
    bool bits();
    bool texts();
    bool byteArrays();
    bool list();
    bool map();
    bool userValue();
    bool dateTime();
    bool zonedDateTime();
    bool font();
    bool wholeFont();
    bool regExp();
    bool regularExpression();
    bool json();
    bool cbor();
    bool picture();
    bool cursor();
    bool icon();
    bool iconPicture();
    bool region();
    bool palette();
    bool anyFormat();
    bool applicationValue(const QByteArray &name);
    template<quint32 size>
    bool rows();
    quint32 numberAt(int offset) const;
    void setNumberAt(int offset, quint32 number);
    bool property();
    bool color();
    bool brush();
    bool gradient(quint8 style);
    bool gradientStop();
    bool pen();
    bool length();
    bool tab();
    bool listLevel();
    bool image();
    bool png(qint64 *memory);
    bool decodes(int start) const;

    // The length of no text.
    static constexpr quint32 NullLength = 0xffffffff;
    // The bytes that each takes at least, with an empty value.
    static constexpr int LeastText = 4;
    static constexpr int LeastVariant = 4;
    static constexpr int LeastProperty = 9;

    QDataStream *m_stream;
    MRVCheckedStream m_in;
    uint m_form;
    QByteArray m_taken;
    qint64 m_pictureMemory = 0; ///< what the pictures so far take when decoded
    int m_depth = 0;
    int m_wholeEnd = 0; ///< of the format's properties that were taken whole
    quint32 m_propertyCount = 0; ///< of the format
    quint32 m_wholeCount = 0; ///< of those
    bool m_isUnknown = false;
};

template<typename Number>
bool MRVVariantWalker::read(Number *number)
{
    const int at = m_taken.size();
    if (!skip(sizeof(Number))) {
        return false;
    }
    const char *stored = m_taken.constData() + at;
    *number = m_stream->byteOrder() == QDataStream::BigEndian ? qFromBigEndian<Number>(stored)
                                                              : qFromLittleEndian<Number>(stored);
    return true;
}

// An enumerator from 0 to last, stored as an int.
template<typename Enum>
bool MRVVariantWalker::enumerator(Enum last)
{
    quint32 value = 0;
    return read(&value) && value <= quint32(last);
}

template<typename TakeItem>
bool MRVVariantWalker::items(int leastSize, const TakeItem &takeItem)
{
    quint32 left = 0;
    if (!count(&left, leastSize)) {
        return false;
    }
    while (left > 0 && takeItem()) {
        --left;
    }
    return left == 0;
}

template<typename TakeValue>
bool MRVVariantWalker::nested(const TakeValue &takeValue)
{
    if (m_depth == MRVInputLimits::VariantDepth) {
        return false;
    }
    ++m_depth;
    const bool isTaken = takeValue();
    --m_depth;
    return isTaken;
}

template<quint32 size>
bool MRVVariantWalker::rows()
{
    return items(size, [this] { return skip(size); });
}
