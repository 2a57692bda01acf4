#include "publish/mrvtextpublisher.h"

#include "document/mrvdocumentpictures.h"
#include "document/mrvpicturefiles.h"
#include "document/mtextdoc.h"
#include "publish/mrvnewfolders_p.h"
#include "publish/mrvstagedfiles.h"
#include "textexport/mrvmarkdownwriter.h"
#include "util/mrvfailure.h"
#include "xhtml/mrvtextxhtmlexporter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextDocument>
#include <QUrl>

namespace {

/** The pictures of a file, which go again unless the file is written. */
class Pictures
{
public:
    explicit Pictures(const QString &file)
        : m_base(QFileInfo(file).absolutePath())
        , m_folder(MRVTextXhtmlExporter::calcImageDir(QFileInfo(file).absoluteFilePath()))
    {
    }
    ~Pictures()
    {
        if (m_isKept) {
            return;
        }
        const QStringList created = m_files.created();
        for (const QString &path : created) {
            QFile::remove(path);
        }
    }
    Pictures(const Pictures &) = delete;
    Pictures &operator=(const Pictures &) = delete;

    bool write(const QTextDocument &document, MRVErrorSink error)
    {
        const MRVDocumentPictures pictures(document);
        const QVector<MRVDocumentPicture> all = pictures.all();
        if (!all.isEmpty()
            && !m_newFolders.makeFor(m_folder.filePath(QStringLiteral("image")), error)) {
            return false;
        }
        for (const MRVDocumentPicture &picture : all) {
            MRVError reason;
            const QByteArray bytes = picture.bytes(&reason);
            if (bytes.isEmpty()) {
                return MRV::fail(error, picture.name(), reason);
            }
            const QString name =
                MTextDoc::findUniqueString(QFileInfo(picture.name()).completeBaseName(), {});
            const QString wanted = m_folder.filePath(
                (name.isEmpty() ? QStringLiteral("image") : name) + u'.' + picture.suffix());
            m_paths.append(m_files.write(wanted, bytes, error));
            if (m_paths.constLast().isEmpty()) {
                return false;
            }
        }
        const QMap<QString, MRVError> failures = m_files.commit();
        setAddresses(document, pictures);
        return failures.isEmpty() || MRV::fail(error, failures.first());
    }

    const QHash<QString, QString> &addresses() const { return m_addresses; }
    const QStringList &paths() const { return m_paths; }
    void keep()
    {
        m_isKept = true;
        m_newFolders.keep();
    }

private:
    void setAddresses(const QTextDocument &document, const MRVDocumentPictures &pictures)
    {
        const QList<QTextImageFormat> formats = MTextDoc::imageFormats(document);
        for (const QTextImageFormat &format : formats) {
            const int index = pictures.indexOf(MTextDoc::imageResourceId(format));
            if (index >= 0) {
                const QString path = m_base.relativeFilePath(m_paths.at(index));
                m_addresses.insert(format.name(),
                                   QString::fromLatin1(QUrl::toPercentEncoding(path, "/")));
            }
        }
    }

    const QDir m_base;
    const QDir m_folder;
    MRVNewFolders m_newFolders;
    MRVPictureFiles m_files;
    QStringList m_paths; // by picture
    QHash<QString, QString> m_addresses;
    bool m_isKept = false;
};

} // namespace

bool MRVTextPublisher::writeMarkdown(const QTextDocument &document, const MRVMarkdownHead &head,
                                     const QString &file, QStringList *written, MRVErrorSink error)
{
    Pictures pictures(file);
    if (!pictures.write(document, error)) {
        return false;
    }
    MRVMarkdownWriter writer(document);
    writer.setHead(head);
    writer.setPictureAddresses(pictures.addresses());
    if (!MRVStagedFiles::write(writer.text().toUtf8(), file, error)) {
        return false;
    }
    pictures.keep();
    if (written) {
        *written += pictures.paths();
        written->append(file);
    }
    return true;
}
