#include "datarows.h"
#include "document/mtextdoc.h"
#include "documentdump.h"
#include "textformat/mrvtextformat.h"

#include <QBrush>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>
#include <QtTest>

#include <ctime>
#include <functional>
#include <utility>

namespace {

const QPair<QString, int> keys[] = {
    {"annotation", MRVTextFormat::InlineAnnotationProperty},
    {"footnote", MRVTextFormat::InlineFootnoteProperty},
    {"comment", MRVTextFormat::InspectorCommentProperty},
    {"inspected", MRVTextFormat::InspectorFootnoteProperty},
    {"data", MRVTextFormat::CommentData0},
    {"data1", MRVTextFormat::CommentData1},
    {"data2", MRVTextFormat::CommentData2},
    {"link", QTextFormat::IsAnchor},
    {"href", QTextFormat::AnchorHref},
    {"name", QTextFormat::AnchorName},
    {"align", QTextFormat::TextVerticalAlignment},
    {"bold", QTextFormat::FontWeight},
    {"color", QTextFormat::ForegroundBrush},
    {"back", QTextFormat::BackgroundBrush},
};

/// A character format as "key=value" separated by commas; a mark is "key" where true.
QTextCharFormat formatOf(const QString &text)
{
    QTextCharFormat format;
    for (const auto &[key, property] : keys) {
        for (const QString &item : text.split(',')) {
            QVariant value = item.section('=', 1);
            if (item == key) {
                value = true;
            } else if (key == "align" || key == "bold") {
                value = value.toInt();
            } else if (item.contains("=#")) {
                value = QBrush(QColor(value.toString()));
            }
            if (item.section('=', 0, 0) == key) {
                format.setProperty(property, value);
            }
        }
    }
    return format;
}

QString textOf(const QTextCharFormat &format)
{
    QStringList items;
    for (const auto &[key, property] : keys) {
        const QVariant value = format.property(property);
        const QString text = value.userType() == QMetaType::QBrush
            ? value.value<QBrush>().color().name()
            : value.toString();
        if (value.isValid()) {
            items << (value.type() == QVariant::Bool ? key : key + '=' + text);
        }
    }
    return items.join(',');
}

/// A document from HTML, or from text with "{format}" in front of the runs, "|" at paragraph ends,
/// "[a|b]" for a table of one row, "*" for an image, "(n)" for the page break policy n of a
/// paragraph.
void build(QTextDocument *document, const QString &text)
{
    const bool html = text.startsWith('<');
    document->setHtml(html ? text : QString());
    QTextCursor cursor(document);
    QTextCharFormat format;
    for (int i = html ? text.size() : 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const QString inside = text.mid(i + 1).section(QRegExp("[)}]"), 0, 0);
        QTextBlockFormat policy;
        policy.setPageBreakPolicy(QTextFormat::PageBreakFlag(inside.toInt()));
        if (c == '{') {
            format = formatOf(inside);
        } else if (c == '(') {
            cursor.setBlockFormat(policy);
        } else if (c == '[') {
            cursor.insertTable(1, text.mid(i).section(']', 0, 0).count('|') + 1);
        } else if (c == ']' || (c == '|' && cursor.currentTable())) {
            cursor.movePosition(QTextCursor::NextBlock);
        } else if (c == '|') {
            cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
        } else if (c == '*') {
            cursor.insertImage("picture");
        } else {
            cursor.insertText(c, format);
        }
        if (c == '{' || c == '(') {
            i += inside.size() + 1;
        }
    }
    document->clearUndoRedoStacks();
}

QString dump(const QTextDocument &document)
{
    QString text, last;
    bool wasTable = false;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const bool isTable = QTextCursor(block).currentTable();
        if (block != document.begin()) {
            text += isTable == wasTable ? '|' : isTable ? '[' : ']';
        }
        wasTable = isTable;
        text += block.textList() ? "- " : "";
        if (block.blockFormat().hasProperty(QTextFormat::PageBreakPolicy)) {
            text += QString("(%1)").arg(int(block.blockFormat().pageBreakPolicy()));
        }
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            if (std::exchange(last, textOf(format)) != textOf(format)) {
                text += '{' + last + '}';
            }
            text += it.fragment().text().replace(QChar::ObjectReplacementCharacter,
                                                 format.isImageFormat() ? '*' : '?');
        }
    }
    return text;
}

