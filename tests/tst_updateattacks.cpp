#include "datarows.h"
#include "rawserver.h"
#include "signer.h"
#include "support.h"

#include "network/mrvnetwork.h"
#include "update/mrvcheckforupdatesdialog.h"
#include "update/mrvupdatedownloader.h"
#include "update/mrvupdatemodel.h"

#include <QLabel>
#include <QMessageBox>
#include <QNetworkProxy>
#include <QPushButton>
#include <QTemporaryDir>

#include <ctime>
#include <memory>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr uid_t victim = 65534;
constexpr uid_t attacker = 65533;

const QByteArray installer = "#!/bin/sh\n# installer of 3.0.0.0\n";

// Of "name=value|name=value".
QString valueIn(const QString &cell, const QString &name, const QString &otherwise)
{
    for (const QString &part : cell.split('|')) {
        if (part.startsWith(name + '=')) {
            return part.mid(name.size() + 1);
        }
    }
    return otherwise;
}

// "302 URL", "404", or all of the body.
QByteArray answerOf(const QByteArray &body)
{
    const auto status = [](const QByteArray &line) {
        return "HTTP/1.1 " + line + "\r\nContent-Length: 0\r\n\r\n";
    };
    if (body == "404") {
        return status("404 Not Found");
    }
    if (body.startsWith("302 ")) {
        return status("302 Found\r\nLocation: " + body.mid(4));
    }
    return "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n"
        + body;
}

// A text as it stands, or the usual feed with other values: "V" version, "N" name, "U" address and
// "X" further elements.
QByteArray feedOf(const QString &cell)
{
    if (cell.startsWith('<') || cell.startsWith("302 ") || cell == "404") {
        return cell.toUtf8();
    }
    QString more = valueIn(cell, "X", {});
    if (!more.contains("<application")) {
        more += "<application>Morvane</application>";
    }
    return QString("<u><version>%1</version><linuxfilename>%2</linuxfilename><url>%3</url>%4</u>")
        .arg(valueIn(cell, "V", "3.0.0.0"), valueIn(cell, "N", "morvane.run"),
             valueIn(cell, "U", "http://d.example/"), more)
        .toUtf8();
}

// The maker's signature of a file with other values: "key" (b is another key, c one with the same
// id), "of" what is signed, "form", "comment" or its fields "time", "file" and "version"; then
// "edit" replaces in the result. A status as it stands, and what follows "raw ".
QByteArray signatureOf(const QByteArray &bytes, const QString &file, const QString &version,
                       const QString &cell)
{
    if (cell == "404" || cell.startsWith("302 ")) {
        return cell.toUtf8();
    }
    if (cell.startsWith("raw ")) {
        return cell.mid(4).toUtf8();
    }
    const QString key = valueIn(cell, "key", "a");
    const Signer signer(key[0].toLatin1(), key == "b" ? "other id" : "maker id");
    QString comment = "timestamp:" + valueIn(cell, "time", "1700000412")
        + "\tfile:" + valueIn(cell, "file", file);
    const QString bound = valueIn(cell, "version", version);
    comment += bound.isEmpty() ? QString() : "\tversion:" + bound;
    QByteArray result = signer.sign(valueIn(cell, "of", QString::fromLatin1(bytes)).toLatin1(),
                                    valueIn(cell, "comment", comment).toUtf8(),
                                    valueIn(cell, "form", "hashed") == "hashed");
    const QString edit = valueIn(cell, "edit", "=");
    return result.replace(edit.section('>', 0, 0).toUtf8(), edit.section('>', 1).toUtf8());
}

} // namespace

// In place of the platform's, as an application may bring its own.
bool MrvNetwork::isNetworkConnected()
{
    return true;
}

