#pragma once

#include "util/mrvbase_export.h"

#include <QChar>
#include <QSet>
#include <QString>

namespace MRV {

/**
 * @p name without its automatic number, a hyphen and digits at the very end: "Scene-12" gives
 * "Scene", "Scene12" stays. Digits of any script go.
 *
 * @param number if given, receives the number; 0 where there is none, where it exceeds an int, and
 *               where its digits are not all ASCII digits.
 */
MRVBASE_EXPORT QString stripAutoNumberEnding(const QString &name, int *number = nullptr);

/**
 * The name that follows @p name in a numbered series: digits at the very end are replaced by their
 * value plus one, written in ASCII digits ("Draft9" gives "Draft10", "Scene 007" gives "Scene 8"),
 * or by "1" where they exceed an int or are not all ASCII digits. A name without such digits gets
 * "-1".
 */
MRVBASE_EXPORT QString adjustName(const QString &name);

/**
 * @p name made safe as the name of a file on any system.
 *
 * Each run of special characters (specialFileNameChars() and the double quote), together with
 * replacement characters beside it, becomes one @p replacement; runs of the replacement that were
 * in the name shrink to one as well. White space at both ends goes, so that a result may be empty.
 */
MRVBASE_EXPORT QString cleanFileName(const QString &name, const QChar &replacement);
/** As above, with a blank as the replacement. */
MRVBASE_EXPORT QString cleanFileName(const QString &name);

/** cleanFileName() of @p name and @p replacement, under a second published name. */
MRVBASE_EXPORT QString cleanFileNameRegExp(const QString &name, const QChar &replacement);
/** As above, with a blank as the replacement. */
MRVBASE_EXPORT QString cleanFileNameRegExp(const QString &name);

/**
 * The sixteen characters that a file's name should not hold. Deliberately without the double quote,
 * which cleanFileName() replaces all the same.
 */
MRVBASE_EXPORT const QSet<QChar> &specialFileNameChars();

/**
 * The tag of a language as BCP 47 writes it ("fr_FR" gives "fr-FR"); empty for a malformed one.
 *
 * @since 1.0
 */
MRVBASE_EXPORT QString languageTag(const QString &text);

} // namespace MRV
