#include "xhtml/mrvtextxhtmlexporter.h"

#include "core/mrvcoreutil.h"
#include "document/mrvdocumentpictures.h"
#include "document/mrvpicturefiles.h"
#include "document/mtextdoc.h"
#include "gui/mrvguiutil.h"
#include "gui/mrvpicturereader.h"
#include "textformat/mrvtextformat.h"
#include "util/mrvfailure.h"
#include "util/mrvnames.h"
#include "xhtml/mrvdocumenthtml.h"
#include "xhtml/mrvdocumenttitle.h"
#include "xhtml/mrvhtmltext.h"
#include "xhtml/mrvpagewriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTextDocument>
#include <QTextImageFormat>
#include <QVector>

#include <iterator>

namespace {

constexpr struct
{
    MRVTextXhtmlExporter::ExportType type;
    const char *name;
    const char *suffix;
} types[] = {
    {MRVTextXhtmlExporter::Html, "html", "html"},
    {MRVTextXhtmlExporter::Xhtml, "xhtml", "xhtml"},
    {MRVTextXhtmlExporter::EPub, "epub", "epub"},
    {MRVTextXhtmlExporter::Kindle, "kindle", "xhtml"},
    {MRVTextXhtmlExporter::KindleKF8, "kf8", "xhtml"},
};

constexpr bool typesAreInOrder()
{
    for (int i = 0; i < int(std::size(types)); ++i) {
        if (types[i].type != i) {
            return false;
        }
    }
    return std::size(types) == MRVTextXhtmlExporter::KindleKF8 + 1;
}
static_assert(typesAreInOrder());

// Removes what a failed export has written so far; folders are removed only when they are empty.
void removeFiles(const QStringList &files, const QString &newFolder)
{
    for (const QString &file : files) {
        QFile::remove(file);
    }
    if (!newFolder.isEmpty()) {
        QDir().rmdir(newFolder);
    }
}

const char *imageFormatOf(MRVTextXhtmlExporter::ExportType type)
{
    const bool kindle =
        type == MRVTextXhtmlExporter::Kindle || type == MRVTextXhtmlExporter::KindleKF8;
    return kindle ? "JPG" : "PNG";
}

// The bytes of a picture for a page, and their suffix; empty on failure.
QByteArray pageBytes(const MRVDocumentPicture &picture, bool asJpeg, QString *suffix,
                     MRVErrorSink reason)
{
    const QByteArray bytes = picture.bytes(reason);
    *suffix = picture.suffix();
    if (!asJpeg || picture.type() == MRVDocumentPicture::Jpeg || bytes.isEmpty()) {
        return bytes;
    }
    constexpr int Quality = 100;
    constexpr QSize Drawing(4096, 4096); // more than any screen of a reading device
    *suffix = QStringLiteral("jpg");
    const QImage image = MRVPictureReader(bytes).draw(Drawing, reason);
    return MRVGuiUtil::toByteArray(image, "JPG", Quality);
}

// Writes a picture into a folder under its name; empty on failure.
QString writeKept(const MRVDocumentPicture &picture, const QString &dir, const char *format,
                  MRVPictureFiles *files, MRVErrorSink error)
{
    QString suffix;
    MRVError reason;
    const QByteArray bytes = pageBytes(picture, qstrcmp(format, "JPG") == 0, &suffix, &reason);
    if (bytes.isEmpty()) {
        MRV::fail(error, reason.kind,
                  MRVTextXhtmlExporter::tr("The picture %1 cannot be written: %2")
                      .arg(picture.name(), reason.text));
        return QString();
    }
    const QString name = MRV::cleanFileName(picture.name());
    const QString file = (name.isEmpty() ? QStringLiteral("image") : name) + u'.' + suffix;
    return files->write(QDir(dir).filePath(file), bytes, error);
}

struct WrittenPicture
{
    QString id;
    QString file; // empty where it could not be written
    MRVError reason; // why
};

// Puts the files in their places; leaves those that are there, and tells of the others.
void dropFailed(QVector<WrittenPicture> *written, MRVPictureFiles *files, QVector<MRVError> *failed)
{
    const QMap<QString, MRVError> missing = files->commit();
    QVector<WrittenPicture> kept;
    for (const WrittenPicture &picture : qAsConst(*written)) {
        if (!picture.file.isEmpty() && !missing.contains(picture.file)) {
            kept.append(picture);
        } else if (failed) {
            failed->append(picture.file.isEmpty() ? picture.reason : missing.value(picture.file));
        }
    }
    *written = kept;
}

} // namespace

