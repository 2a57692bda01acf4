#include "commandline.h"
#include "support.h"

/** The frame of the tool: what holds for each command by the tables. */
class TestMrvCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void help_data() { addCommands(); }
    void help();
    void refusals_data() { addCommands(); }
    void refusals();
    void examples_data() { addCommands(); }
    void examples();
    void terminal();

private:
    static void addCommands()
    {
        QTest::addColumn<const Command *>("command");
        for (const Command *command : commands()) {
            QTest::newRow(command->name) << command;
        }
    }
};
Q_DECLARE_METATYPE(const Command *)

// The help of each verb names the options that the verb takes, that of the command all of them.
void TestMrvCommandLine::help()
{
    QFETCH(const Command *, command);
    const QString all = helpOf(*command, nullptr);
    QVERIFY(toolHelp().contains(QString("\n  ") + command->name + ' '));
    for (const QString &line : all.split('\n')) {
        QVERIFY2(line.size() < 80, qPrintable(line));
    }
    for (const Verb &verb : command->verbs) {
        const QString own = helpOf(*command, command->hasVerbs() ? &verb : nullptr);
        QVERIFY2(own.startsWith("Usage: " + usageOf(*command, verb) + " [OPTIONS]\n"),
                 qPrintable(own));
        QVERIFY(all.contains(verb.name));
        for (const Rows<Option> &group : command->options) {
            for (const Option &option : group) {
                const QString name = "--" + words(option.names).last();
                const bool takes = !option.verbs || words(option.verbs).contains(verb.name);
                QVERIFY(all.contains(name));
                if (takes) {
                    QVERIFY2(own.contains(name), qPrintable(own));
                }
            }
        }
    }
}

// Each option is refused by the verbs of which no row says that they take it.
void TestMrvCommandLine::refusals()
{
    QFETCH(const Command *, command);
    QMap<QString, QStringList> takers; // by the option's name
    QMap<QString, bool> flags;
    for (const Rows<Option> &group : command->options) {
        for (const Option &option : group) {
            const QString name = words(option.names).last();
            for (const Verb &verb : command->verbs) {
                if (!option.verbs || words(option.verbs).contains(verb.name)) {
                    takers[name] += verb.name;
                }
            }
            QVERIFY2(!takers.value(name).isEmpty(), qPrintable(name)); // a misspelt verb
            QCOMPARE(flags.value(name, option.kind == Option::Flag), option.kind == Option::Flag);
            flags[name] = option.kind == Option::Flag;
        }
    }
    for (const Verb &verb : command->verbs) {
        for (auto it = takers.cbegin(); it != takers.cend(); ++it) {
            if (it->contains(verb.name)) {
                continue;
            }
            const QString option = "--" + it.key();
            const Ran ran = run(MRV_TOOL,
                                QStringList{command->name, verb.name, option}
                                    + (flags[it.key()] ? QStringList() : QStringList("1")));
            QCOMPARE(ran.exitCode, int(WrongUsage));
            QVERIFY2(ran.errors.contains(verb.name + (" takes no option '" + option) + '\''),
                     qPrintable(ran.errors));
        }
    }
}

void TestMrvCommandLine::examples()
{
    QFETCH(const Command *, command);
    const QString examples = QString::fromUtf8(command->examples);
    for (const QString &example : examples.split('\n')) {
        Call call;
        QCOMPARE(readCall(*command, QProcess::splitCommand(example), &call), -1);
        QCOMPARE(call.command, command);
    }
}

// What a file or its name holds must not steer the terminal; a pipe gets it as it is.
void TestMrvCommandLine::terminal()
{
    QTemporaryDir folder;
    const QString file = folder.filePath("a\x1b[31m.txt");
    QVERIFY(writeBytes(file, "x \x1b[32m\n"));
    const QStringList arguments{"find", "x", file};
    QCOMPARE(run(MRV_TOOL, arguments).output, file + ":1: x \x1b[32m\n");
    const Ran shown =
        run("script",
            {"-qec", MRV_TOOL " find x \"$NAMED\"; " MRV_TOOL " find x \"$NAMED.md\"", "/dev/null"},
            {"NAMED=" + file, "NO_COLOR=1"});
    QVERIFY2(shown.output.contains("a\\x1b[31m.txt:1: x \\x1b[32m\r\n"), qPrintable(shown.output));
    QVERIFY2(!shown.output.contains("\x1b[3"), qPrintable(shown.output));
}

QTEST_GUILESS_MAIN(TestMrvCommandLine)
#include "tst_mrvcommandline.moc"
