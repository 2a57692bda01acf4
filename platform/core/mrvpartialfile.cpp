#include "core/mrvpartialfile.h"

#include "core/mrverrorline_p.h"
#include "core/mrvfilesteps_p.h"
#include "core/mrvfilewriter.h"

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

// The first line of an origin says what the part can be trusted after: anything, or all but a fall
// of the machine, of which each life has its own name.
constexpr const char *OnDisk = "on disk";

QByteArray thisBoot()
{
    QFile file(QStringLiteral("/proc/sys/kernel/random/boot_id"));
    return file.open(QIODevice::ReadOnly) ? file.readLine().trimmed() : QByteArray();
}

// A descriptor of the plain file of this user at @p path, which is made where there is none; -1 for
// anything else.
int openPlain(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    const int handle =
        ::open(name.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK, 0666);
    struct stat file;
    if (handle < 0 || ::fstat(handle, &file) != 0) {
        return -1;
    }
    if (S_ISREG(file.st_mode) && file.st_uid == ::geteuid() && file.st_nlink == 1) {
        return handle;
    }
    ::close(handle);
    errno = EPERM;
    return -1;
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

bool MRVPartialFile::open(QString *error)
{
    QString reason = MrvFileSteps::refusal(m_path, &m_target);
    const QFileInfo target(m_target);
    if (reason.isEmpty() && target.exists() && !target.isWritable()) {
        reason = qt_error_string(EACCES);
    }
    if (reason.isEmpty()) {
        reason = openPart();
    }
    if (!reason.isEmpty()) {
        return fail(reason, error);
    }
    readOrigin();
    return true;
}

// Empty on success, else the reason.
QString MRVPartialFile::openPart()
{
    const QString suffix = QStringLiteral(".part");
    const QFileInfo target(m_target);
    const bool isLong = QFile::encodeName(target.fileName() + suffix).size() > MaxName;
    const QByteArray name = target.fileName().toUtf8();
    const QString hash =
        QString::fromLatin1(QCryptographicHash::hash(name, QCryptographicHash::Sha256).toHex());
    m_name = isLong ? target.path() + u'/' + hash + suffix : m_target + suffix;

    int handle = openPlain(m_name);
    if (handle < 0 && ::unlink(QFile::encodeName(m_name).constData()) == 0) {
        handle = openPlain(m_name);
    }
    if (handle < 0) {
        return qt_error_string(errno);
    }
    if (::flock(handle, LOCK_EX | LOCK_NB) != 0) {
        ::close(handle);
        return tr("another program is writing it");
    }
    m_part.open(handle, QIODevice::ReadWrite | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
    m_part.seek(m_part.size());
    return QString();
}

QString MRVPartialFile::originPath() const
{
    return m_name + QLatin1String(".origin");
}

void MRVPartialFile::readOrigin()
{
    m_origin.clear();
    const int handle = ::open(QFile::encodeName(originPath()).constData(),
                              O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    struct stat status;
    QFile file;
    if (handle >= 0 && ::fstat(handle, &status) == 0 && S_ISREG(status.st_mode)
        && status.st_uid == ::geteuid() && file.open(handle, QIODevice::ReadOnly)) {
        const QByteArray state = file.readLine().trimmed();
        if (state == OnDisk || (!state.isEmpty() && state == thisBoot())) {
            m_origin = file.read(MaxOrigin);
        }
        file.close();
    }
    if (handle >= 0) {
        ::close(handle);
    }
}

bool MRVPartialFile::writeOrigin(const QByteArray &state)
{
    return MRVFileWriter::write(originPath(), state + '\n' + m_origin, nullptr);
}

qint64 MRVPartialFile::size() const
{
    return m_part.isOpen() ? m_part.size() : 0;
}

bool MRVPartialFile::restart(const QByteArray &origin, QString *error)
{
    m_origin.clear();
    m_synced = 0;
    ::unlink(QFile::encodeName(originPath()).constData());
    if (!m_part.resize(0) || !m_part.seek(0)) {
        return fail(m_part.errorString(), error);
    }
    if (origin.size() <= MaxOrigin) {
        m_origin = origin;
    }
    if (!m_origin.isEmpty() && !writeOrigin(thisBoot())) {
        m_origin.clear();
    }
    return true;
}

bool MRVPartialFile::append(const QByteArray &bytes, QString *error)
{
    QString reason;
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

bool MRVPartialFile::putInPlace(QString *error)
{
    const QFileInfo target(m_target);
    if (target.exists()) {
        MrvFileSteps::keepOwner(m_part.handle(), m_target);
        m_part.setPermissions(target.permissions());
    }
    if (!MrvFileSteps::syncToDisk(m_part.handle())) {
        return fail(qt_error_string(errno), error);
    }
    if (!MrvFileSteps::renameOver(m_name, m_target)) {
        return fail(qt_error_string(errno), error);
    }
    ::unlink(QFile::encodeName(originPath()).constData());
    m_part.close();
    return true;
}

bool MRVPartialFile::fail(const QString &reason, QString *error)
{
    mrvSetErrorLine(error, tr("Cannot write the file \"%1\": %2"), m_path, reason);
    return false;
}

void MRVPartialFile::remove()
{
    m_part.close();
    ::unlink(QFile::encodeName(m_name).constData());
    ::unlink(QFile::encodeName(originPath()).constData());
}
