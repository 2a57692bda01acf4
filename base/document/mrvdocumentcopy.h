#pragma once

#include "util/mrvbase_export.h"

#include <memory>

class QTextBlock;
class QTextDocument;

/**
 * A copy of a document to be changed for writing or printing: all that QTextDocument::clone()
 * copies, and the formats and the list of an empty paragraph at the beginning, which it does not.
 * It keeps no undo history.
 *
 * Pictures that the document would load are loaded by the copy in Qt's own way: fetch them from the
 * document itself, by MRVGuardedDocument::picture().
 *
 * @since 1.0
 */
MRVBASE_EXPORT std::unique_ptr<QTextDocument> mrvDocumentCopy(const QTextDocument &document);

/**
 * The same for some paragraphs of a document, outside of tables and frames; takes time linear in
 * them.
 *
 * @param first a paragraph of the document.
 * @param last  one that is not before it; tables and frames in between are copied whole.
 * @since 1.0
 */
MRVBASE_EXPORT std::unique_ptr<QTextDocument> mrvDocumentCopy(const QTextBlock &first,
                                                              const QTextBlock &last);
