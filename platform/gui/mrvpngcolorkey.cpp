#include "gui/mrvpngcolorkey_p.h"

#include "gui/mrvpicturebytes_p.h"

#include <QRgba64>

namespace {

// Of a PNG file, in bytes: the signature, the header chunk with its data, and what each chunk has
// around its data.
constexpr qint64 Signature = 8;
constexpr qint64 HeaderData = Signature + 8;
constexpr qint64 ChunkFrame = 12;

bool isDeepRgb(const MRVPictureBytes &file)
{
    constexpr int Rgb = 2;
    return file.byte(HeaderData + 8) == 16 && file.byte(HeaderData + 9) == Rgb;
}

} // namespace

MRVPngColorKey MRVPngColorKey::takenFrom(QByteArray *bytes)
{
    MRVPngColorKey key;
    if (!isDeepRgb(MRVPictureBytes(*bytes))) {
        return key;
    }
    const MRVPictureBytes file(*bytes);
    QByteArray kept = bytes->left(int(Signature));
    qint64 at = Signature;
    for (qint64 length = 0; !file.matches(at + 4, "IDAT"); at += length) {
        length = ChunkFrame + file.big<quint32>(at);
        if (!file.holds(at, length)) {
            break;
        }
        if (!file.matches(at + 4, "tRNS")) {
            kept += bytes->mid(int(at), int(length));
        } else if (!key.m_isSet && length == ChunkFrame + 6) {
            // Of several, libpng takes the first.
            key.m_isSet = true;
            key.m_red = file.big<quint16>(at + 8);
            key.m_green = file.big<quint16>(at + 10);
            key.m_blue = file.big<quint16>(at + 12);
        }
    }
    *bytes = kept + bytes->mid(int(at));
    return key;
}

QImage MRVPngColorKey::appliedTo(const QImage &image) const
{
    if (!m_isSet || image.isNull()) {
        return image;
    }
    QImage keyed = image.convertToFormat(QImage::Format_RGBA64);
    for (int y = 0; y < keyed.height(); ++y) {
        auto *line = reinterpret_cast<QRgba64 *>(keyed.scanLine(y));
        for (int x = 0; x < keyed.width(); ++x) {
            const QRgba64 pixel = line[x];
            if (pixel.red() == m_red && pixel.green() == m_green && pixel.blue() == m_blue) {
                line[x].setAlpha(0);
            }
        }
    }
    return keyed;
}
