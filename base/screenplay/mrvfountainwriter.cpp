#include "screenplay/mrvfountain.h"

#include "screenplay/mrvfountainsyntax_p.h"
#include "screenplay/mrvtitlepage_p.h"

using namespace MrvFountain;

namespace {

using Element = MRVFountainElement;
using Run = MRVFountainRun;

// A line as it is written, and with objects as the reader sees it.
struct WrittenLine
{
    explicit WrittenLine(const MRVFountainRuns &line, int escaped = -1)
        : text(inlineText(line, escaped))
    {
        MRVFountainRuns seen = line;
        bool any = false;
        int position = 0;
        int seenEscaped = escaped;
        for (Run &run : seen) {
            if (run.kind == Run::Text) {
                position += run.text.size();
                continue;
            }
            run = {QString(QChar::ObjectReplacementCharacter), run.emphasis, Run::Text};
            any = true;
            seenEscaped += position <= escaped ? 1 : 0;
        }
        view = any ? inlineText(seen, seenEscaped) : text;
    }

    LineKind kind(bool nextBlank) const { return lineKind(QStringRef(&view), nextBlank); }
    bool isObject() const
    {
        return trimmed(QStringRef(&view)) == QString(QChar::ObjectReplacementCharacter);
    }

    QString text;
    QString view;
};

class FountainWriter
{
public:
    QString text(const MRVFountainScript &script);
    /** The text that text() has written, without the lines that separate elements. */
    const TextRanges &ranges() const { return m_ranges; }

private:
    void addTitle(const MRVFountainTitle &title, const MRVFountainTitle *next);
    void addElement(const Element &element, const Element *next);
    void addEmptyLine();
    void separate();
    void addLine(const QString &line);
    void addAction(const Element &element);
    void addHeading(const Element &element);
    void addCue(const Element &element, const Element *next);
    void addSpeech(const Element &element);
    void addTransition(const WrittenLine &line);
    static bool speaksIn(const Element *next);
    static int firstShown(const MRVFountainRuns &line);

