#include "datarows.h"
#include "documentdump.h"
#include "text/mrvtextblockformat.h"
#include "text/mrvtextcharformat.h"
#include "text/mrvtextformat.h"

#include <QTextCursor>
#include <QTextList>
#include <QTextTable>

namespace {

const char *const Flags[] = {"KeepSize",    "KeepColors",  "KeepEmphasis",
                             "KeepIndents", "KeepSpacing", "KeepAlignment",
                             "KeepFamily",  "Override",    "Combine"};

QTextCharFormat chars(const char *properties)
{
    return formatFrom<QTextCharFormat>(properties);
}

QTextBlockFormat blocks(const char *properties)
{
    return formatFrom<QTextBlockFormat>(properties);
}

template<typename... Target>
void convert(const QTextCharFormat *chars, const QTextBlockFormat *blocks, bool emphasis,
             bool override, Target... target)
{
    MRVTextFormat::convertToFormat(target..., chars, blocks, false, false, emphasis, false, false,
                                   false, false, {}, override, false);
}

/// The text of the document with each italic run in brackets and each paragraph behind its indent,
/// in braces if the paragraph itself is italic.
QString italics(const QTextDocument &document)
{
    QStringList paragraphs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QString start = block.charFormat().fontItalic() ? "{%1}" : "%1 ";
        paragraphs << start.arg(block.blockFormat().textIndent());
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
    cursor.insertBlock(blocks(""), chars(""));
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
        for (const bool ofChars : {true, false})
            for (const QStringList &row : rowsOf(ofChars ? "charmerges.tsv" : "blockmerges.tsv"))
                QTest::newRow(qPrintable(row.at(0))) << ofChars << row;
    }
    void merge()
    {
        QFETCH(bool, ofChars);
        QFETCH(QStringList, row);
        const QStringList flags = row.value(3).split(' ', Qt::SkipEmptyParts);
        bool f[9];
        int found = 0;
        for (int i = 0; i < 9; ++i)
            found += f[i] = flags.contains(Flags[i]);
        QCOMPARE(found, flags.size());
        QList<int> keep;
        for (const QString &name : row.value(4).split(' ', Qt::SkipEmptyParts))
            keep << propertyFrom(name);
        const QString a = row.value(1), b = row.value(2);
        const QTextFormat result = ofChars
            ? QTextFormat(MRVTextCharFormat::merge(formatFrom<QTextCharFormat>(a),
                                                   formatFrom<QTextCharFormat>(b), f[0], f[1], f[2],
                                                   f[6], keep, f[7], f[8]))
            : MRVTextBlockFormat::merge(formatFrom<QTextBlockFormat>(a),
                                        formatFrom<QTextBlockFormat>(b), f[3], f[4], f[5], keep);
        QCOMPARE(result.isCharFormat(), ofChars);
        QCOMPARE(result.isBlockFormat(), !ofChars);
        QCOMPARE(propertyDump(result), propertyDump(formatFrom<QTextCharFormat>(row.value(5))));
    }

    // What is no style comes from the existing format, in both directions and whatever the flags.
    void keptStructure()
    {
        for (const int property :
             {0,        0x2f00,   0x2021,   0x2024,   0x2030,   0x2031,   0x2032,
              0x4000,   0x4810,   0x4821,   0x5000,   0x5010,   0x5011,   0x7000,
              0x100001, 0x100002, 0x100004, 0x100006, 0x100007, 0x100008, 0x100009,
              0x10000a, 0x10000b, 0x10000c, 0x10000d, 0x10000e, 0x10000f, 0x100064,
              0x100065, 0x100066, 0x100067, 0x1000c8, 0x1000d3}) {
            QTextCharFormat set;
            set.setProperty(property, 3);
            for (const bool f : {false, true}) {
                const auto kept = MRVTextCharFormat::merge(set, {}, f, f, f, f, {}, f, f);
                const auto spread = MRVTextCharFormat::merge({}, set, f, f, f, f, {}, f, f);
                QVERIFY2(kept == set && spread == QTextCharFormat(),
                         qPrintable(QString::number(property, 16)));
            }
        }
    }

    void mergeBlockFormat_data()
    {
        QTest::addColumn<QString>("chars");
        QTest::addColumn<bool>("inList");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const char *const style = "TextIndent=9:double BlockTopMargin=8:double";
        const char *const own = "TextIndent=3:double BlockTopMargin=2:double";
        QTest::newRow("plain") << "" << false << "x" << style;
        QTest::newRow("preserved") << "0x100003=true:bool" << false << "x" << own;
        QTest::newRow("preserved-empty") << "0x100003=true:bool" << false << "" << own;
        QTest::newRow("not-preserved") << "0x100003=false:bool" << false << "x" << style;
        QTest::newRow("list") << "" << true << "x"
                              << "ObjectIndex=0:int TextIndent=3:double BlockTopMargin=8:double";
    }
    void mergeBlockFormat()
    {
        QFETCH(QString, chars);
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QTextDocument document;
        QTextCursor cursor(&document);
        cursor.insertBlock(blocks("TextIndent=3:double BlockTopMargin=2:double"),
                           formatFrom<QTextCharFormat>(chars));
        cursor.insertText(text);
        cursor.insertText(text, QTextCharFormat());
        QFETCH(bool, inList);
        if (inList)
            cursor.createList(QTextListFormat::ListDecimal);
        const auto result = MRVTextFormat::mergeBlockFormat(
            document.lastBlock(), blocks("TextIndent=9:double BlockTopMargin=8:double"), false,
            false, false, {});
        QCOMPARE(result.objectIndex() >= 0, inList);
        QCOMPARE(propertyDump(result), propertyDump(formatFrom<QTextBlockFormat>(expected)));
    }

