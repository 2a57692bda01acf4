#pragma once

#include "screenplay/mrvfountain.h"
#include "util/mrvbase_export.h"

#include <QString>
#include <QVector>

/**
 * A difference between two scripts, or between their title pages: what is gone, new, or other.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVScriptChange
{
    int before = -1; ///< index in the first script; -1 for what is new
    int after = -1; ///< index in the second one; -1 for what is gone

    bool operator==(const MRVScriptChange &other) const
    {
        return before == other.before && after == other.after;
    }
};
Q_DECLARE_TYPEINFO(MRVScriptChange, Q_MOVABLE_TYPE);

/**
 * Compares scripts paragraph by paragraph, whatever their files look like.
 *
 * Paragraphs that occur once in both keep the rest together, as in patience sorting, so that a
 * scene that was inserted is one block. In between, what is of one kind is one paragraph that has
 * changed. Both orders are kept: a scene that was moved is gone in one place and new in another.
 *
 * Takes time linear in the scripts, times a logarithm.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVScriptCompare
{
public:
    MRVScriptCompare() = delete;

    /**
     * The changes from the elements of @p before to those of @p after, in order. The indexes are
     * those of normalized scripts, as all that were read are.
     */
    static QVector<MRVScriptChange> elements(const MRVFountainScript &before,
                                             const MRVFountainScript &after);

    /**
     * The changes from the title page of @p before to that of @p after; entries with the same key
     * are one that has changed.
     */
    static QVector<MRVScriptChange> titles(const MRVFountainScript &before,
                                           const MRVFountainScript &after);

    /**
     * An element on one line, with its marks as Fountain has them, " / " for a line break, and a
     * scene's number.
     */
    static QString text(const MRVFountainElement &element);
};
