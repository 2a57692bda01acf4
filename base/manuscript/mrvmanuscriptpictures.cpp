#include "manuscript/mrvmanuscriptpictures_p.h"

#include "input/mrvguardeddocument.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvlocalfile.h"

#include "gui/mrvpicturereader.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>

namespace {

// An image character, or several equal ones side by side.
struct ImageFragment
{
    int begin;
    int end;
    QTextImageFormat format;
};

QVector<ImageFragment> imageFragments(const QTextDocument &document)
{
    QVector<ImageFragment> fragments;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QTextImageFormat image = fragment.charFormat().toImageFormat();
            if (image.isValid()) {
                const int end = fragment.position() + fragment.length();
                fragments.append({fragment.position(), end, image});
            }
        }
    }
    return fragments;
}

// "//host/name" takes the scheme of the page's server.
QString withScheme(const QString &name)
{
    return name.startsWith(QLatin1String("//")) ? QLatin1String("https:") + name : name;
}

bool isRemote(const QString &name)
{
    return MRV::isElsewhere(name) && QUrl(name).scheme() != QLatin1String("data");
}

// What is known of a picture by its name in the source.
struct Picture
{
    QString id; // null: it cannot be read
    QString path; // of a file
};

/** Looks at each picture once: an ornament may be shown a thousand times. */
class PictureFinder
{
public:
    PictureFinder(const QString &folder, MRVManuscript *manuscript)
        : m_folder(folder)
        , m_manuscript(manuscript)
    {
    }

    Picture find(const QString &name)
    {
        const auto known = m_pictures.constFind(name);
        if (known != m_pictures.constEnd()) {
            return *known;
        }
        QString reason;
        const Picture picture = isData(name) ? ofData(name, &reason) : ofFile(name, &reason);
        if (picture.id.isNull()) {
            constexpr int Shown = 32; // characters of a picture that is no name but the bytes
            m_unreadable.append({isData(name) ? name.left(Shown) + QChar(0x2026) : name,
                                 m_manuscript->report.pictureLines.value(name), reason});
        }
        m_pictures.insert(name, picture);
        return picture;
    }

    QVector<MRVUnreadablePicture> unreadable() const { return m_unreadable; }

private:
    static bool isData(const QString &name)
    {
        return name.startsWith(QLatin1String("data:"), Qt::CaseInsensitive);
    }

    Picture ofFile(const QString &name, QString *reason)
    {
        const QString path = MRV::localFile(name, m_folder);
        const MRVPictureReader look = MRVPictureReader::ofFile(path);
        if (!look.isReadable() && !look.isDrawing()) {
            *reason = look.error();
            return Picture();
        }
        if (!m_paths.contains(path)) {
            m_paths.insert(path);
            m_manuscript->pictures.append(path);
        }
        return {QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded), path};
    }

    Picture ofData(const QString &name, QString *reason)
    {
        const QTextDocument &document = *m_manuscript->document;
        const MRVPictureReader look(
            MRVGuardedDocument::pictureSource(document, QUrl(name)).toByteArray());
        if (!look.isReadable() && !look.isDrawing()) {
            *reason = look.error();
            return Picture();
        }
        if (!look.isReadable()) {
            return {name, QString()}; // Qt would draw a resource in whatever size it claims
        }
        const QByteArray digest =
            QCryptographicHash::hash(look.bytes(), QCryptographicHash::Sha1).toHex();
        const QString id = QLatin1String("img-") + QString::fromLatin1(digest);
        m_manuscript->document->addResource(QTextDocument::ImageResource, QUrl(id), look.bytes());
        return {id, QString()};
    }

    const QString m_folder;
    MRVManuscript *m_manuscript;
    QHash<QString, Picture> m_pictures;
    QSet<QString> m_paths;
    QVector<MRVUnreadablePicture> m_unreadable;
};

QTextImageFormat withPicture(QTextImageFormat format, const Picture &picture)
{
    format.setName(picture.id);
    const QString name =
        picture.path.isEmpty() ? QStringLiteral("picture") : QFileInfo(picture.path).baseName();
    format.setProperty(MRVTextFormat::ImageNameProperty, name);
    if (!picture.path.isEmpty()) {
        format.setProperty(MRVTextFormat::ImageLinkProperty, picture.path);
    }
    return format;
}

// The selected images become their alternative texts; a link that leads there still does.
void dropImages(QTextCursor *cursor, const ImageFragment &fragment)
{
    QString text = fragment.format.stringProperty(QTextFormat::ImageAltText)
                       .repeated(fragment.end - fragment.begin);
    if (text.isEmpty() && !fragment.format.anchorNames().isEmpty()) {
        text = QChar(0x200b);
    }
    QTextCharFormat format = fragment.format;
    for (int property :
         {int(QTextFormat::ObjectType), int(QTextFormat::ImageName), int(QTextFormat::ImageTitle),
          int(QTextFormat::ImageAltText), int(QTextFormat::ImageWidth),
          int(QTextFormat::ImageHeight), int(QTextFormat::ImageQuality)}) {
        format.clearProperty(property);
    }
    cursor->insertText(text, format);
}

} // namespace

QVector<MRVUnreadablePicture> mrvLoadPictures(const QString &folder, bool drop,
                                              MRVManuscript *manuscript)
{
    PictureFinder finder(folder, manuscript);
    QSet<QString> remote;
    QVector<ImageFragment> fragments = imageFragments(*manuscript->document);
    for (const ImageFragment &fragment : qAsConst(fragments)) {
        const QString name = withScheme(fragment.format.name());
        if (isRemote(name)) {
            remote.insert(name);
        } else {
            finder.find(name);
        }
    }
    manuscript->remotePictures = remote.size();

    QTextCursor cursor(manuscript->document.get());
    cursor.beginEditBlock();
    std::reverse(fragments.begin(), fragments.end()); // texts are longer than what they replace
    for (const ImageFragment &fragment : qAsConst(fragments)) {
        const QString name = withScheme(fragment.format.name());
        cursor.setPosition(fragment.begin);
        cursor.setPosition(fragment.end, QTextCursor::KeepAnchor);
        if (isRemote(name)) {
            QTextImageFormat format = fragment.format;
            format.setName(name);
            cursor.setCharFormat(format);
            continue;
        }
        const Picture picture = finder.find(name);
        if (!picture.id.isNull()) {
            cursor.setCharFormat(withPicture(fragment.format, picture));
        } else if (drop) {
            dropImages(&cursor, fragment);
        }
    }
    cursor.endEditBlock();
    return finder.unreadable();
}
