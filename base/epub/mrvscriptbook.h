#pragma once

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

    /**
     * Title, authors and rights as the title page of @p script names them. Several authors are
     * separated by line breaks, commas, "&" or "and".
     */
    static MRVEPubMetadata metadata(const MRVFountainScript &script);

    /**
     * The bytes of an EPUB 3 file with what is printed of @p script.
     *
     * @param mode     what the script looks like.
     * @param language a BCP 47 tag; empty if unknown.
     * @param error    if given, receives one translated line on failure; untouched on success.
     * @return empty on failure, such as where SOURCE_DATE_EPOCH is set to what is no date.
     */
    static QByteArray toByteArray(const MRVFountainScript &script, const MRVScriptMode &mode,
                                  const QString &language = QString(), QString *error = nullptr);
};
