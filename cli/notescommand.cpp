#include "inputs.h"
#include "textsearch.h"

#include "manuscript/mrvdocumentnotes.h"
#include "manuscript/mrvmanuscript.h"

namespace {

void printFound(const Call &call, const QString &place, const MRVDocumentNote &note,
                QJsonObject object)
{
    const QString kind = MRVDocumentNotes::kindName(note.kind);
    if (call.json()) {
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

bool printNotes(const Call &call, const MRVManuscript &manuscript)
{
    const auto isWanted = [&](MRVDocumentNote::Kind kind) {
        return !call.has("only") || call.values("only").contains(MRVDocumentNotes::kindName(kind));
    };
    bool any = false;
    const auto notes = MRVDocumentNotes::findAll(manuscript.document.get());
    for (const MRVDocumentNote &note : notes) {
        if (isWanted(note.kind)) {
            const QJsonObject object =
                toJson(manuscript.path, manuscript.document.get(), note.range);
            const int paragraph = object.value(QLatin1String("paragraph")).toInt();
            printFound(call, manuscript.path + u':' + QString::number(paragraph), note, object);
            any = true;
        }
    }
    const auto comments = isWanted(MRVDocumentNote::Comment)
        ? MRVDocumentNotes::sourceComments(manuscript)
        : QVector<MRVSourceComment>();
    for (const MRVSourceComment &comment : comments) {
        const MRVDocumentNote note{MRVDocumentNote::Comment, MRVTextRange(), QString(),
                                   comment.text};
        printFound(
            call, QStringLiteral("%1: line %2").arg(manuscript.path).arg(comment.line), note,
            {{QStringLiteral("path"), manuscript.path}, {QStringLiteral("line"), comment.line}});
    }
    return any || !comments.isEmpty();
}

int run(const Call &call)
{
    return lookThrough(call, call.arguments, QStringLiteral("Reading %1"),
                       [&](const MRVManuscript &manuscript, MRVErrorSink) {
                           showProgress(QString());
                           return printNotes(call, manuscript);
                       });
}

constexpr Verb verbs[] = {{"", "IN...", "", run}};

constexpr Option options[] = {
    Option::choice("only", "KIND", "link footnote comment highlight picture anchor",
                   "Only this kind: link, footnote, comment, highlight, picture or anchor.")
        .repeated(),
    manuscriptFormat(),
    manuscriptEncoding(),
    Option::flag("json", "Print each as a line of JSON."),
};

} // namespace

const Command notesCommand = {
    "notes",
    "list links, notes, highlights and pictures",
    "Lists what manuscripts (HTML, Markdown, plain text, documents of the writing program "
    "(.mrvdoc), and by pandoc DOCX, ODT and RTF; - is standard input) carry besides their text: "
    "links, footnotes and links to and from them, comments, highlights, pictures and "
    "anchors, as PATH:PARAGRAPH: KIND. Comments of HTML are in no paragraph; they follow with "
    "their line in the file.\n"
    "Exit code 1: nothing found.",
    "notes novel.html --only link --json",
    verbs,
    {options},
};