    void convertDocument()
    {
        QTextDocument document;
        fill(&document);
        const QStringList before = documentDump(document);
        const QTextCharFormat none, italic = chars("FontItalic=true:bool");
        const QTextBlockFormat plain, indented = blocks("TextIndent=20:double ObjectIndex=5:int");
        convert(&none, &plain, true, false, &document);
        convert(nullptr, nullptr, false, false, &document);
        convert(&italic, &indented, false, false, static_cast<QTextDocument *>(nullptr));
        QVERIFY(!document.isUndoAvailable() && !document.isModified());

        convert(&italic, &indented, false, false, &document);
        QCOMPARE(italics(document),
                 QString("{20}[plain bold][ link][*]|{0}kept[free]|{0}[item]|{0}[item "
                         "2]|{20}[wide]|{20}|{20}|{20}"));
        const QTextBlock item = document.findBlockByNumber(2);
        QVERIFY(item.textList() && !document.begin().textList());
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

    void convertRange_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("end");
        QTest::addColumn<QString>("expected");
        // "tw" is bold, and runs that have become equal are one.
        QTest::newRow("inside-run") << 1 << 2 << "{5}o[n]e|0 two|0 three";
        QTest::newRow("across-runs") << 5 << 7 << "0 one|{5}t[wo]|0 three";
        QTest::newRow("across-paragraphs") << 2 << 9 << "{5}on[e]|{5}[two]|{5}[t]hree";
        QTest::newRow("to-run-start") << 0 << 4 << "{5}[one]|{5}two|0 three";
        QTest::newRow("before") << -1 << 2 << "0 one|0 two|0 three";
        QTest::newRow("behind") << 0 << 14 << "0 one|0 two|0 three";
        QTest::newRow("reversed") << 2 << 1 << "0 one|0 two|0 three";
    }
    void convertRange()
    {
        QFETCH(int, start);
        QFETCH(int, end);
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
        convert(&italic, &indented, false, false, &document, start, end);
        QTEST(italics(document), "expected");
        document.undo();
        QCOMPARE(documentDump(document), before);
        QVERIFY(!document.isUndoAvailable());
        if (start < 0 || end < start || end > 13)
            return;
        cursor.setPosition(end);
        cursor.setPosition(start, QTextCursor::KeepAnchor);
        convert(&italic, &indented, false, false, cursor);
        QTEST(italics(document), "expected");
        convert(&italic, &indented, false, false, QTextCursor());
    }

    void convertIsLinear()
    {
        const auto seconds = [](int paragraphs) {
            QTextDocument document;
            QTextCursor cursor(&document);
            cursor.beginEditBlock();
            for (int i = 0; i < paragraphs; ++i) {
                cursor.insertText("some plain words and ", chars(""));
                cursor.insertText("bold ones\n", chars("FontWeight=75:int"));
            }
            cursor.endEditBlock();
            const QTextCharFormat italic = chars("FontItalic=true:bool");
            QElapsedTimer timer;
            timer.start();
            convert(&italic, nullptr, false, false, &document);
            return double(timer.nsecsElapsed()) / 1e9;
        };
        const double small = qMin(seconds(2000), seconds(2000));
        const double large = qMin(seconds(32000), seconds(32000));
        // 16 times the text; quadratic work would take 256 times as long.
        QVERIFY2(large < 64 * small, qPrintable(QString("%1 s and %2 s").arg(small).arg(large)));
    }

    // From within the first run to the beginning of "after". The mono family of DejaVu has normal and
    // bold only; HTML import sets the list of families as well, or alone.
    void adjustFontWeight()
    {
        const auto mono = [](int weight, int property = QTextFormat::FontFamily) {
            QTextCharFormat format;
            format.setProperty(property,
                               property == QTextFormat::FontFamily
                                   ? QVariant("DejaVu Sans Mono")
                                   : QStringList{"DejaVu Sans Mono", "A"});
            format.setFontWeight(weight);
            return format;
        };
        QTextDocument document;
        QTextCursor cursor(&document);
        cursor.setBlockCharFormat(mono(87));
        cursor.insertText("before", mono(87));
        cursor.insertText("inside", mono(81, QTextFormat::FontFamilies));
        cursor.insertBlock(QTextBlockFormat(), mono(63));
        cursor.insertText("light", mono(25));
        cursor.insertText("bold", mono(75));
        cursor.insertText("other", chars("FontWeight=63:int"));
        cursor.insertText("after", mono(99));
        cursor.insertBlock(QTextBlockFormat(), mono(25));
        cursor.insertText("last", mono(25));
        document.clearUndoRedoStacks();
        const QStringList before = documentDump(document);
        cursor.setPosition(2);
        cursor.setPosition(27, QTextCursor::KeepAnchor);
        QCOMPARE(document.characterAt(27), QChar('a'));
        MRVTextFormat::adjustFontWeight(cursor);
        QString weights;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            weights += '|' + block.charFormat().property(QTextFormat::FontWeight).toString();
            for (auto it = block.begin(); !it.atEnd(); ++it)
                weights += ' ' + it.fragment().text()
                    + it.fragment().charFormat().property(QTextFormat::FontWeight).toString();
        }
        QCOMPARE(weights, QString("|75 before87 inside75|75 light bold75 other63 after75| last25"));
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
