#pragma once

#include <QString>

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
