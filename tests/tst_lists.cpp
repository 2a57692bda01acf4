#include "datarows.h"
#include "documentdump.h"
#include "text/mrvtextcursor.h"
#include "text/mrvtextformat.h"
#include "text/mrvtextlistformat.h"
#include "text/mrvtextrange.h"

#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextList>
#include <QTextTable>
#include <QtTest>

using Levels = MRVTextListFormat;
using Edit = std::function<void(QTextCursor &)>;
Q_DECLARE_METATYPE(Edit)

namespace {

/// Builds a document in the notation of data/cursors.tsv and returns its cursor.
QTextCursor build(QTextDocument *document, const QString &notation)
{
    int position = -1;
    int anchor = -1;
    QTextCursor cursor(document);
    QTextTable *table = nullptr;
    int cell = 0;
    for (int i = 0; i < notation.size(); ++i) {
        const QChar c = notation.at(i);
        if (c == '|') {
            position = cursor.position();
        } else if (c == '^') {
            anchor = cursor.position();
        } else if (c == '{') {
            if (!table)
                table = cursor.insertTable(1, notation.mid(i).section('}', 0, 0).count('{'));
            cursor = table->cellAt(0, cell++).firstCursorPosition();
        } else if (c == '}') {
            cursor.movePosition(QTextCursor::End);
        } else {
            cursor.insertText(c);
        }
    }
    cursor.setPosition(anchor < 0 ? position : anchor);
    cursor.setPosition(position, QTextCursor::KeepAnchor);
    return cursor;
}

QString notation(const QTextCursor &cursor)
{
    const QTextDocument *document = cursor.document();
    QString text;
    for (int i = 0; i < document->characterCount(); ++i) {
        if (i == cursor.anchor() && cursor.hasSelection())
            text += '^';
        if (i == cursor.position())
            text += '|';
        text += document->characterAt(i);
    }
    text.chop(1);
    return text.replace(QChar(0x2029), "\n")
        .replace(QChar(0xfdd0), "{")
        .replace(QChar(0xfdd1), "}");
}

/// Four paragraphs in a list, on the levels 1 to 4.
QTextList *buildList(QTextDocument *document)
{
    document->setPlainText("one\ntwo\nthree\nfour");
    QTextCursor cursor(document);
    cursor.select(QTextCursor::Document);
    QTextList *list = cursor.createList(QTextListFormat::ListDecimal);
    for (int i = 0; i < 4; ++i)
        Levels::setBlockLevel(*list, list->item(i), i + 1);
    return list;
}

/// The level of each paragraph in its list; "-" for paragraphs that are in none.
QString levelsOf(const QTextDocument &document)
{
    QStringList levels;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextList *list = block.textList();
        levels << (list ? QString::number(Levels::blockLevel(*list, block)) : "-");
    }
    return levels.join(' ');
}

} // namespace

class tst_Lists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ranges();
    void rangeInfos();
    void cursors_data() { addRows("cursors.tsv", {"operation", "before", "result"}); }
    void cursors();
    void replaceText_data() { addRows("replacements.tsv", {"old", "formats", "text", "expected"}); }
    void replaceText();
    void replaceTables();
    void nulls();
    void levels();
    void storedLevels();
    void styles();
    void paragraphLevels_data();
    void paragraphLevels();
    void wholeListLevels();
    void leaveList_data();
    void leaveList();
};

void tst_Lists::ranges()
{
    QTextDocument document("one two three");
    QTextCursor cursor(&document);
    cursor.setPosition(10);
    cursor.setPosition(4, QTextCursor::KeepAnchor);
    const MRVTextRange range(cursor);
    QCOMPARE(range, MRVTextRange(4, 10));
    const QTextCursor forward = range.toTextCursor(&document);
    QCOMPARE(forward.anchor(), 4);
    QCOMPARE(forward.position(), 10);
    QCOMPARE(MRVTextRange(MRVTextRange(-3, 99).toTextCursor(&document)), MRVTextRange(0, 13));

    const QMap<MRVTextRange, int> ordered{{{4, 9}, 2}, {{5, 5}, 4}, {{4, 10}, 3}, {{1, 99}, 1}};
    QCOMPARE(ordered.values(), QList<int>({1, 2, 3, 4}));
}

