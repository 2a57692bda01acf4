#include "update/mrvreleasenotesview_p.h"

#include "download/mrvdownloadurl.h"
#include "download/mrvredirectpolicy.h"
#include "download/mrvservertext.h"
#include "gui/mrvguiutil.h"
#include "update/mrvreleasenotes_p.h"
#include "update/mrvwebviewfactory.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QPluginLoader>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>

#include <dlfcn.h>

namespace {

constexpr qint64 MaxPageSize = 1024 * 1024;
constexpr int MaxPageTime = 30000; // milliseconds

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

// Null where no plug-in is installed.
MRVWebViewFactory *viewFactory()
{
    const QDir folder(pluginFolder());
    const QStringList names = folder.entryList({QStringLiteral("*.so")}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        // A plug-in stays loaded: engines do not bear being taken out of a running process.
        QPluginLoader loader(folder.absoluteFilePath(name));
        if (auto *const factory = qobject_cast<MRVWebViewFactory *>(loader.instance())) {
            return factory;
        }
    }
    return nullptr;
}

// A palette may have a dark background and still the link colour of a light one.
QColor linkColor(const QPalette &palette)
{
    const QColor link = palette.color(QPalette::Link);
    const QColor base = palette.color(QPalette::Base);
    const bool isDark = MRVGuiUtil::textColorForBackground(base) == Qt::white;
    const bool isLinkDark = MRVGuiUtil::textColorForBackground(link) == Qt::white;
    if (isDark != isLinkDark) {
        return link;
    }
    return QColor::fromHslF(qMax(0.0, link.hslHueF()), link.hslSaturationF(), isDark ? 0.8 : 0.3);
}

// The view's font in the pixels that both kinds of views count in, and without aliases such as
// "Sans Serif", which web engines do not know.
QFont pixelFont(const QWidget *view)
{
    QFont font = view->font();
    const QFontInfo info(font);
    font.setFamily(info.family());
    font.setPixelSize(info.pixelSize());
    return font;
}

QString htmlOf(const QTextDocument &notes, const QPalette &palette)
{
    const QString style =
        QStringLiteral("<style>body{color:%1;background:%2}</style></head>")
            .arg(palette.color(QPalette::Text).name(), palette.color(QPalette::Base).name());
    QString html = notes.toHtml();
    return html.replace(html.indexOf(QLatin1String("</head>")), 7, style);
}

void openLink(const QUrl &link)
{
    if (isWebPage(link) || link.scheme() == QLatin1String("mailto")) {
        QDesktopServices::openUrl(link);
    }
}

// Shows text, and has nothing else that it could load.
class TextPage : public QTextBrowser
{
public:
    explicit TextPage(QWidget *parent)
        : QTextBrowser(parent)
    {
        setOpenLinks(false);
        connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl &link) {
            if (link.isRelative()) {
                scrollToAnchor(link.fragment());
            } else {
                openLink(link);
            }
        });
    }

    QVariant loadResource(int, const QUrl &) override { return QVariant(); }
};

// Fetches the notes, and shows them in a view, which owns this.
class NotesFetcher : public QObject
{
    Q_DECLARE_TR_FUNCTIONS(MRVCheckForUpdatesDialog)

public:
    NotesFetcher(const QUrl &page, QWidget *view, MRVWebViewFactory *factory)
        : QObject(view)
        , m_page(page)
        , m_view(view)
        , m_factory(factory)
    {
        connect(&m_download, QOverload<QByteArray>::of(&MRVDownloadUrl::downloadSuccess), this,
                &NotesFetcher::read);
        connect(&m_download, &MRVDownloadUrl::downloadError, this, &NotesFetcher::showError);
        m_deadline.setSingleShot(true);
        connect(&m_deadline, &QTimer::timeout, this, [this] {
            m_isLate = true;
            m_download.cancelDownload();
        });
        view->installEventFilter(this);
        fetch();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (m_isShown
            && (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)) {
            show();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void fetch()
    {
        m_redirects.start(m_page);
        m_download.setUserInputHandler(&m_redirects);
        m_download.setMaximumSize(MaxPageSize);
        m_deadline.start(MaxPageTime);
        if (!m_download.download(m_page)) {
            showError(QString());
        }
    }

    void read(const QByteArray &bytes)
    {
        m_deadline.stop();
        QString error;
        if (m_redirects.hasRefused()) {
            showError(QString());
        } else if (m_notes.read(bytes, m_download.contentType(), m_download.url(), &error)) {
            show();
        } else {
            showError(error);
        }
    }

    void showError(const QString &reason)
    {
        const QString told = m_isLate ? tr("It did not arrive within %1 s").arg(MaxPageTime / 1000)
                                      : MRVServerText::shortened(reason);
        m_deadline.stop();
        m_notes.setMessage((tr("The release notes cannot be shown.") + u'\n' + told).trimmed());
        show();
    }

    void show()
    {
        m_isShown = true;
        const QPalette palette = m_view->palette();
        const MRVNotesLook look{m_download.url(),
                                m_factory ? MRVNotesPictures::Addresses : MRVNotesPictures::Text,
                                pixelFont(m_view), linkColor(palette)};
        auto *const notes = new QTextDocument(m_view);
        m_notes.write(look, notes);
        if (notes->metaInformation(QTextDocument::DocumentTitle).isEmpty()) {
            notes->setMetaInformation(QTextDocument::DocumentTitle, tr("Release notes"));
        }
        if (m_factory) {
            m_factory->show(m_view, htmlOf(*notes, palette));
            delete notes;
        } else {
            auto *const browser = static_cast<QTextBrowser *>(m_view);
            const std::unique_ptr<QTextDocument> old(m_shown);
            m_shown = notes;
            browser->setDocument(notes);
        }
    }

    const QUrl m_page;
    QWidget *const m_view;
    MRVWebViewFactory *const m_factory; // null for a TextPage
    MRVReleaseNotes m_notes;
    QTextDocument *m_shown = nullptr; // in a TextPage
    MRVRedirectPolicy m_redirects;
    MRVDownloadUrl m_download;
    QTimer m_deadline;
    bool m_isLate = false;
    bool m_isShown = false;
};

} // namespace

QWidget *mrvCreateReleaseNotesView(const QUrl &page, QWidget *parent)
{
    const QUrl shown = isWebPage(page) ? page : QUrl();
    MRVWebViewFactory *factory = viewFactory();
    QWidget *view = factory ? factory->create(shown, parent) : nullptr;
    if (!view) {
        factory = nullptr;
        view = new TextPage(parent);
    }
    if (!shown.isEmpty()) {
        new NotesFetcher(shown, view, factory);
    }
    return view;
}
