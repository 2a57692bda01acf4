#include "commandline.h"

#include "util/mrvmeasure.h"

#include <QJsonObject>

#include <cmath>

namespace {

constexpr MRVUnit::Unit shownUnits[] = {
    MRVUnit::Inch, MRVUnit::Decimeter, MRVUnit::Centimeter, MRVUnit::Millimeter,
    MRVUnit::Pica, MRVUnit::Point,     MRVUnit::Pixel};

constexpr const char units[] = "in inch \" dm cm mm pi pt px dd cc";

void print(const QString &text, const MRVMeasure &measure, const QStringList &targets, bool alone)
{
    QStringList all;
    for (const QString &unit : targets) {
        all.append(measure.toText(unit));
    }
    if (!alone) {
        all.prepend(text.simplified());
    }
    printLine(all.join(QLatin1String(" = ")));
}

void printAsJson(const QString &text, const MRVMeasure &measure, const QStringList &targets)
{
    QJsonObject values;
    for (const QString &unit : targets) {
        values.insert(unit, measure.in(unit));
    }
    printJson({{QStringLiteral("text"), text},
               {QStringLiteral("value"), measure.value},
               {QStringLiteral("unit"), MRVUnit::shortSuffix(measure.unit)},
               {QStringLiteral("decimals"), measure.decimals},
               {QStringLiteral("points"), measure.points},
               {QStringLiteral("in"), values}});
}

QStringList targetsFor(const Call &call)
{
    if (call.has("to")) {
        return {call.value("to")};
    }
    QStringList targets;
    for (const MRVUnit::Unit unit : shownUnits) {
        targets.append(MRVUnit::shortSuffix(unit));
    }
    return targets;
}

// What is wrong with a measure; empty when nothing is.
QString objectionTo(const QString &text, MRVMeasure *measure)
{
    if (!MRVMeasure::parse(text, measure)) {
        return QStringLiteral("'%1' is not a number with a unit (%2) after it")
            .arg(text, words(units).join(QLatin1String(", ")));
    }
    return std::isfinite(measure->points)
        ? QString()
        : QStringLiteral("'%1' is too large, or not a number").arg(text);
}

int run(const Call &call)
{
    const QStringList targets = targetsFor(call);
    bool ok = true;
    for (const QString &text : call.arguments) {
        MRVMeasure measure;
        const QString objection = objectionTo(text, &measure);
        if (!objection.isEmpty()) {
            refuse(MRVErrorKind::Other, objection); // the other measures can still be converted
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
