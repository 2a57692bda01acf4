#include "temporaryfolder.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int endingSignals[] = {SIGINT, SIGTERM, SIGHUP};

bool isSelfOrParent(const char *name)
{
    return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

// Runs in a signal handler: system calls only, no heap, no readdir().
bool removeTree(int parent, const char *name)
{
    const int folder = openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (folder < 0) {
        return unlinkat(parent, name, 0) == 0;
    }
    // A listing may pass over entries while others are removed: read until a whole one removes
    // nothing.
    for (bool removed = true; removed;) {
        removed = false;
        lseek(folder, 0, SEEK_SET);
        alignas(dirent64) char buffer[4096];
        for (ssize_t size; (size = getdents64(folder, buffer, sizeof buffer)) > 0;) {
            for (ssize_t at = 0; at < size;) {
                const auto *entry = reinterpret_cast<const dirent64 *>(buffer + at);
                at += entry->d_reclen;
                removed |= !isSelfOrParent(entry->d_name) && removeTree(folder, entry->d_name);
            }
        }
    }
    close(folder);
    return unlinkat(parent, name, AT_REMOVEDIR) == 0;
}

} // namespace

SignalsHeld::SignalsHeld()
{
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : endingSignals) {
        sigaddset(&held, signal);
    }
    pthread_sigmask(SIG_BLOCK, &held, &m_before);
}

SignalsHeld::~SignalsHeld()
{
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

TemporaryFolder *TemporaryFolder::s_first = nullptr;

TemporaryFolder::TemporaryFolder(const QString &place)
    : m_path(QFile::encodeName(
        QDir(QDir(place).canonicalPath()).filePath(QStringLiteral(".mrv-export-XXXXXX"))))
{
    const SignalsHeld held;
    if (!mkdtemp(m_path.data())) {
        m_error = qt_error_string(errno);
        m_path.clear();
        return;
    }
    enlist();
}

TemporaryFolder::~TemporaryFolder()
{
    const SignalsHeld held;
    if (!m_path.isEmpty()) {
        removeTree(AT_FDCWD, m_path.constData());
        forget();
    }
}

QString TemporaryFolder::path() const
{
    return QFile::decodeName(m_path);
}

void TemporaryFolder::keep()
{
    const SignalsHeld held;
    if (!m_path.isEmpty()) {
        forget();
        m_path.clear();
    }
}

void TemporaryFolder::enlist()
{
    m_next = s_first;
    s_first = this;
    for (const int signal : endingSignals) {
        struct sigaction action;
        // A signal that is ignored, as under nohup, stays so.
        if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_DFL) {
            action.sa_handler = &TemporaryFolder::endProgram;
            action.sa_flags = int(SA_RESETHAND);
            sigfillset(&action.sa_mask);
            sigaction(signal, &action, nullptr);
        }
    }
}

void TemporaryFolder::forget()
{
    TemporaryFolder **link = &s_first;
    while (*link != this) {
        link = &(*link)->m_next;
    }
    *link = m_next;
}

void TemporaryFolder::endProgram(int signal)
{
    for (const TemporaryFolder *folder = s_first; folder; folder = folder->m_next) {
        removeTree(AT_FDCWD, folder->m_path.constData());
    }
    raise(
        signal); // waits for the handler's end, then ends the program as the signal does by default
}
