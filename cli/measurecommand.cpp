#include "commandline.h"

#include "util/mrvunit.h"

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

constexpr const char units[] = "in inch \" dm cm mm pi pt px dd cc";

Target targetNamed(const QString &unit)
{
    Target target{unit, QString(), 0.0};
    int decimals = 0;
    double value = 0.0;
    MRVUnit::Unit ignored = MRVUnit::None;
    MRVUnit::parseMeasure(u'1' + unit, target.pattern, decimals, value, target.points, ignored);
    return target;
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

// What is wrong with a measure; empty when nothing is.
QString objectionTo(const QString &text, Measure *measure)
{
    if (!MRVUnit::parseMeasure(text, measure->pattern, measure->decimals, measure->value,
                               measure->points, measure->unit)) {
        return QStringLiteral("'%1' is not a number with a unit (%2) after it")
            .arg(text, words(units).join(QLatin1String(", ")));
    }
    return std::isfinite(measure->points)
        ? QString()
        : QStringLiteral("'%1' is too large, or not a number").arg(text);
}

int run(const Call &call)
{
    const QVector<Target> targets = targetsFor(call.value("to"));
    bool ok = true;
    for (const QString &text : call.arguments) {
        Measure measure;
        const QString objection = objectionTo(text, &measure);
        if (!objection.isEmpty()) {
            refuse(objection); // the other measures can still be converted
            ok = false;
        } else if (call.json()) {
            printAsJson(text, measure, targets);
        } else {
            print(text, measure, targets, call.has("to"));
        }
    }
    return ok ? Done : Failed;
}

constexpr Verb verbs[] = {{"", "MEASURE...", "", run}};

constexpr Option options[] = {
    Option::choice("to", "UNIT", units, "Print them in this unit only."),
    Option::flag("json", "Print each as a line of JSON."),
};

} // namespace

const Command measureCommand = {
    "measure",
    "convert measures to other units",
    "Reads measures (\"2.5cm\", \"1in\", \"12 pt\") and prints them in other units: in or inch, "
    "\", "
    "dm, cm, mm, pi (pica), pt, px, dd (didot), cc (cicero), in lower case. An inch is 72 points, "
    "a "
    "pixel is one point, a cm 28.3465058 points.\n"
    "Exit code 1: one of them is not a measure.",
    "measure 2.5cm 1in \"12 pt\" --to pt\nmeasure -1cm --json",
    verbs,
    {options},
};
