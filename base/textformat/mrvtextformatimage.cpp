#include "textformat/mrvtextformat.h"

#include "core/mrvcoreutil.h"
#include "gui/mrvguiutil.h"
#include "gui/mrvpicturereader.h"
#include "input/mrvguardeddocument.h"

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

bool copyFile(const QString &from, const QString &to)
{
    QString error;
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(from, &error);
    return error.isEmpty() && MRVCoreUtil::WriteBinaryFile(bytes, to);
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

bool MRVTextFormat::exportImageFormat(const QString &fileName, const QTextImageFormat &format,
                                      const QImage &image, QString *error)
{
    if (fileName.isEmpty()) {
        if (error) {
            *error = tr("The picture has no file name.");
        }
        return false;
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

    const QString suffix = QFileInfo(fileName).suffix();
    if (linked && QFileInfo(link).suffix() == suffix && copyFile(link, fileName)) {
        return true;
    }

    const QString lower = fileName.toLower();
    const bool jpeg =
        lower.endsWith(QLatin1String(".jpeg")) || lower.endsWith(QLatin1String(".jpg"));
    if (jpeg) {
        const QByteArray raw = imageRawData(format);
        if (!raw.isEmpty() && MRVCoreUtil::WriteBinaryFile(raw, fileName)) {
            return true;
        }
    }
    QByteArray bytes = MRVGuiUtil::toByteArray(image, suffix.toUpper().toLatin1().constData(),
                                               jpeg ? JpegQuality : DefaultQuality);
    if (bytes.isEmpty()) {
        bytes = rawDataOfType(format, suffix); // Qt writes no GIF
    }
    if (bytes.isEmpty() && error) {
        *error = tr("The picture cannot be encoded for the file \"%1\".").arg(fileName);
    }
    return !bytes.isEmpty() && MRVCoreUtil::WriteBinaryFile(bytes, fileName, error);
}
