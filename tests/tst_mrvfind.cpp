#include "mrvtool.h"

/** The tool's commands that search, list and replace. */
class tst_MrvFind : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data()
    {
        addRows("mrv-find.tsv",
                {"case", "file", "source", "arguments", "code", "output", "error", "after"});
    }
    void commands();
    void usage_data() { addRows("mrv-find-usage.tsv", {"case", "arguments", "error"}); }
    void usage();
    void encodings_data();
    void encodings();
    void onlyTheWordChanges();
    void allOrNone();
    void backupsStay();
    void otherOutput();
};

void tst_MrvFind::commands()
{
    QFETCH(QString, source);
    QFETCH(QString, arguments);
    QFETCH(QString, after);
    QFETCH(QString, file);
    file = in(file);
    QVERIFY(writeBytes(file, source.toUtf8()));
    const Ran ran = mrv(arguments, source.toUtf8());
    QTEST(ran.output, "output");
    compareEnd(ran);
    QCOMPARE(QString::fromUtf8(bytesOf(file)), after.isEmpty() ? source : after);
    const bool kept = !after.isEmpty() && !arguments.contains("--no-backup");
    QCOMPARE(QString::fromUtf8(bytesOf(file + '~')), kept ? source : QString());
}

void tst_MrvFind::usage()
{
    QFETCH(QString, arguments);
    QFETCH(QString, error);
    QVERIFY(writeBytes(in("a.txt"), "text"));
    const Ran ran = mrv(arguments);
    QCOMPARE(ran.exitCode, 2);
    QVERIFY2(ran.errors.contains(error), qPrintable(ran.errors));
    QCOMPARE(ran.errors.count('\n'), 1);
    QCOMPARE(ran.output, QString());
}

void tst_MrvFind::encodings_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("options");
    QTest::addColumn<QByteArray>("after"); // empty: refused
    QTest::newRow("mark") << QByteArray("\xef\xbb\xbf"
                                        "ab\r\n")
                          << ""
                          << QByteArray("\xef\xbb\xbf"
                                        "\xc5\x93"
                                        "b\r\n");
    QTest::newRow("utf-16") << QByteArray("\xff\xfe"
                                          "a\0b\0",
                                          6)
                            << ""
                            << QByteArray("\xff\xfe"
                                          "\x53\x01"
                                          "b\0",
                                          6);
    QTest::newRow("utf-16-be") << QByteArray("\xfe\xff"
                                             "\0a",
                                             4)
                               << ""
                               << QByteArray("\xfe\xff"
                                             "\x01\x53",
                                             4);
    QTest::newRow("latin1-lacks") << QByteArray("a\xe9") << " --encoding latin1" << QByteArray();
    QTest::newRow("latin1-html") << QByteArray("<p>a\xe9</p>") << " --from html --encoding latin1"
                                 << QByteArray("<p>&#339;\xe9</p>");
    QTest::newRow("windows-1252") << QByteArray("a\x92") << " --encoding windows-1252"
                                  << QByteArray("\x9c\x92");
}

void tst_MrvFind::encodings()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, options);
    QVERIFY(writeBytes(in("a.txt"), before));
    QCOMPARE(mrv("replace a œ @a.txt" + options).exitCode, after.isEmpty() ? 1 : 0);
    QCOMPARE(bytesOf(in("a.txt")), after.isEmpty() ? before : after);
}

// There and back again, a manuscript is what it was, byte for byte, and on the way differs in the
// word only.
void tst_MrvFind::onlyTheWordChanges()
{
    const QByteArray before = bytesOf(MRV_SOURCE_DIR "/examples/manuscript.html");
    QVERIFY(writeBytes(in("a.html"), before));
    QCOMPARE(mrv("replace -s -w Aske Σ @a.html").exitCode, 0);
    QByteArray expected = before;
    const int body = expected.indexOf("<body>");
    QString text = QString::fromUtf8(expected.mid(body));
    text.replace(QRegularExpression("\\bAske\\b"), "Σ");
    QCOMPARE(bytesOf(in("a.html")), expected.left(body) + text.toUtf8());
    QCOMPARE(mrv("replace Σ Aske @a.html").exitCode, 0);
    QCOMPARE(bytesOf(in("a.html")), before);
}

void tst_MrvFind::allOrNone()
{
    QVERIFY(writeBytes(in("a.txt"), "word"));
    QVERIFY(writeBytes(in("b.html"), "<p>word</p>"));
    const Ran ran = mrv("replace -E word$ new\\nline @a.txt @b.html");
    QCOMPARE(ran.exitCode, 1);
    QVERIFY2(ran.errors.contains("b.html"), qPrintable(ran.errors));
    QCOMPARE(bytesOf(in("a.txt")), QByteArray("word"));
    QVERIFY(!QFile::exists(in("a.txt~")));
}

void tst_MrvFind::backupsStay()
{
    QVERIFY(writeBytes(in("a.txt"), "1"));
    const auto secret = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QVERIFY(QFile::setPermissions(in("a.txt"), secret));
    for (const char *step : {"1 2", "2 3", "3 4"}) {
        QCOMPARE(mrv(QString("replace %1 @a.txt").arg(step)).exitCode, 0);
    }
    QCOMPARE(bytesOf(in("a.txt~")) + bytesOf(in("a.txt~1")) + bytesOf(in("a.txt~2")),
             QByteArray("123"));
    QCOMPARE(QFile::permissions(in("a.txt~1")), secret);
}

void tst_MrvFind::otherOutput()
{
    QVERIFY(writeBytes(in("a.txt"), "word"));
    QVERIFY(writeBytes(in("b.txt"), "none"));
    QVERIFY(QDir().mkdir("out"));
    QCOMPARE(mrv("replace word new @a.txt @b.txt -o @out").exitCode, 0);
    QCOMPARE(bytesOf(in("out/a.txt")) + bytesOf(in("out/b.txt")), QByteArray("newnone"));
    QCOMPARE(bytesOf(in("a.txt")), QByteArray("word"));
    QCOMPARE(mrv("replace word new @a.txt -o @a.txt").exitCode, 1);
    QCOMPARE(mrv("replace word new @a.txt @out/a.txt -o @out").exitCode, 1);
    QCOMPARE(bytesOf(in("a.txt")), QByteArray("word"));
}

QTEST_GUILESS_MAIN(tst_MrvFind)
#include "tst_mrvfind.moc"
