#include "datarows.h"
#include "documentnotation.h"
#include "text/mrvdocnavigator.h"

#include <QTextBlock>
#include <QTextFragment>
#include <QtTest>

#include <memory>

/// Writes down what it is told by hook, and whether the signal of the same name follows at once.
class Recorder : public MRVDocNavigator
{
    Q_OBJECT

public:
    explicit Recorder(QTextDocument *document)
        : MRVDocNavigator(document)
    {
        const QMetaObject &walk = MRVDocNavigator::staticMetaObject;
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("hear()"));
        for (int i = walk.methodOffset(); i < walk.methodCount(); ++i) {
            connect(this, walk.method(i), this, slot);
        }
    }
    void startBlock(QTextBlock &) override { told << "blockStarted"; }
    void finishBlock(QTextBlock &) override { told << "blockFinished"; }
    void startFragment(QTextFragment &run) override { told << "fragmentStarted " + run.text(); }
    void finishFragment(QTextFragment &) override { told << "fragmentFinished"; }
    void startFrame(QTextFrame &) override { told << "frameStarted"; }
    void finishFrame(QTextFrame &) override { told << "frameFinished"; }
    void startTable(QTextTable &) override { told << "tableStarted"; }
    void finishTable(QTextTable &) override { told << "tableFinished"; }

    QStringList told;
    QStringList heard;

private Q_SLOTS:
    void hear()
    {
        const QString name = metaObject()->method(senderSignalIndex()).name();
        if (told.last().startsWith(name)) {
            heard << told.last();
        }
    }
};

class tst_Walker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walk_data() { addRows("walks.tsv"); }
    void walk()
    {
        QTextDocument walked;
        fillDocument(&walked, cell("document"));
        Recorder recorder(&walked);
        QVERIFY(recorder.navigateIteration());
        QCOMPARE(recorder.told + recorder.heard, QStringList());
        QVERIFY(recorder.navigate());
        QTEST(recorder.told.join(", "), "expected");
        QCOMPARE(recorder.heard, recorder.told);
    }

    void spanningAndNestedTables()
    {
        QTextDocument document;
        QTextCursor cursor(&document);
        QTextTable *outer = cursor.insertTable(2, 2);
        outer->mergeCells(0, 0, 1, 2);
        outer->cellAt(0, 0).firstCursorPosition().insertText("wide");
        const QTextTable *inner = outer->cellAt(1, 0).firstCursorPosition().insertTable(1, 1);
        Recorder recorder(&document);
        recorder.navigate();
        QCOMPARE(recorder.told.count("fragmentStarted wide"), 2);

        MRVTableCollector collector(&document);
        collector.navigate();
        const QList<MRVTextRange> once{{outer->firstPosition(), outer->lastPosition()},
                                       {inner->firstPosition(), inner->lastPosition()}};
        QCOMPARE(collector.tables(), once);
        collector.navigate();
        QCOMPARE(collector.tables(), once + once);
    }

    void nothingToWalk()
    {
        auto document = std::make_unique<QTextDocument>("text");
        Recorder recorder(document.get());
        document.reset();
        QVERIFY(!recorder.navigate());
        QVERIFY(!recorder.navigateIteration());
        QTextBlock block;
        QTextFragment fragment;
        QVERIFY(!recorder.processBlock(block));
        QVERIFY(!recorder.processFragment(fragment));
        QVERIFY(recorder.told.isEmpty());
    }
};

QTEST_MAIN(tst_Walker)
#include "tst_walker.moc"
