#include "datarows.h"
#include "support.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLibraryInfo>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

#include <algorithm>

namespace {

// One row a module: a folder, its layer, and the Qt modules and other libraries whose headers it
// may include. A file includes its own module and modules of lower layers. The library's rows are
// the table of docs/architecture.md.
struct Module
{
    const char *folder;
    int layer;
    const char *libraries;
};

constexpr int ProgramLayer = 100;
constexpr const char *AnyLibrary = "*";

// clang-format off
constexpr Module modules[] = {
    {"platform/core",   -1, "Core"},
    {"platform/gui",     0, "Core Gui"},
    {"platform/network", 0, "Core Network"},

    {"base/util",        1, "Core Gui"},
    {"base/http",        2, "Core Network curl/curl.h openssl/ssl.h openssl/x509v3.h zlib.h"},
    {"base/input",       2, "Core Gui"},
    {"base/zip",         2, "Core libdeflate.h zip.h"},

    {"base/autoreplace", 3, "Core Gui"},
    {"base/css",         3, "Core Gui"},
    {"base/dom",         3, "Core Xml"},
    {"base/download",    3, "Core Network Widgets"},
    {"base/exchange",    3, "Core Gui"},
    {"base/fileformats", 3, "Core"},
    {"base/markdown",    3, "Core cmark-gfm-core-extensions.h yaml.h"},
    {"base/shortcuts",   3, "Core Gui"},
    {"base/textformat",  3, "Core Gui"},
    {"base/version",     3, "Core Xml"},

    {"base/fragment",    4, "Core Gui"},
    {"base/office",      4, "Core"},
    {"base/plaintext",   4, "Core"},
    {"base/presets",     4, "Core Gui"},
    {"base/text",        4, "Core Gui"},

    {"base/archive",     5, "Core Gui"},
    {"base/html",        5, "Core Gui"},
    {"base/scriptmode",  5, "Core Gui"},
    {"base/search",      5, "Core Gui pcre2.h"},
    {"base/settings",    5, "Core Gui"},

    {"base/document",    6, "Core Gui"},
    {"base/options",     6, "Core Gui"},
    {"base/screenplay",  6, "Core Gui"},

    {"base/editor",      7, "Core Gui Widgets"},
    {"base/engines",     7, "Core"},
    {"base/state",       7, "Core Gui"},
    {"base/textexport",  7, "Core Gui"},
    {"base/update",      7, "Core Gui Network Widgets Xml"},
    {"base/xhtml",       7, "Core Gui"},

    {"base/manuscript",  8, "Core Gui"},

    {"base/clipboard",   9, "Core Gui"},
    {"base/epub",        9, "Core Gui"},
    {"base/pdf",         9, "Core Gui qpdf/qpdf-c.h"},
    {"base/publish",     9, "Core Gui"},

    {"plugins/webview",  ProgramLayer, "Core Gui Network Widgets WebKit WebKitWidgets"},
    {"cli",              ProgramLayer, AnyLibrary},
    {"examples",         ProgramLayer, AnyLibrary},
    {"tests",            ProgramLayer, AnyLibrary},
    {"benchmarks",       ProgramLayer, AnyLibrary},
    {"fuzz",             ProgramLayer, AnyLibrary},
};
// clang-format on

struct Include
{
    QString name;
    bool quoted; // "name", not <name>
    int line;
};

QString moduleFolders()
{
    return QLibraryInfo::location(QLibraryInfo::HeadersPath);
}

/// The Qt modules that publish a header: "QImage" and "QtGui/QImage" both give {"Gui"}.
QStringList qtModules(const QString &header)
{
    static const QStringList folders =
        QDir(moduleFolders()).entryList({"Qt*"}, QDir::Dirs, QDir::Name);
    QStringList publishers;
    for (const QString &folder : folders) {
        if (header.startsWith(folder + '/')
            || QFile::exists(moduleFolders() + '/' + folder + '/' + header)) {
            publishers.append(folder.mid(2));
        }
    }
    return publishers;
}

/// The includes of a source text, also those that are commented out: they are not worth keeping.
QVector<Include> includesOf(const QString &text)
{
    static const QRegularExpression include(
        "^\\s*#\\s*include\\s*(?:([<\"])([^>\"]*)[>\"]|(\\S+))");
    QVector<Include> includes;
    int number = 0;
    for (const QString &line : text.split('\n')) {
        ++number;
        const QRegularExpressionMatch match = include.match(line);
        if (match.hasMatch()) {
            includes.append({match.captured(2) + match.captured(3),
                             match.captured(1) != QLatin1String("<"), number});
        }
    }
    return includes;
}

/// Checks a set of source files, given as path (from the checkout) and text, against the rules.
class LayerCheck
{
public:
    explicit LayerCheck(const QMap<QString, QString> &sources)
        : m_sources(sources)
    {
        for (auto it = sources.cbegin(); it != sources.cend(); ++it) {
            checkFile(it.key(), it.value());
        }
        checkCircles();
    }

