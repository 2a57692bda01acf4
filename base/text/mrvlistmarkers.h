#pragma once

#include "util/mrvbase_export.h"

#include <QHash>
#include <QString>
#include <QVector>

class QTextDocument;
class QTextListFormat;
struct MRVTextListLevel;

/**
 * Numbers the items of a document's lists as they come.
 *
 * Each level of a list counts on its own, and begins again after an item of a lesser level. Lists
 * do not count for each other, so other lists may stand among the items of one.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVListCounter
{
public:
    /**
     * The number of the next item of a list, in document order.
     *
     * Level 0 begins with the number of MRVTextFormat::ListStartProperty where the format has one;
     * all else begins with 1.
     *
     * @param format of the list.
     * @param list   the list's object index.
     * @param level  from 0; any number of levels may be left out in between.
     */
    int next(const QTextListFormat &format, int list, int level);

private:
    struct Item
    {
        int level;
        int number; // of the last one
    };
    QHash<int, QVector<Item>> m_open; // by list, outermost first
};

/**
 * What is shown before a paragraph of a list.
 *
 * @since 1.0
 */
struct MRVListMarker
{
    int level = -1; ///< from 0; -1 for a paragraph of no list
    int number = 0; ///< of the item among those of its level, see MRVListCounter
    QString text; ///< "2.", "b)" or a bullet, without a blank; empty where nothing is shown
};

/**
 * A number as a list shows it, without anything around it: 28 in letters is "ab". A number that
 * letters or Roman numerals do not have (below 1, or above 3999 for the latter) is in figures.
 *
 * @param number      of any size and sign.
 * @param numberStyle see MRVQtListLevel; any other number means figures, 0 included.
 */
MRVBASE_EXPORT QString mrvListNumberText(int number, int numberStyle);

/**
 * What is shown before the item that has the number @p number on a level that looks like @p level,
 * without a blank: the level's text, with the number in place of each "%0" unless it is a bullet.
 */
MRVBASE_EXPORT QString mrvListMarkerText(const MRVTextListLevel &level, int number);

/**
 * The markers of all paragraphs of a document, one for each block, in order. Where the format of a
 * list has levels, the marker is as MRVTextListFormat::shownLevel() says, else as Qt draws it.
 *
 * Takes time linear in the document. GUI thread only.
 */
MRVBASE_EXPORT QVector<MRVListMarker> mrvListMarkers(const QTextDocument &document);
