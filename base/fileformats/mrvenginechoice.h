#pragma once

#include "fileformats/mrvformat.h"
#include "fileformats/mrvimportexport.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

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

    /** The conversion that was asked for. */
    MRVFormat::Format from = MRVFormat::NoFormat;
    MRVFormat::Format to = MRVFormat::NoFormat;

    MRVImportExport::Engine engine = MRVImportExport::QtEngine;
    Reason reason = NeitherSideRtf;
    /** What is stored for the format; UnknownEngine for nothing. */
    MRVImportExport::Engine stored = MRVImportExport::UnknownEngine;
    /** The engines that can do the conversion on this machine, best first; never empty. */
    QList<MRVImportExport::Engine> supported = {MRVImportExport::QtEngine};
    /** The stored names of these. */
    QStringList supportedNames() const;
    /** Whether the first format can be imported; RTF always can. */
    bool canImport = false;
    /** Whether the second format can be exported; RTF always can. */
    bool canExport = false;

    /** Whether there is such a conversion at all. An engine is named even where there is none. */
    bool isOffered() const { return canImport && canExport; }

    /** The names of the formats, as "DOC -> RTF". */
    QString title() const;

    /** Why the conversion is not offered, translated; empty where it is. */
    QString objection() const;
    /**
     * Why the engine called @p engine, in any case, cannot be chosen for the conversion and kept,
     * translated; empty where it can.
     */
    QString objectionTo(const QString &engine) const;

    /**
     * For programs: "from" and "to", names of formats; "engine", "stored" where there is one, and
     * "supported", stored names of engines; "reason", as toString() gives it; "offered".
     */
    QJsonObject toJson() const;

    /** A translated sentence without a full stop, such as "it is the default". */
    QString reasonText() const;
    /** The reason for programs: "neitherSideRtf", "default", "stored", "unlisted" or "repaired". */
    static const char *toString(Reason reason);
};
