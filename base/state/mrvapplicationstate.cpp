#include "state/mrvapplicationstate.h"

#include "options/mrvoptions.h"
#include "settings/mrvsettingsvalue.h"

#include <QDir>
#include <QGlobalStatic>
#include <QStandardPaths>

namespace {

constexpr int MaxRecentProjects = 50;
constexpr int MaxRecentIcons = 5;

constexpr QLatin1String RecentKey("Recent");
constexpr QLatin1String LastClosedProjectsKey("LastClosedProjects");
constexpr QLatin1String RecentIconsKey("RecentIcons");
constexpr QLatin1String RecentExportPathKey("RecentExportPath");
constexpr QLatin1String RecentCompilePathKey("RecentCompilePath");
constexpr QLatin1String RecentImportPathKey("RecentImportPath");
constexpr QLatin1String RecentProjectPathKey("RecentProjectPath");
constexpr QLatin1String TutorialPathKey("TutorialPath");
constexpr QLatin1String ShowSpellCheckerLoadErrorsKey("ShowSpellCheckerLoadErrors");
constexpr QLatin1String ShowSortWarningKey("ShowSortWarning");
constexpr QLatin1String ShowImportWarningKey("ShowImportWarning");
constexpr QLatin1String ShowClearTemplateWarningKey("ShowClearTemplateWarning");
constexpr QLatin1String ShowBetaExpireDateWarningKey("ShowBetaExpireDateWarning");
constexpr QLatin1String ShowMetaDataMoveWarningKey("ShowMetaDataMoveWarning");
constexpr QLatin1String ShowGettingStartedKey("ShowGettingStarted");
constexpr QLatin1String UseZipForBackupsKey("UseZipForBackups");

Q_GLOBAL_STATIC(MRVApplicationState, theState)

QString documentsFolder()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return folder.isEmpty() ? QDir::homePath() : folder;
}

// QSettings returns a list of one text from the file as that text.
QStringList listAt(const MRVSettings &settings, QLatin1String key)
{
    return settings.value(key).toStringList();
}

bool flagAt(const MRVSettings &settings, QLatin1String key)
{
    bool ok = false;
    const bool flag = mrvToFlag(settings.value(key), &ok);
    return flag || !ok;
}

QString folderAt(const MRVSettings &settings, QLatin1String key)
{
    return mrvToText(settings.value(key, documentsFolder()));
}

void putFirst(QStringList *list, const QString &text)
{
    list->removeAll(text);
    list->prepend(text);
}

} // namespace

MRVApplicationState::MRVApplicationState(QObject *parent)
    : MRVSettings(NativeFormat, UserScope, MRVOptions::companyName(), MRVOptions::applicationName(),
                  parent)
{
}

MRVApplicationState::~MRVApplicationState() = default;

MRVApplicationState *MRVApplicationState::instance()
{
    return theState();
}

int MRVApplicationState::maxRecentProjectsCount()
{
    return MaxRecentProjects;
}

int MRVApplicationState::userRecentProjectsCount()
{
    // While the process ends, the options may be destroyed before the state.
    const MRVOptions *options = mrvOptions();
    return options ? options->value(MRVOptions::RecentProjectsCount) : MaxRecentProjects;
}

QStringList MRVApplicationState::recentProjectList() const
{
    // A file may hold a negative count, which mid() takes for "all".
    return listAt(*this, RecentKey).mid(0, qMax(0, userRecentProjectsCount()));
}

void MRVApplicationState::setRecentProjectList(const QStringList &paths)
{
    setValue(RecentKey, QStringList(paths.mid(0, MaxRecentProjects)));
}

void MRVApplicationState::prependToRecentProjectList(const QString &path)
{
    QStringList paths = recentProjectList();
    putFirst(&paths, path);
    setRecentProjectList(paths);
}

QStringList MRVApplicationState::lastClosedProjects() const
{
    return listAt(*this, LastClosedProjectsKey);
}

void MRVApplicationState::setLastClosedProjects(const QStringList &paths)
{
    setValue(LastClosedProjectsKey, paths);
}

