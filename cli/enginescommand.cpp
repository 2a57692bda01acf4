#include "formatname.h"
#include "settingsfile.h"

#include "engines/mrvimportexportconfig.h"
#include "options/mrvoptions.h"

#include <QJsonArray>
#include <QJsonObject>

namespace {

using Format = MRVFormat::Format;

/** A conversion that is asked for. */
struct Conversion
{
    Format from = MRVFormat::NoFormat;
    Format to = MRVFormat::NoFormat;
};

MRVImportExport::Engine engineOf(const QString &text)
{
    const QMap<MRVImportExport::Engine, QString> engines = MRVImportExport::engineTypes();
    for (auto it = engines.cbegin(); it != engines.cend(); ++it) {
        if (it.value().compare(text, Qt::CaseInsensitive) == 0) {
            return it.key();
        }
    }
    return MRVImportExport::UnknownEngine;
}

QStringList names(const QList<MRVImportExport::Engine> &engines)
{
    QStringList names;
    for (MRVImportExport::Engine engine : engines) {
        names.append(MRVImportExport::toString(engine));
    }
    return names;
}

QString title(const Conversion &conversion)
{
    return QStringLiteral("%1 -> %2")
        .arg(MRVFormat::name(conversion.from), MRVFormat::name(conversion.to));
}

void print(const Call &call, const Conversion &conversion, const MRVEngineChoice &choice)
{
    const QString engine = MRVImportExport::toString(choice.engine);
    if (!call.json()) {
        printLine(
            QStringLiteral("%1: %2 (%3)").arg(title(conversion), engine, choice.reasonText()));
        return;
    }
    QJsonObject object{
        {QStringLiteral("from"), MRVFormat::name(conversion.from)},
        {QStringLiteral("to"), MRVFormat::name(conversion.to)},
        {QStringLiteral("engine"), engine},
        {QStringLiteral("reason"), QLatin1String(MRVEngineChoice::toString(choice.reason))},
        {QStringLiteral("supported"), QJsonArray::fromStringList(names(choice.supported))},
        {QStringLiteral("offered"), choice.isOffered()},
    };
    if (choice.stored != MRVImportExport::UnknownEngine) {
        object.insert(QStringLiteral("stored"), MRVImportExport::toString(choice.stored));
    }
    printJson(object);
}

int list(const Call &call, MRVOptions *options)
{
    const MRVImportExportConfig config(options);
    QVector<Conversion> imports;
    QVector<Conversion> exports;
    QSet<Format> known; // a format has a row for each of its suffixes
    for (int row = 0; row < MRVFormat::formatsCount(); ++row) {
        const Format format = MRVFormat::formatAt(row);
        if (!known.contains(format)) {
            known.insert(format);
            exports.append({MRVFormat::RTF, format});
            // From RTF to RTF is an export.
            if (format != MRVFormat::RTF) {
                imports.append({format, MRVFormat::RTF});
            }
        }
    }
    for (const Conversion &conversion : imports + exports) {
        const MRVEngineChoice choice = config.explain(conversion.from, conversion.to);
        if (choice.isOffered()) {
            print(call, conversion, choice);
        }
    }
    return Done;
}

// The first two arguments. @return Done, or the code to end with.
int readConversion(const Call &call, Conversion *conversion)
{
    for (int i = 0; i < 2; ++i) {
        const Format format = formatNamed(call.arguments.at(i));
        if (format == MRVFormat::NoFormat) {
            return usageError(QStringLiteral("unknown format '%1'").arg(call.arguments.at(i)));
        }
        (i == 0 ? conversion->from : conversion->to) = format;
    }
    return Done;
}

// Empty when the conversion exists.
QString objectionTo(const Conversion &conversion, const MRVEngineChoice &choice)
{
    if (!choice.canImport) {
        return QStringLiteral("%1 cannot be imported").arg(MRVFormat::name(conversion.from));
    }
    return choice.canExport
        ? QString()
        : QStringLiteral("%1 cannot be exported").arg(MRVFormat::name(conversion.to));
}

int show(const Call &call, MRVOptions *options)
{
    Conversion conversion;
    if (const int code = readConversion(call, &conversion); code != Done) {
        return code;
    }
    const MRVEngineChoice choice =
        MRVImportExportConfig(options).explain(conversion.from, conversion.to);
    print(call, conversion, choice);
    if (!call.json()) {
        printLine(QLatin1String("  possible here: ")
                  + names(choice.supported).join(QLatin1String(", ")));
    }
    const QString objection = objectionTo(conversion, choice);
    return objection.isEmpty() ? Done : refuse(objection);
}

// Why an engine cannot be chosen for a conversion; empty when it can.
QString objectionTo(const Conversion &conversion, const MRVEngineChoice &choice,
                    const QString &engine)
{
    const QString objection = objectionTo(conversion, choice);
    const Format other = conversion.from == MRVFormat::RTF ? conversion.to : conversion.from;
    if (!objection.isEmpty()) {
        return objection;
    }
    if (choice.reason == MRVEngineChoice::NeitherSideRtf) {
        return title(conversion) + QLatin1String(": ") + choice.reasonText();
    }
    if (!choice.supported.contains(engineOf(engine))) {
        return QStringLiteral("%1: %2 cannot do that here; possible: %3")
            .arg(title(conversion), engine, names(choice.supported).join(QLatin1String(", ")));
    }
    return MRVFormat::format(MRVFormat::name(other)) == other
        ? QString()
        : QStringLiteral("choices for %1 are not kept: its name is not a suffix")
              .arg(MRVFormat::name(other));
}

int set(const Call &call, MRVOptions *options)
{
    Conversion conversion;
    if (const int code = readConversion(call, &conversion); code != Done) {
        return code;
    }
    MRVImportExportConfig config(options);
    const QString &engine = call.arguments.at(2);
    const QString objection =
        objectionTo(conversion, config.explain(conversion.from, conversion.to), engine);
    if (!objection.isEmpty()) {
        return refuse(objection);
    }
    config.setEngine(conversion.from, conversion.to, engineOf(engine));
    if (save(options) != Done) {
        return Failed;
    }
    print(call, conversion, config.explain(conversion.from, conversion.to));
    return Done;
}

int reset(const Call &, MRVOptions *options)
{
    MRVImportExportConfig(options).resetEngines();
    return save(options);
}

constexpr Verb verbs[] = {
    {"list", "", "list all conversions", withSettings<Access::Read, list>},
    {"show", "FROM TO", "show the engine of one conversion", withSettings<Access::Read, show>,
     "FROM and TO are suffixes, names of formats or names of files."},
    {"set", "FROM TO ENGINE", "store the choice of an engine", withSettings<Access::Create, set>,
     "ENGINE is one of those that show names as possible."},
    {"reset", "", "remove all stored choices, so that the defaults hold",
     withSettings<Access::Change, reset>},
};

constexpr Option options[] = {
    settingsOption,
    Option::flag("json", "Print each conversion as a line of JSON."),
};

} // namespace

const Command enginesCommand = {
    "engines",
    "show and choose which engine converts which format",
    "Shows which engine converts which format into RTF, or RTF into it, and why. FROM and TO are "
    "suffixes, names of formats or names of files.\n"
    "Exit code 1: the conversion does not exist, or the engine cannot do it here.",
    "engines list\nengines show doc rtf\nengines set rtf doc Doc2AnyInternalEngine",
    verbs,
    {options},
};
