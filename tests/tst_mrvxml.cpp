#include "mrvtool.h"

/** The command that reads and edits XML files. */
class TestMrvXml : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data() { addCalls("mrv-xml.tsv"); }
    void commands() { compareRow(); }

    void createsFile()
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
    void examples()
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
};

QTEST_GUILESS_MAIN(TestMrvXml)
#include "tst_mrvxml.moc"
