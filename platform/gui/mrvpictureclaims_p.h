#pragma once

#include <QByteArray>
#include <QSize>
#include <QVector>

/** What a picture says about itself, before anything is decoded. */
struct MRVPictureClaims
{
    /** Of each picture and of each canvas that a decoder makes for it. */
    QVector<QSize> sizes;
    /** What compressed texts inflate to, in bytes. */
    qint64 texts = 0;
    /** Whether all that a decoder goes by was understood. */
    bool isComplete = true;
};

/**
 * The claims that QImageReader::size() does not tell, or only by decoding: of the frames of a GIF,
 * the pictures of an icon file, the tiles of a TIFF, the texts of a PNG, the size of an XBM.
 *
 * @param format as QImageReader::imageFormat() names it; others than these give no claims.
 */
MRVPictureClaims mrvPictureClaims(const QByteArray &bytes, const QByteArray &format);
