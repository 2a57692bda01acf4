#include "version/mversion.h"

#include "core/mrvcoreutil.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>
#include <QSysInfo>

namespace {

struct UserRights
{
    bool needsAdminRights = false;
    bool runsElsewhere = false;
    QString location;
};

// A record may name the folder or the program inside it.
QString recordedFolder()
{
    const QSettings settings(QCoreApplication::organizationName(),
                             QCoreApplication::applicationName());
    const QString location = settings.value(QStringLiteral("Location")).toString();
    return QFileInfo(location).isFile() ? QFileInfo(location).absolutePath() : location;
}

UserRights currentRights()
{
    UserRights rights;
    const QString folder = recordedFolder();
    if (folder.isEmpty()) {
        return rights;
    }
    const QFileInfo installed(folder);
    const QString there = installed.canonicalFilePath();
    const QString here = QFileInfo(QCoreApplication::applicationDirPath()).canonicalFilePath();
    const QString below = there.endsWith(u'/') ? there : there + u'/';
    rights.location = QDir::toNativeSeparators(folder);
    rights.needsAdminRights = installed.exists() && !installed.isWritable();
    rights.runsElsewhere = there.isEmpty() || (here != there && !here.startsWith(below));
    return rights;
}

QString buildDate()
{
    return QStringLiteral(__DATE__).replace(QLatin1String("  "), QLatin1String(" "));
}

} // namespace

bool MVersion::isBetaVersion(const QString &version)
{
    constexpr int FullStopsOfFourComponents = 3;
    if (version.endsWith(QLatin1String(".beta"))) {
        return true;
    }
    return version.count(u'.') == FullStopsOfFourComponents
        && !version.endsWith(QLatin1String(".0"));
}

bool MVersion::isBetaVersion()
{
    return isBetaVersion(QCoreApplication::applicationVersion());
}

QString MVersion::appPlatform()
{
    return QSysInfo::buildCpuArchitecture();
}

bool MVersion::is64BitPlatform()
{
    return appPlatform() == QLatin1String("x86_64");
}

QString MVersion::versionLabel()
{
    QString version = QCoreApplication::applicationVersion();
    if (isBetaVersion()) {
        version += u' ' + tr("beta");
    }
    version += is64BitPlatform() ? QLatin1String(" (64 bit)") : QLatin1String(" (32 bit)");
    const QDate date = MRVCoreUtil::convertCompileStringDate(buildDate());
    return tr("Version: ") + version + QLatin1String(" - ")
        + date.toString(QStringLiteral("dd MMM yyyy"));
}

QString MVersion::versionInfo(const QString &details)
{
    const QString builtWith = QStringLiteral(QT_VERSION_STR);
    const QString runsWith = QString::fromLatin1(qVersion());
    const QString compiler = QStringLiteral("GCC %1.%2.%3")
                                 .arg(QString::number(__GNUC__), QString::number(__GNUC_MINOR__),
                                      QString::number(__GNUC_PATCHLEVEL__));
    const QStringList product{
        tr("Application: ") + QCoreApplication::applicationName(),
        tr("Version: ") + QCoreApplication::applicationVersion(),
        tr("Build: ") + QLatin1String("Release"),
        tr("Executable: ") + QCoreApplication::arguments().value(0),
    };
    const QStringList build{
        tr("Compiler: ") + compiler,
        tr("Qt-Compiled: ") + builtWith,
        tr("Qt-Runtime: ") + runsWith,
        tr("Created: ") + buildDate() + u' ' + QLatin1String(__TIME__),
    };
    QStringList blocks{product.join(u'\n'), build.join(u'\n')};
    if (builtWith != runsWith) {
        blocks.append(tr("Warning! Different Qt versions: compiled ") + builtWith + tr(" runtime: ")
                      + runsWith);
    }
    if (!details.isEmpty()) {
        blocks.append(details);
    }
    return blocks.join(QLatin1String("\n\n"));
}

void MVersion::checkCurrentUserRights(bool *warnForAdminRights, bool *warnRuntimeDirMismatch,
                                      QString *message, bool force)
{
    static UserRights rights = currentRights();
    if (force) {
        rights = currentRights();
    }
    if (warnForAdminRights) {
        *warnForAdminRights = rights.needsAdminRights;
    }
    if (warnRuntimeDirMismatch) {
        *warnRuntimeDirMismatch = rights.runsElsewhere;
    }
    if (message) {
        *message = rights.location;
    }
}

bool MVersion::currentUserNeedsAdminRights()
{
    bool needsAdminRights = false;
    checkCurrentUserRights(&needsAdminRights, nullptr, nullptr);
    return needsAdminRights;
}
