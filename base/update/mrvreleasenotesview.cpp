#include "update/mrvreleasenotesview_p.h"

#include "download/mrvdownloadurl.h"
#include "download/mrvredirectpolicy.h"
#include "input/mrvhtmlreader.h"
#include "input/mrvtextdecoder.h"
#include "update/mrvwebviewfactory.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>
#include <QTextBrowser>
#include <QTextCodec>
#include <QUrl>

#include <dlfcn.h>

namespace {

bool isWebPage(const QUrl &url)
{
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

// Where this very library lies; an application that moves as a whole finds its plug-ins again.
QString pluginFolder()
{
    const QString given = qEnvironmentVariable("MRV_PLUGIN_PATH");
    if (!given.isEmpty()) {
        return given;
    }
    Dl_info info;
    if (dladdr(reinterpret_cast<const void *>(&mrvCreateReleaseNotesView), &info) == 0) {
        return QString();
    }
    return QFileInfo(QFile::decodeName(info.dli_fname)).canonicalPath()
        + QLatin1String("/mrvbase/plugins");
}

QWidget *createByPlugin(const QUrl &page, QWidget *parent)
{
    const QDir folder(pluginFolder());
    const QStringList names = folder.entryList({QStringLiteral("*.so")}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        // A plug-in stays loaded: engines do not bear being taken out of a running process.
        QPluginLoader loader(folder.absoluteFilePath(name));
        auto *const factory = qobject_cast<MRVWebViewFactory *>(loader.instance());
        QWidget *const view = factory ? factory->create(page, parent) : nullptr;
        if (view) {
            return view;
        }
    }
    return nullptr;
}

// The server's encoding has already been turned into UTF-8; pages that name one only themselves
// have not.
QString decodedPage(const QByteArray &bytes)
{
    QString text;
    if (!MRVTextDecoder::decode(bytes, QByteArrayLiteral("UTF-8"), &text)) {
        const QTextCodec *codec = QTextCodec::codecForName(
            MRVTextDecoder::encodingOf(bytes, MRVTextDecoder::HtmlDeclaration));
        text = (codec ? codec : QTextCodec::codecForName("UTF-8"))->toUnicode(bytes);
    }
    return text;
}

// Shows one page as rich text. It has no scripts to begin with, and loads nothing that the page
// names.
class TextPage : public QTextBrowser
{
    Q_DECLARE_TR_FUNCTIONS(MRVCheckForUpdatesDialog)

public:
    TextPage(const QUrl &page, QWidget *parent)
        : QTextBrowser(parent)
    {
        setOpenLinks(false);
        // To break words, too, takes a time that grows with the square of their length.
        setWordWrapMode(QTextOption::WordWrap);
        connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl &link) {
            const QUrl target = m_page.resolved(link);
            if (isWebPage(target) || target.scheme() == QLatin1String("mailto")) {
                QDesktopServices::openUrl(target);
            }
        });
        connect(&m_download, QOverload<QByteArray>::of(&MRVDownloadUrl::downloadSuccess), this,
                &TextPage::showPage);
        connect(&m_download, &MRVDownloadUrl::downloadError, this, &TextPage::showError);
        load(page);
    }

    QVariant loadResource(int, const QUrl &) override { return QVariant(); }

private:
    void load(const QUrl &page)
    {
        if (!isWebPage(page)) {
            return;
        }
        m_page = page;
        m_redirects.start(page);
        m_download.setUserInputHandler(&m_redirects);
        m_download.setMaximumSize(MaxPageSize);
        if (!m_download.download(page)) {
            showError(QString());
        }
    }

    void showPage(const QByteArray &bytes)
    {
        const QString html = decodedPage(bytes);
        if (m_redirects.hasRefused() || !MRVHtmlReader::whyTooComplex(html).isEmpty()) {
            showError(QString());
        } else {
            setHtml(html);
        }
    }

    void showError(const QString &reason)
    {
        setPlainText((tr("The release notes cannot be shown.") + u'\n' + reason).trimmed());
    }

    static constexpr qint64 MaxPageSize = 1024 * 1024;

    QUrl m_page;
    MRVRedirectPolicy m_redirects;
    MRVDownloadUrl m_download;
};

} // namespace

QWidget *mrvCreateReleaseNotesView(const QUrl &page, QWidget *parent)
{
    const QUrl shown = isWebPage(page) ? page : QUrl();
    QWidget *const view = createByPlugin(shown, parent);
    return view ? view : new TextPage(shown, parent);
}
