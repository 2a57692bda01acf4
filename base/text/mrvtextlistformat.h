#pragma once

#include "textformat/mrvlistlevel.h"
#include "util/mrvbase_export.h"

#include <QList>
#include <QString>
#include <QTextBlockFormat>
#include <QTextListFormat>

class QTextCursor;
class QTextDocument;

/**
 * One level of a multi-level list. The fields are those of MRVQtListLevel, which is the form that
 * formats store; this one is for working with.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVTextListLevel
{
    QString text;
    int numberStyle = 0;
    double leftIndent = 0.0;
    double textIndent = 0.0;
};

/** Indents count as equal when they differ by no more than 1e-12 of the smaller one. */
MRVBASE_EXPORT bool operator==(const MRVTextListLevel &a, const MRVTextListLevel &b);
inline bool operator!=(const MRVTextListLevel &a, const MRVTextListLevel &b)
{
    return !(a == b);
}

/**
 * Multi-level lists: the levels in a list's format, the level of each paragraph in its list, and
 * taking paragraphs out of lists.
 *
 * Level numbers begin at 0. What changes a document is one undo step, and none where nothing
 * changes. GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVTextListFormat
{
public:
    MRVTextListFormat() = delete;

    /** The stored form of @p level, with the same four fields. */
    static MRVQtListLevel toQtListLevel(const MRVTextListLevel &level);
    /**
     * The level that @p level stores, with the same four fields. A style number outside 0 to 5
     * stays as it is, so that a document of a newer version keeps it.
     */
    static MRVTextListLevel toMrvListLevel(const MRVQtListLevel &level);

    /**
     * The levels of a format, outermost first; empty where it has none. A stored entry of another
     * type is a default level.
     */
    static QList<MRVTextListLevel> levels(const QTextListFormat &format);
    /**
     * Stores @p levels, outermost first, as property MRVListLevelsProperty. The style that Qt draws
     * stays as it is; see setStyle().
     */
    static void setLevels(QTextListFormat &format, const QList<MRVTextListLevel> &levels);

    /**
     * @name One level
     *
     * A field of the level number @p level, from 0; that of a default level where the format has no
     * such level.
     */
    //@{
    /** A field of the given level; of a default level where the format has no such level. */
    static QString itemText(const QTextListFormat &format, int level);
    static int numberStyle(const QTextListFormat &format, int level);
    static double leftIndent(const QTextListFormat &format, int level);
    static double textIndent(const QTextListFormat &format, int level);
    //@}

    /**
     * What items of the level number @p level look like, from 0. A level beyond the last one that
     * the format has looks like that one, with 36 points more of indent for each. A format without
     * levels has those of Qt: all look like its style, with its texts before and after numbers, and
     * an empty text where it draws no marker.
     */
    static MRVTextListLevel shownLevel(const QTextListFormat &format, int level);
    /** The Qt style that shownLevel() looks like; qtStyle() where the format has no levels. */
    static QTextListFormat::Style shownStyle(const QTextListFormat &format, int level);

    /**
     * The style that Qt draws, whatever the levels are; undefined for a number that is no style,
     * which formats from elsewhere may hold and which must not become a value of the enumeration.
     */
    static QTextListFormat::Style qtStyle(const QTextListFormat &format);

    /**
     * Replaces the levels by a single one that looks like @p style: indented by 36 points, its text
     * by 18 more. A style that is none of Qt's gives a level without number and bullet. Also sets
     * Qt's own list style, which is what Qt draws and exports.
     */
    static void setStyle(QTextListFormat &format, QTextListFormat::Style style);
    /** The Qt style that level 0 looks like; a disc where it is like none of them, or missing. */
    static QTextListFormat::Style style(const QTextListFormat &format);

    /** mrvSetListLevel(): gives the paragraph @p block of the list the level @p level, from 0. */
    static void setBlockLevel(QTextList &list, const QTextBlock &block, int level);
    /** See mrvListLevel(). */
    static int blockLevel(const QTextList &list, const QTextBlock &block);

    /**
     * A copy without the properties that make a paragraph a list item. Its indents stay, but for
     * what shows its level.
     */
    static QTextBlockFormat clearListProperties(const QTextBlockFormat &format);
    /**
     * The same for the paragraph at the cursor's position, or at @p position. It leaves its list,
     * since belonging to one is such a property; unlike clearBlockAtPositionFromTextList() this
     * adds no indent. Nothing for a null cursor or document and outside the document.
     */
    static void clearListProperties(QTextCursor &cursor);
    static void clearListProperties(QTextDocument *document, int position);

    /**
     * Takes the paragraph that holds @p position out of its list, see mrvRemoveFromList(). The
     * list's indent stays as the paragraph's own. Nothing for a null document or cursor, and
     * outside the document.
     */
    static void clearBlockAtPositionFromTextList(QTextDocument *document, int position);
    static void clearBlockAtPositionFromTextList(const QTextCursor &cursor);
    /** The same for each paragraph from that of the selection's start to that of its end. */
    static void clearSelectedBlocksFromTextList(const QTextCursor &cursor);
    /** clearBlockAtPositionFromTextList(), then clearListProperties(), at @p position. */
    static void clearListPropertiesAndTextList(QTextCursor &cursor);
    static void clearListPropertiesAndTextList(QTextDocument *document, int position);
};

/**
 * Restores the levels of a whole list: each of its paragraphs gets the level that @p levels gives
 * it, or 0. The map is also kept as the property "BlockLevels" of the list object, which is not
 * part of undo and goes with the object.
 */
MRVBASE_EXPORT void setBlockLevels(QTextList &list, const MRVTextBlockLevelMap &levels);
/**
 * The levels of a list whose levels were set by setBlockLevels(): the present level of each of its
 * paragraphs that is not on level 0, and of those on level 0 that the map given then named. A map
 * that the application itself has set as the property "BlockLevels" is returned as it is. Empty
 * where the property is absent or no such map; blockLevel() works for every list.
 */
MRVBASE_EXPORT MRVTextBlockLevelMap blockLevels(const QTextList &list);
