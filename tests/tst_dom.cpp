#include "datarows.h"
#include "dom/mrvdomdoc.h"
#include "dom/mrvdomobject.h"
#include "support.h"

#include <QBuffer>
#include <QtTest>

#include <functional>

namespace {

// "r1(a2[id=7],b3)": elements with their tag, a number that becomes the attribute n, attributes,
// and children.
QString documentOf(QString notation)
{
    static const QRegularExpression element("([a-zA-Z]+)(\\d+)((?:\\[[^]]*\\])*)(\\(|(?=[,)]|$))");
    static const QRegularExpression attribute("\\[(\\w+)=([^]]*)\\]");
    QString xml;
    QStringList open;
    for (int i = 0; i < notation.size();) {
        const auto match = element.match(notation, i, QRegularExpression::NormalMatch,
                                         QRegularExpression::AnchoredMatchOption);
        if (!match.hasMatch()) {
            if (notation[i++] == ')') {
                xml += "</" + open.takeLast() + '>';
            }
            continue;
        }
        xml += '<' + match.captured(1) + " n='" + match.captured(2) + '\''
            + match.captured(3).replace(attribute, " \\1='\\2'");
        if (match.captured(4).isEmpty()) {
            xml += "/>";
        } else {
            open << match.captured(1);
            xml += '>';
        }
        i = match.capturedEnd();
    }
    return xml;
}

QDomElement byNumber(const QDomElement &e, const QString &n)
{
    if (e.attribute("n") == n) {
        return e;
    }
    for (QDomElement c = e.firstChildElement(); !c.isNull(); c = c.nextSiblingElement()) {
        const QDomElement found = byNumber(c, n);
        if (!found.isNull()) {
            return found;
        }
    }
    return {};
}

QByteArray saved(const MRVDomDoc &doc)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return doc.save(buffer) ? buffer.data() : QByteArray("refused");
}

// Whether a step was done, and where the cursor is then: "+ /path child".
QString after(bool isDone, const MRVDomDoc &doc)
{
    return QString("%1 %2 %3").arg(isDone ? "+" : "-", doc.workPath(), doc.workChild()).trimmed();
}

// A document element with a text, to be read by path "e".
void setValue(MRVDomDoc *doc, const QString &text)
{
    doc->setRoot("r");
    doc->append("e", text);
    doc->currentElement().setAttribute("k", text);
}

template<typename T>
QString textsOf(const T &value)
{
    MRVDomDoc doc;
    setValue(&doc, "old");
    QString set, attribute, appended;
    if (!doc.set(value, "e") || !doc.get(&set, "e") || !doc.setAttr("k", value)) {
        return "failed";
    }
    if constexpr (std::is_same_v<T, QSizeF> || std::is_same_v<T, QPointF>) {
        doc.append("new", value, 1);
    } else {
        doc.append("new", value);
    }
    doc.getAttr("k", &attribute, doc.currentElement());
    doc.get(&appended, "new");
    return QStringList{appended, set, attribute}.join('|');
}

// What get(), getNext() and getAttr() make of a text: value and outcome of each.
template<typename T>
QString readAs(const QString &text)
{
    MRVDomDoc doc;
    setValue(&doc, "x");
    doc.append("e", text);
    doc.setAttr("k", text);
    QString result;
    const auto add = [&](bool ok, const T &value) {
        QDebug(&result).noquote().nospace() << value << (ok ? "+ " : "- ");
    };
    T value{};
    QDomElement second = doc.currentElement().lastChildElement();
    add(doc.setWorkElement(second) && doc.get(&value, QString()), value);
    doc.cdUp();
    doc.find("e");
    T next{};
    add(doc.getNext(&next), next);
    T attribute{};
    add(doc.getAttr("k", &attribute, doc.currentElement()), attribute);
    return result.simplified();
}

} // namespace

