#pragma once

#include "commandline.h"

#include <memory>

class MRVOptions;
class QLockFile;

enum class Access {
    Read, ///< of a file that must be there
    Change, ///< of a file that must be there
    Create, ///< a change, after which the file will be there
};

/** Options that were opened. To be kept until they are saved. */
struct OpenedOptions
{
    OpenedOptions();
    OpenedOptions(OpenedOptions &&other) noexcept;
    OpenedOptions &operator=(OpenedOptions &&other) noexcept;
    ~OpenedOptions();

    std::unique_ptr<QLockFile> lock; // goes last, since the options save when they go
    std::unique_ptr<MRVOptions> options;
};

/**
 * The options in the INI file at @p path, or for an empty path the user's own.
 *
 * For a change they are locked: what is read, changed and saved is not what another command has
 * read before. A command that finds the lock taken waits.
 *
 * @return null options, with a one-line text that names the file, when it is missing or lies in a
 * folder that is, is no regular file, cannot be read, holds something else, or is locked for too
 * long.
 */
OpenedOptions openOptions(const QString &path, Access access, QString *error);

/** The option that names a settings file. */
constexpr Option settingsOption =
    Option::name("settings", "FILE", "Use this settings file (INI) instead of the user's own.");

/** Opens the options in the file of --settings, or the user's own, and runs a verb on them. */
template<Access access, int (*Run)(const Call &call, MRVOptions *options)>
int withSettings(const Call &call)
{
    QString error;
    const OpenedOptions opened = openOptions(call.value("settings"), access, &error);
    return opened.options ? Run(call, opened.options.get()) : refuse(error);
}

/** Saves the options. @return Done, or Failed after an error. */
int save(MRVOptions *options);
