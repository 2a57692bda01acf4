#include "settingeditor.h"

#include "valueeditors.h"

#include <QCheckBox>
#include <QDateTimeEdit>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QToolButton>

#include <algorithm>

namespace {

QWidget *newChoiceBox(const QList<MRVOptions::Choice> &choices)
{
    auto *const box = new ChoiceBox;
    for (const MRVOptions::Choice &choice : choices) {
        box->addItem(choice.label, choice.value);
    }
    return box;
}

template<typename SpinBox, typename Number>
QWidget *newSpinBox(const MRVOptions::SettingInfo &setting)
{
    auto *const box = new SpinBox;
    box->setRange(setting.least.value<Number>(), setting.most.value<Number>());
    if (!setting.unit.isEmpty()) {
        box->setSuffix(QChar(QChar::Nbsp) + setting.unit);
    }
    return box;
}

QWidget *newTextEdit()
{
    auto *const edit = new QPlainTextEdit;
    edit->setTabChangesFocus(true);
    edit->setFixedHeight(5 * edit->fontMetrics().lineSpacing());
    return edit;
}

QWidget *newTextEditor(MRVOptions::TextForm form)
{
    switch (form) {
    case MRVOptions::Lines:
        return newTextEdit();
    case MRVOptions::FolderPath:
        return new PathEdit(PathEdit::Folder);
    case MRVOptions::FilePath:
        return new PathEdit(PathEdit::File);
    case MRVOptions::Line:
    case MRVOptions::QuotePair:
        break;
    }
    return new QLineEdit;
}

QWidget *newEditor(const MRVOptions::SettingInfo &setting)
{
    if (!setting.choices.isEmpty()) {
        return newChoiceBox(setting.choices);
    }
    switch (setting.type) {
    case MRVOptions::FlagType:
        return new QCheckBox;
    case MRVOptions::IntType:
        return newSpinBox<QSpinBox, int>(setting);
    case MRVOptions::RealType:
        return newSpinBox<QDoubleSpinBox, double>(setting);
    case MRVOptions::StringListType:
        return newTextEdit();
    case MRVOptions::ColorType:
        return new ColorButton;
    case MRVOptions::DateTimeType:
        return new QDateTimeEdit;
    case MRVOptions::FontType:
        return new FontButton;
    default:
        return newTextEditor(setting.form);
    }
}

// Lists have no editor of their own; their text form is edited.
bool isEditedAsText(MRVOptions::SettingType type)
{
    return type == MRVOptions::StringListType || type == MRVOptions::IntListType;
}

} // namespace

bool SettingEditor::isEditable(const MRVOptions::SettingInfo &setting)
{
    return setting.isPreference
        && (setting.type < MRVOptions::ByteArrayType || !setting.choices.isEmpty());
}

SettingEditor::SettingEditor(const MRVOptions::Explanation &setting, QWidget *parent)
    : QWidget(parent)
    , m_setting(setting)
    , m_editor(newEditor(setting))
    , m_reset(new QToolButton(this))
{
    m_editor->setObjectName(setting.key);
    m_editor->setAccessibleName(setting.label);
    m_editor->setAccessibleDescription(setting.description);
    // Scrolling the page must not change the values that pass below the pointer.
    m_editor->setFocusPolicy(Qt::StrongFocus);
    m_editor->installEventFilter(this);
    m_editor->setMinimumWidth(1); // a long value is cut off rather than the page
    m_reset->setObjectName(setting.key + QLatin1String("/reset"));
    m_reset->setText(tr("Reset"));
    m_reset->setToolTip(tr("Go back to the default: %1").arg(defaultText()));
    layOut();

    setValue(m_setting.value);
    m_shown = text();
    onEdited();

    const QMetaProperty property = m_editor->metaObject()->userProperty();
    connect(m_editor, property.notifySignal(), this,
            metaObject()->method(metaObject()->indexOfSlot("onEdited()")));
    connect(m_reset, &QToolButton::clicked, this, [this] { setValue(m_setting.defaultValue); });
}

void SettingEditor::layOut()
{
    auto *const label = new QLabel(m_setting.label, this);
    label->setWordWrap(true);
    label->setBuddy(m_editor);
    auto *const about = new QLabel(m_setting.description, this);
    about->setWordWrap(true);
    QFont small = about->font();
    small.setPointSizeF(0.9 * small.pointSizeF());
    about->setFont(small);
    QSizePolicy whereHidden = m_reset->sizePolicy();
    whereHidden.setRetainSizeWhenHidden(true);
    m_reset->setSizePolicy(whereHidden);

    auto *const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(1);
    grid->setColumnStretch(1, 1);
    if (m_setting.type == MRVOptions::FlagType) {
        grid->addWidget(m_editor, 0, 0);
        grid->addWidget(label, 0, 1);
    } else {
        const bool isWide = m_editor->sizePolicy().expandingDirections() & Qt::Horizontal;
        grid->addWidget(label, 0, 0, 1, 2);
        grid->addWidget(m_editor, 1, 0, 1, 3, isWide ? Qt::Alignment() : Qt::AlignLeft);
    }
    grid->addWidget(m_reset, 0, 2);
    grid->addWidget(about, 2, 0, 1, 3);
    setTabOrder(m_editor, m_reset);
    setFocusProxy(m_editor);
}

bool SettingEditor::matches(const QString &words) const
{
    const QString all = m_setting.label + u'\n' + m_setting.description + u'\n' + m_setting.key;
    const QStringList list = words.split(u' ', Qt::SkipEmptyParts);
    return std::all_of(list.begin(), list.end(), [&all](const QString &word) {
        return all.contains(word, Qt::CaseInsensitive);
    });
}

void SettingEditor::reload(const MRVOptions &options)
{
    m_setting = options.explain(m_setting.key);
    setValue(m_setting.value);
    m_shown = text();
    onEdited();
}

bool SettingEditor::store(MRVOptions *options, QString *error)
{
    if (!isEdited()) {
        return true;
    }
    const QString wanted = text();
    if (wanted == defaultText()) {
        options->remove(m_setting.key);
    }
    // A default may still be overridden by the system's own file.
    const QVariant value = options->explain(m_setting.key).value;
    if (MRVOptions::toText(m_setting.type, value) != wanted
        && !options->setFromText(m_setting.key, wanted, error)) {
        *error =
            tr("%1: %2", "a setting and what is wrong with its value").arg(m_setting.label, *error);
        return false;
    }
    reload(*options);
    return true;
}

QString SettingEditor::text() const
{
    const QVariant value = m_editor->metaObject()->userProperty().read(m_editor);
    return value.userType() == QMetaType::QString ? value.toString()
                                                  : MRVOptions::toText(m_setting.type, value);
}

QString SettingEditor::defaultText() const
{
    return MRVOptions::toText(m_setting.type, m_setting.defaultValue);
}

void SettingEditor::setValue(const QVariant &value)
{
    m_editor->metaObject()->userProperty().write(
        m_editor,
        isEditedAsText(m_setting.type) ? MRVOptions::toText(m_setting.type, value) : value);
}

void SettingEditor::onEdited()
{
    m_reset->setVisible(text() != defaultText());
    Q_EMIT edited();
}

// A check box answers to a click on the texts beside it, too.
void SettingEditor::mousePressEvent(QMouseEvent *event)
{
    if (auto *const box = qobject_cast<QCheckBox *>(m_editor)) {
        box->toggle();
    }
    QWidget::mousePressEvent(event);
}

bool SettingEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Wheel && !m_editor->hasFocus()) {
        event->ignore();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
