#include "scriptcommand.h"
#include "command.h"
#include "scriptmode/mrvscriptmode.h"
#include "suggestion.h"
#include "textformat/mrvtextformat.h"
#include "textsearch.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <iterator>
#include <utility>

namespace {

int runList(const QStringList &arguments);
int runShow(const QStringList &arguments);
int runCheck(const QStringList &arguments);

constexpr OldCommand subcommands[] = {
    {"list", "list the factory modes, or those of a folder", runList},
    {"show", "show a mode, or write its file", runShow},
    {"check", "check mode files", runCheck},
    {"convert", "convert scripts: Fountain, HTML, Final Draft, EPUB", runScriptConvert},
    {"stats", "count scenes, pages, and what characters say", runScriptStats},
    {"rename", "rename a character", runScriptRename},
};

QString usage()
{
    QString text =
        QStringLiteral("Usage: mrv script SUBCOMMAND [OPTIONS] [ARGUMENTS]\n\n"
                       "Script modes and the scripts written in them.\n\nSubcommands:\n");
    for (const OldCommand &command : subcommands) {
        text += QStringLiteral("  %1  %2\n")
                    .arg(QLatin1String(command.name), -10)
                    .arg(QLatin1String(command.summary));
    }
    return text + QStringLiteral("\n'mrv script SUBCOMMAND --help' tells more.");
}

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

int runList(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Lists the factory modes, or the modes of folders: their names, units and\n"
        "number of elements. Files that are no modes are left out; 'mrv script check'\n"
        "tells why. Exit code 1: there is none, or none in one of the folders."));
    parser.addPositionalArgument(QStringLiteral("FOLDER"), QStringLiteral("Folders of mode files."),
                                 QStringLiteral("[FOLDER...]"));
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print each as a line of JSON.")});
    const int code =
        parseArguments(&parser, QStringLiteral("script list [FOLDER...] [--json]"), arguments);
    if (code >= 0) {
        return code;
    }
    QMap<QString, MRVScriptMode> modes;
    bool allFound = true;
    const QStringList folders = parser.positionalArguments();
    if (folders.isEmpty()) {
        modes = MRVScriptMode::systemModes();
    }
    for (const QString &folder : folders) {
        if (!QFileInfo(folder).isDir()) {
            printError(QStringLiteral("script: '%1' is no folder").arg(folder));
            allFound = false;
            continue;
        }
        const QMap<QString, MRVScriptMode> some = mrv_loadPath(folder);
        if (some.isEmpty()) {
            printError(QStringLiteral("script: no file in '%1' is a script mode").arg(folder));
            allFound = false;
        }
        for (auto it = some.cbegin(); it != some.cend(); ++it) {
            modes.insert(it.key(), it.value());
        }
    }
    for (const MRVScriptMode &mode : qAsConst(modes)) {
        const int count = mode.elements().size();
        const QString units = MRVUnit::shortSuffix(mode.units());
        if (parser.isSet(QStringLiteral("json"))) {
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

int showMode(const MRVScriptMode &mode, const QCommandLineParser &parser)
{
    if (parser.isSet(QStringLiteral("xml")) || parser.isSet(QStringLiteral("output"))) {
        const QString path = parser.value(QStringLiteral("output"));
        QString error;
        const bool ok =
            path.isEmpty() ? writeStandardOutput(mode.toXml(), &error) : mode.save(path, &error);
        if (!ok) {
            printError(error);
        }
        return ok ? Done : Failed;
    }
    const QList<MRVScriptElement> elements = mode.elements();
    if (parser.isSet(QStringLiteral("json"))) {
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

int runShow(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Shows a mode, element by element, or writes its file: a factory mode by its\n"
        "name, or a mode file. Lengths in JSON are in points."));
    parser.addPositionalArgument(QStringLiteral("MODE"),
                                 QStringLiteral("The mode's name, or the path of its file."));
    parser.addOption({QStringLiteral("units"), QStringLiteral("Show lengths in: in, cm, pt."),
                      QStringLiteral("UNITS")});
    parser.addOption({QStringLiteral("xml"), QStringLiteral("Print the mode's file.")});
    parser.addOption({{QStringLiteral("o"), QStringLiteral("output")},
                      QStringLiteral("Write the mode's file."),
                      QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print it as JSON.")});
    const int code =
        parseArguments(&parser, QStringLiteral("script show MODE [OPTIONS]"), arguments);
    if (code >= 0) {
        return code;
    }
    const QStringList modes = parser.positionalArguments();
    if (modes.size() != 1) {
        return scriptUsageError(QStringLiteral("show takes one mode"));
    }
    const QString units = parser.value(QStringLiteral("units"));
    const UnitName *unit = nullptr;
    for (const UnitName &name : unitNames) {
        unit = units == QLatin1String(name.option) ? &name : unit;
    }
    if (parser.isSet(QStringLiteral("units")) && !unit) {
        return scriptUsageError(
            QStringLiteral("unknown units '%1'; known are in, cm, pt").arg(units));
    }
    MRVScriptMode mode;
    QString error;
    if (!findScriptMode(modes.constFirst(), &mode, &error)) {
        printError(error);
        return Failed;
    }
    if (unit) {
        mode.setUnits(unit->unit);
    }
    return showMode(mode, parser);
}

int runCheck(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Checks mode files, and prints what could not be read as it stands, titles that are\n"
        "missing, used twice or lead nowhere, and elements whose paragraphs cannot be told\n"
        "apart. Exit code 1: there is something to print, or a file was refused."));
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("The mode files."),
                                 QStringLiteral("FILE..."));
    parser.addOption(
        {QStringLiteral("json"), QStringLiteral("Print each fault as a line of JSON.")});
    const int code =
        parseArguments(&parser, QStringLiteral("script check FILE... [--json]"), arguments);
    if (code >= 0) {
        return code;
    }
    const QStringList files = parser.positionalArguments();
    if (files.isEmpty()) {
        return scriptUsageError(QStringLiteral("check takes at least one file"));
    }
    bool clean = true;
    for (const QString &file : files) {
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
            if (parser.isSet(QStringLiteral("json"))) {
                printJson({{QStringLiteral("path"), file}, {QStringLiteral("fault"), fault}});
            } else {
                printLine(styled(Style::Path, file) + QLatin1String(": ") + displayed(fault));
            }
        }
    }
    return clean ? Done : Failed;
}

} // namespace

int scriptUsageError(const QString &text)
{
    printError(QLatin1String("script: ") + text);
    return WrongUsage;
}

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
        *error = QStringLiteral("script: '%1' is neither a factory mode nor a file%2")
                     .arg(nameOrPath, didYouMean(nameOrPath, factory.keys()));
        return false;
    }
    return mode->load(nameOrPath, error);
}

int runScript(const QStringList &arguments)
{
    const QString name = arguments.value(1);
    if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
        printLine(usage());
        return Done;
    }
    for (const OldCommand &command : subcommands) {
        if (name == QLatin1String(command.name)) {
            return command.run(QStringList(QLatin1String("script ") + name) + arguments.mid(2));
        }
    }
    return scriptUsageError(
        name.isEmpty()
            ? QStringLiteral("a subcommand is missing; try 'mrv script --help'")
            : QStringLiteral("unknown subcommand '%1'; try 'mrv script --help'").arg(name));
}
