#include "archive/mrvarchivepictures_p.h"

#include "input/mrvguardeddocument.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvlocalfile.h"

#include "core/mrvcoreutil.h"
#include "gui/mrvguiutil.h"
#include "gui/mrvpicturereader.h"

#include <QCryptographicHash>
#include <QImage>
#include <QPixmap>
#include <QSet>
#include <QTextDocument>
#include <QUrl>

namespace {

constexpr int LongestName = 40;

bool hasPixels(const QVariant &source)
{
    return source.userType() == QMetaType::QImage || source.userType() == QMetaType::QPixmap;
}

// The bytes of a picture of a document as they are, whether they can be decoded or not.
QByteArray bytesOf(const QTextDocument &document, const QUrl &url)
{
    const QVariant source = MRVGuardedDocument::pictureSource(document, url);
    if (source.userType() == QMetaType::QUrl) {
        return MRVCoreUtil::ReadBinaryFile(source.toUrl().toLocalFile());
    }
    return hasPixels(source)
        ? MRVGuiUtil::toByteArray(MRVGuardedDocument::picture(document, url), "PNG")
        : source.toByteArray();
}

bool isOfLoader(const QTextDocument &document, const QUrl &url)
{
    const auto *guarded = qobject_cast<const MRVGuardedDocument *>(&document);
    const auto has = guarded ? guarded->pictureLoader().has : nullptr;
    return has && has(document.baseUrl().resolved(url));
}

QByteArray digestOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

bool isPlain(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z')
        || (character >= u'0' && character <= u'9') || character == u'-' || character == u'_';
}

// What a person who unpacks the archive recognises: "tide" of "file:///home/ann/tide.jpg".
QString plainName(const QString &name)
{
    QString last = name.section(u'/', -1).section(u'.', 0, 0).left(LongestName);
    for (QChar &character : last) {
        character = isPlain(character) ? character : QChar(u'_');
    }
    return last;
}

QString suffixOf(const QByteArray &bytes)
{
    const QString format = QString::fromLatin1(MRVPictureReader::formatOf(bytes));
    return format.isEmpty()                       ? QString()
        : format == QLatin1String("jpeg")         ? QStringLiteral(".jpg")
        : format.startsWith(QLatin1String("svg")) ? QStringLiteral(".svg")
                                                  : u'.' + format;
}

} // namespace

MRVArchivePictures::MRVArchivePictures(const QTextDocument &document, MRVArchiveContent *content)
    : m_content(*content)
    , m_failed(std::make_shared<QString>())
{
    QSet<QString> names;
    for (int i = 0; i < m_content.fragment.formats.size(); ++i) {
        const QTextFormat &format = qAsConst(m_content.fragment.formats).at(i);
        const QString name = format.stringProperty(QTextFormat::ImageName);
        if (format.isImageFormat() && !names.contains(name)) {
            names.insert(name);
            addShown(document, name);
        }
        if (format.property(MRVTextFormat::ImageRawDataProperty).userType()
            == QMetaType::QByteArray) {
            addRawData(i);
        }
    }
}

void MRVArchivePictures::addShown(const QTextDocument &document, const QString &name)
{
    const QUrl url(name);
    const bool isHeld = hasPixels(MRVGuardedDocument::pictureSource(document, url));
    const QByteArray bytes = bytesOf(document, url);
    if (bytes.isEmpty()) {
        if (isOfLoader(document, url)) { // which has been whole
            *m_failed = name;
        } else if (!MRV::isElsewhere(name)) {
            m_missing.append(name);
            m_content.pictures.append({name, -1, QString()}); // missing from the file, too
        }
        return;
    }
    const auto again = [&document, url] { return bytesOf(document, url); };
    const auto encoded = [bytes] { return bytes; }; // which took long to make
    m_content.pictures.append(
        {name, -1, add(name, bytes, isHeld ? std::function<QByteArray()>(encoded) : again)});
}

void MRVArchivePictures::addRawData(int format)
{
    QTextFormat &changed = m_content.fragment.formats[format];
    const QByteArray bytes = changed.property(MRVTextFormat::ImageRawDataProperty).toByteArray();
    if (!bytes.isEmpty()) {
        const QString name = changed.stringProperty(QTextFormat::ImageName);
        changed.clearProperty(MRVTextFormat::ImageRawDataProperty);
        const QString file = add(name, bytes, [bytes] { return bytes; });
        m_content.pictures.append({name, format, file});
        if (!m_rawFiles.contains(file)) {
            m_rawFiles.insert(file);
            m_rawBytes += bytes.size();
        }
    }
}

// Returns the path of the file with these bytes.
QString MRVArchivePictures::add(const QString &name, const QByteArray &bytes,
                                const std::function<QByteArray()> &content)
{
    const QByteArray digest = digestOf(bytes);
    QString &path = m_paths[digest];
    if (path.isEmpty()) {
        path = QStringLiteral("pictures/%1-%2%3")
                   .arg(QString::number(m_paths.size()), plainName(name), suffixOf(bytes));
        const auto checked = [content, digest, name, failed = m_failed] {
            QByteArray again = content();
            if (digestOf(again) != digest) { // a file that has changed meanwhile
                *failed = name;
                again.clear();
            }
            return again;
        };
        m_files.push_back({path, MRVZipEntry::Stored, checked, bytes.size()});
    }
    return path;
}
