#pragma once

#include "gui/mrvgui_export.h"

#include <QByteArray>
#include <QSize>

/**
 * Tells what a picture would take before anything of it is decoded.
 *
 * @since 1.0
 */
class MRVGUI_EXPORT MRVPictureReader
{
public:
    MRVPictureReader() = delete;

    /** What the chunks of a PNG file tell about it. */
    struct Png
    {
        qint64 length = -1; ///< of the file in bytes; -1 where it is damaged or not whole
        QSize size;
        /**
         * What decoding takes at most, in bytes: 4 a pixel, 8 where a channel has 16 bits, and what
         * compressed texts and the colour profile may inflate to.
         */
        qint64 memory = 0;
    };

    /**
     * Walks over the PNG file that lies at the start of @p bytes, as Qt stores a QImage in a
     * stream; more may follow it. Only the heads of the chunks are read, so that a view
     * (QByteArray::fromRawData()) will do. A picture that claims more pixels than its compressed
     * bytes can hold counts as damaged; that its checksums are right is not looked at.
     */
    static Png png(const QByteArray &bytes);
};
