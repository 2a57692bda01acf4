#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/**
 * Guards files of another kind, such as a manuscript whose name was mistyped as that of an output.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVFileKind
{
    Q_DECLARE_TR_FUNCTIONS(MRVFileKind)

public:
    /** Whether bytes, which are not empty, are those of a whole file of a kind. */
    using Test = bool (*)(const QByteArray &bytes);

    MRVFileKind() = delete;

    /**
     * Whether a file may be written to @p path without the loss of anything but a file of the same
     * kind: where none exists, it is empty, or @p isOfKind takes all of it.
     *
     * @param error if given, receives one translated line that names the file and the reason when
     *              the answer is no; untouched otherwise.
     * @return false also for what is no regular file, and for a file that cannot be read.
     */
    static bool mayReplace(const QString &path, Test isOfKind, MRVErrorSink error = nullptr);
};
