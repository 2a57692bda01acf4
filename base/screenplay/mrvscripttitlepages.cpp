#include "screenplay/mrvscripttitlepages_p.h"

#include "screenplay/mrvscriptpaper_p.h"
#include "screenplay/mrvscripttypesetter_p.h"
#include "screenplay/mrvtitlepage_p.h"

namespace {

using Run = MRVFountainRun;
using Line = MRVScriptLine;
using Page = MRVScriptPage;

constexpr qreal ColumnWidth = MrvScriptPaper::ColumnWidth;
constexpr qreal TopMargin = MrvScriptPaper::TopMargin;
constexpr qreal Tolerance = MrvScriptPaper::Tolerance;
constexpr qreal TitleTop = 3 * MrvScriptPaper::Inch; // of the first line in the middle
constexpr qreal TitleGap = 12; // between entries
constexpr qreal AfterTitleGap = 36;

// Places lines one below the other, and returns where they end.
qreal addLines(const QVector<MrvPrintedParagraph> &paragraphs, const MrvScriptPaper &paper,
               qreal top, qreal left, QVector<Page> *pages)
{
    for (const MrvPrintedParagraph &paragraph : paragraphs) {
        for (const MrvPrintedLine &broken : paragraph.lines) {
            if (top + paragraph.lineHeight > TopMargin + paper.textHeight() + Tolerance) {
                pages->append(Page());
                top = TopMargin;
            }
            Line line;
            line.runs = paragraph.runs(broken.start, broken.end);
            line.style = paragraph.style;
            line.left = left;
            line.width = paragraph.width;
            line.top = top;
            line.height = paragraph.lineHeight;
            line.alignment = paragraph.alignment;
            pages->last().lines.append(line);
            top += paragraph.lineHeight;
        }
        top += paragraph.after;
    }
    return top;
}

} // namespace

QVector<MRVScriptPage> mrvScriptTitlePages(const MRVFountainScript &script,
                                           const MrvScriptPaper &paper, MrvScriptTypesetter *setter)
{
    QVector<MrvPrintedParagraph> middle;
    QVector<MrvPrintedParagraph> corners[2];
    for (const MRVFountainTitle &title : script.titles) {
        if (title.text().trimmed().isEmpty()) {
            continue;
        }
        const Qt::AlignmentFlag place = mrvTitleAlignment(title.key);
        const bool isMiddle = place == Qt::AlignHCenter;
        MRVFountainRuns runs = title.value;
        runs.prepend({mrvTitleLabel(title.key), {}, Run::Text});
        MrvPrintedParagraph paragraph =
            setter->titleParagraph(runs, isMiddle ? Qt::AlignHCenter : Qt::AlignLeft,
                                   isMiddle ? ColumnWidth : ColumnWidth / 2);
        const bool isTitle = title.key.compare(QLatin1String("Title"), Qt::CaseInsensitive) == 0;
        paragraph.after = isTitle ? AfterTitleGap : isMiddle ? TitleGap : 0;
        (isMiddle ? middle : corners[place == Qt::AlignRight ? 1 : 0]).append(paragraph);
    }
    if (middle.isEmpty() && corners[0].isEmpty() && corners[1].isEmpty()) {
        return {};
    }
    QVector<Page> pages{Page()};
    const qreal end = addLines(middle, paper, TitleTop, paper.left, &pages);
    const int page = pages.size();
    for (int side = 0; side < 2; ++side) {
        qreal height = 0;
        for (const MrvPrintedParagraph &paragraph : qAsConst(corners[side])) {
            height += paragraph.height() + paragraph.after;
        }
        const qreal top = TopMargin + paper.textHeight() - height;
        // Where the corners do not fit below the middle, they follow one after the other.
        const bool fits = top >= end && pages.size() == page;
        const qreal left = paper.left + (side == 1 ? ColumnWidth / 2 : 0);
        addLines(corners[side], paper, fits ? top : TopMargin + paper.textHeight(), left, &pages);
    }
    return pages;
}
