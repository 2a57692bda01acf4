#include "command.h"
#include "settingsfile.h"
#include "textsearch.h"
#include "typing.h"

#include "options/mrvoptions.h"

#include <QCommandLineParser>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <memory>

namespace {

struct Request
{
    QString verb;
    QStringList arguments; // what follows the verb
    InputOptions input;
    LookUp lookUp = LookUp::AfterEachCharacter;
    MRVOptions *options = nullptr;
    bool disabled = false;
    bool json = false;
};

struct Verb
{
    const char *name;
    int leastArguments;
    int mostArguments;
    const char *missing; // what is
    const char *options; // of its own, parted by blanks
    Access access; // to the settings file
    int (*run)(const Request &request);
};

int usageError(const QString &text)
{
    printError(QLatin1String("autoreplace: ") + text);
    return WrongUsage;
}

int refuse(const QString &text)
{
    printError(QLatin1String("autoreplace: ") + text);
    return Failed;
}

QString quoted(const QString &text)
{
    return QStringLiteral("\u201c%1\u201d").arg(displayed(text));
}

QJsonObject toJson(const MRVAutoReplace &entry)
{
    return {{QStringLiteral("match"), entry.match},
            {QStringLiteral("replacement"), entry.replacement}};
}

void printEntry(const Request &request, const MRVAutoReplace &entry)
{
    if (request.json) {
        QJsonObject object = toJson(entry);
        object.insert(QStringLiteral("enabled"), entry.enabled);
        printJson(object);
        return;
    }
    printLine(QStringLiteral("%1 %2 -> %3")
                  .arg(entry.enabled ? QStringLiteral("on ") : QStringLiteral("off"),
                       quoted(entry.match), quoted(entry.replacement)));
}

bool printReplacements(const Request &request, const MRVAutoReplaceList &list,
                       const DocumentInput &input)
{
    bool any = false;
    for (QTextBlock block = input.document->begin(); block.isValid(); block = block.next()) {
        const QString line = block.text();
        const int number = block.blockNumber() + 1;
        const QVector<TypedReplacement> replacements = typeLine(line, list, request.lookUp);
        for (const TypedReplacement &made : replacements) {
            any = true;
            if (request.json) {
                QJsonObject object = toJson(made.entry);
                object.insert(QStringLiteral("path"), input.path);
                object.insert(QStringLiteral("line"), number);
                object.insert(QStringLiteral("column"), made.start + 1);
                object.insert(QStringLiteral("length"), made.end - made.start);
                printJson(object);
                continue;
            }
            const QString place = QStringLiteral("%1:%2:").arg(QString::number(number),
                                                               QString::number(made.start + 1));
            printLine(styled(Style::Path, input.path + u':' + place) + u' '
                      + styled(Style::Removed, quoted(made.entry.match)) + QLatin1String(" -> ")
                      + styled(Style::Added, quoted(made.entry.replacement)));
        }
    }
    return any;
}

int runShow(const Request &request)
{
    const MRVAutoReplaceList list = request.options->autoReplaceList();
    bool found = false;
    bool refused = false;
    for (const QString &path : request.arguments) {
        showProgress(QStringLiteral("Reading %1").arg(path));
        DocumentInput input;
        QString error;
        if (!readDocument(path, request.input, &input, &error)) {
            printError(error); // the other inputs can still be shown
            refused = true;
            continue;
        }
        showProgress(QString());
        found = printReplacements(request, list, input) || found;
    }
    return found && !refused ? Done : Failed;
}

int runList(const Request &request)
{
    const MRVAutoReplaceList list = request.options->autoReplaceList();
    for (const MRVAutoReplace &entry : list) {
        printEntry(request, entry);
    }
    return Done;
}

/// The entries that have the match and, if it was given, the replacement.
QVector<int> entriesOf(const Request &request, const MRVAutoReplaceList &list)
{
    QVector<int> entries;
    for (int i = 0; i < list.size(); ++i) {
        const bool fits =
            request.arguments.size() < 2 || list.at(i).replacement == request.arguments.at(1);
        if (list.at(i).match == request.arguments.at(0) && fits) {
            entries.append(i);
        }
    }
    return entries;
}

int save(const Request &request, const MRVAutoReplaceList &list, const MRVAutoReplaceList &changed)
{
    QString error;
    request.options->setAutoReplaceList(list);
    if (!request.options->saveNow(&error)) {
        return refuse(error);
    }
    for (const MRVAutoReplace &entry : changed) {
        printEntry(request, entry);
    }
    return Done;
}

// Of several enabled entries for a match only the first applies.
bool isEnabled(const MRVAutoReplaceList &list, const QString &match)
{
    return std::any_of(list.cbegin(), list.cend(), [&](const MRVAutoReplace &entry) {
        return entry.enabled && entry.match == match;
    });
}

QString enabledAlready(const QString &match)
{
    return QStringLiteral("an entry for %1 is enabled already; disable or remove it first")
        .arg(quoted(match));
}

int runAdd(const Request &request)
{
    const MRVAutoReplace entry{!request.disabled, request.arguments.at(0), request.arguments.at(1)};
    if (entry.match.contains(u'\n') || entry.match.contains(QChar::ParagraphSeparator)) {
        return usageError(QStringLiteral("a match cannot go over the end of a paragraph"));
    }
    MRVAutoReplaceList list = request.options->autoReplaceList();
    if (list.containsReplacement(entry.match, entry.replacement)) {
        return refuse(
            QStringLiteral("%1 -> %2 is in the list already; it can be enabled or disabled")
                .arg(quoted(entry.match), quoted(entry.replacement)));
    }
    if (entry.enabled && isEnabled(list, entry.match)) {
        return refuse(enabledAlready(entry.match));
    }
    list.append(entry);
    return save(request, list, {entry});
}

bool isOrdinal(const MRVAutoReplace &entry)
{
    return MRVAutoReplace::ordinals().containsReplacement(entry.match, entry.replacement);
}

int runRemove(const Request &request)
{
    MRVAutoReplaceList list = request.options->autoReplaceList();
    const QVector<int> entries = entriesOf(request, list);
    if (entries.isEmpty()) {
        return refuse(
            QStringLiteral("no such entry: %1").arg(quoted(request.arguments.join(u' '))));
    }
    MRVAutoReplaceList removed;
    for (int i = entries.size() - 1; i >= 0; --i) {
        if (isOrdinal(list.at(entries.at(i)))) {
            return refuse(QStringLiteral("ordinals stay in each list; disable %1 instead")
                              .arg(quoted(request.arguments.at(0))));
        }
        removed.prepend(list.takeAt(entries.at(i)));
    }
    return save(request, list, removed);
}

int setEnabled(const Request &request, bool enabled)
{
    MRVAutoReplaceList list = request.options->autoReplaceList();
    const QVector<int> entries = entriesOf(request, list);
    if (entries.isEmpty()) {
        return refuse(
            QStringLiteral("no such entry: %1").arg(quoted(request.arguments.join(u' '))));
    }
    if (enabled && entries.size() > 1) {
        return refuse(
            QStringLiteral("%1 entries have the match %2, and only one can apply; add its "
                           "replacement")
                .arg(QString::number(entries.size()), quoted(request.arguments.at(0))));
    }
    if (enabled && !list.at(entries.constFirst()).enabled
        && isEnabled(list, request.arguments.at(0))) {
        return refuse(enabledAlready(request.arguments.at(0)));
    }
    MRVAutoReplaceList changed;
    for (const int i : entries) {
        list[i].enabled = enabled;
        changed.append(list.at(i));
    }
    return save(request, list, changed);
}

int runEnable(const Request &request)
{
    return setEnabled(request, true);
}

int runDisable(const Request &request)
{
    return setEnabled(request, false);
}

int runReset(const Request &request)
{
    const MRVAutoReplaceList list = MRVAutoReplaceList::defaultReplacements();
    return save(request, list, list);
}

constexpr int AnyNumber = 1 << 30;

constexpr Verb verbs[] = {
    {"show", 1, AnyNumber, "an input", "from encoding word-ends", Access::Read, runShow},
    {"list", 0, 0, "", "", Access::Read, runList},
    {"add", 2, 2, "a match or its replacement", "disabled", Access::Create, runAdd},
    {"remove", 1, 2, "a match", "", Access::Create, runRemove},
    {"enable", 1, 2, "a match", "", Access::Create, runEnable},
    {"disable", 1, 2, "a match", "", Access::Create, runDisable},
    {"reset", 0, 0, "", "", Access::Create, runReset},
};

void addOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(QStringLiteral(
        "Shows what is replaced while a text is typed, and edits the list of what is.\n\n"
        "  show IN...                    type manuscripts (HTML, Markdown or plain text; - is\n"
        "                                standard input), and print each replacement as\n"
        "                                PATH:LINE:COLUMN: MATCH -> REPLACEMENT\n"
        "  list                          print the entries in their order, on or off\n"
        "  add MATCH REPLACEMENT         append an entry\n"
        "  remove MATCH [REPLACEMENT]    remove entries\n"
        "  enable MATCH [REPLACEMENT]    switch an entry on\n"
        "  disable MATCH [REPLACEMENT]   switch entries off\n"
        "  reset                         go back to the default list\n\n"
        "The text is typed character by character. After each one the longest match that ends\n"
        "before the caret is replaced at once, and typing goes on behind the replacement. A line\n"
        "is a paragraph; columns count UTF-16 units from 1 in the text as it was given. Editing\n"
        "prints the entries that changed. A match or replacement that looks like an option goes\n"
        "behind --, as in: mrv autoreplace add --settings FILE -- --x y\n"
        "Exit code 1: nothing is replaced, no such entry, or a stored list that is damaged."));
    parser->addPositionalArgument(QStringLiteral("VERB"), QStringLiteral("What to do."));
    addInputOptions(parser);
    parser->addOption(
        {QStringLiteral("word-ends"),
         QStringLiteral("Replace only at the end of a word: when a blank is typed, or "
                        "a line ends.")});
    parser->addOption({QStringLiteral("disabled"), QStringLiteral("Add the entry switched off.")});
    parser->addOption({QStringLiteral("settings"),
                       QStringLiteral("Work on the list in FILE, not on the user's own."),
                       QStringLiteral("FILE")});
    parser->addOption({QStringLiteral("json"),
                       QStringLiteral("Print each replacement or entry as a line of JSON.")});
}

