#include "html/mrvhtmldocument.h"

#include "html/mrvhtmlbuilder_p.h"
#include "html/mrvhtmlcheck_p.h"
#include "html/mrvhtmlsheets_p.h"
#include "input/mrvguardeddocument.h"
#include "input/mrvhtmlreader.h"
#include "util/mrvfailure.h"

#include "core/mrvinputlimits.h"

#include <QFileInfo>

namespace {

// The text of the first element of this kind.
QString titleOf(const GumboNode *root)
{
    for (const GumboNode *child : MRVHtmlChildren(root)) {
        if (mrvIsElement(child, GUMBO_TAG_HEAD)) {
            return titleOf(child);
        }
        if (mrvIsElement(child, GUMBO_TAG_TITLE)) {
            return mrvTextIn(child).simplified();
        }
    }
    return QString();
}

// Where the characters of a page are in another that lacks some of its end tags.
QVector<int> offsetsIn(const QString &html, const QString &page)
{
    QVector<int> offsets;
    offsets.reserve(page.size());
    int at = 0;
    while (offsets.size() < page.size()) {
        if (html.at(at) == page.at(offsets.size())) {
            offsets.append(at++);
            continue;
        }
        at += 2; // "/>", which became "></x>"
        const int end = page.indexOf(u'>', offsets.size() + 1) + 1;
        while (offsets.size() < end) {
            offsets.append(at);
        }
    }
    return offsets;
}

MRVSourcePlaces placesIn(const QString &html, const QString &page, MRVSourcePlaces places)
{
    if (page != html) {
        const QVector<int> offsets = offsetsIn(html, page);
        for (MRVSourcePlace &place : places) {
            place.start = place.isKnown() ? offsets.at(place.start) : place.start;
        }
    }
    return places;
}

bool readPage(const QString &html, const QString &file, QTextDocument *document,
              MRVHtmlReport *report, MRVSourcePlaces *places, MRVErrorSink error)
{
    const QString page = mrvWithEndTags(html);
    const QString fault = MRVHtmlReader::whyTooComplex(page);
    if (!fault.isEmpty()) {
        return MRV::fail(error, MRVErrorKind::TooLarge, fault);
    }
    MRVHtmlReport found;
    const MRVHtmlTree tree(page, file);
    // With the groups of rows and the like that a page does not name.
    if (tree.depth() > 2 * MRVInputLimits::HtmlDepth) {
        return MRV::fail(error, MRVErrorKind::TooLarge,
                         MRVHtmlReader::tr("elements are nested more than %1 levels deep")
                             .arg(MRVInputLimits::HtmlDepth));
    }
    MRVStyleSheet sheets;
    const bool hasSheets = mrvAddSheets(tree, QFileInfo(file).path(), &sheets, &found);
    const bool keepsHistory = document->isUndoRedoEnabled();
    document->clear();
    document->setUndoRedoEnabled(false);
    document->setMetaInformation(QTextDocument::DocumentTitle, titleOf(tree.root()));
    MRVHtmlRuns runs;
    MRVHtmlBuilder builder(tree, hasSheets ? &sheets : nullptr, document);
    builder.build(places ? &runs : nullptr);
    found.comments = builder.commentCount();
    document->setUndoRedoEnabled(keepsHistory);
    if (report) {
        mrvCheckDocument(tree, builder.displays(), *document, &found);
        *report = found;
    }
    if (places) {
        *places = placesIn(html, page, mrvHtmlPlaces(tree, runs, document->toRawText()));
    }
    return true;
}

} // namespace

bool MRVHtmlDocument::read(const QString &html, const QString &file, QTextDocument *document,
                           MRVHtmlReport *report, MRVErrorSink error)
{
    return readPage(html, file, document, report, nullptr, error);
}

MRVSourcePlaces MRVHtmlDocument::places(const QString &html, const QString &file)
{
    MRVSourcePlaces places;
    MRVGuardedDocument document;
    document.setUndoRedoEnabled(false);
    readPage(html, file, &document, nullptr, &places, nullptr);
    return places;
}
