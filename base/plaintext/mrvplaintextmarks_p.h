#pragma once

#include "plaintext/mrvplaintextlines_p.h"

/** What a group of lines is by itself. */
struct MRVPlainMark
{
    enum Kind {
        Text,
        Stars, ///< a break between scenes
        Rule, ///< the same, drawn
        Part, ///< a heading over chapters
        Chapter,
        Number, ///< a heading if others of its kind go on counting
    };

    Kind kind = Text;
    int number = 0; ///< of Number, from 1
    bool isRoman = false; ///< of Number
    bool isComplete = false; ///< whether a heading has its title in the same lines
};

MRVPlainMark mrvPlainMark(const MRVPlainGroup &group);

/**
 * The groups, with "Chapter 1" and the like as groups of their own where no blank line sets them
 * apart: after a whole sentence, and before a line that begins with a capital.
 *
 * @param isByLine whether each line is a paragraph. Titles and bare numbers are then told from
 *                 these by the long lines after them.
 */
QVector<MRVPlainGroup> mrvWithHeadingsApart(const QVector<MRVPlainGroup> &groups, bool isByLine);

/**
 * Whether short lines may be the title of the chapter that is announced before them: none of them
 * ends with one of the characters @p ends.
 */
bool mrvIsPlainSubtitle(const MRVPlainGroup &group, const QString &ends);
