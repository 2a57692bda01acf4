#pragma once

#include "screenplay/mrvfountain.h"
#include "util/mrvbase_export.h"

#include <QString>
#include <QVector>

class MRVScriptPagination;
class QJsonObject;

/**
 * How much of a script there is, and whose.
 *
 * Pages are those of MRVScriptPagination, so a PDF document of the script has as many. Notes,
 * sections, synopses, the title page and what is cut out are not printed. A page is a minute, which
 * is the rule of thumb of the trade.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVScriptStatistics
{
    /**
     * What one character says in the whole script. A speech of two counts for both of them: see
     * MRVScriptCast::namesIn().
     */
    struct Character
    {
        QString name; ///< in capitals
        int speeches = 0; ///< cues with something said
        int lines = 0; ///< of dialogue and lyrics, as they are printed
        int words = 0; ///< of dialogue and lyrics
        int scenes = 0; ///< in which the character speaks
    };

    int scenes = 0;
    int words = 0; ///< of all that is printed: what has a letter or digit, between white space
    int printedPages = 0; ///< sheets of paper, without the title page
    int eighths = 0; ///< pages in eighths, as breakdowns count them, rounded up
    QVector<Character> characters; ///< by words, then by name

    /** The printed length; the last page counts in eighths. */
    double pages() const { return eighths / 8.0; }
    /** Playing time at a page a minute, rounded up. */
    int minutes() const { return (eighths + 7) / 8; }
    /** The pages as breakdowns write them: "3", "1 3/8", "5/8". */
    QString pagesText() const;
    /** All of it, with "characters" as a list in their order; keys are the names used here. */
    QJsonObject toJson() const;

    /** Counts a script in the built-in mode, on Letter paper. Takes time linear in the script. */
    static MRVScriptStatistics of(const MRVFountainScript &script);
    /**
     * Counts a script on other pages.
     *
     * @param pagination that of @p script.
     */
    static MRVScriptStatistics of(const MRVFountainScript &script,
                                  const MRVScriptPagination &pagination);
};