QStringList MRVTextXhtmlExporter::typeNames()
{
    QStringList names;
    for (const auto &row : types) {
        names.append(QLatin1String(row.name));
    }
    return names;
}

bool MRVTextXhtmlExporter::typeNamed(const QString &name, ExportType *type)
{
    const int index = typeNames().indexOf(name);
    if (index >= 0) {
        *type = types[index].type;
    }
    return index >= 0;
}

QString MRVTextXhtmlExporter::suffix(ExportType type)
{
    return QLatin1String(types[type].suffix);
}

MRVTextXhtmlExporter::MRVTextXhtmlExporter(const QTextDocument *document)
    : m_document(document)
{
}

QString MRVTextXhtmlExporter::pageText(const QString &html, ExportType type, const QString &title)
{
    if (type == Html) {
        return html;
    }
    MRVPageWriter writer(type, MRVHtmlDialect::Xhtml11, &m_styles);
    writer.setLanguage(m_language);
    return writer.write(html, m_document->metaInformation(QTextDocument::DocumentTitle), title);
}

QString MRVTextXhtmlExporter::toText(ExportType type, const QString &title)
{
    if (!m_document) {
        return QString();
    }
    return pageText(mrvDocumentHtml(*m_document), type,
                    title.isEmpty() ? mrvDocumentTitle(*m_document, tr("Untitled")) : title);
}

bool MRVTextXhtmlExporter::toFile(ExportType type, const QString &path, bool exportImages,
                                  const QString &imageDir, MRVErrorSink error)
{
    if (!m_document) {
        return MRV::fail(error, tr("There is no document to export to %1.").arg(path));
    }
    MRVProgressMeter meter(m_progress);
    meter.begin(250, 1);
    QString html = mrvDocumentHtml(*m_document);
    MRVPictureFiles files;
    QString newFolder;
    m_unwrittenImages.clear();
    if (!meter.advance()) {
        return MRV::fail(error, MRVProgressMeter::cancelled());
    }
    if (exportImages) {
        const QString folder = imageDir.isEmpty() ? calcImageDir(path) : imageDir;
        newFolder = QFileInfo::exists(folder) ? QString() : folder;
        m_pageDir = QFileInfo(path).absolutePath();
        const auto write = m_keepsPictures ? &MRVTextXhtmlExporter::writeKeptImages
                                           : &MRVTextXhtmlExporter::writeImages;
        (this->*write)(folder, &html, imageFormatOf(type), &files, &meter, &m_unwrittenImages);
        m_pageDir.clear();
    }
    const QString title = mrvDocumentTitle(*m_document, QFileInfo(path).completeBaseName());
    meter.begin(1000, 1);
    const QString text = meter.isCancelled() ? QString() : pageText(html, type, title);
    const bool ok = meter.advance() ? MRVCoreUtil::WriteUnicodeTextFile(text, path, error, "UTF-8")
                                    : MRV::fail(error, MRVProgressMeter::cancelled());
    if (!ok) {
        removeFiles(files.created(), newFolder);
    }
    return ok;
}

bool MRVTextXhtmlExporter::toHtml(const QString &path, bool exportImages)
{
    return toFile(Html, path, exportImages);
}

bool MRVTextXhtmlExporter::toXhtml(const QString &path, bool exportImages)
{
    return toFile(Xhtml, path, exportImages);
}

