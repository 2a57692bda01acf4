#pragma once

#include "update/mrvupdatepolicy.h"
#include "util/mrvbase_export.h"

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>

class MRVCheckForUpdatesDialog;
class MRVDownloadUrl;
class MRVRedirectPolicy;
class MRVUpdateModel;
struct MRVUpdateState;

/**
 * Runs one update check from its start to its end: fetches the feed, lets the model judge it, shows
 * the dialog when there is something to show, fetches the installer when the user asks for it, and
 * tells when it is to be opened. With a public key, the signatures of both are fetched before them.
 * What lies in the temporary folder is removed when the check ends, except an installer that is to
 * be opened.
 *
 * A check ends once, with finished() or with installRequested(QString), and can then be deleted; it
 * needs a QApplication. Redirects are followed ten times at most, on http and https only, and never
 * from https down to http; anything else ends the download with an error. Nobody is asked for a
 * password.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVUpdateDownloader : public QObject
{
    Q_OBJECT

public:
    /** A check that does nothing before startUpdate(). */
    explicit MRVUpdateDownloader(QObject *parent = nullptr);
    ~MRVUpdateDownloader() override;

    /**
     * Fetches the feed.
     *
     * @param silent whether only a newer version is worth a word.
     * @return false when that cannot even begin. The check has then told why, unless it is silent,
     *        and has ended.
     */
    bool startUpdate(bool silent);
    /**
     * Whether nothing is shown as long as nothing newer is found; not any more once the dialog has
     * been shown.
     */
    bool isSilent() const { return m_silent; }
    /**
     * The user has asked for the check that is running: shows the dialog of a silent one, brings
     * one that is shown to the front, and from now on tells what happens.
     */
    void disableSilent();
    /** MRVUpdateModel::setPublicKey() of this check; to be called before it starts. */
    bool setPublicKey(const QByteArray &key);
    /** Which features this check has; to be called before it starts. */
    void setPolicy(const MRVUpdatePolicy &policy);
    /**
     * Whether the installer is still the one that was found valid; warns the user where it is not.
     * To be asked right before it is opened. While a large one is read, events are handled except
     * those of user input.
     */
    bool confirmInstaller();
    /** Leaves the installer where it is, for what is going to open it. */
    void keepInstaller();

public Q_SLOTS:
    /** Ends the check, with a warning unless it is silent. */
    void errorMsg(const QString &error);
    /** The feed has been judged. */
    void updateAvailable(bool available);
    /**
     * Does nothing before a newer version is known. After a failed download it goes on where that
     * ended, as far as the server lets it.
     */
    void downloadInstaller();
    /** Checks that the installer is still the one that was found valid, and hands it over. */
    void installRequested();
    /**
     * Ends the check without a word: closes the dialog, drops a running download, and emits
     * finished().
     */
    void cancelUpdate();

Q_SIGNALS:
    /**
     * The check has ended with an installer that the user wants opened, and that was valid a moment
     * ago; see confirmInstaller().
     */
    void installRequested(QString exeFilePath);
    /**
     * The check has ended without anything to install, in whichever way. Emitted once, and never
     * after installRequested(QString).
     */
    void finished();
    /**
     * The feed has been judged; what is shown to the user follows. A check that fails before that
     * does not emit it.
     */
    void updateChecked();

private:
    enum class Step { FeedSignature, Feed, InstallerSignature, Installer };

    void connectModel();
    void connectDialog();
    void connectDownloader();
    bool download(Step step);
    void next(Step step);
    void onProgress(qint64 bytesRead, qint64 total);
    void onDownloaded();
    void onLate();
    void tellDownloadError(const QString &reason);
    void endWith(QMessageBox::Icon icon, const QString &text);
    void showDialog();
    void showChecking();
    void prepareState();
    void offerChoices();
    void putOff(const std::function<void(MRVUpdateState *state)> &note);

    bool m_silent = true;
    QPointer<MRVCheckForUpdatesDialog> m_dialog;
    MRVUpdateModel *m_model;
    MRVDownloadUrl *m_downloader = nullptr;
    std::unique_ptr<MRVRedirectPolicy> m_redirects;
    MRVUpdatePolicy m_policy;
    Step m_step = Step::Feed;
    QTimer m_deadline; // of a feed or a signature
    bool m_isLate = false;
    bool m_ended = false;
    bool m_isTelling = false; // what ends the check
};
