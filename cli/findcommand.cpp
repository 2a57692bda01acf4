#include "command.h"
#include "textsearch.h"

#include <QCommandLineParser>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace {

struct Options
{
    TextSearch search;
    InputOptions input;
    QStringList inputs;
    int context = 0; // paragraphs
    bool count = false;
    bool onlyMatching = false;
    bool json = false;
};

int usageError(const QString &text)
{
    printError(QLatin1String("find: ") + text);
    return WrongUsage;
}

void addOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(QStringLiteral(
        "Finds text in manuscripts (HTML, Markdown or plain text; - is standard input), and "
        "prints\nthe paragraphs that hold it as PATH:PARAGRAPH: TEXT. TEXT is left out where -e "
        "tells it,\nor a format is asked for: then all text of that format is found.\n"
        "Exit code 1: nothing found."));
    parser->addPositionalArgument(QStringLiteral("TEXT"), QStringLiteral("What to look for."));
    parser->addPositionalArgument(QStringLiteral("IN"), QStringLiteral("The manuscripts."),
                                  QStringLiteral("IN..."));
    parser->addOption({{QStringLiteral("e"), QStringLiteral("text")},
                       QStringLiteral("What to look for, in place of the first argument."),
                       QStringLiteral("TEXT")});
    TextSearch::addOptions(parser);
    parser->addOption({{QStringLiteral("C"), QStringLiteral("context")},
                       QStringLiteral("Show N paragraphs around each find, too."),
                       QStringLiteral("N")});
    parser->addOption({{QStringLiteral("c"), QStringLiteral("count")},
                       QStringLiteral("Tell only how many finds each input has.")});
    parser->addOption({{QStringLiteral("o"), QStringLiteral("only-matching")},
                       QStringLiteral("Print each find by itself, without what is around it.")});
    parser->addOption(
        {QStringLiteral("json"),
         QStringLiteral("Print each find, or with --count each input, as a line of JSON.")});
}

// -1 to go on, else the exit code.
int readOptions(const QStringList &arguments, Options *options)
{
    QCommandLineParser parser;
    addOptions(&parser);
    const int code =
        parseArguments(&parser, QStringLiteral("find TEXT IN... [OPTIONS]"), arguments);
    if (code >= 0) {
        return code;
    }
    QString error;
    TextSearch &search = options->search;
    options->inputs = parser.positionalArguments();
    search.query.text = parser.value(QStringLiteral("text"));
    if (!search.readOptions(parser, &error)) {
        return usageError(error);
    }
    if (!parser.isSet(QStringLiteral("text")) && search.query.kinds.isEmpty()) {
        search.query.text = options->inputs.isEmpty() ? QString() : options->inputs.takeFirst();
    }
    if (search.query.text.isEmpty() && search.query.kinds.isEmpty()) {
        return usageError(QStringLiteral("a text to look for is missing"));
    }
    if (!search.query.isValid(&error)
        || !readInputOptions(parser, options->inputs, &options->input, &error)) {
        return usageError(error);
    }
    if (parser.isSet(QStringLiteral("context"))) {
        bool ok = false;
        options->context = parser.value(QStringLiteral("context")).toInt(&ok);
        if (!ok || options->context < 0) {
            return usageError(QStringLiteral("'%1' is no number of paragraphs")
                                  .arg(parser.value(QStringLiteral("context"))));
        }
    }
    options->count = parser.isSet(QStringLiteral("count"));
    options->onlyMatching = parser.isSet(QStringLiteral("only-matching"));
    options->json = parser.isSet(QStringLiteral("json"));
    return -1;
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

void printParagraph(const QString &path, const QTextBlock &block, QChar mark,
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
    printLine(styled(Style::Path, path + mark + QString::number(block.blockNumber() + 1) + mark)
              + u' ' + marked + text.midRef(done));
}

// Paragraphs around finds are shown once, and stretches that do not join are parted by a line.
void printParagraphs(const QString &path, const QTextDocument &document,
                     const QVector<FoundParagraph> &paragraphs, int context)
{
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
            printParagraph(path, document.findBlockByNumber(n), u'-', {});
        }
        printParagraph(path, paragraphs[i].block, u':', paragraphs[i].parts);
        const int following = i + 1 < paragraphs.size() ? paragraphs[i + 1].block.blockNumber()
                                                        : document.blockCount();
        next = qMin(following, number + 1 + qMin(context, document.blockCount()));
        for (int n = number + 1; n < next; ++n) {
            printParagraph(path, document.findBlockByNumber(n), u'-', {});
        }
    }
}

void printFinds(const Options &options, const QString &path, QTextDocument *document,
                const QVector<MRVTextRange> &finds)
{
    if (options.count && options.json) {
        printJson({{QStringLiteral("path"), path}, {QStringLiteral("count"), finds.size()}});
    } else if (options.count) {
        printLine(styled(Style::Path, path + u':') + u' ' + QString::number(finds.size()));
    } else if (options.json) {
        for (const MRVTextRange &find : finds) {
            printJson(toJson(path, document, find));
        }
    } else if (options.onlyMatching) {
        for (const MRVTextRange &find : finds) {
            const int paragraph = document->findBlock(find.start()).blockNumber() + 1;
            printLine(styled(Style::Path, path + u':' + QString::number(paragraph) + u':') + u' '
                      + displayed(find.toTextCursor(document).selectedText()));
        }
    } else {
        printParagraphs(path, *document, foundParagraphs(*document, finds), options.context);
    }
}

} // namespace

int runFind(const QStringList &arguments)
{
    Options options;
    const int code = readOptions(arguments, &options);
    if (code >= 0) {
        return code;
    }
    return lookThrough(options.inputs, options.input, QStringLiteral("Searching %1"),
                       [&](const MRVManuscript &manuscript) {
                           const QVector<MRVTextRange> finds = MRVTextReplacer::findAll(
                               manuscript.document.get(), options.search.query);
                           showProgress(QString());
                           printFinds(options, manuscript.path, manuscript.document.get(), finds);
                           return !finds.isEmpty();
                       });
}
