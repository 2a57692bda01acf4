#pragma once

#include "util/mrvbase_export.h"

#include <QString>

class QTextDocument;

/**
 * The HTML of a document, as QTextDocument::toHtml("utf-8") writes it, except for what that
 * function gets wrong:
 *
 * - A paragraph that MRVTextBlockFormat::headingLevel() calls a heading is one in the HTML too,
 *   where Qt's own level has given way to a line spacing.
 * - A paragraph with both a rule and text becomes the rule and then the text, which Qt drops. In
 *   this order, as Qt reads what follows a rule into the paragraph of the rule.
 * - A border style that Qt does not know, for which it would crash, counts as none.
 * - Lists whose paragraphs have levels become lists within lists: MRVNestedLists::fromLevels().
 * - A list says the number that it begins with, and a list without markers that it has none. An
 *   item whose marker is none of HTML's carries it as text of its style, which a browser shows that
 *   knows CSS of this kind; others show the number or bullet that the list has in HTML.
 * - The title is text, whatever signs it has.
 * - All names of an anchor are written, and not just the first one; and the title of a link, its
 *   tooltip.
 * - Footnotes in the margin are marks and paragraphs: MRVMarginNotes::toParagraphs().
 *
 * The document is never changed: one that needs any of these is copied first. GUI thread only.
 *
 * @since 1.0
 */
MRVBASE_EXPORT QString mrvDocumentHtml(const QTextDocument &document);
