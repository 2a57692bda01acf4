#include "download/mrvmessage.h"

#include "download/mrvservertext.h"

#include <QPointer>

int mrvShowMessage(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                   const QString &text, QMessageBox::StandardButtons buttons,
                   QMessageBox::StandardButton preset)
{
    const QString shown =
        MRVServerText::breakable(MRVServerText::shortened(text, MRVServerText::LongestMessage));
    const QPointer<QMessageBox> box = new QMessageBox(icon, title, shown, buttons, parent);
    box->setTextFormat(Qt::PlainText);
    box->setDefaultButton(preset);
    const int answer = box->exec();
    delete box;
    return answer;
}
