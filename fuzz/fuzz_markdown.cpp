// Makes HTML of arbitrary Markdown, the same each time, and with places in the Markdown as well.

#include "markdown/mrvmarkdown.h"

#include <QString>

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0) {
        return 0;
    }
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data) + 1, int(size) - 1);
    const MRVMarkdown::Options options(int(data[0] & 15));
    MRVMarkdownHead head;
    MRVSourcePlaces places;
    const QString html = MRVMarkdown::toHtml(text, options, &head);
    if (html != MRVMarkdown::toHtml(text, options, nullptr, &places)
        || places.size() != html.size()) {
        std::abort();
    }
    for (const MRVSourcePlace &place : places) {
        if (place.isKnown() && (place.length < 0 || place.end() > text.size())) {
            std::abort();
        }
    }
    return 0;
}
