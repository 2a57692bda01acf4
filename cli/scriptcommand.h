#pragma once

#include <QString>
#include <QStringList>

class MRVScriptMode;

// Subcommands of "mrv script" that lie in files of their own. arguments[0] is "script NAME".

/** "script: text" as the error, and the exit code for wrong usage. */
int scriptUsageError(const QString &text);

/**
 * Finds a mode: a factory mode by its name, in any case, or a mode file by its path.
 *
 * @param error receives one line on failure.
 */
bool findScriptMode(const QString &nameOrPath, MRVScriptMode *mode, QString *error);
