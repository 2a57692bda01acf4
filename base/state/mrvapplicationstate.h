#pragma once

#include "settings/mrvsettings.h"
#include "util/mrvbase_export.h"

#include <QString>
#include <QStringList>

/**
 * What the application remembers from one run to the next that is no preference: recent projects,
 * folders and icons, and which warnings the user has turned off.
 *
 * It lies in the user's settings file beside the group of the options, under keys without a group,
 * in a store of the same kind, so that neither can lose what the other has saved. It has no typed
 * settings.
 *
 * GUI thread only.
 *
 * @code
 * MRVApplicationState *state = MRVApplicationState::instance();
 * state->prependToRecentProjectList(QStringLiteral("/home/ilse/tide.mrv"));
 * const QStringList shown = state->recentProjectList();
 *
 * const QString file = QFileDialog::getSaveFileName(window, QString(), state->recentExportPath());
 * if (!file.isEmpty()) {
 *     state->setRecentExportPath(QFileInfo(file).path());
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVApplicationState : public MRVSettings
{
    Q_OBJECT

public:
    /** The state of the user that runs the process. */
    explicit MRVApplicationState(QObject *parent = nullptr);
    ~MRVApplicationState() override;

    /** The process's own object; null while the process ends. */
    static MRVApplicationState *instance();

    /** How many recent projects are stored: 50. */
    static int maxRecentProjectsCount();
    /** How many of them the user wants to see: the option MRVOptions::RecentProjectsCount. */
    static int userRecentProjectsCount();

    /**
     * The paths of the projects opened last, the latest first; userRecentProjectsCount() at most.
     */
    QStringList recentProjectList() const;
    /**
     * Stores the first maxRecentProjectsCount() of @p paths. That is more than are shown, on
     * purpose: a user who wants to see more of them gets older ones back.
     */
    void setRecentProjectList(const QStringList &paths);
    /**
     * Puts @p path before all others, and removes it from where it was. What lies beyond
     * userRecentProjectsCount() is forgotten by this.
     */
    void prependToRecentProjectList(const QString &path);

    /** The projects that were open at the last exit. */
    QStringList lastClosedProjects() const;
    void setLastClosedProjects(const QStringList &paths);

    /** The icons that the user chose last, the latest first. */
    QStringList recentIcons() const;
    void setRecentIcons(const QStringList &icons);
    /** Puts @p icon before all others, of which the latest four others stay. */
    void addRecentIcon(const QString &icon);

    /**
     * @name Folders
     *
     * The folders that were used last; the user's documents folder, or home folder where the system
     * names none, unless one was set. They need not exist any more.
     */
    //@{
    QString recentExportPath() const;
    void setRecentExportPath(const QString &path);
    QString recentCompilePath() const;
    void setRecentCompilePath(const QString &path);
    QString recentImportPath() const;
    void setRecentImportPath(const QString &path);
    QString recentProjectPath() const;
    void setRecentProjectPath(const QString &path);
    //@}

    /** Empty until the tutorial was unpacked somewhere. */
    QString tutorialLocation() const;
    void setTutorialLocation(const QString &path);

    /**
     * @name Warnings
     *
     * Whether something is still to be shown or done; true until it is turned off. A stored value
     * that is not a flag reads as true.
     */
    //@{
    bool showSpellCheckerLoadErrors() const;
    void setSpellCheckerLoadErrors(bool show);
    bool showSortWarning() const;
    void setShowSortWarning(bool show);
    bool showImportWarning() const;
    void setShowImportWarning(bool show);
    bool showClearTemplateWarning() const;
    void setShowClearTemplateWarning(bool show);
    bool showBetaExpireDateWarning() const;
    void setShowBetaExpireDateWarning(bool show);
    bool showMetaDataMoveWarning() const;
    void setShowMetaDataMoveWarning(bool show);
    bool showGettingStarted() const;
    void setShowGettingStarted(bool show);
    bool useZipForBackups() const;
    void setUseZipForBackups(bool use);
    //@}

    /** Turns all warnings on again. What is no warning stays: getting started, zip for backups. */
    void resetAllWarnings();
};
