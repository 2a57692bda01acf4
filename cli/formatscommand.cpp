#include "formatcandidates.h"
#include "settingsfile.h"

#include "engines/mrvimportexportconfig.h"
#include "options/mrvoptions.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

void print(const MRVFormatSupport &entry, bool json)
{
    if (json) {
        printJson({{QStringLiteral("name"), entry.info.name},
                   {QStringLiteral("suffixes"), QJsonArray::fromStringList(entry.suffixes)},
                   {QStringLiteral("description"), entry.info.description},
                   {QStringLiteral("import"), entry.canImport},
                   {QStringLiteral("export"), entry.canExport}});
        return;
    }
    printLine(QStringLiteral("%1 %2 %3 %4 %5")
                  .arg(entry.suffixes.join(u' '), -11)
                  .arg(QLatin1String(entry.canImport ? "import" : "-"), -6)
                  .arg(QLatin1String(entry.canExport ? "export" : "-"), -6)
                  .arg(entry.info.name, -9)
                  .arg(entry.info.description));
}

// The formats that the arguments name. @return whether they all name one.
bool readFormats(const Call &call, QSet<MRVFormat::Format> *formats)
{
    bool areKnown = true;
    for (const QString &name : call.arguments) {
        const MRVFormat::Format format = MRVFormat::formatNamed(name);
        if (format == MRVFormat::NoFormat) {
            refuse(MRVErrorKind::Unsupported, QStringLiteral("%1: unknown format").arg(name));
            areKnown = false;
        }
        formats->insert(format);
    }
    return areKnown;
}

int list(const Call &call, MRVOptions *options)
{
    QSet<MRVFormat::Format> chosen;
    const bool areKnown = readFormats(call, &chosen);
    bool found = false;
    const QList<MRVFormatSupport> all = MRVImportExportConfig(options).formatSupport();
    for (const MRVFormatSupport &entry : all) {
        if ((chosen.isEmpty() || chosen.contains(entry.info.format))
            && (entry.canImport || !call.has("import"))
            && (entry.canExport || !call.has("export"))) {
            print(entry, call.json());
            found = true;
        }
    }
    if (!found && areKnown) {
        return refuse(MRVErrorKind::Unsupported,
                      QStringLiteral("%1 cannot be %2")
                          .arg(call.arguments.join(QLatin1String(", ")),
                               QLatin1String(!call.has("export")       ? "imported"
                                                 : !call.has("import") ? "exported"
                                                                       : "imported and exported")));
    }
    return found && areKnown ? Done : Failed;
}

constexpr ArgumentValues values[] = {{"FORMAT", formatCandidates}};

constexpr Verb verbs[] = {{"", "[FORMAT...]", "", withSettings<Access::Read, list>}};

constexpr Option options[] = {
    Option::flag("import", "Only formats that can be imported."),
    Option::flag("export", "Only formats that can be exported."),
    settingsOption,
    Option::flag("json", "Print each format as a line of JSON."),
};

} // namespace

const Command formatsCommand = {
    "formats",
    "list file formats and what can be done with them",
    "Lists file formats: suffixes, whether they can be imported and exported, name and "
    "description. FORMAT is a suffix, the name of a format or the name of a file. The settings "
    "say where the Kindle converter is, which MOBI needs.\n"
    "Exit code 1: a format is unknown, or no format is left to list.",
    "formats --import\nformats docx novel.mobi",
    verbs,
    {options},
    values,
};
