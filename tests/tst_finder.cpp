#include "datarows.h"
#include "search/mrvtextfinder.h"
#include "text/mrvtextcursor.h"
#include "textformat/mrvtextformat.h"

#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>

#include <random>

using Finder = MRVTextFinder;

namespace {

// The rules of the search, read as slowly as they are written.

bool naiveInBlock(const QTextBlock &block, QRegExp expression, int offset, int flags,
                  MRVTextRange *found)
{
    QString text = block.text();
    text.replace(QChar(0xfffc), ' ').replace(QChar(0xa0), ' ');
    while (offset >= 0 && offset <= text.size()) {
        const int at =
            flags & 1 ? expression.lastIndexIn(text, offset) : expression.indexIn(text, offset);
        if (at < 0) {
            return false;
        }
        const int end = at + expression.matchedLength();
        const bool before = at > 0 && text.at(at - 1).isLetterOrNumber();
        const bool after = end < text.size() && text.at(end).isLetterOrNumber();
        if (!((flags & 4) && before) && !((flags & 8) && after)) {
            *found = MRVTextRange(block.position() + at, block.position() + end);
            return true;
        }
        offset = flags & 1 ? at - 1 : end + 1;
    }
    return false;
}

MRVTextRange naiveFind(const QTextDocument &document, const QRegExp &expression, int from,
                       int flags)
{
    MRVTextRange found(-1, -1);
    const int start = flags & 1 ? from - 1 : from;
    QTextBlock block = document.findBlock(start);
    if (start < 0 || expression.isEmpty() || !block.isValid()) {
        return found;
    }
    int offset = start - block.position();
    while (block.isValid() && !naiveInBlock(block, expression, offset, flags, &found)) {
        block = flags & 1 ? block.previous() : block.next();
        offset = flags & 1 ? block.length() - 1 : 0;
    }
    return found;
}

/// What one find after the other gives; behind an empty one a character further.
QVector<MRVTextRange> naiveFindAll(const QTextDocument &document, const QRegExp &expression,
                                   int flags)
{
    QVector<MRVTextRange> all;
    for (int from = 0;;) {
        const MRVTextRange found = naiveFind(document, expression, from, flags & ~1);
        if (found.start() < 0) {
            return all;
        }
        all << found;
        from = found.end() > found.start() ? found.end() : found.end() + 1;
    }
}

MRVTextRange rangeOf(const QTextCursor &cursor)
{
    return cursor.isNull() ? MRVTextRange(-1, -1) : MRVTextRange(cursor);
}

QString written(const QTextCursor &c)
{
    return c.isNull() ? "-" : QString("%1-%2").arg(c.anchor()).arg(c.position());
}

/// Texts of few different characters, so that patterns of the same ones often match.
QString randomText(std::mt19937 &random, int length)
{
    static const QString alphabet = QString::fromUtf8(
        "aaabbAB12  .,-\u00e9\u00c9\u03c3\u03c2\u03a3\u0130i\u017fsK\u212a\u00a0\ufffc\U00010400");
    QString text;
    while (length-- > 0) {
        text += alphabet.at(int(random() % unsigned(alphabet.size())));
    }
    return text;
}

void randomDocument(std::mt19937 &random, QTextDocument *document)
{
    QTextCursor cursor(document);
    for (int run = int(random() % 25); run > 0; --run) {
        QTextCharFormat format;
        if (random() % 2) {
            format.setBackground(random() % 2 ? Qt::red : Qt::green);
        }
        if (random() % 4 == 0) {
            format.setFontItalic(true);
        }
        cursor.insertText(randomText(random, int(random() % 8)), format);
        if (random() % 4 == 0) {
            cursor.insertBlock();
        }
    }
}

/// One long paragraph and short ones around it.
void longDocument(std::mt19937 &random, QTextDocument *document)
{
    QTextCursor cursor(document);
    cursor.insertText(randomText(random, 40) + '\n' + QString(9000, 'x') + randomText(random, 300)
                      + QString(3000, 'y') + "aab" + '\n' + randomText(random, 40));
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
    void textLikeTheRules_data();
    void textLikeTheRules();
    void edges_data() { addRows("finder.tsv", {"text", "pattern", "from", "flags", "found"}); }
    void edges();
    void emptyMatchesEnd();
    void within();
    void formatsLikeTheRules();
    void kinds_data()
    {
        addRows("finderkinds.tsv", {"kind", "property", "set", "sought", "matches"});
    }
    void kinds();
    void runsWithText();
    void cursorTests();
    void links();
    void comments();
    void nothing();
    void cellsPartRuns();
    void noValue();
    void deletedDocument();
};

void tst_Finder::textLikeTheRules_data()
{
    QTest::addColumn<int>("flags");
    for (int flags = 0; flags < 16; ++flags) {
        QTest::addRow("flags-%d", flags) << flags;
    }
}

void tst_Finder::textLikeTheRules()
{
    QFETCH(int, flags);
    static const char *expressions[] = {"a+",     "\\w+",   "[ab]\\b", "^a",     "b$",  "a*",
                                        "(a|b)1", "\\s\\S", "[^a]a",   "\\d\\d", "x*y", "a.b"};
    std::mt19937 random(unsigned(flags) + 1);
    for (int round = 0; round < 150; ++round) {
        QTextDocument document;
        round % 50 ? randomDocument(random, &document) : longDocument(random, &document);
        const int from = int(random() % unsigned(document.characterCount() + 3)) - 1;
        const QString text = randomText(random, 1 + int(random() % 3));
        const QRegExp literal(text, flags & 2 ? Qt::CaseSensitive : Qt::CaseInsensitive,
                              QRegExp::FixedString);
        const auto options = Finder::FindFlags(flags);
        const QString pattern = expressions[random() % std::size(expressions)];
        const QByteArray what = QString("%1 or %2 in %3 from %4")
                                    .arg(text, pattern, document.toPlainText())
                                    .arg(from)
                                    .toUtf8();
        QVERIFY2(rangeOf(Finder::find(&document, text, from, options))
                     == naiveFind(document, literal, from, flags),
                 what);
        QVERIFY2(Finder::findAll(&document, text, options)
                     == naiveFindAll(document, literal, flags),
                 what);
        const QRegExp expression(pattern, literal.caseSensitivity());
        const MRVTextRange expected = naiveFind(document, expression, from, flags);
        const QVector<MRVTextRange> all = naiveFindAll(document, expression, flags);
        QVERIFY2(rangeOf(Finder::find(&document, expression, from, options)) == expected, what);
        QVERIFY2(Finder::findAll(&document, expression, options) == all, what);
        if (document.toPlainText().contains(QChar(0xd801))) {
            continue; // half a character, a whole one for the other kind
        }
        const QRegularExpression other(pattern,
                                       QRegularExpression::PatternOptions(flags & 2 ? 0 : 1));
        QVERIFY2(rangeOf(Finder::find(&document, other, from, options)) == expected, what);
        QVERIFY2(Finder::findAll(&document, other, options) == all, what);
    }
}

void tst_Finder::edges()
{
    QFETCH(QString, text);
    QFETCH(QString, pattern);
    QFETCH(QString, from);
    QFETCH(QString, flags);
    QFETCH(QString, found);
    for (QString *cell : {&text, &pattern}) {
        cell->replace("u00a0", QChar(0xa0)).replace("ufffc", QChar(0xfffc));
    }
    QTextDocument document;
    fill(&document, text, QTextCharFormat());
    const auto options = Finder::FindFlags(flags.toInt());
    QCOMPARE(written(Finder::find(&document, QRegExp(pattern), from.toInt(), options)), found);
    QCOMPARE(written(Finder::find(&document, QRegularExpression(pattern), from.toInt(), options)),
             found);
}

void tst_Finder::emptyMatchesEnd()
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

void tst_Finder::within()
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

void tst_Finder::formatsLikeTheRules()
{
    std::mt19937 random(7);
    const QBrush red(Qt::red);
    const int brush = QTextFormat::BackgroundBrush;
    const QTextCharFormat pattern = marked(brush, red);
    for (int round = 0; round < 500; ++round) {
        QTextDocument document;
        randomDocument(random, &document);
        const bool values = round % 2;
        const auto carries = [&](const QTextCharFormat &format) {
            return values ? format.background() == red : format.hasProperty(brush);
        };
        QVector<MRVTextRange> fragments;
        QVector<MRVTextRange> runs;
        bool inRun = false;
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            for (auto it = block.begin(); !it.atEnd(); ++it) {
                const int start = it.fragment().position();
                const int end = start + it.fragment().length();
                const bool wasInRun = inRun;
                inRun = carries(it.fragment().charFormat());
                if (inRun) {
                    fragments << MRVTextRange(start, end);
                    runs << MRVTextRange(wasInRun ? runs.takeLast().start() : start, end);
                }
            }
        }
        QCOMPARE(Finder::findAllFragments(&document, pattern, values), fragments);
        QVector<MRVTextRange> one;
        QTextCursor c(&document);
        for (; !(c = Finder::findFragment(pattern, c, values)).isNull();) {
            one << MRVTextRange(c);
        }
        QCOMPARE(one, fragments);
        const QVariant value = values ? QVariant(QColor(Qt::red)) : QVariant();
        QCOMPARE(Finder::findAllRuns(&document, Finder::FindHighlight, value), runs);

        const int last = document.characterCount() - 1;
        const MRVTextRange selection(int(random() % unsigned(last + 1)),
                                     int(random() % unsigned(last + 1)));
        MRVTextRange next(-1, -1);
        MRVTextRange previous(-1, -1);
        for (const MRVTextRange &run : runs) {
            if (run.start() >= selection.end() && next.start() < 0) {
                next = run;
            }
            if (run.end() <= selection.start()) {
                previous = run;
            }
        }
        c = selection.toTextCursor(&document);
        QCOMPARE(rangeOf(Finder::find(c, Finder::FindHighlight, value)), next);
        QCOMPARE(rangeOf(Finder::find(c, Finder::FindHighlight, value, true)), previous);
        if (values) {
            int length = 0;
            QList<MRVTextRange> clipped;
            for (const MRVTextRange &f : fragments) {
                length += f.end() - f.start();
                const int start = qMax(f.start(), selection.start());
                const int end = qMin(f.end(), selection.end());
                if (start < end) {
                    clipped << MRVTextRange(start, end);
                }
            }
            QCOMPARE(Finder::formatCount(&document, brush, red), fragments.size());
            QCOMPARE(Finder::formatLengthCount(&document, brush, red), length);
            QCOMPARE(Finder::findFragmentsByFormat(c, pattern), clipped);
            QCOMPARE(Finder::continuousFragmentCount(pattern, QTextCursor(&document), true),
                     runs.size());
        }
    }
}

