#include "screenplay/mrvfountain.h"

#include "screenplay/mrvfountainsyntax_p.h"

#include <algorithm>

using namespace MrvFountain;

namespace {

// What Fountain keeps of the lines in each kind of paragraph.
struct KindRow
{
    MRVFountainElement::Kind kind;
    bool isOneLine;
    bool keepsIndent;
    bool keepsTrailingBlanks;
};

// clang-format off
constexpr KindRow kinds[] = {
    {MRVFountainElement::Action,        false, true,  true},
    {MRVFountainElement::SceneHeading,  true,  false, false},
    {MRVFountainElement::Character,     true,  false, false},
    {MRVFountainElement::Parenthetical, true,  false, false},
    {MRVFountainElement::Dialogue,      false, false, true},
    {MRVFountainElement::Lyrics,        false, false, false},
    {MRVFountainElement::Transition,    true,  false, false},
    {MRVFountainElement::Centered,      false, false, false},
    {MRVFountainElement::Note,          false, true,  true},
    {MRVFountainElement::Boneyard,      false, true,  true},
    {MRVFountainElement::Section,       true,  false, false},
    {MRVFountainElement::Synopsis,      true,  false, false},
    {MRVFountainElement::PageBreak,     true,  false, false},
};
// clang-format on
static_assert(sizeof kinds / sizeof *kinds == MRVFountainElement::KindCount);

QString cleanNote(const QString &text)
{
    QStringList lines = text.split(u'\n');
    for (QString &line : lines) {
        if (isBlankLine(QStringRef(&line))) {
            line.clear();
        }
    }
    return lines.join(u'\n');
}

QString cleanBoneyard(QString text)
{
    return text.replace(QLatin1String("*/"), QLatin1String("* /"));
}

void cleanRun(MRVFountainRun *run, bool isOneLine)
{
    run->text = withPlainLineEnds(run->text);
    if (run->kind == MRVFountainRun::Note) {
        run->text = cleanNote(run->text);
    } else if (run->kind == MRVFountainRun::Boneyard) {
        run->text = cleanBoneyard(run->text);
    } else {
        run->text.replace(u'\t', QLatin1String("    "));
        if (isOneLine) {
            run->text.replace(u'\n', u' ');
        }
    }
}

void removeLeadingBlanks(MRVFountainRuns *line)
{
    while (!line->isEmpty() && line->constFirst().kind == MRVFountainRun::Text) {
        QString &text = line->first().text;
        int blanks = 0;
        while (blanks < text.size() && isBlank(text.at(blanks))) {
            ++blanks;
        }
        text.remove(0, blanks);
        if (!text.isEmpty()) {
            return;
        }
        line->removeFirst();
    }
}

void removeTrailingBlanks(MRVFountainRuns *line)
{
    while (!line->isEmpty() && line->constLast().kind == MRVFountainRun::Text) {
        QString &text = line->last().text;
        int end = text.size();
        while (end > 0 && isBlank(text.at(end - 1))) {
            --end;
        }
        text.truncate(end);
        if (!text.isEmpty()) {
            return;
        }
        line->removeLast();
    }
}

bool isBlankRun(const MRVFountainRun &run)
{
    return run.kind == MRVFountainRun::Text && isBlankLine(QStringRef(&run.text));
}

// The runs, with the blanks at their ends as separate runs.
MRVFountainRuns partedAtBlanks(const MRVFountainRuns &line)
{
    MRVFountainRuns parts;
    for (const MRVFountainRun &run : line) {
        const QStringRef core = trimmed(QStringRef(&run.text));
        if (run.kind != MRVFountainRun::Text || core.size() == run.text.size()) {
            parts.append(run);
            continue;
        }
        const int start = core.isEmpty() ? run.text.size() : core.position();
        const int end = start + core.size();
        for (const QString &part :
             {run.text.left(start), run.text.mid(start, end - start), run.text.mid(end)}) {
            if (!part.isEmpty()) {
                parts.append({part, run.emphasis, MRVFountainRun::Text});
            }
        }
    }
    return parts;
}

template<typename Iterator>
void plainEdges(Iterator run, Iterator end, MRVFountainRun::Style style)
{
    bool isInside = false;
    for (; run != end; ++run) {
        if (!run->emphasis.testFlag(style)) {
            isInside = false;
        } else if (!isInside && isBlankRun(*run)) {
            run->emphasis.setFlag(style, false);
        } else {
            isInside = true;
        }
    }
}

void appendRun(MRVFountainRuns *runs, const MRVFountainRun &run)
{
    if (run.text.isEmpty()) {
        return;
    }
    if (run.kind == MRVFountainRun::Text && !runs->isEmpty()
        && runs->constLast().kind == MRVFountainRun::Text
        && runs->constLast().emphasis == run.emphasis) {
        runs->last().text += run.text;
    } else {
        runs->append(run);
    }
}

MRVFountainRuns normalizedLine(MRVFountainRuns line, const KindRow &row)
{
    if (!row.keepsIndent) {
        removeLeadingBlanks(&line);
    }
    const bool isBlankDialogue = row.kind == MRVFountainElement::Dialogue
        && std::all_of(line.cbegin(), line.cend(), isBlankRun);
    if (!row.keepsTrailingBlanks || isBlankDialogue) {
        removeTrailingBlanks(&line);
    }
    line = partedAtBlanks(line);
    for (const auto style :
         {MRVFountainRun::Italic, MRVFountainRun::Bold, MRVFountainRun::Underline}) {
        plainEdges(line.begin(), line.end(), style);
        plainEdges(line.rbegin(), line.rend(), style);
    }
    return line;
}

MRVFountainRuns joined(const QVector<MRVFountainRuns> &lines)
{
    MRVFountainRuns runs;
    for (int i = 0; i < lines.size(); ++i) {
        if (i > 0) {
            appendRun(&runs, {QStringLiteral("\n"), {}, MRVFountainRun::Text});
        }
        for (const MRVFountainRun &run : lines.at(i)) {
            appendRun(&runs, run);
        }
    }
    return runs;
}

QVector<MRVFountainRuns> normalizedLines(MRVFountainRuns runs, const KindRow &row)
{
    for (MRVFountainRun &run : runs) {
        cleanRun(&run, row.isOneLine);
    }
    runs.erase(std::remove_if(runs.begin(), runs.end(),
                              [](const MRVFountainRun &run) { return run.text.isEmpty(); }),
               runs.end());
    QVector<MRVFountainRuns> lines = linesOf(runs);
    for (MRVFountainRuns &line : lines) {
        line = normalizedLine(line, row);
    }
    if (row.kind == MRVFountainElement::Dialogue) {
        const auto isFull = [](const MRVFountainRuns &line) { return !line.isEmpty(); };
        lines.erase(lines.begin(), std::find_if(lines.begin(), lines.end(), isFull));
        lines.erase(std::find_if(lines.rbegin(), lines.rend(), isFull).base(), lines.end());
    }
    return lines;
}

QString textOfRuns(const MRVFountainRuns &runs)
{
    QString text;
    for (const MRVFountainRun &run : runs) {
        if (run.kind == MRVFountainRun::Text) {
            text += run.text;
        }
    }
    return text;
}

QString withoutStart(const QString &text, QLatin1String characters)
{
    int start = 0;
    while (start < text.size() && characters.contains(text.at(start))) {
        ++start;
    }
    return text.mid(start);
}

QString normalizedKey(const QString &given)
{
    QString key = withPlainLineEnds(given);
    key.replace(u'\n', u' ').replace(u':', u' ').remove(QChar::ObjectReplacementCharacter);
    if (key.contains(QLatin1String("[["))) {
        key.replace(u'[', u'(');
    }
    key.replace(QLatin1String("/*"), QLatin1String("/ *"));
    key = withoutStart(key, QLatin1String("!#=~>@. \t"));
    const QString line = key + u':';
    if (titleKeyLength(QStringRef(&line)) == 0) {
        // It begins like a heading, but no longer does without its first letter.
        key = withoutStart(key, QLatin1String("*_ \t")).mid(1);
    }
    key = trimmed(QStringRef(&key)).toString();
    return key.isEmpty() ? QStringLiteral("Notes") : key;
}

MRVFountainTitle normalizedTitle(const MRVFountainTitle &title)
{
    QVector<MRVFountainRuns> lines =
        normalizedLines(title.value, kinds[MRVFountainElement::Centered]);
    lines.erase(std::remove_if(lines.begin(), lines.end(),
                               [](const MRVFountainRuns &line) { return line.isEmpty(); }),
                lines.end());
    return {normalizedKey(title.key), joined(lines)};
}

} // namespace

