#include "publish/mrvpagepublisher.h"

#include "util/mrvfailure.h"
#include "util/mrvlocalfile.h"
#include "xhtml/mrvexportcheck.h"
#include "xhtml/mrvhtmltext.h"

#include "core/mrvcoreutil.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextDocument>
#include <QUrl>

#include <filesystem>
#include <system_error>

namespace {

const QLatin1String SheetName("css/stylesheet.css");
// A file's name holds no slash, so that the names can be separated and cannot end the comment.
const QLatin1String SheetBegin("/* Styles of ");
const QLatin1String SheetEnd(" */\n");
const QLatin1String NameSeparator(" / ");

/** Gives a document another title for the time of an export; an empty one leaves its own. */
class TitleChange
{
public:
    TitleChange(QTextDocument *document, const QString &title)
        : m_document(document)
        , m_before(document->metaInformation(QTextDocument::DocumentTitle))
    {
        if (!title.isEmpty()) {
            document->setMetaInformation(QTextDocument::DocumentTitle, title);
        }
    }
    ~TitleChange() { m_document->setMetaInformation(QTextDocument::DocumentTitle, m_before); }
    TitleChange(const TitleChange &) = delete;
    TitleChange &operator=(const TitleChange &) = delete;

private:
    QTextDocument *m_document;
    const QString m_before;
};

// A path as the source of an image in a page.
QString asSource(QString path)
{
    path.replace(u'%', QLatin1String("%25"))
        .replace(u'#', QLatin1String("%23"))
        .replace(u'?', QLatin1String("%3F"));
    return path.toHtmlEscaped();
}

// Changes the values of an attribute in a page, as they stand there.
template<typename Changed>
bool replaceValues(const QString &page, const QString &attribute, const Changed &changed,
                   MRVErrorSink error)
{
    const QRegularExpression source(QStringLiteral(" %1=\"([^\"]*)\"").arg(attribute));
    MRVError unreadable;
    const QString html = MRVCoreUtil::ReadUnicodeTextFile(page, &unreadable);
    if (unreadable) {
        return MRV::fail(error, unreadable);
    }
    QString result;
    int done = 0;
    for (auto it = source.globalMatch(html); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        result += html.midRef(done, match.capturedStart(1) - done) + changed(match.captured(1));
        done = match.capturedEnd(1);
    }
    result += html.midRef(done);
    return result == html || MRVCoreUtil::WriteUnicodeTextFile(result, page, error);
}

// The pages that a style sheet was written for; none when its first line does not tell.
QStringList pagesOf(const QString &sheet)
{
    const QString text = MRVCoreUtil::ReadUnicodeTextFile(sheet);
    const int end = text.indexOf(SheetEnd);
    return text.startsWith(SheetBegin) && end > 0
        ? text.mid(SheetBegin.size(), end - SheetBegin.size()).split(NameSeparator)
        : QStringList();
}

// The names in a folder, in order; none where it does not exist. To QDir, a folder that cannot be
// read is an empty one.
bool listFiles(const QString &folder, QStringList *names, MRVErrorSink error)
{
    std::error_code code;
    std::filesystem::directory_iterator file(QFile::encodeName(folder).constData(), code);
    for (; !code && file != std::filesystem::directory_iterator(); file.increment(code)) {
        names->append(QFile::decodeName(file->path().filename().c_str()));
    }
    names->sort();
    return !code || code == std::errc::no_such_file_or_directory
        || MRV::fail(error, folder, MRVError::ofSystem(code.value()));
}

} // namespace

MRVPagePublisher::MRVPagePublisher(const MRVPageOptions &options)
    : m_options(options)
{
}

QString MRVPagePublisher::pageText(const MRVPageOptions &options, QTextDocument *document,
                                   const QString &language)
{
    if (!document) {
        return QString();
    }
    const TitleChange title(document, options.title);
    MRVTextXhtmlExporter exporter(document);
    exporter.setLanguage(options.language.isEmpty() ? language : options.language);
    return exporter.toText(options.type);
}

