#pragma once

#include "text/mrvtextrange.h"
#include "util/mrvbase_export.h"

#include <QString>
#include <QStringList>
#include <QVector>

struct MRVManuscript;
class QTextDocument;

/**
 * What a document carries at one place besides its text.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVDocumentNote
{
    enum Kind { Link = 0, Footnote = 1, Comment = 2, Highlight = 3, Picture = 4, Anchor = 5 };

    Kind kind = Link;
    /** Where it is in the document; one character for a picture, empty for an anchor. */
    MRVTextRange range;
    /**
     * The address of a link, and of a link to or from a footnote or comment; the colour of a
     * highlight as "#rrggbb"; the file of a picture; the name of an anchor; the text of a note in
     * the margin. Else empty.
     */
    QString target;
    /**
     * The text at the range, with a line feed for each end of a line or paragraph; for a picture,
     * its alternative text.
     */
    QString text;
};

/**
 * A comment of the markup, which no document holds.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVSourceComment
{
    int line = 1; ///< of the source, from 1, where it begins
    QString text; ///< without white space at both ends
};

/**
 * Lists the links, notes, highlights and pictures of a document. It changes nothing.
 *
 * Footnotes are links between the notes that MRVNoteFinder finds and their marks, links with
 * NoteLinkProperty, and links that word processors and converters name as such ("#_ftn1"), as they
 * do those of comments ("#cmnt1"). Entries of an index are links. Footnotes and comments are also
 * what authors of plain text and Markdown type, "[^1]" and "{>> text <<}", and those in the margin,
 * see MRVMarginNotes. GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDocumentNotes
{
public:
    MRVDocumentNotes() = delete;

    /** All of them, in document order. A null document has none. */
    static QVector<MRVDocumentNote> findAll(QTextDocument *document);
    /** The comments of HTML and Markdown, in order, without those of scripts and styles. */
    static QVector<MRVSourceComment> sourceComments(const MRVManuscript &manuscript);

    /** "link", "footnote", "comment", "highlight", "picture", "anchor". */
    static QString kindName(MRVDocumentNote::Kind kind);
    /** The names of all kinds, in the order of their numbers. */
    static QStringList kindNames();
};
