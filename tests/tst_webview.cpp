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
        Web web;
        web.answers = {{"/notes.html", "@notes.html"}};
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

    void access_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("plain") << "http://www.example/"
                               << "http://www.example/x" << true;
        QTest::newRow("down") << "https://www.example/"
                              << "http://www.example/x" << false;
        QTest::newRow("data") << "https://www.example/"
                              << "data:,x" << true;
        QTest::newRow("file") << "http://www.example/"
                              << "file:///etc/hostname" << false;
        QTest::newRow("ftp") << "http://www.example/"
                             << "ftp://www.example/x" << false;
        QTest::newRow("resource") << "http://www.example/"
                                  << "qrc:/FileIcons/Morvane48" << false;
    }
    // Whatever leads there: the page, what it shows, or a redirect.
    void access()
    {
        QFETCH(QString, page);
        QFETCH(QString, wanted);
        QFETCH(bool, allowed);
        qputenv("MRV_PLUGIN_PATH", MRV_BINARY_DIR "/lib/mrvbase/plugins");
        Web web;
        web.answers = {{"/x", "@notes.html"}};
        MRVCheckForUpdatesDialog dialog(page);
        dialog.show();
        auto *manager =
            dialog.findChild<QWidget *>("webView")->findChild<QNetworkAccessManager *>();
        QVERIFY(manager);
        const std::unique_ptr<QNetworkReply> reply(manager->get(QNetworkRequest(QUrl(wanted))));
        QTRY_VERIFY(reply->isFinished());
        QCOMPARE(reply->error() == QNetworkReply::NoError, allowed);
        QCOMPARE(web.asked.contains("/x"), allowed && wanted.startsWith("http"));
    }

    void standIn_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("shown");
        const QByteArray ok = "HTTP/1.1 200 OK\r\n\r\n";
        const QByteArray deep = QByteArray("<i>").repeated(100000);
        const QString failed = "The release notes cannot be shown.\n";
        QTest::newRow("utf-8") << ok + "<meta charset=iso-8859-1>\xc3\xa9"
                               << "é";
        QTest::newRow("named-by-page") << ok + "<meta charset=iso-8859-1>\xe9"
                                       << "é";
        QTest::newRow("named-by-server")
            << QByteArray("HTTP/1.1 200 OK\r\nContent-Type: text/html; charset=cp1250\r\n\r\n\x9a")
            << "š";
        QTest::newRow("nested-deeply") << ok + deep << failed.trimmed();
        QTest::newRow("one-word") << ok + QByteArray(1000000, 'x') << QString(1000000, 'x');
        QTest::newRow("refused") << QByteArray("HTTP/1.1 302 F\r\nLocation: file:///\r\n\r\n")
                                 << failed
                + "It redirects to file:///, which is not an http or https address";
        QTest::newRow("too-large")
            << ok + QByteArray(2000000, 'x') << failed + "It is larger than 1048576 bytes";
    }
    void standIn()
    {
        QFETCH(QByteArray, answer);
        qputenv("MRV_PLUGIN_PATH", "/nowhere");
        Web web;
        web.raw = answer;
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
