#pragma once

#include "core/mrvcore_export.h"
#include "core/mrverror.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <memory>
#include <vector>

class MRVPendingFile;

/**
 * Many files, each written as MRVFileWriter::write() does, in a fraction of the time.
 *
 * To wait for the disk takes milliseconds for each file. Here all are written first, and then
 * waited for together, before the first one is renamed into its place; those of a batch with
 * hundreds of files, in several parts. No file is in its place before all of it is on the disk.
 *
 * The files do not stand or fall together: one that cannot be written leaves its old one as it was,
 * and the others come into their places.
 *
 * @since 1.0
 */
class MRVCORE_EXPORT MRVFileBatch
{
public:
    MRVFileBatch();
    /** Drops what is not in its place yet. */
    ~MRVFileBatch();
    MRVFileBatch(const MRVFileBatch &) = delete;
    MRVFileBatch &operator=(const MRVFileBatch &) = delete;

    /**
     * Writes the temporary file for @p path; it may come into its place at once, or by commit().
     *
     * @param path  as for MRVFileWriter::write(); no other one of the batch.
     * @param bytes may be empty; the file is then empty. They are not kept.
     * @param error if given, receives one translated line that names the file and the reason on
     *              failure; untouched on success.
     * @return false where it cannot be written; it is then not part of the batch.
     */
    bool add(const QString &path, const QByteArray &bytes, MRVErrorSink error = nullptr);

    /**
     * Puts all files in their places. The batch is empty then, and can be used again.
     *
     * @return those that failed after add(), by the path given there, each with one translated line
     *         that names the file and the reason; empty on success.
     */
    QMap<QString, MRVError> commit();

private:
    void putInPlace();

    std::vector<std::unique_ptr<MRVPendingFile>> m_files;
    QMap<QString, MRVError> m_failed;
};
