#include "settings/mrvsettings.h"
#include "settings/mrvsettingsfile_p.h"

#include "core/mrvcoreutil.h"
#include "core/mrvfilewriter.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QLoggingCategory>
#include <QStorageInfo>
#include <QUuid>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

Q_LOGGING_CATEGORY(lcSettings, "mrv.settings")

// With less room than this on the disk, a new file is written on trial first.
constexpr qint64 AmpleRoom = 64 << 20;

// As long as another process may reasonably take to write.
constexpr int LockMilliseconds = 10000;

QByteArray bytesOf(const QString &path)
{
    return QFileInfo::exists(path) ? MRVCoreUtil::ReadBinaryFile(path) : QByteArray();
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

// Writes the new file beside the old one, to see whether there is room for it.
bool MRVSettings::hasRoom(const QByteArray &before, QString *error) const
{
    const QFileInfo info(fileName());
    const QStorageInfo disk(info.path());
    const bool isAmple = disk.isValid() && disk.bytesAvailable() > AmpleRoom + 4 * before.size();
    if (isAmple || !info.dir().exists() || !isOpenGroup())
        return true;
    const QByteArray after = mrvEditedSettings(
        before, [this](QSettings *file) { replaceGroupIn(file); }, error);
    const QString trial =
        info.path() + QLatin1String("/.") + QUuid::createUuid().toString(QUuid::Id128);
    if (after.isEmpty() && !error->isEmpty())
        return false;
    const bool hasRoom = MRVFileWriter::write(trial, after, error);
    QFile::remove(trial);
    return hasRoom;
}

bool MRVSettings::save(Saving saving, QString *error)
{
    const QString path = fileName();
    const QByteArray before = bytesOf(path);
    QString reason;
    if (saving != Saving::Last && m_isDirty && !hasRoom(before, &reason)) {
        m_isStalled = true;
        qCWarning(lcSettings, "%s", qPrintable(reason));
        return fail(error, reason);
    }
    if (m_isDirty)
        makeNewer(path);
    QSettings::sync();
    if (format() != NativeFormat && format() != IniFormat) {
        m_isDirty = status() != NoError;
        return !m_isDirty || fail(error, tr("Cannot write the file \"%1\"").arg(path));
    }

    // The store's own memory, whatever group is open.
    const MRVSettingsMap wanted = mrvValuesOf(QSettings(path, format()));
    MRVSettingsMap found;
    if (!mrvReadSettings(bytesOf(path), format(), &found))
        return fail(error, tr("The file \"%1\" cannot be checked").arg(path));
    m_isDirty = !mrvHolds(found, wanted) && !repair(before, wanted, saving, &reason);
    if (!m_isDirty)
        return true;
    qCWarning(lcSettings, "%s", qPrintable(reason));
    return fail(error, reason);
}

// What is not whole is either what was just written, or what another process has written meanwhile.
bool MRVSettings::repair(const QByteArray &before, const MRVSettingsMap &wanted, Saving saving,
                         QString *error)
{
    const QString path = fileName();
    QLockFile lock(path + QLatin1String(".lock"));
    if (!lock.tryLock(LockMilliseconds))
        return fail(error, tr("Cannot write the file \"%1\": it is locked").arg(path));
    const QByteArray after = bytesOf(path);
    MRVSettingsMap found;
    MRVSettingsMap old;
    if (!mrvReadSettings(after, format(), &found) || !mrvReadSettings(before, format(), &old))
        return fail(error, tr("The file \"%1\" cannot be checked").arg(path));

    MRVSettingsMap changes;
    MRVSettingsMap lost;
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        const bool isOld = old.contains(it.key()) && mrvIsStoredAs(it.value(), old.value(it.key()));
        if (!isOld)
            changes.insert(it.key(), it.value());
        if (!found.contains(it.key())
            || (!isOld && !mrvIsStoredAs(it.value(), found.value(it.key()))))
            lost.insert(it.key(), it.value());
    }
    const QByteArray whole = mrvEditedSettings(
        after,
        [&lost](QSettings *file) {
            for (auto it = lost.cbegin(); it != lost.cend(); ++it)
                file->setValue(it.key(), it.value());
        },
        error);
    if (error->isEmpty() && MRVFileWriter::write(path, whole, error))
        return true;
    QString ignored;
    if (!mrvHolds(found, old))
        MRVFileWriter::write(path, before, &ignored);
    if (saving != Saving::Last)
        setAgain(changes);
    return false;
}

// QSettings takes them for saved, and would forget them for what the file holds.
void MRVSettings::setAgain(const MRVSettingsMap &unsaved)
{
    if (!isOpenGroup())
        return;
    const QString prefix = m_group.isEmpty() ? m_group : m_group + QLatin1Char('/');
    for (auto it = unsaved.cbegin(); it != unsaved.cend(); ++it) {
        if (it.key().startsWith(prefix))
            QSettings::setValue(it.key().mid(prefix.size()), it.value());
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
    if (!lock.tryLock(LockMilliseconds))
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
    // First, since it may be the store's own file.
    QSettings file(fileName, IniFormat);
    file.beginGroup(m_group);
    const MRVSettingsMap values = mrvValuesOf(file);
    remove(QString());
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        setValue(it.key(), it.value());
    Q_EMIT settingsReset();
}
