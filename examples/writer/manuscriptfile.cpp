#include "manuscriptfile.h"

#include <archive/mrvdocumentarchive.h>
#include <core/mrvcoreutil.h>
#include <core/mrverror.h>
#include <core/mrvfilewriter.h>
#include <gui/mrvguiutil.h>
#include <input/mrvguardeddocument.h>
#include <manuscript/mrvmanuscriptreader.h>
#include <markdown/mrvfrontmatter.h>
#include <publish/mrvpagepublisher.h>
#include <publish/mrvtextpublisher.h>
#include <screenplay/mrvscriptdocument.h>
#include <screenplay/mrvscriptfile.h>
#include <text/mrvnestedlists.h>
#include <textexport/mrvdocumentlosses.h>
#include <textexport/mrvplaintextwriter.h>

#include <QCryptographicHash>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

struct FormatRow
{
    ManuscriptFile::Format format;
    const char *suffixes; // the one that is written first
    const char *name;
};

constexpr FormatRow formats[] = {
    {ManuscriptFile::Native, "mrvdoc", QT_TRANSLATE_NOOP("ManuscriptFile", "Morvane document")},
    {ManuscriptFile::Html, "html htm xhtml", QT_TRANSLATE_NOOP("ManuscriptFile", "HTML page")},
    {ManuscriptFile::Markdown, "md markdown", QT_TRANSLATE_NOOP("ManuscriptFile", "Markdown")},
    {ManuscriptFile::Text, "txt", QT_TRANSLATE_NOOP("ManuscriptFile", "Plain text")},
    {ManuscriptFile::Fountain, "fountain", QT_TRANSLATE_NOOP("ManuscriptFile", "Fountain script")},
    {ManuscriptFile::FinalDraft, "fdx", QT_TRANSLATE_NOOP("ManuscriptFile", "Final Draft script")},
};

constexpr QLatin1String scriptModeProperty("script-mode");

QStringList suffixes(const FormatRow &row)
{
    return QString::fromLatin1(row.suffixes).split(u' ');
}

QString filterOf(const FormatRow &row)
{
    return MRVGuiUtil::createFormatFilter(QCoreApplication::translate("ManuscriptFile", row.name),
                                          suffixes(row));
}

std::unique_ptr<QTextDocument> readScript(const QString &path, const MRVScriptMode &mode,
                                          MRVScriptFile *file, QStringList *notes, MRVError *error)
{
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path, error);
    if (*error || !file->read(bytes, MRVScriptFile::formatOfFile(path), error)) {
        return nullptr;
    }
    *notes = file->losses();
    auto document = std::make_unique<MRVGuardedDocument>();
    MRVScriptDocument::setScript(document.get(), file->script(), mode);
    return document;
}

bool isXhtml(const QString &path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("xhtml"), Qt::CaseInsensitive) == 0;
}

// Qt's own pages, which the library writes, hold nothing that the document has not.
bool isForeignPage(const QByteArray &page)
{
    return !page.contains("<meta name=\"qrichtext\"");
}

std::unique_ptr<QTextDocument> readManuscript(const QString &path, MRVMarkdownHead *head,
                                              bool *isForeign, QStringList *notes, MRVError *error)
{
    MRVManuscriptReader reader;
    reader.setMissingPictures(MRVManuscriptReader::Keep);
    MRVManuscript manuscript;
    bool isRead = reader.read(path, &manuscript);
    if (!isRead && reader.error() == MRVManuscriptReader::DecodingError) {
        const QString reason = reader.errorString();
        reader.setEncoding(QStringLiteral("windows-1252"));
        isRead = reader.read(path, &manuscript);
        notes->append(ManuscriptFile::tr("%1; read as Windows-1252").arg(reason));
    }
    if (!isRead) {
        *error = {reader.errorKind(), reader.errorString()};
        return nullptr;
    }
    *notes += manuscript.readingNotes();
    *head = manuscript.head();
    *isForeign = manuscript.format == MRVManuscript::Html && isForeignPage(manuscript.bytes);
    MRVNestedLists::toLevels(manuscript.document.get());
    return std::move(manuscript.document);
}

} // namespace

QString ManuscriptFile::name() const
{
    return m_path.isEmpty() ? tr("Untitled") : QFileInfo(m_path).fileName();
}

