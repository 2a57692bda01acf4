#pragma once

#include "util/mrvbase_export.h"

#include <QMap>
#include <QMetaType>
#include <QString>
#include <QTextBlock>
#include <QTextFormat>

class QDataStream;
class QTextList;

/** Properties that lists and their paragraphs have beside Qt's own. Saved documents carry them. */
enum MRVListProperty {
    /**
     * Of list formats: QVariantList of MRVQtListLevel. Qt uses the number too, for a text before
     * item numbers, and HTML import sets it: only a list holds levels. Never call
     * QTextListFormat::setNumberPrefix() on a format with levels, it would replace them.
     */
    MRVListLevelsProperty = 0x3002,
    /** Of block formats: int, the level of the paragraph in its list; unset for level 0. */
    MRVParagraphListLevelProperty = 0x100200,
};

/**
 * One level of a multi-level list, as list formats store it. QVariant and streams know the type as
 * "QTextListFormat::Level"; it is registered on first use, with its stream operators and equality.
 *
 * @since 1.0
 */
struct MRVQtListLevel
{
    /** "%0." with the number in place of "%0", or the bullet itself. */
    QString text;
    /** 0 bullet, 1 decimal, 2 and 3 lower and upper case letters, 4 and 5 Roman numerals. */
    int numberStyle = 0;
    /** Of the level's items, in points. */
    double leftIndent = 0.0;
    /** Of the item's text, from its marker, in points. */
    double textIndent = 0.0;
};

/** Exact: what is not the same is stored again. */
MRVBASE_EXPORT bool operator==(const MRVQtListLevel &a, const MRVQtListLevel &b);
inline bool operator!=(const MRVQtListLevel &a, const MRVQtListLevel &b)
{
    return !(a == b);
}
/** In QDataStream, the four fields in order: QString, qint32, two doubles. */
MRVBASE_EXPORT QDataStream &operator<<(QDataStream &stream, const MRVQtListLevel &level);
/** Leaves @p level as it was where the stream fails. */
MRVBASE_EXPORT QDataStream &operator>>(QDataStream &stream, MRVQtListLevel &level);

/** Levels by paragraph. The meta-type system knows it as "MRVTextBlockLevelMap". */
using MRVTextBlockLevelMap = QMap<QTextBlock, int>;

// Written by hand: the usual macro would register the types under their C++ names, and streams
// carry the name that a type was registered with first.
/** Gives the stored name of the type to Qt's meta-type system. */
template<>
struct QMetaTypeId<MRVQtListLevel>
{
    enum { Defined = 1 };
    /** Registers the type on the first call and returns its id; called by Qt. */
    MRVBASE_EXPORT static int qt_metatype_id();
};

/** Gives the stored name of the type to Qt's meta-type system. */
template<>
struct QMetaTypeId<MRVTextBlockLevelMap>
{
    enum { Defined = 1 };
    /** Registers the type on the first call and returns its id; called by Qt. */
    MRVBASE_EXPORT static int qt_metatype_id();
};

/**
 * The level of a paragraph in its list, from 0; 0 also for a paragraph of no list or another list.
 *
 * The level is part of the paragraph's block format. So it goes wherever Qt takes that: through
 * undo and redo, to both halves of a paragraph that is split, and into fragments. Of two paragraphs
 * that are joined, the level that stays is that of the one whose format stays.
 */
MRVBASE_EXPORT int mrvListLevel(const QTextList &list, const QTextBlock &block);
/**
 * Sets the level; a negative one counts as 0. One undo step; nothing for the level that it has, and
 * for a paragraph that is not in the list.
 *
 * Qt's indent of the paragraph (QTextBlockFormat::indent()) goes up and down with the level, so
 * that every view of Qt's shows the paragraph where its level is: QTextDocument::indentWidth()
 * further in for each level.
 *
 * @param level from 0; above 1000 the indent does not grow any more.
 */
MRVBASE_EXPORT void mrvSetListLevel(QTextList &list, const QTextBlock &block, int level);
/** What is left of @p format without the level: neither the level nor its part of the indent. */
MRVBASE_EXPORT QTextBlockFormat mrvWithoutListLevel(const QTextBlockFormat &format);
/**
 * Takes a paragraph out of its list, and its level with it. Qt adds the list's indent to that of
 * the paragraph, so that it stays where it is. One undo step; nothing for a paragraph of no list.
 *
 * Qt's time for it grows with the number of paragraphs in the list.
 */
MRVBASE_EXPORT void mrvRemoveFromList(const QTextBlock &block);
