#pragma once

#include "fileformats/mrvenginechoice.h"
#include "fileformats/mrvformat.h"
#include "fileformats/mrvimportexport.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QStringList>

class MRVOptions;

/**
 * A file format with all its suffixes, and what can be done with it here.
 *
 * @since 1.0
 */
struct MRVFormatSupport
{
    MRVFormatInfo info; ///< its first row
    QStringList suffixes; ///< the main one first
    bool canImport = false;
    bool canExport = false;
};

/**
 * Which engine converts which file format, as the user has chosen or as this machine can do best.
 *
 * Conversions pass through RTF: an import turns a file into RTF, an export turns RTF into a file.
 * For each direction there is a map of formats to engines, kept in the user's options; a format
 * that is not in the map is converted by QtEngine. Where nothing usable is stored, the map holds
 * the default engine of every format. A stored engine that needs an application which is missing is
 * replaced by the best one that does not; the stored choice stays, so that it holds again where the
 * application is there.
 *
 * GUI thread only.
 *
 * @code
 * MRVImportExportConfig *config = MRVImportExportConfig::instance();
 * const MRVEngineChoice choice = config->explain(MRVFormat::DOC, MRVFormat::RTF);
 * if (choice.isOffered()) {
 *     qDebug() << choice.engine << choice.reasonText();
 *     config->setEngine(MRVFormat::DOC, MRVFormat::RTF, choice.supported.first());
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVImportExportConfig
{
public:
    using FormatEngines = QMap<MRVFormat::Format, MRVImportExport::Engine>;

    /** The process's own object over mrvOptions(), read on first use. Never null. */
    static MRVImportExportConfig *instance();

    /**
     * The choices in other preferences than the user's, read now. @p options is not owned; without
     * it, or once it is deleted, nothing is stored.
     */
    explicit MRVImportExportConfig(MRVOptions *options);

    /** The formats that can be turned into RTF. */
    static QSet<MRVFormat::Format> importFormats();
    /**
     * The formats that RTF can be turned into. MOBI is among them if
     * MRVOptions::hasKindleConverter()
     * is true: a Kindle converter installed later is noticed at the next start.
     */
    static QSet<MRVFormat::Format> exportFormats();
    /**
     * The formats that are imported as RTF when the user has set nothing else, in a fixed order.
     */
    static QList<MRVFormat::Format> defaultImportAsRtfFormats();

    /** Where the user's options say that the Kindle converter is; need not exist. */
    static QString kindleGenFilePath();
    /** Whether kindleGenFilePath() names an existing file. */
    static bool kindleGenExists();

    /**
     * The engines that can convert @p from into @p to here; best first, never empty. Only a
     * conversion out of RTF has others than QtEngine.
     */
    static QList<MRVImportExport::Engine> supportedExportEngines(MRVFormat::Format from,
                                                                 MRVFormat::Format to);
    /**
     * The same for a conversion of @p from into @p to, where only one into RTF has others than
     * QtEngine.
     */
    static QList<MRVImportExport::Engine> supportedImportEngines(MRVFormat::Format from,
                                                                 MRVFormat::Format to);
    /** supportedExportEngines() from RTF. */
    static QList<MRVImportExport::Engine> supportedExportEnginesFromRtf(MRVFormat::Format to);
    /** supportedImportEngines() into RTF. */
    static QList<MRVImportExport::Engine> supportedImportEnginesToRtf(MRVFormat::Format from);

    /** The best engine for each of importFormats(). */
    static FormatEngines defaultImportEngines();
    /** The best engine for each of exportFormats(). */
    static FormatEngines defaultExportEngines();

    /**
     * The stored form: a QDataStream (version Qt_5_15) of a qint32 count and, for each entry, the
     * format's name and the engine's stored name as QStrings, in ascending order of the formats'
     * names.
     */
    static QByteArray toByteArray(const FormatEngines &engines);
    /**
     * Reads the stored form, entries in any order. Entries whose engine is unknown, or whose
     * format's name is not also a suffix, are dropped. Deliberate: choices for MMDtoHTML and its
     * like last until the next start only.
     *
     * @return empty where the bytes end too early or are not that form.
     */
    static FormatEngines toFormatEngines(const QByteArray &bytes);

    /** The engine that turns RTF into @p to; QtEngine for a format without an entry. */
    MRVImportExport::Engine exportEngine(MRVFormat::Format to) const;
    /** The engine that turns @p from into RTF; QtEngine for a format without an entry. */
    MRVImportExport::Engine importEngine(MRVFormat::Format from) const;
    /**
     * exportEngine() of @p to where @p from is RTF, importEngine() of @p from where @p to is RTF;
     * QtEngine where neither is.
     */
    MRVImportExport::Engine findEngine(MRVFormat::Format from, MRVFormat::Format to) const;
    /**
     * The answer of findEngine() for @p from and @p to with its reason, the other engines, and
     * whether it is of use.
     */
    MRVEngineChoice explain(MRVFormat::Format from, MRVFormat::Format to) const;

    /**
     * What explain() says of each conversion that is offered here: the imports, then the exports,
     * each in the order of MRVFormat's rows. From RTF to RTF is an export.
     */
    QList<MRVEngineChoice> choices() const;
    /** The formats that are files, in the order of MRVFormat's rows. */
    QList<MRVFormatSupport> formatSupport() const;

    /**
     * Replaces the choices of one direction, and stores them. Taken as they are: engines that
     * cannot do a conversion here are replaced at the next start only, and then an empty map is the
     * defaults.
     *
     * @return whether the options took them; as with all settings, they reach the disk a little
     *        later.
     */
    bool setImportFormatEngines(const FormatEngines &engines);
    /** As setImportFormatEngines(), for exports. */
    bool setExportFormatEngines(const FormatEngines &engines);

    /**
     * Stores one choice for the conversion of @p from into @p to, and with it the others of its
     * direction as they are stored, or the defaults where none are.
     *
     * @return false, with nothing changed, where neither side is RTF, there is no such conversion,
     *         or the engine cannot do it here; or where it could not be stored.
     */
    bool setEngine(MRVFormat::Format from, MRVFormat::Format to, MRVImportExport::Engine engine);
    /** Removes all stored choices, so that the defaults hold from now on. */
    void resetEngines();

private:
    void readChoices();
    bool setEngines(int direction, const FormatEngines &engines);

    QPointer<MRVOptions> m_options;
    bool m_kindleConverter = false;
    // As stored and as used; the index is the direction, import before export.
    FormatEngines m_stored[2];
    FormatEngines m_used[2];
};
