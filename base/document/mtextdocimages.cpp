#include "document/mtextdoc.h"

#include "core/mrvcoreutil.h"
#include "document/mrvpicturefiles.h"
#include "gui/mrvguiutil.h"
#include "gui/mrvpicturereader.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvnames.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

#include <vector>

namespace {

// A file's name may take 255 bytes on the usual file systems; suffix and number need some.
constexpr int MaxNameBytes = 200;

// One run of equal images: count object characters from position on.
struct ImageRun
{
    int position;
    int count;
    QTextImageFormat format;

    QString id() const { return MRVTextFormat::imageResourceId(format); }
};

std::vector<ImageRun> imageRuns(const QTextDocument &document)
{
    std::vector<ImageRun> runs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (QTextBlock::iterator it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment run = it.fragment();
            const QTextCharFormat format = run.charFormat();
            if (run.isValid() && format.isImageFormat()) {
                runs.push_back({run.position(), run.length(), format.toImageFormat()});
            }
        }
    }
    return runs;
}

// Where a document looks for a resource, and, with a base URL, where it would without one.
QSet<QUrl> resourceUrls(const QTextDocument &document, const QString &id)
{
    const QUrl url(id);
    return {url, document.baseUrl().resolved(url)};
}

void setImageResource(QTextDocument *document, const QString &id, const QVariant &picture)
{
    for (const QUrl &url : resourceUrls(*document, id)) {
        document->addResource(QTextDocument::ImageResource, url, picture);
    }
}

// The existing file that a resource id names, or empty.
QString localFile(const QTextDocument &document, const QString &id)
{
    if (id.isEmpty()) {
        return QString();
    }
    const QUrl url(id);
    QStringList candidates{id, url.toLocalFile()};
    if (url.isRelative()) {
        candidates << url.path(QUrl::FullyDecoded)
                   << document.baseUrl().resolved(url).toLocalFile();
    }
    for (const QString &path : qAsConst(candidates)) {
        if (!path.isEmpty() && QFileInfo(path).isFile()) {
            return path;
        }
    }
    return QString();
}

// What re-keying does to all images of one resource id.
struct NewKey
{
    QString id; ///< empty: the images stay as they are
    QImage picture;
    QString name; ///< the new display name; null keeps the old one
    QByteArray bytes; ///< of a file in a form that pixels do not keep, and its type
    QString type;
};

using Pictures = QHash<QString, QImage>; // by resource id

void setImageResources(QTextDocument *document, const Pictures &pictures)
{
    for (auto it = pictures.constBegin(); it != pictures.constEnd(); ++it) {
        setImageResource(document, it.key(), it.value());
    }
}

// Undoing gives the images of a document their old ids back, but resources are not part of what is
// undone. Both are known by the number of steps that lead there.
class RekeyedPictures : public QObject
{
public:
    // The last step is the one that gave the images their new ids.
    RekeyedPictures(QTextDocument *document, const Pictures &before, const Pictures &after)
        : QObject(document)
        , m_document(document)
        , m_before(before)
        , m_after(after)
        , m_steps(document->availableUndoSteps())
    {
        connect(document, &QTextDocument::contentsChanged, this, &RekeyedPictures::follow);
        // With the steps themselves, which another text would count again.
        connect(document, &QTextDocument::undoAvailable, this, &RekeyedPictures::follow);
        connect(document, &QTextDocument::undoCommandAdded, this, [this] {
            if (m_isUndone) {
                forget();
            }
        });
    }

private:
    void follow()
    {
        const bool isUndone = m_document->availableUndoSteps() < m_steps;
        if (isUndone && !m_document->isRedoAvailable()) {
            forget();
        } else if (isUndone != m_isUndone) {
            m_isUndone = isUndone;
            setImageResources(m_document, isUndone ? m_before : m_after);
            m_document->markContentsDirty(0, m_document->characterCount());
        }
    }

    // The step cannot be undone or done again any more, and the ids may get other pictures.
    void forget()
    {
        disconnect(m_document, nullptr, this, nullptr);
        m_before.clear();
        m_after.clear();
        deleteLater();
    }

    QTextDocument *m_document;
    Pictures m_before;
    Pictures m_after;
    int m_steps;
    bool m_isUndone = false;
};

void setNewKey(QTextImageFormat *format, const NewKey &key)
{
    format->setProperty(QTextFormat::ImageName, key.id);
    if (!key.name.isNull()) {
        format->setProperty(MRVTextFormat::ImageNameProperty, key.name);
    }
    if (!key.bytes.isEmpty()) {
        format->setProperty(MRVTextFormat::ImageRawDataProperty, key.bytes);
        format->setProperty(MRVTextFormat::ImageTypeProperty, key.type);
    }
}