void tst_Finder::kinds()
{
    QFETCH(QString, kind);
    QFETCH(QString, property);
    QFETCH(QString, set);
    QFETCH(QString, sought);
    const auto type = Finder::FindType(kind.toInt());
    const QTextCharFormat format = marked(property.toInt(nullptr, 16), valueOf(set, true));
    QTEST(QString::number(Finder::matchFormat(format, type, valueOf(sought, false))), "matches");
    QVERIFY(Finder::matchFormat(format, Finder::FindFormat, QTextFormat(QTextCharFormat())));
}

void tst_Finder::runsWithText()
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
}

void tst_Finder::cursorTests()
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
        for (bool is : {Finder::startsWithFormat(c, red, true), Finder::isInFormat(c, red, true),
                        Finder::isFormatChecked(c, red, true), Finder::hasFormat(c, red, true)}) {
            text += is ? '1' : '0';
        }
        for (auto find : {Finder::findFragmentAround, Finder::findFragmentInSelection,
                          Finder::findFragmentAtPosition, Finder::findFragmentAtPositionGeneral}) {
            text += ' ' + written(find(red, c, true));
        }
        QCOMPARE(text, row.at(2));
    }
    QCOMPARE(rangeOf(Finder::findContinuousFragment(red, at(7, 7), false)), MRVTextRange(2, 8));
    QCOMPARE(Finder::continuousFragmentCount(red, at(0, 0), false), 1);
    QTextCursor result;
    const QTextBlock block = document.begin();
    QVERIFY(!Finder::findInBlock(block, red, 3, result, true, false) && result.isNull());
    QVERIFY(Finder::findInBlock(block, red, 3, result, true, true));
    QCOMPARE(rangeOf(result), MRVTextRange(3, 4));
}

