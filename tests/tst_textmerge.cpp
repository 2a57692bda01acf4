#include "documentdump.h"
#include "text/mrvtextblockformat.h"
#include "text/mrvtextcharformat.h"
#include "text/mrvtextformat.h"

#include <QElapsedTimer>
#include <QPen>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextList>
#include <QTextTable>
#include <QtTest>

namespace {

enum Flag {
    KeepSize = 1,
    KeepColors = 2,
    KeepEmphasis = 4,
    KeepFamily = 8,
    Override = 16,
    Combine = 32,
    KeepIndents = 64,
    KeepSpacing = 128,
    KeepAlignment = 256,
};

using Properties = QMap<int, QVariant>;

template<typename Format>
Format make(const Properties &properties)
{
    Format format;
    for (auto it = properties.cbegin(); it != properties.cend(); ++it)
        format.setProperty(it.key(), it.value());
    return format;
}

QTextCharFormat chars(const Properties &properties)
{
    return make<QTextCharFormat>(properties);
}

QTextBlockFormat blocks(const Properties &properties)
{
    return make<QTextBlockFormat>(properties);
}

void convert(QTextDocument *document, const QTextCharFormat *charFormat,
             const QTextBlockFormat *blockFormat, int flags = 0, const QList<int> &keep = {})
{
    MRVTextFormat::convertToFormat(document, charFormat, blockFormat, flags & KeepSize,
                                   flags & KeepColors, flags & KeepEmphasis, flags & KeepIndents,
                                   flags & KeepSpacing, flags & KeepAlignment, flags & KeepFamily,
                                   keep, flags & Override, flags & Combine);
}

void convert(QTextDocument *document, int start, int end, const QTextCharFormat *charFormat,
             const QTextBlockFormat *blockFormat, int flags = 0)
{
    MRVTextFormat::convertToFormat(document, start, end, charFormat, blockFormat, flags & KeepSize,
                                   flags & KeepColors, flags & KeepEmphasis, flags & KeepIndents,
                                   flags & KeepSpacing, flags & KeepAlignment, flags & KeepFamily,
                                   {}, flags & Override, flags & Combine);
}

/// The text of the document with each italic run in brackets and paragraphs separated by "|".
QString italics(const QTextDocument &document)
{
    QStringList paragraphs;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QString text;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment run = it.fragment();
            text += run.charFormat().fontItalic() ? '[' + run.text() + ']' : run.text();
        }
        paragraphs << text;
    }
    return paragraphs.join('|');
}

/// A mixed document: styles, a preserved run, an image, a list, and a table with merged cells.
void fill(QTextDocument *document)
{
    QTextCursor cursor(document);
    cursor.insertText("plain ", chars({}));
    cursor.insertText("bold", chars({{QTextFormat::FontWeight, 75}}));
    cursor.insertText(" link",
                      chars({{QTextFormat::IsAnchor, true}, {QTextFormat::AnchorHref, "7"}}));
    QTextImageFormat image;
    image.setName("picture");
    cursor.insertImage(image);
    cursor.insertBlock(blocks({}), chars({}));
    cursor.insertText("kept", chars({{MRVTextFormat::PreserveFormatProperty, true}}));
    cursor.insertBlock(blocks({}), chars({}));
    cursor.insertText("item");
    cursor.createList(QTextListFormat::ListDisc);
    cursor.insertBlock();
    cursor.insertText("item 2");
    cursor.movePosition(QTextCursor::End);
    QTextTable *table = cursor.insertTable(2, 2);
    table->mergeCells(0, 0, 1, 2);
    table->cellAt(0, 0).firstCursorPosition().insertText("wide");
    table->cellAt(1, 1).firstCursorPosition().insertText("cell");
    document->clearUndoRedoStacks();
    document->setModified(false);
}

} // namespace

class TestTextMerge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void charFormats_data();
    void charFormats();
    void keptStructure_data();
    void keptStructure();
    void blockFormats_data();
    void blockFormats();

    void mergeBlockFormat_data();
    void mergeBlockFormat();
    void convertDocument();
    void convertWithoutChange();
    void convertRange_data();
    void convertRange();
    void convertRangeParagraphs();
    void convertOutside_data();
    void convertOutside();
    void convertCursor();
    void convertPreserved();
    void convertIsLinear();

    void adjustWeights();
    void adjustWeightsOfFamilies();
    void adjustWithoutChange();
};

