#include "command.h"
#include "settingsfile.h"
#include "suggestion.h"
#include "textsearch.h"

#include "core/mrvfilewriter.h"
#include "options/mrvoptions.h"
#include "shortcuts/mrvshortcutcheck.h"
#include "shortcuts/mrvshortcutscheme.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QJsonObject>
#include <QSettings>

#include <memory>

namespace {

struct Request
{
    QStringList schemes;
    QString settings; // path; empty for the user's own
    bool storedOnly = false;
    QString filter;
    QString group;
    QKeySequence keys;
    QString output; // path; empty for standard output
    bool asText = true;
    bool json = false;
};

int refuse(const QString &text)
{
    printError(QLatin1String("shortcuts: ") + text);
    return Failed;
}

int usageError(const QString &text)
{
    printError(QLatin1String("shortcuts: ") + text);
    return WrongUsage;
}

bool readSettings(const QString &path, MRVShortcutScheme *scheme, QString *error)
{
    const OpenedOptions opened = openOptions(path, Access::Read, error);
    const MRVOptions *options = opened.options.get();
    if (!options) {
        return false;
    }
    // The options give the default in place of what cannot be read; here it has to be told.
    const QVariant stored =
        options->QSettings::value(options->keyText(MRVOptions::DefaultShortcutScheme));
    *scheme = MRVShortcutScheme::morvane();
    QString reason;
    if (stored.isValid()) {
        *scheme = MRVShortcutScheme::fromByteArray(stored.toByteArray(), &reason);
    }
    if (!reason.isEmpty()) {
        *error = QStringLiteral("the shortcut scheme in %1: %2").arg(options->fileName(), reason);
    }
    return reason.isEmpty();
}

bool readNamed(const QString &name, MRVShortcutScheme *scheme, QString *error)
{
    // First, whatever lies in the current folder.
    *scheme = MRVShortcutScheme::predefinedScheme(name);
    if (scheme->name() == name) {
        return true;
    }
    if (QFileInfo::exists(name)) {
        *scheme = MRVShortcutScheme::load(name, error);
        return error->isEmpty();
    }
    QStringList names;
    const QList<MRVShortcutScheme> predefined = MRVShortcutScheme::predefinedSchemes();
    for (const MRVShortcutScheme &one : predefined) {
        names.append(one.name());
    }
    *error =
        QStringLiteral("%1: there is no such file, and no predefined scheme of that name").arg(name)
        + didYouMean(name, names);
    return false;
}

// The scheme with the number of an argument; without such an argument that of the settings.
bool readScheme(const Request &request, int argument, MRVShortcutScheme *scheme)
{
    QString error;
    const bool read = argument < request.schemes.size()
        ? readNamed(request.schemes.at(argument), scheme, &error)
        : readSettings(request.settings, scheme, &error);
    if (read && !request.storedOnly) {
        scheme->mergeMissingShortcuts(MRVShortcutScheme::morvane().shortcuts());
    }
    if (!read) {
        refuse(error);
    }
    return read;
}

QString nameOf(MRVShortcut::Id id)
{
    return QString::fromLatin1(MRVShortcut::valueToKey(id));
}

QString portable(const QKeySequence &keys)
{
    return keys.toString(QKeySequence::PortableText);
}

QString native(const QKeySequence &keys)
{
    return keys.isEmpty() ? QStringLiteral("no key") : keys.toString(QKeySequence::NativeText);
}

QJsonObject jsonOf(const MRVShortcutInfo &info)
{
    return {{QStringLiteral("command"), nameOf(info.id)},
            {QStringLiteral("group"), MRVShortcut::group(info.id)},
            {QStringLiteral("text"), info.text},
            {QStringLiteral("keys"), portable(info.sequence)}};
}

int list(const Request &request)
{
    MRVShortcutScheme scheme;
    if (!readScheme(request, 0, &scheme)) {
        return Failed;
    }
    bool found = false;
    const QList<MRVShortcutInfo> infos = scheme.findShortcuts(request.filter);
    for (const MRVShortcutInfo &info : infos) {
        const QString group = MRVShortcut::group(info.id);
        if (!request.group.isEmpty() && group.compare(request.group, Qt::CaseInsensitive) != 0) {
            continue;
        }
        // Chords that begin with the keys are theirs, too.
        if (!request.keys.isEmpty()
            && request.keys.matches(info.sequence) == QKeySequence::NoMatch) {
            continue;
        }
        found = true;
        if (request.json) {
            printJson(jsonOf(info));
        } else {
            printLine(nameOf(info.id).leftJustified(32) + u' '
                      + native(info.sequence).leftJustified(22) + u' ' + displayed(info.text));
        }
    }
    return found ? Done : Failed;
}

int check(const Request &request)
{
    MRVShortcutScheme scheme;
    if (!readScheme(request, 0, &scheme)) {
        return Failed;
    }
    const QList<MRVShortcutCheck::Conflict> conflicts = MRVShortcutCheck::conflicts(scheme);
    for (const MRVShortcutCheck::Conflict &conflict : conflicts) {
        const QString sentence = MRVShortcutCheck::describe(conflict, scheme);
        if (!request.json) {
            printLine(displayed(sentence));
            continue;
        }
        QJsonObject object{
            {QStringLiteral("kind"), MRVShortcutCheck::toString(conflict.kind)},
            {QStringLiteral("command"), nameOf(conflict.id)},
            {QStringLiteral("keys"), portable(scheme.shortcut(conflict.id))},
            {QStringLiteral("message"), sentence},
        };
        if (conflict.other != MRVShortcut::NoId) {
            object.insert(QStringLiteral("other"), nameOf(conflict.other));
            object.insert(QStringLiteral("otherKeys"), portable(scheme.shortcut(conflict.other)));
        }
        printJson(object);
    }
    return conflicts.isEmpty() ? Done : Failed;
}

QString differenceText(const MRVShortcutCheck::Difference &difference)
{
    const MRVShortcutInfo &before = difference.before;
    const MRVShortcutInfo &after = difference.after;
    if (after.id == MRVShortcut::NoId) {
        return QStringLiteral("removed (%1)").arg(native(before.sequence));
    }
    if (before.id == MRVShortcut::NoId) {
        return QStringLiteral("added (%1)").arg(native(after.sequence));
    }
    QStringList changes;
    if (before.sequence != after.sequence) {
        changes += native(before.sequence) + QLatin1String(" -> ") + native(after.sequence);
    }
    if (before.text != after.text) {
        changes += QStringLiteral("\u201c%1\u201d -> \u201c%2\u201d").arg(before.text, after.text);
    }
    return changes.join(QLatin1String(", "));
}

int diff(const Request &request)
{
    MRVShortcutScheme before = MRVShortcutScheme::morvane();
    MRVShortcutScheme after;
    const bool two = request.schemes.size() == 2;
    if ((two && !readScheme(request, 0, &before)) || !readScheme(request, two ? 1 : 0, &after)) {
        return Failed;
    }
    const auto differences = MRVShortcutCheck::differences(before, after);
    for (const MRVShortcutCheck::Difference &difference : differences) {
        if (!request.json) {
            printLine(nameOf(difference.id) + QLatin1String(": ")
                      + displayed(differenceText(difference)));
            continue;
        }
        const auto side = [](const MRVShortcutInfo &info) {
            return info.id == MRVShortcut::NoId ? QJsonValue() : QJsonValue(jsonOf(info));
        };
        printJson({{QStringLiteral("command"), nameOf(difference.id)},
                   {QStringLiteral("before"), side(difference.before)},
                   {QStringLiteral("after"), side(difference.after)}});
    }
    return differences.isEmpty() ? Failed : Done;
}

int exportScheme(const Request &request)
{
    MRVShortcutScheme scheme;
    if (!readScheme(request, 0, &scheme)) {
        return Failed;
    }
    QString error;
    const QByteArray bytes = request.asText ? scheme.toText().toUtf8() : scheme.toByteArray();
    const bool written = request.output.isEmpty()
        ? writeStandardOutput(bytes, &error)
        : MRVFileWriter::write(request.output, bytes, &error);
    return written ? Done : refuse(error);
}

struct Action
{
    const char *name;
    int mostSchemes;
    int (*run)(const Request &request);
};

constexpr Action actions[] = {
    {"list", 1, list},
    {"check", 1, check},
    {"diff", 2, diff},
    {"export", 1, exportScheme},
};

void addOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(QStringLiteral(
        "Shows and checks keyboard shortcuts. SCHEME is a file of a shortcut scheme or the\n"
        "name of a predefined one (Morvane, Microsoft Word, Open Office, Mac Morvane; a file of\n"
        "such a name is ./Morvane); without it, the scheme is that of the settings. Commands that\n"
        "it lacks get their default, as in the application.\n\n"
        "  list [SCHEME]            list the commands with their keys and texts\n"
        "  check [SCHEME]           find keys that would not work; exit code 1 if there are any\n"
        "  diff [BEFORE] [AFTER]    list what changed; with one SCHEME or none, from the default\n"
        "  export [SCHEME]          write the scheme for readers, or as a file\n\n"
        "Exit code 1: refused, or nothing found."));
    parser->addPositionalArgument(QStringLiteral("ACTION"), QStringLiteral("See above."),
                                  QStringLiteral("ACTION [SCHEME...]"));
    parser->addOption({QStringLiteral("settings"),
                       QStringLiteral("Read this settings file (INI) instead of the user's."),
                       QStringLiteral("FILE")});
    parser->addOption({QStringLiteral("stored"),
                       QStringLiteral("Only what is stored: no default for what is not.")});
    parser->addOption({QStringLiteral("filter"),
                       QStringLiteral("list: only commands whose text, keys or name holds TEXT."),
                       QStringLiteral("TEXT")});
    parser->addOption({QStringLiteral("group"), QStringLiteral("list: only this menu group."),
                       QStringLiteral("GROUP")});
    parser->addOption({QStringLiteral("keys"),
                       QStringLiteral("list: only the owner of these keys, such as Ctrl+S, and\n"
                                      "commands whose keys begin with them."),
                       QStringLiteral("KEYS")});
    parser->addOption({QStringLiteral("to"),
                       QStringLiteral("export: text (the default), or scheme for a scheme file."),
                       QStringLiteral("FORMAT"), QStringLiteral("text")});
    parser->addOption({{QStringLiteral("o"), QStringLiteral("output")},
                       QStringLiteral("export: write to this file instead of standard output."),
                       QStringLiteral("FILE")});
    parser->addOption(
        {QStringLiteral("json"), QStringLiteral("Print a line of JSON for each command.")});
}

