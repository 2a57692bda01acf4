#pragma once

#include <QString>

#include <memory>

class MRVOptions;

enum class IfMissing { Refuse, Create };

/**
 * The options in the INI file at @p path, or for an empty path the user's own.
 *
 * @param ifMissing whether a file that does not exist is an error, or will be there as soon as something is saved.
 * @return null, with a one-line text that names the file, when it is missing, cannot be read or holds something else.
 */
std::unique_ptr<MRVOptions> openOptions(const QString &path, IfMissing ifMissing, QString *error);
