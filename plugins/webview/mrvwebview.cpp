#include "mrvwebview.h"

#include "mrvpictureaccess.h"

#include <QDesktopServices>
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

// Stays on its page: whatever the user follows opens in the desktop's browser.
class Page : public QWebPage
{
public:
    Page(const QUrl &page, QObject *parent)
        : QWebPage(parent)
    {
        setNetworkAccessManager(new MRVPictureAccess(page, this));
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
            QWebSettings::MediaEnabled,
            QWebSettings::MediaSourceEnabled,
            QWebSettings::WebAudioEnabled,
            QWebSettings::WebGLEnabled,
            QWebSettings::NotificationsEnabled,
            QWebSettings::HyperlinkAuditingEnabled,
        };
        for (const QWebSettings::WebAttribute attribute : unwanted) {
            settings()->setAttribute(attribute, false);
        }
        settings()->setAttribute(QWebSettings::PrivateBrowsingEnabled, true);
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
        return url.scheme() == QLatin1String("about");
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
    return view;
}

void MRVWebView::show(QWidget *view, const QString &html)
{
    // Places in the page count from its address.
    static_cast<QWebView *>(view)->setHtml(html, QUrl(QStringLiteral("about:blank")));
}
