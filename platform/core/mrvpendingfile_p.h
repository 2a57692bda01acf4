#pragma once

#include "core/mrverror.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>
#include <QString>

#include <functional>
#include <memory>

/**
 * A file on its way to its place, in the steps of MRVFileWriter::write(), each of which comes once
 * and after the one before it has succeeded. A step that fails, and the end of the object, leave
 * the old file as it was and no temporary file behind.
 */
class MRVPendingFile
{
    Q_DECLARE_TR_FUNCTIONS(MRVFileWriter)

public:
    using Content = std::function<bool(QIODevice *device, MRVErrorSink reason)>;
    /** What writes @p bytes and counts them. */
    static Content contentOf(const QByteArray &bytes);

    /** As for MRVFileWriter::write(). */
    explicit MRVPendingFile(const QString &path);
    ~MRVPendingFile();

    QString path() const { return m_path; } ///< as it was given
    /** Writes a temporary file beside it, whole; it may be in memory alone then. */
    bool fill(const Content &content, MRVErrorSink error);
    /** Has the system begin to bring it to the disk, without waiting. */
    void startSync();
    /** Waits until it is there. */
    bool sync(MRVErrorSink error);
    /** Renames it over the old one. */
    bool putInPlace(MRVErrorSink error);

private:
    MRVError writeTemporary(const Content &content);
    bool fail(const MRVError &reason, MRVErrorSink error);

    const QString m_path;
    QFileInfo m_target;
    std::unique_ptr<QSaveFile> m_file;
};
