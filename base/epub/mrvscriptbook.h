#pragma once

#include "core/mrverror.h"
#include "epub/mrvepubmetadata.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QString>

class MRVFountainScript;
class MRVScriptMode;

/**
 * Scripts as e-books.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVScriptBook
{
public:
    MRVScriptBook() = delete;

    /** What a book is set in. */
    enum Typeface {
        ReadersChoice, ///< what the reading system or its user prefers
        FixedPitch, ///< as a typewriter has it, which scripts are handed in with
    };

    /**
     * Title, authors and rights as the title page of @p script names them. Several authors are
     * separated by line breaks, commas, "&" or "and".
     */
    static MRVEPubMetadata metadata(const MRVFountainScript &script);

    /**
     * The bytes of an EPUB 3 file with what is printed of @p script.
     *
     * The table of contents lists acts and scenes. Pages begin at acts and page breaks, and at a
     * scene only where a page would grow large. Indents are in percent of the reader's page, so
     * that the layout holds in large type and on small screens.
     *
     * @param mode     what the script looks like.
     * @param language a BCP 47 tag; empty if unknown.
     * @param typeface what it is set in.
     * @param error    if given, receives one translated line on failure; untouched on success.
     * @return empty on failure, such as where SOURCE_DATE_EPOCH is set to what is no date.
     */
    static QByteArray toByteArray(const MRVFountainScript &script, const MRVScriptMode &mode,
                                  const QString &language = QString(),
                                  Typeface typeface = ReadersChoice, MRVErrorSink error = nullptr);
};