void TestTextMerge::charFormats_data()
{
    QTest::addColumn<Properties>("existing");
    QTest::addColumn<Properties>("style");
    QTest::addColumn<int>("flags");
    QTest::addColumn<QList<int>>("keep");
    QTest::addColumn<Properties>("expected");
    const auto row = [](const char *name, const Properties &existing, const Properties &style,
                        int flags, const QList<int> &keep, const Properties &expected) {
        QTest::newRow(name) << existing << style << flags << keep << expected;
    };
    constexpr int Point = QTextFormat::FontPointSize;
    constexpr int Pixel = QTextFormat::FontPixelSize;
    constexpr int Weight = QTextFormat::FontWeight;
    constexpr int Family = QTextFormat::FontFamily;
    constexpr int Families = QTextFormat::FontFamilies;
    constexpr int Preserve = MRVTextFormat::PreserveFormatProperty;

    row("style-replaces", {{Point, 10.0}, {QTextFormat::FontItalic, true}}, {{Family, "A"}}, 0, {},
        {{Family, "A"}});
    row("size-replaced", {{Point, 10.0}}, {{Point, 12.0}}, 0, {}, {{Point, 12.0}});
    row("size-kept", {{Point, 10.0}}, {{Point, 12.0}}, KeepSize, {}, {{Point, 10.0}});
    row("size-kept-over-pixels", {{Point, 10.0}}, {{Pixel, 30}}, KeepSize, {}, {{Point, 10.0}});
    row("no-size-clears-both", {}, {{Point, 12.0}, {Pixel, 12}}, KeepSize, {}, {});
    row("zero-size-clears-both", {{Point, 1e-14}, {Pixel, 9}}, {{Point, 12.0}}, KeepSize, {}, {});
    row("adjustment-kept", {{Point, 9.0}, {QTextFormat::FontSizeAdjustment, 2}}, {}, KeepSize, {},
        {{Point, 9.0}, {QTextFormat::FontSizeAdjustment, 2}});

    const QBrush red(Qt::red), blue(Qt::blue);
    row("colors-replaced", {{QTextFormat::ForegroundBrush, red}},
        {{QTextFormat::ForegroundBrush, blue}}, 0, {}, {{QTextFormat::ForegroundBrush, blue}});
    row("colors-kept",
        {{QTextFormat::ForegroundBrush, red}, {QTextFormat::OutlinePen, QPen(Qt::red)}},
        {{QTextFormat::ForegroundBrush, blue}, {QTextFormat::BackgroundBrush, blue}}, KeepColors,
        {}, {{QTextFormat::ForegroundBrush, red}, {QTextFormat::OutlinePen, QPen(Qt::red)}});

    const Properties emphasis{{QTextFormat::FontCapitalization, 1},
                              {Weight, 75},
                              {QTextFormat::FontItalic, true},
                              {QTextFormat::FontUnderline, true},
                              {QTextFormat::FontOverline, true},
                              {QTextFormat::FontStrikeOut, true},
                              {QTextFormat::TextUnderlineColor, QColor(Qt::red)},
                              {QTextFormat::TextOutline, QPen(Qt::red)},
                              {QTextFormat::TextUnderlineStyle, 1}};
    row("emphasis-replaced", emphasis, {}, 0, {}, {});
    row("emphasis-kept", emphasis, {{Weight, 87}}, KeepEmphasis, {}, emphasis);
    row("emphasis-kept-unset", {}, emphasis, KeepEmphasis, {}, {});
    row("emphasis-combined-with-none", emphasis, {}, Combine, {}, emphasis);
    row("none-combined-with-emphasis", {}, emphasis, Combine, {}, emphasis);
    row("combine-larger-weight", {{Weight, 63}}, {{Weight, 75}}, Combine, {}, {{Weight, 75}});
    row("combine-larger-existing", {{Weight, 87}}, {{Weight, 75}}, Combine, {}, {{Weight, 87}});
    row("combine-light-with-normal", {{Weight, 25}}, {}, Combine, {}, {});
    row("combine-light-with-stored-0", {{Weight, 25}}, {{Weight, 0}}, Combine, {}, {});
    row("combine-over-keep", {{QTextFormat::FontItalic, true}}, {{Weight, 75}},
        Combine | KeepEmphasis, {}, {{Weight, 75}, {QTextFormat::FontItalic, true}});
    row("combine-off-with-on", {{QTextFormat::FontItalic, false}},
        {{QTextFormat::FontItalic, true}}, Combine, {}, {{QTextFormat::FontItalic, true}});
    row("combine-capitals", {{QTextFormat::FontCapitalization, 3}},
        {{QTextFormat::FontCapitalization, 1}}, Combine, {},
        {{QTextFormat::FontCapitalization, 3}});

    row("normal-weight-is-unset", {}, {{Weight, 50}}, 0, {}, {});
    row("kept-normal-weight-is-unset", {{Weight, 50}}, {{Weight, 75}}, KeepEmphasis, {}, {});
    row("light-stays", {}, {{Weight, 25}}, 0, {}, {{Weight, 25}});

    row("family-replaces-families", {{Family, "A"}, {Families, QStringList{"A"}}}, {{Family, "B"}},
        0, {}, {{Family, "B"}});
    row("family-kept-with-families", {{Family, "A"}, {Families, QStringList{"A", "C"}}},
        {{Family, "B"}, {QTextFormat::FontFixedPitch, true}}, KeepFamily, {},
        {{Family, "A"}, {Families, QStringList{"A", "C"}}});
    row("family-kept-drops-new-families", {{Family, "A"}}, {{Families, QStringList{"B"}}},
        KeepFamily, {}, {{Family, "A"}});
    row("family-in-keep-list", {{Family, "A"}}, {{Family, "B"}, {Families, QStringList{"B"}}}, 0,
        {Family}, {{Family, "A"}});

    row("keep-list-takes", {{QTextFormat::FontKerning, true}}, {}, 0, {QTextFormat::FontKerning},
        {{QTextFormat::FontKerning, true}});
    row("keep-list-removes", {}, {{QTextFormat::FontKerning, true}}, 0, {QTextFormat::FontKerning},
        {});
    row("keep-list-literal-weight", {{Weight, 50}}, {}, 0, {Weight}, {{Weight, 50}});

    row("preserved", {{Preserve, true}, {Point, 9.0}}, {{Point, 12.0}}, 0, {Point},
        {{Preserve, true}, {Point, 9.0}});
    row("preserved-overridden", {{Preserve, true}, {Point, 9.0}}, {{Point, 12.0}}, Override, {},
        {{Preserve, true}, {Point, 12.0}});
    row("not-preserved", {{Preserve, false}, {Point, 9.0}}, {{Point, 12.0}}, 0, {},
        {{Preserve, false}, {Point, 12.0}});
}

