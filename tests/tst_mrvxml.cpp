#include "datarows.h"
#include "support.h"

#include <QTemporaryDir>

/** The command that reads and edits XML files, run as a stranger would. */
class TestMrvXml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data()
    {
        addRows("mrv-xml.tsv", {"case", "source", "arguments", "code", "output", "error", "after"});
    }
    void commands()
    {
        QFETCH(QString, source);
        QFETCH(QString, arguments);
        QFETCH(QString, error);
        QFETCH(QString, after);
        QTemporaryDir folder;
        const QString file = folder.filePath("f.xml");
        QVERIFY(writeBytes(file, source.toUtf8()));
        QStringList list = arguments.split(' ');
        for (QString &argument : list) {
            argument.replace('@' + QString("f"), folder.filePath("f"))
                .replace("@none", folder.filePath("none"))
                .replace(u'␣', ' ');
        }
        const Ran ran = run(MRV_TOOL, list, {}, source.toUtf8());
        QTEST(ran.output, "output");
        QVERIFY2(error.isEmpty() ? ran.errors.isEmpty() : ran.errors.count('\n') == 1,
                 qPrintable(ran.errors));
        QVERIFY2(ran.errors.contains(error.replace("@f", folder.filePath("f"))),
                 qPrintable(ran.errors));
        QTEST(QString::number(ran.exitCode), "code");
        QCOMPARE(QString::fromUtf8(bytesOf(file)), after.isEmpty() ? source : after);
    }

    void createsFile()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath("new.xml");
        QCOMPARE(run(MRV_TOOL, {"xml", file, "create", "a/b"}).exitCode, 1);
        QVERIFY(!QFile::exists(file));
        QCOMPARE(run(MRV_TOOL, {"xml", file, "create", "/a/b", "x y"}).exitCode, 0);
        QCOMPARE(bytesOf(file), QByteArray("<a>\n   <b>x y</b>\n</a>\n"));
    }

    // The page on paths shows what the tool prints: all its examples are run, one after the other,
    // on its file.
    void examples()
    {
        const QString page = QString::fromUtf8(bytesOf(MRV_SOURCE_DIR "/docs/paths.md"));
        QTemporaryDir folder;
        static const QRegularExpression block("```(xml|console)\n(.*?)```",
                                              QRegularExpression::DotMatchesEverythingOption);
        static const QRegularExpression word("\"([^\"]*)\"|(\\S+)");
        int examples = 0;
        for (auto it = block.globalMatch(page); it.hasNext();) {
            const auto match = it.next();
            if (match.captured(1) == "xml") {
                QVERIFY(writeBytes(folder.filePath("book.xml"), match.captured(2).toUtf8()));
                continue;
            }
            for (const QString &example :
                 ('\n' + match.captured(2)).split("\n$ mrv ", Qt::SkipEmptyParts)) {
                QStringList arguments;
                for (auto w = word.globalMatch(example.section('\n', 0, 0)); w.hasNext();) {
                    const auto argument = w.next();
                    arguments << argument.captured(argument.lastCapturedIndex());
                }
                arguments.replaceInStrings("book.xml", folder.filePath("book.xml"));
                const Ran ran = run(MRV_TOOL, arguments);
                QString shown = ran.output + ran.errors;
                shown.remove(folder.path() + '/');
                QCOMPARE(shown.trimmed(), example.section('\n', 1).trimmed());
                ++examples;
            }
        }
        QVERIFY(examples > 10);
    }
};

QTEST_GUILESS_MAIN(TestMrvXml)
#include "tst_mrvxml.moc"
