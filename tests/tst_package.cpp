#include <QDir>
#include <QDirIterator>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Outcome
{
    int code = -1;
    QString out;
    QString all; // both channels, for the report of a failure
};

Outcome run(const QString &program, const QStringList &arguments,
            const QMap<QString, QString> &variables = {}, const QString &folder = QString())
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // What is tested must be found through the package alone.
    for (const char *name : {"LD_LIBRARY_PATH", "PKG_CONFIG_PATH", "CMAKE_PREFIX_PATH"}) {
        environment.remove(name);
    }
    for (auto it = variables.cbegin(); it != variables.cend(); ++it) {
        environment.insert(it.key(), it.value());
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    process.waitForFinished(-1);
    Outcome outcome;
    outcome.out = QString::fromLocal8Bit(process.readAllStandardOutput());
    outcome.all = program + ' ' + arguments.join(' ') + '\n' + outcome.out
        + QString::fromLocal8Bit(process.readAllStandardError()) + process.errorString();
    if (process.exitStatus() == QProcess::NormalExit) {
        outcome.code = process.exitCode();
    }
    return outcome;
}

} // namespace

#define VERIFY_RAN(outcome) QVERIFY2((outcome).code == 0, qPrintable((outcome).all))

/// The installed library as a stranger meets it. It is installed into one folder and then moved to
/// another, whose name holds a blank: nothing of it may know where it was installed to.
class TestPackage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void publicFiles();
    void sonames_data();
    void sonames();
    void findPackage();
    void pkgConfig();
    void toolRuns();
    void pathsThatCannotBeBuiltAreRefused();

private:
    static void checkStranger(const QString &program, const QMap<QString, QString> &variables = {});

    QTemporaryDir m_folder;
    QString m_prefix;
    const QString m_source = QStringLiteral(MRV_SOURCE_DIR "/tests/package");
};

void TestPackage::initTestCase()
{
    QVERIFY(m_folder.isValid());
    const QString first = m_folder.filePath("first");
    m_prefix = m_folder.filePath("moved prefix");
    VERIFY_RAN(run(MRV_CMAKE, {"--install", MRV_BINARY_DIR, "--prefix", first}));
    QVERIFY(QDir().rename(first, m_prefix));
}

/// Every header of the library but the private ones is installed, at its own place.
void TestPackage::publicFiles()
{
    QStringList expected;
    for (const char *pair : {"base/ mrvbase/", "platform/ mrvplatform/"}) {
        const QString from = QString(pair).section(' ', 0, 0);
        QDirIterator it(MRV_SOURCE_DIR "/" + from, {"*.h"}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString place = QDir(MRV_SOURCE_DIR "/" + from).relativeFilePath(it.next());
            if (!place.endsWith("_p.h")) {
                expected.append(QString(pair).section(' ', 1) + place);
            }
        }
    }
    QStringList installed;
    const QDir include(m_prefix + "/include");
    QDirIterator it(include.path(), QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        installed.append(include.relativeFilePath(it.next()));
    }
    expected.sort();
    installed.sort();
    QVERIFY(installed.contains("mrvbase/util/mrvbase_export.h"));
    QCOMPARE(installed.join('\n'), expected.join('\n'));
}

void TestPackage::sonames_data()
{
    QTest::addColumn<QString>("library");
    for (const char *name : {"MrvCore", "MrvGui", "MrvNetwork", "MrvBase"}) {
        QTest::newRow(name) << QStringLiteral("lib%1.so").arg(name);
    }
}

void TestPackage::sonames()
{
    QFETCH(QString, library);
    const Outcome read =
        run("readelf", {"-d", "-W", m_prefix + "/" MRV_LIBDIR "/" + library + ".1"});
    VERIFY_RAN(read);
    QVERIFY2(read.out.contains("Library soname: [" + library + ".1]"), qPrintable(read.out));
    QVERIFY2(!read.out.contains(MRV_BINARY_DIR), qPrintable(read.out));
}

