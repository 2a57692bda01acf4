#pragma once

#include <cmark-gfm-core-extensions.h>

/**
 * Makes tags in raw HTML text where an HTML parser would take all that follows for something else,
 * such as a style sheet: those that nothing ends beside them, and comments without an end.
 */
void mrvEscapeOpenTags(cmark_node *root);
