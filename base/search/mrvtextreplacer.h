#pragma once

#include "search/mrvtextquery.h"
#include "search/mrvtextreplacement.h"
#include "text/mrvtextrange.h"
#include "util/mrvbase_export.h"

#include <QString>
#include <QTextCharFormat>
#include <QVector>

class QTextCursor;
class QTextDocument;

/**
 * One replacement that was or could be made.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVTextChange
{
    MRVTextRange range; ///< in the document before any of the changes
    QString before; ///< the text there
    QString after; ///< what takes its place
    QTextCharFormat format = QTextCharFormat(); ///< merged into the formats of what takes its place
};

/**
 * Searches with all that MRVTextQuery can say, and replaces what it finds.
 *
 * Formats are kept as mrvReplaceText() keeps them. Finds are those of MRVTextFinder::findAll(): in
 * document order, none over another, none over a paragraph end. A null document or cursor, an
 * invalid expression and an empty text find nothing.
 *
 * What is not replaced: what would not change, and text with an image or another object in it. An
 * object counts as a blank for the search, and would be lost.
 *
 * A search that ends early, because an expression costs too much or the query says so, tells by its
 * @c outcome where it ended; if given, that is set in any case but for a null document or cursor.
 * findAll() and count() then have the finds up to there, and nothing is previewed or replaced.
 *
 * GUI thread only.
 *
 * @code
 * MRVTextQuery query;
 * query.syntax = MRVTextQuery::RegularExpression;
 * query.text = QStringLiteral("(\\d+)th of (\\w+)");
 * QString error;
 * if (query.isValid(&error)) {
 *     const int count = MRVTextReplacer::replaceAll(&document, query, QStringLiteral("$2 $1"));
 *     qDebug() << count << "dates were rewritten";
 * } else {
 *     qWarning() << error;
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextReplacer
{
public:
    MRVTextReplacer() = delete;

    /** All finds, in document order. */
    static QVector<MRVTextRange> findAll(const QTextDocument *document, const MRVTextQuery &query,
                                         MRVSearchOutcome *outcome = nullptr);
    /** How many findAll() finds, in the same time. */
    static int count(const QTextDocument *document, const MRVTextQuery &query,
                     MRVSearchOutcome *outcome = nullptr);
    /**
     * The first find that starts at the end of the selection of @p from or later; with
     * FindBackward, the last one that ends at its start or earlier. Unlike findAll(), each search
     * begins at the cursor, or, backward, at the start of a paragraph. An empty find at a cursor
     * without selection is passed over. Null where there is none; the search does not begin again
     * at the other end.
     */
    static QTextCursor find(const QTextCursor &from, const MRVTextQuery &query,
                            MRVSearchOutcome *outcome = nullptr);

    /** What replaceAll() with the same @p replacement would do, in document order. */
    static QVector<MRVTextChange> preview(const QTextDocument *document, const MRVTextQuery &query,
                                          const MRVTextReplacement &replacement,
                                          MRVSearchOutcome *outcome = nullptr);
    /**
     * Replaces all finds. One undo step; none where nothing changes.
     *
     * @param replacement a text, or see MRVTextReplacement.
     * @return how many were replaced.
     */
    static int replaceAll(QTextDocument *document, const MRVTextQuery &query,
                          const MRVTextReplacement &replacement,
                          MRVSearchOutcome *outcome = nullptr);
    /**
     * Makes some of the @p changes of preview(), in whichever order they are given. One undo step;
     * none where nothing changes. A change is left out if its text is no longer in its place, or if
     * it overlaps one that comes later in the document.
     *
     * @return how many were made.
     */
    static int apply(QTextDocument *document, const QVector<MRVTextChange> &changes);
    /**
     * Replaces the selection of @p cursor if it is a find, as find() would give it. One undo step.
     *
     * @param cursor afterwards stands after the new text, or, with FindBackward, before it, so that
     *               find() goes on beyond it; untouched where false is returned.
     * @param replacement a text, or see MRVTextReplacement.
     * @return false where the selection is no find, or has an object in it.
     */
    static bool replace(QTextCursor &cursor, const MRVTextQuery &query,
                        const MRVTextReplacement &replacement, MRVSearchOutcome *outcome = nullptr);
};
