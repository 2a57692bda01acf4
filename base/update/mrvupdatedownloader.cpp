#include "update/mrvupdatedownloader.h"

#include "download/mrvdownloadurl.h"
#include "download/mrvmessage.h"
#include "download/mrvredirectpolicy.h"
#include "update/mrvcheckforupdatesdialog.h"
#include "update/mrvupdatemodel.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QPushButton>
#include <QRandomGenerator>
#include <QUrl>

namespace {

// One byte more than the model takes, so that the model refuses a feed that is too large.
constexpr qint64 MaxFeedDownload = MRVUpdateModel::MaxFeedSize + 1;
constexpr qint64 MaxSignatureDownload = 64 * 1024;
constexpr int SmallFileDeadline = 60 * 1000; // milliseconds

} // namespace

MRVUpdateDownloader::MRVUpdateDownloader(QObject *parent)
    : QObject(parent)
    , m_model(new MRVUpdateModel(this))
    , m_redirects(std::make_unique<MRVRedirectPolicy>())
{
    // No parent: windows that are open now may be closed before the check ends.
    m_dialog = new MRVCheckForUpdatesDialog(m_model->releaseNotesUrl());
    connectModel();
    connectDialog();
}

void MRVUpdateDownloader::connectModel()
{
    connect(m_model, &MRVUpdateModel::updateError, m_dialog, &MRVCheckForUpdatesDialog::statusMsg);
    connect(m_model, &MRVUpdateModel::updateError, this, &MRVUpdateDownloader::errorMsg);
    connect(m_model, &MRVUpdateModel::updateAvailable, this, &MRVUpdateDownloader::updateAvailable);
    connect(m_model, &MRVUpdateModel::versions, m_dialog, &MRVCheckForUpdatesDialog::versions);
    connect(m_model, &MRVUpdateModel::readyToInstall, m_dialog,
            &MRVCheckForUpdatesDialog::enableInstallButton);
}

void MRVUpdateDownloader::connectDialog()
{
    connect(m_dialog, &MRVCheckForUpdatesDialog::downloadRequested, this,
            &MRVUpdateDownloader::downloadInstaller);
    connect(m_dialog, &MRVCheckForUpdatesDialog::installRequested, this,
            QOverload<>::of(&MRVUpdateDownloader::installRequested));
    connect(m_dialog, &QDialog::rejected, this, &MRVUpdateDownloader::cancelUpdate);
    connect(m_dialog, &QObject::destroyed, this, &MRVUpdateDownloader::cancelUpdate);
}

void MRVUpdateDownloader::connectDownloader()
{
    m_downloader->setUserInputHandler(m_redirects.get());
    connect(m_downloader, &MRVDownloadUrl::downloadError, this,
            &MRVUpdateDownloader::tellDownloadError);
    connect(m_downloader, QOverload<QString>::of(&MRVDownloadUrl::downloadSuccess), this,
            &MRVUpdateDownloader::onDownloaded);
    connect(m_downloader, &MRVDownloadUrl::downloadProgress, this,
            &MRVUpdateDownloader::onProgress);
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

void MRVUpdateDownloader::setPolicy(const MRVUpdatePolicy &policy)
{
    m_policy = policy;
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
        m_deadline.setSingleShot(true);
        connect(&m_deadline, &QTimer::timeout, this, &MRVUpdateDownloader::onLate);
        connectDownloader();
    }
    prepareState();
    QString error;
    if (!m_model->claimFeed(&error)) {
        errorMsg(error);
        return false;
    }
    if (!download(m_model->needsSignature() ? Step::FeedSignature : Step::Feed)) {
        errorMsg(tr("The address of the download is not valid."));
        return false;
    }
    if (!silent) {
        showChecking();
    }
    return true;
}

void MRVUpdateDownloader::prepareState()
{
    m_model->setPolicy(m_policy, !m_silent);
    if (!m_policy.features && !m_model->needsSignature()) {
        return;
    }
    MRVUpdateState state = MRVUpdateState::load();
    if (m_policy.features.testFlag(MRVUpdatePolicy::Rollout) && state.rolloutNumber < 0) {
        state.rolloutNumber = QRandomGenerator::global()->bounded(MRVUpdateState::Users);
        state.save();
    }
    m_model->setState(state);
}

