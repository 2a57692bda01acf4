#pragma once

#include <QDir>
#include <QString>

/**
 * Stores @p text with the file's name for %1 and the reason for %2 in @p error, if given. Control
 * characters, which a file name may hold, become blanks, so that the message stays one line.
 */
inline void mrvSetErrorLine(QString *error, const QString &text, const QString &path,
                            const QString &reason)
{
    if (!error) {
        return;
    }
    *error = text.arg(QDir::toNativeSeparators(path), reason);
    for (QChar &c : *error) {
        if (c.category() == QChar::Other_Control) {
            c = QLatin1Char(' ');
        }
    }
}
