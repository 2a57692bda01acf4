#pragma once

#include "commandline.h"
#include "screenplay/mrvscriptpagination.h"

class MRVFountainScript;
class MRVScriptFile;
class MRVScriptMode;

// Verbs of "mrv script" that are in a file of their own.

int runScriptCompare(const Call &call);
int runScriptConvert(const Call &call);
int runScriptNumber(const Call &call);
int runScriptRename(const Call &call);
int runScriptRenumber(const Call &call);
int runScriptScenes(const Call &call);
int runScriptStats(const Call &call);

/** Prints the faults of a script. @return Done where it has none. */
int checkScript(const Call &call, const QString &path);

/** Reads a script, "-" for standard input, as the options of the call say; @p error names it. */
bool readScriptFile(const Call &call, const QString &path, MRVScriptFile *file, MRVErrorSink error);

/** The mode and the paper that the options of the call name; @p error says what is wrong. */
bool readLayout(const Call &call, MRVScriptMode *mode, MRVScriptPagination::Options *layout,
                MRVErrorSink error);

/**
 * Writes a script that has changed in the format of its file, "-" for standard output.
 *
 * @return false, with a text, also where @p target is the file @p path itself and would lose
 *         something that it holds besides the script.
 */
bool writeRevised(MRVScriptFile *file, const MRVFountainScript &script, const QString &path,
                  const QString &target, MRVErrorSink error);
