#include "screenplay/mrvscriptunits_p.h"

#include "screenplay/mrvscripttypesetter_p.h"

namespace {

using Element = MRVFountainElement;
using Unit = MrvScriptUnit;

// What is longer is no name, and neither repeated nor kept in one piece.
constexpr int MostCueLines = 4;

bool isPrinted(const Element &element)
{
    return element.kind < Element::Note;
}

} // namespace

MrvScriptUnits::MrvScriptUnits(const MRVFountainScript &script, MrvScriptTypesetter *setter)
    : m_script(script)
    , m_setter(*setter)
{
}

void MrvScriptUnits::addUnit(Unit::Kind kind, int first)
{
    Unit unit;
    unit.kind = kind;
    unit.first = first;
    unit.end = m_paragraphs.size();
    unit.second = unit.end;
    m_units.append(unit);
}

void MrvScriptUnits::collectPlain(int index)
{
    MrvPrintedParagraph paragraph = m_setter.paragraph(m_script.elements.at(index), index);
    if (paragraph.lines.isEmpty()) {
        return;
    }
    // A song apart from any speech stands apart from what is before it, too.
    const bool isSong = paragraph.kind == Element::Lyrics;
    if (isSong && !m_paragraphs.isEmpty() && m_paragraphs.constLast().kind != Element::Lyrics) {
        paragraph.before = qMax(paragraph.before, paragraph.lineHeight);
    }
    m_paragraphs.append(paragraph);
    addUnit(Unit::Plain, m_paragraphs.size() - 1);
}

bool MrvScriptUnits::isBesideTheLast(int cue) const
{
    if (!m_script.elements.at(cue).dual || m_setter.hasHangingSpeeches() || m_units.isEmpty()
        || m_units.constLast().kind != Unit::Speech) {
        return false;
    }
    // Nothing printed stands between the two.
    int before = cue - 1;
    while (before >= 0 && !isPrinted(m_script.elements.at(before))) {
        --before;
    }
    return before >= 0 && m_script.elements.at(before).kind != Element::PageBreak
        && m_paragraphs.at(m_units.constLast().end - 1).element <= before
        && (m_script.elements.at(before).isSpoken()
            || m_script.elements.at(before).kind == Element::Character);
}

// Returns the index after the speech that begins at a cue, or at speech without one.
int MrvScriptUnits::collectSpeech(int cue)
{
    const QVector<Element> &elements = m_script.elements;
    bool hasCue = elements.at(cue).kind == Element::Character;
    int end = cue + (hasCue ? 1 : 0);
    QVector<int> parts;
    for (; end < elements.size() && elements.at(end).kind != Element::PageBreak
         && (elements.at(end).isSpoken() || !isPrinted(elements.at(end)));
         ++end) {
        if (elements.at(end).isSpoken()) {
            parts.append(end);
        }
    }
    const int first = m_paragraphs.size();
    if (hasCue && m_setter.hasHangingSpeeches()) {
        m_paragraphs.append(m_setter.hangingSpeech(m_script, cue, end));
        addUnit(Unit::Plain, first);
        return end;
    }
    if (hasCue) {
        const MrvPrintedParagraph paragraph = m_setter.paragraph(elements.at(cue), cue);
        if (paragraph.lines.size() > MostCueLines) {
            m_paragraphs.append(paragraph);
            m_paragraphs.last().keepsWithNext = false;
            addUnit(Unit::Plain, first);
            hasCue = false;
        } else {
            parts.prepend(cue);
        }
    }
    const int firstSpoken = m_paragraphs.size();
    const bool isBeside = hasCue && isBesideTheLast(cue);
    for (const int part : qAsConst(parts)) {
        const Element &element = elements.at(part);
        const MrvPrintedParagraph paragraph = isBeside ? m_setter.besideParagraph(element, part, 1)
                                                       : m_setter.paragraph(element, part);
        if (!paragraph.lines.isEmpty()) {
            m_paragraphs.append(paragraph);
        }
    }
    if (isBeside) {
        Unit &unit = m_units.last();
        for (int i = unit.first; i < unit.end; ++i) {
            const int element = m_paragraphs.at(i).element;
            m_paragraphs[i] = m_setter.besideParagraph(elements.at(element), element, 0);
        }
        unit.kind = Unit::Beside;
        unit.second = unit.end;
        unit.end = m_paragraphs.size();
    } else if (m_paragraphs.size() > firstSpoken) {
        addUnit(Unit::Speech, firstSpoken);
    }
    return end;
}

void MrvScriptUnits::collect()
{
    bool breaks = false;
    for (int i = 0; i < m_script.elements.size();) {
        const Element &element = m_script.elements.at(i);
        const int count = m_units.size();
        if (element.kind == Element::PageBreak) {
            breaks = true;
            ++i;
        } else if (element.kind == Element::Character || element.isSpoken()) {
            i = collectSpeech(i);
        } else {
            if (isPrinted(element)) {
                collectPlain(i);
            }
            ++i;
        }
        if (breaks && m_units.size() > count) {
            m_paragraphs[m_units.constLast().first].breaksBefore = true;
            breaks = false;
        }
    }
}
