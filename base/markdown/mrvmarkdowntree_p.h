#pragma once

#include <cmark-gfm-core-extensions.h>

/** Changes what cmark has read, so that its HTML is what MRVMarkdown::toHtml() promises. */
void mrvCompleteMarkdownTree(cmark_node *root);

/** Calls @p visit with each node and whether it is left, when the visitor may change it. */
template<typename Visitor>
void mrvVisitMarkdownTree(cmark_node *root, Visitor visit)
{
    cmark_iter *const iterator = cmark_iter_new(root);
    for (cmark_event_type event; (event = cmark_iter_next(iterator)) != CMARK_EVENT_DONE;) {
        visit(cmark_iter_get_node(iterator), event == CMARK_EVENT_EXIT);
    }
    cmark_iter_free(iterator);
}
