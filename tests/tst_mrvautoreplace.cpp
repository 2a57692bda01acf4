#include "datarows.h"
#include "support.h"

#include "autoreplace/mrvautoreplacelist.h"

#include <QSettings>
#include <QTemporaryDir>

#include <array>

/** "mrv autoreplace", run as a stranger would. */
class TestMrvAutoReplace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data()
    {
        addRows("mrv-autoreplace.tsv", {"case", "before", "arguments", "code", "output", "error"});
    }
    void commands();
    void longLine();
    void otherFiles();
    void manyAtOnce();
    void damagedList();
};

// Blanks part arguments; "␣" is one inside of an argument.
static Ran mrv(const QString &arguments, const QString &settings, const QByteArray &input = {})
{
    QStringList list{"autoreplace"};
    for (const QString &argument : arguments.split(' ')) {
        list << QString(argument).replace(u'␣', ' ');
    }
    return run(MRV_TOOL, list << "--settings" << settings, {}, input);
}

// What "before" does (several commands are parted by "; ") counts for the list in the same file;
// the input is "before" when the command is to show what it replaces.
void TestMrvAutoReplace::commands()
{
    QFETCH(QString, before);
    QFETCH(QString, arguments);
    QFETCH(QString, error);
    QTemporaryDir folder;
    const QString settings = folder.filePath("settings.ini");
    QVERIFY(writeBytes(settings, QByteArray()));
    const bool shows = arguments.startsWith("show");
    for (const QString &command : before.split("; ", Qt::SkipEmptyParts)) {
        if (!shows) {
            QCOMPARE(mrv(command, settings).exitCode, 0);
        }
    }
    const Ran ran = mrv(arguments, settings, shows ? before.toUtf8() : QByteArray());
    QFETCH(QString, output);
    QVERIFY2(output.startsWith("...") ? ran.output.endsWith(output.mid(3)) : ran.output == output,
             qPrintable(ran.output));
    QVERIFY2(error.isEmpty() ? ran.errors.isEmpty()
                             : ran.errors.contains(error) && ran.errors.count('\n') == 1,
             qPrintable(ran.errors));
    QTEST(QString::number(ran.exitCode), "code");
}

// One line as long as a novel; the entries show what was replaced, not what a match was made of.
void TestMrvAutoReplace::longLine()
{
    QTemporaryDir folder;
    const QString settings = folder.filePath("settings.ini");
    QCOMPARE(mrv("add ab ba", settings).exitCode, 0);
    const QByteArray line = "aa" + QByteArray("b").repeated(1000000);
    const Ran ran = mrv("show -", settings, line);
    // Each b that is typed behind an a goes in front of it: "aab" is "aba", and so on.
    QCOMPARE(ran.output.count('\n'), line.size() - 2);
    QCOMPARE(ran.output.section('\n', 1, 1), QString("-:1:2: “ab” -> “ba”"));
}

// What is no settings file is neither read nor written over.
void TestMrvAutoReplace::otherFiles()
{
    QTemporaryDir folder;
    const QString prose = folder.filePath("prose.txt");
    QVERIFY(writeBytes(prose, "Call me Ishmael.\n"));
    for (const QString &arguments : {QString("list"), QString("add x y")}) {
        const Ran ran = mrv(arguments, prose);
        QCOMPARE(ran.exitCode, 1);
        QVERIFY(ran.errors.contains(prose));
    }
    QCOMPARE(bytesOf(prose), QByteArray("Call me Ishmael.\n"));
    QCOMPARE(mrv("list", folder.filePath("missing.ini")).exitCode, 1);
}

// Each takes the list as it finds it, and puts it back.
void TestMrvAutoReplace::manyAtOnce()
{
    QTemporaryDir folder;
    const QString settings = folder.filePath("settings.ini");
    std::array<QProcess, 12> processes;
    for (QProcess &process : processes) {
        process.start(MRV_TOOL,
                      {"autoreplace", "add", QString("m%1").arg(&process - &processes[0]), "r",
                       "--settings", settings});
    }
    for (QProcess &process : processes) {
        QVERIFY(process.waitForFinished() && process.exitCode() == 0);
    }
    QCOMPARE(mrv("list", settings).output.count("“m"), 12);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), {"settings.ini"});
}

// What is left of a damaged list is shown, but nothing is stored in its place.
void TestMrvAutoReplace::damagedList()
{
    QTemporaryDir folder;
    const QString settings = folder.filePath("settings.ini");
    const QString key = "Options/AutoCorrection/substitutionList";
    const QByteArray whole = MRVAutoReplaceList::defaultReplacementsByteArray();
    for (const QByteArray &damaged : {whole.left(100), '\1' + whole.mid(1), QByteArray("text")}) {
        QSettings(settings, QSettings::IniFormat).setValue(key, damaged);
        for (const char *edit : {"add x y", "remove (c)", "enable 1/2", "disable (c)"}) {
            QVERIFY(mrv(edit, settings).errors.contains(settings));
        }
        QCOMPARE(QSettings(settings, QSettings::IniFormat).value(key).toByteArray(), damaged);
        const Ran list = mrv("list", settings);
        QVERIFY(list.exitCode == 1 && list.errors.contains(settings));
        QVERIFY(list.output.startsWith("on  “(c)”"));
        QCOMPARE(mrv("show -", settings, "(c)").exitCode, 1);
        QCOMPARE(mrv("reset", settings).exitCode, 0);
        QCOMPARE(mrv("add x y", settings).exitCode, 0);
    }
}

QTEST_APPLESS_MAIN(TestMrvAutoReplace)

#include "tst_mrvautoreplace.moc"
