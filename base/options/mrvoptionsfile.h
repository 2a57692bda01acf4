#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"
#include "util/mrveditlock.h"

#include <QCoreApplication>
#include <QString>

#include <memory>

class MRVOptions;
class QFileInfo;

/**
 * Preferences in a file that may be any file, opened by one of several programs at a time.
 *
 * QSettings takes every file for its own and writes over it, waits at a pipe, replaces a device and
 * makes missing folders. This class opens what is a settings file and nothing else. For a change
 * it holds a lock beside the file, so that what is read, changed and saved is not what another
 * program has read before.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVOptionsFile
{
    Q_DECLARE_TR_FUNCTIONS(MRVOptionsFile)

public:
    enum Access {
        Read, ///< of a file that exists
        Change, ///< of a file that exists
        Create, ///< a change, after which the file exists
    };

    /** No file is open. */
    MRVOptionsFile();
    /** Unlocks the file, after the options have been saved. */
    ~MRVOptionsFile();
    MRVOptionsFile(const MRVOptionsFile &) = delete;
    MRVOptionsFile &operator=(const MRVOptionsFile &) = delete;

    /**
     * Opens a file; to be called once. Where another program holds the lock, it waits for up to 40
     * seconds.
     *
     * @param path   of an INI file; empty: the user's own preferences, which need not exist.
     * @param access what it is opened for.
     * @param error  if given, receives one translated line that names the file on failure;
     *               untouched on success.
     * @return false when the file or its folder does not exist, is no regular file, cannot be read,
     * holds something else, or stays locked.
     */
    bool open(const QString &path, Access access, MRVErrorSink error = nullptr);

    /** The preferences, which this object owns; null before open() and after its failure. */
    MRVOptions *options() const { return m_options.get(); }

    /** Whether bytes begin like a settings file; see MRVFileKind. */
    static bool isSettings(const QByteArray &bytes);

private:
    static MRVError noSettings();
    static MRVError objectionTo(const QFileInfo &file, bool isOwn, Access access);

    MRVEditLock m_lock; // goes last, since the options save when they go
    std::unique_ptr<MRVOptions> m_options;
};
