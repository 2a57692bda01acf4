#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <functional>
#include <vector>

class MRVZipReader;
class MRVProgressMeter;
class QIODevice;

/**
 * A file of an archive that is to be written.
 *
 * @since 1.0
 */
struct MRVZipEntry
{
    /** How its bytes are packed. */
    enum Packing {
        Stored, ///< as it is, for what is compressed already
        Deflated, ///< unless that would make it larger
    };

    QString path; ///< with "/" between folders; no two of an archive are equal
    Packing packing = Deflated;
    /**
     * Makes the file. It is called once, in any thread, at the same time as those of others. A null
     * array means that it failed, and with it the archive.
     */
    std::function<QByteArray()> content;
    /**
     * Of a stored file, how many bytes it has: it is then made when it is written, in the calling
     * thread, and kept no longer. -1 where that is not known.
     */
    qint64 size = -1;
    /**
     * Where it is the copy of a file of another archive, which is not unpacked for it, that
     * archive, which must outlive the writing; then the members above but the path do not count.
     */
    const MRVZipReader *source = nullptr;
    int index = -1; ///< of the file in that archive's files()
};

/**
 * Writes a zip archive of the files in their order, without extra fields and with one date for all.
 *
 * The files are made and compressed on all cores, in threads that end before the function returns;
 * the bytes do not depend on how many these are.
 *
 * @param entries are asked for their bytes while it runs, and not afterwards.
 * @param level  of libdeflate, 1 to 12.
 * @param date   1980 to 2107, of which the time of day of UTC is written.
 * @param device open for writing, and able to seek.
 * @param error  if given, receives the reason on failure, which names a file or is the library's;
 *               untouched on success.
 * @param meter  if given, its next stages up to 1000 thousandths are this.
 * @since 1.0
 */
MRVBASE_EXPORT bool mrvWriteZip(const std::vector<MRVZipEntry> &entries, int level,
                                const QDateTime &date, QIODevice *device, MRVErrorSink error,
                                MRVProgressMeter *meter = nullptr);
