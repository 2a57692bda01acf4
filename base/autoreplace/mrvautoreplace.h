#pragma once

#include "util/mrvbase_export.h"

#include <QString>
#include <QTypeInfo>

class MRVAutoReplaceList;
class QDataStream;

/**
 * A text to be replaced as it is typed, and what takes its place.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVAutoReplace
{
    /** Whether the replacement is made. A disabled entry is kept, shown and stored all the same. */
    bool enabled = false;
    QString match; ///< what is typed, case-sensitive; an empty one is never found
    QString replacement; ///< may be empty

    /**
     * English ordinals, all disabled: "1st", "2nd" and "3rd" to the digit with a degree sign, then
     * the same three to the digit with its first letter ("1r", "2n", "3r").
     */
    static MRVAutoReplaceList ordinals();
};

Q_DECLARE_TYPEINFO(MRVAutoReplace, Q_MOVABLE_TYPE);

inline bool operator==(const MRVAutoReplace &a, const MRVAutoReplace &b)
{
    return a.enabled == b.enabled && a.match == b.match && a.replacement == b.replacement;
}

inline bool operator!=(const MRVAutoReplace &a, const MRVAutoReplace &b)
{
    return !(a == b);
}

/**
 * Writes the version 1 as qint32, then `enabled` as one byte, `match` and `replacement`.
 *
 * @param entry any; null texts stay null.
 */
MRVBASE_EXPORT QDataStream &operator<<(QDataStream &stream, const MRVAutoReplace &entry);
/**
 * Reads what was written; the version may be any. Where the stream ends or is damaged, this field
 * and those after it are false or null, and the stream's status says so.
 *
 * @param entry receives the entry.
 */
MRVBASE_EXPORT QDataStream &operator>>(QDataStream &stream, MRVAutoReplace &entry);
