#include "pageexport.h"

#include "documentinput.h"

#include "core/mrvcoreutil.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextDocument>

namespace {

const QLatin1String SheetName("css/stylesheet.css");
// A file's name holds no slash, so that the names can be told apart and cannot end the comment.
const QLatin1String SheetBegin("/* Styles of ");
const QLatin1String SheetEnd(" */\n");
const QLatin1String NameSeparator(" / ");

void prepare(const PageOptions &options, const DocumentInput &input, MRVTextXhtmlExporter *exporter)
{
    if (!options.title.isEmpty()) {
        input.document->setMetaInformation(QTextDocument::DocumentTitle, options.title);
    }
    exporter->setLanguage(options.language.isEmpty() ? input.language : options.language);
}

bool haveSameBytes(const QString &one, const QString &other)
{
    QFile first(one);
    QFile second(other);
    return QFileInfo(other).isFile() && first.size() == second.size()
        && first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly)
        && first.readAll() == second.readAll();
}

QString numbered(const QString &file, int number)
{
    if (number == 0) {
        return file;
    }
    const QFileInfo info(file);
    return QStringLiteral("%1/%2-%3.%4")
        .arg(info.path(), info.completeBaseName(), QString::number(number), info.suffix());
}

// A path as the source of an image in a page.
QString asSource(QString path)
{
    path.replace(u'%', QLatin1String("%25"))
        .replace(u'#', QLatin1String("%23"))
        .replace(u'?', QLatin1String("%3F"));
    return path.toHtmlEscaped();
}

bool replaceSources(const QString &page, const QHash<QString, QString> &sources, QString *error)
{
    static const QRegularExpression source(QStringLiteral(" src=\"([^\"]*)\""));
    const QString html = MRVCoreUtil::ReadUnicodeTextFile(page);
    QString result;
    int done = 0;
    for (auto it = source.globalMatch(html); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        const QString old = match.captured(1);
        result += html.midRef(done, match.capturedStart(1) - done) + sources.value(old, old);
        done = match.capturedEnd(1);
    }
    result += html.midRef(done);
    return MRVCoreUtil::WriteUnicodeTextFile(result, page, error);
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

bool mayReplaceSheet(const QString &sheet, const QString &folder, const QStringList &pages,
                     QString *error)
{
    if (!QFileInfo(sheet).isFile()) {
        return true; // or what is there cannot be replaced anyhow
    }
    const QStringList served = pagesOf(sheet);
    for (const QString &page : served) {
        if (!pages.contains(page) && QFileInfo::exists(QDir(folder).filePath(page))) {
            *error = QStringLiteral("%1: the style sheet belongs to %2; choose another folder "
                                    "with -o, or export these pages together")
                         .arg(sheet, page);
            return false;
        }
    }
    if (served.isEmpty()) {
        *error = QStringLiteral("%1: this style sheet was not written for these pages; choose "
                                "another folder with -o")
                     .arg(sheet);
    }
    return !served.isEmpty();
}

} // namespace

QString pageText(const PageOptions &options, const DocumentInput &input)
{
    MRVTextXhtmlExporter exporter(input.document.get());
    prepare(options, input, &exporter);
    return exporter.toText(options.type);
}

PageExport::PageExport(const PageOptions &options)
    : m_options(options)
{
}

bool PageExport::add(const DocumentInput &input, const QString &file, QString *error)
{
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
    if (!writePage(input, page, &folder, error) || !addPictures(page, folder, error)) {
        error->replace(stage, target.path()); // where the user wants the file
        return false;
    }
    m_pages.append({page, file});
    return true;
}

bool PageExport::writePage(const DocumentInput &input, const QString &page, Folder *folder,
                           QString *error) const
{
    MRVTextXhtmlExporter exporter(input.document.get());
    prepare(m_options, input, &exporter);
    exporter.setStyles(folder->styles);
    if (!exporter.toFile(m_options.type, page, m_options.images, QString(), error)) {
        return false;
    }
    if (!exporter.unwrittenImages().isEmpty()) {
        *error = exporter.unwrittenImages().constFirst();
        return false;
    }
    folder->styles = exporter.styles();
    folder->pages.append(QFileInfo(page).fileName());
    return true;
}

// Takes up the pictures that were written with a page. Where one gets another name, the page
// follows.
bool PageExport::addPictures(const QString &page, const Folder &folder, QString *error)
{
    const QDir stage(QFileInfo(page).path());
    const QDir images(MRVTextXhtmlExporter::calcImageDir(page));
    QHash<QString, QString> renamed;
    const QStringList names = images.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString &name : names) {
        const QString staged = images.filePath(name);
        const QString wanted = stage.relativeFilePath(staged);
        const QString target = pictureTarget(staged, QDir(folder.path).filePath(wanted));
        const QString given = images.dirName() + u'/' + QFileInfo(target).fileName();
        if (given != wanted) {
            renamed.insert(asSource(wanted), asSource(given));
        }
    }
    return renamed.isEmpty() || replaceSources(page, renamed, error);
}

QString PageExport::pictureTarget(const QString &staged, const QString &wanted)
{
    for (int number = 0;; ++number) {
        const QString target = numbered(wanted, number);
        const QString holder = m_pictures.value(target, target);
        const QFileInfo there(holder);
        const bool free = !there.exists() && !there.isSymLink();
        if (!free && !haveSameBytes(staged, holder)) {
            continue;
        }
        if (!m_pictures.contains(target)) {
            m_pictures.insert(target, free ? staged : target);
            m_written.append(target);
        }
        if (free) {
            m_files.add(staged, target);
        }
        return target;
    }
}

bool PageExport::addStyleSheet(const Folder &folder, QString *error)
{
    const QString sheet = QDir(folder.path).filePath(SheetName);
    const QString stage =
        m_files.newFolder(QDir(folder.path).filePath(folder.pages.constFirst()), error);
    if (stage.isEmpty() || !mayReplaceSheet(sheet, folder.path, folder.pages, error)) {
        return false;
    }
    const QString staged = QDir(stage).filePath(QFileInfo(sheet).fileName());
    const QString text = SheetBegin + folder.pages.join(NameSeparator) + SheetEnd
        + MRVTextXhtmlExporter::styleSheetText(folder.styles);
    m_files.add(staged, sheet);
    m_written.append(sheet);
    if (!MRVCoreUtil::WriteUnicodeTextFile(text, staged, error)) {
        error->replace(staged, sheet);
        return false;
    }
    return true;
}

bool PageExport::publish(QStringList *written, QString *error)
{
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
    *written = m_written;
    return true;
}
