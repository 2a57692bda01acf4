#include "mrvtool.h"
#include "rawserver.h"

#include <csignal>

#include <sys/stat.h>

/** The command that downloads. */
class tst_MrvGet : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_tls.setWorkingDirectory(m_shared.path());
        QTcpServer free;
        free.listen(QHostAddress::LocalHost);
        const QString host = QString("127.0.0.1:%1").arg(free.serverPort());
        free.close();
        m_tlsHost = "https://" + host;
        const QString pem = m_shared.filePath("pem");
        QCOMPARE(run("openssl",
                     {"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-subj", "/CN=other",
                      "-keyout", pem, "-out", pem + ".cert"})
                     .exitCode,
                 0);
        QVERIFY(writeBytes(m_shared.filePath("page"),
                           "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello"));
        m_tls.start(programPath("openssl"),
                    {"s_server", "-HTTP", "-accept", host, "-key", pem, "-cert", pem + ".cert"});
        QString shown;
        QTRY_VERIFY((shown += m_tls.readAll()).contains("ACCEPT"));

        const QByteArray ok = "HTTP/1.1 200 OK\r\n";
        const QByteArray found = "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: ";
        const QByteArray locked = "HTTP/1.1 401 No\r\nContent-Length: 0\r\n"
                                  "WWW-Authenticate: Basic realm=\"Drafts\"\r\n\r\n";
        m_server.answer("/page", ok + "\r\nhello");
        m_server.answer("/taken", ok + "\r\nhello");
        m_server.answer("/a%1Bb%0Ac", ok + "\r\nhello");
        m_server.answer("/raw", ok + "\r\n\xf0");
        m_server.answer("/latin", ok + "Content-Type: text/plain; charset=\"latin1\"\r\n\r\n\xe9");
        m_server.answer("/russian", ok + "Content-Type: text/plain; charset=koi8-r\r\n\r\n\xf0");
        m_server.answer("/moved", found + "/page\r\n\r\n");
        m_server.answer("/loop", found + "/loop\r\n\r\n");
        m_server.answer("/away", found + m_other.answer("/x", locked).toEncoded() + "\r\n\r\n");
        m_server.answer("/locked", locked);
        m_server.answer("/lost", "HTTP/1.1 404 No\r\nContent-Length: 0\r\n\r\n");
        m_server.answer("/stalled", {}, RawServer::Stall);
    }

    void cleanupTestCase()
    {
        m_tls.kill();
        m_tls.waitForFinished();
    }
    void get_data()
    {
        addRows("mrv-get.tsv",
                {"case", "arguments", "input", "code", "output", "error", "file", "bytes"});
    }

    void get()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, file);
        const QString host = m_server.url(QString()).toString();
        if (file.contains("taken")) {
            QVERIFY(writeBytes(in("taken.html"), "old"));
        }
        // A link that cannot be replaced, to a file that can.
        const QString locked = in("locked");
        QVERIFY(QDir().mkdir(locked));
        QVERIFY(QFile::link("../x.txt", locked + "/link"));
        QVERIFY(QFile::setPermissions(locked, QFile::ReadOwner | QFile::ExeOwner));
        const auto unlock = qScopeGuard([&] {
            QFile::setPermissions(locked, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        });
        arguments.replace('@', host).replace('$', m_tlsHost).replace('#', in("") + '/');
        arguments.replace('~', m_shared.filePath("pem.cert"));
        QProcess tool;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("GET_PASSWORD", "pass");
        tool.setProcessEnvironment(environment);
        tool.start(MRV_TOOL, QStringList{"get"} + arguments.split(' '));
        tool.write(cell("input").toUtf8());
        tool.closeWriteChannel();
        // The server answers from this thread.
        QTRY_COMPARE_WITH_TIMEOUT(tool.state(), QProcess::NotRunning, 60000);

        const auto said = [&](const QByteArray &bytes) {
            return QString::fromUtf8(bytes)
                .trimmed()
                .replace('\n', u'␤')
                .replace(in("") + '/', "#")
                .replace(host, "@")
                .replace(m_tlsHost, "$");
        };
        QTEST(said(tool.readAllStandardError()).remove("mrv: "), "error");
        QTEST(said(tool.readAllStandardOutput()), "output");
        QTEST(QString::number(tool.exitCode()), "code");
        QCOMPARE(QDir().entryList(QDir::Files | QDir::Hidden),
                 file.isEmpty() ? QStringList() : file.split('|'));
        QTEST(QString::fromLatin1(bytesOf(in(file.section('|', 0, 0)))), "bytes");
        const QByteArray password = "Basic " + QByteArray("ann:pass").toBase64();
        const QByteArray requests = m_server.requests().join();
        if (arguments.contains("locked --user")) {
            QVERIFY(requests.contains(password));
        }
        QVERIFY(!m_other.requests().join().contains("Authorization"));
    }

    // What a broken download has left is gone on with only where that is asked for.
    void resumes()
    {
        const QByteArray whole =
            "HTTP/1.1 200 OK\r\nETag: \"1\"\r\nContent-Length: 10\r\n\r\nhello";
        const QString url = m_server.answer("/part", whole).toString();
        const Ran broken = ranGet({url, "-o", "got"});
        QCOMPARE(broken.exitCode, 1);
        QVERIFY2(broken.errors.contains("; --resume goes on with what has come"),
                 qPrintable(broken.errors));
        QCOMPARE(bytesOf("got.part"), QByteArray("hello"));

        m_server.answer("/part",
                        "HTTP/1.1 206 Part\r\nContent-Range: bytes 5-9/10\r\n"
                        "Content-Length: 5\r\n\r\nworld");
        const Ran resumed = ranGet({url, "-o", "got", "--resume", "--json"});
        QCOMPARE(resumed.exitCode, 0);
        QVERIFY2(resumed.output.contains("\"size\":10"), qPrintable(resumed.output));
        QCOMPARE(bytesOf("got"), QByteArray("helloworld"));

        m_server.answer("/part", whole);
        QCOMPARE(ranGet({url, "-o", "got"}).exitCode, 1);
        m_server.answer("/part", QByteArray(whole).replace("10\r\n", "5\r\n"));
        QCOMPARE(ranGet({url, "-o", "got"}).exitCode, 0);
        QVERIFY(!m_server.requests().constLast().contains("Range"));
        QCOMPARE(bytesOf("got"), QByteArray("hello"));
        QCOMPARE(QDir().entryList(QDir::Files | QDir::Hidden), QStringList{"got"});
    }

    // What cannot be replaced is written into.
    void pipe()
    {
        QCOMPARE(::mkfifo("pipe", 0600), 0);
        QProcess reader;
        reader.start(programPath("sh"), {"-c", "read line < pipe; echo got $line"});
        QCOMPARE(ranGet({m_server.url("/page").toString(), "-o", "pipe"}).exitCode, 0);
        QTRY_COMPARE(reader.state(), QProcess::NotRunning);
        QCOMPARE(reader.readAll(), QByteArray("got hello\n"));
        QVERIFY(!QFileInfo("pipe").isFile());
    }

    void terminal_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("talk"); // what is shown, what is then typed, and so on
        QTest::newRow("bar") << "/bar"
                             << QStringList{"[####", "", "] 100 % of 5 bytes", "", "bar.html"};
        QTest::newRow("redirect, yes")
            << "/moved" << QStringList{"/page ? [y/N] ", "y\n", "moved.html"};
        QTest::newRow("redirect, no")
            << "/moved" << QStringList{"/page ? [y/N] ", "\n", "--follow"};
        QTest::newRow("password") << "/locked --user ann"
                                  << QStringList{"Password of ann for 'Drafts'",
                                                 "secret\n",
                                                 "Password of ann",
                                                 "secret\n",
                                                 "Host requires authentication",
                                                 "",
                                                 " echo "};
        QTest::newRow("user") << "/locked"
                              << QStringList{"User name for 'Drafts'", "bob\n", "of bob"};
        QTest::newRow("interrupt")
            << "/locked --user ann" << QStringList{"Password", "\3", " echo "};
    }

    // As somebody at a terminal sees it, who afterwards sees again what is typed.
    void terminal()
    {
        QFETCH(QStringList, talk);
        m_server.answer("/bar", "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello");
        // Is ignored in what a script has put into the background.
        std::signal(SIGINT, SIG_DFL);
        QProcess screen;
        screen.setProcessChannelMode(QProcess::MergedChannels);
        screen.start(programPath("script"),
                     {"-qec",
                      "trap : INT; " MRV_TOOL " get " + m_server.url(QString()).toString()
                          + cell("path") + "; stty -a",
                      "/dev/null"});
        QString shown;
        for (int i = 0, at = 0; i < talk.size(); i += 2) {
            // It ends at once where a pseudo terminal cannot be had, and says so.
            QTRY_VERIFY2_WITH_TIMEOUT((shown += screen.readAll()).indexOf(talk[i], at) >= 0
                                          || screen.state() == QProcess::NotRunning,
                                      qPrintable(shown), 20000);
            QVERIFY2((shown += screen.readAll()).indexOf(talk[i], at) >= 0, qPrintable(shown));
            at = shown.indexOf(talk[i], at) + talk[i].size();
            screen.write(talk.value(i + 1).toUtf8());
        }
        QVERIFY2(!shown.contains("secret"), qPrintable(shown));
        screen.kill();
        QTRY_COMPARE(screen.state(), QProcess::NotRunning);
    }

private:
    // The server answers from this thread.
    static Ran ranGet(const QStringList &arguments)
    {
        QProcess tool;
        tool.start(MRV_TOOL, QStringList{"get"} + arguments);
        tool.closeWriteChannel();
        (void)QTest::qWaitFor([&] { return tool.state() == QProcess::NotRunning; }, 60000);
        return {tool.exitCode(), QString::fromUtf8(tool.readAllStandardOutput()),
                QString::fromUtf8(tool.readAllStandardError())};
    }

    RawServer m_server;
    RawServer m_other;
    QTemporaryDir m_shared;
    QProcess m_tls; // with a certificate that nobody vouches for
    QString m_tlsHost;
};

QTEST_GUILESS_MAIN(tst_MrvGet)
#include "tst_mrvget.moc"