void TestTextMerge::charFormats()
{
    QFETCH(Properties, existing);
    QFETCH(Properties, style);
    QFETCH(int, flags);
    QFETCH(QList<int>, keep);
    const QTextCharFormat result = MRVTextCharFormat::merge(
        chars(existing), chars(style), flags & KeepSize, flags & KeepColors, flags & KeepEmphasis,
        flags & KeepFamily, keep, flags & Override, flags & Combine);
    QVERIFY(result.isCharFormat());
    QTEST(result.properties(), "expected");
}

void TestTextMerge::keptStructure_data()
{
    QTest::addColumn<int>("property");
    const QVector<int> properties{
        0,        0x2f00,   0x2021,   0x2024,   0x2030,   0x2031,   0x2032,   0x4000,   0x4810,
        0x4821,   0x5000,   0x5010,   0x5011,   0x7000,   0x100001, 0x100002, 0x100004, 0x100006,
        0x100007, 0x100008, 0x100009, 0x10000a, 0x10000b, 0x10000c, 0x10000d, 0x10000e, 0x10000f,
        0x100064, 0x100065, 0x100066, 0x100067, 0x1000c8, 0x1000d3};
    for (int property : properties)
        QTest::newRow(qPrintable("0x" + QString::number(property, 16))) << property;
}

// What is no style comes from the existing format, in both directions and whatever the flags.
void TestTextMerge::keptStructure()
{
    QFETCH(int, property);
    const QVariant value(3);
    const QTextCharFormat set = chars({{property, value}});
    for (const bool flag : {false, true}) {
        QCOMPARE(
            MRVTextCharFormat::merge(set, {}, flag, flag, flag, flag, {}, flag, flag).properties(),
            set.properties());
        QVERIFY(MRVTextCharFormat::merge({}, set, flag, flag, flag, flag, {}, flag, flag)
                    .properties()
                    .isEmpty());
    }
}

