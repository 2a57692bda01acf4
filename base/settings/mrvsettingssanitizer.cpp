#include "settings/mrvsettingssanitizer.h"

#include "core/mrvcoreutil.h"
#include "core/mrvfilewriter.h"
#include "settings/mrvsettingsfile_p.h"
#include "settings/mrvsettingsguard_p.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSettings>

namespace {

Q_LOGGING_CATEGORY(lcGuard, "mrv.settings.guard")

// So that nothing that was kept earlier is lost.
bool keep(const QByteArray &bytes, const QString &path, QString *error)
{
    const QString kept = path + QLatin1String(".damaged");
    if (!QFileInfo::exists(kept)) {
        return MRVFileWriter::write(kept, bytes, error);
    }
    return MRVCoreUtil::ReadBinaryFile(kept) == bytes
        || MRVFileWriter::write(MRVCoreUtil::GetUniqueFileName(kept), bytes, error);
}

bool sanitize(const QString &path, QString *error)
{
    const MRVSettingsLock lock(path);
    if (lock.isHeldByOther()) {
        *error = mrvLockedText(path);
        return false;
    }
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path, error);
    const QByteArray safe = mrvSafeSettings(bytes);
    const QByteArray readable = mrvWithoutUtf8Mark(safe, error);
    if (!error->isEmpty()) {
        return false;
    }
    const bool isDamaged = safe.size() != bytes.size();
    if (isDamaged && !keep(bytes, path, error)) {
        return false;
    }
    if (isDamaged) {
        qCWarning(lcGuard, "%s",
                  qPrintable(path + QLatin1String(": damaged values are taken out")));
    }
    return readable == bytes || MRVFileWriter::write(path, readable, error);
}

} // namespace

QString mrvSanitizeSettings(const QString &path)
{
    if (!QFileInfo(path).isFile()) {
        return path;
    }
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path);
    // Few values are variants, and most of those are colours.
    if (!mrvHasUtf8Mark(bytes) && mrvSafeSettings(bytes).size() == bytes.size()) {
        return path;
    }
    QString error;
    if (sanitize(path, &error)) {
        return path;
    }
    qCWarning(lcGuard, "%s", qPrintable(error));
    // A folder can be neither read nor written as a file.
    return QFileInfo(path).absolutePath();
}

QString mrvSanitizeUserSettings(const QString &organization, const QString &application)
{
    // QSettings tells the location only of files that it has opened; no file of this name exists.
    const QSettings none(QSettings::NativeFormat, QSettings::UserScope,
                         organization + QLatin1String(" (none)"), QStringLiteral("none"));
    const QDir folder(QFileInfo(none.fileName()).path() + QLatin1String("/.."));
    const QString suffix = u'.' + QFileInfo(none.fileName()).suffix();
    for (const QString &name :
         {organization + u'/' + application + suffix, organization + suffix}) {
        const QString path = QDir::cleanPath(folder.filePath(name));
        // The path then names a place inside the file, where nothing can exist.
        if (mrvSanitizeSettings(path) != path) {
            return name;
        }
    }
    return organization;
}