QStringList MRVApplicationState::recentIcons() const
{
    return listAt(*this, RecentIconsKey);
}

void MRVApplicationState::setRecentIcons(const QStringList &icons)
{
    setValue(RecentIconsKey, icons);
}

void MRVApplicationState::addRecentIcon(const QString &icon)
{
    QStringList icons = recentIcons();
    putFirst(&icons, icon);
    setRecentIcons(icons.mid(0, MaxRecentIcons));
}

QString MRVApplicationState::recentExportPath() const
{
    return folderAt(*this, RecentExportPathKey);
}

void MRVApplicationState::setRecentExportPath(const QString &path)
{
    setValue(RecentExportPathKey, path);
}

QString MRVApplicationState::recentCompilePath() const
{
    return folderAt(*this, RecentCompilePathKey);
}

void MRVApplicationState::setRecentCompilePath(const QString &path)
{
    setValue(RecentCompilePathKey, path);
}

QString MRVApplicationState::recentImportPath() const
{
    return folderAt(*this, RecentImportPathKey);
}

void MRVApplicationState::setRecentImportPath(const QString &path)
{
    setValue(RecentImportPathKey, path);
}

QString MRVApplicationState::recentProjectPath() const
{
    return folderAt(*this, RecentProjectPathKey);
}

void MRVApplicationState::setRecentProjectPath(const QString &path)
{
    setValue(RecentProjectPathKey, path);
}

QString MRVApplicationState::tutorialLocation() const
{
    return mrvToText(value(TutorialPathKey));
}

void MRVApplicationState::setTutorialLocation(const QString &path)
{
    setValue(TutorialPathKey, path);
}

bool MRVApplicationState::showSpellCheckerLoadErrors() const
{
    return flagAt(*this, ShowSpellCheckerLoadErrorsKey);
}

void MRVApplicationState::setSpellCheckerLoadErrors(bool show)
{
    setValue(ShowSpellCheckerLoadErrorsKey, show);
}

bool MRVApplicationState::showSortWarning() const
{
    return flagAt(*this, ShowSortWarningKey);
}

void MRVApplicationState::setShowSortWarning(bool show)
{
    setValue(ShowSortWarningKey, show);
}

bool MRVApplicationState::showImportWarning() const
{
    return flagAt(*this, ShowImportWarningKey);
}

void MRVApplicationState::setShowImportWarning(bool show)
{
    setValue(ShowImportWarningKey, show);
}

bool MRVApplicationState::showClearTemplateWarning() const
{
    return flagAt(*this, ShowClearTemplateWarningKey);
}

void MRVApplicationState::setShowClearTemplateWarning(bool show)
{
    setValue(ShowClearTemplateWarningKey, show);
}

bool MRVApplicationState::showBetaExpireDateWarning() const
{
    return flagAt(*this, ShowBetaExpireDateWarningKey);
}

void MRVApplicationState::setShowBetaExpireDateWarning(bool show)
{
    setValue(ShowBetaExpireDateWarningKey, show);
}

bool MRVApplicationState::showMetaDataMoveWarning() const
{
    return flagAt(*this, ShowMetaDataMoveWarningKey);
}

void MRVApplicationState::setShowMetaDataMoveWarning(bool show)
{
    setValue(ShowMetaDataMoveWarningKey, show);
}

bool MRVApplicationState::showGettingStarted() const
{
    return flagAt(*this, ShowGettingStartedKey);
}

void MRVApplicationState::setShowGettingStarted(bool show)
{
    setValue(ShowGettingStartedKey, show);
}

bool MRVApplicationState::useZipForBackups() const
{
    return flagAt(*this, UseZipForBackupsKey);
}

void MRVApplicationState::setUseZipForBackups(bool use)
{
    setValue(UseZipForBackupsKey, use);
}

void MRVApplicationState::resetAllWarnings()
{
    const QStringList keys = MRVOptions::warningKeys();
    for (const QString &key : keys) {
        setValue(key, true);
    }
}
