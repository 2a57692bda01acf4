#pragma once

#include "screenplay/mrvscriptunits_p.h"

/** Where a unit is divided: before a position of a paragraph. */
struct MrvScriptCut
{
    int paragraph = -1;
    int position = 0;

    bool isValid() const { return paragraph >= 0; }
};

/** How high the units of a script are, and where page breaks may divide them. */
class MrvPageBreaks
{
public:
    /**
     * Paragraphs may change, but not move. @p moreHeight is the height of "(MORE)", and
     * @p pageHeight that of a page's text.
     */
    MrvPageBreaks(const QVector<MrvPrintedParagraph> &paragraphs, const MrvScriptTypesetter &setter,
                  qreal moreHeight, qreal pageHeight);

    qreal unitHeight(const MrvScriptUnit &unit) const;
    /** Whether a unit has to be divided wherever it stands. */
    bool isLonger(const MrvScriptUnit &unit) const;
    /** What of such a unit has to be on its first page: the cue and a few lines. */
    qreal forcedHeight(const MrvScriptUnit &unit) const;
    bool hasCue(const MrvScriptUnit &unit) const;

    /** The last good place in the height that is left on a page; invalid where none fits. */
    MrvScriptCut bestCut(const MrvScriptUnit &unit, qreal height) const;
    /** For what is longer than a page and has no better place. */
    MrvScriptCut forcedCut(const MrvScriptUnit &unit, qreal height) const;

    /** What each unit, with what it keeps with, needs at the foot of a page. */
    QVector<qreal> neededHeights(const QVector<MrvScriptUnit> &units) const;

    /** How many lines of a paragraph begin before a position. */
    static int lineCountUntil(const MrvPrintedParagraph &paragraph, int position);

private:
    MrvScriptCut plainCut(const MrvScriptUnit &unit, qreal height) const;
    MrvScriptCut speechCut(const MrvScriptUnit &unit, qreal height) const;
    int speechLineCount(const MrvScriptUnit &unit) const;
    QVector<MrvScriptCut> speechCuts(const MrvScriptUnit &unit) const;
    qreal speechHeight(const MrvScriptUnit &unit, const MrvScriptCut &cut) const;
    qreal leastHeight(const MrvScriptUnit &unit) const;

    const QVector<MrvPrintedParagraph> &m_paragraphs;
    const MrvScriptTypesetter &m_setter;
    const qreal m_moreHeight;
    const qreal m_height;
};
