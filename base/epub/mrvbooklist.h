#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QString>
#include <QVector>

/**
 * A line of a list of manuscripts: a manuscript, or a part that begins or ends.
 * @since 1.0
 */
struct MRVBookListEntry
{
    bool isPart = false;
    QString path; ///< of a manuscript
    QString title; ///< of a part, empty where the last one ends; of a manuscript, or empty
};

/**
 * Files that say which manuscripts a book consists of, and in which order.
 *
 * A line names a manuscript, by a path from the list's own folder, after which " | " and a title
 * may follow; a name that a file has as it stands counts for more. "[Title]" begins a part, and
 * "[]" ends one. Empty lines, and those that begin with "#", are left out; "./" before a name that
 * begins with "#" or "[" makes it one. Blanks around names and titles are left out.
 *
 * @code{.unparsed}
 * # The order of the book
 * front.md
 * [Part One: Ebb]
 * one.md
 * two.html | The Second Night
 * []
 * epilogue.md
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVBookList
{
    Q_DECLARE_TR_FUNCTIONS(MRVBookList)

public:
    MRVBookList() = delete;

    /**
     * Reads a list.
     *
     * @param file    in UTF-8.
     * @param entries receives them in order; untouched on failure.
     * @param error   if given, receives one translated line that names the file, and the line in
     *                it, on failure; untouched on success.
     * @return false when the file cannot be read, names a file that does not exist, or names no
     *         manuscript.
     */
    static bool read(const QString &file, QVector<MRVBookListEntry> *entries,
                     MRVErrorSink error = nullptr);
};
