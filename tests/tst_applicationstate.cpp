#include "datarows.h"
#include "options/mrvoptions.h"
#include "state/mrvapplicationstate.h"

#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

using State = MRVApplicationState;

struct Flag
{
    const char *key;
    bool (State::*get)() const;
    void (State::*set)(bool);
};

const Flag flags[] = {
    {"ShowSpellCheckerLoadErrors", &State::showSpellCheckerLoadErrors,
     &State::setSpellCheckerLoadErrors},
    {"ShowSortWarning", &State::showSortWarning, &State::setShowSortWarning},
    {"ShowImportWarning", &State::showImportWarning, &State::setShowImportWarning},
    {"ShowClearTemplateWarning", &State::showClearTemplateWarning,
     &State::setShowClearTemplateWarning},
    {"ShowBetaExpireDateWarning", &State::showBetaExpireDateWarning,
     &State::setShowBetaExpireDateWarning},
    {"ShowMetaDataMoveWarning", &State::showMetaDataMoveWarning,
     &State::setShowMetaDataMoveWarning},
    {"ShowGettingStarted", &State::showGettingStarted, &State::setShowGettingStarted},
    {"UseZipForBackups", &State::useZipForBackups, &State::setUseZipForBackups},
};

struct Text
{
    const char *key;
    QString (State::*get)() const;
    void (State::*set)(const QString &);
};

const Text texts[] = {
    {"RecentExportPath", &State::recentExportPath, &State::setRecentExportPath},
    {"RecentCompilePath", &State::recentCompilePath, &State::setRecentCompilePath},
    {"RecentImportPath", &State::recentImportPath, &State::setRecentImportPath},
    {"RecentProjectPath", &State::recentProjectPath, &State::setRecentProjectPath},
    {"TutorialPath", &State::tutorialLocation, &State::setTutorialLocation},
};

QStringList numbered(int count)
{
    QStringList list;
    for (int i = 1; i <= count; ++i) {
        list << QString::number(i);
    }
    return list;
}

} // namespace

class tst_ApplicationState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home.reset(new QTemporaryDir);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_home->path());
        State().clear();
        mrvOptions()->setValue(MRVOptions::RecentProjectsCount, 10);
    }

    void flagsOfKeys()
    {
        State state;
        state.setFallbacksEnabled(false);
        const int others = state.allKeys().size(); // of the options
        for (const Flag &flag : flags) {
            QVERIFY((state.*flag.get)());
            (state.*flag.set)(false);
            QVERIFY(!(state.*flag.get)());
            QCOMPARE(state.value(flag.key), QVariant(false));
            state.setValue(flag.key, "true"); // as a file gives it
            QVERIFY((state.*flag.get)());
            state.setValue(flag.key, "off");
            QVERIFY(!(state.*flag.get)());
            (state.*flag.set)(false);
        }
        QCOMPARE(state.allKeys().size(), others + int(std::size(flags)));
        state.resetAllWarnings();
        for (const Flag &flag : flags) {
            const bool isWarning =
                flag.get != &State::showGettingStarted && flag.get != &State::useZipForBackups;
            QVERIFY2((state.*flag.get)() == isWarning, flag.key);
        }
    }

    void textsOfKeys()
    {
        State state;
        const QString documents =
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        for (const Text &text : texts) {
            const bool isFolder = text.get != &State::tutorialLocation;
            QCOMPARE((state.*text.get)(), isFolder ? documents : QString());
            (state.*text.set)("/mnt/x");
            QCOMPARE((state.*text.get)(), QString("/mnt/x"));
            QCOMPARE(state.value(text.key).toString(), QString("/mnt/x"));
        }
        QVERIFY(QDir::isAbsolutePath(documents));
    }

    // Lists of one and of none come back from a file as something else.
    void listsAfterRestart()
    {
        State state;
        state.setRecentProjectList({"/a, b"});
        state.setLastClosedProjects({});
        state.setRecentIcons({""});
        state.sync();
        const QString copy = m_home->filePath("copy");
        QVERIFY(QFile::copy(state.fileName(), copy));
        const QSettings stored(copy, QSettings::IniFormat);
        for (const char *key : {"Recent", "LastClosedProjects", "RecentIcons"}) {
            state.setValue(key, stored.value(key));
        }
        QCOMPARE(state.recentProjectList(), QStringList({"/a, b"}));
        QCOMPARE(state.lastClosedProjects(), QStringList());
        QCOMPARE(state.recentIcons(), QStringList({""}));
    }

    void recentProjects()
    {
        State state;
        state.setRecentProjectList(numbered(60));
        QCOMPARE(state.value("Recent").toStringList(), numbered(50));
        QCOMPARE(state.recentProjectList(), numbered(10));
        mrvOptions()->setValue(MRVOptions::RecentProjectsCount, 30);
        QCOMPARE(state.recentProjectList(), numbered(30));
        mrvOptions()->setValue(MRVOptions::RecentProjectsCount, -1);
        QCOMPARE(state.recentProjectList(), QStringList());
        mrvOptions()->setValue(MRVOptions::RecentProjectsCount, 3);
        state.prependToRecentProjectList("2");
        QCOMPARE(state.value("Recent").toStringList(), QStringList({"2", "1", "3"}));
        state.prependToRecentProjectList("0");
        QCOMPARE(state.value("Recent").toStringList(), QStringList({"0", "2", "1", "3"}));
        QCOMPARE(state.recentProjectList(), QStringList({"0", "2", "1"}));
    }

    void recentIcons()
    {
        State state;
        for (const QString &icon : numbered(6)) {
            state.addRecentIcon(icon);
        }
        QCOMPARE(state.recentIcons(), QStringList({"6", "5", "4", "3", "2"}));
        state.addRecentIcon("4");
        QCOMPARE(state.recentIcons(), QStringList({"4", "6", "5", "3", "2"}));
    }

    void besideTheOptions()
    {
        QCOMPARE(State::instance(), State::instance());
        State state;
        MRVOptions options;
        QCOMPARE(state.fileName(), options.fileName());
        state.setShowSortWarning(false);
        options.setValue(MRVOptions::BackupsToRetain, 3);
        options.resetAllWarnings();
        QVERIFY(state.showSortWarning());
        QCOMPARE(state.value("Options/Backups/retain").toInt(), 3);
    }

private:
    QScopedPointer<QTemporaryDir> m_home;
};

QTEST_MAIN(tst_ApplicationState)
#include "tst_applicationstate.moc"
