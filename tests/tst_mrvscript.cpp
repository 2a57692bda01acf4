#include "mrvtool.h"

#include <QTextCodec>

/** The tool's commands for measures and script modes. */
class tst_MrvScript : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data() { addCalls("mrv-script.tsv"); }
    void commands() { compareRow(); }
    void written();
    void renamedInEncoding();
    void convertedBack();
};

// What one call writes, another one checks.
void tst_MrvScript::written()
{
    QCOMPARE(mrv("script show UK␣Stage␣Play --units in -o @play.xml").exitCode, 0);
    QVERIFY(bytesOf(in("play.xml")).contains("<Units>Inches</Units>"));
    QCOMPARE(mrv("script check @play.xml").exitCode, 0);
}

void tst_MrvScript::renamedInEncoding()
{
    const QString path = in("a.fountain");
    for (const char *codec : {"UTF-8", "UTF-16LE", "UTF-16BE", "UTF-32LE"}) {
        const auto bytes = [codec](const char *text) {
            const QString marked = QChar(QChar::ByteOrderMark) + QString(text);
            QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
            return QTextCodec::codecForName(codec)->fromUnicode(marked.constData(), marked.size(),
                                                                &state);
        };
        QVERIFY(writeBytes(path, bytes("BOB\r\n  Hi.")));
        const Ran ran = mrv("script rename Bob Rob @a.fountain -o @a.fountain");
        QVERIFY2(ran.exitCode == 0, qPrintable(ran.errors));
        QCOMPARE(bytesOf(path), bytes("ROB\r\n  Hi."));
    }
}

// From each format into the next, and a valid e-book from the last.
void tst_MrvScript::convertedBack()
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
            mrv("script convert @a.fdx -o @a.epub", {}, {"SOURCE_DATE_EPOCH=" + second});
        QCOMPARE(ran.exitCode, 0);
        books[day] = bytesOf(path + "epub");
    }
    QCOMPARE(books[0], books[1]);
    QVERIFY(books[1] != books[2]);
    QCOMPARE(mrv("script convert @a.fdx -o @a.epub", {}, {"SOURCE_DATE_EPOCH=abc"}).exitCode, 2);
}

QTEST_GUILESS_MAIN(tst_MrvScript)
#include "tst_mrvscript.moc"
