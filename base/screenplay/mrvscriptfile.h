#pragma once

#include "core/mrverror.h"
#include "screenplay/mrvfountain.h"
#include "screenplay/mrvscriptdocument.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

class QTextCodec;

/**
 * The contents of a script file of any format, which can be changed and written in the same format
 * or another one.
 *
 * It works on bytes and opens no files.
 *
 * @code
 * MRVScriptFile file;
 * QString error;
 * const QString path = QStringLiteral("play.fountain");
 * const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path, &error);
 * if (!file.read(bytes, MRVScriptFile::formatOfFile(path), &error)) {
 *     qWarning() << error;
 * } else if (file.renameCharacter(QStringLiteral("Ann"), QStringLiteral("Anna"),
 *                                 MRVScriptDocument::InDialogue)
 *            > 0) {
 *     const QByteArray revised = file.revised(&error);
 *     if (revised.isEmpty() || !MRVFileWriter::write(path, revised, &error)) {
 *         qWarning() << error;
 *     }
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVScriptFile
{
    Q_DECLARE_TR_FUNCTIONS(MRVScriptFile)

public:
    enum Format {
        UnknownFormat,
        Fountain,
        Html, ///< a page of MRVFountainHtml
        FinalDraft,
        EPub, ///< is only written, by MRVScriptBook
        Pdf, ///< is only written, by MRVScriptPdf
    };

    /** The format that is called "fountain", "html", "fdx", "epub" or "pdf"; else UnknownFormat. */
    static Format formatNamed(const QString &name);
    /** The format that the suffix of a file says, in any case; UnknownFormat for another one. */
    static Format formatOfFile(const QString &path);
    /** The suffix that files of a format are written with, such as "fdx"; empty if unknown. */
    static QString suffix(Format format);

    /**
     * Reads a script.
     *
     * @param bytes  the contents of the file. Fountain is UTF-8, or what a byte-order mark says.
     * @param format Fountain, Html or FinalDraft; any other one fails.
     * @param error  if given, receives one translated line on failure; untouched on success.
     * @return false, with nothing changed, when the bytes are not of the format.
     */
    bool read(const QByteArray &bytes, Format format, MRVErrorSink error = nullptr);
    /**
     * The same for Fountain in another encoding; other formats say themselves which they have.
     *
     * @param bytes    the contents of the file; a byte-order mark still counts.
     * @param format   a format other than Fountain fails where an encoding is given.
     * @param encoding a name that QTextCodec knows; empty for UTF-8.
     * @param error    if given, receives one translated line on failure; untouched on success.
     * @return false, with nothing changed, when the bytes are not of the format or encoding.
     */
    bool read(const QByteArray &bytes, Format format, const QByteArray &encoding,
              MRVErrorSink error);

    /** The format that was read; UnknownFormat before. */
    Format format() const { return m_format; }
    /** The text of a Fountain script as it was read; null for other formats. */
    QString text() const { return m_text; }
    /** The bytes that were read, whatever has changed since. */
    QByteArray source() const { return m_source; }
    /** The language of a page as it says it; empty for other formats. */
    QString language() const { return m_language; }
    /** In what the script is less than a Final Draft document; see MRVFinalDraft::fromXml(). */
    QStringList losses() const { return m_losses; }

    /**
     * @name Script
     *
     * As it was read, or was set since.
     */
    //@{
    MRVFountainScript script() const { return m_script; }
    void setScript(const MRVFountainScript &script) { m_script = script; }
    //@}

    /**
     * Renames a character of the script, as MRVScriptDocument::renameCharacter() does, from
     * @p from to @p to.
     *
     * @param scope where else than in the cues.
     * @return how many names were changed.
     */
    int renameCharacter(const QString &from, const QString &to,
                        MRVScriptDocument::RenameScope scope);

    /**
     * The script in the format and encoding that it was read from; source() where nothing has
     * changed. Lines of Fountain that have not changed stay as they were typed. In a Final Draft
     * document just the characters of changed texts are others: see MRVFinalDraft::revise(). A page
     * is written again, so that what it held besides the script is lost.
     *
     * @param error if given, receives one translated line on failure; untouched on success.
     * @return null where a Final Draft document cannot be changed so, or the encoding lacks a
     *         character: toByteArray() writes a new one.
     */
    QByteArray revised(MRVErrorSink error = nullptr) const;

    /**
     * The bytes of a script.
     *
     * @param script   what is written.
     * @param format   Fountain, in UTF-8, Html or FinalDraft; any other one gives no bytes.
     * @param language a BCP 47 tag for a page; empty for none.
     */
    static QByteArray toByteArray(const MRVFountainScript &script, Format format,
                                  const QString &language = QString());

private:
    bool readFountain(const QByteArray &bytes, const QByteArray &encoding, MRVErrorSink reason);

    QByteArray m_source;
    Format m_format = UnknownFormat;
    MRVFountainScript m_script;
    QString m_text; // of a Fountain script, as it was typed
    QTextCodec *m_codec = nullptr; // of that text, where it is not UTF-8 without a mark
    bool m_hasMark = false; // whether a byte-order mark names the codec
    QString m_language;
    QStringList m_losses;
};
