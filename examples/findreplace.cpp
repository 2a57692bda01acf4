// Finds a word in a document and replaces what an expression matches, keeping formats and undo.
#include "search/mrvtextreplacer.h"

#include <QGuiApplication>
#include <QTextDocument>
#include <QTextStream>

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    QTextStream out(stdout);

    QTextDocument document;
    document.setHtml(
        QStringLiteral("<p>3rd of May: the <b>tide</b> was early, and the tide after it.</p>"
                       "<p>Tide tables say nothing of the 14th of June.</p>"));

    MRVTextQuery word;
    word.text = QStringLiteral("tide");
    word.flags = MRVTextFinder::FindWholeWords;
    const QVector<MRVTextRange> finds = MRVTextReplacer::findAll(&document, word);
    for (const MRVTextRange &find : finds) {
        out << find.start() << '-' << find.end() << ": "
            << find.toTextCursor(&document).selectedText() << '\n';
    }

    MRVTextQuery date;
    date.syntax = MRVTextQuery::RegularExpression;
    date.text = QStringLiteral("(\\d+)(?:rd|th) of (\\w+)");
    QString error;
    if (!date.isValid(&error)) {
        out << error << '\n';
        return 1;
    }
    const QString replacement = QStringLiteral("$1 $2");
    const QVector<MRVTextChange> changes = MRVTextReplacer::preview(&document, date, replacement);
    for (const MRVTextChange &change : changes) {
        out << change.before << " -> " << change.after << '\n';
    }
    out << MRVTextReplacer::replaceAll(&document, date, replacement) << " replaced\n";
    out << document.toPlainText() << '\n';

    // All of it is one step of undo.
    document.undo();
    out << document.toPlainText().section(u'\n', 0, 0) << '\n';
    return 0;
}
