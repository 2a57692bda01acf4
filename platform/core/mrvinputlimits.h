#pragma once

#include <QtGlobal>

/**
 * What the library accepts of bytes that it did not write itself. Each limit is far above normal
 * use; input beyond one is refused with an error, never cut.
 *
 * @since 1.0
 */
struct MRVInputLimits
{
    // Files.
    /** Qt 5 counts bytes in an int, and its arrays double as they grow. */
    static constexpr qint64 FileBytes = qint64(1) << 30;
    /** A codec makes up to three characters of a byte, and QString holds fewer than 2^30. */
    static constexpr qint64 TextFileBytes = qint64(1) << 28;

    // Streams and variants.
    /** QByteArray holds 2^31 bytes less its header; a longer one never was written. */
    static constexpr quint32 StreamBytes = 0x7fffff00;
    /** Lists and maps in each other: Qt reads them by recursion. */
    static constexpr int VariantDepth = 32;
    /** Qt appends the properties of a format in quadratic time. */
    static constexpr quint32 FormatProperties = 4096;
    /** Qt inserts the stops of a gradient in quadratic time. */
    static constexpr quint32 GradientStops = 4096;
    /** Four keys with all modifiers need far fewer characters; Qt reads longer ones slowly. */
    static constexpr int KeyText = 1024;

    // Pictures.
    /** What the pictures of one dropped note may take when decoded; a wall poster takes 200 MB. */
    static constexpr qint64 PictureMemory = 512 << 20;
    /** The same of a text format, which holds small textures: this much in any case ... */
    static constexpr qint64 FormatPictureMemory = 8 << 20;
    /** ... and more in proportion to its stored length. */
    static constexpr qint64 FormatPictureMemoryPerByte = 32;
    /** Deflate makes at most this many bytes of one; a picture that claims more is damaged. */
    static constexpr qint64 Inflation = 1032;

    // XML and HTML.
};