bool MRVUpdateDownloader::download(Step step)
{
    struct Target
    {
        QString url;
        QString path;
        qint64 maximumSize;
        MRVDownloadUrl::Body body = MRVDownloadUrl::Body::Raw;
    };
    const qint64 size = m_model->offer().size;
    const auto target = [&]() -> Target {
        switch (step) {
        case Step::FeedSignature:
            return {m_model->xmlSignatureUrl(), m_model->xmlSignatureFilePath(),
                    MaxSignatureDownload};
        case Step::Feed:
            return {m_model->xmlUrl(), m_model->xmlFilePath(), MaxFeedDownload,
                    m_model->needsSignature() ? MRVDownloadUrl::Body::Raw
                                              : MRVDownloadUrl::Body::Text};
        case Step::InstallerSignature:
            return {m_model->signatureUrl(), m_model->signatureFilePath(), MaxSignatureDownload};
        case Step::Installer:
            break;
        }
        return {m_model->downloadURL(), m_model->downloadFilePath(),
                size >= 0 ? size : MRVDownloadUrl::LargestSize};
    }();
    m_step = step;
    const QUrl url(target.url);
    m_redirects->start(url);
    m_downloader->setMaximumSize(target.maximumSize);
    m_downloader->setBody(target.body);
    m_downloader->setResumable(step == Step::Installer);
    m_isLate = false;
    if (step == Step::Installer) {
        m_deadline.stop();
    } else {
        m_deadline.start(SmallFileDeadline);
    }
    return m_downloader->downloadToFile(url, target.path);
}

void MRVUpdateDownloader::next(Step step)
{
    if (!download(step)) {
        tellDownloadError(tr("The address of the download is not valid."));
    }
}

void MRVUpdateDownloader::onProgress(qint64 bytesRead, qint64 total)
{
    if (m_dialog && m_step == Step::Installer) {
        m_dialog->updateDownloadProgress(bytesRead, total);
    }
}

void MRVUpdateDownloader::onDownloaded()
{
    // Where a redirect is not followed, the redirect's own page has been downloaded.
    if (m_redirects->hasRefused()) {
        m_model->removeFiles();
        tellDownloadError(tr("The server redirected the download to an address that is not safe."));
        return;
    }
    m_deadline.stop();
    const QPointer<MRVUpdateDownloader> self(this);
    switch (m_step) {
    case Step::FeedSignature:
        if (m_model->readXMLSignature() && self) {
            next(Step::Feed);
        }
        break;
    case Step::Feed:
        m_model->readXML();
        break;
    case Step::InstallerSignature:
        if (m_model->readEXESignature() && self) {
            next(Step::Installer);
        }
        break;
    case Step::Installer:
        m_model->readEXE();
        break;
    }
}

// A byte now and then would hold up a check, and all that come after it, without end.
void MRVUpdateDownloader::onLate()
{
    m_isLate = true;
    m_downloader->cancelDownload();
}

