// Makes HTML of arbitrary plain text: no character but white space may be lost or added.

#include "guiapplication.h"

#include "html/mrvhtmldocument.h"
#include "plaintext/mrvplaintext.h"

#include <QTextDocument>

#include <cstdlib>

namespace {

// Rules are drawn; control characters, and what marks the structure of documents, are no text.
QString shown(const QString &text)
{
    QString characters;
    for (const QChar character : text) {
        const bool isDrawn = QStringLiteral("-_=–—─").contains(character);
        const bool isControl = character.category() == QChar::Other_Control
            || character == QChar::ReplacementCharacter;
        if (!character.isSpace() && !isControl && !isDrawn
            && character != QChar::ObjectReplacementCharacter
            && (character < QChar(0xfdd0) || character > QChar(0xfdef))) {
            characters += character;
        }
    }
    return characters;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    MRVMarkdownHead head;
    const QString html = MRVPlainText::toHtml(text, &head);
    QTextDocument document;
    MRVHtmlReport report;
    if (!MRVHtmlDocument::read(html, QString(), &document, &report) || !report.losses.isEmpty()) {
        std::abort();
    }
    const bool isTaken = !head.title.isEmpty() || !head.authors.isEmpty()
        || !head.language.isEmpty() || !head.description.isEmpty() || !head.date.isEmpty();
    if (!isTaken && shown(document.toRawText()) != shown(text)) {
        std::abort();
    }
    return 0;
}
