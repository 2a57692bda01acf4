#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"
#include "util/mrvprogress.h"

#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

class MRVPictureFiles;
class QTextDocument;
class QTextImageFormat;

/**
 * Writes a rich-text document as HTML, XHTML or e-book XHTML, and repairs HTML of other origin.
 *
 * The markup comes from mrvDocumentHtml(); a fixed chain of textual fix-ups turns it into the
 * wanted kind. Each fix-up is a static function that does just what its name says to any text, and
 * finds its patterns wherever they stand. The document exports (toFile() and what calls it,
 * toEBookXhtml() and toText()) apply the same chain to the tags of the page alone, so that prose
 * which reads like a style is left as it is, and add what makes the page well-formed and, from type
 * Xhtml on, valid against the XHTML 1.1 DTD: forbidden characters go, crossed tags are closed,
 * attributes that XHTML 1.1 lacks become styles, ids are unique names, and the page has a title.
 *
 * Everything here is for the GUI thread. The document is never changed.
 *
 * @code
 * MRVTextXhtmlExporter exporter(&document);
 * exporter.setLanguage(QStringLiteral("en-GB"));
 * QString error;
 * if (!exporter.toFile(MRVTextXhtmlExporter::Xhtml, QStringLiteral("novel.xhtml"), true, QString(),
 *                      &error)) {
 *     qWarning() << error;
 * }
 * const QVector<MRVError> missing = exporter.unwrittenImages();
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextXhtmlExporter
{
    Q_DECLARE_TR_FUNCTIONS(MRVTextXhtmlExporter)

public:
    /**
     * What is written. KF8 is the second Kindle format, with page breaks as elements of their own.
     */
    enum ExportType {
        Html = 0, ///< the document's own HTML as Qt writes it
        Xhtml = 1,
        EPub = 2,
        Kindle = 3,
        KindleKF8 = 4,
    };

    /**
     * CSS rule sets in the order of their class numbers, each from property name to value. The set
     * at index 0 belongs to class "morvane", the one at index n to class "morvane" followed by n.
     */
    using StyleList = QList<QHash<QString, QString>>;

    /** The names of the types in their order: "html", "xhtml", "epub", "kindle" and "kf8". */
    static QStringList typeNames();
    /**
     * Finds a type.
     *
     * @param name one of typeNames().
     * @param type untouched on failure.
     * @return false for any other name.
     */
    static bool typeNamed(const QString &name, ExportType *type);
    /** The suffix of the files of a type, without a dot. */
    static QString suffix(ExportType type);
    /** Whether a type is for e-books, whose pages share a style sheet. */
    static bool isForEBooks(ExportType type) { return type >= EPub; }

    /** @param document the document to export; not owned, and null makes every export fail. */
    explicit MRVTextXhtmlExporter(const QTextDocument *document);

    /** The rule sets that the e-book exports of this object have collected so far. */
    StyleList styles() const { return m_styles; }
    /** Goes on with the rule sets of other pages, so that they can share a style sheet. */
    void setStyles(const StyleList &styles) { m_styles = styles; }
    /**
     * The language of the pages, a BCP 47 tag such as "en-GB"; empty, as at first, leaves it open.
     */
    void setLanguage(const QString &language) { m_language = language; }
    /**
     * Whether toFile() writes the pictures in the form that they have where browsers show it, as
     * MRVDocumentPictures gives them, and JPEG files as they are for the Kindle types. At first it
     * does not: all are encoded again, unless a file of the same suffix is linked.
     */
    void setKeepsPictures(bool keeps) { m_keepsPictures = keeps; }
    /** What follows toFile(); nothing at first. */
    void setProgress(const MRVProgress &progress) { m_progress = progress; }
    /**
     * An error, whose line names the file, for each picture of the document that the last toFile()
     * could not write.
     */
    QVector<MRVError> unwrittenImages() const { return m_unwrittenImages; }

    /**
     * The text that toFile() would write, without images being exported.
     *
     * @param title the page's title where the document has none; empty takes the document's first
     *              heading, or "Untitled".
     * @return empty without a document.
     */
    QString toText(ExportType type, const QString &title = QString());

    /**
     * Exports the document to the file @p path (UTF-8), replacing it.
     *
     * The page is written last and through the checked writer. When it cannot be written, the
     * images written for it are removed again and an old page stands.
     *
     * @param exportImages write the images to files, as JPEG for the Kindle types and as PNG
     *                     otherwise unless setKeepsPictures(), and let the page refer to
     *                     these; an image that cannot be written keeps its reference.
     * @param imageDir     folder for the images, made when missing; empty takes calcImageDir(@p
     *        path).
     * @param error        if given, receives a text on failure; untouched on success.
     * @return false without a document or when the page cannot be written.
     */
    bool toFile(ExportType type, const QString &path, bool exportImages,
                const QString &imageDir = QString(), MRVErrorSink error = nullptr);
    /** toFile() with type Html, to @p path, and with @p exportImages as there. */
    bool toHtml(const QString &path, bool exportImages);
    /** toFile() with type Xhtml, to @p path, and with @p exportImages as there. */
    bool toXhtml(const QString &path, bool exportImages);

    /**
     * Exports @p document as one page of an e-book.
     *
     * The page gets the anchor "start" at its beginning (addDocAnchor()), its links are replaced by
     * @p links, and its images are written to the folder "images" beside it. The style sheet that
     * it refers to, "css/stylesheet.css", is the caller's to write once all pages are done: see
     * styleSheetText().
     *
     * @param path   target file; ".xhtml" is appended when the name does not end so.
     * @param links  old link target to new one, both unescaped.
     * @param styles rule sets; those of the page are appended, so that several pages can share one
     *               list. Null leaves the style attributes in place.
     * @param error if given, receives a text on failure; untouched on success.
     * @return false for a null document, for the types Html and Xhtml, and when the page cannot be
     *         written.
     */
    static bool toEBookXhtml(ExportType type, const QString &path,
                             const QHash<QString, QString> &links, StyleList *styles,
                             const QTextDocument *document, MRVErrorSink error = nullptr);
    /**
     * @name toEBookXhtml() by type
     *
     * toEBookXhtml() for EPub, Kindle and KindleKF8, with the same @p path, @p links, @p styles and
     * @p document.
     */
    //@{
    static bool toEPubXhtml(const QString &path, const QHash<QString, QString> &links,
                            StyleList *styles, const QTextDocument *document);
    static bool toKindle(const QString &path, const QHash<QString, QString> &links,
                         StyleList *styles, const QTextDocument *document);
    static bool toKindleKF8(const QString &path, const QHash<QString, QString> &links,
                            StyleList *styles, const QTextDocument *document);
    //@}

    /**
     * The rule sets as a CSS text: a rule a class in class order, with its properties in
     * alphabetical order. A property or value that would end its rule or open another is left out.
     * Raised and lowered text without a size of its own is set smaller, as Qt shows it, and does
     * not push the lines apart.
     */
    static QString styleSheetText(const StyleList &styles);

    /**
     * @name Whole texts
     *
     * Each applies the chain of fix-ups of its kind to the text @p html, in a fixed order, and
     * returns the result. Those that take @p styles move the style attributes there as
     * convertStyleToCss() does.
     */
    //@{
    // Whole-text conversions: the chains of fix-ups.

    static QString htmlToXhtml(const QString &html);
    static QString htmlToEBook(const QString &html);
    static QString htmlToEpub(const QString &html, StyleList *styles);
    static QString htmlToKindle(const QString &html, StyleList *styles);
    static QString htmlToKindleKF8(const QString &html, StyleList *styles);
    //@}
    /** Cleans HTML from the clipboard so that QTextDocument reads it well. */
    static QString mimeHtmlToCleanHtml(const QString &html);

    // Fix-ups. Each rewrites the text in place and does nothing for null; comparisons are
    // case-sensitive unless said otherwise.

    /** The HTML 4.0 strict document type that Qt writes becomes the one of XHTML 1.1. */
    static void fixDoctypeTag(QString *html);
    /** "<html>" gets the XHTML namespace. */
    static void fixHtmlTag(QString *html);
    /** "<br>" becomes "<br />". */
    static void fixBrTag(QString *html);
    /** "<img src=" gets, before its source, an alternative text of one blank. */
    static void fixImgTag(QString *html);
    /** Alignment of paragraphs becomes a style; a paragraph without content gets a line break. */
    static void fixPTag(QString *html);
    /** Drops the alignment of list items, with an empty style attribute before it. */
    static void fixLiAlign(QString *html);
    /** Joins two style attributes that follow each other to one. */
    static void fixDoubleStyleAttr(QString *html);
    /** Removes Qt's rule "p, li { white-space: pre-wrap; }". */
    static void fixParPreWrap(QString *html);
    /** Drops the width that stands first in a table cell's tag, up to its closing quote. */
    static void fixTdWidthTag(QString *html);
    /**
     * Drops the background colour that stands first in a table cell's tag, up to its closing quote.
     */
    static void fixTdBgcolorTag(QString *html);
    /** Removes the blank after the opening quote of a style. */
    static void fixStyleSpaces(QString *html);
    /**
     * Removes the blank after the opening quote of the attribute "scr", a misspelling met in the
     * wild.
     */
    static void fixImgScrSpaces(QString *html);
    /** Reduces two blanks between "img" and the misspelt attribute "scr" to one. */
    static void fixImgSpaces(QString *html);
    /** " >" becomes ">". */
    static void fixTagEndSpaces(QString *html);
    /** "< " becomes "<". */
    static void fixTagStartSpaces(QString *html);
    /** Removes the blank between a style's last semicolon and its closing quote. */
    static void fixStyleEnding(QString *html);
    /** Links "css/stylesheet.css" at the end of the head. */
    static void addCssStylesheet(QString *html);
    /**
     * Inserts a paragraph with the anchor "start" after the opening body tag that has attributes.
     */
    static void addDocAnchor(QString *html);
    /** Anchor names become ids; one that is a web or mail address becomes a title. */
    static void convertAnchorNameToId(QString *html);
    /** Font sizes in whole points become per cent of 12 points, truncated. */
    static void convertFontSizeToPercent(QString *html);
    /** Margins in whole pixels become em, with up to three decimals. */
    static void convertMarginToEm(QString *html);
    /** First-line indents in whole pixels become em, with up to three decimals. */
    static void convertIndentToEm(QString *html);
    /** Every span element becomes a paragraph. */
    static void convertSpanToP(QString *html);
    /**
     * Turns the style attributes of the text into classes.
     *
     * Class numbers follow the first appearance of each style in the text; equal rule sets share
     * one. Empty paragraphs keep their height through a no-break space, and lose underline and
     * line-through.
     *
     * @param styles         rule sets found before and the place for new ones; null does nothing.
     * @param dropFontFamily leave out font families.
     * @param kindleKF8      an empty paragraph that starts a page becomes "<mbp:pagebreak/>".
     * @param html the text.
     */
    static void convertStyleToCss(QString *html, StyleList *styles, bool dropFontFamily,
                                  bool kindleKF8);
    /** Removes image tags; their text alternative goes with them. */
    static void removeImgTag(QString *html);
    /** Removes the declarations of font families from style attributes. */
    static void removeFontFamily(QString *html);
    /** Removes the alternative texts of images. */
    static void removeAltTag(QString *html);
    /** Removes comments, "<!--" to the next "-->"; one that never ends is left as it is. */
    static void removeComments(QString *html);
    /** Removes every style attribute with the blank before it. */
    static void removeAllInlineCssProperties(QString *html);
    /** Keeps in style attributes only the properties of qtCssProperties(). */
    static void removeUnsupportedQtCssProperties(QString *html);
    /** Rewrites the link targets of @p html that @p links holds (old to new, both unescaped). */
    static void replaceLinks(QString *html, const QHash<QString, QString> &links);

    // Helpers

    /** @return @p pt as per cent of 12 points. */
    static double ptToPercent(double pt) { return pt * 100 / 12; }
    /** @return @p px in em of 16 pixels. */
    static double pxToEm(double px) { return px / 16; }
    /**
     * Reads the @p style, the value of a style attribute, escaped as it stands in HTML, to its
     * declarations. Names that begin with "-qt-" are left out, a weight of 600 reads "bold", and
     * what follows a second colon in a declaration is lost.
     *
     * @param dropFontFamily leaves out the family of the font.
     */
    static QHash<QString, QString> toStyleSheet(const QString &style, bool dropFontFamily);
    /** The style value without underline and line-through; other decorations stay. */
    static QString removeTextDecorations(const QString &style);
    /** Removes trailing zeros, and a decimal point left bare, before each "em;". */
    static QString trimEm(const QString &text);
    /** CSS properties that QTextDocument understands in clipboard HTML. */
    static QStringList qtCssProperties();
    /** The image tags of the text, in order, as they stand. */
    static QStringList imgTags(const QString &html);
    /**
     * The sources of the images of the text, in order and unescaped; images without one are left
     * out.
     */
    static QStringList imgUrls(const QString &html);
    /** The folder of the file @p path, its base name and "_files". */
    static QString calcImageDir(const QString &path);

    /**
     * Writes one image of the document into the folder @p dir, which must exist, and lets the HTML
     * refer to it: by a path relative to the page while toFile() runs, else by folder name and file
     * name.
     *
     * @param format name of the file format to write ("PNG"); also the suffix, in lower case.
     * @param html in which each reference to the image is replaced.
     * @return the path of the file; empty, with the HTML unchanged, for a picture that is missing
     *         or cannot be written.
     */
    QString exportImage(const QString &dir, QString *html, const QTextImageFormat &imageFormat,
                        const char *format) const;
    /**
     * exportImage() for every image of the document, once for images that share a resource; makes
     * the folder when there is an image to write. A file of before that already holds an image
     * under its name, with a number or without, is used again.
     *
     * The folder is @p dir; @p html and @p format are those of exportImage().
     *
     * @return the paths of the files that hold the images.
     */
    QStringList exportDocImages(const QString &dir, QString *html, const char *format) const;

private:
    QString pageText(const QString &html, ExportType type, const QString &title);
    QString writeImage(const QString &dir, const QTextImageFormat &imageFormat, const char *format,
                       MRVPictureFiles *files, MRVErrorSink error = nullptr) const;
    QStringList writeImages(const QString &dir, QString *html, const char *format,
                            MRVPictureFiles *files, MRVProgressMeter *meter,
                            QVector<MRVError> *failed = nullptr) const;
    QStringList writeKeptImages(const QString &dir, QString *html, const char *format,
                                MRVPictureFiles *files, MRVProgressMeter *meter,
                                QVector<MRVError> *failed) const;
    QString imageReference(const QString &file) const;

    const QTextDocument *m_document;
    StyleList m_styles;
    QString m_language;
    bool m_keepsPictures = false;
    MRVProgress m_progress;
    QVector<MRVError> m_unwrittenImages;
    QString m_pageDir; // set while a page is written: what image references are relative to
};
