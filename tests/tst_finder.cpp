#include "datarows.h"
#include "document/mtextdoc.h"
#include "search/mrvtextfinder.h"
#include "text/mrvtextcursor.h"
#include "textformat/mrvtextformat.h"

#include <QRandomGenerator>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

using Finder = MRVTextFinder;

namespace {

MRVTextRange rangeOf(const QTextCursor &cursor)
{
    return cursor.isNull() ? MRVTextRange(-1, -1) : MRVTextRange(cursor);
}

QString written(const QTextCursor &c)
{
    return c.isNull() ? "-" : QString("%1-%2").arg(c.anchor()).arg(c.position());
}

QTextCharFormat marked(int property, const QVariant &value)
{
    QTextCharFormat format;
    format.setProperty(property, value);
    return format;
}

/// "plain [marked, *in italics*] plain|next paragraph": brackets mark, "|" ends a paragraph;
/// braces are for another comment.
void fill(QTextDocument *document, const QString &text, const QTextCharFormat &bracketed)
{
    QTextCursor cursor(document);
    QTextCharFormat format;
    for (const QChar c : text) {
        if (c == '[') {
            format = bracketed;
        } else if (c == '{') {
            format = marked(MRVTextFormat::CommentData0, "second");
        } else if (c == ']' || c == '}') {
            format = QTextCharFormat();
        } else if (c == '*' && format.fontItalic()) {
            format.clearProperty(QTextFormat::FontItalic);
        } else if (c == '*') {
            format.setFontItalic(true);
        } else if (c == '|') {
            cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
        } else {
            cursor.insertText(c, format);
        }
    }
}

/// Paragraphs, tables in tables with merged cells, and frames; each text in one of the formats.
void fillAtRandom(QTextDocument *document, QRandomGenerator *random,
                  const QVector<QTextCharFormat> &formats)
{
    QTextCursor cursor(document);
    for (int i = 0; i < 12; ++i) {
        const int kind = random->bounded(12);
        if (kind == 0) {
            QTextTable *table = cursor.insertTable(random->bounded(1, 4), random->bounded(1, 4));
            if (random->bounded(2) == 0) {
                table->mergeCells(0, 0, random->bounded(1, 3), random->bounded(1, 3));
            }
            cursor =
                table->cellAt(random->bounded(table->rows()), random->bounded(table->columns()))
                    .firstCursorPosition();
        } else if (kind == 1) {
            cursor.insertFrame(QTextFrameFormat());
        } else if (kind == 2) {
            cursor.insertBlock();
        } else if (kind == 3) {
            cursor.setPosition(random->bounded(document->characterCount()));
        } else {
            cursor.insertText(QString("ab").left(random->bounded(1, 3)),
                              formats[random->bounded(formats.size())]);
        }
    }
}

bool isText(const QTextDocument &document, int position)
{
    const ushort c = document.characterAt(position).unicode();
    return c != QChar::ParagraphSeparator && c != 0xfdd0 && c != 0xfdd1;
}

/// "x" for each character that has a property, "." for other ones and "|" for what is no text.
QString formatsOf(const QTextDocument &document, int property)
{
    QString formats;
    for (int at = 0; at + 1 < document.characterCount(); ++at) {
        QTextCursor cursor(const_cast<QTextDocument *>(&document));
        cursor.setPosition(at + 1);
        formats += !isText(document, at)                 ? '|'
            : cursor.charFormat().boolProperty(property) ? 'x'
                                                         : '.';
    }
    return formats;
}

QVector<bool> selectedBy(const QTextCursor &cursor)
{
    int row = 0, rows = 0, column = 0, columns = 0;
    cursor.selectedTableCells(&row, &rows, &column, &columns);
    QVector<bool> selected;
    for (int at = 0; at + 1 < cursor.document()->characterCount(); ++at) {
        bool isSelected = cursor.selectionStart() <= at && at < cursor.selectionEnd();
        if (cursor.hasComplexSelection()) {
            const QTextTableCell cell = cursor.currentTable()->cellAt(at);
            isSelected = cell.isValid() && cell.row() >= row && cell.row() < row + rows
                && cell.column() >= column && cell.column() < column + columns;
        }
        selected << isSelected;
    }
    return selected;
}

QVariant valueOf(const QString &text, bool asBrush)
{
    const QString value = text.mid(1);
    if (text.startsWith('c') && asBrush) {
        return value.isEmpty() ? QBrush() : QBrush(QColor(value));
    }
    if (text.startsWith('c')) {
        return QColor(value);
    }
    if (text.startsWith('f')) {
        return QTextFormat(marked(QTextFormat::FontItalic, true));
    }
    if (text.startsWith('b')) {
        return value == "1";
    }
    return text.isEmpty() ? QVariant() : text.startsWith('i') ? QVariant(value.toInt()) : value;
}

/// "3", "3-5" or nothing, as which a cursor is null.
QTextCursor cursorFrom(QTextDocument *document, const QString &range)
{
    if (range.isEmpty()) {
        return QTextCursor();
    }
    QTextCursor cursor(document);
    cursor.setPosition(range.section('-', 0, 0).toInt());
    cursor.setPosition(range.section('-', -1).toInt(), QTextCursor::KeepAnchor);
    return cursor;
}

template<typename Ranges>
QString listed(const Ranges &ranges)
{
    QStringList texts;
    for (const MRVTextRange &range : ranges) {
        texts << QString("%1-%2").arg(range.start()).arg(range.end());
    }
    return texts.join(' ');
}

/// What a call finds: its name, the cursor or position, and a word.
QString resultOf(const QString &call, QTextDocument *document)
{
    constexpr int Brush = QTextFormat::BackgroundBrush;
    constexpr auto Highlight = Finder::FindHighlight;
    const QString range = call.section(' ', 1, 1);
    const QString word = call.section(' ', 2);
    const QColor color(word);
    const QTextCharFormat highlight = marked(Brush, QBrush(color));
    const QTextCharFormat comment = marked(MRVTextFormat::CommentData0, QVariant(0));
    QTextCursor c = cursorFrom(document, range);
    const QHash<QString, std::function<QString()>> calls{
        {"fragments", [&] { return listed(Finder::findAllFragments(document, highlight, true)); }},
        {"anyFragments",
         [&] { return listed(Finder::findAllFragments(document, highlight, false)); }},
        {"within", [&] { return listed(Finder::findFragmentsByFormat(c, highlight)); }},
        {"runs", [&] { return listed(Finder::findAllRuns(document, Highlight, color)); }},
        {"count", [&] { return QString::number(Finder::formatCount(document, Brush, color)); }},
        {"length",
         [&] { return QString::number(Finder::formatLengthCount(document, Brush, color)); }},
        {"find", [&] { return written(Finder::find(c, Highlight, color)); }},
        {"findBack", [&] { return written(Finder::find(c, Highlight, color, true)); }},
        {"text", [&] { return written(Finder::findText(c, Highlight, word, {}, false)); }},
        {"textBack", [&] { return written(Finder::findText(c, Highlight, word, {}, true)); }},
        {"next", [&] { return written(Finder::findNext(c, Highlight, word, {})); }},
        {"previous", [&] { return written(Finder::findPrevious(c, Highlight, word, {})); }},
        {"address", [&] { return Finder::findAnchorFormat(c).anchorHref(); }},
        {"isLinkStart", [&] { return QString(Finder::isAnchorStart(c) ? "yes" : "no"); }},
        {"isLinkOnly", [&] { return QString(Finder::isAnchorTight(c) ? "yes" : "no"); }},
        {"hasLink", [&] { return QString(Finder::hasAnchor(c) ? "yes" : "no"); }},
        {"links", [&] { return listed(Finder::findAllAnchors(c)); }},
        {"linkCount", [&] { return QString::number(Finder::anchorsCount(c)); }},
        {"allLinkCount", [&] { return QString::number(Finder::anchorsCount(c, true)); }},
        {"linkAt", [&] { return written(Finder::anchorForCursor(c)); }},
        {"nextLink", [&] { return written(Finder::findAnchor(c)); }},
        {"wholeLink",
         [&] {
             Finder::adjustContinuousAnchorCursor(&c, word);
             return written(c);
         }},
        {"commentAt", [&] { return written(Finder::findCommentViaPos(document, range.toInt())); }},
        {"commentFrom",
         [&] { return written(Finder::findCommentViaStartPos(document, range.toInt())); }},
        {"commentIn",
         [&] {
             return written(
                 Finder::findCommentViaRange(document, c.selectionStart(), c.selectionEnd()));
         }},
        {"wholeComment",
         [&] {
             Finder::adjustContinuousCommentCursor(c);
             return written(c);
         }},
        {"nextComment",
         [&] { return written(Finder::findContinuousInspectorFragment(comment, c, false)); }},
        {"commentCount",
         [&] { return QString::number(Finder::continuousFragmentCount(comment, c, false)); }},
    };
    return calls.value(call.section(' ', 0, 0), [] { return QString("no such call"); })();
}

} // namespace

