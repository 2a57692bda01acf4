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
// Beyond that, the file must have a byte for so many pixels: one-bit pixels of one colour, at the
// best ratio that deflate reaches (1032 to 1).
constexpr qint64 PixelsPerByte = 8 * 1032;
// And no picture is larger than this (1 GiB of memory).
constexpr qint64 MaxPixels = qint64(1) << 28;

constexpr int MaxIconSide = 256;

bool isPlausible(const QSize &size, qint64 byteCount)
{
    // A bitmap that is stored upside down has a negative height.
    const qint64 pixels = qAbs(qint64(size.width()) * size.height());
    return pixels <= AlwaysDecodedPixels
        || (pixels <= MaxPixels && pixels / PixelsPerByte <= byteCount);
}

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

// The sizes that the pictures of an icon file claim by themselves: QImageReader::size() tells what
// its directory says, which the decoder does not go by.
QVector<QSize> iconSizes(const QByteArray &bytes)
{
    constexpr qint64 DirectoryStart = 6;
    constexpr qint64 EntryBytes = 16;
    constexpr qint64 HeaderBytes = 24; // of a PNG as far as its height; a bitmap's need fewer
    const auto *data = reinterpret_cast<const uchar *>(bytes.constData());
    QVector<QSize> sizes;
    if (bytes.size() < DirectoryStart) {
        return sizes;
    }
    const int count = qFromLittleEndian<quint16>(data + 4);
    for (int i = 0; i < count && DirectoryStart + (i + 1) * EntryBytes <= bytes.size(); ++i) {
        const qint64 start =
            qFromLittleEndian<quint32>(data + DirectoryStart + i * EntryBytes + 12);
        if (start + HeaderBytes > bytes.size()) {
            continue;
        }
        const uchar *header = data + start;
        if (bytes.mid(int(start), 4) == "\x89PNG") {
            sizes << QSize(qFromBigEndian<qint32>(header + 16),
                           qFromBigEndian<qint32>(header + 20));
        } else {
            // Twice the height, for the mask below the picture.
            sizes << QSize(qFromLittleEndian<qint32>(header + 4),
                           qFromLittleEndian<qint32>(header + 8) / 2);
        }
    }
    return sizes;
}

// The size that an XBM text claims in its first two definitions; invalid where the bytes are no
// such text. Qt's reader decodes the whole picture merely to find out whether it is one.
QSize bitmapTextSize(const QByteArray &bytes)
{
    const int at = bytes.startsWith("#define") ? 0 : bytes.indexOf("\n#define") + 1;
    if ((at == 0 && !bytes.startsWith('#')) || bytes.left(at).contains('\0')) {
        return QSize();
    }
    int numbers[2] = {-1, -1};
    int lineStart = at;
    for (int &number : numbers) {
        const int lineEnd = bytes.indexOf('\n', lineStart);
        if (lineEnd < 0) {
            return QSize();
        }
        const QList<QByteArray> words =
            bytes.mid(lineStart, lineEnd - lineStart).simplified().split(' ');
        number = words.value(2).toInt();
        lineStart = lineEnd + 1;
    }
    return QSize(numbers[0], numbers[1]);
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
    if (!isPlausible(bitmapTextSize(bytes), bytes.size())) {
        return QImage();
    }
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    // The hint is for formats without a signature only: with a wrong one the reader would not look
    // at the contents.
    const QByteArray known = QImageReader::imageFormat(&buffer);
    QImageReader reader(&buffer, known.isEmpty() ? format : nullptr);
    reader.setAutoTransform(true);
    if (!reader.canRead() || !isPlausible(reader.size(), bytes.size())) {
        return QImage();
    }
    if (isIcon(known.isEmpty() ? QByteArray(format) : known)) {
        for (const QSize &size : iconSizes(bytes)) {
            if (!isPlausible(size, bytes.size())) {
                return QImage();
            }
        }
    }
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