void TestTextMerge::blockFormats_data()
{
    QTest::addColumn<Properties>("existing");
    QTest::addColumn<Properties>("style");
    QTest::addColumn<int>("flags");
    QTest::addColumn<QList<int>>("keep");
    QTest::addColumn<Properties>("expected");
    const auto row = [](const char *name, const Properties &existing, const Properties &style,
                        int flags, const QList<int> &keep, const Properties &expected) {
        QTest::newRow(name) << existing << style << flags << keep << expected;
    };
    constexpr int Spacing = MRVTextFormat::BlockSpacing;
    constexpr int Base = MRVTextFormat::BlockBaseSpacing;
    constexpr int Heading = QTextFormat::HeadingLevel;
    const Properties indents{
        {QTextFormat::BlockLeftMargin, 1.0},   {QTextFormat::BlockRightMargin, 2.0},
        {QTextFormat::TextIndent, 3.0},        {QTextFormat::BlockIndent, 4},
        {MRVTextFormat::BlockLeftIndent, 5.0}, {MRVTextFormat::BlockRightIndent, 6.0}};
    const Properties spacing{{QTextFormat::BlockTopMargin, 1.0},
                             {QTextFormat::BlockBottomMargin, 2.0},
                             {QTextFormat::LineHeight, 3.0},
                             {QTextFormat::LineHeightType, 4},
                             {Spacing, 14.0},
                             {Base, 12.0}};
    const Properties alignment{{QTextFormat::BlockAlignment, 2}, {QTextFormat::LayoutDirection, 1}};

    row("indents-replaced", indents, {}, KeepSpacing | KeepAlignment, {}, {});
    row("indents-kept", indents, {{QTextFormat::TextIndent, 9.0}}, KeepIndents, {}, indents);
    row("no-indents-kept", {}, indents, KeepIndents, {}, {});
    row("spacing-replaced", spacing, {}, KeepIndents | KeepAlignment, {}, {});
    row("spacing-kept", spacing, {{Spacing, 24.0}, {Base, 12.0}}, KeepSpacing, {}, spacing);
    row("alignment-replaced", alignment, {}, KeepIndents | KeepSpacing, {}, {});
    row("alignment-kept", alignment, {{QTextFormat::BlockAlignment, 4}}, KeepAlignment, {},
        alignment);
    row("background-replaced", {{QTextFormat::BackgroundBrush, 1}}, {}, 7, {}, {});
    row("keep-list", {{QTextFormat::TextIndent, 3.0}},
        {{QTextFormat::TextIndent, 9.0}, {Spacing, 1.0}}, 0, {QTextFormat::TextIndent, Spacing},
        {{QTextFormat::TextIndent, 3.0}});
    row("list-index-kept", {{0, 4}}, {{0, 9}}, 0, {}, {{0, 4}});
    row("foreign-list-index", {}, {{0, 9}, {0x100001, 1}}, 0, {}, {});
    row("structure-kept",
        {{0x1060, 5}, {0x1050, true}, {0x1080, 1}, {0x7000, 1}, {0x100002, "x"}, {0x4810, 2}}, {},
        0, {},
        {{0x1060, 5}, {0x1050, true}, {0x1080, 1}, {0x7000, 1}, {0x100002, "x"}, {0x4810, 2}});

    row("heading-stays", {{Heading, 2}}, {{QTextFormat::BlockAlignment, 4}}, 0, {},
        {{Heading, 2}, {QTextFormat::BlockAlignment, 4}});
    row("heading-ended-by-spacing", {{Heading, 2}}, {{Spacing, 14.0}, {Base, 12.0}}, 0, {},
        {{Spacing, 14.0}, {Base, 12.0}});
    row("heading-kept-with-spacing", {{Heading, 2}}, {{Spacing, 14.0}, {Base, 12.0}}, KeepSpacing,
        {}, {{Heading, 2}});
    row("heading-not-spread", {}, {{Heading, 2}}, 0, {}, {});
    row("heading-not-spread-over-spacing", {{Spacing, 14.0}}, {{Heading, 2}}, 0, {}, {});
    row("heading-not-spread-over-heading", {{Heading, 3}}, {{Heading, 1}}, 0, {}, {{Heading, 3}});
}

