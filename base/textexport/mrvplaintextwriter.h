#pragma once

#include "util/mrvbase_export.h"

#include <QString>

class QTextDocument;

/**
 * Writes the words of a document as plain text.
 *
 * Items of lists begin with their markers ("-" for bullets), indented by four blanks for each list
 * around; the cells of a row of a table are separated by tabs; a rule is "* * *". A link to
 * somewhere else is followed by its address, "text <address>", unless it shows that. A picture is
 * "[text]", by its alternative text or else its name. Notes stand at the end, "[1] text", and their
 * marks in the text are "[1]". MRVDocumentLosses tells what is not written.
 *
 * Takes time linear in the document; the same document gives the same text. GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVPlainTextWriter
{
public:
    /** What separates paragraphs. Lines of code, items of lists and rows of tables are lines. */
    enum Separation {
        BlankLines = 0, ///< for people; MRVManuscriptReader::Publishing finds the paragraphs
        Lines = 1, ///< MRVManuscriptReader::Editing finds them; an end of a line ends one, too
    };

    /** @param document not changed, and to live as long. */
    explicit MRVPlainTextWriter(const QTextDocument &document)
        : m_document(document)
    {
    }

    /** BlankLines at first. */
    void setSeparation(Separation separation) { m_separation = separation; }

    /** The text, with "\n" after each line. Empty for an empty document. */
    QString text() const;

private:
    const QTextDocument &m_document;
    Separation m_separation = BlankLines;
};