void tst_Lists::rangeInfos()
{
    QTextDocument document;
    QTextCursor cursor(&document);
    QTextCharFormat italic;
    italic.setFontItalic(true);
    cursor.insertText("plain");
    cursor.insertText("italic", italic);
    // Backwards, so that the character before the position is a plain one.
    cursor.setPosition(5, QTextCursor::KeepAnchor);
    QVERIFY(MRVTextCursor::selectionEndCharFormat(cursor).fontItalic());

    const MRVTextCursorInfo info(cursor);
    QVERIFY(info.charFormat.fontItalic());
    QTextDocument other("something else");
    const MRVTextCursorInfo there =
        MRVTextCursorInfo::fromTextRangeInfo(info.toTextRangeInfo(), &other);
    QCOMPARE(there.cursor.selectedText(), QString("hing e"));
    QVERIFY(there.charFormat.fontItalic());
}

void tst_Lists::cursors()
{
    QFETCH(QString, operation);
    QFETCH(QString, before);
    QTextDocument document;
    QTextCursor cursor = build(&document, before);
    QCOMPARE(notation(cursor), before);
    const bool atEdge = operation.endsWith("true");
    QString result;
    if (operation == "trim") {
        MRVTextCursor::trimTrailingSpaces(&cursor);
        result = notation(cursor);
    } else if (operation == "block" || operation == "separator") {
        MRVTextCursor::selectBlockUnderCursor(&cursor, operation == "separator");
        result = notation(cursor);
    } else if (operation == "image") {
        result = notation(MRVTextCursor::selectImage(cursor));
    } else {
        const bool yes = operation.startsWith("before")
            ? MRVTextCursor::hasWordBorderBefore(cursor, atEdge)
            : operation.startsWith("after") ? MRVTextCursor::hasWordBorderAfter(cursor, atEdge)
            : operation == "many"           ? MRVTextCursor::hasMultipleBlocksSelected(cursor)
                                  : MRVTextCursor::complexSelectionTable(cursor) != nullptr;
        result = yes ? "true" : "false";
    }
    QTEST(result, "result");
}

void tst_Lists::replaceText()
{
    QFETCH(QString, old);
    QFETCH(QString, formats);
    QFETCH(QString, text);
    QTextDocument document;
    QTextCursor cursor(&document);
    for (int i = 0; i < old.size(); ++i) {
        QTextImageFormat format;
        format.setProperty(MRVTextFormat::ExtraProperty4, formats.at(i).digitValue());
        if (old.at(i) == '#') {
            format.setName("image");
            cursor.insertImage(format);
        } else {
            format.clearProperty(QTextFormat::ObjectType);
            cursor.insertText(old.at(i), format);
        }
    }
    const QStringList start = documentDump(document);
    document.setModified(false);
    document.clearUndoRedoStacks();
    cursor.select(QTextCursor::Document);
    MRVTextCursor::replaceText(cursor, text);

    QCOMPARE(document.toPlainText(), QString(text).replace("\r\n", "\n"));
    QVERIFY(cursor.atEnd() && !cursor.hasSelection());
    QString result;
    for (int i = 0; i < cursor.position(); ++i) {
        QTextCursor at(&document);
        at.setPosition(i + 1);
        result += QString::number(at.charFormat().intProperty(MRVTextFormat::ExtraProperty4));
        QVERIFY(!at.charFormat().hasProperty(QTextFormat::ImageName));
    }
    QFETCH(QString, expected);
    for (int i = 0; i < result.size(); ++i) {
        if (document.characterAt(i) == QChar::ParagraphSeparator)
            result[i] = expected.at(i);
    }
    QCOMPARE(result, expected);
    QCOMPARE(document.isModified(), old != text);
    document.undo();
    QCOMPARE(documentDump(document), start);
    QVERIFY(!document.isUndoAvailable());
}

