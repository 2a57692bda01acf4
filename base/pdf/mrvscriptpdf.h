#pragma once

#include "core/mrverror.h"
#include "screenplay/mrvscriptpagination.h"
#include "util/mrvbase_export.h"
#include "util/mrvprogress.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

class MRVFountainScript;
class MRVScriptMode;

/**
 * Scripts as PDF documents, page by page as MRVScriptPagination has them.
 *
 * Only what is printed is in the document: no notes, no sections or synopses, and nothing that was
 * cut out. Fonts are embedded; text can be selected and copied in reading order. The outline lists
 * scenes, below the acts where a centred line names one ("ACT TWO").
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVScriptPdf
{
    Q_DECLARE_TR_FUNCTIONS(MRVScriptPdf)

public:
    /** What of a script is printed, and what besides. */
    struct Options
    {
        MRVScriptPagination::Options pagination;
        /** @name The pages from #firstPage to #lastPage alone, as they are numbered; 0: all. */
        //@{
        int firstPage = 0;
        int lastPage = 0; ///< a larger one than the last means the last
        //@}
        /**
         * For an actor: only the pages of the scenes in which this character speaks, with those
         * speeches marked; in any case; empty for all pages.
         */
        QString character;
        QString watermark; ///< a text across each page, behind the script; empty for none
        QString language; ///< a BCP 47 tag; empty if unknown
        MRVProgress progress; ///< follows the printing; empty for nothing
    };

    MRVScriptPdf() = delete;

    /**
     * The bytes of a PDF file. Its title page goes with it where all pages are wanted. The same
     * script gives the same bytes where the environment variable SOURCE_DATE_EPOCH is set, which is
     * the date in it then; without it, no date is.
     *
     * @param script  what is printed.
     * @param mode    what it looks like, and on which paper.
     * @param options which pages, and what goes on them besides.
     * @param error   if given, receives one translated line on failure; untouched on success.
     * @param missing if given, receives MRVPdfWriter::missingCharacters() of the script.
     * @return empty on failure: where nothing is left to print, nobody of that name speaks, or
     *         SOURCE_DATE_EPOCH is set to what is no date; and when it was cancelled.
     */
    static QByteArray toByteArray(const MRVFountainScript &script, const MRVScriptMode &mode,
                                  const Options &options, MRVErrorSink error = nullptr,
                                  QString *missing = nullptr);
};
