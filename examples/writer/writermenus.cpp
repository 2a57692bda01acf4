#include "findbar.h"
#include "manuscripteditor.h"
#include "notespanel.h"
#include "preferencesdialog.h"
#include "shortcuteditor.h"
#include "updates.h"
#include "writerwindow.h"

#include <archive/mrvrecovery.h>
#include <editor/mrvscriptwriting.h>
#include <options/mrvoptions.h>
#include <shortcuts/mrvshortcutscheme.h>
#include <state/mrvapplicationstate.h>
#include <state/mrvtextpresetmgr.h>

#include <QActionGroup>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QToolBar>

#include <algorithm>

using Id = MRVShortcut::Id;

QAction *WriterWindow::addCommand(QMenu *menu, Id id, const QString &text,
                                  const std::function<void()> &run)
{
    QAction *action = menu->addAction(text);
    action->setObjectName(QLatin1String(MRVShortcut::valueToKey(id)));
    connect(action, &QAction::triggered, this, [this, run] {
        m_notes->commit(); // a shortcut takes the focus from no note
        run();
    });
    m_actions.insert(id, action);
    return action;
}

void WriterWindow::addMenus()
{
    addFileMenu();
    addEditMenu();
    addFormatMenu();
    addInsertMenu();
    addScriptMenu();
    addViewMenu();
    addHelpMenu();
    addToolBars();
}

void WriterWindow::addFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    addCommand(menu, Id::NewProject, tr("&New"), [] { (new WriterWindow)->show(); });
    addCommand(menu, Id::OpenProject, tr("&Open..."), [this] { open(); });
    QMenu *recent = menu->addMenu(tr("Open &Recent"));
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecent(recent); });
    menu->addSeparator();
    addCommand(menu, Id::Save, tr("&Save"), [this] { save(); });
    addCommand(menu, Id::SaveAs, tr("Save &As..."), [this] { saveAs(); });
    addCommand(menu, Id::ExportFiles, tr("&Export..."), [this] { exportFile(); });
    menu->addSeparator();
    addCommand(menu, Id::CloseProject, tr("&Close"), [this] { close(); });
    QAction *quit = menu->addAction(tr("&Quit"), qApp, &QApplication::closeAllWindows);
    quit->setObjectName(QStringLiteral("Quit"));
}

void WriterWindow::addEditMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Edit"));
    // They are for the text that has the focus: a note, what is looked for, or the manuscript.
    const auto edit = [this](const char *slot) {
        QWidget *focus = QApplication::focusWidget();
        const bool isField =
            qobject_cast<QLineEdit *>(focus) || qobject_cast<QPlainTextEdit *>(focus);
        QMetaObject::invokeMethod(isField ? focus : m_editor, slot);
    };
    addCommand(menu, Id::Undo, tr("&Undo"), [edit] { edit("undo"); });
    addCommand(menu, Id::Redo, tr("&Redo"), [edit] { edit("redo"); });
    menu->addSeparator();
    addCommand(menu, Id::Cut, tr("Cu&t"), [edit] { edit("cut"); });
    addCommand(menu, Id::Copy, tr("&Copy"), [edit] { edit("copy"); });
    addCommand(menu, Id::Paste, tr("&Paste"), [edit] { edit("paste"); });
    addCommand(menu, Id::SelectAll, tr("Select &All"), [edit] { edit("selectAll"); });
    menu->addSeparator();
    addCommand(menu, Id::FindDialog, tr("&Find and Replace"), [this] { m_findBar->open(); });
    addCommand(menu, Id::FindNext, tr("Find &Next"), [this] { m_findBar->findNext(); });
    addCommand(menu, Id::FindPrevious, tr("Find Pre&vious"), [this] { m_findBar->findPrevious(); });
    menu->addSeparator();
    addCommand(menu, Id::Preferences, tr("Pr&eferences..."),
               [this] { PreferencesDialog(this).exec(); });
    QAction *keys = menu->addAction(tr("&Keyboard Shortcuts..."), this,
                                    [this] { ShortcutEditor(m_actions, this).exec(); });
    keys->setObjectName(QStringLiteral("KeyboardShortcuts"));
}

void WriterWindow::addFormat(QMenu *menu, Id id, const QString &text,
                             const std::function<void(QTextCharFormat *, bool)> &set)
{
    QAction *action = addCommand(menu, id, text, [] {});
    action->setCheckable(true);
    connect(action, &QAction::triggered, this, [this, set](bool isOn) {
        QTextCharFormat format;
        set(&format, isOn);
        m_editor->mergeFormat(format);
    });
}

void WriterWindow::addFormatMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("F&ormat"));
    addFormat(menu, Id::Bold, tr("&Bold"), [](QTextCharFormat *format, bool isOn) {
        format->setFontWeight(isOn ? QFont::Bold : QFont::Normal);
    });
    addFormat(menu, Id::Italic, tr("&Italic"),
              [](QTextCharFormat *format, bool isOn) { format->setFontItalic(isOn); });
    addFormat(menu, Id::Underlined, tr("&Underline"),
              [](QTextCharFormat *format, bool isOn) { format->setFontUnderline(isOn); });
    addFormat(menu, Id::StrikeThrough, tr("&Strikethrough"),
              [](QTextCharFormat *format, bool isOn) { format->setFontStrikeOut(isOn); });
    menu->addSeparator();
    QMenu *presets = menu->addMenu(tr("&Presets"));
    presets->setObjectName(QStringLiteral("Presets"));
    connect(presets, &QMenu::aboutToShow, this, [this, presets] { fillPresets(presets); });
    menu->addSeparator();
    const auto addList = [this, menu](const char *name, const QString &text,
                                      QTextListFormat::Style style) {
        QAction *action =
            menu->addAction(text, this, [this, style] { m_editor->toggleList(style); });
        action->setObjectName(QLatin1String(name));
    };
    addList("BulletedList", tr("Bulleted &List"), QTextListFormat::ListDisc);
    addList("NumberedList", tr("&Numbered List"), QTextListFormat::ListDecimal);
    addCommand(menu, Id::IncreaseLeftIndent, tr("&Move Item Inward"),
               [this] { m_editor->changeListLevel(1); });
    addCommand(menu, Id::DecreaseLeftIndent, tr("Move Item &Outward"),
               [this] { m_editor->changeListLevel(-1); });
}

