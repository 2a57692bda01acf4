#pragma once

#include <QDialog>
#include <QHash>
#include <QString>
#include <QVector>

class QDialogButtonBox;
class QLabel;
class QListWidget;
class QScrollArea;
class SearchField;
class SettingEditor;

/**
 * The preferences, made from what the library knows of its settings: a page a group, an editor a
 * setting, and a search over all of them.
 *
 * What the user changes is stored by OK and Apply, and forgotten by Cancel; MRVOptions then
 * announces the changed groups. Settings that others change meanwhile are shown as they are now,
 * unless the user has changed them here.
 */
class PreferencesDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit PreferencesDialog(QWidget *parent = nullptr);

    void accept() override;

private:
    QWidget *newPages();
    void showEditors();
    void goToFirst();
    void showStored();
    void enableApply();
    bool apply();

    SearchField *m_search;
    QListWidget *m_groups;
    QScrollArea *m_area;
    QLabel *m_nothing;
    QDialogButtonBox *m_buttons;
    QVector<SettingEditor *> m_editors; // in the order in which they are shown
    QHash<QString, QLabel *> m_titles; // of the groups
};
