#include "datarows.h"
#include "heapmeter.h"
#include "scriptmode/mrvscriptmode.h"
#include "shortcuts/mrvshortcutscheme.h"
#include "support.h"
#include "textformat/mrvtextformat.h"

#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace {

using Element = MRVScriptElement;

// What a getter gives outlives the object that it was asked of.
static_assert(std::is_same_v<decltype(MRVScriptMode().elements()), QList<Element>>);
static_assert(std::is_same_v<decltype(Element().title()), QString>);
static_assert(std::is_same_v<decltype(Element().blockFormat()), QTextBlockFormat>);

const QString DataFolder = MRV_SOURCE_DIR "/tests/data/";

QByteArray fileOf(const QByteArray &units, const QByteArray &element)
{
    return "<MorvaneScriptFormat Version=\"1.0\"><Units>" + units
        + "</Units><ScriptElements><Element>" + element
        + "</Element></ScriptElements></MorvaneScriptFormat>";
}

/** A format in the notation of scriptformats-equal.tsv. */
QTextBlockFormat formatOf(const QString &notation)
{
    QTextBlockFormat format;
    QList<QTextOption::Tab> tabs;
    for (const QString &property : notation.split(' ', Qt::SkipEmptyParts)) {
        const QString value = property.section(':', 1);
        if (property.startsWith("tab")) {
            tabs << QTextOption::Tab(value.toDouble(), QTextOption::LeftTab);
        } else {
            format.setProperty(property.section(':', 0, 0).toInt(nullptr, 16),
                               value.contains('.') ? QVariant(value.toDouble()) : value.toInt());
        }
    }
    if (!tabs.isEmpty()) {
        format.setTabPositions(tabs);
    }
    return format;
}

/** The mode that tests/data/scriptmode.xml was written for by hand. */
MRVScriptMode handMade()
{
    Element cue;
    cue.setTitle("Cue");
    cue.setShortcut("Ctrl+1");
    QTextCharFormat format;
    format.setFontFamily("Courier New");
    format.setFontPointSize(12.5);
    format.setFontUnderline(true);
    format.setFontWeight(QFont::Bold);
    format.setFontItalic(true);
    format.setForeground(QColor(255, 128, 0));
    cue.setCharFormat(format);
    cue.setStyleDelimiter(" (");
    cue.setBlockFormat(
        formatOf("1010:8 1030:12.0 1031:28.35 1034:-7.1 1036:72.0 1037:93.55 1070:13.8 "
                 "1071:12.0 tab:113.4"));
    cue.setFlags(Element::AllCaps | Element::Parenthetical | Element::KeepWithNext
                 | Element::AllowTabs | Element::AppendProjectList | Element::AddToProjectList
                 | Element::DoubleUnderline);
    cue.setActionElement(Element::ReturnAction, "Speech");
    cue.setActionElement(Element::TabOnEmptyAction, "Plain");
    cue.setTabBehavior(Element::TabInsertsText);
    cue.setActionText(Element::TabAfterTypingAction, "\t\r\n");
    cue.setCompleteBehavior(Element::CompleteInsertsTab);
    cue.setPhraseStartDelimiter(". ");
    cue.setPhraseEndDelimiter(" - ");
    MRVCompletionList completions;
    completions.append({" (V.O.) ", false});
    completions.append({"FADE \"OUT\"", true});
    cue.setCompletions(completions);
    MRVScriptMode mode;
    mode.setName(QString::fromUtf8("Tale & T\u00f6ne"));
    mode.setUnits(MRVUnit::Centimeter);
    mode.setElements({cue, Element()});
    return mode;
}

} // namespace

