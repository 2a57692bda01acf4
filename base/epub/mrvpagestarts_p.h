#pragma once

#include "xhtml/mrvpagewriter.h"

/**
 * Where the pages of an e-book begin in a document's page, the first one at @p begin included.
 *
 * A page begins at a page break and at each heading of the outermost level that occurs more than
 * once. Readers take their time with a large page: one above a quarter of a million characters is
 * cut at lesser headings, one above a million at any paragraph. A piece that shows nothing is
 * joined to the one after it.
 *
 * @param blocks the blocks at the top level.
 * @param end    where the body ends.
 */
QVector<int> mrvPageStarts(const QVector<MRVPageWriter::Block> &blocks, QStringView page, int begin,
                           int end);
