#include "mrvtool.h"

#include <sys/stat.h>

/** The tool's command for preferences. */
class tst_MrvSettings : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data() { addCalls("mrv-settings.tsv"); }
    void commands() { compareRow(); }
    void usersOwn();
    void exportAndImport();
    void losesNothing();

private:
    Ran settings(const QString &arguments) const { return mrv("settings " + arguments); }
};

void tst_MrvSettings::usersOwn()
{
    QCOMPARE(settings("set Backups/retain 7").exitCode, 0);
    QCOMPARE(bytesOf(in("home/Morvane/Morvane.conf")),
             QByteArray("[Options]\nBackups\\retain=7\n"));
    QCOMPARE(settings("changed").output, QString("Backups/retain = 7 (default: 5)\n"));
    QVERIFY(settings("explain Backups/retain")
                .output.contains("from     @home/Morvane/Morvane.conf\n"));
    const QByteArray harm = "[Options]\nBackups\\retain=@Variant(\\0\\0\\0G\\x7f\\xff\\xff\\xf0)\n";
    QVERIFY(writeBytes(in("home/Morvane/Morvane.conf"), harm));
    QCOMPARE(settings("get Backups/retain").output, QString("5\n"));
    QCOMPARE(bytesOf(in("home/Morvane/Morvane.conf.damaged")), harm);
    // Where it cannot be taken out, the file is not opened.
    QVERIFY(writeBytes(in("home/Morvane/Morvane.conf"), harm));
    const QString shell = "trap '' XFSZ; ulimit -f 0; exec \"$0\" settings %1 Backups/retain";
    for (const QString &action :
         {QString("get"), "--settings " + in("home/Morvane/Morvane.conf") + " get"}) {
        const Ran ran =
            run("sh", {"-c", shell.arg(action), MRV_TOOL}, {"XDG_CONFIG_HOME=" + in("home")});
        QCOMPARE(ran.exitCode, action == "get" ? 0 : 1);
        QCOMPARE(ran.output, QString(action == "get" ? "5\n" : ""));
        QCOMPARE(bytesOf(in("home/Morvane/Morvane.conf")), harm);
    }
}

void tst_MrvSettings::exportAndImport()
{
    QCOMPARE(settings("set AutoCorrection/personalWords Möwe a,b --settings @a.ini").exitCode, 0);
    QCOMPARE(settings("set General/smartQuotes no --settings @a.ini").exitCode, 1);
    QCOMPARE(settings("export @b.ini --settings @a.ini").exitCode, 0);
    QCOMPARE(settings("set Backups/retain 7 --settings @a.ini").exitCode, 0);
    QCOMPARE(settings("import @b.ini --settings @a.ini").exitCode, 0);
    QCOMPARE(settings("changed --settings @a.ini").output,
             QString("AutoCorrection/personalWords = Möwe, a,b (default: )\n"));
}

// What cannot be read replaces nothing, and nothing is written over a file of another kind.
void tst_MrvSettings::losesNothing()
{
    QCOMPARE(settings("set Backups/retain 7 --settings @a.ini").exitCode, 0);
    const QByteArray before = bytesOf(in("a.ini"));
    QVERIFY(writeBytes(in("novel.txt"), "It was a dark night.\nStormy.\n"));
    QVERIFY(writeBytes(in("other.ini"), "[Other]\na=1\n"));
    for (const char *file : {"@novel.txt", "@other.ini", "@none.ini", "@"}) {
        const Ran ran = settings(QString("import %1 --settings @a.ini").arg(file));
        QCOMPARE(ran.exitCode, 1);
        QCOMPARE(ran.errors.count('\n'), 1);
        QCOMPARE(bytesOf(in("a.ini")), before);
    }
    QCOMPARE(settings("set Backups/retain 7 --settings @novel.txt").exitCode, 1);
    QCOMPARE(bytesOf(in("novel.txt")), QByteArray("It was a dark night.\nStormy.\n"));
    QCOMPARE(settings("export @a.ini --settings @a.ini").exitCode, 1);
    QVERIFY(writeBytes(in("file"), "x"));
    QCOMPARE(settings("set Backups/retain 7 --settings @file/a.ini").exitCode, 1);
    QCOMPARE(settings("set Backups/retain 7 --settings @no/folder/a.ini").exitCode, 1);
    QVERIFY(!QFile::exists(in("no")));
    QCOMPARE(::mkfifo(qPrintable(in("pipe")), 0600), 0);
    QVERIFY(
        settings("set Backups/retain 7 --settings @pipe").errors.contains("not a regular file"));
    QVERIFY(settings("list --settings @pipe").errors.contains("not a regular file"));
    QCOMPARE(settings("set Backups/retain 7 --settings ␠").exitCode, 2);
    QVERIFY(!QFile::exists(in("home")));
    QCOMPARE(settings("list retain --settings @none.ini").exitCode, 1);
}

QTEST_GUILESS_MAIN(tst_MrvSettings)
#include "tst_mrvsettings.moc"
