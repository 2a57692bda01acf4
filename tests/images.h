#pragma once

#include <QImage>

/** An image of one colour. */
inline QImage filledImage(int width, int height, const QColor &color,
                          QImage::Format format = QImage::Format_ARGB32)
{
    QImage image(width, height, format);
    image.fill(color);
    return image;
}
