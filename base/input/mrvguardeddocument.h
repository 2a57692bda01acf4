#pragma once

#include "util/mrvbase_export.h"

#include <QCache>
#include <QImage>
#include <QTextDocument>
#include <QUrl>
#include <QVariant>

#include <functional>

/**
 * A document for texts that anybody may have written: what they name is read and decoded only where
 * MRVPictureReader lets it.
 *
 * QTextDocument opens each local file that its text names as a picture or a style sheet, pipes and
 * devices included, and decodes it whatever memory that takes. This one opens regular files of at
 * most MRVInputLimits::PictureFileBytes. A picture that is refused or damaged is a null image.
 * Files are decoded when a layout asks for them, and those that were decoded last are kept. Nothing
 * is fetched from elsewhere. A parent that has a loadResource() is asked first, as by
 * QTextDocument.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVGuardedDocument : public QTextDocument
{
    Q_OBJECT

public:
    explicit MRVGuardedDocument(QObject *parent = nullptr);

    /** Where pictures come from, by URLs resolved against baseUrl(). */
    struct PictureLoader
    {
        std::function<bool(const QUrl &url)> has; ///< whether there is a picture
        /**
         * The encoded bytes of a picture that is there; empty where it cannot be read now. May be
         * called in any thread, also when the document is gone.
         */
        std::function<QByteArray(const QUrl &url)> read;
    };
    /**
     * Where pictures come from before anything else is asked, such as an archive: they need not be
     * in memory, and keep their bytes when they have been shown. It is called whenever a picture is
     * needed that was not decoded lately. clear() leaves it as it is.
     *
     * @param loader with both functions, or, as at first, without.
     */
    void setPictureLoader(const PictureLoader &loader);
    PictureLoader pictureLoader() const { return m_loader; }

    /**
     * The picture that @p document has at @p url, or loads from there, decoded by MRVPictureReader.
     *
     * Any document is read safely: files that its own loading would open are looked at first.
     * Loaders of a parent or of a derived class are asked too, but not for names of local files
     * that exist. Bytes that a plain document has loaded stay its resource. A photo is turned
     * upright, though the layout of a plain document shows it as the camera was held.
     *
     * @return a null image where there is no picture, and for one that is refused or damaged.
     */
    static QImage picture(const QTextDocument &document, const QUrl &url);

    /**
     * What picture() would decode: a QByteArray, which is empty for a picture of the loader that
     * cannot be read now; a QImage or a QPixmap; for a file that a document of this class shows, or
     * that Qt has decoded for another one, the "file:" URL of it as a QUrl. Invalid where nothing
     * is there, or must not be opened.
     */
    static QVariant pictureSource(const QTextDocument &document, const QUrl &url);

protected:
    QVariant loadResource(int type, const QUrl &url) override;

private:
    QVariant source(const QUrl &url) const;
    QImage loadPicture(const QUrl &url);
    bool isLoaded(const QUrl &url) const;
    QImage decoded(const QVariant &source, const QUrl &url) const;

    PictureLoader m_loader;
    QCache<QUrl, QImage> m_decoded; // by the URL of the file, or of the picture
};
