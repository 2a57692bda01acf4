#include "settings/mrvsettings.h"
#include "settings/mrvsettingsfile_p.h"
#include "settings/mrvsettingsguard_p.h"

#include "core/mrvcoreutil.h"
#include "core/mrvfilewriter.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QLoggingCategory>
#include <QThread>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

Q_LOGGING_CATEGORY(lcSettings, "mrv.settings")

// As long as another process may reasonably take to write.
constexpr int LockMilliseconds = 10000;

QByteArray bytesOf(const QString &path)
{
    return QFileInfo::exists(path) ? MRVCoreUtil::ReadBinaryFile(path) : QByteArray();
}

// A process that was killed between making its lock and writing its name into it leaves an empty one,
// for which QSettings would wait half a minute.
void removeDeadLock(const QString &path)
{
    constexpr int Alive = 1000;
    constexpr int Step = 50;
    QFileInfo lock(path + QLatin1String(".lock"));
    while (lock.exists() && lock.size() == 0) {
        if (lock.lastModified().msecsTo(QDateTime::currentDateTime()) > Alive) {
            QFile::remove(lock.filePath());
            return;
        }
        QThread::msleep(Step);
        lock.refresh();
    }
}

// QSettings takes a file of the same length and time for the one that it knows, though another
// process may have written it within the same tick of the clock, and would write over it what it
// remembers.
void makeNewer(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat now;
    if (::stat(name.constData(), &now) != 0)
        return;
    timespec times[2] = {{0, UTIME_OMIT}, now.st_mtim};
    times[1].tv_nsec += 1000 * 1000;
    if (times[1].tv_nsec >= 1000 * 1000 * 1000) {
        times[1].tv_nsec -= 1000 * 1000 * 1000;
        ++times[1].tv_sec;
    }
    // Where that is not allowed, length and time must do.
    const bool isNewer = ::utimensat(AT_FDCWD, name.constData(), times, 0) == 0;
    Q_UNUSED(isNewer)
}

// What is in the file still, though it was removed: what is new there comes from other processes.
QStringList leftOver(const MRVSettingsMap &found, const MRVSettingsMap &wanted,
                     const MRVSettingsMap &old)
{
    QStringList keys;
    for (auto it = found.cbegin(); it != found.cend(); ++it) {
        if (!wanted.contains(it.key()) && old.contains(it.key()))
            keys.append(it.key());
    }
    return keys;
}

// A disk that is full, or may only be read, has no room for the lock either; that is not for the lock
// to tell.
bool isLockedByOther(QLockFile *lock)
{
    return !lock->tryLock(LockMilliseconds) && lock->error() == QLockFile::LockFailedError;
}

MRVSettingsMap valuesIn(const QByteArray &bytes, QSettings::Format format)
{
    MRVSettingsMap values;
    mrvReadSettings(bytes, format, &values);
    return values;
}

bool isUnchanged(MRVSettingsMap::const_iterator value, const MRVSettingsMap &old)
{
    const auto at = old.constFind(value.key());
    return at != old.cend() && mrvIsStoredAs(value.value(), at.value());
}

bool isSaved(const QString &path, QSettings::Format format, const QByteArray &before,
             const MRVSettingsMap &wanted)
{
    MRVSettingsMap found;
    return mrvReadSettings(bytesOf(path), format, &found) && mrvHolds(found, wanted)
        && (found.size() == wanted.size()
            || leftOver(found, wanted, valuesIn(before, format)).isEmpty());
}

// Adds to the file what it lacks of what was to be saved, and keeps what others have changed.
bool repair(const QString &path, QSettings::Format format, const QByteArray &before,
            const MRVSettingsMap &wanted, QString *error)
{
    const QByteArray after = bytesOf(path);
    const MRVSettingsMap found = valuesIn(after, format);
    const MRVSettingsMap old = valuesIn(before, format);
    const QByteArray whole = mrvEditedSettings(
        after,
        [&](QSettings *file) {
            const QStringList removed = leftOver(found, wanted, old);
            for (const QString &key : removed)
                file->remove(key);
            for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
                if (!found.contains(it.key()) || !isUnchanged(it, old))
                    file->setValue(it.key(), it.value());
            }
        },
        error);
    return error->isEmpty() && MRVFileWriter::write(path, whole, error);
}

bool fail(QString *error, const QString &reason)
{
    if (error)
        *error = reason;
    return false;
}

} // namespace

bool MRVSettings::saveNow(QString *error)
{
    return save(Saving::MayBeRepeated, error);
}

