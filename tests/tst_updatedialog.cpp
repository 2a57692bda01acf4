#include "datarows.h"
#include "support.h"
#include "web.h"

#include "update/mrvcheckforupdatesdialog.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>

/// The dialog of an update check, and the boxes that ask about downloads.
class TestUpdateDialog : public QObject {
  Q_OBJECT

private Q_SLOTS:
  void init() {
    QCoreApplication::setApplicationName("Morvane");
    qputenv("MRV_PLUGIN_PATH", "/nowhere");
  }

  void dialog() {
    const Web web;
    MRVCheckForUpdatesDialog dialog("http://www.example/");
    auto *bar = dialog.findChild<QProgressBar *>("progressBar");
    auto *status = dialog.findChild<QLabel *>("statusLabel");
    auto *download = dialog.findChild<QPushButton *>("downloadButton");
    QVERIFY(dialog.findChild<QWidget *>("webView"));
    QVERIFY(!dialog.findChild<QLabel *>("appLogo")
                 ->pixmap(Qt::ReturnByValue)
                 .isNull());
    dialog.show();
    dialog.versions("2.9", "%1");
    QVERIFY(status->text().startsWith("You are currently running Morvane 2.9. "
                                      "Version %1 is available.\n\nClick"));
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
    for (const Qt::Key key :
         {Qt::Key_Return, Qt::Key_Space}) { // pressed once too often
      QTest::keyClick(dialog.focusWidget() ? dialog.focusWidget() : &dialog,
                      key);
    }
    QCOMPARE(rejected.count(), 0);
    dialog.findChild<QWidget *>("webView")->setFocus();
    dialog.enableInstallButton();
    QVERIFY(!dialog.findChild<QWidget *>("installButton")
                 ->hasFocus()); // somebody reads
    dialog.errorMsg("<b>lost</b>");
    QCOMPARE(status->text(), QString("<b>lost</b>"));
    dialog.updateDownloadProgress(1, 2);
    QVERIFY(bar->isHidden());
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(rejected.count(), 1);
    QCoreApplication::setApplicationName("Fernwick");
    QVERIFY(MRVCheckForUpdatesDialog::logoImage() !=
            dialog.findChild<QLabel *>("appLogo")
                ->pixmap(Qt::ReturnByValue)
                .toImage());
    QCOMPARE(MRVCheckForUpdatesDialog::logoImage().width(), 48);
  }

  void layout_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("text");
    const QString text =
        QString("Klicken Sie auf die Schaltfläche. ").repeated(15) +
        "\n\nEnde.";
    const QString address =
        "http://downloads.example/" + QString("x").repeated(400);
    QTest::newRow("text") << 10 << text;
    QTest::newRow("large-text") << 13 << text;
    QTest::newRow("address") << 10 << address;
    QTest::newRow("large-address") << 12 << address;
  }
  // Nothing is cut off, however small the dialog is made, and it fits on the
  // screen.
  void layout() {
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
    QVERIFY(dialog.findChild<QWidget *>("webView")->height() >=
            4 * status->fontMetrics().height());
    const QSize screen = dialog.screen()->availableSize();
    QCOMPARE(dialog.size().boundedTo(screen), dialog.size());
  }
};

QTEST_MAIN(TestUpdateDialog)
#include "tst_updatedialog.moc"
