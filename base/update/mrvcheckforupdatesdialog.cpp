#include "update/mrvcheckforupdatesdialog.h"

#include "core/mrvcore.h"
#include "ui_mrvcheckforupdatesdialog.h"
#include "update/mrvreleasenotesview_p.h"
#include "update/msharedresources.h"
#include "version/mversion.h"

#include <QCoreApplication>
#include <QDir>
#include <QFontMetrics>
#include <QMessageBox>
#include <QPixmap>
#include <QPointer>
#include <QScreen>
#include <QUrl>

#include <limits>

namespace {

constexpr int LogoSize = 48;
// The size of the dialog in average characters and lines, within the limits of the screen.
constexpr int CharactersWide = 90;
constexpr int LinesHigh = 34;
constexpr int LinesOfNotes = 6; // at least
constexpr int LongestWord = 60;

// Adds break opportunities to words, such as addresses, that would be wider than the screen.
QString breakable(const QString &text)
{
    QString result;
    int length = 0;
    for (const QChar c : text) {
        length = c.isSpace() ? 0 : length + 1;
        if (length > LongestWord && !c.isLowSurrogate()) {
            result += QChar(0x200b); // zero width space
            length = 1;
        }
        result += c;
    }
    return result;
}

} // namespace

MRVCheckForUpdatesDialog::MRVCheckForUpdatesDialog(const QString &releaseNotesUrl, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::MRVCheckForUpdatesDialog>())
    , m_releaseNotesUrl(releaseNotesUrl)
{
    m_ui->setupUi(this);
    m_ui->appLogo->setPixmap(QPixmap::fromImage(logoImage()));
    m_ui->installButton->hide();
    connect(m_ui->downloadButton, &QPushButton::clicked, this,
            &MRVCheckForUpdatesDialog::downloadUpdate);
    connect(m_ui->installButton, &QPushButton::clicked, this,
            &MRVCheckForUpdatesDialog::installUpdate);
    connect(m_ui->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    m_ui->downloadButton->setFocus();
    const QFontMetrics metrics = fontMetrics();
    const QSize wanted(metrics.averageCharWidth() * CharactersWide,
                       metrics.lineSpacing() * LinesHigh);
    resize(wanted.boundedTo(availableSize()));
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

void MRVCheckForUpdatesDialog::versions(const QString &current, const QString &available)
{
    statusMsg(tr("You are currently running %1 %2. Version %3 is available.\n\nClick the Download "
                 "Update button to begin the download. (You will not be able to use %1 while the "
                 "update is downloading.) When the download has finished, click Install Update to "
                 "close %1 and launch the update installer.\n\nChoose Cancel if you do not wish to "
                 "update at this time.")
                  .arg(QCoreApplication::applicationName(), current, available));
}

void MRVCheckForUpdatesDialog::statusMsg(const QString &text)
{
    m_ui->statusLabel->setText(breakable(text));
}

void MRVCheckForUpdatesDialog::errorMsg(const QString &text)
{
    statusMsg(text);
    m_ui->progressBar->hide();
}

void MRVCheckForUpdatesDialog::updateDownloadProgress(qint64 bytesRead, qint64 total)
{
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
    m_ui->progressBar->setValue(int(qMin(bytesRead, total)));
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
    m_ui->downloadButton->setEnabled(false);
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
    m_ui->installButton->show();
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
    showReleaseNotes();
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
