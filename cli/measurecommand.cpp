#include "command.h"
#include "textsearch.h"
#include "util/mrvunit.h"

#include <QCommandLineParser>
#include <QJsonObject>
#include <QVector>

#include <cmath>

namespace {

constexpr MRVUnit::Unit shownUnits[] = {
    MRVUnit::Inch, MRVUnit::Decimeter, MRVUnit::Centimeter, MRVUnit::Millimeter,
    MRVUnit::Pica, MRVUnit::Point,     MRVUnit::Pixel};

struct Measure
{
    QString pattern;
    double value = 0.0;
    double points = 0.0;
    int decimals = 0;
    MRVUnit::Unit unit = MRVUnit::None;
};

// What a measure is printed in. A didot and a cicero are no units of their own, so that the
// spelling tells them apart.
struct Target
{
    QString name;
    QString pattern;
    double points = 0.0; // that it counts
};

constexpr const char *spellings[] = {"in", "inch", "\"", "dm", "cm", "mm",
                                     "pi", "pt",   "px", "dd", "cc"};

Target targetNamed(const QString &name)
{
    Target target{name, QString(), 0.0};
    int decimals = 0;
    double value = 0.0;
    MRVUnit::Unit unit = MRVUnit::None;
    for (const char *spelling : spellings) {
        if (name == QLatin1String(spelling)) {
            MRVUnit::parseMeasure(u'1' + name, target.pattern, decimals, value, target.points,
                                  unit);
        }
    }
    return target;
}

QString unitNames()
{
    QStringList names;
    for (const char *spelling : spellings) {
        names.append(QLatin1String(spelling));
    }
    return names.join(QLatin1String(", "));
}

double converted(const Measure &measure, const Target &to)
{
    return to.pattern == measure.pattern ? measure.value : measure.points / to.points;
}

QString textOf(const Measure &measure, const Target &to)
{
    return to.pattern.arg(converted(measure, to), 0, 'g', -1, u' ');
}

void print(const QString &text, const Measure &measure, const QVector<Target> &targets, bool alone)
{
    QStringList all;
    for (const Target &target : targets) {
        all.append(textOf(measure, target));
    }
    if (!alone) {
        all.prepend(text.simplified());
    }
    printLine(all.join(QLatin1String(" = ")));
}

void printAsJson(const QString &text, const Measure &measure, const QVector<Target> &targets)
{
    QJsonObject values;
    for (const Target &target : targets) {
        values.insert(target.name, converted(measure, target));
    }
    printJson({{QStringLiteral("text"), text},
               {QStringLiteral("value"), measure.value},
               {QStringLiteral("unit"), MRVUnit::shortSuffix(measure.unit)},
               {QStringLiteral("decimals"), measure.decimals},
               {QStringLiteral("points"), measure.points},
               {QStringLiteral("in"), values}});
}

QVector<Target> targetsFor(const QString &to)
{
    if (!to.isNull()) {
        return {targetNamed(to)};
    }
    QVector<Target> targets;
    for (const MRVUnit::Unit unit : shownUnits) {
        targets.append(targetNamed(MRVUnit::shortSuffix(unit)));
    }
    return targets;
}

} // namespace

int runMeasure(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral(
            "Reads measures (\"2.5cm\", \"1in\", \"12 pt\") and prints them in other units.\n"
            "Units are %1, written so.\n"
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
    const bool alone = parser.isSet(QStringLiteral("to"));
    const QString to = parser.value(QStringLiteral("to"));
    const QVector<Target> targets = targetsFor(alone ? to : QString());
    if (texts.isEmpty()) {
        printError(QStringLiteral("measure: a measure is missing"));
        return WrongUsage;
    }
    if (targets.constFirst().pattern.isEmpty()) {
        printError(QStringLiteral("measure: unknown unit '%1'; known are %2").arg(to, unitNames()));
        return WrongUsage;
    }
    bool ok = true;
    for (const QString &text : texts) {
        Measure measure;
        if (!MRVUnit::parseMeasure(text, measure.pattern, measure.decimals, measure.value,
                                   measure.points, measure.unit)) {
            printError(QStringLiteral("measure: '%1' is no number with a unit (%2) behind it")
                           .arg(text, unitNames()));
            ok = false;
        } else if (!std::isfinite(measure.points)) {
            printError(QStringLiteral("measure: '%1' is too large, or no number").arg(text));
            ok = false;
        } else if (parser.isSet(QStringLiteral("json"))) {
            printAsJson(text, measure, targets);
        } else {
            print(text, measure, targets, alone);
        }
    }
    return ok ? Done : Failed;
}
