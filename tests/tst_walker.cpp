#include "datarows.h"
#include "text/mrvdocnavigator.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFragment>
#include <QTextTable>
#include <QtTest>

#include <memory>

namespace {

/// Writes down what it is told, by hook in m_hooks and by signal in m_signals.
class Recorder : public MRVDocNavigator
{
public:
    explicit Recorder(QTextDocument *document)
        : MRVDocNavigator(document)
    {
        using Walk = MRVDocNavigator;
        const auto note = [this](const QString &word) {
            // The hook comes first, so it has written one word more.
            inStep = inStep && heard.size() + 1 == told.size();
            heard << word;
        };
        connect(this, &Walk::blockStarted, this, [=] { note("[b"); });
        connect(this, &Walk::blockFinished, this, [=] { note("b]"); });
        connect(this, &Walk::fragmentStarted, this,
                [=](QTextFragment &run) { note("[r '" + run.text() + "'"); });
        connect(this, &Walk::fragmentFinished, this, [=] { note("r]"); });
        connect(this, &Walk::frameStarted, this, [=] { note("[f"); });
        connect(this, &Walk::frameFinished, this, [=] { note("f]"); });
        connect(this, &Walk::tableStarted, this, [=] { note("[t"); });
        connect(this, &Walk::tableFinished, this, [=] { note("t]"); });
    }
    void startBlock(QTextBlock &) override { told << "[b"; }
    void finishBlock(QTextBlock &) override { told << "b]"; }
    void startFragment(QTextFragment &run) override { told << "[r '" + run.text() + "'"; }
    void finishFragment(QTextFragment &) override { told << "r]"; }
    void startFrame(QTextFrame &) override { told << "[f"; }
    void finishFrame(QTextFrame &) override { told << "f]"; }
    void startTable(QTextTable &) override { told << "[t"; }
    void finishTable(QTextTable &) override { told << "t]"; }

    QStringList told;
    QStringList heard;
    bool inStep = true;
};

} // namespace

class tst_Walker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walk_data() { addRows("walks.tsv", {"document", "expected"}); }
    void walk();
    void spanningAndNestedTables();
    void nothingToWalk();
};

void tst_Walker::walk()
{
    QFETCH(QString, document);
    QTextDocument walked;
    QTextCursor cursor(&walked);
    QTextTable *table = nullptr;
    const int rows = document.count('/') + 1;
    int cell = 0;
    for (const QChar c : document) {
        if (c == '{') {
            if (!table)
                table = cursor.insertTable(rows, document.count('{') / rows);
            cursor = table->cellAt(cell / table->columns(), cell % table->columns())
                         .firstCursorPosition();
            ++cell;
        } else if (c == '<') {
            cursor.insertFrame(QTextFrameFormat());
        } else if (c == '>' || c == '}') {
            cursor.movePosition(QTextCursor::End);
        } else if (c != '/') {
            cursor.insertText(c);
        }
    }
    Recorder recorder(&walked);
    QVERIFY(recorder.navigateIteration());
    QVERIFY(recorder.told.isEmpty() && recorder.heard.isEmpty());
    QVERIFY(recorder.navigate());
    QTEST(recorder.told.join(' '), "expected");
    QCOMPARE(recorder.heard, recorder.told);
    QVERIFY(recorder.inStep);
}

void tst_Walker::spanningAndNestedTables()
{
    QTextDocument document;
    QTextCursor cursor(&document);
    QTextTable *outer = cursor.insertTable(2, 2);
    outer->mergeCells(0, 0, 1, 2);
    outer->cellAt(0, 0).firstCursorPosition().insertText("wide");
    const QTextTable *inner = outer->cellAt(1, 0).firstCursorPosition().insertTable(1, 1);
    Recorder recorder(&document);
    recorder.navigate();
    QCOMPARE(recorder.told.count("[r 'wide'"), 2);

    MRVTableCollector collector(&document);
    collector.navigate();
    const QList<MRVTextRange> once{{outer->firstPosition(), outer->lastPosition()},
                                   {inner->firstPosition(), inner->lastPosition()}};
    QCOMPARE(collector.tables(), once);
    collector.navigate();
    QCOMPARE(collector.tables(), once + once);
}

void tst_Walker::nothingToWalk()
{
    auto document = std::make_unique<QTextDocument>("text");
    Recorder recorder(document.get());
    document.reset();
    QVERIFY(!recorder.navigate() && !recorder.navigateIteration());
    QTextBlock block;
    QTextFragment fragment;
    QVERIFY(!recorder.processBlock(block) && !recorder.processFragment(fragment));
    QVERIFY(recorder.told.isEmpty());
}

QTEST_MAIN(tst_Walker)
#include "tst_walker.moc"
