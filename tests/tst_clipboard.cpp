#include "clipboard/mrvdocumentmimedata.h"
#include "fulldocument.h"
#include "gui/mrvguiutil.h"
#include "images.h"
#include "input/mrvguardeddocument.h"
#include "text/mrvlistmarkers.h"
#include "textformat/mrvtextblockformat.h"
#include "textformat/mrvtextformat.h"

#include <QMimeData>
#include <QTextEdit>
#include <QTextList>
#include <QTextTable>
#include <QtTest>

namespace {

class Editor : public QTextEdit
{
public:
    Editor() { setDocument(new MRVGuardedDocument(this)); }

protected:
    QMimeData *createMimeDataFromSelection() const override
    {
        return MRVDocumentMimeData::createMimeData(textCursor());
    }
    void insertFromMimeData(const QMimeData *source) override
    {
        QTextCursor cursor = textCursor();
        QVERIFY(MRVDocumentMimeData::insert(&cursor, source));
    }
};

QByteArray copied(const QTextCursor &cursor)
{
    const QScopedPointer<QMimeData> data(MRVDocumentMimeData::createMimeData(cursor));
    return data ? data->data(MRVDocumentMimeData::mimeType()) : QByteArray();
}

bool paste(QTextCursor *cursor, const QByteArray &bytes)
{
    QMimeData data;
    data.setData(MRVDocumentMimeData::mimeType(), bytes);
    return MRVDocumentMimeData::insert(cursor, &data);
}

} // namespace