void MRVSettings::sync()
{
    QString error;
    if (!save(Saving::MayBeRepeated, &error))
        Q_EMIT saveFailed(error);
}

bool MRVSettings::event(QEvent *event)
{
    if (event->type() != QEvent::UpdateRequest)
        return QSettings::event(event);
    sync();
    return true;
}

bool MRVSettings::save(Saving saving, QString *error)
{
    const QString path = fileName();
    if (path.isEmpty())
        return fail(error, tr("The settings have no file"));
    const QByteArray before = bytesOf(path);
    const MRVOldSettingsFile oldFile(path, before);
    if (m_isDirty) {
        removeDeadLock(path);
        makeNewer(path);
    }
    QSettings::sync();
    if (format() != NativeFormat && format() != IniFormat) {
        m_isDirty = status() != NoError;
        return !m_isDirty || fail(error, tr("Cannot write the file \"%1\"").arg(path));
    }

    // The store's own memory, whatever group is open.
    const MRVSettingsMap wanted = mrvValuesOf(QSettings(path, format()));
    m_isDirty = !isSaved(path, format(), before, wanted);
    if (!m_isDirty)
        return true;
    // What is not whole is what was just written, or what another process has written meanwhile.
    QString reason;
    QLockFile lock(path + QLatin1String(".lock"));
    if (isLockedByOther(&lock)) {
        reason = tr("Cannot write the file \"%1\": it is locked").arg(path);
    } else if (repair(path, format(), before, wanted, &reason)) {
        m_isDirty = false;
        return true;
    } else if (!isSaved(path, format(), QByteArray(), valuesIn(before, format()))) {
        oldFile.putBack();
    }
    qCWarning(lcSettings, "%s", qPrintable(reason));
    if (saving != Saving::Last)
        setAgain(valuesIn(before, format()), wanted);
    return fail(error, reason);
}

// QSettings takes the changes for saved, and would forget them for what the file holds.
void MRVSettings::setAgain(const MRVSettingsMap &old, const MRVSettingsMap &wanted)
{
    if (!isOpenGroup())
        return;
    const int prefix = m_group.isEmpty() ? 0 : m_group.size() + 1;
    const auto isOurs = [&](const QString &key) {
        return prefix == 0 || key.startsWith(m_group + QLatin1Char('/'));
    };
    for (auto it = old.cbegin(); it != old.cend(); ++it) {
        if (isOurs(it.key()) && !wanted.contains(it.key()))
            QSettings::remove(it.key().mid(prefix));
    }
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        if (isOurs(it.key()) && !isUnchanged(it, old))
            QSettings::setValue(it.key().mid(prefix), it.value());
    }
    // Not at once, which would go on and on, but with the next change.
    QCoreApplication::removePostedEvents(this, QEvent::UpdateRequest);
    m_isStalled = true;
}

void MRVSettings::replaceGroupIn(QSettings *file) const
{
    file->beginGroup(m_group);
    file->remove(QString());
    const QStringList keys = allKeys();
    for (const QString &key : keys)
        file->setValue(key, QSettings::value(key));
    file->endGroup();
}

bool MRVSettings::saveToFile(const QString &fileName, QString *error)
{
    const QString path = QFileInfo(fileName).absoluteFilePath();
    const QString same = QFileInfo(path).canonicalFilePath();
    if (!same.isEmpty() && same == QFileInfo(this->fileName()).canonicalFilePath())
        return saveNow(error);
    QString reason;
    QLockFile lock(path + QLatin1String(".lock"));
    removeDeadLock(path);
    if (isLockedByOther(&lock))
        return fail(error, tr("Cannot write the file \"%1\": it is locked").arg(path));
    const QByteArray before =
        QFileInfo::exists(path) ? MRVCoreUtil::ReadBinaryFile(path, &reason) : QByteArray();
    if (!reason.isEmpty())
        return fail(error, reason);
    const QByteArray bytes = mrvEditedSettings(
        before, [this](QSettings *file) { replaceGroupIn(file); }, &reason);
    return (reason.isEmpty() && MRVFileWriter::write(path, bytes, &reason)) || fail(error, reason);
}

void MRVSettings::loadFromFile(const QString &fileName)
{
    // First, since it may be the store's own file, which may have changes that are not saved yet.
    mrvDisarmSettings(fileName);
    QSettings file(fileName, IniFormat);
    file.beginGroup(m_group);
    const MRVSettingsMap values = mrvValuesOf(file);
    remove(QString());
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        setValue(it.key(), it.value());
    Q_EMIT settingsReset();
}
