#include "command.h"
#include "terminalinput.h"

#include "core/mrvcoreutil.h"

#include <QCommandLineParser>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QSslError>
#include <QTextCodec>

#include <cmath>
#include <limits>

#include <fcntl.h>

namespace {

const QLatin1String StandardOutput("-");

struct Options
{
    QUrl url;
    QString output;
    QString from;
    QString to;
    int timeout = MRVDownloadUrl::DefaultTransferTimeout;
    qint64 maximumSize = MRVDownloadUrl::LargestSize;
    bool json = false;
    TerminalInput::Answers answers;
};

struct Result
{
    QByteArray data;
    QString error;
    QUrl url;
    QString contentType;
    QStringList redirects;
};

void addOptions(QCommandLineParser *parser)
{
    constexpr struct
    {
        const char *name;
        const char *value; // null: takes none
        const char *description;
    } rows[] = {
        {"output", "FILE",
         "Where to write: a file, which is replaced, or a folder; - is standard output. Default: a "
         "new file with the name that ends the URL."},
        {"follow", nullptr, "Follow redirects without asking."},
        {"user", "NAME", "The user name; the password is asked for on the terminal."},
        {"password-fd", "NUMBER", "Read the password from this open file, such as 0."},
        {"password-env", "NAME", "Take the password from this environment variable."},
        {"insecure", nullptr, "Go on in spite of SSL errors, and from https to http."},
        {"from", "CHARSET", "What the text is in where the server does not say."},
        {"to", "CHARSET", "What the text is to be written in. Default: UTF-8."},
        {"timeout", "SECONDS",
         "Give up when nothing comes for so long; 0 never does. Default: 30."},
        {"max-size", "BYTES", "Give up when it is larger. Default, and most: 1073741824."},
        {"json", nullptr, "Tell what was downloaded as a line of JSON."},
    };
    for (const auto &row : rows) {
        QCommandLineOption option(QString::fromLatin1(row.name),
                                  QString::fromLatin1(row.description),
                                  row.value ? QString::fromLatin1(row.value) : QString());
        if (qstrcmp(row.name, "output") == 0) {
            option = QCommandLineOption({QStringLiteral("o"), QStringLiteral("output")},
                                        option.description(), option.valueName());
        }
        parser->addOption(option);
    }
}

// Passwords never stand on the command line, which every user of the machine can read.
QString readPassword(const QCommandLineParser &parser, QString *password)
{
    const QString variable = parser.value(QStringLiteral("password-env"));
    if (!variable.isEmpty()) {
        const QByteArray name = variable.toLocal8Bit();
        if (!qEnvironmentVariableIsSet(name.constData())) {
            return QStringLiteral("--password-env: there is no variable '%1'").arg(variable);
        }
        *password = qEnvironmentVariable(name.constData(), QLatin1String(""));
    }
    if (parser.isSet(QStringLiteral("password-fd"))) {
        bool isNumber = false;
        const int handle = parser.value(QStringLiteral("password-fd")).toInt(&isNumber);
        QFile file;
        if (!isNumber || handle < 0 || fcntl(handle, F_GETFD) < 0
            || !file.open(handle, QIODevice::ReadOnly)) {
            return QStringLiteral("--password-fd: no such open file");
        }
        QByteArray line = file.readLine();
        while (line.endsWith('\n') || line.endsWith('\r')) {
            line.chop(1);
        }
        *password = QString::fromUtf8(line) + QLatin1String("");
    }
    return QString();
}

// Returns what is wrong, or nothing.
QString readOptions(const QCommandLineParser &parser, Options *options)
{
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() != 1) {
        return QStringLiteral("one URL is needed");
    }
    options->url = QUrl(arguments.constFirst());
    const QString scheme = options->url.scheme();
    if (!options->url.isValid() || options->url.host().isEmpty()
        || (scheme != QLatin1String("http") && scheme != QLatin1String("https"))) {
        return QStringLiteral("%1: is no http or https address").arg(arguments.constFirst());
    }
    // As of a variable that is not set.
    for (const QString &name : parser.optionNames()) {
        if (parser.values(name).contains(QString())) {
            return QStringLiteral("%1%2: needs a value")
                .arg(QLatin1String(name.size() == 1 ? "-" : "--"), name);
        }
    }
    options->output = parser.value(QStringLiteral("output"));
    options->json = parser.isSet(QStringLiteral("json"));
    if (options->json && options->output == StandardOutput) {
        return QStringLiteral("--json: standard output is taken by what is downloaded");
    }

