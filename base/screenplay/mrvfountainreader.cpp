#include "screenplay/mrvfountain.h"

#include "screenplay/mrvfountainsyntax_p.h"
#include "screenplay/mrvtitlepage_p.h"

#include <climits>

using namespace MrvFountain;

namespace {

using Element = MRVFountainElement;
using Run = MRVFountainRun;

// Finds notes and boneyards, which may span several lines.
class ObjectScanner
{
public:
    explicit ObjectScanner(const QString &text)
        : m_text(text)
    {
    }

    QVector<Object> objects();
    /** The marks that objects() took for text. */
    const QVector<int> &unmatched() const { return m_unmatched; }

private:
    void addUnmatched(int at);
    int noteEnd(int start);
    int boneyardEnd(int start);
    bool endsParagraph(int lineEnd) const;

    const QString &m_text;
    // Once a search for an end has failed, all later ones fail, too.
    int m_noNoteBefore = 0;
    bool m_noBoneyards = false;
    QVector<int> m_unmatched;
};

QVector<Object> ObjectScanner::objects()
{
    QVector<Object> found;
    int at = 0;
    while (at < m_text.size()) {
        const QChar c = m_text.at(at);
        const QChar next = at + 1 < m_text.size() ? m_text.at(at + 1) : QChar();
        int end = -1;
        if (c == u'\\') {
            int after = at;
            while (after < m_text.size() && m_text.at(after) == u'\\') {
                ++after;
            }
            const bool escapes =
                (after - at) % 2 != 0 && after < m_text.size() && isEscapable(m_text.at(after));
            at = escapes ? after + 1 : after;
            continue;
        }
        if (c == u'[' && next == u'[' && (end = noteEnd(at + 2)) >= 0) {
            found.append({at, end, Run::Note, noteText(m_text.midRef(at + 2, end - at - 4))});
        } else if (c == u'/' && next == u'*' && (end = boneyardEnd(at + 2)) >= 0) {
            found.append({at, end, Run::Boneyard, m_text.mid(at + 2, end - at - 4)});
        }
        if (end < 0) {
            addUnmatched(at);
        }
        at = end >= 0 ? end : at + 1;
    }
    found.append({INT_MAX, INT_MAX, Run::Note, QString()}); // for callers that look at the next one
    return found;
}

void ObjectScanner::addUnmatched(int at)
{
    const QStringRef mark = m_text.midRef(at, 2);
    const bool isMark = mark == QLatin1String("[[") || mark == QLatin1String("]]")
        || mark == QLatin1String("/*")
        // Text may end with emphasis before a slash.
        || (mark == QLatin1String("*/") && (at == 0 || m_text.at(at - 1).isSpace()));
    const bool isAgain = !m_unmatched.isEmpty() && m_unmatched.constLast() == at - 1;
    if (isMark && !isAgain) {
        m_unmatched.append(at);
    }
}

// Whether the line after a line's end is empty: one blank counts as empty, two are deliberate.
bool ObjectScanner::endsParagraph(int lineEnd) const
{
    int blanks = 0;
    int at = lineEnd + 1;
    while (at < m_text.size() && blanks < 2 && isBlank(m_text.at(at))) {
        ++at;
        ++blanks;
    }
    return blanks < 2 && (at == m_text.size() || m_text.at(at) == u'\n');
}

int ObjectScanner::noteEnd(int start)
{
    if (start < m_noNoteBefore) {
        return -1;
    }
    int at = start;
    int backslashes = 0;
    for (; at < m_text.size(); ++at) {
        const QChar c = m_text.at(at);
        if (c == u']' && backslashes % 2 == 0 && at + 1 < m_text.size()
            && m_text.at(at + 1) == u']') {
            return at + 2;
        }
        if (c == u'\n' && endsParagraph(at)) {
            break;
        }
        backslashes = c == u'\\' ? backslashes + 1 : 0;
    }
    m_noNoteBefore = at;
    return -1;
}

int ObjectScanner::boneyardEnd(int start)
{
    const int end = m_noBoneyards ? -1 : m_text.indexOf(QLatin1String("*/"), start);
    m_noBoneyards = end < 0;
    return end < 0 ? -1 : end + 2;
}

// A line, with the line ends within its notes and boneyards.
struct Line
{
    int start;
    int end;
    int firstObject;
    int endObject;
    QString view; // with U+FFFC for each object

