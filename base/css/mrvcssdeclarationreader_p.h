#pragma once

#include "css/mrvcssdeclaration.h"
#include "css/mrvcsstokens_p.h"

/**
 * Reads declarations up to the end of their block, or of the source where @p ends is ";" alone, and
 * appends them with shorthands split.
 *
 * @return false, with some of them appended, where there are more than @p most.
 */
bool mrvReadCssDeclarations(MRVCssTokenizer &tokens, const char *ends, int most,
                            QVector<MRVCssDeclaration> &declarations);