void TestTextMerge::blockFormats()
{
    QFETCH(Properties, existing);
    QFETCH(Properties, style);
    QFETCH(int, flags);
    QFETCH(QList<int>, keep);
    const QTextBlockFormat result =
        MRVTextBlockFormat::merge(blocks(existing), blocks(style), flags & KeepIndents,
                                  flags & KeepSpacing, flags & KeepAlignment, keep);
    QVERIFY(result.isBlockFormat());
    QTEST(result.properties(), "expected");
    QFETCH(Properties, expected);
    QCOMPARE(result.property(QTextFormat::HeadingLevel).userType(),
             expected.value(QTextFormat::HeadingLevel).userType());
}

void TestTextMerge::mergeBlockFormat_data()
{
    QTest::addColumn<QVariant>("preserve");
    QTest::addColumn<bool>("inList");
    QTest::addColumn<bool>("empty");
    QTest::addColumn<double>("indent");
    QTest::addColumn<double>("topMargin");
    QTest::newRow("plain") << QVariant() << false << false << 9.0 << 8.0;
    QTest::newRow("preserved") << QVariant(true) << false << false << 3.0 << 2.0;
    QTest::newRow("preserved-empty") << QVariant(true) << false << true << 3.0 << 2.0;
    QTest::newRow("not-preserved") << QVariant(false) << false << false << 9.0 << 8.0;
    QTest::newRow("list") << QVariant() << true << false << 3.0 << 8.0;
}

void TestTextMerge::mergeBlockFormat()
{
    QFETCH(QVariant, preserve);
    QFETCH(bool, inList);
    QFETCH(bool, empty);
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.insertText("above");
    const QTextCharFormat start = chars({{MRVTextFormat::PreserveFormatProperty, preserve}});
    cursor.insertBlock(blocks({{QTextFormat::TextIndent, 3.0}, {QTextFormat::BlockTopMargin, 2.0}}),
                       start);
    if (!empty) {
        cursor.insertText("x", start);
        cursor.insertText("unmarked", chars({}));
    }
    if (inList)
        cursor.createList(QTextListFormat::ListDecimal);
    const QTextBlockFormat result = MRVTextFormat::mergeBlockFormat(
        document.lastBlock(),
        blocks({{QTextFormat::TextIndent, 9.0}, {QTextFormat::BlockTopMargin, 8.0}}), false, false,
        false, {});
    QTEST(result.textIndent(), "indent");
    QTEST(result.topMargin(), "topMargin");
    QCOMPARE(result.objectIndex() >= 0, inList);
}

void TestTextMerge::convertDocument()
{
    QTextDocument document;
    fill(&document);
    const QStringList before = documentDump(document);
    const QString text = document.toPlainText();

    const QTextCharFormat charFormat = chars({{QTextFormat::FontItalic, true}});
    const QTextBlockFormat blockFormat = blocks({{QTextFormat::TextIndent, 20.0}, {0, 5}});
    convert(&document, &charFormat, &blockFormat);

    QCOMPARE(document.toPlainText(), text);
    QCOMPARE(
        italics(document),
        QString("[plain bold][ link][%1]|kept|[item]|[item 2]|[wide]||[cell]|").arg(QChar(0xfffc)));
    const QTextBlock first = document.begin();
    QCOMPARE(first.blockFormat().textIndent(), 20.0);
    QVERIFY(first.charFormat().fontItalic());
    QVERIFY(!first.textList());
    const QTextBlock kept = first.next();
    QCOMPARE(kept.blockFormat().textIndent(), 0.0);
    const QTextBlock item = kept.next();
    QVERIFY(item.textList());
    QCOMPARE(item.textList()->count(), 2);
    QCOMPARE(item.blockFormat().textIndent(), 0.0);
    QTextTable *table = QTextCursor(document.lastBlock().previous()).currentTable();
    QVERIFY(table);
    QCOMPARE(table->cellAt(0, 0).columnSpan(), 2);
    QTextCursor link(&document);
    link.setPosition(12);
    QCOMPARE(link.charFormat().anchorHref(), QString("7"));

    document.undo();
    QCOMPARE(documentDump(document), before);
    QVERIFY(!document.isUndoAvailable());
}

