#include "mrvtool.h"
#include "rawserver.h"
#include "signer.h"

/** The tool's update check. */
class TestMrvUpdate : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data()
    {
        addRows("mrv-update.tsv", {"case", "feed", "arguments", "code", "output", "error"});
    }
    // "-" and "@f" are the feed, "@web" is a server that sends on from /loop, and has the feed and
    // an installer, both signed by the maker whose key is "@key". "@made" has copies of an
    // installer beside signatures that minisign has made, with the key "@pub".
    void commands()
    {
        QFETCH(QString, feed);
        QFETCH(QString, arguments);
        QFETCH(QString, output);
        QFETCH(QString, error);
        RawServer server;
        const QString web = server.url(QString()).toString();
        const QString update = MRV_SOURCE_DIR "/tests/data/update/";
        for (QString *text : {&feed, &arguments, &output, &error}) {
            text->replace("@f", in("f")).replace("@web", web).replace("@key", in("key"));
            text->replace("@pub", update + "key.pub").replace("@made", in(""));
            text->replace("@out", in("out"));
        }
        serve(&server, feed.toUtf8());
        QVERIFY(QDir().mkdir("out"));
        for (const QString made : {"hashed", "legacy", "othername", "otherkey"}) {
            const QString copy = in(made) + "/morvane.run";
            QVERIFY(QDir().mkdir(in(made)) && QFile::copy(update + "morvane.run", copy)
                    && QFile::copy(update + made + ".minisig", copy + ".minisig"));
        }

        QProcess tool;
        tool.start(MRV_TOOL, ("update " + arguments).split(' ', Qt::SkipEmptyParts));
        tool.write(feed.toUtf8());
        tool.closeWriteChannel();
        QTRY_COMPARE(tool.state(), QProcess::NotRunning);
        QCOMPARE(QString::fromUtf8(tool.readAllStandardOutput()), output);
        QCOMPARE(QString::fromUtf8(tool.readAllStandardError()),
                 error.isEmpty()             ? error
                     : error.startsWith('{') ? error + '\n'
                                             : "mrv: update: " + error + '\n');
        QTEST(QString::number(tool.exitCode()), "code");
        const bool isDownloaded = output.contains("/out/m.run");
        QMap<QString, QByteArray> left;
        if (isDownloaded) {
            left.insert("m.run", installer);
        }
        if (isDownloaded && cell("arguments").contains("--key")) {
            left.insert("m.run.minisig",
                        Signer('a').sign(installer, "file:m.run\tversion:3.0.0.0"));
        }
        QCOMPARE(contentsBelow(in("out")), left);
    }

private:
    // For the same names, whatever the feed says.
    void serve(RawServer *server, const QByteArray &feed)
    {
        const QByteArray head = "HTTP/1.0 200 OK\r\n\r\n";
        const Signer maker('a');
        const QByteArray signature = maker.sign(feed, "timestamp:1700000412\tfile:f");
        QVERIFY(writeBytes(in("key"), maker.publicKey()));
        QVERIFY(writeBytes(in("f"), feed));
        QVERIFY(writeBytes(in("f.minisig"), signature));
        server->answer("/loop", "HTTP/1.0 302 Found\r\nLocation: /loop\r\n\r\n");
        server->answer("/f", head + feed);
        server->answer("/f.minisig", head + signature);
        server->answer("/altered", head + feed + "\n");
        server->answer("/altered.minisig", head + signature);
        server->answer("/m.run", head + installer);
        server->answer("/m.run.minisig",
                       head + maker.sign(installer, "file:m.run\tversion:3.0.0.0"));
    }

    const QByteArray installer = QByteArray(3 << 20, 'i'); // which takes several slices to read
};

QTEST_GUILESS_MAIN(TestMrvUpdate)
#include "tst_mrvupdate.moc"
