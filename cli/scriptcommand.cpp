#include "scriptcommand.h"
#include "commandline.h"
#include "scriptmode/mrvscriptmode.h"
#include "suggestion.h"
#include "textformat/mrvtextformat.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <iterator>
#include <utility>

namespace {

struct UnitName
{
    const char *option;
    MRVUnit::Unit unit;
};
constexpr UnitName unitNames[] = {{"in", MRVUnit::Inch},
                                  {"cm", MRVUnit::Centimeter},
                                  {"pt", MRVUnit::Point}};

// What Return and Tab go to.
struct ActionName
{
    MRVScriptElement::Action action;
    const char *shown;
    const char *key;
};
constexpr ActionName actionNames[] = {
    {MRVScriptElement::ReturnAction, "Return", "return"},
    {MRVScriptElement::TabOnEmptyAction, "Tab in an empty line", "tabOnEmpty"},
    {MRVScriptElement::TabAfterTypingAction, "Tab", "tabAfterTyping"}};

struct LengthName
{
    int property;
    const char *shown;
    const char *key;
};
constexpr LengthName lengthNames[] = {{MRVTextFormat::BlockLeftIndent, "left indent", "left"},
                                      {MRVTextFormat::BlockRightIndent, "right indent", "right"},
                                      {QTextFormat::TextIndent, "first line", "firstLine"},
                                      {QTextFormat::BlockTopMargin, "above", "above"},
                                      {QTextFormat::BlockBottomMargin, "below", "below"}};

struct FlagName
{
    MRVScriptElement::Flag flag;
    const char *shown;
    const char *key;
};
constexpr FlagName textFlags[] = {
    {MRVScriptElement::DoubleUnderline, "underlined twice", "doubleUnderline"},
    {MRVScriptElement::UnderlineByWord, "blanks not underlined", "underlineByWord"},
    {MRVScriptElement::AllCaps, "capitals", "capitals"},
    {MRVScriptElement::Parenthetical, "in parentheses", "parentheses"}};
constexpr FlagName behaviorFlags[] = {
    {MRVScriptElement::KeepWithNext, "stays with the next", "keepWithNext"},
    {MRVScriptElement::AllowTabs, "allows tabs", "allowTabs"},
    {MRVScriptElement::AppendProjectList, "offers the project\u2019s phrases", "offersPhrases"},
    {MRVScriptElement::AddToProjectList, "collects phrases", "collectsPhrases"}};

struct DelimiterName
{
    QString (MRVScriptElement::*text)() const;
    const char *shown;
    const char *key;
};
constexpr DelimiterName delimiterNames[] = {
    {&MRVScriptElement::styleDelimiter, "capitals up to", "styleDelimiter"},
    {&MRVScriptElement::phraseStartDelimiter, "phrases begin behind", "phraseStart"},
    {&MRVScriptElement::phraseEndDelimiter, "phrases end before", "phraseEnd"}};

bool insertsText(const MRVScriptElement &element, MRVScriptElement::Action action)
{
    return action == MRVScriptElement::TabAfterTypingAction
        && element.tabBehavior() == MRVScriptElement::TabInsertsText;
}

const char *alignmentWord(const MRVScriptElement &element)
{
    const Qt::Alignment alignment = element.blockFormat().alignment();
    return alignment & Qt::AlignHCenter ? "to the centre"
        : alignment & Qt::AlignRight    ? "right"
        : alignment & Qt::AlignJustify  ? "to both sides"
                                        : "left";
}

// Of what is done to a phrase once it is accepted; empty for nothing.
QString completionWord(const MRVScriptElement &element)
{
    switch (element.completeBehavior()) {
    case MRVScriptElement::CompleteToNextLine:
        return QStringLiteral("next line");
    case MRVScriptElement::CompleteInsertsTab:
        return QStringLiteral("tab");
    case MRVScriptElement::CompleteDefault:
        break;
    }
    return QString();
}

bool hasFixedHeight(const QTextBlockFormat &format)
{
    return format.doubleProperty(MRVTextFormat::BlockBaseSpacing) == 0.0
        && format.doubleProperty(MRVTextFormat::BlockSpacing) != 0.0;
}

double lineSpacing(const QTextBlockFormat &format)
{
    double multiple = 1.0;
    MRVTextFormat::spacingType(format, &multiple);
    return multiple > 0.0 ? multiple : 1.0;
}

// With what would not be seen written as a program would.
QString quoted(QString text)
{
    text.replace(u'\t', QLatin1String("\\t")).replace(u'\n', QLatin1String("\\n"));
    return QStringLiteral("\u201c%1\u201d").arg(text);
}

QStringList flagWords(const MRVScriptElement &element, const FlagName *begin, const FlagName *end)
{
    QStringList words;
    for (const FlagName *name = begin; name != end; ++name) {
        if (element.hasFlag(name->flag)) {
            words.append(QString::fromUtf8(name->shown));
        }
    }
    return words;
}

QStringList fontWords(const MRVScriptElement &element)
{
    const QTextCharFormat format = element.charFormat();
    QStringList words;
    if (!format.fontFamily().isEmpty()) {
        words.append(format.fontFamily());
    }
    if (format.fontPointSize() > 0.0) {
        words.append(MRVUnit::toText(MRVUnit::Point, format.fontPointSize()));
    }
    const std::pair<bool, const char *> styles[] = {
        {format.fontWeight() > QFont::Normal, "bold"},
        {format.fontItalic(), "italic"},
        {format.fontUnderline() && !element.hasFlag(MRVScriptElement::DoubleUnderline),
         "underlined"}};
    for (const auto &style : styles) {
        if (style.first) {
            words.append(QLatin1String(style.second));
        }
    }
    if (format.foreground().style() == Qt::SolidPattern) {
        words.append(format.foreground().color().name());
    }
    return words + flagWords(element, std::begin(textFlags), std::end(textFlags));
}

// In as few digits as tell it from the next twentieth of a point.
QString lengthText(const MRVScriptMode &mode, double points)
{
    const double exact = mode.fromPoints(points);
    double shown = exact;
    for (int decimals = 6; decimals >= 0; --decimals) {
        const double shorter = QString::number(exact, 'f', decimals).toDouble();
        if (mode.toPoints(shorter) == mode.toPoints(exact)) {
            shown = shorter;
        }
    }
    return MRVUnit::toText(mode.units(), shown);
}

QStringList layoutWords(const MRVScriptElement &element, const MRVScriptMode &mode)
{
    const QTextBlockFormat format = element.blockFormat();
    const auto length = [&](double points) { return lengthText(mode, points); };
    QStringList words{QLatin1String("aligned ") + QLatin1String(alignmentWord(element))};
    for (const LengthName &name : lengthNames) {
        const double points = format.doubleProperty(name.property);
        if (points != 0.0) {
            words.append(QLatin1String(name.shown) + u' ' + length(points));
        }
    }
    if (hasFixedHeight(format)) {
        const double points = format.doubleProperty(MRVTextFormat::BlockSpacing);
        words.append(QLatin1String(points < 0.0 ? "lines exactly " : "lines at least ")
                     + length(qAbs(points)));
    } else if (lineSpacing(format) != 1.0) {
        words.append(QStringLiteral("line spacing %1").arg(lineSpacing(format)));
    }
    const QList<QTextOption::Tab> tabs = format.tabPositions();
    for (const QTextOption::Tab &tab : tabs) {
        words.append(QLatin1String("tab at ") + length(tab.position));
    }
    return words;
}

QStringList behaviorWords(const MRVScriptElement &element)
{
    QStringList words = flagWords(element, std::begin(behaviorFlags), std::end(behaviorFlags));
    if (!completionWord(element).isEmpty()) {
        words.append(QStringLiteral("a phrase is followed by a ") + completionWord(element));
    }
    for (const DelimiterName &name : delimiterNames) {
        const QString text = (element.*name.text)();
        if (!text.isEmpty()) {
            words.append(QLatin1String(name.shown) + u' ' + quoted(text));
        }
    }
    return words;
}

void printElement(const MRVScriptElement &element, const MRVScriptMode &mode)
{
    const QString shortcut = element.shortcut();
    printLine(QString());
    printLine(
        styled(Style::Path, displayed(element.title()))
        + (shortcut.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(displayed(shortcut))));
    for (const QStringList &words :
         {fontWords(element), layoutWords(element, mode), behaviorWords(element)}) {
        if (!words.isEmpty()) {
            printLine(QLatin1String("  ") + displayed(words.join(QLatin1String(", "))));
        }
    }
    for (const ActionName &name : actionNames) {
        const QString next = element.actionElement(name.action);
        const QString text = insertsText(element, name.action)
            ? QLatin1String("inserts ") + quoted(element.actionText(name.action))
            : next;
        if (!text.isEmpty()) {
            printLine(QStringLiteral("  %1: %2").arg(QLatin1String(name.shown), displayed(text)));
        }
    }
    QStringList completions;
    const QList<MRVCompletion> offered = element.completions().completions();
    for (const MRVCompletion &completion : offered) {
        completions.append(completion.text.simplified());
    }
    if (!completions.isEmpty()) {
        printLine(QLatin1String("  offers ") + displayed(completions.join(QLatin1String(", "))));
    }
}

QJsonObject toJson(const MRVScriptElement &element)
{
    const QTextCharFormat font = element.charFormat();
    const QTextBlockFormat format = element.blockFormat();
    const QBrush brush = font.foreground();
    QJsonObject object{
        {QStringLiteral("title"), element.title()},
        {QStringLiteral("shortcut"), element.shortcut()},
        {QStringLiteral("font"), font.fontFamily()},
        {QStringLiteral("size"), font.fontPointSize()},
        {QStringLiteral("bold"), font.fontWeight() > QFont::Normal},
        {QStringLiteral("italic"), font.fontItalic()},
        {QStringLiteral("underline"), font.fontUnderline()},
        {QStringLiteral("color"),
         brush.style() == Qt::SolidPattern ? brush.color().name() : QString()},
        {QStringLiteral("alignment"), QLatin1String(alignmentWord(element))},
        {QStringLiteral("lineSpacing"), hasFixedHeight(format) ? 1.0 : lineSpacing(format)},
        {QStringLiteral("lineHeight"),
         hasFixedHeight(format) ? format.doubleProperty(MRVTextFormat::BlockSpacing) : 0.0},
        {QStringLiteral("afterPhrase"), completionWord(element)},
        {QStringLiteral("tabInserts"),
         insertsText(element, MRVScriptElement::TabAfterTypingAction)
             ? element.actionText(MRVScriptElement::TabAfterTypingAction)
             : QString()}};
    for (const FlagName &name : textFlags) {
        object.insert(QLatin1String(name.key), element.hasFlag(name.flag));
    }
    for (const FlagName &name : behaviorFlags) {
        object.insert(QLatin1String(name.key), element.hasFlag(name.flag));
    }
    for (const LengthName &name : lengthNames) {
        object.insert(QLatin1String(name.key), format.doubleProperty(name.property));
    }
    for (const DelimiterName &name : delimiterNames) {
        object.insert(QLatin1String(name.key), (element.*name.text)());
    }
    for (const ActionName &name : actionNames) {
        object.insert(QLatin1String(name.key),
                      insertsText(element, name.action) ? QString()
                                                        : element.actionElement(name.action));
    }
    QJsonArray tabs;
    const QList<QTextOption::Tab> stops = format.tabPositions();
    for (const QTextOption::Tab &stop : stops) {
        tabs.append(stop.position);
    }
    object.insert(QStringLiteral("tabs"), tabs);
    QJsonArray completions;
    const QList<MRVCompletion> offered = element.completions().completions();
    for (const MRVCompletion &completion : offered) {
        completions.append(completion.text);
    }
    object.insert(QStringLiteral("completions"), completions);
    return object;
}

int list(const Call &call)
{
    QMap<QString, MRVScriptMode> modes;
    bool allFound = true;
    if (call.arguments.isEmpty()) {
        modes = MRVScriptMode::systemModes();
    }
    for (const QString &folder : call.arguments) {
        if (!QFileInfo(folder).isDir()) {
            printError(QStringLiteral("'%1' is no folder").arg(folder));
            allFound = false;
            continue;
        }
        const QMap<QString, MRVScriptMode> some = mrv_loadPath(folder);
        if (some.isEmpty()) {
            printError(QStringLiteral("no file in '%1' is a script mode").arg(folder));
            allFound = false;
        }
        for (auto it = some.cbegin(); it != some.cend(); ++it) {
            modes.insert(it.key(), it.value());
        }
    }
    for (const MRVScriptMode &mode : qAsConst(modes)) {
        const int count = mode.elements().size();
        const QString units = MRVUnit::shortSuffix(mode.units());
        if (call.has("json")) {
            printJson({{QStringLiteral("name"), mode.name()},
                       {QStringLiteral("units"), units},
                       {QStringLiteral("elements"), count}});
        } else {
            printLine(QStringLiteral("%1 (%2, %3 elements)")
                          .arg(displayed(mode.name()), units, QString::number(count)));
        }
    }
    return modes.isEmpty() || !allFound ? Failed : Done;
}

int showMode(const MRVScriptMode &mode, const Call &call)
{
    if (call.has("xml") || call.has("output")) {
        const QString path = call.value("output");
        QString error;
        const bool ok =
            path.isEmpty() ? writeStandardOutput(mode.toXml(), &error) : mode.save(path, &error);
        return ok ? int(Done) : refuse(error);
    }
    const QList<MRVScriptElement> elements = mode.elements();
    if (call.has("json")) {
        QJsonArray objects;
        for (const MRVScriptElement &element : elements) {
            objects.append(toJson(element));
        }
        printJson({{QStringLiteral("name"), mode.name()},
                   {QStringLiteral("units"), MRVUnit::shortSuffix(mode.units())},
                   {QStringLiteral("elements"), objects}});
        return Done;
    }
    printLine(displayed(mode.name()));
    for (const MRVScriptElement &element : elements) {
        printElement(element, mode);
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
    QString error;
    if (!findScriptMode(call.arguments.constFirst(), &mode, &error)) {
        return refuse(error);
    }
    if (unit) {
        mode.setUnits(unit->unit);
    }
    return showMode(mode, call);
}

int check(const Call &call)
{
    bool clean = true;
    for (const QString &file : call.arguments) {
        MRVScriptMode mode;
        QString error;
        QStringList faults;
        if (!mode.load(file, &error, &faults)) {
            printError(error);
            clean = false;
            continue;
        }
        faults += mode.faults();
        clean = clean && faults.isEmpty();
        for (const QString &fault : qAsConst(faults)) {
            if (call.has("json")) {
                printJson({{QStringLiteral("path"), file}, {QStringLiteral("fault"), fault}});
            } else {
                printLine(styled(Style::Path, file) + QLatin1String(": ") + displayed(fault));
            }
        }
    }
    return clean ? Done : Failed;
}

constexpr Verb verbs[] = {
    {"list", "[FOLDER...]", "list the factory modes, or the modes of folders", list,
     "Prints their names, units and number of elements. Files that are no modes are left out; 'mrv "
     "script check' says why."},
    {"show", "MODE", "show a mode, or write its file", show,
     "MODE is the name of a factory mode, or a mode file. Lengths in JSON are in points."},
    {"check", "FILE...", "check mode files", check,
     "Prints what could not be read as it stands, titles that are missing, used twice or lead "
     "nowhere, and elements whose paragraphs look the same. Exit code 1: something was printed, or "
     "a file was refused."},
    {"convert", "IN", "convert a script: Fountain, HTML, Final Draft, EPUB", runScriptConvert,
     "Converts Fountain, pages and Final Draft documents into each other, and into e-books. - is "
     "standard input. The pages that can be read are those that this command has written."},
    {"stats", "IN...", "count scenes, pages, and what characters say", runScriptStats,
     "Counts the scenes, pages, minutes and words of scripts, and what each character says. A page "
     "is 54 lines of Courier 12, in eighths; a page is a minute. - is standard input."},
    {"rename", "OLD NEW IN", "rename a character", runScriptRename,
     "Renames a character in the cues and, on request, elsewhere, and writes the script in its own "
     "format; other lines of Fountain stay as they are. - is standard input. Exit code 1: no "
     "character has that name."},
};

constexpr Option options[] = {
    Option::choice("units", "UNITS", "in cm pt", "Show lengths in in, cm or pt.", "show"),
    Option::flag("xml", "Print the file of the mode.", "show"),
    Option::name("o output", "FILE", "Write the file of the mode.", "show"),
    Option::choice("to", "FORMAT", "fountain html fdx epub",
                   "What to write: fountain, html, fdx or epub. Default: by the suffix of -o.",
                   "convert"),
    Option::choice("from", "FORMAT", "fountain html fdx",
                   "The format of the input: fountain, html or fdx. Default: by its suffix.",
                   "convert stats rename"),
    Option::name("o output", "FILE",
                 "Where to write; - is standard output. Default: beside the input, with the suffix "
                 "of the format.",
                 "convert"),
    Option::name("o output", "FILE",
                 "Where to write; may be the script itself. Default: standard output.", "rename"),
    Option::name("mode", "MODE",
                 "The mode that gives an e-book its look: the name of a factory mode, or a mode "
                 "file. Default: the built-in US screenplay.",
                 "convert"),
    Option::text("language", "TAG",
                 "The language of a page or e-book, such as en-GB. Default: that of the page that "
                 "is read.",
                 "convert"),
    Option::flag("dialogue", "Also in dialogue.", "rename"),
    Option::flag("action", "Also in all other text.", "rename"),
    Option::flag("json", "Print the answer as lines of JSON."),
};

} // namespace

bool findScriptMode(const QString &nameOrPath, MRVScriptMode *mode, QString *error)
{
    const QMap<QString, MRVScriptMode> factory = MRVScriptMode::systemModes();
    for (const MRVScriptMode &candidate : factory) {
        if (candidate.name().compare(nameOrPath, Qt::CaseInsensitive) == 0) {
            *mode = candidate;
            return true;
        }
    }
    if (!QFileInfo::exists(nameOrPath)) {
        *error = QStringLiteral("'%1' is neither a factory mode nor a file%2")
                     .arg(nameOrPath, didYouMean(nameOrPath, factory.keys()));
        return false;
    }
    return mode->load(nameOrPath, error);
}

const Command scriptCommand = {
    "script",
    "convert and count scripts, rename characters, check script modes",
    "Converts scripts, counts what they contain, renames their characters, and shows and checks "
    "the "
    "script modes that they are written in.\n"
    "Exit code 1: nothing found, or refused.",
    "script show \"US Screenplay\" --units cm -o mine.xml\n"
    "script convert play.fountain --to epub --mode \"UK Screenplay\"\n"
    "script rename Ann Anna play.fountain --dialogue --action -o play.fountain",
    verbs,
    {options},
};
