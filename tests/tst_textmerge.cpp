#include "datarows.h"
#include "documentdump.h"
#include "textformat/mrvtextblockformat.h"
#include "textformat/mrvtextcharformat.h"
#include "textformat/mrvtextformat.h"

#include <QTextCursor>
#include <QTextList>
#include <QTextTable>

namespace {

template<typename... Target>
void convert(const QTextCharFormat *charFormat, const QTextBlockFormat *blockFormat, bool emphasis,
             bool override, Target... target)
{
    MRVTextFormat::convertToFormat(target..., charFormat, blockFormat, false, false, emphasis,
                                   false, false, false, false, {}, override, false);
}

/// The text of the document with each italic run in brackets and each paragraph behind the
/// sum of its indent and its upper margin, in braces if the paragraph itself is italic.
QString italics(const QTextDocument &document)
{
    QStringList paragraphs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString start = block.charFormat().fontItalic() ? "{%1}" : "%1 ";
        paragraphs << start.arg(block.blockFormat().textIndent() + block.blockFormat().topMargin());
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const bool italic = it.fragment().charFormat().fontItalic();
            paragraphs.last() += QString(italic ? "[%1]" : "%1").arg(it.fragment().text());
        }
    }
    return paragraphs.join('|').replace(QChar(0xfffc), '*');
}

/// A mixed document: styles, a preserved run, an image, a list, and a table with merged cells.
void fill(QTextDocument *document)
{
    QTextCursor cursor(document);
    cursor.insertText("plain ", chars(""));
    cursor.insertText("bold", chars("FontWeight=75:int"));
    cursor.insertText(" link", chars("IsAnchor=true:bool AnchorHref=7"));
    cursor.insertImage("picture");
    cursor.insertBlock(blocks(""), chars(""));
    cursor.insertText("kept", chars("0x100003=true:bool"));
    cursor.insertText("free", chars(""));
    cursor.insertBlock(blocks(""), chars("0x100003=true:bool"));
    cursor.insertBlock(blocks(""), chars("0x100003=false:bool"));
    cursor.insertText("item");
    cursor.createList(QTextListFormat::ListDisc);
    cursor.insertText("\nitem 2");
    QTextTable *table = cursor.insertTable(2, 2);
    table->mergeCells(0, 0, 1, 2);
    table->cellAt(0, 0).firstCursorPosition().insertText("wide");
    document->clearUndoRedoStacks();
    document->setModified(false);
}

} // namespace

class TestTextMerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void merge_data()
    {
        QTest::addColumn<bool>("ofChars");
        QTest::addColumn<QStringList>("row");
        for (const bool ofChars : {true, false}) {
            for (const QStringList &row : rowsOf(ofChars ? "charmerges.tsv" : "blockmerges.tsv")) {
                QTest::newRow(qPrintable(row.at(0))) << ofChars << row;
            }
        }
    }
    void merge()
    {
        QFETCH(bool, ofChars);
        QFETCH(QStringList, row);
        QStringList flags = row.value(3).split(' ', Qt::SkipEmptyParts);
        const auto f = [&flags](const char *flag) { return flags.removeAll(flag) > 0; };
        QList<int> keep;
        for (const QString &name : row.value(4).split(' ', Qt::SkipEmptyParts)) {
            keep << propertyFrom(name);
        }
        const QString a = row.value(1), b = row.value(2);
        const auto run = MRVTextCharFormat::merge(
            chars(a), chars(b), f("KeepSize"), f("KeepColors"), f("KeepEmphasis"), f("KeepFamily"),
            keep, f("Override"), f("Combine"));
        const auto block = MRVTextBlockFormat::merge(blocks(a), blocks(b), f("KeepIndents"),
                                                     f("KeepSpacing"), f("KeepAlignment"), keep);
        QVERIFY(flags.isEmpty());
        const QTextFormat result = ofChars ? QTextFormat(run) : QTextFormat(block);
        QVERIFY(ofChars ? result.isCharFormat() : result.isBlockFormat());
        QCOMPARE(propertyDump(result), propertyDump(chars(row.value(5))));
    }

    void convertDocument()
    {
        QTextDocument document;
        fill(&document);
        const QStringList before = documentDump(document);
        const QTextCharFormat none, italic = chars("FontItalic=true:bool");
        const QTextBlockFormat plain,
            indented = blocks("TextIndent=20:double BlockTopMargin=3:double ObjectIndex=5:int");
        convert(&none, &plain, true, false, &document);
        convert(nullptr, nullptr, false, false, &document);
        convert(&italic, &indented, false, false, static_cast<QTextDocument *>(nullptr));
        QVERIFY(!document.isUndoAvailable());
        QVERIFY(!document.isModified());

        convert(&italic, &indented, false, false, &document);
        const QString start = "{23}[plain bold][ link][*]|{0}kept[free]|0 |";
        QCOMPARE(italics(document), start + "{3}[item]|{3}[item 2]|{23}[wide]|{23}|{23}|{23}");
        const QTextBlock item = document.findBlockByNumber(3);
        QVERIFY(item.textList());
        QVERIFY(!document.begin().textList());
        QCOMPARE(item.textList()->count(), 2);
        const QTextTable *table = QTextCursor(item.next().next()).currentTable();
        QVERIFY(table);
        QCOMPARE(table->cellAt(0, 0).columnSpan(), 2);
        QTextCursor link(&document);
        link.setPosition(12);
        QCOMPARE(link.charFormat().anchorHref(), QString("7"));
        document.undo();
        QCOMPARE(documentDump(document), before);
        QVERIFY(!document.isUndoAvailable());
        convert(&italic, &indented, false, true, &document);
        QVERIFY(italics(document).contains("|{0}[kept][free]|"));
    }

    void convertRange_data() { addRows("convertedranges.tsv"); }
    void convertRange()
    {
        QFETCH(QString, start);
        QFETCH(QString, end);
        QFETCH(QString, by);
        QTextDocument document;
        document.setPlainText("one\ntwo\nthree");
        QTextCursor cursor(&document);
        cursor.setPosition(4);
        cursor.setPosition(6, QTextCursor::KeepAnchor);
        cursor.setCharFormat(chars("FontWeight=75:int"));
        document.clearUndoRedoStacks();
        const QStringList before = documentDump(document);
        const QTextCharFormat italic = chars("FontItalic=true:bool");
        const QTextBlockFormat indented = blocks("TextIndent=5:double");
        cursor.setPosition(by == "cursor" ? start.toInt() : 0);
        cursor.setPosition(by == "cursor" ? end.toInt() : 0, QTextCursor::KeepAnchor);
        if (by == "cursor") {
            convert(&italic, &indented, false, false, cursor);
        } else {
            convert(&italic, &indented, false, false, &document, start.toInt(), end.toInt());
        }
        convert(&italic, &indented, false, false, QTextCursor());
        QTEST(italics(document), "expected");
        document.undo();
        QCOMPARE(documentDump(document), before);
        QVERIFY(!document.isUndoAvailable());
    }

    // From within the first run to the beginning of "after". The mono family of DejaVu has normal
    // and bold only; HTML import sets the list of families as well, or alone.
    // Headings stay what they are, whatever is done about the line spacing, which has the number
    // of Qt's own level; undo and stored formats have them, too.
    void headings()
    {
        QTextDocument document;
        document.setHtml("<h1>a</h1><p>b</p><h3>c</h3><ul><li><h6>d</h6></ul>");
        const auto levels = [&document] {
            QString all;
            for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
                const QTextBlockFormat format = block.blockFormat();
                QList<QTextBlockFormat> forms{
                    format, MRVTextFormat::simplifiedSpacing(format),
                    MRVTextFormat::toBlockFormat(MRVTextFormat::toByteArray(format)),
                    MRVTextBlockFormat::merge(format, blocks("0x100100=4:int"), true, false, true,
                                              {})};
                QSet<int> found;
                for (const QTextBlockFormat &form : qAsConst(forms)) {
                    found << MRVTextBlockFormat::headingLevel(form);
                }
                all += found.size() == 1 ? QString::number(*found.begin()) : "?";
            }
            return all;
        };
        document.clearUndoRedoStacks();
        for (const QString with : {"0x1070=24:double 0x1071=12:double", "TextIndent=1:double",
                                   "HeadingLevel=5:int", "0x1070=-14:double", ""}) {
            const QTextBlockFormat style = blocks(with);
            for (const bool keepSpacing : {true, false}) {
                MRVTextFormat::convertToFormat(&document, nullptr, &style, false, false, false,
                                               false, keepSpacing, false, false, {}, true, false);
                QCOMPARE(levels(), QString("1036"));
            }
        }
        int steps = 0;
        for (; document.isUndoAvailable(); ++steps) {
            document.undo();
            QCOMPARE(levels(), QString("1036"));
        }
        QVERIFY(steps > 4);
        QCOMPARE(document.begin().blockFormat().headingLevel(), 1);
        for (; document.isRedoAvailable(); --steps) {
            document.redo();
            QCOMPARE(levels(), QString("1036"));
        }
        QCOMPARE(steps, 0);
    }

    void adjustFontWeight()
    {
        QTextDocument document;
        QTextCursor cursor(&document);
        for (const QString &run :
             QString("|87 before87 inside81 |63 light25 bold75 listed81 other63 after99 |25 last25")
                 .split(' ')) {
            const QString family = run.startsWith("other") ? ""
                : run.startsWith("listed") ? "FontFamilies=DejaVu_Sans_Mono:QStringList"
                                           : "FontFamily=DejaVu_Sans_Mono";
            const auto format = chars(family + QString(" FontWeight=%1:int").arg(run.right(2)));
            run.startsWith('|') ? cursor.insertBlock({}, format)
                                : cursor.insertText(run.chopped(2), format);
        }
        document.clearUndoRedoStacks();
        const QStringList before = documentDump(document);
        cursor.setPosition(3);
        cursor.setPosition(34, QTextCursor::KeepAnchor);
        QCOMPARE(document.characterAt(34), QChar('a'));
        MRVTextFormat::adjustFontWeight(cursor);
        constexpr int Weight = QTextFormat::FontWeight;
        QString weights;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            weights += '|' + block.charFormat().property(Weight).toString();
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                weights += ' ' + it.fragment().text()
                    + it.fragment().charFormat().property(Weight).toString();
            }
        }
        QCOMPARE(
            weights,
            QString("||75 before87 inside75|75 light bold75 listed75 other63 after75| last25"));
        document.undo();
        QCOMPARE(documentDump(document), before);
        QVERIFY(!document.isUndoAvailable());
        document.clear();
        fill(&document);
        cursor.select(QTextCursor::Document);
        MRVTextFormat::adjustFontWeight(cursor);
        MRVTextFormat::adjustFontWeight(QTextCursor());
        QVERIFY(!document.isUndoAvailable());
    }
};

QTEST_MAIN(TestTextMerge)
#include "tst_textmerge.moc"
