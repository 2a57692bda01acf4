#include "fileformats/mrvenginetables.h"

#include "core/mcoretype.h"

#include <iterator>

namespace MRVEngineTables {

namespace {

using Engine = MRVImportExport::Engine;
using Format = MRVFormat::Format;

constexpr Format importFormats[] = {
    MRVFormat::TXT,  MRVFormat::RTF, MRVFormat::HTML, MRVFormat::ODT, MRVFormat::DOC,
    MRVFormat::DOCX, MRVFormat::FDX, MRVFormat::MMD,  MRVFormat::DOT, MRVFormat::OTT,
};

constexpr Format importAsRtfFormats[] = {
    MRVFormat::TXT, MRVFormat::RTF, MRVFormat::DOC,  MRVFormat::DOCX, MRVFormat::DOT,
    MRVFormat::FDX, MRVFormat::MMD, MRVFormat::HTML, MRVFormat::ODT,  MRVFormat::OTT,
};

constexpr Format exportFormats[] = {
    MRVFormat::TXT,       MRVFormat::RTF,      MRVFormat::HTML,      MRVFormat::XHTML,
    MRVFormat::EPUB,      MRVFormat::ODT,      MRVFormat::DOC,       MRVFormat::DOCX,
    MRVFormat::PDF,       MRVFormat::PS,       MRVFormat::PNG,       MRVFormat::FDX,
    MRVFormat::MMDtoHTML, MRVFormat::MMDtoTEX, MRVFormat::MMDtoOPML, MRVFormat::MMDtoODF,
    MRVFormat::MMD,
};

// The engines for one format, best first; the lists end at the first UnknownEngine.
struct Row
{
    Format format;
    Engine withoutWord[4];
    Engine withWord[4];
};

constexpr Engine Auto = MRVImportExport::Doc2AnyAutoEngine;
constexpr Engine Word = MRVImportExport::Doc2AnyPreferMsOffice;
constexpr Engine Internal = MRVImportExport::Doc2AnyInternalEngine;
constexpr Engine Subs = MRVImportExport::SubSystemsEngine;
constexpr Engine QtOwn = MRVImportExport::QtEngine;
constexpr Engine Rtf = MRVImportExport::RtfBasedDoc;

// Formats without a row are converted by QtEngine alone.
constexpr Row exportRows[] = {
    {MRVFormat::ODT, {QtOwn, Internal}, {QtOwn, Internal}},
    {MRVFormat::DOT, {QtOwn, Internal}, {QtOwn, Internal}},
    {MRVFormat::OTT, {QtOwn, Internal}, {QtOwn, Internal}},
    {MRVFormat::DOC, {Rtf, Internal}, {Word, Rtf, Internal}},
    {MRVFormat::DOCX, {Subs}, {Word, Subs}},
    {MRVFormat::PDF, {QtOwn}, {Word, QtOwn}},
    {MRVFormat::PS, {QtOwn, Auto}, {QtOwn, Auto}},
};

constexpr Row importRows[] = {
    {MRVFormat::ODT, {Internal}, {Word, Internal}},
    {MRVFormat::OTT, {Internal}, {Word, Internal}},
    {MRVFormat::DOC, {Internal}, {Word, Subs, Internal}},
    {MRVFormat::DOCX, {Subs, Internal}, {Word, Subs, Internal}},
    {MRVFormat::DOT, {Internal}, {Internal}},
};

template<std::size_t Size>
constexpr bool holdsEachOnce(const Format (&table)[Size])
{
    for (std::size_t i = 0; i < Size; ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (table[i] == table[j]) {
                return false;
            }
        }
    }
    return true;
}

// No list is empty or without an end, and none without Word names an engine that needs it.
template<std::size_t Size>
constexpr bool listsAreSound(const Row (&table)[Size])
{
    for (const Row &row : table) {
        for (const auto &engines : {row.withoutWord, row.withWord}) {
            if (!engines[0] || engines[3]) {
                return false;
            }
        }
        for (Engine engine : row.withoutWord) {
            if (engine == Word || engine == MRVImportExport::Doc2AnyPreferOpenOffice) {
                return false;
            }
        }
    }
    return true;
}

static_assert(holdsEachOnce(importFormats) && holdsEachOnce(exportFormats));
static_assert(holdsEachOnce(importAsRtfFormats)
              && std::size(importAsRtfFormats) == std::size(importFormats));
static_assert(listsAreSound(exportRows) && listsAreSound(importRows));

template<std::size_t Size>
QList<Format> toList(const Format (&table)[Size])
{
    return QList<Format>(std::begin(table), std::end(table));
}

template<std::size_t Size>
QList<Engine> enginesOf(const Row (&table)[Size], Format format, bool msWord)
{
    QList<Engine> engines;
    for (const Row &row : table) {
        if (row.format == format) {
            for (Engine engine : msWord ? row.withWord : row.withoutWord) {
                if (engine) {
                    engines.append(engine);
                }
            }
        }
    }
    return engines.isEmpty() ? QList<Engine>{QtOwn} : engines;
}

} // namespace

