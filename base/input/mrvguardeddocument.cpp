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

// The existing file that a document may show for a URL; empty without one.
QString fileOf(const QTextDocument &document, const QUrl &url)
{
    for (const QString &path : localFiles(document, url)) {
        const QFileInfo file(path);
        if (file.isFile()) {
            return file.absoluteFilePath();
        }
    }
    return QString();
}

// The file that Qt has decoded to what a document has as a picture; empty without one.
QString fileOfPixels(const QTextDocument &document, const QUrl &url, const QVariant &resource)
{
    if (resource.userType() == QMetaType::QByteArray) {
        return QString();
    }
    const QString path = fileOf(document, url);
    const bool isShown = !path.isEmpty()
        && MRVPictureReader::ofFile(path).isOf(MRVGuiUtil::toImage(resource, nullptr));
    return isShown ? path : QString();
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

bool isEncoded(const QVariant &source)
{
    return source.userType() == QMetaType::QByteArray;
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
    if (const auto *guarded = qobject_cast<const MRVGuardedDocument *>(&document)) {
        return guarded->decoded(source, document.baseUrl().resolved(url));
    }
    return source.userType() == QMetaType::QUrl
        ? MRVPictureReader::ofFile(source.toUrl().toLocalFile()).read()
        : MRVGuiUtil::toImage(source, nullptr);
}

QVariant MRVGuardedDocument::pictureSource(const QTextDocument &document, const QUrl &url)
{
    const auto *guarded = qobject_cast<const MRVGuardedDocument *>(&document);
    if (guarded && guarded->isLoaded(document.baseUrl().resolved(url))) {
        return guarded->m_loader.read(document.baseUrl().resolved(url));
    }
    if (!mayOpen(document, url)) {
        return QVariant();
    }
    if (guarded) {
        const QVariant held = document.resource(HeldResource, url);
        return held.isValid() ? held : guarded->source(document.baseUrl().resolved(url));
    }
    QVariant resource = document.resource(UndecodedResource, url);
    if (!resource.isValid()) {
        // No file is there to be opened, but a loader may know pictures only.
        resource = loadedByParent(document, ImageResource, document.baseUrl().resolved(url));
    }
    if (!resource.isValid()) {
        resource = document.resource(ImageResource, url);
    }
    const QString path = fileOfPixels(document, url, resource);
    return path.isEmpty() ? resource : QUrl::fromLocalFile(path);
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
    const QString path = fileOf(*this, url);
    return path.isEmpty() ? QVariant() : QUrl::fromLocalFile(path);
}

void MRVGuardedDocument::setPictureLoader(const PictureLoader &loader)
{
    m_loader = loader;
    m_decoded.clear();
}

bool MRVGuardedDocument::isLoaded(const QUrl &url) const
{
    return m_loader.has && m_loader.has(url);
}

QImage MRVGuardedDocument::decoded(const QVariant &source, const QUrl &url) const
{
    const bool isFile = source.userType() == QMetaType::QUrl;
    const QImage *known = m_decoded.object(isFile ? source.toUrl() : url);
    if (known && (isFile || isEncoded(source))) {
        return *known;
    }
    return isFile ? MRVPictureReader::ofFile(source.toUrl().toLocalFile()).read()
                  : MRVGuiUtil::toImage(source, nullptr);
}

QVariant MRVGuardedDocument::loadResource(int type, const QUrl &url)
{
    if (type == HeldResource) {
        return QVariant();
    }
    if (type == ImageResource) {
        return loadPicture(url);
    }
    if (!mayOpen(*this, url)) {
        return QVariant(QImage());
    }
    const QVariant loaded = loadedByParent(*this, type, url);
    return loaded.isValid() ? loaded : QTextDocument::loadResource(UndecodedResource, url);
}

QImage MRVGuardedDocument::loadPicture(const QUrl &url)
{
    if (const QImage *known = m_decoded.object(url)) {
        return *known;
    }
    if (!isLoaded(url) && !mayOpen(*this, url)) {
        return QImage();
    }
    const QVariant source = isLoaded(url) ? QVariant(m_loader.read(url)) : this->source(url);
    const bool isFile = source.userType() == QMetaType::QUrl;
    const QImage image = decoded(source, url);
    if (isEncoded(source) || (isFile && !image.isNull())) {
        // Pixels that the document held would take the place of the bytes.
        m_decoded.insert(isFile ? source.toUrl() : url, new QImage(image),
                         int(image.sizeInBytes() >> 10));
    } else {
        addResource(ImageResource, url, image);
    }
    return image;
}
