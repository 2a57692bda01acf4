#include "command.h"
#include "settingsfile.h"
#include "textsearch.h"

#include "options/mrvoptions.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <limits>

namespace {

struct Request
{
    QStringList arguments; // of the action
    bool json = false;
    MRVOptions *options = nullptr;
};

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

int refuse(const QString &text)
{
    printError(QLatin1String("settings: ") + text);
    return Failed;
}

// How many letters must be put in, left out or replaced to make one text of the other.
int distance(const QString &a, const QString &b)
{
    QVector<int> row(b.size() + 1);
    for (int j = 0; j <= b.size(); ++j) {
        row[j] = j;
    }
    for (int i = 1; i <= a.size(); ++i) {
        int diagonal = row[0];
        row[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const int replaced = diagonal + (a.at(i - 1) != b.at(j - 1) ? 1 : 0);
            diagonal = row[j];
            row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.last();
}

// Capitals do not count, nor does a group that was left out.
QString nearestKey(const QString &wrong)
{
    QString nearest;
    int least = std::numeric_limits<int>::max();
    const QString lower = wrong.toLower().left(200);
    const QStringList keys = MRVOptions::settingKeys();
    for (const QString &key : keys) {
        const QString right = key.toLower();
        const int own = std::min(distance(lower, right),
                                 distance(lower, right.mid(right.lastIndexOf(u'/') + 1)));
        if (own < least) {
            least = own;
            nearest = key;
        }
    }
    return nearest;
}

int refuseKey(const QString &key)
{
    return refuse(
        QStringLiteral("there is no setting '%1'; did you mean '%2'?").arg(key, nearestKey(key)));
}

QJsonValue jsonOf(MRVOptions::SettingType type, const QVariant &value)
{
    switch (type) {
    case MRVOptions::FlagType:
        return value.toBool();
    case MRVOptions::IntType:
        return value.toInt();
    case MRVOptions::RealType:
        return value.toDouble();
    case MRVOptions::StringListType:
        return QJsonArray::fromStringList(value.toStringList());
    default:
        return MRVOptions::toText(type, value);
    }
}

QJsonObject jsonOf(const MRVOptions::Explanation &explanation)
{
    QJsonObject object{
        {QStringLiteral("key"), explanation.key},
        {QStringLiteral("type"), MRVOptions::typeName(explanation.type)},
        {QStringLiteral("value"), jsonOf(explanation.type, explanation.value)},
        {QStringLiteral("default"), jsonOf(explanation.type, explanation.defaultValue)},
        {QStringLiteral("changed"), explanation.isChanged()},
    };
    if (!explanation.accepts.isEmpty()) {
        object.insert(QStringLiteral("accepts"), explanation.accepts);
    }
    object.insert(QStringLiteral("origin"),
                  explanation.origin.isEmpty() ? QJsonValue() : QJsonValue(explanation.origin));
    return object;
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

int get(const Request &request)
{
    for (const QString &key : request.arguments) {
        const MRVOptions::Explanation explanation = request.options->explain(key);
        if (explanation.key.isEmpty()) {
            return refuseKey(key);
        }
        if (request.json) {
            printJson({{QStringLiteral("key"), key},
                       {QStringLiteral("value"), jsonOf(explanation.type, explanation.value)}});
        } else {
            printLine(MRVOptions::toText(explanation.type, explanation.value));
        }
    }
    return Done;
}

int set(const Request &request)
{
    const QString key = request.arguments.constFirst();
    const MRVOptions::Explanation before = request.options->explain(key);
    if (before.key.isEmpty()) {
        return refuseKey(key);
    }
    if (request.arguments.size() > 2 && before.type != MRVOptions::StringListType) {
        printError(QStringLiteral("settings: %1 takes one value").arg(key));
        return WrongUsage;
    }
    const QString text = request.arguments.mid(1).join(u'\n');
    QString error;
    if (!request.options->setFromText(key, text, &error)) {
        return refuse(key + QLatin1String(": ") + error);
    }
    if (!request.options->saveNow(&error)) {
        return refuse(error);
    }
    if (request.json) {
        printJson(jsonOf(request.options->explain(key)));
    }
    return Done;
}

int reset(const Request &request)
{
    for (const QString &key : request.arguments) {
        if (request.options->explain(key).key.isEmpty()) {
            return refuseKey(key);
        }
    }
    const QStringList names = request.options->pdfSettingsNames();
    if (request.arguments.contains(PdfSettings) && !names.isEmpty()) {
        return refuse(
            QStringLiteral("%1 holds the settings of %2 by their names (%3); name those to reset")
                .arg(PdfSettings, QString::number(names.size()), namedPdfSettings(names)));
    }
    for (const QString &key : request.arguments) {
        if (key.startsWith(PdfSettings + QLatin1String("/"))) {
            request.options->removePdfSettings(key.mid(PdfSettings.size() + 1));
        } else {
            request.options->remove(key);
        }
    }
    QString error;
    return request.options->saveNow(&error) ? Done : refuse(error);
}

int list(const Request &request)
{
    bool found = false;
    const QStringList keys = MRVOptions::settingKeys();
    for (const QString &key : keys) {
        const auto isWanted = [&key](const QString &word) {
            return key.contains(word, Qt::CaseInsensitive);
        };
        if (!std::all_of(request.arguments.begin(), request.arguments.end(), isWanted)) {
            continue;
        }
        found = true;
        const MRVOptions::Explanation explanation = request.options->explain(key);
        if (request.json) {
            printJson(jsonOf(explanation));
        } else {
            printLine(key + QLatin1String(" = ") + shownText(explanation.type, explanation.value));
        }
    }
    return found ? Done : Failed;
}

int explain(const Request &request)
{
    for (const QString &key : request.arguments) {
        const MRVOptions::Explanation explanation = request.options->explain(key);
        if (explanation.key.isEmpty()) {
            return refuseKey(key);
        }
        if (request.json) {
            printJson(jsonOf(explanation));
            continue;
        }
        printLine(key);
        printLine(QLatin1String("  type     ") + MRVOptions::typeName(explanation.type));
        printLine(QLatin1String("  value    ") + shownText(explanation.type, explanation.value));
        printLine(QLatin1String("  default  ")
                  + shownText(explanation.type, explanation.defaultValue));
        if (!explanation.accepts.isEmpty()) {
            printLine(QLatin1String("  accepts  ") + explanation.accepts);
        }
        if (const QStringList names = request.options->pdfSettingsNames();
            key == PdfSettings && !names.isEmpty()) {
            printLine(QLatin1String("  names    ") + namedPdfSettings(names));
        }
        printLine(QLatin1String("  from     ")
                  + (explanation.origin.isEmpty() ? QStringLiteral("the default")
                                                  : displayed(explanation.origin)));
    }
    return Done;
}

int changed(const Request &request)
{
    const QList<MRVOptions::Explanation> settings = request.options->changedSettings();
    for (const MRVOptions::Explanation &setting : settings) {
        if (request.json) {
            printJson(jsonOf(setting));
        } else {
            printLine(QStringLiteral("%1 = %2 (default: %3)")
                          .arg(setting.key, shownText(setting.type, setting.value),
                               shownText(setting.type, setting.defaultValue)));
        }
    }
    return settings.isEmpty() ? Failed : Done;
}

int exportTo(const Request &request)
{
    const QString path = request.arguments.constFirst();
    if (QFileInfo(path) == QFileInfo(request.options->fileName())) {
        return refuse(QStringLiteral("%1 is the settings file itself").arg(path));
    }
    QString error;
    return request.options->saveToFile(path, &error) ? Done : refuse(error);
}

// Reading replaces all that is there: it must not begin before there is something to put in its
// place.
int importFrom(const Request &request)
{
    const QString path = request.arguments.constFirst();
    QString error;
    const OpenedOptions source = openOptions(path, Access::Read, &error);
    if (!source.options) {
        return refuse(error);
    }
    if (source.options->allKeys().isEmpty()) {
        return refuse(QStringLiteral("%1: there are no settings in it").arg(path));
    }
    request.options->loadFromFile(path);
    return request.options->saveNow(&error) ? Done : refuse(error);
}

constexpr int Any = std::numeric_limits<int>::max();

struct Action
{
    const char *name;
    int least; // number of arguments
    int most;
    Access access; // to the settings file
    int (*run)(const Request &request);
};

// clang-format off
constexpr Action actions[] = {
    {"get",     1, Any, Access::Read, get},
    {"set",     2, Any, Access::Create, set},
    {"reset",   1, Any, Access::Change, reset},
    {"list",    0, Any, Access::Read, list},
    {"explain", 1, Any, Access::Read, explain},
    {"changed", 0, 0,   Access::Read, changed},
    {"export",  1, 1,   Access::Read, exportTo},
    {"import",  1, 1,   Access::Create, importFrom},
};
// clang-format on

// A number below zero would be taken for an option.
QStringList withValuesLast(const QStringList &arguments)
{
    QStringList options = arguments.mid(0, 1); // the command's name
    QStringList values{QStringLiteral("--")};
    for (int i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        bool isNumber = false;
        argument.toDouble(&isNumber);
        if (argument == QLatin1String("--")) {
            return options + values + arguments.mid(i + 1);
        }
        if (isNumber || argument.size() < 2 || !argument.startsWith(u'-')) {
            values.append(argument);
        } else {
            options.append(argument);
        }
        if (argument == QLatin1String("--settings") && i + 1 < arguments.size()) {
            options.append(arguments.at(++i));
        }
    }
    return options + values;
}

int runAction(const Action &action, Request *request, const QString &path)
{
    QString error;
    const OpenedOptions opened = openOptions(path, action.access, &error);
    if (!opened.options) {
        return refuse(error);
    }
    request->options = opened.options.get();
    return action.run(*request);
}

} // namespace

int runSettings(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Shows and changes the preferences of the application.\n\n"
        "  get KEY...         print values\n"
        "  set KEY VALUE      store a value; several values make a list\n"
        "  reset KEY...       go back to the default\n"
        "  list [WORD...]     list the settings whose keys hold all words, with their values\n"
        "  explain KEY...     print value, default, what is accepted, and where the value is from\n"
        "  changed            list what differs from the defaults\n"
        "  export FILE        copy what is stored into an INI file\n"
        "  import FILE        replace what is stored by an exported file\n\n"
        "Exit code 1: refused, or nothing found."));
    parser.addPositionalArgument(QStringLiteral("ACTION"), QStringLiteral("See above."),
                                 QStringLiteral("ACTION [ARGUMENTS]"));
    parser.addOption({QStringLiteral("settings"),
                      QStringLiteral("Work on this INI file instead of the user's settings."),
                      QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print each setting as JSON.")});
    const int code =
        parseArguments(&parser, QStringLiteral("settings ACTION [ARGUMENTS] [OPTIONS]"),
                       withValuesLast(arguments));
    if (code >= 0) {
        return code;
    }
    Request request;
    request.arguments = parser.positionalArguments();
    request.json = parser.isSet(QStringLiteral("json"));
    const QString name = request.arguments.isEmpty() ? QString() : request.arguments.takeFirst();
    for (const Action &action : actions) {
        if (name != QLatin1String(action.name)) {
            continue;
        }
        if (request.arguments.size() < action.least || request.arguments.size() > action.most) {
            printError(
                QStringLiteral("settings: %1 takes other arguments; try 'mrv settings --help'")
                    .arg(name));
            return WrongUsage;
        }
        return runAction(action, &request, parser.value(QStringLiteral("settings")));
    }
    printError(
        QStringLiteral("settings: unknown action '%1'; try 'mrv settings --help'").arg(name));
    return WrongUsage;
}
