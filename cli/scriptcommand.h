#pragma once

#include "commandline.h"

// Verbs of "mrv script" that are in a file of their own.

int runScriptConvert(const Call &call);
int runScriptRename(const Call &call);
int runScriptStats(const Call &call);
