#include "commandline.h"
#include "terminalinput.h"

#include "core/mrvcoreutil.h"

#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QSslError>
#include <QTextCodec>

#include <cmath>

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

// Passwords never stand on the command line, which every user of the machine can read.
QString readPassword(const Call &call, QString *password)
{
    if (call.has("password-env")) {
        const QString variable = call.value("password-env");
        const QByteArray name = variable.toLocal8Bit();
        if (!qEnvironmentVariableIsSet(name.constData())) {
            return QStringLiteral("--password-env: the variable '%1' is not set").arg(variable);
        }
        *password = qEnvironmentVariable(name.constData(), QLatin1String(""));
    }
    if (call.has("password-fd")) {
        const int handle = int(call.number("password-fd", 0));
        QFile file;
        if (fcntl(handle, F_GETFD) < 0 || !file.open(handle, QIODevice::ReadOnly)) {
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

// What is wrong with the user name, the password and what they are for; empty for nothing.
QString readAnswers(const Call &call, Options *options)
{
    TerminalInput::Answers &answers = options->answers;
    answers.follow = call.has("follow");
    answers.insecure = call.has("insecure");
    answers.user = call.value("user");
    if (answers.user.contains(u':')) {
        return QStringLiteral("--user: the password is not given here, where others can read it");
    }
    const QString wrong = readPassword(call, &answers.password);
    if (wrong.isEmpty() && !answers.password.isNull() && answers.user.isEmpty()
        && options->url.userName().isEmpty()) {
        return QStringLiteral("--user: is needed with a password");
    }
    return wrong;
}

// What is wrong, or empty for nothing.
QString readOptions(const Call &call, Options *options)
{
    options->url = QUrl(call.arguments.constFirst());
    const QString scheme = options->url.scheme();
    if (!options->url.isValid() || options->url.host().isEmpty()
        || (scheme != QLatin1String("http") && scheme != QLatin1String("https"))) {
        return QStringLiteral("%1: not an http or https address").arg(call.arguments.constFirst());
    }
    options->output = call.value("output");
    options->json = call.json();
    if (options->json && options->output == StandardOutput) {
        return QStringLiteral("--json: standard output is taken by what is downloaded");
    }
    for (const char *name : {"from", "to"}) {
        const QString charset = call.value(name);
        if (!charset.isEmpty() && !QTextCodec::codecForName(charset.toLatin1())) {
            return QStringLiteral("--%1: unknown charset '%2'").arg(QLatin1String(name), charset);
        }
    }
    options->from = call.value("from");
    options->to = call.value("to");
    if (call.has("timeout")) {
        options->timeout = int(std::ceil(call.number("timeout", 0) * 1000));
    }
    options->maximumSize = qint64(call.number("max-size", MRVDownloadUrl::LargestSize));
    return readAnswers(call, options);
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
    const bool isKnown = MRVDownloadUrl::namesCharset(result->contentType);
    if (!isKnown && options.from.isEmpty() && !options.to.isEmpty()) {
        result->error = QStringLiteral("the server does not say what the text is in; --from does");
        return false;
    }
    if (!isKnown) {
        result->data = MRVDownloadUrl::convert(result->data, options.from, utf8);
    }
    if (!MRVDownloadUrl::convertLossless(&result->data, utf8, options.to)) {
        result->error = QStringLiteral("it has characters that %1 has not").arg(options.to);
    }
    return result->error.isEmpty();
}

// Without a name that was asked for, no file is replaced.
QString targetFile(const Options &options)
{
    return options.output.isEmpty() || QFileInfo(options.output).isDir()
        ? MRVDownloadUrl::newFileForUrl(options.output, options.url)
        : options.output;
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

// Writes what was downloaded. @return the file, empty for standard output.
QString write(const Options &options, Result *result)
{
    if (options.output == StandardOutput) {
        writeStandardOutput(result->data, &result->error);
        return QString();
    }
    const QString file = targetFile(options);
    MRVCoreUtil::WriteBinaryFile(result->data, file, &result->error);
    return file;
}

int run(const Call &call)
{
    Options options;
    const QString wrong = readOptions(call, &options);
    if (!wrong.isEmpty()) {
        return usageError(wrong);
    }
    const QString useless = unwritable(options);
    if (!useless.isEmpty()) {
        return refuse(useless);
    }
    Result result = download(options);
    QString file;
    if (result.error.isEmpty() && convert(options, &result)) {
        file = write(options, &result);
    }
    if (!result.error.isEmpty()) {
        return refuse(QStringLiteral("%1: %2").arg(options.url.toDisplayString(), result.error));
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

constexpr Verb verbs[] = {{"", "URL", "", run}};

constexpr Option options[] = {
    Option::name("o output", "FILE",
                 "Where to write: a file, which is replaced, or a folder; - is standard output. "
                 "Default: a new file with the name that ends the URL."),
    Option::flag("follow", "Follow redirects without asking."),
    Option::name("user", "NAME", "The user name; the password is asked for on the terminal."),
    Option::integer("password-fd", "NUMBER", 0, 65535,
                    "Read the password from this open file, such as 0."),
    Option::name("password-env", "NAME", "Take the password from this environment variable."),
    Option::flag("insecure", "Go on in spite of SSL errors, and from https to http."),
    Option::name("from", "CHARSET", "The charset of the text where the server does not name it."),
    Option::name("to", "CHARSET", "The charset in which the text is written. Default: UTF-8."),
    Option::number("timeout", "SECONDS", 0, 2147483,
                   "Give up when nothing comes for this long; 0 waits without end. Default: 30."),
    Option::integer("max-size", "BYTES", 0, MRVDownloadUrl::LargestSize,
                    "Give up when the file is larger. Default, and most: 1073741824."),
    Option::flag("json", "Print what was downloaded as a line of JSON."),
};

} // namespace

const Command getCommand = {
    "get",
    "download a page or a file",
    "Downloads a page or a file over http or https. Text whose charset the server names becomes "
    "UTF-8. The file appears when all of it has come. A redirect is asked about on a terminal, and "
    "refused without one.",
    "get https://example.org/novel.html -o novel.html",
    verbs,
    {options},
};
