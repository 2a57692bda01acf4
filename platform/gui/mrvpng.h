#pragma once

#include <QByteArray>
#include <QSize>

/**
 * What the chunks of a PNG file tell about it; see MRVPictureReader::png().
 *
 * @since 1.0
 */
struct MRVPng
{
    qint64 length = -1; ///< of the file in bytes; -1 where it is damaged or not whole
    QSize size;
    /** What its compressed texts and its colour profile may inflate to, in bytes. */
    qint64 texts = 0;
    /**
     * What decoding takes at most, in bytes: 4 a pixel, 8 where a channel has 16 bits, and the
     * texts.
     */
    qint64 memory = 0;

    /** Walks over the file at the start of @p bytes. */
    static MRVPng walk(const QByteArray &bytes);
};
