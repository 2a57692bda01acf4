#include "core/mcoretype.h"
#include "core/mrvcore.h"
#include "core/mrvcoreutil.h"
#include "core/mrvfilebatch.h"
#include "core/mrvfuzzycompare.h"
#include "core/mtranslator.h"
#include "datarows.h"
#include "network/mrvnetwork.h"
#include "support.h"

#include <csignal>
#include <ctime>
#include <functional>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Entry = QPair<QString, QByteArray>;
using Numbers = QMap<int, QString>;

QString rights(int permissions, uint owner, uint group)
{
    return QString("%1 %2:%3").arg(permissions, 0, 16).arg(owner).arg(group);
}

// Everything below a folder: permissions and owners with contents, or where a link leads.
QMap<QString, Entry> entriesOf(const QString &folder)
{
    QMap<QString, Entry> entries;
    QDirIterator it(folder, QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QFileInfo info(it.next());
        const QByteArray contents = info.isFile() ? bytesOf(info.filePath()) : QByteArray();
        entries[info.filePath().mid(folder.size() + 1)] = info.isSymLink()
            ? Entry("link", info.symLinkTarget().toUtf8())
            : Entry(rights(info.permissions(), info.ownerId(), info.groupId()), contents);
    }
    return entries;
}

QString found(const QString &pattern, const QString &text)
{
    QStringList addresses;
    const QRegularExpression expression(pattern, QRegularExpression::UseUnicodePropertiesOption);
    for (auto it = expression.globalMatch(text); it.hasNext();) {
        addresses << it.next().captured();
    }
    QRegExp old(pattern);
    QStringList others;
    for (int at = 0; (at = old.indexIn(text, at)) >= 0; at += old.matchedLength()) {
        others << old.cap();
    }
    return addresses == others && old.captureCount() == 0 ? addresses.join('|') : "engines differ";
}

// The two values of "ok" must be set, and agree.
template<typename T>
QString pairFrom(QPair<T, T> (*function)(const QString &, bool *), const QString &text)
{
    bool ok = false;
    bool sameOk = true;
    const QPair<T, T> pair = function(text, &ok);
    function(text, &sameOk);
    return QString("%1%2 %3,%4").arg(ok).arg(sameOk).arg(pair.first).arg(pair.second);
}

template<typename T>
bool refusesCorrupt(const T &value)
{
    const QByteArray bytes = MCoreType::toByteArray(value);
    bool isRefused = MCoreType::fromByteArray<T>(bytes) == value;
    for (int i = 0; i < bytes.size(); ++i) {
        isRefused = isRefused && MCoreType::fromByteArray<T>(bytes.left(i)).isEmpty();
    }
    for (const char *count : {"7ffffff0", "00000003", "ffffffff"}) {
        const QByteArray corrupt = QByteArray::fromHex(count) + bytes.mid(4);
        isRefused = isRefused && MCoreType::fromByteArray<T>(corrupt).isEmpty();
    }
    // A count within must be no order to take memory either.
    for (int i = 4; i + 4 <= bytes.size(); ++i) {
        QByteArray corrupt = bytes;
        const T read = MCoreType::fromByteArray<T>(corrupt.replace(i, 4, "\x7f\xff\xff\xf0"));
        isRefused = isRefused && read.size() <= value.size();
    }
    return isRefused;
}

} // namespace