bool MRVTextXhtmlExporter::toEBookXhtml(ExportType type, const QString &path,
                                        const QHash<QString, QString> &links, StyleList *styles,
                                        const QTextDocument *document, MRVErrorSink error)
{
    if (!document || type == Html || type == Xhtml) {
        return MRV::fail(error, tr("There is no e-book page to export to %1.").arg(path));
    }
    const QLatin1String suffix(".xhtml");
    const QString file = path.endsWith(suffix, Qt::CaseInsensitive) ? path : path + suffix;
    const QString folder = QFileInfo(file).absolutePath() + QLatin1String("/images");
    const QString newFolder = QFileInfo::exists(folder) ? QString() : folder;
    MRVTextXhtmlExporter exporter(document);
    exporter.m_pageDir = QFileInfo(file).absolutePath();
    QString html = mrvDocumentHtml(*document);
    MRVPictureFiles files;
    MRVProgressMeter meter({});
    exporter.writeImages(folder, &html, imageFormatOf(type), &files, &meter);

    MRVPageWriter writer(type, MRVHtmlDialect::Xhtml11, styles);
    writer.reserveId(QStringLiteral("start"));
    writer.setLinks(links); // before anchors are renamed: the table holds the document's own names
    html = writer.write(html, document->metaInformation(QTextDocument::DocumentTitle),
                        mrvDocumentTitle(*document, QFileInfo(file).completeBaseName()));
    addDocAnchor(&html);
    const bool ok = MRVCoreUtil::WriteUnicodeTextFile(html, file, error, "UTF-8");
    if (!ok) {
        removeFiles(files.created(), newFolder);
    }
    return ok;
}

bool MRVTextXhtmlExporter::toEPubXhtml(const QString &path, const QHash<QString, QString> &links,
                                       StyleList *styles, const QTextDocument *document)
{
    return toEBookXhtml(EPub, path, links, styles, document);
}

bool MRVTextXhtmlExporter::toKindle(const QString &path, const QHash<QString, QString> &links,
                                    StyleList *styles, const QTextDocument *document)
{
    return toEBookXhtml(Kindle, path, links, styles, document);
}

bool MRVTextXhtmlExporter::toKindleKF8(const QString &path, const QHash<QString, QString> &links,
                                       StyleList *styles, const QTextDocument *document)
{
    return toEBookXhtml(KindleKF8, path, links, styles, document);
}

QString MRVTextXhtmlExporter::calcImageDir(const QString &path)
{
    const QFileInfo info(path);
    return info.dir().filePath(info.baseName() + QLatin1String("_files"));
}

QString MRVTextXhtmlExporter::writeImage(const QString &dir, const QTextImageFormat &imageFormat,
                                         const char *format, MRVPictureFiles *files,
                                         MRVErrorSink error) const
{
    if (!m_document) {
        return QString();
    }
    const QImage picture = MRVTextFormat::image(*m_document, imageFormat);
    QString name = MRV::cleanFileName(MRVTextFormat::imageName(imageFormat));
    if (picture.isNull()) {
        return QString();
    }
    if (name.isEmpty()) {
        name = QStringLiteral("image");
    }
    const QString fileName = name + u'.' + QString::fromLatin1(format).toLower();
    const QByteArray bytes = MRVTextFormat::imageFileBytes(fileName, imageFormat, picture);
    if (bytes.isEmpty()) {
        MRV::fail(
            error, MRVErrorKind::Unsupported,
            MRVTextFormat::tr("The picture cannot be encoded for the file \"%1\".").arg(fileName));
        return QString();
    }
    return files->write(QDir(dir).filePath(fileName), bytes, error);
}

