#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QDateTime>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

struct MRVManuscript;

/**
 * The versions of the format that e-books can be written in: 2.0.1 and 3.2.
 * @since 1.0
 */
enum class MRVEPubVersion { EPub2 = 2, EPub3 = 3 };

/**
 * Somebody who helped to make a book.
 * @since 1.0
 */
struct MRVEPubContributor
{
    QString role; ///< a MARC relator code such as "edt", "ill", "trl" or "nrt"
    QString name;
};

/**
 * What an e-book says about itself. Empty texts are left out, or replaced as each member says.
 *
 * Where several sources say something, the first one that is asked counts: an application calls
 * set() for what its user says, then completeFrom() for each further source.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVEPubMetadata
{
    Q_DECLARE_TR_FUNCTIONS(MRVEPubMetadata)

public:
    /**
     * Sets what a key names, or adds to it where there may be several: authors, contributors,
     * subjects.
     *
     * @param key   one of those of readFile() but "cover".
     * @param value is trimmed; an empty one changes nothing.
     * @param error if given, receives one translated line on failure; untouched on success.
     * @return false, with nothing changed, for an unknown key and for a malformed value.
     */
    bool set(const QString &key, const QString &value, MRVErrorSink error = nullptr);

    /**
     * Reads a file of "key: value" lines (see MRVFrontMatter), and takes what is empty
     * here from it.
     *
     * The keys, in any case, with "-" or "_": title, subtitle, author, creator, contributor,
     * editor, illustrator, narrator, translator, language, identifier, isbn, publisher,
     * description, rights, date (of publication), series, series-number, subject, source, cover;
     * and the other usual names of these, such as authors, keywords or lang. A contributor is
     * "ROLE: NAME", the role a MARC code or its English name. After a name, "|" and the form by
     * which lists file it may follow. The path of a cover counts from the file's folder.
     *
     * @param file  in UTF-8.
     * @param notes if given, receives one translated line for each key that is not known.
     * @param error if given, receives one translated line that names the file, and the line in it
     *              where there is one, on failure; untouched on success.
     * @return false, with nothing changed, when the file cannot be read or a value is malformed.
     */
    bool readFile(const QString &file, QStringList *notes = nullptr, MRVErrorSink error = nullptr);

    /** Takes what is empty here from @p other. */
    void completeFrom(const MRVEPubMetadata &other);
    /**
     * Takes what is empty here from a manuscript of the book: what the head of HTML, or the front
     * matter of Markdown, says.
     *
     * @param notes if given, receives one translated line, which names the manuscript, for each
     *              value that is malformed and so not taken.
     */
    void completeFrom(const MRVManuscript &manuscript, QStringList *notes = nullptr);
    /**
     * Reads the cover picture from a file.
     *
     * @param file  a PNG, JPEG or GIF picture.
     * @param error if given, receives one translated line that names the file on failure;
     *              untouched on success.
     * @return false, with the cover as it was, when the file cannot be read or is no picture.
     */
    bool readCover(const QString &file, MRVErrorSink error = nullptr);

    /**
     * The form by which lists file the name of an author or contributor: that of fileAs, else, for
     * a plain western name of a person, "Family, Given". Empty where it cannot be told.
     */
    QString sortName(const QString &name) const;

    QString title; ///< empty: the first document's own title, or "Untitled"
    QString subtitle;
    QStringList authors;
    QVector<MRVEPubContributor> contributors;
    QMap<QString, QString> fileAs; ///< of a name, the form by which lists file it
    /**
     * BCP 47 tag such as "en-GB"; empty or malformed: "und". What the e-book adds of its own, such
     * as "Contents", is in this language where MTranslator has it, else in the interface's.
     */
    QString language;
    /** A URI; empty: that of the ISBN, else a UUID computed from the content, so it is stable. */
    QString identifier;
    QString isbn; ///< 10 or 13 characters without hyphens; not checked here
    QString publisher;
    QString description;
    QString rights;
    QString published; ///< "2026", "2026-01" or "2026-01-31"
    QString series;
    QString seriesNumber; ///< "2" or "2.5"; without a series it is left out
    QStringList subjects;
    QString source; ///< the edition that the page numbers are of, such as its ISBN
    QDateTime modified; ///< invalid: now. Also the date of the files in the archive
    /** Bytes of a PNG, JPEG or GIF picture; empty: the cover page shows title and authors. */
    QByteArray cover;
};
