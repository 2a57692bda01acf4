#include "update/mrvupdatemanager.h"

#include "download/mrvmessage.h"
#include "download/mrvservertext.h"
#include "network/mrvnetwork.h"
#include "settings/mrvsettings.h"
#include "update/mrvupdatedownloader.h"
#include "update/mrvupdatemodel.h"

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoopLocker>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScopedPointer>
#include <QTimer>
#include <QUrl>
#include <QWindow>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

Q_LOGGING_CATEGORY(lcWeb, "mrv.web", QtWarningMsg)

constexpr int StartUpDelay = 5000; // milliseconds
// Short, since a timer stands still while the machine sleeps.
constexpr int ClockInterval = 15 * 60 * 1000;

MRVUpdateManager *manager = nullptr;

struct Keys
{
    const char *application;
    const char *check;
    const char *interval;
    const char *last;
};

// clang-format off
constexpr Keys keys[] = {
    {"Morvane",  "General/checkForUpdates", "General/checkForUpdatesInterval",     "General/lastCheckForUpdates"},
    // The misspelling "Uptates" is the stored key.
    {"Fernwick", "Options/CheckForUpdates", "Options/CheckForUptatesIntervalDays", "Options/CheckForUptatesLastDateTime"},
};
// clang-format on

QString keyOf(const char *Keys::*key)
{
    for (const Keys &row : keys) {
        if (QCoreApplication::applicationName() == QLatin1String(row.application)) {
            return QLatin1String(row.*key);
        }
    }
    return QString();
}

QVariant setting(const QString &key)
{
    const MRVSettings settings(QCoreApplication::organizationName(),
                               QCoreApplication::applicationName());
    return key.isEmpty() ? QVariant()
                         : settings.value(key, settings.value(QLatin1String("Options/") + key));
}

// @param leastDays between two checks, whatever the interval says.
bool isCheckDue(int leastDays = 0)
{
    if (!setting(MRVUpdateManager::checkForUpdatesKey()).toBool()) {
        return false;
    }
    const QDate last = setting(MRVUpdateManager::lastCheckForUpdatesKey()).toDateTime().date();
    const int interval = setting(MRVUpdateManager::checkForUpdatesIntervalKey()).toInt();
    return !last.isValid() || last.daysTo(QDate::currentDate()) >= qMax(leastDays, interval);
}

// Whether a window has refused to close.
bool isAnyWindowOpen()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return std::any_of(widgets.begin(), widgets.end(),
                       [](const QWidget *widget) {
                           return widget->isVisible() && widget->windowType() != Qt::Desktop
                               && !widget->testAttribute(Qt::WA_DontShowOnScreen);
                       })
        || std::any_of(windows.begin(), windows.end(),
                       [](const QWindow *window) { return window->isVisible(); });
}

// The windows are closed, so the user could not find it otherwise.
void showUnopened(const QString &path)
{
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Warning, MRVUpdateManager::tr("Morvane Update"),
                        MRVUpdateManager::tr("The installer cannot be opened: %1")
                            .arg(MRVServerText::breakable(QDir::toNativeSeparators(path))),
                        QMessageBox::Close);
    box->setTextFormat(Qt::PlainText);
    const QAbstractButton *const open =
        box->addButton(MRVUpdateManager::tr("Open Folder"), QMessageBox::AcceptRole);
    box->exec();
    if (box && box->clickedButton() == open) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).path()));
    }
    delete box;
}

} // namespace

MRVUpdateManager::MRVUpdateManager(QObject *parent)
    : QObject(parent)
    , m_action(new QAction(tr("&Check for Updates..."), this))
{
    m_action->setObjectName(QStringLiteral("CheckForUpdates"));
    connect(m_action, &QAction::triggered, this, &MRVUpdateManager::checkForUpdates);
    if (isCheckDue()) {
        auto *const timer = new QTimer(this);
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &MRVUpdateManager::checkForUpdatesSilent);
        timer->start(StartUpDelay);
    }
}

MRVUpdateManager::~MRVUpdateManager()
{
    manager = nullptr;
    qRemovePostRoutine(&MRVUpdateManager::release);
    delete m_downloader;
}

MRVUpdateManager *MRVUpdateManager::instance()
{
    if (!manager) {
        manager = new MRVUpdateManager(QCoreApplication::instance());
        // The application deletes its children when windows can no longer exist.
        qAddPostRoutine(&MRVUpdateManager::release);
    }
    return manager;
}

void MRVUpdateManager::release()
{
    delete manager;
}

