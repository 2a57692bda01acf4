#include "update/mrvupdatedownloader.h"

#include "download/mrvdownloadurl.h"
#include "download/mrvmessage.h"
#include "download/mrvredirectpolicy.h"
#include "update/mrvcheckforupdatesdialog.h"
#include "update/mrvupdatemodel.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace {

// One byte more than the model takes, so that the model refuses a feed that is too large.
constexpr qint64 MaxFeedDownload = MRVUpdateModel::MaxFeedSize + 1;
constexpr qint64 MaxSignatureDownload = 64 * 1024;

} // namespace

MRVUpdateDownloader::MRVUpdateDownloader(QObject *parent)
    : QObject(parent)
    , m_model(new MRVUpdateModel(this))
    , m_redirects(std::make_unique<MRVRedirectPolicy>())
{
    // No parent: windows that are open now may be closed before the check ends.
    m_dialog = new MRVCheckForUpdatesDialog(m_model->releaseNotesUrl());
    connect(m_model, &MRVUpdateModel::updateError, this, &MRVUpdateDownloader::removeRefused);
    connect(m_model, &MRVUpdateModel::updateError, m_dialog, &MRVCheckForUpdatesDialog::statusMsg);
    connect(m_model, &MRVUpdateModel::updateError, this, &MRVUpdateDownloader::errorMsg);
    connect(m_model, &MRVUpdateModel::updateAvailable, this, &MRVUpdateDownloader::updateAvailable);
    connect(m_model, &MRVUpdateModel::versions, m_dialog, &MRVCheckForUpdatesDialog::versions);
    connect(m_model, &MRVUpdateModel::readyToInstall, m_dialog,
            &MRVCheckForUpdatesDialog::enableInstallButton);
    connect(m_dialog, &MRVCheckForUpdatesDialog::downloadRequested, this,
            &MRVUpdateDownloader::downloadInstaller);
    connect(m_dialog, &MRVCheckForUpdatesDialog::installRequested, this,
            QOverload<>::of(&MRVUpdateDownloader::installRequested));
    connect(m_dialog, &QDialog::rejected, this, &MRVUpdateDownloader::cancelUpdate);
    connect(m_dialog, &QObject::destroyed, this, &MRVUpdateDownloader::cancelUpdate);
}

MRVUpdateDownloader::~MRVUpdateDownloader()
{
    m_ended = true;
    // It must not signal to an object that is partly destroyed; and it uses the policy, which is
    // destroyed before the children.
    delete m_downloader;
    // A widget must not be deleted after the application, which may own this object.
    if (QCoreApplication::instance()) {
        delete m_dialog;
    }
}

bool MRVUpdateDownloader::setPublicKey(const QByteArray &key)
{
    return m_model->setPublicKey(key);
}

bool MRVUpdateDownloader::startUpdate(bool silent)
{
    m_silent = silent;
    if (!m_model->settingsError().isEmpty()) {
        errorMsg(m_model->settingsError());
        return false;
    }
    if (!m_downloader) {
        m_downloader = new MRVDownloadUrl(this);
        m_downloader->setUserInputHandler(m_redirects.get());
        connect(m_downloader, &MRVDownloadUrl::downloadError, this,
                &MRVUpdateDownloader::tellDownloadError);
        connect(m_downloader, QOverload<QString>::of(&MRVDownloadUrl::downloadSuccess), this,
                &MRVUpdateDownloader::onDownloaded);
        connect(m_downloader, QOverload<QByteArray>::of(&MRVDownloadUrl::downloadSuccess), this,
                &MRVUpdateDownloader::removePlantedLink);
        connect(m_downloader, &MRVDownloadUrl::downloadProgress, m_dialog,
                &MRVCheckForUpdatesDialog::updateDownloadProgress);
    }
    m_downloader->setMaximumSize(MaxFeedDownload);
    if (!download(Step::Feed, m_model->xmlUrl(), m_model->xmlFilePath())) {
        errorMsg(tr("The address of the download is not valid."));
        return false;
    }
    return true;
}

bool MRVUpdateDownloader::download(Step step, const QString &url, const QString &path)
{
    m_step = step;
    m_path = path;
    m_redirects->start(QUrl(url));
    return m_downloader->downloadToFile(QUrl(url), path);
}

// The bytes have arrived and are written next. Somebody may have planted a link to one of the
// user's files under this name.
void MRVUpdateDownloader::removePlantedLink()
{
    if (QFileInfo(m_path).isSymLink()) {
        QFile::remove(m_path);
    }
}

// A refused installer must not remain under its name, where a user might open it by hand.
// Files that this check has not written are left alone.
void MRVUpdateDownloader::removeRefused()
{
    if (m_step != Step::Feed) {
        QFile::remove(m_model->downloadFilePath());
    }
    if (m_step == Step::Signature) {
        QFile::remove(m_model->signatureFilePath());
    }
}