bool MRVPagePublisher::add(QTextDocument *document, const QString &language, const QString &file,
                           MRVErrorSink error)
{
    if (!document) {
        return MRV::fail(error, file,
                         {MRVErrorKind::Other, tr("there is no document to be written")});
    }
    const QString stage = m_files.newFolder(file, error);
    if (stage.isEmpty()) {
        return false;
    }
    const QFileInfo target(file);
    Folder &folder = m_folders[QFileInfo(target.path()).canonicalFilePath()];
    if (folder.path.isEmpty()) {
        folder.path = target.path();
    }
    const QString page = QDir(stage).filePath(target.fileName());
    MRVError reason;
    if (!writePage(document, language, page, &folder, &reason)
        || !addPictures(page, folder, &reason) || !checkPage(*document, page, file, &reason)) {
        // As the caller knows it.
        return MRV::fail(error, reason.kind, reason.text.replace(stage, target.path()));
    }
    m_pages.append({page, file});
    return true;
}

bool MRVPagePublisher::writePage(QTextDocument *document, const QString &language,
                                 const QString &page, Folder *folder, MRVErrorSink error) const
{
    const TitleChange title(document, m_options.title);
    MRVTextXhtmlExporter exporter(document);
    exporter.setLanguage(m_options.language.isEmpty() ? language : m_options.language);
    exporter.setStyles(folder->styles);
    exporter.setKeepsPictures(true);
    exporter.setProgress(m_progress);
    if (!exporter.toFile(m_options.type, page, m_options.images, QString(), error)) {
        return false;
    }
    if (!exporter.unwrittenImages().isEmpty()) {
        return MRV::fail(error, exporter.unwrittenImages().constFirst());
    }
    folder->styles = exporter.styles();
    folder->pages.append(QFileInfo(page).fileName());
    return true;
}

// Adds the pictures that were written with a page. Where one gets another name, the page is
// changed to match.
bool MRVPagePublisher::addPictures(const QString &page, const Folder &folder, MRVErrorSink error)
{
    const QDir stage(QFileInfo(page).path());
    const QDir images(MRVTextXhtmlExporter::calcImageDir(page));
    QHash<QString, QString> renamed;
    QStringList names;
    if (!listFiles(images.path(), &names, error)) {
        return false;
    }
    for (const QString &name : qAsConst(names)) {
        const QString staged = images.filePath(name);
        const QString wanted = stage.relativeFilePath(staged);
        const QString target = pictureTarget(staged, QDir(folder.path).filePath(wanted));
        const QString given = images.dirName() + u'/' + QFileInfo(target).fileName();
        if (given != wanted) {
            renamed.insert(asSource(wanted), asSource(given));
        }
    }
    const auto changed = [&renamed](const QString &old) { return renamed.value(old, old); };
    return renamed.isEmpty() || replaceValues(page, QStringLiteral("src"), changed, error);
}

// The page is read as it lies on the disk.
bool MRVPagePublisher::checkPage(const QTextDocument &document, const QString &page,
                                 const QString &file, MRVErrorSink error)
{
    MRVError unreadable;
    const QString html = MRVCoreUtil::ReadUnicodeTextFile(page, &unreadable);
    if (unreadable) {
        return MRV::fail(error, unreadable);
    }
    MRVExportCheck check;
    check.addDocument(document);
    check.addPage(html);
    const QStringList losses = check.losses();
    for (const QString &loss : losses) {
        m_losses.append(QStringLiteral("%1: %2").arg(file, loss));
    }
    return true;
}

// Pictures with the same bytes are one file.
QString MRVPagePublisher::pictureTarget(const QString &staged, const QString &wanted)
{
    MRVNumberedFiles::Rules rules;
    rules.holder = [this](const QString &path) {
        const QString holder = m_pictures.value(path, path);
        const QFileInfo there(holder);
        return there.exists() || there.isSymLink() ? holder : QString();
    };
    rules.digest = [&staged] { return MRVNumberedFiles::digestOf(staged); };
    rules.mayUse = [](const QString &) { return true; };
    const MRVNumberedFiles::Place place = m_numbered.find(wanted, rules);
    if (!m_pictures.contains(place.path)) {
        m_pictures.insert(place.path, place.isFree ? staged : place.path);
        m_written.append(place.path);
        if (place.isFree) {
            m_files.add(staged, place.path);
        }
    }
    return place.path;
}

