#include "shortcuteditor.h"

#include "searchfield.h"

#include <options/mrvoptions.h>
#include <shortcuts/mrvshortcutcheck.h>
#include <state/mrvapplicationstate.h>

#include <QAction>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QStyle>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace {

enum Column { CommandColumn, KeysColumn };

const auto Suffix = QLatin1String("shortcuts");

// The text of an action without the marks that only menus need.
QString plainText(const QAction &action)
{
    QString text = action.text().remove(u'&');
    if (text.endsWith(QLatin1String("..."))) {
        text.chop(3);
    }
    return text;
}

MRVShortcut::Id idOf(const QTreeWidgetItem *item)
{
    return item ? MRVShortcut::Id(item->data(CommandColumn, Qt::UserRole).toInt())
                : MRVShortcut::NoId;
}

template<typename Function>
QPushButton *newButton(const char *name, const QString &text, ShortcutEditor *editor,
                       Function function)
{
    auto *const button = new QPushButton(text, editor);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, editor, function);
    return button;
}

} // namespace

ShortcutEditor::ShortcutEditor(const Actions &actions, QWidget *parent)
    : QDialog(parent)
    , m_box(new QComboBox(this))
    , m_filter(new SearchField(this))
    , m_tree(new QTreeWidget(this))
    , m_keys(new QKeySequenceEdit)
    , m_keysRow(new QWidget(this))
    , m_conflicts(new QLabel(this))
    , m_damage(new QLabel(this))
{
    setObjectName(QStringLiteral("ShortcutEditor"));
    setWindowTitle(tr("Keyboard Shortcuts"));
    layOut();
    fillTree(actions);

    QString error;
    addScheme(mrvOptions()->shortcutScheme(&error));
    const QList<MRVShortcutScheme> predefined = MRVShortcutScheme::predefinedSchemes();
    for (const MRVShortcutScheme &one : predefined) {
        if (one.name() != m_schemes.constFirst().name()) {
            addScheme(one);
        }
    }
    connect(m_box, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &ShortcutEditor::showCommand);
    connect(m_filter, &QLineEdit::textChanged, this, &ShortcutEditor::find);
    connect(m_filter, &QLineEdit::returnPressed, m_tree, qOverload<>(&QTreeWidget::setFocus));
    connect(m_tree, &QTreeWidget::currentItemChanged, this, &ShortcutEditor::showCommand);
    connect(m_keys, &QKeySequenceEdit::keySequenceChanged, this, &ShortcutEditor::setKeys);
    m_keys->installEventFilter(this);
    m_box->setCurrentIndex(0);
    showCommand();
    m_damage->setText(error);
    m_damage->setHidden(error.isEmpty());
    m_filter->setFocus();
    resize(QSize(560, 560).boundedTo(screen()->availableSize()));
}

void ShortcutEditor::layOut()
{
    m_box->setObjectName(QStringLiteral("scheme"));
    m_filter->setObjectName(QStringLiteral("filter"));
    m_tree->setObjectName(QStringLiteral("commands"));
    m_tree->setAccessibleName(tr("Commands"));
    m_keys->setObjectName(QStringLiteral("keys"));
    m_conflicts->setObjectName(QStringLiteral("conflicts"));
    m_conflicts->setWordWrap(true);
    m_damage->setObjectName(QStringLiteral("damage"));
    m_damage->setWordWrap(true);
    m_conflicts->setTextInteractionFlags(Qt::TextSelectableByMouse);

    QPushButton *const load =
        newButton("import", tr("&Import..."), this, &ShortcutEditor::importScheme);
    QPushButton *const save =
        newButton("saveAs", tr("Save &As..."), this, &ShortcutEditor::saveSchemeAs);
    setTabOrder(m_box, load);
    setTabOrder(load, save);
    setTabOrder(save, m_filter);
    auto *const schemeRow = new QHBoxLayout;
    schemeRow->addWidget(m_box, 1);
    schemeRow->addWidget(load);
    schemeRow->addWidget(save);
    auto *const keysRow = new QHBoxLayout(m_keysRow);
    keysRow->setContentsMargins(0, 0, 0, 0);
    keysRow->addWidget(m_keys, 1);
    keysRow->addWidget(newButton("clear", tr("&Clear"), this, [this] { m_keys->clear(); }));
    keysRow->addWidget(newButton("reset", tr("&Reset"), this, [this] {
        m_keys->setKeySequence(defaults().shortcut(currentCommand()));
    }));

    auto *const form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->addRow(tr("&Scheme:"), schemeRow);
    form->addRow(tr("&Find:"), m_filter);
    qobject_cast<QLabel *>(form->labelForField(schemeRow))->setBuddy(m_box);
    auto *const keysForm = new QFormLayout;
    keysForm->setRowWrapPolicy(QFormLayout::WrapLongRows);
    keysForm->addRow(tr("&Keys:"), m_keysRow);
    qobject_cast<QLabel *>(keysForm->labelForField(m_keysRow))->setBuddy(m_keys);

    auto *const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttons"));
    buttons->addButton(newButton("resetAll", tr("Reset A&ll"), this, &ShortcutEditor::resetAll),
                       QDialogButtonBox::ResetRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &ShortcutEditor::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ShortcutEditor::reject);

    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_damage);
    layout->addLayout(form);
    layout->addWidget(m_tree, 1);
    layout->addLayout(keysForm);
    layout->addWidget(m_conflicts);
    layout->addWidget(buttons);
}

