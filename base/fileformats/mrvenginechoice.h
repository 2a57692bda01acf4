#pragma once

#include "fileformats/mrvformat.h"
#include "fileformats/mrvimportexport.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

/**
 * Which engine would convert a file, and why: the answer of MRVImportExportConfig::explain().
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVEngineChoice
{
    Q_DECLARE_TR_FUNCTIONS(MRVEngineChoice)

public:
    enum Reason : int {
        NeitherSideRtf = 0, ///< No choice is kept for conversions that do not begin or end at RTF.
        Default = 1, ///< Nothing is stored, so the best engine of this machine is taken.
        Stored = 2, ///< The engine is the stored one.
        Unlisted = 3, ///< Choices are stored, but none for this format.
        Repaired = 4, ///< The stored engine needs an application that is missing here.
    };

    MRVImportExport::Engine engine = MRVImportExport::QtEngine;
    Reason reason = NeitherSideRtf;
    /** What is stored for the format; UnknownEngine for nothing. */
    MRVImportExport::Engine stored = MRVImportExport::UnknownEngine;
    /** The engines that can do the conversion on this machine, best first; never empty. */
    QList<MRVImportExport::Engine> supported = {MRVImportExport::QtEngine};
    /** Whether the first format can be imported; RTF always can. */
    bool canImport = false;
    /** Whether the second format can be exported; RTF always can. */
    bool canExport = false;

    /** Whether there is such a conversion at all. An engine is named even where there is none. */
    bool isOffered() const { return canImport && canExport; }

    /** A translated sentence without a full stop, such as "it is the default". */
    QString reasonText() const;
    /** The same for programs: "neitherSideRtf", "default", "stored", "unlisted" or "repaired". */
    static const char *toString(Reason reason);
};