class tst_Finder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void edges_data() { addRows("finder.tsv"); }
    void edges()
    {
        QFETCH(QString, text);
        QFETCH(QString, pattern);
        QFETCH(QString, from);
        QFETCH(QString, found);
        for (QString *cell : {&text, &pattern}) {
            cell->replace("u00a0", QChar(0xa0)).replace("ufffc", QChar(0xfffc));
        }
        QTextDocument document;
        fill(&document, text, QTextCharFormat());
        const auto options = Finder::FindFlags(cell("flags").toInt());
        QCOMPARE(written(Finder::find(&document, QRegExp(pattern), from.toInt(), options)), found);
        QCOMPARE(
            written(Finder::find(&document, QRegularExpression(pattern), from.toInt(), options)),
            found);
    }

    // They are fetched in pieces, whose ends decide nothing.
    void longParagraphs()
    {
        const QString more(5000, '.');
        for (int at = 500; at < 530; ++at) {
            for (const QString &next : {QString("s"), QString(" ")}) {
                const QTextDocument after(QString(at, '.') + "cat" + next + more);
                const QTextDocument before(more + next + "cat" + QString(at, '.'));
                const bool isWord = next == " ";
                QCOMPARE(written(Finder::find(&after, "cat", 0, Finder::FindFlags(12))),
                         isWord ? QString("%1-%2").arg(at).arg(at + 3) : "-");
                QCOMPARE(written(Finder::find(&before, "cat", 5004 + at, Finder::FindFlags(13))),
                         isWord ? QString("5001-5004") : "-");
            }
        }
    }

    void emptyMatchesEnd()
    {
        QTextDocument document("axxb\nxc");
        QStringList finds;
        const QRegularExpression expression("x*");
        for (QTextCursor c;
             !(c = Finder::find(&document, expression, c)).isNull() && finds.size() < 99;) {
            finds << written(c);
        }
        QCOMPARE(finds.join(' '), QString("0-0 1-3 3-3 4-4 5-6 6-6 7-7"));
        QCOMPARE(Finder::findAll(&document, expression).size(), finds.size());
        QCOMPARE(Finder::findAll(&document, QRegExp("x*")).size(), finds.size());
    }

    void within()
    {
        QTextDocument document("cat concat\ncat cats");
        const QVector<MRVTextRange> all{{0, 3}, {7, 10}, {11, 14}, {15, 18}};
        QCOMPARE(Finder::findAll(&document, "cat"), all);
        QCOMPARE(Finder::findAll(&document, "cat", {}, {1, 17}), all.mid(1, 2));
        QCOMPARE(Finder::findAll(&document, "cat", Finder::FindWordStart, {7, 99}), all.mid(2));
        QCOMPARE(Finder::findAll(&document, QRegularExpression("\\w+"), {}, {4, 13}),
                 QVector<MRVTextRange>{MRVTextRange(4, 10)});
        QVERIFY(Finder::findAll(&document, "cat", {}, {40, 50}).isEmpty());
    }

    void calls_data() { addSteps("findercalls.tsv"); }
    void calls()
    {
        QFETCH(QStringList, steps);
        const QString mark = steps.takeFirst();
        QTextCharFormat format = mark == "comment"
            ? marked(MRVTextFormat::CommentData0, "first")
            : marked(QTextFormat::BackgroundBrush, QBrush(Qt::red));
        if (mark.startsWith("link")) {
            format = marked(QTextFormat::AnchorHref, "a.html");
            format.setAnchor(true);
        }
        if (mark == "link with a comment") {
            format.setProperty(MRVTextFormat::InspectorCommentProperty, true);
        }
        QTextDocument document;
        fill(&document, steps.takeFirst(), format);
        checkSteps(steps, [&](const QString &call) { return resultOf(call, &document); });
    }

    void kinds_data() { addRows("finderkinds.tsv"); }
    void kinds()
    {
        const auto type = Finder::FindType(cell("kind").toInt());
        const QTextCharFormat format =
            marked(cell("property").toInt(nullptr, 16), valueOf(cell("set"), true));
        QTEST(QString::number(Finder::matchFormat(format, type, valueOf(cell("sought"), false))),
              "matches");
        QVERIFY(Finder::matchFormat(format, Finder::FindFormat, QTextFormat(QTextCharFormat())));
    }

    void cursorTests()
    {
        QTextDocument document;
        const QTextCharFormat red = marked(QTextFormat::BackgroundBrush, QBrush(Qt::red));
        fill(&document, "ab[cd]|[|e*f*]g", red);
        for (const QStringList &row : rowsOf("findercursors.tsv")) {
            const QTextCursor c = cursorFrom(&document, row.at(0));
            QString text;
            for (bool is :
                 {Finder::startsWithFormat(c, red, true), Finder::isInFormat(c, red, true),
                  Finder::isFormatChecked(c, red, true), Finder::hasFormat(c, red, true)}) {
                text += is ? '1' : '0';
            }
            for (auto find :
                 {Finder::findFragmentAround, Finder::findFragmentInSelection,
                  Finder::findFragmentAtPosition, Finder::findFragmentAtPositionGeneral}) {
                text += ' ' + written(find(red, c, true));
            }
            QCOMPARE(text, row.at(1));
            // The same by the property alone.
            const int brush = QTextFormat::BackgroundBrush;
            const QVariant value = red.property(brush);
            QString byProperty;
            for (bool is : {Finder::startsWithFormatProperty(c, brush, value, true),
                            Finder::isInFormatProperty(c, brush, value, true),
                            Finder::isFormatCheckedProperty(c, brush, value, true),
                            Finder::hasFormatProperty(c, brush, value, true)}) {
                byProperty += is ? '1' : '0';
            }
            QCOMPARE(byProperty, text.section(' ', 0, 0));
            QCOMPARE(Finder::findFragmentByProperty(brush, value, c, true),
                     Finder::findFragment(red, c, true));
            QVERIFY(!Finder::hasFormatProperty(c, brush, QBrush(Qt::green), true));
        }
        QCOMPARE(rangeOf(Finder::findContinuousFragment(red, cursorFrom(&document, "7"), false)),
                 MRVTextRange(2, 8));
        QCOMPARE(Finder::continuousFragmentCount(red, QTextCursor(&document), false), 1);
        QTextCursor result;
        const QTextBlock block = document.begin();
        QVERIFY(!Finder::findInBlock(block, red, 3, result, true, false));
        QVERIFY(result.isNull());
        QVERIFY(Finder::findInBlock(block, red, 3, result, true, true));
        QCOMPARE(rangeOf(result), MRVTextRange(3, 4));
    }

    void nothing()
    {
        const QTextCursor none;
        const QTextCharFormat format;
        QTextDocument document("a)");
        QCOMPARE(written(Finder::find(&document, QRegularExpression("a)"), 0)), "-");
        QCOMPARE(written(Finder::find(nullptr, "a", none)), "-");
        QCOMPARE(written(Finder::findCommentViaPos(nullptr, 0)), "-");
        QVERIFY(Finder::findAll(nullptr, "a").isEmpty());
        QCOMPARE(Finder::formatCount(nullptr, 1, 1), 0);
        for (auto find : {Finder::findFragment, Finder::findFragmentAround,
                          Finder::findFragmentAtPositionGeneral, Finder::findFragmentInSelection}) {
            QCOMPARE(written(find(format, none, true)), "-");
        }
        for (auto is : {Finder::isInFormat, Finder::isFormatChecked, Finder::hasFormat}) {
            QVERIFY(!is(none, format, true));
        }
        QTextCursor result;
        const QTextBlock block = document.begin();
        QVERIFY(!Finder::findInBlock(QTextBlock(), QRegExp("a"), 0, {}, result));
        QVERIFY(!Finder::findInBlock(QTextBlock(), format, 0, result, true, true));
        QVERIFY(!Finder::findInBlock(block, QRegExp(), 0, {}, result));
        QVERIFY(!Finder::findInBlock(block, QRegularExpression(), 0, {}, result));
    }

    // A cursor over a cell's border selects the whole table.
    void cellsPartRuns()
    {
        QTextDocument document("pre ");
        QTextCursor cursor(&document);
        cursor.movePosition(QTextCursor::End);
        QTextTable *table = cursor.insertTable(1, 2);
        QTextCharFormat marked;
        marked.setBackground(Qt::yellow);
        table->cellAt(0, 0).firstCursorPosition().insertText("cell", marked);
        table->cellAt(0, 1).firstCursorPosition().insertText("last", marked);
        cursor.movePosition(QTextCursor::End);
        cursor.insertText("after", marked);
        const QTextCursor start(&document);
        QCOMPARE(Finder::findAllRuns(&document, Finder::FindHighlight, QVariant()).size(), 3);
        QCOMPARE(Finder::continuousFragmentCount(marked, start, true), 3);
        QTextCursor found = Finder::find(start, Finder::FindHighlight, QVariant());
        QCOMPARE(found.selectedText(), QString("cell"));
        found = Finder::find(found, Finder::FindHighlight, QVariant());
        QCOMPARE(found.selectedText(), QString("last"));
        QTextCursor back = Finder::find(cursor, Finder::FindHighlight, QVariant(), true);
        back = Finder::find(back, Finder::FindHighlight, QVariant(), true);
        QCOMPARE(back.selectedText(), QString("last"));
        QCOMPARE(Finder::findContinuousFragment(marked, found, true).selectedText(),
                 QString("after"));
    }

    // Against what Qt's cursor tells of each character.
    void selectionsAtRandom()
    {
        using F = MRVTextFormat;
        QRandomGenerator random(7);
        const QTextCharFormat comment = marked(F::InspectorCommentProperty, true);
        const QTextCharFormat inlined = marked(F::InlineFootnoteProperty, true);
        int cellSelections = 0;
        for (int i = 0; i < 1500; ++i) {
            QTextDocument document;
            fillAtRandom(&document, &random, {comment, inlined, QTextCharFormat()});
            QTextCursor cursor(&document);
            cursor.setPosition(random.bounded(document.characterCount()));
            cursor.setPosition(random.bounded(document.characterCount()), QTextCursor::KeepAnchor);
            cellSelections += cursor.hasComplexSelection();
            QString before = formatsOf(document, F::InspectorCommentProperty);
            const QString inlinedBefore = formatsOf(document, F::InlineFootnoteProperty);
            const QVector<bool> selected = selectedBy(cursor);
            int texts = 0;
            int comments = 0;
            QString expected = before;
            QString inlinedExpected = inlinedBefore;
            for (int at = 0; at < before.size(); ++at) {
                if (selected[at] && before[at] != '|') {
                    ++texts;
                    comments += before[at] == 'x';
                    expected[at] = '.';
                    inlinedExpected[at] = '.';
                }
            }
            if (!cursor.hasSelection()) {
                continue;
            }
            QCOMPARE(Finder::hasFormat(cursor, comment, true), comments > 0);
            QCOMPARE(Finder::isInFormat(cursor, comment, true), texts > 0 && comments == texts);
            if (texts > 0) {
                QCOMPARE(Finder::isFormatChecked(cursor, comment, true), comments == texts);
            }
            int found = 0;
            for (const MRVTextRange &range : Finder::findFragmentsByFormat(cursor, comment)) {
                found += range.end() - range.start();
            }
            QCOMPARE(found, comments);
            MTextDoc::clearInlinePropertiesCursor(&cursor);
            QCOMPARE(formatsOf(document, F::InlineFootnoteProperty), inlinedExpected);
            QCOMPARE(formatsOf(document, F::InspectorCommentProperty), before);
            switch (i % 3) {
            case 0:
                MTextDoc::clearCommentPropertiesCursor(&cursor);
                break;
            case 1:
                MTextDoc::removeCommentsWithinSelection(cursor, F::InspectorCommentProperty);
                break;
            default:
                MTextDoc::clearAllSelection(cursor, comment, true);
            }
            QCOMPARE(formatsOf(document, F::InspectorCommentProperty), expected);
        }
        QVERIFY(cellSelections > 100);
    }

    void noValue()
    {
        QTextDocument document("abc");
        const QTextCursor start(&document);
        QCOMPARE(
            Finder::formatCount(&document, MRVTextFormat::InlineAnnotationProperty, QVariant()), 0);
        QVERIFY(Finder::findFragmentByProperty(MRVTextFormat::InlineAnnotationProperty, QVariant(),
                                               start, false)
                    .isNull());
    }

    // Its cursors are null, and still say that they have a selection.
    void deletedDocument()
    {
        auto *document = new QTextDocument("some text");
        QTextCursor cursor(document);
        cursor.select(QTextCursor::Document);
        delete document;
        QVERIFY(cursor.hasSelection());
        QVERIFY(!Finder::hasAnchor(cursor));
        QVERIFY(Finder::findAllAnchors(cursor).isEmpty());
        QVERIFY(!MRVTextCursor::hasMultipleBlocksSelected(cursor));
    }
};

QTEST_MAIN(tst_Finder)
#include "tst_finder.moc"