namespace MrvFountain {

QVector<MRVFountainRuns> linesOf(const MRVFountainRuns &runs)
{
    QVector<MRVFountainRuns> lines(1);
    for (const MRVFountainRun &run : runs) {
        if (run.kind != MRVFountainRun::Text) {
            lines.last().append(run);
            continue;
        }
        const QVector<QStringRef> parts = run.text.splitRef(u'\n');
        for (int i = 0; i < parts.size(); ++i) {
            if (i > 0) {
                lines.append(MRVFountainRuns());
            }
            if (!parts.at(i).isEmpty()) {
                lines.last().append({parts.at(i).toString(), run.emphasis, run.kind});
            }
        }
    }
    return lines;
}

MRVFountainElement normalizedElement(const MRVFountainElement &element)
{
    using Element = MRVFountainElement;
    Element normal;
    normal.kind = element.kind;
    normal.dual = element.kind == Element::Character && element.dual;
    normal.apart = element.kind == Element::Lyrics && element.apart;
    normal.level = element.kind == Element::Section ? qBound(1, element.level, 255) : 1;
    if (element.kind == Element::SceneHeading) {
        for (const QChar c : element.sceneNumber) {
            if (isInSceneNumber(c)) {
                normal.sceneNumber += c;
            }
        }
    }
    if (element.kind == Element::Note || element.kind == Element::Boneyard) {
        QString text;
        for (const MRVFountainRun &run : element.runs) {
            text += run.text;
        }
        text = withPlainLineEnds(text);
        text = element.kind == Element::Note ? cleanNote(text) : cleanBoneyard(text);
        appendRun(&normal.runs, {text, {}, MRVFountainRun::Text});
    } else if (element.kind != Element::PageBreak) {
        normal.runs = joined(normalizedLines(element.runs, kinds[element.kind]));
    }
    return normal;
}

void normalizeTitles(QVector<MRVFountainTitle> *titles)
{
    for (MRVFountainTitle &title : *titles) {
        title = normalizedTitle(title);
    }
    // A lone "Key:" on the first line is not a title page: many scripts begin with "FADE IN:".
    if (titles->size() == 1 && titles->constFirst().value.isEmpty()) {
        titles->clear();
    }
}

void normalizeLyrics(QVector<MRVFountainElement> *elements)
{
    bool inSpeech = false;
    bool wereLyrics = false;
    for (MRVFountainElement &element : *elements) {
        const bool isLyrics = element.kind == MRVFountainElement::Lyrics;
        if (isLyrics) {
            element.apart = inSpeech && (element.apart || wereLyrics);
            inSpeech = inSpeech && !element.apart;
        } else {
            inSpeech = element.kind == MRVFountainElement::Character
                || element.kind == MRVFountainElement::Parenthetical
                || element.kind == MRVFountainElement::Dialogue;
        }
        wereLyrics = isLyrics;
    }
}

bool isKept(const MRVFountainElement &element)
{
    switch (element.kind) {
    case MRVFountainElement::SceneHeading:
        return !element.runs.isEmpty() || !element.sceneNumber.isEmpty();
    case MRVFountainElement::Character:
    case MRVFountainElement::Dialogue:
        return !element.runs.isEmpty();
    default:
        return true;
    }
}

} // namespace MrvFountain

