#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"
#include "util/mrvmetadataentry.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>

class MRVGuardedDocument;
class MRVZipReader;
class QIODevice;
class QTextDocument;

/**
 * Documents in files that lose nothing, the application's own format.
 *
 * A file is a ZIP archive. It holds, in this order: "mimetype", uncompressed; "text.txt", all words
 * in UTF-8, for people without the application; "document", the text with all its formats; what the
 * application keeps with it, in "properties/"; and the pictures, in "pictures/", with the bytes
 * that they were inserted with, each once, also those that the document only names by their files.
 *
 * Kept are text, formats with all properties that MRVTextFormat stores, lists with their levels,
 * tables, frames, pictures, the states of paragraphs, default fonts and formats, the size of pages,
 * margins, text options, title and URLs. Not kept are the undo history, style sheets for HTML to
 * come, QTextBlockUserData, and what MRVTextFormat::toByteArray() leaves out. Equal documents give
 * equal bytes.
 *
 * An object holds what the file has beside the document: it can be read, changed and written again.
 * GUI thread only.
 *
 * @code
 * MRVDocumentArchive archive;
 * MRVGuardedDocument novel;
 * QString error;
 * if (archive.read(QStringLiteral("novel.mrvdoc"), &novel, &error)) {
 *     qDebug() << archive.notes();
 *     archive.setProperty(QStringLiteral("caret"), QByteArrayLiteral("120"));
 *     archive.write(novel, QStringLiteral("novel.mrvdoc"), &error);
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDocumentArchive
{
    Q_DECLARE_TR_FUNCTIONS(MRVDocumentArchive)

public:
    /** The suffix of such files, without a dot: "mrvdoc". */
    static QString suffix();
    /** Their MIME type: "application/x-morvane-archive". */
    static QString mimeType();
    /** Whether @p bytes begin as such a file does; a hundred of them are enough. */
    static bool isArchive(const QByteArray &bytes);

    /** What is said about the book, in any order; the title is the document's own. */
    QVector<MRVMetadataEntry> metadata() const { return m_metadata; }
    void setMetadata(const QVector<MRVMetadataEntry> &metadata) { m_metadata = metadata; }

    /** What the application keeps with the document, such as the caret; null where it is not. */
    QByteArray property(const QString &name) const { return m_properties.value(name); }
    /**
     * Keeps @p bytes under a name, or forgets it where they are null.
     *
     * @param name a file's name of ASCII letters, digits, "-", "_" and ".", the first a letter or a
     *             digit, of 100 characters at most.
     * @param bytes with those of all other names, MRVInputLimits::PropertyBytes at most.
     * @return false, with nothing changed, for another name and for more bytes.
     */
    bool setProperty(const QString &name, const QByteArray &bytes);
    /** The names of all, in alphabetical order. */
    QStringList propertyNames() const { return m_properties.keys(); }

    /** The date of the files in the archive; invalid, as at first, means 1 January 1980. */
    QDateTime modified() const { return m_modified; }
    void setModified(const QDateTime &modified) { m_modified = modified; }

    /**
     * Writes the file @p path through MRVFileWriter: on failure an old file stands as it was. The
     * pictures are not in memory together. The file that @p document was read from may be replaced;
     * its pictures are still there then.
     *
     * What was written is known to be readable: a document that could not be read again is refused.
     * So is one with a picture that its file had when it was read, and that cannot be read from it
     * any more (MRVErrorKind::Changed): no other file may take the place of that one.
     *
     * @param error if given, receives one translated line that names the file on failure; untouched
     *              on success.
     */
    bool write(const QTextDocument &document, const QString &path, MRVErrorSink error = nullptr);
    /**
     * Writes to a device, without having the archive in memory as a whole.
     *
     * @param device open for writing, able to seek, and empty.
     * @param error  if given, receives a translated end of a sentence on failure; untouched on
     *               success.
     */
    bool write(const QTextDocument &document, QIODevice *device, MRVErrorSink error = nullptr);

    /**
     * Reads the file @p path, which stays open as long as @p document takes its pictures from it:
     * they are read when they are needed.
     *
     * A picture that is missing or damaged costs nothing else: notes() names it. Where the document
     * itself is damaged and its words are whole, these are read: isTextOnly(). So they are in a
     * file that breaks off, or has lost its directory: what is whole in it is read from a copy in
     * memory.
     *
     * @param document is cleared before; it has no undo history then, and is not modified.
     *                 Untouched on failure, as this object is. Null fails.
     * @param error    if given, receives one translated line that names the file on failure;
     *                 untouched on success.
     * @return false for what is no such file, for one that is damaged too much, and for one that a
     *         newer version has made.
     */
    bool read(const QString &path, MRVGuardedDocument *document, MRVErrorSink error = nullptr);
    /**
     * The same for the bytes of a file.
     *
     * @param bytes are shared by the document, which takes its pictures from them.
     * @param error if given, receives a translated end of a sentence on failure; untouched on
     *              success.
     */
    bool read(const QByteArray &bytes, MRVGuardedDocument *document, MRVErrorSink error = nullptr);

    /** Whether the last reading found the words only, without formats and pictures. */
    bool isTextOnly() const { return m_isTextOnly; }
    /**
     * The names of the pictures that the document shows and that the last writing or reading found
     * missing or damaged; a file knows its missing ones, and reading it names them again. Their
     * places in the text are as they were. Those on other machines do not count, as they were never
     * part of a file.
     */
    QStringList missingPictures() const { return m_missingPictures; }
    /** What somebody should know about the last writing or reading, a translated line each. */
    QStringList notes() const;

private:
    bool read(const std::shared_ptr<const MRVZipReader> &file, MRVGuardedDocument *document,
              MRVErrorSink error);
    bool repair(const QByteArray &bytes, MRVGuardedDocument *document);

    QVector<MRVMetadataEntry> m_metadata;
    QMap<QString, QByteArray> m_properties;
    QDateTime m_modified;
    bool m_isTextOnly = false;
    bool m_isRepaired = false;
    QStringList m_missingPictures;
    QStringList m_damagedProperties;
};
