#pragma once

#include <QDebug>
#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>

/// A document run by run, for comparison: a line for each paragraph and one for each of its runs,
/// with text and all properties. Without the character format of the first paragraph itself, which
/// Qt leaves out of undo.
inline QStringList documentDump(const QTextDocument &document)
{
    const auto properties = [](const QTextFormat &format) {
        QString text;
        QDebug(&text).nospace() << format.properties();
        return text;
    };
    QStringList lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QTextCharFormat own =
            block == document.begin() ? QTextCharFormat() : block.charFormat();
        lines << QString("block %1 %2").arg(properties(block.blockFormat()), properties(own));
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment run = it.fragment();
            lines << QString("run %1 %2").arg(run.text(), properties(run.charFormat()));
        }
    }
    return lines;
}
