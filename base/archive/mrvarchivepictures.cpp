#include "archive/mrvarchivepictures_p.h"

#include "input/mrvguardeddocument.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvlocalfile.h"

#include "core/mrvcoreutil.h"
#include "core/mrvinputlimits.h"
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

MRVArchivePictures::MRVArchivePictures(const QTextDocument &document, MRVDocumentFragment *fragment)
    : m_failed(std::make_shared<QString>())
{
    QSet<QString> names;
    for (int i = 0; i < fragment->formats.size(); ++i) {
        QTextFormat &format = fragment->formats[i];
        const QString name = format.stringProperty(QTextFormat::ImageName);
        if (format.isImageFormat() && !names.contains(name)) {
            names.insert(name);
            addShown(document, name);
        }
        const QVariant raw = format.property(MRVTextFormat::ImageRawDataProperty);
        if (raw.userType() == QMetaType::QByteArray && !raw.toByteArray().isEmpty()) {
            format.clearProperty(MRVTextFormat::ImageRawDataProperty);
            m_sources.append({name, i, [raw = raw.toByteArray()] { return raw; }});
        }
    }
}

// Whether its bytes can be decoded or not.
void MRVArchivePictures::addShown(const QTextDocument &document, const QString &name)
{
    Source picture;
    picture.name = name;
    const QUrl url = document.baseUrl().resolved(QUrl(name));
    const auto *guarded = qobject_cast<const MRVGuardedDocument *>(&document);
    const auto loader = guarded ? guarded->pictureLoader() : MRVGuardedDocument::PictureLoader();
    if (loader.has && loader.has(url)) {
        picture.bytes = [read = loader.read, url] { return read(url); };
        picture.isOfLoader = true;
    } else {
        const QVariant source = MRVGuardedDocument::pictureSource(document, QUrl(name));
        if (source.userType() == QMetaType::QUrl) {
            const QString path = source.toUrl().toLocalFile();
            picture.bytes = [path] { return MRVCoreUtil::ReadBinaryFile(path); };
        } else if (hasPixels(source)) {
            const QImage image = MRVGuiUtil::toImage(source, nullptr);
            picture.bytes = [image] { return MRVGuiUtil::toByteArray(image, "PNG"); };
            picture.isKept = true; // encoding takes long
        } else {
            picture.bytes = [bytes = source.toByteArray()] { return bytes; };
        }
    }
    m_sources.append(picture);
}

bool MRVArchivePictures::read(Lost lost, QVector<MRVArchivedPicture> *pictures)
{
    m_files.clear();
    m_paths.clear();
    m_missing.clear();
    m_failed->clear();
    QSet<QString> rawFiles;
    qint64 rawBytes = 0;
    for (const Source &source : qAsConst(m_sources)) {
        const QByteArray bytes = source.bytes();
        if (!bytes.isEmpty()) {
            const auto kept = [bytes] { return bytes; };
            const QString file =
                add(source.name, bytes,
                    source.isKept ? std::function<QByteArray()>(kept) : source.bytes);
            pictures->append({source.name, source.format, file});
            if (source.format >= 0 && !rawFiles.contains(file)) {
                rawFiles.insert(file);
                rawBytes += bytes.size();
            }
        } else if (source.isOfLoader && lost == Fail) { // it has been whole
            *m_failed = source.name;
            return false;
        } else if (source.isOfLoader || !MRV::isElsewhere(source.name)) {
            m_missing.append(source.name);
            pictures->append({source.name, -1, QString()}); // missing from the file, too
        }
    }
    return rawBytes <= MRVInputLimits::RawPictureBytes;
}

bool MRVArchivePictures::keepFailed()
{
    bool isNew = false;
    for (Source &source : m_sources) {
        if (!failed().isEmpty() && source.name == failed() && !source.isKept) {
            source.isKept = true;
            isNew = true;
        }
    }
    return isNew;
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