class TestDom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void find_data() { addRows("dompaths.tsv", {"notation", "start", "path", "expected"}); }
    void find()
    {
        QFETCH(QString, notation);
        QFETCH(QString, start);
        QFETCH(QString, path);
        MRVDomDoc doc;
        QVERIFY2(doc.setContent(documentOf(notation)), qPrintable(documentOf(notation)));
        QVERIFY(doc.setWorkElement(byNumber(doc.documentElement(), start)));
        QStringList found;
        for (QDomElement e = doc.find(path); !e.isNull(); e = doc.findNext()) {
            found << e.attribute("n");
        }
        QTEST(found.join(' '), "expected");
        QCOMPARE(doc.currentElement().attribute("n"), start);
        QCOMPARE(doc.exists(path), !found.isEmpty());
        QCOMPARE(doc.cd(path), !found.isEmpty());
        QCOMPARE(doc.currentElement().attribute("n"), found.value(0, start));
    }

    // Going down and up again must not try all the ways.
    void manyWaysUpAndDown()
    {
        MRVDomDoc doc;
        QVERIFY(doc.setContent("<r>" + QString("<a/>").repeated(1000) + "</r>"));
        QVERIFY(!doc.exists(QString("a/../").repeated(1000) + "none"));
        QVERIFY(doc.exists(QString("a/../").repeated(1000) + "a"));
    }

    void cursor()
    {
        MRVDomDoc doc;
        QVERIFY(doc.setContent(documentOf("r1(i2[k=x](c3),i4,j5,i6[k=x])")));
        QCOMPARE(doc.workChild(), QString("i"));
        QVERIFY(doc.cd("i"));
        QCOMPARE(doc.workElement(true), QString("i @k=\"x\" @n=\"2\""));
        QCOMPARE(doc.workPath(), QString("/r/i"));
        QCOMPARE(doc.workChild(true), QString("c @n=\"3\""));
        QStringList visited;
        do {
            visited << doc.currentElement().attribute("n");
        } while (doc.cdNext("/any/i"));
        QCOMPARE(visited.join(' '), QString("2 4 6"));
        QCOMPARE(doc.workPath(true), QString("/r @n=\"1\"")); // back on the parent
        QVERIFY(!doc.cdNext(""));
        QVERIFY(doc.cdUp(0));
        QVERIFY(doc.cdUp(-1));
        QVERIFY(!doc.cdUp(1));
        QVERIFY(!doc.cd(".."));
        QCOMPARE(after(doc.setChild("//j@n=5/whatever"), doc), "+ /r j");
        for (const char *none : {"..", "/", "none"}) {
            QCOMPARE(after(doc.setChild(none), doc), "- /r j");
        }
        QCOMPARE(after(doc.cd("i/c"), doc), "+ /r/i/c");
        QCOMPARE(after(doc.cdUp(3), doc), "- /r i");
        QVERIFY(!doc.setWorkElement(QDomElement()));
        QVERIFY(!MRVDomDoc().cdRoot());
        QVERIFY(MRVDomDoc::EmptyElement.isNull());
        QVERIFY(doc.find("none") == MRVDomDoc::EmptyElement);
        const QDomElement i = doc.find("i@k=x");
        QVERIFY(doc.matchElement(i, "i@k=x@n"));
        QVERIFY(doc.matchElement(i, QStringList{"..", "n=2"}));
        QVERIFY(!doc.matchElement(i, QStringList()));
        QVERIFY(!doc.matchElement(QDomElement(), "i"));
    }

    void structure()
    {
        MRVDomDoc doc;
        for (const char *name : {"", "a/b", "a@x=1", "x=", ".", ".."}) {
            QVERIFY(!doc.append(name, "t"));
            QVERIFY(!doc.insert(name, "t"));
            QVERIFY(!doc.prepend(name));
            QVERIFY(!doc.create(name));
        }
        QCOMPARE(after(doc.append("r"), doc), "+ /r");
        QCOMPARE(after(doc.append("b"), doc), "+ /r b");
        QCOMPARE(after(doc.append("d"), doc), "+ /r b");
        QCOMPARE(after(doc.insert("c"), doc), "+ /r c");
        QCOMPARE(after(doc.insert("bb", "t", true), doc), "+ /r bb");
        QCOMPARE(after(doc.prepend("a"), doc), "+ /r bb");
        QCOMPARE(after(doc.create("e"), doc), "+ /r/e");
        QCOMPARE(after(doc.prepend("f", "1"), doc), "+ /r/e f");
        QCOMPARE(after(doc.append(doc.find("/r/bb")), doc), "+ /r/e bb");
        QCOMPARE(
            saved(doc).simplified(),
            QByteArray("<r> <a/> <b/> <bb>t</bb> <c/> <d/> <e> <f>1</f> <bb>t</bb> </e> </r>"));
        doc.cdRoot();
        QCOMPARE(doc.createPath("e/g/ h "), 3);
        QCOMPARE(doc.workPath(), QString("/r/e/g/h"));
        QCOMPARE(doc.createPath("a@x=1"), 0);
        QCOMPARE(doc.createPath(""), 0);
        QCOMPARE(doc.createPath("/r/e/i"), 3); // deliberate: from the work element
        QCOMPARE(doc.workPath(), QString("/r/e/g/h/r/e/i"));
        QCOMPARE(doc.remove("/r/b"), 1);
        QCOMPARE(doc.remove("/r/b"), 0);
        QCOMPARE(doc.remove("/", true), 1);
        const QDomElement made = doc.createElement("e@k=v@ l @", "t");
        QCOMPARE(made.text() + made.attribute("k") + made.attribute("l"), QString("ttt"));
        QCOMPARE(after(doc.setRoot("root@version=2"), doc), "+ /root");
        QCOMPARE(saved(doc), QByteArray("<root version=\"\"/>\n"));
        doc.currentElement() = MRVDomDoc::EmptyElement;
        QVERIFY(!doc.append("second"));
        QVERIFY(!doc.create("second"));
        QVERIFY(!doc.append(doc.documentElement()));
        QVERIFY(doc.setContent(documentOf("r1(a2,a3,b4)")));
        QVERIFY(doc.remove("./a@n", true) == 2);
        QVERIFY(doc.setContent(doc.currentElement()));
        QVERIFY(doc.exists("/r/b"));
        MRVDomDoc copy;
        QVERIFY(copy.append(doc.currentElement()));
        QVERIFY(copy.workPath() == "/r");
        QVERIFY(!MRVDomDoc().append(doc.document()));
        QCOMPARE(copy.createPath(QString("a/").repeated(5000)), 999);
    }

    // What the cursor is on may be removed with all that is around it, or replaced.
    void cursorOutlivesRemoval()
    {
        MRVDomDoc doc;
        QVERIFY(doc.setContent(documentOf("r1(a2(b3(c5),b4),a6)")));
        QVERIFY(doc.cd("a/b"));
        QCOMPARE(doc.remove("/r/a", true), 2);
        QCOMPARE(after(doc.cdNext("b"), doc), "+ /a/b");
        QCOMPARE(after(doc.cdUp(1), doc), "+ /a b");
        QCOMPARE(after(doc.cd("b/c"), doc), "+ /a/b/c");
        QVERIFY(doc.setContent(documentOf("r1(a2,a3)")));
        QVERIFY(doc.exists("a"));
        QVERIFY(doc.setContent(QString("<r/>")));
        QVERIFY(doc.findNext().isNull());
    }

    void writesValues_data()
    {
        QTest::addColumn<QString>("texts"); // appended, set, as attribute
        QTest::addColumn<QString>("expected");
        QTest::newRow("int") << textsOf(-7) << "-7|-7|-7";
        QTest::newRow("unsigned long")
            << textsOf(18446744073709551615UL)
            << QStringList(QStringList::fromVector({3, "18446744073709551615"})).join('|');
        QTest::newRow("float") << textsOf(1.5F) << "1.500000|1.5|1.5";
        QTest::newRow("double") << textsOf(1234567.0) << "1.23457e+06|1.23457e+06|1.23457e+06";
        QTest::newRow("bool") << textsOf(true) << "true|true|true";
        QTest::newRow("QSize") << textsOf(QSize(640, -1)) << "640,-1|640,-1|640,-1";
        QTest::newRow("QSizeF") << textsOf(QSizeF(10, 2.5)) << "10.0,2.5|10.000,2.500|10.000,2.500";
        QTest::newRow("QPointF") << textsOf(QPointF(-1, 0)) << "-1.0,0.0|-1.000,0.000|-1.000,0.000";
        QTest::newRow("list") << textsOf(QStringList{"a", "", "b"}) << "a,,b|a,,b|a,,b";
        QTest::newRow("forbidden") << textsOf(QString("a\x01\uFFFE") + QChar(0xD800)) << "a|a|a";
        const QDateTime time({2020, 2, 29}, {1, 2, 3}, Qt::OffsetFromUTC, 3600);
        QTest::newRow("date")
            << textsOf(time)
            << QStringList(QStringList::fromVector({3, "2020-02-29T01:02:03+01:00"})).join('|');
    }
    void writesValues() { QTEST(cell("texts"), "expected"); }

    void readsValues_data()
    {
        QTest::addColumn<QString>("read"); // by get(), getNext() and getAttr()
        QTest::addColumn<QString>("expected");
        QTest::newRow("int") << readAs<int>(" 12 ") << "12+ 12+ 12+";
        QTest::newRow("no int") << readAs<int>("12abc") << "0- 0- 0-";
        QTest::newRow("too large") << readAs<short>("32768") << "0- 0- 0-";
        QTest::newRow("double") << readAs<double>("-1.5e3") << "-1500+ -1500+ -1500+";
        QTest::newRow("yes") << readAs<bool>(" YES ") << "true+ true+ true+";
        QTest::newRow("no bool") << readAs<bool>("1") << "false- false- false-";
        QTest::newRow("size") << readAs<QSize>("640 , 480")
                              << "QSize(640, 480)+ QSize(640, 480)+ QSize(640, 480)+";
        QTest::newRow("no point") << readAs<QPointF>("1")
                                  << "QPointF(0,0)- QPointF(0,0)- QPointF(0,0)-";
        QTest::newRow("list") << readAs<QStringList>("a,,b") << "(a, b)+ (a, b)+ (a, b)+";
        QTest::newRow("empty text") << readAs<int>("") << "0- 0- 0-";
        const QString date = "QDateTime(2020-02-29 01:02:03.000 UTC Qt::UTC)+";
        QTest::newRow("date") << readAs<QDateTime>("2020-02-29T01:02:03+05:00")
                              << QString("%1 %1 %1").arg(date);
    }
    void readsValues() { QTEST(cell("read"), "expected"); }

    void valueParticularities()
    {
        MRVDomDoc doc;
        doc.setContent(QString("<r><a>x<b>y</b>z</a><b><c/></b><l>p;q</l><t>Ja</t></r>"));
        QString text = "kept";
        QVERIFY(doc.get(&text, "a"));
        QVERIFY(text == "xyz");
        QVERIFY(doc.get(&text, "b"));
        QVERIFY(text.isEmpty());
        QVERIFY(!doc.set("t", "b"));
        QVERIFY(!doc.get(&text, "none"));
        QVERIFY(text.isNull());
        QVERIFY(!doc.set("t", "none"));
        QVERIFY(doc.set("new", "a"));
        QVERIFY(doc.get(&text, "a"));
        QVERIFY(text == "newyz");
        int number = 7;
        bool flag = true;
        QStringList list{"old"};
        QVERIFY(!doc.get(&number, "none"));
        QVERIFY(number == 7);
        QVERIFY(!doc.get(&flag, "none"));
        QVERIFY(flag);
        QVERIFY(!doc.get(&list, "none"));
        QVERIFY(list.isEmpty());
        doc.find("l");
        QVERIFY(!doc.getNext(&text));
        QVERIFY(text == "newyz");
        char buffer[6] = "zzzzz";
        QVERIFY(doc.get(buffer, 4, "a"));
        QVERIFY(QByteArray(buffer, 5) == "new0z");
        QVERIFY(!doc.get(buffer, 0, "a"));
        QVERIFY(!doc.get(buffer, 4, "none"));
        QVERIFY(QByteArray(buffer, 5) == "new0z");
        QVERIFY(doc.set("ab", "a/b"));
        QVERIFY(doc.get(buffer, 5, "a/b"));
        QVERIFY(QByteArray(buffer, 6)
                == QByteArray("ab\0\0"
                              "0\0",
                              6));

        const QDomElement root = doc.currentElement();
        QVERIFY(!doc.setAttr("a", 5, "", false));
        QVERIFY(!root.hasAttribute("a"));
        QVERIFY(doc.setAttr("a", 5));
        QVERIFY(doc.setAttr("a", "TRUE", "", false));
        QVERIFY(doc.getAttr("a", &flag, root));
        QVERIFY(flag);
        QVERIFY(doc.getAttr("a", static_cast<QString *>(nullptr), root));
        QVERIFY(doc.setAttr("a", 5, "none", true));
        QVERIFY(!doc.setAttr("a", 5, "none", false));
        QVERIFY(!doc.setAttr("", 5));
        QVERIFY(!doc.getAttr("none", &text, root));
        QVERIFY(!doc.getAttr("a", &text, QDomElement()));
        doc.setTrueString("Ja");
        doc.setFalseString("Nein");
        QVERIFY(doc.get(&flag, "t"));
        QVERIFY(flag);
        QVERIFY(doc.set(false, "t"));
        QVERIFY(doc.get(&flag, "t"));
        QVERIFY(!flag);
        QVERIFY(doc.setAttr("a", true));
        QVERIFY(!doc.getAttr("a", &flag, root));
        QVERIFY(!flag);
        QVERIFY(doc.getAttr("a", &list, root, "a"));
        QVERIFY(list == QStringList("J"));
        const QDateTime noon({2021, 3, 4}, {12, 0}, Qt::LocalTime);
        QDateTime read;
        QVERIFY(doc.append("d", noon, "yyyy/MM/dd hh.mm"));
        QVERIFY(doc.get(&text, "d"));
        QVERIFY(text == "2021/03/04 12.00");
        QVERIFY(doc.get(&read, "d", "yyyy/MM/dd hh.mm"));
        QVERIFY(read == QDateTime({2021, 3, 4}, {12, 0}, Qt::UTC));
        QVERIFY(!doc.get(&read, "d"));
        QVERIFY(!read.isValid());
        // An hour that local time lacks.
        qputenv("TZ", "Europe/Berlin");
        QVERIFY(doc.set(QDateTime({2020, 3, 29}, {2, 30}, Qt::UTC), "d", "dd.MM.yyyy hh:mm"));
        QVERIFY(doc.get(&read, "d", "dd.MM.yyyy hh:mm"));
        QVERIFY(read.time() == QTime(2, 30));
        qunsetenv("TZ");
    }

    void savesAndLoads()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("a.xml");
        const QString latin = "<?xml version='1.0' encoding='ISO-8859-1' "
                              "standalone='yes'?>\n<!DOCTYPE r SYSTEM \"r.dtd\">\n"
                              "<r b=\"\u00e4&#10;\" a=\"1\" c=\"2\"><e>t</e><f><g/></f></r>";
        writeBytes(path, latin.toLatin1());
        MRVDomDoc doc(path);
        QCOMPARE(doc.errorMessage(), QString("MRVDomDoc::load() ok "));
        QCOMPARE(doc.fileName(), path);
        QVERIFY(doc.save(folder.filePath("b.xml")));
        QVERIFY(doc.fileName() == path);
        QCOMPARE(bytesOf(folder.filePath("b.xml")),
                 QString("<?xml version='1.0' encoding=\"UTF-8\" standalone='yes'?>\n<!DOCTYPE r "
                         "SYSTEM 'r.dtd'>\n"
                         "<r a=\"1\" b=\"\u00e4&#xa;\" c=\"2\">\n   <e>t</e>\n   <f>\n      <g/>\n "
                         "  </f>\n</r>\n")
                     .toUtf8());
        QVERIFY(!doc.load(folder.filePath("none")));
        QVERIFY(doc.exists("/r"));
        QCOMPARE(doc.errorMessage(), "File not found: " + folder.filePath("none"));
        QString error;
        QVERIFY(!doc.save(folder.filePath("no/b.xml"), &error));
        QVERIFY(error.contains("no/b.xml"));
        QFile full("/dev/full");
        QVERIFY(full.open(QIODevice::WriteOnly));
        QVERIFY(!doc.save(full));
        writeBytes(path, "<r>\n<e></r>");
        QVERIFY(!doc.load(path));
        QVERIFY(!doc.exists("/"));
        QVERIFY(doc.currentElement().isNull());
        QVERIFY(doc.errorMessage() == "MRVDomDoc::load() failed ");
        QVERIFY(doc.errorLine() == 2);
        QVERIFY(doc.errorColumn() > 0);
        writeBytes(path, "<r>\n \xff</r>");
        QFile file(path);
        QVERIFY(!doc.setContent(&file));
        QVERIFY(doc.errorLine() == 2);
        QVERIFY(doc.errorColumn() == 2);
        QVERIFY(!doc.setContent(static_cast<QIODevice *>(nullptr)));
        QByteArray wide =
            QTextCodec::codecForName("UTF-16LE")
                ->fromUnicode(QString("<?xml version='1.0' encoding='UTF-16'?><r>\u4e2d</r>"));
        QBuffer buffer(&wide);
        QVERIFY(doc.setContent(&buffer));
        QVERIFY(doc.documentElement().text() == "\u4e2d");
        QVERIFY(doc.errorLine() == -1);
        // Saving and loading again adds no white space to texts.
        QVERIFY(doc.setContent("<!DOCTYPE r SYSTEM 'r.dtd'><r>a<?p d?>b<b><?p "
                               "d?></b>&nbsp;<!--c-->d<i/>e<![CDATA[f]]></r>"));
        const QByteArray first = saved(doc);
        QVERIFY(doc.setContent(QString(first)));
        QVERIFY(doc.documentElement().text() == "abdef");
        QCOMPARE(saved(doc), first);
        // What Qt's parser gets wrong.
        QVERIFY(doc.setContent(QString(QChar(QChar::ByteOrderMark))
                               + "<r a='&#x1F600;'>&#128512;\r\na\rb&#13;\x01&#1;<!--&#1;--></r>"));
        QCOMPARE(doc.documentElement().text(), QString("\U0001F600\na\nb\r"));
        QCOMPARE(doc.documentElement().attribute("a"), QString("\U0001F600"));
        // What would end too early, or be declared nowhere.
        QVERIFY(doc.setContent(QString("<r><![CDATA[old]]></r>")));
        QVERIFY(doc.set("a]]>b"));
        QDomNode root = doc.currentElement();
        QDomDocument dom = doc.document();
        root.appendChild(dom.createTextNode("]]"));
        root.appendChild(dom.createTextNode("><"));
        root.appendChild(dom.createComment("a---b-"));
        root.appendChild(dom.createProcessingInstruction("p", "x?>y"));
        QDomDocument spaces;
        QVERIFY(spaces.setContent(
            QString("<p:a xmlns:p='urn:x' xmlns='urn:y'><b/><p:c p:k='v'/></p:a>"), true));
        QVERIFY(doc.append(spaces.documentElement()));
        QVERIFY(doc.setContent(QString::fromUtf8(saved(doc))));
        QVERIFY(doc.documentElement().text() == "a]]>b]]><");
        QCOMPARE(doc.find("p:a/b").attribute("xmlns"), QString("urn:y"));
        QCOMPARE(doc.find("p:a").attribute("xmlns:p"), QString("urn:x"));
        QVERIFY(!doc.find("p:a/p:c").hasAttribute("xmlns:p"));
        // Many declarations and attributes come out sorted, too.
        QVERIFY(doc.setContent(
            QString("<!DOCTYPE r PUBLIC 'a' \"b's\" [<!NOTATION n SYSTEM 'z'><!NOTATION m SYSTEM "
                    "'y'><!ENTITY e SYSTEM 'x' NDATA n>]><r/>")));
        QCOMPARE(saved(doc),
                 QByteArray("<!DOCTYPE r PUBLIC 'a' \"b's\" [\n<!ENTITY e SYSTEM 'x' NDATA "
                            "n>\n<!NOTATION m SYSTEM 'y'>\n<!NOTATION n SYSTEM 'z'>\n]>\n<r/>\n"));
        doc.setRoot("r");
        QByteArray expected = "<r";
        for (int i = 1000; i < 1100; ++i) {
            doc.setAttr('k' + QString::number(i), "<\"&\t>");
            expected += " k" + QByteArray::number(i) + "=\"&lt;&quot;&amp;&#x9;>\"";
        }
        QCOMPARE(saved(doc), expected + "/>\n");
    }

    // White space that is text survives; layout is made again.
    void keepsBlanks_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QString>("expected"); // what is saved; empty: the same
        const auto same = [](const char *name, const QString &xml) {
            QTest::newRow(name) << xml << QString();
        };
        same("between", "<p><b>a</b> <i>c</i></p>");
        same("leading", "<p>t<b> <i/></b></p>");
        same("alone", "<r>\n   <a> </a>\n   <b>\t</b>\n</r>");
        same("line-by-reference", "<a>&#xa;</a>");
        QTest::newRow("references") << "<a>&#32; &#10;<b/>&#x20;</a>"
                                    << "<a>  \n<b/> </a>";
        same("mixed", "<p>a\n<b/>\n<i/><u/> </p>");
        same("mixed-late", "<p>\n<b/>\n<i/>a</p>");
        same("mixed-by-section", "<p>\n<b/>\n<![CDATA[]]></p>");
        same("mixed-outside", "<p>a<b>\n      <i/>\n   </b></p>");
        same("comment", "<p>a<!-- <b> --> <?p <?> <i/></p>");
        same("quotes", "<p><b a=\">\"/> <i b=\"'/>\"/></p>");
        same("preserve", "<p xml:space=\"preserve\">\n<b><i/></b></p>");
        QTest::newRow("preserve-ends")
            << "<p xml:space='preserve'> <b xml:space='default'>\n<i/></b></p>"
            << "<p xml:space=\"preserve\"> <b xml:space=\"default\">\n      <i/>\n   </b></p>";
        QTest::newRow("layout") << "<p>\n\n<b>a</b>\n\t<i>\n</i></p>"
                                << "<p>\n   <b>a</b>\n   <i/>\n</p>";
        QTest::newRow("declarations")
            << "<!DOCTYPE p [<!ENTITY e '<b/>'><!-- ]> <x> -->]><p>&e; <i/></p>"
            << "<!DOCTYPE p>\n<!-- ]> <x> -->\n<p><b/> <i/></p>";
    }
    void keepsBlanks()
    {
        QFETCH(QString, xml);
        QFETCH(QString, expected);
        MRVDomDoc doc;
        QVERIFY2(doc.setContent(xml), qPrintable(doc.errorMessage()));
        const QString once = QString::fromUtf8(saved(doc));
        QCOMPARE(once, (expected.isEmpty() ? xml : expected) + '\n');
        QVERIFY(doc.setContent(once));
        QCOMPARE(QString::fromUtf8(saved(doc)), once);
    }

    void blanksAsValues()
    {
        for (const char *blanks : {" ", "\n", " \n\t", "\r", "\n\r"}) {
            MRVDomDoc doc;
            doc.setRoot("r");
            QVERIFY(doc.append("a", blanks));
            QString text;
            QVERIFY(doc.setContent(QString::fromUtf8(saved(doc))));
            QVERIFY(doc.get(&text, "a"));
            QCOMPARE(text, QString(blanks));
        }
        MRVDomDoc doc;
        // Blanks before elements are no text to the cursor and the values.
        QVERIFY(doc.setContent(QString("<r> <a> <b/>x</a> </r>")));
        QCOMPARE(doc.workChild(), QString("a"));
        QString text = "old";
        QVERIFY(doc.get(&text, "a"));
        QCOMPARE(text, QString());
        QVERIFY(!doc.set("t", "a"));
        // The place of a fault is that in the source.
        QVERIFY(!doc.setContent(QString("<r>a <b/> <i/> </x>")));
        QCOMPARE(doc.errorLine(), 1);
        QVERIFY2(doc.errorColumn() <= 20, qPrintable(QString::number(doc.errorColumn())));
    }

    void saysWhyMissing_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("expected");
        QTest::newRow("found") << "part/chapter"
                               << "";
        QTest::newRow("root") << "/bok/part"
                              << "the document element is 'book', not 'bok'";
        QTest::newRow("slip") << "part/chatper"
                              << "no 'chatper' below /book/part; did you mean 'chapter'?";
        QTest::newRow("predicate") << "part@id=2/x"
                                   << "no 'part@id=2' below /book";
        QTest::newRow("far") << "novel"
                             << "no 'novel' below /book";
        QTest::newRow("above") << "part/../.."
                               << "nothing is above /book";
    }
    void saysWhyMissing()
    {
        QFETCH(QString, path);
        MRVDomDoc doc;
        QCOMPARE(doc.whyMissing(path), QString("there is no document element"));
        QVERIFY(doc.setContent(QString("<book><part><chapter/></part><part n='2'/></book>")));
        doc.find("part");
        QTEST(doc.whyMissing(path), "expected");
        QCOMPARE(doc.findNext().attribute("n"), QString("2"));
        QCOMPARE(doc.workPath(), QString("/book"));
    }

    void removesAttributes_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("all");
        QTest::addColumn<int>("removed");
        QTest::addColumn<QString>("left"); // the numbers of the elements that have it still
        QTest::newRow("first") << "a" << false << 1 << "1 3 4";
        QTest::newRow("all") << "a" << true << 2 << "1 4";
        QTest::newRow("below") << "a/b/" << true << 1 << "1 2 3";
        QTest::newRow("down-and-up") << "a/b/../" << true << 1 << "1 3 4";
        QTest::newRow("here") << "" << true << 1 << "2 3 4";
        QTest::newRow("root") << "/" << true << 1 << "2 3 4";
        QTest::newRow("missing") << "a/none" << true << 0 << "1 2 3 4";
    }
    void removesAttributes()
    {
        QFETCH(QString, path);
        QFETCH(bool, all);
        MRVDomDoc doc;
        QVERIFY(doc.setContent(documentOf("r1[k=](a2[k=](b4[k=]),a3[k=])")));
        QTEST(doc.removeAttr("k", path, all), "removed");
        QCOMPARE(doc.removeAttr("", path, all), 0);
        QStringList left;
        for (const char *n : {"1", "2", "3", "4"}) {
            const QDomElement e = byNumber(doc.documentElement(), n);
            QVERIFY(!e.isNull());
            if (e.hasAttribute("k")) {
                left << n;
            }
        }
        QTEST(left.join(' '), "left");
    }

    void refusesHostile_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::newRow("too-deep") << QString("<a>").repeated(1001);
        QTest::newRow("external") << "<!DOCTYPE r [<!ENTITY a SYSTEM '/etc/hostname'>]><r>t&a;</r>";
    }
    void refusesHostile()
    {
        MRVDomDoc doc;
        QVERIFY(!doc.setContent(cell("xml")));
        QVERIFY(!doc.errorMessage().isEmpty());
        QVERIFY(!doc.exists("/"));
        QVERIFY(doc.errorLine() > 0);
        QVERIFY(doc.errorColumn() > 0);
    }

    // Nothing is saved that could not be loaded again.
    void refusesToSaveTooDeep()
    {
        MRVDomDoc doc;
        for (int i = 0; i < MRVDomLimits::MaxDepth; ++i) {
            doc.create("a");
        }
        doc.append("b", "t");
        QCOMPARE(saved(doc), QByteArray("refused"));
        doc.remove("b");
        doc.set("text");
        MRVDomDoc again;
        QVERIFY(again.setContent(QString::fromUtf8(saved(doc))));
    }

    void objects()
    {
        struct Chapter : MRVDomObject
        {
            QString title;
            bool loadFromDomDoc(MRVDomDoc &doc) override { return doc.get(&title, "title"); }
            bool saveToDomDoc(MRVDomDoc &doc) const override
            {
                doc.setRoot("chapter");
                doc.document().appendChild(doc.document().createComment("after"));
                return doc.append("title", title) && !title.isEmpty();
            }
        };
        Chapter chapter, again;
        QVERIFY(chapter.saveToDomElement().isNull());
        chapter.title = "One";
        const QDomElement element = chapter.saveToDomElement();
        QVERIFY(element.tagName() == "chapter");
        QVERIFY(element.nextSibling().isNull());
        QVERIFY(again.loadFromDomElement(element));
        QVERIFY(again.title == "One");
        QVERIFY(!again.loadFromDomElement(QDomElement()));
    }
};

QTEST_GUILESS_MAIN(TestDom)
#include "tst_dom.moc"
