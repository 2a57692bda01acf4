#include "update/mrvupdatestate.h"

#include "settings/mrvsettings.h"

#include <QCoreApplication>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(lcWeb, "mrv.web", QtWarningMsg)

const QLatin1String skippedVersionKey("Updates/skippedVersion");
const QLatin1String remindAfterKey("Updates/remindAfter");
const QLatin1String rolloutNumberKey("Updates/rolloutNumber");
const QLatin1String feedTimeKey("Updates/feedTime");

void store(MRVSettings *settings, QLatin1String key, const QVariant &value, bool isKnown)
{
    if (isKnown) {
        settings->setValue(key, value);
    } else {
        settings->remove(key);
    }
}

} // namespace

MRVUpdateState MRVUpdateState::load()
{
    const MRVSettings settings(QCoreApplication::organizationName(),
                               QCoreApplication::applicationName());
    MRVUpdateState state;
    state.skippedVersion = settings.value(skippedVersionKey).toString();
    state.remindAfter = settings.value(remindAfterKey).toDateTime();
    bool isNumber = false;
    const int number = settings.value(rolloutNumberKey).toInt(&isNumber);
    state.rolloutNumber = isNumber && number >= 0 && number < Users ? number : -1;
    state.feedTime = settings.value(feedTimeKey).toLongLong();
    return state;
}

void MRVUpdateState::save() const
{
    MRVSettings settings(QCoreApplication::organizationName(), QCoreApplication::applicationName());
    store(&settings, skippedVersionKey, skippedVersion, !skippedVersion.isEmpty());
    store(&settings, remindAfterKey, remindAfter, remindAfter.isValid());
    store(&settings, rolloutNumberKey, rolloutNumber, rolloutNumber >= 0);
    // Another check may have seen a newer one meanwhile.
    const qint64 newest = qMax(feedTime, settings.value(feedTimeKey).toLongLong());
    store(&settings, feedTimeKey, newest, newest > 0);
    QString error;
    if (!settings.organizationName().isEmpty() && !settings.saveNow(&error)) {
        qCWarning(lcWeb, "%s", qUtf8Printable(error));
    }
}
