#pragma once

#include "util/mrvbase_export.h"

#include <QImage>
#include <QTextDocument>

/**
 * A document for texts that anybody may have written: what they name is read and decoded only where
 * MRVPictureReader lets it.
 *
 * QTextDocument opens each local file that its text names as a picture or a style sheet, pipes and
 * devices included, and decodes it whatever memory that takes. This one opens regular files of at
 * most MRVInputLimits::PictureFileBytes. A picture that is refused or damaged is a null image.
 * Nothing is fetched from elsewhere. A parent that has a loadResource() is asked first, as by
 * QTextDocument.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVGuardedDocument : public QTextDocument
{
    Q_OBJECT

public:
    explicit MRVGuardedDocument(QObject *parent = nullptr);

    /**
     * The picture that @p document has at @p url, or loads from there, decoded by MRVPictureReader.
     *
     * Any document is read safely: files that its own loading would open are looked at first.
     * Loaders of a parent or of a derived class are asked too, but not for names of local files
     * that exist. Bytes that the document has loaded stay its resource.
     *
     * @return a null image where there is no picture, and for one that is refused or damaged.
     */
    static QImage picture(const QTextDocument &document, const QUrl &url);

protected:
    QVariant loadResource(int type, const QUrl &url) override;
};
