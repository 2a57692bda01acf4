#include "util/mrveditlock.h"

#include "util/mrvfailure.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QThread>

namespace {

// Longer than QLockFile takes to see that a lock belongs to nobody.
constexpr int MostWaiting = 40000;
constexpr int Step = 10;

} // namespace

MRVEditLock::MRVEditLock() = default;

MRVEditLock::~MRVEditLock() = default;

bool MRVEditLock::acquire(const QString &path, MRVErrorSink reason)
{
    const QFileInfo file(path);
    const QString real = file.exists()
        ? file.canonicalFilePath()
        : QDir(QFileInfo(file.path()).canonicalFilePath()).filePath(file.fileName());
    m_lock = std::make_unique<QLockFile>(real + QLatin1String(".edit"));
    const QDeadlineTimer deadline(MostWaiting);
    // Its own waiting becomes longer and longer.
    while (!m_lock->tryLock(0) && m_lock->error() == QLockFile::LockFailedError) {
        if (deadline.hasExpired()) {
            return MRV::fail(reason, MRVErrorKind::InUse, tr("another program is changing it"));
        }
        QThread::msleep(Step);
    }
    return true;
}

void MRVEditLock::release()
{
    m_lock.reset();
}
