#pragma once

#include <cmark-gfm-core-extensions.h>

/**
 * Curls quotes, and makes dashes and ellipses. A quote, hyphen or full stop after a backslash stays
 * and loses that.
 */
void mrvSmartenPunctuation(cmark_node *root);
