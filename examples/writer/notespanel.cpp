#include "notespanel.h"

#include "manuscripteditor.h"

#include <document/mrvmarginnotes.h>
#include <gui/mrvguiutil.h>
#include <options/mrvoptions.h>

#include <QDockWidget>
#include <QElapsedTimer>
#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace {

QString kindName(MRVMarginNote::Kind kind)
{
    return kind == MRVMarginNote::Footnote ? NotesPanel::tr("Footnote") : NotesPanel::tr("Comment");
}

} // namespace

NotesPanel::NotesPanel(ManuscriptEditor *editor, QWidget *parent)
    : QWidget(parent)
    , m_editor(editor)
    , m_list(new QListWidget(this))
    , m_title(new QLabel(this))
    , m_text(new QPlainTextEdit(this))
    , m_remove(new QPushButton(tr("&Remove Note"), this))
{
    setObjectName(QStringLiteral("NotesPanel"));
    m_list->setObjectName(QStringLiteral("Notes"));
    m_list->setAccessibleName(tr("Comments and footnotes"));
    m_list->setUniformItemSizes(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // long notes are elided
    m_text->setObjectName(QStringLiteral("NoteText"));
    m_text->setAccessibleName(tr("Text of the note"));
    m_text->setTabChangesFocus(true);
    m_remove->setObjectName(QStringLiteral("RemoveNote"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 2);
    layout->addWidget(m_title);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_remove);

    m_reading.setSingleShot(true);
    connect(&m_reading, &QTimer::timeout, this, &NotesPanel::readNotes);
    connect(m_editor, &QTextEdit::textChanged, this, &NotesPanel::readLater);
    connect(m_editor, &QTextEdit::cursorPositionChanged, this, &NotesPanel::followCaret);
    connect(m_list, &QListWidget::currentRowChanged, this, &NotesPanel::goToNote);
    connect(m_text, &QPlainTextEdit::textChanged, this, [this] {
        m_isChanged = true;
        m_committing.start(300);
    });
    m_text->installEventFilter(this);
    m_committing.setSingleShot(true);
    connect(&m_committing, &QTimer::timeout, this, &NotesPanel::commit);
    connect(m_remove, &QPushButton::clicked, this, &NotesPanel::removeNote);
    m_marking.setSingleShot(true);
    connect(&m_marking, &QTimer::timeout, this, &NotesPanel::markNotes);
    connect(m_editor->verticalScrollBar(), &QScrollBar::valueChanged, this,
            [this] { m_marking.start(0); });
    showNote(MRVMarginNote());
}

void NotesPanel::addComment()
{
    add(MRVMarginNote::Comment);
}

void NotesPanel::addFootnote()
{
    add(MRVMarginNote::Footnote);
}

void NotesPanel::add(MRVMarginNote::Kind kind)
{
    commit();
    for (QWidget *widget = parentWidget(); widget; widget = widget->parentWidget()) {
        if (auto *dock = qobject_cast<QDockWidget *>(widget)) {
            dock->show();
            dock->raise();
        }
    }
    const QTextCursor cursor = m_editor->textCursor();
    const bool isNote = MRVMarginNotes::around(cursor).kind != MRVMarginNote::None;
    if (!isNote || cursor.hasSelection()) {
        show(MRVMarginNotes::add(cursor, kind, QString(), qEnvironmentVariable("USER"),
                                 QDateTime::currentDateTime().toString(Qt::ISODate)));
    }
    if (m_shown.kind == MRVMarginNote::None) {
        m_title->setText(tr("There is no text here for a note"));
    } else {
        m_text->setFocus();
        m_text->moveCursor(QTextCursor::End);
    }
}

// The caret stays where it is unless it is at another note.
void NotesPanel::show(const QString &id)
{
    readNotes();
    const auto added = std::find_if(m_notes.cbegin(), m_notes.cend(),
                                    [&id](const MRVMarginNote &note) { return note.id == id; });
    if (!id.isEmpty() && m_shown.id != id && added != m_notes.cend()) {
        goToNote(int(added - m_notes.cbegin()));
    }
}

void NotesPanel::removeNote()
{
    commit();
    MRVMarginNotes::remove(m_place);
    readNotes();
    m_editor->setFocus();
}

// The list follows pauses in typing; of a long manuscript, it takes a tenth of the time at most.
void NotesPanel::readLater()
{
    if (!m_reading.isActive()) {
        m_reading.start(qMax(200, m_reading.interval()));
    }
}

void NotesPanel::readNotes()
{
    QElapsedTimer timer;
    timer.start();
    m_notes = MRVMarginNotes::all(m_editor->document());
    const QSignalBlocker blocker(m_list);
    m_list->clear();
    for (const MRVMarginNote &note : qAsConst(m_notes)) {
        m_list->addItem(
            tr("%1: %2", "Comment: its text").arg(kindName(note.kind), note.text.simplified()));
    }
    m_reading.setInterval(int(timer.elapsed()) * 10);
    followCaret();
    m_marking.start(0);
}

void NotesPanel::followCaret()
{
    commit();
    const MRVMarginNote note = MRVMarginNotes::around(m_editor->textCursor());
    // A copy of its text has the same id, and the list may be older than the last keys.
    int row = -1;
    int nearest = std::numeric_limits<int>::max();
    for (int i = 0; note.kind != MRVMarginNote::None && i < m_notes.size(); ++i) {
        const int distance = qAbs(m_notes.at(i).range.start() - note.range.start());
        if (m_notes.at(i).id == note.id && distance < nearest) {
            row = i;
            nearest = distance;
        }
    }
    const QSignalBlocker blocker(m_list);
    m_list->setCurrentRow(row);
    showNote(note);
}

void NotesPanel::showNote(const MRVMarginNote &note)
{
    const bool isNote = note.kind != MRVMarginNote::None;
    m_title->setText(isNote ? kindName(note.kind) : tr("No note at the caret"));
    m_text->setEnabled(isNote);
    m_remove->setEnabled(isNote);
    if (text() != note.text || m_shown.id != note.id) {
        const QSignalBlocker blocker(m_text);
        m_text->setPlainText(note.text);
    }
    m_shown = note;
    m_place = QTextCursor(m_editor->document());
    m_place.setPosition(note.range.start());
}

void NotesPanel::goToNote(int row)
{
    if (row < 0 || row >= m_notes.size()) {
        return;
    }
    QTextCursor cursor(m_editor->document());
    cursor.setPosition(m_notes.at(row).range.start());
    m_editor->setTextCursor(cursor);
    m_editor->ensureCursorVisible();
}

bool NotesPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut) {
        commit();
    }
    return QWidget::eventFilter(watched, event);
}

