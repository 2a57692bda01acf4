#include "commandline.h"
#include "terminalinput.h"

#include "core/mrvcoreutil.h"
#include "core/mrvpartialfile.h"
#include "util/mrvfailure.h"

#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QSslError>
#include <QTextCodec>

#include <algorithm>
#include <cmath>

#include <fcntl.h>

namespace {

const QLatin1String StandardOutput("-");
constexpr qint64 MaxCertificates = 16 << 20;

struct Options
{
    QList<QUrl> urls;
    QString output;
    QString from;
    QString to;
    int timeout = MRVDownloadUrl::DefaultTransferTimeout;
    qint64 maximumSize = MRVDownloadUrl::LargestSize;
    bool json = false;
    bool resume = false;
    QByteArray caCertificates;
    TerminalInput::Answers answers;
};

// Where one download goes.
struct Target
{
    QUrl url;
    QString file; // empty: standard output
    bool isDevice = false; // or a pipe: nothing that could be replaced
    bool isPlain() const { return !file.isEmpty() && !isDevice; }
};

struct Result
{
    QByteArray data;
    bool isWritten = false; // already, piece by piece
    MRVError error;
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
    const auto hasUser = [](const QUrl &url) { return !url.userName().isEmpty(); };
    if (wrong.isEmpty() && !answers.password.isNull() && answers.user.isEmpty()
        && !std::all_of(options->urls.cbegin(), options->urls.cend(), hasUser)) {
        return QStringLiteral("--user: is needed with a password");
    }
    return wrong;
}

// The addresses, and whether there is a place for each. What is wrong, or empty for nothing.
QString readAddresses(const Call &call, Options *options)
{
    for (const QString &argument : call.arguments) {
        const QUrl url(argument);
        const bool isOnTheWeb =
            url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
        if (!url.isValid() || url.host().isEmpty() || !isOnTheWeb) {
            return QStringLiteral("%1: not an http or https address").arg(argument);
        }
        options->urls.append(url);
    }
    options->output = call.value("output");
    const QFileInfo output(options->output);
    const bool isFile = output.isFile() || !output.exists();
    if (options->urls.size() > 1 && !options->output.isEmpty() && options->output != StandardOutput
        && isFile) {
        return QStringLiteral("%1: not a folder, for several files").arg(options->output);
    }
    return QString();
}

// What is wrong, or empty for nothing.
QString readCertificates(const Call &call, Options *options)
{
    if (!call.has("cacert")) {
        return QString();
    }
    QFile file(call.value("cacert"));
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("--cacert: %1: %2").arg(file.fileName(), file.errorString());
    }
    options->caCertificates = file.read(MaxCertificates);
    return MRVHttpAccess().setCaCertificates(options->caCertificates)
        ? QString()
        : QStringLiteral("--cacert: %1: there is no certificate in PEM in it").arg(file.fileName());
}

// What is wrong, or empty for nothing.
QString readOptions(const Call &call, Options *options)
{
    const QString wrong = readAddresses(call, options);
    if (!wrong.isEmpty()) {
        return wrong;
    }
    options->resume = call.has("resume");
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
    const QString unread = readCertificates(call, options);
    return unread.isEmpty() ? readAnswers(call, options) : unread;
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

void setUp(MRVDownloadUrl *download, const Options &options, const Target &target)
{
    download->setTransferTimeout(options.timeout);
    download->setMaximumSize(options.maximumSize);
    if (!options.caCertificates.isEmpty()) {
        download->networkAccessManager()->setCaCertificates(options.caCertificates);
    }
    // Only what is converted has to be in memory.
    if (target.isPlain() && options.from.isEmpty() && options.to.isEmpty()) {
        download->setBody(MRVDownloadUrl::Body::RawUnlessText);
        download->setResumable(true);
    }
}

Result download(const Options &options, const Target &target)
{
    Result result;
    MRVDownloadUrl download;
    TerminalInput input(options.answers, &download, target.url);
    QEventLoop loop;
    setUp(&download, options, target);
    download.setUserInputHandler(&input);
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
    QObject::connect(&download, &MRVDownloadUrl::downloadError, &loop, [&] {
        result.error = input.reason().isEmpty() ? download.lastError()
                                                : MRVError{MRVErrorKind::Network, input.reason()};
        loop.quit();
    });
    const bool isFile = download.body() != MRVDownloadUrl::Body::Text;
    QObject::connect(&download, qOverload<QByteArray>(&MRVDownloadUrl::downloadSuccess), &loop,
                     [&](const QByteArray &data) {
                         result.data = data;
                         if (!isFile) {
                             loop.quit();
                         }
                     });
    QObject::connect(&download, qOverload<QString>(&MRVDownloadUrl::downloadSuccess), &loop,
                     &QEventLoop::quit);
    // The signals never come before the loop runs.
    if (isFile) {
        download.downloadToFile(target.url, target.file);
    } else {
        download.download(target.url);
    }
    loop.exec();
    showProgress(QString());
    result.isWritten = isFile && !result.error;
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
        return MRV::fail(
            &result->error, MRVErrorKind::Unsupported,
            QStringLiteral("the server does not say what the text is in; --from does"));
    }
    if (!isKnown) {
        result->data = MRVDownloadUrl::convert(result->data, options.from, utf8);
    }
    return MRVDownloadUrl::convertLossless(&result->data, utf8, options.to)
        || MRV::fail(&result->error, MRVErrorKind::Unsupported,
                     QStringLiteral("it has characters that %1 has not").arg(options.to));
}

