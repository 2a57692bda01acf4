#pragma once

#include <QByteArray>
#include <QString>

#include <csignal>

/**
 * Keeps SIGINT, SIGTERM and SIGHUP waiting for the length of a step that must not stop half way.
 */
class SignalsHeld
{
public:
    SignalsHeld();
    ~SignalsHeld();
    SignalsHeld(const SignalsHeld &) = delete;
    SignalsHeld &operator=(const SignalsHeld &) = delete;

private:
    sigset_t m_before;
};

/**
 * A new hidden folder that goes with all it holds when the object does, or when SIGINT, SIGTERM or
 * SIGHUP ends the program. (QTemporaryDir stays behind then.) Main thread only.
 */
class TemporaryFolder
{
public:
    /** Makes the folder in the folder @p place, which must exist. */
    explicit TemporaryFolder(const QString &place);
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    /** Absolute, without links; empty when the folder could not be made. */
    QString path() const;
    /** Why the folder could not be made. */
    QString errorString() const { return m_error; }
    /** Leaves the folder where it is for good. */
    void keep();

private:
    static void endProgram(int signal);
    void enlist();
    void forget();

    static TemporaryFolder *s_first; // changed with the signals held, read by their handler
    TemporaryFolder *m_next = nullptr;
    QByteArray m_path; // not detached after construction: the handler reads it
    QString m_error;
};
