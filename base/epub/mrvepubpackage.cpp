#include "epub/mrvepubpackage.h"

#include "epub/mrvbooklist.h"
#include "epub/mrvbooknames_p.h"
#include "epub/mrvepubbook_p.h"
#include "epub/mrvepubnavigation_p.h"
#include "epub/mrvepubwriter_p.h"
#include "manuscript/mrvmanuscript.h"
#include "util/mrvfailure.h"
#include "xhtml/mrvexportcheck.h"
#include "zip/mrvzipwriter.h"

#include "core/mrvfilewriter.h"
#include "core/mrvxmltext.h"
#include "core/mtranslator.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTranslator>
#include <QUuid>

namespace {

const QLatin1String Folder("OEBPS/");

constexpr char Container[] =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<container version=\"1.0\" xmlns=\"urn:oasis:names:tc:opendocument:xmlns:container\">\n"
    "  <rootfiles>\n"
    "    <rootfile full-path=\"OEBPS/content.opf\" "
    "media-type=\"application/oebps-package+xml\"/>\n"
    "  </rootfiles>\n"
    "</container>\n";

// Archives hold local dates from 1980 on. The date's own hours and minutes are written, whatever
// the time zone of the machine.
QDateTime archiveDate(const QDateTime &date)
{
    const QDateTime first(QDate(1980, 1, 1), QTime(0, 0), Qt::UTC);
    const QDateTime last(QDate(2107, 12, 31), QTime(0, 0), Qt::UTC);
    return qBound(first, date.toUTC(), last);
}

// The same content gets the same identifier, so that an e-book that is made again replaces the old
// one in a reader's library.
QString identifierOf(const MRVEPubBook &book)
{
    const QString given = mrvXmlText(book.metadata.identifier).simplified();
    if (!given.isEmpty()) {
        return given;
    }
    const QString isbn = mrvIsbn(book.metadata.isbn);
    if (!isbn.isEmpty()) {
        return QLatin1String("urn:isbn:") + isbn;
    }
    QCryptographicHash hash(QCryptographicHash::Sha1); // as the UUID is computed of it
    hash.addData(book.title().toUtf8() + '\n' + book.metadata.authors.join(u'\n').toUtf8());
    for (const MRVEPubPage &page : book.pages) {
        hash.addData(page.begin + page.body + page.end);
    }
    // None of the namespaces of RFC 4122 fits, so this one is the project's own.
    const QUuid space(0x6d727665, 0x7075, 0x4b21, 0x9b, 0x4e, 0x2f, 0x61, 0x0c, 0x7d, 0x55, 0x10);
    return QLatin1String("urn:uuid:")
        + QUuid::createUuidV5(space, hash.result()).toString(QUuid::WithoutBraces);
}

std::vector<MRVZipEntry> filesOf(const MRVEPubBook &book, const QDateTime &modified)
{
    const QString identifier = identifierOf(book);
    std::vector<MRVZipEntry> files;
    const auto add = [&](const QString &path, const QByteArray &bytes,
                         MRVZipEntry::Packing packing = MRVZipEntry::Deflated) {
        files.push_back({path, packing, [bytes] { return bytes; }});
    };
    // The type comes first and uncompressed, for programs that read the first bytes only (OCF 3.2,
    // section 4.3).
    add(QStringLiteral("mimetype"), QByteArrayLiteral("application/epub+zip"), MRVZipEntry::Stored);
    add(QStringLiteral("META-INF/container.xml"), QByteArray(Container));
    add(Folder + QLatin1String("content.opf"), mrvEPubPackageDocument(book, identifier, modified));
    if (book.version == MRVEPubVersion::EPub3) {
        add(Folder + QLatin1String("nav.xhtml"), mrvEPubNavigation(book));
    }
    add(Folder + QLatin1String("toc.ncx"), mrvEPubNcx(book, identifier));
    add(Folder + QLatin1String("css/stylesheet.css"), book.styleSheet());
    if (book.hasCoverPage()) {
        add(Folder + QLatin1String("cover.xhtml"), book.coverBytes());
    }
    for (const auto *pages : {&book.pages, &book.platePages}) {
        for (const MRVEPubPage &page : *pages) {
            files.push_back({Folder + page.fileName, MRVZipEntry::Deflated,
                             [&book, &page] { return book.pageBytes(page); }});
        }
    }
    for (const MRVEPubFile &file : book.pictures) {
        const bool isText = file.picture.type() == MRVDocumentPicture::Svg;
        files.push_back({Folder + file.path, isText ? MRVZipEntry::Deflated : MRVZipEntry::Stored,
                         [&file] { return file.picture.bytes(); }, file.picture.byteCount()});
    }
    return files;
}

bool beginsWithHeading(const QTextDocument &document)
{
    QTextBlock block = document.begin();
    while (block.isValid() && block.text().trimmed().isEmpty()) {
        block = block.next();
    }
    return block.blockFormat().headingLevel() > 0;
}

void insertHeading(QTextDocument *document, const QString &title)
{
    QTextCursor cursor(document);
    if (document->characterCount() > 1) {
        cursor.insertBlock();
        cursor.movePosition(QTextCursor::Start);
    }
    QTextBlockFormat format;
    format.setHeadingLevel(1);
    cursor.setBlockFormat(format);
    QTextCharFormat look; // Qt's own of such headings
    look.setFontWeight(QFont::Bold);
    look.setProperty(QTextFormat::FontSizeAdjustment, 3);
    cursor.insertText(title, look);
}

} // namespace

