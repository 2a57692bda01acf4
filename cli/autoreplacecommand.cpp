#include "inputs.h"
#include "settingsfile.h"

#include "autoreplace/mrvtyping.h"
#include "options/mrvoptions.h"

#include <QJsonObject>
#include <QTextBlock>
#include <QTextDocument>

namespace {

QString quoted(const QString &text)
{
    return QStringLiteral("\u201c%1\u201d").arg(displayed(text));
}

QJsonObject toJson(const MRVAutoReplace &entry)
{
    return {{QStringLiteral("match"), entry.match},
            {QStringLiteral("replacement"), entry.replacement}};
}

void printEntry(const Call &call, const MRVAutoReplace &entry)
{
    if (call.json()) {
        QJsonObject object = toJson(entry);
        object.insert(QStringLiteral("enabled"), entry.enabled);
        printJson(object);
        return;
    }
    printLine(QStringLiteral("%1 %2 -> %3")
                  .arg(entry.enabled ? QStringLiteral("on ") : QStringLiteral("off"),
                       quoted(entry.match), quoted(entry.replacement)));
}

bool printReplacements(const Call &call, const MRVAutoReplaceList &list,
                       const MRVManuscript &manuscript)
{
    const MRVTypingLookUp lookUp =
        call.has("word-ends") ? MRVTypingLookUp::AtWordEnds : MRVTypingLookUp::AfterEachCharacter;
    bool any = false;
    for (QTextBlock block = manuscript.document->begin(); block.isValid(); block = block.next()) {
        const QString line = block.text();
        const int number = block.blockNumber() + 1;
        const QVector<MRVTypedReplacement> replacements = mrvTypeLine(line, list, lookUp);
        for (const MRVTypedReplacement &made : replacements) {
            any = true;
            if (call.json()) {
                QJsonObject object = toJson(made.entry);
                object.insert(QStringLiteral("path"), manuscript.path);
                object.insert(QStringLiteral("line"), number);
                object.insert(QStringLiteral("column"), made.start + 1);
                object.insert(QStringLiteral("length"), made.end - made.start);
                printJson(object);
                continue;
            }
            const QString place = QStringLiteral("%1:%2:").arg(QString::number(number),
                                                               QString::number(made.start + 1));
            printLine(styled(Style::Path, manuscript.path + u':' + place) + u' '
                      + styled(Style::Removed, quoted(made.entry.match)) + QLatin1String(" -> ")
                      + styled(Style::Added, quoted(made.entry.replacement)));
        }
    }
    return any;
}

int show(const Call &call, MRVOptions *options)
{
    const MRVAutoReplaceList list = options->autoReplaceList();
    return lookThrough(call, call.arguments, QStringLiteral("Reading %1"),
                       [&](const MRVManuscript &manuscript) {
                           showProgress(QString());
                           return printReplacements(call, list, manuscript);
                       });
}

int list(const Call &call, MRVOptions *options)
{
    const MRVAutoReplaceList list = options->autoReplaceList();
    for (const MRVAutoReplace &entry : list) {
        printEntry(call, entry);
    }
    return Done;
}

int store(const Call &call, MRVOptions *options, const MRVAutoReplaceList &list,
          const MRVAutoReplaceList &changed)
{
    options->setAutoReplaceList(list);
    if (save(options) != Done) {
        return Failed;
    }
    for (const MRVAutoReplace &entry : changed) {
        printEntry(call, entry);
    }
    return Done;
}

QString enabledAlready(const QString &match)
{
    return QStringLiteral("an entry for %1 is enabled already; disable or remove it first")
        .arg(quoted(match));
}

int add(const Call &call, MRVOptions *options)
{
    const MRVAutoReplace entry{!call.has("disabled"), call.arguments.at(0), call.arguments.at(1)};
    if (entry.match.contains(u'\n') || entry.match.contains(QChar::ParagraphSeparator)) {
        return usageError(QStringLiteral("a match cannot go over the end of a paragraph"));
    }
    MRVAutoReplaceList list = options->autoReplaceList();
    if (list.containsReplacement(entry.match, entry.replacement)) {
        return refuse(
            QStringLiteral("%1 -> %2 is in the list already; it can be enabled or disabled")
                .arg(quoted(entry.match), quoted(entry.replacement)));
    }
    if (entry.enabled && list.containsEnabled(entry.match)) {
        return refuse(enabledAlready(entry.match));
    }
    list.append(entry);
    return store(call, options, list, {entry});
}

bool isOrdinal(const MRVAutoReplace &entry)
{
    return MRVAutoReplace::ordinals().containsReplacement(entry.match, entry.replacement);
}

int remove(const Call &call, MRVOptions *options)
{
    MRVAutoReplaceList list = options->autoReplaceList();
    const QVector<int> entries = list.indexesOf(call.arguments.at(0), call.arguments.value(1));
    if (entries.isEmpty()) {
        return refuse(QStringLiteral("no such entry: %1").arg(quoted(call.arguments.join(u' '))));
    }
    MRVAutoReplaceList removed;
    for (int i = entries.size() - 1; i >= 0; --i) {
        if (isOrdinal(list.at(entries.at(i)))) {
            return refuse(QStringLiteral("ordinals stay in each list; disable %1 instead")
                              .arg(quoted(call.arguments.at(0))));
        }
        removed.prepend(list.takeAt(entries.at(i)));
    }
    return store(call, options, list, removed);
}

int setEnabled(const Call &call, MRVOptions *options, bool enabled)
{
    MRVAutoReplaceList list = options->autoReplaceList();
    const QVector<int> entries = list.indexesOf(call.arguments.at(0), call.arguments.value(1));
    if (entries.isEmpty()) {
        return refuse(QStringLiteral("no such entry: %1").arg(quoted(call.arguments.join(u' '))));
    }
    if (enabled && entries.size() > 1) {
        return refuse(
            QStringLiteral("%1 entries have the match %2, and only one can apply; add its "
                           "replacement")
                .arg(QString::number(entries.size()), quoted(call.arguments.at(0))));
    }
    if (enabled && !list.at(entries.constFirst()).enabled
        && list.containsEnabled(call.arguments.at(0))) {
        return refuse(enabledAlready(call.arguments.at(0)));
    }
    MRVAutoReplaceList changed;
    for (const int i : entries) {
        list[i].enabled = enabled;
        changed.append(list.at(i));
    }
    return store(call, options, list, changed);
}

int enable(const Call &call, MRVOptions *options)
{
    return setEnabled(call, options, true);
}

int disable(const Call &call, MRVOptions *options)
{
    return setEnabled(call, options, false);
}

int reset(const Call &call, MRVOptions *options)
{
    const MRVAutoReplaceList list = MRVAutoReplaceList::defaultReplacements();
    return store(call, options, list, list);
}

// What is only shown may still be of use when the list is damaged; a change would make the loss
// last.
template<Access access, int (*Run)(const Call &call, MRVOptions *options)>
int withList(const Call &call, MRVOptions *options)
{
    QString damage; // for which the options give what could be read, or the default
    options->autoReplaceList(&damage);
    if (damage.isEmpty()) {
        return Run(call, options);
    }
    if (access != Access::Read) {
        return refuse(damage + QLatin1String("; it can be reset"));
    }
    refuse(damage);
    Run(call, options);
    return Failed;
}

template<Access access, int (*Run)(const Call &call, MRVOptions *options)>
constexpr auto onList = withSettings<access, withList<access, Run>>;

constexpr Verb verbs[] = {
    {"show", "IN...", "show what is replaced while manuscripts are typed",
     onList<Access::Read, show>,
     "The manuscripts are HTML, Markdown or plain text; - is standard input. Each replacement is "
     "printed as PATH:LINE:COLUMN: MATCH -> REPLACEMENT. A line is a paragraph; columns count "
     "UTF-16 units from 1 in the text as it was given."},
    {"list", "", "print the entries in their order, on or off", onList<Access::Read, list>},
    {"add", "MATCH REPLACEMENT", "append an entry", onList<Access::Create, add>},
    {"remove", "MATCH [REPLACEMENT]", "remove entries", onList<Access::Create, remove>},
    {"enable", "MATCH [REPLACEMENT]", "enable an entry", onList<Access::Create, enable>},
    {"disable", "MATCH [REPLACEMENT]", "disable entries", onList<Access::Create, disable>},
    {"reset", "", "go back to the default list", withSettings<Access::Create, reset>},
};

constexpr Option options[] = {
    Option::flag("word-ends",
                 "Replace only at the end of a word: when a blank is typed, or a line ends.",
                 "show"),
    Option::flag("disabled", "Add the entry disabled.", "add"),
    settingsOption,
    Option::flag("json", "Print each replacement or entry as a line of JSON."),
};

constexpr Option inputs[] = {manuscriptFormat("show"), manuscriptEncoding("show")};

} // namespace

const Command autoReplaceCommand = {
    "autoreplace",
    "show what typing replaces, and edit the list",
    "Shows what is replaced while a text is typed, and edits the list of replacements.\n"
    "The text is typed character by character. After each one the longest match that ends before "
    "the cursor is replaced at once, and typing goes on after the replacement. Editing prints the "
    "entries that changed. A match or replacement that looks like an option goes after --, as in "
    "the last example.\n"
    "Exit code 1: nothing is replaced, the entry does not exist, or the stored list is damaged.",
    "autoreplace show notes.txt --word-ends\nautoreplace add \"=>\" \u21d2\n"
    "autoreplace add --settings portable.ini -- --x y",
    verbs,
    {options, inputs},
};
