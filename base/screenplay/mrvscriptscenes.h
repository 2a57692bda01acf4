#pragma once

#include "screenplay/mrvfountain.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

class MRVScriptPagination;
class QJsonObject;

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
    int page = 0; ///< on which the heading is printed, from 1; 0 if unknown
    int eighths = 0; ///< the printed length in eighths of a page, as breakdowns count it

    /**
     * The scenes of a script in order, without pages; what stands before the first heading is in
     * none. Takes time linear in the script.
     */
    static QVector<MRVScriptScene> of(const MRVFountainScript &script);
    /**
     * The same with their pages.
     *
     * @param pagination that of @p script.
     */
    static QVector<MRVScriptScene> of(const MRVFountainScript &script,
                                      const MRVScriptPagination &pagination);

    /** The scene, with "characters" as a list and "setting" as MRVSceneHeading::name() has it. */
    QJsonObject toJson() const;

    /**
     * A table of @p scenes as RFC 4180 has it, in UTF-8, with a line of names first. Names of
     * characters are separated by ", ", lengths are written as breakdowns do ("1 3/8").
     */
    static QByteArray toCsv(const QVector<MRVScriptScene> &scenes);
};