void TestTextMerge::convertWithoutChange()
{
    QTextDocument document;
    fill(&document);
    const QTextCharFormat charFormat;
    const QTextBlockFormat blockFormat;
    convert(&document, &charFormat, &blockFormat, KeepEmphasis);
    convert(&document, nullptr, nullptr);
    convert(nullptr, &charFormat, &blockFormat);
    QVERIFY(!document.isUndoAvailable());
    QVERIFY(!document.isModified());
}

void TestTextMerge::convertRange_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("expected");
    // one|two|three, with "tw" bold
    QTest::newRow("inside-run") << 1 << 2 << "o[n]e|two|three";
    QTest::newRow("across-runs") << 5 << 7 << "one|t[w][o]|three";
    QTest::newRow("across-paragraphs") << 2 << 9 << "on[e]|[tw][o]|[t]hree";
    QTest::newRow("whole") << 0 << 13 << "[one]|[tw][o]|[three]";
    QTest::newRow("to-run-start") << 0 << 4 << "[one]|two|three";
    QTest::newRow("empty") << 5 << 5 << "one|two|three";
}

void TestTextMerge::convertRange()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QTextDocument document;
    document.setPlainText("one\ntwo\nthree");
    QTextCursor cursor(&document);
    cursor.setPosition(4);
    cursor.setPosition(6, QTextCursor::KeepAnchor);
    cursor.setCharFormat(chars({{QTextFormat::FontWeight, 75}}));
    document.clearUndoRedoStacks();
    const QStringList before = documentDump(document);

    const QTextCharFormat italic = chars({{QTextFormat::FontItalic, true}});
    convert(&document, start, end, &italic, nullptr);
    QString result = italics(document);
    // Runs that have become equal are one.
    QTEST(result.replace("[two]", "[tw][o]").replace("[wo]", "[w][o]"), "expected");
    document.undo();
    QCOMPARE(documentDump(document), before);
    QVERIFY(!document.isUndoAvailable());
}

// Paragraph formats change for whole paragraphs, from that of the start to that of the end.
void TestTextMerge::convertRangeParagraphs()
{
    QTextDocument document;
    document.setPlainText("one\ntwo\nthree\nfour");
    const QTextBlockFormat indented = blocks({{QTextFormat::TextIndent, 5.0}});
    const QTextCharFormat italic = chars({{QTextFormat::FontItalic, true}});
    convert(&document, 5, 8, &italic, &indented);
    QList<double> indents;
    QList<bool> charFormats;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        indents << block.blockFormat().textIndent();
        charFormats << block.charFormat().fontItalic();
    }
    QCOMPARE(indents, (QList<double>{0, 5, 5, 0}));
    QCOMPARE(charFormats, (QList<bool>{false, true, true, false}));
    document.undo();
    QVERIFY(!document.isUndoAvailable());
}

void TestTextMerge::convertOutside_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::newRow("before") << -1 << 2;
    QTest::newRow("behind") << 0 << 4;
    QTest::newRow("reversed") << 2 << 1;
}

void TestTextMerge::convertOutside()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QTextDocument document;
    document.setPlainText("one");
    const QTextCharFormat italic = chars({{QTextFormat::FontItalic, true}});
    convert(&document, start, end, &italic, nullptr);
    QCOMPARE(italics(document), QString("one"));
    QVERIFY(!document.begin().charFormat().fontItalic());
}

void TestTextMerge::convertCursor()
{
    QTextDocument document;
    document.setPlainText("one two");
    QTextCursor cursor(&document);
    cursor.setPosition(6);
    cursor.setPosition(2, QTextCursor::KeepAnchor);
    const QTextCharFormat italic = chars({{QTextFormat::FontItalic, true}});
    MRVTextFormat::convertToFormat(cursor, &italic, nullptr, false, false, false, false, false,
                                   false, false, {}, false, false);
    QCOMPARE(italics(document), QString("on[e tw]o"));
    MRVTextFormat::convertToFormat(QTextCursor(), &italic, nullptr, false, false, false, false,
                                   false, false, false, {}, false, false);
}

// Two paragraphs of one block format, of which one is marked.
void TestTextMerge::convertPreserved()
{
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.insertText("free");
    cursor.insertBlock();
    cursor.insertText("kept", chars({{MRVTextFormat::PreserveFormatProperty, true}}));
    cursor.insertText("free", chars({}));
    const QTextCharFormat italic = chars({{QTextFormat::FontItalic, true}});
    const QTextBlockFormat indented = blocks({{QTextFormat::TextIndent, 5.0}});
    convert(&document, &italic, &indented);
    QCOMPARE(italics(document), QString("[free]|kept[free]"));
    QCOMPARE(document.begin().blockFormat().textIndent(), 5.0);
    QCOMPARE(document.lastBlock().blockFormat().textIndent(), 0.0);
    convert(&document, &italic, &indented, Override);
    QCOMPARE(italics(document), QString("[free]|[kept][free]"));
    QCOMPARE(document.lastBlock().blockFormat().textIndent(), 0.0);
}

