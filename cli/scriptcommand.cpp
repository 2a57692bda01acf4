#include "scriptcommand.h"
#include "commandline.h"
#include "screenplay/mrvscriptfile.h"
#include "scriptmode/mrvscriptelementtext.h"
#include "scriptmode/mrvscriptmode.h"
#include "util/mrvfilekind.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

namespace {

struct UnitName
{
    const char *option;
    MRVUnit::Unit unit;
};
constexpr UnitName unitNames[] = {{"in", MRVUnit::Inch},
                                  {"cm", MRVUnit::Centimeter},
                                  {"pt", MRVUnit::Point}};

int list(const Call &call)
{
    QMap<QString, MRVScriptMode> modes;
    bool allFound = true;
    if (call.arguments.isEmpty()) {
        modes = MRVScriptMode::systemModes();
    }
    for (const QString &folder : call.arguments) {
        if (!QFileInfo(folder).isDir()) {
            refuse(MRVErrorKind::NotFound, QStringLiteral("'%1' is no folder").arg(folder));
            allFound = false;
            continue;
        }
        const QMap<QString, MRVScriptMode> some = mrv_loadPath(folder);
        if (some.isEmpty()) {
            refuse(MRVErrorKind::NotFound,
                   QStringLiteral("no file in '%1' is a script mode").arg(folder));
            allFound = false;
        }
        for (auto it = some.cbegin(); it != some.cend(); ++it) {
            modes.insert(it.key(), it.value());
        }
    }
    for (const MRVScriptMode &mode : qAsConst(modes)) {
        const int count = mode.elements().size();
        const QString units = MRVUnit::shortSuffix(mode.units());
        printAnswer(call,
                    {{QStringLiteral("name"), mode.name()},
                     {QStringLiteral("units"), units},
                     {QStringLiteral("elements"), count}},
                    QStringLiteral("%1 (%2, %3 elements)")
                        .arg(displayed(mode.name()), units, QString::number(count)));
    }
    return modes.isEmpty() || !allFound ? Failed : Done;
}

int showMode(const MRVScriptMode &mode, const Call &call)
{
    if (call.has("xml") || call.has("output")) {
        const QString path = call.value("output");
        MRVError error;
        const bool ok = path.isEmpty() ? writeStandardOutput(mode.toXml(), &error)
                                       : MRVFileKind::mayReplace(path, MRVScriptMode::isXml, &error)
                && mode.save(path, &error);
        return ok ? int(Done) : refuse(error);
    }
    const QList<MRVScriptElement> elements = mode.elements();
    if (call.has("json")) {
        QJsonArray objects;
        for (const MRVScriptElement &element : elements) {
            objects.append(MRVScriptElementText::toJson(element));
        }
        printJson({{QStringLiteral("name"), mode.name()},
                   {QStringLiteral("units"), MRVUnit::shortSuffix(mode.units())},
                   {QStringLiteral("elements"), objects}});
        return Done;
    }
    printLine(displayed(mode.name()));
    for (const MRVScriptElement &element : elements) {
        const QString shortcut = element.shortcut();
        printLine(QString());
        printLine(
            styled(Style::Path, displayed(element.title()))
            + (shortcut.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(displayed(shortcut))));
        const QStringList lines = MRVScriptElementText::description(element, mode);
        for (const QString &line : lines) {
            printLine(QLatin1String("  ") + displayed(line));
        }
    }
    return Done;
}

int show(const Call &call)
{
    const UnitName *unit = nullptr;
    for (const UnitName &name : unitNames) {
        unit = call.value("units") == QLatin1String(name.option) ? &name : unit;
    }
    MRVScriptMode mode;
    MRVError error;
    if (!mode.loadNamed(call.arguments.constFirst(), &error)) {
        return refuse(error);
    }
    if (unit) {
        mode.setUnits(unit->unit);
    }
    return showMode(mode, call);
}

bool isScript(const Call &call, const QString &file)
{
    return call.has("from") || file == QLatin1String("-")
        || MRVScriptFile::formatOfFile(file) != MRVScriptFile::UnknownFormat;
}

int check(const Call &call)
{
    bool clean = true;
    for (const QString &file : call.arguments) {
        if (isScript(call, file)) {
            clean = checkScript(call, file) == Done && clean;
            continue;
        }
        MRVScriptMode mode;
        MRVError error;
        QStringList faults;
        if (!mode.load(file, &error, &faults)) {
            printError(error);
            clean = false;
            continue;
        }
        faults += mode.faults();
        clean = clean && faults.isEmpty();
        for (const QString &fault : qAsConst(faults)) {
            printAnswer(call, {{QStringLiteral("path"), file}, {QStringLiteral("fault"), fault}},
                        styled(Style::Path, file) + QLatin1String(": ") + displayed(fault));
        }
    }
    return clean ? Done : Failed;
}

Candidates modeNames(const Call &)
{
    return candidates(MRVScriptMode::systemModes().keys());
}

constexpr ArgumentValues values[] = {{"MODE", modeNames}};

constexpr Verb verbs[] = {
    {"list", "[FOLDER...]", "list the factory modes, or the modes of folders", list,
     "Prints their names, units and number of elements. Files that are no modes are left out; 'mrv "
     "script check' says why."},
    {"show", "MODE", "show a mode, or write its file", show,
     "MODE is the name of a factory mode, or a mode file. Lengths in JSON are in points."},
    {"check", "FILE...", "check scripts and mode files", check,
     "Of scripts, prints notes and cut text that do not end, cues without speech, and cues and "
     "places that are one letter apart or spelled in two ways, with their lines. Of mode files, "
     "prints what could not be read as it stands, titles that are missing, used twice or lead "
     "nowhere, and elements whose paragraphs look the same. - is a script on standard input. Exit "
     "code 1: something was printed, or a file was refused."},
    {"convert", "IN", "convert a script: Fountain, HTML, Final Draft, EPUB, PDF", runScriptConvert,
     "Converts Fountain, pages and Final Draft documents into each other, into e-books, and into "
     "PDF documents as scripts are printed. - is standard input. The pages that can be read are "
     "those that this command has written."},
    {"stats", "IN...", "count scenes, pages, and what characters say", runScriptStats,
     "Counts the scenes, pages, minutes and words of scripts, and what each character says. Pages "
     "are those of a PDF document of the script, in eighths; a page is a minute. - is standard "
     "input."},
    {"scenes", "IN", "list the scenes of a script", runScriptScenes,
     "Lists the scenes with their pages, lengths in eighths of a page, and who has a cue; as JSON "
     "or "
     "CSV also whether they are interiors or exteriors, the place and the time of the day. - is "
     "standard input. Exit code 1: no scene."},
    {"number", "IN", "number the scenes that have no number", runScriptNumber,
     "Numbers the scenes without a number, and writes the script in its own format. Numbers that "
     "are there stay: new scenes after 12 are 12A, 12B, those between 12 and 12A are A12A. - is "
     "standard input."},
    {"renumber", "IN", "number all scenes from 1", runScriptRenumber,
     "Numbers all scenes from 1 on, whatever numbers they have, and writes the script in its own "
     "format. - is standard input."},
    {"compare", "BEFORE AFTER", "compare two scripts paragraph by paragraph", runScriptCompare,
     "Prints the paragraphs and the entries of the title page that are gone (-) and new (+), with "
     "their lines; those that have changed are both. Formats, line ends and empty lines that mean "
     "nothing do not count. Exit code 1: they differ."},
    {"rename", "OLD NEW IN", "rename a character", runScriptRename,
     "Renames a character in the cues and, on request, elsewhere, and writes the script in its own "
     "format. Other lines of Fountain stay as they are, and all of a Final Draft document but the "
     "characters of the name, its lists of names included. - is standard input. Exit code 1: no "
     "character has that name."},
};

constexpr Option options[] = {
    Option::choice("units", "UNITS", "in cm pt", "Show lengths in in, cm or pt.", "show"),
    Option::flag("xml", "Print the file of the mode.", "show"),
    Option::name("o output", "FILE", "Write the file of the mode.", "show"),
    Option::choice("to", "FORMAT", "fountain html fdx epub pdf",
                   "What to write: fountain, html, fdx, epub or pdf. Default: by the suffix of -o.",
                   "convert"),
    Option::choice("from", "FORMAT", "fountain html fdx",
                   "The format of the input: fountain, html or fdx. Default: by its suffix.",
                   "convert stats scenes rename check number renumber compare"),
    Option::name(
        "encoding", "NAME",
        "The encoding of Fountain that is not UTF-8, such as windows-1252. A script that is "
        "changed is written in it again.",
        "convert stats scenes rename check number renumber compare"),
    Option::name("o output", "FILE",
                 "Where to write; - is standard output. Default: beside the input, with the suffix "
                 "of the format.",
                 "convert"),
    Option::name("o output", "FILE",
                 "Where to write; may be the script itself. Default: standard output.",
                 "rename number renumber"),
    Option::flag("csv", "Print a table of comma-separated values.", "scenes"),
    {"first", Option::Integer, "N", "The number of the first scene. Default: 1.", "renumber",
     nullptr, 1, 1000000},
    Option::name(
        "mode", "MODE",
        "The mode that gives an e-book or the pages of a PDF document their look: the name "
        "of a factory mode, or a mode file. Default: the built-in US screenplay.",
        "convert stats scenes"),
    Option::choice("paper", "PAPER", "letter a4",
                   "The paper: letter or a4. Default: a4 for modes in centimetres, else letter.",
                   "convert stats scenes"),
    Option::text("pages", "FIRST-LAST",
                 "Print only these pages into a PDF document: 3-10, 3- or 3.", "convert"),
    Option::text("character", "NAME",
                 "Print into a PDF document only the pages of the scenes in which NAME speaks, "
                 "with these speeches marked.",
                 "convert"),
    Option::text("watermark", "TEXT", "Print TEXT across each page of a PDF document.", "convert"),
    Option::flag("scene-numbers",
                 "Print numbers of scenes in both margins of a PDF document: those of the script, "
                 "or else counted from 1.",
                 "convert"),
    Option::flag("continued",
                 "Print \"CONTINUED\" where a scene of a PDF document goes on on the next page.",
                 "convert"),
    Option::text("language", "TAG",
                 "The language of a page or e-book, such as en-GB. Default: that of the page that "
                 "is read.",
                 "convert"),
    Option::flag("printed",
                 "Write only what is printed: no notes, cut text, sections and synopses. E-books "
                 "never hold them.",
                 "convert"),
    Option::flag("fixed-pitch", "Set an e-book in type of one width, as scripts are typed.",
                 "convert"),
    Option::flag("dialogue", "Also in dialogue.", "rename"),
    Option::flag("action", "Also in all other text.", "rename"),
    Option::flag("json", "Print the answer as lines of JSON."),
};

} // namespace

const Command scriptCommand = {
    "script",
    "convert, count, number, compare and check scripts, rename characters",
    "Converts scripts, counts what they contain, numbers their scenes, renames their characters, "
    "compares and checks them, and shows and checks the script modes that they are written in.\n"
    "Exit code 1: nothing found, or refused.",
    "script show \"US Screenplay\" --units cm -o mine.xml\n"
    "script convert play.fountain --to epub --mode \"UK Screenplay\"\n"
    "script rename Ann Anna play.fountain --dialogue --action -o play.fountain\n"
    "script number play.fountain -o play.fountain\n"
    "script compare draft1.fountain draft2.fdx",
    verbs,
    {options},
    values,
};
