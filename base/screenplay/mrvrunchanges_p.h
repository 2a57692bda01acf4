#pragma once

#include "screenplay/mrvfountain.h"

#include <QVector>

// How one text of a script became another.

/** A character with its look. */
struct MrvRunUnit
{
    QChar character;
    MRVFountainRun::Kind kind = MRVFountainRun::Text;
    MRVFountainRun::Emphasis emphasis;

    bool hasLookOf(const MrvRunUnit &other) const
    {
        return kind == other.kind && emphasis == other.emphasis;
    }
    bool operator==(const MrvRunUnit &other) const
    {
        return character == other.character && hasLookOf(other);
    }
};
Q_DECLARE_TYPEINFO(MrvRunUnit, Q_MOVABLE_TYPE);
using MrvRunUnits = QVector<MrvRunUnit>;

MrvRunUnits mrvRunUnits(const MRVFountainRuns &runs);

/** The units from @c start to @c end that became those from @c newStart to @c newEnd. */
struct MrvRunChange
{
    int start;
    int end;
    int newStart;
    int newEnd;
};
Q_DECLARE_TYPEINFO(MrvRunChange, Q_MOVABLE_TYPE);

/**
 * The changes of whole words between two texts, in order. Takes time linear in the texts: where
 * they have little in common over a long stretch, one change covers the rest.
 */
QVector<MrvRunChange> mrvRunChanges(const MrvRunUnits &before, const MrvRunUnits &after);
