#pragma once

#include "commandline.h"

#include <QStringList>

/** What may stand in a place of a call, as far as the tables and the application know it. */
struct Completion
{
    enum Paths { NoPaths, Files, Folders };

    Candidates words;
    Paths paths = NoPaths; // that may stand there, too
};

/**
 * What may stand in the place of the last word of a call, whatever has been typed of it: but
 * options only where it begins with a hyphen, and the values of "--option=".
 *
 * @param call the words after the tool's own name.
 */
Completion completionOf(const QStringList &call);

/**
 * The completion for the scripts of shells: a line a word, with its help after a tab if it has
 * one; then a line ":files" or ":folders" where paths may stand there. Empty where nothing may.
 */
QString completionLines(const QStringList &call);
