#include "writerwindow.h"

#include "findbar.h"
#include "manuscripteditor.h"
#include "notespanel.h"

#include <archive/mrvrecovery.h>
#include <core/mrverror.h>
#include <editor/mrvscriptwriting.h>
#include <input/mrvguardeddocument.h>
#include <options/mrvoptions.h>
#include <screenplay/mrvscriptdocument.h>
#include <screenplay/mrvscriptpagination.h>
#include <state/mrvapplicationstate.h>
#include <text/mrvdocumentcounts.h>

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

const char geometryKey[] = "writer/geometry";
const char stateKey[] = "writer/state";

} // namespace

WriterWindow::WriterWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_editor(new ManuscriptEditor(this))
    , m_findBar(new FindBar(m_editor, this))
    , m_notes(new NotesPanel(m_editor, this))
    , m_recovery(new MRVRecovery(MRVRecovery::defaultFolder(), this))
{
    setObjectName(QStringLiteral("WriterWindow"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_editor, 1);
    layout->addWidget(m_findBar);
    setCentralWidget(page);
    auto *dock = new QDockWidget(tr("Comments and Footnotes"), this);
    dock->setObjectName(QStringLiteral("NotesDock"));
    dock->setWidget(m_notes);
    addDockWidget(Qt::RightDockWidgetArea, dock);
    addMenus();
    addStatusBar();
    readOptions();
    readState();

    connect(m_editor, &QTextEdit::currentCharFormatChanged, this, &WriterWindow::showFormat);
    connect(m_editor, &QTextEdit::selectionChanged, this, &WriterWindow::countLater);
    // Not in the middle of a drop, which opening might take the document away from.
    connect(m_editor, &ManuscriptEditor::openRequested, this, &WriterWindow::openFile,
            Qt::QueuedConnection);
    connect(m_editor, &ManuscriptEditor::pictureRefused, this,
            [this](const QString &name, const MRVError &error) {
                fail(tr("The picture %1 is not inserted.").arg(name), error);
            });
    connect(m_editor->script(), &MRVScriptWriting::modeChanged, this,
            &WriterWindow::showScriptMode);
    connect(m_editor->script(), &MRVScriptWriting::elementChanged, m_elements,
            &QComboBox::setCurrentIndex);
    connect(m_recovery, &MRVRecovery::failed, this, [this](const MRVError &error) {
        statusBar()->showMessage(tr("No copy can be kept for a crash: %1").arg(error.text));
    });
    connect(mrvOptions(), &MRVOptions::groupsChanged, this, &WriterWindow::readOptions);
    connect(mrvOptions(), &MRVOptions::settingsReset, this, &WriterWindow::readOptions);
    m_recovery->setArchive([this] { return m_file.archive(m_editor->script()->mode()); });
    connect(&m_counting, &QTimer::timeout, this, &WriterWindow::showCounts);
    m_paginating.setSingleShot(true);
    connect(&m_paginating, &QTimer::timeout, this, &WriterWindow::showPages);

    auto document = std::make_unique<MRVGuardedDocument>();
    document->setDefaultFont(mrvOptions()->value(MRVOptions::DefaultCharFormat).font());
    take(std::move(document), false);
    showScriptMode();
    m_editor->setFocus();
}

WriterWindow::~WriterWindow()
{
    m_counts.reset(); // before the document that it follows
}

void WriterWindow::addStatusBar()
{
    m_pageLabel = new QLabel(this);
    m_pageLabel->setObjectName(QStringLiteral("Pages"));
    m_countLabel = new QLabel(this);
    m_countLabel->setObjectName(QStringLiteral("Counts"));
    statusBar()->addPermanentWidget(m_pageLabel);
    statusBar()->addPermanentWidget(m_countLabel);
}

void WriterWindow::readState()
{
    const MRVApplicationState *state = MRVApplicationState::instance();
    if (!restoreGeometry(state->value(QLatin1String(geometryKey)).toByteArray())) {
        resize(QSize(1000, 700).boundedTo(screen()->availableSize()));
    }
    restoreState(state->value(QLatin1String(stateKey)).toByteArray());
}

void WriterWindow::writeState()
{
    MRVApplicationState *state = MRVApplicationState::instance();
    state->setValue(QLatin1String(geometryKey), saveGeometry());
    state->setValue(QLatin1String(stateKey), saveState());
}

void WriterWindow::closeEvent(QCloseEvent *event)
{
    m_notes->commit();
    if (mayDiscard()) {
        writeState();
        event->accept();
    } else {
        event->ignore();
    }
}

void WriterWindow::setScriptMode(const QString &name)
{
    m_editor->script()->setMode(ManuscriptFile::scriptMode(name));
    // A Morvane document says in which mode it is written.
    if (m_file.format() == ManuscriptFile::Native) {
        m_editor->document()->setModified(true);
    }
}

void WriterWindow::showScriptMode()
{
    const MRVScriptWriting *script = m_editor->script();
    const QString name = script->isActive() ? script->mode().name() : QString();
    for (QAction *action : m_modes->actions()) {
        action->setChecked(action->data().toString() == name);
    }
    m_elements->clear();
    for (const MRVScriptElement &element : script->mode().elements()) {
        m_elements->addItem(element.title());
    }
    m_elements->setCurrentIndex(script->currentElement());
    findChild<QAction *>(QStringLiteral("ScriptElementsAction"))->setVisible(script->isActive());
    action(MRVShortcut::ScriptElementsPopup)->setEnabled(script->isActive());
    m_pageLabel->setVisible(script->isActive());
    countLater();
}

// Counts go on while there is nothing else to do; pages wait for a pause, since all are laid out.
void WriterWindow::countLater()
{
    m_counting.start(0);
    if (m_editor->script()->isActive() && !m_paginating.isActive()) {
        m_paginating.start(qMax(500, m_paginating.interval()));
    }
}

void WriterWindow::showCounts()
{
    if (m_counts->advance(5)) {
        m_counting.stop();
    }
    MRVTextCounts counts = m_counts->counts();
    QString text = tr("%Ln word(s)", nullptr, counts.words) + QLatin1String("   ")
        + tr("%Ln character(s)", nullptr, counts.characters);
    const QTextCursor cursor = m_editor->textCursor();
    constexpr int LongestSelection = 1000000; // characters, whose count is no wait
    if (cursor.hasSelection()
        && cursor.selectionEnd() - cursor.selectionStart() < LongestSelection) {
        counts = MRVTextCounts::of(cursor.selectedText());
        text.prepend(tr("%Ln selected word(s)", nullptr, counts.words) + QLatin1String("   "));
    }
    m_countLabel->setText(text);
}

void WriterWindow::showPages()
{
    if (!m_editor->script()->isActive()) {
        return;
    }
    QElapsedTimer timer;
    timer.start();
    const MRVScriptWriting *writing = m_editor->script();
    const MRVScriptPagination pages(
        MRVScriptDocument::script(*m_editor->document(), writing->shownMode()), writing->mode());
    m_pageLabel->setText(tr("%Ln page(s)", nullptr, pages.pages().size()));
    // Of a long script, no more than a tenth of the time goes into its pages.
    m_paginating.setInterval(int(timer.elapsed()) * 10);
}

void WriterWindow::showTitle()
{
    setWindowTitle(m_file.name() + QLatin1String("[*]"));
    setWindowModified(m_editor->document()->isModified());
}

void WriterWindow::about()
{
    QMessageBox::about(this, tr("About Morvane Writer"),
                       tr("<h3>Morvane Writer %1</h3><p>A small writing program, which shows what "
                          "the base library of Morvane does for an application.</p>")
                           .arg(QApplication::applicationVersion()));
}
