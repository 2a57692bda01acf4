#include "mrvtool.h"

#include "autoreplace/mrvautoreplacelist.h"

#include <QSettings>

#include <array>

/** "mrv autoreplace". */
class TestMrvAutoReplace : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data()
    {
        addRows("mrv-autoreplace.tsv", {"case", "before", "arguments", "code", "output", "error"});
    }

    // What "before" does (several commands are separated by "; ") counts for the list in the same
    // file; the input is "before" when the command is to show what it replaces.
    void commands()
    {
        QFETCH(QString, before);
        QFETCH(QString, arguments);
        QVERIFY(writeBytes(in("settings.ini"), {}));
        const bool shows = arguments.startsWith("show");
        for (const QString &command : before.split("; ", Qt::SkipEmptyParts)) {
            if (!shows) {
                QCOMPARE(edit(command).exitCode, 0);
            }
        }
        const Ran ran = edit(arguments, shows ? before.toUtf8() : QByteArray());
        compareOutput(ran);
        compareEnd(ran);
    }

    // One line as long as a novel; the entries show what was replaced, not what a match was made
    // of.
    void longLine()
    {
        QCOMPARE(edit("add ab ba").exitCode, 0);
        const QByteArray line = "aa" + QByteArray("b").repeated(1000000);
        const Ran ran = edit("show -", line);
        // Each b that is typed after an a goes before it: "aab" is "aba", and so on.
        QCOMPARE(ran.output.count('\n'), line.size() - 2);
        QCOMPARE(ran.output.section('\n', 1, 1), QString("-:1:2: “ab” -> “ba”"));
    }

    // Each takes the list as it finds it, and puts it back.
    void manyAtOnce()
    {
        std::array<QProcess, 12> processes;
        for (QProcess &process : processes) {
            process.start(MRV_TOOL,
                          {"autoreplace", "add", QString("m%1").arg(&process - &processes[0]), "r",
                           "--settings", in("settings.ini")});
        }
        for (QProcess &process : processes) {
            QVERIFY(process.waitForFinished());
            QCOMPARE(process.exitCode(), 0);
        }
        QCOMPARE(edit("list").output.count("“m"), 12);
        QCOMPARE(QDir().entryList(QDir::Files | QDir::Hidden), {"settings.ini"});
    }

    // What is left of a damaged list is shown, but nothing is stored in its place.
    void damagedList()
    {
        const QString settings = in("settings.ini");
        const QString key = "Options/AutoCorrection/substitutionList";
        const QByteArray whole = MRVAutoReplaceList::defaultReplacementsByteArray();
        for (const QByteArray &damaged :
             {whole.left(100), '\1' + whole.mid(1), QByteArray("text")}) {
            QSettings(settings, QSettings::IniFormat).setValue(key, damaged);
            for (const char *change : {"add x y", "remove (c)", "enable 1/2", "disable (c)"}) {
                QVERIFY(edit(change).errors.contains("@settings.ini"));
            }
            QCOMPARE(QSettings(settings, QSettings::IniFormat).value(key).toByteArray(), damaged);
            const Ran list = edit("list");
            QCOMPARE(list.exitCode, 1);
            QVERIFY2(list.errors.contains("@settings.ini"), qPrintable(list.errors));
            QVERIFY2(list.output.startsWith("on  “(c)”"), qPrintable(list.output));
            QCOMPARE(edit("show -", "(c)").exitCode, 1);
            QCOMPARE(edit("reset").exitCode, 0);
            QCOMPARE(edit("add x y").exitCode, 0);
        }
    }

private:
    Ran edit(const QString &arguments, const QByteArray &input = {}) const
    {
        return mrv("autoreplace " + arguments + " --settings @settings.ini", input);
    }
};

QTEST_APPLESS_MAIN(TestMrvAutoReplace)

#include "tst_mrvautoreplace.moc"
