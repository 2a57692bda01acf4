#include "core/mrvfilesteps_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// As many links as the kernel follows before it reports a loop.
constexpr int MaxLinks = 40;

// The rule of Linux's fs.protected_symlinks, which keeps users of a shared folder such as /tmp from
// redirecting each other's files.
bool isPlanted(const QFileInfo &link)
{
    struct stat folder;
    struct stat self;
    if (::stat(QFile::encodeName(link.path()).constData(), &folder) != 0
        || ::lstat(QFile::encodeName(link.filePath()).constData(), &self) != 0) {
        return false;
    }
    const bool isShared = (folder.st_mode & S_ISVTX) && (folder.st_mode & S_IWOTH);
    return isShared && self.st_uid != ::geteuid() && self.st_uid != folder.st_uid;
}

// Follows the links at the end of the path; empty, with a reason, where they must not be followed.
QString realTarget(const QString &path, MRVError *reason)
{
    QFileInfo info(path);
    for (int i = 0; info.isSymLink(); ++i) {
        if (i == MaxLinks) {
            *reason = {MRVErrorKind::Other, MrvFileSteps::tr("its symbolic links form a loop")};
            return QString();
        }
        if (isPlanted(info)) {
            *reason = {MRVErrorKind::NoPermission,
                       MrvFileSteps::tr("it is another user's link in a shared folder")};
            return QString();
        }
        // Not symLinkTarget(), which takes "folder/.." away even where the folder is itself a link
        // to somewhere else.
        std::error_code error;
        const auto raw =
            std::filesystem::read_symlink(QFile::encodeName(info.filePath()).constData(), error);
        const QString next = QFile::decodeName(raw.c_str());
        info.setFile(QDir::isAbsolutePath(next) ? next : info.path() + QLatin1Char('/') + next);
    }
    // Resolved by the system, since QSaveFile too would shorten "folder/..".
    const QString folder = QFileInfo(info.path()).canonicalFilePath();
    return folder.isEmpty() ? info.filePath() : folder + QLatin1Char('/') + info.fileName();
}

} // namespace

MRVError MrvFileSteps::refusal(const QString &path, QString *target)
{
    if (path.isEmpty()) {
        return {MRVErrorKind::Other, tr("the file has no name")};
    }
    // System calls would take the part before it for the whole name.
    if (path.contains(QChar(QChar::Null))) {
        return {MRVErrorKind::Other, tr("its name holds a null character")};
    }
    MRVError reason;
    *target = realTarget(path, &reason);
    if (target->isEmpty()) {
        return reason;
    }
    const QFileInfo info(*target);
    if (info.isDir()) {
        return {MRVErrorKind::Other, tr("it is a folder")};
    }
    if (info.exists() && !info.isFile()) {
        return {MRVErrorKind::Other, tr("it is not a regular file")};
    }
    if (!info.dir().exists() || target->endsWith(QLatin1Char('/'))) {
        return {MRVErrorKind::NotFound, tr("its folder does not exist")};
    }
    return {};
}

void MrvFileSteps::keepOwner(int handle, const QString &path)
{
    struct stat old;
    if (::stat(QFile::encodeName(path).constData(), &old) != 0) {
        return;
    }
    const bool isKept = ::fchown(handle, old.st_uid, old.st_gid) == 0
        || ::fchown(handle, uid_t(-1), old.st_gid) == 0;
    Q_UNUSED(isKept)
}

bool MrvFileSteps::syncToDisk(int handle)
{
    int result;
    do {
        result = ::fsync(handle);
    } while (result != 0 && errno == EINTR);
    return result == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
}

bool MrvFileSteps::writeAll(QIODevice *file, const QByteArray &bytes, MRVErrorSink reason)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 count = file->write(bytes.constData() + done, bytes.size() - done);
        if (count <= 0) {
            reason.set(MRVError::ofDevice(*file));
            return false;
        }
        done += count;
    }
    // What a file system has only claimed to take is missing from the file.
    if (file->size() != file->pos()) {
        reason.set({MRVErrorKind::NoSpace, tr("not all of it was written")});
        return false;
    }
    return true;
}

bool MrvFileSteps::renameOver(const QString &from, const QString &to)
{
    const QByteArray name = QFile::encodeName(from);
    if (::rename(name.constData(), QFile::encodeName(to).constData()) == 0) {
        return true;
    }
    const int error = errno;
    ::unlink(name.constData());
    errno = error;
    return false;
}
