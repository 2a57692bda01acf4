#include "input/mrvguardeddocument.h"

#include "core/mrvinputlimits.h"
#include "gui/mrvguiutil.h"
#include "gui/mrvpicturereader.h"

#include <QFileInfo>
#include <QMetaMethod>
#include <QUrl>

namespace {

// With this type a document gives bytes as they are, where it decodes those of an image.
constexpr int UndecodedResource = QTextDocument::UserResource;
// With this one, a guarded document gives what it has, and loads nothing.
constexpr int HeldResource = UndecodedResource + 1;

// What a layout shows is asked for each time that it is drawn. In KiB: some photos of a screen.
constexpr int DecodedPictures = 256 << 10;

// The files that a document may open by itself for a URL: against its base, its own address, and
// the current folder.
QStringList localFiles(const QTextDocument &document, const QUrl &url)
{
    const QUrl resolved = document.baseUrl().resolved(url);
    const QUrl address(document.metaInformation(QTextDocument::DocumentUrl));
    const QFileInfo page(address.toLocalFile());
    const QUrl folder = QUrl::fromLocalFile(page.absolutePath() + QLatin1Char('/'));
    QUrl current = resolved;
    current.setScheme(QStringLiteral("file"));
    QStringList files{resolved.toLocalFile()};
    if (resolved.isRelative()) {
        files << address.resolved(resolved).toLocalFile() << folder.resolved(resolved).toLocalFile()
              << current.toLocalFile();
    }
    return files;
}

bool mayOpen(const QTextDocument &document, const QUrl &url)
{
    for (const QString &path : localFiles(document, url)) {
        const QFileInfo file(path);
        if (!path.isEmpty() && file.exists()
            && (!file.isFile() || file.size() == 0
                || file.size() > MRVInputLimits::PictureFileBytes)) {
            return false;
        }
    }
    return true;
}

QVariant loadedByParent(const QTextDocument &document, int type, const QUrl &url)
{
    QVariant loaded;
    QObject *parent = document.parent();
    if (parent && parent->metaObject()->indexOfMethod("loadResource(int,QUrl)") >= 0) {
        QMetaObject::invokeMethod(parent, "loadResource", Qt::DirectConnection,
                                  Q_RETURN_ARG(QVariant, loaded), Q_ARG(int, type),
                                  Q_ARG(QUrl, url));
    }
    return loaded;
}

QByteArray dataOf(const QUrl &url)
{
    const QByteArray all = url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveFragment);
    const int comma = all.indexOf(',');
    const QByteArray data = QByteArray::fromPercentEncoding(all.mid(comma + 1));
    if (comma < 0) {
        return QByteArray();
    }
    return all.left(comma).trimmed().endsWith(";base64") ? QByteArray::fromBase64(data) : data;
}

} // namespace

MRVGuardedDocument::MRVGuardedDocument(QObject *parent)
    : QTextDocument(parent)
    , m_decoded(DecodedPictures)
{
}

QImage MRVGuardedDocument::picture(const QTextDocument &document, const QUrl &url)
{
    const QVariant source = pictureSource(document, url);
    const auto *guarded = qobject_cast<const MRVGuardedDocument *>(&document);
    return guarded ? guarded->decoded(source) : MRVGuiUtil::toImage(source, nullptr);
}

QVariant MRVGuardedDocument::pictureSource(const QTextDocument &document, const QUrl &url)
{
    if (!mayOpen(document, url)) {
        return QVariant();
    }
    if (const auto *guarded = qobject_cast<const MRVGuardedDocument *>(&document)) {
        const QVariant held = document.resource(HeldResource, url);
        return held.isValid() ? held : guarded->source(document.baseUrl().resolved(url));
    }
    QVariant resource = document.resource(UndecodedResource, url);
    if (!resource.isValid()) {
        // No file is there to be opened, but a loader may know pictures only.
        resource = loadedByParent(document, ImageResource, document.baseUrl().resolved(url));
    }
    return resource.isValid() ? resource : document.resource(ImageResource, url);
}

// Where the picture comes from that the document does not have yet.
QVariant MRVGuardedDocument::source(const QUrl &url) const
{
    const QVariant loaded = loadedByParent(*this, ImageResource, url);
    if (loaded.isValid()) {
        return loaded;
    }
    if (url.scheme() == QLatin1String("data")) {
        return dataOf(url);
    }
    for (const QString &path : localFiles(*this, url)) {
        if (QFileInfo(path).isFile()) {
            return QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath());
        }
    }
    return QVariant();
}

QImage MRVGuardedDocument::decoded(const QVariant &source) const
{
    if (source.userType() != QMetaType::QUrl) {
        return MRVGuiUtil::toImage(source, nullptr);
    }
    const QImage *known = m_decoded.object(source.toUrl());
    return known ? *known : MRVPictureReader::ofFile(source.toUrl().toLocalFile()).read();
}

QVariant MRVGuardedDocument::loadResource(int type, const QUrl &url)
{
    if (type == HeldResource) {
        return QVariant();
    }
    if (!mayOpen(*this, url)) {
        return QVariant(QImage());
    }
    if (type != ImageResource) {
        const QVariant loaded = loadedByParent(*this, type, url);
        return loaded.isValid() ? loaded : QTextDocument::loadResource(UndecodedResource, url);
    }
    const QVariant source = this->source(url);
    const QImage image = decoded(source);
    if (source.userType() == QMetaType::QUrl && !image.isNull()) {
        m_decoded.insert(source.toUrl(), new QImage(image), int(image.sizeInBytes() >> 10));
    } else {
        addResource(type, url, image);
    }
    return image;
}
