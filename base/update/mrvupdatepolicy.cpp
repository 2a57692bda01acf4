#include "update/mrvupdatepolicy.h"

#include "update/mrvupdatefeed.h"
#include "update/mrvupdatestate.h"
#include "version/mversion.h"

MRVUpdatePolicy::Decision MRVUpdatePolicy::decide(const MRVUpdateFeed &feed,
                                                  const MRVUpdateState &state,
                                                  const QString &running, bool isAsked,
                                                  const QDateTime &now) const
{
    std::optional<int> newest = MRVUpdateFeed::versionNumber(running);
    Decision decision;
    for (int i = 0; i < feed.offers.size(); ++i) {
        const MRVUpdateOffer &offer = feed.offers.at(i);
        const bool isForAll = offer.channel.isEmpty();
        const bool isForUser = isForAll ? !MVersion::isBetaVersion(offer.version)
                                        : features.testFlag(Channels) && offer.channel == channel;
        const std::optional<int> number = MRVUpdateFeed::versionNumber(offer.version);
        if (!isForUser || !newest || !number || *number <= *newest) {
            continue;
        }
        const bool isUrgent = offer.isCritical && features.testFlag(CriticalUpdates);
        if (features.testFlag(Rollout) && !isAsked && !isUrgent
            && state.rolloutNumber >= offer.rollout) {
            // An older offer may still be for this user.
            if (decision.verdict == NothingNewer) {
                decision = {HeldBack, i, false};
            }
            continue;
        }
        newest = number;
        decision = {Offered, i, isUrgent};
    }
    if (decision.verdict != Offered || decision.isUrgent || isAsked) {
        return decision;
    }
    if (features.testFlag(SkipVersions)
        && feed.offers.at(decision.offer).version == state.skippedVersion) {
        decision.verdict = Skipped;
    } else if (features.testFlag(RemindLater) && now < state.remindAfter
               && state.remindAfter <= now.addDays(remindAfterDays)) {
        decision.verdict = Postponed;
    }
    return decision;
}
