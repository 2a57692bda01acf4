#include "command.h"
#include "commandline.h"
#include "suggestion.h"

#include <QCommandLineParser>
#include <QGuiApplication>

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr OldCommand oldCommands[] = {
    {"export", "write manuscripts as HTML, XHTML or e-books", runExport},
    {"find", "find text and formats in manuscripts", runFind},
    {"notes", "list links, notes, highlights and pictures", runNotes},
    {"replace", "replace text in manuscripts", runReplace},
    {"script", "list, show and check script modes", runScript},
    {"xml", "read and edit XML files by paths", runXml},
};

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
    showProgress(QString());
    return code == Done && (std::fflush(stdout) != 0 || std::ferror(stdout))
        ? refuse(QStringLiteral("standard output cannot be written"))
        : code;
}

int refuseCommand(const QString &name)
{
    QStringList names;
    for (const Command *command : commands()) {
        names.append(QLatin1String(command->name));
    }
    for (const OldCommand &command : oldCommands) {
        names.append(QLatin1String(command.name));
    }
    const QString advice = didYouMean(name, names);
    return usageError((name.isEmpty() ? QStringLiteral("a command is missing")
                                      : QStringLiteral("unknown command '%1'").arg(name))
                      + (advice.isNull() ? QStringLiteral("; try 'mrv --help'") : advice));
}

} // namespace

int parseArguments(QCommandLineParser *parser, const QString &usage, const QStringList &arguments,
                   const QString &hint)
{
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help."));
    parser->addOption(help);
    if (!parser->parse(arguments)) {
        const bool isUnknown = !parser->unknownOptionNames().isEmpty();
        printError(arguments.constFirst() + QLatin1String(": ") + parser->errorText()
                   + (isUnknown ? hint : QString()));
        return WrongUsage;
    }
    // An empty name, as of a variable that is not set, must not mean the user's own settings.
    const QString settings = QStringLiteral("settings");
    if (parser->optionNames().contains(settings) && parser->values(settings).contains(QString())) {
        printError(arguments.constFirst() + QLatin1String(": --settings takes the name of a file"));
        return WrongUsage;
    }
    if (parser->isSet(help)) {
        QString text = parser->helpText();
        // The parser would name the program alone.
        text.replace(0, text.indexOf(u'\n'), QLatin1String("Usage: mrv ") + usage);
        printLine(text.trimmed());
        return Done;
    }
    return -1;
}

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
        return Done;
    }
    if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
        printLine(toolHelp());
        return Done;
    }
    for (const OldCommand &command : oldCommands) {
        if (name == QLatin1String(command.name)) {
            return ended(command.run(arguments));
        }
    }
    for (const Command *command : commands()) {
        if (name == QLatin1String(command->name)) {
            return ended(run(*command, arguments));
        }
    }
    return refuseCommand(name);
}
