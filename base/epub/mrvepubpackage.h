#pragma once

#include "core/mrverror.h"
#include "epub/mrvepubmetadata.h"
#include "epub/mrvepuboptions.h"
#include "util/mrvbase_export.h"
#include "util/mrvprogress.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>
#include <vector>

class QIODevice;
class QTextDocument;
struct MRVBookListEntry;
struct MRVEPubBook;
struct MRVManuscript;

/**
 * Puts documents into one e-book file (EPUB 3.2 or EPUB 2.0.1).
 *
 * Each document becomes one or more pages: a new page begins at a page break and at each heading of
 * the highest level that occurs more than once. The package holds a cover page, the navigation
 * document (EPUB 3) and the NCX, made from the headings, the pictures, one style sheet, and
 * accessibility metadata (EPUB 3). Links within and between the documents lead to the right page. A
 * picture in the folder of the document, or below, that a link leads to has a page of its own
 * outside of the reading order. Links that would lead nowhere inside the book (other local files,
 * anchors that do not exist, other documents) keep their text only. The same documents, metadata
 * and date give the same bytes.
 *
 * GUI thread only.
 *
 * @code
 * MRVEPubMetadata metadata;
 * metadata.title = QStringLiteral("The Tide Book");
 * metadata.authors = QStringList(QStringLiteral("Ilse Marrable"));
 * metadata.language = QStringLiteral("en-GB");
 *
 * MRVEPubPackage book(MRVEPubVersion::EPub3, metadata);
 * QString error;
 * if (!book.addDocument(document, QStringLiteral("one.html"), &error)
 *     || !book.write(QStringLiteral("tide.epub"), &error)) {
 *     qWarning() << error;
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVEPubPackage
{
    Q_DECLARE_TR_FUNCTIONS(MRVEPubPackage)

public:
    /**
     * An empty book.
     *
     * @param version  of the EPUB format, which decides what the package holds.
     * @param metadata read when the book is made into bytes; without a date, the current time
     *                 counts, so the bytes differ from one call to the next.
     */
    explicit MRVEPubPackage(MRVEPubVersion version = MRVEPubVersion::EPub3,
                            const MRVEPubMetadata &metadata = MRVEPubMetadata(),
                            const MRVEPubOptions &options = MRVEPubOptions());
    ~MRVEPubPackage();
    MRVEPubPackage(const MRVEPubPackage &) = delete;
    MRVEPubPackage &operator=(const MRVEPubPackage &) = delete;

    /** What follows the adding of a document and the writing, each from 0; nothing at first. */
    void setProgress(const MRVProgress &progress) { m_progress = progress; }

    /**
     * Adds the document after those added before. It is read at once and needed no longer.
     *
     * @param fileName the path by which links of other documents name this one, absolute or
     *                 relative to the current folder; the file need not exist. Links of the
     *                 document count from its folder. May be empty.
     * @param error    if given, receives a text on failure; untouched on success.
     * @return false, with nothing added, when one of its pictures cannot be read. Cancelled, the
     *         object is of no more use.
     */
    bool addDocument(const QTextDocument &document, const QString &fileName = QString(),
                     MRVErrorSink error = nullptr);

    /**
     * Begins a part: its title stands on the first page of the next document, and the table of
     * contents shows the documents that are added below it, until the next part. An empty title
     * ends the last part, without a page. A book that begins with a part has a title page only if
     * its metadata name its title.
     */
    void addPart(const QString &title);

    /**
     * Adds the document of a manuscript that was read, under its path.
     *
     * @param manuscript its document gets the title as its first heading, unless it begins with
     *                   one.
     * @param title what the table of contents calls it; empty: its own headings.
     * @param error if given, receives a text that names the manuscript on failure; untouched on
     *              success.
     * @return as addDocument().
     */
    bool addManuscript(const MRVManuscript &manuscript, const QString &title, MRVErrorSink error);
    /**
     * Adds the document of a manuscript that was read, under its path.
     *
     * @param error if given, receives a text that names the manuscript on failure; untouched on
     *              success.
     * @return as addDocument().
     */
    bool addManuscript(const MRVManuscript &manuscript, MRVErrorSink error = nullptr);
    /**
     * Adds parts and manuscripts in the order of a list.
     *
     * @param list        what is no part is, one by one, each of the manuscripts.
     * @param manuscripts in the order of the list.
     * @param error       if given, receives a text that names a manuscript on failure; untouched on
     *                    success.
     * @return false where one cannot be added. The object is of no more use then.
     */
    bool addManuscripts(const QVector<MRVBookListEntry> &list,
                        const std::vector<MRVManuscript> &manuscripts,
                        MRVErrorSink error = nullptr);
    /** The names of pictures without an alternative text, each once; decorations do not count. */
    QStringList picturesWithoutText() const;
    /**
     * The addresses of links that lead to no place of the book as it is now, and to none that a
     * reader can open: to files, and to anchors that do not exist. Each once, in order of
     * appearance; their texts are in the book.
     */
    QStringList deadLinks() const;
    /**
     * What the manuscripts point to and the e-book cannot have, for people to know, a translated
     * line for links and one for pictures on other machines. Empty where there is nothing of it.
     */
    QStringList notes() const;
    /** What a strict author would not let pass, a translated line for each of deadLinks() and of
     *  picturesWithoutText(). */
    QStringList defects() const;

    /**
     * What the pages lack of the documents that were added, a translated line each; empty where
     * every word, link and picture was written. See MRVExportCheck.
     *
     * @param documents all that were added; their order does not matter.
     */
    QStringList losses(const QVector<const QTextDocument *> &documents) const;

    /**
     * The bytes of the e-book file. Without any document the book has its cover page alone.
     *
     * @param error if given, receives a text on failure; untouched on success.
     * @return empty on failure.
     */
    QByteArray toByteArray(MRVErrorSink error = nullptr) const;

    /**
     * Writes toByteArray() to the file @p path, replacing it; on failure an old file stands. The
     * pictures are not in memory together.
     *
     * @param error if given, receives a text on failure; untouched on success.
     */
    bool write(const QString &path, MRVErrorSink error = nullptr) const;

    /**
     * Writes toByteArray() to a device, without having it in memory as a whole.
     *
     * @param device open for writing, able to seek, and empty.
     * @param error  if given, receives a text on failure; untouched on success.
     */
    bool write(QIODevice *device, MRVErrorSink error = nullptr) const;

private:
    std::unique_ptr<MRVEPubBook> m_book;
    MRVProgress m_progress;
    int m_remotePictures = 0;
    bool m_isInPart = false;
};
