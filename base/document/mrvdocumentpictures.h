#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QHash>
#include <QSize>
#include <QString>
#include <QVector>

class MRVPictureReader;
class QImage;
class MRVProgressMeter;
class QTextDocument;
class QTextImageFormat;

/**
 * A picture of a document as a file of its own: encoded in a form that browsers and reading systems
 * show.
 *
 * What a document names as a file is not kept in memory but read again by bytes(). A value; it does
 * not need the document any more.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDocumentPicture
{
    Q_DECLARE_TR_FUNCTIONS(MRVDocumentPicture)

public:
    enum Type { None = 0, Png = 1, Jpeg = 2, Gif = 3, Svg = 4 };

    /**
     * The picture in @p bytes, encoded, that anybody may have made.
     *
     * @param error if given, receives a translated end of a sentence ("it is too large") on
     *              failure; untouched on success.
     * @return type None on failure.
     */
    static MRVDocumentPicture fromBytes(const QByteArray &bytes, MRVErrorSink error = nullptr);

    /**
     * The picture in the file @p path, by whose name name() goes. It is read again by bytes().
     *
     * @param error as for fromBytes().
     * @return type None on failure.
     */
    static MRVDocumentPicture fromFile(const QString &path, MRVErrorSink error = nullptr);

    /** None for a value that was made without a picture; nothing else is set then. */
    Type type() const { return m_type; }
    /**
     * MRVTextFormat::imageName() of the image that shows the picture first, which may be any text;
     * the name of a file without its folder.
     */
    QString name() const { return m_name; }
    /** Such as "image/jpeg"; empty for None. */
    QString mediaType() const;
    /** That of a file of the type, without a dot: "png", "jpg", "gif" or "svg"; empty for None. */
    QString suffix() const;
    /**
     * In pixels, as the picture is seen upright: browsers and reading systems turn a photo as its
     * file says. Invalid for an SVG whose size is not known.
     */
    QSize size() const { return m_size; }
    /** How many bytes() gives. */
    qint64 byteCount() const { return m_file.isEmpty() ? m_bytes.size() : m_fileBytes; }
    /** Equal for pictures of equal bytes, and for these alone; see bytes(). */
    QByteArray digest() const { return m_digest; }
    /**
     * What to write to a file: the bytes as they were inserted or as the file has them. An SVG is
     * without scripts and references to other files. A picture of another type, and one of which
     * the document has only pixels, is a PNG.
     *
     * @param error if given, receives a translated text, which may follow the picture's name, on
     *              failure; untouched on success.
     * @return empty for None, and for a file that has changed or cannot be read any more.
     */
    QByteArray bytes(MRVErrorSink error = nullptr) const;

private:
    friend class MRVDocumentPictures;

    static MRVDocumentPicture of(const QTextDocument &document, const QTextImageFormat &format,
                                 MRVErrorSink reason);
    static MRVDocumentPicture ofPixels(const QImage &image, MRVErrorSink reason);
    static MRVDocumentPicture ofLook(const MRVPictureReader &look, MRVErrorSink reason);

    Type m_type = None;
    QString m_name;
    QSize m_size;
    QByteArray m_digest;
    QByteArray m_bytes; // empty for those of a file
    QString m_file;
    qint64 m_fileBytes = 0;
    qint64 m_fileTime = 0; // when it was last changed, in milliseconds since 1970
};

/**
 * An image of a document that has no picture, or one that is refused.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVMissingPicture
{
    QString id; ///< of the resource; of a picture on another machine its address
    QString name; ///< MRVTextFormat::imageName()
    QString reason; ///< a translated end of a sentence: "it does not exist"
    MRVErrorKind kind = MRVErrorKind::None; ///< of the reason
};

/**
 * The pictures that a document shows, each of them once.
 *
 * Images of one resource id share a picture, and so do those whose pictures have equal bytes. Each
 * picture is looked at once; of one in a form that browsers show, nothing is decoded. The document
 * is not changed, and not needed afterwards. GUI thread only.
 *
 * @code
 * const MRVDocumentPictures pictures(document);
 * for (const MRVDocumentPicture &picture : pictures.all()) {
 *     qDebug() << picture.name() << picture.mediaType() << picture.size();
 *     MRVCoreUtil::WriteBinaryFile(picture.bytes(), picture.name() + u'.' + picture.suffix());
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDocumentPictures
{
public:
    /**
     * Looks at the pictures of @p document.
     *
     * @param meter if given, counts the images; where it is cancelled, the others are left out.
     */
    explicit MRVDocumentPictures(const QTextDocument &document, MRVProgressMeter *meter = nullptr);

    /** In order of their first appearance. */
    QVector<MRVDocumentPicture> all() const { return m_all; }
    /** The place in all() of the picture of the images of a resource id; -1 without a picture. */
    int indexOf(const QString &resourceId) const { return m_indexes.value(resourceId, -1); }
    /** The images without a picture, one for each resource id, in order of appearance. */
    QVector<MRVMissingPicture> missing() const { return m_missing; }

private:
    QVector<MRVDocumentPicture> m_all;
    QHash<QString, int> m_indexes; // by resource id
    QVector<MRVMissingPicture> m_missing;
};
