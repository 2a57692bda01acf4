#include "mrvwebview.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFont>
#include <QGuiApplication>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QUrl>
#include <QWebFrame>
#include <QWebPage>
#include <QWebSettings>
#include <QWebView>

namespace {

bool isOnTheWeb(const QUrl &url)
{
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

// Qt's own would also read files, for a page that leads there by a redirect, too, and leave an
// encrypted connection for one that is not.
class WebOnlyAccess : public QNetworkAccessManager
{
public:
    WebOnlyAccess(const QUrl &page, QObject *parent)
        : QNetworkAccessManager(parent)
        , m_isEncrypted(page.scheme() == QLatin1String("https"))
    {
    }

protected:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &request,
                                 QIODevice *body) override
    {
        const QString scheme = request.url().scheme();
        const bool isAllowed = scheme == QLatin1String("https") || scheme == QLatin1String("data")
            || (scheme == QLatin1String("http") && !m_isEncrypted);
        // A request for no address ends with an error.
        return QNetworkAccessManager::createRequest(
            operation, isAllowed ? request : QNetworkRequest(QUrl()), body);
    }

private:
    bool m_isEncrypted;
};

// Stays on its page: whatever the user follows opens in the desktop's browser.
class Page : public QWebPage
{
    Q_DECLARE_TR_FUNCTIONS(MRVCheckForUpdatesDialog)

public:
    Page(const QUrl &page, QObject *parent)
        : QWebPage(parent)
    {
        setNetworkAccessManager(new WebOnlyAccess(page, this));
        setForwardUnsupportedContent(false);
        const QWebSettings::WebAttribute unwanted[] = {
            QWebSettings::JavascriptEnabled,
            QWebSettings::JavaEnabled,
            QWebSettings::PluginsEnabled,
            QWebSettings::LocalStorageEnabled,
            QWebSettings::OfflineStorageDatabaseEnabled,
            QWebSettings::OfflineWebApplicationCacheEnabled,
            QWebSettings::LocalContentCanAccessFileUrls,
            QWebSettings::LocalContentCanAccessRemoteUrls,
            QWebSettings::DnsPrefetchEnabled,
            QWebSettings::DeveloperExtrasEnabled,
        };
        for (const QWebSettings::WebAttribute attribute : unwanted) {
            settings()->setAttribute(attribute, false);
        }
        settings()->setAttribute(QWebSettings::PrivateBrowsingEnabled, true);
        // What a page that names no font of its own is written in.
        settings()->setFontFamily(QWebSettings::StandardFont, QGuiApplication::font().family());
        connect(this, &QWebPage::loadFinished, this, &Page::showFailure);
    }

protected:
    bool acceptNavigationRequest(QWebFrame *frame, const QNetworkRequest &request,
                                 NavigationType type) override
    {
        const QUrl url = request.url();
        const bool isFollowed = type == NavigationTypeLinkClicked;
        const bool isSent =
            type == NavigationTypeFormSubmitted || type == NavigationTypeFormResubmitted;
        if (!frame || isFollowed || isSent) {
            const QString target = url.toString(QUrl::RemoveFragment);
            if (isFollowed && frame && url.hasFragment()
                && frame->url().toString(QUrl::RemoveFragment) == target) {
                return true;
            }
            if (!isSent && (isOnTheWeb(url) || url.scheme() == QLatin1String("mailto"))) {
                QDesktopServices::openUrl(url);
            }
            return false;
        }
        return isOnTheWeb(url) || url.scheme() == QLatin1String("about");
    }

private:
    void showFailure(bool isLoaded)
    {
        if (!isLoaded) {
            disconnect(this, &QWebPage::loadFinished, this, &Page::showFailure);
            const QString text = tr("The release notes cannot be shown.");
            mainFrame()->setHtml(QLatin1String("<p>") + text.toHtmlEscaped()
                                 + QLatin1String("</p>"));
        }
    }
};

} // namespace

QWidget *MRVWebView::create(const QUrl &page, QWidget *parent)
{
    auto *const view = new QWebView(parent);
    view->setPage(new Page(page, view));
    // Its menu would offer to open links in the view, and to save them.
    view->setContextMenuPolicy(Qt::NoContextMenu);
    view->setAcceptDrops(false);
    view->setUrl(QUrl(QStringLiteral("about:blank")));
    if (!page.isEmpty()) {
        view->setUrl(page);
    }
    return view;
}
