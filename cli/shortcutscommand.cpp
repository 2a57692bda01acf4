#include "settingsfile.h"

#include "options/mrvoptions.h"
#include "shortcuts/mrvshortcutcheck.h"
#include "shortcuts/mrvshortcutscheme.h"
#include "util/mrvfilekind.h"

#include "core/mrvfilewriter.h"

namespace {

// The scheme with the number of an argument; without such an argument that of the settings.
// @return Done, or the code to end with.
int readScheme(const Call &call, int argument, MRVShortcutScheme *scheme)
{
    if (call.has("settings") && !call.arguments.isEmpty()) {
        return usageError(QStringLiteral("either --settings or a scheme can be given"));
    }
    MRVError error;
    MRVOptionsFile settings;
    if (argument < call.arguments.size()) {
        *scheme = MRVShortcutScheme::loadNamed(call.arguments.at(argument), &error);
    } else if (settings.open(call.value("settings"), Access::Read, &error)) {
        *scheme = settings.options()->shortcutScheme(&error);
    }
    if (!error && !call.has("stored")) {
        scheme->mergeMissingShortcuts(MRVShortcutScheme::morvane().shortcuts());
    }
    return error ? refuse(error) : int(Done);
}

QString nameOf(MRVShortcut::Id id)
{
    return QString::fromLatin1(MRVShortcut::valueToKey(id));
}

void printEntry(const Call &call, const MRVShortcutInfo &info)
{
    printAnswer(call, info.toJson(),
                nameOf(info.id).leftJustified(32) + u' ' + info.keysText().leftJustified(22) + u' '
                    + displayed(info.text));
}

// What list shows: the options, checked.
struct Filter
{
    QString text;
    QString group;
    QKeySequence keys;

