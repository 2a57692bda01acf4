#include "update/mrvcheckforupdatesdialog.h"

#include "core/mrvcore.h"
#include "download/mrvservertext.h"
#include "ui_mrvcheckforupdatesdialog.h"
#include "update/mrvdownloadpace_p.h"
#include "update/mrvreleasenotesview_p.h"
#include "update/msharedresources.h"
#include "version/mversion.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontMetrics>
#include <QMessageBox>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QUrl>

#include <limits>

namespace {

constexpr int LogoSize = 48;
// The size of the dialog in average characters and lines, within the limits of the screen.
constexpr int CharactersWide = 90;
constexpr int LinesHigh = 34;
constexpr int LinesOfNotes = 6; // at least
constexpr int TickLength = 1000; // milliseconds

} // namespace

MRVCheckForUpdatesDialog::MRVCheckForUpdatesDialog(const QString &releaseNotesUrl, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::MRVCheckForUpdatesDialog>())
    , m_releaseNotesUrl(releaseNotesUrl)
    , m_pace(std::make_unique<MRVDownloadPace>())
{
    m_ui->setupUi(this);
    const QImage logo = logoImage();
    m_ui->appLogo->setPixmap(QPixmap::fromImage(logo));
    m_ui->appLogo->setVisible(!logo.isNull());
    m_ui->installButton->hide();
    connect(m_ui->downloadButton, &QPushButton::clicked, this,
            &MRVCheckForUpdatesDialog::downloadUpdate);
    connect(m_ui->installButton, &QPushButton::clicked, this,
            &MRVCheckForUpdatesDialog::installUpdate);
    connect(m_ui->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    m_clock.start();
    m_ticker.setInterval(TickLength);
    connect(&m_ticker, &QTimer::timeout, this, &MRVCheckForUpdatesDialog::tellProgress);
    m_ui->downloadButton->setFocus();
    takeFullSize();
}

MRVCheckForUpdatesDialog::~MRVCheckForUpdatesDialog() = default;

QImage MRVCheckForUpdatesDialog::logoImage()
{
    const QImage image(MrvCore::isAppMorvane() ? QStringLiteral(":/FileIcons/Morvane48")
                                               : QStringLiteral(":/Branding/Splash"));
    return image.isNull()
        ? image
        : image.scaled(LogoSize, LogoSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QPushButton *MRVCheckForUpdatesDialog::addButton(const QString &text)
{
    auto *const button = new QPushButton(text, this);
    button->setAutoDefault(false);
    const int place = m_ui->buttonLayout->indexOf(m_ui->cancelButton);
    setTabOrder(m_ui->buttonLayout->itemAt(place - 1)->widget(), button);
    m_ui->buttonLayout->insertWidget(place, button);
    connect(this, &MRVCheckForUpdatesDialog::downloadRequested, button, &QWidget::hide);
    return button;
}

void MRVCheckForUpdatesDialog::setStep(Step step)
{
    m_step = step;
    const bool isChecking = step == Step::Checking;
    m_ui->webView->setVisible(!isChecking);
    m_ui->progressBar->setVisible(step != Step::Failed);
    m_ui->progressLabel->setVisible(step == Step::Downloading);
    m_ui->downloadButton->setVisible(!isChecking);
    m_ui->downloadButton->setEnabled(step == Step::Available || step == Step::Failed);
    m_ui->installButton->setVisible(step == Step::Ready);
    *m_pace = MRVDownloadPace();
    m_ui->progressLabel->clear();
    if (step == Step::Downloading) {
        m_ticker.start();
    } else {
        m_ticker.stop();
    }
}

void MRVCheckForUpdatesDialog::showChecking()
{
    setStep(Step::Checking);
    m_ui->progressBar->setRange(0, 0);
    statusMsg(tr("Checking for updates..."));
    adjustSize();
}

void MRVCheckForUpdatesDialog::endChecking()
{
    setStep(Step::Available);
    m_ui->progressBar->setRange(0, 100);
    m_ui->progressBar->setValue(0);
    // While it was hidden, the Cancel button took its place.
    m_ui->downloadButton->setDefault(true);
    m_ui->downloadButton->setFocus();
    takeFullSize();
    if (isVisible()) {
        showReleaseNotes();
    }
}

void MRVCheckForUpdatesDialog::versions(const QString &current, const QString &available)
{
    if (m_step == Step::Checking) {
        endChecking();
    }
    m_ui->statusLabel->setText(
        tr("You are currently running %1 %2. Version %3 is available.\n\nClick the Download "
           "Update button to begin the download. (You will not be able to use %1 while the "
           "update is downloading.) When the download has finished, click Install Update to "
           "close %1 and launch the update installer.\n\nChoose Cancel if you do not wish to "
           "update at this time.")
            .arg(QCoreApplication::applicationName(), current,
                 MRVServerText::breakable(MRVServerText::shortened(available))));
}

void MRVCheckForUpdatesDialog::statusMsg(const QString &text)
{
    m_ui->statusLabel->setText(
        MRVServerText::breakable(MRVServerText::shortened(text, MRVServerText::LongestMessage)));
}

void MRVCheckForUpdatesDialog::errorMsg(const QString &text)
{
    const QString before = m_ui->statusLabel->text();
    statusMsg(MRVServerText::shortened(text));
    if (m_step != Step::Downloading) {
        m_ui->progressBar->hide();
        return;
    }
    setStep(Step::Failed);
    m_beforeError = before;
    m_ui->downloadButton->setText(tr("Try Again"));
    m_ui->downloadButton->setDefault(true);
    if (!focusWidget()) {
        m_ui->downloadButton->setFocus();
    }
}

void MRVCheckForUpdatesDialog::updateDownloadProgress(qint64 bytesRead, qint64 total)
{
    if (m_step == Step::Checking) {
        return; // that of the feed
    }
    if (m_step == Step::Downloading) {
        const bool isFirst = !m_pace->hasBegun();
        m_pace->setBytes(bytesRead, total);
        if (isFirst) {
            tellProgress();
        }
    }
    // The bar counts in int: larger sizes are scaled down.
    while (total > std::numeric_limits<int>::max()) {
        total /= 2;
        bytesRead /= 2;
    }
    if (total <= 0) {
        m_ui->progressBar->setRange(0, 0);
        return;
    }
    m_ui->progressBar->setMaximum(int(total));
    m_ui->progressBar->setValue(int(qBound(qint64(0), bytesRead, total)));
}

void MRVCheckForUpdatesDialog::tellProgress()
{
    m_pace->tick(m_clock.elapsed());
    m_ui->progressLabel->setText(m_pace->text(locale()));
}

void MRVCheckForUpdatesDialog::downloadUpdate()
{
    bool needsAdminRights = false;
    bool runsElsewhere = false;
    QString installedLocation;
    MVersion::checkCurrentUserRights(&needsAdminRights, &runsElsewhere, &installedLocation);
    if (needsAdminRights || runsElsewhere) {
        showRightsWarning(needsAdminRights, installedLocation);
        return;
    }
    // The focus would move on to the Cancel button, where a key that is pressed twice would end the
    // download.
    m_ui->downloadButton->clearFocus();
    if (m_step == Step::Failed) {
        m_ui->statusLabel->setText(m_beforeError);
    }
    setStep(Step::Downloading);
    m_ui->downloadButton->setText(tr("Downloading Update"));
    m_ui->progressBar->setValue(0);
    Q_EMIT downloadRequested();
}

void MRVCheckForUpdatesDialog::showRightsWarning(bool needsAdminRights,
                                                 const QString &installedLocation)
{
    const QString application = QCoreApplication::applicationName();
    // It is deleted with the dialog, which may happen while it is open.
    const QPointer<QMessageBox> box(new QMessageBox(this));
    box->setIcon(QMessageBox::Warning);
    box->setTextFormat(Qt::PlainText);
    box->setWindowTitle(tr("%1 Auto-Update").arg(application));
    if (needsAdminRights) {
        box->setText(tr("Administrative rights required."));
        box->setInformativeText(
            tr("To download and install automatic updates, you must run %1 from the same account "
               "that installed it.\n\nYou can also visit %2 to download and install the latest "
               "version manually.")
                .arg(application, MSharedResources::productPage()));
    } else {
        box->setText(tr("Installation and Runtime location mismatch."));
        box->setInformativeText(
            tr("%1 is not currently running from its last installed location.\n\nRuntime Location: "
               "'%2'\nInstalled Location: '%3'\n\nTo download and install the update, please "
               "uninstall or manually remove any copies of %1 not at the Installed Location path "
               "above, then restart %1 from there and select Help > Check for Updates....")
                .arg(application, QDir::toNativeSeparators(QCoreApplication::applicationFilePath()),
                     QDir::toNativeSeparators(installedLocation)));
    }
    box->exec();
    delete box;
}

void MRVCheckForUpdatesDialog::enableInstallButton()
{
    // Deliberate: this one text is not translated.
    m_ui->downloadButton->setText(QStringLiteral("Downloaded Update"));
    setStep(Step::Ready);
    m_ui->installButton->setDefault(true);
    // A user who reads the notes may be pressing keys at this moment.
    const QWidget *const focus = focusWidget();
    if (focus != m_ui->webView && !m_ui->webView->isAncestorOf(focus)) {
        m_ui->installButton->setFocus();
    }
}

void MRVCheckForUpdatesDialog::disableDownloadAndInstallButtons()
{
    m_ui->downloadButton->setEnabled(false);
    m_ui->installButton->setEnabled(false);
}

void MRVCheckForUpdatesDialog::installUpdate()
{
    m_ui->installButton->setEnabled(false);
    Q_EMIT installRequested();
}

bool MRVCheckForUpdatesDialog::event(QEvent *event)
{
    const bool isHandled = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize) {
        keepStatusWhole();
    }
    return isHandled;
}

void MRVCheckForUpdatesDialog::takeFullSize()
{
    const QFontMetrics metrics = fontMetrics();
    const QSize wanted(metrics.averageCharWidth() * CharactersWide,
                       metrics.lineSpacing() * LinesHigh);
    resize(wanted.boundedTo(availableSize()));
}

QSize MRVCheckForUpdatesDialog::availableSize() const
{
    return screen()->availableSize();
}

// Layouts do not ensure by themselves that a label of several lines gets its full height.
void MRVCheckForUpdatesDialog::keepStatusWhole()
{
    const QSize available = availableSize();
    const int narrowest = fontMetrics().averageCharWidth() * CharactersWide * 2 / 3;
    setMinimumWidth(qMin(qMax(narrowest, layout()->minimumSize().width()), available.width()));
    setMinimumHeight(qBound(0, layout()->minimumHeightForWidth(width()), available.height()));
}

void MRVCheckForUpdatesDialog::showEvent(QShowEvent *event)
{
    if (m_step != Step::Checking) {
        showReleaseNotes();
    }
    QDialog::showEvent(event);
}

void MRVCheckForUpdatesDialog::showReleaseNotes()
{
    if (m_releaseNotesUrl.isEmpty()) {
        return;
    }
    QWidget *const view = mrvCreateReleaseNotesView(QUrl(m_releaseNotesUrl), this);
    m_releaseNotesUrl.clear();
    view->setObjectName(QStringLiteral("webView"));
    view->setAccessibleName(tr("Release notes"));
    view->setSizePolicy(m_ui->webView->sizePolicy());
    view->setMinimumHeight(fontMetrics().lineSpacing() * LinesOfNotes);
    delete layout()->replaceWidget(m_ui->webView, view);
    delete m_ui->webView;
    m_ui->webView = view;
    setTabOrder(m_ui->cancelButton, view);
}