    bool isEmpty() const { return isBlankLine(QStringRef(&view)); }
};

// They are surrounded only by marks and objects.
void removeParentheses(MRVFountainRuns *runs)
{
    for (Run &run : *runs) {
        const int open = run.kind == Run::Text ? run.text.indexOf(u'(') : -1;
        if (open >= 0) {
            run.text.remove(open, 1);
            break;
        }
    }
    for (int i = runs->size() - 1; i >= 0; --i) {
        Run &run = (*runs)[i];
        const int close = run.kind == Run::Text ? run.text.lastIndexOf(u')') : -1;
        if (close >= 0) {
            run.text.remove(close, 1);
            break;
        }
    }
}

class FountainReader
{
public:
    explicit FountainReader(const QString &text)
        : m_text(text)
        , m_objects(ObjectScanner(text).objects())
    {
        readLines();
    }

    MRVFountainScript script();
    /** Of the text that script() has read. */
    const TextRanges &ranges() const { return m_ranges; }

private:
    void readLines();
    QStringRef view(int line) const;
    bool isEmpty(int line) const;
    bool isOnly(int line, Run::Kind kind) const;
    bool endsBefore(int line, bool passBoneyards) const;

    int readTitles();
    void addTitleLine(MRVFountainTitle *title, const Line &line, int from) const;

    int readParagraph(int line);
    int readAction(int line);
    int readActionLines(int line);
    bool isOutline(int line) const;
    bool goesOnWithAction(int line) const;
    int readDialogue(int line);
    int readOutline(int line);
    int readLines(Element::Kind kind, int line, int end);
    void readHeading(const Line &line, bool forced);
    void readCue(const Line &line, bool forced);
    void addElement(const Element &element);
    void addOneLine(Element::Kind kind, const Line &line, int markLength);
    void addObject(Element::Kind kind, const Line &line);
    MRVFountainRuns runs(const Line &line, int start, int end) const;
    bool isMereBackslash(int at) const;
    int contentStart(const Line &line) const;
    int contentEnd(const Line &line) const;
    int textPosition(const Line &line, int viewPosition) const;
    MRVFountainRuns runsAround(const Line &line, int start, const Range &number) const;
    int endOfKind(int line, LineKind kind) const;
    LineKind kindOf(int line) const;
    int startOf(int line) const
    {
        return line < m_lines.size() ? m_lines.at(line).start : m_text.size();
    }
    void placeElements(int line, int end);

