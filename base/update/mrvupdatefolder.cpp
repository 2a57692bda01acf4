#include "update/mrvupdatefolder_p.h"

#include "util/mrvfailure.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t PrivateFile = 0600;

bool createNew(const QByteArray &path)
{
    const int descriptor =
        ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, PrivateFile);
    if (descriptor >= 0) {
        ::close(descriptor);
    }
    return descriptor >= 0;
}

} // namespace

MRVUpdateFolder::~MRVUpdateFolder()
{
    clear();
}

QString MRVUpdateFolder::filePath(const QString &name) const
{
    return (m_privatePath.isEmpty() ? QDir::tempPath() : m_privatePath) + u'/' + name;
}

bool MRVUpdateFolder::claim(const QString &name, bool mayReplace, MRVErrorSink error)
{
    if (claimAll(filePath(name), mayReplace)) {
        return true;
    }
    const MRVError reason = MRVError::ofSystem(errno);
    const QString path = filePath(name);
    if (m_privatePath.isEmpty()) {
        m_private = std::make_unique<MRVTemporaryFolder>(QDir::tempPath());
        m_privatePath = m_private->path();
        if (!m_privatePath.isEmpty() && claimAll(filePath(name), mayReplace)) {
            return true;
        }
        m_private.reset();
        m_privatePath.clear();
    }
    return MRV::fail(error, reason.kind,
                     tr("Cannot write the file \"%1\": %2").arg(path, reason.text));
}

bool MRVUpdateFolder::claimAll(const QString &path, bool mayReplace)
{
    return lock(path + QLatin1String(".lock")) && claimPath(path, mayReplace)
        && claimPath(path + QLatin1String(".part"))
        && claimPath(path + QLatin1String(".part.origin"));
}

// What two checks of this user wrote at a time, one would remove under the other's eyes.
bool MRVUpdateFolder::lock(const QString &path)
{
    if (m_locks.contains(path)) {
        return true;
    }
    if (!claimPath(path)) {
        return false;
    }
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDWR | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    struct stat status;
    // The other check may have removed it in the meantime.
    if (descriptor >= 0 && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0
        && ::fstat(descriptor, &status) == 0 && status.st_nlink > 0) {
        m_locks.insert(path, descriptor);
        return true;
    }
    const int reason = errno;
    ::close(descriptor);
    forget(path);
    errno = reason;
    return false;
}

bool MRVUpdateFolder::claimPath(const QString &path, bool mayReplace)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status;
    if (createNew(name)) {
        note(path, 0);
    } else if (::lstat(name.constData(), &status) != 0 || status.st_uid != ::geteuid()) {
        return false;
    } else if (!mayReplace && !isNoted(path)) {
        errno = EEXIST;
        return false;
    } else if (S_ISREG(status.st_mode)) {
        note(path, quint64(status.st_ino));
    } else if (::unlink(name.constData()) == 0 && createNew(name)) {
        note(path, 0);
    } else {
        return false;
    }
    return true;
}

bool MRVUpdateFolder::isNoted(const QString &path) const
{
    return std::any_of(m_claims.cbegin(), m_claims.cend(),
                       [&](const Claim &claim) { return claim.path == path; });
}

void MRVUpdateFolder::note(const QString &path, quint64 before)
{
    if (!isNoted(path)) {
        m_claims.append({path, before});
    }
}

void MRVUpdateFolder::clear()
{
    for (const Claim &claim : qAsConst(m_claims)) {
        const QByteArray path = QFile::encodeName(claim.path);
        struct stat status;
        if (::lstat(path.constData(), &status) == 0 && status.st_uid == ::geteuid()
            && quint64(status.st_ino) != claim.before) {
            ::unlink(path.constData());
        }
    }
    m_claims.clear();
    std::for_each(m_locks.cbegin(), m_locks.cend(), ::close);
    m_locks.clear();
    m_private.reset();
    m_privatePath.clear();
}

void MRVUpdateFolder::forget(const QString &path)
{
    const auto isIt = [&](const Claim &claim) { return claim.path == path; };
    m_claims.erase(std::remove_if(m_claims.begin(), m_claims.end(), isIt), m_claims.end());
}

void MRVUpdateFolder::keep(const QString &name)
{
    forget(filePath(name));
    if (m_private) {
        m_private->keep();
    }
}
