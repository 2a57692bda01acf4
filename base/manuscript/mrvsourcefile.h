#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/**
 * Replaces files that were read before, without losing what somebody else has written meanwhile.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVSourceFile
{
    Q_DECLARE_TR_FUNCTIONS(MRVSourceFile)

public:
    MRVSourceFile() = delete;

    /**
     * Replaces the file at @p path, if it still holds @p before, by @p after. The checked writer
     * does it, so that permissions and links are kept.
     *
     * @param backup if given, the old bytes are kept in a new file beside, with the permissions of
     *               the old one, and this receives its path: @p path with "~" or, where that name
     *               is taken, "~1", "~2" and so on. Untouched on failure.
     * @param error  if given, receives one translated line that names a file on failure; untouched
     *               on success.
     * @return false, with the file as it was, when it has been changed or cannot be written, or
     *         when the backup cannot be made.
     */
    static bool replace(const QString &path, const QByteArray &before, const QByteArray &after,
                        QString *backup = nullptr, MRVErrorSink error = nullptr);
};
