#include "gui/mrvpng.h"

#include "core/mrvinputlimits.h"
#include "gui/mrvpicturebytes_p.h"

namespace {

// Of a PNG's parts, in bytes.
constexpr qint64 PngSignature = 8;
constexpr qint64 PngChunkHead = 8; // length and type; a checksum follows the data
constexpr qint64 PngHeader = 13;

// libpng reads no longer sides, and with them no product here overflows.
constexpr qint64 MaxPngSide = 1000000;

// What libpng inflates of one chunk at most before it gives the chunk up.
constexpr qint64 MaxPngText = 8000000;

// The bits that a stored pixel takes, by the header chunk's data (ISO/IEC 15948, section 11.2.2);
// 0 for what no picture has.
qint64 pngPixelBits(const MRVPictureBytes &bytes, qint64 header)
{
    constexpr int channelsOfTypes[] = {1, 0, 3, 1, 2, 0, 4};
    const int depth = bytes.byte(header + 8);
    const int type = bytes.byte(header + 9);
    return type <= 6 && depth <= 16 ? depth * channelsOfTypes[type] : 0;
}

} // namespace

MRVPng MRVPng::walk(const QByteArray &bytes)
{
    const MRVPictureBytes file(bytes);
    const qint64 header = PngSignature + PngChunkHead;
    const qint64 width = file.big<qint32>(header);
    const qint64 height = file.big<qint32>(header + 4);
    const qint64 pixelBits = pngPixelBits(file, header);
    if (!file.matches(0, "\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR") || width <= 0 || width > MaxPngSide
        || height <= 0 || height > MaxPngSide || pixelBits == 0) {
        return MRVPng();
    }
    MRVPng png;
    png.size = QSize(int(width), int(height));

    qint64 compressed = 0;
    for (qint64 at = header + PngHeader + 4; file.holds(at, PngChunkHead + 4);) {
        const qint64 length = file.big<quint32>(at);
        const qint64 type = at + 4;
        at += PngChunkHead + length + 4;
        if (at > file.size() || file.matches(type, "IHDR")) {
            break;
        }
        if (file.matches(type, "IDAT")) {
            compressed += length;
        } else if (file.matches(type, "iCCP") || file.matches(type, "zTXt")
                   || file.matches(type, "iTXt")) {
            png.texts += qMin(length * MRVInputLimits::Inflation, MaxPngText);
        } else if (file.matches(type, "IEND")) {
            const qint64 stored = ((width * pixelBits + 7) / 8 + 1) * height;
            png.length = stored / MRVInputLimits::Inflation <= compressed ? at : -1;
            break;
        }
    }
    png.memory = width * height * (file.byte(header + 8) == 16 ? 8 : 4) + png.texts;
    return png;
}
