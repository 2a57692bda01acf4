#include "command.h"
#include "documentinput.h"
#include "textsearch.h"

#include "manuscript/mrvdocumentnotes.h"
#include "manuscript/mrvmanuscript.h"

#include <QCommandLineParser>

namespace {

struct Options
{
    QStringList kinds; // empty: all
    InputOptions input;
    QStringList inputs;
    bool json = false;
};

int usageError(const QString &text)
{
    printError(QLatin1String("notes: ") + text);
    return WrongUsage;
}

// -1 to go on, else the exit code.
int readOptions(const QStringList &arguments, Options *options)
{
    const QStringList known = MRVDocumentNotes::kindNames();
    const QString list = known.join(QLatin1String(", "));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Lists what manuscripts (HTML, Markdown or plain text; - is standard input) carry besides\n"
        "their text: links, footnotes and links to and from them, comments, highlights, pictures\n"
        "and named places, as PATH:PARAGRAPH: KIND. Comments of HTML are in no paragraph; they\n"
        "follow with their line in the file. Exit code 1: nothing found."));
    parser.addPositionalArgument(QStringLiteral("IN"), QStringLiteral("The manuscripts."),
                                 QStringLiteral("IN..."));
    parser.addOption({QStringLiteral("only"),
                      QStringLiteral("Only this kind: %1. May be given several times.").arg(list),
                      QStringLiteral("KIND")});
    addInputOptions(&parser);
    parser.addOption({QStringLiteral("json"), QStringLiteral("Print each as a line of JSON.")});
    const int code = parseArguments(&parser, QStringLiteral("notes IN... [OPTIONS]"), arguments);
    if (code >= 0) {
        return code;
    }
    options->inputs = parser.positionalArguments();
    options->kinds = parser.values(QStringLiteral("only"));
    options->json = parser.isSet(QStringLiteral("json"));
    for (const QString &kind : qAsConst(options->kinds)) {
        if (!known.contains(kind)) {
            return usageError(QStringLiteral("unknown kind '%1'; known are %2").arg(kind, list));
        }
    }
    QString error;
    return readInputOptions(parser, options->inputs, &options->input, &error) ? -1
                                                                              : usageError(error);
}

void printNote(const Options &options, const QString &place, const MRVDocumentNote &note,
               QJsonObject object)
{
    const QString kind = MRVDocumentNotes::kindName(note.kind);
    if (options.json) {
        object.insert(QStringLiteral("kind"), kind);
        object.insert(QStringLiteral("text"), note.text);
        if (!note.target.isEmpty()) {
            object.insert(QStringLiteral("target"), note.target);
        }
        printJson(object);
        return;
    }
    QString line = styled(Style::Path, place + u':') + u' ' + kind;
    if (!note.text.isEmpty()) {
        line += QStringLiteral(" \u201c%1\u201d").arg(displayed(note.text).simplified());
    }
    if (!note.target.isEmpty()) {
        line += QLatin1String(" -> ") + displayed(note.target);
    }
    printLine(line);
}

bool printNotes(const Options &options, const MRVManuscript &manuscript)
{
    const auto isWanted = [&](MRVDocumentNote::Kind kind) {
        return options.kinds.isEmpty() || options.kinds.contains(MRVDocumentNotes::kindName(kind));
    };
    bool any = false;
    const auto notes = MRVDocumentNotes::findAll(manuscript.document.get());
    for (const MRVDocumentNote &note : notes) {
        if (isWanted(note.kind)) {
            const QJsonObject object =
                toJson(manuscript.path, manuscript.document.get(), note.range);
            const int paragraph = object.value(QLatin1String("paragraph")).toInt();
            printNote(options, manuscript.path + u':' + QString::number(paragraph), note, object);
            any = true;
        }
    }
    const auto comments = isWanted(MRVDocumentNote::Comment)
        ? MRVDocumentNotes::sourceComments(manuscript)
        : QVector<MRVSourceComment>();
    for (const MRVSourceComment &comment : comments) {
        const MRVDocumentNote note{MRVDocumentNote::Comment, MRVTextRange(), QString(),
                                   comment.text};
        printNote(
            options, QStringLiteral("%1: line %2").arg(manuscript.path).arg(comment.line), note,
            {{QStringLiteral("path"), manuscript.path}, {QStringLiteral("line"), comment.line}});
    }
    return any || !comments.isEmpty();
}

} // namespace

int runNotes(const QStringList &arguments)
{
    Options options;
    const int code = readOptions(arguments, &options);
    if (code >= 0) {
        return code;
    }
    return lookThrough(options.inputs, options.input, QStringLiteral("Reading %1"),
                       [&](const MRVManuscript &manuscript) {
                           showProgress(QString());
                           return printNotes(options, manuscript);
                       });
}
