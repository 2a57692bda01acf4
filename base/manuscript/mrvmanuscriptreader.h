#pragma once

#include "core/mrverror.h"
#include "manuscript/mrvmanuscript.h"
#include "util/mrvbase_export.h"
#include "util/mrvprogress.h"

#include <QCoreApplication>

/**
 * Reads manuscripts: HTML, Markdown and plain text; documents of MRVDocumentArchive; DOCX, ODT and
 * RTF where MRVOfficeConverter can.
 *
 * The encoding is the one that was set, else that of a byte-order mark, of an XML declaration, of
 * the head of HTML, else UTF-8. The names of pictures count from the folder of the file. Nothing is
 * fetched from other machines. Lists within lists stay such; MRVNestedLists::toLevels() makes
 * levels of them. GUI thread only.
 *
 * @code
 * MRVManuscriptReader reader;
 * MRVManuscript manuscript;
 * if (reader.read(QStringLiteral("novel.md"), &manuscript)) {
 *     qDebug() << manuscript.document->blockCount() << "paragraphs by" << manuscript.authors;
 * } else {
 *     qWarning() << reader.errorString();
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVManuscriptReader
{
    Q_DECLARE_TR_FUNCTIONS(MRVManuscriptReader)

public:
    enum Error {
        NoError = 0,
        FileError = 1, ///< the file is missing, not regular, or cannot be read
        UnknownFormat = 2, ///< the suffix means no format or a wrong one, and none was set
        UnknownEncoding = 3,
        DecodingError = 4, ///< the bytes are not valid in the encoding
        NestingError = 5, ///< HTML or Markdown is built so that reading would hardly end
        PictureError = 6, ///< a picture on this machine is missing or cannot be read
        /** It is no DOCX, ODT, RTF or native document, or nothing that is installed can read it. */
        ConversionError = 7,
        Cancelled = 8, ///< by what follows the reading
    };

    enum Purpose {
        Publishing, ///< as a reader of the book is to see the text
        Editing, ///< in the order of the source and with its characters, so that changes find it
    };

    /** What is done about pictures on this machine that are missing or cannot be read. */
    enum MissingPictures {
        Refuse, ///< reading fails, and unreadablePictures() has them all
        Drop, ///< their alternative texts take their places
        Keep, ///< the document names them as the source does
    };

    /**
     * What the document is for; Publishing at first. For Editing, the characters of Markdown stay
     * as they are, whatever its options, and a line of plain text is a paragraph; for Publishing,
     * plain text gets the paragraphs and chapters that MRVPlainText finds, and a title.
     */
    void setPurpose(Purpose purpose) { m_purpose = purpose; }
    /** How Markdown is read; with footnotes at first. */
    void setMarkdownOptions(MRVMarkdown::Options options) { m_options = options; }
    /** What the input is; Unknown, as at first, decides by suffix or content. */
    void setFormat(MRVManuscript::Format format) { m_format = format; }
    /** A name that QTextCodec knows; empty, as at first, means what the input declares. */
    void setEncoding(const QString &encoding) { m_encoding = encoding; }
    /**
     * Whether pictures are looked up, which they are at first. The document then names each file by
     * its URL, and decodes it when somebody asks for its pixels: MRVGuardedDocument. What is part
     * of the source becomes a resource. Else what names them stays as is.
     */
    void setLoadsPictures(bool loads) { m_loadsPictures = loads; }
    /**
     * Whether a picture that was found keeps its name in the source, for a page that is not written
     * to a file of its own; which it does not at first. Of use where pictures are looked up.
     */
    void setKeepsPictureNames(bool keeps) { m_keepsPictureNames = keeps; }
    /** Refuse at first. Of use where pictures are looked up. */
    void setMissingPictures(MissingPictures what) { m_missingPictures = what; }

    /** What follows the reading; nothing at first. */
    void setProgress(const MRVProgress &progress) { m_progress = progress; }

    /**
     * Reads a file.
     *
     * @param path       absolute, or relative to the current folder.
     * @param manuscript untouched on failure.
     * @return false on failure; error() and errorString() say why.
     */
    bool read(const QString &path, MRVManuscript *manuscript);
    /**
     * Reads @p bytes that are in no file, such as those of standard input. Where no format is set,
     * they are DOCX, ODT, RTF, native or HTML if they begin like it, else plain text.
     *
     * @param name       what messages call the bytes.
     * @param folder     where the names of pictures count from.
     * @param manuscript untouched on failure.
     * @return false on failure; error() and errorString() say why.
     */
    bool readBytes(const QByteArray &bytes, const QString &name, const QString &folder,
                   MRVManuscript *manuscript);

    /** Why the last reading failed; NoError after success. */
    Error error() const { return m_error; }
    /** After a PictureError, all pictures that cannot be read, each once, in order. */
    QVector<MRVUnreadablePicture> unreadablePictures() const { return m_unreadablePictures; }
    /** The same as one translated line that names the file; empty after success. */
    QString errorString() const { return m_failure.text; }
    /** What error() is to a program; of a FileError, what the system said. */
    MRVErrorKind errorKind() const { return m_failure.kind; }

private:
    bool readBytes(const QString &folder, MRVManuscript *read, MRVManuscript *manuscript);
    bool decode(MRVManuscript *read, QString *text);
    bool convert(MRVManuscript *read, QString *text, MRVProgressMeter *meter);
    bool readDocument(const QString &text, const QString &folder, MRVManuscript *read);
    bool loadPictures(const QString &folder, MRVManuscript *read, MRVProgressMeter *meter);
    bool isGoingOn(const MRVManuscript &read, MRVProgressMeter *meter);
    bool readText(const QString &folder, MRVManuscript *read);
    bool readArchive(const QString &folder, MRVManuscript *read);
    bool takeUnreadable(const QVector<MRVUnreadablePicture> &unreadable, MRVManuscript *read);
    bool fail(Error error, const MRVManuscript &read, const MRVError &reason);

    MRVProgress m_progress;
    Purpose m_purpose = Publishing;
    MRVMarkdown::Options m_options = MRVMarkdown::Footnotes;
    MRVManuscript::Format m_format = MRVManuscript::Unknown;
    QString m_encoding;
    bool m_loadsPictures = true;
    bool m_keepsPictureNames = false;
    MissingPictures m_missingPictures = Refuse;
    QVector<MRVUnreadablePicture> m_unreadablePictures;
    Error m_error = NoError;
    MRVError m_failure;
};
