// Reads arbitrary pages of HTML: no word, link or picture that a page shows may be missing from the
// document.

#include "guiapplication.h"

#include "html/mrvhtmldocument.h"

#include <QTextDocument>

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString page = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    QTextDocument document;
    MRVHtmlReport report;
    if (MRVHtmlDocument::read(page, QString(), &document, &report) && !report.losses.isEmpty()) {
        std::abort();
    }
    return 0;
}