QString MRVFountainElement::text() const
{
    return textOfRuns(runs);
}

QString MRVFountainTitle::text() const
{
    return textOfRuns(value);
}

QString MRVFountainScript::title(const QString &key) const
{
    const auto found =
        std::find_if(titles.cbegin(), titles.cend(), [&key](const MRVFountainTitle &title) {
            return title.key.compare(key, Qt::CaseInsensitive) == 0;
        });
    return found == titles.cend() ? QString() : found->text();
}

MRVFountainScript MRVFountainScript::normalized() const
{
    MRVFountainScript normal;
    normal.titles = titles;
    normalizeTitles(&normal.titles);
    for (const MRVFountainElement &element : elements) {
        const MRVFountainElement kept = normalizedElement(element);
        if (isKept(kept)) {
            normal.elements.append(kept);
        }
    }
    normalizeLyrics(&normal.elements);
    return normal;
}

QString MRVFountainScript::cueName(const QString &cue)
{
    const QStringRef text = trimmed(QStringRef(&cue));
    return trimmed(text.left(extensionStart(text))).toString();
}

int MRVFountainScript::cueNameLength(const QString &cue)
{
    return extensionStart(QStringRef(&cue));
}

QString MRVFountainScript::cueExtension(const QString &cue)
{
    const QStringRef text = trimmed(QStringRef(&cue));
    return trimmed(text.mid(extensionStart(text))).toString();
}

bool MRVFountainScript::isSceneHeading(const QString &text)
{
    return lineKind(QStringRef(&text), true) == HeadingLine;
}
