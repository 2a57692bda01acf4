#pragma once

#include "util/mrvbase_export.h"

#include <QDialog>
#include <QImage>
#include <QString>

#include <memory>

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

public Q_SLOTS:
    /**
     * Shows which version runs, @p current, and which is offered, @p available, and what the
     * buttons do.
     */
    void versions(const QString &current, const QString &available);
    /**
     * Shows a text; in words of more than 60 characters, such as addresses, places to break them
     * are put.
     */
    void statusMsg(const QString &text);
    /** As statusMsg(), and hides the progress bar for good. */
    void errorMsg(const QString &text);
    /**
     * Counts @p bytesRead and @p total in bytes; a total that is unknown (negative, or 0) shows a
     * busy bar.
     */
    void updateDownloadProgress(qint64 bytesRead, qint64 total);
    /**
     * What the download button does: asks for the download, unless the user could not install it;
     * then says why.
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
    QSize availableSize() const;
    void keepStatusWhole();
    void showReleaseNotes();
    void showRightsWarning(bool needsAdminRights, const QString &installedLocation);

    std::unique_ptr<Ui::MRVCheckForUpdatesDialog> m_ui;
    QString m_releaseNotesUrl; // empty once the page is being shown
};
