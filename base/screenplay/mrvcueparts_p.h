#pragma once

#include <QString>
#include <QVector>

/** One of the names in a cue, as positions in the cue. */
struct MrvCuePart
{
    int start;
    int end;
    /** The end of the name of whom the speaker belongs to: of MARY in "MARY'S VOICE"; else #end. */
    int ownerEnd;
};

/**
 * The names that are joined in a cue by "/", "&", "+", "," or a word for "and" in one of four
 * languages; a single one where nothing joins.
 *
 * @param length how many characters of @p cue count: those before its extensions.
 */
QVector<MrvCuePart> mrvCueParts(const QString &cue, int length);
