#pragma once

#include "util/mrvbase_export.h"

#include <QDateTime>
#include <QString>

/**
 * What one check of updates leaves for the next.
 *
 * It is kept in the user's settings of the application's organisation and name, in the group
 * "Updates": skippedVersion, remindAfter (a date-time), rolloutNumber and feedTime.
 * Without an organisation nothing is kept.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVUpdateState
{
    /** How many users a rollout tells apart. */
    static constexpr int Users = 100;

    /** The version that the user does not want to hear of; empty for none. */
    QString skippedVersion;
    /** When the user wants to be reminded; not valid for at once. */
    QDateTime remindAfter;
    /**
     * Which of a hundred users this is, 0 to 99, for updates that are rolled out bit by bit; -1
     * before that is known.
     */
    int rolloutNumber = -1;
    /** When the newest signed feed that was seen was signed, in seconds since 1970; 0 before. */
    qint64 feedTime = 0;

    /** What is kept of the running application; values that are damaged are as absent. */
    static MRVUpdateState load();
    /**
     * Keeps it, but no feedTime that is older than what is kept. Failing is only logged, since the
     * user cannot do anything about it.
     */
    void save() const;
};
