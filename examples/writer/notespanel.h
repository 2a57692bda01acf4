#pragma once

#include <document/mrvmarginnote.h>

#include <QTextCursor>
#include <QTimer>
#include <QVector>
#include <QWidget>

class ManuscriptEditor;
class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

/**
 * The comments and footnotes of a manuscript beside it: the one at the caret is selected, and its
 * text can be edited here.
 */
class NotesPanel final : public QWidget
{
    Q_OBJECT

public:
    /** @param editor must live as long as the panel. */
    explicit NotesPanel(ManuscriptEditor *editor, QWidget *parent = nullptr);

public Q_SLOTS:
    /**
     * Adds a note to the selection, or to the word at the caret, and begins to edit it; edits the
     * note that the caret is in, or all of the selection has, whichever kind that is.
     */
    void addComment();
    void addFootnote();
    /**
     * Puts what was typed into the manuscript. It waits for a pause in typing otherwise, since a
     * note may be on a long text: call this before the manuscript is saved or closed.
     */
    void commit();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void add(MRVMarginNote::Kind kind);
    void removeNote();
    void readLater();
    void readNotes();
    void followCaret();
    void showNote(const MRVMarginNote &note);
    void goToNote(int row);
    void show(const QString &id);
    QString text() const;
    void markNotes();

    ManuscriptEditor *m_editor;
    QListWidget *m_list;
    QLabel *m_title;
    QPlainTextEdit *m_text;
    QPushButton *m_remove;
    QTimer m_reading;
    QTimer m_marking;
    QTimer m_committing;
    QVector<MRVMarginNote> m_notes;
    MRVMarginNote m_shown;
    bool m_isChanged = false; // what m_text shows is not in the manuscript yet
    QTextCursor m_place; // in the text of the note that is shown
};
