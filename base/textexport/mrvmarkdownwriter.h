#pragma once

#include "markdown/mrvmarkdownhead.h"
#include "util/mrvbase_export.h"

#include <QHash>
#include <QString>

class QTextDocument;

/**
 * Writes a document as Markdown: CommonMark with tables, task lists, "~~deleted~~" and footnotes.
 *
 * MRVManuscriptReader reads the same words, links, pictures, notes and comments from it, and the
 * formats that Markdown has, titles of links and languages of code among them. What Markdown has
 * no signs for and HTML does, such as underlined, raised and lowered text, small capitals, comments
 * in the margin, the size of a picture, or a table whose cells hold lists, is written as HTML,
 * which Markdown may contain; other readers show that or pass over it. MRVDocumentLosses tells what
 * is not written.
 *
 * Text is escaped so that it reads back as text. A paragraph is one line, an empty one "<br><!--
 * -->". Blanks and tabs in a row are written, but read as one; tabs that begin a paragraph are
 * not, and blanks there are "&nbsp;". Notes stand at the end: those that MRVNoteFinder finds,
 * those in the margin, and those within the text, and a rule above them is left out.
 * Tables and preformatted text have no marks: notes of theirs stay linked paragraphs or, within the
 * text, stand in brackets.
 *
 * Takes time linear in the document; the same document gives the same text. GUI thread only.
 *
 * @code
 * MRVMarkdownWriter writer(document);
 * QString error;
 * MRVCoreUtil::WriteUnicodeTextFile(writer.text(), QStringLiteral("novel.md"), &error);
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVMarkdownWriter
{
public:
    /** @param document not changed, and to live as long. */
    explicit MRVMarkdownWriter(const QTextDocument &document);

    /**
     * What the metadata at the beginning say; see MRVFrontMatter::write(). Where the title is
     * empty, that of the document is written. Without any of it, the text has no metadata.
     */
    void setHead(const MRVMarkdownHead &head) { m_head = head; }
    /**
     * The addresses of pictures by the names that their formats have (QTextImageFormat::name());
     * one that is missing is written as it is.
     */
    void setPictureAddresses(const QHash<QString, QString> &addresses) { m_pictures = addresses; }

    /** The document as Markdown, with "\n" after each line. Empty for an empty one. */
    QString text() const;

private:
    const QTextDocument &m_document;
    MRVMarkdownHead m_head;
    QHash<QString, QString> m_pictures;
};