    bool accepts(const MRVShortcutInfo &info) const
    {
        const bool isInGroup =
            group.isEmpty() || MRVShortcut::group(info.id).compare(group, Qt::CaseInsensitive) == 0;
        // Chords that begin with the keys are theirs, too.
        return isInGroup
            && (keys.isEmpty() || keys.matches(info.sequence) != QKeySequence::NoMatch);
    }
};

// @return Done, or the code to end with.
int readFilter(const Call &call, Filter *filter)
{
    *filter = {call.value("filter"), call.value("group"),
               MRVShortcutScheme::toSequence(call.value("keys"))};
    if (call.has("keys") && filter->keys.isEmpty()) {
        return usageError(
            QStringLiteral("--keys: '%1' contains what is not a key").arg(call.value("keys")));
    }
    const QStringList groups = MRVShortcutScheme::morvane().shortcutGroups();
    if (call.has("group") && !groups.contains(filter->group, Qt::CaseInsensitive)) {
        return usageError(QStringLiteral("--group: '%1' is not one of %2")
                              .arg(filter->group, groups.join(QLatin1String(", "))));
    }
    return Done;
}

int list(const Call &call)
{
    Filter filter;
    MRVShortcutScheme scheme;
    if (const int code = readFilter(call, &filter); code != Done) {
        return code;
    }
    if (const int code = readScheme(call, 0, &scheme); code != Done) {
        return code;
    }
    bool found = false;
    const QList<MRVShortcutInfo> infos = scheme.findShortcuts(filter.text);
    for (const MRVShortcutInfo &info : infos) {
        if (!filter.accepts(info)) {
            continue;
        }
        found = true;
        printEntry(call, info);
    }
    return found ? Done : Failed;
}

int check(const Call &call)
{
    MRVShortcutScheme scheme;
    if (const int code = readScheme(call, 0, &scheme); code != Done) {
        return code;
    }
    const QList<MRVShortcutCheck::Conflict> conflicts = MRVShortcutCheck::conflicts(scheme);
    for (const MRVShortcutCheck::Conflict &conflict : conflicts) {
        printAnswer(call, MRVShortcutCheck::toJson(conflict, scheme),
                    displayed(MRVShortcutCheck::describe(conflict, scheme)));
    }
    return conflicts.isEmpty() ? Done : Failed;
}

int diff(const Call &call)
{
    MRVShortcutScheme before = MRVShortcutScheme::morvane();
    MRVShortcutScheme after;
    const bool two = call.arguments.size() == 2;
    int code = two ? readScheme(call, 0, &before) : int(Done);
    code = code == Done ? readScheme(call, two ? 1 : 0, &after) : code;
    if (code != Done) {
        return code;
    }
    const auto differences = MRVShortcutCheck::differences(before, after);
    for (const MRVShortcutCheck::Difference &difference : differences) {
        printAnswer(call, MRVShortcutCheck::toJson(difference),
                    nameOf(difference.id) + QLatin1String(": ")
                        + displayed(MRVShortcutCheck::describe(difference)));
    }
    return differences.isEmpty() ? Failed : Done;
}

int exportScheme(const Call &call)
{
    MRVShortcutScheme scheme;
    if (const int code = readScheme(call, 0, &scheme); code != Done) {
        return code;
    }
    MRVError error;
    const QString path = call.value("output");
    const bool asFile = call.value("to") == QLatin1String("scheme");
    const auto isOfKind = asFile ? MRVShortcutScheme::isStoredForm : MRVShortcutScheme::isText;
    const QByteArray bytes = asFile ? scheme.toByteArray() : scheme.toText().toUtf8();
    const bool written = call.has("output") ? MRVFileKind::mayReplace(path, isOfKind, &error)
            && MRVFileWriter::write(path, bytes, &error)
                                            : writeStandardOutput(bytes, &error);
    return written ? Done : refuse(error);
}

int change(const Call &call, MRVOptions *options, const MRVOptions::ShortcutKeys &keys)
{
    using Conflicts = MRVOptions::Conflicts;
    MRVError error;
    if (!options->setShortcuts(keys, call.has("force") ? Conflicts::Accept : Conflicts::Refuse,
                               &error)) {
        return refuse(error);
    }
    if (save(options) != Done) {
        return Failed;
    }
    const MRVShortcutScheme scheme = options->shortcutScheme();
    for (const auto &key : keys) {
        printEntry(call, scheme.shortcutInfo(key.first));
    }
    return Done;
}

int set(const Call &call, MRVOptions *options)
{
    MRVError error;
    const MRVShortcut::Id id = MRVShortcut::idNamed(call.arguments.at(0), &error);
    if (id == MRVShortcut::NoId) {
        return refuse(error);
    }
    const QString keys = call.arguments.at(1);
    const QKeySequence sequence = MRVShortcutScheme::toSequence(keys);
    if (sequence.isEmpty() && keys != QLatin1String("none")) {
        return usageError(QStringLiteral("'%1' contains what is not a key").arg(keys));
    }
    return change(call, options, {{id, sequence}});
}

int reset(const Call &call, MRVOptions *options)
{
    MRVOptions::ShortcutKeys keys;
    for (const QString &name : call.arguments) {
        MRVError error;
        const MRVShortcut::Id id = MRVShortcut::idNamed(name, &error);
        if (id == MRVShortcut::NoId) {
            return refuse(error);
        }
        keys.append({id, MRVShortcutScheme::morvane().shortcut(id)});
    }
    if (!keys.isEmpty()) {
        return change(call, options, keys);
    }
    options->remove(options->keyText(MRVOptions::DefaultShortcutScheme));
    return save(options);
}

int importScheme(const Call &call, MRVOptions *options)
{
    MRVError error;
    const auto scheme = MRVShortcutScheme::loadNamed(call.arguments.constFirst(), &error);
    if (error) {
        return refuse(error);
    }
    options->setShortcutScheme(options->keyText(MRVOptions::DefaultShortcutScheme), scheme);
    return save(options);
}

Candidates commandNames(const Call &)
{
    Candidates all;
    const QList<MRVShortcutInfo> infos = MRVShortcutScheme::morvane().findShortcuts(QString());
    for (const MRVShortcutInfo &info : infos) {
        all.append({nameOf(info.id), info.text});
    }
    return all;
}

Candidates schemeNames(const Call &)
{
    Candidates all;
    const QList<MRVShortcutScheme> schemes = MRVShortcutScheme::predefinedSchemes();
    for (const MRVShortcutScheme &scheme : schemes) {
        all.append({scheme.name(), QString()});
    }
    return all;
}

Candidates groupNames(const Call &)
{
    return candidates(MRVShortcutScheme::morvane().shortcutGroups());
}

constexpr ArgumentValues values[] = {
    {"COMMAND", commandNames},
    {"SCHEME BEFORE AFTER", schemeNames},
    {"GROUP", groupNames},
};

constexpr Verb verbs[] = {
    {"list", "[SCHEME]", "list the commands with their keys and texts", list},
    {"check", "[SCHEME]", "find keys that would not work; exit code 1 if there are any", check},
    {"diff", "[BEFORE] [AFTER]", "list what changed; from the default unless two are given", diff},
    {"export", "[SCHEME]", "write the scheme as text for readers, or as a scheme file",
     exportScheme},
    {"set", "COMMAND KEYS", "give a command other keys, or none", withSettings<Access::Create, set>,
     "COMMAND is a name that \"list\" prints. KEYS are up to four keys such as Ctrl+S or "
     "Ctrl+G,Ctrl+N; none is no key. Keys that \"check\" would list are refused."},
    {"reset", "[COMMAND...]", "give commands, or all of them, their default keys",
     withSettings<Access::Create, reset>},
    {"import", "SCHEME", "store a scheme in place of that of the settings",
     withSettings<Access::Create, importScheme>},
};

constexpr Option options[] = {
    settingsOption,
    Option::flag("stored", "Only what is stored: no default for what is not.",
                 "list check diff export"),
    Option::flag("force", "Store keys that would not work, too.", "set reset"),
    Option::text("filter", "TEXT", "Only commands whose text, keys or name contain TEXT.", "list"),
    Option::name("group", "GROUP", "Only the commands of this menu group.", "list"),
    Option::name("keys", "KEYS",
                 "Only the owner of these keys, such as Ctrl+S, and commands whose keys begin with "
                 "them.",
                 "list"),
    Option::choice("to", "FORMAT", "text scheme",
                   "The format: text (the default), or scheme for a scheme file.", "export"),
    Option::name("o output", "FILE", "Write to this file instead of standard output.", "export"),
    Option::flag("json", "Print a line of JSON for each command.", "list check diff set reset"),
};

} // namespace

const Command shortcutsCommand = {
    "shortcuts",
    "show, check and change keyboard shortcuts",
    "Shows, checks and changes keyboard shortcuts. SCHEME is a scheme file or the name of a "
    "predefined "
    "scheme: Morvane, Microsoft Word, Open Office, Mac Morvane (a file of such a name is "
    "./Morvane). Without it, the scheme is that of the settings. Commands that it lacks get their "
    "default, as in the application.\n"
    "Exit code 1: refused, or nothing found.",
    "shortcuts list --keys Ctrl+G\nshortcuts set ZoomIn Ctrl+Alt+Z\n"
    "shortcuts export --to scheme -o mine.scheme",
    verbs,
    {options},
    values,
};
