#include "command.h"
#include "terminalinput.h"

#include "core/mrvfilewriter.h"
#include "download/mrvdownloadsilentinput.h"
#include "download/mrvdownloadurl.h"
#include "publish/mrvtemporaryfolder.h"
#include "update/mrvupdatemodel.h"
#include "version/mversion.h"

#include <QCommandLineParser>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QJsonObject>
#include <QUrl>

#include <cstdio>

namespace {

constexpr int MaxRedirects = 10;

// Follows redirects, but not round and round.
class FewRedirects : public MRVDownloadSilentInput
{
public:
    FewRedirects()
        : MRVDownloadSilentInput(false, true, QString(), QString())
    {
    }

    bool redirectTo(const QUrl &url) override
    {
        return ++m_count <= MaxRedirects && MRVDownloadSilentInput::redirectTo(url);
    }
    bool hasRefused() const { return m_count > MaxRedirects; }

private:
    int m_count = 0;
};

int usageError(const QString &text)
{
    printError(QLatin1String("update: ") + text);
    return WrongUsage;
}

// One that can be compared: digits with full stops between, or such a text and ".beta".
bool isVersion(QString text)
{
    bool isNumber = false;
    text.remove(QLatin1String(".beta")).remove(u'.').toInt(&isNumber);
    return isNumber;
}

bool isAddress(const QString &feed)
{
    return feed.contains(QLatin1String("://"));
}

bool downloadFeed(const QUrl &url, const QString &path, QString *error)
{
    FewRedirects redirects;
    MRVDownloadUrl download;
    download.setUserInputHandler(&redirects);
    download.setMaximumSize(MRVUpdateModel::MaxFeedSize + 1);
    QEventLoop loop;
    QObject::connect(&download, &MRVDownloadUrl::downloadError, &loop, [&](const QString &text) {
        *error = text;
        loop.quit();
    });
    QObject::connect(&download, QOverload<QString>::of(&MRVDownloadUrl::downloadSuccess), &loop,
                     &QEventLoop::quit);
    if (!download.downloadToFile(url, path)) {
        *error = QStringLiteral("this is no address");
        return false;
    }
    showProgress(QStringLiteral("fetching %1").arg(url.toDisplayString()));
    loop.exec();
    showProgress(QString());
    if (redirects.hasRefused()) {
        *error = QStringLiteral("it redirects more than %1 times").arg(MaxRedirects);
    }
    return error->isEmpty();
}

bool copyFeed(const QString &source, const QString &path, QString *error)
{
    QFile file(source);
    const bool isOpen = source == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly)
                                                     : file.open(QIODevice::ReadOnly);
    if (!isOpen) {
        *error = file.errorString();
        return false;
    }
    return MRVFileWriter::write(path, file.read(MRVUpdateModel::MaxFeedSize + 1), error);
}

void print(const MRVUpdateModel &model, const QString &feed, bool json)
{
    const QString current = QCoreApplication::applicationVersion();
    const bool isBeta = MVersion::isBetaVersion(model.availableVersion());
    if (json) {
        printJson({{QStringLiteral("feed"), feed},
                   {QStringLiteral("current"), current},
                   {QStringLiteral("available"), model.availableVersion()},
                   {QStringLiteral("newer"), model.isNewerAvailable()},
                   {QStringLiteral("beta"), isBeta},
                   {QStringLiteral("installer"), model.downloadURL()}});
    } else if (model.isNewerAvailable()) {
        printLine(QStringLiteral("%1 is available, this is %2\n%3")
                      .arg(model.availableVersion(), current, printable(model.downloadURL())));
    } else {
        printLine((isBeta ? QStringLiteral("%1 is up to date: %2 is a beta, which is not offered")
                          : QStringLiteral("%1 is up to date: the feed offers %2"))
                      .arg(current, printable(model.availableVersion())));
    }
}

int check(const QString &given, bool json)
{
    // The model reads what lies in the temporary folder, where others may have files of these
    // names.
    const MRVTemporaryFolder folder(QDir::tempPath());
    if (folder.path().isEmpty()) {
        printError(QLatin1String("update: ") + folder.errorString());
        return Failed;
    }
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    MRVUpdateModel model;
    const QString feed = given.isEmpty() ? model.xmlUrl() : given;
    QString error = model.settingsError();
    QObject::connect(&model, &MRVUpdateModel::updateError, [&error](const QString &text) {
        if (error.isEmpty()) {
            error = text;
        }
    });
    if (error.isEmpty()
        && (isAddress(feed) ? downloadFeed(QUrl(feed), model.xmlFilePath(), &error)
                            : copyFeed(feed, model.xmlFilePath(), &error))) {
        model.readXML();
    }
    if (!error.isEmpty()) {
        printError(QStringLiteral("update: %1: %2").arg(feed, printable(error)));
        return Failed;
    }
    print(model, feed, json);
    return model.isNewerAvailable() ? Done : Failed;
}

} // namespace

int runUpdate(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Reads an update feed and tells whether it offers a newer version. Nothing is installed.\n"
        "Exit code 1: there is nothing newer, or the feed cannot be read."));
    parser.addPositionalArgument(
        QStringLiteral("FEED"),
        QStringLiteral("An http or https address, a file, or - for standard input; the "
                       "application's own feed unless given."),
        QStringLiteral("[FEED]"));
    const QCommandLineOption current(
        QStringLiteral("current"),
        QStringLiteral("The version that is running; this tool's own unless given."),
        QStringLiteral("VERSION"));
    const QCommandLineOption application(
        QStringLiteral("app"), QStringLiteral("Whose feed: Morvane (default) or Fernwick."),
        QStringLiteral("NAME"), QStringLiteral("Morvane"));
    const QCommandLineOption json(QStringLiteral("json"),
                                  QStringLiteral("Print the verdict as one line of JSON."));
    parser.addOptions({current, application, json});
    const int code = parseArguments(
        &parser, QStringLiteral("update [FEED] [--current VERSION] [OPTIONS]"), arguments);
    if (code >= 0) {
        return code;
    }
    const QString name = parser.value(application);
    if (parser.positionalArguments().size() > 1) {
        return usageError(QStringLiteral("one feed at a time"));
    }
    // As of a variable that is not set, which must not mean the application's own feed.
    if (parser.positionalArguments().contains(QString())) {
        return usageError(QStringLiteral("the feed has no name"));
    }
    if (parser.isSet(current) && !isVersion(parser.value(current))) {
        return usageError(QStringLiteral("--current is a version such as 2.9.0.1, not '%1'")
                              .arg(parser.value(current)));
    }
    if (name != QLatin1String("Morvane") && name != QLatin1String("Fernwick")) {
        return usageError(QStringLiteral("--app is Morvane or Fernwick, not '%1'").arg(name));
    }
    if (parser.isSet(current)) {
        QCoreApplication::setApplicationVersion(parser.value(current));
    }
    QCoreApplication::setApplicationName(name);
    return check(parser.positionalArguments().value(0), parser.isSet(json));
}
