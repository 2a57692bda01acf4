#include "util/mrvlimitedprogram.h"

#include "core/mrvcoreutil.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <csignal>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

// A process in a group of its own, with the limits of the system.
class LimitedProcess : public QProcess
{
public:
    explicit LimitedProcess(const MRVProgramLimits &limits)
        : m_limits(limits)
    {
    }

    // With the processes that it has started.
    void end()
    {
        ::kill(-pid_t(processId()), SIGKILL);
        waitForFinished();
    }

protected:
    // Runs in the child, between fork and exec: system calls only.
    void setupChildProcess() override
    {
        setpgid(0, 0);
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != m_parent) {
            _exit(1); // the parent has ended meanwhile
        }
        limit(RLIMIT_AS, m_limits.memory);
        limit(RLIMIT_FSIZE, m_limits.output);
        limit(RLIMIT_CPU,
              m_limits.milliseconds / 1000 + 1); // seconds, should the parent be stopped
        limit(RLIMIT_CORE, 0);
    }

private:
    // The system's own limit may be lower already.
    static void limit(__rlimit_resource resource, qint64 value)
    {
        rlimit current;
        if (getrlimit(resource, &current) == 0) {
            current.rlim_max = qMin(current.rlim_max, rlim_t(value));
            current.rlim_cur = qMin(current.rlim_cur, current.rlim_max);
            setrlimit(resource, &current);
        }
    }

    const MRVProgramLimits m_limits;
    const pid_t m_parent = getpid();
};

QProcessEnvironment emptyEnvironment(const QString &folder)
{
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("HOME"), folder);
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/local/bin:/usr/bin:/bin"));
    return environment;
}

MRVProgramResult::End endOf(const QProcess &process, bool isLarge)
{
    if (isLarge) {
        return MRVProgramResult::TooMuchOutput;
    }
    return process.exitStatus() == QProcess::NormalExit ? MRVProgramResult::Exited
                                                        : MRVProgramResult::Crashed;
}

} // namespace

MRVProgramResult mrvRunLimited(const QString &program, const QStringList &arguments,
                               const QString &input, const QString &folder,
                               const MRVProgramLimits &limits, const std::function<bool()> &mayGoOn)
{
    const QString output = QDir(folder).filePath(QStringLiteral("stdout"));
    const QString errors = QDir(folder).filePath(QStringLiteral("stderr"));
    LimitedProcess process(limits);
    process.setProcessEnvironment(emptyEnvironment(folder));
    process.setWorkingDirectory(folder);
    process.setStandardInputFile(input);
    process.setStandardOutputFile(output);
    process.setStandardErrorFile(errors);
    process.start(program, arguments);
    MRVProgramResult result;
    if (!process.waitForStarted()) {
        return result;
    }
    const QDeadlineTimer deadline(limits.milliseconds);
    constexpr qint64 Interval = 50; // milliseconds
    while (!process.waitForFinished(int(qMin(Interval, deadline.remainingTime())))
           && process.state() != QProcess::NotRunning) {
        const bool isLate = deadline.hasExpired();
        if (isLate || (mayGoOn && !mayGoOn())) {
            process.end();
            result.end = isLate ? MRVProgramResult::OutOfTime : MRVProgramResult::Cancelled;
            return result;
        }
    }
    // The one that has reached the limit may have been ended by it, or have seen it as an error.
    result.end = endOf(process,
                       QFileInfo(output).size() >= limits.output
                           || QFileInfo(errors).size() >= limits.output);
    result.exitCode = process.exitCode();
    if (result.end != MRVProgramResult::TooMuchOutput) {
        result.output = MRVCoreUtil::ReadBinaryFile(output);
        result.errors = MRVCoreUtil::ReadBinaryFile(errors);
    }
    return result;
}
