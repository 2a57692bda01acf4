#include "commandline.h"
#include "completion.h"
#include "manual.h"
#include "suggestion.h"

#include "util/mrvfixeddate.h"

#include <QDateTime>
#include <QGuiApplication>

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace {

// Qt warns of what the desktop lacks (a runtime folder, fonts); the tool's errors are its own, in
// one line.
void keepQuiet(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", text.toUtf8().constData());
    }
}

// A stream that was closed must not become the next file that is opened: what is printed would end
// up there.
void occupyClosedStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) < 0) {
            // The lowest number that is free, open the wrong way round so that each use fails.
            open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

int run(const Command &command, const QStringList &arguments)
{
    const QStringList options = arguments.mid(0, arguments.indexOf(QStringLiteral("--")));
    setErrorStyle(arguments.constFirst(), options.contains(QStringLiteral("--json")));
    Call call;
    const int code = readCall(command, arguments, &call);
    return code >= 0 ? code : call.verb->run(call);
}

// A pipe that was closed or a full disk must not look like success.
int ended(int code)
{
    MRVError error;
    showProgress(QString());
    return code == Done && !flushStandardOutput(&error) ? refuse(error) : code;
}

int refuseCommand(const QString &name)
{
    QStringList names;
    for (const Command *command : commands()) {
        names.append(QLatin1String(command->name));
    }
    const QString advice = didYouMean(name, names);
    return usageError((name.isEmpty() ? QStringLiteral("a command is missing")
                                      : QStringLiteral("unknown command '%1'").arg(name))
                      + (advice.isNull() ? QStringLiteral("; try 'mrv --help'") : advice));
}

int writeManualsInto(const QString &folder)
{
    MRVError error;
    QDateTime date = QDateTime::currentDateTimeUtc();
    return MRVFixedDate::fromEnvironment(&date, &error) && writeManuals(folder, date.date(), &error)
        ? Done
        : refuse(error);
}

} // namespace

int main(int argc, char **argv)
{
    occupyClosedStreams();
    // The tool shows no windows: it must run where there is no display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    if (qEnvironmentVariableIsEmpty("QT_LOGGING_RULES")) {
        qInstallMessageHandler(keepQuiet);
    }
    QGuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("mrv"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MRV_VERSION));

    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const QString name = arguments.value(0);
    if (name == QLatin1String("--version")) {
        printLine(QLatin1String("mrv ") + QCoreApplication::applicationVersion());
        return ended(Done);
    }
    if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
        printLine(toolHelp());
        return ended(Done);
    }
    // For the scripts of shells.
    if (name == QLatin1String("--complete")) {
        const QString lines = completionLines(arguments.mid(1));
        if (!lines.isEmpty()) {
            printLine(lines);
        }
        return ended(Done);
    }
    if (name == QLatin1String("--manual") && arguments.size() == 2) {
        return writeManualsInto(arguments.at(1));
    }
    for (const Command *command : commands()) {
        if (name == QLatin1String(command->name)) {
            return ended(run(*command, arguments));
        }
    }
    return refuseCommand(name);
}
