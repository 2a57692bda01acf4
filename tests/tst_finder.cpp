#include "datarows.h"
#include "search/mrvtextfinder.h"
#include "text/mrvtextcursor.h"
#include "textformat/mrvtextformat.h"

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

/// "plain [marked] plain|next paragraph": brackets mark, "|" ends a paragraph.
void fill(QTextDocument *document, const QString &text, const QTextCharFormat &marked)
{
    QTextCursor cursor(document);
    QTextCharFormat format;
    for (const QChar c : text) {
        if (c == '[') {
            format = marked;
        } else if (c == ']') {
            format = QTextCharFormat();
        } else if (c == '|') {
            cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
        } else {
            cursor.insertText(c, format);
        }
    }
}

QTextCharFormat marked(int property, const QVariant &value)
{
    QTextCharFormat format;
    format.setProperty(property, value);
    return format;
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

} // namespace

class tst_Finder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void edges_data() { addRows("finder.tsv", {"text", "pattern", "from", "flags", "found"}); }
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

    // Of two fragments that differ otherwise, and one on its own.
    void formats()
    {
        const int brush = QTextFormat::BackgroundBrush;
        const QBrush red(Qt::red);
        const QTextCharFormat pattern = marked(brush, red);
        QTextDocument document;
        fill(&document, "a[bcd|]e[f]g", pattern);
        QTextCursor c(&document);
        c.setPosition(3);
        c.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor);
        c.mergeCharFormat(marked(QTextFormat::FontItalic, true));
        const QVector<MRVTextRange> fragments{{1, 3}, {3, 4}, {6, 7}};
        QCOMPARE(Finder::findAllFragments(&document, pattern, true), fragments);
        QVERIFY(
            Finder::findAllFragments(&document, marked(brush, QBrush(Qt::blue)), true).isEmpty());
        QCOMPARE(Finder::findAllFragments(&document, marked(brush, QBrush(Qt::blue)), false),
                 fragments);
        const QVector<MRVTextRange> runs{{1, 4}, {6, 7}};
        QCOMPARE(Finder::findAllRuns(&document, Finder::FindHighlight, QColor(Qt::red)), runs);
        QCOMPARE(Finder::formatCount(&document, brush, red), 3);
        QCOMPARE(Finder::formatLengthCount(&document, brush, red), 4);
        c.setPosition(2);
        c.setPosition(7, QTextCursor::KeepAnchor);
        QCOMPARE(Finder::findFragmentsByFormat(c, pattern),
                 QList<MRVTextRange>({{2, 3}, {3, 4}, {6, 7}}));
        c.setPosition(5);
        QCOMPARE(rangeOf(Finder::find(c, Finder::FindHighlight, QColor(Qt::red))), runs.last());
        QCOMPARE(rangeOf(Finder::find(c, Finder::FindHighlight, QColor(Qt::red), true)),
                 runs.first());
        QVERIFY(Finder::find(c, Finder::FindHighlight, QColor(Qt::blue)).isNull());
    }

    void kinds_data()
    {
        addRows("finderkinds.tsv", {"kind", "property", "set", "sought", "matches"});
    }
    void kinds()
    {
        const auto type = Finder::FindType(cell("kind").toInt());
        const QTextCharFormat format =
            marked(cell("property").toInt(nullptr, 16), valueOf(cell("set"), true));
        QTEST(QString::number(Finder::matchFormat(format, type, valueOf(cell("sought"), false))),
              "matches");
        QVERIFY(Finder::matchFormat(format, Finder::FindFormat, QTextFormat(QTextCharFormat())));
    }

    void runsWithText()
    {
        QTextDocument document;
        fill(&document, "[one] two [tWo\u00a0b]|[three||]x[two]",
             marked(QTextFormat::BackgroundBrush, QBrush(Qt::red)));
        const auto find = [&](int at, const QString &text, bool backward) {
            QTextCursor c(&document);
            c.setPosition(at);
            return rangeOf(Finder::findText(c, Finder::FindHighlight, text, QVariant(), backward));
        };
        QCOMPARE(find(0, "two", false), MRVTextRange(8, 19));
        QCOMPARE(find(0, "TWO B", false), MRVTextRange(8, 19));
        QCOMPARE(find(0, "e two", false), MRVTextRange(-1, -1)); // reaches out of the run
        QCOMPARE(find(9, "", false), MRVTextRange(22, 25));
        QCOMPARE(find(25, "one", true), MRVTextRange(0, 3));
        QTextCursor end(&document);
        end.movePosition(QTextCursor::End);
        QCOMPARE(rangeOf(Finder::findPrevious(end, Finder::FindHighlight, "tWo", QVariant())),
                 MRVTextRange(22, 25));
        QCOMPARE(rangeOf(Finder::findNext(QTextCursor(&document), Finder::FindHighlight, "t", {})),
                 MRVTextRange(8, 19));
    }

    void cursorTests()
    {
        QTextDocument document;
        const QTextCharFormat red = marked(QTextFormat::BackgroundBrush, QBrush(Qt::red));
        fill(&document, "ab[cd]|[|ef]g", red);
        QTextCursor bold(&document);
        bold.setPosition(7);
        bold.setPosition(8, QTextCursor::KeepAnchor);
        bold.mergeCharFormat(marked(QTextFormat::FontItalic, true));
        const auto at = [&](int anchor, int position) {
            QTextCursor c(&document);
            c.setPosition(anchor);
            c.setPosition(position, QTextCursor::KeepAnchor);
            return c;
        };
        for (const QStringList &row : rowsOf("findercursors.tsv")) {
            const QTextCursor c = at(row.at(0).toInt(), row.at(1).toInt());
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
            QCOMPARE(text, row.at(2));
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
        QCOMPARE(rangeOf(Finder::findContinuousFragment(red, at(7, 7), false)), MRVTextRange(2, 8));
        QCOMPARE(Finder::continuousFragmentCount(red, at(0, 0), false), 1);
        QTextCursor result;
        const QTextBlock block = document.begin();
        QVERIFY(!Finder::findInBlock(block, red, 3, result, true, false));
        QVERIFY(result.isNull());
        QVERIFY(Finder::findInBlock(block, red, 3, result, true, true));
        QCOMPARE(rangeOf(result), MRVTextRange(3, 4));
    }

    void links()
    {
        QTextDocument document;
        QTextCharFormat link = marked(QTextFormat::AnchorHref, "a.html");
        link.setAnchor(true);
        fill(&document, "a[bc|de]f", link);
        QTextCursor c(&document);
        c.setPosition(5);
        c.setPosition(6, QTextCursor::KeepAnchor);
        c.mergeCharFormat(marked(QTextFormat::FontItalic, true));
        const MRVTextRange whole(1, 6);
        QCOMPARE(Finder::findAnchorFormat(c).anchorHref(), QString("a.html"));
        QVERIFY(!Finder::findAnchorFormat(QTextCursor(&document)).isAnchor());
        QVERIFY(Finder::isAnchorStart(c));
        QVERIFY(Finder::isAnchorTight(c));
        QCOMPARE(Finder::findAllAnchors(c), QList<MRVTextRange>{whole});
        c.setPosition(3);
        QVERIFY(!Finder::isAnchorStart(c)); // a paragraph end; the link goes on behind it
        QVERIFY(!Finder::isAnchorTight(c));
        QVERIFY(Finder::hasAnchor(c));
        QCOMPARE(rangeOf(Finder::anchorForCursor(c)), whole);
        Finder::adjustContinuousAnchorCursor(&c, "b.html");
        QCOMPARE(rangeOf(c), MRVTextRange(3, 3));
        Finder::adjustContinuousAnchorCursor(&c, "a.html");
        QCOMPARE(rangeOf(c), whole);
        QVERIFY(Finder::findAnchor(c).isNull());
        c.setPosition(0);
        QCOMPARE(rangeOf(Finder::findAnchor(c)), whole);
        QVERIFY(!Finder::hasAnchor(c));
        c.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        QCOMPARE(Finder::anchorsCount(c), 1);
        c.mergeCharFormat(marked(MRVTextFormat::InspectorCommentProperty, true));
        QCOMPARE(Finder::anchorsCount(c, false), 0);
        QCOMPARE(Finder::anchorsCount(c, true), 1);
    }

    void comments()
    {
        QTextDocument document;
        QTextCharFormat comment = marked(MRVTextFormat::CommentData0, "first");
        fill(&document, "a[bc|de]f", comment);
        QTextCursor c(&document);
        c.setPosition(4);
        c.setPosition(5, QTextCursor::KeepAnchor);
        c.mergeCharFormat(marked(QTextFormat::FontItalic, true));
        c.setPosition(6);
        c.setPosition(7, QTextCursor::KeepAnchor);
        c.setCharFormat(marked(MRVTextFormat::CommentData0, "second"));
        QStringList found;
        for (int pos = -1; pos < 9; ++pos) {
            found << QString::number(rangeOf(Finder::findCommentViaPos(&document, pos)).start());
        }
        QCOMPARE(found.join(' '), QString("-1 -1 1 1 -1 1 1 6 -1 -1"));
        QCOMPARE(rangeOf(Finder::findCommentViaPos(&document, 4)), MRVTextRange(1, 6));
        QCOMPARE(rangeOf(Finder::findCommentViaRange(&document, 3, 9)), MRVTextRange(1, 6));
        QVERIFY(Finder::findCommentViaRange(&document, 0, 1).isNull());
        QVERIFY(Finder::findCommentViaStartPos(&document, 2).isNull());
        QCOMPARE(rangeOf(Finder::findCommentViaStartPos(&document, 6)), MRVTextRange(6, 7));
        c.setPosition(5);
        Finder::adjustContinuousCommentCursor(c);
        QCOMPARE(rangeOf(c), MRVTextRange(1, 6));
        const QTextCharFormat any = marked(MRVTextFormat::CommentData0, QVariant(0));
        c.setPosition(0);
        QCOMPARE(rangeOf(Finder::findContinuousInspectorFragment(any, c, false)),
                 MRVTextRange(1, 6));
        c.setPosition(0);
        QCOMPARE(Finder::continuousFragmentCount(any, c, false), 2);
    }

    void nothing()
    {
        const QTextCursor none;
        const QTextCharFormat format;
        QTextDocument document("a)");
        for (const QTextCursor &c :
             {Finder::find(nullptr, "a", none),
              Finder::find(&document, QRegularExpression("a)"), 0),
              Finder::find(none, Finder::FindLink, 3), Finder::findFragment(format, none, true),
              Finder::findFragmentAround(format, none, true),
              Finder::findFragmentAtPositionGeneral(format, none, true),
              Finder::findFragmentInSelection(format, none, true), Finder::findAnchor(none),
              Finder::findCommentViaPos(nullptr, 0)}) {
            QVERIFY(c.isNull());
        }
        QTextCursor result;
        for (bool is :
             {Finder::isInFormat(none, format, true), Finder::isFormatChecked(none, format, true),
              Finder::hasFormat(none, format, true), Finder::hasAnchor(none),
              Finder::isAnchorTight(none),
              Finder::findInBlock(QTextBlock(), QRegExp("a"), 0, {}, result),
              Finder::findInBlock(QTextBlock(), format, 0, result, true, true),
              Finder::findInBlock(document.begin(), QRegExp(), 0, {}, result),
              Finder::findInBlock(document.begin(), QRegularExpression(), 0, {}, result)}) {
            QVERIFY(!is);
        }
        QVERIFY(Finder::findAll(nullptr, "a").isEmpty());
        QVERIFY(Finder::findFragmentsByFormat(none, format).isEmpty());
        QCOMPARE(Finder::continuousFragmentCount(format, none, true)
                     + Finder::formatCount(nullptr, 1, 1),
                 0);
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
