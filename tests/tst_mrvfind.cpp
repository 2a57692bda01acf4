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
    void allOrNone();
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
    QVERIFY(writeBytes(in("a.txt"), "text"));
    const Ran ran = mrv(cell("arguments"));
    QCOMPARE(ran.exitCode, 2);
    QVERIFY2(ran.errors.contains(cell("error")), qPrintable(ran.errors));
    QCOMPARE(ran.errors.count('\n'), 1);
    QCOMPARE(ran.output, QString());
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