// Moves pictures and images to their new ids; an image that has its id already stays as it is. All
// pictures are known before the first resource is cleared, since one image's new id may be
// another's old one.
void rekey(QTextDocument *document, const std::vector<ImageRun> &runs, QHash<QString, NewKey> keys)
{
    for (auto it = keys.begin(); it != keys.end(); ++it) {
        if (it->id == it.key()) {
            it->id.clear();
        }
    }
    Pictures before;
    Pictures after;
    for (auto it = keys.constBegin(); it != keys.constEnd(); ++it) {
        if (!it->id.isEmpty()) {
            before.insert(it.key(), it->picture);
            after.insert(it->id, it->picture);
        }
    }
    for (auto it = before.constBegin(); it != before.constEnd(); ++it) {
        setImageResource(document, it.key(), QVariant());
    }
    setImageResources(document, after);

    QTextCursor cursor(document);
    bool editing = false;
    for (const ImageRun &run : runs) {
        const NewKey key = keys.value(run.id());
        if (key.id.isEmpty()) {
            continue;
        }
        if (!editing) {
            cursor.beginEditBlock();
        }
        editing = true;
        QTextImageFormat format = run.format;
        setNewKey(&format, key);
        cursor.setPosition(run.position);
        cursor.setPosition(run.position + run.count, QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
    }
    if (editing) {
        cursor.endEditBlock();
        if (document->isUndoRedoEnabled()) {
            new RekeyedPictures(document, before, after);
        }
    }
}

// A JPEG would lose quality when it is encoded again, and a GIF its movement.
void keepEncoded(const MRVPictureReader &look, NewKey *key)
{
    static constexpr struct
    {
        const char *format; // as Qt names it
        const char *type;
    } kept[] = {{"jpeg", "JPG"}, {"gif", "GIF"}};
    for (const auto &row : kept) {
        if (look.format() == row.format && look.isOf(key->picture)) {
            key->bytes = look.bytes();
            key->type = QLatin1String(row.type);
        }
    }
}

// A display name or suffix may hold anything; neither leads out of a folder without a slash.
QString fileName(QString name, const QString &suffix)
{
    name.truncate(MaxNameBytes);
    while (name.toUtf8().size() > MaxNameBytes) {
        name.chop(1);
    }
    if (name.at(name.size() - 1).isHighSurrogate()) {
        name.chop(1);
    }
    QString file = name + QLatin1Char('.') + suffix;
    file.replace(QLatin1Char('/'), QLatin1Char('_'));
    file.replace(QChar(QChar::Null), QLatin1Char('_'));
    return file;
}

// Where an image goes in a folder by its own name; empty without a name.
QString targetPath(const QTextImageFormat &format, const QDir &folder, bool mmd)
{
    QString name = MRVTextFormat::imageName(format);
    if (name.isEmpty()) {
        return QString();
    }
    if (mmd) {
        name = MTextDoc::mmdImageName(name);
        if (name.isEmpty()) {
            name = QStringLiteral("image");
        }
    }
    const QString suffix = MRVTextFormat::imageType(format, "png").toLower();
    return folder.filePath(fileName(name, suffix));
}

// Writes an image beside the file of its name, which is another's.
QString writeNumbered(const QTextDocument &document, const QTextImageFormat &format,
                      const QString &target, MRVPictureFiles *files)
{
    const QImage picture = MRVTextFormat::image(document, format);
    const QByteArray bytes =
        picture.isNull() ? QByteArray() : MRVTextFormat::imageFileBytes(target, format, picture);
    return bytes.isEmpty() ? QString() : files->write(target, bytes);
}

// Writes an image in place of what has its name; false where that failed, with nothing there then.
bool replaceImage(const QTextDocument &document, const QTextImageFormat &format,
                  const QString &target, MRVPictureFiles *files)
{
    const QImage picture = MRVTextFormat::image(document, format);
    const QByteArray bytes =
        picture.isNull() ? QByteArray() : MRVTextFormat::imageFileBytes(target, format, picture);
    const QFileInfo old(target);
    // A link must not lead the writer to another file, and a protected file is replaced, too.
    if (old.isSymLink() || (old.exists() && !old.isWritable())) {
        QFile::remove(target);
    }
    return !bytes.isEmpty() && files->replace(target, bytes);
}

// The file that an image links to, or empty where there is none.
QString linkedFile(const QTextImageFormat &format)
{
    return QFileInfo(MRVTextFormat::imageLink(format)).canonicalFilePath();
}

} // namespace

QString MTextDoc::generateResourceId(const QImage &image)
{
    return MRVGuiUtil::resourceId(image);
}

QImage MTextDoc::image(const QTextDocument &document, const QTextImageFormat &format)
{
    return MRVTextFormat::image(document, format);
}