/** Copy and paste between documents of the application. */
class tst_Clipboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholeDocument()
    {
        Editor from;
        fillDocument(from.document());
        from.selectAll();
        from.copy();
        Editor to;
        to.paste();
        QCOMPARE(fullDump(*to.document()), fullDump(*from.document()));
        for (const QString name : {"picture-1", "picture-2"}) {
            QCOMPARE(MRVGuardedDocument::picture(*to.document(), name), filledImage(4, 3, Qt::red));
        }
        to.document()->undo();
        QVERIFY(to.document()->isEmpty());
        QVERIFY(!to.document()->isUndoAvailable());
        to.document()->redo();
        QCOMPARE(fullDump(*to.document()), fullDump(*from.document()));

        const QScopedPointer<QMimeData> data(
            MRVDocumentMimeData::createMimeData(from.textCursor()));
        QCOMPARE(data->text(), from.toPlainText());
        QCOMPARE(data->html().count("<ol "), 2);
    }

    void parts_data()
    {
        QTest::addColumn<QPoint>("selection");
        QTest::addColumn<QString>("target"); // with "|" where it is inserted
        QTest::addColumn<QString>("text"); // with the markers of lists, and # before headings
        QTest::newRow("in-paragraph") << QPoint(2, 5) << "ab|cd"
                                      << "abadicd";
        QTest::newRow("heading") << QPoint(0, 7) << "|"
                                 << "#Heading";
        QTest::newRow("heading-into-text") << QPoint(0, 7) << "a|b"
                                           << "aHeadingb";
        QTest::newRow("paragraph-before") << QPoint(0, 8) << "|b"
                                          << "#Heading/b";
        QTest::newRow("paragraph-within") << QPoint(0, 8) << "a|b"
                                          << "aHeading/b";
        QTest::newRow("end-of-heading") << QPoint(5, 12) << "a|b"
                                        << "ang/1.itemb";
        QTest::newRow("sublist") << QPoint(26, 61) << "|"
                                 << "a)item with comment/b)item with comment";
        QTest::newRow("nothing") << QPoint(3, 3) << "a|b"
                                 << "";
    }
    void parts()
    {
        QFETCH(QPoint, selection);
        QFETCH(QString, target);
        QTextDocument source;
        fillDocument(&source);
        QTextCursor cursor(&source);
        cursor.setPosition(selection.x());
        cursor.setPosition(selection.y(), QTextCursor::KeepAnchor);
        QTextDocument document(QString(target).remove('|'));
        QTextCursor at(&document);
        at.setPosition(target.indexOf('|'));
        const QByteArray bytes = copied(cursor);
        QCOMPARE(paste(&at, bytes), !bytes.isEmpty());
        QStringList text;
        const QVector<MRVListMarker> markers = mrvListMarkers(document);
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            const bool isHeading = MRVTextBlockFormat::headingLevel(block.blockFormat()) > 0;
            text << (isHeading ? "#" : "") + markers.at(block.blockNumber()).text + block.text();
        }
        QTEST(bytes.isEmpty() ? QString() : text.join('/'), "text");
    }

    void selectedCells()
    {
        QTextDocument source;
        fillDocument(&source);
        auto *table = qobject_cast<QTextTable *>(source.rootFrame()->childFrames().last());
        QTextCursor cursor = table->cellAt(0, 1).firstCursorPosition();
        cursor.setPosition(table->cellAt(1, 1).firstPosition(), QTextCursor::KeepAnchor);
        QTextDocument document;
        QTextCursor at(&document);
        QVERIFY(paste(&at, copied(cursor)));
        const auto *inserted =
            qobject_cast<QTextTable *>(document.rootFrame()->childFrames().at(0));
        QCOMPARE(QSize(inserted->columns(), inserted->rows()), QSize(2, 3));
        QCOMPARE(inserted->cellAt(2, 1).columnSpan(), 2);
        QCOMPARE(document.toPlainText().simplified(), QString("cell merged framed"));

        // A row that a merged cell only reaches into.
        table = QTextCursor(&source).insertTable(2, 3);
        table->mergeCells(0, 1, 2, 1);
        table->cellAt(0, 1).firstCursorPosition().insertText("above");
        table->cellAt(1, 2).firstCursorPosition().insertText("right");
        cursor = table->cellAt(1, 0).firstCursorPosition();
        cursor.setPosition(table->cellAt(1, 2).firstPosition(), QTextCursor::KeepAnchor);
        document.clear();
        QVERIFY(paste(&at, copied(cursor)));
        QCOMPARE(document.toPlainText(), QString("\n\n\nright\n"));
    }

    // Another picture of the same name keeps its own.
    void picturesOfOneName()
    {
        QTextDocument source;
        fillDocument(&source);
        QTextCursor cursor(&source);
        cursor.select(QTextCursor::Document);
        QTextDocument document;
        document.addResource(QTextDocument::ImageResource, QUrl("picture-1"),
                             filledImage(9, 9, Qt::blue));
        QTextCursor at(&document);
        QVERIFY(paste(&at, copied(cursor)));
        QVERIFY(paste(&at, copied(cursor)));
        QCOMPARE(MRVGuardedDocument::picture(document, QUrl("picture-1")).width(), 9);
        QCOMPARE(MRVGuardedDocument::picture(document, QUrl("picture-1-2")).width(), 4);
        QCOMPARE(document.toHtml().count("\"picture-1-2\""), 4);
        QVERIFY(MRVGuardedDocument::picture(document, QUrl("picture-1-3")).isNull());
    }

    // Cut anywhere or with any byte changed, it is refused whole, or inserted as one step.
    void damage()
    {
        QTextDocument source;
        fillDocument(&source);
        QTextCursor cursor(&source);
        cursor.select(QTextCursor::Document);
        const QByteArray bytes = copied(cursor);
        QTextDocument document("text");
        document.clearUndoRedoStacks();
        QTextCursor at(&document);
        QLoggingCategory::setFilterRules("default.warning=false"); // libpng's
        int refused = 0;
        for (int i = 0; i < bytes.size(); ++i) {
            QVERIFY(!paste(&at, bytes.left(i)));
            QByteArray changed = bytes;
            changed[i] = char(changed.at(i) ^ (i % 2 ? 0x81 : 0x03));
            refused += paste(&at, changed) ? 0 : 1;
            document.undo();
            QCOMPARE(document.toPlainText(), QString("text"));
        }
        QLoggingCategory::setFilterRules(QString());
        QVERIFY(refused > bytes.size() / 4);
        QVERIFY(!paste(&at, bytes + ' '));
        QVERIFY(!paste(nullptr, bytes));
        QTextCursor null;
        QVERIFY(!paste(&null, bytes));
        QVERIFY(!MRVDocumentMimeData::createMimeData(null));
    }
};

QTEST_MAIN(tst_Clipboard)
#include "tst_clipboard.moc"