class TestPlatform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_dir.reset(new QTemporaryDir); }

    void writesFiles_data() { addRows("writes.tsv"); }

    void writesFiles()
    {
        QFETCH(QString, target);
        QFETCH(QString, space);
        QFETCH(QString, lands);
        QFETCH(QString, error);
        // "way/.." is the folder "deep", not the one that holds "way".
        QVERIFY(QDir(m_dir->path()).mkpath("deep/folder"));
        QVERIFY(QDir(m_dir->path()).mkdir("real"));
        QVERIFY(writeBytes(path("real/novel"), "a million words"));
        // Only the administrator can give files away, and plant another user's link.
        const bool isRoot = ::geteuid() == 0;
        const QString full(255, 'n');
        QVERIFY(writeBytes(path(full), "a short story"));
        for (const QString &file : {QString("real/novel"), full}) {
            QCOMPARE(::chown(qPrintable(path(file)), isRoot ? 1234 : -1, isRoot ? 5678 : -1), 0);
            QCOMPARE(::chmod(qPrintable(path(file)), 0604), 0);
        }
        QVERIFY(QDir(m_dir->path()).mkdir("shared"));
        QCOMPARE(::chmod(qPrintable(path("shared")), 01777), 0);
        QCOMPARE(::mkfifo(qPrintable(path("pipe")), 0600), 0);
        for (const QStringList &link : rowsOf("links.tsv")) {
            QVERIFY(QFile::link(link.at(1), path(link.at(0))));
        }
        if (target == "shared/planted" && ::lchown(qPrintable(path(target)), 1234, 5678) != 0) {
            QSKIP("only the administrator can plant another user's link");
        }
        target.replace("(full)", full).replace("(null character)", QChar(QChar::Null));
        lands.replace("(full)", full);
        const QByteArray bytes = QByteArray("a\0\r\n\xff", 5).repeated(cell("size").toInt() / 5);
        QMap<QString, Entry> expected = entriesOf(m_dir->path());
        const QString fresh = rights(0x6640, ::geteuid(), ::getegid());
        if (error.isEmpty()) {
            expected[lands] = {expected.value(lands, {fresh, {}}).first, bytes};
        }

        rlimit old;
        ::getrlimit(RLIMIT_FSIZE, &old);
        const rlimit limit{space.isEmpty() ? old.rlim_cur : space.toULong(), old.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const mode_t mask = ::umask(027);
        QString message;
        const bool written = MRVCoreUtil::WriteBinaryFile(bytes, path(target), &message);
        ::umask(mask);
        ::setrlimit(RLIMIT_FSIZE, &old);
        QCOMPARE(written, error.isEmpty());
        QCOMPARE(entriesOf(m_dir->path()), expected);
        QVERIFY2(message.endsWith(error), qPrintable(message));
        QVERIFY2(message.isEmpty() == written, qPrintable(message));
        const QString shown = path(target).replace('\n', ' ').replace(QChar::Null, ' ');
        QVERIFY(written || message.contains(shown));
        QVERIFY(written ? MRVCoreUtil::ReadBinaryFile(path(target)) == bytes
                        : !message.contains('\n'));
    }

    // Files of a batch come to their places together, and the others where one cannot.
    void writesBatches()
    {
        QVERIFY(writeBytes(path("old"), "as it was"));
        const QMap<QString, Entry> before = entriesOf(m_dir->path());
        {
            MRVFileBatch dropped;
            QVERIFY(dropped.add(path("old"), "new"));
            QVERIFY(dropped.add(path("other"), "new"));
        }
        QCOMPARE(entriesOf(m_dir->path()), before);

        MRVFileBatch batch;
        QString error;
        QVERIFY(!batch.add(path("missing/file"), "new", &error));
        QVERIFY2(error.contains("missing/file"), qPrintable(error));
        const int count = 300; // more than are open at a time
        for (int i = 0; i < count; ++i) {
            QVERIFY(batch.add(path(QString::number(i)), QByteArray::number(i)));
        }
        QVERIFY(batch.add(path("taken"), "new"));
        QVERIFY(batch.add(path("old"), "new"));
        QCOMPARE(MRVCoreUtil::ReadBinaryFile(path("old")), QByteArray("as it was"));
        QVERIFY(QDir(m_dir->path()).mkdir("taken"));
        const QMap<QString, MRVError> failed = batch.commit();
        QCOMPARE(failed.keys(), QStringList(path("taken")));
        QVERIFY2(failed.first().text.contains("taken"), qPrintable(failed.first().text));
        QMap<QString, Entry> after = entriesOf(m_dir->path());
        QCOMPARE(after.size(), count + 2);
        for (int i = 0; i < count; ++i) {
            QCOMPARE(after[QString::number(i)].second, QByteArray::number(i));
        }
        QCOMPARE(after["old"].second, QByteArray("new"));
        QVERIFY(batch.commit().isEmpty());
    }

    void textFiles_data() { addRows("texts.tsv"); }

    void textFiles()
    {
        QFETCH(QString, way);
        QFETCH(QString, file);
        QFETCH(QString, codec);
        QFETCH(QString, text);
        QFETCH(QString, error);
        const QByteArray name = codec.toLatin1();
        const char *hint = codec == "(null)" ? nullptr : name.constData();
        const QByteArray raw = QByteArray::fromHex(cell("bytes").toLatin1());
        const bool good = error.isEmpty();
        QString message;
        QVERIFY(file != "pipe" || ::mkfifo(qPrintable(path(file)), 0600) == 0);
        if (file.startsWith('@')) {
            QVERIFY(QFile(path(file)).open(QIODevice::WriteOnly));
            QVERIFY(QFile::resize(path(file), file.mid(1).toLongLong()));
        }
        if (way != "read") {
            QVERIFY(file != "t" || writeBytes(path(file), "old"));
            QCOMPARE(MRVCoreUtil::WriteUnicodeTextFile(text, path(file), &message, hint), good);
            QVERIFY(file != "t" || bytesOf(path(file)) == (good ? raw : "old"));
        }
        if (way != "write") {
            QVERIFY(file != "t" || writeBytes(path(file), raw));
            text = good ? text : "";
            if (codec == "binary") {
                QCOMPARE(MRVCoreUtil::ReadBinaryFile(path(file), &message), QByteArray());
            } else {
                QCOMPARE(MRVCoreUtil::ReadUnicodeTextFile(path(file), &message, hint), text);
            }
        }
        QVERIFY2(message.endsWith(error), qPrintable(message));
        QVERIFY2(message.isEmpty() == good, qPrintable(message));
        QVERIFY(good || message.contains(path(file)));
    }

    void uniqueFileName_data() { addRows("uniquenames.tsv"); }

    void uniqueFileName()
    {
        for (const QString &file : cell("taken").split(' ', Qt::SkipEmptyParts)) {
            QVERIFY(QDir().mkpath(QFileInfo(path(file)).path()));
            QVERIFY(file.startsWith('@') ? QFile::link("nowhere", path(file.mid(1)))
                                         : writeBytes(path(file), "x"));
        }
        QCOMPARE(MRVCoreUtil::GetUniqueFileName(path(cell("name"))), path(cell("expected")));
    }

    void calls_data() { addRows("platform.tsv"); }

    void calls()
    {
        QFETCH(QString, call);
        QFETCH(QString, input);
        const double a = input.section(' ', 0, 0).toDouble();
        const double b = input.section(' ', 1).toDouble();
        // Qt reads the system's locale once, so each language needs a process of its own.
        const QString program = QCoreApplication::applicationFilePath();
        const QStringList environment = input.split('|') << "MORVANE_TRANSLATIONS=" + path("");
        QVERIFY(writeBytes(path("mrvbase_pt_BR.qm"), "x"));
        if (call == "isAppMorvane") {
            QCoreApplication::setApplicationName(input);
        }
        const QMap<QString, std::function<QString()>> functions{
            {"compileDate",
             [&] { return MRVCoreUtil::convertCompileStringDate(input).toString(Qt::ISODate); }},
            {"wwwPattern", [&] { return found(MRVCoreUtil::wwwPattern(), input); }},
            {"emailPattern", [&] { return found(MRVCoreUtil::emailPattern(), input); }},
            {"webUrlPattern", [&] { return found(MRVCoreUtil::webUrlPattern(), input); }},
            {"toPair",
             [&] {
                 return pairFrom(&MCoreType::toIntPair, input) + '|'
                     + pairFrom(&MCoreType::toDoublePair, input);
             }},
            {"mrvFuzzyCompare",
             [&] {
                 return mrvFuzzyCompare(a, b) == mrvFuzzyCompare(b, a)
                     ? QString::number(mrvFuzzyCompare(a, b))
                     : "asymmetric";
             }},
            {"isAppMorvane", [&] { return QString::number(MrvCore::isAppMorvane()); }},
            {"systemGuiLanguageCode",
             [&] { return run(program, {"--print-language"}, environment).output.trimmed(); }},
        };
        // Its months have other names, and its decimal sign is a comma.
        QLocale::setDefault(QLocale(QLocale::German));
        QCOMPARE(functions[call](), cell("output"));
    }

    void patternsAreLinear_data() { addRows("slowtexts.tsv"); }

    void patternsAreLinear()
    {
        QFETCH(QString, part);
        const QString text = cell("start") + part.repeated(200000 / part.size());
        const std::clock_t begin = std::clock();
        for (const QString &pattern : {MRVCoreUtil::wwwPattern(), MRVCoreUtil::emailPattern(),
                                       MRVCoreUtil::webUrlPattern()}) {
            QVERIFY(found(pattern, text) != "engines differ");
        }
        const double seconds = double(std::clock() - begin) / CLOCKS_PER_SEC;
        QVERIFY2(seconds < 5, qPrintable(QString::number(seconds)));
    }

    void bytesOfValues()
    {
        const Numbers map{{30, "c"}, {10, "a"}};
        const QByteArray count = QByteArray::fromHex("00000002");
        const QByteArray ten = QByteArray::fromHex("0000000a 00000002 0061");
        const QByteArray thirty = QByteArray::fromHex("0000001e 00000002 0063");
        const QByteArray bytes = MCoreType::toByteArray(map);
        QCOMPARE(bytes.toHex(' '), (count + ten + thirty).toHex(' '));
        QCOMPARE(MCoreType::fromByteArray<Numbers>(bytes + "later"), map);
        // The order of Qt's own operator
        QCOMPARE(MCoreType::fromByteArray<Numbers>(count + thirty + ten), map);
        QCOMPARE(MCoreType::toByteArray(QStringList{"b", ""}).toHex(),
                 QByteArray("0000000200000002006200000000"));
        QVERIFY(refusesCorrupt(Numbers{{1, "one"}, {2, "two"}}));
        QVERIFY(refusesCorrupt(QStringList{"one", "two"}));
        QVERIFY(refusesCorrupt(QList<qint64>{1, 2}));
        QVERIFY(refusesCorrupt(QVector<int>{1, 2}));
        QVERIFY(refusesCorrupt(QSet<QString>{"one", "two"}));
        QVERIFY(refusesCorrupt(QList<QStringList>{{"one"}, {"two", "three"}}));
        QVERIFY(refusesCorrupt(QMap<QString, QStringList>{{"one", {"two"}}, {"three", {}}}));
        QVERIFY(refusesCorrupt(QVector<QPair<int, QVector<int>>>{{1, {2}}, {3, {4}}}));
        // In order at every depth, whatever order a hash has.
        QCOMPARE(MCoreType::toByteArray(QList<QMap<int, bool>>{{{2, true}, {1, false}}}).toHex(),
                 QByteArray("0000000100000002"
                            "0000000100"
                            "0000000201"));
        QCOMPARE(MCoreType::toByteArray(QMap<int, QSet<qint8>>{{1, {5, 3, 1, 4, 2}}}).toHex(),
                 QByteArray("0000000100000001"
                            "00000005"
                            "0102030405"));
    }

    void guiLanguages()
    {
        qunsetenv("MORVANE_TRANSLATIONS");
        QCOMPARE(MTranslator::morvaneGuiLanguages(), QStringList("en"));
        for (const char *name :
             {"mrvbase_fr.qm", "mrvbase_de.qm", "mrvbase_pt_BR.qm", "mrvbase_en.qm", "mrvbase_.qm",
              "mrvbase_xx.qm", "mrvbase_C.qm", "other_it.qm", "mrvbase_es.ts"}) {
            QVERIFY(writeBytes(path(name), "x"));
        }
        qputenv("MORVANE_TRANSLATIONS", m_dir->path().toUtf8());
        QCOMPARE(MTranslator::morvaneGuiLanguages(), (QStringList{"en", "de", "fr", "pt_BR"}));
    }

    void network()
    {
        const bool hasDefaultRoute = bytesOf("/proc/net/route").contains("\t00000000\t");
        QVERIFY(!hasDefaultRoute || MrvNetwork::isNetworkConnected());
        // A process in a network of its own sees nothing but the loopback, which it brings up.
        const QString script = "ip link set lo up && exec \"$0\" --print-network";
        programPath("ip");
        const Ran ran = run("unshare",
                            {"--user", "--map-root-user", "--net", "sh", "-c", script,
                             QCoreApplication::applicationFilePath()});
        if (ran.exitCode != 0) {
            QSKIP("no network namespace can be made here");
        }
        QCOMPARE(ran.output, QString("down\n"));
    }

private:
    QString path(const QString &name) const
    {
        return name == "(null)" ? QString() : m_dir->path() + '/' + name;
    }

    QScopedPointer<QTemporaryDir> m_dir;
};

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QByteArray task = argc > 1 ? argv[1] : "";
    if (task == "--print-language") {
        return puts(qPrintable(MTranslator::systemGuiLanguageCode())) < 0;
    }
    if (task == "--print-network") {
        return puts(MrvNetwork::isNetworkConnected() ? "up" : "down") < 0;
    }
    // Writes beyond the limit fail as they do on a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    TestPlatform test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_platform.moc"
