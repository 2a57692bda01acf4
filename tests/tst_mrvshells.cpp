#include "commandline.h"
#include "errorkinds.h"
#include "mrvtool.h"

Q_DECLARE_METATYPE(const Command *)

/** What the tool's tables give to shells and to readers of manual pages. */
class TestMrvShells : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void bash_data() { addRows("mrv-completion.tsv", {"case", "words", "output"}); }

    void bash()
    {
        // Outside of a completion bash refuses to change its options.
        const QString script = QStringLiteral(
            "options=(); compopt() { options+=(\"$@\"); }; source \"$1\"; shift;"
            "COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); last=\"${*: -1}\";"
            "[ \"$last\" != = ] || last=; _mrv \"$1\" \"${last#\\'}\" \"\";"
            "printf '%s|' \"${COMPREPLY[@]}\" / | sed 's,/|$,/,'; echo \" ${options[*]}\"");
        if (cell("words").contains("mine.ini")) {
            QCOMPARE(mrv("presets set Mine size=18 --settings @mine.ini").errors, QString());
        }
        QStringList arguments{"--norc", "-c", script, "bash", completions() + "/mrv.bash"};
        arguments += cell("words").startsWith('~') ? QStringList() : QStringList(MRV_TOOL);
        for (const QString &word : cell("words").split(' ')) {
            arguments.append(filled(word));
        }
        Ran ran = run("bash", arguments,
                      {"XDG_CONFIG_HOME=" + in(""), "XDG_DATA_HOME=" + in(""), home()});
        QCOMPARE(ran.errors, QString());
        ran.output.chop(1);
        compareOutput(ran);
    }

    // A real shell completes what is typed; ^X prints the line that this gives.
    void zsh()
    {
        const QStringList typed{"mrv exp",
                                "mrv export --strict --no-im",
                                "mrv export --to=ep",
                                "mrv settings get Backups/ret",
                                "mrv script show \"US Scr",
                                "mrv script show US\\ Scr",
                                "mrv export a-fi",
                                "mrv export -o a-fo",
                                "~/mrv exp"};
        const QString script = QStringLiteral(
            "zmodload zsh/zpty; zpty shell TERM=dumb zsh -f -i;"
            "zpty -w shell \"PS1='ready> '; fpath=(${(q)1} \\$fpath); autoload -Uz compinit;"
            " compinit -D -u; show() { print -r -- \\\"[\\$BUFFER]\\\"; BUFFER= };"
            " zle -N show; bindkey '^X' show; print go\"; shift;"
            "zpty -r shell shown $'*go\\r\\n*ready> *';"
            "for line; do zpty -w -n shell $line$'\\t\\x18'; zpty -r shell shown '*\\[*\\]*';"
            " print -r -- ${${shown##*\\[}%%\\]*}; done; zpty -d shell");
        QVERIFY(writeBytes(in("a-file.md"), "text"));
        QVERIFY(QDir().mkpath(in("a-folder")));
        const QString path = QFileInfo(MRV_TOOL).path() + ':' + qEnvironmentVariable("PATH");
        const Ran ran = run("zsh", QStringList{"-f", "-c", script, "zsh", completions()} + typed,
                            {"PATH=" + path, "ZDOTDIR=" + in(""), home()});
        QCOMPARE(ran.output,
                 QString("mrv export \n"
                         "mrv export --strict --no-images \n"
                         "mrv export --to=epub \n"
                         "mrv settings get Backups/retain \n"
                         "mrv script show \"US Screenplay\" \n"
                         "mrv script show US\\ Screenplay \n"
                         "mrv export a-file.md \n"
                         "mrv export -o a-folder/\n"
                         "~/mrv export \n"));
    }

    void manuals()
    {
        const QByteArray date = "SOURCE_DATE_EPOCH=1456704000";
        QStringList pages{in("mrv.1")};
        for (const Command *command : commands()) {
            pages.append(in(QString("mrv-%1.1").arg(command->name)));
        }
        QMap<QString, QByteArray> before;
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(mrv({"--manual", in("")}, {}, {date}).errors, QString());
            QCOMPARE(contentsBelow(in("")).size(), pages.size());
            QVERIFY(before.isEmpty() || contentsBelow(in("")) == before);
            before = contentsBelow(in(""));
        }
        const Ran checked = run("mandoc", QStringList{"-Tlint", "-Wwarning"} + pages);
        QCOMPARE(checked.output + checked.errors, QString());
        QVERIFY(before.value("mrv.1").startsWith(".Dd February 29, 2016\n"));
        QCOMPARE(mrv({"--manual", in("missing/")}).exitCode, 1);
    }

    void manualPage_data()
    {
        QTest::addColumn<const Command *>("command");
        for (const Command *command : commands()) {
            QTest::newRow(command->name) << command;
        }
    }

    /** As a reader sees it: all verbs and options, and the examples as they are to be typed. */
    void manualPage()
    {
        QFETCH(const Command *, command);
        const QString shown = shownPage(QString("mrv-") + command->name);
        QStringList texts = QString::fromUtf8(command->examples)
                                .split('\n')
                                .replaceInStrings(QRegularExpression("^"), "mrv ");
        for (const Verb &verb : command->verbs) {
            texts << usageOf(*command, verb).section(' ', 0, command->hasVerbs() ? 2 : 1);
            texts << QString::fromUtf8(verb.help).mid(1);
        }
        for (const Option *option : command->optionsOf()) {
            texts << option->spellings().join(", ");
        }
        for (const QString &text : qAsConst(texts)) {
            QVERIFY2(shown.contains(text), qPrintable(text));
        }
    }

    void toolPage()
    {
        const QString shown = shownPage("mrv");
        const QByteArray document = bytesOf(MRV_SOURCE_DIR "/docs/tool.md");
        for (const ErrorKindRow &row : errorKinds) {
            QVERIFY2(shown.contains(QString("\n     %1").arg(row.name)), row.name);
            QVERIFY2(shown.contains(row.means), row.name);
            QVERIFY2(document.contains(QByteArray("`") + row.name + '`'), row.name);
        }
        for (const char *file : {"~/.config/Morvane/Morvane.conf", "/usr/share/doc/mrv/tool.md",
                                 "/usr/share/doc/mrv/paths.md", "/usr/share/doc/mrv/scripts.md"}) {
            QVERIFY2(shown.contains(file), file);
        }
    }

private:
    /** A manual page without what makes letters bold or underlined: each is typed twice. */
    QString shownPage(const QString &name) const
    {
        const Ran made = mrv({"--manual", in("")});
        Ran shown = run("mandoc", {"-Tutf8", "-Owidth=500", in(name + ".1")});
        return made.errors + shown.output.remove(QRegularExpression(".\b"));
    }

    // So that "~/mrv" is the tool.
    static QString home() { return "HOME=" + QFileInfo(MRV_TOOL).path(); }
    static QString completions() { return MRV_SOURCE_DIR "/cli/completion"; }
};

QTEST_GUILESS_MAIN(TestMrvShells)
#include "tst_mrvshells.moc"
