#include "clipboard/mrvdocumentmimedata.h"
#include "support.h"
#include "textformat/mrvtextformat.h"
#include "writerfixture.h"

#include <QClipboard>
#include <QMimeData>

using Id = MRVShortcut::Id;

namespace {

constexpr char CopyArgument[] = "--copy"; // shows text with a comment, and copies it when told to

/// Sends keys and movements of the mouse through the X server, as devices do, while the program
/// goes on.
void input(const QStringList &arguments)
{
    QProcess tool;
    tool.start(programPath("xdotool"), arguments);
    QTRY_COMPARE_WITH_TIMEOUT(tool.state(), QProcess::NotRunning, 60000);
    QCOMPARE(tool.exitCode(), 0);
}

void keys(const QStringList &names)
{
    input(QStringList{"key", "--clearmodifiers"} + names);
}

void type(const QString &text)
{
    input({"type", "--clearmodifiers", "--delay", "1", text});
}

QStringList moveTo(const QWidget *widget, const QPoint &point)
{
    const QPoint place = widget->mapToGlobal(point);
    return {"mousemove", "--sync", QString::number(place.x()), QString::number(place.y())};
}

QStringList moveTo(ManuscriptEditor *editor, int position)
{
    QTextCursor cursor(editor->document());
    cursor.setPosition(position);
    return moveTo(editor->viewport(), editor->cursorRect(cursor).center());
}

int runAsOther()
{
    QPointer<WriterWindow> window = newWindow();
    if (!window) {
        return 1;
    }
    QTextCharFormat comment;
    comment.setProperty(MRVTextFormat::InspectorCommentProperty, true);
    comment.setProperty(MRVTextFormat::CommentData0, "from elsewhere");
    window->editor()->textCursor().insertText("other words", comment);
    window->action(Id::SelectAll)->trigger();
    window->action(Id::Copy)->trigger();
    ::puts("copied");
    ::fflush(stdout);
    return QApplication::exec(); // the clipboard's contents are this program's
}

} // namespace

/**
 * The writing program on a desktop: with keys, a mouse and a clipboard of the X server, and a
 * window manager that decides about the focus.
 */
class tst_WriterDesktop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { closeAll(); }

    void focus()
    {
        QPointer<WriterWindow> first = newWindow();
        QVERIFY(first);
        first->setGeometry(20, 60, 500, 500);
        type("One.");
        QTRY_COMPARE(first->editor()->toPlainText(), QString("One."));
        QPointer<WriterWindow> second = newWindow();
        QVERIFY(second);
        second->setGeometry(600, 60, 500, 500);
        type("Two.");
        QTRY_COMPARE(second->editor()->toPlainText(), QString("Two."));
        // A click into the other one.
        QTRY_VERIFY(!first->geometry().intersects(second->geometry()));
        input(moveTo(first->editor(), 4) + QStringList{"click", "1"});
        QTRY_VERIFY(first->isActiveWindow());
        type(" More.");
        QTRY_COMPARE(first->editor()->toPlainText(), QString("One. More."));
        QCOMPARE(second->editor()->toPlainText(), QString("Two."));
        // The find bar takes the focus, and gives it back.
        keys({"ctrl+f"});
        QTRY_VERIFY(part<QLineEdit>(first, "FindText")->hasFocus());
        keys({"Escape"});
        QTRY_VERIFY(first->editor()->hasFocus());
        type(" End.");
        QTRY_COMPARE(first->editor()->toPlainText(), QString("One. More. End."));
    }

    void menusWithTheKeyboard()
    {
        QPointer<WriterWindow> window = newWindow();
        QVERIFY(window);
        type("word");
        keys({"ctrl+a"});
        QTRY_VERIFY(window->editor()->textCursor().hasSelection());
        keys({"alt+o"});
        QTRY_VERIFY(QApplication::activePopupWidget());
        keys({"b"});
        QTRY_VERIFY(!QApplication::activePopupWidget());
        QTRY_COMPARE(window->editor()->textCursor().charFormat().fontWeight(), int(QFont::Bold));
        // From one menu to the next by the arrows, and out of them.
        keys({"alt+o"});
        QTRY_VERIFY(QApplication::activePopupWidget());
        const QWidget *before = QApplication::activePopupWidget();
        keys({"Left"});
        QTRY_VERIFY(QApplication::activePopupWidget()
                    && QApplication::activePopupWidget() != before);
        keys({"Escape"});
        QTRY_VERIFY(!QApplication::activePopupWidget());
        keys({"Escape"}); // the first one leaves the menu, and this one the bar
        QTRY_VERIFY(window->editor()->hasFocus());
    }

    void dragAndDrop()
    {
        QPointer<WriterWindow> window = newWindow();
        QVERIFY(window);
        ManuscriptEditor *editor = window->editor();
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        editor->textCursor().insertText("moved", bold);
        editor->textCursor().insertText(" stays here", QTextCharFormat());
        QVERIFY(selectText(editor, "moved"));
        input(moveTo(editor, 2) + QStringList{"mousedown", "1"} + moveTo(editor, 9)
              + moveTo(editor, 12) + moveTo(editor, 16) + QStringList{"mouseup", "1"});
        QTRY_VERIFY2(editor->toPlainText() == " stays heremoved",
                     qPrintable(editor->toPlainText()));
        QVERIFY(selectText(editor, "moved"));
        QCOMPARE(editor->textCursor().charFormat().fontWeight(), int(QFont::Bold));
        keys({"ctrl+z"});
        QTRY_COMPARE(editor->toPlainText(), QString("moved stays here"));
    }

    void clipboardBetweenWindows()
    {
        QPointer<WriterWindow> first = newWindow();
        QVERIFY(first);
        type("shared");
        keys({"ctrl+a", "ctrl+b", "ctrl+c"});
        QTRY_VERIFY(MRVDocumentMimeData::hasFragment(QApplication::clipboard()->mimeData()));
        QPointer<WriterWindow> second = newWindow();
        QVERIFY(second);
        keys({"ctrl+v"});
        QTRY_COMPARE(second->editor()->toPlainText(), first->editor()->toPlainText());
        QVERIFY(second->editor()->toPlainText().compare("shared", Qt::CaseInsensitive) == 0);
        QTRY_COMPARE(second->editor()->textCursor().charFormat().fontWeight(), int(QFont::Bold));
    }

    void clipboardBetweenProcesses()
    {
        QProcess other;
        other.start(QCoreApplication::applicationFilePath(), {CopyArgument});
        QTRY_VERIFY_WITH_TIMEOUT(other.canReadLine(), 60000);
        QCOMPARE(other.readLine().trimmed(), QByteArray("copied"));
        QPointer<WriterWindow> window = newWindow();
        QVERIFY(window);
        QTRY_VERIFY(MRVDocumentMimeData::hasFragment(QApplication::clipboard()->mimeData()));
        keys({"ctrl+v"});
        QTRY_COMPARE(window->editor()->toPlainText(), QString("other words"));
        QTextCursor cursor = window->editor()->textCursor();
        QCOMPARE(cursor.charFormat().stringProperty(MRVTextFormat::CommentData0),
                 QString("from elsewhere"));
        other.kill();
        QVERIFY(other.waitForFinished(60000));
    }
};

int main(int argc, char *argv[])
{
    const OwnFolders folders;
    QApplication application(argc, argv);
    if (argc == 2 && QByteArray(argv[1]) == CopyArgument) {
        return runAsOther();
    }
    tst_WriterDesktop test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}

#include "tst_writerdesktop.moc"
