#pragma once

#include "screenplay/mrvfountain.h"
#include "util/mrvbase_export.h"

#include <QString>
#include <QVector>

class QJsonObject;

/**
 * How much of a script there is, and whose.
 *
 * Pages are counted as a screenplay is typed: Courier of 12 points has ten characters and six lines
 * to the inch, and a Letter page with margins of an inch above and below holds 54 lines. Lines are
 * broken at the widths of the built-in mode (action 60 characters, dialogue 35, parentheticals 20),
 * with two empty lines before a scene heading and one before action, cues, transitions and centred
 * text; of two who speak side by side, the longer counts. Notes, sections, synopses, the title page
 * and what is cut out are not printed. A page is a minute, which is the rule of thumb of the trade.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVScriptStatistics
{
    /** What one character says in the whole script. */
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
    int lines = 0; ///< as they are printed, empty ones at the head of pages left out of account
    int eighths = 0; ///< pages in eighths, as breakdowns count them, rounded up
    QVector<Character> characters; ///< by words, then by name

    /** The printed length in Letter pages; the last one counts in eighths. */
    double pages() const { return eighths / 8.0; }
    /** Playing time at a page a minute, rounded up. */
    int minutes() const { return (eighths + 7) / 8; }
    /** The pages as breakdowns write them: "3", "1 3/8", "5/8". */
    QString pagesText() const;
    /** All of it, with "characters" as a list in their order; keys are the names used here. */
    QJsonObject toJson() const;

    /** Takes time linear in the script. */
    static MRVScriptStatistics of(const MRVFountainScript &script);
};
