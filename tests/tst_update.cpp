#include "datarows.h"
#include "support.h"

#include "web/mrvupdatemodel.h"
#include "web/mversion.h"

#include <QTemporaryDir>

#include <memory>

#include <unistd.h>

namespace {

const QString data = MRV_SOURCE_DIR "/tests/data/update/";

// "version|file name|base URL", or a feed as it stands.
QByteArray feedOf(const QString &text)
{
    const QStringList parts = text.split('|');
    return parts.size() != 3
        ? text.toUtf8()
        : QString("<?xml version='1.0'?><update><version>%1</version><linuxfilename>%2"
                  "</linuxfilename><url>%3</url></update>")
              .arg(parts[0], parts[1], parts[2])
              .toUtf8();
}

// All that a model tells, in order.
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
        QObject::connect(&model, &M::updateError,
                         [this](const QString &text) { append("error " + text); });
        QObject::connect(&model, &M::readyToInstall, [this] { append("ready"); });
    }
};

} // namespace

class TestUpdate : public QObject
{
    Q_OBJECT

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

    void betas_data() { addRows("update-versions.tsv", {"version", "beta"}); }
    void betas()
    {
        QFETCH(QString, version);
        QFETCH(QString, beta);
        QCOMPARE(MVersion::isBetaVersion(version), beta == "yes");
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
        QVERIFY(blocks[0].startsWith(
            "Application: Morvane\nVersion: 2.9\nBuild: Release\nExecutable: /"));
        QVERIFY(blocks[1].contains(QString("\nQt-Runtime: ") + qVersion() + "\nCreated: "));
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
        if (rights && user == 0)
            QCOMPARE(setreuid(65534, 0), 0);
        const auto clean = qScopeGuard([user] {
            QSettings("Morvane", "Morvane").clear();
            if (user == 0 && setreuid(0, 0) != 0)
                qFatal("no superuser any more");
        });
        bool warnsOfRights = true;
        bool warnsOfPlace = true;
        QString recorded;
        MVersion::checkCurrentUserRights(&warnsOfRights, &warnsOfPlace, &recorded, true);
        QTEST(warnsOfPlace, "elsewhere");
        QVERIFY(location.startsWith(recorded));
        QCOMPARE(warnsOfRights, rights);
        QSettings("Morvane", "Morvane").setValue("Location", "/nowhere");
        QCOMPARE(MVersion::currentUserNeedsAdminRights(), warnsOfRights); // remembered
    }

    void feeds_data() { addRows("update-feeds.tsv", {"case", "running", "feed", "told"}); }
    void feeds()
    {
        QFETCH(QString, running);
        QFETCH(QString, feed);
        QFETCH(QString, told);
        QCoreApplication::setApplicationVersion(running);
        MRVUpdateModel model;
        const Told heard(model);
        QCOMPARE(model.xmlFilePath(), m_folder->filePath("update.xml"));
        if (!feed.isEmpty())
            QVERIFY(writeBytes(model.xmlFilePath(), feedOf(feed)));
        model.readXML();
        QCOMPARE(heard.join(';'), told.replace("@tmp", m_folder->path()));
        QCOMPARE(model.isNewerAvailable(), told.endsWith("available 1"));
        if (model.isNewerAvailable())
            QCOMPARE(model.downloadURL(),
                     "http://d/" + QFileInfo(model.downloadFilePath()).fileName());
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

    void installers_data()
    {
        addRows("update-installers.tsv", {"case", "installer", "signature", "key", "told"});
    }
    void installers()
    {
        QFETCH(QString, installer);
        QFETCH(QString, signature);
        QFETCH(QString, key);
        QFETCH(QString, told);
        MRVUpdateModel model;
        QVERIFY(writeBytes(model.xmlFilePath(), feedOf("3.0.0.0|morvane.run|http://d/")));
        if (!key.isEmpty())
            QCOMPARE(model.setPublicKey(key == "key" ? bytesOf(data + "key.pub") : key.toUtf8()),
                     key == "key");
        model.readXML();
        const Told heard(model);
        if (!installer.isEmpty())
            QVERIFY(writeBytes(model.downloadFilePath(),
                               installer.startsWith('@')
                                   ? bytesOf(data + installer.mid(1))
                                   : QByteArray(installer.toInt(), 'x') + "404 Not Found"));
        const QString change = signature.section(' ', 1);
        QByteArray bytes = bytesOf(data + signature.section(' ', 0, 0));
        bytes.replace(change.section('=', 0, 0).toUtf8(), change.section('=', 1).toUtf8());
        if (!signature.isEmpty())
            QVERIFY(writeBytes(model.signatureFilePath(), bytes));
        model.readEXE();
        QCOMPARE(heard.join(';'), told.replace("@tmp", m_folder->path()));
        QCOMPARE(model.isInstallerUnchanged(), told == "ready");
        QVERIFY(writeBytes(model.downloadFilePath(), "other"));
        QVERIFY(!model.isInstallerUnchanged());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(TestUpdate)
#include "tst_update.moc"
