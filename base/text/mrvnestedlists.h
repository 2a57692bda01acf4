#pragma once

#include "util/mrvbase_export.h"

class QTextDocument;

/**
 * Lists whose paragraphs have levels, and lists within lists, which are Qt's way and that of HTML.
 *
 * Qt knows nothing of levels, so what it writes (HTML, Markdown, ODT, paper, its own clipboard) is
 * flat unless they are nested first, in a copy of the document. The exporters of this library nest
 * them themselves.
 *
 * What the readers of manuscripts give has lists within lists, since any view of Qt shows those. An
 * application that edits levels turns them into levels once, when it takes a document in:
 *
 * @code
 * MRVManuscriptReader reader;
 * MRVManuscript manuscript;
 * if (reader.read(QStringLiteral("novel.docx"), &manuscript)) {
 *     MRVNestedLists::toLevels(manuscript.document.get());
 * }
 * @endcode
 *
 * Each function is one undo step, and none where nothing changes. Qt's time for a list grows with
 * the square of its items: thousands are fast, tens of thousands are not. GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVNestedLists
{
public:
    MRVNestedLists() = delete;

    /** Whether a paragraph of a list has another level than 0. Looks at formats alone. */
    static bool hasLevels(const QTextDocument &document);

    /**
     * Makes a list of its own of the paragraphs of each level between two of a lesser one. It has
     * the style, the texts around numbers and an indent as the level has them; a bullet that Qt
     * does not draw becomes a disc. Lists without paragraphs above level 0 stay as they are. Null
     * does nothing.
     *
     * @return whether the document has changed.
     */
    static bool fromLevels(QTextDocument *document);

    /**
     * Makes levels of the outermost list of the lists within it, as a reader of HTML or Qt has
     * made them: each is indented more than the list that it follows. Paragraphs that only go on
     * with an item stay outside of the list. Null does nothing.
     *
     * A list stays nested, with all around and in it, where levels cannot say what it is: one of a
     * depth with another style or other texts around numbers than the first one of that depth, one
     * within others that does not begin with 1 or goes on after an item of a lesser depth, or
     * that has levels of its own.
     *
     * @return whether the document has changed.
     */
    static bool toLevels(QTextDocument *document);
};
