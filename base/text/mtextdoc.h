#pragma once

#include "util/mrvbase_export.h"

#include <QImage>
#include <QList>
#include <QMap>
#include <QPair>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QTextImageFormat>
#include <QVariant>

class QDir;
class QTextDocument;

/**
 * Operations on whole rich-text documents.
 *
 * An image in a document is one object character; its picture is a resource of the document, under
 * the URL made from the image's resource id (QTextFormat::ImageName). Equal images side by side are
 * one run of text to Qt, but each is counted here.
 *
 * A change to a whole document is one undo step, and none where there is nothing to change. Null
 * documents are left alone. GUI thread only.
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
     * file that is no picture is passed over.
     *
     * Resources are no part of undo: after it, the images name their files again.
     */
    static void fixHtmlImageFormatsAndResourceIds(QTextDocument *document);

    /**
     * Gives every image the id generated from its picture, so that equal pictures share one resource
     * and different ones do not. Images without a picture are passed over.
     *
     * The resources under the old ids are cleared. They are no part of undo: after it, the images
     * have their old ids again, but no pictures.
     */
    static void convertUniqueImageResources(QTextDocument *document);

    /**
     * Whether at most one image with this resource id, and a picture, is shown; true for none.
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
     * @p base, or the base name of the file that it names, made safe as a file name, and with "_" and
     * the first free number from 1 up where it is among @p taken.
     */
    static QString findUniqueString(const QString &base, const QSet<QString> &taken);

    /**
     * The name of an image in MultiMarkdown: safe as a file name, with one hyphen in the place of
     * each run of blanks, underscores and hyphens. May be empty.
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
     * @return the path that was written; empty for an image without a picture or a name, and on
     * failure: also for a type that Qt cannot write (GIF or SVG, say), unless the image links to a
     * file of that suffix, which is copied.
     */
    static QString exportImageFormat(const QTextDocument &document, const QTextImageFormat &format,
                                     const QDir &folder, bool mmd, const QSet<QString> *used);

    /**
     * Writes each image of the document into @p folder as exportImageFormat() does, each to a file of
     * its own and none over a file that another image links to. The folder is made where needed, but not for a document without images.
     *
     * @return the paths that were written, in document order.
     */
    static QStringList exportImages(const QTextDocument &document, const QString &folder, bool mmd);
    /** exportImages() with names for MultiMarkdown. */
    static QStringList exportImagesToMmd(const QTextDocument &document, const QString &folder);

    /**
     * A table of the document's images for bug reports: a line each, in document order, with
     * position, resource id, display name, type, picture size in pixels ("none" without a picture),
     * length of the raw data in bytes, and link, separated by tabs. Not translated.
     */
    static QString dumpImageInfo(const QTextDocument &document);
};
