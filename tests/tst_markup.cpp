#include "datarows.h"
#include "input/mrvhtmlreader.h"
#include "input/mrvxmlreader.h"

#include <QElapsedTimer>
#include <QTest>

namespace {

using Limits = MRVXmlLimits;

constexpr Limits Document{};
constexpr Limits Script{Limits::NoDeclarations, 256, 64, 16 * 1024};
constexpr Limits Mode{Limits::NoDocumentType, 32, 64, 16 * 1024};

QString own(const QString &declarations, const QString &body)
{
    return "<!DOCTYPE r [" + declarations + "]><r>" + body + "</r>";
}

// "2:3 too deep" for a fault at the third character of the second line.
QString placed(const MRVTextFault &fault)
{
    return QString("%1:%2 %3")
        .arg(QString::number(fault.line), QString::number(fault.column), fault.message);
}

} // namespace

class TestMarkup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodes_data() { addRows("encodings.tsv"); }
    void decodes()
    {
        using Decoder = MRVTextDecoder;
        const QByteArray bytes = cell("bytes").toLatin1();
        const QString declaration = cell("declaration");
        QString text;
        MRVTextFault fault;
        const QByteArray encoding =
            Decoder::encodingOf(bytes,
                                declaration == "xml"        ? Decoder::XmlDeclaration
                                    : declaration == "html" ? Decoder::HtmlDeclaration
                                                            : Decoder::Undeclared);
        if (!Decoder::decode(bytes, encoding, &text, &fault)) {
            QVERIFY(!fault.message.isEmpty());
            text = QString("%1:%2").arg(fault.line).arg(fault.column);
        }
        QTEST(text, "text");
    }

    void normalizes_data() { addRows("normalizedxml.tsv"); }
    void normalizes()
    {
        QString xml = cell("xml");
        MRVTextFault fault;
        QTEST(MRVXmlReader::normalize(&xml, &fault) ? xml : placed(fault), "normal");
    }

    void limits_data() { addRows("xmllimits.tsv"); }
    void limits()
    {
        const QString limits = cell("limits");
        const QString fault = cell("fault");
        MRVTextFault found;
        QCOMPARE(MRVXmlReader::keepsLimits(cell("xml"),
                                           limits == "script"     ? Script
                                               : limits == "mode" ? Mode
                                                                  : Document,
                                           &found),
                 fault.isEmpty());
        QVERIFY2(fault.isEmpty() || placed(found).startsWith(fault), qPrintable(placed(found)));
    }

    // An entity of a file that nobody reads must be an error, not a gap in the text.
    void blanksOuterType()
    {
        QString text;
        QString error;
        const QByteArray type = "<!DOCTYPE r\n PUBLIC 'a' 'b.dtd'>";
        QVERIFY(MRVXmlReader::read(type + "<r>&e;</r>", Script, &text, &error));
        QCOMPARE(text, QString("<!DOCTYPE r\n                   ><r>&e;</r>"));
        QVERIFY(!MRVXmlReader::read(type + "<r a='' a=''/>", Script, &text, &error));
        QCOMPARE(error, QString("line 2: an element has two attributes of one name"));
    }

    void ugly_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *piece :
             {"=", "<", "<!", "<a ", "</a>", "&#", "'", "a=", "<!--", "<![CDATA["}) {
            QTest::newRow(piece) << "<a b" + QString(piece).repeated(1000000 / int(qstrlen(piece)));
        }
        QTest::newRow("blanks") << "<a" + (QString(' ').repeated(100) + "b=''").repeated(10000);
        QTest::newRow("ends") << QString("<b>").repeated(1999) + QString("</i>").repeated(250000);
        QTest::newRow("paragraphs")
            << QString("<b>").repeated(1990) + QString("<p>").repeated(300000);
    }
    void ugly()
    {
        QFETCH(QString, text);
        QElapsedTimer timer;
        timer.start();
        MRVTextFault fault;
        MRVXmlReader::keepsLimits(text, Document, &fault);
        MRVXmlReader::keepsLimits(own(text, text), Document, &fault);
        MRVXmlReader::normalize(&text, &fault);
        MRVHtmlReader::whyTooComplex(text);
        MRVHtmlReader::head(text);
        QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    }

    void nesting_data() { addRows("htmlnesting.tsv"); }
    void nesting()
    {
        const QString html = cell("piece").repeated(3001);
        QCOMPARE(!MRVHtmlReader::whyTooComplex(html).isEmpty(), cell("tooDeep") == "yes");
    }
};

QTEST_GUILESS_MAIN(TestMarkup)
#include "tst_markup.moc"
