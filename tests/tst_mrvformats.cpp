#include "mrvtool.h"

/** The tool's commands that tell of formats and engines. */
class tst_MrvFormats : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data() { addCalls("mrv-formats.tsv"); }
    void commands() { compareRow(); }
    void setAndReset();
};

// A choice is stored beside the others, so that they stay what they are.
void tst_MrvFormats::setAndReset()
{
    QVERIFY(writeBytes(in("new.ini"), {}));
    const QString before = mrv("engines list --settings @new.ini").output;
    QCOMPARE(before.count('\n'), 26);
    QCOMPARE(mrv("engines set rtf doc doc2anyinternalengine --settings @new.ini").exitCode, 0);
    const QString after = mrv("engines list --settings @new.ini").output;
    const auto engines = [](QString output) {
        return output.remove(QRegularExpression(" \\([^)]*\\)"));
    };
    QCOMPARE(
        engines(after),
        engines(before).replace("RTF -> DOC: RtfBasedDoc", "RTF -> DOC: Doc2AnyInternalEngine"));
    QVERIFY(after.contains("RTF -> PDF: QtEngine (it is the stored choice)\n"));
    QVERIFY(after.contains("DOCX -> RTF: SubSystemsEngine (it is the default"));
    QVERIFY(bytesOf(in("new.ini")).contains("Import\\exportFormatConverters"));
    QCOMPARE(mrv("engines reset --settings @new.ini").exitCode, 0);
    QCOMPARE(mrv("engines list --settings @new.ini").output, before);
    QCOMPARE(mrv("engines set rtf ps QtEngine --settings @new.ini/s.ini").exitCode, 1);
    QVERIFY(
        mrv("engines list --settings @typo.ini").errors.startsWith("mrv: engines: @typo.ini: "));
}

QTEST_GUILESS_MAIN(tst_MrvFormats)
#include "tst_mrvformats.moc"