ManuscriptFile::Format ManuscriptFile::formatOf(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    const auto row = std::find_if(std::begin(formats), std::end(formats),
                                  [&](const FormatRow &r) { return suffixes(r).contains(suffix); });
    return row == std::end(formats) ? Unknown : row->format;
}

QString ManuscriptFile::saveFilters()
{
    QStringList filters;
    std::transform(std::begin(formats), std::end(formats), std::back_inserter(filters), filterOf);
    return filters.join(QLatin1String(";;"));
}

QString ManuscriptFile::openFilters()
{
    QStringList all{QStringLiteral("docx"), QStringLiteral("odt"), QStringLiteral("rtf")};
    for (const FormatRow &row : formats) {
        all.append(suffixes(row));
    }
    return MRVGuiUtil::createFormatFilter(tr("Manuscripts"), all) + QLatin1String(";;")
        + MRVGuiUtil::createFormatFilter(tr("All files"), {});
}

QString ManuscriptFile::suffixOf(const QString &filter)
{
    const auto row = std::find_if(std::begin(formats), std::end(formats),
                                  [&](const FormatRow &r) { return filterOf(r) == filter; });
    return suffixes(row == std::end(formats) ? formats[0] : *row).first();
}

std::unique_ptr<QTextDocument> ManuscriptFile::read(const QString &path, MRVScriptMode *mode,
                                                    QStringList *notes, MRVError *error)
{
    const Format format = formatOf(path);
    MRVDocumentArchive archive;
    MRVMarkdownHead head;
    MRVScriptFile script;
    bool isForeign = false;
    std::unique_ptr<QTextDocument> document;
    if (format == Native) {
        auto read = std::make_unique<MRVGuardedDocument>();
        if (archive.read(path, read.get(), error)) {
            *notes = archive.notes();
            *mode = scriptMode(QString::fromUtf8(archive.property(scriptModeProperty)));
            head = MRVFrontMatter::head(archive.metadata());
            document = std::move(read);
        }
    } else if (isScript(format)) {
        if (mode->elements().isEmpty()) {
            mode->loadFactoryDefaults();
        }
        document = readScript(path, mode->forEditor(), &script, notes, error);
    } else {
        *mode = MRVScriptMode();
        document = readManuscript(path, &head, &isForeign, notes, error);
        archive.setMetadata(head.entries);
    }
    if (document) {
        m_archive = archive;
        m_head = head;
        m_script = script;
        m_isForeignPage = isForeign;
        m_mode = *mode;
        m_path = QFileInfo(path).absoluteFilePath();
        m_format = format;
        m_digest = digestOf(path);
    }
    return document;
}

MRVScriptMode ManuscriptFile::scriptMode(const QString &name)
{
    const auto modes = MRVScriptMode::systemModes();
    return modes.contains(name) ? modes.value(name) : MRVScriptMode::userModes().value(name);
}

MRVDocumentArchive ManuscriptFile::archive(const MRVScriptMode &mode) const
{
    MRVDocumentArchive archive = m_archive;
    archive.setProperty(scriptModeProperty,
                        mode.elements().isEmpty() ? QByteArray() : mode.name().toUtf8());
    return archive;
}

bool ManuscriptFile::write(QTextDocument *document, const QString &path, const MRVScriptMode &mode,
                           MRVError *error)
{
    const Format format = formatOf(path);
    m_notes.clear();
    bool isWritten = false;
    switch (format) {
    case Native:
        m_archive = archive(mode);
        isWritten = m_archive.write(*document, path, error);
        m_notes = isWritten ? m_archive.notes() : QStringList();
        break;
    case Html: {
        MRVPageOptions options;
        options.type = isXhtml(path) ? MRVTextXhtmlExporter::Xhtml : MRVTextXhtmlExporter::Html;
        MRVPagePublisher publisher(options);
        isWritten = publisher.add(document, m_head.language, path, error)
            && publisher.publish(nullptr, error);
        m_isForeignPage = m_isForeignPage && !isWritten;
        break;
    }
    case Markdown:
        isWritten = MRVTextPublisher::writeMarkdown(*document, m_head, path, nullptr, error);
        break;
    case Text: {
        const QString text = MRVPlainTextWriter(*document).text();
        isWritten = MRVFileWriter::write(path, text.toUtf8(), error);
        break;
    }
    case Fountain:
    case FinalDraft: {
        const QByteArray bytes = scriptBytes(*document, path, mode);
        isWritten = MRVFileWriter::write(path, bytes, error)
            && m_script.read(bytes, MRVScriptFile::formatOfFile(path), error);
        break;
    }
    case Unknown:
        *error = {MRVErrorKind::Unsupported, tr("%1 has no suffix of a format.").arg(path)};
        break;
    }
    if (isWritten) {
        m_mode = mode.elements().isEmpty() ? m_mode : mode;
        m_path = QFileInfo(path).absoluteFilePath();
        m_format = format;
        m_digest = digestOf(path);
    }
    return isWritten;
}