/** Attackers who own the server, the network, or an account of the machine. */
class TestUpdateAttacks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>("/tmp/tst_updateattacks-XXXXXX");
        QVERIFY(m_folder->isValid());
        QVERIFY(chmod(QFile::encodeName(m_folder->path()), 01777) == 0);
        qputenv("TMPDIR", QFile::encodeName(m_folder->path()));
        qputenv("MRV_PLUGIN_PATH", "/nowhere");
        QCoreApplication::setApplicationName("Morvane");
        QCoreApplication::setOrganizationName("Morvane");
        QCoreApplication::setApplicationVersion("2.9.0.0");
        QSettings("Morvane", "Morvane").clear();
    }

    void cleanup()
    {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        if (geteuid() != getuid()) {
            QVERIFY(seteuid(getuid()) == 0);
        }
        QFile::remove(m_folder->path() + "\\update.xml");
    }

    void attacks_data() { addRows("update-attacks.tsv"); }
    // What a user sees who downloads and installs whatever is offered.
    void attacks()
    {
        QFETCH(QString, said);
        RawServer server;
        serve(&server);
        QVERIFY(writeBytes(m_folder->filePath("victim"), "precious"));
        plant(cell("before").split(' '));
        if (QTest::currentTestFailed() || m_skipped) {
            m_skipped = false;
            QSKIP("only the superuser has several users");
        }
        MRVUpdateDownloader check;
        if (!cell("key").startsWith("no")) {
            check.setPublicKey(cell("key").isEmpty() ? Signer('a').publicKey()
                                                     : cell("key").toUtf8());
        }
        QString heard = drive(&check);
        QCOMPARE(heard.replace(m_folder->path(), "@tmp").left(said.size()), said);
        QCOMPARE(bytesOf(m_folder->filePath("victim")), QByteArray("precious"));
        compareRest(said);
        if (said == "installed" && geteuid() == getuid()) {
            const bool isSigned = cell("key").isEmpty();
            QCOMPARE(MRVUpdateState::load().feedTime, isSigned ? 1700000412 : 0);
        }
    }

    // A feed whose address names no file is signed under the name that it is saved under.
    void addressWithoutFile()
    {
        for (const QByteArray file : {"", "\tfile:update.xml"}) {
            MRVUpdateModel model;
            model.setXmlUrl("http://updates.example/");
            QVERIFY(model.setPublicKey(Signer('a').publicKey()));
            const QByteArray feed = feedOf(QString());
            QVERIFY(writeBytes(model.xmlFilePath(), feed));
            QVERIFY(writeBytes(model.xmlSignatureFilePath(),
                               Signer('a').sign(feed, "timestamp:1" + file)));
            model.readXML();
            QCOMPARE(model.isNewerAvailable(), !file.isEmpty());
        }
    }

    // Two windows of one user may check at the same time.
    void sharesWithOtherChecks()
    {
        auto first = std::make_unique<MRVUpdateModel>();
        MRVUpdateModel second;
        QVERIFY(first->claimFeed());
        QVERIFY(second.claimFeed());
        QCOMPARE(first->xmlFilePath(), m_folder->filePath("update.xml"));
        QVERIFY(first->xmlFilePath() != second.xmlFilePath());
        QVERIFY(writeBytes(second.xmlFilePath(), feedOf(QString())));
        first.reset();
        second.readXML();
        QVERIFY(second.isNewerAvailable());
        second.removeFiles();
        compareRest(QString());
        QVERIFY(second.claimFeed());
        QCOMPARE(second.xmlFilePath(), m_folder->filePath("update.xml"));
    }

    void resumes_data()
    {
        QTest::addColumn<bool>("again");
        QTest::newRow("again") << true;
        QTest::newRow("cancelled") << false;
    }
    // A broken download goes on where it ended when the user tries again. Else nothing is left.
    void resumes()
    {
        QFETCH(bool, again);
        RawServer server;
        QNetworkProxy::setApplicationProxy(
            {QNetworkProxy::HttpProxy, server.serverAddress().toString(), server.serverPort()});
        server.answer("http://updates.example/update.xml", answerOf(feedOf(QString())));
        const QByteArray head = "\r\nETag: \"a\"\r\nContent-Length: ";
        const QByteArray size = QByteArray::number(installer.size());
        const QString url = "http://d.example/morvane.run";
        server.answer(url, "HTTP/1.1 200 OK" + head + size + "\r\n\r\n" + installer.left(9));
        MRVUpdateDownloader check;
        QSignalSpy done(&check, qOverload<QString>(&MRVUpdateDownloader::installRequested));
        QVERIFY(check.startUpdate(false));
        QPushButton *download = nullptr;
        QTRY_VERIFY(download = shownButton("downloadButton"));
        download->click();
        QTRY_COMPARE(download->text(), QString("Try Again"));
        QVERIFY(bytesOf(m_folder->filePath("morvane.run.part.origin")).contains("\"a\""));
        if (!again) {
            check.cancelUpdate();
            compareRest(QString());
            return;
        }
        server.answer(url,
                      "HTTP/1.1 206 Partial Content\r\nContent-Range: bytes 9-"
                          + QByteArray::number(installer.size() - 1) + '/' + size + head
                          + QByteArray::number(installer.size() - 9) + "\r\n\r\n"
                          + installer.mid(9));
        download->click();
        QTRY_VERIFY(shownButton("installButton"));
        shownButton("installButton")->click();
        QCOMPARE(done.count(), 1);
        QCOMPARE(bytesOf(done[0][0].toString()), installer);
        QVERIFY(server.requests().constLast().toLower().contains("range: bytes=9-"));
    }

    void digestsInSlices_data()
    {
        QTest::addColumn<QByteArray>("sha256");
        QTest::newRow("hash") << QByteArray();
        // Of zeroes.
        QTest::newRow("hash-and-sha256")
            << QByteArray("6ed5e85372e488807486f4446e2a3a501d319be812e969e3de426db798cc5704");
    }
    // The window answers while 400 MB are read.
    void digestsInSlices()
    {
        QFETCH(QByteArray, sha256);
        MRVUpdateModel model;
        MRVUpdatePolicy policy;
        policy.features = MRVUpdatePolicy::CriticalUpdates; // all elements are read
        model.setPolicy(policy, true);
        const QByteArray element = sha256.isEmpty() ? sha256 : "<sha256>" + sha256 + "</sha256>";
        QVERIFY(writeBytes(model.xmlFilePath(), feedOf("X=" + element)));
        model.readXML();
        QFile file(model.downloadFilePath());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(400 << 20));
        // Of the processor, as others may be using it meanwhile.
        std::clock_t last = std::clock();
        std::clock_t longest = 0;
        QTimer ticker;
        ticker.callOnTimeout([&] {
            longest = qMax(longest, std::clock() - last);
            last = std::clock();
        });
        ticker.start(0);
        QSignalSpy ready(&model, &MRVUpdateModel::readyToInstall);
        QSignalSpy failed(&model, &MRVUpdateModel::updateError);
        model.readEXE();
        QVERIFY(ready.isEmpty());
        QTRY_COMPARE_WITH_TIMEOUT(ready.count(), 1, 30000 * SanitizerTime);
        QVERIFY(model.isInstallerUnchanged());
        longest = qMax(longest, std::clock() - last);
        QVERIFY2(longest < CLOCKS_PER_SEC / 10 * SanitizerTime,
                 qPrintable(QString::number(longest)));
        QVERIFY(failed.isEmpty());
    }

