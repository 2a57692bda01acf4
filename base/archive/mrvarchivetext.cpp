#include "archive/mrvarchivetext_p.h"

#include "textformat/mrvtextformat.h"

#include <QTextBlock>
#include <QTextDocument>

QString mrvArchiveText(const QTextDocument &document)
{
    QString text;
    QString comments;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        text += block.blockNumber() > 0 ? QStringLiteral("\n") : QString();
        text += block.text();
        QString before; // of the fragment before, so that one over two formats is told once
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QString comment =
                it.fragment().charFormat().stringProperty(MRVTextFormat::CommentData0);
            if (!comment.isEmpty() && comment != before) {
                comments += QStringLiteral("\n\n[%1]\n").arg(it.fragment().text()) + comment;
            }
            before = comment;
        }
    }
    text += comments;
    text.replace(QChar::LineSeparator, u'\n');
    text.remove(QChar::ObjectReplacementCharacter);
    return text;
}
