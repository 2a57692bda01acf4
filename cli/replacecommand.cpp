#include "inputs.h"
#include "textsearch.h"

#include "manuscript/mrvsourceedit.h"
#include "manuscript/mrvsourcefile.h"
#include "markdown/mrvfrontmatter.h"
#include "markdown/mrvmarkdownhead.h"
#include "publish/mrvoutputfiles.h"
#include "util/mrveditlock.h"
#include "util/mrvfailure.h"

#include "core/mrvfilewriter.h"

#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QTextBlock>
#include <QTextDocument>

#include <limits>
#include <vector>

namespace {

const QLatin1String StandardStream("-");

struct Options
{
    MRVTextQuery query;
    MRVTextReplacement replacement;
    InputOptions input;
    QStringList inputs;
    QString output;
    bool dryRun = false;
    bool rewrite = false;
    bool skip = false;
    bool backup = true;
    bool json = false;
};

bool isFolder(const QString &path)
{
    return path.endsWith(u'/') || QFileInfo(path).isDir();
}

// What takes the place of finds, except for the text.
// @return false, with a text, when the call is wrong.
bool readReplacement(const Call &call, MRVTextReplacement *replacement, MRVErrorSink error)
{
    replacement->keepsText = call.has("keep-text");
    replacement->preservesCase = call.has("preserve-case");
    replacement->firstNumber = int(call.number("first-number", 1));
    if (call.has("set-bold")) {
        replacement->format.setFontWeight(QFont::Bold);
    }
    if (call.has("set-highlight")) {
        const QColor color(call.value("set-highlight"));
        if (!color.isValid()) {
            return MRV::fail(error, unknownColor(call.value("set-highlight")));
        }
        replacement->format.setBackground(color);
    }
    return !replacement->keepsText || replacement->format.propertyCount() > 0
        || MRV::fail(error,
                     QStringLiteral("--keep-text needs a format to set, such as --set-bold"));
}

// @return false, with a text, when the call is wrong.
bool readOptions(const Call &call, Options *options, MRVErrorSink error)
{
    options->inputs = call.arguments;
    options->query.text = options->inputs.takeFirst();
    if (!readReplacement(call, &options->replacement, error)) {
        return false;
    }
    if (!options->replacement.keepsText) {
        options->replacement.text = options->inputs.takeFirst();
    }
    if (options->inputs.isEmpty()) {
        return MRV::fail(
            error, QLatin1String("IN is missing; usage: ") + usageOf(*call.command, *call.verb));
    }
    options->input = inputOptions(call);
    options->output = call.value("output");
    options->dryRun = call.has("dry-run");
    options->rewrite = call.has("rewrite");
    options->skip = call.has("skip");
    options->backup = !call.has("no-backup");
    options->json = call.json();
    if (!readSearchOptions(call, &options->query, error)) {
        return false;
    }
    return options->inputs.size() == 1 || options->output.isEmpty() || isFolder(options->output)
        || MRV::fail(error, QStringLiteral("several inputs need a folder to be written to"));
}

QString targetOf(const Options &options, const QString &path)
{
    if (options.output.isEmpty()) {
        return path;
    }
    const QString name =
        path == StandardStream ? QStringLiteral("manuscript") : QFileInfo(path).fileName();
    return isFolder(options.output) ? QDir(options.output).filePath(name) : options.output;
}

// Inputs and targets must be different files, except for those that are to be replaced.
bool checkTargets(const Options &options, MRVErrorSink error)
{
    QStringList inputs = options.inputs;
    QStringList targets;
    for (const QString &path : qAsConst(inputs)) {
        targets.append(targetOf(options, path));
    }
    inputs.removeAll(StandardStream);
    targets.removeAll(StandardStream);
    MRVError reason;
    if (!options.output.isEmpty() && !MRVOutputFiles::spareInputs(targets, inputs, &reason)) {
        return MRV::fail(error, reason.kind,
                         reason.text + QLatin1String("; leave -o out for that"));
    }
    return MRVOutputFiles::areDistinct(targets, error);
}

// What stands around changes, for one line: its middle, or the end that is away from them, is left
// out where it is long.
QString context(const QString &text, bool isStart, bool isEnd)
{
    constexpr int Kept = 40;
    const int kept = (isStart ? 0 : Kept) + (isEnd ? 0 : Kept);
    if (text.size() <= kept + 1) {
        return displayed(text);
    }
    int head = isStart ? 0 : Kept;
    int tail = text.size() - (isEnd ? 0 : Kept);
    head -= head > 0 && text.at(head).isLowSurrogate() ? 1 : 0;
    tail += tail < text.size() && text.at(tail).isLowSurrogate() ? 1 : 0;
    return displayed(text.left(head)) + QChar(0x2026) + displayed(text.mid(tail));
}

// A paragraph before and after its changes, as two lines.
void printChanges(const QString &path, const QTextDocument &document,
                  const QVector<MRVTextChange> &changes)
{
    for (int i = 0; i < changes.size();) {
        const QTextBlock block = document.findBlock(changes[i].range.start());
        const QString text = block.text();
        QString before;
        QString after;
        int done = 0;
        for (; i < changes.size() && block.contains(changes[i].range.start()); ++i) {
            const MRVTextChange &change = changes[i];
            const int start = change.range.start() - block.position();
            const QString same = context(text.mid(done, start - done), done == 0, false);
            before += same + styled(Style::Removed, displayed(change.before));
            after += same
                + styled(Style::Added,
                         displayed(
                             QString(change.after).replace(QChar::ParagraphSeparator, u'\u00b6')));
            done = change.range.end() - block.position();
        }
        const QString rest = context(text.mid(done), false, true);
        const QString place = path + u':' + QString::number(block.blockNumber() + 1) + u':';
        printLine(styled(Style::Path, place) + QLatin1String(" - ") + before + rest);
        printLine(styled(Style::Path, place) + QLatin1String(" + ") + after + rest);
    }
}

void printPreview(const Options &options, const MRVManuscript &manuscript,
                  const QVector<MRVTextChange> &changes)
{
    if (!options.json) {
        printChanges(manuscript.path, *manuscript.document, changes);
        return;
    }
    for (const MRVTextChange &change : changes) {
        QJsonObject object = toJson(manuscript.path, manuscript.document.get(), change.range);
        object.insert(QStringLiteral("replacement"),
                      QString(change.after).replace(QChar::ParagraphSeparator, u'\n'));
        printJson(object);
    }
}

/** An input whose changes are ready to be written. */
struct Changed
{
    QString path;
    QString target;
    QByteArray before;
    QByteArray after;
    int count = 0;
    QVector<MRVSourceMisfit> misfits;
    QStringList brokenLinks;
    QString backup;
};

bool write(const Options &options, Changed *changed, MRVErrorSink error)
{
    if (changed->target == StandardStream) {
        return writeStandardOutput(changed->after, error);
    }
    if (options.output.isEmpty()) {
        // Of two that change a file at once, the second one finds it changed.
        MRVEditLock lock;
        MRVError reason;
        if (!lock.acquire(changed->path, &reason)) {
            return MRV::fail(error, changed->path, reason);
        }
        return changed->count == 0
            || MRVSourceFile::replace(changed->path, changed->before, changed->after,
                                      options.backup ? &changed->backup : nullptr, error);
    }
    return MRVFileWriter::write(changed->target, changed->after, error);
}

void reportNotes(const Options &options, const Changed &changed)
{
    for (const MRVSourceMisfit &misfit : changed.misfits) {
        if (options.json) {
            printJson({{QStringLiteral("path"), changed.path},
                       {QStringLiteral("line"), misfit.line},
                       {QStringLiteral("skipped"), misfit.change.before},
                       {QStringLiteral("reason"), misfit.reason}});
        } else {
            printNote(QStringLiteral("%1: %2").arg(changed.path, misfit.text()));
        }
    }
    for (const QString &address : changed.brokenLinks) {
        printNote(QStringLiteral("%1: the heading that links to %2 lead to has another name now")
                      .arg(changed.path, address));
    }
}

void report(const Options &options, const Changed &changed)
{
    const bool written = changed.count > 0 || !options.output.isEmpty();
    if (changed.target == StandardStream || !written) {
        return;
    }
    if (!options.json) {
        const QString kept = changed.backup.isEmpty()
            ? QString()
            : QStringLiteral(" (before: %1)").arg(changed.backup);
        printLine(QStringLiteral("%1: %2 replaced").arg(changed.target).arg(changed.count) + kept);
        return;
    }
    QJsonObject object{{QStringLiteral("path"), changed.path},
                       {QStringLiteral("output"), changed.target},
                       {QStringLiteral("replaced"), changed.count}};
    if (!changed.backup.isEmpty()) {
        object.insert(QStringLiteral("backup"), changed.backup);
    }
    printJson(object);
}

MRVError unchanged(const QString &path, const MRVError &reason)
{
    return {reason.kind, QStringLiteral("%1: %2; nothing was changed").arg(path, reason.text)};
}

bool prepare(const Options &options, const QString &path, std::vector<Changed> *all,
             MRVErrorSink error)
{
    showProgress(QStringLiteral("Searching %1").arg(path));
    MRVManuscript manuscript;
    if (!readManuscript(path, options.input, &manuscript, error)) {
        return false;
    }
    MRVSearchOutcome outcome;
    const QVector<MRVTextChange> changes = MRVTextReplacer::preview(
        manuscript.document.get(), options.query, options.replacement, &outcome);
    if (!outcome.isComplete()) {
        return MRV::fail(error, unchanged(path, givenUp(outcome)));
    }
    Changed changed{
        path, targetOf(options, path), manuscript.bytes, manuscript.bytes, changes.size(), {}, {},
        {}};
    if (options.dryRun) {
        showProgress(QString());
        printPreview(options, manuscript, changes);
    }
    // Also where nothing will be written, so that a dry run refuses what the real one would.
    const auto mode = options.rewrite ? MRVSourceEdit::WriteWhole : MRVSourceEdit::KeepMarkup;
    MRVError reason;
    if ((!changes.isEmpty() || manuscript.isConverted())
        && !MRVSourceEdit::changedBytes(manuscript, changes, mode, &changed.after, &reason,
                                        options.skip ? &changed.misfits : nullptr,
                                        &changed.brokenLinks)) {
        return MRV::fail(error, unchanged(path, reason));
    }
    changed.count -= changed.misfits.size();
    if (options.rewrite && changed.count > 0 && manuscript.format != MRVManuscript::PlainText) {
        const QStringList lost = manuscript.format == MRVManuscript::Markdown
            ? MRVFrontMatter::lostKeys(manuscript.head())
            : QStringList();
        const QString metadata = lost.isEmpty()
            ? QString()
            : QStringLiteral(", metadata (%1)").arg(lost.join(QStringLiteral(", ")));
        printNote(QStringLiteral("%1 is written as a whole: style sheets, comments%2 and what "
                                 "rich text does not hold are lost")
                      .arg(path, metadata));
    }
    all->push_back(changed);
    return true;
}

int run(const Call &call)
{
    Options options;
    MRVError error;
    if (!readOptions(call, &options, &error)) {
        return usageError(error.text);
    }
    if (readsTwice(options.inputs)) {
        return WrongUsage;
    }
    std::vector<Changed> all;
    bool ok = expandFolders(call, true, &options.inputs, &error) && checkTargets(options, &error);
    for (int i = 0; ok && i < options.inputs.size(); ++i) {
        ok = prepare(options, options.inputs.at(i), &all, &error);
    }
    int count = 0;
    for (auto changed = all.begin(); ok && changed != all.end(); ++changed) {
        count += changed->count;
        reportNotes(options, *changed);
        if (!options.dryRun) {
            ok = write(options, &*changed, &error);
            showProgress(QString());
            if (ok) {
                report(options, *changed);
            }
        }
    }
    if (!ok) {
        return refuse(error);
    }
    return count > 0 ? Done : Failed;
}

constexpr Verb verbs[] = {{"", "TEXT [NEW] IN...", "", run}};

constexpr Option options[] = {
    Option::flag("n dry-run", "Show what would change, and change nothing."),
    foldersOption(),
    Option::name("o output", "FILE",
                 "Where to write: a file, or a folder that exists; - is standard output. It is "
                 "written even where nothing changes. The input stays as it is."),
    Option::flag("rewrite",
                 "Write the whole document, for changes that do not fit into the markup. Style "
                 "sheets and the like may be lost."),
    Option::flag("preserve-case",
                 "Begin NEW with a capital, or have it in capitals, where the match is so."),
    Option::integer("first-number", "N", 0, std::numeric_limits<int>::max(),
                    "The number that \\# in NEW stands for at the first match in each file; 1 if "
                    "it is not given."),
    Option::flag("keep-text", "Leave the text as it is, and only set formats; NEW is left out."),
    Option::flag("set-bold", "Make what takes the place of a match bold."),
    Option::name("set-highlight", "COLOUR", "Highlight what takes the place of a match."),
    Option::flag("skip",
                 "Leave out the changes that do not fit into the markup, and list them with the "
                 "line of the file, instead of refusing all."),
    Option::flag("no-backup", "Do not keep FILE~."),
    Option::flag("json",
                 "Print as lines of JSON what was replaced in each file, or, with --dry-run, each "
                 "change."),
};

constexpr Option inputs[] = {manuscriptFormat(), manuscriptEncoding()};

} // namespace

const Command replaceCommand = {
    "replace",
    "replace text in manuscripts",
    "Replaces TEXT by NEW in manuscripts (HTML, Markdown or plain text; - is standard input). With "
    "-E, $1 in NEW stands for a group, $& for the whole match, \\# for its number; \\U, \\L and "
    "\\E begin and end capitals and small letters, \\u and \\l make the next letter one. Markup "
    "and all other text stay as they are. Without -o each file is replaced, and what it was is "
    "kept beside it as FILE~ (or "
    "FILE~1 and so on: no file but the input is overwritten); standard input goes to standard "
    "output. No file is written before all changes are ready.\n"
    "Exit code 1: nothing to replace.",
    "replace --dry-run -E '(\\d+)th of (\\w+)' '$2 $1' novel.html\n"
    "replace colour color one.md two.md --no-backup",
    verbs,
    {options, searchOptions, inputs},
};