void tst_Lists::replaceTables()
{
    QTextDocument document;
    QTextCursor cursor = build(&document, "x^y{a{b}z|");
    MRVTextCursor::replaceText(cursor, "123456");
    QCOMPARE(notation(cursor), QString("x123456|"));
    QTextDocument cells;
    cursor = build(&cells, "x{^aa{bb|}z");
    MRVTextCursor::replaceText(cursor, "");
    QCOMPARE(notation(cursor), QString("x{{|}z"));
}

void tst_Lists::nulls()
{
    QTextCursor null;
    QVERIFY(MRVTextRange(1, 2).toTextCursor(nullptr).isNull());
    QCOMPARE(MRVTextRange(null), MRVTextRange());
    QVERIFY(MRVTextCursorInfo(null).charFormat.isEmpty());
    QVERIFY(MRVTextCursor::selectImage(null).isNull());
    QVERIFY(!MRVTextCursor::complexSelectionTable(null));
    QVERIFY(!MRVTextCursor::hasWordBorderBefore(null, true));
    QVERIFY(!MRVTextCursor::hasWordBorderAfter(null, true));
    QVERIFY(!MRVTextCursor::hasMultipleBlocksSelected(null));
    QVERIFY(MRVTextCursor::selectionEndCharFormat(null).isEmpty());
    MRVTextCursor::trimTrailingSpaces(nullptr);
    MRVTextCursor::trimTrailingSpaces(&null);
    MRVTextCursor::selectBlockUnderCursor(nullptr, true);
    MRVTextCursor::selectBlockUnderCursor(&null, true);
    MRVTextCursor::replaceText(null, "text");
    Levels::clearListProperties(null);
    Levels::clearListProperties(nullptr, 0);
    Levels::clearSelectedBlocksFromTextList(null);
    Levels::clearListPropertiesAndTextList(null);
    Levels::clearBlockAtPositionFromTextList(nullptr, 0);
    QTextDocument document("x");
    Levels::clearListPropertiesAndTextList(&document, 99);
}

void tst_Lists::levels()
{
    QTextListFormat format;
    QVERIFY(Levels::levels(format).isEmpty());
    QCOMPARE(Levels::leftIndent(format, 3), 0.0);
    const QList<MRVTextListLevel> two{{"%0.", 1, 36.0, 18.0}, {"*", 0, 72.0, 9.0}};
    Levels::setLevels(format, two);
    QCOMPARE(Levels::levels(format), two);
    QCOMPARE(Levels::itemText(format, 1), QString("*"));
    QCOMPARE(Levels::numberStyle(format, 0), 1);
    QCOMPARE(Levels::textIndent(format, 1), 9.0);
    QVariantList stored = format.property(MRVListLevelsProperty).toList();
    QCOMPARE(stored.at(0).typeName(), "QTextListFormat::Level");
    stored[0] = "no level";
    format.setProperty(MRVListLevelsProperty, stored);
    QVERIFY(Levels::levels(format) == QList<MRVTextListLevel>({{}, two.at(1)}));
    format.setProperty(MRVListLevelsProperty, QString("1. "));
    QVERIFY(Levels::levels(format).isEmpty());

    const MRVTextListLevel level{"a", 0, 1.0, 0.0};
    QVERIFY(level == MRVTextListLevel({"a", 0, 1.0 + 1e-14, 0.0}));
    QVERIFY(level != MRVTextListLevel({"a", 0, 1.0 + 1e-11, 0.0}));
    QVERIFY(level != MRVTextListLevel({"a", 0, 1.0, 1e-14}));
}

