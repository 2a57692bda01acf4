#include "documentdump.h"
#include "editor/mrvlistmarkerpainter.h"
#include "editor/mrvscriptwriting.h"
#include "editor/mrvtypingcorrection.h"
#include "text/mrvdocumentcounts.h"
#include "text/mrvnestedlists.h"
#include "text/mrvtextlistformat.h"

#include <QAbstractItemView>
#include <QScrollBar>
#include <QTextEdit>
#include <QTextList>
#include <QTextTable>
#include <QtTest>

#include <random>

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

/// An editor in script mode, as an application makes it.
class ScriptEditor : public QTextEdit
{
public:
    ScriptEditor()
        : script(new MRVScriptWriting(this))
    {
        MRVScriptMode mode;
        mode.loadFactoryDefaults();
        script->setMode(mode);
    }

    void type(const QString &keys)
    {
        for (const QChar key : keys) {
            if (key == '\n') {
                QTest::keyClick(target(), Qt::Key_Return);
            } else if (key == '\t') {
                QTest::keyClick(target(), Qt::Key_Tab);
            } else if (key == '\033') {
                QTest::keyClick(target(), Qt::Key_Escape);
            } else {
                QTest::keyClick(target(), key.toLatin1());
            }
        }
    }
    /// What gets the keys: the list of completions while it is shown.
    QWidget *target()
    {
        QWidget *popup = QApplication::activePopupWidget();
        return popup ? popup : this;
    }
    QStringList elements() const
    {
        QStringList lines;
        for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
            const int index = script->shownMode().indexOf(block);
            lines << (index < 0 ? "?" : script->mode().elements().at(index).title()) + ": "
                    + block.text();
        }
        return lines;
    }

    MRVScriptWriting *script;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (!script->handleKey(event)) {
            QTextEdit::keyPressEvent(event);
            script->offerCompletions();
        }
    }
};

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

    void countsOfTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVector<int>>("counts");
        QTest::newRow("empty") << "" << QVector<int>{0, 0, 0};
        QTest::newRow("punctuation") << " -- ... \u2014 +" << QVector<int>{0, 11, 7};
        QTest::newRow("apostrophes") << "don't can\u2019t" << QVector<int>{2, 11, 10};
        QTest::newRow("hyphen, figures") << "well-known 3.5 a1" << QVector<int>{4, 17, 15};
        QTest::newRow("accents") << "e\u0301te\u0301 r\u00e9sum\u00e9" << QVector<int>{2, 12, 11};
        QTest::newRow("beyond 16 bits") << "\U00010330\U00010331 x" << QVector<int>{2, 4, 3};
        QTest::newRow("symbol beyond 16 bits") << "\U0001f600" << QVector<int>{0, 1, 1};
        QTest::newRow("object") << "a\ufffcb" << QVector<int>{2, 2, 2};
    }
    void countsOfTexts()
    {
        QFETCH(QString, text);
        const MRVTextCounts counts = MRVTextCounts::of(text);
        QTEST((QVector<int>{counts.words, counts.characters, counts.charactersWithoutSpaces}),
              "counts");
    }

    void countsFollowEdits_data()
    {
        QTest::addColumn<bool>("isLaidOut");
        QTest::newRow("laid out") << true;
        QTest::newRow("not laid out") << false;
    }
    // Random edits, undone and redone, also while the counting has only begun.
    void countsFollowEdits()
    {
        QFETCH(bool, isLaidOut);
        QTextDocument document(QString("one two\nthree's\n\nfour ").repeated(8));
        if (isLaidOut) {
            document.documentLayout();
        }
        MRVDocumentCounts counts(&document);
        std::mt19937 random(3);
        for (int edit = 0; edit < 3000; ++edit) {
            QTextCursor cursor(&document);
            cursor.setPosition(int(random() % unsigned(document.characterCount())));
            switch (random() % (document.blockCount() > 40 ? 7 : 5)) {
            case 0:
                cursor.insertText(" a\nb c");
                break;
            case 1:
                cursor.insertBlock();
                break;
            case 2:
                cursor.insertText("x y");
                break;
            case 3:
                document.undo();
                break;
            case 4:
                document.redo();
                break;
            default:
                cursor.setPosition(qMax(0, cursor.position() - 60), QTextCursor::KeepAnchor);
                cursor.removeSelectedText();
            }
            if (random() % 3 == 0) {
                counts.advance(0); // a paragraph
                continue;
            }
            while (!counts.advance(5)) { }
            MRVTextCounts all;
            for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
                all += MRVTextCounts::of(block.text());
            }
            QCOMPARE(counts.counts().words, all.words);
            QVERIFY(counts.counts() == all);
        }
        document.clear();
        counts.advance(0);
        QVERIFY(counts.counts() == MRVTextCounts());
    }

    void corrections_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::newRow("quotes")
            << "\"Go,\" he said. \"'No' (\"a\")\""
            << "\u201cGo,\u201d he said. \u201c\u2018No\u2019 (\u201ca\u201d)\u201d";
        QTest::newRow("apostrophe") << "don't"
                                    << "don\u2019t";
        QTest::newRow("dashes") << "a--b ---"
                                << "A\u2014b \u2014-";
        QTest::newRow("ellipsis") << "a.... b"
                                  << "A\u2026. b";
        QTest::newRow("capitals") << "don't two. three! 4 five? \u00e9t\u00e9 x.y z "
                                  << "Don\u2019t two. Three! 4 five? \u00c9t\u00e9 x.y z ";
        QTest::newRow("replacement first") << "(c) a=>b"
                                           << "\u00a9 a\u21d2b";
        QTest::newRow("beyond a paragraph") << "a-\n-b"
                                            << "A-\n-b";
    }
    void corrections()
    {
        MRVTypingOptions options;
        options.replacements = {{true, "(c)", "\u00a9"}, {true, "=>", "\u21d2"}};
        options.singleQuotes = {"\u2018", "\u2019"};
        options.doubleQuotes = {"\u201c", "\u201d"};
        options.emDashes = options.ellipses = options.capitalizeSentences = true;
        QFETCH(QString, typed);
        QTextDocument document;
        QTextCursor cursor(&document);
        for (const QChar character : typed) {
            cursor.insertText(character);
            mrvCorrectTyping(cursor, options);
        }
        QTEST(document.toPlainText(), "text");
    }
    void correctionIsUndone()
    {
        MRVTypingOptions options;
        options.emDashes = true;
        QTextDocument document;
        QTextCursor cursor(&document);
        QTextCharFormat italic;
        italic.setFontItalic(true);
        cursor.insertText("a-", italic);
        QVERIFY(!mrvCorrectTyping(cursor, options));
        cursor.insertText("-");
        QVERIFY(mrvCorrectTyping(cursor, options));
        QCOMPARE(cursor.position(), 2);
        QVERIFY(cursor.charFormat().fontItalic());
        document.undo();
        QCOMPARE(document.toPlainText(), QString("a--"));
        QVERIFY(!mrvCorrectTyping(QTextCursor(), options));
    }

    void scriptKeys_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QStringList>("elements");
        QTest::newRow("elements follow")
            << "int. gauge house\nThe pen moves.\n\tann\nNo.\n\tbob"
            << QStringList{"Scene Heading: INT. GAUGE HOUSE", "Action: The pen moves.",
                           "Character: ANN", "Dialogue: No.", "Character: BOB"};
        QTest::newRow("parenthetical") << "x\n\tann\n\tlow\nNo."
                                       << QStringList{"Scene Heading: X", "Character: ANN",
                                                      "Parenthetical: (low)", "Dialogue: No."};
        QTest::newRow("completed")
            << "x\n\tanna\nNo.\n\ta\nYes."
            << QStringList{"Scene Heading: X", "Character: ANNA", "Dialogue: No.",
                           "Character: ANNA", "Dialogue: Yes."};
        QTest::newRow("completion refused")
            << "x\n\tanna\nNo.\n\ta\033\nYes."
            << QStringList{"Scene Heading: X", "Character: ANNA", "Dialogue: No.", "Character: A",
                           "Dialogue: Yes."};
        QTest::newRow("a name within another")
            << "x\n\tann\nNo.\n\tanna\nYes.\n\tann\nO."
            << QStringList{"Scene Heading: X", "Character: ANN", "Dialogue: No.", "Character: ANNA",
                           "Dialogue: Yes.",   "Character: ANN", "Dialogue: O."};
    }
    void scriptKeys()
    {
        QFETCH(QString, typed);
        ScriptEditor editor;
        editor.show();
        editor.type(typed);
        QTEST(editor.elements(), "elements");
        // An element is one step, and so is a paragraph that Return has begun.
        const int paragraphs = editor.document()->blockCount();
        editor.script->setElement(0);
        editor.undo();
        QTEST(editor.elements(), "elements");
        editor.type("\n");
        QCOMPARE(editor.document()->blockCount(), paragraphs + 1);
        editor.undo();
        QTEST(editor.elements(), "elements");
    }
    // That the mode gives an empty document its element is no change; that its text went is one.
    void scriptModeAndChanges()
    {
        ScriptEditor editor;
        QVERIFY(!editor.document()->isModified());
        editor.type("x");
        editor.textCursor().deletePreviousChar();
        editor.document()->setModified(true);
        editor.script->setMode(editor.script->mode());
        QVERIFY(editor.document()->isModified());
    }
    // A paragraph that is divided stays what it is, in both halves.
    void scriptParagraphDivided()
    {
        ScriptEditor editor;
        editor.type("x\nThe pen moves.");
        for (int i = 0; i < 6; ++i) {
            editor.moveCursor(QTextCursor::Left);
        }
        editor.type("\n");
        QCOMPARE(editor.elements().mid(1), QStringList({"Action: The pen ", "Action: moves."}));
        editor.script->setMode(MRVScriptMode());
        QVERIFY(!editor.script->isActive());
        QCOMPARE(editor.script->currentElement(), -1);
    }
};

QTEST_MAIN(tst_Editor)
#include "tst_editor.moc"