void tst_Finder::links()
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
    QVERIFY(Finder::isAnchorStart(c) && Finder::isAnchorTight(c));
    QCOMPARE(Finder::findAllAnchors(c), QList<MRVTextRange>{whole});
    c.setPosition(3);
    QVERIFY(!Finder::isAnchorStart(c)); // a paragraph end; the link goes on behind it
    QVERIFY(!Finder::isAnchorTight(c) && Finder::hasAnchor(c));
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

void tst_Finder::comments()
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
    QCOMPARE(rangeOf(Finder::findContinuousInspectorFragment(any, c, false)), MRVTextRange(1, 6));
    c.setPosition(0);
    QCOMPARE(Finder::continuousFragmentCount(any, c, false), 2);
}

void tst_Finder::nothing()
{
    const QTextCursor none;
    const QTextCharFormat format;
    QTextDocument document("a)");
    for (const QTextCursor &c :
         {Finder::find(nullptr, "a", none), Finder::find(&document, QRegularExpression("a)"), 0),
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
    QVERIFY(Finder::findAll(nullptr, "a").isEmpty()
            && Finder::findFragmentsByFormat(none, format).isEmpty());
    QCOMPARE(Finder::continuousFragmentCount(format, none, true)
                 + Finder::formatCount(nullptr, 1, 1),
             0);
}

// A cursor over a cell's border selects the whole table.
void tst_Finder::cellsPartRuns()
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
    QCOMPARE(Finder::findContinuousFragment(marked, found, true).selectedText(), QString("after"));
}

void tst_Finder::noValue()
{
    QTextDocument document("abc");
    const QTextCursor start(&document);
    QCOMPARE(Finder::formatCount(&document, MRVTextFormat::InlineAnnotationProperty, QVariant()),
             0);
    QVERIFY(Finder::findFragmentByProperty(MRVTextFormat::InlineAnnotationProperty, QVariant(),
                                           start, false)
                .isNull());
}

// Its cursors are null, and still say that they have a selection.
void tst_Finder::deletedDocument()
{
    auto *document = new QTextDocument("some text");
    QTextCursor cursor(document);
    cursor.select(QTextCursor::Document);
    delete document;
    QVERIFY(cursor.hasSelection() && !Finder::hasAnchor(cursor));
    QVERIFY(Finder::findAllAnchors(cursor).isEmpty());
    QVERIFY(!MRVTextCursor::hasMultipleBlocksSelected(cursor));
}

QTEST_MAIN(tst_Finder)
#include "tst_finder.moc"
