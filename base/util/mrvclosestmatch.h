#pragma once

#include "util/mrvbase_export.h"

#include <QStringList>

namespace MRV {

/**
 * What a mistyped word was probably meant to be, for a "did you mean" in a message.
 *
 * @return the one of @p candidates with the fewest edits (a character inserted, left out or
 *         replaced, two neighbors swapped), ignoring case; the first of several. Null where none is
 *         near: one edit for every three characters of @p word is allowed, and one for a shorter
 *         word.
 * @since 1.0
 */
MRVBASE_EXPORT QString closestMatch(const QString &word, const QStringList &candidates);

} // namespace MRV
