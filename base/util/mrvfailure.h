#pragma once

#include <QString>

namespace MRV {

/** Hands a text to a caller that asked for one, and says that a call failed: always false. */
inline bool fail(QString *error, const QString &text)
{
    if (error) {
        *error = text;
    }
    return false;
}

/** As above, with a text of the form "path: reason". */
inline bool fail(QString *error, const QString &path, const QString &reason)
{
    return fail(error, QStringLiteral("%1: %2").arg(path, reason));
}

} // namespace MRV
