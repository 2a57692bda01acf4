// Reads arbitrary pages of HTML: no word, link or picture that a page shows may be missing from the
// document, and what has a place is what stands there.

#include "guiapplication.h"

#include "html/mrvhtmldocument.h"

#include <QTextDocument>

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString page = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    QTextDocument document;
    MRVHtmlReport report;
    if (!MRVHtmlDocument::read(page, QString(), &document, &report)) {
        return 0;
    }
    const QString text = document.toRawText();
    const MRVSourcePlaces places = MRVHtmlDocument::places(page, QString());
    bool isRight = report.losses.isEmpty() && places.size() == text.size();
    for (int i = 0; isRight && i < text.size(); ++i) {
        const MRVSourcePlace &place = places.at(i);
        const QStringRef source = page.midRef(place.start, place.length);
        isRight = !place.isKnown()
            || (place.length >= 0 && place.end() <= page.size()
                && (place.length != 1 || text.at(i) == u' ' || source.at(0) == text.at(i)));
    }
    if (!isRight) {
        std::abort();
    }
    return 0;
}