// Puts the texts behind "--": a match such as "-->" is no option.
QStringList sorted(const QStringList &arguments)
{
    static const QRegularExpression option(QStringLiteral("^(--[a-z]|-h$)"));
    static const QRegularExpression takesValue(QStringLiteral("^--(settings|from|encoding)$"));
    QStringList options{arguments.constFirst()};
    QStringList texts;
    for (int i = 1; i < arguments.size(); ++i) {
        if (arguments.at(i) == QLatin1String("--")) {
            texts += arguments.mid(i + 1);
            break;
        }
        const bool isOption = option.match(arguments.at(i)).hasMatch();
        (isOption ? options : texts).append(arguments.at(i));
        if (takesValue.match(arguments.at(i)).hasMatch() && i + 1 < arguments.size()) {
            options.append(arguments.at(++i));
        }
    }
    const bool edits =
        QStringLiteral("add remove enable disable").split(u' ').contains(texts.value(0));
    return edits ? options + QStringList{QStringLiteral("--")} + texts : arguments;
}

// Empty where the arguments are right.
QString objectionTo(const QCommandLineParser &parser, const Verb &verb,
                    const QStringList &arguments)
{
    const QStringList known = QString::fromLatin1(verb.options).split(u' ')
        + QStringList{QStringLiteral("settings"), QStringLiteral("json")};
    const QStringList given = parser.optionNames();
    for (const QString &option : given) {
        if (!known.contains(option)) {
            return QStringLiteral("%1 takes no option '%2'").arg(QLatin1String(verb.name), option);
        }
    }
    if (arguments.size() < verb.leastArguments) {
        return QStringLiteral("%1 is missing").arg(QLatin1String(verb.missing));
    }
    if (arguments.size() > verb.mostArguments) {
        return QStringLiteral("'%1' is one argument too many")
            .arg(arguments.at(verb.mostArguments));
    }
    if (verb.run != runShow && arguments.value(0, QStringLiteral("-")).isEmpty()) {
        return QStringLiteral("the match is empty");
    }
    return QString();
}

