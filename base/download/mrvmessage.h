#pragma once

#include "util/mrvbase_export.h"

#include <QMessageBox>

/**
 * As QMessageBox's static functions, but always as plain text, shortened and broken by
 * MRVServerText, since servers have a say in what is shown; and @p parent may be deleted meanwhile,
 * and take the box with it.
 *
 * @param title of the window.
 * @param text plain; angle brackets are shown as such. At most MRVServerText::LongestMessage QChars
 *             of it are shown.
 * @param preset the button that Return presses; NoButton leaves the choice to Qt.
 * @return the button that was chosen; 0 where the box went with its parent.
 * @since 1.0
 */
MRVBASE_EXPORT int mrvShowMessage(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                                  const QString &text,
                                  QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                  QMessageBox::StandardButton preset = QMessageBox::NoButton);
