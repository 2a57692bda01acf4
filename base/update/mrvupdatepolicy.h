#pragma once

#include "util/mrvbase_export.h"

#include <QDateTime>
#include <QFlags>
#include <QString>

struct MRVUpdateFeed;
struct MRVUpdateState;

/**
 * Which features an application has chosen for its update checks, and what they decide. By default
 * none is on: each newer version is offered at once, to everybody.
 *
 * A feed must carry what a feature needs; see MRVUpdateFeed.
 *
 * @since 1.0
 */
struct MRVBASE_EXPORT MRVUpdatePolicy
{
    enum Feature {
        /** The user can skip a version; checks in the background do not offer it again. */
        SkipVersions = 0x1,
        /** The user can be reminded later; checks in the background offer nothing until then. */
        RemindLater = 0x2,
        /** What the feed offers to the users of @ref channel is offered, too, betas included. */
        Channels = 0x4,
        /** What the feed calls critical can neither be skipped nor put off, nor is it held back. */
        CriticalUpdates = 0x8,
        /**
         * Checks in the background offer a version to the first users only, as many as the feed
         * says. Which user this is is drawn by lot once, and kept.
         */
        Rollout = 0x10,
        /** Checks in the background are also made while the application is running. */
        ChecksWhileRunning = 0x20,
    };
    Q_DECLARE_FLAGS(Features, Feature)

    enum Verdict {
        NothingNewer,
        Offered,
        Skipped, ///< the user has skipped it
        Postponed, ///< the user wants to be reminded later
        HeldBack, ///< it is not rolled out to this user yet
    };

    /** What decide() has decided. */
    struct Decision
    {
        Verdict verdict = NothingNewer;
        /** Which of the feed's offers this is about; the first where nothing is newer. */
        int offer = 0;
        /** Whether the user can neither skip it nor put it off. */
        bool isUrgent = false;
    };

    Features features;
    /** The channel of the user; empty for none. */
    QString channel;
    /** After how many days the user is reminded, where that was asked for. */
    int remindAfterDays = 1;

    /**
     * What to do with the newest version that the feed offers to this user.
     *
     * @param running the version that is running, compared by MRVUpdateFeed::versionNumber(); what
     *                cannot be compared is not newer.
     * @param isAsked whether the user has asked for the check: nothing is then held back.
     * @param now     the present time, against which the reminder is held. One that lies further
     *                ahead than remindAfterDays was noted by a wrong clock, and is passed over.
     */
    Decision decide(const MRVUpdateFeed &feed, const MRVUpdateState &state, const QString &running,
                    bool isAsked, const QDateTime &now) const;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(MRVUpdatePolicy::Features)
