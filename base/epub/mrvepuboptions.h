#pragma once

#include "util/mrvbase_export.h"

#include <QByteArray>

/**
 * How an e-book presents its text: what its style sheet begins with, where its notes stand, how
 * deep its table of contents goes.
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVEPubOptions
{
    /** The typography that what the manuscripts say about their looks is added to. */
    enum StyleBase {
        NoStyle, ///< the reading system's own
        Classic, ///< as novels are set: paragraphs indented after the first one
        Modern, ///< paragraphs separated by space
    };

    /** Where notes stand that the manuscripts link with a mark in the text. */
    enum Notes {
        ChapterNotes, ///< at the end of the page with the mark
        BookNotes, ///< on a page of their own at the end of the book
    };

    /** How the files of the e-book are compressed. */
    enum Packing {
        Quick, ///< what zlib does at its standard level, in a third of the time
        Small, ///< two to six percent smaller, in five times the time
    };

    StyleBase styleBase = Classic;
    /**
     * CSS in UTF-8 that takes the place of the base, and stands after the rules of the book's own
     * looks, so that it wins; empty: the base. It is not parsed. Bytes that are not UTF-8 are
     * replaced.
     */
    QByteArray styleSheet;
    Notes notes = ChapterNotes;
    Packing packing = Quick;
    /**
     * Whether inline annotations and inline footnotes of a document leave the text and become
     * notes; otherwise they are text as any other. So do comments in the margin whose CommentData0
     * is a QString, with the first text of CommentData2 as the author's name before it; otherwise
     * the book does not have them. Footnotes in the margin are notes in any case.
     */
    bool commentsAsNotes = false;
    /** How many levels of headings the table of contents shows; 0: all. */
    int contentsDepth = 0;
    /**
     * Whether the documents are chapters or parts of a book. The one heading of a document's
     * outermost level is then its chapter, not the title of a book whose chapters are below it.
     */
    bool areChapters = false;
    /**
     * The innermost level of headings that pages begin at, 0 for none: those below it stand in the
     * table of contents, but begin a page only where one is larger than largePage.
     */
    int pageDepth = 6;
    /** Characters above which a page is cut at lesser headings, into halves of this at least. */
    int largePage = 250000;
    /**
     * The width of the text that the documents are laid out for, in ems of most of it. Indents are
     * then in percent of the width that a reader has, so that they keep their proportions in large
     * type; 0: in ems.
     */
    double textWidth = 0;
};
