#pragma once

#include <shortcuts/mrvshortcut.h>
#include <shortcuts/mrvshortcutscheme.h>

#include <QDialog>
#include <QList>
#include <QMap>

class QAction;
class QComboBox;
class QKeySequenceEdit;
class QLabel;
class QTreeWidget;
class SearchField;

/**
 * The keyboard shortcuts of the program's commands: which keys each one has, in which scheme.
 *
 * Keys that would not work are told as soon as they are pressed. Nothing is stored before OK; the
 * options then announce the group "Shortcut".
 */
class ShortcutEditor final : public QDialog
{
    Q_OBJECT

public:
    using Actions = QMap<MRVShortcut::Id, QAction *>;

    /** @param actions what the program has; the editor calls commands by their texts. */
    explicit ShortcutEditor(const Actions &actions, QWidget *parent = nullptr);

    /** Stores the scheme; where there are conflicts, if the user agrees. */
    void accept() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using Id = MRVShortcut::Id;

    void layOut();
    void fillTree(const Actions &actions);
    void addScheme(MRVShortcutScheme scheme);
    MRVShortcutScheme &scheme();
    /** The part of the scheme that the program has commands for; others cannot be in conflict. */
    MRVShortcutScheme schemeOfCommands();
    MRVShortcutScheme defaults();
    Id currentCommand() const;

    void find(const QString &words);
    void showCommand();
    void showKeys();
    void setKeys(const QKeySequence &keys);
    void resetAll();
    void importScheme();
    void saveSchemeAs();

    QMap<Id, QString> m_texts; // of the commands
    QList<MRVShortcutScheme> m_schemes; // as the box lists them
    QComboBox *m_box;
    SearchField *m_filter;
    QTreeWidget *m_tree;
    QKeySequenceEdit *m_keys;
    QWidget *m_keysRow;
    QLabel *m_conflicts; // of the current command
    QLabel *m_damage; // why not all of the stored scheme could be read
};
