#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

struct MRVEPubBook;

/** A place of the book by its role. EPUB 2 lists these in the guide, EPUB 3 in the landmarks. */
struct MRVEPubLandmark
{
    const char *epubType;
    const char *guideType; // null: the guide has no word for it
    QString title;
    QString target;
};

/** The landmarks in reading order, each role once. */
QVector<MRVEPubLandmark> mrvEPubLandmarks(const MRVEPubBook &book);
/**
 * The index of the page that the table of contents stands before: after the title page, the
 * imprint, the dedication and the epigraph.
 */
int mrvEPubContentsPlace(const MRVEPubBook &book);
/** The navigation document of EPUB 3. */
QByteArray mrvEPubNavigation(const MRVEPubBook &book);
/** The table of contents of EPUB 2, which EPUB 3 books carry for older readers. */
QByteArray mrvEPubNcx(const MRVEPubBook &book, const QString &identifier);
