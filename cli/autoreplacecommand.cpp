#include "inputs.h"
#include "settingsfile.h"

#include "autoreplace/mrvautoreplaceeditor.h"
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
                       [&](const MRVManuscript &manuscript, MRVErrorSink) {
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

// Makes one change and stores the list.
template<bool (*Change)(const Call &call, MRVAutoReplaceEditor *editor, MRVErrorSink error)>
int edit(const Call &call, MRVOptions *options)
{
    MRVError error;
    MRVAutoReplaceEditor editor(options->autoReplaceList());
    return Change(call, &editor, &error) ? store(call, options, editor.list(), editor.changed())
                                         : refuse(error);
}

bool add(const Call &call, MRVAutoReplaceEditor *editor, MRVErrorSink error)
{
    return editor->add({!call.has("disabled"), call.arguments.at(0), call.arguments.at(1)}, error);
}

bool remove(const Call &call, MRVAutoReplaceEditor *editor, MRVErrorSink error)
{
    return editor->remove(call.arguments.at(0), call.arguments.value(1), error);
}

template<bool isEnabled>
bool setEnabled(const Call &call, MRVAutoReplaceEditor *editor, MRVErrorSink error)
{
    return editor->setEnabled(call.arguments.at(0), call.arguments.value(1), isEnabled, error);
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
    MRVError damage; // for which the options give what could be read, or the default
    options->autoReplaceList(&damage);
    if (!damage) {
        return Run(call, options);
    }
    if (access != Access::Read) {
        return refuse(damage.kind, damage.text + QLatin1String("; it can be reset"));
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
     "The manuscripts are HTML, Markdown, plain text, documents of the writing program (.mrvdoc), "
     "and by pandoc DOCX, ODT and RTF; - is standard input. Each replacement is "
     "printed as PATH:LINE:COLUMN: MATCH -> REPLACEMENT. A line is a paragraph; columns count "
     "UTF-16 units from 1 in the text as it was given."},
    {"list", "", "print the entries in their order, on or off", onList<Access::Read, list>},
    {"add", "MATCH REPLACEMENT", "append an entry", onList<Access::Create, edit<add>>},
    {"remove", "MATCH [REPLACEMENT]", "remove entries", onList<Access::Create, edit<remove>>},
    {"enable", "MATCH [REPLACEMENT]", "enable an entry",
     onList<Access::Create, edit<setEnabled<true>>>},
    {"disable", "MATCH [REPLACEMENT]", "disable entries",
     onList<Access::Create, edit<setEnabled<false>>>},
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
