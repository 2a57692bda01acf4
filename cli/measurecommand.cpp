#include "command.h"
#include "textsearch.h"
#include "util/mrvunit.h"

#include <QCommandLineParser>
#include <QJsonObject>

namespace {

constexpr MRVUnit::Unit shownUnits[] = {
    MRVUnit::Inch, MRVUnit::Decimeter, MRVUnit::Centimeter, MRVUnit::Millimeter,
    MRVUnit::Pica, MRVUnit::Point,     MRVUnit::Pixel};

struct Measure
{
    double value = 0.0;
    double points = 0.0;
    int decimals = 0;
    MRVUnit::Unit unit = MRVUnit::None;
};

// None where no unit is called so.
MRVUnit::Unit unitNamed(const QString &name)
{
    for (const MRVUnit::Unit unit : shownUnits) {
        if (name == MRVUnit::shortSuffix(unit)) {
            return unit;
        }
    }
    return MRVUnit::None;
}

QString unitNames()
{
    QStringList names;
    for (const MRVUnit::Unit unit : shownUnits) {
        names.append(MRVUnit::shortSuffix(unit));
    }
    return names.join(QLatin1String(", "));
}

double converted(const Measure &measure, MRVUnit::Unit to)
{
    // By the points, which know a didot from a cicero; both are of one unit.
    return to == measure.unit ? measure.value : MRVUnit::fromPoint(to, measure.points);
}

void print(const QString &text, const Measure &measure, MRVUnit::Unit to)
{
    if (to != MRVUnit::None) {
        printLine(MRVUnit::toText(to, converted(measure, to)));
        return;
    }
    QStringList all;
    for (const MRVUnit::Unit unit : shownUnits) {
        all.append(MRVUnit::toText(unit, converted(measure, unit)));
    }
    printLine(QStringLiteral("%1 = %2").arg(text.simplified(), all.join(QLatin1String(" = "))));
}

void printAsJson(const QString &text, const Measure &measure, MRVUnit::Unit to)
{
    QJsonObject values;
    for (const MRVUnit::Unit unit : shownUnits) {
        if (to == MRVUnit::None || to == unit) {
            values.insert(MRVUnit::shortSuffix(unit), converted(measure, unit));
        }
    }
    printJson({{QStringLiteral("text"), text},
               {QStringLiteral("value"), measure.value},
               {QStringLiteral("unit"), MRVUnit::shortSuffix(measure.unit)},
               {QStringLiteral("decimals"), measure.decimals},
               {QStringLiteral("points"), measure.points},
               {QStringLiteral("in"), values}});
}

} // namespace

int runMeasure(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral(
            "Reads measures (\"2.5cm\", \"1in\", \"12 pt\") and prints them in other units: %1.\n"
            "An inch is 72 points, a pixel is one, a cm 28.3465058. \"--\" goes in front of\n"
            "negative ones. Exit code 1: one of them is no measure.")
            .arg(unitNames()));
    parser.addPositionalArgument(QStringLiteral("MEASURE"), QStringLiteral("The measures."),
                                 QStringLiteral("MEASURE..."));
    parser.addOption({QStringLiteral("to"), QStringLiteral("Print them in this unit only."),
                      QStringLiteral("UNIT")});
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print each as a line of JSON.")});
    const int code =
        parseArguments(&parser, QStringLiteral("measure MEASURE... [OPTIONS]"), arguments);
    if (code >= 0) {
        return code;
    }
    const QStringList texts = parser.positionalArguments();
    const QString to = parser.value(QStringLiteral("to"));
    const MRVUnit::Unit unit = unitNamed(to);
    if (texts.isEmpty()) {
        printError(QStringLiteral("measure: a measure is missing"));
        return WrongUsage;
    }
    if (parser.isSet(QStringLiteral("to")) && unit == MRVUnit::None) {
        printError(QStringLiteral("measure: unknown unit '%1'; known are %2").arg(to, unitNames()));
        return WrongUsage;
    }
    bool ok = true;
    for (const QString &text : texts) {
        Measure measure;
        QString pattern;
        if (!MRVUnit::parseMeasure(text, pattern, measure.decimals, measure.value, measure.points,
                                   measure.unit)) {
            printError(
                QStringLiteral("measure: '%1' is no number with a unit behind it").arg(text));
            ok = false;
        } else if (parser.isSet(QStringLiteral("json"))) {
            printAsJson(text, measure, unit);
        } else {
            print(text, measure, unit);
        }
    }
    return ok ? Done : Failed;
}
