#include "settingsfile.h"
#include "suggestion.h"

#include "options/mrvoptions.h"
#include "presets/mrvtextpresetjson.h"
#include "state/mrvtextpresetmgr.h"
#include "util/mrvfilekind.h"

#include <QCoreApplication>
#include <QJsonObject>

namespace {

int refuseName(const QString &name, const MRVTextPresetScheme &scheme)
{
    return refuse(MRVErrorKind::NotFound,
                  QStringLiteral("there is no preset '%1'").arg(name)
                      + didYouMean(name, scheme.names()));
}

// Those that were not named by --settings are the user's own.
MRVOptions *named(const Call &call, MRVOptions *options)
{
    return call.has("settings") ? options : nullptr;
}

int write(const Call &call, MRVOptions *options, const MRVTextPresetScheme &scheme)
{
    MRVError error;
    return MRVTextPresetMgr::writePresets(scheme, named(call, options), &error) ? Done
                                                                                : refuse(error);
}

void printFormat(const char *title, const QJsonObject &object)
{
    QStringList values;
    for (auto it = object.begin(); it != object.end(); ++it) {
        values << it.key() + u' ' + displayed(it.value().toVariant().toString());
    }
    printLine(QStringLiteral("  %1 %2").arg(QLatin1String(title), -11).arg(values.join(u", ")));
}

void printPreset(const Call &call, const QString &name, const MRVTextPreset &preset)
{
    const QJsonObject object = MRVTextPresetJson::toJson(name, preset);
    if (call.json()) {
        printJson(object);
        return;
    }
    printLine(displayed(name));
    const QStringList parts = object[QLatin1String("applies")].toVariant().toStringList();
    printLine(QLatin1String("  applies     ") + parts.join(QLatin1String(", ")));
    for (const char *part : {"characters", "paragraphs"}) {
        printFormat(part, object[QLatin1String(part)].toObject());
    }
}

int list(const Call &call, MRVOptions *, MRVTextPresetScheme scheme)
{
    const QStringList names = scheme.names();
    for (const QString &name : names) {
        printAnswer(call, MRVTextPresetJson::toJson(name, scheme.preset(name)), displayed(name));
    }
    return names.isEmpty() ? Failed : Done;
}

int show(const Call &call, MRVOptions *, MRVTextPresetScheme scheme)
{
    for (const QString &name : call.arguments) {
        if (!scheme.contains(name)) {
            return refuseName(name, scheme);
        }
    }
    for (const QString &name : call.arguments) {
        printPreset(call, name, scheme.preset(name));
    }
    return Done;
}

int exportTo(const Call &call, MRVOptions *, MRVTextPresetScheme scheme)
{
    const QString path = call.arguments.constFirst();
    MRVError error;
    return MRVFileKind::mayReplace(path, MRVTextPresetScheme::isStoredForm, &error)
            && scheme.save(path, &error)
        ? Done
        : refuse(error);
}

int importFrom(const Call &call, MRVOptions *options, MRVTextPresetScheme scheme)
{
    MRVError error;
    const auto added = MRVTextPresetScheme::load(call.arguments.constFirst(), &error);
    if (error) {
        return refuse(error);
    }
    if (call.has("only-these")) {
        scheme = MRVTextPresetScheme();
    }
    scheme.merge(added);
    return write(call, options, scheme);
}

int removeFrom(const Call &call, MRVOptions *options, MRVTextPresetScheme scheme)
{
    QStringList names = call.arguments;
    names.removeDuplicates();
    for (const QString &name : qAsConst(names)) {
        if (!scheme.deletePreset(name)) {
            return refuseName(name, scheme);
        }
    }
    return write(call, options, scheme);
}

int set(const Call &call, MRVOptions *options, MRVTextPresetScheme scheme)
{
    const QString name = call.arguments.constFirst();
    MRVTextPreset preset = scheme.preset(name);
    const QStringList assignments = call.arguments.mid(1);
    for (const QString &assignment : assignments) {
        const int equals = assignment.indexOf(u'=');
        if (equals < 0) {
            return usageError(QStringLiteral("'%1' is not PROPERTY=VALUE").arg(assignment));
        }
        MRVError error;
        if (!MRVTextPresetJson::setFromText(&preset, assignment.left(equals),
                                            assignment.mid(equals + 1), &error)) {
            return refuse(error);
        }
    }
    scheme.setPreset(name, preset);
    return write(call, options, scheme);
}

int rename(const Call &call, MRVOptions *options, MRVTextPresetScheme scheme)
{
    const QString name = call.arguments.at(0);
    if (!scheme.contains(name)) {
        return refuseName(name, scheme);
    }
    if (call.arguments.at(1).isEmpty()) {
        return refuse(MRVErrorKind::Other, QStringLiteral("a preset needs a name"));
    }
    if (!scheme.renamePreset(name, call.arguments.at(1))) {
        return refuse(MRVErrorKind::Other,
                      QStringLiteral("there is a preset '%1' already").arg(call.arguments.at(1)));
    }
    return write(call, options, scheme);
}

int reset(const Call &call, MRVOptions *options, MRVTextPresetScheme scheme)
{
    const MRVTextPresetScheme defaults = MRVTextPresetScheme::defaultScheme();
    if (call.arguments.isEmpty()) {
        return write(call, options, defaults);
    }
    for (const QString &name : call.arguments) {
        if (!defaults.contains(name)) {
            return refuseName(name, defaults);
        }
        scheme.setPreset(name, defaults.preset(name));
    }
    return write(call, options, scheme);
}

// Opens the settings unless a preset file is read. Where all presets are to be replaced, those that
// are there may be damaged.
bool readPresets(const Call &call, Access access, bool replacesAll, MRVOptionsFile *settings,
                 MRVTextPresetScheme *scheme, MRVError *error)
{
    // The presets are in the application's folders, not in those of the tool.
    QCoreApplication::setOrganizationName(MRVOptions::companyName());
    QCoreApplication::setApplicationName(MRVOptions::applicationName());
    if (!call.has("file") && !settings->open(call.value("settings"), access, error)) {
        return false;
    }
    if (!replacesAll) {
        *scheme = call.has("file")
            ? MRVTextPresetScheme::load(call.value("file"), error)
            : MRVTextPresetMgr::readPresets(named(call, settings->options()), error);
    }
    return !*error;
}

template<Access access, int (*Run)(const Call &call, MRVOptions *options, MRVTextPresetScheme)>
int withPresets(const Call &call)
{
    MRVError error;
    MRVOptionsFile settings;
    MRVTextPresetScheme scheme;
    const bool replacesAll = call.has("only-these") || (Run == reset && call.arguments.isEmpty());
    return readPresets(call, access, replacesAll, &settings, &scheme, &error)
        ? Run(call, settings.options(), scheme)
        : refuse(error);
}

Candidates presetNames(const Call &call)
{
    MRVError error;
    MRVOptionsFile settings;
    MRVTextPresetScheme scheme;
    readPresets(call, Access::Read, false, &settings, &scheme, &error);
    return candidates(scheme.names());
}

constexpr ArgumentValues values[] = {{"NAME", presetNames}};

constexpr Verb verbs[] = {
    {"list", "", "list the names of all presets", withPresets<Access::Read, list>},
    {"show", "NAME...", "show what presets do", withPresets<Access::Read, show>},
    {"export", "FILE", "write all presets to a preset file", withPresets<Access::Read, exportTo>},
    {"import", "FILE", "add the presets of a preset file, replacing those of the same name",
     withPresets<Access::Create, importFrom>},
    {"set", "NAME PROPERTY=VALUE...", "change a preset, or add one",
     withPresets<Access::Create, set>,
     "The properties are those that \"show --json\" prints, such as family, size, weight, italic, "
     "color, alignment, left, firstLine, above and spacing. Lengths are in points. Without a VALUE "
     "the preset leaves the property as it is in the text. applies=characters,paragraphs says what "
     "is applied; a part in which something is set is applied."},
    {"rename", "NAME NEW", "give a preset another name", withPresets<Access::Change, rename>},
    {"remove", "NAME...", "remove presets", withPresets<Access::Change, removeFrom>},
    {"reset", "[NAME...]", "restore default presets; all of them, and only them, without a NAME",
     withPresets<Access::Create, reset>},
};

constexpr Option options[] = {
    settingsOption,
    Option::name("file", "FILE", "Read the presets of this preset file.", "list show export"),
    Option::flag("only-these", "Replace all presets by those of the file.", "import"),
    Option::flag("json", "Print each preset as a line of JSON."),
};

} // namespace

const Command presetsCommand = {
    "presets",
    "show and change text presets",
    "Shows and changes the text presets of the application.\n"
    "Exit code 1: refused, or there are no presets to list.",
    "presets show Heading --json\npresets set Motto size=18 italic=yes alignment=center\n"
    "presets import house.presets --only-these",
    verbs,
    {options},
    values,
};
