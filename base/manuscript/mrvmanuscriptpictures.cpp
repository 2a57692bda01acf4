#include "manuscript/mrvmanuscriptpictures_p.h"

#include "input/mrvguardeddocument.h"
#include "textformat/mrvformatspread.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvfailure.h"
#include "util/mrvlocalfile.h"
#include "util/mrvprogress.h"

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

// What is known of a picture by its name in the source.
struct Picture
{
    QString id; // null: it cannot be read
    QString name; // to be shown; null where the image keeps its own
    QString path; // of a file
};

// Whether the picture can be shown as it is. A PNG that does not end is decoded to see that.
bool isUsable(const MRVPictureReader &look, MRVErrorSink reason)
{
    if (!look.isReadable() && !look.isDrawing()) {
        return MRV::fail(reason, look.errorKind(), look.error());
    }
    const bool isWhole = look.format() != "png" || MRVPictureReader::png(look.bytes()).length >= 0;
    return isWhole || !look.read(reason).isNull();
}

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
        MRVError reason;
        const Picture picture = look(name, &reason);
        if (picture.id.isNull()) {
            constexpr int Shown = 32; // characters of a picture that is no name but the bytes
            m_unreadable.append({isData(name) ? name.left(Shown) + QChar(0x2026) : name,
                                 m_manuscript->report.pictureLines.value(name), reason.text,
                                 reason.kind});
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

    Picture look(const QString &name, MRVErrorSink reason)
    {
        if (isData(name)) {
            return ofData(name, reason);
        }
        const QString address = withScheme(name);
        if (!MRV::isElsewhere(address)) {
            return ofFile(name, reason);
        }
        m_remote.insert(address);
        m_manuscript->remotePictures = m_remote.size();
        return {address, QString(), QString()};
    }

    Picture ofFile(const QString &name, MRVErrorSink reason)
    {
        const QString path = MRV::localFile(name, m_folder);
        if (!isUsable(MRVPictureReader::ofFile(path), reason)) {
            return Picture();
        }
        if (!m_paths.contains(path)) {
            m_paths.insert(path);
            m_manuscript->pictures.append(path);
        }
        return {QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded), QFileInfo(path).baseName(),
                path};
    }

    Picture ofData(const QString &name, MRVErrorSink reason)
    {
        const MRVPictureReader look(
            MRVGuardedDocument::pictureSource(*m_manuscript->document, QUrl(name)).toByteArray());
        if (!isUsable(look, reason)) {
            return Picture();
        }
        const QString shown = QStringLiteral("picture");
        if (!look.isReadable()) {
            return {name, shown, QString()}; // Qt would draw a resource in the size it claims
        }
        const QByteArray digest =
            QCryptographicHash::hash(look.bytes(), QCryptographicHash::Sha1).toHex();
        const QString id = QLatin1String("img-") + QString::fromLatin1(digest);
        m_manuscript->document->addResource(QTextDocument::ImageResource, QUrl(id), look.bytes());
        return {id, shown, QString()};
    }

    const QString m_folder;
    MRVManuscript *m_manuscript;
    QHash<QString, Picture> m_pictures;
    QSet<QString> m_paths;
    QSet<QString> m_remote;
    QVector<MRVUnreadablePicture> m_unreadable;
};

QTextImageFormat withPicture(QTextImageFormat format, const Picture &picture)
{
    format.setName(picture.id);
    if (!picture.name.isNull()) {
        format.setProperty(MRVTextFormat::ImageNameProperty, picture.name);
    }
    if (!picture.path.isNull()) {
        format.setProperty(MRVTextFormat::ImageLinkProperty, picture.path);
    }
    MRVFormatSpread::update(&format);
    return format;
}

// The selected images become their alternative texts; a link that leads there still does.
void dropImages(QTextCursor *cursor, const ImageFragment &fragment)
{
    QString text = fragment.format.stringProperty(QTextFormat::ImageAltText)
                       .repeated(fragment.end - fragment.begin);
    if (text.isEmpty() && !fragment.format.anchorNames().isEmpty()) {
        text = QChar(0x200b);
    } else if (!text.isEmpty()) {
        const QTextDocument &document = *cursor->document();
        if (document.characterAt(fragment.begin - 1).isLetterOrNumber()) {
            text.prepend(u' ');
        }
        if (document.characterAt(fragment.end).isLetterOrNumber()) {
            text.append(u' ');
        }
    }
    QTextCharFormat format = fragment.format;
    for (int property :
         {int(QTextFormat::ObjectType), int(QTextFormat::ImageName), int(QTextFormat::ImageTitle),
          int(QTextFormat::ImageAltText), int(QTextFormat::ImageWidth),
          int(QTextFormat::ImageHeight), int(QTextFormat::ImageQuality)}) {
        format.clearProperty(property);
    }
    MRVFormatSpread::update(&format);
    cursor->insertText(text, format);
}

} // namespace

QVector<MRVUnreadablePicture> mrvLoadPictures(const QString &folder, MRVPictureActions actions,
                                              MRVManuscript *manuscript, MRVProgressMeter *meter)
{
    PictureFinder finder(folder, manuscript);
    QVector<ImageFragment> fragments = imageFragments(*manuscript->document);
    meter->begin(1000, fragments.size());
    for (const ImageFragment &fragment : qAsConst(fragments)) {
        finder.find(fragment.format.name());
        if (!meter->advance()) {
            return finder.unreadable();
        }
    }
    std::reverse(fragments.begin(), fragments.end()); // texts are longer than what they replace
    QTextCursor cursor(manuscript->document.get());
    cursor.beginEditBlock();
    for (const ImageFragment &fragment : qAsConst(fragments)) {
        const Picture picture = finder.find(fragment.format.name());
        cursor.setPosition(fragment.begin);
        cursor.setPosition(fragment.end, QTextCursor::KeepAnchor);
        if (!picture.id.isNull() && actions.testFlag(MRVPictureAction::Rename)) {
            cursor.setCharFormat(withPicture(fragment.format, picture));
        } else if (picture.id.isNull() && actions.testFlag(MRVPictureAction::Drop)) {
            dropImages(&cursor, fragment);
        }
    }
    cursor.endEditBlock();
    return finder.unreadable();
}
