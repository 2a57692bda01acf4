#include "datarows.h"
#include "signer.h"
#include "support.h"
#include "web.h"

#include "network/mrvnetwork.h"
#include "update/mrvcheckforupdatesdialog.h"
#include "update/mrvupdatedownloader.h"
#include "update/mrvupdatemanager.h"
#include "update/mrvupdatemodel.h"
#include "version/mversion.h"

#include <QAction>
#include <QDesktopServices>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>

#include <functional>
#include <memory>

#include <sys/stat.h>
#include <unistd.h>

namespace {

// All that a model tells, in order, errors with the numbers of their kinds.
class Told : public QStringList
{
public:
    explicit Told(const MRVUpdateModel &model)
    {
        using M = MRVUpdateModel;
        QObject::connect(&model, &M::updateAvailable,
                         [this](bool yes) { append(QString("available %1").arg(yes)); });
        QObject::connect(&model, &M::versions, [this](const QString &a, const QString &b) {
            append("versions " + a + ' ' + b);
        });
        QObject::connect(&model, &M::updateError, [this, &model](const QString &text) {
            append(QString("error %1 ").arg(int(model.lastError().kind)) + text);
        });
        QObject::connect(&model, &M::readyToInstall, [this] { append("ready"); });
    }
};

MRVCheckForUpdatesDialog *shownDialog()
{
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && widget->objectName() == "MRVCheckForUpdatesDialog") {
            return qobject_cast<MRVCheckForUpdatesDialog *>(widget);
        }
    }
    return nullptr;
}

// Closes each message box as soon as it opens, and keeps what it said.
class Boxes : public QTimer
{
public:
    explicit Boxes(QStringList *said)
    {
        callOnTimeout([said] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                QString text = box->windowTitle() + ": " + box->text();
                if (!box->informativeText().isEmpty()) {
                    text += '\n' + box->informativeText();
                }
                // Servers have a say in what most of them tell.
                const bool isPlain = box->textFormat() == Qt::PlainText;
                said->append(isPlain ? text : "markup " + text);
                const QWidget *dialog = shownDialog();
                if (dialog && !dialog->findChild<QPushButton *>("downloadButton")->isVisible()) {
                    said->append("still checking");
                }
                box->accept();
            }
        });
        start(5);
    }
};

bool isOnline = true;

// What may happen while windows close, which may ask whether to save.
class SlowWindow : public QWidget
{
public:
    explicit SlowWindow(std::function<void(QCloseEvent *)> happens)
        : m_happens(std::move(happens))
    {
        show();
    }

protected:
    void closeEvent(QCloseEvent *event) override { m_happens(event); }

private:
    std::function<void(QCloseEvent *)> m_happens;
};

QPushButton *enabledButton(const char *name)
{
    auto *button = shownDialog() ? shownDialog()->findChild<QPushButton *>(name) : nullptr;
    return button && button->isVisible() && button->isEnabled() ? button : nullptr;
}

// How a check may come to its end at any time.
void finish(const QString &how)
{
    if (how == "release") {
        MRVUpdateManager::release();
    } else if (how == "destroy") {
        delete shownDialog();
    } else if (how == "close") {
        shownDialog()->close();
    } else {
        QTest::keyClick(shownDialog(), Qt::Key_Escape);
    }
}

// With a signature ("yes", or what the server answers for the installer's), all is signed.
QHash<QString, QString> answersOfRow()
{
    QHash<QString, QString> answers{{"/update.xml", cell("feed")},
                                    {"/morvane.run", cell("installer")}};
    const QString signature = cell("signature");
    if (!signature.isEmpty()) {
        const Signer maker('a');
        const QByteArray comment = "timestamp:1\tfile:";
        const auto sign = [&](const QByteArray &bytes, const QByteArray &file) {
            return QString::fromLatin1(maker.sign(bytes, comment + file));
        };
        answers["/update.xml.minisig"] = sign(feedOf(cell("feed")), "update.xml");
        answers["/morvane.run.minisig"] = signature != "yes"
            ? signature
            : sign(bytesOf(data + "morvane.run"), "morvane.run\tversion:3.0.0.0");
        MRVUpdateManager::instance()->setPublicKey(maker.publicKey());
    }
    return answers;
}