// As it was typed: toPlainText() makes ordinary blanks of no-break spaces.
QString NotesPanel::text() const
{
    return m_text->document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n');
}

void NotesPanel::commit()
{
    if (!m_isChanged) {
        return;
    }
    m_isChanged = false;
    m_committing.stop();
    const MRVMarginNote note = MRVMarginNotes::around(m_place);
    if (note.kind == m_shown.kind && note.id == m_shown.id) {
        MRVMarginNotes::setText(m_place, text());
    }
}

void NotesPanel::markNotes()
{
    const MRVOptions *options = mrvOptions();
    const MRVTextRange shown = m_editor->visibleRange();
    QList<QTextEdit::ExtraSelection> marks;
    for (const MRVMarginNote &note : qAsConst(m_notes)) {
        if (note.range.end() < shown.start() || note.range.start() > shown.end()) {
            continue;
        }
        const bool isFootnote = note.kind == MRVMarginNote::Footnote;
        const QColor color =
            options->value(isFootnote ? MRVOptions::FootnotesPageColor : MRVOptions::CommentColor);
        marks.append(
            m_editor->markOf(note.range, color, MRVGuiUtil::textColorForBackground(color)));
        if (isFootnote) { // on a page that is nearly as light
            marks.last().format.setUnderlineStyle(QTextCharFormat::DashUnderline);
        }
    }
    m_editor->setMarks(ManuscriptEditor::NoteMarks, marks);
}
