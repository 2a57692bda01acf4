#include "manuscript/mrvmanuscriptdocument_p.h"

#include "html/mrvhtmldocument.h"
#include "input/mrvguardeddocument.h"
#include "util/mrvfailure.h"

std::unique_ptr<QTextDocument> mrvNewDocument(const QString &text, MRVManuscript::Format format,
                                              MRVMarkdown::Options options, const QString &file,
                                              MRVSourceReport *report, MRVErrorSink error,
                                              const QFont &font)
{
    auto document = std::make_unique<MRVGuardedDocument>();
    document->setUndoRedoEnabled(false);
    if (font != QFont()) {
        document->setDefaultFont(font);
    }
    if (format == MRVManuscript::PlainText) {
        document->setPlainText(text);
        return document;
    }
    QString html = text;
    if (format == MRVManuscript::Markdown) {
        html = MRVMarkdown::toHtml(text, options, report ? &report->head : nullptr);
        if (html.isNull()) {
            MRV::fail(error, MRVErrorKind::TooLarge,
                      MRVManuscript::tr("the Markdown is nested too deeply, or too complex"));
            return nullptr;
        }
    }
    MRVHtmlReport *found = report ? &report->html : nullptr;
    if (!MRVHtmlDocument::read(html, file, document.get(), found, error)) {
        return nullptr;
    }
    if (report && !report->head.title.isEmpty()) {
        document->setMetaInformation(QTextDocument::DocumentTitle, report->head.title);
    }
    return document;
}
