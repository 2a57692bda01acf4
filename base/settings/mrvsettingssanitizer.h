#pragma once

#include "util/mrvbase_export.h"

#include <QString>

/**
 * To be called before QSettings opens a file. Where mrvSafeSettings() leaves something out, the
 * file is kept as @p path with ".damaged" at its end, or another name if there is such a file, and
 * replaced by what is left, under the lock that QSettings takes. A file with a UTF-8 mark is
 * replaced by one without. Nothing is done for a file that is not there or cannot be read.
 *
 * @return @p path, for a class that must do this before the class that it derives from opens the
 * file; where the file should have been replaced and could not be, a path that cannot be opened.
 */
MRVBASE_EXPORT QString mrvSanitizeSettings(const QString &path);

/**
 * The same for the user's own files of an organisation and its @p application, in the native
 * format.
 *
 * @return @p organization, or one whose files cannot be opened.
 */
MRVBASE_EXPORT QString mrvSanitizeUserSettings(const QString &organization,
                                               const QString &application);