void MRVUpdateManager::setupMenuActions(QMenu *menu)
{
    menu->addAction(m_action);
}

bool MRVUpdateManager::setPublicKey(const QByteArray &key)
{
    m_publicKey = key;
    return MRVUpdateModel().setPublicKey(key);
}

void MRVUpdateManager::setPolicy(const MRVUpdatePolicy &policy)
{
    m_policy = policy;
    delete std::exchange(m_clock, nullptr);
    if (policy.features.testFlag(MRVUpdatePolicy::ChecksWhileRunning)) {
        m_clock = new QTimer(this);
        connect(m_clock, &QTimer::timeout, this, &MRVUpdateManager::onTime);
        m_clock->start(ClockInterval);
    }
}

void MRVUpdateManager::onTime()
{
    if (isCheckDue(1)) {
        checkForUpdatesSilent();
    }
}

QString MRVUpdateManager::checkForUpdatesKey()
{
    return keyOf(&Keys::check);
}

QString MRVUpdateManager::checkForUpdatesIntervalKey()
{
    return keyOf(&Keys::interval);
}

QString MRVUpdateManager::lastCheckForUpdatesKey()
{
    return keyOf(&Keys::last);
}

void MRVUpdateManager::checkForUpdates()
{
    doCheckForUpdates(false);
}

void MRVUpdateManager::checkForUpdatesSilent()
{
    doCheckForUpdates(true);
}

void MRVUpdateManager::doCheckForUpdates(bool silent)
{
    if (!MrvNetwork::isNetworkConnected()) {
        if (!silent) {
            mrvShowMessage(QApplication::activeWindow(), QMessageBox::Warning, tr("Morvane Update"),
                           tr("No active network connection found\nYou need internet "
                              "connection to check for updates"));
        }
        return;
    }
    if (m_downloader) {
        if (!silent) {
            m_downloader->disableSilent();
        }
        return;
    }
    m_downloader = new MRVUpdateDownloader(QCoreApplication::instance());
    connect(m_downloader, &MRVUpdateDownloader::finished, this,
            &MRVUpdateManager::onUpdateFinished);
    connect(m_downloader, QOverload<QString>::of(&MRVUpdateDownloader::installRequested), this,
            &MRVUpdateManager::onInstallUpdateRequested);
    connect(m_downloader, &MRVUpdateDownloader::updateChecked, this,
            &MRVUpdateManager::onUpdateChecked);
    m_downloader->setPublicKey(m_publicKey);
    m_downloader->setPolicy(m_policy);
    // Its message box runs an event loop, in which this object may be released.
    const QPointer<MRVUpdateManager> self(this);
    if (!m_downloader->startUpdate(silent) && self) {
        forgetDownloader();
    }
}

void MRVUpdateManager::forgetDownloader()
{
    if (m_downloader) {
        m_downloader->deleteLater();
        m_downloader.clear();
    }
}

void MRVUpdateManager::onUpdateChecked()
{
    const QString key = lastCheckForUpdatesKey();
    if (key.isEmpty()) {
        return;
    }
    MRVSettings settings(QCoreApplication::organizationName(), QCoreApplication::applicationName());
    settings.setValue(key, QDateTime::currentDateTime());
    QString error;
    if (!settings.saveNow(&error)) {
        qCWarning(lcWeb, "%s", qUtf8Printable(error));
    }
}

void MRVUpdateManager::onUpdateFinished()
{
    forgetDownloader();
}

void MRVUpdateManager::onInstallUpdateRequested(const QString &exeFilePath)
{
    // Saving documents may take the user a while, and the application may release this object
    // meanwhile.
    const QScopedPointer<MRVUpdateDownloader, QScopedPointerDeleteLater> check(m_downloader);
    m_downloader.clear();
    // The check knows nothing about a file that the application wants opened.
    const bool isChecks = check && sender() == check.data();
    if (check) {
        check->setParent(nullptr);
    }
    // The application must not quit before the installer has been opened; one that does not quit
    // with its last window would do so with the last locker.
    std::optional<QEventLoopLocker> locker;
    if (QGuiApplication::quitOnLastWindowClosed()) {
        locker.emplace();
    }
    QApplication::closeAllWindows();
    if (isAnyWindowOpen() || (isChecks && !check->confirmInstaller())) {
        return;
    }
    if (isChecks) {
        check->keepInstaller();
    }
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(QDir::toNativeSeparators(exeFilePath)))) {
        showUnopened(exeFilePath);
    }
}
