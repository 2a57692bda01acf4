#include "gui/mrvpicturereader.h"

#include "core/mrvcoreutil.h"
#include "core/mrvinputlimits.h"
#include "gui/mrvpictureclaims_p.h"
#include "gui/mrvpngcolorkey_p.h"
#include "gui/mrvpngfault_p.h"
#include "gui/mrvsvgtext_p.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

namespace {

bool isSvg(const QByteArray &format)
{
    return format.startsWith("svg");
}

qint64 pixelsOf(const QSize &size)
{
    // A bitmap that is stored upside down has a negative height.
    return qAbs(qint64(size.width()) * size.height());
}

bool isPlausible(const QSize &claim, qint64 byteCount)
{
    const qint64 pixels = pixelsOf(claim);
    return pixels <= MRVInputLimits::PicturePixels
        || pixels / MRVInputLimits::PixelsPerByte <= byteCount;
}

// What a picture within an SVG takes; -1 where it must not be decoded.
qint64 memoryWithinSvg(const QByteArray &bytes)
{
    const QByteArray format = MRVPictureReader::formatOf(bytes);
    if (format.isEmpty() || isSvg(format)) {
        return -1;
    }
    const MRVPictureReader picture(bytes);
    return picture.isReadable() ? picture.memory() : -1;
}

} // namespace

MRVPictureReader::MRVPictureReader(const QByteArray &bytes, const char *format)
    : m_bytes(bytes)
    , m_format(formatOf(bytes))
{
    if (m_format.isEmpty() && format) {
        m_format = QByteArray(format).toLower();
    }
    m_error = refusal();
}

MRVPictureReader MRVPictureReader::ofFile(const QString &path)
{
    const QFileInfo file(path);
    MRVPictureReader refused;
    if (!file.exists()) {
        refused.m_error = {MRVErrorKind::NotFound, tr("it does not exist")};
    } else if (!file.isFile()) {
        refused.m_error = {MRVErrorKind::Other,
                           tr("it is not a regular file")}; // a pipe or a device would never end
    } else if (file.size() > MRVInputLimits::PictureFileBytes) {
        refused.m_error = {MRVErrorKind::TooLarge, tr("it is too large")};
    } else {
        MRVError error;
        // Some files of the kernel have a size of 0 and keep who reads them waiting.
        const QByteArray bytes =
            file.size() > 0 ? MRVCoreUtil::ReadBinaryFile(path, &error) : QByteArray();
        if (!error) {
            return MRVPictureReader(bytes, file.suffix().toLatin1().constData());
        }
        refused.m_error = {error.kind, tr("it cannot be opened")};
    }
    return refused;
}

QByteArray MRVPictureReader::formatOf(const QByteArray &bytes)
{
    constexpr char BitmapText[] = "xbm";
    for (const QSize &claim : mrvPictureClaims(bytes, BitmapText).sizes) {
        if (!isPlausible(claim, bytes.size())) {
            return BitmapText;
        }
    }
    QBuffer file;
    file.setData(bytes);
    file.open(QIODevice::ReadOnly);
    return QImageReader::imageFormat(&file);
}

// Why one claim of the picture is refused; no error where it is not.
MRVError MRVPictureReader::refusalOf(const QSize &claim, qint64 byteCount, int pixelBytes)
{
    const qint64 memory = pixelsOf(claim) * pixelBytes;
    m_memory = qMax(m_memory, memory);
    if (memory > MRVInputLimits::PictureBytes) {
        return {MRVErrorKind::TooLarge,
                tr("its %1 by %2 pixels are more than can be read")
                    .arg(claim.width())
                    .arg(claim.height())};
    }
    if (isPlausible(claim, byteCount)) {
        return {};
    }
    return {MRVErrorKind::Damaged,
            tr("it claims %1 by %2 pixels, which a file of its length does not hold")
                .arg(claim.width())
                .arg(claim.height())};
}

