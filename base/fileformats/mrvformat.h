#pragma once

#include "util/mrvbase_export.h"

#include <QList>
#include <QString>

struct MRVFormatInfo;

/**
 * The file formats that documents are converted from and to.
 *
 * A format may have several rows, one for each suffix that files of it bear; the first is its main
 * one. Formats are stored by name or suffix, never by number.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVFormat
{
public:
    MRVFormat() = delete;

    /** Each enumerator but NoFormat is the format's name(). The number 22 is never used. */
    enum Format : int {
        NoFormat = 0, ///< What a failed look-up gives.
        Print = 1, ///< Output to the printer; no file.
        Preview = 2, ///< Output to the print preview; no file.
        TXT = 3,
        RTF = 4,
        HTML = 5,
        XHTML = 6,
        EPUB = 7,
        MOBI = 8,
        ODT = 9,
        DOC = 10,
        DOCX = 11,
        PDF = 12,
        PS = 13,
        EPS = 14,
        WMF = 15,
        EMF = 16,
        SVG = 17,
        SWF = 18,
        XPS = 19,
        HPGL = 20,
        PCL = 21,
        XML = 23,
        JPEG = 24,
        TIFF = 25,
        BMP = 26,
        GIF = 27,
        PNG = 28,
        TGA = 29,
        PCX = 30,
        FDX = 31,
        MMDtoHTML = 32,
        MMDtoTEX = 33,
        MMDtoOPML = 34,
        MMDtoODF = 35,
        MMD = 36,
        OPML = 37,
        MM = 38,
        DOT = 39,
        OTT = 40,
    };

    /** How many rows the table has: more than there are formats. */
    static int formatsCount();

    /**
     * The format of the first row with that suffix, in any case and without a dot. A suffix that
     * several formats bear gives the common one: "html" is HTML and not MMDtoHTML.
     *
     * @return NoFormat for an empty or unknown suffix.
     */
    static Format format(const QString &suffix);

    /**
     * The format that a person means by its name ("MMDtoHTML"), a suffix, or the name of a file, in
     * any case. What has a dot in it is the name of a file.
     *
     * @return NoFormat where it is none of these.
     */
    static Format formatNamed(const QString &text);

    /** All formats in the order of the rows, each once. */
    static QList<Format> formats();

    /** A row, from 0 to formatsCount() - 1; the number is not checked. */
    static MRVFormatInfo formatInfo(int row);
    /** The format of a row; see formatInfo(). */
    static Format formatAt(int row);
    /** The suffix of a row; see formatInfo(). */
    static QString formatExtension(int row);

    /** The main suffix, in lower case and without a dot; empty for output that is no file. */
    static QString extension(Format format);
    /** The name, the same in every language; empty for a number that is no format. */
    static QString name(Format format);

    /** Whether it is MultiMarkdown or made from it by the MultiMarkdown converter. */
    static bool isMmdVariant(Format format);
    /** Whether it is a MultiMarkdown variant or plain text. */
    static bool isPlainTextVariant(Format format);
    /** RTF, DOC or DOCX. */
    static bool isRtfOrDoc(Format format);
    /** EPUB or MOBI. */
    static bool isEBook(Format format);
};

/**
 * A row of the table of formats.
 *
 * @since 1.0
 */
struct MRVFormatInfo
{
    MRVFormat::Format format = MRVFormat::NoFormat;
    QString name;
    QString extension; ///< In lower case, without a dot; empty for output that is no file.
    QString description; ///< Translated, context "QObject"; may differ between rows of a format.
};
