#include "datarows.h"
#include "documentdump.h"
#include "search/mrvfindsession.h"
#include "search/mrvtextreplacer.h"

#include <QRandomGenerator>
#include <QTextDocument>
#include <QTextTable>

using Finder = MRVTextFinder;
using Replacer = MRVTextReplacer;

namespace {

MRVTextQuery queryFor(const QString &text, const QString &kind)
{
    MRVTextQuery query;
    query.text = text;
    query.syntax = kind.contains('r') ? MRVTextQuery::RegularExpression : MRVTextQuery::PlainText;
    query.flags.setFlag(Finder::FindCaseSensitively, kind.contains('c'));
    if (kind.contains('w')) {
        query.flags |= Finder::FindWholeWords;
    }
    query.ignoreTypography = kind.contains('t');
    query.ignoreAccents = kind.contains('a');
    query.acrossParagraphs = kind.contains('x');
    return query;
}

QTextCursor selected(QTextDocument *document, int from, int to)
{
    return MRVTextRange(from, to).toTextCursor(document);
}

} // namespace

class tst_Replacer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void replaceAll_data() { addRows("replacer.tsv"); }
    void replaceAll()
    {
        QFETCH(QString, text);
        QFETCH(QString, replacement);
        QFETCH(QString, after);
        for (QString *cell : {&text, &after}) {
            for (ushort code : {0xa0, 0xad, 0x301, 0x302, 0x307, 0xfffc}) {
                cell->replace(QString::asprintf("u%04x", code), QChar(code));
            }
        }
        QTextDocument document(text);
        document.setUndoRedoEnabled(false);
        document.setUndoRedoEnabled(true);
        const QStringList before = documentDump(document);
        const MRVTextQuery query = queryFor(cell("pattern"), cell("kind"));
        MRVTextReplacement wanted(replacement);
        wanted.preservesCase = cell("kind").contains('k');
        const int changes = Replacer::preview(&document, query, wanted).size();
        QCOMPARE(documentDump(document), before);
        QCOMPARE(Replacer::replaceAll(&document, query, wanted), changes);
        QCOMPARE(document.toRawText().replace(QChar(0x2029), '\n'), after);
        QCOMPARE(document.availableUndoSteps() > 0, text != after);
        document.undo();
        QCOMPARE(documentDump(document), before);
        document.redo();
        QCOMPARE(document.toRawText().replace(QChar(0x2029), '\n'), after);
    }

    void positions()
    {
        QTextDocument document(QString::fromUtf8("e\u0301 “a” cafe\u0301 A\n“a”"));
        const QVector<MRVTextRange> finds{{3, 6}, {15, 18}};
        QCOMPARE(Replacer::findAll(&document, queryFor("\"a\"", "pt")), finds);
        QCOMPARE(Replacer::count(&document, queryFor("\"a\"", "p")), 0);
        QCOMPARE(Replacer::findAll(&document, queryFor(QString::fromUtf8("\u00e9"), "pt")),
                 (QVector<MRVTextRange>{{0, 2}, {10, 12}}));
        QCOMPARE(Replacer::findAll(&document, queryFor("caf\\w", "rtw")),
                 (QVector<MRVTextRange>{{7, 12}}));
    }

    void withinAndFormat()
    {
        QTextDocument document("cat cat\ncat cat");
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        selected(&document, 2, 12).mergeCharFormat(bold);
        QTextCharFormat italic;
        italic.setFontItalic(true);
        selected(&document, 5, 6).mergeCharFormat(italic);
        MRVTextQuery query = queryFor("cat", "p");
        query.range = {1, 14};
        const QVector<MRVTextRange> inner{{4, 7}, {8, 11}};
        QCOMPARE(Replacer::findAll(&document, query), inner);
        query.range = MRVTextQuery().range;
        query.format = bold;
        QCOMPARE(Replacer::findAll(&document, query), inner);
        query.format.setFontWeight(QFont::Light);
        QCOMPARE(Replacer::count(&document, query), 0);
        query.compareFormatValues = false;
        QCOMPARE(Replacer::replaceAll(&document, query, "dog"), 2);
        QCOMPARE(document.toPlainText(), QString("cat dog\ndog cat"));
    }

    void kinds()
    {
        QTextDocument document("cat cat\ncat cat");
        QTextCharFormat red;
        red.setForeground(Qt::red);
        selected(&document, 2, 12).mergeCharFormat(red);
        QTextCharFormat link;
        link.setAnchorHref("http://a.example/");
        selected(&document, 4, 9).mergeCharFormat(link);
        MRVTextQuery query = queryFor("cat", "p");
        query.kinds = {{MRVTextFinder::FindTextColor, QVariant()}};
        const QVector<MRVTextRange> colored{{4, 7}, {8, 11}};
        QCOMPARE(Replacer::findAll(&document, query), colored);
        query.kinds.append(
            {MRVTextFinder::FindLink, MRVTextFinder::ExternalLinks | MRVTextFinder::InternalLinks});
        QCOMPARE(Replacer::findAll(&document, query), QVector<MRVTextRange>{MRVTextRange(4, 7)});
        QTextCursor end(&document);
        end.movePosition(QTextCursor::End);
        query.flags = MRVTextFinder::FindBackward;
        QCOMPARE(Replacer::find(end, query).selectionStart(), 4);
        query.text.clear();
        const QVector<MRVTextRange> linked = Replacer::findAll(&document, query);
        QCOMPARE(linked.first().start(), 4);
        QCOMPARE(linked.last().end(), 9);
        query.range = {5, 9};
        QVERIFY(!Replacer::findAll(&document, query).contains(linked.first()));
        QCOMPARE(Replacer::replaceAll(&document, query, "dog"), 0);
        query.kinds.clear();
        query.range = MRVTextQuery().range;
        query.accepts = [](const QTextCharFormat &format) {
            return !format.anchorHref().isEmpty();
        };
        QCOMPARE(Replacer::findAll(&document, query), QVector<MRVTextRange>{MRVTextRange(4, 9)});
    }

    // What a find takes away must not be a border between cells.
    void acrossStaysInCells()
    {
        QTextDocument document("a\nb");
        QTextCursor cursor(&document);
        cursor.movePosition(QTextCursor::End);
        cursor.insertTable(1, 2);
        cursor.insertText("c\nd");
        const MRVTextQuery query = queryFor("\\n", "rx");
        QCOMPARE(Replacer::findAll(&document, query), (QVector<MRVTextRange>{{1, 2}, {5, 6}}));
        QTextCursor back(&document);
        back.movePosition(QTextCursor::End);
        MRVTextQuery backward = query;
        backward.flags |= Finder::FindBackward;
        QTextCursor found = Replacer::find(back, backward);
        QCOMPARE(MRVTextRange(found), MRVTextRange(5, 6));
        QVERIFY(Replacer::replace(found, query, "-"));
        QCOMPARE(document.toPlainText(), QString("a\nb\nc-d\n\n"));
    }

    void formatsStay()
    {
        QTextDocument document("one two");
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        selected(&document, 1, 2).mergeCharFormat(bold);
        QCOMPARE(Replacer::replaceAll(&document, queryFor("one", "p"), "ONE"), 1);
        QCOMPARE(selected(&document, 0, 2).charFormat().fontWeight(), int(QFont::Bold));
        QVERIFY(selected(&document, 0, 3).charFormat().fontWeight() != QFont::Bold);
    }

    void newFormats()
    {
        QTextDocument document("Cat cat scat");
        MRVTextReplacement marked("dog");
        marked.preservesCase = true;
        marked.format.setFontWeight(QFont::Bold);
        QCOMPARE(Replacer::replaceAll(&document, queryFor("cat", "pw"), marked), 2);
        QCOMPARE(document.toPlainText(), QString("Dog dog scat"));
        document.undo();
        QCOMPARE(document.toPlainText(), QString("Cat cat scat"));
        QVERIFY(selected(&document, 0, 1).charFormat().fontWeight() != QFont::Bold);
        selected(&document, 4, 7).mergeCharFormat(marked.format);
        marked.keepsText = true;
        const auto changes = Replacer::preview(&document, queryFor("cat", "pw"), marked);
        QCOMPARE(changes.size(), 1); // the other one is bold
        QCOMPARE(Replacer::apply(&document, changes), 1);
        QCOMPARE(selected(&document, 0, 3).charFormat().fontWeight(), int(QFont::Bold));
        QVERIFY(selected(&document, 2, 4).charFormat().fontWeight() != QFont::Bold);
        QCOMPARE(Replacer::replaceAll(&document, queryFor("cat", "pw"), marked), 0);
        QTextCursor third = selected(&document, 9, 12);
        QVERIFY(Replacer::replace(third, queryFor("cat", "p"), marked));
        QCOMPARE(selected(&document, 9, 12).charFormat().fontWeight(), int(QFont::Bold));
    }

    void someChanges()
    {
        QTextDocument document("aa bb aa");
        QVector<MRVTextChange> changes = Replacer::preview(&document, queryFor("(a)a", "r"), "$1");
        QCOMPARE(changes.size(), 2);
        QCOMPARE(changes.at(1).range, MRVTextRange(6, 8));
        QCOMPARE(changes.at(1).before + changes.at(1).after, QString("aaa"));
        changes << MRVTextChange{{3, 5}, "xx", "y"} << MRVTextChange{{1, 4}, "a b", "y"}
                << MRVTextChange{{6, 99}, "aa", "y"};
        QCOMPARE(Replacer::apply(&document, changes),
                 2); // the change from 1 comes before the one from 0
        QCOMPARE(document.toPlainText(), QString("ayb a"));
        document.undo();
        QCOMPARE(document.toPlainText(), QString("aa bb aa"));
    }

    void oneByOne()
    {
        QTextDocument document("aXa\naa");
        MRVTextQuery query = queryFor("a", "p");
        QTextCursor c(&document);
        QVERIFY(!Replacer::replace(c, query, "bb"));
        QStringList places;
        while (!(c = Replacer::find(c, query)).isNull() && places.size() < 9) {
            places << QString::number(c.anchor());
            QVERIFY(Replacer::replace(c, query, "ba"));
        }
        QCOMPARE(places.join(' '), QString("0 3 6 8"));
        QCOMPARE(document.toPlainText(), QString("baXba\nbaba"));
        query.flags |= Finder::FindBackward;
        places.clear();
        for (c = selected(&document, 9, 9);
             !(c = Replacer::find(c, query)).isNull() && places.size() < 9;) {
            places << QString::number(c.anchor());
        }
        QCOMPARE(places.join(' '), QString("7 4 1")); // the one at 9 is behind the cursor
        c = selected(&document, 4, 5);
        QVERIFY(Replacer::replace(c, query, "aa"));
        QVERIFY(c.position() == 4);
        QVERIFY(!c.hasSelection());
        document.undo();
        places.clear();
        for (c = QTextCursor(&document);
             !(c = Replacer::find(c, queryFor("x*$", "r"))).isNull() && places.size() < 9;) {
            places << QString::number(c.anchor());
        }
        QCOMPARE(places.join(' '), QString("5 10"));
    }

    void givesUp_data() { addRows("searches-given-up.tsv"); }
    void givesUp()
    {
        QTextDocument document(cell("text"));
        const MRVTextQuery query = queryFor(cell("pattern"), cell("kind"));
        MRVSearchOutcome outcome;
        QCOMPARE(QString::number(Replacer::count(&document, query, &outcome)), cell("finds"));
        QCOMPARE(QString::number(outcome.paragraph), cell("paragraph"));
        QCOMPARE(outcome.isComplete(), outcome.text().isEmpty());
        QCOMPARE(outcome.text().contains(QString(" %1,").arg(outcome.paragraph + 1)),
                 !outcome.isComplete());
        if (!outcome.isComplete()) {
            const int steps = document.availableUndoSteps();
            QCOMPARE(Replacer::replaceAll(&document, query, "x", &outcome), 0);
            QCOMPARE(outcome.reason, MRVSearchOutcome::TooCostly);
            QCOMPARE(document.availableUndoSteps(), steps);
        }
    }

    // The paragraph alone takes minutes, so the search must end in its middle.
    void endsInTime()
    {
        QTextDocument document("x\n" + QString("a").repeated(600000));
        MRVTextQuery query = queryFor("x|(?=(a+))\\1b", "r");
        query.timeLimit = 300;
        MRVSearchOutcome outcome;
        QCOMPARE(Replacer::count(&document, query, &outcome), 1);
        QCOMPARE(outcome.reason, MRVSearchOutcome::TimedOut);
        QCOMPARE(outcome.paragraph, 1);
        query.timeLimit = 0;
        query.isCancelled = [asked = 0]() mutable { return ++asked == 3; };
        QVERIFY(Replacer::preview(&document, query, "y", &outcome).isEmpty());
        QCOMPARE(outcome.reason, MRVSearchOutcome::Cancelled);
    }

    // What a find bar knows after edits must be what a search of the document finds.
    void followsEdits()
    {
        QRandomGenerator random(7);
        for (int round = 0; round < 60; ++round) {
            QTextDocument document(QString("ab a\nb\naab\n").repeated(4));
            if (round % 2) {
                document.documentLayout(); // without it Qt does not tell what has changed
            }
            MRVFindSession session(&document);
            const MRVTextQuery query =
                queryFor(round % 3 ? "ab?" : "a\\n?b|^$", round % 3 ? "r" : "rx");
            session.setQuery(query, selected(&document, 9, 9));
            for (int edit = 0; edit < 20; ++edit) {
                if (random.bounded(2)) {
                    session.advance(0);
                }
                const int at = random.bounded(document.characterCount());
                const int to = random.bounded(at, qMin(at + 4, document.characterCount()));
                selected(&document, at, to)
                    .insertText(QStringList{"", "a", "b\n", "\n\nab"}[random.bounded(4)]);
                if (random.bounded(5) == 0) {
                    document.undo();
                }
            }
            while (!session.advance(0)) { }
            QCOMPARE(session.finds(), Replacer::findAll(&document, query));
        }
    }

    void movesItsRange_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("finds"); // where they start; the range is the middle one's
        QTest::newRow("before it") << 0 << 0 << "one "
                                   << "8";
        QTest::newRow("across paragraphs before it") << 0 << 4 << "\n\n"
                                                     << "2";
        QTest::newRow("all before it") << 0 << 4 << ""
                                       << "0";
        QTest::newRow("at its start") << 4 << 4 << "one "
                                      << "8";
        QTest::newRow("at its end") << 7 << 7 << " one"
                                    << "4";
        QTest::newRow("after it") << 8 << 8 << "one "
                                  << "4";
        QTest::newRow("in place of it") << 4 << 7 << "one one"
                                        << "4 8";
        QTest::newRow("removing some of it") << 5 << 6 << ""
                                             << "";
    }

    void movesItsRange()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QString, typed);
        for (const bool hasLayout : {true, false}) {
            QTextDocument document("one one one");
            if (hasLayout) {
                document.documentLayout();
            }
            MRVFindSession session(&document);
            MRVTextQuery query = queryFor("one", "p");
            query.range = MRVTextRange(4, 7);
            session.setQuery(query, QTextCursor());
            while (!session.advance(0)) { }
            selected(&document, from, to).insertText(typed);
            while (!session.advance(0)) { }
            QStringList finds;
            for (const MRVTextRange &find : session.finds()) {
                finds << QString::number(find.start());
            }
            QTEST(finds.join(' '), "finds");
            document.undo();
            while (!session.advance(0)) { }
            QCOMPARE(session.count(), 1);
            QCOMPARE(session.finds().first().start(), 4);
        }
    }

    void nextAndPrevious()
    {
        QTextDocument document("aXa\n" + QString("b").repeated(20000) + "\naa");
        MRVFindSession session(&document);
        session.setQuery(queryFor("a", "p"), selected(&document, 5, 5));
        QCOMPARE(session.count(), 0);
        QVERIFY(session.next(selected(&document, 5, 5)).isNull());
        session.advance(0); // the long paragraph alone
        QVERIFY(session.next(selected(&document, 5, 5)).isNull());
        while (!session.advance(0)) { }
        QCOMPARE(session.count(), 4);
        QStringList places;
        QTextCursor c = selected(&document, 5, 5);
        bool wrapped = false;
        for (int i = 0; i < 5; ++i) {
            c = session.next(c, &wrapped);
            places << QString::number(session.numberOf(c)) + (wrapped ? "!" : "");
        }
        QCOMPARE(places.join(' '), QString("3 4 1! 2 3"));
        c = session.previous(selected(&document, 1, 2), &wrapped);
        QCOMPARE(session.numberOf(c), 1);
        QCOMPARE(session.numberOf(session.previous(c, &wrapped)), 4);
        QVERIFY(wrapped);
        QCOMPARE(session.numberOf(selected(&document, 0, 2)), 0);
    }

    void refusals()
    {
        QString error;
        QVERIFY(!queryFor("a(", "r").isValid(&error));
        QVERIFY(error.contains("3"));
        QVERIFY(queryFor("a(", "p").isValid());
        QTextDocument document("a");
        QCOMPARE(Replacer::count(&document, queryFor("", "p"))
                     + Replacer::count(&document, queryFor("", "rt")),
                 0);
        QCOMPARE(Replacer::replaceAll(nullptr, queryFor("a", "p"), "b"), 0);
        QTextCursor none;
        QVERIFY(!Replacer::replace(none, queryFor("a", "p"), "b"));
        QVERIFY(Replacer::find(none, queryFor("a", "p")).isNull());
    }
};

QTEST_MAIN(tst_Replacer)
#include "tst_replacer.moc"
