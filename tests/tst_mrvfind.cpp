#include "datarows.h"
#include "support.h"

#include <QTemporaryDir>

/** The tool's commands that search, list and replace, run as a stranger would. */
class tst_MrvFind : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.reset(new QTemporaryDir); }
    void commands_data()
    {
        addRows("mrv-find.tsv",
                {"case", "file", "source", "arguments", "code", "output", "error", "after"});
    }
    void commands();
    void usage_data() { addRows("mrv-find-usage.tsv", {"case", "arguments", "word"}); }
    void usage();

private:
    QString in(const QString &name) const { return m_folder->filePath(name); }
    // In the arguments "@" stands for the test's folder and "␣" for a blank.
    Ran mrv(const QString &arguments, const QByteArray &input = {}) const
    {
        QStringList list = arguments.split(' ');
        for (QString &argument : list) {
            argument.replace('@', m_folder->path() + '/').replace(u'␣', ' ');
        }
        Ran ran = run(MRV_TOOL, list, {}, input);
        ran.output.replace(m_folder->path() + '/', "@");
        return ran;
    }

    QScopedPointer<QTemporaryDir> m_folder;
};

void tst_MrvFind::commands()
{
    QFETCH(QString, source);
    QFETCH(QString, error);
    QFETCH(QString, arguments);
    QFETCH(QString, after);
    QFETCH(QString, file);
    file = in(file);
    QVERIFY(writeBytes(file, source.toUtf8()));
    const Ran ran = mrv(arguments, source.toUtf8());
    QTEST(ran.output, "output");
    QVERIFY2(error.isEmpty() ? ran.errors.isEmpty()
                             : ran.errors.contains(error) && ran.errors.count('\n') == 1,
             qPrintable(ran.errors));
    QTEST(QString::number(ran.exitCode), "code");
    QCOMPARE(QString::fromUtf8(bytesOf(file)), after.isEmpty() ? source : after);
    const bool kept = !after.isEmpty() && !arguments.contains("--no-backup");
    QCOMPARE(QString::fromUtf8(bytesOf(file + '~')), kept ? source : QString());
}

void tst_MrvFind::usage()
{
    QFETCH(QString, arguments);
    QFETCH(QString, word);
    QVERIFY(writeBytes(in("a.txt"), "text"));
    const Ran ran = mrv(arguments);
    QCOMPARE(ran.exitCode, 2);
    QVERIFY2(ran.errors.contains(word) && ran.errors.count('\n') == 1, qPrintable(ran.errors));
    QVERIFY(ran.output.isEmpty());
}

QTEST_GUILESS_MAIN(tst_MrvFind)
#include "tst_mrvfind.moc"
