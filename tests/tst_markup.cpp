#include "input/mrvhtmlreader.h"
#include "input/mrvxmlreader.h"
#include "support.h"

#include <QElapsedTimer>
#include <QTest>

namespace {

using Limits = MRVXmlLimits;

const QString Kilo(1000, 'x');
constexpr Limits Document{};
constexpr Limits Script{Limits::NoDeclarations, 256, 64, 16 * 1024};
constexpr Limits Mode{Limits::NoDocumentType, 32, 64, 16 * 1024};

QString own(const QString &declarations, const QString &body)
{
    return "<!DOCTYPE r [" + declarations + "]><r>" + body + "</r>";
}

QString nested(int depth)
{
    return QString("<a b='>'>").repeated(depth) + "<!--<c>--><![CDATA[<c>]]><?c <c>?>"
        + QString("</a>").repeated(depth);
}

// "2:3 too deep" for a fault at the third character of the second line.
QString placed(const MRVTextFault &fault)
{
    return QString("%1:%2 %3")
        .arg(QString::number(fault.line), QString::number(fault.column), fault.message);
}

} // namespace

Q_DECLARE_METATYPE(MRVXmlLimits)

class TestMarkup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("declaration");
        QTest::addColumn<QString>("text"); // or the place of the fault
        const auto row = [](const char *name, const QByteArray &bytes, int declaration,
                            const char *text) {
            QTest::newRow(name) << bytes << declaration << QString(text);
        };
        constexpr auto None = MRVTextDecoder::Undeclared;
        constexpr auto Xml = MRVTextDecoder::XmlDeclaration;
        constexpr auto Html = MRVTextDecoder::HtmlDeclaration;
        const QByteArray latin = "<?xml version='1.0' encoding='latin1'?>\xe9";
        row("utf-8", "caf\xc3\xa9", None, "café");
        row("utf-8-fault", "a\nb\xff", None, "2:2");
        row("utf-8-cut", "a\xef\xbf\xbd\n\xc3", None, "2:1");
        row("mark",
            QByteArray("\xff\xfe"
                       "a\0\n\0\xe9\0",
                       8),
            None, "a\né");
        row("mark-cut",
            QByteArray("\xff\xfe"
                       "a\0\n\0\xe9",
                       7),
            None, "2:1");
        row("xml", latin, Xml, "<?xml version='1.0' encoding='latin1'?>é");
        row("xml-not-asked-for", latin, None, "1:40");
        row("xml-in-html", latin, Html, "<?xml version='1.0' encoding='latin1'?>é");
        row("xml-wide", QByteArray("<\0a\0", 4), Xml, "<a");
        row("xml-wide-be", QByteArray("\0<\0a", 4), Xml, "<a");
        row("xml-claims-wide", "<?xml encoding='UTF-16'?>\xc3\xa9", Xml,
            "<?xml encoding='UTF-16'?>é");
        row("xml-comment", "<!-- encoding='latin1' -->\xe9", Xml, "1:27");
        row("meta", "<meta charset=latin1>\xe9", Html, "<meta charset=latin1>é");
        row("meta-content", "<META content='text/html; charset=latin1'>\xe9", Html,
            "<META content='text/html; charset=latin1'>é");
        row("meta-claims-wide", "<meta charset='utf-16'>\xc3\xa9", Html,
            "<meta charset='utf-16'>é");
        row("meta-unknown", "<meta charset='x-y'>\xc3\xa9", Html, "<meta charset='x-y'>é");
        row("meta-in-xml", "<meta charset=latin1>\xe9", Xml, "1:22");
        row("ascii-fault", "<?xml encoding='us-ascii'?>\n\xe9", Xml, "2:1");
    }
    void decodes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, declaration);
        QString text;
        MRVTextFault fault;
        const QByteArray encoding =
            MRVTextDecoder::encodingOf(bytes, MRVTextDecoder::Declaration(declaration));
        if (!MRVTextDecoder::decode(bytes, encoding, &text, &fault)) {
            QVERIFY(!fault.message.isEmpty());
            text = QString("%1:%2").arg(fault.line).arg(fault.column);
        }
        QTEST(text, "text");
    }

    void normalizes_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("normal");
        QTest::newRow("ends") << "\ufeff<a>\r\n\rb\x01</a>"
                              << "<a>\n\nb</a>";
        QTest::newRow("beyond") << "<a b='&#x1F600;'>&#128512;&#13;&#1;&#xD800;&#9999999999;</a>"
                                << "<a b='\U0001F600'>\U0001F600&#13;</a>";
        QTest::newRow("verbatim") << "<!--&#1;--><![CDATA[&#1;]]><?p &#1;?>&#1;"
                                  << "<!--&#1;--><![CDATA[&#1;]]><?p &#1;?>";
        QTest::newRow("unended") << "&#1 &#x; &#A; <!--&#1;"
                                 << "&#1 &#x; &#A; <!--&#1;";
    }
    void normalizes()
    {
        QFETCH(QString, xml);
        QTEST(MRVXmlReader::normalized(xml), "normal");
    }

    void limits_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<MRVXmlLimits>("limits");
        QTest::addColumn<QString>("fault"); // how it begins; empty for none
        const auto row = [](const char *name, const QString &xml, const Limits &limits,
                            const QString &fault = QString()) {
            QTest::newRow(name) << xml << limits << fault;
        };
        const QString deep = "elements are nested more deeply than";
        row("deep", nested(1000), Document);
        row("too-deep", "\n" + QString("<a>").repeated(1001), Document, "2:3001 " + deep + " 1000");
        row("mode-deep", nested(32), Mode);
        row("mode-too-deep", nested(33), Mode, "1:289 " + deep + " 32");
        row("deep-declared", own("<!ENTITY a 'b'>", nested(999)), Document);
        row("too-deep-declared", own("<!ENTITY a 'b'>", nested(1000)), Document, "1:9025 " + deep);
        const auto elements = [](const QString &text, int depth) {
            return QString("<b>").repeated(depth) + text + QString("</b>").repeated(depth);
        };
        row("deep-by-entities",
            own("<!ENTITY a '" + elements("", 900) + "'>", elements("&a;", 200)), Document, "1:");
        const auto tag = [](int attributes) {
            QString text = "<r";
            for (int i = 0; i < attributes; ++i) {
                text += QString(" a%1 = '>\"'").arg(i);
            }
            return text + "/>";
        };
        row("attributes", tag(10000), Document);
        row("too-many-attributes", tag(10001), Document, "1:1 an element has too many");
        row("script-attributes", tag(64), Script);
        row("script-too-many", "\n" + tag(65), Script, "2:1 an element has too many");
        row("repeated-attribute", "<r a='1' b='<' a = \"2\"/>", Document, "1:1 an element has two");
        row("joined-attributes", "<r a='1'b='2'a='3'/>", Document, "1:1 an element has two");
        row("long-tag", "<a" + QString(16 * 1024 - 4, ' ') + "/>", Script);
        row("too-long-tag", "<a" + QString(16 * 1024 - 3, ' ') + "/>", Script,
            "1:1 a tag is longer");
        row("type", "<!DOCTYPE r SYSTEM 'a[b'><r/>", Script);
        row("type-refused", "<?a?>\n<!DOCTYPE r><r/>", Mode, "2:1 a document type");
        row("declarations-refused", own("", ""), Script, "1:1 a document type");
        row("entity", own("<!ENTITY a 'b'>", "&a;&a;&lt;&nbsp;"), Document);
        row("long-entity", own("<!ENTITY a '" + Kilo.repeated(9) + "'>", "&a;"), Document);
        row("repeated", own("<!ENTITY a '" + Kilo + "'>", QString("&a;").repeated(100000)),
            Document, "1:");
        row("repeated-in-attributes",
            own("<!ENTITY a '" + Kilo + "'>", QString("<b c='&a;'/>").repeated(50000)), Document,
            "1:");
        row("repeated-markup",
            own("<!ENTITY a '" + QString("<b/>").repeated(1000) + "'>",
                QString("&a;").repeated(50000)),
            Document, "1:");
        row("nested-entities",
            own("<!ENTITY a '" + Kilo + "'><!ENTITY b '" + QString("&a;").repeated(1000)
                    + "'><!ENTITY c '" + QString("&b;").repeated(1000) + "'>",
                "&c;"),
            Document, "1:");
        row("recursive", own("<!ENTITY a '&b;'><!ENTITY b '&a;'>", "&a;"), Document, "1:");
        row("parameters",
            own("<!ENTITY % p '" + QString("<!-- x -->").repeated(1000) + "'>"
                    + QString("%p;\n").repeated(50000),
                ""),
            Document, "1:");
        row("nested-parameters",
            own("<!ENTITY % a '" + Kilo + "'><!ENTITY % b '" + QString("&#37;a;").repeated(1000)
                    + "'><!ENTITY % c '" + QString("&#37;b;").repeated(1000) + "'>%c;",
                ""),
            Document, "1:");
        row("small-parameters", own("<!ENTITY % x '<!ENTITY y \"z\">'>%x;%x;", "&y;"), Document);
        row("entities", own(QString("<!ENTITY a 'b'>").repeated(2001), ""), Document,
            "1:14 the document type has too many");
        row("long-declarations",
            own("<!ATTLIST r " + QString("a CDATA 'x' ").repeated(30000) + ">", ""), Document,
            "1:14 the document type has too many");
        const QString newer =
            "<?xml version='1.1'?>" + own("<!ENTITY a '" + Kilo + "<b/>'>", "&a;");
        row("xml-1.1", newer, Document);
        row("xml-1.1-repeated", QString(newer).replace("&a;", QString("&a;").repeated(100000)),
            Document, "1:");
        row("external", own("<!ENTITY a SYSTEM 'file:///etc/hostname'>", "t&a;"), Document,
            "1:56 the entity 'a' is in another file");
        row("undeclared", "<!DOCTYPE r SYSTEM 'r.dtd'><r>a&nbsp;b</r>", Document);
        row("no-xml", "<", Document);
        row("empty", "", Document);
    }
    void limits()
    {
        QFETCH(QString, xml);
        QFETCH(MRVXmlLimits, limits);
        QFETCH(QString, fault);
        MRVTextFault found;
        QCOMPARE(MRVXmlReader::keepsLimits(xml, limits, &found), fault.isEmpty());
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
        MRVXmlReader::normalized(text);
        MRVHtmlReader::isNestedTooDeeply(text);
        MRVHtmlReader::head(text);
        QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    }

    void nesting_data()
    {
        QTest::addColumn<QString>("piece"); // 3001 times
        QTest::addColumn<bool>("tooDeep");
        QTest::newRow("open") << "<i>" << true;
        QTest::newRow("closed") << "<i>a</i>" << false;
        QTest::newRow("void") << "a<br><IMG src=b><hr/>" << false;
        QTest::newRow("unended") << "<p>a<ul><li>b<li>c</ul><table><tr><td>d<td>e</table>" << false;
        QTest::newRow("lists") << "<ul><li>" << true;
        QTest::newRow("wrong-ends") << "<div></span>" << true;
        QTest::newRow("comment") << "<!--<i>--><style><i></style><script>'<i>'</script>" << false;
        QTest::newRow("quoted") << "<i a='</i>'>" << true;
    }
    void nesting()
    {
        QFETCH(QString, piece);
        QTEST(MRVHtmlReader::isNestedTooDeeply(piece.repeated(3001)), "tooDeep");
    }
};

QTEST_GUILESS_MAIN(TestMarkup)
#include "tst_markup.moc"
