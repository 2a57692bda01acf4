#pragma once

#include "html/mrvhtmltree_p.h"
#include "util/mrvsourceplace.h"

#include <QString>
#include <QVector>

/** A text that was written to a document: that of a node, or one that the page implies. */
struct MRVHtmlRun
{
    const GumboNode *node; ///< null: the page does not have the text
    QString text;
};

using MRVHtmlRuns = QVector<MRVHtmlRun>;

/**
 * Where the text of a document stands in the page that it was made of.
 *
 * @param text of the document, as QTextDocument::toRawText().
 * @param runs all that was written to it, in order. Where the two differ, the places of what
 *             follows are not known.
 */
MRVSourcePlaces mrvHtmlPlaces(const MRVHtmlTree &tree, const MRVHtmlRuns &runs,
                              const QString &text);
