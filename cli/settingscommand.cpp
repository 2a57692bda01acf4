#include "settingsfile.h"
#include "suggestion.h"

#include "options/mrvoptions.h"
#include "util/mrvfilekind.h"

#include <QFileInfo>
#include <QJsonObject>

#include <algorithm>

namespace {

constexpr QLatin1String PdfSettings("PdfSettings");

// As they are given to "reset".
QString namedPdfSettings(const QStringList &names)
{
    QStringList keys;
    for (const QString &name : names) {
        keys.append(displayed(PdfSettings + QLatin1String("/") + name));
    }
    return keys.join(QLatin1String(", "));
}

int refuseKey(const QString &key)
{
    return refuse(
        MRVErrorKind::NotFound,
        QStringLiteral("unknown setting '%1'%2").arg(key, didYouMean(MRVOptions::closestKey(key))));
}

// In one line, and bytes by their number only.
QString shownText(MRVOptions::SettingType type, const QVariant &value)
{
    QString text = MRVOptions::toText(type, value);
    if (text.startsWith(QLatin1String("base64:")) && text.size() > 60) {
        const int bytes = QByteArray::fromBase64(text.mid(7).toLatin1()).size();
        return QStringLiteral("(%1 bytes)").arg(bytes);
    }
    if (type == MRVOptions::StringListType) {
        return value.toStringList().join(QLatin1String(", "));
    }
    text.replace(u'\\', QLatin1String("\\\\")).replace(u'\n', QLatin1String("\\n"));
    return displayed(text);
}

QString shownProblem(const MRVOptions::Problem &problem)
{
    constexpr int LongestText = 60;
    QString text = displayed(problem.stored);
    if (text.size() > LongestText) {
        text = text.left(LongestText) + u'\u2026';
    }
    return QStringLiteral("%1 (%2: %3)").arg(text, problem.kindName(), displayed(problem.message));
}

int get(const Call &call, MRVOptions *options)
{
    for (const QString &key : call.arguments) {
        const MRVOptions::Explanation explanation = options->explain(key);
        if (explanation.key.isEmpty()) {
            return refuseKey(key);
        }
        printAnswer(
            call,
            {{QStringLiteral("key"), key},
             {QStringLiteral("value"), MRVOptions::toJson(explanation.type, explanation.value)}},
            MRVOptions::toText(explanation.type, explanation.value));
    }
    return Done;
}

int set(const Call &call, MRVOptions *options)
{
    const QString key = call.arguments.constFirst();
    const MRVOptions::Explanation before = options->explain(key);
    if (before.key.isEmpty()) {
        return refuseKey(key);
    }
    if (call.arguments.size() > 2 && before.type != MRVOptions::StringListType) {
        return usageError(QStringLiteral("%1 takes one value").arg(key));
    }
    const QString text = call.arguments.mid(1).join(u'\n');
    MRVError error;
    if (!options->setFromText(key, text, &error)) {
        return refuse(error.kind, key + QLatin1String(": ") + error.text);
    }
    if (save(options) != Done) {
        return Failed;
    }
    if (call.json()) {
        printJson(options->explain(key).toJson());
    }
    return Done;
}

int reset(const Call &call, MRVOptions *options)
{
    for (const QString &key : call.arguments) {
        if (options->explain(key).key.isEmpty()) {
            return refuseKey(key);
        }
    }
    const QStringList names = options->pdfSettingsNames();
    if (call.arguments.contains(PdfSettings) && !names.isEmpty()) {
        return refuse(
            MRVErrorKind::Other,
            QStringLiteral("%1 holds the settings of %2 by their names (%3); name those to reset")
                .arg(PdfSettings, QString::number(names.size()), namedPdfSettings(names)));
    }
    for (const QString &key : call.arguments) {
        if (key.startsWith(PdfSettings + QLatin1String("/"))) {
            options->removePdfSettings(key.mid(PdfSettings.size() + 1));
        } else {
            options->remove(key);
        }
    }
    return save(options);
}

int list(const Call &call, MRVOptions *options)
{
    bool found = false;
    const QStringList keys = MRVOptions::settingKeys();
    for (const QString &key : keys) {
        const auto isWanted = [&key](const QString &word) {
            return key.contains(word, Qt::CaseInsensitive);
        };
        if (!std::all_of(call.arguments.begin(), call.arguments.end(), isWanted)) {
            continue;
        }
        found = true;
        const MRVOptions::Explanation explanation = options->explain(key);
        printAnswer(call, explanation.toJson(),
                    key + QLatin1String(" = ") + shownText(explanation.type, explanation.value));
    }
    return found ? Done : Failed;
}

int explain(const Call &call, MRVOptions *options)
{
    for (const QString &key : call.arguments) {
        const MRVOptions::Explanation explanation = options->explain(key);
        if (explanation.key.isEmpty()) {
            return refuseKey(key);
        }
        if (call.json()) {
            printJson(explanation.toJson());
            continue;
        }
        printLine(key);
        printLine(QLatin1String("  label    ") + explanation.label);
        printLine(QLatin1String("  about    ") + explanation.description);
        printLine(QLatin1String("  type     ") + MRVOptions::typeName(explanation.type));
        printLine(QLatin1String("  value    ") + shownText(explanation.type, explanation.value));
        printLine(QLatin1String("  default  ")
                  + shownText(explanation.type, explanation.defaultValue));
        if (!explanation.accepts().isEmpty()) {
            printLine(QLatin1String("  accepts  ") + explanation.accepts());
        }
        if (!explanation.problem.key.isEmpty()) {
            printLine(QLatin1String("  stored   ") + shownProblem(explanation.problem));
        }
        if (const QStringList names = options->pdfSettingsNames();
            key == PdfSettings && !names.isEmpty()) {
            printLine(QLatin1String("  names    ") + namedPdfSettings(names));
        }
        printLine(QLatin1String("  from     ")
                  + (explanation.origin.isEmpty() ? QStringLiteral("the default")
                                                  : displayed(explanation.origin)));
    }
    return Done;
}

int changed(const Call &call, MRVOptions *options)
{
    const QList<MRVOptions::Explanation> settings = options->changedSettings();
    for (const MRVOptions::Explanation &setting : settings) {
        printAnswer(call, setting.toJson(),
                    QStringLiteral("%1 = %2 (default: %3)")
                        .arg(setting.key, shownText(setting.type, setting.value),
                             shownText(setting.type, setting.defaultValue)));
    }
    return settings.isEmpty() ? Failed : Done;
}

int exportTo(const Call &call, MRVOptions *options)
{
    const QString path = call.arguments.constFirst();
    if (QFileInfo(path) == QFileInfo(options->fileName())) {
        return refuse(MRVErrorKind::Other,
                      QStringLiteral("%1 is the settings file itself").arg(path));
    }
    const QList<MRVOptions::Problem> problems = options->problems();
    for (const MRVOptions::Problem &problem : problems) {
        if (problem.kind == MRVOptions::Problem::Unreadable) {
            printNote(QStringLiteral("%1 is left out: %2")
                          .arg(displayed(problem.key), shownProblem(problem)));
        }
    }
    MRVError error;
    return MRVFileKind::mayReplace(path, MRVOptionsFile::isSettings, &error)
            && options->saveToFile(path, &error)
        ? Done
        : refuse(error);
}

void printProblem(const Call &call, const MRVOptions::Problem &problem)
{
    printAnswer(call, problem.toJson(),
                displayed(problem.key) + QLatin1String(" = ") + shownProblem(problem));
}

int checkAll(const Call &call, MRVOptions *options)
{
    const QList<MRVOptions::Problem> problems = options->problems();
    for (const MRVOptions::Problem &problem : problems) {
        printProblem(call, problem);
    }
    return problems.isEmpty() ? Done : Failed;
}

int check(const Call &call)
{
    if (call.arguments.isEmpty()) {
        return withSettings<Access::Read, checkAll>(call);
    }
    if (call.has("settings")) {
        return usageError(QStringLiteral("either --settings or a file can be given"));
    }
    MRVError error;
    MRVOptionsFile file;
    return file.open(call.arguments.constFirst(), Access::Read, &error)
        ? checkAll(call, file.options())
        : refuse(error);
}

// What is left out is told before the rest is saved, so that no failure hides it.
int importFrom(const Call &call, MRVOptions *options)
{
    const QString path = call.arguments.constFirst();
    MRVError error;
    MRVOptionsFile source;
    if (!source.open(path, Access::Read, &error)) {
        return refuse(error);
    }
    if (source.options()->allKeys().isEmpty()) {
        return refuse(MRVErrorKind::Other, QStringLiteral("%1: it contains no settings").arg(path));
    }
    const auto which =
        call.has("keep-invalid") ? MRVOptions::Import::All : MRVOptions::Import::Usable;
    const QList<MRVOptions::Problem> left = options->importFrom(*source.options(), which);
    for (const MRVOptions::Problem &problem : left) {
        refuse(
            MRVErrorKind::Damaged,
            QStringLiteral("%1: %2 is left out: %3").arg(path, problem.key, shownProblem(problem)));
    }
    const int code = save(options);
    return left.isEmpty() ? code : int(Failed);
}

Candidates keys(const Call &)
{
    Candidates all;
    const QList<MRVOptions::SettingInfo> settings = MRVOptions::settings();
    for (const MRVOptions::SettingInfo &info : settings) {
        all.append({info.key, info.label});
    }
    return all;
}

Candidates valuesOfKey(const Call &call)
{
    Candidates all;
    const QList<MRVOptions::SettingInfo> settings = MRVOptions::settings();
    for (const MRVOptions::SettingInfo &info : settings) {
        if (info.key != call.arguments.value(0)) {
            continue;
        }
        if (info.type == MRVOptions::FlagType) {
            return candidates({QStringLiteral("true"), QStringLiteral("false")});
        }
        for (const MRVOptions::Choice &choice : info.choices) {
            all.append({choice.value.toString(), choice.label});
        }
    }
    return all;
}

constexpr ArgumentValues values[] = {{"KEY", keys}, {"VALUE", valuesOfKey}};

constexpr Verb verbs[] = {
    {"get", "KEY...", "print values", withSettings<Access::Read, get>},
    {"set", "KEY VALUE...", "store a value; several values make a list",
     withSettings<Access::Create, set>},
    {"reset", "KEY...", "go back to the default", withSettings<Access::Change, reset>},
    {"list", "[WORD...]", "list the settings whose keys contain all words",
     withSettings<Access::Read, list>},
    {"explain", "KEY...",
     "print what settings are for, their values, defaults and limits, and where a value is from",
     withSettings<Access::Read, explain>},
    {"check", "[FILE]",
     "list stored values that are out of limits, unknown or unreadable; exit code 1 if there are "
     "any",
     check},
    {"changed", "", "list the settings that differ from their defaults",
     withSettings<Access::Read, changed>},
    {"export", "FILE", "copy what is stored into an INI file",
     withSettings<Access::Read, exportTo>},
    {"import", "FILE", "replace what is stored by an exported file",
     withSettings<Access::Create, importFrom>,
     "Values that \"check\" lists are left out with a message each; the exit code is then 1."},
};

constexpr Option options[] = {
    settingsOption,
    Option::flag("keep-invalid", "Import values that \"check\" lists, too.", "import"),
    Option::flag("json", "Print each setting as a line of JSON."),
};

} // namespace

const Command settingsCommand = {
    "settings",
    "show and change the application's preferences",
    "Shows and changes the preferences of the application.\n"
    "Exit code 1: refused, or nothing found.",
    "settings set Backups/retain 10\nsettings list backups\n"
    "settings explain Backups/retain --json",
    verbs,
    {options},
    values,
};