    QStringList faults() const { return m_faults; }

private:
    /// A header, its .cpp and its private header are one unit: "base/text/mrvtextrange".
    static QString unitOf(const QString &path)
    {
        QString unit = path.left(path.lastIndexOf('.'));
        if (unit.endsWith("_p")) {
            unit.chop(2);
        }
        return unit;
    }

    /// The row of the folder that a file lies in. The folders of programs may have folders.
    static const Module *moduleOf(const QString &path)
    {
        const bool isProgram = !path.startsWith("base/") && !path.startsWith("platform/")
            && !path.startsWith("plugins/");
        const QString folder = isProgram ? path.section('/', 0, 0) : path.section('/', 0, -2);
        for (const Module &module : modules) {
            if (folder == QLatin1String(module.folder)) {
                return &module;
            }
        }
        return nullptr;
    }

    /// The file that an include names, or nothing. The library's files are named from base/ or
    /// platform/; only a program may name a neighbour.
    QString resolve(const QString &from, const QString &name, const Module &module) const
    {
        QStringList roots{"base/", "platform/"};
        if (module.layer == ProgramLayer) {
            roots.prepend(from.left(from.lastIndexOf('/') + 1));
            roots.append(from.section('/', 0, 0) + '/');
            roots.append("cli/"); // a test of a program's own parts names them as it does
            roots.append("examples/writer/");
        }
        for (const QString &root : qAsConst(roots)) {
            const QString path = QDir::cleanPath(root + name);
            if (m_sources.contains(path)) {
                return path;
            }
        }
        return QString();
    }

    void checkFile(const QString &path, const QString &text)
    {
        const Module *module = moduleOf(path);
        if (!module) {
            m_faults.append(path + ": lies in no module");
            return;
        }
        const QVector<Include> includes = includesOf(text);
        for (const Include &include : includes) {
            const QString target = resolve(path, include.name, *module);
            const QString fault = target.isEmpty() ? foreignFault(path, include, *module)
                                                   : layerFault(path, target, *module);
            if (!fault.isEmpty()) {
                m_faults.append(QStringLiteral("%1:%2: %3: %4")
                                    .arg(path, QString::number(include.line), include.name, fault));
            }
            if (!target.isEmpty() && unitOf(target) != unitOf(path)) {
                m_uses[unitOf(path)].insert(unitOf(target));
            }
        }
    }

    static QString layerFault(const QString &from, const QString &to, const Module &module)
    {
        const Module *target = moduleOf(to);
        if (!target) {
            return "lies in no module";
        }
        if (target == &module) {
            return QString();
        }
        // A test may compile a private piece of the library, or of a program, into itself.
        const bool isTest = from.startsWith("tests/") || from.startsWith("fuzz/");
        if (to.endsWith("_p.h") && !isTest) {
            return "private to another module";
        }
        if (target->layer > module.layer) {
            return "points up";
        }
        return target->layer < module.layer || isTest ? QString() : "points across the layer";
    }

    static QString foreignFault(const QString &from, const Include &include, const Module &module)
    {
        const QString &name = include.name;
        const QString file = name.section('/', -1);
        const QString own = unitOf(from).section('/', -1);
        if (file.startsWith("ui_")) {
            return file == "ui_" + own + ".h" ? QString() : "form of another dialog";
        }
        if (name == own + ".moc") {
            return QString();
        }
        if (name.contains("/private/") || name.startsWith("private/")) {
            return "private to Qt";
        }
        if (include.quoted) {
            return "found neither from base/ nor from platform/";
        }
        const QStringList allowed = QString::fromLatin1(module.libraries).split(' ');
        if (allowed.contains(AnyLibrary) || allowed.contains(name)) {
            return QString();
        }
        const QStringList publishers = qtModules(name);
        for (const QString &publisher : publishers) {
            if (allowed.contains(publisher)) {
                return QString();
            }
        }
        if (!publishers.isEmpty()) {
            return "Qt module " + publishers.join('/') + " is not for this module";
        }
        // Without a capital it is the language's or the system's.
        static const QRegularExpression system("^[a-z0-9_/]+(\\.h)?$");
        return system.match(name).hasMatch() ? QString() : "library is not for this module";
    }

