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

using Format = MRVFormat::Format;

struct Request
{
    QStringList arguments; // what follows the verb
    Format from = MRVFormat::NoFormat;
    Format to = MRVFormat::NoFormat;
    MRVOptions *options = nullptr;
    MRVImportExportConfig *config = nullptr;
    bool json = false;
};

struct Verb
{
    const char *name;
    int arguments;
    Access access; // to the settings file
    int (*run)(const Request &request);
};

int usageError(const QString &text)
{
    printError(QLatin1String("engines: ") + text);
    return WrongUsage;
}

int refuse(const QString &text)
{
    printError(QLatin1String("engines: ") + text);
    return Failed;
}

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

QString title(Format from, Format to)
{
    return QStringLiteral("%1 -> %2").arg(MRVFormat::name(from), MRVFormat::name(to));
}

void print(const Request &request, Format from, Format to)
{
    const MRVEngineChoice choice = request.config->explain(from, to);
    const QString engine = MRVImportExport::toString(choice.engine);
    if (!request.json) {
        printLine(QStringLiteral("%1: %2 (%3)").arg(title(from, to), engine, choice.reasonText()));
        return;
    }
    QJsonObject object{
        {QStringLiteral("from"), MRVFormat::name(from)},
        {QStringLiteral("to"), MRVFormat::name(to)},
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

int runList(const Request &request)
{
    QList<Format> formats;
    for (int row = 0; row < MRVFormat::formatsCount(); ++row) {
        if (!formats.contains(MRVFormat::formatAt(row))) {
            formats.append(MRVFormat::formatAt(row));
        }
    }
    for (Format format : qAsConst(formats)) {
        // From RTF to RTF is an export.
        if (format != MRVFormat::RTF
            && request.config->explain(format, MRVFormat::RTF).isOffered()) {
            print(request, format, MRVFormat::RTF);
        }
    }
    for (Format format : qAsConst(formats)) {
        if (request.config->explain(MRVFormat::RTF, format).isOffered()) {
            print(request, MRVFormat::RTF, format);
        }
    }
    return Done;
}

// Empty when there is such a conversion.
QString objection(const Request &request)
{
    const MRVEngineChoice choice = request.config->explain(request.from, request.to);
    if (!choice.canImport) {
        return QStringLiteral("%1 cannot be imported").arg(MRVFormat::name(request.from));
    }
    if (!choice.canExport) {
        return QStringLiteral("%1 cannot be exported").arg(MRVFormat::name(request.to));
    }
    return QString();
}

int runShow(const Request &request)
{
    print(request, request.from, request.to);
    if (!request.json) {
        const MRVEngineChoice choice = request.config->explain(request.from, request.to);
        printLine(QLatin1String("  possible here: ")
                  + names(choice.supported).join(QLatin1String(", ")));
    }
    const QString text = objection(request);
    return text.isEmpty() ? Done : refuse(text);
}

int runSet(const Request &request)
{
    const QString engine = request.arguments.at(2);
    QString text = objection(request);
    if (!text.isEmpty()) {
        return refuse(text);
    }
    const MRVEngineChoice choice = request.config->explain(request.from, request.to);
    if (choice.reason == MRVEngineChoice::NeitherSideRtf) {
        return refuse(
            QStringLiteral("%1: %2").arg(title(request.from, request.to), choice.reasonText()));
    }
    if (!choice.supported.contains(engineOf(engine))) {
        return refuse(QStringLiteral("%1: %2 cannot do that here; what can: %3")
                          .arg(title(request.from, request.to), engine,
                               names(choice.supported).join(QLatin1String(", "))));
    }
    const Format other = request.from == MRVFormat::RTF ? request.to : request.from;
    if (MRVFormat::format(MRVFormat::name(other)) != other) {
        return refuse(QStringLiteral("choices for %1 are not kept: its name is no suffix")
                          .arg(MRVFormat::name(other)));
    }
    request.config->setEngine(request.from, request.to, engineOf(engine));
    if (!request.options->saveNow(&text)) {
        return refuse(text);
    }
    print(request, request.from, request.to);
    return Done;
}

int runReset(const Request &request)
{
    request.config->resetEngines();
    QString error;
    return request.options->saveNow(&error) ? Done : refuse(error);
}

constexpr Verb verbs[] = {
    {"list", 0, Access::Read, runList},
    {"show", 2, Access::Read, runShow},
    {"set", 3, Access::Create, runSet},
    {"reset", 0, Access::Change, runReset},
};

} // namespace

int runEngines(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Tells which engine converts which format into RTF, or RTF into it, and why.\n\n"
        "  list                   all conversions\n"
        "  show FROM TO           one; FROM and TO are suffixes, formats or files\n"
        "  set FROM TO ENGINE     store the choice of an engine that show names as possible\n"
        "  reset                  remove all stored choices, so that the defaults hold\n\n"
        "Exit code 1: there is no such conversion, or the engine cannot do it here."));
    parser.addPositionalArgument(QStringLiteral("VERB"), QStringLiteral("One of these."),
                                 QStringLiteral("VERB [ARGUMENTS]"));
    parser.addOption({QStringLiteral("settings"),
                      QStringLiteral("Use this settings file instead of the user's settings."),
                      QStringLiteral("FILE")});
    parser.addOption(
        {QStringLiteral("json"), QStringLiteral("Print each conversion as a line of JSON.")});
    const int code =
        parseArguments(&parser, QStringLiteral("engines VERB [ARGUMENTS] [OPTIONS]"), arguments);
    if (code >= 0) {
        return code;
    }

    Request request;
    request.json = parser.isSet(QStringLiteral("json"));
    request.arguments = parser.positionalArguments();
    const QString name = request.arguments.isEmpty() ? QString() : request.arguments.takeFirst();
    for (const Verb &verb : verbs) {
        if (name != QLatin1String(verb.name)) {
            continue;
        }
        if (request.arguments.size() != verb.arguments) {
            return usageError(
                QStringLiteral("%1 takes %2 arguments").arg(name, QString::number(verb.arguments)));
        }
        for (int i = 0; i < request.arguments.size() && i < 2; ++i) {
            const Format format = formatNamed(request.arguments.at(i));
            if (format == MRVFormat::NoFormat) {
                return usageError(
                    QStringLiteral("unknown format '%1'").arg(request.arguments.at(i)));
            }
            (i == 0 ? request.from : request.to) = format;
        }
        QString error;
        const OpenedOptions opened =
            openOptions(parser.value(QStringLiteral("settings")), verb.access, &error);
        if (!opened.options) {
            return refuse(error);
        }
        MRVImportExportConfig config(opened.options.get());
        request.options = opened.options.get();
        request.config = &config;
        return verb.run(request);
    }
    return usageError(name.isEmpty()
                          ? QStringLiteral("what to do is missing: list, show, set or reset")
                          : QStringLiteral("'%1' is not list, show, set or reset").arg(name));
}