    const QString &m_text;
    const QVector<Object> m_objects;
    QVector<Line> m_lines;
    MRVFountainScript m_script;
    TextRanges m_ranges;
};

void FountainReader::readLines()
{
    int object = 0;
    Line line{0, 0, 0, 0, QString()};
    int at = 0;
    const auto endLine = [&](int end) {
        line.end = end;
        line.endObject = object;
        m_lines.append(line);
        line = {end + 1, 0, object, 0, QString()};
    };
    int plain = 0;
    while (at < m_text.size()) {
        if (object < m_objects.size() && at == m_objects.at(object).start) {
            line.view += m_text.midRef(plain, at - plain);
            line.view += QChar(QChar::ObjectReplacementCharacter);
            plain = at = m_objects.at(object++).end;
        } else if (m_text.at(at) == u'\n') {
            line.view += m_text.midRef(plain, at - plain);
            endLine(at);
            plain = ++at;
        } else {
            ++at;
        }
    }
    if (line.start < m_text.size()) {
        line.view += m_text.midRef(plain);
        endLine(m_text.size());
    }
}

QStringRef FountainReader::view(int line) const
{
    return line < m_lines.size() ? QStringRef(&m_lines.at(line).view) : QStringRef();
}

bool FountainReader::isEmpty(int line) const
{
    return line >= m_lines.size() || m_lines.at(line).isEmpty();
}

bool FountainReader::isOnly(int line, Run::Kind kind) const
{
    const Line &given = m_lines.at(line);
    return given.endObject == given.firstObject + 1 && m_objects.at(given.firstObject).kind == kind
        && trimmed(QStringRef(&given.view)).size() == 1;
}

// Whether a paragraph ends before this line. A boneyard is skipped or counts as an empty line.
bool FountainReader::endsBefore(int line, bool passBoneyards) const
{
    while (!isEmpty(line) && isOnly(line, Run::Boneyard)) {
        if (!passBoneyards) {
            return true;
        }
        ++line;
    }
    return isEmpty(line);
}

LineKind FountainReader::kindOf(int line) const
{
    const LineKind kind = lineKind(view(line), endsBefore(line + 1, false));
    // A transition rather than a character of that name whose only dialogue is a boneyard.
    if (lineKind(trimmed(view(line)), endsBefore(line + 1, false)) == TransitionLine
        || endsBefore(line + 1, true)) {
        return kind;
    }
    const LineKind spoken = lineKind(view(line), false);
    return spoken == CueLine ? spoken : kind;
}

int FountainReader::contentStart(const Line &line) const
{
    int start = line.start;
    while (start < line.end && isBlank(m_text.at(start))) {
        ++start;
    }
    return start;
}

int FountainReader::contentEnd(const Line &line) const
{
    int end = line.end;
    while (end > line.start && isBlank(m_text.at(end - 1))) {
        --end;
    }
    return end;
}

MRVFountainRuns FountainReader::runs(const Line &line, int start, int end) const
{
    return runsOf(m_text, start, end,
                  line.firstObject < line.endObject ? &m_objects.at(line.firstObject) : nullptr);
}

void FountainReader::addElement(const Element &element)
{
    const Element normal = normalizedElement(element);
    if (isKept(normal)) {
        m_script.elements.append(normal);
    }
}

void FountainReader::addOneLine(Element::Kind kind, const Line &line, int markLength)
{
    Element element;
    element.kind = kind;
    element.runs = runs(line, contentStart(line) + markLength, contentEnd(line));
    addElement(element);
}

void FountainReader::addObject(Element::Kind kind, const Line &line)
{
    addElement(Element(kind, m_objects.at(line.firstObject).text));
}

// Records the lines of the elements that were added last.
void FountainReader::placeElements(int line, int end)
{
    while (m_ranges.elements.size() < m_script.elements.size()) {
        m_ranges.elements.append({startOf(line), startOf(end)});
    }
}

MRVFountainScript FountainReader::script()
{
    int line = readTitles();
    normalizeTitles(&m_script.titles);
    if (m_script.titles.isEmpty()) {
        line = 0; // a key alone is text
    }
    m_ranges.titles = {0, startOf(line)};
    while (line < m_lines.size()) {
        const int first = line;
        for (; line < m_lines.size() && isEmpty(line); ++line) {
            // One empty line separates paragraphs; further ones are deliberate.
            if (line > first) {
                m_script.elements.append(Element());
                placeElements(line, line + 1);
            }
        }
        if (line < m_lines.size()) {
            const int start = line;
            line = readParagraph(line);
            placeElements(start, line);
        }
    }
    normalizeLyrics(&m_script.elements);
    return m_script;
}

void FountainReader::addTitleLine(MRVFountainTitle *title, const Line &line, int from) const
{
    if (from >= line.end) {
        return;
    }
    if (!title->value.isEmpty()) {
        title->value.append({QStringLiteral("\n"), {}, Run::Text});
    }
    title->value += runs(line, from, line.end);
}

int FountainReader::readTitles()
{
    if (m_lines.isEmpty() || !beginsTitlePage(view(0), view(1))) {
        return 0;
    }
    int line = 0;
    bool isAddress = false;
    for (; !isEmpty(line); ++line) {
        const Line &given = m_lines.at(line);
        const QStringRef text = trimmed(view(line));
        const int length = isTitleIndented(view(line)) ? 0 : titleKeyLength(text);
        const QString key = text.left(length).toString();
        if (length > 0 && (!isAddress || mrvIsTitleKeyPrinted(key))) {
            m_script.titles.append({key, {}});
            addTitleLine(&m_script.titles.last(), given, contentStart(given) + length + 1);
            isAddress = isAddressKey(key);
        } else if (isTitleIndented(view(line))) {
            addTitleLine(&m_script.titles.last(), given, given.start);
            isAddress = false; // what belongs to it shows in the indent
        } else if (length > 0 || isTitleText(text)) {
            addTitleLine(&m_script.titles.last(), given, given.start);
        } else {
            break;
        }
    }
    return line;
}

// @return the line after the paragraph, or after that part of it that is an element.
int FountainReader::readParagraph(int line)
{
    const Line &given = m_lines.at(line);
    if (isOnly(line, Run::Note)) {
        addObject(Element::Note, given);
        return line + 1;
    }
    if (isOnly(line, Run::Boneyard)) {
        addObject(Element::Boneyard, given);
        return line + 1;
    }
    const LineKind kind = kindOf(line);
    switch (kind) {
    case HeadingLine:
    case ForcedHeadingLine:
        readHeading(given, kind == ForcedHeadingLine);
        return line + 1;
    case CueLine:
    case ForcedCueLine:
        readCue(given, kind == ForcedCueLine);
        placeElements(line, line + 1);
        return readDialogue(line + 1);
    case TransitionLine:
    case ForcedTransitionLine:
        addOneLine(Element::Transition, given, kind == ForcedTransitionLine ? 1 : 0);
        return line + 1;
    case LyricsLine:
        line = readLines(Element::Lyrics, line, endOfKind(line, LyricsLine));
        m_script.elements.last().apart = true;
        return line;
    case CenteredLine:
        return readLines(Element::Centered, line, endOfKind(line, CenteredLine));
    case SectionLine:
    case SynopsisLine:
        return readOutline(line);
    case PageBreakLine:
        addElement(Element(Element::PageBreak, QString()));
        return line + 1;
    default:
        return readAction(line);
    }
}

int FountainReader::readOutline(int line)
{
    const QStringRef text = trimmed(view(line));
    if (text.startsWith(u'=')) {
        addOneLine(Element::Synopsis, m_lines.at(line), 1);
        return line + 1;
    }
    int level = 1;
    while (level < 255 && level < text.size() && text.at(level) == u'#') {
        ++level;
    }
    const int before = m_script.elements.size();
    addOneLine(Element::Section, m_lines.at(line), level);
    m_script.elements[before].level = level;
    return line + 1;
}

int FountainReader::endOfKind(int line, LineKind kind) const
{
    while (!isEmpty(line) && lineKind(view(line), true) == kind) {
        ++line;
    }
    return line;
}

// Lyrics, centred text and dialogue: lines of one kind, each with its marks.
int FountainReader::readLines(Element::Kind kind, int line, int end)
{
    Element element;
    element.kind = kind;
    for (int first = line; line < end; ++line) {
        const Line &given = m_lines.at(line);
        if (line > first) {
            element.runs.append({QStringLiteral("\n"), {}, Run::Text});
        }
        const int before = kind == Element::Dialogue ? 0 : 1;
        const int after = kind == Element::Centered ? 1 : 0;
        // Blanks after dialogue stay.
        const int last = kind == Element::Dialogue ? given.end : contentEnd(given) - after;
        element.runs += runs(given, contentStart(given) + before, last);
    }
    addElement(element);
    return end;
}

void FountainReader::readHeading(const Line &line, bool forced)
{
    Element element;
    element.kind = Element::SceneHeading;
    int start = contentStart(line) + (forced ? 1 : 0);
    if (forced && isMereBackslash(start)) {
        ++start;
    }
    const Range number = sceneNumber(QStringRef(&line.view));
    if (number.isEmpty()) {
        element.runs = runs(line, start, contentEnd(line));
    } else {
        element.sceneNumber = line.view.mid(number.start + 1, number.end - number.start - 2);
        element.runs = runsAround(line, start, number);
    }
    addElement(element);
}

// Whether a backslash stands after the period of a forced heading that escapes nothing.
bool FountainReader::isMereBackslash(int at) const
{
    int end = at;
    while (end < m_text.size() && m_text.at(end) == u'\\') {
        ++end;
    }
    return end > at && (end == m_text.size() || !isEscapable(m_text.at(end)));
}

int FountainReader::textPosition(const Line &line, int viewPosition) const
{
    int position = line.start + viewPosition;
    for (int i = line.firstObject; i < line.endObject && m_objects.at(i).start < position; ++i) {
        position += m_objects.at(i).end - m_objects.at(i).start - 1;
    }
    return position;
}

// The text of a heading before and after its number. Emphasis marks may be around all of it.
MRVFountainRuns FountainReader::runsAround(const Line &line, int start, const Range &number) const
{
    int end = qMax(start, textPosition(line, number.start));
    while (end > start && isBlank(m_text.at(end - 1))) {
        --end;
    }
    int after = textPosition(line, number.end);
    while (after < line.end && isBlank(m_text.at(after))) {
        ++after;
    }
    QString text = m_text.mid(start, end - start);
    if (line.view.midRef(number.end).trimmed().startsWith(QChar::ObjectReplacementCharacter)) {
        text += u' ';
    }
    const int shift = after - text.size();
    text += m_text.midRef(after, line.end - after);
    QVector<Object> moved = m_objects.mid(line.firstObject, line.endObject - line.firstObject);
    for (Object &object : moved) {
        const int by = object.start < after ? start : shift;
        object.start -= by;
        object.end -= by;
    }
    moved.append(m_objects.constLast());
    return runsOf(text, 0, text.size(), moved.constData());
}

void FountainReader::readCue(const Line &line, bool forced)
{
    Element element;
    element.kind = Element::Character;
    int end = contentEnd(line);
    const QStringRef text = trimmed(QStringRef(&line.view));
    if (text.endsWith(u'^') && !isEscaped(text, text.size() - 1)) {
        element.dual = true;
        --end;
    }
    element.runs = runs(line, contentStart(line) + (forced ? 1 : 0), end);
    addElement(element);
}

int FountainReader::readDialogue(int line)
{
    // A line of two blanks keeps a speech together where more of it follows.
    const auto goesOn = [this](int at) {
        return at < m_lines.size() && (!isEmpty(at) || m_lines.at(at).view.size() > 1);
    };
    const auto isSpoken = [this](int at) {
        return !isParenthetical(view(at)) && !trimmed(view(at)).startsWith(u'~')
            && !interruptsSpeech(lineKind(view(at), true));
    };
    while (goesOn(line)) {
        const int start = line;
        if (isEmpty(line)) {
            ++line; // it means nothing except between lines of dialogue
        } else if (isOutline(line)) {
            line = readOutline(line);
        } else if (lineKind(view(line), true) == PageBreakLine) {
            return line;
        } else if (isParenthetical(view(line))) {
            Element element;
            element.kind = Element::Parenthetical;
            const Line &given = m_lines.at(line);
            element.runs = runs(given, contentStart(given), contentEnd(given));
            removeParentheses(&element.runs);
            addElement(element);
            ++line;
        } else if (!isSpoken(line)) {
            line = readLines(Element::Lyrics, line, endOfKind(line, LyricsLine));
        } else {
            int end = line + 1;
            while (goesOn(end) && (isEmpty(end) || isSpoken(end))) {
                ++end;
            }
            line = readLines(Element::Dialogue, line, end);
        }
        placeElements(start, line);
    }
    return line;
}

int FountainReader::readAction(int line)
{
    do {
        const int start = line;
        line = readActionLines(line);
        placeElements(start, line);
        while (isOutline(line)) {
            line = readOutline(line);
            placeElements(line - 1, line);
        }
        // The rest of the paragraph is action, too, even if it is in capitals.
    } while (isOutline(line - 1) && goesOnWithAction(line));
    return line;
}

bool FountainReader::isOutline(int line) const
{
    const LineKind kind = lineKind(view(line), true);
    return kind == SectionLine || kind == SynopsisLine;
}

bool FountainReader::goesOnWithAction(int line) const
{
    const LineKind kind = lineKind(view(line), true);
    return !isEmpty(line) && !isOnly(line, Run::Note) && !isOnly(line, Run::Boneyard)
        && (kind == ActionLine || kind == TransitionLine || kind == ForcedActionLine);
}

// Lines that end at an empty one, or at one that cannot be action.
int FountainReader::readActionLines(int line)
{
    Element element;
    for (int first = line; !isEmpty(line); ++line) {
        const Line &given = m_lines.at(line);
        if (line > first && interruptsAction(lineKind(view(line), true))) {
            break;
        }
        if (line > first) {
            element.runs.append({QStringLiteral("\n"), {}, Run::Text});
        }
        const int start = contentStart(given);
        const bool forced = trimmed(view(line)).startsWith(u'!');
        element.runs += runs(given, forced ? start + 1 : given.start, given.end);
    }
    addElement(element);
    return line;
}

} // namespace

QVector<int> MrvFountain::unmatchedMarks(const QString &plain)
{
    ObjectScanner scanner(plain);
    scanner.objects();
    return scanner.unmatched();
}

MRVFountainScript MrvFountain::scriptOf(const QString &plain, TextRanges *ranges)
{
    FountainReader reader(plain);
    const MRVFountainScript script = reader.script();
    if (ranges) {
        *ranges = reader.ranges();
    }
    return script;
}

MRVFountainScript MRVFountainScript::fromText(const QString &text)
{
    return scriptOf(plainText(text));
}

MRVFountainScript MRVFountainScript::fromText(const QString &text, QVector<int> *lines)
{
    const QString plain = plainText(text);
    TextRanges ranges;
    const MRVFountainScript script = scriptOf(plain, &ranges);
    lines->clear();
    int line = 1;
    int at = 0;
    for (const Range &range : qAsConst(ranges.elements)) {
        for (; at < range.start; ++at) {
            line += plain.at(at) == u'\n' ? 1 : 0;
        }
        lines->append(line);
    }
    return script;
}
