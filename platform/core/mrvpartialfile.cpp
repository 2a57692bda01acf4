#include "core/mrvpartialfile.h"

#include "core/mrverrorline_p.h"
#include "core/mrvfilesteps_p.h"

#include <QCryptographicHash>
#include <QFileInfo>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int MaxName = 255; // bytes, on the file systems of Linux
// So that the end, which waits for the disk, has little left to wait for.
constexpr qint64 SyncedAtOnce = 8 << 20;
// Linux takes twice as long for a megabyte at once.
constexpr int WrittenAtOnce = 64 * 1024;
constexpr qint64 MaxOrigin = 16 * 1024;

// The first line of an origin begins with this, and goes on with what the part can be trusted
// after: anything, or all but a fall of the machine, of which each life has its own name.
constexpr const char *Mark = "part of a download, ";
constexpr const char *OnDisk = "on disk";
constexpr int MaxNumber = 9;
constexpr mode_t PrivateFile = 0600;

QByteArray thisBoot()
{
    QFile file(QStringLiteral("/proc/sys/kernel/random/boot_id"));
    return file.open(QIODevice::ReadOnly) ? file.readLine().trimmed() : QByteArray();
}

QString originOf(const QString &part)
{
    return part + QLatin1String(".origin");
}

// Whether an open file is a plain one of this user, without other names, and still at @p path.
bool isOurs(int handle, const QByteArray &path)
{
    struct stat opened;
    struct stat there;
    return ::fstat(handle, &opened) == 0 && ::lstat(path.constData(), &there) == 0
        && S_ISREG(opened.st_mode) && opened.st_uid == ::geteuid() && opened.st_nlink == 1
        && opened.st_dev == there.st_dev && opened.st_ino == there.st_ino;
}

// The contents of an open origin; false where it is something else. An empty file holds the name
// for one.
bool readMarked(int handle, const QByteArray &path, QByteArray *bytes)
{
    if (!isOurs(handle, path)) {
        return false;
    }
    QByteArray buffer(int(MaxOrigin), '\0');
    const ssize_t size = ::pread(handle, buffer.data(), size_t(buffer.size()), 0);
    *bytes = buffer.left(int(qMax(ssize_t(0), size)));
    return size == 0 || bytes->startsWith(Mark);
}

// The same of the one at @p path; empty where there is none.
QByteArray readMarked(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    const int handle = ::open(name.constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    QByteArray bytes;
    const bool isMarked = handle >= 0 && readMarked(handle, name, &bytes);
    if (handle >= 0) {
        ::close(handle);
    }
    return isMarked ? bytes : QByteArray();
}

} // namespace

MRVPartialFile::MRVPartialFile(const QString &path)
    : m_path(path)
{
}

MRVPartialFile::~MRVPartialFile()
{
    if (!m_part.isOpen()) {
        return;
    }
    if (m_origin.isEmpty() || m_part.size() == 0) {
        remove();
    } else if (MrvFileSteps::syncToDisk(m_part.handle())) {
        writeOrigin(OnDisk);
    }
}

bool MRVPartialFile::open(MRVErrorSink error)
{
    MRVError reason = MrvFileSteps::refusal(m_path, &m_target);
    const QFileInfo target(m_target);
    if (!reason && target.exists() && !target.isWritable()) {
        reason = MRVError::ofSystem(EACCES);
    }
    if (!reason) {
        reason = openPart();
    }
    if (reason) {
        return fail(reason, error);
    }
    readOrigin();
    return true;
}

MRVError MRVPartialFile::openPart()
{
    const QFileInfo target(m_target);
    const QString longest = QStringLiteral(".9.part.origin.XXXXXX"); // of a part's names
    const bool isLong = QFile::encodeName(target.fileName() + longest).size() > MaxName;
    const QByteArray hash =
        QCryptographicHash::hash(target.fileName().toUtf8(), QCryptographicHash::Sha256);
    const QString base =
        isLong ? target.path() + u'/' + QString::fromLatin1(hash.toHex()) : m_target;
    int error = 0;
    for (int number = 0; number <= MaxNumber; ++number) {
        const QString infix = number == 0 ? QString() : u'.' + QString::number(number);
        m_name = base + infix + QLatin1String(".part");
        bool isTaken = false;
        const int handle = openPart(m_name, &isTaken);
        error = errno;
        if (isTaken) {
            return {MRVErrorKind::InUse, tr("another program is writing it")};
        }
        if (handle >= 0) {
            m_part.open(handle, QIODevice::ReadWrite | QIODevice::Unbuffered,
                        QFileDevice::AutoCloseHandle);
            m_part.seek(m_part.size());
            return {};
        }
        if (error != EEXIST) {
            break;
        }
    }
    return MRVError::ofSystem(error);
}