bool isOver()
{
    return !qApp->findChild<MRVUpdateDownloader *>();
}

} // namespace

// In place of the platform's, as an application may bring its own.
bool MrvNetwork::isNetworkConnected()
{
    return isOnline;
}

class TestUpdate : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    // In place of the desktop.
    void open(const QUrl &url)
    {
        const QString path = m_folder->filePath("morvane.run");
        QCOMPARE(url.toLocalFile(), path);
        QVERIFY(!QFileInfo(path).isSymLink());
        QCOMPARE(bytesOf(path), bytesOf(data + "morvane.run"));
        m_heard->append("opened " + url.fileName());
    }

    void openFolder(const QUrl &url) { m_opened = url; }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>("/tmp/tst_update-XXXXXX");
        QVERIFY(m_folder->isValid());
        qputenv("TMPDIR", QFile::encodeName(m_folder->path()));
        QCoreApplication::setApplicationName("Morvane");
        QCoreApplication::setOrganizationName("Morvane");
        QCoreApplication::setApplicationVersion("2.9.0.0");
    }

    void betas_data() { addRows("update-versions.tsv"); }
    void betas()
    {
        QFETCH(QString, version);
        QCOMPARE(MVersion::isBetaVersion(version), cell("beta") == "yes");
        QCoreApplication::setApplicationVersion(version);
        QCOMPARE(MVersion::versionLabel().startsWith("Version: " + version + " beta ("),
                 MVersion::isBetaVersion());
    }

    void versionTexts()
    {
        QCoreApplication::setApplicationVersion("2.9");
        const QString bits = MVersion::appPlatform() == "x86_64" ? "64" : "32";
        const QRegularExpression label("^Version: 2\\.9 \\(" + bits
                                       + " bit\\) - \\d\\d \\w+ 20\\d\\d$");
        QVERIFY2(label.match(MVersion::versionLabel()).hasMatch(),
                 qPrintable(MVersion::versionLabel()));
        const QStringList blocks = MVersion::versionInfo("more").split("\n\n");
        QCOMPARE(blocks.size(), 3);
        QCOMPARE(blocks[0],
                 "Application: Morvane\nVersion: 2.9\nBuild: Release\nExecutable: "
                     + QCoreApplication::arguments().constFirst());
        const QString built(R"(^Compiler: GCC \d+\.\d+\.\d+\nQt-Compiled: %1\n)"
                            R"(Qt-Runtime: %2\nCreated: )");
        const QString pattern = built.arg(QT_VERSION_STR, qVersion());
        QVERIFY2(blocks[1].contains(QRegularExpression(pattern)), qPrintable(blocks[1]));
        QCOMPARE(blocks[2], QString("more"));
    }

    void userRights_data()
    {
        QTest::addColumn<QString>("location");
        QTest::addColumn<bool>("rights");
        QTest::addColumn<bool>("elsewhere");
        QTest::newRow("not-recorded") << "" << false << false;
        QTest::newRow("here") << QCoreApplication::applicationDirPath() << false << false;
        QTest::newRow("program") << QCoreApplication::applicationFilePath() << false << false;
        QTest::newRow("above") << QFileInfo(QCoreApplication::applicationDirPath()).path() << false
                               << false;
        QTest::newRow("gone") << "/nowhere" << false << true;
        QTest::newRow("not-ours") << "/usr/share" << true << true;
    }
    void userRights()
    {
        QFETCH(QString, location);
        QFETCH(bool, rights);
        QSettings("Morvane", "Morvane").setValue("Location", location);
        // The superuser may write anywhere.
        const uid_t user = getuid();
        if (rights && user == 0) {
            QCOMPARE(setreuid(65534, 0), 0);
        }
        const auto clean = qScopeGuard([user] {
            QSettings("Morvane", "Morvane").clear();
            if (user == 0 && setreuid(0, 0) != 0) {
                qFatal("no superuser any more");
            }
        });
        bool warnsOfRights = true;
        bool warnsOfPlace = true;
        QString recorded;
        MVersion::checkCurrentUserRights(&warnsOfRights, &warnsOfPlace, &recorded, true);
        QTEST(warnsOfPlace, "elsewhere");
        QVERIFY(location.startsWith(recorded));
        QVERIFY(recorded.isEmpty() == location.isEmpty());
        QCOMPARE(warnsOfRights, rights);
        QSettings("Morvane", "Morvane").setValue("Location", "/nowhere");
        QCOMPARE(MVersion::currentUserNeedsAdminRights(), warnsOfRights); // remembered
    }

    void feeds_data() { addRows("update-feeds.tsv"); }
    void feeds()
    {
        QFETCH(QString, feed);
        QFETCH(QString, told);
        QCoreApplication::setApplicationVersion(cell("running"));
        MRVUpdateModel model;
        const Told heard(model);
        QCOMPARE(model.xmlFilePath(), m_folder->filePath("update.xml"));
        if (!feed.isEmpty()) {
            QVERIFY(writeBytes(model.xmlFilePath(), feedOf(feed)));
        }
        model.readXML();
        QCOMPARE(heard.join(';'), told.replace("@tmp", m_folder->path()));
        QCOMPARE(model.isNewerAvailable(), told.endsWith("available 1"));
        if (model.isNewerAvailable()) {
            QCOMPARE(model.downloadURL(),
                     "http://d/" + QFileInfo(model.downloadFilePath()).fileName());
        }
    }

    // The name with a backslash is looked at first, and only where it exists.
    void feedWithBackslash()
    {
        MRVUpdateModel model;
        const Told heard(model);
        QVERIFY(writeBytes(model.xmlFilePath(), feedOf("1.0.0.0|m|http://d/")));
        const QString other = m_folder->path() + "\\update.xml";
        QVERIFY(writeBytes(other, feedOf("3.0.0.0|m|http://d/")));
        model.readXML();
        QFile::remove(other);
        QCOMPARE(heard.last(), QString("available 1"));
    }

    void installers_data() { addRows("update-installers.tsv"); }
    void installers()
    {
        QFETCH(QString, installer);
        QFETCH(QString, told);
        MRVUpdateModel model;
        QVERIFY(writeBytes(model.xmlFilePath(), feedOf("3.0.0.0|morvane.run|http://d/")));
        model.readXML();
        const Told heard(model);
        if (!installer.isEmpty()) {
            QVERIFY(writeBytes(model.downloadFilePath(),
                               QByteArray(installer.toInt(), 'x') + "404 Not Found"));
        }
        model.readEXE();
        QCOMPARE(heard.join(';'), told.replace("@tmp", m_folder->path()));
        QCOMPARE(model.isInstallerUnchanged(), told == "ready");
        QVERIFY(writeBytes(model.downloadFilePath(), "other"));
        QVERIFY(!model.isInstallerUnchanged());
    }

    void checks_data() { addRows("update-checks.tsv"); }
    void checks()
    {
        QFETCH(QString, plant);
        QFETCH(QString, said);
        Web web(answersOfRow());
        plantIn(plant.replace("@tmp", m_folder->path()));
        QStringList heard;
        const Boxes boxes(&heard);
        auto *manager = MRVUpdateManager::instance();
        if (plant == "silent" || plant == "offline") {
            manager->checkForUpdatesSilent();
        }
        QMenu menu;
        manager->setupMenuActions(&menu);
        QCOMPARE(menu.actions().constFirst()->objectName(), QString("CheckForUpdates"));
        menu.actions().constFirst()->trigger();
        QTRY_VERIFY(isOver() || shownDialog());
        drive(plant, &heard);
        QTRY_VERIFY(isOver() && !shownDialog());
        said.replace("@tmp", m_folder->path()).replace("@app", qApp->applicationFilePath());
        QCOMPARE(heard.join(';'), said);
        QCOMPARE(bytesOf(m_folder->filePath("victim")), QByteArray("precious"));
        QCOMPARE(web.asked.isEmpty(), !isOnline || plant == "Fernwick");
        // What was refused is not left for somebody to open by hand.
        QTRY_COMPARE(QFileInfo::exists(m_folder->filePath("morvane.run")),
                     said.endsWith("opened morvane.run"));
        QVERIFY(!QFile::exists(m_folder->filePath("update.xml")));
    }

    // An application may have a file opened that no check has anything to do with.
    void opensAnother()
    {
        Web web({{"/update.xml", "wait"}});
        plantIn();
        QStringList heard;
        const Boxes boxes(&heard);
        m_heard = &heard;
        QDesktopServices::setUrlHandler("file", this, "open");
        MRVUpdateManager::instance()->checkForUpdates();
        QTRY_VERIFY(web.asked.contains("/update.xml"));
        const QString path = m_folder->filePath("morvane.run");
        QVERIFY(writeBytes(path, bytesOf(data + "morvane.run")));
        MRVUpdateManager::instance()->onInstallUpdateRequested(path);
        QCOMPARE(heard.join(';'), QString("opened morvane.run"));
    }

    // One that the desktop cannot open: its folder may be opened instead.
    void tellsWhereItIs()
    {
        const QString path = m_folder->filePath("morvane.run");
        QVERIFY(writeBytes(path, "x"));
        QString said;
        QTimer::singleShot(0, this, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(box);
            said = box->text();
            QDesktopServices::setUrlHandler("file", this, "openFolder");
            for (QAbstractButton *button : box->buttons()) {
                if (button->text() == "Open Folder") {
                    button->click();
                }
            }
        });
        MRVUpdateManager::instance()->onInstallUpdateRequested(path);
        QCOMPARE(said, "The installer cannot be opened: " + path);
        QCOMPARE(m_opened, QUrl::fromLocalFile(m_folder->path()));
    }

    void putsOff_data()
    {
        QTest::addColumn<int>("features");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("elements");
        const int both = MRVUpdatePolicy::SkipVersions | MRVUpdatePolicy::RemindLater;
        const int critical = both | MRVUpdatePolicy::CriticalUpdates;
        QTest::newRow("skips") << both << "Skip This Version"
                               << "";
        QTest::newRow("later") << both << "Remind Me Later"
                               << "";
        QTest::newRow("critical") << critical << ""
                                  << "<critical>true</critical>";
        QTest::newRow("not-asked-for") << 0 << ""
                                       << "";
    }
    // Then only a check that the user asks for offers it.
    void putsOff()
    {
        QFETCH(QString, button);
        const Web web({{"/update.xml",
                        "<u><version>3.0.0.0</version><linuxfilename>m</linuxfilename>"
                        "<url>http://d/</url>"
                            + cell("elements") + "</u>"}});
        plantIn();
        auto *manager = MRVUpdateManager::instance();
        QFETCH(int, features);
        MRVUpdatePolicy policy;
        policy.features = MRVUpdatePolicy::Features(features);
        manager->setPolicy(policy);
        manager->checkForUpdatesSilent();
        QTRY_VERIFY(shownDialog());
        QPushButton *wanted = nullptr;
        const auto buttons = shownDialog()->findChildren<QPushButton *>();
        for (QPushButton *one : buttons) {
            wanted = one->text() == button ? one : wanted;
        }
        QCOMPARE(buttons.size(), button.isEmpty() ? 3 : 5);
        if (button.isEmpty()) {
            return;
        }
        QVERIFY(wanted && wanted->isVisible());
        QWidget *next = shownDialog()->findChild<QWidget *>("installButton");
        QStringList order; // of the Tab key
        for (int i = 0; i < 3; ++i) {
            next = next->nextInFocusChain();
            order << qobject_cast<QPushButton *>(next)->text();
        }
        QCOMPARE(order, QStringList({"Remind Me Later", "Skip This Version", "Cancel"}));
        wanted->click();
        QTRY_VERIFY(isOver() && !shownDialog());
        MRVUpdateManager::release(); // as by the end of the application
        manager = MRVUpdateManager::instance();
        manager->setPolicy(policy);
        manager->checkForUpdatesSilent();
        QTRY_VERIFY(isOver());
        QVERIFY(!shownDialog());
        QCOMPARE(web.asked.count("/update.xml"), 2);
        manager->checkForUpdates();
        QTRY_VERIFY(enabledButton("downloadButton"));
    }

    void whileRunning_data()
    {
        QTest::addColumn<bool>("on");
        QTest::addColumn<int>("interval");
        QTest::addColumn<int>("days");
        QTest::addColumn<bool>("due");
        QTest::newRow("yesterday") << true << 0 << 1 << true;
        QTest::newRow("today") << true << 0 << 0 << false;
        QTest::newRow("not-yet") << true << 7 << 6 << false;
        QTest::newRow("week") << true << 7 << 7 << true;
        QTest::newRow("off") << false << 0 << 1 << false;
    }
    void whileRunning()
    {
        Web web({{"/update.xml", "2.9.0.0|m|http://d/"}});
        auto *manager = MRVUpdateManager::instance();
        QFETCH(bool, on);
        QFETCH(int, interval);
        QFETCH(int, days);
        QSettings store("Morvane", "Morvane");
        store.setValue(MRVUpdateManager::checkForUpdatesKey(), on);
        store.setValue(MRVUpdateManager::checkForUpdatesIntervalKey(), interval);
        store.setValue(MRVUpdateManager::lastCheckForUpdatesKey(),
                       QDateTime::currentDateTime().addDays(-days));
        store.sync();
        QVERIFY(!manager->findChild<QTimer *>());
        MRVUpdatePolicy policy;
        policy.features = MRVUpdatePolicy::ChecksWhileRunning;
        manager->setPolicy(policy);
        auto *clock = manager->findChild<QTimer *>();
        QVERIFY(clock && clock->isActive() && clock->interval() <= 3600 * 1000);
        QVERIFY(QMetaObject::invokeMethod(clock, "timeout"));
        QTEST(!isOver(), "due");
        QTRY_VERIFY(isOver());
        manager->setPolicy(MRVUpdatePolicy());
        QVERIFY(!manager->findChild<QTimer *>());
    }

    // What asked may be gone before the answer is read.
    void offlineWithoutWindow()
    {
        plantIn("offline");
        const QPointer<QWidget> window = new QWidget;
        window->show();
        window->activateWindow();
        QTRY_VERIFY(window->isActiveWindow());
        QTimer::singleShot(0, this, [&] { delete window; });
        MRVUpdateManager::instance()->checkForUpdates();
        QVERIFY(!window);
        QVERIFY(isOver());
        QVERIFY(!QApplication::activeModalWidget());
    }

    void endsEarly_data() { addRows("update-ends.tsv"); }
    // Nothing is said, left behind or used after its end.
    void endsEarly()
    {
        QFETCH(QString, plant);
        QFETCH(QString, at);
        Web web(answersOfRow());
        plantIn(plant);
        QStringList heard;
        std::unique_ptr<Boxes> boxes;
        bool isEnded = false;
        QTimer ender;
        ender.callOnTimeout([&] {
            const bool isThere = at == "box" ? bool(QApplication::activeModalWidget())
                : at == "ready"              ? bool(enabledButton("installButton"))
                                             : web.asked.contains(at);
            if (!isThere) {
                return;
            }
            ender.stop();
            finish(cell("end"));
            isEnded = true;
            boxes = std::make_unique<Boxes>(&heard);
        });
        ender.start(5);
        // A timer of its own, since a click may open a box and come back only when that is closed.
        QTimer user;
        user.callOnTimeout([&] {
            QPushButton *install = plant == "swap" ? enabledButton("installButton") : nullptr;
            QPushButton *wanted = install ? install : enabledButton("downloadButton");
            if (install) {
                QFile::remove(m_folder->filePath("morvane.run"));
            }
            if (wanted && !isEnded) {
                QTest::keyClick(wanted, Qt::Key_Space);
            }
        });
        user.start(5);
        if (plant == "silent") {
            MRVUpdateManager::instance()->checkForUpdatesSilent();
        }
        MRVUpdateManager::instance()->checkForUpdates();
        QTRY_VERIFY(isEnded && isOver() && !shownDialog() && !QApplication::activeModalWidget());
        QVERIFY(heard.size() <= (at == "box")); // the one that was open
        const QDir::Filters all = QDir::AllEntries | QDir::Hidden | QDir::System;
        QCOMPARE(QDir(m_folder->path()).entryList(all | QDir::NoDotAndDotDot),
                 QStringList("victim"));
        user.stop();
        web.asked.clear();
        MRVUpdateManager::instance()->checkForUpdates(); // as if there had been none
        QTRY_VERIFY(web.asked.contains("/update.xml"));
    }

    void endsOnce_data() { addRows("update-signals.tsv"); }
    // In order, and nothing after the end, whatever is asked then.
    void endsOnce()
    {
        QFETCH(QString, user);
        Web web({{"/update.xml", cell("feed")}, {"/morvane.run", cell("installer")}});
        plantIn();
        MRVUpdateDownloader check;
        QStringList heard;
        using D = MRVUpdateDownloader;
        connect(&check, &D::updateChecked, [&] { heard << "checked"; });
        connect(&check, &D::finished, [&] { heard << "finished"; });
        connect(&check, QOverload<QString>::of(&D::installRequested),
                [&](const QString &path) { heard << "install " + QFileInfo(path).fileName(); });
        QStringList said;
        Boxes boxes(&said);
        boxes.callOnTimeout([&] {
            if (!said.isEmpty() && said.takeFirst().startsWith("Check for Updates: ")) {
                heard << "box";
            }
        });
        // Another fault while one is being told.
        QTimer again;
        again.callOnTimeout([&] {
            if (QApplication::activeModalWidget() && again.interval() == 0) {
                again.setInterval(10000);
                check.errorMsg("again");
            }
        });
        again.start(0);
        QFETCH(QString, silent);
        QVERIFY(check.startUpdate(!silent.isEmpty()));
        QCOMPARE(check.isSilent(), !silent.isEmpty());
        QTRY_VERIFY(heard.contains("finished") || enabledButton("downloadButton"));
        if (shownDialog()) {
            QVERIFY(!check.isSilent());
            QTest::keyClick(shownDialog()->findChild<QPushButton *>("downloadButton"),
                            Qt::Key_Space);
            if (user == "installs") {
                QTRY_VERIFY(enabledButton("installButton"));
                QTest::keyClick(enabledButton("installButton"), Qt::Key_Space);
            } else if (user == "closes") {
                shownDialog()->close();
            }
        }
        QFETCH(QString, expected);
        QTRY_COMPARE(heard.join(';'), expected);
        check.cancelUpdate();
        check.errorMsg("late");
        check.updateAvailable(true);
        check.downloadInstaller();
        check.installRequested();
        QTest::qWait(20);
        QCOMPARE(heard.join(';'), expected);
        QVERIFY(!shownDialog());
    }

    // The dialog may have been forgotten under other windows.
    void comesToTheFront()
    {
        Web web({{"/update.xml", "3.0.0.0|m|http://d/"}});
        plantIn();
        MRVUpdateManager::instance()->checkForUpdatesSilent();
        QTRY_VERIFY(shownDialog());
        shownDialog()->showMinimized();
        QWidget other;
        other.show();
        other.activateWindow();
        QTRY_VERIFY(other.isActiveWindow());
        MRVUpdateManager::instance()->checkForUpdatesSilent();
        QVERIFY(shownDialog()->isMinimized());
        MRVUpdateManager::instance()->checkForUpdates();
        QTRY_VERIFY(shownDialog()->isActiveWindow() && !shownDialog()->isMinimized());
        QCOMPARE(web.asked.count("/update.xml"), 1);
    }

    void starts_data() { addRows("update-starts.tsv"); }
    void starts()
    {
        QFETCH(QString, due);
        QSettings store("Morvane", "Morvane");
        for (const QString &setting : cell("settings").split(';', Qt::SkipEmptyParts)) {
            const QString value = setting.section('=', 1);
            const QDateTime now = QDateTime::currentDateTime();
            store.setValue(setting.section('=', 0, 0),
                           value.endsWith(" days")
                               ? QVariant(now.addDays(-value.section(' ', 0, 0).toInt()))
                               : QVariant(value));
        }
        store.sync();
        Web web({{"/update.xml", cell("feed")}});
        QStringList heard;
        const Boxes boxes(&heard);
        auto *timer = MRVUpdateManager::instance()->findChild<QTimer *>();
        QCOMPARE(timer && timer->isActive(), due != "no");
        if (!timer) {
            return;
        }
        QVERIFY(timer->isSingleShot());
        QCOMPARE(timer->interval(), 5000);
        const QString key = MRVUpdateManager::lastCheckForUpdatesKey();
        store.remove(key);
        store.sync();
        timer->start(0);
        QTRY_VERIFY(web.asked.contains("/update.xml"));
        QTRY_VERIFY(isOver() || shownDialog());
        QCOMPARE(shownDialog() != nullptr, due == "shown");
        QCOMPARE(heard, QStringList());
        store.sync();
        QCOMPARE(store.value(key).toDate(), due == "failed" ? QDate() : QDate::currentDate());
    }

    void keys()
    {
        using M = MRVUpdateManager;
        const auto all = [](const char *application) {
            QCoreApplication::setApplicationName(application);
            return QStringList{M::checkForUpdatesKey(), M::checkForUpdatesIntervalKey(),
                               M::lastCheckForUpdatesKey()}
                .join(' ');
        };
        QCOMPARE(all("Morvane"),
                 QString("General/checkForUpdates General/checkForUpdatesInterval "
                         "General/lastCheckForUpdates"));
        QCOMPARE(all("Fernwick"),
                 QString("Options/CheckForUpdates Options/CheckForUptatesIntervalDays "
                         "Options/CheckForUptatesLastDateTime"));
        QCOMPARE(all("Other"), QString("  "));
    }

    void cleanup()
    {
        MRVUpdateManager::release();
        QDesktopServices::unsetUrlHandler("file");
        QSettings("Morvane", "Morvane").clear();
        MVersion::checkCurrentUserRights(nullptr, nullptr, nullptr, true);
        isOnline = true;
        QFile::remove(m_folder->path() + "\\update.xml");
    }

    // The last check is left open, as by a user who quits: the application takes it with it.
    void cleanupTestCase()
    {
        init();
        Web web({{"/update.xml", "3.0.0.0|morvane.run|http://d/"}});
        plantIn();
        MRVUpdateManager::instance()->checkForUpdates();
        QTRY_VERIFY(shownDialog());
    }

