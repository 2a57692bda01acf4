#pragma once

#include <QByteArray>
#include <QImage>

/**
 * The one colour of a PNG file in 16-bit RGB that is transparent ("tRNS").
 *
 * Qt 5.15 expects an alpha channel from libpng that libpng does not write then: the pixels are
 * shifted, and the last ones are memory that nothing was written to. So Qt gets the file without
 * that colour, and the colour is made transparent afterwards.
 */
class MRVPngColorKey
{
public:
    /** Takes the colour out of the PNG file @p bytes, which must not be damaged. */
    static MRVPngColorKey takenFrom(QByteArray *bytes);

    /** @p image with the colour transparent; as it is where the file had none. */
    QImage appliedTo(const QImage &image) const;

private:
    bool m_isSet = false;
    quint16 m_red = 0;
    quint16 m_green = 0;
    quint16 m_blue = 0;
};