// Without a name that was asked for, no file is replaced.
Target targetOf(const Options &options, const QUrl &url)
{
    Target target{url, QString(), false};
    const QFileInfo output(options.output);
    if (options.output.isEmpty() || output.isDir()) {
        target.file = MRVDownloadUrl::newFileForUrl(options.output, url);
    } else if (options.output != StandardOutput) {
        target.file = options.output;
        target.isDevice = output.exists() && !output.isFile();
    }
    return target;
}

// What would be said after all has come can be said before. Also throws away what another download
// has left, unless it is to be gone on with.
MRVError unwritable(const Options &options, const Target &target)
{
    MRVError error;
    if (target.isDevice && !QFileInfo(target.file).isWritable()) {
        return {MRVErrorKind::NoPermission,
                QStringLiteral("%1: it is write-protected").arg(target.file)};
    }
    if (target.isPlain()) {
        MRVPartialFile part(target.file);
        if (part.open(&error) && !options.resume) {
            part.restart(QByteArray(), &error);
        }
    }
    return error;
}

// A device or a pipe takes bytes as standard output does.
bool writeDevice(const QString &path, const QByteArray &data, MRVErrorSink error)
{
    QFile device(path);
    return (device.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
            && device.write(data) == data.size())
        || MRV::fail(error, path + QLatin1String(" cannot be written"), MRVError::ofDevice(device));
}

void write(const Target &target, Result *result)
{
    if (target.isDevice) {
        writeDevice(target.file, result->data, &result->error);
    } else if (target.file.isEmpty()) {
        writeStandardOutput(result->data, &result->error);
    } else {
        MRVCoreUtil::WriteBinaryFile(result->data, target.file, &result->error);
    }
}

// Whether a part of it is there that --resume would go on with.
bool isBegun(const Target &target)
{
    MRVPartialFile part(target.file);
    return target.isPlain() && part.open() && part.size() > 0 && !part.origin().isEmpty();
}

int get(const Options &options, const QUrl &url)
{
    const Target target = targetOf(options, url);
    if (const MRVError useless = unwritable(options, target)) {
        return refuse(useless);
    }
    Result result = download(options, target);
    if (!result.error && !result.isWritten && convert(options, &result)) {
        write(target, &result);
    }
    if (result.error) {
        const QString hint =
            isBegun(target) ? QStringLiteral("; --resume goes on with what has come") : QString();
        return refuse(
            result.error.kind,
            QStringLiteral("%1: %2").arg(url.toDisplayString(), result.error.text + hint));
    }
    if (options.json) {
        const qint64 size =
            result.isWritten ? QFileInfo(target.file).size() : qint64(result.data.size());
        printJson({{QStringLiteral("url"), result.url.toDisplayString()},
                   {QStringLiteral("file"), target.file},
                   {QStringLiteral("size"), size},
                   {QStringLiteral("contentType"), result.contentType},
                   {QStringLiteral("redirects"), QJsonArray::fromStringList(result.redirects)}});
    } else if (!target.file.isEmpty()) {
        printLine(target.file);
    }
    return Done;
}

int run(const Call &call)
{
    Options options;
    const QString wrong = readOptions(call, &options);
    if (!wrong.isEmpty()) {
        return usageError(wrong);
    }
    int code = Done;
    for (const QUrl &url : qAsConst(options.urls)) {
        code = qMax(code, get(options, url));
    }
    return code;
}

constexpr Verb verbs[] = {{"", "URL...", "", run}};

constexpr Option options[] = {
    Option::name("o output", "FILE",
                 "Where to write: a file, which is replaced, a folder, a device or a pipe; - is "
                 "standard output. Default: a new file with the name that ends the URL."),
    Option::flag("resume", "Go on with what a broken download has left."),
    Option::flag("follow", "Follow redirects without asking."),
    Option::name("user", "NAME", "The user name; the password is asked for on the terminal."),
    Option::integer("password-fd", "NUMBER", 0, 65535,
                    "Read the password from this open file, such as 0."),
    Option::name("password-env", "NAME", "Take the password from this environment variable."),
    Option::flag("insecure", "Go on in spite of SSL errors, and from https to http."),
    Option::name("cacert", "FILE",
                 "Trust the certificates of this file, in PEM, instead of the system's."),
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
    "Downloads pages or files over http or https. Text whose charset the server names becomes "
    "UTF-8. The file appears when all of it has come. A redirect is asked about on a terminal, and "
    "refused without one. What has come of a file when a download breaks off stays "
    "beside it, as FILE.part.",
    "get https://example.org/novel.html -o novel.html\n"
    "get https://example.org/a.zip https://example.org/b.zip -o downloads",
    verbs,
    {options},
};
