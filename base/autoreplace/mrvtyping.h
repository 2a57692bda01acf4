#pragma once

#include "autoreplace/mrvautoreplacelist.h"
#include "util/mrvbase_export.h"

#include <QString>
#include <QVector>

/**
 * A replacement made while a line is typed.
 *
 * @since 1.0
 */
struct MRVTypedReplacement
{
    int start; ///< in the line, counted in UTF-16 units from 0
    int end; ///< after what was typed
    MRVAutoReplace entry;
};

/**
 * When an editor looks for matches.
 *
 * @since 1.0
 */
enum class MRVTypingLookUp {
    AfterEachCharacter,
    AtWordEnds, ///< before a blank, and at the end of the line
};

/**
 * What an editor replaces while somebody types a line, in the order in which it happens.
 *
 * The line is typed character by character (half a surrogate pair is none). After each character,
 * or at each word's end, the list is asked for the best match of the text as it then stands before
 * the caret, what was replaced before included. If there is one, it is replaced, and typing goes on
 * after the replacement, which itself is not looked at until something more was typed. So a short
 * match hides a longer one that begins with it, unless words are waited for.
 *
 * Time grows with the length of the line, whatever was replaced.
 *
 * @param line   without line ends.
 * @param list   what is replaced; entries that are not enabled are not.
 * @param lookUp when the list is asked.
 * @return nothing where nothing is replaced.
 * @since 1.0
 */
MRVBASE_EXPORT QVector<MRVTypedReplacement> mrvTypeLine(const QString &line,
                                                        const MRVAutoReplaceList &list,
                                                        MRVTypingLookUp lookUp);
