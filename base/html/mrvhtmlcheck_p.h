#pragma once

#include "html/mrvhtmlelements_p.h"
#include "html/mrvhtmlreport.h"
#include "html/mrvhtmltree_p.h"

class QTextDocument;

/**
 * Compares what a page shows with the document that was read from it: words in their order, links
 * and pictures. It does not use what built the document but the tree alone.
 *
 * @param displays of elements whose styles say another one than their kind.
 * @param report   receives losses and hidden words.
 */
void mrvCheckDocument(const MRVHtmlTree &tree, const MRVHtmlDisplays &displays,
                      const QTextDocument &document, MRVHtmlReport *report);
