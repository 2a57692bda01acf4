#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

/**
 * The versions of the format that e-books can be written in: 2.0.1 and 3.2.
 * @since 1.0
 */
enum class MRVEPubVersion { EPub2 = 2, EPub3 = 3 };

/**
 * What an e-book says about itself. Empty texts are left out, or replaced as each member says.
 * @since 1.0
 */
struct MRVEPubMetadata
{
    QString title; ///< empty: the first document's own title, or "Untitled"
    QStringList authors;
    QString language; ///< BCP 47 tag such as "en-GB"; empty or malformed: "und"
    QString
        identifier; ///< URI or ISBN; empty: a UUID computed from the content, so that it is stable
    QString publisher;
    QString description;
    QString rights;
    QDateTime modified; ///< invalid: now. Also the date of the files in the archive
    /** Bytes of a PNG, JPEG or GIF picture; empty: the cover page shows title and authors. */
    QByteArray cover;
};
