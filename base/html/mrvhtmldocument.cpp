#include "html/mrvhtmldocument.h"

#include "html/mrvhtmlbuilder_p.h"
#include "html/mrvhtmlcheck_p.h"
#include "html/mrvhtmlsheets_p.h"
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

} // namespace

bool MRVHtmlDocument::read(const QString &html, const QString &file, QTextDocument *document,
                           MRVHtmlReport *report, QString *error)
{
    const QString page = mrvWithEndTags(html);
    const QString fault = MRVHtmlReader::whyTooComplex(page);
    if (!fault.isEmpty()) {
        return MRV::fail(error, fault);
    }
    MRVHtmlReport found;
    const MRVHtmlTree tree(page, file);
    // With the groups of rows and the like that a page does not name.
    if (tree.depth() > 2 * MRVInputLimits::HtmlDepth) {
        return MRV::fail(error,
                         MRVHtmlReader::tr("elements are nested more than %1 levels deep")
                             .arg(MRVInputLimits::HtmlDepth));
    }
    MRVStyleSheet sheets;
    const bool hasSheets = mrvAddSheets(tree, QFileInfo(file).path(), &sheets, &found);
    const bool keepsHistory = document->isUndoRedoEnabled();
    document->clear();
    document->setUndoRedoEnabled(false);
    document->setMetaInformation(QTextDocument::DocumentTitle, titleOf(tree.root()));
    MRVHtmlBuilder builder(tree, hasSheets ? &sheets : nullptr, document);
    builder.build();
    found.comments = builder.commentCount();
    document->setUndoRedoEnabled(keepsHistory);
    if (report) {
        mrvCheckDocument(tree, builder.displays(), *document, &found);
        *report = found;
    }
    return true;
}
