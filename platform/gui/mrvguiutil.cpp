#include "gui/mrvguiutil.h"

#include <QBuffer>
#include <QColorSpace>
#include <QCryptographicHash>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <QPixmap>
#include <QtEndian>

#include <cmath>

namespace {

// A picture of up to this many pixels is decoded whatever its file's length (128 MiB of memory).
constexpr qint64 AlwaysDecodedPixels = qint64(1) << 25;
// Beyond that, the file must have a byte for so many pixels: one-bit pixels of one colour, at the best
// ratio that deflate reaches (1032 to 1).
constexpr qint64 PixelsPerByte = 8 * 1032;
// And no picture is larger than this (1 GiB of memory).
constexpr qint64 MaxPixels = qint64(1) << 28;

bool isPlausible(const QSize &size, qint64 byteCount)
{
    const qint64 pixels = qint64(size.width()) * size.height();
    return pixels <= AlwaysDecodedPixels
        || (pixels <= MaxPixels && pixels / PixelsPerByte <= byteCount);
}

bool hasTransparency(const QByteArray &format)
{
    static constexpr const char *Opaque[] = {"BMP", "JPEG", "JPG",  "PBM",
                                             "PGM", "PPM",  "WBMP", "XBM"};
    for (const char *name : Opaque) {
        if (format.compare(name, Qt::CaseInsensitive) == 0)
            return false;
    }
    return true;
}

QImage onWhite(const QImage &image)
{
    QImage flat(image.size(), QImage::Format_RGB32);
    if (flat.isNull())
        return flat;
    flat.fill(Qt::white);
    flat.setDotsPerMeterX(image.dotsPerMeterX());
    flat.setDotsPerMeterY(image.dotsPerMeterY());
    flat.setColorSpace(image.colorSpace());
    QPainter painter(&flat);
    painter.drawImage(flat.rect(), image);
    return flat;
}

// Pixels in a layout that does not depend on the machine. Eight bits a channel where they hold the
// picture without loss, so that a deep format alone does not change an id.
QImage canonicalPixels(const QImage &image)
{
    const QImage shallow = image.convertToFormat(QImage::Format_RGBA8888);
    switch (image.format()) {
    case QImage::Format_BGR30:
    case QImage::Format_A2BGR30_Premultiplied:
    case QImage::Format_RGB30:
    case QImage::Format_A2RGB30_Premultiplied:
    case QImage::Format_RGBX64:
    case QImage::Format_RGBA64:
    case QImage::Format_RGBA64_Premultiplied:
    case QImage::Format_Grayscale16:
        break;
    default:
        return shallow;
    }
    const QImage deep = image.convertToFormat(QImage::Format_RGBA64);
    return shallow.convertToFormat(QImage::Format_RGBA64) == deep ? shallow : deep;
}

} // namespace

QString MRVGuiUtil::resourceId(const QImage &image)
{
    if (image.isNull())
        return QString();
    const QImage pixels = canonicalPixels(image);
    if (pixels.isNull())
        return QString();

    const quint32 header[] = {qToBigEndian(quint32(pixels.width())),
                              qToBigEndian(quint32(pixels.height())),
                              qToBigEndian(quint32(pixels.depth()))};
    // Guards against accident rather than forgery, at a sixth of the time that SHA-256 takes.
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(reinterpret_cast<const char *>(header), sizeof header);
    const int rowLength = pixels.width() * (pixels.depth() / 8);
    for (int y = 0; y < pixels.height(); ++y)
        hash.addData(reinterpret_cast<const char *>(pixels.constScanLine(y)), rowLength);
    return QLatin1String("img-") + QString::fromLatin1(hash.result().toHex());
}

QImage MRVGuiUtil::toImage(const QByteArray &bytes, const char *format)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    // The hint is for formats without a signature only: with a wrong one the reader would not look
    // at the contents.
    const bool isKnown = !QImageReader::imageFormat(&buffer).isEmpty();
    QImageReader reader(&buffer, isKnown ? nullptr : format);
    reader.setAutoTransform(true);
    if (!reader.canRead() || !isPlausible(reader.size(), bytes.size()))
        return QImage();
    return reader.read();
}

QImage MRVGuiUtil::toImage(const QVariant &variant, const char *format)
{
    switch (variant.userType()) {
    case QMetaType::QImage:
        return variant.value<QImage>();
    case QMetaType::QPixmap:
        return variant.value<QPixmap>().toImage();
    case QMetaType::QByteArray:
        return toImage(variant.toByteArray(), format);
    default:
        return QImage();
    }
}

QByteArray MRVGuiUtil::toByteArray(const QImage &image, const char *format, int quality)
{
    // An empty format would make the writer guess from a file name that a buffer does not have.
    if (image.isNull() || !format || !*format)
        return QByteArray();
    const bool needsPaper = image.hasAlphaChannel() && !hasTransparency(format);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    if (!writer.write(needsPaper ? onWhite(image) : image))
        return QByteArray();
    return buffer.data();
}

QColor MRVGuiUtil::textColorForBackground(const QColor &background)
{
    if (!background.isValid())
        return Qt::black;
    const QColor color = background.toRgb();
    const double alpha = color.alphaF();
    const auto linear = [alpha](double channel) {
        const double c = channel * alpha + (1.0 - alpha);
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    const double luminance = 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
    const double contrastToBlack = (luminance + 0.05) / 0.05;
    const double contrastToWhite = 1.05 / (luminance + 0.05);
    return contrastToWhite > contrastToBlack ? Qt::white : Qt::black;
}