class tst_ScriptMode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(QMetaType::type("MRVScriptElement") != 0);
        QVERIFY(QMetaType::type("QList<MRVScriptElement>") != 0);
        m_factory = MRVScriptMode::systemModes();
        QCOMPARE(m_factory.size(), 10);
    }
    void equal_data() { addRows("scriptformats-equal.tsv"); }
    void equal()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(QString, same);
        QCOMPARE(Element::equal(formatOf(a), formatOf(b)), same == "yes");
        QTextDocument document;
        QTextCursor(&document).setBlockFormat(formatOf(b));
        Element element;
        element.setBlockFormat(formatOf(a));
        QCOMPARE(element.match(document.firstBlock()), same == "yes");
    }

    void recapitalize_data() { addRows("scriptcapitals.tsv"); }
    void recapitalize()
    {
        QTextDocument document;
        QTextCursor cursor(&document);
        cursor.insertText("first\n");
        cursor.insertHtml(cell("html"));
        cursor.insertText("\nlast");
        const QString before = document.toHtml();
        const int steps = document.availableUndoSteps();
        Element element;
        element.setFlag(Element::AllCaps, QTest::currentDataTag() != QString("lower john"));
        element.setStyleDelimiter(cell("delimiter"));
        element.recapitalizeBlock(document.firstBlock().next());
        QString runs;
        const QTextBlock block = document.firstBlock().next();
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            runs += "[" + it.fragment().text() + "]";
        }
        QTEST(runs, "after");
        QCOMPARE(document.firstBlock().text() + document.lastBlock().text(), QString("firstlast"));
        if (document.toHtml() == before) {
            QCOMPARE(document.availableUndoSteps(), steps);
        } else {
            document.undo();
            QCOMPARE(document.toHtml(), before);
        }
        element.recapitalizeBlock(QTextBlock());
    }

    void completions()
    {
        MRVCompletionList list;
        for (const char *text :
             {"INT.", "INTERIOR", "EXT.", "int. kitchen", "\U00010400x", "\u00c4x"}) {
            list.append({QString::fromUtf8(text), *text == 'E'});
        }
        list.append({"ext.", false});
        Element element;
        element.setCompletions(list);
        const auto offered = [&](const QString &prefix) {
            const MRVCompletionList some = element.filteredCompletions(prefix);
            QString texts = QString::number(some.longestLength());
            for (const MRVCompletion &completion : some.completions()) {
                texts += "|" + completion.text;
            }
            return texts;
        };
        QCOMPARE(offered("int"), QString("12|INT.|INTERIOR|int. kitchen"));
        QCOMPARE(offered("INTE"), QString("8|INTERIOR"));
        QCOMPARE(offered("ext."), QString("0"));
        QCOMPARE(offered(""), QString("0"));
        QCOMPARE(offered("\u00e4"), QString("2|\u00c4x"));
        QCOMPARE(offered("\U00010428"), QString("3|\U00010400x"));
        QCOMPARE(element.newLineAfter("Ext."), true);
        QCOMPARE(element.newLineAfter("INT."), false);
        QCOMPARE(element.newLineAfter("EX"), false);
        QCOMPARE(list.longestLength(), 12);
    }

    void variants()
    {
        const Element element = handMade().elements().first();
        const QVariant one = Element::toVariant(element);
        const QVariant list = Element::toVariant(QList<Element>{element, Element()});
        QCOMPARE(one.typeName(), "MRVScriptElement");
        QCOMPARE(list.typeName(), "QList<MRVScriptElement>");
        QCOMPARE(QMetaType::type("QList<MRVScriptElement>"), list.userType());
        QVERIFY(Element::toScriptElement(one) == element);
        QVERIFY(element != Element());
        QVERIFY(Element::toScriptElementList(list) == (QList<Element>{element, Element()}));
        QVERIFY(Element::toScriptElement(list) == Element());
        QVERIFY(Element::toScriptElement(QVariant("Cue")) == Element());
        QVERIFY(Element::toScriptElementList(one).isEmpty());
    }

    void factory_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : m_factory.keys()) {
            QTest::newRow(qPrintable(name)) << name;
        }
    }
    void factory()
    {
        QFETCH(QString, name);
        const MRVScriptMode mode = m_factory.value(name);
        const QString path = ":/ScriptFormat/ScriptFormats/" + name + ".xml";
        MRVScriptMode loaded;
        QStringList remarks;
        QVERIFY(loaded.load(path, nullptr, &remarks));
        QCOMPARE(remarks, QStringList());
        QVERIFY(loaded == mode);
        QCOMPARE(QString::fromUtf8(mode.toXml()), QString::fromUtf8(bytesOf(path)));
        const QList<Element> elements = mode.elements();
        QVERIFY(elements.size() >= 8);
        int completions = 0;
        const MRVShortcutScheme scheme = MRVShortcutScheme::morvane();
        for (int i = 0; i < elements.size(); ++i) {
            const Element &element = elements.at(i);
            const QKeySequence keys(element.shortcut());
            for (const MRVShortcutInfo &info : scheme.sortedShortcuts()) {
                const QKeySequence other = info.sequence;
                QVERIFY2(keys.isEmpty() || other.isEmpty()
                             || (keys.matches(other) == QKeySequence::NoMatch
                                 && other.matches(keys) == QKeySequence::NoMatch),
                         qPrintable(element.title() + ": " + element.shortcut()));
            }
            // What stands behind a tab is no part of the phrase.
            const bool tabbed = element.actionText(Element::TabAfterTypingAction) == "\t";
            QCOMPARE(element.hasFlag(Element::AllowTabs), tabbed);
            QVERIFY(!tabbed || !element.hasFlag(Element::AddToProjectList)
                    || element.phraseEndDelimiter() == "\t");
            // A paragraph tells its element, and a title names one.
            QTextDocument document;
            QTextCursor(&document).setBlockFormat(element.blockFormat());
            QCOMPARE(mode.indexOf(document.firstBlock()), i);
            QCOMPARE(mode.indexOf(element.title()), i);
            QVERIFY(!element.charFormat().fontFamily().isEmpty());
            QVERIFY(element.charFormat().fontPointSize() >= 9.0);
            completions += element.completions().completions().size();
            for (const auto action : {Element::ReturnAction, Element::TabOnEmptyAction,
                                      Element::TabAfterTypingAction}) {
                const QString next = element.actionElement(action);
                const bool inserts = action == Element::TabAfterTypingAction
                    && element.tabBehavior() == Element::TabInsertsText;
                QVERIFY2(inserts ? next.isEmpty() && !element.actionText(action).isEmpty()
                                 : mode.indexOf(next) >= 0,
                         qPrintable(element.title()));
            }
        }
        QVERIFY(completions >= 5);
    }

    void defaults()
    {
        MRVScriptMode mode;
        QCOMPARE(mode.name(), QString("Screenplay"));
        QVERIFY(mode.elements().isEmpty());
        mode.loadFactoryDefaults();
        QVERIFY(mode == m_factory.value("US Screenplay"));
        const QVector<QStringList> rows = rowsOf("scriptlayout.tsv");
        for (int i = 0; i < rows.size(); ++i) {
            const Element element = mode.elements().at(i);
            const QTextBlockFormat block = element.blockFormat();
            const auto number = [&](int property, double unit) {
                return QString::number(block.doubleProperty(property) / unit);
            };
            const QString tab = element.actionText(Element::TabAfterTypingAction);
            QCOMPARE(
                (QStringList{element.title(), number(MRVTextFormat::BlockLeftIndent, 72.0),
                             number(MRVTextFormat::BlockRightIndent, 72.0),
                             number(QTextFormat::BlockTopMargin, 12.0),
                             block.alignment() == Qt::AlignRight ? "right" : "left",
                             element.hasFlag(Element::AllCaps) ? "caps" : "",
                             element.actionElement(Element::ReturnAction),
                             element.actionElement(Element::TabOnEmptyAction),
                             tab.isEmpty() ? element.actionElement(Element::TabAfterTypingAction)
                                           : '"' + tab + '"'}),
                rows.at(i));
            QCOMPARE(element.charFormat().fontFamily(), QString("Courier New"));
            QCOMPARE(element.charFormat().fontPointSize(), 12.0);
        }
    }

    void units_data() { factory_data(); }
    void units()
    {
        const MRVScriptMode mode = m_factory.value(cell("name"));
        QTemporaryDir folder;
        for (const auto unit : {MRVUnit::Inch, MRVUnit::Centimeter, MRVUnit::Point}) {
            MRVScriptMode converted = mode;
            converted.setUnits(unit);
            QVERIFY(converted.save(folder.filePath("mode.xml")));
            MRVScriptMode loaded;
            QVERIFY(loaded.load(folder.filePath("mode.xml")));
            QCOMPARE(loaded.units(), unit);
            QVERIFY(loaded == converted);
            for (int i = 0; i < mode.elements().size(); ++i) {
                QCOMPARE(loaded.elements().at(i).blockFormat(),
                         mode.elements().at(i).blockFormat());
            }
        }
    }

    void storedForm()
    {
        const QByteArray file = bytesOf(DataFolder + "scriptmode.xml");
        const MRVScriptMode mode = handMade();
        QCOMPARE(QString::fromUtf8(mode.toXml()), QString::fromUtf8(file));
        MRVScriptMode read;
        QStringList remarks;
        QVERIFY(read.fromXml(file, nullptr, &remarks));
        QCOMPARE(remarks, QStringList());
        QVERIFY(read == mode);
        // Each thing that the file holds counts.
        const QByteArray other = QByteArray(file).replace(">Yes<", ">No<");
        QVERIFY(read.fromXml(other));
        QVERIFY(read != mode);
    }

    void notAllThatIsSavedIsKept()
    {
        MRVScriptMode mode = handMade();
        mode.setName(QString("A") + QChar(1) + QChar(0xd800) + "\U0001f3ad" + QChar(0xffff));
        Element element = mode.elements().first();
        QTextBlockFormat format = element.blockFormat();
        format.setProperty(MRVTextFormat::BlockLeftIndent, 88.8484);
        format.setProperty(QTextFormat::TextIndent, qQNaN());
        format.setLayoutDirection(Qt::RightToLeft);
        format.setAlignment(Qt::AlignRight | Qt::AlignAbsolute);
        element.setBlockFormat(format);
        QTextCharFormat charFormat;
        charFormat.setFontFamilies({"Nimbus Mono PS", "Arial"});
        charFormat.setUnderlineStyle(QTextCharFormat::SingleUnderline);
        element.setCharFormat(charFormat);
        mode.setElements({element});
        MRVScriptMode read;
        QVERIFY(read.fromXml(mode.toXml()));
        QCOMPARE(read.name(), QString("A\U0001f3ad"));
        QCOMPARE(read.elements().first().charFormat().fontFamily(), QString("Nimbus Mono PS"));
        QVERIFY(read.elements().first().charFormat().fontUnderline());
        const QTextBlockFormat kept = read.elements().first().blockFormat();
        QCOMPARE(kept.doubleProperty(MRVTextFormat::BlockLeftIndent), 88.85);
        QCOMPARE(kept.doubleProperty(QTextFormat::TextIndent), 0.0);
        QVERIFY(!kept.hasProperty(QTextFormat::LayoutDirection));
        QCOMPARE(kept.alignment(), Qt::AlignRight);
    }

    void reads_data() { addRows("scriptmode-read.tsv"); }
    void reads()
    {
        QFETCH(QString, remark);
        MRVScriptMode mode;
        QStringList remarks;
        QVERIFY(mode.fromXml(fileOf(cell("units").toUtf8(), cell("element").toUtf8()), nullptr,
                             &remarks));
        mode.setUnits(MRVUnit::Point);
        QString xml = QString::fromUtf8(mode.toXml());
        xml.replace(QRegularExpression(">\\n +<"), "><");
        QVERIFY2(xml.contains(cell("written")), qPrintable(xml));
        QVERIFY2(remarks.join('\n').contains(remark), qPrintable(remarks.join('\n')));
        QVERIFY2(remarks.isEmpty() == remark.isEmpty(), qPrintable(remarks.join('\n')));
    }

    void lateUnits()
    {
        MRVScriptMode mode;
        QByteArray file =
            fileOf("Points",
                   "<ParagraphFormat><Indent>1</Indent><WritingDirection>RightToLeft"
                   "</WritingDirection></ParagraphFormat><CharacterFormat><ByWord>Yes</ByWord>"
                   "</CharacterFormat>");
        file.replace("</MorvaneScriptFormat>", "<Units>Inches</Units></MorvaneScriptFormat>");
        QVERIFY(mode.fromXml(file));
        QCOMPARE(mode.units(), MRVUnit::Inch);
        const Element element = mode.elements().first();
        QCOMPARE(element.blockFormat().doubleProperty(MRVTextFormat::BlockLeftIndent), 72.0);
        QCOMPARE(element.blockFormat().layoutDirection(), Qt::RightToLeft);
        QCOMPARE(element.flags(), Element::Flags(Element::UnderlineByWord));
    }

    void refused_data() { addRows("scriptmode-refused.tsv"); }
    void refused()
    {
        QFETCH(QString, error);
        QTemporaryDir folder;
        const QString path = folder.filePath("mode.xml");
        QVERIFY(writeBytes(path, cell("file").toUtf8()));
        const MRVScriptMode before = handMade();
        MRVScriptMode mode = before;
        QString text;
        QStringList remarks{"untouched"};
        QCOMPARE(mode.load(path, &text, &remarks), error.isEmpty());
        QVERIFY2(text.contains(error), qPrintable(text));
        QVERIFY2((error.isEmpty() || text.contains(path)), qPrintable(text));
        QCOMPARE(mode == before, !error.isEmpty());
        QCOMPARE(remarks == QStringList("untouched"), !error.isEmpty());
    }

    void damaged()
    {
        const QByteArray file = bytesOf(DataFolder + "scriptmode.xml");
        const MRVScriptMode before = m_factory.first();
        for (int size = 0; size < file.size() - 1; ++size) {
            MRVScriptMode mode = before;
            QString error;
            HeapMeter::start();
            QVERIFY2(!mode.fromXml(file.left(size), &error), qPrintable(QString::number(size)));
            QVERIFY2(mode == before, qPrintable(QString::number(size)));
            QVERIFY(HeapMeter::peak() < 1000000);
            QVERIFY(error.startsWith("line "));
        }
    }

    void files()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("mode.xml");
        QVERIFY(handMade().save(path));
        MRVScriptMode tooLarge;
        tooLarge.setName(QString(MRVScriptMode::MaxFileSize, 'a'));
        QString error;
        QVERIFY(!tooLarge.save(path, &error));
        QVERIFY2(error.contains(path), qPrintable(error));
        tooLarge = MRVScriptMode();
        tooLarge.setElements(QList<Element>::fromVector(QVector<Element>(1001)));
        QVERIFY(!tooLarge.save(path));
        QTextCharFormat format;
        format.setFontFamily(QString(20000, 'a'));
        Element element;
        element.setCharFormat(format);
        tooLarge.setElements({element});
        QVERIFY(!tooLarge.save(path));
        QCOMPARE(bytesOf(path), handMade().toXml());
        QVERIFY(!handMade().save(folder.filePath("none/mode.xml")));
        MRVScriptMode mode;
        QVERIFY(!mode.load(folder.filePath("none.xml"), &error));
        QVERIFY2(error.contains("none.xml"), qPrintable(error));
        QVERIFY(!mode.load(folder.path()));
        HeapMeter::start();
        QVERIFY(!mode.load("/dev/zero", &error));
        QVERIFY2(HeapMeter::peak() < 50000000, qPrintable(error));
        QVERIFY2(error.contains("larger than"), qPrintable(error));
    }

    void userModes()
    {
        const QString folder =
            QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation)
            + "/ScriptFormats";
        QDir(folder).removeRecursively();
        QVERIFY(MRVScriptMode::userModes().isEmpty());
        QVERIFY(QFile::exists(folder));
        MRVScriptMode mode = handMade();
        QVERIFY(MRVScriptMode::addToUserModes("Mine: the \"first\"?", mode));
        QCOMPARE(QDir(folder).entryList(QDir::Files), QStringList("Mine the first.xml"));
        QCOMPARE(MRVScriptMode::userModePath("Mine: the <first>"), folder + "/Mine the first.xml");
        QVERIFY(MRVScriptMode::userModePath("??").isEmpty());
        QVERIFY(!MRVScriptMode::addToUserModes("??", mode));
        QVERIFY(writeBytes(folder + "/broken.xml", "<MorvaneScriptFormat>"));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("broken\\.xml.*line 1"));
        QVERIFY(writeBytes(folder + "/odd.xml", "<MorvaneScriptFormat><a/></MorvaneScriptFormat>"));
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression("odd\\.xml.*the version is"));
        QTest::ignoreMessage(QtInfoMsg,
                             QRegularExpression("odd\\.xml.*line 1: \"a\" is not expected"));
        const QMap<QString, MRVScriptMode> modes = MRVScriptMode::userModes();
        QCOMPARE(modes.keys(), (QStringList{"Screenplay", mode.name()}));
        QVERIFY(modes.last() == mode);
        QVERIFY(QDir(folder).removeRecursively());
        QVERIFY(writeBytes(folder, "in the way"));
        QVERIFY(!MRVScriptMode::addToUserModes("Mine", mode));
        QVERIFY(MRVScriptMode::userModes().isEmpty());
        QVERIFY(QFile::remove(folder));
    }

    void uniqueElements_data() { addRows("scripttitles.tsv"); }
    void uniqueElements()
    {
        QList<Element> elements;
        for (const QString &title : cell("titles").split('|')) {
            elements.append(Element());
            elements.last().setTitle(title);
        }
        MRVScriptMode mode;
        mode.setElements(elements);
        mode.makeElementsUnique();
        QStringList unique;
        for (const Element &element : mode.elements()) {
            unique.append(element.title());
        }
        QTEST(unique.join('|'), "unique");
    }

    void brackets()
    {
        QCOMPARE(addBrackets("CONT'D"), QString("(CONT'D)"));
        QCOMPARE(cleanBrackets("(CONT'D)"), QString("CONT'D"));
        QCOMPARE(cleanBrackets("((a)\n)"), QString("(a)\n"));
        for (const char *text : {"CONT'D", "(", "", ")(", " (a)"}) {
            QVERIFY2(cleanBrackets(text).isEmpty(), text);
        }
    }

private:
    QMap<QString, MRVScriptMode> m_factory;
};

QTEST_MAIN(tst_ScriptMode)
#include "tst_scriptmode.moc"
