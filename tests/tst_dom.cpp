#include "datarows.h"
#include "dom/mrvdomdoc.h"
#include "dom/mrvdomobject.h"
#include "dom/mrvdomsource.h"
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

// Whether a value was read, and the variable then: "+ value".
template<typename T>
QString outcome(bool isRead, const T &value)
{
    const QVariant variant(value);
    const bool isList = variant.type() == QVariant::StringList;
    return (isRead ? "+ " : "- ")
        + (isList ? variant.toStringList().join(',') : variant.toString());
}

// What a call returns or leaves; its arguments are a path or name, and others after "|".
QString resultOf(const QString &call, MRVDomDoc *doc)
{
    const QStringList all = call.mid(call.indexOf(' ') + 1).split('|');
    const QString &path = all[0];
    const QString text = all.value(1);
    const QDomElement &here = doc->currentElement();
    const auto numberOf = [](const QDomElement &e) { return e.attribute("n"); };
    QString string = "old";
    QStringList list{"old"};
    int number = 7;
    bool flag = true;
    const QHash<QString, std::function<QString()>> calls{
        {"cd", [&] { return after(doc->cd(path), *doc); }},
        {"cdUp", [&] { return after(doc->cdUp(path.toInt()), *doc); }},
        {"cdNext", [&] { return after(doc->cdNext(path), *doc); }},
        {"setChild", [&] { return after(doc->setChild(path), *doc); }},
        {"setRoot", [&] { return after(doc->setRoot(path), *doc); }},
        {"append", [&] { return after(doc->append(path, text), *doc); }},
        {"insert", [&] { return after(doc->insert(path, text, all.size() > 2), *doc); }},
        {"prepend", [&] { return after(doc->prepend(path, text), *doc); }},
        {"create", [&] { return after(doc->create(path), *doc); }},
        {"copy", [&] { return after(doc->append(doc->find(path)), *doc); }},
        {"createPath",
         [&] {
             const int made = doc->createPath(path);
             return QString("%1 %2").arg(made).arg(doc->workPath());
         }},
        {"remove", [&] { return QString::number(doc->remove(path)); }},
        {"removeAll", [&] { return QString::number(doc->remove(path, true)); }},
        {"removeAttr", [&] { return QString::number(doc->removeAttr(text, path)); }},
        {"removeAttrs", [&] { return QString::number(doc->removeAttr(text, path, true)); }},
        {"element", [&] { return doc->workElement(true); }},
        {"child", [&] { return doc->workChild(true); }},
        {"n", [&] { return numberOf(here); }},
        {"find", [&] { return numberOf(doc->find(path)); }},
        {"findNext", [&] { return numberOf(doc->findNext()); }},
        {"whyMissing", [&] { return doc->whyMissing(path); }},
        {"save", [&] { return QString::fromUtf8(saved(*doc)).simplified(); }},
        {"set", [&] { return after(doc->set(text, path), *doc); }},
        {"get", [&] { return outcome(doc->get(&string, path), string); }},
        {"getNext", [&] { return outcome(doc->getNext(&string), string); }},
        {"getInt", [&] { return outcome(doc->get(&number, path), number); }},
        {"getBool", [&] { return outcome(doc->get(&flag, path), flag); }},
        {"getList", [&] { return outcome(doc->get(&list, path), list); }},
        {"setAttr", [&] { return after(doc->setAttr(path, 5, text), *doc); }},
        {"changeAttr", [&] { return after(doc->setAttr(path, "TRUE", text, false), *doc); }},
        {"getAttr", [&] { return outcome(doc->getAttr(path, &string, here), string); }},
        {"getBoolAttr", [&] { return outcome(doc->getAttr(path, &flag, here), flag); }},
        {"getListAttr", [&] { return outcome(doc->getAttr(path, &list, here, text), list); }},
    };
    return calls.value(call.section(' ', 0, 0), [] { return QString("no such call"); })();
}