// In the document that was read, where it can be changed in place: it holds more than the script.
QByteArray ManuscriptFile::scriptBytes(const QTextDocument &document, const QString &path,
                                       const MRVScriptMode &mode, bool *isInPlace) const
{
    // Without a mode, the elements are still those with which it was read.
    const MRVScriptMode &elements = mode.elements().isEmpty() ? m_mode : mode;
    const MRVFountainScript script = MRVScriptDocument::script(document, elements.forEditor());
    const MRVScriptFile::Format format = MRVScriptFile::formatOfFile(path);
    QByteArray bytes;
    if (m_script.format() == format) {
        MRVScriptFile file = m_script;
        file.setScript(script);
        bytes = file.revised();
    }
    if (isInPlace) {
        *isInPlace = !bytes.isNull();
    }
    return bytes.isNull() ? MRVScriptFile::toByteArray(script, format) : bytes;
}

bool ManuscriptFile::isChangedOutside() const
{
    return QFileInfo::exists(m_path) && digestOf(m_path) != m_digest;
}

QByteArray ManuscriptFile::digestOf(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    return file.open(QIODevice::ReadOnly) && hash.addData(&file) ? hash.result() : QByteArray();
}

void ManuscriptFile::setOrigin(const QString &path, const QDateTime &copied)
{
    m_path = path;
    m_format = formatOf(path);
    m_digest =
        path.isEmpty() || QFileInfo(path).lastModified() > copied ? QByteArray() : digestOf(path);
    // The copy holds the manuscript alone.
    const QByteArray bytes = path.isEmpty() ? QByteArray() : MRVCoreUtil::ReadBinaryFile(path);
    m_script = MRVScriptFile();
    m_script.read(bytes, MRVScriptFile::formatOfFile(path));
    m_isForeignPage = m_format == Html && isForeignPage(bytes);
}

QStringList ManuscriptFile::losses(const QTextDocument &document, const QString &path,
                                   const MRVScriptMode &mode) const
{
    QStringList losses;
    QStringList keys; // of metadata
    for (const MRVMetadataEntry &entry : m_head.entries) {
        keys.append(entry.key);
    }
    switch (formatOf(path)) {
    case Html:
        losses = MRVDocumentLosses::of(document, MRVDocumentLosses::Html);
        keys.removeAll(QStringLiteral("title"));
        if (isXhtml(path)) {
            keys.removeAll(QStringLiteral("lang"));
            keys.removeAll(QStringLiteral("language"));
        }
        if (m_isForeignPage) {
            losses.append(tr("The page's own structure, classes and style sheets"));
        }
        break;
    case Markdown:
        losses = MRVDocumentLosses::of(document, MRVDocumentLosses::Markdown);
        keys = MRVFrontMatter::lostKeys(m_head);
        break;
    case Text:
        losses = MRVDocumentLosses::of(document, MRVDocumentLosses::PlainText);
        break;
    case Fountain:
    case FinalDraft: {
        losses = MRVDocumentLosses::of(document, MRVDocumentLosses::Script);
        bool isInPlace = false;
        scriptBytes(document, path, mode, &isInPlace);
        const bool isReplaced = m_script.format() == MRVScriptFile::FinalDraft
            || (formatOf(path) == FinalDraft && path == m_path);
        if (isReplaced && !isInPlace) {
            losses.append(tr("What the Final Draft document holds besides the script, such as its "
                             "cast, revisions and tags"));
        }
        break;
    }
    default:
        return {};
    }
    keys.removeDuplicates();
    if (!keys.isEmpty()) {
        losses.append(tr("Metadata: %1").arg(keys.join(QLatin1String(", "))));
    }
    return losses;
}
