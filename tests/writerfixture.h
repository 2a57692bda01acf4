#pragma once

#include "manuscripteditor.h"
#include "writerwindow.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <deque>
#include <functional>

/// Folders of this run alone for what the program keeps, so that runs side by side do not meet.
/// To be made before the application.
class OwnFolders
{
public:
    OwnFolders()
    {
        for (const char *name :
             {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "HOME", "XDG_RUNTIME_DIR"}) {
            qputenv(name, m_folder.path().toLocal8Bit());
        }
    }

private:
    QTemporaryDir m_folder;
};

/// Answers the dialogs that the program opens, in their order, as a user would. A dialog that
/// nobody expects is closed, and told by unexpected().
class Answers : public QObject
{
public:
    using Answer = std::function<void(QWidget *dialog)>;

    Answers()
    {
        connect(&m_timer, &QTimer::timeout, this, &Answers::look);
        m_timer.start(5);
    }

    /// A file dialog gets a path, and is accepted.
    void add(const QString &path)
    {
        add([path](QWidget *dialog) {
            auto *files = qobject_cast<QFileDialog *>(dialog);
            QVERIFY2(files, dialog->metaObject()->className());
            dialog->findChild<QLineEdit *>("fileNameEdit")->setText(path);
            const bool isSave = files->acceptMode() == QFileDialog::AcceptSave;
            click(dialog, isSave ? QDialogButtonBox::Save : QDialogButtonBox::Open);
        });
    }
    /// A button of a message box, or of another dialog, is pressed.
    void add(QDialogButtonBox::StandardButton button)
    {
        add([button](QWidget *dialog) { click(dialog, button); });
    }
    void add(const Answer &answer) { m_answers.push_back(answer); }

    static void click(QWidget *dialog, QDialogButtonBox::StandardButton button)
    {
        auto *buttons = dialog->findChild<QDialogButtonBox *>();
        QVERIFY(buttons);
        QVERIFY2(buttons->button(button), dialog->metaObject()->className());
        buttons->button(button)->click();
    }

    /// Whether all answers have been given.
    bool isDone() const { return m_answers.empty(); }
    /// What the message boxes have said.
    QString said() const { return m_said; }
    QString unexpected() const { return m_unexpected; }

private:
    void look()
    {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible() || qobject_cast<QProgressDialog *>(dialog)) {
            return;
        }
        if (dialog->property("isAnswered").toBool()) { // also one that opened another meanwhile
            if (m_since.hasExpired(Patience)) { // the answer was none, and the program waits
                m_unexpected += "still there: " + dialog->windowTitle() + '\n';
                static_cast<QDialog *>(dialog)->reject();
            }
            return;
        }
        dialog->setProperty("isAnswered", true);
        m_since.start();
        QString text = dialog->windowTitle();
        if (auto *box = qobject_cast<QMessageBox *>(dialog)) {
            text = box->text() + '\n' + box->informativeText() + '\n' + box->detailedText();
        }
        m_said += text + '\n';
        if (m_answers.empty()) {
            m_unexpected += text + '\n';
            static_cast<QDialog *>(dialog)->reject();
            return;
        }
        // Not from here: the timer stands still while a dialog that this opens is shown.
        const auto give = [answer = m_answers.front(), asked = QPointer<QWidget>(dialog)] {
            if (asked) {
                answer(asked);
            }
        };
        m_answers.pop_front();
        QMetaObject::invokeMethod(this, give, Qt::QueuedConnection);
    }

    static constexpr int Patience = 30000; // milliseconds

    QTimer m_timer;
    QElapsedTimer m_since;
    std::deque<Answer> m_answers;
    QString m_said;
    QString m_unexpected;
};

/// A new window that is shown and active.
inline QPointer<WriterWindow> newWindow()
{
    auto *window = new WriterWindow;
    window->show();
    QApplication::setActiveWindow(window);
    return QTest::qWaitForWindowActive(window) ? window : nullptr;
}

/// Closes all windows without saving.
inline void closeAll()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *widget : windows) {
        if (auto *window = qobject_cast<WriterWindow *>(widget)) {
            window->editor()->document()->setModified(false);
            window->close();
        }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

template<typename Widget>
Widget *part(QWidget *window, const char *name)
{
    auto *found = window->findChild<Widget *>(name);
    if (!found) {
        QTest::qFail(name, __FILE__, __LINE__);
    }
    return found;
}

/// Selects what stands first in the text.
inline bool selectText(ManuscriptEditor *editor, const QString &text)
{
    const QTextCursor found = editor->document()->find(text, 0, QTextDocument::FindCaseSensitively);
    if (!found.isNull()) {
        editor->setTextCursor(found);
    }
    return !found.isNull();
}