    /// Leaves out the units that use no other, again and again: what remains is in a circle, or
    /// uses one.
    void checkCircles()
    {
        const auto remains = [this](const QString &unit) { return m_uses.contains(unit); };
        int before = 0;
        do {
            before = m_uses.size();
            for (const QString &unit : m_uses.keys()) {
                const QSet<QString> uses = m_uses.value(unit);
                if (std::none_of(uses.begin(), uses.end(), remains)) {
                    m_uses.remove(unit);
                }
            }
        } while (m_uses.size() < before);
        if (!m_uses.isEmpty()) {
            m_faults.append("circle: " + QStringList(m_uses.keys()).join(' '));
        }
    }

    QMap<QString, QString> m_sources;
    QMap<QString, QSet<QString>> m_uses;
    QStringList m_faults;
};

/// All sources of the checkout that belong to a module. The package test's project is external.
QMap<QString, QString> checkoutSources()
{
    QMap<QString, QString> sources;
    const QDir root(MRV_SOURCE_DIR);
    for (const char *top :
         {"platform", "base", "plugins", "cli", "examples", "tests", "benchmarks", "fuzz"}) {
        QDirIterator it(root.filePath(top), {"*.h", "*.cpp"}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            QFile file(it.next());
            const QString path = root.relativeFilePath(file.fileName());
            if (!path.startsWith("tests/package/") && file.open(QIODevice::ReadOnly)) {
                sources.insert(path, QString::fromUtf8(file.readAll()));
            }
        }
    }
    return sources;
}

/// Number of functions that the dynamic linker calls when it loads a library, or -1.
int startUpEntries(const QString &path)
{
    static const QRegularExpression size(" \\.init_array +INIT_ARRAY +\\w+ \\w+ (\\w+)");
    const auto match = size.match(run("readelf", {"-S", "-W", path}).output);
    return match.hasMatch() ? match.captured(1).toInt(nullptr, 16) / int(sizeof(void *)) : -1;
}

/// What the library must not have: an object whose constructor runs when the program is loaded.
/// The count of this very program shows that startUpEntries() sees it.
const QString plantedGlobal = QString::number(1);

} // namespace

/// A row's sources: "file: include include; file: include". An include of a project file without
/// brackets is quoted.
static QMap<QString, QString> invented(const QString &text)
{
    QMap<QString, QString> sources;
    const QStringList files = text.split(';');
    for (const QString &file : files) {
        const QString path = file.section(':', 0, 0).trimmed();
        const QStringList names = file.section(':', 1).simplified().split(' ', Qt::SkipEmptyParts);
        QString content = "#pragma once\n";
        for (const QString &name : names) {
            content +=
                name.startsWith('<') ? "#include " + name + '\n' : "#  include \"" + name + "\"\n";
        }
        sources.insert(path, content);
    }
    return sources;
}

