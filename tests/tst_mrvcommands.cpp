#include "mrvtool.h"

#include "archive/mrvdocumentarchive.h"
#include "shortcuts/mrvshortcutscheme.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QTextCodec>
#include <QTextDocument>

#include <cerrno>

#include <sys/stat.h>

using Scheme = MRVShortcutScheme;

/** Commands of the tool that answer one call at a time. */
class TestMrvCommands : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void find_data() { addCalls("mrv-find.tsv"); }
    void find()
    {
        compareRow();
        const bool kept = !cell("after").isEmpty() && !cell("arguments").contains("--no-backup");
        QCOMPARE(QString::fromUtf8(bytesOf(in(cell("file") + '~'))),
                 kept ? cell("source") : QString());
    }

    void replacesAllOrNone()
    {
        QVERIFY(writeBytes(in("a.txt"), "word"));
        QVERIFY(writeBytes(in("b.html"), "<p>word</p>"));
        const Ran ran = mrv("replace -E word$ new\\nline @a.txt @b.html");
        QCOMPARE(ran.exitCode, 1);
        QVERIFY2(ran.errors.contains("b.html"), qPrintable(ran.errors));
        QCOMPARE(bytesOf(in("a.txt")), QByteArray("word"));
        QVERIFY(!QFile::exists(in("a.txt~")));
    }

    void replacesIntoOtherOutput()
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

    void searchesFolders()
    {
        QVERIFY(QDir().mkpath("d/e/.hidden") && QDir().mkdir("none"));
        for (const char *file :
             {"d/z.txt", "d/e/b.md", "d/e/.hidden/c.md", "d/e/b.bin", "d/README", "d/e/b.md~"}) {
            QVERIFY(writeBytes(in(file), "mill"));
        }
        QVERIFY(QFile::link(in("d/z.txt"), in("d/link.txt")));
        QCOMPARE(mrv("find -r mill @d").output, QString("@d/e/b.md:1: mill\n@d/z.txt:1: mill\n"));
        QCOMPARE(mrv("find mill @d").exitCode, 1);
        QVERIFY(mrv("find -r mill @none").errors.contains("no manuscripts"));
        QVERIFY(writeBytes(in("d/e/x.docx"), "no document"));
        QCOMPARE(mrv("replace -r --no-backup mill ship @d").exitCode, 0);
        QCOMPARE(bytesOf(in("d/e/b.md")) + bytesOf(in("d/e/.hidden/c.md")), QByteArray("shipmill"));
    }

    void findsInNativeDocuments()
    {
        QVERIFY(MRVDocumentArchive().write(QTextDocument("mill"), in("a.mrvdoc")));
        QCOMPARE(mrv("find mill @a.mrvdoc").output, QString("@a.mrvdoc:1: mill\n"));
        const QByteArray bytes = bytesOf(in("a.mrvdoc"));
        QCOMPARE(mrv("find mill - --from mrvdoc", bytes).output, QString("-:1: mill\n"));
        QCOMPARE(mrv("replace --no-backup mill ship @a.mrvdoc").exitCode, 1);
        QCOMPARE(bytesOf(in("a.mrvdoc")), bytes);
    }

    void formats_data() { addCalls("mrv-formats.tsv"); }
    void formats() { compareRow(); }

    // A choice is stored beside the others, so that they stay what they are.
    void setsAndResetsEngines()
    {
        QVERIFY(writeBytes(in("new.ini"), {}));
        const QString before = mrv("engines list --settings @new.ini").output;
        QCOMPARE(before.count('\n'), 26);
        QCOMPARE(mrv("engines set rtf doc doc2anyinternalengine --settings @new.ini").exitCode, 0);
        const QString after = mrv("engines list --settings @new.ini").output;
        const auto engines = [](QString output) {
            return output.remove(QRegularExpression(" \\([^)]*\\)"));
        };
        QCOMPARE(engines(after),
                 engines(before).replace("RTF -> DOC: RtfBasedDoc",
                                         "RTF -> DOC: Doc2AnyInternalEngine"));
        QVERIFY(after.contains("RTF -> PDF: QtEngine (it is the stored choice)\n"));
        QVERIFY(after.contains("DOCX -> RTF: SubSystemsEngine (it is the default"));
        QVERIFY(bytesOf(in("new.ini")).contains("Import\\exportFormatConverters"));
        QCOMPARE(mrv("engines reset --settings @new.ini").exitCode, 0);
        QCOMPARE(mrv("engines list --settings @new.ini").output, before);
        QCOMPARE(mrv("engines set rtf ps QtEngine --settings @new.ini/s.ini").exitCode, 1);
        QVERIFY(mrv("engines list --settings @typo.ini")
                    .errors.startsWith("mrv: engines: @typo.ini: "));
    }

    void script_data() { addCalls("mrv-script.tsv"); }
    void script() { compareRow(); }

    // What one call writes, another one checks.
    void writesModes()
    {
        QVERIFY(writeBytes(in("play.xml"), {}));
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(mrv("script show UK␣Stage␣Play --units in -o @play.xml").exitCode, 0);
        }
        QVERIFY(bytesOf(in("play.xml")).contains("<Units>Inches</Units>"));
        QCOMPARE(mrv("script check @play.xml").exitCode, 0);
    }

    void renamesInEncoding()
    {
        const QString path = in("a.fountain");
        for (const char *codec : {"UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE"}) {
            const auto bytes = [codec](const char *text) {
                const QString marked = QChar(QChar::ByteOrderMark) + QString(text);
                QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
                return QTextCodec::codecForName(codec)->fromUnicode(marked.constData(),
                                                                    marked.size(), &state);
            };
            QVERIFY(writeBytes(path, bytes("BOB\r\n  Hi.")));
            const Ran ran = mrv("script rename Bob Rob @a.fountain -o @a.fountain");
            QVERIFY2(ran.exitCode == 0, qPrintable(ran.errors));
            QCOMPARE(bytesOf(path), bytes("ROB\r\n  Hi."));
        }
    }

    // From each format into the next, and a valid e-book from the last.
    void convertsBack()
    {
        const QString path = in("a.");
        const QByteArray script = bytesOf(MRV_SOURCE_DIR "/tests/data/script.fountain");
        QVERIFY(writeBytes(path + "fountain", script));
        QString from = "fountain";
        for (const QString to : {"html", "fdx", "spmd", "epub"}) {
            const QString files = QString("@a.%1 -o @a.%2").arg(from, to);
            const Ran ran = mrv("script convert " + files + " --language en");
            QVERIFY2(ran.exitCode == 0, qPrintable(ran.errors));
            from = to;
        }
        QCOMPARE(QString(bytesOf(path + "spmd")), QString(script));
        // Names are changed in place where that loses nothing.
        for (const QString format : {"html", "fdx"}) {
            const Ran ran = mrv(QString("script rename Ann Ben @a.%1 -o @a.%1").arg(format));
            QVERIFY2(ran.exitCode == 0, qPrintable(ran.errors));
        }
        QCOMPARE(epubErrors(path + "epub"), QString());
        // The same day, the same bytes; and another day tells that it was that day.
        QByteArray books[3];
        for (const int day : {0, 1, 2}) {
            const QString second = QString::number(day / 2 * 86400);
            const Ran ran =
                mrv("SOURCE_DATE_EPOCH=" + second + " script convert @a.fdx -o @a.epub");
            QCOMPARE(ran.exitCode, 0);
            books[day] = bytesOf(path + "epub");
        }
        QCOMPARE(books[0], books[1]);
        QVERIFY(books[1] != books[2]);
        QCOMPARE(mrv("SOURCE_DATE_EPOCH=abc script convert @a.fdx -o @a.epub").exitCode, 2);
    }

    void settings_data() { addCalls("mrv-settings.tsv"); }
    void settings() { compareRow(); }

    void usersOwnSettings()
    {
        QCOMPARE(mrv("settings set Backups/retain 7").exitCode, 0);
        QCOMPARE(bytesOf(in("home/Morvane/Morvane.conf")),
                 QByteArray("[Options]\nBackups\\retain=7\n"));
        QCOMPARE(mrv("settings changed").output, QString("Backups/retain = 7 (default: 5)\n"));
        QVERIFY(mrv("settings explain Backups/retain")
                    .output.contains("from     @home/Morvane/Morvane.conf\n"));
        const QByteArray harm =
            "[Options]\nBackups\\retain=@Variant(\\0\\0\\0G\\x7f\\xff\\xff\\xf0)\n";
        QVERIFY(writeBytes(in("home/Morvane/Morvane.conf"), harm));
        QCOMPARE(mrv("settings get Backups/retain").output, QString("5\n"));
        QVERIFY(!QFile::exists(in("home/Morvane/Morvane.conf.damaged")));
        QCOMPARE(bytesOf(in("home/Morvane/Morvane.conf")), harm);
        // Where it cannot be copied, it is not replaced.
        const Ran ran =
            run("sh",
                {"-c", "trap '' XFSZ; ulimit -f 0; exec \"$0\" settings set Backups/retain 8",
                 MRV_TOOL},
                {"XDG_CONFIG_HOME=" + in("home")});
        QCOMPARE(ran.exitCode, 1);
        QCOMPARE(bytesOf(in("home/Morvane/Morvane.conf")), harm);
        QCOMPARE(mrv("settings set Backups/retain 8").exitCode, 0);
        QCOMPARE(bytesOf(in("home/Morvane/Morvane.conf.damaged")), harm);
    }

    void exportsAndImportsSettings()
    {
        QCOMPARE(
            mrv("settings set AutoCorrection/personalWords Möwe a,b --settings @a.ini").exitCode,
            0);
        QCOMPARE(mrv("settings set General/smartQuotes no --settings @a.ini").exitCode, 1);
        QCOMPARE(mrv("settings export @b.ini --settings @a.ini").exitCode, 0);
        QCOMPARE(mrv("settings set Backups/retain 7 --settings @a.ini").exitCode, 0);
        QCOMPARE(mrv("settings import @b.ini --settings @a.ini").exitCode, 0);
        QCOMPARE(mrv("settings changed --settings @a.ini").output,
                 QString("AutoCorrection/personalWords = Möwe, a,b (default: )\n"));
    }

    void importsUsableSettings()
    {
        QVERIFY(writeBytes(in("b.ini"), "[Options]\nBackups\\onSave=true\nBackups\\retain=-5\n"));
        const Ran some = mrv("settings import @b.ini --settings @a.ini");
        QCOMPARE(some.exitCode, 1);
        QVERIFY2(some.errors.contains("Backups/retain is left out: -5 (limits: "),
                 qPrintable(some.errors));
        QCOMPARE(bytesOf(in("a.ini")), QByteArray("[Options]\nBackups\\onSave=true\n"));
        const Ran all = mrv("settings import @b.ini --settings @a.ini --keep-invalid");
        QCOMPARE(all.exitCode, 0);
        QCOMPARE(bytesOf(in("a.ini")), bytesOf(in("b.ini")));
        // Where nothing is left, nothing is replaced.
        QVERIFY(writeBytes(in("c.ini"), "[Options]\nBackups\\retain=-5\n"));
        QCOMPARE(mrv("settings import @c.ini --settings @a.ini").exitCode, 1);
        QCOMPARE(bytesOf(in("a.ini")), bytesOf(in("b.ini")));
    }

    // What cannot be read replaces nothing, and nothing is written over a file of another kind.
    void losesNoSettings()
    {
        QCOMPARE(mrv("settings set Backups/retain 7 --settings @a.ini").exitCode, 0);
        const QByteArray before = bytesOf(in("a.ini"));
        QVERIFY(writeBytes(in("novel.txt"), "It was a dark night.\nStormy.\n"));
        QVERIFY(writeBytes(in("other.ini"), "[Other]\na=1\n"));
        for (const char *file : {"@novel.txt", "@other.ini", "@none.ini", "@"}) {
            const Ran ran = mrv(QString("settings import %1 --settings @a.ini").arg(file));
            QCOMPARE(ran.exitCode, 1);
            QCOMPARE(ran.errors.count('\n'), 1);
            QCOMPARE(bytesOf(in("a.ini")), before);
        }
        QCOMPARE(mrv("settings set Backups/retain 7 --settings @novel.txt").exitCode, 1);
        QCOMPARE(bytesOf(in("novel.txt")), QByteArray("It was a dark night.\nStormy.\n"));
        QCOMPARE(mrv("settings export @a.ini --settings @a.ini").exitCode, 1);
        QCOMPARE(mrv("settings export @novel.txt --settings @a.ini").exitCode, 1);
        QCOMPARE(mrv("presets export @novel.txt --settings @a.ini").exitCode, 1);
        QCOMPARE(mrv("script show UK␣Stage␣Play -o @novel.txt").exitCode, 1);
        QCOMPARE(bytesOf(in("novel.txt")), QByteArray("It was a dark night.\nStormy.\n"));
        QVERIFY(writeBytes(in("file"), "x"));
        QCOMPARE(mrv("settings set Backups/retain 7 --settings @file/a.ini").exitCode, 1);
        QCOMPARE(mrv("settings set Backups/retain 7 --settings @no/folder/a.ini").exitCode, 1);
        QVERIFY(!QFile::exists(in("no")));
        QCOMPARE(::mkfifo(qPrintable(in("pipe")), 0600), 0);
        QVERIFY(mrv("settings set Backups/retain 7 --settings @pipe")
                    .errors.contains("not a regular file"));
        QVERIFY(mrv("settings list --settings @pipe").errors.contains("not a regular file"));
        QCOMPARE(mrv("settings set Backups/retain 7 --settings ␠").exitCode, 2);
        QVERIFY(!QFile::exists(in("home")));
        QCOMPARE(mrv("settings list retain --settings @none.ini").exitCode, 1);
    }

    void shortcuts_data() { addCalls("mrv-shortcuts.tsv"); }
    void shortcuts()
    {
        leaveSchemes();
        compareRow();
    }

    void exportsScheme()
    {
        leaveSchemes();
        QCOMPARE(mrv("shortcuts export --settings @mine.conf --to scheme -o @out.scheme").exitCode,
                 0);
        Scheme wanted(bytesOf(in("a.scheme")), true);
        QVERIFY(Scheme::load(in("out.scheme")) == wanted);
        QCOMPARE(mrv("shortcuts export Morvane -o @missing/out").exitCode, 1);
    }

    void changesShortcuts()
    {
        leaveSchemes();
        const auto diff = [this] { return mrv("shortcuts diff --settings @mine.conf").output; };
        QCOMPARE(mrv("shortcuts set ZoomIn Ctrl+Alt+Z --settings @mine.conf").exitCode, 0);
        QCOMPARE(diff(),
                 QString("Save: “Save” -> “Keep”\n"
                         "ZoomIn: Ctrl++ -> Ctrl+Alt+Z, “Zoom In” -> “Bigger”\n"));
        QCOMPARE(mrv("shortcuts reset ZoomIn --settings @mine.conf").exitCode, 0);
        QVERIFY(diff().contains("ZoomIn: “Zoom In” -> “Bigger”\n"));
        QCOMPARE(mrv("shortcuts import @b.scheme --settings @mine.conf").exitCode, 0);
        QVERIFY(diff().contains("OpenProject: Ctrl+O -> Ctrl+S, F2"));
        QCOMPARE(mrv("shortcuts import Open␣Office --settings @mine.conf").exitCode, 0);
        QCOMPARE(diff(), QString());
        QCOMPARE(mrv("shortcuts set ZoomIn none --settings @mine.conf").exitCode, 0);
        QCOMPARE(mrv("shortcuts reset --settings @mine.conf").exitCode, 0);
        QVERIFY(!bytesOf(in("mine.conf")).contains("Shortcut"));
    }

    void xml_data() { addCalls("mrv-xml.tsv"); }
    void xml() { compareRow(); }

    void xmlCreatesFile()
    {
        QCOMPARE(mrv("xml @new.xml create a/b").exitCode, 1);
        QVERIFY(!QFile::exists(in("new.xml")));
        QCOMPARE(mrv("xml @new.xml create /a/b x␣y").exitCode, 0);
        QCOMPARE(bytesOf(in("new.xml")), QByteArray("<a>\n   <b>x y</b>\n</a>\n"));
    }

    void fileNamedLikeVerb()
    {
        QVERIFY(writeBytes(in("ls"), "<r><get>text</get></r>"));
        QCOMPARE(mrv("xml ls get get").output, QString("text\n"));
        QVERIFY(writeBytes(in("get"), "<r><get><b/></get></r>"));
        QCOMPARE(mrv("xml ls get get").output, QString("b\n"));
    }

    // The page on paths shows what the tool prints: all its examples are run, one after the other,
    // on its file.
    void xmlOneAfterTheOther()
    {
        QVERIFY(writeBytes(in("many.xml"), "<r/>"));
        std::vector<std::unique_ptr<QProcess>> all;
        for (int i = 0; i < 12; ++i) {
            all.push_back(std::make_unique<QProcess>());
            all.back()->start(MRV_TOOL,
                              {"xml", "create", in("many.xml"), "/r/e" + QString::number(i)});
        }
        for (const auto &process : all) {
            QVERIFY(process->waitForFinished(60000));
            QCOMPARE(process->exitCode(), 0);
        }
        QCOMPARE(bytesOf(in("many.xml")).count("<e"), 12);
        QVERIFY(!QFile::exists(in("many.xml.edit")));
    }

    void xmlExamples()
    {
        const QString page = QString::fromUtf8(bytesOf(MRV_SOURCE_DIR "/docs/paths.md"));
        static const QRegularExpression block("```(xml|console)\n(.*?)```",
                                              QRegularExpression::DotMatchesEverythingOption);
        static const QRegularExpression word("\"([^\"]*)\"|(\\S+)");
        int examples = 0;
        for (auto it = block.globalMatch(page); it.hasNext();) {
            const auto match = it.next();
            if (match.captured(1) == "xml") {
                QVERIFY(writeBytes(in("book.xml"), match.captured(2).toUtf8()));
                continue;
            }
            for (const QString &example :
                 ('\n' + match.captured(2)).split("\n$ mrv ", Qt::SkipEmptyParts)) {
                QStringList arguments;
                for (auto w = word.globalMatch(example.section('\n', 0, 0)); w.hasNext();) {
                    const auto argument = w.next();
                    arguments << argument.captured(argument.lastCapturedIndex());
                }
                const Ran ran = mrv(arguments);
                QCOMPARE((ran.output + ran.errors).trimmed(), example.section('\n', 1).trimmed());
                ++examples;
            }
        }
        QVERIFY(examples > 10);
    }

    void kinds_data() { addRows("mrv-kinds.tsv", {"case", "arguments", "kind"}); }

    // What --json says of the first error of a call, or of what does not end it.
    void kinds()
    {
        QVERIFY(QDir().mkdir("empty"));
        QVERIFY(writeBytes(in("page.html"), "<p>hi</p>"));
        QVERIFY(writeBytes(in("lost.html"), "<table><tr><td><ul><li>a</ul></table>"));
        QVERIFY(writeBytes(in("slow.txt"), QByteArray(5000, 'a') + "b"));
        QVERIFY(writeBytes(in("play.fountain"), "BOB\nHi.\n") && writeBytes(in("play.html"), "x"));
        QVERIFY(writeBytes(in("cut.xml"), "<a>") && writeBytes(in("whole.xml"), "<a><b/></a>"));
        QVERIFY(writeBytes(in("empty.ini"), {}));
        QVERIFY(writeBytes(in("a.ini"), "[Options]\nBackups\\retain=-5\n"));
        const QString call = QString(MRV_TOOL " %1 --json").arg(filled(cell("arguments")));
        const Ran ran = run("sh", {"-c", call},
                            {"XDG_CONFIG_HOME=" + in("home"), "XDG_DATA_HOME=" + in("home")});
        const QString line = ran.errors.section('\n', 0, 0);
        const QJsonObject object = QJsonDocument::fromJson(line.toUtf8()).object();
        const bool isNote = cell("kind") == "note";
        QVERIFY2(object.contains(isNote ? "note" : "error"), qPrintable(ran.errors));
        QCOMPARE(object.contains("error"), !isNote);
        QCOMPARE(object.value("kind").toString(isNote ? "note" : "usage"), cell("kind"));
    }

    void fullDisk_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("command"); // as the error has it
        QTest::addColumn<int>("exitCode");
        const QString update = "update @update/feed.xml --current ";
        QTest::newRow("help") << "--help"
                              << "" << 1;
        QTest::newRow("version") << "--version"
                                 << "" << 1;
        QTest::newRow("newer version") << update + "1.0.0.0"
                                       << "update: " << 3;
        QTest::newRow("none that is newer") << update + "9.9.9.9"
                                            << "update: " << 3;
        QTest::newRow("signature") << "update --key @update/key.pub --verify morvane.run"
                                   << "update: " << 3;
    }

    void fullDisk()
    {
        QFETCH(QString, arguments);
        QFETCH(QString, command);
        const QString update = MRV_SOURCE_DIR "/tests/data/update/";
        arguments.replace("@update/", update);
        QVERIFY(QFile::copy(update + "morvane.run", "morvane.run"));
        QVERIFY(QFile::copy(update + "hashed.minisig", "morvane.run.minisig"));
        const Ran ran = run("sh", {"-c", MRV_TOOL " " + arguments + " > /dev/full"}, {});
        QCOMPARE(ran.errors,
                 "mrv: " + command + "standard output cannot be written: " + qt_error_string(ENOSPC)
                     + '\n');
        QTEST(ran.exitCode, "exitCode");
    }

