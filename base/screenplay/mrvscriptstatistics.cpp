#include "screenplay/mrvscriptstatistics.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {

using Element = MRVFountainElement;

constexpr int LinesPerPage = 54;

struct Measure
{
    Element::Kind kind;
    int width; // in characters; 0: not printed
    int linesBefore;
};

// clang-format off
constexpr Measure measures[] = {
    {Element::Action,        60, 1},
    {Element::SceneHeading,  60, 2},
    {Element::Character,     38, 1},
    {Element::Parenthetical, 20, 0},
    {Element::Dialogue,      35, 0},
    {Element::Lyrics,        32, 0},
    {Element::Transition,    20, 1},
    {Element::Centered,      60, 1},
    {Element::Note,           0, 0},
    {Element::Boneyard,       0, 0},
    {Element::Section,        0, 0},
    {Element::Synopsis,       0, 0},
    {Element::PageBreak,      0, 0},
};
// clang-format on
static_assert(sizeof measures / sizeof *measures == MRVFountainElement::KindCount);

struct Extent
{
    int words = 0;
    int lines = 0;
};

// How many words a text has, and how many lines of this many characters.
Extent extentOf(const QString &text, int width)
{
    Extent extent;
    extent.lines = 1;
    int column = 0;
    int at = 0;
    while (at < text.size()) {
        if (text.at(at).isSpace()) {
            if (text.at(at) == u'\n') {
                ++extent.lines;
                column = 0;
            } else {
                ++column;
            }
            ++at;
            continue;
        }
        bool isWord = false;
        const int start = at;
        for (; at < text.size() && !text.at(at).isSpace(); ++at) {
            isWord = isWord || text.at(at).isLetterOrNumber();
        }
        extent.words += isWord ? 1 : 0;
        const int length = at - start;
        if (column > 0 && column + length > width) {
            ++extent.lines;
            column = 0;
        }
        column += length;
        if (column > width) {
            extent.lines += (column - 1) / width; // longer than a line
            column = (column - 1) % width + 1;
        }
    }
    return extent;
}

class Counter
{
public:
    MRVScriptStatistics count(const MRVFountainScript &script);

private:
    void addElement(const Element &element);
    void addCue(const Element &element);
    void addSpeech(const Extent &extent, bool isSpoken);
    void addLines(int lines, int before);

    MRVScriptStatistics m_result;
    QHash<QString, int> m_index; // of characters, by name
    QHash<QString, int> m_sceneOf; // the last in which a character spoke
    QString m_speaker;
    bool m_hasSpoken = false; // since the cue
    bool m_inSpeech = false;
    bool m_isDual = false;
    int m_speechLines = 0; // of the current speech, from its cue
    int m_besideLines = 0; // of the speech beside it
};

void Counter::addLines(int lines, int before)
{
    if (m_result.lines % LinesPerPage != 0) {
        lines += before;
    }
    m_speechLines += lines;
    if (m_isDual) {
        // Only the part that is longer than the speech beside it adds lines.
        lines = qBound(0, m_speechLines - m_besideLines, lines);
    }
    m_result.lines += lines;
}

void Counter::addCue(const Element &element)
{
    m_isDual = element.dual && m_inSpeech;
    m_besideLines = m_isDual ? m_speechLines : 0;
    m_speechLines = 0;
    m_speaker = MRVFountainScript::cueName(element.text()).simplified().toUpper();
    m_hasSpoken = false;
    m_inSpeech = true;
}

void Counter::addSpeech(const Extent &extent, bool isSpoken)
{
    if (m_speaker.isEmpty()) {
        return;
    }
    if (!m_index.contains(m_speaker)) {
        m_index.insert(m_speaker, m_result.characters.size());
        m_result.characters.append({m_speaker, 0, 0, 0, 0});
    }
    MRVScriptStatistics::Character &character = m_result.characters[m_index.value(m_speaker)];
    if (!m_hasSpoken) {
        m_hasSpoken = true;
        ++character.speeches;
        const int scene = m_result.scenes + 1; // 0 is never
        character.scenes += m_sceneOf.value(m_speaker) != scene ? 1 : 0;
        m_sceneOf.insert(m_speaker, scene);
    }
    if (isSpoken) {
        character.lines += extent.lines;
        character.words += extent.words;
    }
}

void Counter::addElement(const Element &element)
{
    const Measure &measure = measures[element.kind];
    if (element.kind == Element::PageBreak) {
        const int rest = m_result.lines % LinesPerPage;
        m_result.lines += rest > 0 ? LinesPerPage - rest : 0;
    }
    if (measure.width == 0) {
        return;
    }
    const bool isSpeech = element.kind == Element::Dialogue
        || element.kind == Element::Parenthetical
        || (element.kind == Element::Lyrics && !element.apart);
    if (element.kind == Element::Character) {
        addCue(element);
    } else if (!isSpeech) {
        m_inSpeech = m_isDual = false;
        m_speaker.clear();
    }
    m_result.scenes += element.kind == Element::SceneHeading ? 1 : 0;
    const Extent extent = extentOf(element.text(), measure.width);
    m_result.words += extent.words;
    if (isSpeech) {
        addSpeech(extent, element.kind != Element::Parenthetical);
    }
    // An empty line adds one line between paragraphs, without spacing of its own before it.
    const bool isEmptyLine = element.kind == Element::Action && element.runs.isEmpty();
    addLines(extent.lines, isEmptyLine ? 0 : measure.linesBefore);
}

MRVScriptStatistics Counter::count(const MRVFountainScript &script)
{
    for (const Element &element : script.elements) {
        addElement(element);
    }
    m_result.eighths = (m_result.lines * 8 + LinesPerPage - 1) / LinesPerPage;
    std::sort(m_result.characters.begin(), m_result.characters.end(),
              [](const auto &a, const auto &b) {
                  return a.words != b.words ? a.words > b.words : a.name < b.name;
              });
    return m_result;
}

} // namespace

MRVScriptStatistics MRVScriptStatistics::of(const MRVFountainScript &script)
{
    return Counter().count(script);
}

QString MRVScriptStatistics::pagesText() const
{
    const QString part = QStringLiteral("%1/8").arg(eighths % 8);
    if (eighths % 8 == 0) {
        return QString::number(eighths / 8);
    }
    return eighths < 8 ? part : QString::number(eighths / 8) + u' ' + part;
}

QJsonObject MRVScriptStatistics::toJson() const
{
    QJsonArray list;
    for (const Character &character : characters) {
        list.append(QJsonObject{{QStringLiteral("name"), character.name},
                                {QStringLiteral("speeches"), character.speeches},
                                {QStringLiteral("lines"), character.lines},
                                {QStringLiteral("words"), character.words},
                                {QStringLiteral("scenes"), character.scenes}});
    }
    return {{QStringLiteral("scenes"), scenes},
            {QStringLiteral("pages"), pages()},
            {QStringLiteral("minutes"), minutes()},
            {QStringLiteral("words"), words},
            {QStringLiteral("characters"), list}};
}
