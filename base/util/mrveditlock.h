#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QString>

#include <memory>

class QLockFile;

/**
 * Lets one program at a time read, change and write a file.
 *
 * The lock is a file beside the file, with ".edit" after its name, which goes with the lock. All
 * names of a file, such as links, lead to one lock. A lock whose program has ended holds nobody up.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVEditLock
{
    Q_DECLARE_TR_FUNCTIONS(MRVEditLock)
    Q_DISABLE_COPY(MRVEditLock)

public:
    /** Holds nothing. */
    MRVEditLock();
    /** Gives the lock back. */
    ~MRVEditLock();

    /**
     * Takes the lock of the file at @p path, which need not exist; to be called once. Where another
     * program holds it, this waits for up to 40 seconds. In a folder that takes no lock, nothing is
     * held and the result is true: saving will tell.
     *
     * @param reason if given, receives a translated end of a sentence on failure; untouched on
     *               success.
     * @return false when another program still holds the lock.
     */
    bool acquire(const QString &path, MRVErrorSink reason = nullptr);

    /** Gives the lock back. */
    void release();

private:
    std::unique_ptr<QLockFile> m_lock;
};
