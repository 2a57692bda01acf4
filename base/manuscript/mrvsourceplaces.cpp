#include "manuscript/mrvsourceplaces_p.h"

#include "html/mrvhtmldocument.h"
#include "manuscript/mrvmanuscript.h"

namespace {

// Plain text is its own source; only a line end may be two characters.
MRVSourcePlaces plainPlaces(const QString &source)
{
    MRVSourcePlaces places;
    places.reserve(source.size());
    for (int at = 0; at < source.size(); at += places.constLast().length) {
        const bool isPair = source.midRef(at, 2) == QLatin1String("\r\n");
        places.append({at, isPair ? 2 : 1, MRVSourcePlace::Plain});
    }
    return places;
}

// Markdown becomes a page, which becomes a document.
MRVSourcePlaces markdownPlaces(const MRVManuscript &manuscript, const QString &source)
{
    MRVSourcePlaces inSource;
    const QString page = MRVMarkdown::toHtml(source, manuscript.options, nullptr, &inSource);
    MRVSourcePlaces places = MRVHtmlDocument::places(page, manuscript.location);
    for (MRVSourcePlace &place : places) {
        if (!place.isKnown()) {
            continue;
        }
        // No characters: it is part of what the one before it stands for.
        const MRVSourcePlace first = inSource.value(place.start - (place.length > 0 ? 0 : 1));
        const MRVSourcePlace last = inSource.value(place.end() - 1);
        if (!first.isKnown() || !last.isKnown()) {
            place = MRVSourcePlace();
        } else if (place.length == 0) {
            place = {last.end(), 0, first.syntax};
        } else {
            place = {first.start, last.end() - first.start, first.syntax};
        }
    }
    return places;
}

} // namespace

MRVSourcePlaces mrvSourcePlaces(const MRVManuscript &manuscript, const QString &source)
{
    switch (manuscript.format) {
    case MRVManuscript::PlainText:
        return plainPlaces(source);
    case MRVManuscript::Markdown:
        return markdownPlaces(manuscript, source);
    default:
        return MRVHtmlDocument::places(source, manuscript.location);
    }
}
