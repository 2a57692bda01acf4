#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

/**
 * A place of a page at which the document does not hold what the page shows.
 *
 * @since 1.0
 */
struct MRVHtmlLoss
{
    int line = 0; ///< of the page, from 1; 0 where no line is known
    QString what; ///< the words, the address of a link or of a picture, as the page has them
};

/**
 * What reading a page found out beside its text.
 *
 * @since 1.0
 */
struct MRVHtmlReport
{
    /** Style sheets on this machine that are missing or cannot be read, each once, as named. */
    QStringList missingSheets;
    /** Style sheets on other machines; they are not loaded. */
    QStringList remoteSheets;
    /** How many words the page's own styles hide, which the document does not hold. */
    int hiddenWords = 0;
    /** How many comments in the margin the document holds, as properties of its text. */
    int comments = 0;
    /** What is missing from the document, by comparing it with the page; empty if all is well. */
    QVector<MRVHtmlLoss> losses;
    /** The line, from 1, at which the page first shows each picture, by the picture's name. */
    QHash<QString, int> pictureLines;
};
