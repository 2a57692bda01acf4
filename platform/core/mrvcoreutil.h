#pragma once

#include "core/mrvcore_export.h"
#include "core/mrverror.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDate>
#include <QString>

/**
 * Whole files, free file names, and a few texts that several rooms read in the same way.
 *
 * Where a function takes @p error, it receives one translated line that names the file and the
 * reason on failure, and is untouched on success: an empty result with an empty error is an empty
 * file.
 *
 * @since 1.0
 */
class MRVCORE_EXPORT MRVCoreUtil
{
    Q_DECLARE_TR_FUNCTIONS(MRVCoreUtil)

public:
    MRVCoreUtil() = delete;

    /**
     * The text that @p bytes are in an encoding.
     *
     * A byte-order mark is removed, and names the encoding (UTF-8, UTF-16 or UTF-32) whatever
     * @p codec says. Line ends are kept as they are. Bytes that the encoding does not allow, and a
     * last character that is cut off, make the call fail, since the text could not be saved as it
     * was. Two codes of one character (Shift_JIS has such) are no failure.
     *
     * @param bytes  256 MiB at most.
     * @param codec  a name that QTextCodec knows, used where there is no byte-order mark; null
     *               means UTF-8.
     * @param text   receives the text; untouched on failure.
     * @param reason if given, receives a translated reason on failure, such as "it is not valid
     *               UTF-8 text"; untouched on success.
     */
    static bool decodeText(const QByteArray &bytes, const char *codec, QString *text,
                           MRVErrorSink reason = nullptr);

    /**
     * The text of the file or Qt resource (":/...") @p path, as decodeText() with @p codec reads
     * it; empty on failure.
     */
    static QString ReadUnicodeTextFile(const QString &path, MRVErrorSink error = nullptr,
                                       const char *codec = "UTF-8");

    /**
     * Replaces the file at @p path by @p text, through MRVFileWriter.
     *
     * UTF-8 is written without a byte-order mark, UTF-16 and UTF-32 with one. Line ends are written
     * as they are. Half a surrogate pair, which is no character, is written as U+FFFD. An unknown
     * codec, or a character that the codec does not have, makes the call fail before anything is
     * written.
     *
     * @param codec a name that QTextCodec knows; null means UTF-8.
     */
    static bool WriteUnicodeTextFile(const QString &text, const QString &path,
                                     MRVErrorSink error = nullptr, const char *codec = "UTF-8");

    /**
     * The bytes of the regular file or Qt resource @p path of 1 GiB at most; empty on failure.
     * Pipes and devices are refused, which might keep the program waiting.
     */
    static QByteArray ReadBinaryFile(const QString &path, MRVErrorSink error = nullptr);

    /**
     * The same, also of a pipe or device at @p path, which is read to its end, however long that
     * takes.
     */
    static QByteArray readStream(const QString &path, MRVErrorSink error = nullptr);

    /** Replaces the file at @p path by @p bytes, through MRVFileWriter. */
    static bool WriteBinaryFile(const QByteArray &bytes, const QString &path,
                                MRVErrorSink error = nullptr);

    /**
     * Whether the system says that no file of this name exists. QFileInfo::exists() says so, too,
     * where it could not find out, and what is there would be overwritten as if nothing were.
     */
    static bool isMissing(const QString &path);

    /**
     * @p path with a hyphen and @p number put before the suffix: "cover-1.png"; @p path itself for
     * a number that is not positive.
     *
     * The suffix is what follows the last dot, up to 100 bytes; a name that only begins with a dot,
     * and a folder, have none. Where the name would exceed 255 bytes, the end of what stands before
     * the number goes.
     */
    static QString NumberedFileName(const QString &path, int number);

    /**
     * @p path itself where nothing bears that name, else the first NumberedFileName() of it from 1
     * up that is free: "cover.png", "cover-1.png", "cover-2.png".
     *
     * A symbolic link that leads nowhere counts as a file. The number is the first free one as long
     * as the numbers in use have no gaps; the search takes steps in the logarithm of their count.
     * An empty path stays empty. The file is not created, so the name is free only until somebody
     * else takes it.
     */
    static QString GetUniqueFileName(const QString &path);

    /**
     * The date in a compiler's build-date text such as "Oct  8 2015", whatever the user's language.
     * Invalid where the text is not of that form.
     */
    static QDate convertCompileStringDate(const QString &text);

    /**
     * A pattern for a web address without a scheme: "www.", at least one more label and a top-level
     * domain, then a port, path, query and fragment.
     *
     * The three patterns find the same with QRegExp and with QRegularExpression, which needs
     * UseUnicodePropertiesOption to know letters beyond ASCII. Those of all scripts belong to an
     * address, with their accents and vowel signs, up to U+FFFF for QRegExp. They match in any case
     * whatever the case sensitivity set, have neither anchors nor capturing groups, and take time
     * linear in the text. A host's name has 50 labels at most; all but the last may hold
     * underscores. Punctuation that ends a sentence, quotation marks and an unpaired closing
     * bracket are not part of the match, while a path may hold bracketed parts.
     */
    static QString wwwPattern();

    /** A pattern for an e-mail address, without "mailto:"; see wwwPattern(). */
    static QString emailPattern();

    /**
     * A pattern for an address that begins with "http://", "https://" or "ftp://"; see
     * wwwPattern(). The host may be a name of one label or more, an IPv4 address, or an IPv6
     * address in brackets.
     */
    static QString webUrlPattern();
};
