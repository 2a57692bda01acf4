#include "valueeditors.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QLocale>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>

ChoiceBox::ChoiceBox(QWidget *parent)
    : QComboBox(parent)
{
    setSizeAdjustPolicy(AdjustToContents);
    connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this, &ChoiceBox::valueChanged);
}

ColorButton::ColorButton(QWidget *parent)
    : QPushButton(parent)
{
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, &ColorButton::choose);
}

void ColorButton::setColor(const QColor &color)
{
    if (color == m_color) {
        return;
    }
    m_color = color;
    QPixmap sample(iconSize() * devicePixelRatioF());
    sample.setDevicePixelRatio(devicePixelRatioF());
    sample.fill(color);
    QPainter painter(&sample);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawRect(QRect(QPoint(), iconSize()).adjusted(0, 0, -1, -1));
    painter.end();
    setIcon(sample);
    setText(color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb));
    Q_EMIT colorChanged();
}

void ColorButton::choose()
{
    const QColor color =
        QColorDialog::getColor(m_color, this, accessibleName(), QColorDialog::ShowAlphaChannel);
    if (color.isValid()) {
        setColor(color);
    }
}

FontButton::FontButton(QWidget *parent)
    : QPushButton(parent)
{
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, &FontButton::choose);
}

void FontButton::setValue(const QFont &value)
{
    if (value == m_value && !text().isEmpty()) {
        return;
    }
    m_value = value;
    const QString size = value.pointSizeF() > 0
        ? tr("%1 pt").arg(QLocale().toString(value.pointSizeF()))
        : tr("%1 px").arg(QLocale().toString(value.pixelSize()));
    setText(tr("%1, %2", "family and size of a font").arg(value.family(), size));
    Q_EMIT valueChanged();
}

void FontButton::choose()
{
    bool isChosen = false;
    const QFont font = QFontDialog::getFont(&isChosen, m_value, this, accessibleName());
    if (isChosen) {
        setValue(font);
    }
}

PathEdit::PathEdit(Kind kind, QWidget *parent)
    : QWidget(parent)
    , m_kind(kind)
    , m_line(new QLineEdit(this))
{
    auto *const browse = new QToolButton(this);
    browse->setText(tr("Browse..."));
    browse->setObjectName(QStringLiteral("browse"));
    m_line->setObjectName(QStringLiteral("path"));
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_line);
    layout->addWidget(browse);
    setFocusProxy(m_line);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(m_line, &QLineEdit::textChanged, this, &PathEdit::pathChanged);
    connect(browse, &QToolButton::clicked, this, &PathEdit::choose);
}

QString PathEdit::path() const
{
    return m_line->text();
}

void PathEdit::setPath(const QString &path)
{
    m_line->setText(path);
}

void PathEdit::choose()
{
    QString chosen;
    switch (m_kind) {
    case File:
        chosen = QFileDialog::getOpenFileName(this, accessibleName(), path());
        break;
    case NewFile:
        chosen = QFileDialog::getSaveFileName(this, accessibleName(), path(), QString(), nullptr,
                                              QFileDialog::DontConfirmOverwrite);
        break;
    case Folder:
        chosen = QFileDialog::getExistingDirectory(this, accessibleName(), path());
        break;
    }
    if (!chosen.isEmpty()) {
        setPath(chosen);
    }
}
