#include "command.h"
#include "suggestion.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr Command commands[] = {
    {"autoreplace", "show what typing replaces, and edit the list", runAutoReplace},
    {"engines", "tell and choose what converts which format", runEngines},
    {"export", "write manuscripts as HTML, XHTML or e-books", runExport},
    {"find", "find text and formats in manuscripts", runFind},
    {"formats", "list file formats and what can be done with them", runFormats},
    {"get", "download a page or a file", runGet},
    {"measure", "read measures and convert them to other units", runMeasure},
    {"notes", "list links, notes, highlights and pictures", runNotes},
    {"presets", "show, export and import text presets", runPresets},
    {"replace", "replace text in manuscripts", runReplace},
    {"script", "list, show and check script modes", runScript},
    {"settings", "show and change the application's preferences", runSettings},
    {"shortcuts", "show, check and compare keyboard shortcuts", runShortcuts},
    {"update", "check an update feed for a newer version", runUpdate},
    {"xml", "read and edit XML files by paths", runXml},
};

QString usage()
{
    QString text = QStringLiteral("Usage: mrv COMMAND [OPTIONS] [ARGUMENTS]\n\nCommands:\n");
    for (const Command &command : commands) {
        text += QStringLiteral("  %1  %2\n")
                    .arg(QLatin1String(command.name), -11)
                    .arg(QLatin1String(command.summary));
    }
    return text
        + QStringLiteral(
               "\n'mrv COMMAND --help' tells more. 'mrv --version' tells which version this is.");
}

void printTo(FILE *stream, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fputc('\n', stream);
}

// Qt warns of what the desktop lacks (a runtime folder, fonts); the tool's errors are its own, in
// one line.
void keepQuiet(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg) {
        printTo(stderr, text);
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

} // namespace

void printError(const QString &text)
{
    showProgress(QString());
    printTo(stderr, QLatin1String("mrv: ") + text.simplified());
}

void printLine(const QString &text)
{
    printTo(stdout, text);
}

void printJson(const QJsonObject &object)
{
    printLine(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

bool writeStandardOutput(const QByteArray &bytes, QString *error)
{
    const std::size_t size = std::size_t(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0) {
        return true;
    }
    *error = QStringLiteral("standard output cannot be written");
    return false;
}

void showProgress(const QString &text)
{
    static const bool terminal = isatty(STDERR_FILENO);
    if (terminal) {
        const QByteArray bytes = text.toUtf8();
        std::fprintf(stderr, "\r\033[K%s", bytes.constData());
        std::fflush(stderr);
    }
}

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
        printLine(usage());
        return Done;
    }
    for (const Command &command : commands) {
        if (name == QLatin1String(command.name)) {
            const int code = command.run(arguments);
            showProgress(QString());
            // A pipe that was closed or a full disk behind it must not look like success.
            if (code == Done && (std::fflush(stdout) != 0 || std::ferror(stdout))) {
                printError(QStringLiteral("standard output cannot be written"));
                return Failed;
            }
            return code;
        }
    }
    QStringList names;
    for (const Command &command : commands) {
        names.append(QLatin1String(command.name));
    }
    const QString advice = didYouMean(name, names);
    printError((name.isEmpty() ? QStringLiteral("a command is missing")
                               : QStringLiteral("unknown command '%1'").arg(name))
               + (advice.isNull() ? QStringLiteral("; try 'mrv --help'") : advice));
    return WrongUsage;
}
