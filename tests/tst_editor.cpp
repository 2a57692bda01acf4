#include "documentdump.h"
#include "editor/mrvlistmarkerpainter.h"
#include "text/mrvnestedlists.h"
#include "text/mrvtextlistformat.h"

#include <QScrollBar>
#include <QTextEdit>
#include <QTextList>
#include <QTextTable>
#include <QtTest>

using Levels = MRVTextListFormat;

namespace {

const QColor background(0xd6, 0xec, 0xff);

using ListLevels = QList<MRVTextListLevel>;

const ListLevels numbers{{"%0.", 1, 36, 18}, {"%0)", 2, 72, 18}, {"(%0)", 4, 108, 18}};
const ListLevels bullets{{"■", 0, 36, 18}, {"●", 0, 72, 18}, {"○", 0, 108, 18}};

void insertItems(QTextCursor cursor, const ListLevels &looks)
{
    const int levels[] = {0, 1, 1, 2, 2, 1, 0, 0, 1, 2, 0};
    QTextListFormat format;
    format.setStyle(QTextListFormat::ListDecimal);
    Levels::setLevels(format, looks);
    QTextList *list = nullptr;
    for (int level : levels) {
        if (list) {
            cursor.insertBlock(QTextBlockFormat());
            list->add(cursor.block());
        } else {
            list = cursor.createList(format);
        }
        QTextCharFormat color;
        if (level == 1) {
            color.setForeground(QColor(0xc0, 0x20, 0x20));
            color.setFontItalic(true);
        }
        cursor.insertText(QString("item ").repeated(level == 2 ? 30 : 1), color);
        Levels::setBlockLevel(*list, cursor.block(), level);
    }
}

void fill(QTextDocument *document, const ListLevels &looks, bool inTable = false)
{
    QTextCursor cursor(document);
    if (inTable) {
        QTextTableFormat format;
        format.setBackground(Qt::yellow);
        QTextTable *table = cursor.insertTable(1, 2, format);
        QTextCharFormat cell = table->cellAt(0, 1).format();
        cell.setBackground(background);
        table->cellAt(0, 1).setFormat(cell);
        insertItems(table->cellAt(0, 0).firstCursorPosition(), looks);
        insertItems(table->cellAt(0, 1).firstCursorPosition(), looks);
    } else {
        insertItems(cursor, looks);
    }
    document->clearUndoRedoStacks();
    document->setModified(false);
}

QImage shotOf(QTextEdit *editor)
{
    editor->setReadOnly(true); // shows no cursor
    return editor->grab().toImage();
}

int differenceOf(const QImage &a, const QImage &b)
{
    int pixels = a.size() == b.size() ? 0 : std::numeric_limits<int>::max();
    for (int y = 0; pixels < a.width() * a.height() && y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            pixels += a.pixel(x, y) != b.pixel(x, y);
        }
    }
    return pixels;
}

} // namespace

class tst_Editor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listMarkers_data()
    {
        QTest::addColumn<QString>("look");
        for (const char *look : {"numbers", "bullets", "dark", "right-to-left", "selected", "cells",
                                 "zoomed", "scrolled", "narrow"}) {
            QTest::newRow(look) << look;
        }
    }
    // The same lists within lists have all their markers from Qt.
    void listMarkers()
    {
        QFETCH(QString, look);
        QTextEdit levels;
        QTextEdit nested;
        const bool isRight = look == "right-to-left";
        if (isRight) { // of numbers, Qt draws the parts in the wrong order
            QTextOption option;
            option.setTextDirection(Qt::RightToLeft);
            levels.document()->setDefaultTextOption(option);
        }
        fill(levels.document(), isRight || look == "bullets" ? bullets : numbers, look == "cells");
        nested.setDocument(levels.document()->clone(&nested));
        QVERIFY(MRVNestedLists::fromLevels(nested.document()));
        new MRVListMarkerPainter(&levels);
        for (QTextEdit *editor : {&levels, &nested}) {
            editor->resize(500, look == "scrolled" ? 100 : 700);
            editor->show();
            editor->moveCursor(QTextCursor::Start);
            editor->verticalScrollBar()->setValue(0);
            if (look == "dark") {
                editor->setPalette(QPalette(Qt::white, Qt::black));
            } else if (look == "selected") {
                QTextCursor cursor = editor->textCursor();
                cursor.setPosition(3);
                cursor.setPosition(200, QTextCursor::KeepAnchor);
                editor->setTextCursor(cursor);
            } else if (look == "zoomed") {
                editor->zoomIn(7);
            } else if (look == "scrolled") {
                editor->verticalScrollBar()->setValue(77);
            } else if (look == "narrow") {
                editor->setLineWrapMode(QTextEdit::NoWrap);
                editor->horizontalScrollBar()->setValue(30);
            }
        }
        const QStringList before = documentDump(*levels.document());
        const QImage shown = shotOf(&levels);
        const QImage byQt = shotOf(&nested);
        if (look == "selected") { // by Qt's, half a pixel higher than the line
            QVERIFY(differenceOf(shown, byQt) < 100);
        } else {
            QCOMPARE(differenceOf(shown, byQt), 0);
        }
        QCOMPARE(documentDump(*levels.document()), before);
        QVERIFY(!levels.document()->isModified());
        QVERIFY(!levels.document()->isUndoAvailable());
    }

    void editedAndReplaced()
    {
        QTextEdit levels;
        new MRVListMarkerPainter(&levels);
        shotOf(&levels);
        QTextDocument other;
        fill(&other, numbers);
        levels.setDocument(&other); // of which the editor does not tell
        const QImage before = shotOf(&levels);
        QTextCursor cursor(other.findBlockByNumber(4));
        Levels::setBlockLevel(*cursor.currentList(), cursor.block(), 0);
        QTextEdit nested;
        nested.setDocument(other.clone(&nested));
        MRVNestedLists::fromLevels(nested.document());
        QCOMPARE(differenceOf(shotOf(&levels), shotOf(&nested)), 0);
        other.undo();
        QCOMPARE(shotOf(&levels), before);
        levels.setDocument(new QTextDocument(&levels));
    }

    // A box of a task list, a bullet that Qt does not draw, and an item whose list shows nothing.
    void otherMarkers()
    {
        QTextEdit editor;
        QTextListFormat format;
        format.setStyle(QTextListFormat::ListDecimal);
        Levels::setLevels(format, {{QString(), 0, 36, 18}});
        QTextCursor cursor(editor.document());
        cursor.createList(format);
        const QImage byQt = shotOf(&editor);
        MRVListMarkerPainter painter(&editor);
        const QImage none = shotOf(&editor);
        QVERIFY(none != byQt);
        QTextList *list = cursor.currentList();
        Levels::setLevels(format, {{"~", 0, 36, 18}});
        list->setFormat(format);
        QVERIFY(shotOf(&editor) != none);
        format.setStyle(QTextListFormat::ListStyleUndefined);
        list->setFormat(format);
        QVERIFY(shotOf(&editor) != none);
        list->remove(cursor.block());
        cursor.setBlockFormat(QTextBlockFormat());
        QCOMPARE(shotOf(&editor), none);
        QTextBlockFormat task;
        task.setMarker(QTextBlockFormat::MarkerType::Checked);
        cursor.setBlockFormat(task);
        cursor.createList(format);
        const QImage box = shotOf(&editor);
        editor.viewport()->removeEventFilter(&painter);
        QCOMPARE(shotOf(&editor), box);
    }
};

QTEST_MAIN(tst_Editor)
#include "tst_editor.moc"
