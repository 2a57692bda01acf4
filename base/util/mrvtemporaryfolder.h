#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QString>

#include <csignal>

/**
 * Holds SIGINT, SIGTERM and SIGHUP back during a step that must not stop half way, in the calling
 * thread. They are delivered when the last such object is gone.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVHeldSignals
{
public:
    MRVHeldSignals();
    ~MRVHeldSignals();
    MRVHeldSignals(const MRVHeldSignals &) = delete;
    MRVHeldSignals &operator=(const MRVHeldSignals &) = delete;

private:
    sigset_t m_before;
};

/**
 * A new hidden folder that is removed with all it holds when the object is, or when SIGINT, SIGTERM
 * or SIGHUP ends the program. (A QTemporaryDir stays then.)
 *
 * While such folders exist, there is a handler for those of the signals that would end the program;
 * handlers of the application's own stay. Main thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTemporaryFolder
{
public:
    /** Makes the folder in the folder @p place, which must exist. */
    explicit MRVTemporaryFolder(const QString &place);
    ~MRVTemporaryFolder();
    MRVTemporaryFolder(const MRVTemporaryFolder &) = delete;
    MRVTemporaryFolder &operator=(const MRVTemporaryFolder &) = delete;

    /** Absolute, without links; empty when the folder could not be made. */
    QString path() const;
    /** The system's reason why the folder could not be made; else no error. */
    const MRVError &error() const { return m_error; }
    /** Leaves the folder where it is for good; path() is empty afterwards. */
    void keep();

private:
    static void endProgram(int signal);
    void enlist();
    void forget();

    static MRVTemporaryFolder *s_first; // changed with the signals held, read by their handler
    MRVTemporaryFolder *m_next = nullptr;
    QByteArray m_path; // not detached after construction: the handler reads it
    MRVError m_error;
};
