#include "datarows.h"
#include "support.h"

#include "manuscript/mrvmanuscriptreader.h"
#include "plaintext/mrvplaintext.h"

#include <QElapsedTimer>

/// What plain text shows of its paragraphs and chapters.
class tst_PlainText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void blocks_data() { addRows("plaintext.tsv"); }
    void blocks()
    {
        static const QRegularExpression place(" data-sourcepos=\"[^\"]*\"");
        MRVMarkdownHead head;
        QString html = MRVPlainText::toHtml(cell("text"), &head);
        QTEST(html.remove(place).replace(">\n", ">"), "html");
        QTEST(cell("head").isEmpty() ? QString() : head.title + '|' + head.authors.join('|'),
              "head");
    }

    void places()
    {
        QCOMPARE(MRVPlainText::toHtml("\r\n\r\na\rb\n\n---"),
                 QString("<p data-sourcepos=\"3:1-4:1\">a<br />\nb</p>\n"
                         "<hr data-sourcepos=\"6:1-6:1\" />\n"));
    }

    void titles_data() { addRows("plaintext-titles.tsv"); }
    void titles() { QCOMPARE(MRVPlainText::titleOfFile(cell("file")), cell("title")); }

    /// For publishing only: to change a text, its lines are paragraphs. Scripts are lines, too.
    void reading()
    {
        QTemporaryDir folder;
        const QString file = folder.filePath("the_tides.txt");
        const QString script = folder.filePath("the_tides.fountain");
        const QByteArray text = "Chapter 1\n\nA\nb";
        QVERIFY(writeBytes(file, text));
        QVERIFY(writeBytes(script, text));
        MRVManuscriptReader reader;
        MRVManuscript read;
        QVERIFY(reader.read(file, &read));
        QCOMPARE(read.document->toPlainText(), QString("Chapter 1\nA\nb"));
        QCOMPARE(read.document->metaInformation(QTextDocument::DocumentTitle),
                 QString("The tides"));
        QVERIFY(read.isWhole());
        QVERIFY(reader.read(script, &read));
        QCOMPARE(read.document->toPlainText(), QString(text));
        reader.setPurpose(MRVManuscriptReader::Editing);
        QVERIFY(reader.read(file, &read));
        QCOMPARE(read.document->toPlainText(), QString(text));
    }

    void linear()
    {
        for (const char *part : {"a ", "Chapter 1\n\n", "I\n\n", "a\n", "* * *\n\n", "  -  \n"}) {
            QElapsedTimer timer;
            timer.start();
            MRVPlainText::toHtml(QString(part).repeated(1000000 / int(strlen(part))));
            QVERIFY2(timer.elapsed() < 10000, part);
        }
    }
};

QTEST_MAIN(tst_PlainText)
#include "tst_plaintext.moc"
