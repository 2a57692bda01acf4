#include "screenplay/mrvfinaldraft.h"
#include "screenplay/mrvfountain.h"
#include "screenplay/mrvfountainhtml.h"
#include "screenplay/mrvscriptdocument.h"
#include "screenplay/mrvscriptstatistics.h"
#include "scriptmode/mrvscriptmode.h"
#include "textformat/mrvtextformat.h"

#include "datarows.h"
#include "support.h"

#include <QDirIterator>
#include <QRandomGenerator>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QtTest>

#include <cmath>
#include <memory>

Q_DECLARE_METATYPE(MRVScriptMode)

using Element = MRVFountainElement;
using Run = MRVFountainRun;

namespace {

/// What a random text is made of: all that means something, and a little that does not.
QString randomText(QRandomGenerator *random, bool lines)
{
    static const QStringList parts{
        "*",   "**",  "***", "_",  "\\",     "\\\\",   "[",     "]",  "[[",   "]]",    "/", "/*",
        "*/",  "#",   "#1#", "^",  "<",      ">",      "(",     ")",  ".",    "..",    "!", "@",
        "=",   "===", "~",   ":",  " ",      "  ",     "\t",    "a",  "b",    "A",     "B", "INT. ",
        "TO:", "É",   "ß",   "語", "\u00a0", "\ufffc", "Key: ", "\n", "\n\n", "\n  \n"};
    QString text;
    for (int left = random->bounded(8); left > 0; --left) {
        text += parts.at(random->bounded(parts.size() - (lines ? 0 : 3)));
    }
    return text;
}

MRVFountainRuns randomRuns(QRandomGenerator *random)
{
    MRVFountainRuns runs;
    for (int left = random->bounded(5); left > 0; --left) {
        const int kind = random->bounded(8);
        runs.append({randomText(random, true), Run::Emphasis(random->bounded(8)),
                     kind == 0       ? Run::Note
                         : kind == 1 ? Run::Boneyard
                                     : Run::Text});
    }
    return runs;
}

MRVFountainScript randomScript(QRandomGenerator *random)
{
    MRVFountainScript script;
    for (int left = qMax(0, random->bounded(6) - 3); left > 0; --left) {
        script.titles.append({randomText(random, true), randomRuns(random)});
    }
    for (int left = random->bounded(6); left > 0; --left) {
        Element element;
        element.kind = Element::Kind(random->bounded(Element::KindCount));
        element.runs = randomRuns(random);
        element.sceneNumber = random->bounded(2) ? randomText(random, false) : QString();
        element.dual = random->bounded(2);
        element.apart = random->bounded(2);
        element.level = 1 + random->bounded(3);
        script.elements.append(element);
    }
    return script;
}

const char *const kindNames[] = {"action",  "scene",      "cue",      "paren", "speech",
                                 "lyrics",  "transition", "centered", "note",  "bone",
                                 "section", "synopsis",   "break"};

QString dump(const MRVFountainRuns &runs)
{
    QString text;
    for (const Run &run : runs) {
        QString marks;
        for (int style = 0; style < 3; ++style) {
            marks += run.emphasis & Run::Style(1 << style) ? QString("ibu"[style]) : QString();
        }
        marks += run.kind == Run::Note ? "N" : run.kind == Run::Boneyard ? "Y" : "";
        text += marks.isEmpty() ? run.text : QString("{%1:%2}").arg(marks, run.text);
    }
    return text.replace('\n', '/');
}

QString dump(const MRVFountainScript &script)
{
    QStringList lines;
    for (const MRVFountainTitle &title : script.titles) {
        lines << QString("title %1=%2").arg(title.key, dump(title.value));
    }
    for (const Element &element : script.elements) {
        QString line = kindNames[element.kind];
        line += element.level > 1 ? QString::number(element.level) : QString();
        line += element.dual ? "^" : "";
        line += element.apart ? "'" : "";
        line += element.sceneNumber.isEmpty() ? QString() : '#' + element.sceneNumber;
        lines << line + ' ' + dump(element.runs);
    }
    return lines.join('|');
}

} // namespace

