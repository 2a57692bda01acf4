#include "updates.h"

#include <update/mrvupdatemanager.h>
#include <update/mrvupdatepolicy.h>

#include <QAction>
#include <QFile>
#include <QMenu>

namespace {

QString keyFile()
{
    return QStringLiteral(":/updates/key.pub");
}

// Packages install this file beside the program, and nothing else does.
bool isPackaged()
{
    return QFile::exists(QCoreApplication::applicationDirPath()
                         + QLatin1String("/../share/morvane/packaged"));
}

// Making the manager is what starts the checks in the background.
MRVUpdateManager *manager()
{
    MRVUpdateManager *const updates = MRVUpdateManager::instance();
    MRVUpdatePolicy policy;
    policy.features = MRVUpdatePolicy::SkipVersions | MRVUpdatePolicy::RemindLater
        | MRVUpdatePolicy::CriticalUpdates;
    QFile key(keyFile());
    if (key.open(QIODevice::ReadOnly)) {
        updates->setPublicKey(key.readAll());
        policy.features |= MRVUpdatePolicy::ChecksWhileRunning;
    }
    updates->setPolicy(policy);
    return updates;
}

} // namespace

void Updates::checkAtStart()
{
    if (areAutomatic()) {
        manager();
    }
}

bool Updates::areAutomatic()
{
    return !isPackaged() && QFile::exists(keyFile());
}

void Updates::addTo(QMenu *menu)
{
    if (!isPackaged()) {
        menu->addAction(tr("&Check for Updates..."), menu, [] { manager()->checkForUpdates(); })
            ->setObjectName(QStringLiteral("CheckForUpdates"));
    }
}
