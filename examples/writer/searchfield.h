#pragma once

#include <QLineEdit>

/** A field for words to be searched for, in which Return does not close the dialog. */
class SearchField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit SearchField(QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
