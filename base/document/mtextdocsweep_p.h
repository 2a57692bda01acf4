#pragma once

#include "text/mrvtextrange.h"

#include <QTextCharFormat>
#include <QVector>

#include <functional>

class QTextCursor;
class QTextDocument;

/**
 * What the operations on marked runs of text have in common: the runs are found first, as
 * positions, and changed afterwards, in one undo step; none where nothing changes. Linear in the
 * document.
 */
namespace MrvSweep {

/** Gives a format in the place of another one. Asked once for each different format. */
using Change = std::function<QTextCharFormat(QTextCharFormat)>;

/** A format that sets one property. */
QTextCharFormat pattern(int property, const QVariant &value);

/**
 * Changes the formats of the text in @p ranges, which are in document order and do not overlap.
 * Paragraph ends keep theirs.
 */
void changeRanges(QTextDocument *document, const QVector<MRVTextRange> &ranges,
                  const Change &change);

/** Changes the formats of the runs of a document that carry @p pattern. Null does nothing. */
void changeRuns(QTextDocument *document, const QTextCharFormat &pattern, bool compareValues,
                const Change &change);

/**
 * Changes the formats of the text selected by @p cursor; without a selection, the format that text
 * typed there gets. Null does nothing.
 */
void changeSelection(QTextCursor *cursor, const Change &change);

/** Removes the text in @p ranges, which are in document order and do not overlap. */
void removeRanges(QTextDocument *document, const QVector<MRVTextRange> &ranges);

} // namespace MrvSweep
