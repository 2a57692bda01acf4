#include "datarows.h"
#include "web.h"

#include "update/mrvcheckforupdatesdialog.h"

#include <QDesktopServices>
#include <QNetworkReply>
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
        const auto title = [view] {
            auto *browser = qobject_cast<QTextBrowser *>(view);
            return browser ? browser->documentTitle() : view->property("title").toString();
        };
        QTRY_COMPARE(title(), QString("Notes"));
        QTest::qWait(50); // the page's attempt to go elsewhere
        QCOMPARE(title(), QString("Notes"));
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
        Web web({{"/x", "@notes.html"}});
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

private:
    QStringList m_opened;
};

QTEST_MAIN(TestWebView)
#include "tst_webview.moc"