void MRVUpdateDownloader::tellDownloadError(const QString &reason)
{
    const QString error = m_isLate ? tr("The server takes too long.") : reason;
    m_deadline.stop();
    // Errors after the feed was evaluated are reported where the user asked for the download.
    if (m_model->isNewerAvailable()) {
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

// To be seen at once, with a button to cancel, by a user who has asked for the check.
void MRVUpdateDownloader::showChecking()
{
    if (m_dialog) {
        m_dialog->showChecking();
        showDialog();
    }
}

void MRVUpdateDownloader::disableSilent()
{
    if (m_silent && m_dialog && m_dialog->isHidden()) {
        showChecking();
    }
    m_silent = false;
    m_model->setPolicy(m_policy, true);
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
    if (m_model->needsSignature()) {
        m_model->state().save();
    }
    Q_EMIT updateChecked();
    if (!self || m_ended) {
        return;
    }
    if (available) {
        offerChoices();
        showDialog();
        if (m_dialog) {
            // It has counted the feed.
            m_dialog->updateDownloadProgress(0, 1);
        }
        return;
    }
    endWith(QMessageBox::Information,
            tr("%1 is all up to date.").arg(QCoreApplication::applicationName()));
}

void MRVUpdateDownloader::errorMsg(const QString &error)
{
    // One error may be reported twice, and again while its message box is open.
    if (m_ended || m_isTelling) {
        return;
    }
    // What was refused must not remain where a user might open it by hand.
    m_model->removeFiles();
    endWith(QMessageBox::Warning, error);
}

void MRVUpdateDownloader::endWith(QMessageBox::Icon icon, const QString &text)
{
    m_isTelling = true;
    const QPointer<MRVUpdateDownloader> self(this);
    // Beside the verdict, it would still say that it is checking.
    if (m_dialog && !m_model->isNewerAvailable()) {
        m_dialog->hide();
    }
    if (!m_silent) {
        mrvShowMessage(nullptr, icon, tr("Check for Updates"), text);
    }
    if (self) {
        cancelUpdate();
    }
}

void MRVUpdateDownloader::downloadInstaller()
{
    if (!m_model->isNewerAvailable() || m_ended) {
        return;
    }
    disconnect(m_model, &MRVUpdateModel::updateAvailable, this, nullptr);
    QString error;
    if (!m_model->claimInstaller(&error)) {
        tellDownloadError(error);
        return;
    }
    next(m_model->needsSignature() ? Step::InstallerSignature : Step::Installer);
}

// The buttons of the features that the application has chosen.
void MRVUpdateDownloader::offerChoices()
{
    if (!m_dialog || m_model->decision().isUrgent) {
        return;
    }
    if (m_policy.features.testFlag(MRVUpdatePolicy::RemindLater)) {
        connect(m_dialog->addButton(tr("Remind Me Later")), &QPushButton::clicked, this, [this] {
            putOff([this](MRVUpdateState *state) {
                state->remindAfter =
                    QDateTime::currentDateTimeUtc().addDays(m_policy.remindAfterDays);
            });
        });
    }
    if (m_policy.features.testFlag(MRVUpdatePolicy::SkipVersions)) {
        connect(m_dialog->addButton(tr("Skip This Version")), &QPushButton::clicked, this, [this] {
            putOff([this](MRVUpdateState *state) {
                state->skippedVersion = m_model->availableVersion();
            });
        });
    }
}

void MRVUpdateDownloader::putOff(const std::function<void(MRVUpdateState *state)> &note)
{
    MRVUpdateState state = m_model->state();
    note(&state);
    state.save();
    cancelUpdate();
}

bool MRVUpdateDownloader::confirmInstaller()
{
    const QPointer<MRVUpdateDownloader> self(this);
    const bool isUnchanged = m_model->isInstallerUnchanged();
    if (!self) {
        return false;
    }
    if (!isUnchanged) {
        m_model->removeFiles();
        mrvShowMessage(
            nullptr, QMessageBox::Warning, tr("Check for Updates"),
            tr("The installer was changed after it had been downloaded, and will not be opened."));
    }
    return isUnchanged;
}

void MRVUpdateDownloader::keepInstaller()
{
    m_model->keepInstaller();
}

void MRVUpdateDownloader::installRequested()
{
    if (m_ended) {
        return;
    }
    m_isTelling = true;
    const QPointer<MRVUpdateDownloader> self(this);
    const bool isConfirmed = confirmInstaller();
    if (!self || m_ended) {
        return;
    }
    if (!isConfirmed) {
        cancelUpdate();
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
    m_deadline.stop();
    if (m_dialog) {
        m_dialog->hide();
        m_dialog->deleteLater();
    }
    if (m_downloader) {
        // It reports its end, which no longer concerns anybody.
        m_downloader->disconnect();
        m_downloader->cancelDownload();
    }
    m_model->removeFiles();
    Q_EMIT finished();
}
