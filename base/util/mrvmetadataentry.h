#pragma once

#include <QString>
#include <QStringList>

/**
 * One of the things that a manuscript, or a file beside it, says about a book.
 *
 * @since 1.0
 */
struct MRVMetadataEntry
{
    QString key; ///< in lower case
    QStringList values; ///< none where what is written is not understood
    int line = 0; ///< where it begins, from 1; 0 where it is not known
};
