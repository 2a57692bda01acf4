#pragma once

#include "core/mrverror.h"
#include "html/mrvhtmlreport.h"
#include "util/mrvbase_export.h"
#include "util/mrvsourceplace.h"

#include <QString>
#include <QTextDocument>

/**
 * Reads pages of HTML into documents: what a browser shows of a page, with its looks as far as rich
 * text has them.
 *
 * A page is parsed as browsers do it, so that missing and crossed tags lose nothing. Style sheets
 * of the page and of files beside it count, lengths of CSS in all its units, 16 pixels to an em
 * where the page says nothing else. Names of elements become anchors on the next character.
 * Pictures are named as the page names them and not loaded. Titles of links become tooltips, and
 * the class "language-cpp" of code in a preformatted element its BlockCodeLanguage, "cpp". Pages
 * that QTextDocument::toHtml() has written are read as they were.
 *
 * MRVOfficeConverter writes elements "mrv-comment" for comments in the margin. The text from one
 * with a number as its attribute "begin" to the one with the same as its "end" is a commented one:
 * InspectorCommentProperty is true, CommentData0 the text of the comment, a line a paragraph,
 * CommentData1 a text that no other comment has, and CommentData2 a QStringList of author and date.
 * A character has one comment; comments that begin at the same one are one comment.
 *
 * Time and memory are linear in the length of the page; scripts do not run, and nothing is fetched
 * from other machines. GUI thread only.
 *
 * @code
 * QTextDocument page;
 * MRVHtmlReport report;
 * if (MRVHtmlDocument::read(QStringLiteral("<h1>One</h1>A <b>bold</b> start."), QString(), &page,
 *                           &report)) {
 *     qDebug() << page.blockCount() << "paragraphs," << report.losses.size() << "losses";
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVHtmlDocument
{
public:
    MRVHtmlDocument() = delete;

    /**
     * Replaces the content of @p document by that of a page.
     *
     * The font of the page's body, with 12 points where it has no size, becomes the document's
     * default font. Undoing is switched off while reading, which empties its history.
     *
     * @param html     a page, or a part of one.
     * @param file     the absolute path of the page's file, or of its folder with "/" at the end:
     *                 where the names of style sheets count from, and how links name the page
     *                 itself. With an empty one, no sheet is loaded. The file is not opened.
     * @param document untouched on failure; must not be null.
     * @param report   if given, receives what was found; untouched on failure.
     * @param error    if given, receives a translated text on failure; untouched on success.
     * @return false for a page that MRVHtmlReader::whyTooComplex() refuses, or whose tree is too
     *         deep nevertheless.
     */
    static bool read(const QString &html, const QString &file, QTextDocument *document,
                     MRVHtmlReport *report = nullptr, MRVErrorSink error = nullptr);

    /**
     * Where the text of the document that read() makes of a page stands in the page.
     *
     * @param html a page, as read() takes it.
     * @param file the same as for read(): style sheets can hide text.
     * @return one place for each character of the document's toRawText(). Not known are those of
     *         paragraphs' and lines' ends, pictures, text that the page only implies, such as the
     *         marks around a quotation, and white space that stands in several places. Empty for a
     *         page that read() refuses.
     */
    static MRVSourcePlaces places(const QString &html, const QString &file);
};