// The file as the page refers to it. Only characters that would end a path or begin an escape are
// encoded, so that people can read the name.
QString MRVTextXhtmlExporter::imageReference(const QString &file) const
{
    const QFileInfo info(file);
    QString reference = m_pageDir.isEmpty()
        ? info.dir().dirName() + u'/' + info.fileName()
        : QDir(m_pageDir).relativeFilePath(info.absoluteFilePath());
    reference.replace(u'%', QLatin1String("%25"))
        .replace(u'#', QLatin1String("%23"))
        .replace(u'?', QLatin1String("%3F"));
    return reference;
}

QString MRVTextXhtmlExporter::exportImage(const QString &dir, QString *html,
                                          const QTextImageFormat &imageFormat,
                                          const char *format) const
{
    MRVPictureFiles files;
    const QString file = writeImage(dir, imageFormat, format, &files);
    if (!files.commit().isEmpty()) {
        return QString();
    }
    if (!file.isEmpty() && html) {
        MRVHtmlText::replaceImageSources(
            html, {{MRVTextFormat::imageResourceId(imageFormat), imageReference(file)}});
    }
    return file;
}

QStringList MRVTextXhtmlExporter::exportDocImages(const QString &dir, QString *html,
                                                  const char *format) const
{
    MRVPictureFiles files;
    MRVProgressMeter meter({});
    return writeImages(dir, html, format, &files, &meter);
}

QStringList MRVTextXhtmlExporter::writeImages(const QString &dir, QString *html, const char *format,
                                              MRVPictureFiles *files, MRVProgressMeter *meter,
                                              QVector<MRVError> *failed) const
{
    QStringList paths;
    if (!m_document) {
        return paths;
    }
    QVector<WrittenPicture> written;
    QSet<QString> seen;
    const QList<QTextImageFormat> formats = MTextDoc::imageFormats(*m_document);
    meter->begin(750, formats.size());
    for (const QTextImageFormat &imageFormat : formats) {
        if (!meter->advance()) {
            return QStringList();
        }
        const QString id = MRVTextFormat::imageResourceId(imageFormat);
        if (seen.contains(id) || MRVTextFormat::image(*m_document, imageFormat).isNull()) {
            continue;
        }
        seen.insert(id);
        QDir().mkpath(dir);
        MRVError reason;
        const QString file = writeImage(dir, imageFormat, format, files, &reason);
        written.append({id, file, reason});
    }
    dropFailed(&written, files, failed);
    QHash<QString, QString> references;
    for (const WrittenPicture &picture : qAsConst(written)) {
        references.insert(picture.id, imageReference(picture.file));
        paths.append(picture.file);
    }
    if (html) {
        MRVHtmlText::replaceImageSources(html, references);
    }
    return paths;
}

QStringList MRVTextXhtmlExporter::writeKeptImages(const QString &dir, QString *html,
                                                  const char *format, MRVPictureFiles *files,
                                                  MRVProgressMeter *meter,
                                                  QVector<MRVError> *failed) const
{
    const MRVDocumentPictures pictures(*m_document, meter);
    QVector<WrittenPicture> written; // by their place as ids
    meter->begin(750, pictures.all().size());
    for (const MRVDocumentPicture &picture : pictures.all()) {
        if (!meter->advance()) {
            return QStringList();
        }
        QDir().mkpath(dir);
        MRVError reason;
        const QString file = writeKept(picture, dir, format, files, &reason);
        written.append({QString::number(written.size()), file, reason});
    }
    dropFailed(&written, files, failed);
    QStringList paths;
    QHash<QString, QString> byPlace;
    for (const WrittenPicture &picture : qAsConst(written)) {
        byPlace.insert(picture.id, imageReference(picture.file));
        paths.append(picture.file);
    }
    QHash<QString, QString> byId;
    const QSet<QString> ids = MTextDoc::imageResourceIds(*m_document);
    for (const QString &id : ids) {
        const QString reference = byPlace.value(QString::number(pictures.indexOf(id)));
        if (!reference.isEmpty()) {
            byId.insert(id, reference);
        }
    }
    MRVHtmlText::replaceImageSources(html, byId);
    return paths;
}
