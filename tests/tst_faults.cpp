#include "mrvtool.h"
#include "rawserver.h"

#include <QEventLoop>

namespace {

struct Faults
{
    const char *call;
    std::vector<const char *> errors;
};
const Faults allFaults[] = {
    {"openat", {"EIO", "EMFILE", "EACCES", "ENOSPC"}},
    {"read", {"EIO"}},
    {"pread64", {"EIO"}},
    {"write", {"EIO", "ENOSPC"}},
    {"pwrite64", {"EIO", "ENOSPC"}},
    {"fsync", {"EIO", "ENOSPC"}},
    {"fdatasync", {"EIO"}},
    {"rename", {"EIO", "ENOSPC", "EACCES"}},
    {"renameat2", {"EIO", "ENOSPC", "EACCES"}},
    {"link", {"EIO", "EACCES"}},
    {"linkat", {"EIO", "EACCES"}},
    {"close", {"EIO"}},
    {"newfstatat", {"EIO", "EACCES"}},
    {"fstat", {"EIO"}},
    {"statx", {"EIO", "EACCES"}},
};

struct Fault
{
    QString call;
    int number; // of the calls of that name
    QString error;
};

} // namespace

/**
 * Every command that writes, with each single call to the system that concerns its files failing
 * once: each file is then the old or the new one, and the exit code tells which.
 */
class tst_Faults : public ToolTest
{
    Q_OBJECT

private Q_SLOTS:
    // Leaks cannot be looked for in a process that is traced.
    void initTestCase() { qputenv("ASAN_OPTIONS", qgetenv("ASAN_OPTIONS") + ":detect_leaks=0"); }

    void commands_data() { addRows("faults.tsv", {"case", "files", "setup", "arguments"}); }
    void commands()
    {
        prepare();
        const QMap<QString, QByteArray> before = contentsBelow(in(""));
        const QString trace = m_traces.filePath("trace");
        QStringList calls;
        for (const Faults &faults : allFaults) {
            calls << faults.call;
        }
        const Ran whole = traced({"-y", "-o", trace, "-e", "trace=" + calls.join(',')});
        QVERIFY2(whole.exitCode == 0, qPrintable(whole.errors));
        const QMap<QString, QByteArray> after = contentsBelow(in(""));
        QVERIFY(after != before);
        const QVector<Fault> faults = faultsIn(QString::fromUtf8(bytesOf(trace)));
        QVERIFY(faults.size() > 10);

        // A few of each command where all are not asked for.
        constexpr int Few = 6;
        const int step = qEnvironmentVariableIsSet("MRV_FAULTS") ? 1 : qMax(1, faults.size() / Few);
        QStringList wrong;
        for (int i = 0; i < faults.size(); i += step) {
            prepare();
            const QString fault = QString("%1:error=%2:when=%3")
                                      .arg(faults[i].call, faults[i].error)
                                      .arg(faults[i].number);
            const Ran ran = traced(
                {"-o", "/dev/null", "-e", "trace=" + faults[i].call, "-e", "inject=" + fault});
            ++m_count;
            const QString loss = lossIn(contentsBelow(in("")), before, after, ran.exitCode);
            if (!loss.isEmpty()) {
                wrong << fault + ": " + loss + " (" + QString::number(ran.exitCode) + ", "
                        + ran.errors.trimmed() + ')';
            }
        }
        QVERIFY2(wrong.isEmpty(), qPrintable('\n' + wrong.join('\n')));
    }
    void cleanupTestCase() { qInfo("%d faults", m_count); }

private:
    // The folder as it is before the command.
    void prepare()
    {
        cleanFolder();
        for (const QString &file : cell("files").split(u'¦', Qt::SkipEmptyParts)) {
            QVERIFY(writeBytes(in(file.section(':', 0, 0)), file.section(':', 1).toUtf8()));
        }
        for (const QString &call : cell("setup").split(u'¦', Qt::SkipEmptyParts)) {
            QCOMPARE(mrv(call).exitCode, 0);
        }
    }
    void cleanFolder()
    {
        QDir folder(in(""));
        for (const QFileInfo &one :
             folder.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
            one.isDir() ? QDir(one.filePath()).removeRecursively() : folder.remove(one.fileName());
        }
    }

    Ran traced(const QStringList &options)
    {
        QStringList arguments = QStringList{"-f", "-qq"} + options
            + QStringList{
                "-E", "XDG_CONFIG_HOME=" + in("home"), "-E",    "XDG_DATA_HOME=" + in("home"),
                "-E", "SOURCE_DATE_EPOCH=86400",       MRV_TOOL};
        const QString url = m_server.answer("/page", "HTTP/1.1 200 OK\r\n\r\nhello").toString();
        for (const QString &word : cell("arguments").split(' ')) {
            arguments << filled(word).replace("%url", url);
        }
        // The server answers meanwhile.
        QProcess process;
        QEventLoop loop;
        connect(&process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), &loop,
                &QEventLoop::quit);
        process.start(programPath("strace"), arguments);
        process.closeWriteChannel();
        loop.exec();
        Ran ran;
        ran.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
        ran.errors = QString::fromUtf8(process.readAllStandardError());
        return ran;
    }

    // What can fail of the calls that name a file of the folder, or one that is open there.
    QVector<Fault> faultsIn(const QString &trace) const
    {
        static const QRegularExpression line("^(\\d+) +(\\w+)\\((.*)$");
        static const QRegularExpression current("AT_FDCWD<[^>]*>");
        static const QRegularExpression opened("^\\d+<([^>]*)>.*$");
        QHash<QString, int> counts;
        QVector<Fault> faults;
        for (const QString &text : trace.split('\n')) {
            const auto match = line.match(text);
            const QString call = match.captured(2);
            const int number = ++counts[match.captured(1) + call];
            if (!match.captured(3).remove(current).replace(opened, "\\1").contains(in(""))) {
                continue;
            }
            for (const Faults &one : allFaults) {
                for (const char *error :
                     call == one.call ? one.errors : std::vector<const char *>()) {
                    faults.append({call, number, error});
                }
            }
        }
        return faults;
    }

    // Why a folder after a fault is neither what it was nor what it should be; else empty.
    static QString lossIn(const QMap<QString, QByteArray> &found,
                          const QMap<QString, QByteArray> &before,
                          const QMap<QString, QByteArray> &after, int exitCode)
    {
        const QMap<QString, QByteArray> &wanted = exitCode == 0 ? after : before;
        for (auto it = wanted.begin(); it != wanted.end(); ++it) {
            if (!found.contains(it.key()) || found[it.key()] != it.value()) {
                return it.key() + (found.contains(it.key()) ? " differs" : " is missing");
            }
        }
        // A hidden folder that could not be removed loses nothing.
        for (const QString &name : found.keys()) {
            if (!before.contains(name) && !after.contains(name) && !name.startsWith('.')) {
                return name + " is left";
            }
        }
        return QString();
    }

    QTemporaryDir m_traces;
    RawServer m_server;
    int m_count = 0;
};

QTEST_GUILESS_MAIN(tst_Faults)
#include "tst_faults.moc"