// A document element with a text, to be read by path "e".
void setValue(MRVDomDoc *doc, const QString &text)
{
    doc->setRoot("r");
    doc->append("e", text);
    doc->currentElement().setAttribute("k", text);
}

// The texts, or the only one where all are the same.
QString together(QStringList texts)
{
    texts.removeDuplicates();
    return texts.join('|');
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
    return together({appended, set, attribute});
}

// What get(), getNext() and getAttr() make of a text: value and outcome of each.
template<typename T>
QString readAs(const QString &text)
{
    MRVDomDoc doc;
    setValue(&doc, "x");
    doc.append("e", text);
    doc.setAttr("k", text);
    QStringList results;
    const auto add = [&](bool ok, const T &value) {
        QString result;
        QDebug(&result).noquote().nospace() << value << (ok ? "+" : "-");
        results << result;
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
    return together(results);
}

} // namespace

class TestDom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void find_data() { addRows("dompaths.tsv"); }
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
        QCOMPARE(doc.findAll(path).value(0).attribute("n"), found.value(0));
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

    // A plain name after an absolute path, and many attributes.
    void largeElements()
    {
        MRVDomDoc doc;
        QVERIFY(doc.setContent("<r>" + QString("x<a/>").repeated(50000) + "</r>"));
        QElapsedTimer timer;
        timer.start();
        QVERIFY(doc.cd("/"));
        QCOMPARE(doc.remove("a", true), 50000);
        for (int i = 0; i < 9999; ++i) {
            doc.currentElement().setAttribute(QString("a%1").arg(i), i);
        }
        QCOMPARE(doc.toJson()["attributes"].toObject().size(), 9999);
        QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    }

    void calls_data() { addSteps("domcalls.tsv"); }
    // Each call in turn, with what it gives.
    void calls()
    {
        QFETCH(QStringList, steps);
        const QString start = steps.takeFirst();
        MRVDomDoc doc;
        QVERIFY(start.isEmpty()
                || doc.setContent(start.startsWith('<') ? start : documentOf(start)));
        checkSteps(steps, [&](const QString &call) { return resultOf(call, &doc); });
    }

    void elements()
    {
        MRVDomDoc doc;
        QVERIFY(!doc.cdRoot());
        QVERIFY(doc.setContent(documentOf("r1(i2[k=x])")));
        QVERIFY(!doc.setWorkElement(QDomElement()));
        QVERIFY(MRVDomDoc::EmptyElement.isNull());
        const QDomElement i = doc.find("i@k=x");
        QVERIFY(doc.matchElement(i, "i@k=x@n"));
        QVERIFY(doc.matchElement(i, QStringList{"..", "n=2"}));
        QVERIFY(!doc.matchElement(i, QStringList()));
        QVERIFY(!doc.matchElement(QDomElement(), "i"));
        const QDomElement made = doc.createElement("e@k=v@ l @", "t");
        QCOMPARE(made.text() + made.attribute("k") + made.attribute("l"), QString("ttt"));
        doc.currentElement() = MRVDomDoc::EmptyElement;
        QVERIFY(!doc.append("second"));
        QVERIFY(!doc.create("second"));
        QVERIFY(!doc.append(doc.documentElement()));
        QVERIFY(doc.setContent(i));
        QCOMPARE(doc.workPath(), QString("/i"));
        MRVDomDoc copy;
        QVERIFY(copy.append(doc.currentElement()));
        QCOMPARE(copy.workPath(), QString("/i"));
        QVERIFY(!MRVDomDoc().append(doc.document()));
        QCOMPARE(copy.createPath(QString("a/").repeated(5000)), 999);
    }

    void writesValues()
    {
        QCOMPARE(textsOf(-7), "-7");
        QCOMPARE(textsOf(18446744073709551615UL), "18446744073709551615");
        QCOMPARE(textsOf(1.5F), "1.500000|1.5"); // appended, and set or as an attribute
        QCOMPARE(textsOf(1234567.0), "1.23457e+06");
        QCOMPARE(textsOf(true), "true");
        QCOMPARE(textsOf(QSize(640, -1)), "640,-1");
        QCOMPARE(textsOf(QSizeF(10, 2.5)), "10.0,2.5|10.000,2.500");
        QCOMPARE(textsOf(QPointF(-1, 0)), "-1.0,0.0|-1.000,0.000");
        QCOMPARE(textsOf(QStringList{"a", "", "b"}), "a,,b");
        QCOMPARE(textsOf(QString("a\x01\uFFFE") + QChar(0xD800)), "a");
        QCOMPARE(textsOf(QDateTime({2020, 2, 29}, {1, 2, 3}, Qt::OffsetFromUTC, 3600)),
                 "2020-02-29T01:02:03+01:00");
    }

    // By get(), getNext() and getAttr() alike.
    void readsValues()
    {
        QCOMPARE(readAs<int>(" 12 "), "12+");
        QCOMPARE(readAs<int>("12abc"), "0-");
        QCOMPARE(readAs<int>(""), "0-");
        QCOMPARE(readAs<short>("32768"), "0-");
        QCOMPARE(readAs<double>("-1.5e3"), "-1500+");
        QCOMPARE(readAs<double>("1e400"), "0-");
        QCOMPARE(readAs<float>("1e40"), "0-");
        QCOMPARE(readAs<QSizeF>("1,1e400"), "QSizeF(0, 0)-");
        QCOMPARE(readAs<bool>(" YES "), "true+");
        QCOMPARE(readAs<bool>("1"), "false-");
        QCOMPARE(readAs<QSize>("640 , 480"), "QSize(640, 480)+");
        QCOMPARE(readAs<QPointF>("1"), "QPointF(0,0)-");
        QCOMPARE(readAs<QStringList>("a,,b"), "(a, b)+");
        QCOMPARE(readAs<QDateTime>("2020-02-29T01:02:03+05:00"),
                 "QDateTime(2020-02-29 01:02:03.000 UTC Qt::UTC)+");
    }

    void buffers()
    {
        MRVDomDoc doc;
        QVERIFY(doc.setContent(QString("<r><a>newyz</a><b>ab</b></r>")));
        char buffer[6] = "zzzzz";
        QVERIFY(doc.get(buffer, 4, "a"));
        QVERIFY(!doc.get(buffer, 0, "a"));
        QVERIFY(!doc.get(buffer, 4, "none"));
        QCOMPARE(QByteArray(buffer, 5), QByteArray("new0z"));
        QVERIFY(doc.get(buffer, 5, "b"));
        QCOMPARE(QByteArray(buffer, 6),
                 QByteArray("ab\0\0"
                            "0\0",
                            6));
    }

    void words()
    {
        MRVDomDoc doc;
        QVERIFY(doc.setContent(QString("<r><t>Ja</t></r>")));
        doc.setTrueString("Ja");
        doc.setFalseString("Nein");
        QCOMPARE(resultOf("getBool t", &doc), QString("+ true"));
        QVERIFY(doc.set(false, "t"));
        QCOMPARE(resultOf("getBool t", &doc), QString("+ false"));
        QVERIFY(doc.setAttr("a", true));
        QCOMPARE(resultOf("getBoolAttr a", &doc), QString("- false"));
        QCOMPARE(resultOf("getListAttr a|a", &doc), QString("+ J"));
        QVERIFY(doc.getAttr("a", static_cast<QString *>(nullptr), doc.currentElement()));
        QVERIFY(!doc.getAttr("a", static_cast<QString *>(nullptr), QDomElement()));
    }

    void dates()
    {
        MRVDomDoc doc;
        QDateTime read;
        const QString format = "yyyy/MM/dd hh.mm";
        QVERIFY(doc.setRoot("r"));
        QVERIFY(doc.append("d", QDateTime({2021, 3, 4}, {12, 0}, Qt::LocalTime), format));
        QCOMPARE(resultOf("get d", &doc), QString("+ 2021/03/04 12.00"));
        QVERIFY(doc.get(&read, "d", format));
        QCOMPARE(read, QDateTime({2021, 3, 4}, {12, 0}, Qt::UTC));
        QVERIFY(!doc.get(&read, "d"));
        QVERIFY(!read.isValid());
        // An hour that local time lacks.
        qputenv("TZ", "Europe/Berlin");
        QVERIFY(doc.set(QDateTime({2020, 3, 29}, {2, 30}, Qt::UTC), "d", format));
        QVERIFY(doc.get(&read, "d", format));
        QCOMPARE(read.time(), QTime(2, 30));
        qunsetenv("TZ");
    }

    void files()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("a.xml");
        writeBytes(path,
                   "<?xml version='1.0' encoding='ISO-8859-1' standalone='yes'?>\n"
                   "<r b=\"\xe4&#10;\" a=\"1\"><e>t</e></r>");
        MRVDomDoc doc(path);
        QCOMPARE(doc.errorMessage(), QString("MRVDomDoc::load() ok "));
        QVERIFY(doc.save(folder.filePath("b.xml")));
        QCOMPARE(doc.fileName(), path);
        QCOMPARE(bytesOf(folder.filePath("b.xml")),
                 QByteArray("<?xml version='1.0' encoding=\"UTF-8\" standalone='yes'?>\n"
                            "<r a=\"1\" b=\"ä&#xa;\">\n   <e>t</e>\n</r>\n"));
        QVERIFY(!doc.load(folder.filePath("none")));
        QVERIFY(doc.exists("/r"));
        QCOMPARE(doc.errorMessage(), "File not found: " + folder.filePath("none"));
        QString error;
        QVERIFY(!doc.save(folder.filePath("no/b.xml"), &error));
        QVERIFY(error.contains("no/b.xml"));
        QFile full("/dev/full");
        QVERIFY(full.open(QIODevice::WriteOnly));
        QVERIFY(!doc.save(full));
        writeBytes(path, "<r>\n \xff</r>");
        QVERIFY(!doc.load(path));
        QVERIFY(!doc.exists("/"));
        QVERIFY(doc.currentElement().isNull());
        QCOMPARE(doc.errorMessage(), QString("MRVDomDoc::load() failed "));
        QCOMPARE(doc.errorLine(), 2);
        QCOMPARE(doc.errorColumn(), 2);
        QVERIFY(!doc.errorReason().isEmpty() && doc.errorReason() != doc.errorMessage());
        // Damage is not loaded as if it were a text.
        for (const QByteArray &damaged :
             {QByteArray("<r>x\0y</r>", 10), QByteArray("<r>\x02</r>")}) {
            writeBytes(path, damaged);
            QVERIFY(!doc.load(path));
            QVERIFY2(doc.errorReason().startsWith("XML does not allow the character U+000"),
                     qPrintable(doc.errorReason()));
        }
        QVERIFY(!doc.setContent(static_cast<QIODevice *>(nullptr)));
        QByteArray wide =
            QTextCodec::codecForName("UTF-16LE")
                ->fromUnicode(QString("<?xml version='1.0' encoding='UTF-16'?><r>\u4e2d</r>"));
        QBuffer buffer(&wide);
        QVERIFY(doc.setContent(&buffer));
        QCOMPARE(doc.documentElement().text(), QString("\u4e2d"));
        QCOMPARE(doc.errorLine(), -1);
    }

    void savesWhatWasMade()
    {
        MRVDomDoc doc;
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
        QCOMPARE(doc.documentElement().text(), QString("a]]>b]]><"));
        QCOMPARE(doc.find("p:a/b").attribute("xmlns"), QString("urn:y"));
        QCOMPARE(doc.find("p:a").attribute("xmlns:p"), QString("urn:x"));
        QVERIFY(!doc.find("p:a/p:c").hasAttribute("xmlns:p"));
        // Many attributes come out sorted, too.
        doc.setRoot("r");
        QByteArray expected = "<r";
        for (int i = 1000; i < 1100; ++i) {
            doc.setAttr('k' + QString::number(i), "<\"&\t>");
            expected += " k" + QByteArray::number(i) + "=\"&lt;&quot;&amp;&#x9;>\"";
        }
        QCOMPARE(saved(doc), expected + "/>\n");
    }

    void saves_data()
    {
        addRows("domsaves.tsv");
        // What Qt's parser gets wrong.
        QTest::newRow("characters") << ""
                                    << QString(QChar(QChar::ByteOrderMark))
                + "<r a='&#x1F600;'>&#128512;\r\na\rb&#13;<!--&#1;--></r>"
                                    << "<r a=\"\U0001F600\">\U0001F600\na\nb&#xd;<!--&#1;--></r>";
    }
    // What is loaded, and what is saved of it: white space that is text survives; layout is made
    // again.
    void saves()
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

    void changesInPlace_data() { addSteps("domsources.tsv"); }
    // What a text becomes by calls, only the bytes of the change being others.
    void changesInPlace()
    {
        QFETCH(QStringList, steps);
        const QString expected = steps.takeLast();
        const QByteArray before = steps.takeFirst().toUtf8();
        MRVDomDoc doc;
        MRVDomSource source;
        QVERIFY2(source.read(before, &doc), qPrintable(doc.errorMessage()));
        QByteArray written;
        QVERIFY(source.write(doc, &written));
        QCOMPARE(written, before);
        for (const QString &call : steps) {
            resultOf(call, &doc);
        }
        QString note;
        QVERIFY(source.write(doc, &written, &note));
        QCOMPARE(QString::fromUtf8(written), expected);
        QCOMPARE(note, QString());
    }

    void changesInEachEncoding()
    {
        for (const char *encoding : {"ISO-8859-1", "UTF-16LE", "UTF-8", "KOI8-R"}) {
            const QTextCodec *codec = QTextCodec::codecForName(encoding);
            const QString xml =
                "<?xml version='1.0' encoding='%1'?>\r\n<r b = 'x' a=\"\">\r\n%2</r>";
            const auto bytesWith = [&](const QString &content) {
                return codec->fromUnicode(xml.arg(encoding, content));
            };
            MRVDomDoc doc;
            MRVDomSource source;
            QVERIFY(source.read(bytesWith("<e/>"), &doc));
            QVERIFY(doc.set(QString("1\n\u4e2d&"), "e"));
            QByteArray written;
            QString note;
            QVERIFY(source.write(doc, &written, &note));
            QCOMPARE(note, QString());
            const bool isWide = QByteArray(encoding).startsWith("UTF");
            QCOMPARE(written,
                     bytesWith(isWide ? "<e>1\r\n\u4e2d&amp;</e>" : "<e>1\r\n&#x4e2d;&amp;</e>"));
        }
    }

    // What cannot be changed in place is said, and still reads as the document.
    void changesWithALayout()
    {
        MRVDomDoc doc;
        MRVDomSource source;
        QByteArray written;
        QString note;
        QVERIFY(source.read("<!DOCTYPE r [<!ENTITY e '<b/>'>]><r>&e;</r>", &doc));
        QVERIFY(doc.setAttr("a", 1));
        QVERIFY(source.write(doc, &written, &note));
        QVERIFY2(note.endsWith("its document type declares entities"), qPrintable(note));
        QCOMPARE(written, saved(doc));
        QVERIFY(source.read("<r/><!-- x -->", &doc));
        doc.setRoot("s");
        QVERIFY(source.write(doc, &written, &note));
        QVERIFY2(note.endsWith("goes beyond single elements"), qPrintable(note));
        QCOMPARE(written, QByteArray("<s/>\n"));
        QVERIFY(!source.read("<r>", &doc));
        QVERIFY(doc.errorLine() == 1);
        QVERIFY(doc.setRoot("1x"));
        QVERIFY(!source.write(doc, &written, nullptr, &note));
        QVERIFY2(note.endsWith("the name '1x'"), qPrintable(note));
    }

    void changesAtRandom()
    {
        QRandomGenerator random(20261122);
        const auto pick = [&](const QStringList &list) {
            return list[random.bounded(list.size())];
        };
        for (int i = 0; i < 2000; ++i) {
            QString xml = "<r>";
            QStringList open{"r"};
            for (int left = random.bounded(12); left > 0; --left) {
                const QString name = pick({"a", "b", "c"});
                xml += pick(
                    {"", "", "\n  ", " ", "t", "&lt;", "<!-- c -->", "<?p i?>", "<![CDATA[<]]>"});
                xml += '<' + name + pick({"", " k='v'", "\n  k = \"&gt;\" l=''", " m='1' k='2'"});
                if (random.bounded(2) == 0) {
                    xml += pick({"/>", " />"});
                } else {
                    xml += '>';
                    open << name;
                }
                while (open.size() > 1 && random.bounded(2) == 0) {
                    xml += pick({"", "\n", "t", " "}) + "</" + open.takeLast() + pick({">", " >"});
                }
            }
            while (!open.isEmpty()) {
                xml += pick({"", "\n"}) + "</" + open.takeLast() + '>';
            }
            MRVDomDoc doc;
            MRVDomSource source;
            QVERIFY2(source.read(xml.toUtf8(), &doc), qPrintable(xml));
            QStringList calls;
            for (int count = random.bounded(1, 4); count > 0; --count) {
                calls << pick({"cd ", "cd /", "cdUp 1", "cd a", "cd b/c", "cd c"})
                      << pick({"set |new", "set |", "set a|x\ny", "setAttr k", "setAttr n|b",
                               "removeAttrs a|k", "remove a", "removeAll b", "removeAll a/b",
                               "append e|t", "append e", "prepend f", "insert g|\n", "create h",
                               "createPath a/b/d"});
            }
            for (const QString &call : calls) {
                resultOf(call, &doc);
            }
            QByteArray written;
            QString note;
            QVERIFY(source.write(doc, &written, &note));
            QVERIFY2(note.isEmpty(), qPrintable(xml + '\n' + calls.join(';') + '\n' + saved(doc)));
        }
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

    void refusesHostile()
    {
        MRVDomDoc doc;
        QVERIFY(!doc.setContent(QString("<a>").repeated(MRVDomLimits::MaxDepth + 1)));
        QVERIFY(!doc.errorMessage().isEmpty());
        QVERIFY(!doc.exists("/"));
        QVERIFY(doc.errorLine() > 0);
        QVERIFY(doc.errorColumn() > 0);
    }

    // Nothing is saved that could not be loaded again.
    void refusesToSaveNames()
    {
        QTemporaryDir folder;
        for (const char *name : {"1x", "a b", "a<", "-", "\u00b7a"}) {
            MRVDomDoc doc;
            doc.setRoot("r");
            QVERIFY(doc.append(name));
            QString error;
            QVERIFY2(!doc.save(folder.filePath("a.xml"), &error), name);
            QVERIFY2(error.endsWith(QString("the name '%1'").arg(name)), qPrintable(error));
            doc.setRoot("r");
            doc.setAttr(name, 1);
            QCOMPARE(saved(doc), QByteArray("refused"));
        }
        MRVDomDoc doc;
        QVERIFY(doc.setContent(QString("<_ \u00e4:b.c-='1' xmlns:p='u'><p:q\u00e9/></_>")));
        QVERIFY(doc.setContent(QString::fromUtf8(saved(doc))));
        QVERIFY(doc.exists("/_@xmlns:p/p:q\u00e9"));
    }

    // Nor are elements looked for that are gone.
    void emptiedByTheDomItself()
    {
        MRVDomDoc doc;
        QVERIFY(doc.setContent(QString("<?xml version='1.0'?><r><a/></r>")));
        QVERIFY(doc.exists("a"));
        doc.document().removeChild(doc.documentElement());
        for (const char *path : {"", "a", "/", "/r"}) {
            QVERIFY2(!doc.exists(path), path);
        }
    }

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
