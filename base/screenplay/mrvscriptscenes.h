#pragma once

#include "screenplay/mrvfountain.h"
#include "util/mrvbase_export.h"

#include <QString>
#include <QStringList>
#include <QVector>

/**
 * What a scene's heading says.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVSceneHeading
{
    enum Setting {
        UnknownSetting = 0, ///< the heading does not say
        Interior = 1,
        Exterior = 2,
        InteriorExterior = 3, ///< both, as in a moving car
    };

    Setting setting = UnknownSetting;
    QString place; ///< as it is typed, without setting and time: "HOUSE - KITCHEN"
    QString time; ///< of the day, as it is typed: "NIGHT", "MOMENTS LATER"; empty if unknown

    /**
     * Takes a heading apart. What begins as Fountain has it ("INT.", "EXT", "I/E") tells the
     * setting; "EST." is an exterior. The last part after a dash that has a word for a time of the
     * day, in English, German, French or Spanish, is the time, with what follows it.
     */
    static MRVSceneHeading of(const QString &heading);

    /** "INT", "EXT", "INT/EXT", or nothing. */
    static QString name(Setting setting);
};

/**
 * A scene of a script, as a list of scenes has it.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVScriptScene
{
    int first = 0; ///< the index of the scene's heading among the elements
    int end = 0; ///< the index after its last element
    QString heading; ///< the text of the heading on one line
    QString number; ///< the scene's number; may be empty
    MRVSceneHeading parts; ///< the heading taken apart
    QStringList characters; ///< who has a cue, in order, in capitals; see MRVScriptCast::namesIn()

    /** The scenes of a script in order; what stands before the first heading is in none. */
    static QVector<MRVScriptScene> of(const MRVFountainScript &script);
};
