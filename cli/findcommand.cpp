#include "inputs.h"
#include "textsearch.h"

#include "manuscript/mrvsourcelines.h"
#include "util/mrvfailure.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <limits>
#include <memory>

namespace {

// What to look for and where: TEXT stands first unless -e or a format is given.
// @return false, with a text, when the call is wrong.
bool readSearch(const Call &call, MRVTextQuery *query, QStringList *inputs, MRVErrorSink error)
{
    *inputs = call.arguments;
    query->text = call.value("text");
    if (!readSearchOptions(call, query, error)) {
        return false;
    }
    if (!call.has("text") && !query->isForRuns()) {
        query->text = inputs->takeFirst();
    }
    if (query->text.isEmpty() && !query->isForRuns()) {
        return MRV::fail(error, QStringLiteral("TEXT is empty"));
    }
    if (inputs->isEmpty()) {
        return MRV::fail(
            error, QLatin1String("IN is missing; usage: ") + usageOf(*call.command, *call.verb));
    }
    return query->isValid(error);
}

// A paragraph with finds, or with parts of them: offsets in its text.
struct FoundParagraph
{
    QTextBlock block;
    QVector<MRVTextRange> parts;
};

QVector<FoundParagraph> foundParagraphs(const QTextDocument &document,
                                        const QVector<MRVTextRange> &finds)
{
    QVector<FoundParagraph> paragraphs;
    for (const MRVTextRange &find : finds) {
        QTextBlock block = document.findBlock(find.start());
        do {
            if (paragraphs.isEmpty() || paragraphs.constLast().block != block) {
                paragraphs.append({block, {}});
            }
            const int start = qMax(find.start() - block.position(), 0);
            const int end = qMin(find.end() - block.position(), block.length() - 1);
            if (start < end) {
                paragraphs.last().parts.append(MRVTextRange(start, end));
            }
            block = block.next();
        } while (block.isValid() && block.position() < find.end());
    }
    return paragraphs;
}

// What is printed of a manuscript, and where that stands.
struct Searched
{
    QString path;
    QTextDocument *document;
    const MRVSourceLines *lines; // null where they are not asked for

