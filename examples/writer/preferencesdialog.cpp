#include "preferencesdialog.h"

#include "searchfield.h"
#include "settingeditor.h"
#include "updates.h"

#include <options/mrvoptions.h>

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>
#include <QSplitter>
#include <QStringList>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// Those that this program obeys. The library has settings of applications with more to set.
QStringList usedKeys()
{
    using O = MRVOptions;
    const O &options = *mrvOptions();
    QStringList keys{options.keyText(O::GuiLanguage),
                     options.keyText(O::RecentProjectsCount),
                     options.keyText(O::CapitalizeSentences),
                     options.keyText(O::EnableSubstitution),
                     options.keyText(O::SmartQuotes),
                     options.keyText(O::SingleQuotesSubstitution),
                     options.keyText(O::EmDashes),
                     options.keyText(O::DoubleQuotesSubstitution),
                     options.keyText(O::Ellipses),
                     options.keyText(O::DictionaryLocale),
                     options.keyText(O::TextColor),
                     options.keyText(O::PageColor),
                     options.keyText(O::CommentColor),
                     options.keyText(O::FootnotesPageColor),
                     options.keyText(O::FindColor),
                     options.keyText(O::FindTextColor),
                     options.keyText(O::DefaultCharFormat)};
    if (Updates::areAutomatic()) {
        keys.append(
            {options.keyText(O::CheckForUpdates), options.keyText(O::CheckForUpdatesInterval)});
    }
    return keys;
}

} // namespace

PreferencesDialog::PreferencesDialog(QWidget *parent)
    : QDialog(parent)
    , m_search(new SearchField(this))
    , m_groups(new QListWidget(this))
    , m_area(new QScrollArea(this))
{
    setObjectName(QStringLiteral("PreferencesDialog"));
    setWindowTitle(tr("Preferences"));
    m_search->setObjectName(QStringLiteral("search"));
    m_search->setPlaceholderText(tr("Words of a setting or its description"));
    m_groups->setObjectName(QStringLiteral("groups"));
    m_groups->setAccessibleName(tr("Groups of settings"));
    m_area->setObjectName(QStringLiteral("settings"));
    m_area->setWidgetResizable(true);
    m_area->setWidget(newPages());
    // The last one to be made, and so the last one that Tab reaches.
    m_buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Apply | QDialogButtonBox::Cancel, this);
    m_buttons->setObjectName(QStringLiteral("buttons"));

    auto *const searchLabel = new QLabel(tr("&Search:"), this);
    searchLabel->setBuddy(m_search);
    auto *const grid = new QGridLayout(this);
    grid->addWidget(searchLabel, 0, 0);
    grid->addWidget(m_search, 0, 1);
    auto *const splitter = new QSplitter(this);
    splitter->addWidget(m_groups);
    splitter->addWidget(m_area);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 3);
    splitter->setChildrenCollapsible(false);
    grid->addWidget(splitter, 1, 0, 1, 2);
    grid->addWidget(m_buttons, 2, 0, 1, 2);

    connect(m_search, &QLineEdit::textChanged, this, &PreferencesDialog::showEditors);
    connect(m_search, &QLineEdit::returnPressed, this, &PreferencesDialog::goToFirst);
    connect(m_groups, &QListWidget::currentRowChanged, m_search, &QLineEdit::clear);
    connect(m_groups, &QListWidget::itemClicked, m_search, &QLineEdit::clear);
    connect(m_groups, &QListWidget::currentRowChanged, this, &PreferencesDialog::showEditors);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &PreferencesDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &PreferencesDialog::reject);
    connect(m_buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this,
            &PreferencesDialog::apply);
    connect(mrvOptions(), &MRVOptions::groupsChanged, this, &PreferencesDialog::showStored);
    connect(mrvOptions(), &MRVOptions::settingsReset, this, &PreferencesDialog::showStored);
    m_groups->setCurrentRow(0);
    enableApply();
    resize(QSize(760, 560).boundedTo(screen()->availableSize()));
    const int wanted =
        m_groups->sizeHintForColumn(0) + m_groups->verticalScrollBar()->sizeHint().width();
    const int listWidth = qMin(wanted, width() / 3);
    splitter->setSizes({listWidth, width() - listWidth});
}

