#include "mrvtool.h"

/** The tool's commands that search, list and replace. */
class tst_MrvFind : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data() { addCalls("mrv-find.tsv"); }
    void commands();
    void allOrNone();
    void otherOutput();
};

void tst_MrvFind::commands()
{
    compareRow();
    const bool kept = !cell("after").isEmpty() && !cell("arguments").contains("--no-backup");
    QCOMPARE(QString::fromUtf8(bytesOf(in(cell("file") + '~'))), kept ? cell("source") : QString());
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
