#include "textexport/mrvmarkdownwriter.h"

#include "document/mrvmarginnotes.h"
#include "markdown/mrvfrontmatter.h"
#include "markdown/mrvmarkdown.h"
#include "textexport/mrvmarkdownblocks_p.h"

#include <QTextDocument>

MRVMarkdownWriter::MRVMarkdownWriter(const QTextDocument &document)
    : m_document(document)
{
}

QString MRVMarkdownWriter::text() const
{
    const std::unique_ptr<QTextDocument> withNotes =
        MRVMarginNotes::copyWithParagraphs(m_document, MRVMarginNote::Footnote);
    const MRVDocumentFlow flow(withNotes ? *withNotes : m_document);
    const MRVTextNotes notes(flow, MRVTextNotes::Code::HasNoMarks);
    const QString body = MRVMarkdownBlocks(flow, notes, m_pictures).write();
    MRVMarkdownHead head = m_head;
    if (head.title.isEmpty()) {
        head.title = m_document.metaInformation(QTextDocument::DocumentTitle);
    }
    const QString metadata = MRVFrontMatter::write(head);
    // Text that would be taken for metadata comes after a blank line.
    MRVMarkdownHead none;
    const bool isMistaken = metadata.isEmpty() && MRVMarkdown::takeHead(body, &none) != body;
    return metadata + (isMistaken || !metadata.isEmpty() ? QStringLiteral("\n") : QString()) + body;
}
