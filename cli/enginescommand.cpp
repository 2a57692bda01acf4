#include "formatcandidates.h"
#include "settingsfile.h"

#include "engines/mrvimportexportconfig.h"
#include "options/mrvoptions.h"

namespace {

void print(const Call &call, const MRVEngineChoice &choice)
{
    printAnswer(
        call, choice.toJson(),
        QStringLiteral("%1: %2 (%3)")
            .arg(choice.title(), MRVImportExport::toString(choice.engine), choice.reasonText()));
}

int list(const Call &call, MRVOptions *options)
{
    const QList<MRVEngineChoice> choices = MRVImportExportConfig(options).choices();
    for (const MRVEngineChoice &choice : choices) {
        print(call, choice);
    }
    return Done;
}

// What is known of the conversion that the first two arguments name. @return Done, or the code to
// end with.
int readChoice(const Call &call, const MRVImportExportConfig &config, MRVEngineChoice *choice)
{
    MRVFormat::Format formats[2];
    for (int i = 0; i < 2; ++i) {
        formats[i] = MRVFormat::formatNamed(call.arguments.at(i));
        if (formats[i] == MRVFormat::NoFormat) {
            return usageError(QStringLiteral("unknown format '%1'").arg(call.arguments.at(i)));
        }
    }
    *choice = config.explain(formats[0], formats[1]);
    return Done;
}

int show(const Call &call, MRVOptions *options)
{
    MRVEngineChoice choice;
    if (const int code = readChoice(call, MRVImportExportConfig(options), &choice); code != Done) {
        return code;
    }
    print(call, choice);
    if (!call.json()) {
        printLine(QLatin1String("  possible here: ")
                  + choice.supportedNames().join(QLatin1String(", ")));
    }
    return choice.isOffered() ? int(Done) : refuse(MRVErrorKind::Unsupported, choice.objection());
}

int set(const Call &call, MRVOptions *options)
{
    MRVImportExportConfig config(options);
    MRVEngineChoice choice;
    if (const int code = readChoice(call, config, &choice); code != Done) {
        return code;
    }
    const QString &engine = call.arguments.at(2);
    const QString objection = choice.objectionTo(engine);
    if (!objection.isEmpty()) {
        return refuse(MRVErrorKind::Unsupported, objection);
    }
    config.setEngine(choice.from, choice.to, MRVImportExport::engineNamed(engine));
    if (save(options) != Done) {
        return Failed;
    }
    print(call, config.explain(choice.from, choice.to));
    return Done;
}

int reset(const Call &, MRVOptions *options)
{
    MRVImportExportConfig(options).resetEngines();
    return save(options);
}

// Those that the conversion may be done by.
Candidates enginesOf(const Call &call)
{
    const MRVFormat::Format from = MRVFormat::formatNamed(call.arguments.value(0));
    const MRVFormat::Format to = MRVFormat::formatNamed(call.arguments.value(1));
    MRVOptionsFile settings;
    return settings.open(call.value("settings"), Access::Read)
        ? candidates(MRVImportExportConfig(settings.options()).explain(from, to).supportedNames())
        : Candidates();
}

constexpr ArgumentValues values[] = {{"FROM TO", formatCandidates}, {"ENGINE", enginesOf}};

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
    values,
};
