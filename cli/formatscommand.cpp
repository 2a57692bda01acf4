#include "command.h"
#include "formatname.h"
#include "settingsfile.h"
#include "textsearch.h"

#include "engines/mrvimportexportconfig.h"
#include "options/mrvoptions.h"

#include <QCommandLineParser>
#include <QJsonArray>
#include <QJsonObject>

namespace {

// A format with all its suffixes, and what can be done with it.
struct Entry
{
    MRVFormatInfo info;
    QStringList suffixes;
    bool canImport = false;
    bool canExport = false;
};

QList<Entry> entries(const MRVImportExportConfig &config)
{
    QList<Entry> entries;
    for (int row = 0; row < MRVFormat::formatsCount(); ++row) {
        const MRVFormatInfo info = MRVFormat::formatInfo(row);
        if (info.extension.isEmpty()) {
            continue; // output that is no file
        }
        if (!entries.isEmpty() && entries.constLast().info.format == info.format) {
            entries.last().suffixes.append(info.extension);
            continue;
        }
        entries.append({info,
                        {info.extension},
                        config.explain(info.format, MRVFormat::RTF).canImport,
                        config.explain(MRVFormat::RTF, info.format).canExport});
    }
    return entries;
}

void print(const Entry &entry, bool json)
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

} // namespace

int runFormats(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Lists file formats: suffixes, whether they can be imported and exported, name and\n"
        "description. With suffixes, names of formats or of files, tells which formats these are.\n"
        "Exit code 1: a suffix is unknown, or nothing is left to list."));
    parser.addPositionalArgument(QStringLiteral("SUFFIX"),
                                 QStringLiteral("A suffix, or the name of a file."),
                                 QStringLiteral("[SUFFIX...]"));
    parser.addOption({QStringLiteral("import"), QStringLiteral("Only what can be imported.")});
    parser.addOption({QStringLiteral("export"), QStringLiteral("Only what can be exported.")});
    parser.addOption(
        {QStringLiteral("settings"),
         QStringLiteral(
             "Look for the Kindle converter, which MOBI needs, where this settings file says."),
         QStringLiteral("FILE")});
    parser.addOption(
        {QStringLiteral("json"), QStringLiteral("Print each format as a line of JSON.")});
    const int code =
        parseArguments(&parser, QStringLiteral("formats [SUFFIX...] [OPTIONS]"), arguments);
    if (code >= 0) {
        return code;
    }
    QString error;
    const OpenedOptions opened =
        openOptions(parser.value(QStringLiteral("settings")), Access::Read, &error);
    if (!opened.options) {
        printError(QLatin1String("formats: ") + error);
        return Failed;
    }

    QStringList asked = parser.positionalArguments();
    QSet<MRVFormat::Format> chosen;
    bool unknown = false;
    for (const QString &name : qAsConst(asked)) {
        const MRVFormat::Format format = formatNamed(name);
        chosen.insert(format);
        if (format == MRVFormat::NoFormat) {
            printError(QStringLiteral("formats: %1: is of no known format").arg(name));
            unknown = true;
        }
    }
    bool found = false;
    const MRVImportExportConfig config(opened.options.get());
    const QList<Entry> all = entries(config);
    for (const Entry &entry : all) {
        if ((asked.isEmpty() || chosen.contains(entry.info.format))
            && (entry.canImport || !parser.isSet(QStringLiteral("import")))
            && (entry.canExport || !parser.isSet(QStringLiteral("export")))) {
            print(entry, parser.isSet(QStringLiteral("json")));
            found = true;
        }
    }
    if (!found && !unknown) {
        printError(QStringLiteral("formats: %1 cannot be %2")
                       .arg(asked.join(QLatin1String(", ")),
                            QLatin1String(!parser.isSet(QStringLiteral("export")) ? "imported"
                                              : !parser.isSet(QStringLiteral("import"))
                                              ? "exported"
                                              : "imported and exported")));
    }
    return found && !unknown ? Done : Failed;
}
