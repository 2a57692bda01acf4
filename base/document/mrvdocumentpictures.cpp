#include "document/mrvdocumentpictures.h"

#include "document/mtextdoc.h"
#include "input/mrvguardeddocument.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvfailure.h"
#include "util/mrvprogress.h"

#include "core/mrvcoreutil.h"
#include "gui/mrvguiutil.h"
#include "gui/mrvpicturereader.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFileInfo>
#include <QSet>
#include <QTextDocument>
#include <QTextImageFormat>
#include <QUrl>

#include <iterator>

namespace {

// The forms that every reading system has to show (EPUB 3.2, section 3.3), as browsers do.
constexpr struct
{
    MRVDocumentPicture::Type type;
    const char *format; // as Qt names it
    const char *mediaType;
    const char *suffix;
} types[] = {
    {MRVDocumentPicture::None, "", "", ""},
    {MRVDocumentPicture::Png, "png", "image/png", "png"},
    {MRVDocumentPicture::Jpeg, "jpeg", "image/jpeg", "jpg"},
    {MRVDocumentPicture::Gif, "gif", "image/gif", "gif"},
    {MRVDocumentPicture::Svg, "svg", "image/svg+xml", "svg"},
};

constexpr bool typesAreInOrder()
{
    for (int i = 0; i < int(std::size(types)); ++i) {
        if (types[i].type != i) {
            return false;
        }
    }
    return std::size(types) == MRVDocumentPicture::Svg + 1;
}
static_assert(typesAreInOrder());

MRVDocumentPicture::Type typeOf(const MRVPictureReader &look)
{
    if (look.isDrawing()) {
        return MRVDocumentPicture::Svg;
    }
    for (const auto &row : types) {
        if (look.isReadable() && look.format() == row.format) {
            return row.type;
        }
    }
    return MRVDocumentPicture::None;
}

qint64 changeTime(const QFileInfo &file)
{
    return file.lastModified().toMSecsSinceEpoch();
}

} // namespace

QString MRVDocumentPicture::mediaType() const
{
    return QLatin1String(types[m_type].mediaType);
}

QString MRVDocumentPicture::suffix() const
{
    return QLatin1String(types[m_type].suffix);
}

QByteArray MRVDocumentPicture::bytes(MRVErrorSink error) const
{
    if (m_file.isEmpty()) {
        return m_bytes;
    }
    const QFileInfo file(m_file);
    if (file.isFile() && file.size() == m_fileBytes && changeTime(file) == m_fileTime) {
        const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(m_file);
        if (bytes.size() == m_fileBytes) {
            return bytes;
        }
    }
    MRV::fail(error, MRVErrorKind::Changed, tr("its file has changed, or cannot be read any more"));
    return QByteArray();
}

MRVDocumentPicture MRVDocumentPicture::fromBytes(const QByteArray &bytes, MRVErrorSink error)
{
    return ofLook(MRVPictureReader(bytes), error);
}

// A picture in another form than those that browsers show becomes a PNG.
MRVDocumentPicture MRVDocumentPicture::ofLook(const MRVPictureReader &look, MRVErrorSink reason)
{
    MRVDocumentPicture picture;
    picture.m_type = typeOf(look);
    if (picture.m_type == None) {
        const QImage image = look.read(reason);
        return image.isNull() ? picture : ofPixels(image, reason);
    }
    picture.m_size = look.uprightSize();
    picture.m_bytes = look.bytes();
    // Guards against accident rather than forgery, at a fifth of the time that SHA-256 takes.
    picture.m_digest = QCryptographicHash::hash(picture.m_bytes, QCryptographicHash::Sha1);
    return picture;
}

MRVDocumentPicture MRVDocumentPicture::ofPixels(const QImage &image, MRVErrorSink reason)
{
    const QByteArray png = MRVGuiUtil::toByteArray(image, "PNG");
    if (png.isEmpty()) {
        MRV::fail(reason, MRVErrorKind::NotFound, tr("the document does not have it"));
        return MRVDocumentPicture();
    }
    return fromBytes(png, reason);
}

MRVDocumentPicture MRVDocumentPicture::fromFile(const QString &path, MRVErrorSink error)
{
    const QFileInfo file(path);
    const qint64 time = changeTime(file); // of a file that changes from here on, this is not it
    const MRVPictureReader look = MRVPictureReader::ofFile(path);
    MRVDocumentPicture picture = ofLook(look, error);
    picture.m_name = file.fileName();
    // Others are not the bytes of the file.
    if (picture.m_type != None && picture.m_type != Svg && typeOf(look) != None) {
        picture.m_file = path;
        picture.m_fileBytes = picture.m_bytes.size();
        picture.m_fileTime = time;
        picture.m_bytes.clear();
    }
    return picture;
}

MRVDocumentPicture MRVDocumentPicture::of(const QTextDocument &document,
                                          const QTextImageFormat &format, MRVErrorSink reason)
{
    const MRVPictureReader raw(MRVTextFormat::imageRawData(format));
    if (typeOf(raw) != None) {
        return ofLook(raw, reason);
    }
    const QVariant source =
        MRVGuardedDocument::pictureSource(document, QUrl(MRVTextFormat::imageResourceId(format)));
    if (source.userType() == QMetaType::QUrl) {
        return fromFile(source.toUrl().toLocalFile(), reason);
    }
    if (source.userType() == QMetaType::QByteArray) {
        return fromBytes(source.toByteArray(), reason);
    }
    const QImage image = MRVGuiUtil::toImage(source, nullptr);
    // The file may have changed since it was inserted: the document's picture is the one to show.
    const QString link = MRVTextFormat::imageLink(format);
    if (!image.isNull() && !link.isEmpty()) {
        const MRVPictureReader look = MRVPictureReader::ofFile(link);
        if (typeOf(look) != None && look.isOf(image)) {
            return fromFile(link, reason);
        }
    }
    return ofPixels(image, reason);
}

MRVDocumentPictures::MRVDocumentPictures(const QTextDocument &document, MRVProgressMeter *meter)
{
    QHash<QByteArray, int> digests;
    QSet<QString> ids;
    const QList<QTextImageFormat> formats = MTextDoc::imageFormats(document);
    if (meter) {
        meter->begin(500, formats.size());
    }
    for (const QTextImageFormat &format : formats) {
        if (meter && !meter->advance()) {
            return;
        }
        const QString id = MRVTextFormat::imageResourceId(format);
        if (ids.contains(id)) {
            continue;
        }
        ids.insert(id);
        MRVError reason;
        MRVDocumentPicture picture = MRVDocumentPicture::of(document, format, &reason);
        picture.m_name = MRVTextFormat::imageName(format);
        if (picture.type() == MRVDocumentPicture::None) {
            m_missing.append({id, picture.name(), reason.text, reason.kind});
            continue;
        }
        const auto known = digests.constFind(picture.digest());
        if (known != digests.constEnd()) {
            m_indexes.insert(id, *known);
            continue;
        }
        digests.insert(picture.digest(), m_all.size());
        m_indexes.insert(id, m_all.size());
        m_all.append(picture);
    }
}
