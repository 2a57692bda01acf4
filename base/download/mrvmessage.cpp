#include "download/mrvmessage.h"

#include <QPointer>

int mrvShowMessage(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                   const QString &text, QMessageBox::StandardButtons buttons,
                   QMessageBox::StandardButton preset)
{
    const QPointer<QMessageBox> box = new QMessageBox(icon, title, text, buttons, parent);
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(preset);
    const int answer = box->exec();
    delete box;
    return answer;
}
