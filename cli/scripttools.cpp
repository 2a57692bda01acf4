#include "scriptcommand.h"

#include "inputs.h"
#include "screenplay/mrvfountainhtml.h"
#include "screenplay/mrvscriptcheck.h"
#include "screenplay/mrvscriptcompare.h"
#include "screenplay/mrvscriptfile.h"
#include "screenplay/mrvscriptnumbers.h"
#include "screenplay/mrvscriptpagination.h"
#include "screenplay/mrvscriptscenes.h"
#include "scriptmode/mrvscriptmode.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {

const QLatin1String StandardStream("-");

// The line of an element, or the number of its paragraph in a file that has no lines to speak of.
int placeOf(const QVector<int> &lines, int element)
{
    return element < lines.size() ? lines.at(element) : element + 1;
}

QString shownPlace(const QString &path, const MRVScriptFile &file, int place)
{
    const bool hasLines = file.format() == MRVScriptFile::Fountain;
    return styled(
               Style::Path,
               QStringLiteral("%1:%2%3:")
                   .arg(path, QLatin1String(hasLines ? "" : " paragraph "), QString::number(place)))
        + u' ';
}

QString placeName(const MRVScriptFile &file)
{
    return file.format() == MRVScriptFile::Fountain ? QStringLiteral("line")
                                                    : QStringLiteral("paragraph");
}

} // namespace

int checkScript(const Call &call, const QString &path)
{
    MRVScriptFile file;
    MRVError error;
    if (!readScriptFile(call, path, &file, &error)) {
        return refuse(error);
    }
    const QVector<MRVScriptFault> faults = file.format() == MRVScriptFile::Fountain
        ? MRVScriptCheck::ofText(file.text())
        : MRVScriptCheck::of(file.script());
    for (const MRVScriptFault &fault : faults) {
        QJsonObject object{{QStringLiteral("path"), path},
                           {placeName(file), fault.line},
                           {QStringLiteral("fault"), fault.text}};
        QString text = fault.text;
        if (fault.usualLine > 0) {
            object.insert(QStringLiteral("usual"), fault.usualLine);
            text += QStringLiteral(" (%1 %2)").arg(placeName(file)).arg(fault.usualLine);
        }
        printAnswer(call, object, shownPlace(path, file, fault.line) + displayed(text));
    }
    return faults.isEmpty() ? Done : Failed;
}

namespace {

void printScene(const Call &call, const QString &path, const MRVScriptScene &scene)
{
    QJsonObject object = scene.toJson();
    object.insert(QStringLiteral("path"), path);
    const QString number = scene.number.isEmpty() ? QString() : scene.number + u' ';
    printAnswer(call, object,
                displayed(QStringLiteral("%1%2: page %3, %4 pages")
                              .arg(number, scene.heading, QString::number(scene.page),
                                   MRVScriptPagination::eighthsText(scene.eighths))
                          + (scene.characters.isEmpty() ? QString()
                                                        : QLatin1String(": ")
                                     + scene.characters.join(QLatin1String(", ")))));
}

} // namespace

int runScriptScenes(const Call &call)
{
    if (call.json() && call.has("csv")) {
        return usageError(QStringLiteral("--json and --csv exclude each other"));
    }
    const QString path = call.arguments.constFirst();
    MRVScriptFile file;
    MRVScriptMode mode;
    MRVScriptPagination::Options layout;
    MRVError error;
    if (!readLayout(call, &mode, &layout, &error) || !readScriptFile(call, path, &file, &error)) {
        return refuse(error);
    }
    const MRVFountainScript script = file.script();
    const QVector<MRVScriptScene> scenes =
        MRVScriptScene::of(script, MRVScriptPagination(script, mode, layout));
    if (call.has("csv")) {
        return writeStandardOutput(MRVScriptScene::toCsv(scenes), &error) ? int(Done)
                                                                          : refuse(error);
    }
    for (const MRVScriptScene &scene : scenes) {
        printScene(call, path, scene);
    }
    return scenes.isEmpty() ? Failed : Done;
}

