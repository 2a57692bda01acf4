#include "searchfield.h"

#include <QKeyEvent>

SearchField::SearchField(QWidget *parent)
    : QLineEdit(parent)
{
    setClearButtonEnabled(true);
}

void SearchField::keyPressEvent(QKeyEvent *event)
{
    QLineEdit::keyPressEvent(event);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
    }
}
