#pragma once

#include "gui/mrvgui_export.h"

#include <QByteArray>
#include <QColor>
#include <QCoreApplication>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QVariant>

/**
 * Images and colours: ids, decoding and encoding, and what the installed image plug-ins can do.
 *
 * @since 1.0
 */
class MRVGUI_EXPORT MRVGuiUtil
{
    Q_DECLARE_TR_FUNCTIONS(MRVGuiUtil)

public:
    MRVGuiUtil() = delete;

    /**
     * The id of a picture: "img-" and 40 hexadecimal digits, the SHA-1 hash of its size and pixels.
     *
     * Pictures that show the same have the same id, as an image of any QImage format and as a
     * pixmap: what counts is eight bits a channel, with the colours weighed by their opacity. So
     * pictures are one that differ only in what lies under full transparency, or below those eight
     * bits. Resolution, texts, colour space and device pixel ratio do not count. The id is the same
     * in every process and on every machine. Empty for a null image.
     */
    static QString resourceId(const QImage &image);

    /**
     * Decodes the first picture in @p bytes, turned upright where the file says how it was held.
     *
     * @param format a hint such as "PNG"; the contents decide where it is null or wrong.
     * @return a null image for bytes that hold no picture, and for a picture whose header claims
     * more pixels than an honest file of that length holds; the claim is looked at before any
     * memory is taken for it.
     */
    static QImage toImage(const QByteArray &bytes, const char *format = nullptr);

    /**
     * The picture in a variant that holds a QImage, a QPixmap, or a QByteArray to be decoded with
     * @p format. A null image for any other type.
     */
    static QImage toImage(const QVariant &variant, const char *format = nullptr);

    /**
     * Encodes @p image. Where the format has no transparency (JPEG, BMP and others), the picture is
     * painted on white first.
     *
     * @param format  a name such as "PNG" or "JPG", in any case.
     * @param quality 0 (small) to 100 (large), or -1 for the format's default.
     * @return empty for a null image, for a format that is null, unknown or cannot be written, and
     * for an icon (ICO, CUR) of more than 256 pixels on a side, which the format does not have.
     */
    static QByteArray toByteArray(const QImage &image, const char *format, int quality = -1);

    /**
     * The formats that can be read: upper-case names, sorted, each format once ("JPG" stands also
     * for JPEG, "TIF" for TIFF, "SVG" for SVGZ).
     */
    static QStringList readImageFormats();
    /** The formats that can be written; see readImageFormats(). */
    static QStringList writeImageFormats();
    /** The formats that can be both read and written; see readImageFormats(). */
    static QStringList readWriteImageFormats();

    /** File-dialog filters of the formats that can be read: all images together, then each one. */
    static QStringList readImageFileFilters();
    /**
     * File-dialog filters of the formats that can be written. None stands for all of them: a file
     * to be saved needs one format.
     */
    static QStringList writeImageFileFilters();

    /**
     * A file-dialog filter of a @p description and its @p suffixes: "Plain text" with "txt" and
     * "text" gives "Plain text (*.txt *.text)". Suffixes may be given with or without "." or "*.";
     * empty and repeated ones are left out. No suffix at all gives "(*)", any file.
     */
    static QString createFormatFilter(const QString &description, const QStringList &suffixes);

    /**
     * Black or white, whichever has the higher contrast ratio to @p background as WCAG 2.1 defines
     * it (https://www.w3.org/TR/WCAG21/#dfn-contrast-ratio). A translucent background is taken to
     * lie on white; an invalid one gives black.
     */
    static QColor textColorForBackground(const QColor &background);
};
