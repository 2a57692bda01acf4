#include "util/mrvtemporaryfolder.h"

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

MRVHeldSignals::MRVHeldSignals()
{
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : endingSignals) {
        sigaddset(&held, signal);
    }
    pthread_sigmask(SIG_BLOCK, &held, &m_before);
}

MRVHeldSignals::~MRVHeldSignals()
{
    pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

MRVTemporaryFolder *MRVTemporaryFolder::s_first = nullptr;

MRVTemporaryFolder::MRVTemporaryFolder(const QString &place)
    : m_path(QFile::encodeName(
        QDir(QDir(place).canonicalPath()).filePath(QStringLiteral(".mrv-export-XXXXXX"))))
{
    const MRVHeldSignals held;
    if (!mkdtemp(m_path.data())) {
        m_error = MRVError::ofSystem(errno);
        m_path.clear();
        return;
    }
    enlist();
}

MRVTemporaryFolder::~MRVTemporaryFolder()
{
    const MRVHeldSignals held;
    if (!m_path.isEmpty()) {
        removeTree(AT_FDCWD, m_path.constData());
        forget();
    }
}

QString MRVTemporaryFolder::path() const
{
    return QFile::decodeName(m_path);
}

void MRVTemporaryFolder::keep()
{
    const MRVHeldSignals held;
    if (!m_path.isEmpty()) {
        forget();
        m_path.clear();
    }
}

void MRVTemporaryFolder::enlist()
{
    m_next = s_first;
    s_first = this;
    for (const int signal : endingSignals) {
        struct sigaction action;
        // A signal that is ignored, as under nohup, stays so.
        if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_DFL) {
            action.sa_handler = &MRVTemporaryFolder::endProgram;
            action.sa_flags = int(SA_RESETHAND);
            sigfillset(&action.sa_mask);
            sigaction(signal, &action, nullptr);
        }
    }
}

void MRVTemporaryFolder::forget()
{
    MRVTemporaryFolder **link = &s_first;
    while (*link != this) {
        link = &(*link)->m_next;
    }
    *link = m_next;
    for (const int signal : endingSignals) {
        struct sigaction action;
        // What the program has set in the meantime is its own.
        if (!s_first && sigaction(signal, nullptr, &action) == 0
            && action.sa_handler == &MRVTemporaryFolder::endProgram) {
            ::signal(signal, SIG_DFL);
        }
    }
}

void MRVTemporaryFolder::endProgram(int signal)
{
    for (const MRVTemporaryFolder *folder = s_first; folder; folder = folder->m_next) {
        removeTree(AT_FDCWD, folder->m_path.constData());
    }
    raise(signal); // waits for the handler's end; then the program ends as it would have
}
