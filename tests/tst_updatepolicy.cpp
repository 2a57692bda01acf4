#include "datarows.h"

#include "update/mrvupdatefeed.h"
#include "update/mrvupdatepolicy.h"
#include "update/mrvupdatestate.h"

#include <QDomDocument>

namespace {

const QDateTime now(QDate(2026, 11, 22), QTime(12, 0), Qt::UTC);

// The first words of a cell, or nothing.
QString word(const QString &cell, int i)
{
    return cell.split(' ', Qt::SkipEmptyParts).value(i);
}

bool readFeed(const QString &version, const QString &elements, MRVUpdateFeed *feed, QString *reason)
{
    QDomDocument document;
    document.setContent("<u>" + elements + "</u>");
    MRVUpdateOffer offer;
    offer.version = version;
    offer.fileName = "m.run";
    return MRVUpdateFeed::read(document, offer, feed, reason);
}

} // namespace

/** What is offered to whom. */
class TestUpdatePolicy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decisions_data() { addRows("update-policy.tsv"); }
    void decisions()
    {
        const QHash<QString, MRVUpdatePolicy::Feature> features{
            {"skip", MRVUpdatePolicy::SkipVersions}, {"later", MRVUpdatePolicy::RemindLater},
            {"channels", MRVUpdatePolicy::Channels}, {"critical", MRVUpdatePolicy::CriticalUpdates},
            {"rollout", MRVUpdatePolicy::Rollout},
        };
        MRVUpdatePolicy policy;
        for (const QString &name : cell("features").split(' ', Qt::SkipEmptyParts)) {
            QVERIFY2(features.contains(name), qPrintable(name));
            policy.features |= features[name];
        }
        policy.channel = cell("channel");
        policy.remindAfterDays = 3;
        MRVUpdateFeed feed;
        QString reason;
        QVERIFY(readFeed(cell("version"), cell("elements"), &feed, &reason));
        MRVUpdateState state;
        const QString kept = cell("kept");
        state.skippedVersion = word(kept, 0) == "skipped" ? word(kept, 1) : QString();
        state.rolloutNumber = word(kept, 0) == "number" ? word(kept, 1).toInt() : -1;
        if (word(kept, 0) == "hours") {
            state.remindAfter = now.addSecs(word(kept, 1).toInt() * 3600);
        }
        const MRVUpdatePolicy::Decision decision =
            policy.decide(feed, state, cell("running"), cell("asked") == "yes", now);
        const char *const verdicts[] = {"nothing", "offered", "skipped", "postponed", "held"};
        QString decided = verdicts[decision.verdict];
        decided += ' ' + feed.offers[decision.offer].version;
        decided += decision.isUrgent ? " urgent" : "";
        QTEST(decided, "decided");
    }

    void feeds_data()
    {
        QTest::addColumn<QString>("elements");
        QTest::addColumn<QString>("read");
        const auto row = [](const char *name, const QString &elements, const QString &read) {
            QTest::newRow(name) << elements << read;
        };
        const QString sha256 = QString("0a").repeated(32);
        row("bare", "", "0:  -1 0 100");
        row("all",
            "<size> 5 </size><sha256>" + sha256.toUpper()
                + "</sha256><critical>true</critical><rollout>0</rollout>",
            "0: " + sha256 + " 5 1 0");
        row("deeper-ones-do-not-count", "<x><size>5</size></x>", "0:  -1 0 100");
        row("channel",
            "<channel name='b'><version>1</version><linuxfilename>m</linuxfilename><url>u</url>"
            "<size>7</size></channel><size>5</size>",
            "0:  5 0 100;1:b  7 0 100");
        row("last-day", "<expires>2026-11-22</expires>", "2026-11-23T00:00:00Z 0:  -1 0 100");
        row("last-second", "<expires>2026-11-22T10:00:00+02:00</expires>",
            "2026-11-22T08:00:00Z 0:  -1 0 100");
        row("without-zone", "<expires>2026-11-22T10:00:00</expires>",
            "2026-11-22T10:00:00Z 0:  -1 0 100");
        for (const char *wrong :
             {"<size>0</size>", "<size>5 MB</size>", "<size>99999999999999999999</size>",
              "<sha256>0a</sha256>", "<critical>yes</critical>", "<critical/>",
              "<rollout>101</rollout>", "<rollout>-1</rollout>", "<expires>2026-02-30</expires>",
              "<expires>soon</expires>", "<channel/>"}) {
            const QString tag = QString(wrong).section(QRegularExpression("[<>/]+"), 1, 1);
            row(wrong, wrong, "its element \"" + tag + "\" is not valid");
        }
    }
    void feeds()
    {
        MRVUpdateFeed feed;
        QString read;
        if (readFeed("3.0.0.0", cell("elements"), &feed, &read)) {
            QStringList offers;
            for (const MRVUpdateOffer &offer : feed.offers) {
                offers << QString("%1:%2 %3 %4 %5 %6")
                              .arg(offers.size())
                              .arg(offer.channel, offer.sha256.toHex())
                              .arg(offer.size)
                              .arg(offer.isCritical)
                              .arg(offer.rollout);
            }
            read = (feed.expires.toUTC().toString(Qt::ISODate) + ' ' + offers.join(';')).trimmed();
        }
        QTEST(read, "read");
    }

    void isKept()
    {
        QCoreApplication::setOrganizationName("Morvane");
        QCoreApplication::setApplicationName("Morvane");
        MRVUpdateState state;
        state.skippedVersion = "3.0.0.0";
        state.remindAfter = now;
        state.rolloutNumber = 42;
        state.feedTime = 1700000412;
        state.save();
        const MRVUpdateState kept = MRVUpdateState::load();
        QCOMPARE(kept.skippedVersion, state.skippedVersion);
        QCOMPARE(kept.remindAfter, state.remindAfter);
        QCOMPARE(kept.rolloutNumber, state.rolloutNumber);
        QCOMPARE(kept.feedTime, state.feedTime);
        QSettings("Morvane", "Morvane").setValue("Updates/rolloutNumber", 100);
        QCOMPARE(MRVUpdateState::load().rolloutNumber, -1);
        MRVUpdateState().save();
        QCOMPARE(QSettings("Morvane", "Morvane").allKeys(), QStringList("Updates/feedTime"));
        QCOMPARE(MRVUpdateState::load().feedTime, state.feedTime);
    }
};

QTEST_GUILESS_MAIN(TestUpdatePolicy)
#include "tst_updatepolicy.moc"
