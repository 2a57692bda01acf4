#pragma once

#include "manuscriptfile.h"

#include <shortcuts/mrvshortcut.h>

#include <QMainWindow>
#include <QMap>
#include <QTimer>

#include <functional>
#include <memory>

class FindBar;
class ManuscriptEditor;
class MRVDocumentCounts;
class MRVRecovery;
class NotesPanel;
class QActionGroup;
class QComboBox;
class QLabel;
class QTextCharFormat;
struct MRVError;
struct MRVRecoveredFile;

/** The window of one manuscript. Closing it closes the manuscript. */
class WriterWindow final : public QMainWindow
{
    Q_OBJECT

public:
    explicit WriterWindow(QWidget *parent = nullptr);
    ~WriterWindow() override;

    ManuscriptEditor *editor() const { return m_editor; }
    /** The action of a command, which carries its shortcut; null for one that is not here. */
    QAction *action(MRVShortcut::Id id) const { return m_actions.value(id); }

    /** Shows a file in this window, or in a new one where this has another manuscript. */
    bool openFile(const QString &path);
    /** Offers what a crash has left behind, each in a window of its own. */
    void offerRecovery();

public Q_SLOTS:
    void open();
    /** @return false where the manuscript is not saved. */
    bool save();
    bool saveAs();
    void exportFile();
    void insertPicture();
    void about();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    // writermenus.cpp
    void addMenus();
    void addFileMenu();
    void addEditMenu();
    void addFormatMenu();
    void addInsertMenu();
    void addScriptMenu();
    void addViewMenu();
    void addHelpMenu();
    void addToolBars();
    QAction *addCommand(QMenu *menu, MRVShortcut::Id id, const QString &text,
                        const std::function<void()> &run);
    void addFormat(QMenu *menu, MRVShortcut::Id id, const QString &text,
                   const std::function<void(QTextCharFormat *, bool)> &set);
    void fillPresets(QMenu *menu);
    void fillRecent(QMenu *menu);
    void readOptions();
    void showFormat(const QTextCharFormat &format);

    // writerfiles.cpp
    void take(std::unique_ptr<QTextDocument> document, bool isUnsaved);
    bool load(const QString &path, const MRVRecoveredFile *recovered);
    static WriterWindow *windowOf(const QString &path);
    bool saveTo(const QString &name);
    bool mayDiscard();
    bool isUntouched() const;
    void tell(const QString &text, const QStringList &details);
    void fail(const QString &text, const MRVError &error);

    // writerwindow.cpp
    void addStatusBar();
    void readState();
    void writeState();
    void setScriptMode(const QString &name);
    void showScriptMode();
    void countLater();
    void showCounts();
    void showPages();
    void showTitle();

    QMap<MRVShortcut::Id, QAction *> m_actions;
    ManuscriptEditor *m_editor;
    FindBar *m_findBar;
    NotesPanel *m_notes;
    MRVRecovery *m_recovery;
    ManuscriptFile m_file;
    QStringList m_acceptedLosses; // of the file, which the writer was asked about
    std::unique_ptr<MRVDocumentCounts> m_counts;
    QTimer m_counting;
    QTimer m_paginating;
    QLabel *m_countLabel = nullptr;
    QLabel *m_pageLabel = nullptr;
    QComboBox *m_elements = nullptr;
    QActionGroup *m_modes = nullptr;
};
