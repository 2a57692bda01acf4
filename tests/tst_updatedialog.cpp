#include "datarows.h"
#include "support.h"
#include "web.h"

#include "download/mrvdownloaduserinput.h"
#include "download/mrvmessage.h"
#include "download/mrvservertext.h"
#include "update/mrvcheckforupdatesdialog.h"
#include "update/mrvdownloadpace_p.h"

#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>

/// The dialog of an update check, and the boxes that ask about downloads.
class TestUpdateDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QCoreApplication::setApplicationName("Morvane");
        qputenv("MRV_PLUGIN_PATH", "/nowhere");
    }

    void dialog()
    {
        const Web web;
        MRVCheckForUpdatesDialog dialog("http://www.example/");
        auto *bar = dialog.findChild<QProgressBar *>("progressBar");
        auto *status = dialog.findChild<QLabel *>("statusLabel");
        auto *download = dialog.findChild<QPushButton *>("downloadButton");
        QVERIFY(dialog.findChild<QWidget *>("webView"));
        QVERIFY(!dialog.findChild<QLabel *>("appLogo")->pixmap(Qt::ReturnByValue).isNull());
        dialog.show();
        dialog.versions("2.9", "%1");
        QVERIFY(status->text().startsWith(
            "You are currently running Morvane 2.9. Version %1 is available.\n\nClick"));
        dialog.updateDownloadProgress(30, -1);
        QCOMPARE(bar->maximum(), 0);
        dialog.updateDownloadProgress(qint64(3) << 30, qint64(6) << 30);
        QCOMPARE(double(bar->value()) / bar->maximum(), 0.5);
        QSignalSpy wanted(&dialog, &MRVCheckForUpdatesDialog::downloadRequested);
        QTest::keyClick(&dialog, Qt::Key_Return);
        QCOMPARE(wanted.count(), 1);
        QCOMPARE(download->text(), QString("Downloading Update"));
        QVERIFY(!download->isEnabled());
        QSignalSpy rejected(&dialog, &QDialog::rejected);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) { // pressed once too often
            QTest::keyClick(dialog.focusWidget() ? dialog.focusWidget() : &dialog, key);
        }
        QCOMPARE(rejected.count(), 0);
        dialog.findChild<QWidget *>("webView")->setFocus();
        dialog.enableInstallButton();
        QVERIFY(!dialog.findChild<QWidget *>("installButton")->hasFocus()); // somebody reads
        dialog.errorMsg("<b>lost</b>");
        QCOMPARE(status->text(), QString("<b>lost</b>"));
        dialog.updateDownloadProgress(1, 2);
        QVERIFY(bar->isHidden());
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QCOMPARE(rejected.count(), 1);
        QCoreApplication::setApplicationName("Fernwick");
        QVERIFY(MRVCheckForUpdatesDialog::logoImage()
                != dialog.findChild<QLabel *>("appLogo")->pixmap(Qt::ReturnByValue).toImage());
        QCOMPARE(MRVCheckForUpdatesDialog::logoImage().width(), 48);
    }

    void layout_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<QString>("text");
        const QString text =
            QString("Klicken Sie auf die Schaltfläche. ").repeated(15) + "\n\nEnde.";
        const QString address = "http://downloads.example/" + QString("x").repeated(400);
        QTest::newRow("text") << 10 << text;
        QTest::newRow("large-text") << 13 << text;
        QTest::newRow("address") << 10 << address;
        QTest::newRow("large-address") << 12 << address;
    }
    // Nothing is cut off, however small the dialog is made, and it fits on the screen.
    void layout()
    {
        QFETCH(int, size);
        const Web web;
        const QFont font = QApplication::font();
        const auto reset = qScopeGuard([&] { QApplication::setFont(font); });
        QApplication::setFont(QFont(font.family(), size));
        MRVCheckForUpdatesDialog dialog("http://www.example/");
        dialog.statusMsg(cell("text"));
        dialog.show();
        const auto *status = dialog.findChild<QLabel *>("statusLabel");
        const auto isWhole = [&] {
            return status->height() >= status->heightForWidth(status->width());
        };
        QTRY_VERIFY(isWhole());
        dialog.resize(1, 1);
        QTRY_VERIFY(isWhole());
        QVERIFY(dialog.findChild<QWidget *>("webView")->height()
                >= 4 * status->fontMetrics().height());
        const QSize screen = dialog.screen()->availableSize();
        QCOMPARE(dialog.size().boundedTo(screen), dialog.size());
    }

    // Only what a user who waits needs; the notes are asked for when there is something to tell.
    void checking()
    {
        Web web({{"/notes", "@notes.html"}});
        MRVCheckForUpdatesDialog dialog("http://www.example/notes");
        dialog.showChecking();
        dialog.show();
        dialog.updateDownloadProgress(5, 10); // of the feed
        QCOMPARE(shownParts(dialog), QString("statusLabel progressBar cancelButton"));
        QCOMPARE(dialog.findChild<QLabel *>("statusLabel")->text(), "Checking for updates...");
        QCOMPARE(dialog.findChild<QProgressBar *>("progressBar")->maximum(), 0);
        QTest::qWait(20);
        QCOMPARE(web.asked, QStringList());
        const int height = dialog.height();
        dialog.versions("2.9", "3.0");
        QTRY_COMPARE(shownParts(dialog),
                     QString("statusLabel webView progressBar downloadButton cancelButton"));
        QVERIFY(dialog.height() > 2 * height);
        QTRY_COMPARE(web.asked, QStringList{"/notes"});
        QVERIFY(dialog.findChild<QPushButton *>("downloadButton")->hasFocus());
    }

    // As often as the user wants.
    void triesAgain()
    {
        MRVCheckForUpdatesDialog dialog{QString()};
        dialog.statusMsg("ready");
        dialog.show();
        QSignalSpy wanted(&dialog, &MRVCheckForUpdatesDialog::downloadRequested);
        auto *status = dialog.findChild<QLabel *>("statusLabel");
        auto *download = dialog.findChild<QPushButton *>("downloadButton");
        auto *label = dialog.findChild<QLabel *>("progressLabel");
        for (int i = 1; i < 3; ++i) {
            QTest::keyClick(&dialog, Qt::Key_Return);
            QCOMPARE(wanted.count(), i);
            QCOMPARE(shownParts(dialog),
                     QString("statusLabel webView progressBar progressLabel "
                             "downloadButton cancelButton"));
            QCOMPARE(status->text(), QString("ready"));
            QVERIFY(!download->isEnabled());
            dialog.updateDownloadProgress(3000000000, 6000000000);
            QCOMPARE(label->text(), QString("3.0 GB of 6.0 GB"));
            dialog.updateDownloadProgress(3000000001, 6000000000);
            QCOMPARE(label->text(), QString("3.0 GB of 6.0 GB"));
            dialog.errorMsg("lost");
            QCOMPARE(shownParts(dialog),
                     QString("statusLabel webView downloadButton cancelButton"));
            QVERIFY(download->isEnabled());
            QCOMPARE(download->text(), QString("Try Again"));
        }
    }

    void pace_data() { addRows("updatepace.tsv"); }
    void pace()
    {
        MRVDownloadPace pace;
        for (const QString &report : cell("reports").split(';', Qt::SkipEmptyParts)) {
            const QStringList numbers = report.split(QRegularExpression("[ /]"));
            pace.setBytes(numbers.value(1).toLongLong(), numbers.value(2).toLongLong());
            pace.tick(numbers.value(0).toLongLong());
        }
        QTEST(pace.text(QLocale(cell("locale"))), "text");
    }

    void serverTexts_data() { addRows("servertexts.tsv"); }
    void serverTexts()
    {
        QFETCH(QString, text);
        const bool isAddress = cell("case").startsWith("address");
        QTEST(isAddress ? MRVServerText::address(QUrl(text)) : MRVServerText::shortened(text),
              "shown");
    }

    void boxes_data()
    {
        QTest::addColumn<QString>("question");
        QTest::addColumn<QString>("part");
        const QString long300 = QString("x").repeated(300);
        const QString million = QString("reason ").repeated(150000);
        QTest::newRow("redirect") << "http://host.example/" + long300 << "http://host.example/";
        QTest::newRow("password") << "password http://host.example/" + long300
                                  << "http://host.example/";
        QTest::newRow("realm") << "realm " + million << "http://host.example/";
        QTest::newRow("message") << "message " + million << "reason";
        QTest::newRow("word") << "message " + QString("x").repeated(1000000) << "xxx";
    }
    // Fits on a small screen, at once, and Return gives nothing away.
    void boxes()
    {
        QFETCH(QString, question);
        const QString rest = question.section(' ', 1);
        bool isAsked = false;
        QElapsedTimer clock;
        clock.start();
        QTimer::singleShot(0, this, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            const auto close = qScopeGuard([dialog] { dialog->reject(); });
            QCoreApplication::processEvents();
            QVERIFY2(dialog->width() < 700, qPrintable(QString::number(dialog->width())));
            QVERIFY2(dialog->height() < 500, qPrintable(QString::number(dialog->height())));
            auto *box = qobject_cast<QMessageBox *>(dialog);
            const QString text =
                box ? box->text() : dialog->findChild<QLabel *>("siteDescription")->text();
            QVERIFY2(text.contains(cell("part")), qPrintable(text));
            QVERIFY(!question.startsWith("http")
                    || box->defaultButton() == box->button(QMessageBox::No));
            isAsked = true;
        });
        MRVDownloadUserInput input;
        if (question.startsWith("message")) {
            mrvShowMessage(nullptr, QMessageBox::Warning, "title", rest);
        } else if (question.startsWith("password")) {
            input.authenticate("realm", QUrl(rest), nullptr, nullptr);
        } else if (question.startsWith("realm")) {
            input.authenticate(rest, QUrl("http://host.example/"), nullptr, nullptr);
        } else {
            input.redirectTo(QUrl(question));
        }
        QVERIFY(isAsked);
        QVERIFY(clock.elapsed() < 2000 * SanitizerTime);
    }

    void longErrors()
    {
        MRVCheckForUpdatesDialog dialog{QString()};
        dialog.show();
        QElapsedTimer clock;
        clock.start();
        const QString reason = QString("r\u202e ").repeated(400000);
        dialog.errorMsg("Error - server replied: " + reason);
        QCoreApplication::processEvents();
        const QString shown = dialog.findChild<QLabel *>("statusLabel")->text();
        QVERIFY(shown.startsWith("Error - server replied: r r"));
        QCOMPARE(shown.size(), 200);
        dialog.statusMsg(reason);
        dialog.versions("2.9", reason);
        QCoreApplication::processEvents();
        QVERIFY(dialog.findChild<QLabel *>("statusLabel")->text().size() < 1000);
        QVERIFY(clock.elapsed() < 2000 * SanitizerTime);
    }

private:
    static QString shownParts(const QWidget &dialog)
    {
        QStringList parts;
        for (const char *name : {"statusLabel", "webView", "progressBar", "progressLabel",
                                 "downloadButton", "installButton", "cancelButton"}) {
            if (dialog.findChild<QWidget *>(name)->isVisible()) {
                parts << name;
            }
        }
        return parts.join(' ');
    }
};

QTEST_MAIN(TestUpdateDialog)
#include "tst_updatedialog.moc"