/// Scripts as Fountain texts and as documents.
class TestFountain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data() { addRows("fountain.tsv"); }
    void texts()
    {
        QFETCH(QString, text);
        QFETCH(QString, written);
        const MRVFountainScript script = MRVFountainScript::fromText(text);
        QCOMPARE(dump(script), cell("dumped"));
        QCOMPARE(script.toText(), written.isEmpty() ? text : written);
    }

    void randomScripts()
    {
        const int count = qEnvironmentVariableIntValue("MRV_RANDOM_SCRIPTS");
        for (int seed = 0; seed < qMax(count, 3000); ++seed) {
            QRandomGenerator random(seed);
            const MRVFountainScript script = randomScript(&random);
            const MRVFountainScript normal = script.normalized();
            const QString text = script.toText();
            const MRVFountainScript read = MRVFountainScript::fromText(text);
            if (read != normal) {
                qWarning("seed %d:\n%s", seed, qPrintable(text));
                QCOMPARE(dump(read), dump(normal));
            }
            QCOMPARE(dump(normal.normalized()), dump(normal));
            // As a revision of another text, of as many elements where that can be had.
            const MRVFountainScript other = randomScript(&random);
            const QString revised = script.toText(QString(other.toText()).replace('\n', "\r\n"));
            QCOMPARE(dump(MRVFountainScript::fromText(revised)), dump(normal));
        }
    }

    // Hours, unless it takes time linear in the key, and in the keys.
    void longKey()
    {
        MRVFountainScript script;
        script.titles = {{QString(1 << 20, '!') + QString(1 << 20, '*') + "int. a", {}},
                         {"b", {{"c", {}, Run::Text}}}};
        QCOMPARE(script.normalized().titles.constFirst().key, QString("nt. a"));
        script.titles.fill({"Source", {{"c", {}, Run::Text}}}, 1 << 18);
        QCOMPARE(MRVFinalDraft::toXml(script).count("Source: "), 1 << 18);
    }

    void revisions_data() { addRows("fountain-revisions.tsv"); }
    // Bob becomes Robert in each text; nothing else changes that need not.
    void revisions()
    {
        QFETCH(QString, text);
        QFETCH(QString, revised);
        for (QString *each : {&text, &revised}) {
            each->replace("<BOM>", QChar(QChar::ByteOrderMark))
                .replace("<SOH>", QChar(1))
                .replace("<HALF>", QChar(0xD800))
                .replace("<FFFE>", QChar(0xFFFE));
        }
        MRVFountainScript script = MRVFountainScript::fromText(text);
        for (Element &element : script.elements) {
            for (Run &run : element.runs) {
                run.text.replace("BOB", "ROBERT");
            }
        }
        for (MRVFountainTitle &title : script.titles) {
            for (Run &run : title.value) {
                run.text.replace("BOB", "ROBERT");
            }
        }
        QCOMPARE(script.toText(text), revised);
    }

    void renames_data() { addRows("scriptrenames.tsv"); }
    void renames()
    {
        QFETCH(QString, text);
        QFETCH(QString, scope);
        QFETCH(QString, count);
        MRVScriptMode mode;
        mode.loadFactoryDefaults();
        QTextDocument document;
        MRVScriptDocument::setScript(&document, MRVFountainScript::fromText(text), mode);
        document.setModified(false);
        MRVScriptDocument::RenameScope where;
        where.setFlag(MRVScriptDocument::InDialogue, scope.contains('d'));
        where.setFlag(MRVScriptDocument::InAction, scope.contains('a'));
        QCOMPARE(
            MRVScriptDocument::renameCharacter(&document, mode, cell("from"), cell("to"), where),
            count.toInt());
        QCOMPARE(MRVScriptDocument::script(document, mode).toText(), cell("renamed"));
        QCOMPARE(document.isModified(), count.toInt() > 0);
        QCOMPARE(document.availableUndoSteps() > 0, count.toInt() > 0);
        document.undo();
        QCOMPARE(MRVScriptDocument::script(document, mode).toText(), text);
        QVERIFY(!document.isUndoAvailable());
    }

    void statistics_data() { addRows("scriptstatistics.tsv"); }
    void statistics()
    {
        const auto found = MRVScriptStatistics::of(MRVFountainScript::fromText(cell("text")));
        QStringList list;
        for (const auto &character : found.characters) {
            list << QString("%1 %2 %3 %4 %5")
                        .arg(character.name)
                        .arg(character.speeches)
                        .arg(character.lines)
                        .arg(character.words)
                        .arg(character.scenes);
        }
        QCOMPARE(QString("%1 %2 %3 %4")
                     .arg(found.scenes)
                     .arg(found.words)
                     .arg(found.printedPages)
                     .arg(found.eighths),
                 cell("counts"));
        QCOMPARE(list.join(", "), cell("characters"));
        QCOMPARE(found.minutes(), int(std::ceil(found.pages())));
    }

    void pages()
    {
        for (int seed = 0; seed < 1000; ++seed) {
            QRandomGenerator random(seed);
            const MRVFountainScript script = randomScript(&random).normalized();
            MRVFountainScript read;
            QString error;
            QVERIFY2(
                MRVFountainHtml::fromHtml(MRVFountainHtml::toHtml(script, "en"), &read, &error),
                qPrintable(error));
            QCOMPARE(dump(read), dump(script));
            // Of a title page, Final Draft keeps all but where notes end.
            MRVFountainScript titles;
            for (const MRVFountainTitle &title : script.titles) {
                titles.titles.append({title.key, {{title.text(), {}, Run::Text}}});
            }
            titles = titles.normalized();
            QVERIFY(MRVFinalDraft::fromXml(MRVFinalDraft::toXml(titles), &read));
            QCOMPARE(dump(read), dump(titles));
        }
        QVERIFY(
            !MRVFountainHtml::toHtml(MRVFountainScript::fromText("A\n\n\n\nB")).contains("<p/>"));
    }

    // All but page breaks, lyrics apart, action of mere notes, and the emphasis of notes.
    void finalDraftScripts()
    {
        for (int seed = 0; seed < 1000; ++seed) {
            QRandomGenerator random(seed);
            MRVFountainScript script = randomScript(&random).normalized();
            script.titles.clear();
            const auto isLost = [](const Element &element) {
                const auto isText = [](const Run &run) { return run.kind == Run::Text; };
                return element.kind == Element::PageBreak || element.apart
                    || (element.kind == Element::Action && !element.runs.isEmpty()
                        && std::none_of(element.runs.cbegin(), element.runs.cend(), isText));
            };
            script.elements.erase(
                std::remove_if(script.elements.begin(), script.elements.end(), isLost),
                script.elements.end());
            for (Element &element : script.elements) {
                for (Run &run : element.runs) {
                    run.emphasis = run.kind == Run::Text ? run.emphasis : Run::Emphasis();
                }
            }
            script = script.normalized();
            MRVFountainScript read;
            QVERIFY(MRVFinalDraft::fromXml(MRVFinalDraft::toXml(script), &read));
            QCOMPARE(dump(read), dump(script));
        }
    }

    void finalDraft()
    {
        const QString text = bytesOf(MRV_SOURCE_DIR "/tests/data/script.fountain");
        const QByteArray xml = MRVFinalDraft::toXml(MRVFountainScript::fromText(text));
        const QByteArray golden = bytesOf(MRV_SOURCE_DIR "/tests/data/script.fdx");
        if (qEnvironmentVariableIsSet("MRV_REWRITE_GOLDEN")) {
            QVERIFY(writeBytes(MRV_SOURCE_DIR "/tests/data/script.fdx", xml));
        }
        QCOMPARE(QString(xml), QString(golden));
        MRVFountainScript read;
        QVERIFY(MRVFinalDraft::fromXml(xml, &read));
        QCOMPARE(read.toText(), text);
        // Keys that the places on the page do not tell are written.
        const QString odd =
            "Author: A\nTitle: B: C\nauthor: D\nCredit: Story\nWGA #: 1-2\nnotes: n\n"
            "Contact: Phone: 1\nDate: 2\nSource: by E\n\nF\n\n"
            // Small letters stay, though the settings are for capitals.
            "@McG **H**\nI\n\n.House **j**\n\n> Cut _STRASSE_ straße\n";
        QVERIFY(
            MRVFinalDraft::fromXml(MRVFinalDraft::toXml(MRVFountainScript::fromText(odd)), &read));
        QCOMPARE(read.toText(), odd);
    }

    void finalDraftParts_data() { addRows("finaldraft.tsv"); }
    void finalDraftParts()
    {
        MRVFountainScript read;
        QStringList losses;
        const QByteArray xml = "<FinalDraft>" + cell("content").toUtf8() + "</FinalDraft>";
        QVERIFY(MRVFinalDraft::fromXml(xml, &read, nullptr, &losses));
        QCOMPARE(read.toText(), cell("text"));
        QCOMPARE(losses.join("; "), cell("losses"));
    }

    void refusedXml_data() { addRows("scriptxml-refused.tsv"); }
    void refusedXml()
    {
        QFETCH(QString, text);
        MRVFountainScript script;
        QString found;
        const QByteArray bytes = text.replace("@300", QString("<p>").repeated(300)).toUtf8();
        QVERIFY(!(cell("format") == "html" ? MRVFountainHtml::fromHtml(bytes, &script, &found)
                                           : MRVFinalDraft::fromXml(bytes, &script, &found)));
        QCOMPARE(script, MRVFountainScript());
        QVERIFY2(found.startsWith(cell("error")), qPrintable(found));
    }

    void typedDocuments_data() { addRows("scriptdocuments.tsv"); }
    // Documents that were typed in a mode's elements and know nothing of Fountain.
    void typedDocuments()
    {
        const MRVScriptMode used = MRVScriptMode::systemModes().value(cell("mode"));
        QTextDocument document;
        QTextCursor cursor(&document);
        for (const QString &paragraph : cell("paragraphs").split('\n')) {
            const int element = used.indexOf(paragraph.section(": ", 0, 0));
            QVERIFY2(element >= 0, qPrintable(paragraph));
            const MRVScriptElement look = used.elements().at(element);
            if (!document.isEmpty()) {
                cursor.insertBlock();
            }
            cursor.setBlockFormat(look.blockFormat());
            cursor.insertText(paragraph.section(": ", 1).replace('/', QChar(QChar::LineSeparator)),
                              look.charFormat());
        }
        QCOMPARE(MRVScriptDocument::script(document, used).toText(), cell("text"));
    }

    void printed_data() { addRows("fountain-printed.tsv"); }
    void printed()
    {
        const MRVFountainScript script = MRVFountainScript::fromText(cell("text")).printed();
        QCOMPARE(script.toText(), cell("printed"));
        QCOMPARE(script.printed().toText(), cell("printed"));
    }

    void printedDocument()
    {
        MRVScriptMode mode;
        mode.loadFactoryDefaults();
        QTextDocument document;
        const QString text = "Title: T\nWGA #: 1\ncopyright: c\n\n# A\n\nint. b #2#\n\nC [[d]]/* e "
                             "*/\n\n[[f]]\n\n= G\n\n@Al (h)\nI\n";
        MRVScriptDocument::setPrintedScript(&document, MRVFountainScript::fromText(text), mode);
        QCOMPARE(document.toPlainText(), QString("T\ncopyright: c\n2 INT. B\nC\nAL (h)\nI"));
        QCOMPARE(document.findBlockByNumber(2).blockFormat().headingLevel(), 1);
        QCOMPARE(document.lastBlock().blockFormat().leftMargin(), 96.0);
        QCOMPARE(document.lastBlock().blockFormat().rightMargin(), 144.0);
    }

    void documents_data()
    {
        QTest::addColumn<MRVScriptMode>("mode");
        QTest::newRow("no elements") << MRVScriptMode();
        const auto modes = MRVScriptMode::systemModes();
        QVERIFY(modes.size() > 5);
        for (const MRVScriptMode &mode : modes) {
            QTest::newRow(qPrintable(mode.name())) << mode;
            QTest::newRow(qPrintable(mode.name() + " in an editor")) << mode.forEditor();
        }
    }
    // Through a document, a copy of it, and formats as they are stored.
    void documents()
    {
        QFETCH(MRVScriptMode, mode);
        for (int seed = 0;
             seed < qMax(qEnvironmentVariableIntValue("MRV_RANDOM_SCRIPTS") / 10, 100); ++seed) {
            QRandomGenerator random(seed);
            const MRVFountainScript script = randomScript(&random).normalized();
            QTextDocument document;
            MRVScriptDocument::setScript(&document, script, mode);
            // Qt's copies leave the format of an empty first paragraph behind.
            const std::unique_ptr<QTextDocument> clone(document.clone());
            QTextDocument *const copy = document.begin().length() > 1 ? clone.get() : &document;
            QTextCursor cursor(copy);
            for (QTextBlock block = copy->begin(); block.isValid(); block = block.next()) {
                cursor.setPosition(block.position());
                cursor.setBlockFormat(
                    MRVTextFormat::toBlockFormat(MRVTextFormat::toByteArray(block.blockFormat())));
                for (auto it = block.begin(); !it.atEnd(); ++it) {
                    const QTextFragment run = it.fragment();
                    cursor.setPosition(run.position());
                    cursor.setPosition(run.position() + run.length(), QTextCursor::KeepAnchor);
                    cursor.setCharFormat(
                        MRVTextFormat::toCharFormat(MRVTextFormat::toByteArray(run.charFormat())));
                }
            }
            const MRVFountainScript read = MRVScriptDocument::script(*copy, mode);
            if (read != script) {
                qWarning("seed %d:\n%s", seed, qPrintable(script.toText()));
                QCOMPARE(dump(read), dump(script));
            }
            // What the mode has an element for is of that element.
            QSet<QString> titles;
            for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
                if (mode.indexOf(block) >= 0) {
                    titles.insert(mode.elements().at(mode.indexOf(block)).title());
                }
            }
            for (const Element &element : script.elements) {
                QVERIFY(element.kind != Element::Dialogue || mode.indexOf("Dialogue") < 0
                        || titles.contains("Dialogue") || titles.contains("Dual Dialogue"));
            }
        }
    }
};

QTEST_MAIN(TestFountain)
#include "tst_fountain.moc"
