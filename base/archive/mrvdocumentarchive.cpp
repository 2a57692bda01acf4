#include "archive/mrvdocumentarchive.h"

#include "archive/mrvarchivecontent_p.h"
#include "archive/mrvarchivenames_p.h"
#include "archive/mrvarchivesnapshot_p.h"
#include "input/mrvguardeddocument.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvfailure.h"
#include "zip/mrvzipreader.h"
#include "zip/mrvziprepair.h"

#include "core/mrvfilewriter.h"
#include "core/mrvinputlimits.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTextCursor>

namespace {

bool isPropertyName(const QString &name)
{
    static const QRegularExpression pattern(
        QStringLiteral("\\A[A-Za-z0-9][A-Za-z0-9._-]{0,99}\\z"));
    return pattern.match(name).hasMatch();
}

// What a damaged file begins with; null where it is no archive.
QByteArray beginningOf(const QString &path)
{
    constexpr int Head = 100;
    QFile file(path);
    const bool isArchive = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly)
        && MRVDocumentArchive::isArchive(file.peek(Head));
    return isArchive ? file.read(MRVInputLimits::FileBytes) : QByteArray();
}

/** The pictures of a file, by the URLs under which its document asks for them. */
class Pictures
{
public:
    Pictures(const std::shared_ptr<const MRVZipReader> &file, MRVArchiveContent *content)
        : m_file(file)
    {
        for (const MRVArchivedPicture &picture : qAsConst(content->pictures)) {
            const int index = file->indexOf(picture.file);
            const bool isRaw = picture.format >= 0;
            if (isRaw ? rawData(index).isEmpty() : !isWhole(index)) {
                m_missing.append(picture.name);
            } else if (isRaw) {
                content->fragment.formats[picture.format].setProperty(
                    MRVTextFormat::ImageRawDataProperty, rawData(index));
            } else {
                m_indexes.insert(QUrl(picture.name), index);
            }
        }
        m_missing.removeDuplicates();
    }

    QStringList missing() const { return m_missing; }

    MRVGuardedDocument::PictureLoader loader(const QUrl &base) const
    {
        QHash<QUrl, int> indexes;
        for (auto it = m_indexes.cbegin(); it != m_indexes.cend(); ++it) {
            indexes.insert(base.resolved(it.key()), it.value());
        }
        return {[indexes](const QUrl &url) { return indexes.contains(url); },
                [file = m_file, indexes](const QUrl &url) {
                    return file->read(indexes.value(url, -1), MRVInputLimits::PictureFileBytes);
                }};
    }

private:
    // Several names may show one picture. One without bytes is none.
    bool isWhole(int index)
    {
        if (!m_whole.contains(index)) {
            m_whole.insert(index,
                           m_file->check(index, MRVInputLimits::PictureFileBytes)
                               && m_file->files().at(index).size > 0);
        }
        return m_whole.value(index);
    }

    // Many formats may have the same, which is in memory once.
    QByteArray rawData(int index)
    {
        if (!m_raw.contains(index)) {
            m_raw.insert(index,
                         m_file->read(index, qMin(m_rest, MRVInputLimits::PictureFileBytes)));
            m_rest -= m_raw.value(index).size();
        }
        return m_raw.value(index);
    }

    std::shared_ptr<const MRVZipReader> m_file;
    QHash<int, bool> m_whole;
    QHash<int, QByteArray> m_raw;
    qint64 m_rest = MRVInputLimits::RawPictureBytes;
    QHash<QUrl, int> m_indexes;
    QStringList m_missing;
};

/** Has a document changed as a whole: without an undo history, and as if it had not been. */
class Replacement
{
public:
    explicit Replacement(MRVGuardedDocument *document)
        : m_document(document)
        , m_hadUndo(document->isUndoRedoEnabled())
    {
        document->setUndoRedoEnabled(false);
        document->clear();
    }
    ~Replacement()
    {
        m_document->setUndoRedoEnabled(m_hadUndo);
        m_document->setModified(false);
    }
    Replacement(const Replacement &) = delete;
    Replacement &operator=(const Replacement &) = delete;

private:
    MRVGuardedDocument *m_document;
    const bool m_hadUndo;
};

/** What an application keeps in a file, by name. */
struct Properties
{
    explicit Properties(const MRVZipReader &file)
    {
        for (int i = 0; i < file.files().size(); ++i) {
            const QString path = file.files().at(i).path;
            const QString name = path.mid(MRVArchiveNames::PropertyFolder.size());
            if (!path.startsWith(MRVArchiveNames::PropertyFolder) || !isPropertyName(name)) {
                continue;
            }
            const QByteArray bytes = file.read(i, rest);
            rest -= bytes.size();
            if (bytes.isNull()) {
                damaged.append(name);
            } else {
                values.insert(name, bytes);
            }
        }
    }

    QMap<QString, QByteArray> values;
    QStringList damaged;
    qint64 rest = MRVInputLimits::PropertyBytes;
};

} // namespace

QString MRVDocumentArchive::suffix()
{
    return QStringLiteral("mrvdoc");
}

QString MRVDocumentArchive::mimeType()
{
    return MRVArchiveNames::Type;
}

bool MRVDocumentArchive::isArchive(const QByteArray &bytes)
{
    constexpr int NameAt = 30; // in the head of a ZIP archive's first file, which has nothing else
    const QByteArray begin = QByteArray(MRVArchiveNames::TypeFile.data()) + mimeType().toLatin1();
    return bytes.startsWith("PK\3\4") && bytes.mid(NameAt, begin.size()) == begin;
}