void MRVUpdateDownloader::onDownloaded()
{
    // Where a redirect is not followed, the redirect's own page has been downloaded.
    if (m_redirects->hasRefused()) {
        QFile::remove(m_path);
        tellDownloadError(tr("The server redirected the download to an address that is not safe."));
    } else if (m_step == Step::Feed) {
        m_model->readXML();
    } else if (m_step == Step::Installer) {
        onInstallerDownloaded();
    } else {
        m_model->readEXE();
    }
}

void MRVUpdateDownloader::onInstallerDownloaded()
{
    if (!m_model->needsSignature()) {
        m_model->readEXE();
        return;
    }
    // The bar stays at the end of the installer's download.
    disconnect(m_downloader, &MRVDownloadUrl::downloadProgress, nullptr, nullptr);
    m_downloader->setMaximumSize(MaxSignatureDownload);
    if (!download(Step::Signature, m_model->signatureUrl(), m_model->signatureFilePath())) {
        tellDownloadError(tr("The address of the download is not valid."));
    }
}

void MRVUpdateDownloader::tellDownloadError(const QString &error)
{
    // Errors after the feed was evaluated are reported where the user asked for the download.
    if (m_model->isNewerAvailable()) {
        if (m_step == Step::Signature) {
            removeRefused();
        }
        if (m_dialog) {
            m_dialog->errorMsg(error);
        }
    } else {
        errorMsg(error);
    }
}

void MRVUpdateDownloader::showDialog()
{
    m_silent = false;
    if (m_dialog) {
        m_dialog->show();
        m_dialog->raise();
    }
}

void MRVUpdateDownloader::disableSilent()
{
    if (m_silent && m_dialog && m_dialog->isHidden()) {
        m_dialog->statusMsg(tr("Checking for updates..."));
        showDialog();
    }
    m_silent = false;
    // It may be covered by the window from which the user asks.
    if (m_dialog && m_dialog->isVisible()) {
        m_dialog->setWindowState(m_dialog->windowState() & ~Qt::WindowMinimized);
        m_dialog->raise();
        m_dialog->activateWindow();
    }
}

void MRVUpdateDownloader::updateAvailable(bool available)
{
    if (m_ended) {
        return;
    }
    // The check may be deleted by a receiver, or while its box is open.
    const QPointer<MRVUpdateDownloader> self(this);
    Q_EMIT updateChecked();
    if (!self || m_ended) {
        return;
    }
    if (available) {
        showDialog();
        if (m_dialog) {
            // It has counted the feed.
            m_dialog->updateDownloadProgress(0, 1);
        }
        if (m_installerWanted) {
            downloadInstaller();
        }
        return;
    }
    m_isTelling = true;
    if (!m_silent) {
        mrvShowMessage(nullptr, QMessageBox::Information, tr("Check for Updates"),
                       tr("%1 is all up to date.").arg(QCoreApplication::applicationName()));
    }
    if (self) {
        cancelUpdate();
    }
}

void MRVUpdateDownloader::errorMsg(const QString &error)
{
    // One error may be reported twice, and again while its message box is open.
    if (m_ended || m_isTelling) {
        return;
    }
    m_isTelling = true;
    const QPointer<MRVUpdateDownloader> self(this);
    if (!m_silent) {
        mrvShowMessage(nullptr, QMessageBox::Warning, tr("Check for Updates"), error);
    }
    if (self) {
        cancelUpdate();
    }
}

void MRVUpdateDownloader::downloadInstaller()
{
    m_installerWanted = !m_model->isNewerAvailable();
    if (m_installerWanted || m_ended) {
        return;
    }
    disconnect(m_model, &MRVUpdateModel::updateAvailable, this, nullptr);
    m_downloader->setMaximumSize(MRVDownloadUrl::LargestSize);
    if (!download(Step::Installer, m_model->downloadURL(), m_model->downloadFilePath())) {
        tellDownloadError(tr("The address of the download is not valid."));
    }
}

bool MRVUpdateDownloader::confirmInstaller()
{
    const bool isUnchanged = m_model->isInstallerUnchanged();
    if (!isUnchanged) {
        mrvShowMessage(
            nullptr, QMessageBox::Warning, tr("Check for Updates"),
            tr("The installer was changed after it had been downloaded, and will not be opened."));
    }
    return isUnchanged;
}

void MRVUpdateDownloader::installRequested()
{
    if (m_ended) {
        return;
    }
    m_isTelling = true;
    const QPointer<MRVUpdateDownloader> self(this);
    if (!confirmInstaller()) {
        if (self) {
            cancelUpdate();
        }
        return;
    }
    m_ended = true;
    if (m_dialog) {
        m_dialog->deleteLater();
    }
    Q_EMIT installRequested(m_model->downloadFilePath());
}

void MRVUpdateDownloader::cancelUpdate()
{
    if (m_ended) {
        return;
    }
    m_ended = true;
    if (m_dialog) {
        m_dialog->hide();
        m_dialog->deleteLater();
    }
    if (m_downloader) {
        // It reports its end, which no longer concerns anybody.
        m_downloader->disconnect();
        m_downloader->cancelDownload();
    }
    Q_EMIT finished();
}