    // "PATH:PARAGRAPH:", with LINE: where it is asked for, each colon as the mark.
    QString place(int position, QChar mark) const
    {
        const int paragraph = document->findBlock(position).blockNumber() + 1;
        const QString line = lines ? QString::number(lines->lineAt(position)) + mark : QString();
        return styled(Style::Path, path + mark + QString::number(paragraph) + mark + line) + u' ';
    }
};

void printParagraph(const Searched &searched, const QTextBlock &block, QChar mark,
                    const QVector<MRVTextRange> &parts)
{
    const QString text = displayed(block.text());
    QString marked;
    int done = 0;
    for (const MRVTextRange &part : parts) {
        marked += text.midRef(done, part.start() - done);
        marked += styled(Style::Match, text.mid(part.start(), part.end() - part.start()));
        done = part.end();
    }
    printLine(searched.place(block.position(), mark) + marked + text.midRef(done));
}

// Paragraphs around finds are shown once, and stretches that do not join are separated by a line.
void printParagraphs(const Searched &searched, const QVector<FoundParagraph> &paragraphs,
                     int context)
{
    const QTextDocument &document = *searched.document;
    static bool first = true;
    int next = 0; // the first paragraph that has not been shown
    for (int i = 0; i < paragraphs.size(); ++i) {
        const int number = paragraphs[i].block.blockNumber();
        const int from = qMax(next, number - context);
        if (context > 0 && !first && (from > next || i == 0)) {
            printLine(QStringLiteral("--"));
        }
        first = false;
        for (int n = from; n < number; ++n) {
            printParagraph(searched, document.findBlockByNumber(n), u'-', {});
        }
        printParagraph(searched, paragraphs[i].block, u':', paragraphs[i].parts);
        const int following = i + 1 < paragraphs.size() ? paragraphs[i + 1].block.blockNumber()
                                                        : document.blockCount();
        next = qMin(following, number + 1 + qMin(context, document.blockCount()));
        for (int n = number + 1; n < next; ++n) {
            printParagraph(searched, document.findBlockByNumber(n), u'-', {});
        }
    }
}

void printFinds(const Call &call, const Searched &searched, const QVector<MRVTextRange> &finds)
{
    const QString &path = searched.path;
    if (call.has("count") && call.json()) {
        printJson({{QStringLiteral("path"), path}, {QStringLiteral("count"), finds.size()}});
    } else if (call.has("count")) {
        printLine(styled(Style::Path, path + u':') + u' ' + QString::number(finds.size()));
    } else if (call.json()) {
        for (const MRVTextRange &find : finds) {
            QJsonObject object = toJson(path, searched.document, find);
            if (searched.lines) {
                object.insert(QStringLiteral("line"), searched.lines->lineAt(find.start()));
            }
            printJson(object);
        }
    } else if (call.has("only-matching")) {
        for (const MRVTextRange &find : finds) {
            printLine(searched.place(find.start(), u':')
                      + displayed(find.toTextCursor(searched.document).selectedText()));
        }
    } else {
        printParagraphs(searched, foundParagraphs(*searched.document, finds),
                        int(call.number("context", 0)));
    }
}

int run(const Call &call)
{
    MRVTextQuery query;
    QStringList inputs;
    MRVError error;
    if (!readSearch(call, &query, &inputs, &error)) {
        return usageError(error.text);
    }
    const auto look = [&](const MRVManuscript &manuscript, MRVErrorSink reason) {
        MRVSearchOutcome outcome;
        const auto finds = MRVTextReplacer::findAll(manuscript.document.get(), query, &outcome);
        std::unique_ptr<MRVSourceLines> lines;
        if (call.has("line-number") && !finds.isEmpty()) {
            lines = std::make_unique<MRVSourceLines>(manuscript);
        }
        showProgress(QString());
        // A count of some of the matches would be taken for that of all.
        if (outcome.isComplete() || !call.has("count")) {
            printFinds(call, {manuscript.path, manuscript.document.get(), lines.get()}, finds);
        }
        if (!outcome.isComplete()) {
            MRV::fail(reason, manuscript.path, givenUp(outcome));
        }
        return !finds.isEmpty();
    };
    if (!expandFolders(call, false, &inputs, &error)) {
        return refuse(error);
    }
    return lookThrough(call, inputs, QStringLiteral("Searching %1"), look);
}

constexpr Verb verbs[] = {{"", "[TEXT] IN...", "", run}};

constexpr Option options[] = {
    Option::text("e text", "TEXT", "What to look for, instead of the first argument."),
    Option::integer("C context", "N", 0, std::numeric_limits<int>::max(),
                    "Show N paragraphs around each match, too."),
    foldersOption(),
    Option::flag("n line-number",
                 "Print the line of the file after the paragraph; 0 where it has none."),
    Option::flag("c count", "Print only how many matches each input has."),
    Option::flag("o only-matching", "Print each match alone, without the text around it."),
    Option::flag("json", "Print each match, or with --count each input, as a line of JSON."),
};

constexpr Option inputs[] = {manuscriptFormat(), manuscriptEncoding()};

} // namespace

const Command findCommand = {
    "find",
    "find text and formats in manuscripts",
    "Finds text in manuscripts (HTML, Markdown, plain text, documents of the writing program "
    "(.mrvdoc), and by pandoc DOCX, ODT and RTF; - is standard input), and prints the paragraphs "
    "that contain it as PATH:PARAGRAPH: TEXT. TEXT is left out where -e gives it, or "
    "where a format is asked for: then all text of that format is found.\n"
    "Exit code 1: nothing found, or the search given up.",
    "find --loose --whole-word \"it's\" one.md two.md\nfind --bold --italic novel.html --count",
    verbs,
    {options, searchOptions, inputs},
};