private:
    void leaveSchemes() const
    {
        const auto entry = [](MRVShortcut::Id id, const char *keys, const char *text) {
            return MRVShortcutInfo{id, QKeySequence(keys), text};
        };
        const auto save = entry(MRVShortcut::Save, "Ctrl+S", "Keep");
        const Scheme a(
            "A",
            Scheme::toHash({save, entry(MRVShortcut::ZoomIn, "", "Bigger"),
                            entry(MRVShortcut::NewProject, "Ctrl+G,Ctrl+N", "New Project")}));
        const Scheme b("B",
                       Scheme::toHash({save, entry(MRVShortcut::ZoomIn, "Ctrl++", "Big"),
                                       entry(MRVShortcut::OpenProject, "Ctrl+S,F2", "Open")}));
        QVERIFY(a.save(in("a.scheme")));
        QVERIFY(b.save(in("b.scheme")));
        QVERIFY(QDir().mkdir("Open Office")); // the name of a scheme, too
        const QByteArray cut = a.toByteArray().chopped(9);
        QVERIFY(writeBytes(in("cut.scheme"), cut));
        const QString key = "Options/Shortcut/defaultShortcutScheme";
        QSettings(in("mine.conf"), QSettings::IniFormat).setValue(key, a.toByteArray());
        QSettings(in("cut.conf"), QSettings::IniFormat).setValue(key, cut);
        QSettings(in("other.conf"), QSettings::IniFormat).setValue("Options/other", 1);
    }
};

QTEST_GUILESS_MAIN(TestMrvCommands)
#include "tst_mrvcommands.moc"
