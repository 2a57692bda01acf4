#pragma once

#include "core/mrverror.h"

#include <QDir>
#include <QString>

/**
 * Stores @p text with the file's name for %1 and the reason for %2 in @p error, with the reason's
 * kind. Control characters, which a file name may hold, become blanks, so that the message stays
 * one line.
 */
inline void mrvSetErrorLine(MRVErrorSink error, const QString &text, const QString &path,
                            const MRVError &reason)
{
    QString line = text.arg(QDir::toNativeSeparators(path), reason.text);
    for (QChar &c : line) {
        if (c.category() == QChar::Other_Control) {
            c = QLatin1Char(' ');
        }
    }
    error.set({reason.kind, line});
}
