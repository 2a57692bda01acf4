#pragma once

#include <QString>

namespace MRV {

/** Stores @p text in @p error, unless that is null. Always false, for the caller to return. */
inline bool fail(QString *error, const QString &text)
{
    if (error) {
        *error = text;
    }
    return false;
}

/** As above, with a text of the form "path: reason", of @p path and @p reason. */
inline bool fail(QString *error, const QString &path, const QString &reason)
{
    return fail(error, QStringLiteral("%1: %2").arg(path, reason));
}

} // namespace MRV
