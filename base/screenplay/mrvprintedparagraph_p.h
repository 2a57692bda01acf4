#pragma once

#include "screenplay/mrvfountain.h"

#include <QFont>
#include <QString>
#include <QVector>

/** What lines are broken for: ten characters to the inch at 12 points, or a font as it is. */
struct MrvPrintedFont
{
    bool isFixedPitch = true;
    qreal size = 12; ///< in points
    QFont font; ///< of other pitch, in dots of MrvPrintedParagraph::DotsPerInch
};

/** A line of a paragraph. */
struct MrvPrintedLine
{
    int start;
    int end; ///< without the blanks at which it was broken
    bool isLast; ///< of the paragraph, or before a line break
};
Q_DECLARE_TYPEINFO(MrvPrintedLine, Q_PRIMITIVE_TYPE);

/** A paragraph of a script as it is printed; lengths are in points. */
struct MrvPrintedParagraph
{
    static constexpr int DotsPerInch = 1200;
    static constexpr qreal TabDistance = 28.8; ///< after #tabStop

    int element = -1;
    MRVFountainElement::Kind kind = MRVFountainElement::Action;
    QString text;
    QVector<int> starts; ///< of the pieces of one emphasis, in #text
    QVector<MRVFountainRun::Emphasis> emphasis; ///< of those pieces

    int style = 0;
    qreal left = 0; ///< from the column's edge
    qreal width = 0;
    qreal firstIndent = 0; ///< of the first line, from #left
    qreal tabStop = 0; ///< from the first line's beginning; 0: none
    qreal lineHeight = 12;
    qreal before = 0;
    qreal after = 0;
    Qt::Alignment alignment = Qt::AlignLeft;
    bool keepsWithNext = false;
    bool breaksBefore = false; ///< begins a page

    QVector<MrvPrintedLine> lines;

    /** Adds text at the end. */
    void append(const QString &more, MRVFountainRun::Emphasis moreEmphasis);

    /** What is between two positions, with its emphasis. */
    MRVFountainRuns runs(int start, int end) const;

    /** The lines of the text from a position; of the whole text, the first has its indent. */
    QVector<MrvPrintedLine> linesFrom(int start, const MrvPrintedFont &font) const;

    /** The positions after which the paragraph can be divided between sentences, ascending. */
    QVector<int> sentenceEnds() const;

    qreal height() const { return lines.size() * lineHeight; }
    bool isBroken() const { return !lines.isEmpty() && lines.constFirst().start == 0; }
};

/** The width of a character in fixed pitch: 0, 1, or 2 for ideographs. */
int mrvCellCount(uint codePoint);