void WriterWindow::fillPresets(QMenu *menu)
{
    menu->clear();
    const MRVTextPresetScheme scheme = MRVTextPresetMgr::instance()->presetScheme();
    for (const QString &name : scheme.names()) {
        // An ampersand would be taken for a mnemonic.
        QAction *action = menu->addAction(
            QString(name).replace(u'&', QLatin1String("&&")), this,
            [this, preset = scheme.preset(name)] { m_editor->applyPreset(preset); });
        action->setObjectName(name);
    }
}

void WriterWindow::addInsertMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Insert"));
    addCommand(menu, Id::Comment, tr("&Comment"), [this] { m_notes->addComment(); });
    addCommand(menu, Id::Footnote, tr("&Footnote"), [this] { m_notes->addFootnote(); });
    addCommand(menu, Id::InsertImage, tr("&Picture..."), [this] { insertPicture(); });
}

void WriterWindow::addScriptMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Script"));
    menu->setObjectName(QStringLiteral("ScriptMenu"));
    m_modes = new QActionGroup(this);
    const auto addMode = [this, menu](const QString &text, const QString &name) {
        QAction *action = menu->addAction(text, this, [this, name] { setScriptMode(name); });
        action->setCheckable(true);
        action->setData(name);
        m_modes->addAction(action);
    };
    addCommand(menu, Id::ScriptElementsPopup, tr("&Element..."), [this] {
        m_elements->setFocus();
        m_elements->showPopup();
    });
    menu->addSeparator();
    addMode(tr("&Prose"), QString());
    menu->addSeparator();
    const QStringList names =
        MRVScriptMode::systemModes().keys() + MRVScriptMode::userModes().keys();
    for (const QString &name : names) {
        addMode(name, name);
    }
}

void WriterWindow::addViewMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&View"));
    menu->addAction(findChild<QDockWidget *>(QStringLiteral("NotesDock"))->toggleViewAction());
    QAction *fullScreen = addCommand(menu, Id::ToggleFullScreen, tr("&Full Screen"), [this] {
        setWindowState(windowState() ^ Qt::WindowFullScreen);
    });
    fullScreen->setCheckable(true);
}

void WriterWindow::addHelpMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    Updates::addTo(menu);
    menu->addAction(tr("&About"), this, &WriterWindow::about)
        ->setObjectName(QStringLiteral("About"));
}

void WriterWindow::addToolBars()
{
    QToolBar *bar = addToolBar(tr("Format"));
    bar->setObjectName(QStringLiteral("FormatBar"));
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (Id id : {Id::Bold, Id::Italic, Id::Underlined, Id::StrikeThrough, Id::Comment,
                  Id::Footnote, Id::FindDialog}) {
        bar->addAction(action(id));
    }
    m_elements = new QComboBox(bar);
    m_elements->setObjectName(QStringLiteral("ScriptElements"));
    m_elements->setAccessibleName(tr("Script element"));
    m_elements->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_elements->setFocusPolicy(Qt::ClickFocus);
    connect(m_elements, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        m_editor->script()->setElement(index);
        m_editor->setFocus();
    });
    bar->addWidget(m_elements)->setObjectName(QStringLiteral("ScriptElementsAction"));
}

void WriterWindow::fillRecent(QMenu *menu)
{
    menu->clear();
    for (const QString &path : MRVApplicationState::instance()->recentProjectList()) {
        menu->addAction(QDir::toNativeSeparators(path).replace(u'&', QLatin1String("&&")), this,
                        [this, path] { openFile(path); });
    }
}

void WriterWindow::readOptions()
{
    m_recovery->setInterval(mrvOptions()->value(MRVOptions::SaveInterval));
    const MRVShortcutScheme scheme = mrvOptions()->shortcutScheme();
    for (auto it = m_actions.cbegin(); it != m_actions.cend(); ++it) {
        it.value()->setShortcut(scheme.shortcut(it.key()));
    }
    // It is no command of the scheme: where the user gave its key to one, that has it.
    const auto isTaken = [](const QAction *action) {
        return action->shortcut() == QKeySequence(QKeySequence::Quit);
    };
    findChild<QAction *>(QStringLiteral("Quit"))
        ->setShortcut(std::any_of(m_actions.cbegin(), m_actions.cend(), isTaken)
                          ? QKeySequence()
                          : QKeySequence(QKeySequence::Quit));
}

void WriterWindow::showFormat(const QTextCharFormat &format)
{
    action(Id::Bold)->setChecked(format.fontWeight() > QFont::Normal);
    action(Id::Italic)->setChecked(format.fontItalic());
    action(Id::Underlined)->setChecked(format.fontUnderline());
    action(Id::StrikeThrough)->setChecked(format.fontStrikeOut());
}
