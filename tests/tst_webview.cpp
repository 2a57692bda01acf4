#include "datarows.h"
#include "rawserver.h"
#include "web.h"

#include "core/mtranslator.h"
#include "update/mrvcheckforupdatesdialog.h"

#include <QDesktopServices>
#include <QNetworkReply>
#include <QScrollBar>
#include <QTextBrowser>

#include <memory>

/// The release notes, in the plug-in's view and in the one that stands in for it.
class TestWebView : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    // In place of the desktop's browser.
    void open(const QUrl &url) { m_opened << url.toString(); }

private Q_SLOTS:
    void init()
    {
        QCoreApplication::setApplicationName("Morvane");
        m_opened.clear();
    }

    void webView_data()
    {
        QTest::addColumn<QString>("plugins");
        QTest::newRow("QWebView") << MRV_BINARY_DIR "/lib/mrvbase/plugins";
        QTest::newRow("QTextBrowser") << "/nowhere";
    }
    // Shows the page, runs none of its scripts, stays on it, and opens its links elsewhere.
    void webView()
    {
        QFETCH(QString, plugins);
        qputenv("MRV_PLUGIN_PATH", plugins.toUtf8());
        Web web({{"/notes.html", "@notes.html"}});
        QDesktopServices::setUrlHandler("http", this, "open");
        MRVCheckForUpdatesDialog dialog("http://www.example/notes.html");
        QCOMPARE(web.asked, QStringList());
        dialog.versions("2.9.0.0", "3.0.0.0");
        dialog.show();
        auto *view = dialog.findChild<QWidget *>("webView");
        QVERIFY(view->inherits(QTest::currentDataTag()));
        QTRY_COMPARE(titleOf(view), QString("Release notes"));
        QTest::qWait(50); // the page's attempt to go elsewhere
        QCOMPARE(titleOf(view), QString("Release notes"));
        QVERIFY(dialog.grab().save(
            QString(MRV_BINARY_DIR "/update-dialog-%1.png").arg(QTest::currentDataTag())));
        view->setFocus();
        QTest::keyClick(view, Qt::Key_Tab);
        QTest::keyClick(view, Qt::Key_Return);
        QTRY_COMPARE(m_opened, QStringList{"http://www.example/more"});
        QCOMPARE(web.asked, QStringList{"/notes.html"});
    }

    void access_data() { addRows("webaccess.tsv"); }
    // Whatever leads there: the page, what it shows, or a redirect.
    void access()
    {
        QFETCH(QString, wanted);
        const bool isAllowed = cell("allowed") == "yes";
        qputenv("MRV_PLUGIN_PATH", MRV_BINARY_DIR "/lib/mrvbase/plugins");
        Web web({{"/x", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"}});
        MRVCheckForUpdatesDialog dialog(cell("page"));
        dialog.show();
        auto *manager =
            dialog.findChild<QWidget *>("webView")->findChild<QNetworkAccessManager *>();
        QVERIFY(manager);
        const std::unique_ptr<QNetworkReply> reply(manager->get(QNetworkRequest(QUrl(wanted))));
        QTRY_VERIFY(reply->isFinished());
        QCOMPARE(reply->error() == QNetworkReply::NoError, isAllowed);
        QCOMPARE(web.asked.contains("/x"), isAllowed && wanted.startsWith("http"));
    }

    void standIn_data() { addRows("releasenotes.tsv"); }
    void standIn()
    {
        qputenv("MRV_PLUGIN_PATH", "/nowhere");
        Web web;
        web.raw = cell("answer").toLatin1();
        MRVCheckForUpdatesDialog dialog("http://www.example/");
        dialog.show();
        QTRY_VERIFY(!dialog.findChild<QTextBrowser *>("webView")->toPlainText().isEmpty());
        QTEST(dialog.findChild<QTextBrowser *>("webView")->toPlainText(), "shown");
    }

    void hostile_data() { addRows("hostilenotes.tsv"); }
    // The window answers, also while it is made wider. Times are those of a slow machine.
    void hostile()
    {
        Web web;
        web.raw = "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n\r\n" + cell("page").toLatin1();
        for (const char *plugins : {"/nowhere", MRV_BINARY_DIR "/lib/mrvbase/plugins"}) {
            qputenv("MRV_PLUGIN_PATH", plugins);
            MRVCheckForUpdatesDialog dialog("http://www.example/");
            dialog.show();
            qint64 longest = 0;
            const auto passEvents = [&longest] {
                QElapsedTimer clock;
                clock.start();
                QCoreApplication::processEvents();
                longest = qMax(longest, clock.elapsed());
            };
            auto *view = dialog.findChild<QWidget *>("webView");
            QElapsedTimer waited;
            for (waited.start(); titleOf(view).isEmpty() && waited.elapsed() < 10000;) {
                passEvents();
            }
            QVERIFY(!titleOf(view).isEmpty());
            const auto *browser = qobject_cast<QTextBrowser *>(view);
            QVERIFY(!browser || browser->toPlainText().trimmed().startsWith(cell("shown")));
            dialog.resize(dialog.width() + 100, dialog.height());
            for (int i = 0; i < 20; ++i) {
                passEvents();
            }
            QVERIFY2(longest < 2000 * SanitizerTime, qPrintable(QString::number(longest)));
        }
    }

    // Whatever colours the page names.
    void darkPalette()
    {
        const QPalette before = QApplication::palette();
        const auto reset = qScopeGuard([&] { QApplication::setPalette(before); });
        Web web;
        web.raw = "HTTP/1.1 200 OK\r\n\r\n<body bgcolor=white text=black style='color:#000'>"
                  "<p style='background:#fff'>MMMM <a href='http://www.example/a'>MMMM</a>";
        for (const char *plugins : {"/nowhere", MRV_BINARY_DIR "/lib/mrvbase/plugins"}) {
            qputenv("MRV_PLUGIN_PATH", plugins);
            QApplication::setPalette(before);
            MRVCheckForUpdatesDialog dialog("http://www.example/");
            dialog.show();
            auto *view = dialog.findChild<QWidget *>("webView");
            QTRY_VERIFY(!titleOf(view).isEmpty());
            QPalette dark = before;
            dark.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
            dark.setColor(QPalette::Text, Qt::white);
            QApplication::setPalette(dark);
            const auto shades = [view] {
                const QImage image = view->grab(QRect(6, 6, 300, 60)).toImage();
                QSet<int> found;
                for (int i = 0; i < image.width() * image.height(); ++i) {
                    const QColor c = image.pixelColor(i % image.width(), i / image.width());
                    found << (c.lightness() < 0x28  ? 0
                                  : c.blue() > 0xe0 ? 1 + (c.red() < 0xc0)
                                                    : 0);
                }
                return found;
            };
            QTRY_COMPARE(shades(), QSet<int>({0, 1, 2})); // the background, the text and the link
        }
    }

    // Pages ask for no more than what they may have, and only for pictures.
    void pictures()
    {
        qputenv("MRV_PLUGIN_PATH", MRV_BINARY_DIR "/lib/mrvbase/plugins");
        Web web({{"/text", "no picture"},
                 {"/large", "big 4000000"},
                 {"/drawing", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"}});
        MRVCheckForUpdatesDialog dialog("http://www.example/");
        dialog.show();
        auto *manager =
            dialog.findChild<QWidget *>("webView")->findChild<QNetworkAccessManager *>();
        const auto errorOf = [manager](const char *url) {
            const std::unique_ptr<QNetworkReply> reply(manager->get(QNetworkRequest(QUrl(url))));
            const bool isOver = QTest::qWaitFor([&] { return reply->isFinished(); });
            return isOver ? reply->error() : QNetworkReply::TimeoutError;
        };
        QCOMPARE(errorOf("http://www.example/drawing"), QNetworkReply::NoError);
        QCOMPARE(errorOf("http://www.example/text"), QNetworkReply::UnknownContentError);
        QCOMPARE(errorOf("http://www.example/large"), QNetworkReply::OperationCanceledError);
        const int asked = web.asked.size();
        QVERIFY(errorOf("http://www.example/drawing") != QNetworkReply::NoError);
        QCOMPARE(web.asked.size(), asked);
    }

    // That of the interface, for the page and for its pictures.
    void language()
    {
        RawServer server;
        const QString page = server
                                 .answer("/",
                                         "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\n\r\n"
                                         "<img src='p.png'><link rel=stylesheet href=s.css>")
                                 .toString();
        QVERIFY(MTranslator::install("fr"));
        qputenv("MRV_PLUGIN_PATH", MRV_BINARY_DIR "/lib/mrvbase/plugins");
        MRVCheckForUpdatesDialog dialog(page);
        dialog.show();
        QTRY_COMPARE(server.requests().size(), 2);
        QVERIFY(server.requests().at(1).startsWith("GET /p.png "));
        for (const QByteArray &request : server.requests()) {
            QVERIFY2(request.contains("Accept-Language: fr, en;q=0.5\r\n"), request);
        }
        QVERIFY(MTranslator::install("en"));
    }

    // Links to places of the page stay in it.
    void places()
    {
        Web web;
        web.raw = "HTTP/1.1 200 OK\r\n\r\n<title>Notes</title><a href='#end'>go</a>"
            + QByteArray("<p>text").repeated(200) + "<p id=end>END";
        QDesktopServices::setUrlHandler("http", this, "open");
        for (const char *plugins : {"/nowhere", MRV_BINARY_DIR "/lib/mrvbase/plugins"}) {
            qputenv("MRV_PLUGIN_PATH", plugins);
            MRVCheckForUpdatesDialog dialog("http://www.example/");
            dialog.show();
            auto *view = dialog.findChild<QWidget *>("webView");
            QTRY_COMPARE(titleOf(view), QString("Release notes"));
            view->setFocus();
            QTest::keyClick(view, Qt::Key_Tab);
            QTest::keyClick(view, Qt::Key_Return);
            const auto *browser = qobject_cast<QTextBrowser *>(view);
            QTRY_VERIFY(browser ? browser->verticalScrollBar()->value() > 1000
                                : view->property("url").toUrl().fragment() == "end");
            QCOMPARE(titleOf(view), QString("Release notes"));
        }
        QCOMPARE(m_opened, QStringList());
    }

    void markdownByName()
    {
        qputenv("MRV_PLUGIN_PATH", "/nowhere");
        Web web({{"/notes.md", "# *New*"}});
        MRVCheckForUpdatesDialog dialog("http://www.example/notes.md");
        dialog.show();
        QTRY_COMPARE(dialog.findChild<QTextBrowser *>("webView")->toPlainText(), QString("New"));
    }

private:
    static QString titleOf(QWidget *view)
    {
        auto *browser = qobject_cast<QTextBrowser *>(view);
        return browser ? browser->documentTitle() : view->property("title").toString();
    }

    QStringList m_opened;
};

QTEST_MAIN(TestWebView)
#include "tst_webview.moc"