bool MRVDocumentArchive::setProperty(const QString &name, const QByteArray &bytes)
{
    qint64 size = bytes.size();
    for (auto it = m_properties.cbegin(); it != m_properties.cend(); ++it) {
        size += it.key() == name ? 0 : it.value().size();
    }
    if (!isPropertyName(name) || (!bytes.isEmpty() && size > MRVInputLimits::PropertyBytes)) {
        return false;
    }
    if (bytes.isNull()) {
        m_properties.remove(name);
    } else {
        m_properties.insert(name, bytes);
    }
    return true;
}

bool MRVDocumentArchive::write(const QTextDocument &document, const QString &path,
                               MRVErrorSink error)
{
    const auto content = [this, &document](QIODevice *device, MRVErrorSink reason) {
        return write(document, device, reason);
    };
    return MRVFileWriter::write(path, content, error);
}

bool MRVDocumentArchive::write(const QTextDocument &document, QIODevice *device, MRVErrorSink error)
{
    MRVArchiveSnapshot snapshot(document, {m_metadata, m_properties, m_modified});
    if (!snapshot.write(device, error)) {
        return false;
    }
    m_isTextOnly = false;
    m_isRepaired = false;
    m_missingPictures = snapshot.missingPictures();
    m_damagedProperties.clear();
    return true;
}

bool MRVDocumentArchive::read(const QString &path, MRVGuardedDocument *document, MRVErrorSink error)
{
    MRVError reason;
    return read(std::make_shared<const MRVZipReader>(path), document, &reason)
        || (reason.kind == MRVErrorKind::Damaged && repair(beginningOf(path), document))
        || MRV::fail(error, path, reason);
}

bool MRVDocumentArchive::read(const QByteArray &bytes, MRVGuardedDocument *document,
                              MRVErrorSink error)
{
    MRVError reason;
    return read(std::make_shared<const MRVZipReader>(bytes), document, &reason)
        || (reason.kind == MRVErrorKind::Damaged && repair(bytes, document))
        || MRV::fail(error, reason);
}

// Reads what a file has that breaks off, or has lost its directory.
bool MRVDocumentArchive::repair(const QByteArray &bytes, MRVGuardedDocument *document)
{
    if (!isArchive(bytes)
        || !read(std::make_shared<const MRVZipReader>(mrvRepairZip(bytes)), document, nullptr)) {
        return false;
    }
    m_isRepaired = true;
    return true;
}

bool MRVDocumentArchive::read(const std::shared_ptr<const MRVZipReader> &file,
                              MRVGuardedDocument *document, MRVErrorSink error)
{
    if (!file->isOpen()) {
        return MRV::fail(error, file->error());
    }
    if (!document) {
        return MRV::fail(error, MRVErrorKind::NotFound, tr("there is no document to read it into"));
    }
    const int place = file->indexOf(MRVArchiveNames::DocumentFile);
    const QByteArray type =
        file->read(file->indexOf(MRVArchiveNames::TypeFile), MRVInputLimits::KeyText);
    if (place < 0 && type != mimeType().toLatin1()) {
        return MRV::fail(error, MRVErrorKind::Damaged, tr("it holds no document"));
    }
    MRVArchiveContent content;
    const auto result = MRVArchiveContent::fromByteArray(
        file->read(place, MRVInputLimits::TextFileBytes), &content);
    if (result == MRVArchiveContent::Newer) {
        return MRV::fail(error, MRVErrorKind::Unsupported,
                         tr("it was made by a newer version of this program"));
    }
    const bool isWhole = result == MRVArchiveContent::Good;
    const QByteArray text = isWhole
        ? QByteArray()
        : file->read(file->indexOf(MRVArchiveNames::TextFile), MRVInputLimits::TextFileBytes);
    if (!isWhole && text.isNull()) {
        return MRV::fail(error, MRVErrorKind::Damaged, tr("it is damaged"));
    }
    const Replacement replacement(document);
    document->setPictureLoader({});
    m_missingPictures.clear();
    m_isTextOnly = !isWhole;
    m_isRepaired = false;
    const Properties properties(*file);
    m_properties = properties.values;
    m_damagedProperties = properties.damaged;
    m_metadata = isWhole ? content.metadata : QVector<MRVMetadataEntry>();
    if (isWhole) {
        const Pictures pictures(file, &content);
        m_missingPictures = pictures.missing();
        content.apply(document);
        document->setPictureLoader(pictures.loader(document->baseUrl()));
    } else {
        document->setPlainText(QString::fromUtf8(text));
    }
    return true;
}

QStringList MRVDocumentArchive::notes() const
{
    QStringList notes;
    if (m_isTextOnly) {
        notes.append(tr("the document is damaged; its words were read, without formats and "
                        "pictures"));
    }
    if (m_isRepaired) {
        notes.append(
            m_isTextOnly
                ? tr("what the program keeps with the document may be missing, too")
                : tr("the file is damaged; the document is whole, but other parts may be missing"));
    }
    for (const QString &picture : m_missingPictures) {
        notes.append(tr("the picture %1 is missing or damaged").arg(picture));
    }
    for (const QString &property : m_damagedProperties) {
        notes.append(tr("what the program keeps as %1 is damaged").arg(property));
    }
    return notes;
}