void TestTextMerge::convertIsLinear()
{
    const auto seconds = [](int paragraphs) {
        QTextDocument document;
        document.setUndoRedoEnabled(false);
        QTextCursor cursor(&document);
        const QTextCharFormat bold = chars({{QTextFormat::FontWeight, 75}});
        cursor.beginEditBlock();
        for (int i = 0; i < paragraphs; ++i) {
            cursor.insertText("some plain words and ", chars({}));
            cursor.insertText("bold ones", bold);
            cursor.insertBlock();
        }
        cursor.endEditBlock();
        document.setUndoRedoEnabled(true);
        const QTextCharFormat italic = chars({{QTextFormat::FontItalic, true}});
        QElapsedTimer timer;
        timer.start();
        convert(&document, &italic, nullptr);
        return double(timer.nsecsElapsed()) / 1e9;
    };
    seconds(500);
    const double small = qMin(seconds(2000), seconds(2000));
    const double large = qMin(seconds(32000), seconds(32000));
    // 16 times the text; quadratic work would take 256 times as long.
    QVERIFY2(large < 64 * small, qPrintable(QString("%1 s and %2 s").arg(small).arg(large)));
}

void TestTextMerge::adjustWeights()
{
    const auto mono = [](int weight) {
        return chars(
            {{QTextFormat::FontFamily, "DejaVu Sans Mono"}, {QTextFormat::FontWeight, weight}});
    };
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.setBlockCharFormat(mono(87));
    cursor.insertText("before", mono(87));
    cursor.insertText("inside", mono(81));
    cursor.insertBlock(QTextBlockFormat(), mono(63));
    cursor.insertText("light", mono(25));
    cursor.insertText("bold", mono(75));
    cursor.insertText("other", chars({{QTextFormat::FontWeight, 63}}));
    cursor.insertText("after", mono(99));
    cursor.insertBlock(QTextBlockFormat(), mono(25));
    cursor.insertText("last", mono(25));
    document.clearUndoRedoStacks();
    const QStringList before = documentDump(document);

    // From within the first run to the beginning of "after".
    cursor.setPosition(2);
    cursor.setPosition(27, QTextCursor::KeepAnchor);
    QCOMPARE(document.characterAt(27), QChar('a'));
    MRVTextFormat::adjustFontWeight(cursor);

    QStringList weights;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        weights << "block " + block.charFormat().property(QTextFormat::FontWeight).toString();
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment run = it.fragment();
            weights << run.text() + ' '
                    + run.charFormat().property(QTextFormat::FontWeight).toString();
        }
    }
    QCOMPARE(weights,
             (QStringList{"block 75", "before 87", "inside 75", "block 75", "light ", "bold 75",
                          "other 63", "after 75", "block ", "last 25"}));
    document.undo();
    QCOMPARE(documentDump(document), before);
    QVERIFY(!document.isUndoAvailable());
}

// HTML import sets the list of families as well, or alone.
void TestTextMerge::adjustWeightsOfFamilies()
{
    QTextDocument document;
    QTextCursor cursor(&document);
    cursor.insertText("text",
                      chars({{QTextFormat::FontFamilies, QStringList{"DejaVu Sans Mono", "A"}},
                             {QTextFormat::FontWeight, 99}}));
    cursor.select(QTextCursor::Document);
    MRVTextFormat::adjustFontWeight(cursor);
    QCOMPARE(cursor.charFormat().fontWeight(), 75);
}

void TestTextMerge::adjustWithoutChange()
{
    QTextDocument document;
    fill(&document);
    QTextCursor cursor(&document);
    cursor.select(QTextCursor::Document);
    MRVTextFormat::adjustFontWeight(cursor);
    MRVTextFormat::adjustFontWeight(QTextCursor());
    QVERIFY(!document.isUndoAvailable());
}

QTEST_MAIN(TestTextMerge)
#include "tst_textmerge.moc"