void ShortcutEditor::fillTree(const Actions &actions)
{
    m_tree->setHeaderLabels({tr("Command"), tr("Keys")});
    QMap<QString, QTreeWidgetItem *> groups;
    for (auto it = actions.cbegin(); it != actions.cend(); ++it) {
        const QString group = MRVShortcut::group(it.key());
        if (!groups.contains(group)) {
            groups.insert(group, new QTreeWidgetItem(m_tree, {group}));
        }
        m_texts.insert(it.key(), plainText(*it.value()));
        auto *const item = new QTreeWidgetItem(groups.value(group), {m_texts.value(it.key())});
        item->setData(CommandColumn, Qt::UserRole, it.key());
    }
    m_tree->expandAll();
    m_tree->header()->setSectionResizeMode(CommandColumn, QHeaderView::ResizeToContents);
    m_tree->setCurrentItem(m_tree->topLevelItem(0)->child(0));
}

/** Adds a scheme to the box and selects it. */
void ShortcutEditor::addScheme(MRVShortcutScheme scheme)
{
    scheme.mergeMissingShortcuts(MRVShortcutScheme::morvane().shortcuts());
    for (auto it = m_texts.cbegin(); it != m_texts.cend(); ++it) {
        scheme.setShortcut(it.key(), {it.key(), scheme.shortcut(it.key()), it.value()});
    }
    m_schemes.append(scheme);
    m_box->addItem(scheme.name());
    m_box->setCurrentIndex(m_box->count() - 1);
}

MRVShortcutScheme &ShortcutEditor::scheme()
{
    return m_schemes[m_box->currentIndex()];
}

MRVShortcutScheme ShortcutEditor::schemeOfCommands()
{
    MRVShortcutScheme result(scheme().name());
    for (auto it = m_texts.cbegin(); it != m_texts.cend(); ++it) {
        result.setShortcut(it.key(), scheme().shortcutInfo(it.key()));
    }
    return result;
}

MRVShortcutScheme ShortcutEditor::defaults()
{
    return MRVShortcutScheme::predefinedScheme(scheme().name());
}

MRVShortcut::Id ShortcutEditor::currentCommand() const
{
    return idOf(m_tree->currentItem());
}

void ShortcutEditor::find(const QString &words)
{
    for (int i = 0; i < m_tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem *const group = m_tree->topLevelItem(i);
        bool isShown = false;
        for (int j = 0; j < group->childCount(); ++j) {
            QTreeWidgetItem *const item = group->child(j);
            item->setHidden(!scheme().shortcutInfo(idOf(item)).matchFilter(words));
            isShown = isShown || !item->isHidden();
        }
        group->setHidden(!isShown);
    }
    // Keys are never recorded for a command that nobody sees.
    QTreeWidgetItemIterator it(
        m_tree, QTreeWidgetItemIterator::NoChildren | QTreeWidgetItemIterator::NotHidden);
    m_tree->setCurrentItem(*it);
}

void ShortcutEditor::showCommand()
{
    const Id id = currentCommand();
    m_keysRow->setEnabled(MRVShortcut::isValid(id));
    const QSignalBlocker blocker(m_keys);
    m_keys->setKeySequence(scheme().shortcut(id));
    showKeys();
}

