#include "xhtml/mrvdocumenttitle.h"

#include "textformat/mrvtextblockformat.h"

#include <QTextBlock>
#include <QTextDocument>

QString mrvDocumentTitle(const QTextDocument &document, const QString &fallback)
{
    const QString own = document.metaInformation(QTextDocument::DocumentTitle).simplified();
    if (!own.isEmpty()) {
        return own;
    }
    constexpr int Beginning = 100; // paragraphs; a heading further on names a chapter, not the work
    int seen = 0;
    for (QTextBlock block = document.begin(); block.isValid() && seen < Beginning;
         block = block.next(), ++seen) {
        if (MRVTextBlockFormat::headingLevel(block.blockFormat()) > 0) {
            const QString text =
                block.text().remove(QChar::ObjectReplacementCharacter).simplified();
            if (!text.isEmpty()) {
                return text;
            }
        }
    }
    return fallback;
}
