#include "settings/mrvsettingsfile_p.h"

#include "core/mrvcoreutil.h"
#include "core/mrvfilewriter.h"
#include "util/mrvfailure.h"
#include "util/mrvkeptcopy.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTemporaryFile>
#include <QThread>

namespace {

Q_LOGGING_CATEGORY(lcSettings, "mrv.settings")

// Texts in the context of the class that shows them.
struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(MRVSettings)
};

// A process that was killed between making its lock and writing its name into it leaves an empty
// one, for which QLockFile would wait half a minute.
void removeDeadLock(const QString &path)
{
    constexpr int Alive = 1000;
    constexpr int Step = 50;
    QFileInfo lock(path);
    while (lock.exists() && lock.size() == 0) {
        if (lock.lastModified().msecsTo(QDateTime::currentDateTime()) > Alive) {
            QFile::remove(path);
            return;
        }
        QThread::msleep(Step);
        lock.refresh();
    }
}

// QLockFile does not tell the system's reason, but another file in its place has the same.
MRVErrorKind whyNotLocked(const QString &path)
{
    const QByteArray likeLock(64, '\n');
    QTemporaryFile probe(path + QLatin1String(".lock.XXXXXX"));
    const bool isWritten =
        probe.open() && probe.write(likeLock) == likeLock.size() && probe.flush();
    return isWritten ? MRVErrorKind::Other : MRVError::ofDevice(probe).kind;
}

} // namespace

bool MRVSettingsFile::read(MRVErrorSink error)
{
    if (MRVCoreUtil::isMissing(m_path)) {
        *this = MRVSettingsFile(m_path);
        return true;
    }
    // A pipe never ends, and a file would be put in place of a device.
    if (!QFileInfo(m_path).isFile()) {
        return MRV::fail(error, Messages::tr("The file \"%1\" is not a regular file").arg(m_path));
    }
    MRVError reason;
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(m_path, &reason);
    if (reason) {
        return MRV::fail(error, reason);
    }
    if (!m_exists || bytes != m_bytes) {
        m_text = mrvReadSettings(bytes);
        m_bytes = bytes;
        m_exists = true;
    }
    return true;
}

bool MRVSettingsFile::replace(const MRVSettingsMap &values, MRVErrorSink error)
{
    const QByteArray bytes = mrvWriteSettings(values);
    if (!m_exists || bytes != m_bytes) {
        if ((m_text.isDamaged && !keepDamaged(error))
            || !MRVFileWriter::write(m_path, bytes, error)) {
            return false;
        }
        if (!m_exists) {
            // As QSettings does, since settings may be private.
            QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner);
        }
    }
    m_bytes = bytes;
    m_exists = true;
    m_text = MRVSettingsText();
    m_text.values = values;
    return true;
}

bool MRVSettingsFile::keepDamaged(MRVErrorSink error) const
{
    qCWarning(lcSettings, "%s: damaged values are taken out", qPrintable(m_path));
    return MRV::keepCopy(m_path + QLatin1String(".damaged"), m_bytes, error);
}

MRVSettingsLock::MRVSettingsLock(const QString &path)
    : m_path(path)
    , m_lock(path + QLatin1String(".lock"))
{
    // The time that another process may reasonably need to write.
    constexpr int Milliseconds = 10000;
    removeDeadLock(path + QLatin1String(".lock"));
    m_lock.tryLock(Milliseconds);
}

bool MRVSettingsLock::isHeld(MRVErrorSink error) const
{
    if (m_lock.isLocked()) {
        return true;
    }
    return m_lock.error() == QLockFile::LockFailedError
        ? MRV::fail(error, MRVErrorKind::InUse,
                    Messages::tr("Cannot write the file \"%1\": it is locked").arg(m_path))
        : MRV::fail(error, whyNotLocked(m_path),
                    Messages::tr("Cannot write the file \"%1\": it cannot be locked").arg(m_path));
}
