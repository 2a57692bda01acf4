#include "textformat/mrvtextformat.h"

#include "core/mrvcoreutil.h"
#include "gui/mrvguiutil.h"
#include "gui/mrvpicturereader.h"
#include "input/mrvguardeddocument.h"
#include "util/mrvfailure.h"

#include <QFile>
#include <QFileInfo>
#include <QTextDocument>
#include <QUrl>

namespace {

constexpr int JpegQuality = 100;
constexpr int DefaultQuality = -1;

bool isSameFile(const QString &a, const QString &b)
{
    // Empty where there is no file.
    const QString canonical = QFileInfo(a).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(b).canonicalFilePath();
}

// The encoded bytes of an image where a file of this suffix may hold them; else empty.
QByteArray rawDataOfType(const QTextImageFormat &format, const QString &suffix)
{
    const QByteArray raw = MRVTextFormat::imageRawData(format);
    const bool isOfType = !raw.isEmpty()
        && QLatin1String(MRVPictureReader::formatOf(raw)).compare(suffix, Qt::CaseInsensitive) == 0;
    return isOfType ? raw : QByteArray();
}

QByteArray bytesOfFile(const QString &path)
{
    return QFileInfo(path).isFile() ? MRVCoreUtil::ReadBinaryFile(path) : QByteArray();
}

} // namespace

QString MRVTextFormat::imageName(const QTextImageFormat &format)
{
    return format.hasProperty(ImageNameProperty) ? format.stringProperty(ImageNameProperty)
                                                 : imageResourceId(format);
}

QString MRVTextFormat::imageType(const QTextImageFormat &format, const char *defaultType)
{
    if (format.hasProperty(ImageTypeProperty)) {
        return format.stringProperty(ImageTypeProperty);
    }
    return QString::fromLatin1(defaultType ? defaultType : "PNG");
}

QString MRVTextFormat::imageLink(const QTextImageFormat &format)
{
    return format.stringProperty(ImageLinkProperty);
}

QByteArray MRVTextFormat::imageRawData(const QTextImageFormat &format)
{
    return format.property(ImageRawDataProperty).toByteArray();
}

QString MRVTextFormat::imageResourceId(const QTextImageFormat &format)
{
    return format.stringProperty(QTextFormat::ImageName);
}

QString MRVTextFormat::imageResourceId(const QImage &image)
{
    return MRVGuiUtil::resourceId(image);
}

QImage MRVTextFormat::image(const QTextDocument &document, const QTextImageFormat &format)
{
    return MRVGuardedDocument::picture(document, QUrl(imageResourceId(format)));
}

QByteArray MRVTextFormat::imageFileBytes(const QString &fileName, const QTextImageFormat &format,
                                         const QImage &image)
{
    const QString suffix = QFileInfo(fileName).suffix();
    const QString link = imageLink(format);
    QByteArray bytes = QFileInfo(link).suffix() == suffix ? bytesOfFile(link) : QByteArray();
    const QString type = suffix.toUpper();
    const bool jpeg = type == QLatin1String("JPEG") || type == QLatin1String("JPG");
    if (bytes.isEmpty() && jpeg) {
        bytes = imageRawData(format);
    }
    if (bytes.isEmpty()) {
        bytes = MRVGuiUtil::toByteArray(image, type.toLatin1().constData(),
                                        jpeg ? JpegQuality : DefaultQuality);
    }
    return bytes.isEmpty() ? rawDataOfType(format, suffix) : bytes; // Qt writes no GIF
}

bool MRVTextFormat::exportImageFormat(const QString &fileName, const QTextImageFormat &format,
                                      const QImage &image, MRVErrorSink error)
{
    if (fileName.isEmpty()) {
        return MRV::fail(error, tr("The picture has no file name."));
    }
    const QString link = imageLink(format);
    const bool linked = !link.isEmpty() && QFileInfo(link).isFile();
    // Removing the target would destroy the picture's only copy.
    if (linked && isSameFile(link, fileName)) {
        return true;
    }
    // Deliberate: removed before anything is written, so that a failure leaves no stale file.
    if (QFile::exists(fileName)) {
        QFile::remove(fileName);
    }

    const QByteArray bytes = imageFileBytes(fileName, format, image);
    if (bytes.isEmpty()) {
        return MRV::fail(error, MRVErrorKind::Unsupported,
                         tr("The picture cannot be encoded for the file \"%1\".").arg(fileName));
    }
    return MRVCoreUtil::WriteBinaryFile(bytes, fileName, error);
}