    for (const char *name : {"from", "to"}) {
        const QString charset = parser.value(QLatin1String(name));
        if (!charset.isEmpty() && !QTextCodec::codecForName(charset.toLatin1())) {
            return QStringLiteral("--%1: unknown charset '%2'").arg(QLatin1String(name), charset);
        }
    }
    options->from = parser.value(QStringLiteral("from"));
    options->to = parser.value(QStringLiteral("to"));

    bool isNumber = true;
    if (parser.isSet(QStringLiteral("timeout"))) {
        const double seconds = parser.value(QStringLiteral("timeout")).toDouble(&isNumber);
        if (!isNumber || !(seconds >= 0) || seconds > std::numeric_limits<int>::max() / 1000) {
            return QStringLiteral("--timeout: is no number of seconds");
        }
        options->timeout = int(std::ceil(seconds * 1000));
    }
    if (parser.isSet(QStringLiteral("max-size"))) {
        options->maximumSize = parser.value(QStringLiteral("max-size")).toLongLong(&isNumber);
        if (!isNumber || options->maximumSize < 0
            || options->maximumSize > MRVDownloadUrl::LargestSize) {
            return QStringLiteral("--max-size: is no number of bytes up to %1")
                .arg(MRVDownloadUrl::LargestSize);
        }
    }
    options->answers.follow = parser.isSet(QStringLiteral("follow"));
    options->answers.insecure = parser.isSet(QStringLiteral("insecure"));
    options->answers.user = parser.value(QStringLiteral("user"));
    if (options->answers.user.contains(u':')) {
        return QStringLiteral("--user: the password is not given here, where others can read it");
    }
    const QString wrong = readPassword(parser, &options->answers.password);
    if (wrong.isEmpty() && !options->answers.password.isNull() && options->answers.user.isEmpty()
        && options->url.userName().isEmpty()) {
        return QStringLiteral("--user: is needed with a password");
    }
    return wrong;
}

void showBar(qint64 bytes, qint64 total)
{
    constexpr int Width = 30;
    QString text = QLocale::c().formattedDataSize(bytes);
    if (total > 0) {
        const int done = int(Width * bytes / total);
        text = QStringLiteral("[%1%2] %3 % of %4")
                   .arg(QString(done, u'#'), QString(Width - done, u'.'))
                   .arg(100 * bytes / total, 3)
                   .arg(QLocale::c().formattedDataSize(total));
    }
    showProgress(text);
}

Result download(const Options &options)
{
    Result result;
    MRVDownloadUrl download;
    TerminalInput input(options.answers, &download, options.url);
    QEventLoop loop;
    download.setUserInputHandler(&input);
    download.setTransferTimeout(options.timeout);
    download.setMaximumSize(options.maximumSize);
    QObject::connect(download.networkAccessManager(), &QNetworkAccessManager::sslErrors, &loop,
                     [&](QNetworkReply *reply, const QList<QSslError> &errors) {
                         QStringList texts;
                         for (const QSslError &error : errors) {
                             texts.append(error.errorString());
                         }
                         if (input.ignoreSslErrors(texts)) {
                             reply->ignoreSslErrors();
                         }
                     });
    QObject::connect(&download, &MRVDownloadUrl::downloadProgress, &loop, showBar);
    QObject::connect(&download, &MRVDownloadUrl::downloadError, &loop, [&](const QString &error) {
        result.error = input.reason().isEmpty() ? error : input.reason();
        loop.quit();
    });
    QObject::connect(&download, qOverload<QByteArray>(&MRVDownloadUrl::downloadSuccess), &loop,
                     [&](const QByteArray &data) {
                         result.data = data;
                         loop.quit();
                     });
    // The signals never come before the loop runs.
    download.download(options.url);
    loop.exec();
    showProgress(QString());
    result.url = download.url();
    result.contentType = download.contentType();
    result.redirects = input.redirects();
    return result;
}

