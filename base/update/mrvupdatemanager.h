#pragma once

#include "update/mrvupdatepolicy.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>

class MRVUpdateDownloader;
class QAction;
class QMenu;
class QTimer;

/**
 * The application's update checks: the menu action for them, the check at start-up, and the opening
 * of the installer.
 *
 * One check runs at a time. The preferences and the time of the last check are in the user's
 * settings of the application's organisation and name, under the keys below; for an application
 * that is neither "Morvane" nor "Fernwick" these are empty, and nothing is checked at start-up. A
 * preference that is not under its key is looked for where the application's options keep it, under
 * "Options/" and the key.
 *
 * An application that gives its maker's public key gets installers of that maker only, and neither
 * older feeds than it has seen nor an installer of another version than the feed names; see
 * MRVUpdateModel. The key does not protect from a server, or a network, that offers nothing new:
 * a feed names a time when it expires for that. Without a key, whoever can change what the server
 * sends decides what is opened, so that https and the server are all there is to rely upon.
 *
 * What was seen and chosen is kept beside the preferences; see MRVUpdateState.
 *
 * Needs a QApplication.
 *
 * @code
 * // At start-up: checks by itself when the preferences say that it is time.
 * MRVUpdateManager *updates = MRVUpdateManager::instance();
 * QFile key(QStringLiteral(":/updates/key.pub"));
 * if (key.open(QIODevice::ReadOnly)) {
 *     updates->setPublicKey(key.readAll());
 * }
 * // Buttons of the dialog, by choice.
 * MRVUpdatePolicy policy;
 * policy.features = MRVUpdatePolicy::SkipVersions | MRVUpdatePolicy::RemindLater;
 * updates->setPolicy(policy);
 * updates->setupMenuActions(new QMenu(QStringLiteral("Help"), window));
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVUpdateManager : public QObject
{
    Q_OBJECT

public:
    /**
     * The one manager, owned by the application object. The first call makes it; where checks are
     * on, and the last one is as many days ago as the interval says, or was never made, a silent
     * check is then made after five seconds.
     */
    static MRVUpdateManager *instance();
    /** Deletes the manager, and a check that is running. */
    static void release();

    ~MRVUpdateManager() override;

    /**
     * Adds the action "Check for Updates..." to a menu; it stays the manager's. Its object name is
     * "CheckForUpdates".
     */
    void setupMenuActions(QMenu *menu);

    /**
     * From now on feeds and installers must carry a signature of this key; see
     * MRVUpdateModel::setPublicKey(). To be called before a check is made, as right after the first
     * instance().
     */
    bool setPublicKey(const QByteArray &key);

    /**
     * Chooses features of the checks that are made from now on. With
     * MRVUpdatePolicy::ChecksWhileRunning a silent check is made as at start-up, but once a day at
     * most, as long as the application runs.
     */
    void setPolicy(const MRVUpdatePolicy &policy);
    const MRVUpdatePolicy &policy() const { return m_policy; }

    /** Whether to check at start-up: bool, false when absent. */
    static QString checkForUpdatesKey();
    /** Days between two checks: int, 0 when absent, which means to check at each start-up. */
    static QString checkForUpdatesIntervalKey();
    /** When the feed was last judged: date-time. */
    static QString lastCheckForUpdatesKey();

public Q_SLOTS:
    /**
     * Checks, and tells what comes of it. A silent check that is running becomes such a check; the
     * dialog of one is brought to the front.
     */
    void checkForUpdates();
    /** Checks, and tells of a newer version only. */
    void checkForUpdatesSilent();
    /** The check has ended: it is deleted in the next turn of the event loop. */
    void onUpdateFinished();
    /**
     * Ends a check, closes all windows of the application, and opens the installer with what the
     * desktop has for it, unless it comes from the check, and was changed since that found it
     * valid. A window that does not close, as when the user cancels saving, stops that; the
     * installer is then removed. Where the desktop cannot open it, the user is told where it lies.
     */
    void onInstallUpdateRequested(const QString &exeFilePath);
    /** Notes the present time as that of the last check, and saves it. */
    void onUpdateChecked();

private:
    explicit MRVUpdateManager(QObject *parent);
    void doCheckForUpdates(bool silent);
    void forgetDownloader();
    void onTime();

    QAction *m_action;
    QPointer<MRVUpdateDownloader> m_downloader;
    QByteArray m_publicKey;
    MRVUpdatePolicy m_policy;
    QTimer *m_clock = nullptr; // for checks while the application runs
};
