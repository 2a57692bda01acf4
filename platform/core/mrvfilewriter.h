#pragma once

#include "core/mrvcore_export.h"
#include "core/mrverror.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <functional>

class QIODevice;

/**
 * The one way in which files are written: whole, or not at all.
 *
 * @since 1.0
 */
class MRVCORE_EXPORT MRVFileWriter
{
    Q_DECLARE_TR_FUNCTIONS(MRVFileWriter)

public:
    MRVFileWriter() = delete;

    /**
     * Puts @p bytes in place of the file at @p path, or creates it.
     *
     * The bytes go to a temporary file in the same folder, are counted, flushed and synced to the
     * disk, and only then renamed over the old file. On any failure the old file stands as it was
     * and no temporary file is left behind.
     *
     * The permissions of an existing file are kept, and its owner and group as far as the system
     * allows. Other hard links to it are not: they go on naming the old file, with the old
     * contents. A symbolic link stays a link: the file that it leads to is replaced, or created
     * where there is none.
     *
     * Refused are an empty path and one with a null character, a folder, a device, pipe or socket,
     * a file without write permission, a link that leads round in a circle, a link that another
     * user put into a sticky folder that all may write to, and a folder in which no file can be
     * created (writing into the old file itself would risk it).
     *
     * @param path  absolute, or relative to the current folder. Its folder must exist.
     * @param bytes may be empty; the file is then empty.
     * @param error if given, receives one translated line that names the file and the reason on
     *              failure; untouched on success.
     * @return true when the new file is in place.
     */
    static bool write(const QString &path, const QByteArray &bytes, MRVErrorSink error = nullptr);

    /**
     * Writes to a device. Returns false, with a translated end of a sentence as the reason, where
     * that failed or took fewer bytes than it was given.
     */
    using Content = std::function<bool(QIODevice *device, MRVErrorSink reason)>;
    /**
     * As above, for what need not be in memory as a whole.
     *
     * @param content writes the file to a device that is open for writing, not buffered, and can
     *                seek.
     */
    static bool write(const QString &path, const Content &content, MRVErrorSink error = nullptr);
};
