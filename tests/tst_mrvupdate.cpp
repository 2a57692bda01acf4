#include "mrvtool.h"
#include "rawserver.h"

/** The tool's update check. */
class TestMrvUpdate : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data()
    {
        addRows("mrv-update.tsv", {"case", "feed", "arguments", "code", "output", "error"});
    }
    // "-" and "@f" are the feed, "@web" is a server that sends on from /loop, and the feed from
    // elsewhere.
    void commands()
    {
        QFETCH(QString, feed);
        QFETCH(QString, arguments);
        QFETCH(QString, output);
        QFETCH(QString, error);
        const QString file = in("f");
        QVERIFY(writeBytes(file, feed.toUtf8()));
        RawServer server;
        server.answer("/loop", "HTTP/1.0 302 Found\r\nLocation: /loop\r\n\r\n");
        server.answer("/feed", "HTTP/1.0 200 OK\r\n\r\n" + feed.toUtf8());
        const QString web = server.url(QString()).toString();
        for (QString *text : {&arguments, &output, &error}) {
            text->replace("@f", file).replace("@web", web);
        }

        QProcess tool;
        tool.start(MRV_TOOL, ("update " + arguments).split(' ', Qt::SkipEmptyParts));
        tool.write(feed.toUtf8());
        tool.closeWriteChannel();
        QTRY_COMPARE(tool.state(), QProcess::NotRunning);
        QCOMPARE(QString::fromUtf8(tool.readAllStandardOutput()), output);
        QCOMPARE(QString::fromUtf8(tool.readAllStandardError()),
                 error.isEmpty() ? error : "mrv: update: " + error + '\n');
        QTEST(QString::number(tool.exitCode()), "code");
    }
};

QTEST_GUILESS_MAIN(TestMrvUpdate)
#include "tst_mrvupdate.moc"
