#pragma once

#include "core/mrverror.h"

#include <QString>

namespace MRV {

/**
 * Puts @p reason in @p error. Always false, for the caller to return.
 *
 * @since 1.0
 */
inline bool fail(MRVErrorSink error, const MRVError &reason)
{
    error.set(reason);
    return false;
}

/** As above, with a @p kind and a @p text. */
inline bool fail(MRVErrorSink error, MRVErrorKind kind, const QString &text)
{
    return fail(error, {kind, text});
}

/** As above, for a failure of no particular kind, with a @p text. */
inline bool fail(MRVErrorSink error, const QString &text)
{
    return fail(error, MRVErrorKind::Other, text);
}

/** As above, with a text of the form "path: reason", of @p path and @p reason, whose kind stays. */
inline bool fail(MRVErrorSink error, const QString &path, const MRVError &reason)
{
    return fail(error, reason.kind, QStringLiteral("%1: %2").arg(path, reason.text));
}

} // namespace MRV
