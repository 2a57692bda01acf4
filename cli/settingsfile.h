#pragma once

#include "commandline.h"

#include "options/mrvoptions.h"
#include "options/mrvoptionsfile.h"

using Access = MRVOptionsFile::Access;

/** The option that names a settings file. */
constexpr Option settingsOption =
    Option::name("settings", "FILE", "Use this settings file (INI) instead of the user's own.");

/** Opens the options in the file of --settings, or the user's own, and runs a verb on them. */
template<Access access, int (*Run)(const Call &call, MRVOptions *options)>
int withSettings(const Call &call)
{
    MRVError error;
    MRVOptionsFile file;
    return file.open(call.value("settings"), access, &error) ? Run(call, file.options())
                                                             : refuse(error);
}

/**
 * Saves the options. @return Done, or Failed after an error; the options then are not tried again
 * at the end, so that the exit code tells what the file holds.
 */
inline int save(MRVOptions *options)
{
    MRVError error;
    if (options->saveNow(&error)) {
        return Done;
    }
    options->revert();
    return refuse(error);
}
