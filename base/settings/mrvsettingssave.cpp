#include "settings/mrvsettings.h"

#include "core/mrvcoreutil.h"
#include "core/mrvfilewriter.h"
#include "settings/mrvsettingsfile_p.h"
#include "settings/mrvsettingsguard_p.h"
#include "settings/mrvsettingssanitizer.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

Q_LOGGING_CATEGORY(lcSettings, "mrv.settings")

QByteArray bytesOf(const QString &path)
{
    return QFileInfo::exists(path) ? MRVCoreUtil::ReadBinaryFile(path) : QByteArray();
}

// QSettings takes a file of the same length and time for the one that it knows, though another
// process may have written it within the same tick of the clock, and would overwrite it with what
// it remembers.
void makeNewer(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat now;
    if (::stat(name.constData(), &now) != 0) {
        return;
    }
    timespec times[2] = {{0, UTIME_OMIT}, now.st_mtim};
    times[1].tv_nsec += 1000 * 1000;
    if (times[1].tv_nsec >= 1000 * 1000 * 1000) {
        times[1].tv_nsec -= 1000 * 1000 * 1000;
        ++times[1].tv_sec;
    }
    // Where that is not permitted, length and time must suffice.
    const bool isNewer = ::utimensat(AT_FDCWD, name.constData(), times, 0) == 0;
    Q_UNUSED(isNewer)
}

// Keys that the file still has though they were removed; new keys come from other processes.
QStringList leftOver(const MRVSettingsMap &found, const MRVSettingsMap &wanted,
                     const MRVSettingsMap &old)
{
    QStringList keys;
    for (auto it = found.cbegin(); it != found.cend(); ++it) {
        if (!wanted.contains(it.key()) && old.contains(it.key())) {
            keys.append(it.key());
        }
    }
    return keys;
}

// A full disk cuts the file in the middle of a line or value.
QByteArray wholeLines(const QByteArray &bytes)
{
    return bytes.left(bytes.lastIndexOf('\n') + 1);
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
    MRVSettingsMap old;
    return mrvReadSettings(bytesOf(path), format, &found) && mrvHolds(found, wanted)
        && (found.size() == wanted.size()
            || (mrvReadSettings(before, format, &old) && leftOver(found, wanted, old).isEmpty()));
}

QString notWritten(const QString &path, const QString &reason)
{
    return MRVSettings::tr("Cannot write the file \"%1\": %2").arg(path, reason);
}

// Adds to the file what it lacks of the values to be saved, and keeps what other processes have
// changed.
bool repair(const QString &path, QSettings::Format format, const MRVSettingsMap &old,
            const MRVSettingsMap &wanted, QString *error)
{
    const QByteArray after = wholeLines(bytesOf(path));
    MRVSettingsMap found;
    if (!mrvReadSettings(after, format, &found)) {
        *error = mrvNoRoomText();
        return false;
    }
    const QByteArray whole = mrvEditedSettings(
        after,
        [&](QSettings *file) {
            const QStringList removed = leftOver(found, wanted, old);
            for (const QString &key : removed) {
                file->remove(key);
            }
            for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
                // With a key, QSettings removes all keys below it.
                if (!file->contains(it.key()) || !isUnchanged(it, old)) {
                    file->setValue(it.key(), it.value());
                }
            }
        },
        error);
    if (error->isEmpty()) {
        return MRVFileWriter::write(path, whole, error);
    }
    *error = notWritten(path, *error); // which is about the temporary file
    return false;
}

bool fail(QString *error, const QString &reason)
{
    if (error) {
        *error = reason;
    }
    return false;
}

// A pipe never ends, and QSettings would put a file in place of a device.
bool isOtherThanFile(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile();
}

QString notRegular(const QString &path)
{
    return notWritten(path, MRVSettings::tr("it is not a regular file"));
}

} // namespace

bool MRVSettings::saveNow(QString *error)
{
    return save(Saving::MayBeRepeated, error);
}

void MRVSettings::sync()
{
    QString error;
    if (!save(Saving::MayBeRepeated, &error)) {
        Q_EMIT saveFailed(error);
    }
}

bool MRVSettings::event(QEvent *event)
{
    if (event->type() != QEvent::UpdateRequest) {
        return QSettings::event(event);
    }
    sync();
    return true;
}

bool MRVSettings::save(Saving saving, QString *error)
{
    const QString path = fileName();
    if (path.isEmpty()) {
        return fail(error, tr("The settings have no file"));
    }
    if (isOtherThanFile(path)) {
        // Otherwise QSettings would write when it is destroyed.
        if (saving == Saving::Last) {
            QSettings::clear();
        }
        stall();
        return fail(error, notRegular(path));
    }
    const WholeFile whole(this);
    if (whole.isOpen()) {
        return saveWhole(saving, error);
    }
    stall();
    return fail(error, tr("The settings cannot be saved while an array of them is open"));
}

