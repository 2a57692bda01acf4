// Makes HTML of arbitrary Markdown, the same each time.

#include "markdown/mrvmarkdown.h"

#include <QString>

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0) {
        return 0;
    }
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data) + 1, int(size) - 1);
    MRVMarkdownHead head;
    const QString html = MRVMarkdown::toHtml(text, MRVMarkdown::Options(int(data[0] & 15)), &head);
    if (html != MRVMarkdown::toHtml(text, MRVMarkdown::Options(int(data[0] & 15)))) {
        std::abort();
    }
    return 0;
}