private:
    void plantIn(const QString &plant = {})
    {
        const QStringList words = plant.split(' ');
        const auto place = [&](int i) {
            return QDir(m_folder->path()).absoluteFilePath(words.value(i));
        };
        QVERIFY(writeBytes(m_folder->filePath("victim"), "precious"));
        isOnline = plant != "offline";
        if (plant == "Fernwick") {
            QCoreApplication::setApplicationName(plant);
        } else if (words[0] == "link") {
            QVERIFY(QFile::link(place(2), place(1)));
        } else if (words[0] == "hard-link") {
            QCOMPARE(::link(QFile::encodeName(place(2)), QFile::encodeName(place(1))), 0);
        } else if (words[0] == "Location" || words[0] == "Locations-not-ours") {
            QSettings("Morvane", "Morvane").setValue("Location", words[1]);
        }
        // The superuser may write anywhere.
        const uid_t user = getuid();
        const bool isOther = words[0] == "Locations-not-ours" && user == 0;
        QVERIFY(!isOther || setreuid(65534, 0) == 0);
        MVersion::checkCurrentUserRights(nullptr, nullptr, nullptr, true);
        QVERIFY(!isOther || setreuid(user, 0) == 0);
        qputenv("MRV_PLUGIN_PATH", "/nowhere");
    }

    // What a user does with the dialog, if there is one: download, install, and else cancel.
    void drive(const QString &plant, QStringList *heard)
    {
        QPointer<MRVCheckForUpdatesDialog> dialog = shownDialog();
        if (!dialog) {
            return;
        }
        auto *download = dialog->findChild<QPushButton *>("downloadButton");
        if (plant == "silent") {
            QVERIFY(!download->isVisible()); // nothing is known yet
        }
        QTRY_VERIFY(!dialog
                    || dialog->findChild<QLabel *>("statusLabel")->text().contains("3.0.0.0"));
        if (!dialog) {
            return;
        }
        heard->append("dialog");
        auto *install = dialog->findChild<QPushButton *>("installButton");
        auto *bar = dialog->findChild<QProgressBar *>("progressBar");
        QVERIFY(!install->isVisible());
        QCOMPARE(bar->value(), 0);
        QTest::keyClick(download, Qt::Key_Space);
        QTRY_VERIFY(!dialog || install->isVisible() || bar->isHidden()
                    || plant.startsWith("Location"));
        if (!dialog) {
            return;
        }
        if (install->isVisible()) {
            QCOMPARE(bar->value(), bar->maximum());
            QCOMPARE(bar->maximum(), bytesOf(m_folder->filePath("morvane.run")).size());
            heard->append("install");
            const QString path = m_folder->filePath("morvane.run");
            if (plant.startsWith("swap")) {
                QVERIFY(QFile::remove(path));
            }
            if (plant == "swap") {
                QVERIFY(writeBytes(path, "evil"));
            } else if (plant == "swap-link") {
                QVERIFY(QFile::link(data + "morvane.run", path));
            }
            std::unique_ptr<SlowWindow> window;
            if (plant == "closing-swap") {
                window = std::make_unique<SlowWindow>([&](auto *) { writeBytes(path, "evil"); });
            } else if (plant == "closing-release") {
                window = std::make_unique<SlowWindow>([](auto *) { MRVUpdateManager::release(); });
            } else if (plant == "closing-refused") {
                window = std::make_unique<SlowWindow>([](auto *event) { event->ignore(); });
            }
            m_heard = heard;
            QDesktopServices::setUrlHandler("file", this, "open");
            QTest::keyClick(install, Qt::Key_Space);
            QTRY_VERIFY(isOver());
        } else {
            if (bar->isHidden()) {
                heard->append("status " + dialog->findChild<QLabel *>("statusLabel")->text());
            }
            QTest::keyClick(dialog->findChild<QPushButton *>("cancelButton"), Qt::Key_Space);
        }
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList *m_heard = nullptr;
    QUrl m_opened;
};

QTEST_MAIN(TestUpdate)
#include "tst_update.moc"