bool MRVSettings::saveWhole(Saving saving, QString *error)
{
    const QString path = fileName();
    // Another program may have edited it since it was opened.
    if (mrvSanitizeSettings(path) != path) {
        stall();
        return fail(error, mrvDamagedText(path));
    }
    const QByteArray before = bytesOf(path);
    const MRVOldSettingsFile oldFile(path, before);
    if (m_isDirty) {
        MRVSettingsLock::removeDead(path);
        makeNewer(path);
    }
    QSettings::sync();
    if (format() != NativeFormat && format() != IniFormat) {
        m_isDirty = status() != NoError;
        return !m_isDirty || fail(error, tr("Cannot write the file \"%1\"").arg(path));
    }

    // From memory, before anything else opens the file: QSettings would otherwise read again the
    // file that it has just left empty, and forget its values.
    const MRVSettingsMap wanted = mrvValuesOf(*this);
    m_isDirty = !isSaved(path, format(), before, wanted);
    if (!m_isDirty) {
        return true;
    }
    // The incomplete file is the one just written, or one that another process has written
    // meanwhile.
    QString reason;
    MRVSettingsMap old;
    const bool isOldKnown = mrvReadSettings(before, format(), &old);
    const MRVSettingsLock lock(path);
    if (lock.isHeldByOther()) {
        reason = mrvLockedText(path);
    } else if (!isOldKnown) {
        reason = mrvNoRoomText();
        oldFile.putBack();
    } else if (repair(path, format(), old, wanted, &reason)) {
        m_isDirty = false;
        return true;
    } else if (!isSaved(path, format(), QByteArray(), old)) {
        oldFile.putBack();
    }
    qCWarning(lcSettings, "%s", qPrintable(reason));
    if (saving != Saving::Last) {
        setAgain(old, wanted);
    }
    return fail(error, reason);
}

// QSettings takes the changes for saved, and would replace them by what the file holds.
void MRVSettings::setAgain(const MRVSettingsMap &old, const MRVSettingsMap &wanted)
{
    for (auto it = old.cbegin(); it != old.cend(); ++it) {
        if (!wanted.contains(it.key())) {
            QSettings::remove(it.key());
        }
    }
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        if (!isUnchanged(it, old) || !contains(it.key())) {
            QSettings::setValue(it.key(), it.value());
        }
    }
    stall();
}

// With the next change, since trying again at once would never end.
void MRVSettings::stall()
{
    QCoreApplication::removePostedEvents(this, QEvent::UpdateRequest);
    m_isStalled = true;
}

void MRVSettings::replaceGroupIn(QSettings *file) const
{
    file->beginGroup(m_group);
    file->remove(QString());
    const QStringList keys = allKeys();
    for (const QString &key : keys) {
        file->setValue(key, QSettings::value(key));
    }
    file->endGroup();
}

bool MRVSettings::saveToFile(const QString &fileName, QString *error)
{
    const QString path = QFileInfo(fileName).absoluteFilePath();
    const QString same = QFileInfo(path).canonicalFilePath();
    if (!same.isEmpty() && same == QFileInfo(this->fileName()).canonicalFilePath()) {
        return saveNow(error);
    }
    if (isOtherThanFile(path)) {
        return fail(error, notRegular(path));
    }
    QString reason;
    if (mrvSanitizeSettings(path) != path) {
        return fail(error, mrvDamagedText(path));
    }
    const MRVSettingsLock lock(path);
    if (lock.isHeldByOther()) {
        return fail(error, mrvLockedText(path));
    }
    const QByteArray before =
        QFileInfo::exists(path) ? MRVCoreUtil::ReadBinaryFile(path, &reason) : QByteArray();
    if (!reason.isEmpty()) {
        return fail(error, reason);
    }
    if (!mrvIsSettings(before)) {
        return fail(error, tr("The file \"%1\" does not hold settings").arg(path));
    }
    const QByteArray bytes = mrvEditedSettings(
        before, [this](QSettings *file) { replaceGroupIn(file); }, &reason);
    if (!reason.isEmpty()) {
        return fail(error, notWritten(path, reason));
    }
    return MRVFileWriter::write(path, bytes, &reason) || fail(error, reason);
}

void MRVSettings::loadFromFile(const QString &fileName)
{
    // First, since it may be the store's own file, which may have unsaved changes.
    if (QFileInfo(fileName) == QFileInfo(this->fileName())) {
        saveNow();
    }
    MRVSettingsMap all;
    mrvReadSettings(mrvSafeSettings(bytesOf(fileName)), IniFormat, &all);
    const QString prefix = m_group.isEmpty() ? QString() : m_group + QLatin1Char('/');
    remove(QString());
    for (auto it = all.cbegin(); it != all.cend(); ++it) {
        if (it.key().startsWith(prefix)) {
            setValue(it.key().mid(prefix.size()), it.value());
        }
    }
    Q_EMIT settingsReset();
}
