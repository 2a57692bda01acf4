#pragma once

#include "markdown/mrvmarkdownhead.h"
#include "util/mrvbase_export.h"

#include "core/mrverror.h"

#include <QString>
#include <QStringList>

class QTextDocument;

/**
 * Writes documents as files of Markdown, with their pictures.
 *
 * The pictures lie in a folder beside the file, MRVTextXhtmlExporter::calcImageDir(). None that is
 * there already is replaced: one with the same bytes is used again, and beside another the new one
 * gets a new name. A picture that the document does not have, such as one on another machine, is
 * named as the document names it. Main thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextPublisher
{
public:
    MRVTextPublisher() = delete;

    /**
     * Writes a file, or leaves the one that is there.
     *
     * @param document what to write; not changed.
     * @param head     the metadata; see MRVMarkdownWriter::setHead().
     * @param file     its folder is made where it is missing.
     * @param written  if given, the files that it consists of are added: pictures, also those that
     *                 were there already, and @p file. Untouched on failure.
     * @param error    receives one translated line that names a file on failure; untouched on
     *                 success.
     * @return false on failure; pictures and folders that were made before it are removed.
     */
    static bool writeMarkdown(const QTextDocument &document, const MRVMarkdownHead &head,
                              const QString &file, QStringList *written = nullptr,
                              MRVErrorSink error = nullptr);
};
