#include "screenplay/mrvfountain.h"
#include "screenplay/mrvscriptcast.h"
#include "screenplay/mrvscriptcheck.h"
#include "screenplay/mrvscriptcompare.h"
#include "screenplay/mrvscriptfile.h"
#include "screenplay/mrvscriptnumbers.h"
#include "screenplay/mrvscriptscenes.h"

#include "datarows.h"

#include <QRandomGenerator>
#include <QtTest>

using Element = MRVFountainElement;

namespace {

// A script of scenes with these numbers, separated by blanks; "." for none.
MRVFountainScript scenes(const QString &numbers)
{
    MRVFountainScript script;
    for (const QString &number : numbers.split(' ')) {
        script.elements.append(Element(Element::SceneHeading, "INT. A"));
        script.elements.last().sceneNumber = number == "." ? QString() : number;
    }
    return script;
}

QStringList numbersOf(const MRVFountainScript &script)
{
    QStringList numbers;
    for (const Element &element : script.elements) {
        numbers << element.sceneNumber;
    }
    return numbers;
}

/// The second script, made of the first one and the changes.
QVector<Element> changed(const MRVFountainScript &before, const MRVFountainScript &after,
                         const QVector<MRVScriptChange> &changes)
{
    QVector<Element> elements;
    int next = 0; // of the first script
    const auto copyTo = [&](int end) {
        elements += before.elements.mid(next, end - next);
        next = end;
    };
    for (const MRVScriptChange &change : changes) {
        if (change.after >= 0) {
            copyTo(change.before >= 0 ? change.before : next + change.after - elements.size());
            elements << after.elements.at(change.after);
        } else {
            copyTo(change.before);
        }
        next += change.before >= 0 ? 1 : 0;
    }
    copyTo(before.elements.size());
    return elements;
}

} // namespace

