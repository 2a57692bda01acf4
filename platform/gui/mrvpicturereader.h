#pragma once

#include "core/mrverror.h"
#include "gui/mrvgui_export.h"
#include "gui/mrvpng.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QImage>
#include <QImageIOHandler>
#include <QSize>
#include <QString>

/**
 * Decodes pictures that anybody may have made: files and bytes from outside are decoded here.
 *
 * What a picture takes is known before anything of it is decoded. One is refused that claims more
 * than MRVInputLimits has for it, in its header, in any frame or in anything that it holds, and so
 * is a small file that claims more pixels than its bytes can hold. An SVG is unpacked and looked
 * through first, and shows nothing of what it names outside of itself.
 *
 * Of formats that plug-ins of others read, only what QImageReader::size() tells is known; without a
 * size they are refused. MNG is refused altogether: it makes its pictures by instructions.
 *
 * @since 1.0
 */
class MRVGUI_EXPORT MRVPictureReader
{
    Q_DECLARE_TR_FUNCTIONS(MRVPictureReader)

public:
    using Png = MRVPng;

    /**
     * Looks at the picture in @p bytes; nothing is decoded.
     *
     * @param format a hint such as "PNG", in any case, for formats that have no signature; null
     *               for none. The contents decide.
     */
    explicit MRVPictureReader(const QByteArray &bytes, const char *format = nullptr);

    /**
     * Looks at the picture in the file or Qt resource (":/...") at @p path. Only a regular file is
     * opened, and only one of at most MRVInputLimits::PictureFileBytes.
     */
    static MRVPictureReader ofFile(const QString &path);

    /** The format as QImageReader::imageFormat() names it ("jpeg"); empty where it is unknown. */
    QByteArray format() const { return m_format; }
    /** In pixels, before the picture is turned upright; invalid where it is not known. */
    QSize size() const { return m_size; }
    /** In pixels, as the picture is seen upright; invalid where it is not known. */
    QSize uprightSize() const;
    /** How the picture must be turned to be upright; read() does so. */
    QImageIOHandler::Transformations orientation() const { return m_orientation; }
    /** What decoding takes at most, in bytes: its largest frame, and compressed texts. */
    qint64 memory() const { return m_memory; }

    /** Whether the picture may be decoded; it may still turn out to be damaged. */
    bool isReadable() const { return !m_error; }
    /**
     * Whether the picture is an SVG whose text is safe. One that claims too many pixels may not be
     * decoded, but be passed on to programs that show it in another size.
     */
    bool isDrawing() const { return m_isDrawing; }
    /**
     * The picture's bytes as they were given. Those of a drawing are its text in UTF-8, unpacked,
     * without scripts and without references to what lies outside of it. Empty where the file was
     * not read or the text of an SVG is refused.
     */
    QByteArray bytes() const { return m_bytes; }
    /**
     * Why the picture is refused, as a translated end of a sentence ("it is too large"); empty
     * where it is not.
     */
    QString error() const { return m_error.text; }
    /** Of error(). */
    MRVErrorKind errorKind() const { return m_error.kind; }

    /**
     * Decodes the first frame, turned upright.
     *
     * @param error if given, receives error(), or that the picture is damaged; untouched on
     *              success.
     * @return a null image on failure.
     */
    QImage read(MRVErrorSink error = nullptr) const;

    /**
     * Whether @p image has the pixels of the picture, either as read() gives them or as the file
     * has them, which Qt's own loading does not turn upright. Decodes the picture where the sizes
     * agree.
     */
    bool isOf(const QImage &image) const;

    /**
     * Draws an SVG in its own size or, where that is larger than @p bounds, as large as fits into
     * them, so that it may claim any number of pixels.
     *
     * @param error if given, receives error(), or that the picture is damaged; untouched on
     *              success.
     * @return a null image on failure. Other pictures are read() as they are.
     */
    QImage draw(const QSize &bounds, MRVErrorSink error = nullptr) const;

    /**
     * The format of the picture in @p bytes, by its signature; see format(). Nothing is decoded,
     * which Qt does to recognise an XBM.
     */
    static QByteArray formatOf(const QByteArray &bytes);

    /**
     * Walks over the PNG file that lies at the start of @p bytes, as Qt stores a QImage in a
     * stream; more may follow it. Only the heads of the chunks are read, so that a view
     * (QByteArray::fromRawData()) will do. A picture that claims more pixels than its compressed
     * bytes can hold counts as damaged; its checksums are not looked at.
     */
    static Png png(const QByteArray &bytes);

private:
    MRVPictureReader() = default;
    MRVError refusal();
    QImage decoded(const QSize &size, bool isUpright = true) const;
    MRVError refusalOf(const QSize &claim, qint64 byteCount, int pixelBytes = 4);

    QByteArray m_bytes; // of an SVG, what may be given to Qt
    QByteArray m_format;
    QSize m_size;
    QImageIOHandler::Transformations m_orientation = QImageIOHandler::TransformationNone;
    qint64 m_memory = 0;
    bool m_isDrawing = false;
    MRVError m_error;
};
