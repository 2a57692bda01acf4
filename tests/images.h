#pragma once

#include "gui/mrvguiutil.h"

#include <QImage>

/** An image of one colour. */
inline QImage filledImage(int width, int height, const QColor &color,
                          QImage::Format format = QImage::Format_ARGB32)
{
    QImage image(width, height, format);
    image.fill(color);
    return image;
}

/** A JPEG of 64 x 32 pixels, held so that it is 32 x 64 when it is seen upright. */
inline QByteArray turnedPhoto()
{
    QByteArray photo = MRVGuiUtil::toByteArray(filledImage(64, 32, Qt::black), "JPG");
    // An EXIF block, big-endian, with the one entry that the camera was turned by 90 degrees.
    return photo.insert(2,
                        QByteArray::fromHex("ffe1 0022 457869660000 4d4d002a 00000008 0001"
                                            "0112 0003 00000001 00060000 00000000"));
}