bool MRVPagePublisher::mayReplaceSheet(const QString &sheet, const Folder &folder,
                                       MRVErrorSink error)
{
    if (!QFileInfo(sheet).isFile()) {
        return true; // publish() refuses what cannot be replaced
    }
    const QStringList served = pagesOf(sheet);
    for (const QString &page : served) {
        if (!folder.pages.contains(page) && QFileInfo::exists(QDir(folder.path).filePath(page))) {
            return MRV::fail(error, sheet,
                             {MRVErrorKind::InUse,
                              tr("the style sheet belongs to %1; choose another folder, or export "
                                 "these pages together")
                                  .arg(page)});
        }
    }
    return !served.isEmpty()
        || MRV::fail(
            error, sheet,
            {MRVErrorKind::InUse,
             tr("this style sheet was not written for these pages; choose another folder")});
}

bool MRVPagePublisher::addStyleSheet(const Folder &folder, MRVErrorSink error)
{
    const QString sheet = QDir(folder.path).filePath(SheetName);
    const QString stage =
        m_files.newFolder(QDir(folder.path).filePath(folder.pages.constFirst()), error);
    if (stage.isEmpty() || !mayReplaceSheet(sheet, folder, error)) {
        return false;
    }
    const QString staged = QDir(stage).filePath(QFileInfo(sheet).fileName());
    const QString text = SheetBegin + folder.pages.join(NameSeparator) + SheetEnd
        + MRVTextXhtmlExporter::styleSheetText(folder.styles);
    m_files.add(staged, sheet);
    m_written.append(sheet);
    MRVError reason;
    return MRVCoreUtil::WriteUnicodeTextFile(text, staged, &reason)
        || MRV::fail(error, reason.kind, reason.text.replace(staged, sheet));
}

void MRVPagePublisher::setSource(const QString &file, const QString &source)
{
    m_sources.insert(file, source);
    m_targets.insert(MRV::fileIdentity(source), file);
}

// Where a link of a page leads once all pages have their new names.
QString MRVPagePublisher::newLink(const QString &link, const QString &page) const
{
    const QString address = MRVHtmlText::unescaped(link);
    const QString file = address.section(u'#', 0, 0);
    if (file.isEmpty() || MRV::isElsewhere(address)) {
        return link;
    }
    const QString folder = QFileInfo(m_sources.value(page)).absolutePath();
    const QString target = m_targets.value(MRV::fileIdentity(MRV::localFile(file, folder)));
    if (target.isEmpty()) {
        return link;
    }
    const QDir from(QFileInfo(page).absolutePath());
    const QString path = from.relativeFilePath(QFileInfo(target).absoluteFilePath());
    return QString(QString::fromLatin1(QUrl::toPercentEncoding(path, "/"))
                   + address.mid(file.size()))
        .toHtmlEscaped();
}

bool MRVPagePublisher::publish(QStringList *written, MRVErrorSink error)
{
    for (const auto &page : qAsConst(m_pages)) {
        const auto changed = [&](const QString &link) { return newLink(link, page.second); };
        if (m_sources.contains(page.second)
            && !replaceValues(page.first, QStringLiteral("href"), changed, error)) {
            return false;
        }
    }
    for (const auto &folder : m_folders) {
        if (m_options.styleSheet && !addStyleSheet(folder.second, error)) {
            return false;
        }
    }
    for (const auto &page : qAsConst(m_pages)) {
        m_files.add(page.first, page.second);
        m_written.append(page.second);
    }
    if (!m_files.publish(error)) {
        return false;
    }
    if (written) {
        *written = m_written;
    }
    return true;
}
