#pragma once

#include <QColor>
#include <QComboBox>
#include <QFont>
#include <QPushButton>
#include <QString>
#include <QVariant>
#include <QWidget>

class QLineEdit;

// Editors of single values that Qt does not have. As in Qt's, the value is the user property.

/** Offers values by their names. */
class ChoiceBox final : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    explicit ChoiceBox(QWidget *parent = nullptr);

    QVariant value() const { return currentData(); }
    /** Selects the item with this data; none where no item has it. */
    void setValue(const QVariant &value) { setCurrentIndex(findData(value)); }

Q_SIGNALS:
    void valueChanged();
};

/** Shows a colour, and lets the user choose another one. */
class ColorButton final : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged USER true)

public:
    explicit ColorButton(QWidget *parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);

Q_SIGNALS:
    void colorChanged();

private:
    void choose();

    QColor m_color;
};

/** Names a font, and lets the user choose another one. */
class FontButton final : public QPushButton
{
    Q_OBJECT
    Q_PROPERTY(QFont value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    explicit FontButton(QWidget *parent = nullptr);

    QFont value() const { return m_value; }
    void setValue(const QFont &value);

Q_SIGNALS:
    void valueChanged();

private:
    void choose();

    QFont m_value;
};

/** The path of a file or folder, to be typed or chosen. */
class PathEdit final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString path READ path WRITE setPath NOTIFY pathChanged USER true)

public:
    enum Kind {
        File,
        NewFile, ///< which may exist; whoever writes it asks whether to replace it
        Folder,
    };

    explicit PathEdit(Kind kind, QWidget *parent = nullptr);

    QString path() const;
    void setPath(const QString &path);

Q_SIGNALS:
    void pathChanged();

private:
    void choose();

    Kind m_kind;
    QLineEdit *m_line;
};