QWidget *PreferencesDialog::newPages()
{
    auto *const pages = new QWidget(this);
    auto *const layout = new QVBoxLayout(pages);
    layout->setSpacing(2 * layout->spacing());
    const QStringList keys = usedKeys();
    const QList<MRVOptions::SettingInfo> settings = MRVOptions::settings();
    for (const MRVOptions::SettingInfo &setting : settings) {
        if (!keys.contains(setting.key) || !SettingEditor::isEditable(setting)) {
            continue;
        }
        if (!m_titles.contains(setting.group)) {
            auto *const title = new QLabel(setting.group, pages);
            QFont font = title->font();
            font.setBold(true);
            title->setFont(font);
            layout->addWidget(title);
            m_titles.insert(setting.group, title);
            m_groups->addItem(setting.group);
        }
        auto *const editor = new SettingEditor(mrvOptions()->explain(setting.key), pages);
        connect(editor, &SettingEditor::edited, this, &PreferencesDialog::enableApply);
        layout->addWidget(editor);
        m_editors.append(editor);
    }
    m_nothing = new QLabel(tr("No setting has these words."), pages);
    m_nothing->setObjectName(QStringLiteral("nothingFound"));
    layout->addWidget(m_nothing);
    layout->addStretch();
    return pages;
}

/** Shows the editors of the group, or those that are searched for in all of them. */
void PreferencesDialog::showEditors()
{
    const QString words = m_search->text().trimmed();
    QListWidgetItem *const item = m_groups->currentItem();
    const QString group = item->text();
    item->setSelected(words.isEmpty());
    QSet<QString> shownGroups;
    for (SettingEditor *const editor : qAsConst(m_editors)) {
        const bool isShown = words.isEmpty() ? editor->group() == group : editor->matches(words);
        editor->setVisible(isShown);
        if (isShown) {
            shownGroups.insert(editor->group());
        }
    }
    for (auto it = m_titles.cbegin(); it != m_titles.cend(); ++it) {
        it.value()->setVisible(shownGroups.contains(it.key()));
    }
    m_nothing->setVisible(shownGroups.isEmpty());
    m_area->verticalScrollBar()->setValue(0);
}

void PreferencesDialog::showStored()
{
    for (SettingEditor *const editor : qAsConst(m_editors)) {
        if (!editor->isEdited()) {
            editor->reload(*mrvOptions());
        }
    }
}

void PreferencesDialog::enableApply()
{
    const bool isEdited = std::any_of(m_editors.cbegin(), m_editors.cend(),
                                      [](const SettingEditor *e) { return e->isEdited(); });
    m_buttons->button(QDialogButtonBox::Apply)->setEnabled(isEdited);
}

/** Stores all that can be stored; whether that was everything. */
bool PreferencesDialog::apply()
{
    QStringList errors;
    for (SettingEditor *const editor : qAsConst(m_editors)) {
        QString error;
        if (!editor->store(mrvOptions(), &error)) {
            errors.append(error);
        }
    }
    QString error;
    if (!mrvOptions()->saveNow(&error)) {
        errors.append(error);
    }
    if (!errors.isEmpty()) {
        QMessageBox::warning(this, windowTitle(),
                             tr("Not all settings could be stored.") + QLatin1String("\n\n")
                                 + errors.join(u'\n'));
    }
    return errors.isEmpty();
}

void PreferencesDialog::accept()
{
    if (apply()) {
        QDialog::accept();
    }
}

void PreferencesDialog::goToFirst()
{
    const auto first = std::find_if(m_editors.cbegin(), m_editors.cend(),
                                    [](const SettingEditor *e) { return e->isVisible(); });
    if (first != m_editors.cend()) {
        (*first)->setFocus(Qt::ShortcutFocusReason);
    }
}
