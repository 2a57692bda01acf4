#pragma once

#include "core/mrvcore_export.h"
#include "core/mrverror.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QString>

/**
 * A file that comes in piece by piece, and gets to its place when it is whole.
 *
 * Until then it lies beside its place, as "NAME.part", and the place is what it was. With an origin
 * stated, the part stays there when it could not be ended, even where the program is killed, and
 * the next object for this place goes on with it; without one it is removed. After a fall of the
 * whole machine, which leaves holes in files, a part is begun again. The same places are refused as
 * by MRVFileWriter, and the same of an old file is kept.
 *
 * "NAME.part.origin" beside it, which only this user can read, says that the part is one. Anything
 * else of such a name is left alone, and the part gets a number. Another process that is writing
 * the part makes open() fail.
 *
 * @since 1.0
 */
class MRVCORE_EXPORT MRVPartialFile
{
    Q_DECLARE_TR_FUNCTIONS(MRVFileWriter)

public:
    /** @param path as for MRVFileWriter::write(). Nothing is done before open(). */
    explicit MRVPartialFile(const QString &path);
    ~MRVPartialFile();
    Q_DISABLE_COPY(MRVPartialFile)

    /**
     * Begins, or goes on with what a former object has left.
     *
     * @param error if given, receives one translated line on failure.
     */
    bool open(MRVErrorSink error = nullptr);

    /** How much there is of it, in bytes; 0 before open(). */
    qint64 size() const;
    /** What restart() was given by a former object; empty for a new part. */
    QByteArray origin() const { return m_origin; }

    /**
     * Throws away what there is.
     *
     * @param origin where the bytes come from, to tell whether they can be gone on with; empty
     *               where they cannot.
     * @param error  as for open().
     */
    bool restart(const QByteArray &origin, MRVErrorSink error = nullptr);

    /**
     * Adds bytes at the end.
     *
     * @param bytes may be empty.
     * @param error as for open().
     */
    bool append(const QByteArray &bytes, MRVErrorSink error = nullptr);

    /**
     * Brings it to the disk and puts it in the place of the old file; this object is done with
     * then. A part that cannot be renamed is removed.
     *
     * @param error as for open().
     */
    bool putInPlace(MRVErrorSink error = nullptr);

private:
    MRVError openPart();
    int openPart(const QString &name, bool *isTaken);
    void readOrigin();
    bool writeOrigin(const QByteArray &state);
    bool fail(const MRVError &reason, MRVErrorSink error);
    void remove();
    void removeOrigin();

    const QString m_path;
    QString m_target;
    QString m_name; // of the part; QFile forgets the name of what it is opened by a handle
    QFile m_part;
    QByteArray m_state; // what the origin says that the part can be trusted after
    QByteArray m_origin;
    qint64 m_synced = 0; // what the system was asked to bring to the disk
};