namespace {

int writeNumbered(const Call &call, int (*number)(const Call &, MRVFountainScript *))
{
    const QString path = call.arguments.constFirst();
    MRVScriptFile file;
    MRVError error;
    if (!readScriptFile(call, path, &file, &error)) {
        return refuse(error);
    }
    MRVFountainScript script = file.script();
    const int count = number(call, &script);
    const QString output = call.value("output");
    const QString target = output.isEmpty() ? QString(StandardStream) : output;
    if (!writeRevised(&file, script, path, target, &error)) {
        return refuse(error);
    }
    if (target != StandardStream) {
        printAnswer(call, {{QStringLiteral("path"), target}, {QStringLiteral("numbered"), count}},
                    QStringLiteral("%1: %2 numbered").arg(target).arg(count));
    }
    return Done;
}

} // namespace

int runScriptNumber(const Call &call)
{
    return writeNumbered(call, [](const Call &, MRVFountainScript *script) {
        return MRVScriptNumbers::number(script);
    });
}

int runScriptRenumber(const Call &call)
{
    return writeNumbered(call, [](const Call &options, MRVFountainScript *script) {
        return MRVScriptNumbers::renumber(script, int(options.number("first", 1)));
    });
}

namespace {

// One side of a comparison.
struct Compared
{
    QString path;
    MRVScriptFile file;
    MRVFountainScript script;
    QVector<int> lines;
};

bool readCompared(const Call &call, const QString &path, Compared *compared, MRVErrorSink error)
{
    compared->path = path;
    if (!readScriptFile(call, path, &compared->file, error)) {
        return false;
    }
    compared->script = compared->file.script();
    if (compared->file.format() == MRVScriptFile::Fountain) {
        MRVFountainScript::fromText(compared->file.text(), &compared->lines);
    }
    return true;
}

// A paragraph or an entry of the title page, as it is shown; at an index of -1 nothing.
struct Shown
{
    int place = 0; // 0 for an entry of the title page
    QString kind;
    QString text;
};

Shown shownElement(const Compared &side, int index)
{
    const MRVFountainElement element = side.script.elements.value(index);
    return {placeOf(side.lines, index), MRVFountainHtml::className(element.kind),
            MRVScriptCompare::text(element)};
}

Shown shownTitle(const Compared &side, int index)
{
    const MRVFountainTitle title = side.script.titles.value(index);
    MRVFountainElement value;
    value.runs = title.value;
    return {0, title.key, MRVScriptCompare::text(value)};
}

void printSide(const Compared &side, const Shown &shown, QChar sign)
{
    const QString place = shown.place > 0 ? shownPlace(side.path, side.file, shown.place)
                                          : styled(Style::Path, side.path + u':') + u' ';
    printLine(place
              + styled(sign == u'-' ? Style::Removed : Style::Added,
                       sign + u' ' + displayed(shown.kind + QLatin1String(": ") + shown.text)));
}

QJsonObject sideToJson(const Compared &side, const Shown &shown)
{
    QJsonObject object{{QStringLiteral("kind"), shown.kind}, {QStringLiteral("text"), shown.text}};
    if (shown.place > 0) {
        object.insert(placeName(side.file), shown.place);
    }
    return object;
}

void printChanges(const Call &call, const Compared (&sides)[2],
                  const QVector<MRVScriptChange> &changes, Shown (*shown)(const Compared &, int))
{
    for (const MRVScriptChange &change : changes) {
        const int indexes[] = {change.before, change.after};
        QJsonObject object;
        for (const int side : {0, 1}) {
            if (indexes[side] < 0) {
                continue;
            }
            const Shown part = shown(sides[side], indexes[side]);
            if (call.json()) {
                object.insert(side == 0 ? QStringLiteral("before") : QStringLiteral("after"),
                              sideToJson(sides[side], part));
            } else {
                printSide(sides[side], part, side == 0 ? u'-' : u'+');
            }
        }
        if (call.json()) {
            printJson(object);
        }
    }
}

} // namespace

int runScriptCompare(const Call &call)
{
    Compared sides[2];
    for (const int side : {0, 1}) {
        MRVError error;
        if (!readCompared(call, call.arguments.at(side), &sides[side], &error)) {
            return refuse(error);
        }
    }
    const auto titles = MRVScriptCompare::titles(sides[0].script, sides[1].script);
    const auto elements = MRVScriptCompare::elements(sides[0].script, sides[1].script);
    printChanges(call, sides, titles, shownTitle);
    printChanges(call, sides, elements, shownElement);
    return titles.isEmpty() && elements.isEmpty() ? Done : Failed;
}