void TestPackage::checkStranger(const QString &program, const QMap<QString, QString> &variables)
{
    const Outcome stranger = run(program, {}, variables);
    VERIFY_RAN(stranger);
    QCOMPARE(stranger.out.section('\n', 0, 1), QString("core 2015-10-08\ngui #ffffff"));
    QVERIFY2(stranger.out.contains("\nnetwork "), qPrintable(stranger.out));
    QVERIFY2(stranger.out.endsWith("\nbase application/pdf\ntext Datei\n"),
             qPrintable(stranger.out));
}

void TestPackage::findPackage()
{
    const QString build = m_folder.filePath("cmake build");
    VERIFY_RAN(run(MRV_CMAKE,
                   {"-G", "Ninja", "-S", m_source, "-B", build, "-DCMAKE_PREFIX_PATH=" + m_prefix,
                    "-DCMAKE_CXX_COMPILER=" MRV_CXX, "-DCMAKE_CXX_FLAGS=" MRV_CXX_FLAGS}));
    VERIFY_RAN(run(MRV_CMAKE, {"--build", build}));
    checkStranger(build + "/stranger");
    for (const char *name : {"MrvCore", "MrvGui", "MrvNetwork"}) {
        VERIFY_RAN(run(build + "/only" + name, {}));
    }
    // A program that has no resources finds the translations when it is installed beside them.
    QCOMPARE(run(build + "/onlyMrvCore", {}).out, QString("en\n"));
    QVERIFY(QFile::copy(build + "/onlyMrvCore", m_prefix + "/bin/onlyMrvCore"));
    QCOMPARE(run(m_prefix + "/bin/onlyMrvCore", {}).out, QString("en de es fr\n"));
}

void TestPackage::pkgConfig()
{
    const QString libraries = m_prefix + "/" MRV_LIBDIR;
    const QMap<QString, QString> variables{{"PKG_CONFIG_PATH", libraries + "/pkgconfig"},
                                           {"LD_LIBRARY_PATH", libraries}};
    const Outcome version = run("pkg-config", {"--modversion", "mrvbase"}, variables);
    VERIFY_RAN(version);
    QCOMPARE(version.out.trimmed(), QString(MRV_VERSION));

    // pkg-config writes for a shell, which alone reads its backslashes right.
    const QString script = QStringLiteral(
        "eval \"set -- $(pkg-config --cflags mrvbase) main.cpp"
        " $(pkg-config --variable=resources mrvbase) $(pkg-config --libs mrvbase)\" && "
        "exec \"$COMPILER\" -std=c++17 -Wall -Wextra -Werror $FLAGS -o \"$PROGRAM\" \"$@\"");
    const QString program = m_folder.filePath("by pkg-config");
    QMap<QString, QString> settings = variables;
    settings.insert("COMPILER", MRV_CXX);
    settings.insert("FLAGS", MRV_CXX_FLAGS);
    settings.insert("PROGRAM", program);
    VERIFY_RAN(run("sh", {"-c", script}, settings, m_source));
    checkStranger(program, variables);
}

/// The tool finds its libraries from where it lies, and needs no display.
void TestPackage::toolRuns()
{
    const Outcome version = run(m_prefix + "/bin/mrv", {"--version"});
    VERIFY_RAN(version);
    QVERIFY2(version.out.contains(MRV_VERSION), qPrintable(version.all));
}

void TestPackage::pathsThatCannotBeBuiltAreRefused()
{
    const QString tools = m_folder.filePath("writer's checkout/tools");
    QVERIFY(QDir().mkpath(tools));
    QVERIFY(QFile::copy(MRV_SOURCE_DIR "/tools/setup.sh", tools + "/setup.sh"));
    const Outcome build = run("bash", {"-c", ". ./setup.sh; mrv_build release"}, {}, tools);
    QCOMPARE(build.code, 1);
    QVERIFY2(build.all.contains("/writer's checkout holds an apostrophe"), qPrintable(build.all));
    QVERIFY(!QFile::exists(m_folder.filePath("writer's checkout/build")));
}

QTEST_GUILESS_MAIN(TestPackage)
#include "tst_package.moc"
