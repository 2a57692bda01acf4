#include "gui/mrvguiutil.h"

#include "gui/mrvpicturereader.h"

#include <QBuffer>
#include <QColorSpace>
#include <QCryptographicHash>
#include <QImageWriter>
#include <QPainter>
#include <QPixmap>
#include <QtEndian>

#include <cmath>

namespace {

constexpr int MaxIconSide = 256;

bool hasTransparency(const QByteArray &format)
{
    static constexpr const char *Opaque[] = {"BMP", "JPEG", "JPG",  "PBM",
                                             "PGM", "PPM",  "WBMP", "XBM"};
    for (const char *name : Opaque) {
        if (format.compare(name, Qt::CaseInsensitive) == 0) {
            return false;
        }
    }
    return true;
}

bool isIcon(const QByteArray &format)
{
    return format.compare("ICO", Qt::CaseInsensitive) == 0
        || format.compare("CUR", Qt::CaseInsensitive) == 0;
}

QImage onWhite(const QImage &image)
{
    QImage flat(image.size(), QImage::Format_RGB32);
    if (flat.isNull()) {
        return flat;
    }
    flat.fill(Qt::white);
    flat.setDotsPerMeterX(image.dotsPerMeterX());
    flat.setDotsPerMeterY(image.dotsPerMeterY());
    flat.setColorSpace(image.colorSpace());
    QPainter painter(&flat);
    painter.drawImage(flat.rect(), image);
    return flat;
}

// The layout of a pixmap, through which Qt passes pictures on, in an order of bytes that does not
// depend on the machine.
QImage canonicalPixels(const QImage &image)
{
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied)
        .convertToFormat(QImage::Format_RGBA8888_Premultiplied);
}

} // namespace

QString MRVGuiUtil::resourceId(const QImage &image)
{
    if (image.isNull()) {
        return QString();
    }
    const QImage pixels = canonicalPixels(image);
    if (pixels.isNull()) {
        return QString();
    }

    const quint32 header[] = {qToBigEndian(quint32(pixels.width())),
                              qToBigEndian(quint32(pixels.height()))};
    // Guards against accident rather than forgery, at a sixth of the time that SHA-256 takes.
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(reinterpret_cast<const char *>(header), sizeof header);
    const int rowLength = pixels.width() * (pixels.depth() / 8);
    for (int y = 0; y < pixels.height(); ++y) {
        hash.addData(reinterpret_cast<const char *>(pixels.constScanLine(y)), rowLength);
    }
    return QLatin1String("img-") + QString::fromLatin1(hash.result().toHex());
}

QImage MRVGuiUtil::toImage(const QByteArray &bytes, const char *format)
{
    return MRVPictureReader(bytes, format).read();
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
    if (image.isNull() || !format || !*format) {
        return QByteArray();
    }
    // The writer would shrink it without a word.
    if (isIcon(format) && qMax(image.width(), image.height()) > MaxIconSide) {
        return QByteArray();
    }
    const bool needsPaper = image.hasAlphaChannel() && !hasTransparency(format);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    if (!writer.write(needsPaper ? onWhite(image) : image)) {
        return QByteArray();
    }
    return buffer.data();
}

QColor MRVGuiUtil::textColorForBackground(const QColor &background)
{
    if (!background.isValid()) {
        return Qt::black;
    }
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
