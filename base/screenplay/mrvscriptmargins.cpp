#include "screenplay/mrvscriptmargins_p.h"

#include "screenplay/mrvscripttypesetter_p.h"

#include <algorithm>

namespace {

using Element = MRVFountainElement;
using Run = MRVFountainRun;
using Line = MRVScriptLine;
using Page = MRVScriptPage;

constexpr qreal Inch = MrvScriptPaper::Inch;
constexpr qreal ColumnWidth = MrvScriptPaper::ColumnWidth;
constexpr qreal TopMargin = MrvScriptPaper::TopMargin;
constexpr qreal NumberTop = Inch / 2; // of the page's number
constexpr qreal ContinuedDistance = 24; // of "CONTINUED:" from the text's edge, to its own top
constexpr qreal ContinuesDistance = 12;
constexpr qreal SceneNumberLeft = 0.75 * Inch;
constexpr qreal SceneNumberGap = 10;

} // namespace

MrvScriptMargins::MrvScriptMargins(const MRVFountainScript &script, const MrvScriptPaper &paper,
                                   MrvScriptTypesetter *setter, QVector<MRVScriptPage> *pages)
    : m_script(script)
    , m_paper(paper)
    , m_setter(*setter)
    , m_pages(*pages)
{
}

void MrvScriptMargins::addLine(Page *page, Line::Kind kind, const QString &text, qreal left,
                               qreal width, qreal top, Qt::Alignment alignment, int element)
{
    MrvPrintedParagraph paragraph = m_setter.lineLike(Element::Action, text);
    Line line;
    line.kind = kind;
    line.element = element;
    line.runs = {{text, {}, Run::Text}};
    line.style = paragraph.style;
    line.left = left;
    line.width = width;
    line.top = top;
    line.height = paragraph.lineHeight;
    line.alignment = alignment;
    page->lines.append(line);
}

void MrvScriptMargins::addSceneContinuations(const QString &continues, const QString &continued)
{
    int scene = -1; // the last heading before the page
    for (int i = 0; i < m_pages.size(); ++i) {
        Page &page = m_pages[i];
        const int first = page.lines.constFirst().element;
        const bool goesOn = scene >= 0
            && (m_script.elements.at(first).kind != Element::SceneHeading || first == scene);
        if (goesOn) {
            addLine(&page, Line::SceneContinued, continued, m_paper.left, ColumnWidth,
                    TopMargin - ContinuedDistance, Qt::AlignLeft, scene);
            page.lines.move(page.lines.size() - 1, 0);
            Page &before = m_pages[i - 1];
            addLine(&before, Line::SceneContinues, continues, m_paper.left, ColumnWidth,
                    TopMargin + m_paper.textHeight() + ContinuesDistance, Qt::AlignRight, scene);
        }
        for (const Line &line : qAsConst(page.lines)) {
            if (line.kind == Line::Text
                && m_script.elements.at(line.element).kind == Element::SceneHeading) {
                scene = line.element;
            }
        }
    }
}

void MrvScriptMargins::addSceneNumbers()
{
    const bool hasOwn =
        std::any_of(m_script.elements.cbegin(), m_script.elements.cend(),
                    [](const Element &element) { return !element.sceneNumber.isEmpty(); });
    const qreal right = m_paper.left + ColumnWidth + SceneNumberGap;
    int count = 0;
    int last = -1;
    for (Page &page : m_pages) {
        for (int i = 0; i < page.lines.size(); ++i) {
            const Line line = page.lines.at(i);
            if (line.kind != Line::Text || line.element == last
                || m_script.elements.at(line.element).kind != Element::SceneHeading) {
                continue;
            }
            last = line.element;
            const QString own = m_script.elements.at(last).sceneNumber;
            const QString number = hasOwn ? own : QString::number(++count);
            if (number.isEmpty()) {
                continue;
            }
            addLine(&page, Line::SceneNumber, number, SceneNumberLeft,
                    m_paper.left - SceneNumberLeft - SceneNumberGap, line.top, Qt::AlignLeft, last);
            page.lines.move(page.lines.size() - 1, i++);
            addLine(&page, Line::SceneNumber, number, right,
                    m_paper.size.width() - right - SceneNumberGap, line.top, Qt::AlignLeft, last);
            page.lines.move(page.lines.size() - 1, ++i);
        }
    }
}

void MrvScriptMargins::addPageNumbers()
{
    for (int i = 1; i < m_pages.size(); ++i) {
        Page &page = m_pages[i];
        addLine(&page, Line::PageNumber, QString::number(page.number) + u'.', m_paper.left,
                ColumnWidth, NumberTop, Qt::AlignRight);
        page.lines.move(page.lines.size() - 1, 0);
    }
}