QList<Format> formats(Direction direction, const Applications &applications)
{
    if (direction == Import) {
        return toList(importFormats);
    }
    QList<Format> formats = toList(exportFormats);
    if (applications.kindleConverter) {
        formats.append(MRVFormat::MOBI);
    }
    return formats;
}

QList<Format> defaultImportAsRtfFormats()
{
    return toList(importAsRtfFormats);
}

QList<Engine> supportedEngines(Direction direction, Format format, const Applications &applications)
{
    return direction == Import ? enginesOf(importRows, format, applications.msWord)
                               : enginesOf(exportRows, format, applications.msWord);
}

FormatEngines defaultEngines(Direction direction, const Applications &applications)
{
    FormatEngines engines;
    const QList<Format> all = formats(direction, applications);
    for (Format format : all) {
        engines.insert(format, supportedEngines(direction, format, applications).constFirst());
    }
    return engines;
}

QByteArray toByteArray(const FormatEngines &engines)
{
    QMap<QString, QString> names;
    for (auto it = engines.cbegin(); it != engines.cend(); ++it) {
        names.insert(MRVFormat::name(it.key()), MRVImportExport::toString(it.value()));
    }
    return MCoreType::toByteArray(names);
}

FormatEngines toFormatEngines(const QByteArray &bytes)
{
    FormatEngines engines;
    // The form of a map; of a name that stands there twice, the first counts.
    const auto names = MCoreType::fromByteArray<QList<QPair<QString, QString>>>(bytes);
    for (const QPair<QString, QString> &name : names) {
        const Format format = MRVFormat::format(name.first);
        const Engine engine = MRVImportExport::toEngine(name.second);
        if (format != MRVFormat::NoFormat && engine != MRVImportExport::UnknownEngine
            && !engines.contains(format)) {
            engines.insert(format, engine);
        }
    }
    return engines;
}

FormatEngines usableEngines(Direction direction, const FormatEngines &stored,
                            const Applications &applications)
{
    if (stored.isEmpty()) {
        return defaultEngines(direction, applications);
    }
    FormatEngines engines = stored;
    for (auto it = engines.begin(); it != engines.end(); ++it) {
        const bool missing = (it.value() == Word && !applications.msWord)
            || (it.value() == MRVImportExport::Doc2AnyPreferOpenOffice && !applications.openOffice);
        if (missing) {
            it.value() = supportedEngines(direction, it.key(), applications).constFirst();
        }
    }
    return engines;
}

MRVEngineChoice choose(Format from, Format to, const Choices &choices,
                       const Applications &applications)
{
    MRVEngineChoice choice;
    choice.from = from;
    choice.to = to;
    choice.canImport = formats(Import, applications).contains(from);
    choice.canExport = formats(Export, applications).contains(to);
    if (from != MRVFormat::RTF && to != MRVFormat::RTF) {
        return choice;
    }

    const Direction direction = from == MRVFormat::RTF ? Export : Import;
    const Format format = direction == Export ? to : from;
    const FormatEngines &stored = choices.stored[direction];
    const FormatEngines &used = choices.used[direction];
    choice.supported = supportedEngines(direction, format, applications);
    choice.stored = stored.value(format);
    choice.engine = used.value(format, QtOwn);
    if (!used.contains(format)) {
        choice.reason = MRVEngineChoice::Unlisted;
    } else if (stored.isEmpty()) {
        choice.reason = MRVEngineChoice::Default;
    } else {
        choice.reason =
            choice.stored == choice.engine ? MRVEngineChoice::Stored : MRVEngineChoice::Repaired;
    }
    return choice;
}

} // namespace MRVEngineTables
