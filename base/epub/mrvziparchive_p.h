#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <functional>
#include <vector>

class QIODevice;

/** A file of an archive that is to be written. */
struct MRVZipEntry
{
    enum Packing {
        Stored, ///< as it is, for what is compressed already
        Deflated, ///< unless that would make it larger
    };

    QString path; // with "/" between folders
    Packing packing = Deflated;
    /**
     * Makes the file. It is called once, in any thread, at the same time as those of others. No
     * bytes mean that it failed, and with it the archive.
     */
    std::function<QByteArray()> content;
    /**
     * Of a stored file, how many bytes it has: it is then made when it is written, in the calling
     * thread, and kept no longer. -1 where that is not known.
     */
    qint64 size = -1;
};

/**
 * Writes a zip archive of the files in their order, without extra fields and with one date for all.
 *
 * The files are made and compressed on all cores, in threads that end before the function returns;
 * the bytes do not depend on how many these are.
 *
 * @param level  of libdeflate, 1 to 12.
 * @param date   1980 to 2107, of which the time of day of UTC is written.
 * @param device open for writing, and able to seek.
 * @param error  if given, receives the reason on failure, which names a file or is the library's;
 *               untouched on success.
 */
bool mrvWriteZip(const std::vector<MRVZipEntry> &entries, int level, const QDateTime &date,
                 QIODevice *device, QString *error);