/// What writers ask of scripts: lists of scenes, numbers, checks, comparisons.
class TestScriptTools : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headings_data() { addRows("scriptheadings.tsv"); }
    void headings()
    {
        const MRVSceneHeading heading = MRVSceneHeading::of(cell("heading"));
        QCOMPARE(MRVSceneHeading::name(heading.setting), cell("setting"));
        QCOMPARE(heading.place, cell("place"));
        QCOMPARE(heading.time, cell("time"));
    }

    void scenes_data() { addRows("scriptscenes.tsv"); }
    void scenes()
    {
        const MRVFountainScript script = MRVFountainScript::fromText(cell("text"));
        QStringList shown;
        for (const MRVScriptScene &scene : MRVScriptScene::of(script)) {
            shown << QString("%1 %2-%3: %4")
                         .arg(scene.number)
                         .arg(scene.first)
                         .arg(scene.end)
                         .arg(scene.characters.join('+'));
        }
        QCOMPARE(shown.join(" | "), cell("scenes"));
    }

    void numbers_data() { addRows("scriptnumbers.tsv"); }
    void numbers()
    {
        MRVFountainScript script = ::scenes(cell("before"));
        const int open = numbersOf(script).count(QString());
        QCOMPARE(MRVScriptNumbers::number(&script), open);
        QCOMPARE(numbersOf(script).join(' '), cell("after"));
    }

    // Round after round of new scenes at any place: each number is unique and in its place.
    void manyNumbers()
    {
        QRandomGenerator random(1);
        MRVFountainScript script = ::scenes("1 2 3");
        for (int round = 0; round < 200; ++round) {
            const Element scene(Element::SceneHeading, "INT. A");
            script.elements.insert(random.bounded(script.elements.size() + 1), scene);
            MRVScriptNumbers::number(&script);
        }
        QStringList all = numbersOf(script);
        QCOMPARE(all.removeDuplicates(), 0);
        int unordered = 0;
        for (int i = 1; i < all.size(); ++i) {
            unordered += MRVScriptNumbers::isBefore(all.at(i - 1), all.at(i)) ? 0 : 1;
        }
        QCOMPARE(unordered, 0);
        // More of them at one place than there are letters.
        MRVFountainScript crowd = ::scenes("1 " + QString(". ").repeated(30000) + "2");
        QCOMPARE(MRVScriptNumbers::number(&crowd), 30000);
        all = numbersOf(crowd);
        QCOMPARE(all.at(30000).size(), 5);
        QVERIFY(MRVScriptNumbers::isBefore(all.at(29999), all.at(30000)));
        QCOMPARE(MRVScriptNumbers::renumber(&crowd, 2), 30002);
        QCOMPARE(crowd.elements.last().sceneNumber, QString("30003"));
    }

    void faults_data() { addRows("scriptcheck.tsv"); }
    void faults()
    {
        QStringList found;
        for (const MRVScriptFault &fault : MRVScriptCheck::ofText(cell("text"))) {
            found << QString("%1/%2 %3").arg(fault.line).arg(fault.usualLine).arg(fault.text);
        }
        QCOMPARE(found.join(" | "), cell("faults"));
    }

    void changes_data() { addRows("scriptcompare.tsv"); }
    void changes()
    {
        const MRVFountainScript before = MRVFountainScript::fromText(cell("before"));
        const MRVFountainScript after = MRVFountainScript::fromText(cell("after"));
        QStringList found;
        for (const MRVScriptChange &change : MRVScriptCompare::elements(before, after)) {
            found << QString("%1>%2").arg(change.before).arg(change.after);
        }
        for (const MRVScriptChange &change : MRVScriptCompare::titles(before, after)) {
            found << QString("t%1>%2").arg(change.before).arg(change.after);
        }
        QCOMPARE(found.join(' '), cell("changes"));
    }

    // The changes make one script the other.
    void randomChanges()
    {
        for (int seed = 0; seed < 2000; ++seed) {
            QRandomGenerator random(seed);
            MRVFountainScript sides[2];
            for (MRVFountainScript &side : sides) {
                for (int left = random.bounded(12); left > 0; --left) {
                    const auto kind = Element::Kind(random.bounded(2));
                    side.elements.append(Element(kind, QString(QChar('a' + random.bounded(6)))));
                }
            }
            const auto changes = MRVScriptCompare::elements(sides[0], sides[1]);
            QCOMPARE(changed(sides[0], sides[1], changes), sides[1].elements);
            QCOMPARE(MRVScriptCompare::elements(sides[0], sides[0]).size(), 0);
        }
    }

    void encodings_data()
    {
        QTest::addColumn<QByteArray>("encoding");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("revised");
        const QByteArray none;
        QTest::newRow("same") << QByteArray("windows-1252") << QByteArray("\xc9VE\r\n Hi\x80")
                              << QString("\u00C9VE") << QByteArray("\xc9VE\r\n Hi\x80");
        QTest::newRow("other") << QByteArray("windows-1252") << QByteArray("\xc9VE\r\n Hi\x80\r\n")
                               << QString("\u00D6D")
                               << QByteArray("\xd6"
                                             "D\r\n Hi\x80\r\n");
        QTest::newRow("lacks") << QByteArray("latin1") << QByteArray("\xc9VE\nHi\n")
                               << QString("\u0150D") << none;
        QTest::newRow("marked") << QByteArray("latin1")
                                << QByteArray("\xef\xbb\xbf"
                                              "A\nHi\n")
                                << QString("\u0150") << QByteArray("\xef\xbb\xbf\xc5\x90\nHi\n");
        QTest::newRow("wide") << QByteArray("UTF-16LE") << QByteArray("A\0\n\0b\0", 6)
                              << QString("\u0150") << QByteArray("\x50\x01\n\0b\0", 6);
    }
    void encodings()
    {
        QFETCH(QByteArray, encoding);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, name);
        MRVScriptFile file;
        QString error;
        QVERIFY2(file.read(bytes, MRVScriptFile::Fountain, encoding, &error), qPrintable(error));
        MRVFountainScript script = file.script();
        script.elements.first().runs.first().text = name;
        file.setScript(script);
        QTEST(file.revised(&error), "revised");
        QCOMPARE(error.contains("ISO-8859-1 lacks"), file.revised().isNull());
        QCOMPARE(file.read("\xff\n", MRVScriptFile::Fountain, "UTF-8", &error), false);
        QCOMPARE(file.read("a\n", MRVScriptFile::Fountain, "UTF-9", &error), false);
        QCOMPARE(file.read("<FinalDraft/>", MRVScriptFile::FinalDraft, "latin1", &error), false);
        QCOMPARE(file.source(), bytes);
    }

    // Minutes each, unless they take linear time.
    void largeScripts()
    {
        QString text;
        QString other;
        for (int i = 0; i < 20000; ++i) {
            text += QString("INT. PLACE AB%1C - DAY\n\nNAME X%1Y\nHi %1.\n\n").arg(i);
            other += QString("INT. PLACE AB%1C - DAY\n\nNAME X%1Y\nHi %1.\n\n").arg(i % 7);
        }
        MRVScriptCheck::ofText(text);
        const auto before = MRVFountainScript::fromText(text);
        const auto after = MRVFountainScript::fromText(other);
        QVERIFY(MRVScriptCompare::elements(before, after).size() > 20000);
        QCOMPARE(MRVScriptScene::of(before).size(), 20000);
    }
};

QTEST_GUILESS_MAIN(TestScriptTools)
#include "tst_scripttools.moc"