/// Calls the operation of this name with its arguments as texts. False for an unknown name.
bool call(const QString &name, QTextDocument *d, const QString &question, const QString &b)
{
    const bool equal = !question.endsWith('?'); // else a property need only be there
    const QString a = question.section('?', 0, 0);
    const QTextCharFormat format = formatOf(a);
    const int property = format.isEmpty() ? 0 : format.properties().firstKey();
    const QVariant value = format.property(property);
    QTextCursor cursor; // from the first of two positions to the second
    if (d) {
        cursor = QTextCursor(d);
        cursor.setPosition(b.section('-', 0, 0).toInt());
        cursor.setPosition(b.section('-', 1, 1).toInt(), QTextCursor::KeepAnchor);
    }
    using M = MTextDoc;
    // clang-format off
    const QHash<QString, std::function<void()>> operations{
        {"removeComments", [&] { M::removeComments(d, property); }},
        {"removeInspectorComments", [&] { M::removeInspectorComments(d); }},
        {"removeInspectorFootnotes", [&] { M::removeInspectorFootnotes(d); }},
        {"removeInspectorCommentsAndFootnotes", [&] { M::removeInspectorCommentsAndFootnotes(d); }},
        {"removeCommentsWithinSelection", [&] { M::removeCommentsWithinSelection(cursor, property); }},
        {"clearCommentPropertiesCursor", [&] { M::clearCommentPropertiesCursor(&cursor); }},
        {"clearInlinePropertiesCursor", [&] { M::clearInlinePropertiesCursor(&cursor); }},
        {"removeAnnotations", [&] { M::removeAnnotations(d); }},
        {"removeInlineFootnotes", [&] { M::removeInlineFootnotes(d); }},
        {"inlineAnnotationsToText", [&] { M::inlineAnnotationsToText(d); }},
        {"inlineFootnotesToText", [&] { M::inlineFootnotesToText(d); }},
        {"clearHyperlinks", [&] { M::clearHyperlinks(d); }},
        {"clearMorvaneLinks", [&] { M::clearMorvaneLinks(d); }},
        {"clearTextColor", [&] { M::clearTextColor(d); }},
        {"setTextColor", [&] { M::setTextColor(d, QColor(a)); }},
        {"clearHighlighting", [&] { M::clearHighlighting(d); }},
        {"clearAll", [&] { M::clearAll(d, format, equal); }},
        {"clearAllProperty", [&] { M::clearAllProperty(d, property, value, equal); }},
        {"clearBold", [&] { M::clearAllProperty(d, QTextFormat::FontWeight, QVariant(), equal); }},
        {"clearAllSelection", [&] { M::clearAllSelection(cursor, format, equal); }},
        {"replaceAll", [&] { M::replaceAll(d, format, formatOf(b), equal); }},
        {"normalizePageBreaks", [&] { M::normalizePageBreaks(d); }},
        {"tablesToText", [&] { M::tablesToText(d); }},
        {"nestedTablesToText", [&] { M::nestedTablesToText(d, a.toInt()); }},
        {"copyBlockFormat", [&] { M::setBlockFormatByBlockNumber(d, a.toInt(), M::blockFormatByBlockNumber(d, b.toInt())); }},
        {"setCharFormat", [&] { M::setCharFormatByBlockNumber(d, a.toInt(), formatOf(b)); }},
    };
    // clang-format on
    if (operations.contains(name)) {
        operations.value(name)();
    }
    return operations.contains(name);
}

} // namespace