QString MTextDoc::imageResourceId(const QTextImageFormat &format)
{
    return MRVTextFormat::imageResourceId(format);
}

QString MTextDoc::imageName(const QTextImageFormat &format)
{
    return MRVTextFormat::imageName(format);
}

QImage MTextDoc::toImage(const QVariant &variant)
{
    return MRVGuiUtil::toImage(variant, nullptr);
}

void MTextDoc::fixHtmlImageFormatsAndResourceIds(QTextDocument *document)
{
    if (!document) {
        return;
    }
    const std::vector<ImageRun> runs = imageRuns(*document);
    QHash<QString, NewKey> keys;
    for (const ImageRun &run : runs) {
        const QString id = run.id();
        if (keys.contains(id)) {
            continue;
        }
        NewKey key;
        const QString path = localFile(*document, id);
        if (!path.isEmpty()) {
            // Qt may have loaded the file by itself; it does not for every path.
            const MRVPictureReader look = MRVPictureReader::ofFile(path);
            key.picture = image(*document, run.format);
            if (key.picture.isNull()) {
                key.picture = look.read();
            }
            keepEncoded(look, &key);
            key.id = MRVGuiUtil::resourceId(key.picture);
            key.name = QFileInfo(path).baseName();
        }
        keys.insert(id, key);
    }
    rekey(document, runs, keys);
}

bool MTextDoc::insertPicture(QTextCursor *cursor, const MRVPictureReader &look, const QString &name,
                             int widest, MRVErrorSink error)
{
    NewKey key;
    key.picture = look.read(error);
    if (!cursor || cursor->isNull() || key.picture.isNull()) {
        return false;
    }
    keepEncoded(look, &key);
    key.id = MRVGuiUtil::resourceId(key.picture);
    key.name = name;
    setImageResource(cursor->document(), key.id, key.picture);
    QTextImageFormat format;
    setNewKey(&format, key);
    if (widest > 0 && key.picture.width() > widest) {
        format.setWidth(widest);
        format.setHeight(
            qMax(1, qRound(double(widest) * key.picture.height() / key.picture.width())));
    }
    cursor->insertImage(format);
    return true;
}

void MTextDoc::convertUniqueImageResources(QTextDocument *document)
{
    if (!document) {
        return;
    }
    const std::vector<ImageRun> runs = imageRuns(*document);
    QHash<QString, NewKey> keys;
    for (const ImageRun &run : runs) {
        if (keys.contains(run.id())) {
            continue;
        }
        NewKey key;
        key.picture = image(*document, run.format);
        key.id = MRVGuiUtil::resourceId(key.picture);
        keys.insert(run.id(), key);
    }
    rekey(document, runs, keys);
}

bool MTextDoc::onlyOneImageWithResourceId(const QTextDocument &document, const QString &id)
{
    int shown = 0;
    for (const ImageRun &run : imageRuns(document)) {
        if (run.id() != id) {
            continue;
        }
        if (shown == 0 && image(document, run.format).isNull()) {
            return true;
        }
        shown += run.count;
        if (shown > 1) {
            return false;
        }
    }
    return true;
}

QSet<QString> MTextDoc::imageResourceIds(const QTextDocument &document)
{
    QSet<QString> ids;
    for (const ImageRun &run : imageRuns(document)) {
        ids.insert(run.id());
    }
    return ids;
}

QStringList MTextDoc::imageNames(const QTextDocument &document)
{
    QStringList names;
    for (const QTextImageFormat &format : imageFormats(document)) {
        names << imageName(format);
    }
    return names;
}

QList<QTextImageFormat> MTextDoc::imageFormats(const QTextDocument &document)
{
    QList<QTextImageFormat> formats;
    for (const ImageRun &run : imageRuns(document)) {
        for (int i = 0; i < run.count; ++i) {
            formats << run.format;
        }
    }
    return formats;
}

QMap<QString, QImage> MTextDoc::imagesWithResourceIds(const QTextDocument &document)
{
    QMap<QString, QImage> images;
    for (const ImageRun &run : imageRuns(document)) {
        if (images.contains(run.id())) {
            continue;
        }
        const QImage picture = image(document, run.format);
        if (!picture.isNull()) {
            images.insert(run.id(), picture);
        }
    }
    return images;
}

QList<QPair<QString, QImage>> MTextDoc::imagesWithNames(const QTextDocument &document)
{
    const QMap<QString, QImage> images = imagesWithResourceIds(document);
    QList<QPair<QString, QImage>> named;
    for (const QTextImageFormat &format : imageFormats(document)) {
        const QImage picture = images.value(imageResourceId(format));
        if (!picture.isNull()) {
            named << qMakePair(imageName(format), picture);
        }
    }
    return named;
}