/// The modules, the layers and the start-up code of the library.
class TestLayers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checkerTellsRightFromWrong_data() { addRows("layers.tsv"); }
    void checkerTellsRightFromWrong()
    {
        QFETCH(QString, fault);
        const QStringList faults = LayerCheck(invented(cell("files"))).faults();
        QVERIFY2(faults.size() == (fault.isEmpty() ? 0 : 1), qPrintable(faults.join('\n')));
        QVERIFY2(faults.value(0).contains(fault), qPrintable(faults.value(0)));
    }

    void checkoutKeepsTheRules()
    {
        const QMap<QString, QString> sources = checkoutSources();
        QVERIFY(sources.contains("base/util/mrvbase_export.h"));
        QVERIFY(sources.contains("tests/tst_layers.cpp"));
        const QStringList faults = LayerCheck(sources).faults();
        QVERIFY2(faults.isEmpty(), qPrintable('\n' + faults.join('\n')));
    }

    /// The folders below base/, the rows above and the table of the documentation are the same.
    void documentation()
    {
        QMap<QString, int> rows;
        for (const Module &module : modules) {
            const QString folder = module.folder;
            if (folder.startsWith("base/")) {
                QVERIFY2(!rows.contains(folder.mid(5)), module.folder);
                rows.insert(folder.mid(5), module.layer);
            }
        }
        QFile page(MRV_SOURCE_DIR "/docs/architecture.md");
        QVERIFY(page.open(QIODevice::ReadOnly));
        static const QRegularExpression line("^\\| (\\d+) \\| (.*) \\|$",
                                             QRegularExpression::MultilineOption);
        static const QRegularExpression name("`([a-z]+)/`");
        QMap<QString, int> documented;
        for (auto it = line.globalMatch(QString::fromUtf8(page.readAll())); it.hasNext();) {
            const QRegularExpressionMatch match = it.next();
            for (auto names = name.globalMatch(match.captured(2)); names.hasNext();) {
                documented.insert(names.next().captured(1), match.captured(1).toInt());
            }
        }
        QCOMPARE(documented, rows);
        QStringList folders =
            QDir(MRV_SOURCE_DIR "/base").entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        folders.removeOne("resources"); // no code
        QCOMPARE(folders, QStringList(rows.keys()));
    }

    /// What a test starts by name is in the base system, or packages.txt has it installed.
    void outsidePrograms()
    {
        QString packages = '\n' + QString::fromUtf8(bytesOf(MRV_SOURCE_DIR "/packages.txt"));
        packages.truncate(packages.indexOf("\n[ci]"));
        for (const OutsideProgram &program : ::outsidePrograms) {
            if (!packages.contains(QString("\n%1 ").arg(program.package))) {
                const Ran ran = run("dpkg-query", {"-W", "-f", "${Essential}", program.package});
                QVERIFY2(ran.output == "yes", program.package);
            }
        }
        // A name that is given to a process directly would not be in the table.
        static const QRegularExpression direct("\\.(start|startDetached|execute)\\(\\s*\"");
        QDirIterator it(MRV_SOURCE_DIR "/tests", {"*.cpp", "*.h"}, QDir::Files);
        while (it.hasNext()) {
            const QString path = it.next();
            QVERIFY2(!QString::fromUtf8(bytesOf(path)).contains(direct), qPrintable(path));
        }
    }

    /// Each package that packages.txt lists has its reason in the table of the documentation.
    void documentedPackages()
    {
        static const QRegularExpression row("^\\| (.*) \\| .* \\|$",
                                            QRegularExpression::MultilineOption);
        static const QRegularExpression quoted("`([^`]+)`");
        const QString page = QString::fromUtf8(bytesOf(MRV_SOURCE_DIR "/docs/architecture.md"));
        const QString part = page.section("\n## Dependencies\n", 1).section("\n## ", 0, 0);
        QStringList documented;
        for (auto it = row.globalMatch(part); it.hasNext();) {
            for (auto names = quoted.globalMatch(it.next().captured(1)); names.hasNext();) {
                documented.append(names.next().captured(1));
            }
        }
        static const QRegularExpression package("^([^\\s#[]+)",
                                                QRegularExpression::MultilineOption);
        QStringList listed{"libbenchmark-dev"}; // for those who ask for benchmarks
        const QString packages = QString::fromUtf8(bytesOf(MRV_SOURCE_DIR "/packages.txt"));
        for (auto it = package.globalMatch(packages); it.hasNext();) {
            listed.append(it.next().captured(1));
        }
        listed.removeDuplicates();
        listed.sort();
        documented.sort();
        QCOMPARE(documented.join('\n'), listed.join('\n'));
    }

    void startUpCode_data()
    {
        QTest::addColumn<QString>("library");
        for (const char *name : {"MrvCore", "MrvGui", "MrvNetwork", "MrvBase"}) {
            QTest::newRow(name) << QStringLiteral(MRV_BINARY_DIR "/lib/lib%1.so.1").arg(name);
        }
    }
    /// The one entry that is left is the compiler's own, in every shared library (frame_dummy).
    void startUpCode()
    {
#if defined(MRV_SANITIZE) || defined(MRV_COVERAGE)
        QSKIP("what the compiler adds runs start-up code of its own in every library");
#endif
        QVERIFY(!plantedGlobal.isEmpty());
        QVERIFY(startUpEntries(QCoreApplication::applicationFilePath()) > 1);
        QCOMPARE(startUpEntries(cell("library")), 1);
    }
};

QTEST_GUILESS_MAIN(TestLayers)
#include "tst_layers.moc"
