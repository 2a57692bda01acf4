#include "settingsfile.h"
#include "suggestion.h"

#include "core/mrvcoreutil.h"
#include "options/mrvoptions.h"
#include "presets/mrvtextpresetjson.h"
#include "state/mrvtextpresetmgr.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonObject>

namespace {

int refuseName(const QString &name, const MRVTextPresetScheme &scheme)
{
    return refuse(QStringLiteral("there is no preset '%1'").arg(name)
                  + didYouMean(name, scheme.names()));
}

bool readPresetFile(const QString &path, MRVTextPresetScheme *scheme, QString *error)
{
    QString reason;
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path, error);
    if (!error->isEmpty()) {
        return false;
    }
    *scheme = MRVTextPresetScheme::fromByteArray(bytes, &reason);
    if (bytes.isEmpty() || !reason.isEmpty()) {
        *error = QStringLiteral("%1 is not a preset file, or is damaged").arg(path);
    }
    return error->isEmpty();
}

// @p options: null when a preset file is read.
bool readPresets(const Call &call, const MRVOptions *options, MRVTextPresetScheme *scheme,
                 QString *error)
{
    if (call.has("file")) {
        return readPresetFile(call.value("file"), scheme, error);
    }
    if (!call.has("settings")) {
        const QString path = MRVTextPresetMgr::presetSchemeFilePath();
        if (QFileInfo::exists(path)) {
            return readPresetFile(path, scheme, error);
        }
        *scheme = MRVTextPresetMgr::loadPresetScheme();
        return true;
    }
    QString reason;
    const QByteArray bytes = options->value(MRVOptions::TextPresets);
    *scheme = MRVTextPresetScheme::fromByteArray(bytes, &reason);
    if (!reason.isEmpty()) {
        *error = options->fileName() + QLatin1String(": ") + reason;
    }
    return error->isEmpty();
}

bool writePresets(const Call &call, MRVOptions *options, const MRVTextPresetScheme &scheme,
                  QString *error)
{
    if (call.has("settings")) {
        options->setValue(MRVOptions::TextPresets, MRVTextPresetScheme::toByteArray(scheme));
        return options->saveNow(error);
    }
    MRVTextPresetMgr::savePresetScheme(scheme);
    // The file may have been impossible to write, and the settings then be hidden by an older file.
    if (!mrvOptions()->saveNow(error)) {
        return false;
    }
    if (MRVTextPresetMgr::loadPresetScheme() != scheme) {
        *error =
            QStringLiteral("%1 cannot be written").arg(MRVTextPresetMgr::presetSchemeFilePath());
    }
    return error->isEmpty();
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
    QString error;
    const QByteArray bytes = MRVTextPresetScheme::toByteArray(scheme);
    return MRVCoreUtil::WriteBinaryFile(bytes, call.arguments.constFirst(), &error) ? Done
                                                                                    : refuse(error);
}

int importFrom(const Call &call, MRVOptions *options, MRVTextPresetScheme scheme)
{
    QString error;
    MRVTextPresetScheme added;
    if (!readPresetFile(call.arguments.constFirst(), &added, &error)) {
        return refuse(error);
    }
    if (call.has("only-these")) {
        scheme = MRVTextPresetScheme();
    }
    const QStringList names = added.names();
    for (const QString &name : names) {
        scheme.setPreset(name, added.preset(name));
    }
    return writePresets(call, options, scheme, &error) ? Done : refuse(error);
}

int removeFrom(const Call &call, MRVOptions *options, MRVTextPresetScheme scheme)
{
    for (const QString &name : call.arguments) {
        if (!scheme.deletePreset(name)) {
            return refuseName(name, scheme);
        }
    }
    QString error;
    return writePresets(call, options, scheme, &error) ? Done : refuse(error);
}

// Opens the settings unless a preset file is read, and hands the presets to the verb.
template<Access access, int (*Run)(const Call &call, MRVOptions *options, MRVTextPresetScheme)>
int withPresets(const Call &call)
{
    // The presets are in the application's folders, not in those of the tool.
    QCoreApplication::setOrganizationName(MRVOptions::companyName());
    QCoreApplication::setApplicationName(MRVOptions::applicationName());
    QString error;
    MRVOptionsFile settings;
    if (!call.has("file")) {
        settings.open(call.value("settings"), access, &error);
    }
    MRVTextPresetScheme scheme;
    // The presets may be damaged when all of them are to be replaced.
    const bool isReplaced = call.has("only-these");
    if (!error.isEmpty()
        || (!isReplaced && !readPresets(call, settings.options(), &scheme, &error))) {
        return refuse(error);
    }
    return Run(call, settings.options(), scheme);
}

constexpr Verb verbs[] = {
    {"list", "", "list the names of all presets", withPresets<Access::Read, list>},
    {"show", "NAME...", "show what presets do", withPresets<Access::Read, show>},
    {"export", "FILE", "write all presets to a preset file", withPresets<Access::Read, exportTo>},
    {"import", "FILE", "add the presets of a preset file, replacing those of the same name",
     withPresets<Access::Create, importFrom>},
    {"remove", "NAME...", "remove presets", withPresets<Access::Change, removeFrom>},
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
    "show, export and import text presets",
    "Shows and changes the text presets of the application.\n"
    "Exit code 1: refused, or there are no presets to list.",
    "presets show Heading --json\npresets list --file house.presets\n"
    "presets import house.presets --only-these",
    verbs,
    {options},
};
