#pragma once

#include "util/mrvbase_export.h"

#include <QDateTime>
#include <QSizeF>
#include <QString>
#include <QStringList>

/**
 * What a manuscript looks like on paper.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVPrintOptions
{
    enum Layout {
        Book, ///< justified, with indented paragraphs, and a page number at the outer edge
        /** As publishers want it: Courier of 12 points, double spaced, with margins of an inch. */
        Manuscript,
    };

    Layout layout = Book;
    QSizeF paper; ///< in points; empty: A5 for a book, Letter for a manuscript
    QString title;
    QStringList authors;
    QString surname; ///< above the pages of a manuscript; empty: the first author's last word
    QString language; ///< a BCP 47 tag, in which the word for the contents is; may be empty
    QDateTime date; ///< in the file; invalid for none
    bool hasContents = true; ///< a table of contents, where there are two headings or more

    /**
     * The layout that is called "book" or "manuscript".
     *
     * @param name   in small letters.
     * @param layout untouched for any other name.
     * @return false for any other name.
     */
    static bool layoutNamed(const QString &name, Layout *layout);
};