void tst_Lists::storedLevels()
{
    const auto withLevels = [] {
        QTextListFormat list;
        Levels::setLevels(list, {{QString::fromUtf8("■"), 0, 1.5, 2.5}});
        QTextBlockFormat format;
        format.setProperty(MRVListLevelsProperty, list.property(MRVListLevelsProperty));
        return format;
    };
    const QTextBlockFormat format = withLevels();
    QVERIFY(format == withLevels());
    const QByteArray bytes = MRVTextFormat::toByteArray(format);
    QVERIFY(bytes.contains("QTextListFormat::Level"));
    QCOMPARE(MRVTextFormat::toBlockFormat(bytes), format);
    for (int size = 0; size < bytes.size(); ++size)
        QVERIFY(MRVTextFormat::toBlockFormat(bytes.left(size)).isEmpty());
}

void tst_Lists::styles()
{
    QTextListFormat format;
    QCOMPARE(Levels::style(format), QTextListFormat::ListDisc);
    const QString texts[] = {"●", "○", "■", "%0.", "%0.", "%0.", "%0.", "%0."};
    for (int i = 0; i < 8; ++i) { // Qt counts its styles down from -1
        const auto style = QTextListFormat::Style(-1 - i);
        Levels::setStyle(format, style);
        const MRVTextListLevel level{texts[i], qMax(0, i - 2), 36.0, 18.0};
        QCOMPARE(Levels::levels(format), QList<MRVTextListLevel>{level});
        QCOMPARE(format.style(), style);
        format.clearProperty(QTextFormat::ListStyle);
        QCOMPARE(Levels::style(format), style);
    }
}

void tst_Lists::paragraphLevels_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("expected");
    const auto select = [](QTextCursor &cursor, int from, int to) {
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
    };
    const auto paste = [select](int from, int to) {
        return [=](QTextCursor &cursor) {
            select(cursor, from, to);
            const QTextDocumentFragment fragment = cursor.selection();
            cursor.movePosition(QTextCursor::End);
            cursor.insertBlock();
            cursor.insertFragment(fragment);
        };
    };
    QTest::newRow("split") << Edit([](QTextCursor &cursor) {
        cursor.setPosition(5);
        cursor.insertBlock();
    }) << "1 2 2 3 4";
    QTest::newRow("join") << Edit([](QTextCursor &cursor) {
        cursor.setPosition(7);
        cursor.deleteChar();
    }) << "1 2 4";
    QTest::newRow("remove others") << Edit([=](QTextCursor &cursor) {
        select(cursor, 0, 8);
        cursor.removeSelectedText();
    }) << "3 4";
    QTest::newRow("paste") << Edit(paste(4, 13)) << "1 2 3 4 4 2 3";
    QTest::newRow("paste a part") << Edit(paste(9, 16)) << "1 2 3 4 4 3 4";
    QTest::newRow("set") << Edit([](QTextCursor &cursor) {
        Levels::setBlockLevel(*cursor.currentList(), cursor.block(), -1);
    }) << "0 2 3 4";
    QTest::newRow("set again") << Edit([](QTextCursor &cursor) {
        Levels::setBlockLevel(*cursor.currentList(), cursor.block(), 1);
    }) << "1 2 3 4";
    QTest::newRow("convert") << Edit([](QTextCursor &cursor) {
        const QTextBlockFormat plain;
        MRVTextFormat::convertToFormat(cursor.document(), nullptr, &plain, false, false, false,
                                       false, false, false, false, {}, false, false);
    }) << "1 2 3 4";
}

void tst_Lists::paragraphLevels()
{
    QFETCH(Edit, edit);
    QTextDocument document;
    buildList(&document);
    document.clearUndoRedoStacks();
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    edit(cursor);
    cursor.endEditBlock();
    QTEST(levelsOf(document), "expected");
    QCOMPARE(document.isUndoAvailable(), levelsOf(document) != "1 2 3 4");
    document.undo();
    QCOMPARE(levelsOf(document), QString("1 2 3 4"));
    document.redo();
    QTEST(levelsOf(document), "expected");
}

