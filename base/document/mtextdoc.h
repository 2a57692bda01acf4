#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QImage>
#include <QList>
#include <QMap>
#include <QPair>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextImageFormat>
#include <QVariant>

class MRVPictureReader;
class QColor;
class QDir;
class QTextBlock;
class QTextDocument;

/**
 * Operations on whole rich-text documents.
 *
 * An image in a document is one object character; its picture is a resource of the document, under
 * the URL made from the image's resource id (QTextFormat::ImageName). Equal images side by side are
 * one fragment of text to Qt, but each is counted here.
 *
 * A fragment is a stretch of one paragraph in one character format. Where a function takes a
 * pattern, it concerns the fragments that set every property of it, to an equal value where
 * @c matchValues is true; a pattern without properties fits all text. Paragraph ends are no part of
 * a fragment: what a new, empty paragraph would give to text typed into it stays.
 *
 * A change to a whole document is one undo step, and none where there is nothing to change. It
 * takes time linear in the document. Null documents and cursors are left alone. GUI thread only.
 *
 * @code
 * // All bold text becomes red, in one step of undo.
 * QTextCharFormat bold, red;
 * bold.setFontWeight(QFont::Bold);
 * red.setFontWeight(QFont::Bold);
 * red.setForeground(Qt::red);
 * MTextDoc::replaceAll(&document, bold, red, true);
 *
 * // The pictures go to files, named as the user knows them.
 * const QStringList written = MTextDoc::exportImages(document, "pictures", false);
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MTextDoc
{
public:
    MTextDoc() = delete;

    /** The id that a picture gets: MRVGuiUtil::resourceId(). */
    static QString generateResourceId(const QImage &image);
    /** The same as MRVTextFormat::image(). */
    static QImage image(const QTextDocument &document, const QTextImageFormat &format);
    /** The same as MRVTextFormat::imageResourceId(). */
    static QString imageResourceId(const QTextImageFormat &format);
    /** The same as MRVTextFormat::imageName(). */
    static QString imageName(const QTextImageFormat &format);
    /** The picture in a variant that holds an image, a pixmap or encoded bytes; else null. */
    static QImage toImage(const QVariant &variant);

    /**
     * Takes images that HTML named by their files into the document.
     *
     * Concerns the images whose resource id names an existing file: by a path, a file: URL, or a
     * reference relative to the document's base URL. The picture becomes a resource under the id
     * generated from it, the image gets that id, and the file's base name as its display name. A
     * file that is no picture is passed over. Of a JPEG or GIF, whose pixels are not all of it, the
     * image keeps the bytes and the type ("JPG", "GIF"), in which it is exported.
     *
     * Undoing it lets the images name their files again. The document keeps their pictures, so that
     * they are shown even where a file is gone.
     */
    static void fixHtmlImageFormatsAndResourceIds(QTextDocument *document);

    /**
     * Takes a picture into a document as a resource, in place of what is selected: one undo step,
     * which leaves the resource. It is named and kept as by fixHtmlImageFormatsAndResourceIds().
     *
     * @param cursor  stands after the image then; null does nothing.
     * @param look    at the picture's file or bytes, which are not needed afterwards.
     * @param name    shown for the picture; may be empty.
     * @param widest  a wider picture is shown as wide as this, in pixels, and with its proportions;
     *                its own pixels stay. 0 or less shows each in its own size.
     * @param error   if given, receives the end of a sentence ("it is too large") on failure.
     * @return false where the picture is refused or damaged; nothing changed then.
     */
    static bool insertPicture(QTextCursor *cursor, const MRVPictureReader &look,
                              const QString &name, int widest = 0, MRVErrorSink error = nullptr);

    /**
     * Gives every image the id generated from its picture, so that equal pictures share one
     * resource and different ones do not. Images without a picture are passed over.
     *
     * The resources under the old ids are cleared, and come back when this is undone: the document
     * keeps their pictures for it.
     */
    static void convertUniqueImageResources(QTextDocument *document);

    /**
     * Whether at most one image with this resource id, and a picture, is shown; true for none.
     *
     * @param id exact.
     */
    static bool onlyOneImageWithResourceId(const QTextDocument &document, const QString &id);

    /** The resource ids of all images, those without a picture included. */
    static QSet<QString> imageResourceIds(const QTextDocument &document);
    /** The display name of each image, in document order. */
    static QStringList imageNames(const QTextDocument &document);
    /** The format of each image, in document order; as often as it is shown. */
    static QList<QTextImageFormat> imageFormats(const QTextDocument &document);
    /** The pictures of the document by resource id, without null ones. */
    static QMap<QString, QImage> imagesWithResourceIds(const QTextDocument &document);
    /** Display name and picture of each image, in document order, without null pictures. */
    static QList<QPair<QString, QImage>> imagesWithNames(const QTextDocument &document);

    /** @p base made a resource id that the document does not use; see findUniqueString(). */
    static QString uniqueResourceId(const QTextDocument &document, const QString &base);
    /** @p base made a display name that the document does not use; see findUniqueString(). */
    static QString uniqueImageName(const QTextDocument &document, const QString &base);
    /**
     * @p base, or the base name of the file that it names, made safe as a file name, and with "_"
     * and the first free number from 1 up where it is among @p taken.
     */
    static QString findUniqueString(const QString &base, const QSet<QString> &taken);

    /**
     * The name of an image in MultiMarkdown: safe as a file name, with one hyphen in the place of
     * each row of blanks, underscores and hyphens. May be empty.
     */
    static QString mmdImageName(const QString &name);

    /**
     * Writes one image into a folder, which is made where it does not exist, under its display name
     * and, as the suffix, its image type ("png" where unknown). MRVTextFormat::exportImageFormat()
     * says what is written; an existing file is replaced.
     *
     * The file never lies outside the folder: slashes in the name become underscores. A name too
     * long for a file system is shortened.
     *
     * @param mmd  passes the name through mmdImageName(); "image" stands for an empty result.
     * @param used if given, paths that are taken: a file of such a path gets a free name beside it.
     * @param folder made where it does not exist.
     * @return the path that was written; empty for an image without a picture or a name, and on
     *         failure: also for a type that Qt cannot write (GIF or SVG, say), unless the image has
     *         bytes of that type or links to a file of that suffix.
     */
    static QString exportImageFormat(const QTextDocument &document, const QTextImageFormat &format,
                                     const QDir &folder, bool mmd, const QSet<QString> *used);

    /**
     * Writes each image of the document into @p folder as exportImageFormat() does, each to a file
     * of its own and none over a file that another image links to. An image that needs a number is
     * not written where a file of before holds its bytes. The folder is made where needed, but not
     * for a document without images.
     *
     * @param mmd see exportImageFormat().
     * @return the paths that were written, in document order.
     */
    static QStringList exportImages(const QTextDocument &document, const QString &folder, bool mmd);
    /** exportImages() into @p folder with names for MultiMarkdown. */
    static QStringList exportImagesToMmd(const QTextDocument &document, const QString &folder);

    /**
     * A table of the document's images for bug reports: a line each, in document order, with
     * position, resource id, display name, type, picture size in pixels ("none" without a picture),
     * length of the raw data in bytes, and link, separated by tabs. Not translated.
     */
    static QString dumpImageInfo(const QTextDocument &document);

    // Inspector comments and footnotes: text that carries a note's data. The text stays.

    /** Removes the marks and data of a comment from a format, and the address (AnchorHref). */
    static void clearCommentProperties(QTextCharFormat *format);
    /**
     * Does so to the selected text, fragment by fragment, so that each keeps what else it has;
     * without a selection, to the format that text typed at the cursor gets.
     */
    static void clearCommentPropertiesCursor(QTextCursor *cursor);
    /** Clears the comment properties of the fragments whose @p property is true. */
    static void removeComments(QTextDocument *document, int property);
    /**
     * @name By kind of note
     *
     * removeComments() for one kind: the fragments with InspectorCommentProperty, or those with
     * InspectorFootnoteProperty.
     */
    //@{
    static void removeInspectorComments(QTextDocument *document);
    static void removeInspectorFootnotes(QTextDocument *document);
    //@}
    /**
     * Those of both kinds: of the fragments that have comment data (CommentData0), whatever they
     * are.
     */
    static void removeInspectorCommentsAndFootnotes(QTextDocument *document);
    /**
     * Clears the comment properties of the fragments of the selection whose @p property is true; of
     * those that reach out of it, of the part inside.
     */
    static void removeCommentsWithinSelection(const QTextCursor &cursor, int property);

    // Inline annotations and footnotes: text of the document that is marked to be a note.

    /** Removes both inline marks from a format. */
    static void clearInlineProperties(QTextCharFormat *format);
    /** Does so as clearCommentPropertiesCursor() does. */
    static void clearInlinePropertiesCursor(QTextCursor *cursor);
    /**
     * Deletes the text of all annotations. An annotation at the end of a paragraph takes the end
     * along, so that the next paragraph joins; not at the end of a table cell or of the document,
     * and not before a table.
     */
    static void removeAnnotations(QTextDocument *document);
    /** Deletes the text of all inline footnotes, and no paragraph ends. */
    static void removeInlineFootnotes(QTextDocument *document);
    /** Makes all annotations ordinary text. A fragment that is a footnote too is none any more. */
    static void inlineAnnotationsToText(QTextDocument *document);
    /**
     * Makes all inline footnotes ordinary text. A fragment that is an annotation too is none any
     * more.
     */
    static void inlineFootnotesToText(QTextDocument *document);

    // Links: fragments with IsAnchor true. Colour and underline of a link that goes stay.

    /** Removes address, name and mark of a link from a format. */
    static void clearLinkProperties(QTextCharFormat *format);
    /**
     * Lets what is typed next be no part of a link where the cursor is at an edge of one: it gets
     * the format of the text before the link, or that of the paragraph where there is none. Within
     * a link, typing changes its text. The document is not changed.
     *
     * @param cursor that of an editor, which sets it again (QTextEdit::setTextCursor()); a
     *               selection does nothing.
     * @return false where nothing had to be done.
     */
    static bool leaveLink(QTextCursor *cursor);
    /**
     * Makes links plain text. Footnote links from HTML stay (a name that starts with "fn" and an
     * address that holds "html#fn"), and so do links on raised or lowered text.
     */
    static void clearHyperlinks(QTextDocument *document);
    /**
     * The same for links to documents of the project: those whose address is an integer, with or
     * without a sign. Links on raised or lowered text stay.
     */
    static void clearMorvaneLinks(QTextDocument *document);

    // Colours and other formats

    /** Removes the text colour of all fragments but links. */
    static void clearTextColor(QTextDocument *document);
    /**
     * Gives @p color to all fragments that have a text colour and are no links; text without one
     * stays so. An invalid colour clears.
     */
    static void setTextColor(QTextDocument *document, const QColor &color);
    /** Removes the background of all fragments. */
    static void clearHighlighting(QTextDocument *document);
    /** Removes the properties that @p pattern has from the fragments that it fits. */
    static void clearAll(QTextDocument *document, const QTextCharFormat &pattern, bool matchValues);
    /**
     * clearAll() with a pattern of one property. No fragment has an invalid @p value, so with
     * @p matchValues that clears nothing.
     *
     * @param property number of the property.
     */
    static void clearAllProperty(QTextDocument *document, int property, const QVariant &value,
                                 bool matchValues);
    /**
     * clearAll() between the two ends of the selection of @p cursor, with the same @p pattern; a
     * fragment that reaches beyond is split. Nothing without a selection.
     */
    static void clearAllSelection(QTextCursor cursor, const QTextCharFormat &pattern,
                                  bool matchValues);
    /** In the fragments that @p from fits, its properties are removed, and those of @p to set. */
    static void replaceAll(QTextDocument *document, const QTextCharFormat &from,
                           const QTextCharFormat &to, bool matchValues);
    /**
     * Finds the first fragment of a paragraph that @p pattern fits and that starts at @p offset or
     * later.
     *
     * @param offset from the start of @p block.
     * @param cursor selects the fragment; untouched where there is none.
     * @return whether there is one.
     */
    static bool findInBlock(const QTextBlock &block, const QTextCharFormat &pattern, int offset,
                            QTextCursor &cursor, bool matchValues);
    /**
     * The same as MRVTextFinder::continuousFragmentCount(), which explains @p from and
     * @p compareValues.
     */
    static int continuousFragmentCount(const QTextCharFormat &format, const QTextCursor &from,
                                       bool compareValues);

    // Paragraphs. The options of how a document is drawn are no part of undo.

    /** Whether blanks and tabs as well as line and paragraph ends are drawn. */
    static bool invisiblesShown(const QTextDocument &document);
    /**
     * Switches both on, or off unless @p show; with only one of them on, they are not shown, and
     * stay when hidden.
     */
    static void showInvisibles(QTextDocument *document, bool show);
    /** Clears all flags of the document's default text option. */
    static void clearDefaultTextOptionFlags(QTextDocument *document);

    /**
     * Turns page breaks after a paragraph into page breaks before the next one. One after the last
     * paragraph is dropped.
     */
    static void normalizePageBreaks(QTextDocument *document);

    /**
     * Replaces all tables, nested ones included, by their text: a paragraph for each row, with a
     * tab between two cells that start in it; a cell of several paragraphs breaks the line.
     *
     * Characters keep their formats, and images stay. Each line has the paragraph format that it
     * had in its first cell, but belongs to no list. The text starts a paragraph of its own, for
     * which an empty paragraph before the table is used up; so is an empty one that only closes the
     * document, cell or frame after the table. Takes linear time.
     */
    static void tablesToText(QTextDocument *document);
    /**
     * The same for the tables alone that are nested more deeply.
     *
     * @param depth of how many tables around it on a table becomes text; 0 or less for all.
     * @return how many were replaced, those within one another counted each.
     */
    static int nestedTablesToText(QTextDocument *document, int depth);

    // Paragraphs by number, from 0; table cells count. Those that do not exist are passed over.

    /** The format of paragraph @p number; empty where it does not exist. */
    static QTextBlockFormat blockFormatByBlockNumber(const QTextDocument *document, int number);
    /**
     * Whether the paragraph is in a list, and in which, stays as it is.
     *
     * @param number paragraph, from 0.
     */
    static void setBlockFormatByBlockNumber(QTextDocument *document, int number,
                                            const QTextBlockFormat &format);
    /** The format of the first fragment of paragraph @p number; empty for an empty paragraph. */
    static QTextCharFormat charFormatByBlockNumber(const QTextDocument *document, int number);
    /**
     * Sets the format of the paragraph's first fragment; nothing happens in an empty paragraph. An
     * image stays one.
     *
     * @param number paragraph, from 0.
     */
    static void setCharFormatByBlockNumber(QTextDocument *document, int number,
                                           const QTextCharFormat &format);
};