QString MTextDoc::uniqueResourceId(const QTextDocument &document, const QString &base)
{
    return findUniqueString(base, imageResourceIds(document));
}

QString MTextDoc::uniqueImageName(const QTextDocument &document, const QString &base)
{
    const QStringList names = imageNames(document);
    return findUniqueString(base, QSet<QString>(names.cbegin(), names.cend()));
}

QString MTextDoc::findUniqueString(const QString &base, const QSet<QString> &taken)
{
    QString name = QDir::toNativeSeparators(base);
    const QFileInfo file(name);
    if (!name.isEmpty() && file.isFile()) {
        name = file.baseName();
    }
    name = MRV::cleanFileName(name);

    QString candidate = name;
    for (int number = 1; taken.contains(candidate); ++number) {
        candidate = name + QLatin1Char('_') + QString::number(number);
    }
    return candidate;
}

QString MTextDoc::mmdImageName(const QString &name)
{
    QString result = MRV::cleanFileName(name, QLatin1Char(' '));
    result.replace(QLatin1Char(' '), QLatin1Char('-'));
    result.replace(QLatin1Char('_'), QLatin1Char('-'));
    while (result.contains(QLatin1String("--"))) {
        result.replace(QLatin1String("--"), QLatin1String("-"));
    }
    return result;
}

QString MTextDoc::exportImageFormat(const QTextDocument &document, const QTextImageFormat &format,
                                    const QDir &folder, bool mmd, const QSet<QString> *used)
{
    if (!folder.exists()) {
        folder.mkpath(QStringLiteral("."));
    }
    const QImage picture = image(document, format);
    QString path = targetPath(format, folder, mmd);
    if (path.isEmpty() || picture.isNull()) {
        return QString();
    }
    if (used && used->contains(path)) {
        path = MRVCoreUtil::GetUniqueFileName(path);
    }
    return MRVTextFormat::exportImageFormat(path, format, picture) ? path : QString();
}

QStringList MTextDoc::exportImages(const QTextDocument &document, const QString &folder, bool mmd)
{
    const QList<QTextImageFormat> formats = imageFormats(document);
    if (formats.isEmpty()) {
        return QStringList();
    }
    const QDir dir(QDir::toNativeSeparators(folder));
    if (!dir.exists()) {
        dir.mkpath(QStringLiteral("."));
    }

    // An image must not replace the file that another one links to: it is the user's original, and
    // may still have to be copied.
    QSet<QString> links;
    for (const QTextImageFormat &format : formats) {
        links.insert(linkedFile(format));
    }

    QStringList paths;
    QSet<QString> used;
    MRVPictureFiles files;
    for (const QTextImageFormat &format : formats) {
        const QString target = targetPath(format, dir, mmd);
        const QString file = QFileInfo(target).canonicalFilePath();
        const bool isOwn = !file.isEmpty() && linkedFile(format) == file;
        const bool isOthers = !file.isEmpty() && !isOwn && links.contains(file);
        QString path;
        if (isOthers || used.contains(target)) {
            files.take(target);
            path = writeNumbered(document, format, target, &files);
        } else if (isOwn || target.isEmpty()) {
            path = exportImageFormat(document, format, dir, mmd, nullptr); // writes nothing
        } else if (replaceImage(document, format, target, &files)) {
            path = target;
        } else {
            QFile::remove(target); // as exportImageFormat() leaves nothing old
        }
        if (!path.isEmpty()) {
            paths << path;
            used.insert(path);
            files.take(path);
        }
    }
    const QMap<QString, MRVError> failed = files.commit();
    for (auto it = failed.cbegin(); it != failed.cend(); ++it) {
        QFile::remove(it.key());
        paths.removeOne(it.key());
    }
    return paths;
}

QStringList MTextDoc::exportImagesToMmd(const QTextDocument &document, const QString &folder)
{
    return exportImages(document, folder, true);
}

QString MTextDoc::dumpImageInfo(const QTextDocument &document)
{
    const QMap<QString, QImage> images = imagesWithResourceIds(document);
    QString text;
    for (const ImageRun &run : imageRuns(document)) {
        const QImage picture = images.value(run.id());
        const QString size = picture.isNull()
            ? QStringLiteral("none")
            : QStringLiteral("%1x%2").arg(picture.width()).arg(picture.height());
        for (int i = 0; i < run.count; ++i) {
            const QStringList fields{
                QString::number(run.position + i),
                run.id(),
                imageName(run.format),
                MRVTextFormat::imageType(run.format),
                size,
                QString::number(MRVTextFormat::imageRawData(run.format).size()),
                MRVTextFormat::imageLink(run.format)};
            text += fields.join(QLatin1Char('\t')) + QLatin1Char('\n');
        }
    }
    return text;
}