MRVEPubPackage::MRVEPubPackage(MRVEPubVersion version, const MRVEPubMetadata &metadata,
                               const MRVEPubOptions &options)
    : m_book(std::make_unique<MRVEPubBook>())
{
    m_book->version = version;
    m_book->metadata = metadata;
    m_book->options = options;
    m_book->translator = MTranslator::translator(m_book->language());
    m_book->addCover();
}

MRVEPubPackage::~MRVEPubPackage() = default;

bool MRVEPubPackage::addDocument(const QTextDocument &document, const QString &fileName,
                                 MRVErrorSink error)
{
    const int before = m_book->headings.size();
    MRVProgressMeter meter(m_progress);
    if (!MRVEPubWriter::add(m_book.get(), document, fileName, &meter, error)) {
        return false;
    }
    for (int i = before; i < m_book->headings.size(); ++i) {
        m_book->headings[i].depth += m_isInPart ? 1 : 0;
    }
    return true;
}

bool MRVEPubPackage::addManuscript(const MRVManuscript &manuscript, const QString &title,
                                   MRVErrorSink error)
{
    const bool hasHeading = beginsWithHeading(*manuscript.document);
    if (!title.isEmpty() && !hasHeading) {
        insertHeading(manuscript.document.get(), title);
    }
    const int before = m_book->headings.size();
    MRVError reason;
    if (!addDocument(*manuscript.document,
                     manuscript.fileName.isEmpty() ? QString() : manuscript.path, &reason)) {
        return MRV::fail(error, manuscript.path, reason);
    }
    if (!title.isEmpty() && hasHeading && before < m_book->headings.size()) {
        m_book->headings[before].text = title;
    }
    m_remotePictures += manuscript.remotePictures;
    return true;
}

bool MRVEPubPackage::addManuscript(const MRVManuscript &manuscript, MRVErrorSink error)
{
    return addManuscript(manuscript, QString(), error);
}

bool MRVEPubPackage::addManuscripts(const QVector<MRVBookListEntry> &list,
                                    const std::vector<MRVManuscript> &manuscripts,
                                    MRVErrorSink error)
{
    auto manuscript = manuscripts.begin();
    for (const MRVBookListEntry &entry : list) {
        if (entry.isPart) {
            addPart(entry.title);
        } else if (!addManuscript(*manuscript++, entry.title, error)) {
            return false;
        }
    }
    return true;
}

void MRVEPubPackage::addPart(const QString &title)
{
    m_isInPart = !title.isEmpty();
    if (m_isInPart) {
        m_book->addPart(title);
    }
}

QStringList MRVEPubPackage::losses(const QVector<const QTextDocument *> &documents) const
{
    MRVExportCheck check(MRVExportCheck::Book);
    for (const QTextDocument *document : documents) {
        check.addDocument(*document);
    }
    for (const MRVEPubPage &page : qAsConst(m_book->pages)) {
        check.addPage(QString::fromUtf8(m_book->pageBytes(page)), page.fileName);
    }
    return check.losses();
}

QStringList MRVEPubPackage::picturesWithoutText() const
{
    return m_book->picturesWithoutText;
}

QStringList MRVEPubPackage::notes() const
{
    constexpr int Shown = 5;
    QStringList notes;
    const QStringList dead = deadLinks();
    if (!dead.isEmpty()) {
        const QStringList first = dead.mid(0, Shown);
        notes.append(tr("links that lead nowhere in the e-book, and are text there: %1 (%2%3)")
                         .arg(QString::number(dead.size()), first.join(QLatin1String(", ")),
                              QLatin1String(dead.size() > Shown ? ", ..." : "")));
    }
    if (m_remotePictures > 0) {
        notes.append(
            tr("pictures on other machines that are not in the e-book: %1").arg(m_remotePictures));
    }
    return notes;
}

QStringList MRVEPubPackage::defects() const
{
    QStringList defects;
    for (const QString &link : deadLinks()) {
        defects.append(tr("a link that leads nowhere: %1").arg(link));
    }
    for (const QString &picture : picturesWithoutText()) {
        defects.append(tr("no alternative text: %1").arg(picture));
    }
    return defects;
}

QStringList MRVEPubPackage::deadLinks() const
{
    return m_book->deadLinks();
}

QByteArray MRVEPubPackage::toByteArray(MRVErrorSink error) const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return write(&buffer, error) ? buffer.data() : QByteArray();
}

bool MRVEPubPackage::write(QIODevice *device, MRVErrorSink error) const
{
    const QDateTime modified = m_book->metadata.modified.isValid()
        ? m_book->metadata.modified
        : QDateTime::currentDateTimeUtc();
    MRVError reason;
    const int level = m_book->options.packing == MRVEPubOptions::Small ? 10 : 5;
    MRVProgressMeter meter(m_progress);
    if (mrvWriteZip(filesOf(*m_book, modified), level, archiveDate(modified), device, &reason,
                    &meter)) {
        return true;
    }
    if (meter.isCancelled()) {
        return MRV::fail(error, reason);
    }
    for (const MRVEPubFile &file : qAsConst(m_book->pictures)) {
        if (file.picture.bytes(&reason).isEmpty()) {
            reason.text = QStringLiteral("%1: %2").arg(file.picture.name(), reason.text);
            break;
        }
    }
    return MRV::fail(error, reason.kind, tr("The e-book cannot be packed: %1").arg(reason.text));
}

bool MRVEPubPackage::write(const QString &path, MRVErrorSink error) const
{
    const auto content = [this](QIODevice *device, MRVErrorSink reason) {
        return write(device, reason);
    };
    return MRVFileWriter::write(path, content, error);
}
