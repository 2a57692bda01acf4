#pragma once

#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QStringList>

class QTextDocument;

/**
 * Tells what of a document other forms of text cannot say, before it is saved as one of them.
 *
 * @code
 * const QStringList losses = MRVDocumentLosses::of(document, MRVDocumentLosses::Markdown);
 * if (!losses.isEmpty()) {
 *     qWarning() << "Markdown does not keep:" << losses;
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDocumentLosses
{
    Q_DECLARE_TR_FUNCTIONS(MRVDocumentLosses)

public:
    enum Format {
        Html = 1, ///< a page of MRVTextXhtmlExporter, of any type
        Markdown = 2, ///< what MRVMarkdownWriter writes
        PlainText = 4, ///< what MRVPlainTextWriter writes
        Script = 8, ///< what MRVScriptDocument::script() takes of a document formatted as one
    };

    MRVDocumentLosses() = delete;

    /**
     * What reading the saved document would not give back, or as something else: a translated line
     * for each kind, with the number of places, "Fonts: 3"; empty where nothing is lost. Words,
     * links and pictures are never lost but in scripts; plain text has them as words. Of a script,
     * only what its author has added to the formats of elements counts. The sizes of headings
     * and the spaces around paragraphs, which each reader has its own for, are not counted.
     *
     * Looks once at each format, and takes time linear in the document. GUI thread only.
     */
    static QStringList of(const QTextDocument &document, Format format);
};
