#pragma once

#include "css/mrvstylesheet.h"
#include "html/mrvhtmlreport.h"
#include "html/mrvhtmltree_p.h"

/**
 * Adds the style sheets of a page in its order: those within it, and those in files that it names,
 * which count from @p folder.
 *
 * Only regular files of at most MRVInputLimits::StyleSheetBytes are opened. Sheets that are not
 * loaded are noted in @p report.
 *
 * @return false where the page has none.
 */
bool mrvAddSheets(const MRVHtmlTree &tree, const QString &folder, MRVStyleSheet *sheets,
                  MRVHtmlReport *report);