class TestNotes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void operations_data() { addRows("notes.tsv"); }
    void operations()
    {
        QFETCH(QString, name);
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(QString, before);
        QFETCH(QString, after);
        QVERIFY(call(name, nullptr, a, b));
        QTextDocument document;
        build(&document, before);
        const QStringList start = documentDump(document);
        QVERIFY(before.startsWith('<') || dump(document) == before);

        call(name, &document, a, b);
        const QStringList end = documentDump(document);
        QCOMPARE(dump(document), after == "same" ? before : after);
        QCOMPARE(document.isUndoAvailable(), after != "same");
        document.undo();
        QCOMPARE(documentDump(document), start);
        QVERIFY(!document.isUndoAvailable());
        document.redo();
        QCOMPARE(documentDump(document), end);
    }

    // Without a selection nothing changes, but the next text has no marks.
    void typedAfterLinks_data()
    {
        // In "nab", of which "ab" is a link, and "c", which is one, too.
        QTest::addColumn<int>("caret");
        QTest::addColumn<bool>("isInNote");
        QTest::addColumn<bool>("isBold"); // what the user has just chosen
        QTest::addColumn<QString>("looks"); // of what is typed
        QTest::newRow("before") << 1 << false << false << "note";
        QTest::newRow("within") << 2 << false << true << "link bold";
        QTest::newRow("after") << 3 << false << false << "";
        QTest::newRow("after, in a note") << 3 << true << false << "note";
        QTest::newRow("after, chosen") << 3 << false << true << "bold";
        QTest::newRow("beginning") << 4 << false << false << "";
        QTest::newRow("end") << 5 << false << false << "";
    }
    // It is no part of the link, nor of the note before it.
    void typedAfterLinks()
    {
        QFETCH(int, caret);
        QFETCH(bool, isInNote);
        QFETCH(bool, isBold);
        QTextCharFormat note;
        note.setProperty(MRVTextFormat::InlineFootnoteProperty, true);
        QTextCharFormat link = isInNote ? note : QTextCharFormat();
        link.setAnchor(true);
        link.setAnchorHref("a");
        QTextDocument document;
        QTextCursor cursor(&document);
        cursor.insertText("n", note);
        cursor.insertText("ab", link);
        cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
        cursor.insertText("c", link);
        cursor.setPosition(caret);
        if (isBold) {
            QTextCharFormat bold = cursor.charFormat();
            bold.setFontWeight(QFont::Bold);
            cursor.setCharFormat(bold);
        }
        MTextDoc::leaveLink(&cursor);
        cursor.insertText("x");
        const QTextCharFormat typed = cursor.charFormat();
        QStringList looks;
        looks << (typed.boolProperty(MRVTextFormat::InlineFootnoteProperty) ? "note" : "")
              << (typed.isAnchor() ? "link" : "")
              << (typed.fontWeight() == QFont::Bold ? "bold" : "");
        looks.removeAll(QString());
        QCOMPARE(looks.join(' '), cell("looks"));
    }

    void typedText()
    {
        QTextDocument document;
        build(&document, "{annotation,comment,href=x,bold=75}a");
        QTextCursor cursor(&document);
        cursor.movePosition(QTextCursor::End);
        MTextDoc::clearCommentPropertiesCursor(&cursor);
        QVERIFY(!document.isUndoAvailable());
        cursor.insertText("b");
        MTextDoc::clearInlinePropertiesCursor(&cursor);
        cursor.insertText("c");
        QCOMPARE(dump(document),
                 QString("{annotation,comment,href=x,bold=75}a{annotation,bold=75}b{bold=75}c"));
    }

    void invisibles()
    {
        QTextDocument document;
        QTextOption option;
        option.setFlags(QTextOption::ShowTabsAndSpaces | QTextOption::SuppressColors);
        document.setDefaultTextOption(option);
        const auto flags = [&](bool show) {
            MTextDoc::showInvisibles(&document, show);
            return int(document.defaultTextOption().flags());
        };
        QVERIFY(!MTextDoc::invisiblesShown(document));
        QCOMPARE(flags(false), int(option.flags()));
        QCOMPARE(flags(true), int(option.flags() | QTextOption::ShowLineAndParagraphSeparators));
        QVERIFY(MTextDoc::invisiblesShown(document));
        QCOMPARE(flags(false), int(QTextOption::SuppressColors));
        MTextDoc::clearDefaultTextOptionFlags(&document);
        QCOMPARE(flags(false), 0);
    }

    // A cell that covers many places, with a table in it that has such a cell, and so on.
    void nestedTablesToText()
    {
        const auto clocks = [](int levels) {
            QTextDocument document;
            QTextCursor cursor(&document);
            for (int i = 0; i < levels; ++i) {
                QTextTable *table = cursor.insertTable(4, 4);
                table->mergeCells(0, 0, 4, 4);
                cursor = table->cellAt(0, 0).firstCursorPosition();
            }
            cursor.insertText(QString("text\n").repeated(200));
            const std::clock_t start = std::clock(); // of this process alone
            MTextDoc::tablesToText(&document);
            const double taken = std::clock() - start;
            return document.rootFrame()->childFrames().isEmpty() ? taken : -1;
        };
        const double small = clocks(3);
        QVERIFY(small > 0);
        const double growth = clocks(6) / small;
        QVERIFY2(growth > 0, "a table is left");
        QVERIFY2(growth < 16, qPrintable(QString::number(growth)));
    }

    void numbersAndFinds()
    {
        QTextDocument document;
        build(&document, "a|{bold=75}b{bold=60}c{bold=75}d|(1){}");
        QCOMPARE(MTextDoc::blockFormatByBlockNumber(&document, 3), QTextBlockFormat());
        QCOMPARE(textOf(MTextDoc::charFormatByBlockNumber(&document, 1)), QString("bold=75"));
        for (int none : {-1, 2, 3}) {
            QVERIFY(MTextDoc::charFormatByBlockNumber(&document, none).isEmpty());
        }
        QCOMPARE(
            MTextDoc::continuousFragmentCount(formatOf("bold=75"), QTextCursor(&document), true),
            2);
        const QTextBlock block = document.findBlockByNumber(1);
        QTextCursor cursor;
        QVERIFY(MTextDoc::findInBlock(block, formatOf("bold=75"), 1, cursor, true));
        QCOMPARE(cursor.selectedText(), QString("d"));
        QVERIFY(MTextDoc::findInBlock(block, formatOf("bold=75"), 1, cursor, false));
        QCOMPARE(cursor.selectedText(), QString("c"));
        QVERIFY(!MTextDoc::findInBlock(block, formatOf("bold=75"), 3, cursor, true));
    }
};

QTEST_MAIN(TestNotes)
#include "tst_notes.moc"