    QString m_text;
    bool m_isSeparated = false; // an empty line was written since the last text
    bool m_inSpeech = false;
    Element::Kind m_last = Element::Action;
    int m_start = 0; // of the element that is being written
    TextRanges m_ranges;
};

QString FountainWriter::text(const MRVFountainScript &script)
{
    for (int i = 0; i < script.titles.size(); ++i) {
        addTitle(script.titles.at(i),
                 i + 1 < script.titles.size() ? &script.titles.at(i + 1) : nullptr);
    }
    m_ranges.titles.end = m_text.size();
    const QVector<Element> &elements = script.elements;
    for (int i = 0; i < elements.size(); ++i) {
        addElement(elements.at(i), i + 1 < elements.size() ? &elements.at(i + 1) : nullptr);
        m_ranges.elements.append({m_start, m_text.size()});
    }
    const int end = m_text.indexOf(u'\n');
    const QStringRef first = m_text.leftRef(end);
    const QStringRef second = m_text.midRef(end + 1, m_text.indexOf(u'\n', end + 1) - end - 1);
    if (script.titles.isEmpty() && beginsTitlePage(first, second)) {
        m_text.prepend(u'\n');
        for (Range &range : m_ranges.elements) {
            range = {range.start + 1, range.end + 1};
        }
    }
    return m_text;
}

void FountainWriter::addTitle(const MRVFountainTitle &title, const MRVFountainTitle *next)
{
    const QVector<MRVFountainRuns> lines = linesOf(title.value);
    // Only an indent shows that the next line, of a key that nobody knows, is not in the address.
    const bool indents =
        lines.size() > 1 || (next && isAddressKey(title.key) && !mrvIsTitleKeyPrinted(next->key));
    if (!indents) {
        const QString value = inlineText(lines.constFirst());
        addLine(title.key + (value.isEmpty() ? QLatin1String(":") : QLatin1String(": ")) + value);
        return;
    }
    addLine(title.key + u':');
    for (const MRVFountainRuns &line : lines) {
        addLine(QLatin1String("    ")
                + (line.isEmpty() ? QStringLiteral("[[]]") : inlineText(line)));
    }
}

void FountainWriter::addLine(const QString &line)
{
    m_text += line;
    m_text += u'\n';
}

void FountainWriter::addEmptyLine()
{
    if (!m_isSeparated) {
        m_text += u'\n';
    }
    m_start = m_text.size();
    m_text += u'\n';
    m_isSeparated = true;
}

void FountainWriter::separate()
{
    if (!m_isSeparated && !m_text.isEmpty()) {
        m_text += u'\n';
    }
    m_isSeparated = false;
    m_start = m_text.size();
}

void FountainWriter::addElement(const Element &element, const Element *next)
{
    const auto line = [&element] { return WrittenLine(element.runs); };
    const bool isSpoken = element.kind == Element::Parenthetical
        || element.kind == Element::Dialogue || element.kind == Element::Lyrics;
    const bool isEmpty = element.kind == Element::Action && element.runs.isEmpty();
    if (isSpoken) {
        addSpeech(element);
    } else if (isEmpty) {
        addEmptyLine();
    } else {
        separate();
    }
    switch (element.kind) {
    case Element::Action:
        if (!isEmpty) {
            addAction(element);
        }
        break;
    case Element::SceneHeading:
        addHeading(element);
        break;
    case Element::Character:
        addCue(element, next);
        break;
    case Element::Transition:
        addTransition(line());
        break;
    case Element::Centered: {
        const QVector<MRVFountainRuns> lines = linesOf(element.runs);
        for (const MRVFountainRuns &runs : lines) {
            addLine(QLatin1String("> ") + inlineText(runs) + QLatin1String(" <"));
        }
        break;
    }
    case Element::Note:
        addLine(objectText({element.text(), {}, Run::Note}));
        break;
    case Element::Boneyard:
        addLine(objectText({element.text(), {}, Run::Boneyard}));
        break;
    case Element::Section:
        addLine(QString(element.level, u'#') + QLatin1String(element.runs.isEmpty() ? "" : " ")
                + line().text);
        break;
    case Element::Synopsis:
        addLine(element.runs.isEmpty() ? QStringLiteral("=") : QLatin1String("= ") + line().text);
        break;
    case Element::PageBreak:
        addLine(QStringLiteral("==="));
        break;
    case Element::Parenthetical:
    case Element::Dialogue:
    case Element::Lyrics:
        break;
    }
    m_inSpeech = element.kind == Element::Character || (isSpoken && m_inSpeech);
    m_last = element.kind;
}

// A line of action that would be read as another element gets a "!".
void FountainWriter::addAction(const Element &element)
{
    const QVector<MRVFountainRuns> lines = linesOf(element.runs);
    const bool single = lines.size() == 1;
    for (int i = 0; i < lines.size(); ++i) {
        const WrittenLine line(lines.at(i));
        bool force =
            isBlankLine(QStringRef(&line.view)) || trimmed(QStringRef(&line.view)).startsWith(u'!');
        if (i == 0) {
            const bool cutBehind = !single && WrittenLine(lines.at(1)).isObject();
            force = force || line.isObject() || line.kind(single) != ActionLine
                || (cutBehind && line.kind(true) != ActionLine);
        } else {
            // Some would not need it here, but other programs take them for what they begin like.
            const LineKind kind = line.kind(true);
            force = force || (kind != ActionLine && kind != HeadingLine && kind != TransitionLine);
        }
        addLine(force ? u'!' + line.text : line.text);
    }
}

void FountainWriter::addHeading(const Element &element)
{
    WrittenLine line(element.runs);
    if (!element.sceneNumber.isEmpty()) {
        const QString number = QLatin1String(" #") + element.sceneNumber + u'#';
        line.text += number;
        line.view += number;
    } else if (!sceneNumber(QStringRef(&line.view)).isEmpty()) {
        line = WrittenLine(element.runs, element.text().lastIndexOf(u'#'));
    }
    if (line.kind(true) == HeadingLine) {
        addLine(line.text);
        return;
    }
    int slashes = 0;
    while (slashes < line.text.size() && line.text.at(slashes) == u'\\') {
        ++slashes;
    }
    const bool escapes = slashes < line.text.size() && isEscapable(line.text.at(slashes));
    const QString forced = u'.' + line.view;
    const bool holds =
        slashes == 0 ? lineKind(QStringRef(&forced), true) == ForcedHeadingLine : escapes;
    addLine(QLatin1String(holds ? "." : ".\\") + line.text);
}

// Whether dialogue follows a cue directly, so that it is read as a cue.
bool FountainWriter::speaksIn(const Element *next)
{
    if (!next) {
        return false;
    }
    if (next->kind == Element::Dialogue) {
        return !WrittenLine(linesOf(next->runs).constFirst()).isObject();
    }
    return next->kind == Element::Parenthetical || (next->kind == Element::Lyrics && !next->apart);
}

void FountainWriter::addCue(const Element &element, const Element *next)
{
    WrittenLine line(element.runs);
    if (line.text.endsWith(u'^') && !isEscaped(QStringRef(&line.text), line.text.size() - 1)) {
        line.text.insert(line.text.size() - 1, u'\\');
        line.view.insert(line.view.size() - 1, u'\\');
    }
    if (element.dual) {
        line.text += QLatin1String(" ^");
        line.view += QLatin1String(" ^");
    }
    const bool plain =
        speaksIn(next) && line.kind(false) == CueLine && line.kind(true) != TransitionLine;
    addLine(plain ? line.text : u'@' + line.text);
}

// The position in a line's text of its first character that is no blank.
int FountainWriter::firstShown(const MRVFountainRuns &line)
{
    int position = 0;
    for (const Run &run : line) {
        for (const QChar c : run.kind == Run::Text ? run.text : QString()) {
            if (!isBlank(c)) {
                return position;
            }
            ++position;
        }
    }
    return -1;
}

void FountainWriter::addSpeech(const Element &element)
{
    const bool isLyrics = element.kind == Element::Lyrics;
    const bool isNew = !m_inSpeech || element.apart
        || (m_last == Element::Dialogue && element.kind == Element::Dialogue);
    m_start = m_text.size();
    if (isNew) {
        separate();
        m_inSpeech = !isLyrics;
        if (!isLyrics) {
            addLine(QStringLiteral("@"));
        }
    }
    if (element.kind == Element::Parenthetical) {
        addLine(u'(' + inlineText(element.runs) + u')');
        return;
    }
    const QVector<MRVFountainRuns> lines = linesOf(element.runs);
    for (const MRVFountainRuns &runs : lines) {
        const WrittenLine line(runs);
        const QStringRef view(&line.view);
        if (isLyrics) {
            addLine(line.text.isEmpty() ? QStringLiteral("~") : QLatin1String("~ ") + line.text);
        } else if (runs.isEmpty()) {
            addLine(QStringLiteral("  "));
        } else if (isParenthetical(view) || trimmed(view).startsWith(u'~')
                   || interruptsSpeech(line.kind(true))) {
            addLine(inlineText(runs, firstShown(runs)));
        } else {
            addLine(line.text);
        }
    }
}

void FountainWriter::addTransition(const WrittenLine &line)
{
    if (line.kind(true) == TransitionLine) {
        addLine(line.text);
        return;
    }
    QString text = line.text;
    if (text.endsWith(u'<') && !isEscaped(QStringRef(&text), text.size() - 1)) {
        text.insert(text.size() - 1, u'\\');
    }
    addLine(text.isEmpty() ? QStringLiteral(">") : QLatin1String("> ") + text);
}

} // namespace

QString MrvFountain::textOf(const MRVFountainScript &normal, TextRanges *ranges)
{
    FountainWriter writer;
    const QString text = writer.text(normal);
    if (ranges) {
        *ranges = writer.ranges();
    }
    return text;
}

QString MRVFountainScript::toText() const
{
    return textOf(normalized());
}
