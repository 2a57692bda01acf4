#pragma once

#include "fileformats/mrvenginechoice.h"
#include "fileformats/mrvformat.h"
#include "fileformats/mrvimportexport.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QList>
#include <QMap>

/**
 * What the engine configuration knows, out of nothing but its arguments: no settings, no files. The
 * options take the defaults of their two engine settings from here, since the configuration reads
 * the options.
 *
 * @since 1.0
 */
namespace MRVEngineTables {

using FormatEngines = QMap<MRVFormat::Format, MRVImportExport::Engine>;

/** Conversions pass through RTF: an import ends there, an export begins there. */
enum Direction : int { Import = 0, Export = 1 };

/** The programs of others that conversions can make use of. */
struct Applications
{
    bool msWord = MRVImportExport::hasMsWord();
    bool openOffice = MRVImportExport::hasOpenOffice();
    bool kindleConverter = false;
};

/** The formats that can be imported, or exported; each once, in a fixed order. */
MRVBASE_EXPORT QList<MRVFormat::Format> formats(Direction direction,
                                                const Applications &applications);
/** The formats that are imported as RTF when the user has set nothing else. */
MRVBASE_EXPORT QList<MRVFormat::Format> defaultImportAsRtfFormats();

/** The engines that convert @p format into RTF, or RTF into @p format; best first, never empty. */
MRVBASE_EXPORT QList<MRVImportExport::Engine> supportedEngines(Direction direction,
                                                               MRVFormat::Format format,
                                                               const Applications &applications);

/** An engine for each of formats(). */
MRVBASE_EXPORT FormatEngines defaultEngines(Direction direction, const Applications &applications);

/**
 * The stored form: a qint32 count; for each entry the format's name and the engine's, QStrings of a
 * QDataStream, in ascending order of the formats' names.
 */
MRVBASE_EXPORT QByteArray toByteArray(const FormatEngines &engines);

/**
 * Reads the stored form, entries in any order. A format is looked up by suffix, in any case:
 * deliberate, so that formats whose name is no suffix (MMDtoHTML) get their default back at the
 * next start. Entries with an unknown format or engine are dropped. Where several entries are for
 * one format, that with the last name counts (lower case is after upper case), and among equal
 * names the first; a dropped entry hides none.
 *
 * @return empty where the bytes end too early or are otherwise not that form. What follows them is
 * ignored.
 */
MRVBASE_EXPORT FormatEngines toFormatEngines(const QByteArray &bytes);

/**
 * The engines to be used for the @p stored ones: the defaults where nothing is stored, and the best
 * engine in place of one whose application is missing.
 */
MRVBASE_EXPORT FormatEngines usableEngines(Direction direction, const FormatEngines &stored,
                                           const Applications &applications);

/** The engines as stored and as used, of both directions; the index is the Direction. */
struct Choices
{
    FormatEngines stored[2];
    FormatEngines used[2];
};

/** Which engine converts @p from into @p to. */
MRVBASE_EXPORT MRVEngineChoice choose(MRVFormat::Format from, MRVFormat::Format to,
                                      const Choices &choices, const Applications &applications);

} // namespace MRVEngineTables