// A handle of the part, which belongs to this object then; -1 with errno, which is EEXIST where
// something else has the name.
int MRVPartialFile::openPart(const QString &name, bool *isTaken)
{
    const QByteArray path = QFile::encodeName(name);
    const int handle =
        ::open(path.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK, 0666);
    if (handle < 0) {
        struct stat there;
        const int error = errno;
        errno = ::lstat(path.constData(), &there) == 0 ? EEXIST : error;
        return -1;
    }
    // Whoever had the lock before may have put the file into its place, or removed it. And without
    // an origin only an empty file is one.
    *isTaken = isOurs(handle, path) && ::flock(handle, LOCK_EX | LOCK_NB) != 0;
    struct stat status;
    if (*isTaken || !isOurs(handle, path) || ::fstat(handle, &status) != 0
        || (status.st_size > 0 && readMarked(originOf(name)).isEmpty())) {
        ::close(handle);
        errno = EEXIST;
        return -1;
    }
    return handle;
}

void MRVPartialFile::readOrigin()
{
    const QByteArray bytes = readMarked(originOf(m_name));
    const int end = bytes.indexOf('\n');
    m_state = bytes.left(end).mid(int(qstrlen(Mark)));
    const bool isTrusted = m_state == OnDisk || (!m_state.isEmpty() && m_state == thisBoot());
    m_origin = isTrusted ? bytes.mid(end + 1) : QByteArray();
    if (m_origin.isEmpty()) {
        writeOrigin(thisBoot());
    }
}

// Not synced: what is lost of it only begins the part again.
bool MRVPartialFile::writeOrigin(const QByteArray &state)
{
    const QByteArray path = QFile::encodeName(originOf(m_name));
    const QByteArray bytes = Mark + state + '\n' + m_origin;
    const int handle = ::open(path.constData(),
                              O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK, PrivateFile);
    if (handle < 0) {
        return false;
    }
    QByteArray before;
    const bool isWritten = readMarked(handle, path, &before) && ::fchmod(handle, PrivateFile) == 0
        && ::ftruncate(handle, 0) == 0
        && ::pwrite(handle, bytes.constData(), size_t(bytes.size()), 0) == bytes.size();
    ::close(handle);
    m_state = state;
    return isWritten;
}

void MRVPartialFile::removeOrigin()
{
    const QByteArray path = QFile::encodeName(originOf(m_name));
    const int handle = ::open(path.constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    QByteArray bytes;
    if (handle >= 0) {
        if (readMarked(handle, path, &bytes)) {
            ::unlink(path.constData());
        }
        ::close(handle);
    }
}

qint64 MRVPartialFile::size() const
{
    return m_part.isOpen() ? m_part.size() : 0;
}

bool MRVPartialFile::restart(const QByteArray &origin, MRVErrorSink error)
{
    m_origin.clear();
    m_synced = 0;
    if (!m_part.resize(0) || !m_part.seek(0)) {
        return fail(MRVError::ofDevice(m_part), error);
    }
    if (origin.size() <= MaxOrigin) {
        m_origin = origin;
    }
    if (!writeOrigin(thisBoot())) {
        m_origin.clear();
    }
    return true;
}

bool MRVPartialFile::append(const QByteArray &bytes, MRVErrorSink error)
{
    // What comes now is on the disk only after the next sync.
    if (m_state == OnDisk) {
        writeOrigin(thisBoot());
    }
    MRVError reason;
    for (int at = 0; at < bytes.size(); at += WrittenAtOnce) {
        const QByteArray piece =
            QByteArray::fromRawData(bytes.constData() + at, qMin(WrittenAtOnce, bytes.size() - at));
        if (!MrvFileSteps::writeAll(&m_part, piece, &reason)) {
            return fail(reason, error);
        }
    }
    if (m_part.pos() - m_synced >= SyncedAtOnce) {
        (void)::sync_file_range(m_part.handle(), m_synced, m_part.pos() - m_synced,
                                SYNC_FILE_RANGE_WRITE);
        m_synced = m_part.pos();
    }
    return true;
}

bool MRVPartialFile::putInPlace(MRVErrorSink error)
{
    const QFileInfo target(m_target);
    if (target.exists()) {
        MrvFileSteps::keepOwner(m_part.handle(), m_target);
        m_part.setPermissions(target.permissions());
    }
    if (!MrvFileSteps::syncToDisk(m_part.handle())) {
        return fail(MRVError::ofSystem(errno), error);
    }
    const bool isInPlace = MrvFileSteps::renameOver(m_name, m_target);
    const int reason = errno;
    // In this order: as long as the file is open, nobody else takes it for a part.
    removeOrigin();
    m_part.close();
    return isInPlace || fail(MRVError::ofSystem(reason), error);
}

bool MRVPartialFile::fail(const MRVError &reason, MRVErrorSink error)
{
    mrvSetErrorLine(error, tr("Cannot write the file \"%1\": %2"), m_path, reason);
    return false;
}

void MRVPartialFile::remove()
{
    ::unlink(QFile::encodeName(m_name).constData());
    removeOrigin();
    m_part.close();
}
