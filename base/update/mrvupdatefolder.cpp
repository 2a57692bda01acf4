#include "update/mrvupdatefolder_p.h"

#include "util/mrvfailure.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
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

bool MRVUpdateFolder::isClaimed(const QString &path) const
{
    return std::any_of(m_claims.begin(), m_claims.end(),
                       [&](const Claim &claim) { return claim.path == path; });
}

bool MRVUpdateFolder::claim(const QString &name, QString *error)
{
    if (isClaimed(filePath(name)) || claimIn(filePath(QString()), name)) {
        return true;
    }
    const QString reason = qt_error_string(errno);
    const QString path = filePath(name);
    if (m_privatePath.isEmpty()) {
        m_private = std::make_unique<MRVTemporaryFolder>(QDir::tempPath());
        m_privatePath = m_private->path();
        if (!m_privatePath.isEmpty() && claimIn(filePath(QString()), name)) {
            return true;
        }
        m_private.reset();
        m_privatePath.clear();
    }
    return MRV::fail(error, tr("Cannot write the file \"%1\": %2").arg(path, reason));
}

bool MRVUpdateFolder::claimIn(const QString &folder, const QString &name)
{
    const QByteArray path = QFile::encodeName(folder + name);
    if (createNew(path)) {
        m_claims.append({folder + name, 0});
        return true;
    }
    struct stat status;
    if (::lstat(path.constData(), &status) != 0 || status.st_uid != ::geteuid()) {
        return false;
    }
    if (S_ISREG(status.st_mode)) {
        m_claims.append({folder + name, quint64(status.st_ino)});
        return true;
    }
    if (::unlink(path.constData()) != 0 || !createNew(path)) {
        return false;
    }
    m_claims.append({folder + name, 0});
    return true;
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
    m_private.reset();
    m_privatePath.clear();
}

void MRVUpdateFolder::keep(const QString &name)
{
    const QString path = filePath(name);
    const auto isKept = [&](const Claim &claim) { return claim.path == path; };
    m_claims.erase(std::remove_if(m_claims.begin(), m_claims.end(), isKept), m_claims.end());
    if (m_private) {
        m_private->keep();
    }
}