// The library has made UTF-8 of what the server named.
bool convert(const Options &options, Result *result)
{
    const QString utf8 = QStringLiteral("UTF-8");
    const QString named = MRVDownloadUrl::charset(result->contentType).remove(u'"').trimmed();
    const bool isKnown = QTextCodec::codecForName(named.toLatin1());
    if (!isKnown && !options.from.isEmpty()) {
        result->data = MRVDownloadUrl::convert(result->data, options.from, utf8);
    }
    if (options.to.isEmpty()) {
        return true;
    }
    if (!isKnown && options.from.isEmpty()) {
        result->error = QStringLiteral("the server does not say what the text is in; --from does");
        return false;
    }
    const QByteArray converted = MRVDownloadUrl::convert(result->data, utf8, options.to);
    if (MRVDownloadUrl::convert(converted, options.to, utf8) != result->data) {
        result->error = QStringLiteral("it has characters that %1 has not").arg(options.to);
        return false;
    }
    result->data = converted;
    return true;
}

// Without a name that was asked for, no file is replaced.
QString targetFile(const Options &options)
{
    const QString &output = options.output;
    if (!output.isEmpty() && !QFileInfo(output).isDir()) {
        return output;
    }
    const QString name = printable(MRVDownloadUrl::fileForUrl(QString(), options.url));
    return MRVCoreUtil::GetUniqueFileName(output.isEmpty() ? name
                                                           : QDir(output).absoluteFilePath(name));
}

// What would be said after all has come can be said before.
QString unwritable(const Options &options)
{
    if (options.output == StandardOutput) {
        return QString();
    }
    const QString file = targetFile(options);
    // What a link leads to is written, wherever the link lies.
    if (QFileInfo(file).isSymLink()) {
        return QString();
    }
    const QFileInfo folder(QFileInfo(file).absolutePath());
    return !folder.isDir()     ? QStringLiteral("%1: its folder does not exist").arg(file)
        : !folder.isWritable() ? QStringLiteral("%1: its folder is write-protected").arg(file)
                               : QString();
}

} // namespace

int runGet(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Downloads a page or a file over http or https. Text whose charset the server "
        "names becomes UTF-8.\nA file appears when all of it has come. A redirect is "
        "asked about on a terminal, and refused without one."));
    parser.addPositionalArgument(QStringLiteral("URL"), QStringLiteral("What to download."));
    addOptions(&parser);
    const int code = parseArguments(&parser, QStringLiteral("get URL [OPTIONS]"), arguments);
    if (code >= 0) {
        return code;
    }
    Options options;
    const QString wrong = readOptions(parser, &options);
    const QString useless = wrong.isEmpty() ? unwritable(options) : wrong;
    if (!useless.isEmpty()) {
        printError(QLatin1String("get: ") + useless);
        return wrong.isEmpty() ? Failed : WrongUsage;
    }

    Result result = download(options);
    QString file;
    if (result.error.isEmpty() && convert(options, &result)) {
        if (options.output == StandardOutput) {
            writeStandardOutput(result.data, &result.error);
        } else {
            file = targetFile(options);
            MRVCoreUtil::WriteBinaryFile(result.data, file, &result.error);
        }
    }
    if (!result.error.isEmpty()) {
        printError(QStringLiteral("get: %1: %2")
                       .arg(options.url.toDisplayString(), printable(result.error)));
        return Failed;
    }
    if (options.json) {
        printJson({{QStringLiteral("url"), result.url.toDisplayString()},
                   {QStringLiteral("file"), file},
                   {QStringLiteral("size"), result.data.size()},
                   {QStringLiteral("contentType"), result.contentType},
                   {QStringLiteral("redirects"), QJsonArray::fromStringList(result.redirects)}});
    } else if (!file.isEmpty()) {
        printLine(file);
    }
    return Done;
}
