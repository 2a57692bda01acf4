#pragma once

#include "core/mrverror.h"
#include "html/mrvhtmlreport.h"
#include "manuscript/mrvmanuscript.h"
#include "markdown/mrvmarkdown.h"

#include <QFont>
#include <QTextDocument>

#include <memory>

/** What reading a text found out beside it. */
struct MRVSourceReport
{
    MRVHtmlReport html; ///< of the page that Markdown becomes, too
    MRVMarkdownHead head; ///< of Markdown
};

/**
 * A document of a text in a known format, without its pictures. It keeps no undo history.
 *
 * @param options of Markdown.
 * @param file    as MRVHtmlDocument::read() takes it.
 * @param report  if given, receives what was found out.
 * @param error   if given, receives a translated text on failure.
 * @param font    of a text that names none; its size counts for plain text only.
 * @return null for a text that is too complex to be read.
 */
std::unique_ptr<QTextDocument> mrvNewDocument(const QString &text, MRVManuscript::Format format,
                                              MRVMarkdown::Options options,
                                              const QString &file = QString(),
                                              MRVSourceReport *report = nullptr,
                                              MRVErrorSink error = nullptr,
                                              const QFont &font = QFont());
