#include "commandline.h"
#include "support.h"

#include <cstdio>

Q_DECLARE_METATYPE(const Command *)

namespace {

bool takes(const Verb &verb, const Option &option)
{
    return !option.verbs || words(option.verbs).contains(verb.name);
}

QVector<Option> optionsOf(const Command &command)
{
    QVector<Option> options;
    for (const Rows<Option> &group : command.options) {
        std::copy(group.begin(), group.end(), std::back_inserter(options));
    }
    return options;
}

// The name of an argument without what says how often it may be given.
QString plain(QString argument)
{
    return argument.remove(QRegularExpression("[][.]"));
}

QStringList wrongValues(const Option &option)
{
    const QString below = QString::number(option.least - 1, 'f', 0);
    const QString above = QString::number(option.most + 1, 'f', 0);
    switch (option.kind) {
    case Option::Integer:
        return {"", "0.5", below, above};
    case Option::Number:
        return {"", "nan", below, above};
    case Option::Choice:
        return {"", words(option.choices).last().toUpper() + '-'};
    default:
        return option.kind == Option::Name ? QStringList("") : QStringList();
    }
}

} // namespace

/** The frame of the tool: what holds for each command by the tables. */
class TestMrvCommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void help_data() { addCommands(); }

    // The help of each verb names the options that the verb takes, that of the command all of them.
    void help()
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
            for (const Option &option : optionsOf(*command)) {
                const QString name = "--" + words(option.names).last();
                QVERIFY(all.contains(name));
                if (takes(verb, option)) {
                    QVERIFY2(own.contains(name), qPrintable(own));
                }
            }
        }
    }

    void refusals_data() { addCommands(); }

    void refusals()
    {
        QFETCH(const Command *, command);
        const QString first = command->verbs.begin()->name;
        if (command->hasVerbs()) {
            compareError(*command, {}, "a verb is missing: " + first);
            compareError(*command, {first + 'x'},
                         QString("unknown verb '%1x'; did you mean '%1'?").arg(first));
        }
        for (const Verb &verb : command->verbs) {
            const QStringList names = words(verb.arguments);
            const QStringList needed = names.filter(QRegularExpression("^[^[]"));
            const QStringList call = words(verb.name) + needed;
            const auto refuses = [&](const QStringList &arguments, const QString &error) {
                compareError(*command, words(verb.name) + arguments, error);
            };
            compareError(*command, call, QString());
            refuses(needed + QStringList("--jsn"),
                    "unknown option '--jsn'; did you mean '--json'?");
            if (!needed.isEmpty()) {
                refuses(needed.mid(1), plain(names.at(needed.size() - 1)) + " is missing");
            }
            if (!QString(verb.arguments).contains("...")) {
                refuses(names + QStringList("y"), "'y' is one argument too many");
            }
            if (!names.isEmpty() && plain(names.first()) != "WORD") {
                refuses(QStringList("") + needed.mid(1), plain(names.first()) + " is empty");
            }
            for (const Option &option : optionsOf(*command)) {
                checkOption(*command, verb, call, option);
            }
        }
        for (const Option &option : optionsOf(*command)) {
            for (const QString &name : words(option.verbs)) {
                Call call;
                readCall(*command, {command->name, name}, &call);
                QVERIFY2(call.verb, qPrintable(name)); // else it is misspelt
            }
        }
    }

    void examples_data() { addCommands(); }

    void examples()
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
    void terminal()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath("a\x1b[31m.txt");
        QVERIFY(writeBytes(file, "x \x1b[32m\n"));
        const QStringList arguments{"find", "x", file};
        QCOMPARE(run(MRV_TOOL, arguments).output, file + ":1: x \x1b[32m\n");
        const Ran shown = run(
            "script",
            {"-qec", MRV_TOOL " find x \"$NAMED\"; " MRV_TOOL " find x \"$NAMED.md\"", "/dev/null"},
            {"NAMED=" + file, "NO_COLOR=1"});
        QVERIFY2(shown.output.contains("a\\x1b[31m.txt:1: x \\x1b[32m\r\n"),
                 qPrintable(shown.output));
        QVERIFY2(!shown.output.contains("\x1b[3"), qPrintable(shown.output));
    }

private:
    // What is wrong before any command runs; an empty error goes on.
    static void compareError(const Command &command, const QStringList &arguments,
                             const QString &error)
    {
        QTemporaryFile errors;
        QVERIFY(errors.open());
        QVERIFY(std::freopen(qPrintable(errors.fileName()), "w", stderr));
        Call call;
        const int code = readCall(command, QStringList(command.name) + arguments, &call);
        std::fflush(stderr);
        const QString all = QString::fromUtf8(bytesOf(errors.fileName()));
        QVERIFY2(all.contains(error), qPrintable(arguments.join(' ') + ": " + all));
        QCOMPARE(all.count('\n'), int(!error.isEmpty()));
        QCOMPARE(code, error.isEmpty() ? -1 : int(WrongUsage));
    }

    // Verbs refuse an option of which no row says that they take it, and values of another kind.
    static void checkOption(const Command &command, const Verb &verb, const QStringList &call,
                            const Option &option)
    {
        const QStringList names = words(option.names);
        const QString name = "--" + names.at(names.first().size() == 1);
        const QString value = option.choices ? words(option.choices).first() : QString("1");
        const QStringList given = call + QStringList(name)
            + (option.kind == Option::Flag ? QStringList() : QStringList(value));
        const QVector<Option> options = optionsOf(command);
        const bool isTaken = std::any_of(options.begin(), options.end(), [&](const Option &row) {
            return words(row.names) == names && takes(verb, row);
        });
        compareError(command, given,
                     isTaken ? QString() : verb.name + (" takes no option '" + name) + '\'');
        if (takes(verb, option) && option.kind != Option::Flag) {
            compareError(command, call + QStringList(name), name + ": needs a value");
            for (const QString &wrong : wrongValues(option)) {
                const QString error =
                    wrong.isEmpty() ? "needs a value" : '\'' + wrong + "' is not ";
                compareError(command, call + QStringList{name, wrong}, name + ": " + error);
            }
        }
    }

    static void addCommands()
    {
        QTest::addColumn<const Command *>("command");
        for (const Command *command : commands()) {
            QTest::newRow(command->name) << command;
        }
    }
};

QTEST_GUILESS_MAIN(TestMrvCommandLine)
#include "tst_mrvcommandline.moc"