void tst_Lists::wholeListLevels()
{
    QTextDocument document;
    QTextList *list = buildList(&document);
    QVERIFY(blockLevels(*list).isEmpty());
    list->setProperty("BlockLevels", 7);
    QVERIFY(blockLevels(*list).isEmpty());

    const MRVTextBlockLevelMap levels{{list->item(0), 0}, {list->item(2), 5}};
    setBlockLevels(*list, levels);
    document.undo();
    QCOMPARE(levelsOf(document), QString("1 2 3 4"));
    document.redo();
    document.setModified(false);
    setBlockLevels(*list, levels);
    QVERIFY(!document.isModified());
    QCOMPARE(levelsOf(document), QString("0 0 5 0"));
    QCOMPARE(blockLevels(*list), levels);
    QCOMPARE(list->property("BlockLevels").typeName(), "MRVTextBlockLevelMap");
    Levels::setBlockLevel(*list, list->item(3), 6);
    QCOMPARE(blockLevels(*list).values(), QList<int>({0, 5, 6}));
    // The map that is kept names a paragraph that is gone then.
    QTextCursor cursor(list->item(2));
    cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    QCOMPARE(blockLevels(*list).values(), QList<int>({0, 6}));
}

void tst_Lists::leaveList_data()
{
    QTest::addColumn<Edit>("leave");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("indent");
    QTest::addColumn<bool>("cleared");
    const auto add = [](const char *name, void (*leave)(QTextCursor &), const char *levels,
                        int indent, bool cleared) {
        QTest::newRow(name) << Edit(leave) << QString(levels) << indent << cleared;
    };
    add(
        "properties", [](QTextCursor &c) { Levels::clearListProperties(c); }, "1 - 3 4", 0, true);
    add(
        "list", [](QTextCursor &c) { Levels::clearBlockAtPositionFromTextList(c); }, "1 - 3 4", 1,
        false);
    add(
        "both", [](QTextCursor &c) { Levels::clearListPropertiesAndTextList(c); }, "1 - 3 4", 1,
        true);
    add(
        "selected", [](QTextCursor &c) { Levels::clearSelectedBlocksFromTextList(c); }, "1 - - 4",
        1, false);
}

void tst_Lists::leaveList()
{
    QFETCH(Edit, leave);
    QTextDocument document;
    QTextList *list = buildList(&document);
    QTextCursor cursor(list->item(1));
    QTextBlockFormat extra;
    extra.setProperty(MRVTextFormat::ListExtraProperty1, 1);
    extra.setProperty(MRVTextFormat::ListExtraProperty2, 2);
    cursor.mergeBlockFormat(extra);
    cursor.setPosition(9);
    cursor.setPosition(5, QTextCursor::KeepAnchor);
    const QStringList start = documentDump(document);
    document.clearUndoRedoStacks();

    leave(cursor);
    document.setModified(false);
    leave(cursor);
    QVERIFY(!document.isModified());
    QTEST(levelsOf(document), "expected");
    const QTextBlockFormat format = cursor.blockFormat();
    QTEST(format.indent(), "indent");
    QFETCH(bool, cleared);
    QCOMPARE(format.hasProperty(MRVTextFormat::ListExtraProperty1), !cleared);
    QCOMPARE(format.hasProperty(MRVTextFormat::ListExtraProperty2), !cleared);
    // A new list does not find the old level.
    cursor.setPosition(5);
    list->add(cursor.block());
    QCOMPARE(Levels::blockLevel(*list, cursor.block()), 0);
    document.undo();
    document.undo();
    QCOMPARE(documentDump(document), start);
    QVERIFY(!document.isUndoAvailable());
}

QTEST_MAIN(tst_Lists)
#include "tst_lists.moc"
