#include "mrvtool.h"

#include <QTcpServer>
#include <QTcpSocket>

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
        QVERIFY(writeBytes(file, feed == "big" ? QByteArray(1048577, ' ') : feed.toUtf8()));
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        connect(&server, &QTcpServer::newConnection, [&] {
            QTcpSocket *socket = server.nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [=] {
                const bool loops = socket->readAll().startsWith("GET /loop ");
                socket->write(feed == "404" ? "HTTP/1.0 404 Not Found\r\n\r\n"
                                  : loops   ? "HTTP/1.0 302 Found\r\nLocation: /loop\r\n\r\n"
                                            : "HTTP/1.0 200 OK\r\n\r\n" + feed.toUtf8());
                socket->disconnectFromHost();
            });
        });
        const QString web = QString("http://127.0.0.1:%1").arg(server.serverPort());
        for (QString *text : {&arguments, &output, &error}) {
            text->replace("@f", file).replace("@web", web);
        }

        QProcess tool;
        tool.start(MRV_TOOL,
                   (QStringList("update") + arguments.split(' ', Qt::SkipEmptyParts))
                       .replaceInStrings("@empty", QString()));
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
