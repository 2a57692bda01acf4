// Types a scene in the factory screenplay mode: what each paragraph is, and what follows it.
#include "scriptmode/mrvscriptmode.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextStream>

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    QTextStream out(stdout);

    MRVScriptMode mode;
    mode.loadFactoryDefaults();
    out << mode.name() << ": " << mode.elements().size() << " elements\n";

    // Each line is typed in the element that Return begins after the one before.
    const QString lines[] = {QStringLiteral("Int. gauge house - night"),
                             QStringLiteral("The pen moves."), QStringLiteral("It stops.")};
    QTextDocument document;
    QTextCursor cursor(&document);
    MRVScriptElement element = mode.elements().first();
    for (const QString &line : lines) {
        if (!document.isEmpty()) {
            cursor.insertBlock();
        }
        cursor.setBlockFormat(element.blockFormat());
        cursor.insertText(line, element.charFormat());
        element.recapitalizeBlock(cursor.block());
        const int next = mode.indexOf(element.actionElement(MRVScriptElement::ReturnAction));
        if (next >= 0) {
            element = mode.elements().at(next);
        }
    }
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const int index = mode.indexOf(block);
        out << (index < 0 ? QStringLiteral("?") : mode.elements().at(index).title()) << ": "
            << block.text() << '\n';
    }

    // A mode of one's own, in centimetres.
    mode.setName(QStringLiteral("Mine"));
    mode.setUnits(MRVUnit::Centimeter);
    MRVScriptMode read;
    QString error;
    if (!read.fromXml(mode.toXml(), &error)) {
        out << error << '\n';
        return 1;
    }
    out << read.name() << ": " << (read == mode ? "same" : "different") << '\n';
    return 0;
}
