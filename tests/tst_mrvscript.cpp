#include "datarows.h"
#include "support.h"

#include <QTemporaryDir>

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
};

void tst_MrvScript::commands()
{
    QFETCH(QString, arguments);
    QFETCH(QString, file);
    QFETCH(QString, output);
    QFETCH(QString, error);
    QTemporaryDir folder;
    const QString path = folder.path() + '/';
    QVERIFY(writeBytes(path + "mode.xml", file.toUtf8()));
    QStringList list = arguments.split(' ');
    for (QString &argument : list)
        argument.replace('@', path).replace(u'␣', ' ');
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

QTEST_GUILESS_MAIN(tst_MrvScript)
#include "tst_mrvscript.moc"
