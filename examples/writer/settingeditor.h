#pragma once

#include <options/mrvoptions.h>

#include <QString>
#include <QWidget>

class QToolButton;

/**
 * One setting in the preferences: an editor that fits the type of its value, a text that says what
 * it does, and a button to go back to the default, which shows only where the value is another.
 *
 * The editor's object name is the key of the setting, and its user property the value: so one way
 * to read, set and watch it serves all types. Nothing is stored before store().
 */
class SettingEditor final : public QWidget
{
    Q_OBJECT

public:
    /** Whether a setting can be changed by hand: formats and bytes cannot. */
    static bool isEditable(const MRVOptions::SettingInfo &setting);

    /** An editor for a setting that isEditable(), with its present value. */
    explicit SettingEditor(const MRVOptions::Explanation &setting, QWidget *parent = nullptr);

    QString group() const { return m_setting.group; }
    /** Whether label, description and key together have each word of @p words, in any case. */
    bool matches(const QString &words) const;

    /** Whether the user has changed the value since it was last shown or stored. */
    bool isEdited() const { return text() != m_shown; }
    /** Shows the value that @p options have now. */
    void reload(const MRVOptions &options);
    /**
     * Stores the value if it isEdited(); a default by removing what is stored.
     *
     * @param error receives a line that names the setting on failure.
     */
    bool store(MRVOptions *options, QString *error);

Q_SIGNALS:
    void edited();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void onEdited();

private:
    QString text() const;
    QString defaultText() const;
    void setValue(const QVariant &value);
    void layOut();

    MRVOptions::Explanation m_setting;
    QWidget *m_editor;
    QToolButton *m_reset;
    QString m_shown;
};
