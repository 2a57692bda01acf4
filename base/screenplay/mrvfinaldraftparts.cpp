#include "screenplay/mrvfinaldraftparts_p.h"

#include "screenplay/mrvscriptxml_p.h"

namespace {

using Element = MRVFountainElement;
using Run = MRVFountainRun;

// A scene that was cut, as it would be typed, on lines of its own: without the marks around it, it
// lives again.
QString omittedText(const std::vector<MrvFinalDraftParagraph> &paragraphs)
{
    MRVFountainScript scene;
    for (const MrvFinalDraftParagraph &paragraph : paragraphs) {
        Element element = paragraph.element;
        element.runs = mrvRunsOf(paragraph.pieces);
        for (Run &run : element.runs) {
            // Cut text cannot be cut again.
            run.kind = run.kind == Run::Boneyard ? Run::Text : run.kind;
        }
        if (element.kind == Element::Boneyard) {
            element.kind = Element::Action;
        } else if (element.kind == Element::Parenthetical) {
            mrvRemoveBrackets(&element.runs);
        }
        scene.elements.append(element);
    }
    return u'\n' + scene.toText();
}

} // namespace

MrvFinalDraftPiece mrvAddedPiece(const QString &text)
{
    MrvFinalDraftPiece piece;
    piece.text = text;
    return piece;
}

QString mrvTextOf(const MrvFinalDraftPieces &pieces)
{
    QString text;
    for (const MrvFinalDraftPiece &piece : pieces) {
        text += piece.kind == Run::Text ? piece.text : QString();
    }
    return text;
}

MRVFountainRuns mrvRunsOf(const MrvFinalDraftPieces &pieces)
{
    MRVFountainRuns runs;
    for (const MrvFinalDraftPiece &piece : pieces) {
        const bool continues = !piece.begins && !runs.isEmpty()
            && runs.constLast().kind == piece.kind && runs.constLast().emphasis == piece.emphasis;
        const QString text =
            piece.capitals == MrvFinalDraftPiece::Shown ? piece.text.toUpper() : piece.text;
        if (continues) {
            runs.last().text += text;
        } else {
            runs.append({text, piece.emphasis, piece.kind});
        }
    }
    return runs;
}

MRVFountainScript MrvFinalDraftParts::script() const
{
    MRVFountainScript script;
    script.titles.reserve(int(titles.size()));
    for (const MrvFinalDraftParagraph &title : titles) {
        script.titles.append({title.type, mrvRunsOf(title.pieces)});
    }
    script.elements.reserve(int(elements.size()));
    for (const MrvFinalDraftParagraph &paragraph : elements) {
        Element element = paragraph.element;
        element.runs = mrvRunsOf(paragraph.pieces);
        if (element.kind == Element::Parenthetical) {
            mrvRemoveBrackets(&element.runs);
        }
        if (!paragraph.omitted.empty()) {
            element.runs.prepend({omittedText(paragraph.omitted), {}, Run::Boneyard});
        }
        script.elements.append(element);
    }
    return script;
}

QStringList MrvFinalDraftLosses::lines() const
{
    QStringList lines;
    for (const QPair<QString, int> &type : types) {
        lines.append(tr("paragraphs of the type \"%1\" become another kind: %2")
                         .arg(type.first, QString::number(type.second)));
    }
    if (alternatives > 0) {
        lines.append(tr("alternatives become notes: %1").arg(alternatives));
    }
    if (revisions > 0) {
        lines.append(tr("texts lose the mark that they were revised: %1").arg(revisions));
    }
    if (!styles.isEmpty()) {
        lines.append(tr("styles of text are left out: %1").arg(styles.join(QLatin1String(", "))));
    }
    if (!sections.isEmpty()) {
        lines.append(
            tr("the text of sections is left out: %1").arg(sections.join(QLatin1String(", "))));
    }
    return lines;
}

MrvAttributeRange mrvAttributeRange(const QString &xml, int start, int end, const char *name)
{
    const auto isSpace = [&xml](int at) { return xml.at(at).isSpace(); };
    int at = start;
    while (at < end && !isSpace(at)) { // the element's name
        ++at;
    }
    while (at < end) {
        while (at < end && isSpace(at)) {
            ++at;
        }
        const int nameStart = at;
        while (at < end && !isSpace(at) && xml.at(at) != u'=') {
            ++at;
        }
        const QStringView found = QStringView(xml).mid(nameStart, at - nameStart);
        while (at < end && xml.at(at) != u'"' && xml.at(at) != u'\'') {
            ++at;
        }
        if (at >= end) {
            break;
        }
        const int close = xml.indexOf(xml.at(at), at + 1);
        if (found == QLatin1String(name)) {
            return {at + 1, close};
        }
        at = close + 1;
    }
    return {};
}
