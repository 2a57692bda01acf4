#pragma once

#include "util/mrvbase_export.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QImage>
#include <QString>
#include <QTimer>

#include <memory>

class MRVDownloadPace;
class QPushButton;

namespace Ui {
class MRVCheckForUpdatesDialog;
}

/**
 * Tells which version runs and which one is offered, shows the release notes, and lets the user
 * download the installer and install it. It does neither itself: it tells what the user wants, and
 * shows what it is told.
 *
 * The release notes are fetched when the dialog is shown for the first time, so that a check in the
 * background that finds nothing neither loads a web engine nor asks the server for the page. Until
 * then an empty widget stands under the view's object name, "webView".
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVCheckForUpdatesDialog : public QDialog
{
    Q_OBJECT

public:
    /** @param releaseNotesUrl of a page on http or https; anything else leaves the view empty. */
    explicit MRVCheckForUpdatesDialog(const QString &releaseNotesUrl, QWidget *parent = nullptr);
    ~MRVCheckForUpdatesDialog() override;

    /**
     * The running application's logo, 48 pixels wide or high, whichever is more; null where its
     * resource is missing.
     */
    static QImage logoImage();

    /**
     * Adds a button with @p text before the Cancel button, for a choice that the application offers
     * besides. The dialog owns it, and hides it once a download begins.
     */
    QPushButton *addButton(const QString &text);

public Q_SLOTS:
    /**
     * For a check that the user waits for: says so, and shows nothing but that, a busy bar and the
     * Cancel button, until versions() is called. The release notes are not fetched before.
     */
    void showChecking();
    /**
     * Shows which version runs, @p current, and which is offered, @p available, and what the
     * buttons do.
     */
    void versions(const QString &current, const QString &available);
    /**
     * Shows a message as plain text; of a longer one than MRVServerText::LongestMessage the middle
     * is left out.
     */
    void statusMsg(const QString &text);
    /**
     * Shows an error in the words of a server, of which MRVServerText::Longest QChars are shown,
     * and hides the progress bar. Where a download was running, the download button then offers to
     * try again, which emits downloadRequested() and shows the bar and the former text once more.
     */
    void errorMsg(const QString &text);
    /**
     * Counts @p bytesRead and @p total in bytes; a total that is unknown (negative, or 0) shows a
     * busy bar. While a download runs, the line below tells the bytes, the speed and the time that
     * is left, once a second. Without meaning before versions() while showChecking() holds.
     */
    void updateDownloadProgress(qint64 bytesRead, qint64 total);
    /**
     * What the download button does, at first and to try again: asks for the download, unless the
     * user could not install it; then says why.
     */
    void downloadUpdate();
    /** The installer is there, and valid. */
    void enableInstallButton();
    /** Once a download has begun, or cannot be of use any more. */
    void disableDownloadAndInstallButtons();
    /** What the install button does: disables itself and asks for the installation. */
    void installUpdate();

Q_SIGNALS:
    /** The user wants the installer, and could install it. */
    void downloadRequested();
    /** The user wants to install what enableInstallButton() announced. */
    void installRequested();

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    enum class Step { Checking, Available, Downloading, Failed, Ready };

    void setStep(Step step);
    void endChecking();
    void tellProgress();
    void takeFullSize();
    QSize availableSize() const;
    void keepStatusWhole();
    void showReleaseNotes();
    void showRightsWarning(bool needsAdminRights, const QString &installedLocation);

    std::unique_ptr<Ui::MRVCheckForUpdatesDialog> m_ui;
    QString m_releaseNotesUrl; // empty once the page is being shown
    Step m_step = Step::Available;
    QString m_beforeError; // what the status was when a download failed
    std::unique_ptr<MRVDownloadPace> m_pace;
    QElapsedTimer m_clock;
    QTimer m_ticker; // once a second while a download runs
};