// The options give what could be read, or the default, in place of a list that cannot be read
// whole.
QString damageOf(const MRVOptions &options)
{
    const QString key = options.keyText(MRVOptions::SubstitutionList);
    const QByteArray stored = options.QSettings::value(key).toByteArray();
    QString reason;
    MRVAutoReplaceList list;
    if (!stored.isEmpty()) {
        list.fromByteArray(stored, &reason);
    }
    return reason.isEmpty() ? QString()
                            : QStringLiteral("the list in %1: %2").arg(options.fileName(), reason);
}

int runVerb(const Verb &verb, const QString &settings, Request *request)
{
    QString error;
    const OpenedOptions opened = openOptions(settings, verb.access, &error);
    if (!opened.options) {
        return refuse(error);
    }
    request->options = opened.options.get();
    const QString damage = verb.run == runReset ? QString() : damageOf(*opened.options);
    if (damage.isEmpty()) {
        return verb.run(*request);
    }
    // What is only shown may be of use still; a change would make the loss last.
    refuse(verb.access == Access::Read ? damage : damage + QLatin1String("; it can be reset"));
    if (verb.access == Access::Read) {
        verb.run(*request);
    }
    return Failed;
}

} // namespace

int runAutoReplace(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(&parser);
    const int code = parseArguments(
        &parser, QStringLiteral("autoreplace VERB [ARGUMENTS] [OPTIONS]"), sorted(arguments),
        QStringLiteral(" Texts that look like options go behind '--'."));
    if (code >= 0) {
        return code;
    }
    Request request;
    request.arguments = parser.positionalArguments();
    if (request.arguments.isEmpty()) {
        return usageError(QStringLiteral("a verb is missing, such as show or list"));
    }
    request.verb = request.arguments.takeFirst();
    request.disabled = parser.isSet(QStringLiteral("disabled"));
    request.json = parser.isSet(QStringLiteral("json"));
    if (parser.isSet(QStringLiteral("word-ends"))) {
        request.lookUp = LookUp::AtWordEnds;
    }
    for (const Verb &verb : verbs) {
        if (request.verb != QLatin1String(verb.name)) {
            continue;
        }
        QString error = objectionTo(parser, verb, request.arguments);
        if (!error.isEmpty()
            || (verb.run == runShow
                && !readInputOptions(parser, request.arguments, &request.input, &error))) {
            return usageError(error);
        }
        return runVerb(verb, parser.value(QStringLiteral("settings")), &request);
    }
    return usageError(QStringLiteral("unknown verb '%1'").arg(request.verb));
}