// Why the picture is refused. Each look at it is safe only when those before it found nothing.
MRVError MRVPictureReader::refusal()
{
    const MRVError unknown = {MRVErrorKind::Unsupported, tr("it is in no known picture format")};
    const MRVError damaged = {MRVErrorKind::Damaged, tr("it is damaged")};
    if (m_format.isEmpty() || m_format == "mng") {
        return unknown;
    }
    const qint64 byteCount = m_bytes.size();
    if (isSvg(m_format)) {
        MRVError reason = damaged;
        m_bytes = mrvGuardedSvg(m_bytes, memoryWithinSvg, &reason);
        if (m_bytes.isEmpty()) {
            return reason;
        }
        m_isDrawing = true;
    }
    const MRVPictureClaims claims = mrvPictureClaims(m_bytes, m_format);
    for (const QSize &claim : claims.sizes) {
        const MRVError reason = refusalOf(claim, byteCount);
        if (reason) {
            return reason;
        }
    }
    if (!claims.isComplete) {
        return {MRVErrorKind::Unsupported, tr("it is in a form that cannot be checked")};
    }
    if (claims.texts > MRVInputLimits::PictureTextBytes) {
        return {MRVErrorKind::TooLarge, tr("it holds too much compressed text")};
    }

    if (m_format == "png" && !mrvIsPngReadable(m_bytes, MRVPngPart::Head)) {
        return damaged;
    }

    QBuffer file(&m_bytes);
    file.open(QIODevice::ReadOnly);
    QImageReader reader(&file, m_format);
    reader.setAutoDetectImageFormat(false);
    if (!reader.canRead()) {
        return unknown;
    }
    // A bitmap that is stored from the top down has a negative height.
    m_size = QSize(reader.size().width(), qAbs(reader.size().height()));
    if (m_size.isEmpty() && claims.sizes.isEmpty()) {
        return {MRVErrorKind::Unsupported, tr("it does not tell its size")};
    }
    const int bits = QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel();
    const MRVError reason = refusalOf(m_size, byteCount, qMax(4, bits / 8));
    m_memory += claims.texts;
    m_orientation = reader.transformation();
    return reason;
}

QSize MRVPictureReader::uprightSize() const
{
    // Each orientation with a turn by 90 degrees has this bit (QImageIOHandler::Transformation).
    return m_orientation & QImageIOHandler::TransformationRotate90 ? m_size.transposed() : m_size;
}

// Decodes what was found safe; in its own size unless another one is valid.
QImage MRVPictureReader::decoded(const QSize &size, bool isUpright) const
{
    if (m_format == "png" && !mrvIsPngReadable(m_bytes, MRVPngPart::Whole)) {
        return QImage();
    }
    QByteArray bytes = m_bytes;
    MRVPngColorKey key;
    if (m_format == "png") {
        key = MRVPngColorKey::takenFrom(&bytes);
    }
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    QImageReader reader(&file, m_format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(isUpright);
    reader.setScaledSize(size);
    return key.appliedTo(reader.read());
}

QImage MRVPictureReader::read(MRVErrorSink error) const
{
    const QImage image = isReadable() ? decoded(QSize()) : QImage();
    if (image.isNull()) {
        error.set(isReadable() ? MRVError{MRVErrorKind::Damaged, tr("it is damaged")} : m_error);
    }
    return image;
}

bool MRVPictureReader::isOf(const QImage &image) const
{
    if (!isReadable() || image.isNull()) {
        return false;
    }
    // The layout of a pixmap, through which documents pass pictures on.
    const auto hasPixels = [&image](const QImage &decoded) {
        constexpr QImage::Format Layout = QImage::Format_ARGB32_Premultiplied;
        return decoded.convertToFormat(Layout) == image.convertToFormat(Layout);
    };
    const bool isTurned = m_orientation != QImageIOHandler::TransformationNone;
    return (image.size() == uprightSize() && hasPixels(decoded(QSize())))
        || (isTurned && image.size() == m_size && hasPixels(decoded(QSize(), false)));
}

QImage MRVPictureReader::draw(const QSize &bounds, MRVErrorSink error) const
{
    // Without a size, what it takes is not known.
    const bool isSmall = m_size.boundedTo(bounds) == m_size;
    const QSize size = isSmall ? m_size : m_size.scaled(bounds, Qt::KeepAspectRatio);
    if (!m_isDrawing || size.isEmpty()) {
        return read(error);
    }
    const QImage image = decoded(size);
    if (image.isNull()) {
        error.set({MRVErrorKind::Damaged, tr("it is damaged")});
    }
    return image;
}

MRVPictureReader::Png MRVPictureReader::png(const QByteArray &bytes)
{
    return MRVPng::walk(bytes);
}
