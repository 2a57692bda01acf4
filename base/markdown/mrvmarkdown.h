#pragma once

#include "markdown/mrvmarkdownhead.h"
#include "util/mrvbase_export.h"
#include "util/mrvsourceplace.h"

#include <QString>

/**
 * Markdown as HTML: CommonMark with tables, task lists, "~~deleted~~" and bare links.
 *
 * Time and memory are linear in the text. A text that would break that is refused, see toHtml().
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVMarkdown
{
public:
    /** What is read beyond the syntax that is always on. */
    enum Option {
        NoOptions = 0,
        /** Quotes are curled, "--" and "---" become dashes, "..." an ellipsis; "\"" stays. */
        SmartPunctuation = 1,
        /** "[^1]", and "[^1]: text" at the beginning of a block. */
        Footnotes = 2,
        /**
         * A line of ": definition" after a term, which is a paragraph of one line; one blank line
         * may separate the two. What follows belongs to the definition while it is indented by two
         * columns or more; four of them are not part of it.
         */
        DefinitionLists = 4,
        /** "H~2~O" and "x^2^". What is raised or lowered holds neither blanks nor markup. */
        SubAndSuperscript = 8
    };
    Q_DECLARE_FLAGS(Options, Option)

    MRVMarkdown() = delete;

    /**
     * The body of a page, without html, head and body. Each block has the attribute
     * data-sourcepos="LINE:COLUMN-LINE:COLUMN": its first and last place in @p markdown, both from
     * 1, columns in bytes of UTF-8. A list may end in column 0 of the line after its blank ones.
     *
     * HTML in the text is passed on as it is, scripts included, and so is the address of any link:
     * the result is for a reader that does not trust it.
     *
     * Headings have ids: the one of "# Heading {#id}", or else the text in lower case, without
     * punctuation and with hyphens for its blanks, and "-1", "-2" after it where it is taken.
     * Addresses of links are percent-encoded, ids are not. A note that nothing refers to, or whose
     * name is taken, is a paragraph in its place that begins with its name.
     *
     * Metadata are not part of the result: a block of YAML between "---" and "---" or "...", or
     * lines of "Title: ..." up to the first blank one. Neither is taken for metadata without a key
     * that is known as one; the latter needs a title, an author or a language.
     *
     * @param markdown any text. Characters that are not valid (U+0000, half a surrogate pair) are
     *                 replaced by U+FFFD.
     * @param head     if given, receives the metadata; its former values are lost.
     * @param places   if given, receives for each character of the result where it stands in
     *                 @p markdown, as far as it is text: tags are in no place, and a character
     *                 that is a reference in the result has the place at its "&". A line end that
     *                 is a blank has that of the whole end of the line, with what quotations and
     *                 lists begin the next one with. Not with SmartPunctuation.
     * @return the HTML, empty for an empty text. Null where the text is nested more than
     *         MRVInputLimits::MarkdownDepth levels deep, or is built so that its tables, links or
     *         unclosed tags take far more time or memory than its length would explain.
     */
    static QString toHtml(const QString &markdown, Options options = NoOptions,
                          MRVMarkdownHead *head = nullptr, MRVSourcePlaces *places = nullptr);

    /**
     * The text with empty lines in the place of the metadata that it begins with, as toHtml() takes
     * them; unchanged where it has none.
     *
     * @param markdown any text.
     * @param head     receives what is understood of them; must not be null.
     */
    static QString takeHead(const QString &markdown, MRVMarkdownHead *head);
};

Q_DECLARE_OPERATORS_FOR_FLAGS(MRVMarkdown::Options)
