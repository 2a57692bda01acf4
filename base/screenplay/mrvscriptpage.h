#pragma once

#include "screenplay/mrvfountain.h"
#include "util/mrvbase_export.h"

#include <QString>
#include <QVector>

/**
 * One line of a printed script. Lengths are in points from the upper left corner of the paper.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVScriptLine
{
    enum Kind {
        Text,
        RepeatedCue, ///< who goes on speaking after a page break: "BOB (CONT'D)"
        More, ///< at the end of the first part of such a speech: "(MORE)"
        SceneContinues, ///< at the foot of a page on which a scene does not end
        SceneContinued, ///< at the head of the next one
        SceneNumber, ///< in one of the margins
        PageNumber,
    };

    Kind kind = Text;
    int element = -1; ///< index of the script's element; -1 for page numbers and the title page
    MRVFountainRuns runs; ///< as printed, in capitals for example; never with '\n'
    int style = 0; ///< index for MRVScriptPagination::font()
    qreal left = 0; ///< of the column in which the line stands, with its indent
    qreal width = 0; ///< of that column
    qreal top = 0;
    qreal height = 0;
    qreal tabStop = 0; ///< from #left, of the first tab in a line that has one
    /** Qt::AlignLeft, AlignRight, AlignHCenter or AlignJustify; of right-to-left text mirrored. */
    Qt::Alignment alignment = Qt::AlignLeft;
    bool isRightToLeft = false; ///< the paragraph begins with right-to-left text

    /** The runs without emphasis. */
    QString text() const;
};
Q_DECLARE_TYPEINFO(MRVScriptLine, Q_MOVABLE_TYPE);

/**
 * A page of a script.
 *
 * @since 1.0
 */
struct MRVScriptPage
{
    int number = 0; ///< from 1; 0 for a title page
    QVector<MRVScriptLine> lines; ///< from top to bottom; speeches side by side one after the other
};
Q_DECLARE_TYPEINFO(MRVScriptPage, Q_MOVABLE_TYPE);
