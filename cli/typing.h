#pragma once

#include "autoreplace/mrvautoreplacelist.h"

#include <QString>
#include <QVector>

/** A replacement made while a line is typed. */
struct TypedReplacement
{
    int start; // in the line, counted in UTF-16 units from 0
    int end; // after what was typed
    MRVAutoReplace entry;
};

enum class LookUp {
    AfterEachCharacter,
    AtWordEnds, // before a blank, and at the end of the line
};

/**
 * What an editor replaces while somebody types a line, in the order in which it happens.
 *
 * The line is typed character by character (half a surrogate pair is none). After each character,
 * or at each word's end, the list is asked for the best match of the text as it then stands before
 * the caret, what was replaced before included. If there is one, it is replaced, and typing goes on
 * behind the replacement, which itself is not looked at until something more was typed. So a short
 * match hides a longer one that begins with it, unless words are waited for.
 *
 * Time grows with the length of the line, whatever was replaced.
 */
QVector<TypedReplacement> typeLine(const QString &line, const MRVAutoReplaceList &list,
                                   LookUp lookUp);
