#include "screenplay/mrvscriptstatistics.h"

#include "screenplay/mrvscriptcast.h"
#include "screenplay/mrvscriptpagination.h"
#include "scriptmode/mrvscriptmode.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace {

using Element = MRVFountainElement;

// What has a letter or digit, between white space.
int wordCount(const QString &text)
{
    int count = 0;
    bool isWord = false;
    for (const QChar character : text) {
        if (character.isSpace()) {
            isWord = false;
        } else if (!isWord && character.isLetterOrNumber()) {
            isWord = true;
            ++count;
        }
    }
    return count;
}

class Counter
{
public:
    Counter(const MRVFountainScript &script, const MRVScriptPagination &pagination)
        : m_cast(script)
        , m_pagination(pagination)
    {
    }

    MRVScriptStatistics count(const MRVFountainScript &script);

private:
    void addElement(const Element &element, int index);
    void addSpeech(int words, int lines, bool isSpoken);

    const MRVScriptCast m_cast;
    const MRVScriptPagination &m_pagination;
    MRVScriptStatistics m_result;
    QHash<QString, int> m_index; // of characters, by name
    QHash<QString, int> m_sceneOf; // the last in which a character spoke
    QStringList m_speakers; // of the last cue
    bool m_hasSpoken = false; // since the cue
};

void Counter::addSpeech(int words, int lines, bool isSpoken)
{
    const int scene = m_result.scenes + 1; // 0 is never
    for (const QString &speaker : qAsConst(m_speakers)) {
        if (speaker.isEmpty()) {
            continue;
        }
        if (!m_index.contains(speaker)) {
            m_index.insert(speaker, m_result.characters.size());
            m_result.characters.append({speaker, 0, 0, 0, 0});
        }
        MRVScriptStatistics::Character &character = m_result.characters[m_index.value(speaker)];
        if (!m_hasSpoken) {
            ++character.speeches;
            character.scenes += m_sceneOf.value(speaker) != scene ? 1 : 0;
            m_sceneOf.insert(speaker, scene);
        }
        if (isSpoken) {
            character.lines += lines;
            character.words += words;
        }
    }
    m_hasSpoken = true;
}

void Counter::addElement(const Element &element, int index)
{
    // What follows in the enumeration is not printed.
    if (element.kind >= Element::Note) {
        return;
    }
    if (element.kind == Element::Character) {
        m_speakers = m_cast.namesIn(element.text());
        m_hasSpoken = false;
    } else if (!element.isSpoken()) {
        m_speakers.clear();
    }
    m_result.scenes += element.kind == Element::SceneHeading ? 1 : 0;
    const int words = wordCount(element.text());
    m_result.words += words;
    if (element.isSpoken()) {
        addSpeech(words, m_pagination.lineCount(index), element.kind != Element::Parenthetical);
    }
}

MRVScriptStatistics Counter::count(const MRVFountainScript &script)
{
    for (int i = 0; i < script.elements.size(); ++i) {
        addElement(script.elements.at(i), i);
    }
    m_result.eighths = m_pagination.eighths();
    m_result.printedPages = m_pagination.pages().size();
    std::sort(m_result.characters.begin(), m_result.characters.end(),
              [](const auto &a, const auto &b) {
                  return a.words != b.words ? a.words > b.words : a.name < b.name;
              });
    return m_result;
}

} // namespace

MRVScriptStatistics MRVScriptStatistics::of(const MRVFountainScript &script)
{
    MRVScriptMode mode;
    mode.loadFactoryDefaults();
    return of(script, MRVScriptPagination(script, mode));
}

MRVScriptStatistics MRVScriptStatistics::of(const MRVFountainScript &script,
                                            const MRVScriptPagination &pagination)
{
    return Counter(script, pagination).count(script);
}

QString MRVScriptStatistics::pagesText() const
{
    return MRVScriptPagination::eighthsText(eighths);
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
            {QStringLiteral("printedPages"), printedPages},
            {QStringLiteral("minutes"), minutes()},
            {QStringLiteral("words"), words},
            {QStringLiteral("characters"), list}};
}
