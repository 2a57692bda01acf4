#pragma once

#include "util/mrvbase_export.h"

#include <QString>

struct MRVFountainElement;
class MRVFountainScript;

/**
 * Numbers of scenes.
 *
 * Once a script is in production its numbers are locked: a scene keeps its number whatever comes
 * before it, and new ones get letters. After 12 stand 12A, 12B (without I and O, which look like
 * figures); between 12 and 12A stands A12A, between 12A and 12B stands 12AA, and before the first
 * scene 1 stands A1. A letter before a number puts it right before what follows the letter.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVScriptNumbers
{
public:
    MRVScriptNumbers() = delete;

    /**
     * Gives a number to each scene of @p script that has none, and leaves the others as they are:
     * 1, 2, 3 where no scene has one; the next whole numbers after the last one; letters in
     * between. No number is given that a scene has already. Takes time linear in the script.
     *
     * @return how many scenes got a number.
     */
    static int number(MRVFountainScript *script);

    /**
     * Numbers all scenes of @p script from @p first on, whatever they had.
     *
     * @return how many numbers have changed.
     */
    static int renumber(MRVFountainScript *script, int first = 1);

    /**
     * Whether the number @p one comes before @p other in a script with locked numbers; false where
     * one of them has another form than letters, digits, letters.
     */
    static bool isBefore(const QString &one, const QString &other);
};
