#pragma once

#include <QFont>
#include <QRectF>
#include <QSizeF>

struct MRVPrintOptions;

/** Lengths and fonts of a layout; in dots of MRVPdfWriter, from the upper left corner. */
struct MrvPrintLook
{
    explicit MrvPrintLook(const MRVPrintOptions &options);

    bool isManuscript;
    QSizeF paper;
    QRectF text; ///< where the text stands
    QFont font; ///< of the text, in points
    qreal lineHeight; ///< in points
    qreal indent; ///< of a paragraph's first line, in points
    qreal chapterTop; ///< how far down a chapter begins, within #text
};
