#include "core/mrvpendingfile_p.h"

#include "core/mrverrorline_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// As many links as the kernel follows before it reports a loop.
constexpr int MaxLinks = 40;

// The longest name, in bytes, to which QSaveFile can append the ".XXXXXX" of its temporary file.
constexpr int MaxSavedName = 255 - 7;

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
QString realTarget(const QString &path, QString *reason)
{
    QFileInfo info(path);
    for (int i = 0; info.isSymLink(); ++i) {
        if (i == MaxLinks) {
            *reason = MRVPendingFile::tr("its symbolic links form a loop");
            return QString();
        }
        if (isPlanted(info)) {
            *reason = MRVPendingFile::tr("it is another user's link in a shared folder");
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

// As far as the system allows: only the administrator may give files away, and a user may hand them
// only to his own groups.
void keepOwner(int handle, const QString &path)
{
    struct stat old;
    if (::stat(QFile::encodeName(path).constData(), &old) != 0) {
        return;
    }
    const bool isKept = ::fchown(handle, old.st_uid, old.st_gid) == 0
        || ::fchown(handle, uid_t(-1), old.st_gid) == 0;
    Q_UNUSED(isKept)
}

// Network and copy-on-write file systems report a full disk only here. A file system that cannot
// sync at all says so, which is not a failure.
bool syncToDisk(int handle)
{
    int result;
    do {
        result = ::fsync(handle);
    } while (result != 0 && errno == EINTR);
    return result == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
}

// A disk that fills up takes a part of the bytes without an error; only the next write fails.
bool writeAll(QIODevice *file, const QByteArray &bytes, QString *reason)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 count = file->write(bytes.constData() + done, bytes.size() - done);
        if (count <= 0) {
            *reason = file->errorString();
            return false;
        }
        done += count;
    }
    // What a file system has only claimed to take is missing from the file.
    if (file->size() != bytes.size()) {
        *reason = MRVPendingFile::tr("not all of it was written");
        return false;
    }
    return true;
}

// QFile::rename() never replaces a file. Leaves errno to the caller.
bool renameOver(const QString &from, const QString &to)
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

// Why a file must not be written at @p path; empty where it may. @p target receives its real place.
QString refusal(const QString &path, QString *target)
{
    if (path.isEmpty()) {
        return MRVPendingFile::tr("the file has no name");
    }
    // System calls would take the part before it for the whole name.
    if (path.contains(QChar(QChar::Null))) {
        return MRVPendingFile::tr("its name holds a null character");
    }
    QString reason;
    *target = realTarget(path, &reason);
    if (target->isEmpty()) {
        return reason;
    }
    const QFileInfo info(*target);
    if (info.isDir()) {
        return MRVPendingFile::tr("it is a folder");
    }
    if (info.exists() && !info.isFile()) {
        return MRVPendingFile::tr("it is not a regular file");
    }
    if (!info.dir().exists() || target->endsWith(QLatin1Char('/'))) {
        return MRVPendingFile::tr("its folder does not exist");
    }
    return QString();
}

} // namespace

MRVPendingFile::MRVPendingFile(const QString &path)
    : m_path(path)
{
}

MRVPendingFile::~MRVPendingFile() = default;

bool MRVPendingFile::fill(const MRVPendingFile::Content &content, QString *error)
{
    QString target;
    QString reason = refusal(m_path, &target);
    if (reason.isEmpty()) {
        m_target.setFile(target);
        reason = writeTemporary(content);
    }
    return reason.isEmpty() || fail(reason, error);
}

// Empty on success, else the reason.
QString MRVPendingFile::writeTemporary(const MRVPendingFile::Content &content)
{
    // A name too long for QSaveFile is given in a second step, from a name that nobody else uses.
    const bool isLong = QFile::encodeName(m_target.fileName()).size() > MaxSavedName;
    if (isLong && m_target.exists() && !m_target.isWritable()) {
        return qt_error_string(EACCES);
    }
    const QString place = isLong
        ? m_target.path() + QLatin1String("/.") + QUuid::createUuid().toString(QUuid::Id128)
        : m_target.filePath();
    m_file = std::make_unique<QSaveFile>(place);
    if (!m_file->open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return m_file->errorString();
    }
    keepOwner(m_file->handle(), m_target.filePath());
    if (isLong && m_target.exists()) {
        m_file->setPermissions(m_target.permissions());
    }
    // commit() alone reports success on a full disk, where the last write came back short and the
    // buffer could not be flushed.
    QString reason;
    if (!content(m_file.get(), &reason)) {
        return reason.isEmpty() ? m_file->errorString() : reason;
    }
    return m_file->flush() ? QString() : m_file->errorString();
}

void MRVPendingFile::startSync()
{
    // A hint: sync() is what counts.
    (void)::sync_file_range(m_file->handle(), 0, 0, SYNC_FILE_RANGE_WRITE);
}

bool MRVPendingFile::sync(QString *error)
{
    return syncToDisk(m_file->handle()) || fail(qt_error_string(errno), error);
}

bool MRVPendingFile::putInPlace(QString *error)
{
    const QString place = m_file->fileName();
    if (!m_file->commit()) {
        return fail(m_file->errorString(), error);
    }
    m_file.reset();
    return place == m_target.filePath() || renameOver(place, m_target.filePath())
        || fail(qt_error_string(errno), error);
}

bool MRVPendingFile::fail(const QString &reason, QString *error)
{
    m_file.reset(); // with the temporary file
    mrvSetErrorLine(error, MRVPendingFile::tr("Cannot write the file \"%1\": %2"), m_path, reason);
    return false;
}

MRVPendingFile::Content MRVPendingFile::contentOf(const QByteArray &bytes)
{
    return [bytes](QIODevice *device, QString *reason) { return writeAll(device, bytes, reason); };
}
