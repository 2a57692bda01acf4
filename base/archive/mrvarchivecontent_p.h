#pragma once

#include "fragment/mrvdocumentfragment.h"
#include "util/mrvmetadataentry.h"

#include <QByteArray>
#include <QPair>
#include <QString>
#include <QTextFormat>
#include <QVector>

class QTextDocument;

/** A picture, or the raw data of an image, that is a file of the archive. */
struct MRVArchivedPicture
{
    QString name; ///< by which formats show it; of raw data the name of the image
    int format = -1; ///< of raw data, the place of the format in the fragment; else -1
    QString file; ///< of the archive; empty where the document had no bytes of it
};

/**
 * The file "document" of an archive: a document without its pictures.
 *
 * A QDataStream of version Qt_5_15: the numbers 0x4d525641 and 1; mrvDocumentSettings() as
 * MRVTextFormat stores them; MRVDocumentFragment::toByteArray(); pictures; metadata; and the states
 * of paragraphs that have one.
 */
struct MRVArchiveContent
{
    enum Result { Good, Damaged, Newer };

    QTextCharFormat settings;
    MRVDocumentFragment fragment;
    QVector<MRVArchivedPicture> pictures;
    QVector<MRVMetadataEntry> metadata;
    QVector<QPair<int, int>> states; ///< QTextBlock::userState() by the number of the paragraph

    static MRVArchiveContent of(const QTextDocument &document);
    /** Puts it into a document that was cleared and keeps no undo history. */
    void apply(QTextDocument *document) const;

    /** The stored form up to the pictures. */
    QByteArray beginning() const;
    /** The stored form, whose beginning() is @p beginning; in any thread. */
    QByteArray toByteArray(const QByteArray &beginning) const;
    /** Any bytes may be given; the content is undefined unless they are good. */
    static Result fromByteArray(const QByteArray &bytes, MRVArchiveContent *content);
};
