#include "command.h"
#include "settingsfile.h"
#include "suggestion.h"
#include "textsearch.h"

#include "core/mrvcoreutil.h"
#include "options/mrvoptions.h"
#include "state/mrvtextpresetmgr.h"
#include "textformat/mrvtextformat.h"

#include <QBrush>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

namespace {

struct Request
{
    QStringList arguments; // of the action
    QString settings; // path; empty for the user's own presets
    MRVOptions *options = nullptr; // in that file; null where presets of a file are read
    QString file; // path of a preset file to read instead
    bool onlyThese = false;
    bool json = false;
};

struct PropertyRow
{
    int property;
    const char *name;
};

// clang-format off
constexpr PropertyRow propertyRows[] = {
    {QTextFormat::FontFamily,               "family"},
    {QTextFormat::FontPointSize,            "size"},
    {QTextFormat::FontWeight,               "weight"},
    {QTextFormat::FontItalic,               "italic"},
    {QTextFormat::TextUnderlineStyle,       "underline"},
    {QTextFormat::FontStrikeOut,            "strikeOut"},
    {QTextFormat::FontCapitalization,       "capitalization"},
    {QTextFormat::ForegroundBrush,          "color"},
    {QTextFormat::BackgroundBrush,          "background"},
    {MRVTextFormat::PreserveFormatProperty, "preserved"},
    {QTextFormat::BlockAlignment,           "alignment"},
    {QTextFormat::BlockLeftMargin,          "left"},
    {QTextFormat::BlockRightMargin,         "right"},
    {QTextFormat::TextIndent,               "firstLine"},
    {QTextFormat::BlockTopMargin,           "above"},
    {QTextFormat::BlockBottomMargin,        "below"},
    {MRVTextFormat::BlockSpacing,           "spacing"},
    {MRVTextFormat::BlockBaseSpacing,       "baseSpacing"},
};

struct AlignmentRow
{
    Qt::AlignmentFlag alignment;
    const char *name;
};

constexpr AlignmentRow alignmentRows[] = {
    {Qt::AlignLeft,    "left"},
    {Qt::AlignRight,   "right"},
    {Qt::AlignHCenter, "center"},
    {Qt::AlignJustify, "justify"},
};
// clang-format on

int refuse(const QString &text)
{
    printError(QLatin1String("presets: ") + text);
    return Failed;
}

int usageError(const QString &text)
{
    printError(QLatin1String("presets: ") + text + QLatin1String("; try 'mrv presets --help'"));
    return WrongUsage;
}

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

bool readPresets(const Request &request, MRVTextPresetScheme *scheme, QString *error)
{
    if (!request.file.isEmpty()) {
        return readPresetFile(request.file, scheme, error);
    }
    if (request.settings.isEmpty()) {
        const QString path = MRVTextPresetMgr::presetSchemeFilePath();
        if (QFileInfo::exists(path)) {
            return readPresetFile(path, scheme, error);
        }
        *scheme = MRVTextPresetMgr::loadPresetScheme();
        return true;
    }
    QString reason;
    const QByteArray bytes = request.options->value(MRVOptions::TextPresets);
    *scheme = MRVTextPresetScheme::fromByteArray(bytes, &reason);
    if (!reason.isEmpty()) {
        *error = request.options->fileName() + QLatin1String(": ") + reason;
    }
    return error->isEmpty();
}

bool writePresets(const Request &request, const MRVTextPresetScheme &scheme, QString *error)
{
    if (!request.settings.isEmpty()) {
        request.options->setValue(MRVOptions::TextPresets,
                                  MRVTextPresetScheme::toByteArray(scheme));
        return request.options->saveNow(error);
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

QJsonValue jsonOf(int property, const QVariant &value)
{
    if (value.userType() == QMetaType::QBrush) {
        return value.value<QBrush>().color().name();
    }
    if (property == QTextFormat::BlockAlignment) {
        for (const AlignmentRow &row : alignmentRows) {
            if (value.toInt() & row.alignment) {
                return QLatin1String(row.name);
            }
        }
    }
    const QJsonValue json = QJsonValue::fromVariant(value);
    return json.isNull() || json.isArray() ? QJsonValue(QLatin1String(value.typeName())) : json;
}

QString nameOf(int property)
{
    for (const PropertyRow &row : propertyRows) {
        if (row.property == property) {
            return QLatin1String(row.name);
        }
    }
    return QStringLiteral("0x%1").arg(property, 0, 16);
}

QJsonObject jsonOf(const QTextFormat &format)
{
    QJsonObject object;
    const QMap<int, QVariant> properties = format.properties();
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        object.insert(nameOf(it.key()), jsonOf(it.key(), it.value()));
    }
    return object;
}

QStringList partsOf(const MRVTextPreset &preset)
{
    QStringList parts;
    if (preset.applyFlags() & MRVTextPreset::ApplyCharFormat) {
        parts << QStringLiteral("characters");
    }
    if (preset.applyFlags() & MRVTextPreset::ApplyBlockFormat) {
        parts << QStringLiteral("paragraphs");
    }
    return parts;
}

QJsonObject jsonOf(const QString &name, const MRVTextPreset &preset)
{
    return {{QStringLiteral("name"), name},
            {QStringLiteral("applies"), QJsonArray::fromStringList(partsOf(preset))},
            {QStringLiteral("characters"), jsonOf(preset.charFormat())},
            {QStringLiteral("paragraphs"), jsonOf(preset.blockFormat())}};
}

void printFormat(const char *title, const QTextFormat &format)
{
    const QJsonObject object = jsonOf(format);
    QStringList values;
    for (auto it = object.begin(); it != object.end(); ++it) {
        values << it.key() + u' ' + displayed(it.value().toVariant().toString());
    }
    printLine(QStringLiteral("  %1 %2").arg(QLatin1String(title), -11).arg(values.join(u", ")));
}

void printPreset(const QString &name, const MRVTextPreset &preset)
{
    printLine(displayed(name));
    printLine(QLatin1String("  applies     ") + partsOf(preset).join(QLatin1String(", ")));
    printFormat("characters", preset.charFormat());
    printFormat("paragraphs", preset.blockFormat());
}

int list(const Request &request, MRVTextPresetScheme scheme)
{
    const QStringList names = scheme.names();
    for (const QString &name : names) {
        if (request.json) {
            printJson(jsonOf(name, scheme.preset(name)));
        } else {
            printLine(displayed(name));
        }
    }
    return names.isEmpty() ? Failed : Done;
}

int show(const Request &request, MRVTextPresetScheme scheme)
{
    for (const QString &name : request.arguments) {
        if (!scheme.contains(name)) {
            return refuseName(name, scheme);
        }
    }
    for (const QString &name : request.arguments) {
        if (request.json) {
            printJson(jsonOf(name, scheme.preset(name)));
        } else {
            printPreset(name, scheme.preset(name));
        }
    }
    return Done;
}

int exportTo(const Request &request, MRVTextPresetScheme scheme)
{
    QString error;
    const QByteArray bytes = MRVTextPresetScheme::toByteArray(scheme);
    return MRVCoreUtil::WriteBinaryFile(bytes, request.arguments.constFirst(), &error)
        ? Done
        : refuse(error);
}

int importFrom(const Request &request, MRVTextPresetScheme scheme)
{
    QString error;
    MRVTextPresetScheme added;
    if (!readPresetFile(request.arguments.constFirst(), &added, &error)) {
        return refuse(error);
    }
    if (request.onlyThese) {
        scheme = MRVTextPresetScheme();
    }
    const QStringList names = added.names();
    for (const QString &name : names) {
        scheme.setPreset(name, added.preset(name));
    }
    return writePresets(request, scheme, &error) ? Done : refuse(error);
}

int removeFrom(const Request &request, MRVTextPresetScheme scheme)
{
    for (const QString &name : request.arguments) {
        if (!scheme.deletePreset(name)) {
            return refuseName(name, scheme);
        }
    }
    QString error;
    return writePresets(request, scheme, &error) ? Done : refuse(error);
}

struct Action
{
    const char *name;
    bool takesOne; // argument, else any number of names
    Access access; // to the settings file
    int (*run)(const Request &request, MRVTextPresetScheme scheme);
};

constexpr Action actions[] = {
    {"list", false, Access::Read, list},           {"show", false, Access::Read, show},
    {"export", true, Access::Read, exportTo},      {"import", true, Access::Create, importFrom},
    {"remove", false, Access::Change, removeFrom},
};

int runAction(const Action &action, Request request)
{
    const int count = request.arguments.size();
    if (action.run == list ? count > 0 : (count == 0 || (action.takesOne && count > 1))) {
        return usageError(
            QStringLiteral("wrong number of arguments for '%1'").arg(QLatin1String(action.name)));
    }
    if (action.access != Access::Read && !request.file.isEmpty()) {
        return usageError(QStringLiteral("--file is only for list, show and export"));
    }
    if (request.onlyThese && action.run != importFrom) {
        return usageError(QStringLiteral("--only-these is only for import"));
    }
    QString error;
    OpenedOptions opened;
    if (request.file.isEmpty()) {
        opened = openOptions(request.settings, action.access, &error);
    }
    request.options = opened.options.get();
    MRVTextPresetScheme scheme;
    // What is there may be damaged when all of it is to be replaced.
    const bool isReplaced = request.onlyThese && action.run == importFrom;
    if (!error.isEmpty() || (!isReplaced && !readPresets(request, &scheme, &error))) {
        return refuse(error);
    }
    return action.run(request, scheme);
}

} // namespace

int runPresets(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows and changes the text presets of the application.\n\n"
                       "  list              the names of all presets\n"
                       "  show NAME...      what presets do\n"
                       "  export FILE       writes all presets to a preset file\n"
                       "  import FILE       adds the presets of a preset file, in place of those "
                       "of the same name\n"
                       "  remove NAME...    removes presets"));
    parser.addPositionalArgument(QStringLiteral("ACTION"), QStringLiteral("One of the above."));
    parser.addOption({QStringLiteral("settings"),
                      QStringLiteral("Work on the presets in this settings file, not the user's."),
                      QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("file"),
                      QStringLiteral("List, show or export the presets of this preset file."),
                      QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("only-these"),
                      QStringLiteral("Import in place of all presets that are there.")});
    parser.addOption(
        {QStringLiteral("json"), QStringLiteral("Print each preset as a line of JSON.")});
    const int code =
        parseArguments(&parser, QStringLiteral("presets ACTION [ARGUMENTS] [OPTIONS]"), arguments);
    if (code >= 0) {
        return code;
    }
    // The presets lie in the application's folders, not in those of the tool.
    QCoreApplication::setOrganizationName(MRVOptions::companyName());
    QCoreApplication::setApplicationName(MRVOptions::applicationName());
    Request request;
    request.arguments = parser.positionalArguments();
    request.settings = parser.value(QStringLiteral("settings"));
    request.file = parser.value(QStringLiteral("file"));
    request.onlyThese = parser.isSet(QStringLiteral("only-these"));
    request.json = parser.isSet(QStringLiteral("json"));
    if (request.arguments.isEmpty()) {
        return usageError(QStringLiteral("an action is missing; try 'mrv presets --help'"));
    }
    const QString name = request.arguments.takeFirst();
    for (const Action &action : actions) {
        if (name == QLatin1String(action.name)) {
            return runAction(action, request);
        }
    }
    return usageError(QStringLiteral("unknown action '%1'").arg(name));
}
