#include "settings/mrvsettingslocations_p.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

// QSettings tells the location only of files that it has opened; no file of this name exists.
QFileInfo exampleFile(QSettings::Format format, QSettings::Scope scope)
{
    return QFileInfo(
        QSettings(format, scope, QStringLiteral("(none)"), QStringLiteral("none")).fileName());
}

QString folderOf(const QFileInfo &example)
{
    return QDir::cleanPath(example.path() + QLatin1String("/.."));
}

// Qt names only the first folder of the system; that of QSettings::setPath() is the only one.
QStringList systemFolders(QSettings::Format format)
{
    const QString first = folderOf(exampleFile(format, QSettings::SystemScope));
    const QStringList folders =
        QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation).mid(1);
    return !folders.isEmpty() && QDir::cleanPath(folders.constFirst()) == first
        ? folders
        : QStringList(first);
}

} // namespace

QStringList mrvSettingsPaths(QSettings::Format format, QSettings::Scope scope,
                             const QString &organization, const QString &application)
{
    if (organization.isEmpty()) {
        return QStringList();
    }
    const QFileInfo example = exampleFile(format, QSettings::UserScope);
    const QString suffix = u'.' + example.suffix();
    QStringList names(organization + suffix);
    if (!application.isEmpty()) {
        names.prepend(organization + u'/' + application + suffix);
    }
    QStringList paths;
    const auto append = [&paths, &names](const QStringList &folders) {
        for (const QString &name : qAsConst(names)) {
            for (const QString &folder : folders) {
                paths.append(QDir(folder).filePath(name));
            }
        }
    };
    if (scope == QSettings::UserScope) {
        append({folderOf(example)});
    }
    append(systemFolders(format));
    return paths;
}
