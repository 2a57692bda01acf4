#pragma once

#include "screenplay/mrvfountain.h"
#include "util/mrvbase_export.h"

#include <QCoreApplication>
#include <QString>
#include <QVector>

/**
 * Something in a script that is likely to be a slip.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVScriptFault
{
    enum Kind {
        OpenNote, ///< "[[" or "]]" without the other one
        OpenCut, ///< the same of cut text
        SimilarNames, ///< two cues that are one letter apart, or the same but for signs
        SimilarPlaces, ///< likewise two places of headings
        SilentCue, ///< a cue that nothing is said after
    };

    Kind kind = OpenNote;
    int line = 0; ///< from 1: of the text, or the paragraph of a script that has no lines
    int usualLine = 0; ///< of the name or place that this one is like; 0 for other faults
    QString text; ///< a translated sentence without a full stop
};
Q_DECLARE_TYPEINFO(MRVScriptFault, Q_MOVABLE_TYPE);

/**
 * Looks for slips in scripts.
 *
 * Names and places are compared in capitals and without accents. They are not similar where they
 * differ in numbers or in words of a single letter ("GUARD 1", "COP B"), or are shorter than three
 * characters. Takes time linear in the script.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVScriptCheck
{
    Q_DECLARE_TR_FUNCTIONS(MRVScriptCheck)

public:
    MRVScriptCheck() = delete;

    /** The faults of a Fountain text, by line. */
    static QVector<MRVScriptFault> ofText(const QString &text);

    /** The faults of a script from elsewhere, by paragraph; it has no open notes and cuts. */
    static QVector<MRVScriptFault> of(const MRVFountainScript &script);
};
