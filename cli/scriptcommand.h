#pragma once

#include "commandline.h"

#include <QString>

class MRVScriptMode;

// Verbs of "mrv script" that are in a file of their own.

int runScriptConvert(const Call &call);
int runScriptRename(const Call &call);
int runScriptStats(const Call &call);

/**
 * Finds a mode: a factory mode by its name, in any case, or a mode file by its path.
 *
 * @param error receives one line on failure.
 */
bool findScriptMode(const QString &nameOrPath, MRVScriptMode *mode, QString *error);
