#include "updates.h"

#include <update/mrvupdatemanager.h>
#include <update/mrvupdatepolicy.h>

void Updates::checkAtStart()
{
    MRVUpdatePolicy policy;
    policy.features = MRVUpdatePolicy::SkipVersions | MRVUpdatePolicy::RemindLater
        | MRVUpdatePolicy::CriticalUpdates | MRVUpdatePolicy::ChecksWhileRunning;
    MRVUpdateManager::instance()->setPolicy(policy);
}

void Updates::addTo(QMenu *menu)
{
    MRVUpdateManager::instance()->setupMenuActions(menu);
}
