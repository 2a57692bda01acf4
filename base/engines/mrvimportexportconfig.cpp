#include "engines/mrvimportexportconfig.h"

#include "fileformats/mrvenginetables.h"
#include "options/mrvoptions.h"

#include <QDir>
#include <QFileInfo>

using namespace MRVEngineTables;
using Engines = QList<MRVImportExport::Engine>;
using Format = MRVFormat::Format;

namespace {

constexpr MRVSettings::ByteArraySetting settings[] = {
    MRVOptions::ImportFormatConverters, // Import
    MRVOptions::ExportFormatConverters, // Export
};

QString kindlePath(const MRVOptions *options)
{
    return options ? QDir::toNativeSeparators(options->value(MRVOptions::KindlePath)) : QString();
}

Applications applications(bool kindleConverter)
{
    Applications applications;
    applications.kindleConverter = kindleConverter;
    return applications;
}

QSet<Format> toSet(const QList<Format> &formats)
{
    return QSet<Format>(formats.cbegin(), formats.cend());
}

} // namespace

MRVImportExportConfig *MRVImportExportConfig::instance()
{
    static MRVImportExportConfig config(mrvOptions());
    return &config;
}

MRVImportExportConfig::MRVImportExportConfig(MRVOptions *options)
    : m_options(options)
    , m_kindleConverter(QFileInfo::exists(kindlePath(options)))
{
    readChoices();
}

QSet<Format> MRVImportExportConfig::importFormats()
{
    static const QSet<Format> set = toSet(formats(Import, {}));
    return set;
}

QSet<Format> MRVImportExportConfig::exportFormats()
{
    static const QSet<Format> set =
        toSet(formats(Export, applications(MRVOptions::hasKindleConverter())));
    return set;
}

QList<Format> MRVImportExportConfig::defaultImportAsRtfFormats()
{
    return MRVEngineTables::defaultImportAsRtfFormats();
}

QString MRVImportExportConfig::kindleGenFilePath()
{
    return kindlePath(mrvOptions());
}

bool MRVImportExportConfig::kindleGenExists()
{
    return QFileInfo::exists(kindleGenFilePath());
}

Engines MRVImportExportConfig::supportedExportEngines(Format from, Format to)
{
    return from == MRVFormat::RTF ? supportedEngines(Export, to, {})
                                  : Engines{MRVImportExport::QtEngine};
}

Engines MRVImportExportConfig::supportedImportEngines(Format from, Format to)
{
    return to == MRVFormat::RTF ? supportedEngines(Import, from, {})
                                : Engines{MRVImportExport::QtEngine};
}

Engines MRVImportExportConfig::supportedExportEnginesFromRtf(Format to)
{
    return supportedExportEngines(MRVFormat::RTF, to);
}

Engines MRVImportExportConfig::supportedImportEnginesToRtf(Format from)
{
    return supportedImportEngines(from, MRVFormat::RTF);
}

MRVImportExportConfig::FormatEngines MRVImportExportConfig::defaultImportEngines()
{
    return defaultEngines(Import, {});
}

MRVImportExportConfig::FormatEngines MRVImportExportConfig::defaultExportEngines()
{
    return defaultEngines(Export, applications(exportFormats().contains(MRVFormat::MOBI)));
}

QByteArray MRVImportExportConfig::toByteArray(const FormatEngines &engines)
{
    return MRVEngineTables::toByteArray(engines);
}

MRVImportExportConfig::FormatEngines MRVImportExportConfig::toFormatEngines(const QByteArray &bytes)
{
    return MRVEngineTables::toFormatEngines(bytes);
}

MRVImportExport::Engine MRVImportExportConfig::exportEngine(Format to) const
{
    return m_used[Export].value(to, MRVImportExport::QtEngine);
}

MRVImportExport::Engine MRVImportExportConfig::importEngine(Format from) const
{
    return m_used[Import].value(from, MRVImportExport::QtEngine);
}

MRVImportExport::Engine MRVImportExportConfig::findEngine(Format from, Format to) const
{
    return explain(from, to).engine;
}

MRVEngineChoice MRVImportExportConfig::explain(Format from, Format to) const
{
    return choose(from, to,
                  {{m_stored[Import], m_stored[Export]}, {m_used[Import], m_used[Export]}},
                  applications(m_kindleConverter));
}

QList<MRVEngineChoice> MRVImportExportConfig::choices() const
{
    QList<MRVEngineChoice> imports;
    QList<MRVEngineChoice> exports;
    const QList<Format> formats = MRVFormat::formats();
    for (Format format : formats) {
        exports.append(explain(MRVFormat::RTF, format));
        if (format != MRVFormat::RTF) {
            imports.append(explain(format, MRVFormat::RTF));
        }
    }
    QList<MRVEngineChoice> offered;
    for (const MRVEngineChoice &choice : imports + exports) {
        if (choice.isOffered()) {
            offered.append(choice);
        }
    }
    return offered;
}

QList<MRVFormatSupport> MRVImportExportConfig::formatSupport() const
{
    QList<MRVFormatSupport> all;
    for (int row = 0; row < MRVFormat::formatsCount(); ++row) {
        const MRVFormatInfo info = MRVFormat::formatInfo(row);
        if (info.extension.isEmpty()) {
            continue; // output that is no file
        }
        if (!all.isEmpty() && all.constLast().info.format == info.format) {
            all.last().suffixes.append(info.extension);
            continue;
        }
        all.append({info,
                    {info.extension},
                    explain(info.format, MRVFormat::RTF).canImport,
                    explain(MRVFormat::RTF, info.format).canExport});
    }
    return all;
}

bool MRVImportExportConfig::setImportFormatEngines(const FormatEngines &engines)
{
    return setEngines(Import, engines);
}

bool MRVImportExportConfig::setExportFormatEngines(const FormatEngines &engines)
{
    return setEngines(Export, engines);
}

bool MRVImportExportConfig::setEngine(Format from, Format to, MRVImportExport::Engine engine)
{
    const MRVEngineChoice choice = explain(from, to);
    if (choice.reason == MRVEngineChoice::NeitherSideRtf || !choice.isOffered()
        || !choice.supported.contains(engine)) {
        return false;
    }
    const Direction direction = from == MRVFormat::RTF ? Export : Import;
    FormatEngines engines = m_stored[direction].isEmpty() ? m_used[direction] : m_stored[direction];
    engines.insert(direction == Export ? to : from, engine);
    const bool stored = setEngines(direction, engines);
    m_used[direction] = usableEngines(direction, engines, applications(m_kindleConverter));
    return stored;
}

void MRVImportExportConfig::resetEngines()
{
    if (m_options) {
        for (MRVSettings::ByteArraySetting setting : settings) {
            m_options->remove(m_options->keyText(setting));
        }
    }
    readChoices();
}

void MRVImportExportConfig::readChoices()
{
    for (Direction direction : {Import, Export}) {
        m_stored[direction].clear();
        const QString key = m_options ? m_options->keyText(settings[direction]) : QString();
        if (m_options && m_options->contains(key)) {
            m_stored[direction] =
                MRVEngineTables::toFormatEngines(m_options->value(key).toByteArray());
        }
        m_used[direction] =
            usableEngines(direction, m_stored[direction], applications(m_kindleConverter));
    }
}

bool MRVImportExportConfig::setEngines(int direction, const FormatEngines &engines)
{
    m_stored[direction] = engines;
    m_used[direction] = engines;
    return m_options
        && m_options->setValue(settings[direction], MRVEngineTables::toByteArray(engines));
}
