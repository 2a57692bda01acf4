#pragma once

#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QString>
#include <QStringList>

struct MRVManuscript;

/**
 * The versions of the format that e-books can be written in: 2.0.1 and 3.2.
 * @since 1.0
 */
enum class MRVEPubVersion { EPub2 = 2, EPub3 = 3 };

/**
 * What an e-book says about itself. Empty texts are left out, or replaced as each member says.
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVEPubMetadata
{
    Q_DECLARE_TR_FUNCTIONS(MRVEPubMetadata)

public:
    /**
     * Takes authors, description and language, where they are empty, from a manuscript of the book.
     * Where that names no language either, it is the one of the system's locale, if that has one.
     */
    void completeFrom(const MRVManuscript &manuscript);
    /**
     * Reads the cover picture from a file.
     *
     * @param file  a PNG, JPEG or GIF picture.
     * @param error if given, receives one translated line that names the file on failure;
     *              untouched on success.
     * @return false, with the cover as it was, when the file cannot be read or is no picture.
     */
    bool readCover(const QString &file, QString *error = nullptr);

    QString title; ///< empty: the first document's own title, or "Untitled"
    QStringList authors;
    QString language; ///< BCP 47 tag such as "en-GB"; empty or malformed: "und"
    /** URI or ISBN; empty: a UUID computed from the content, so that it is stable. */
    QString identifier;
    QString publisher;
    QString description;
    QString rights;
    QDateTime modified; ///< invalid: now. Also the date of the files in the archive
    /** Bytes of a PNG, JPEG or GIF picture; empty: the cover page shows title and authors. */
    QByteArray cover;
};