private:
    void serve(RawServer *server)
    {
        QNetworkProxy::setApplicationProxy(
            {QNetworkProxy::HttpProxy, server->serverAddress().toString(), server->serverPort()});
        const QByteArray feed = feedOf(cell("feed"));
        const QString name = valueIn(cell("feed"), "N", "morvane.run");
        const QByteArray run =
            cell("installer").isEmpty() ? installer : cell("installer").toLatin1();
        const QString version = valueIn(cell("feed"), "V", "3.0.0.0");
        const QString folder = "http://d.example/" + name;
        const auto answer = [&](const QString &url, const QByteArray &body) {
            server->answer(url, answerOf(body));
        };
        answer("http://updates.example/update.xml", feed);
        answer("http://updates.example/update.xml.minisig",
               signatureOf(feed, "update.xml", {}, cell("feed signature")));
        answer(folder, run);
        answer(folder + ".minisig", signatureOf(run, name, version, cell("signature")));
        answer("http://loop.example/", "302 http://loop.example/");
        answer("http://mirror.example/", run);
    }

    // "seen TIME" is kept of an earlier check. "KIND NAME" is what this user has in the
    // temporary folder, and "other KIND NAME" what another one has there.
    void plant(QStringList words)
    {
        if (words[0] == "seen") {
            QSettings settings("Morvane", "Morvane");
            settings.setValue("Updates/feedTime", words.value(1));
            return;
        }
        const bool isOther = words[0] == "other";
        if (isOther && getuid() != 0) {
            m_skipped = true;
            return;
        }
        if (isOther) {
            words.removeFirst();
            const QByteArray precious = QFile::encodeName(m_folder->filePath("victim"));
            QVERIFY(chown(precious, victim, victim) == 0);
            QVERIFY(seteuid(attacker) == 0);
        }
        for (int i = 0; i + 1 < words.size(); i += 2) {
            // Below "\" is what lies beside the folder, with its name before a backslash.
            const QString path = words[i + 1] == "\\" ? m_folder->path() + "\\update.xml"
                                                      : m_folder->filePath(words[i + 1]);
            const QByteArray name = QFile::encodeName(path);
            const bool isMade = words[i] == "file" ? writeBytes(path, "planted")
                : words[i] == "link"               ? QFile::link(m_folder->filePath("victim"), path)
                : words[i] == "folder"             ? QDir().mkdir(path)
                : words[i] == "pipe"               ? mkfifo(name, 0666) == 0
                                                   : false;
            QVERIFY2(isMade, name.constData());
            // Links and pipes of this user give way to the feed, whose name the network has not
            // chosen.
            if (isOther || words[i] == "folder" || words[i + 1] == "morvane.run") {
                m_planted << QFileInfo(path).fileName();
            }
        }
        QVERIFY(!isOther || (seteuid(0) == 0 && seteuid(victim) == 0));
    }

    static QPushButton *shownButton(const char *name)
    {
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            auto *button = window->findChild<QPushButton *>(name);
            if (button && button->isVisible() && button->isEnabled()) {
                return button;
            }
        }
        return nullptr;
    }

    // The last thing that is said, or "installed".
    QString drive(MRVUpdateDownloader *check)
    {
        QString heard;
        bool isOver = false;
        connect(check, &MRVUpdateDownloader::finished, [&] { isOver = true; });
        connect(check, QOverload<QString>::of(&MRVUpdateDownloader::installRequested),
                [&](const QString &path) {
                    isOver = true;
                    QCOMPARE(bytesOf(path), installer);
                    const bool isSigned = !cell("key").startsWith("no");
                    QCOMPARE(QFileInfo(path).isExecutable(), isSigned);
                    check->keepInstaller();
                    heard = "installed";
                });
        QTimer user;
        user.callOnTimeout([&] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                heard = box->text();
                box->accept();
            }
            QPushButton *const download = shownButton("downloadButton");
            if (download && download->text() == "Try Again") {
                heard = download->window()->findChild<QLabel *>("statusLabel")->text();
                qobject_cast<QDialog *>(download->window())->reject();
            } else if (download) {
                download->click();
            } else if (QPushButton *const install = shownButton("installButton")) {
                install->click();
            }
        });
        user.start(2);
        const bool isEnded =
            !check->startUpdate(false) || QTest::qWaitFor([&] { return isOver; }, 20000);
        return isEnded ? heard : QString("no end");
    }

    // Nothing is left but what was there, and an installer.
    void compareRest(const QString &said)
    {
        QStringList rest =
            QDir(m_folder->path())
                .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
        for (const QString &planted : qAsConst(m_planted)) {
            rest.removeOne(planted);
        }
        m_planted.clear();
        rest.removeOne("victim");
        const QStringList privates = rest.filter("mrv-");
        const QStringList wanted = said == "installed"
            ? (privates.isEmpty() ? QStringList("morvane.run") : privates)
            : QStringList();
        QCOMPARE(rest, wanted);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_planted;
    bool m_skipped = false;
};

QTEST_MAIN(TestUpdateAttacks)
#include "tst_updateattacks.moc"
