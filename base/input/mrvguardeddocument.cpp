#include "input/mrvguardeddocument.h"

#include "core/mrvinputlimits.h"
#include "gui/mrvguiutil.h"

#include <QFileInfo>
#include <QMetaMethod>
#include <QUrl>

namespace {

// With this type a document gives bytes as they are, where it decodes those of an image.
constexpr int UndecodedResource = QTextDocument::UserResource;

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
            && (!file.isFile() || file.size() > MRVInputLimits::PictureFileBytes)) {
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

} // namespace

MRVGuardedDocument::MRVGuardedDocument(QObject *parent)
    : QTextDocument(parent)
{
}

QImage MRVGuardedDocument::picture(const QTextDocument &document, const QUrl &url)
{
    if (!mayOpen(document, url)) {
        return QImage();
    }
    // A document of this class guards itself, and keeps what it has decoded.
    const bool isGuarded = qobject_cast<const MRVGuardedDocument *>(&document);
    QVariant resource = document.resource(isGuarded ? ImageResource : UndecodedResource, url);
    if (!resource.isValid()) {
        // No file is there to be opened, but a loader may know pictures only.
        resource = loadedByParent(document, ImageResource, document.baseUrl().resolved(url));
    }
    if (!resource.isValid()) {
        resource = document.resource(ImageResource, url);
    }
    return MRVGuiUtil::toImage(resource, nullptr);
}

QVariant MRVGuardedDocument::loadResource(int type, const QUrl &url)
{
    if (!mayOpen(*this, url)) {
        return QVariant(QImage());
    }
    QVariant resource = loadedByParent(*this, type, url);
    if (!resource.isValid()) {
        resource = QTextDocument::loadResource(UndecodedResource, url);
    }
    if (type != ImageResource) {
        return resource;
    }
    const QImage image = MRVGuiUtil::toImage(resource, nullptr);
    // Kept here, where it comes before the bytes that the base class has kept.
    addResource(type, url, image);
    return image;
}
