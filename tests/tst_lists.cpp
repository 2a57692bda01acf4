#include "text/mrvtextrange.h"

#include <QTextDocument>
#include <QtTest>

class tst_Lists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ranges();
    void rangeInfos();
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
    QVERIFY(range.toTextCursor(nullptr).isNull());
    QCOMPARE(MRVTextRange(QTextCursor()), MRVTextRange());

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

    const MRVTextCursorInfo info(cursor);
    QVERIFY(info.charFormat.fontItalic());
    QTextDocument other("something else");
    const MRVTextCursorInfo there =
        MRVTextCursorInfo::fromTextRangeInfo(info.toTextRangeInfo(), &other);
    QCOMPARE(there.cursor.selectedText(), QString("hing e"));
    QVERIFY(there.charFormat.fontItalic());
    QVERIFY(MRVTextCursorInfo(QTextCursor()).charFormat.isEmpty());
}

QTEST_MAIN(tst_Lists)
#include "tst_lists.moc"
