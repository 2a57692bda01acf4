#include "datarows.h"
#include "support.h"

#include <QTemporaryDir>
#include <QTextCodec>

/** The tool's commands for measures and script modes, run as a stranger would. */
class tst_MrvScript : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data()
    {
        addRows("mrv-script.tsv", {"case", "arguments", "file", "code", "output", "error"});
    }
    void commands();
    void written();
    void scripts_data()
    {
        addRows("mrv-fountain.tsv", {"case", "arguments", "file", "code", "output", "error"});
    }
    void scripts();
    void renamedInEncoding();
    void convertedBack();

private:
    void runRow(const QString &name);
};

void tst_MrvScript::commands()
{
    runRow("mode.xml");
}

void tst_MrvScript::scripts()
{
    runRow("a.fountain");
}

void tst_MrvScript::runRow(const QString &name)
{
    QFETCH(QString, arguments);
    QFETCH(QString, file);
    QFETCH(QString, output);
    QFETCH(QString, error);
    QTemporaryDir folder;
    const QString path = folder.path() + '/';
    QVERIFY(writeBytes(path + name, file.toUtf8()));
    QStringList list = arguments.split(' ');
    for (QString &argument : list) {
        argument.replace('@', path).replace(u'␣', ' ').replace(u'␤', '\n');
    }
    Ran ran = run(MRV_TOOL, list);
    ran.output.replace(path, "@");
    QVERIFY2(output.isEmpty() ? ran.output.isEmpty() : ran.output.contains(output),
             qPrintable(ran.output));
    QVERIFY2(error.isEmpty() ? ran.errors.isEmpty()
                             : ran.errors.contains(error) && ran.errors.count('\n') == 1,
             qPrintable(ran.errors));
    QTEST(QString::number(ran.exitCode), "code");
}

// What one call writes, another one checks.
void tst_MrvScript::written()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("play.xml");
    QCOMPARE(
        run(MRV_TOOL, {"script", "show", "UK Stage Play", "--units", "in", "-o", path}).exitCode,
        0);
    QVERIFY(bytesOf(path).contains("<Units>Inches</Units>"));
    QCOMPARE(run(MRV_TOOL, {"script", "check", path}).exitCode, 0);
}

void tst_MrvScript::renamedInEncoding()
{
    QTemporaryDir folder;
    const QString path = folder.filePath("a.fountain");
    for (const char *codec : {"UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE"}) {
        const auto bytes = [codec](const char *text) {
            const QString marked = QChar(QChar::ByteOrderMark) + QString(text);
            QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
            return QTextCodec::codecForName(codec)->fromUnicode(marked.constData(), marked.size(),
                                                                &state);
        };
        QVERIFY(writeBytes(path, bytes("BOB\r\n  Hi.")));
        const Ran ran = run(MRV_TOOL, {"script", "rename", "Bob", "Rob", path, "-o", path});
        QVERIFY2(ran.exitCode == 0, qPrintable(ran.errors));
        QCOMPARE(bytesOf(path), bytes("ROB\r\n  Hi."));
    }
}

// From each format into the next, and a sound e-book from the last.
void tst_MrvScript::convertedBack()
{
    QTemporaryDir folder;
    const QString path = folder.path() + "/a.";
    const QByteArray script = bytesOf(MRV_SOURCE_DIR "/tests/data/script.fountain");
    QVERIFY(writeBytes(path + "fountain", script));
    QString from = "fountain";
    for (const QString to : {"html", "fdx", "spmd", "epub"}) {
        const Ran ran =
            run(MRV_TOOL, {"script", "convert", path + from, "-o", path + to, "--language", "en"});
        QVERIFY2(ran.exitCode == 0, qPrintable(ran.errors));
        from = to;
    }
    QCOMPARE(QString(bytesOf(path + "spmd")), QString(script));
    // Names are changed in place where that loses nothing.
    for (const QString format : {"html", "fdx"}) {
        const QStringList rename{"script",      "rename", "Ann",        "Ben",
                                 path + format, "-o",     path + format};
        const Ran ran = run(MRV_TOOL, rename);
        QVERIFY2(ran.exitCode == 0, qPrintable(ran.errors));
    }
    QCOMPARE(epubErrors(path + "epub"), QString());
    // The same day, the same bytes; and another day tells that it was that day.
    const QStringList convert{"script", "convert", path + "fdx", "-o", path + "epub"};
    QByteArray books[3];
    for (const int day : {0, 1, 2}) {
        const QString second = QString::number(day / 2 * 86400);
        QCOMPARE(run(MRV_TOOL, convert, {"SOURCE_DATE_EPOCH=" + second}).exitCode, 0);
        books[day] = bytesOf(path + "epub");
    }
    QCOMPARE(books[0], books[1]);
    QVERIFY(books[1] != books[2]);
    // In a folder, nothing is replaced unasked.
    const QString taken = folder.filePath("script.fdx");
    QVERIFY(writeBytes(taken, "a"));
    const Ran into = run(MRV_TOOL, {"script", "convert", "-", "--to", "fdx", "-o", folder.path()});
    QVERIFY2(into.errors.contains("exists"), qPrintable(into.errors));
    QCOMPARE(bytesOf(taken), QByteArray("a"));
}

QTEST_GUILESS_MAIN(tst_MrvScript)
#include "tst_mrvscript.moc"