// Empty where the options are right.
QString readOptions(const QCommandLineParser &parser, const Action &action, Request *request)
{
    static const QStringList ofList{QStringLiteral("filter"), QStringLiteral("group"),
                                    QStringLiteral("keys")};
    static const QStringList ofExport{QStringLiteral("to"), QStringLiteral("output")};
    const QStringList given = parser.optionNames();
    for (const QString &name : given) {
        if ((ofList.contains(name) && action.run != list)
            || ((ofExport.contains(name) || name == QLatin1String("o"))
                && action.run != exportScheme)
            || (name == QLatin1String("json") && action.run == exportScheme)) {
            return QStringLiteral("%1 takes no option '%2'").arg(QLatin1String(action.name), name);
        }
    }
    request->settings = parser.value(QStringLiteral("settings"));
    if (!request->settings.isEmpty() && !request->schemes.isEmpty()) {
        return QStringLiteral("either --settings or a scheme can be given");
    }
    if (request->schemes.size() > action.mostSchemes) {
        return QStringLiteral("%1 takes fewer schemes").arg(QLatin1String(action.name));
    }
    const QString keys = parser.value(QStringLiteral("keys"));
    request->keys = MRVShortcutScheme::toSequence(keys);
    if (parser.isSet(QStringLiteral("keys")) && request->keys.isEmpty()) {
        return QStringLiteral("'%1' holds what is no key").arg(keys);
    }
    const QString format = parser.value(QStringLiteral("to"));
    request->asText = format == QLatin1String("text");
    if (!request->asText && format != QLatin1String("scheme")) {
        return QStringLiteral("unknown format '%1'; known are text and scheme").arg(format);
    }
    request->storedOnly = parser.isSet(QStringLiteral("stored"));
    request->filter = parser.value(QStringLiteral("filter"));
    request->group = parser.value(QStringLiteral("group"));
    const QStringList groups = MRVShortcutScheme::morvane().shortcutGroups();
    if (parser.isSet(QStringLiteral("group"))
        && !groups.contains(request->group, Qt::CaseInsensitive)) {
        return QStringLiteral("unknown group '%1'; known are %2")
            .arg(request->group, groups.join(QLatin1String(", ")));
    }
    request->output = parser.value(QStringLiteral("output"));
    if (parser.isSet(QStringLiteral("output")) && request->output.isEmpty()) {
        return QStringLiteral("--output takes the name of a file");
    }
    request->json = parser.isSet(QStringLiteral("json"));
    return QString();
}

} // namespace

int runShortcuts(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(&parser);
    const int code = parseArguments(
        &parser, QStringLiteral("shortcuts ACTION [SCHEME...] [OPTIONS]"), arguments);
    if (code >= 0) {
        return code;
    }
    Request request;
    request.schemes = parser.positionalArguments();
    const QString name = request.schemes.isEmpty() ? QString() : request.schemes.takeFirst();
    for (const Action &action : actions) {
        if (name == QLatin1String(action.name)) {
            const QString error = readOptions(parser, action, &request);
            return error.isEmpty() ? action.run(request) : usageError(error);
        }
    }
    return usageError(QStringLiteral("unknown action '%1'; try 'mrv shortcuts --help'").arg(name));
}
