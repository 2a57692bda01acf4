#include "screenplay/mrvfountain.h"

#include "screenplay/mrvfountainsyntax_p.h"
#include "screenplay/mrvtitlepage_p.h"

using namespace MrvFountain;

namespace {

using Element = MRVFountainElement;
using Run = MRVFountainRun;

bool isOutline(Element::Kind kind)
{
    return kind == Element::Note || kind == Element::Boneyard || kind == Element::Section
        || kind == Element::Synopsis;
}

bool endsWithBlank(const MRVFountainRuns &line)
{
    return line.isEmpty() || isBlank(line.constLast().text.back());
}

void chopBlanks(MRVFountainRuns *line)
{
    while (!line->isEmpty() && isBlank(line->constLast().text.back())) {
        line->last().text.chop(1);
        if (line->constLast().text.isEmpty()) {
            line->removeLast();
        }
    }
}

// A line without what is hidden in it, and without the blanks that would be left on both its sides.
MRVFountainRuns printedLine(const MRVFountainRuns &line)
{
    MRVFountainRuns result;
    bool wasHidden = false;
    for (Run run : line) {
        if (run.kind != Run::Text) {
            wasHidden = true;
            continue;
        }
        if (wasHidden && endsWithBlank(result)) {
            int blanks = 0;
            while (blanks < run.text.size() && isBlank(run.text.at(blanks))) {
                ++blanks;
            }
            run.text.remove(0, blanks);
        }
        if (!run.text.isEmpty()) {
            result.append(run);
            wasHidden = false;
        }
    }
    if (wasHidden) {
        chopBlanks(&result);
    }
    return result;
}

// Lines that hold nothing but what is hidden are not there.
MRVFountainRuns printedRuns(const MRVFountainRuns &runs)
{
    MRVFountainRuns result;
    bool isFirst = true;
    const QVector<MRVFountainRuns> lines = linesOf(runs);
    for (const MRVFountainRuns &line : lines) {
        const MRVFountainRuns printed = printedLine(line);
        if (printed.isEmpty() && !line.isEmpty()) {
            continue;
        }
        if (!isFirst) {
            result.append({QStringLiteral("\n"), {}, Run::Text});
        }
        result += printed;
        isFirst = false;
    }
    return result;
}

} // namespace

MRVFountainScript MrvFountain::withoutPrivateText(const MRVFountainScript &script)
{
    MRVFountainScript result;
    for (const MRVFountainTitle &title : script.titles) {
        const MRVFountainRuns value = printedRuns(title.value);
        if (mrvIsTitleKeyPrinted(title.key) && value.isEmpty() == title.value.isEmpty()) {
            result.titles.append({title.key, value});
        }
    }
    for (Element element : script.elements) {
        const bool hadText = !element.runs.isEmpty();
        element.runs = printedRuns(element.runs);
        if (isOutline(element.kind)
            || (hadText && element.runs.isEmpty() && element.sceneNumber.isEmpty())) {
            element = Element(Element::Note, QString());
        }
        result.elements.append(element);
    }
    return result;
}

MRVFountainScript MRVFountainScript::printed() const
{
    const MRVFountainScript open = withoutPrivateText(normalized());
    MRVFountainScript result;
    result.titles = open.titles;
    bool wasHidden = false;
    for (Element element : open.elements) {
        if (element.kind == Element::Note) {
            wasHidden = true;
            continue;
        }
        const bool goesOn = wasHidden && element.kind == Element::Dialogue
            && !result.elements.isEmpty() && result.elements.constLast().kind == Element::Dialogue;
        if (goesOn) {
            MRVFountainRuns &runs = result.elements.last().runs;
            runs.append({QStringLiteral("\n"), {}, Run::Text});
            runs += element.runs;
        } else {
            // What was between them has kept these lyrics out of the speech before.
            element.apart = element.apart || (wasHidden && element.kind == Element::Lyrics);
            result.elements.append(element);
        }
        wasHidden = false;
    }
    return result.normalized();
}
