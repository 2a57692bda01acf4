#pragma once

#include "markdown/mrvmarkdownhead.h"
#include "util/mrvbase_export.h"

#include <QString>

/**
 * Plain text as HTML: paragraphs, chapters, breaks between scenes and verse, as the text itself
 * shows them.
 *
 * No character of the text but white space and control characters is left out, and none is
 * added. What is no clear mark
 * stays a paragraph. Time and memory are linear in the text.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVPlainText
{
public:
    MRVPlainText() = delete;

    /**
     * The body of a page, without html, head and body. Each block has the attribute
     * data-sourcepos="LINE:1-LINE:1", its first and last line in @p text, from 1.
     *
     * - Paragraphs are separated by blank lines, by indented first lines, or are a line each. Which
     *   of them, the lengths of the lines tell: only where most lines end close to one width are
     *   lines joined.
     * - Verse and other short lines keep their ends, and their indents by spaces; lines with
     *   columns are preformatted. A paragraph that is indented as a whole is a quotation.
     * - "Chapter 1", "PART TWO", "Prologue", numbers in ascending order and the like, alone in
     *   their paragraph, are headings, in English, German, French and Spanish; a short line after
     *   them is their second line. Three or more without text between them are a table of contents
     *   and no headings.
     * - Rows of stars and similar characters are centred, those of hyphens and the like are rules.
     *
     * A block of lines such as "Title: ..." at the beginning is read as in MRVMarkdown::toHtml(),
     * and left out, if all of it can go to @p head; else it is text.
     *
     * @param head if given, receives the metadata; its former values are lost.
     */
    static QString toHtml(const QString &text, MRVMarkdownHead *head = nullptr);

    /**
     * A title for a text that has none: the name of its file without suffix, underscores as blanks
     * (hyphens, too, where it has neither), the first letter a capital. Empty for an empty name.
     */
    static QString titleOfFile(const QString &fileName);
};