/** Shows the keys of all commands, and what is wrong with them. */
void ShortcutEditor::showKeys()
{
    const MRVShortcutScheme checked = schemeOfCommands();
    QMap<Id, QStringList> problems;
    const QList<MRVShortcutCheck::Conflict> conflicts = MRVShortcutCheck::conflicts(checked);
    for (const MRVShortcutCheck::Conflict &conflict : conflicts) {
        const QString text = MRVShortcutCheck::describe(conflict, checked);
        problems[conflict.id].append(text);
        problems[conflict.other].append(text);
    }
    const QIcon warning = style()->standardIcon(QStyle::SP_MessageBoxWarning);
    for (QTreeWidgetItemIterator it(m_tree, QTreeWidgetItemIterator::NoChildren); *it; ++it) {
        const Id id = idOf(*it);
        (*it)->setText(KeysColumn, checked.shortcutInfo(id).keysText());
        (*it)->setIcon(KeysColumn, problems.contains(id) ? warning : QIcon());
        (*it)->setToolTip(KeysColumn, problems.value(id).join(u'\n'));
    }
    m_conflicts->setText(problems.value(currentCommand()).join(u'\n'));
}

/** The field itself tells of its keys only when a second has passed without another one. */
bool ShortcutEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_keys && event->type() == QEvent::KeyRelease) {
        setKeys(m_keys->keySequence());
    }
    return QDialog::eventFilter(watched, event);
}

void ShortcutEditor::setKeys(const QKeySequence &keys)
{
    scheme().setShortcut(currentCommand(), keys);
    showKeys();
}

void ShortcutEditor::resetAll()
{
    const MRVShortcutScheme wanted = defaults();
    for (auto it = m_texts.cbegin(); it != m_texts.cend(); ++it) {
        scheme().setShortcut(it.key(), wanted.shortcut(it.key()));
    }
    showCommand();
}

void ShortcutEditor::importScheme()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Import Shortcuts"), MRVApplicationState::instance()->recentImportPath(),
        tr("Shortcut schemes (*.%1)").arg(Suffix));
    if (path.isEmpty()) {
        return;
    }
    QString error;
    const MRVShortcutScheme loaded = MRVShortcutScheme::load(path, &error);
    if (!error.isEmpty()) {
        QMessageBox::warning(this, windowTitle(), error);
    }
    if (loaded.isValid()) {
        addScheme(loaded);
    }
}

/** Saves the scheme in a file, after which it is called; or a list of the keys to be printed. */
void ShortcutEditor::saveSchemeAs()
{
    QFileDialog dialog(this, tr("Save Shortcuts"),
                       MRVApplicationState::instance()->recentExportPath(),
                       tr("Shortcut schemes (*.%1);;Text (*.txt)").arg(Suffix));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(Suffix);
    if (dialog.exec() != Accepted) {
        return;
    }
    const QFileInfo file(dialog.selectedFiles().constFirst());
    MRVShortcutScheme saved = scheme();
    QString error;
    if (file.suffix() == QLatin1String("txt")) {
        schemeOfCommands().saveAsText(file.filePath(), &error);
    } else {
        saved.setName(file.completeBaseName());
        if (saved.save(file.filePath(), &error)) {
            addScheme(saved);
        }
    }
    if (!error.isEmpty()) {
        QMessageBox::warning(this, windowTitle(), error);
    }
}

void ShortcutEditor::accept()
{
    const MRVShortcutScheme checked = schemeOfCommands();
    const QList<MRVShortcutCheck::Conflict> conflicts = MRVShortcutCheck::conflicts(checked);
    if (!conflicts.isEmpty()
        && QMessageBox::question(this, windowTitle(),
                                 tr("Some keys will not work:") + QLatin1String("\n\n")
                                     + MRVShortcutCheck::describe(conflicts.constFirst(), checked)
                                     + QLatin1String("\n\n") + tr("Store them anyway?"))
            != QMessageBox::Yes) {
        return;
    }
    MRVOptions *const options = mrvOptions();
    QString error;
    options->setShortcutScheme(options->keyText(MRVOptions::DefaultShortcutScheme), scheme());
    if (!options->saveNow(&error)) {
        QMessageBox::warning(this, windowTitle(), error);
        return;
    }
    QDialog::accept();
}
