#pragma once

#include "core/mrverror.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

class QIODevice;

/** The steps by which a file gets to its place safely, for those that take them in turn. */
class MrvFileSteps
{
    Q_DECLARE_TR_FUNCTIONS(MRVFileWriter)

public:
    MrvFileSteps() = delete;

    /**
     * Why a file must not be written at @p path; no error where it may.
     *
     * @param target receives its real place, behind links.
     */
    static MRVError refusal(const QString &path, QString *target);

    /**
     * Gives an open file the owner and the group of the one at @p path, as far as the system
     * allows: only the administrator may give files away, and a user may hand them only to his own
     * groups.
     */
    static void keepOwner(int handle, const QString &path);

    /**
     * Adds bytes to the end of a file. A disk that fills up takes a part of the bytes without an
     * error; only the next write fails.
     */
    static bool writeAll(QIODevice *file, const QByteArray &bytes, MRVErrorSink reason);

    /**
     * Waits until a file is on the disk; network and copy-on-write file systems report a full disk
     * only here. A file system that cannot sync at all says so, which is not a failure.
     */
    static bool syncToDisk(int handle);

    /**
     * Renames a file over another one, which QFile::rename() never does. On failure removes the
     * first one, and leaves errno to the caller.
     */
    static bool renameOver(const QString &from, const QString &to);
};
