#include "command.h"
#include "documentinput.h"
#include "textsearch.h"

#include "manuscript/mrvsourceedit.h"
#include "manuscript/mrvsourcefile.h"
#include "publish/mrvoutputfiles.h"

#include "core/mrvfilewriter.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QTextBlock>
#include <QTextDocument>

#include <vector>

namespace {

const QLatin1String StandardStream("-");

struct Options
{
    TextSearch search;
    QString replacement;
    InputOptions input;
    QStringList inputs;
    QString output;
    bool dryRun = false;
    bool rewrite = false;
    bool backup = true;
    bool json = false;
};

int usageError(const QString &text)
{
    printError(QLatin1String("replace: ") + text);
    return WrongUsage;
}

void addOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(QStringLiteral(
        "Replaces text in manuscripts (HTML, Markdown or plain text; - is standard input). Markup\n"
        "and all other text stay as they are. Without -o each file is replaced, and what it was\n"
        "is kept beside it as FILE~ (or FILE~1 and so on: no file but the input is overwritten);\n"
        "standard input goes to standard output. No file is written before all changes are ready.\n"
        "Exit code 1: nothing to replace."));
    parser->addPositionalArgument(QStringLiteral("TEXT"), QStringLiteral("What to look for."));
    parser->addPositionalArgument(
        QStringLiteral("NEW"),
        QStringLiteral("What takes its place; with -E, $1 stands for a group, $& for all of it."));
    parser->addPositionalArgument(QStringLiteral("IN"), QStringLiteral("The manuscripts."),
                                  QStringLiteral("IN..."));
    TextSearch::addOptions(parser);
    parser->addOption({{QStringLiteral("n"), QStringLiteral("dry-run")},
                       QStringLiteral("Show what would change, and change nothing.")});
    parser->addOption(
        {{QStringLiteral("o"), QStringLiteral("output")},
         QStringLiteral("Where to write: a file, or a folder that exists; - is standard output. It "
                        "is written also where nothing changes. The input stays as it is."),
         QStringLiteral("FILE")});
    parser->addOption({QStringLiteral("rewrite"),
                       QStringLiteral("Write the whole document anew, for changes that do not fit "
                                      "into the markup. Styles and the like may be lost.")});
    parser->addOption({QStringLiteral("no-backup"), QStringLiteral("Do not keep FILE~.")});
    parser->addOption({QStringLiteral("json"),
                       QStringLiteral("Tell as lines of JSON what was replaced in each file, or, "
                                      "with --dry-run, each change.")});
}

bool isFolder(const QString &path)
{
    return path.endsWith(u'/') || QFileInfo(path).isDir();
}

// -1 to go on, else the exit code.
int readOptions(const QStringList &arguments, Options *options)
{
    QCommandLineParser parser;
    addOptions(&parser);
    const int code =
        parseArguments(&parser, QStringLiteral("replace TEXT NEW IN... [OPTIONS]"), arguments);
    if (code >= 0) {
        return code;
    }
    options->inputs = parser.positionalArguments();
    if (options->inputs.size() < 2 || options->inputs.constFirst().isEmpty()) {
        return usageError(QStringLiteral("a text to look for, and one to put there, are missing"));
    }
    options->search.query.text = options->inputs.takeFirst();
    options->replacement = options->inputs.takeFirst();
    QString error;
    if (!options->search.readOptions(parser, &error)
        || !readInputOptions(parser, options->inputs, &options->input, &error)) {
        return usageError(error);
    }
    options->output = parser.value(QStringLiteral("output"));
    options->dryRun = parser.isSet(QStringLiteral("dry-run"));
    options->rewrite = parser.isSet(QStringLiteral("rewrite"));
    options->backup = !parser.isSet(QStringLiteral("no-backup"));
    options->json = parser.isSet(QStringLiteral("json"));
    if (options->inputs.size() > 1 && !options->output.isEmpty() && !isFolder(options->output)) {
        return usageError(QStringLiteral("several inputs need a folder to be written to"));
    }
    return -1;
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
bool checkTargets(const Options &options, QString *error)
{
    QStringList inputs = options.inputs;
    QStringList targets;
    for (const QString &path : qAsConst(inputs)) {
        targets.append(targetOf(options, path));
    }
    inputs.removeAll(StandardStream);
    targets.removeAll(StandardStream);
    if (!options.output.isEmpty() && !MRVOutputFiles::spareInputs(targets, inputs, error)) {
        *error += QLatin1String("; leave -o out for that");
        return false;
    }
    return MRVOutputFiles::areDistinct(targets, error);
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
            const QString same = displayed(text.mid(done, start - done));
            before += same + styled(Style::Removed, displayed(change.before));
            after += same
                + styled(Style::Added,
                         displayed(
                             QString(change.after).replace(QChar::ParagraphSeparator, u'\u00b6')));
            done = change.range.end() - block.position();
        }
        const QString rest = displayed(text.mid(done));
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
    QString backup;
};

bool write(const Options &options, Changed *changed, QString *error)
{
    if (changed->target == StandardStream) {
        return writeStandardOutput(changed->after, error);
    }
    if (options.output.isEmpty()) {
        return changed->count == 0
            || MRVSourceFile::replace(changed->path, changed->before, changed->after,
                                      options.backup ? &changed->backup : nullptr, error);
    }
    return MRVFileWriter::write(changed->target, changed->after, error);
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

bool prepare(const Options &options, const QString &path, std::vector<Changed> *all, QString *error)
{
    showProgress(QStringLiteral("Searching %1").arg(path));
    MRVManuscript manuscript;
    if (!readManuscript(path, options.input, &manuscript, error)) {
        return false;
    }
    const QVector<MRVTextChange> changes = MRVTextReplacer::preview(
        manuscript.document.get(), options.search.query, options.replacement);
    Changed changed{
        path, targetOf(options, path), manuscript.bytes, manuscript.bytes, changes.size(), {}};
    if (options.dryRun) {
        showProgress(QString());
        printPreview(options, manuscript, changes);
    }
    // Also where nothing will be written, so that a dry run refuses what the real one would.
    const auto mode = options.rewrite ? MRVSourceEdit::WriteAnew : MRVSourceEdit::KeepMarkup;
    QString reason;
    if (!changes.isEmpty()
        && !MRVSourceEdit::changedBytes(manuscript, changes, mode, &changed.after, &reason)) {
        *error = QStringLiteral("%1: %2; nothing was changed").arg(path, reason);
        return false;
    }
    all->push_back(changed);
    return true;
}

} // namespace

int runReplace(const QStringList &arguments)
{
    Options options;
    const int code = readOptions(arguments, &options);
    if (code >= 0) {
        return code;
    }
    QString error;
    std::vector<Changed> all;
    bool ok = checkTargets(options, &error);
    for (int i = 0; ok && i < options.inputs.size(); ++i) {
        ok = prepare(options, options.inputs.at(i), &all, &error);
    }
    int count = 0;
    for (auto changed = all.begin(); ok && changed != all.end(); ++changed) {
        count += changed->count;
        if (!options.dryRun) {
            ok = write(options, &*changed, &error);
            showProgress(QString());
            if (ok) {
                report(options, *changed);
            }
        }
    }
    if (!ok) {
        printError(error);
        return Failed;
    }
    return count > 0 ? Done : Failed;
}
