#include "support.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

/// The installed library as another project finds it. It is installed into one folder and then
/// moved to another, whose name holds a blank: nothing of it may know where it was installed to.
class TestPackage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        // What is tested must be found through the package alone.
        for (const char *name : {"LD_LIBRARY_PATH", "PKG_CONFIG_PATH", "CMAKE_PREFIX_PATH"}) {
            qunsetenv(name);
        }
        const QString first = m_folder.filePath("first");
        m_prefix = m_folder.filePath("moved prefix");
        succeed(MRV_CMAKE, {"--install", MRV_BINARY_DIR, "--prefix", first});
        QVERIFY(QDir().rename(first, m_prefix));
    }

    /// Every header of the library but the private ones is installed, at its own place.
    void publicFiles()
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

    void sonames_data()
    {
        QTest::addColumn<QString>("library");
        for (const char *name : {"MrvCore", "MrvGui", "MrvNetwork", "MrvBase"}) {
            QTest::newRow(name) << QStringLiteral("lib%1.so").arg(name);
        }
    }
    void sonames()
    {
        QFETCH(QString, library);
        const Ran read =
            succeed("readelf", {"-d", "-W", m_prefix + "/" MRV_LIBDIR "/" + library + ".1"});
        QVERIFY2(read.output.contains("Library soname: [" + library + ".1]"),
                 qPrintable(read.output));
        QVERIFY2(!read.output.contains(MRV_BINARY_DIR), qPrintable(read.output));
    }

    void findPackage()
    {
        const QString build = m_folder.filePath("cmake build");
        succeed(MRV_CMAKE,
                {"-G", "Ninja", "-S", m_source, "-B", build, "-DCMAKE_PREFIX_PATH=" + m_prefix,
                 "-DCMAKE_CXX_COMPILER=" MRV_CXX, "-DCMAKE_CXX_FLAGS=" MRV_CXX_FLAGS});
        succeed(MRV_CMAKE, {"--build", build});
        checkProgram(build + "/other");
        for (const char *name : {"MrvCore", "MrvGui", "MrvNetwork"}) {
            succeed(build + "/only" + name, {});
        }
        // A program that has no resources finds the translations when it is installed beside them.
        QCOMPARE(run(build + "/onlyMrvCore", {}).output, QString("en\n"));
        QVERIFY(QFile::copy(build + "/onlyMrvCore", m_prefix + "/bin/onlyMrvCore"));
        QCOMPARE(run(m_prefix + "/bin/onlyMrvCore", {}).output, QString("en de es fr\n"));
    }

    void pkgConfig()
    {
        const QString libraries = m_prefix + "/" MRV_LIBDIR;
        const QStringList variables{"PKG_CONFIG_PATH=" + libraries + "/pkgconfig",
                                    "LD_LIBRARY_PATH=" + libraries};
        const Ran version = succeed("pkg-config", {"--modversion", "mrvbase"}, variables);
        QCOMPARE(version.output.trimmed(), QString(MRV_VERSION));

        // pkg-config writes for a shell, which alone reads its backslashes right.
        const QString script = QStringLiteral(
            "eval \"set -- $(pkg-config --cflags mrvbase) main.cpp"
            " $(pkg-config --variable=resources mrvbase) $(pkg-config --libs mrvbase)\" && "
            "exec \"$COMPILER\" -std=c++17 -Wall -Wextra -Werror $FLAGS -o \"$PROGRAM\" \"$@\"");
        const QString program = m_folder.filePath("by pkg-config");
        QVERIFY(QDir::setCurrent(m_source));
        succeed(
            "sh", {"-c", script},
            variables
                + QStringList{"COMPILER=" MRV_CXX, "FLAGS=" MRV_CXX_FLAGS, "PROGRAM=" + program});
        checkProgram(program, variables);
    }

    /// The tool finds its libraries from where it lies, and needs no display.
    void toolRuns()
    {
        const Ran version = succeed(m_prefix + "/bin/mrv", {"--version"});
        QVERIFY2(version.output.contains(MRV_VERSION), qPrintable(version.output));
    }

    void pathsThatCannotBeBuiltAreRefused()
    {
        const QString tools = m_folder.filePath("writer's checkout/tools");
        QVERIFY(QDir().mkpath(tools));
        QVERIFY(QFile::copy(MRV_SOURCE_DIR "/tools/setup.sh", tools + "/setup.sh"));
        QVERIFY(QDir::setCurrent(tools));
        const Ran build = run("bash", {"-c", ". ./setup.sh; mrv_build release"});
        QCOMPARE(build.exitCode, 1);
        QVERIFY2(build.errors.contains("/writer's checkout holds an apostrophe"),
                 qPrintable(build.errors));
        QVERIFY(!QFile::exists(m_folder.filePath("writer's checkout/build")));
    }

private:
    // Fails the test where the program does.
    static Ran succeed(const QString &program, const QStringList &arguments = {},
                       const QStringList &variables = {})
    {
        const Ran ran = run(program, arguments, variables);
        if (ran.exitCode != 0) {
            QTest::qFail(qPrintable(program + '\n' + ran.output + ran.errors), __FILE__, __LINE__);
        }
        return ran;
    }

    static void checkProgram(const QString &program, const QStringList &variables = {})
    {
        const Ran shown = succeed(program, {}, variables);
        QCOMPARE(shown.output.section('\n', 0, 1), QString("core 2015-10-08\ngui #ffffff"));
        QVERIFY2(shown.output.contains("\nnetwork "), qPrintable(shown.output));
        QVERIFY2(shown.output.endsWith("\nbase application/pdf\ntext Datei\n"),
                 qPrintable(shown.output));
    }

    QTemporaryDir m_folder;
    QString m_prefix;
    const QString m_source = QStringLiteral(MRV_SOURCE_DIR "/tests/package");
};

QTEST_GUILESS_MAIN(TestPackage)
#include "tst_package.moc"
