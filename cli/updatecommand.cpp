#include "commandline.h"

#include "core/mrvfilewriter.h"
#include "download/mrvdownloadurl.h"
#include "download/mrvredirectpolicy.h"
#include "update/mrvupdatemodel.h"
#include "util/mrvtemporaryfolder.h"
#include "version/mversion.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QJsonObject>
#include <QUrl>

#include <cstdio>

namespace {

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
    MRVRedirectPolicy redirects;
    redirects.start(url);
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
        *error = QStringLiteral("this is not an address");
        return false;
    }
    showProgress(QStringLiteral("fetching %1").arg(url.toDisplayString()));
    loop.exec();
    showProgress(QString());
    if (redirects.hasRefused()) {
        *error = QStringLiteral("it redirects too often, or to where it must not");
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
        printLine(QStringLiteral("%1 is available, this is %2")
                      .arg(printable(model.availableVersion()), current));
        printLine(printable(model.downloadURL()));
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
        return refuse(folder.errorString());
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
        return refuse(QStringLiteral("%1: %2").arg(feed, error));
    }
    print(model, feed, json);
    return model.isNewerAvailable() ? Done : Failed;
}

int run(const Call &call)
{
    const QString current = call.value("current");
    if (call.has("current") && !isVersion(current)) {
        return usageError(
            QStringLiteral("--current: '%1' is not a version such as 2.9.0.1").arg(current));
    }
    if (call.has("current")) {
        QCoreApplication::setApplicationVersion(current);
    }
    QCoreApplication::setApplicationName(call.has("app") ? call.value("app")
                                                         : QStringLiteral("Morvane"));
    return check(call.arguments.value(0), call.json());
}

constexpr Verb verbs[] = {{"", "[FEED]", "", run}};

constexpr Option options[] = {
    Option::name("current", "VERSION",
                 "The version that is running. Default: the version of this tool."),
    Option::choice("app", "NAME", "Morvane Fernwick",
                   "The application whose feed is read: Morvane (default) or Fernwick."),
    Option::flag("json", "Print the result as one line of JSON."),
};

} // namespace

const Command updateCommand = {
    "update",
    "check an update feed for a newer version",
    "Reads an update feed and tells whether it offers a newer version. Nothing is installed. FEED "
    "is an http or https address, a file, or - for standard input. Default: the feed of the "
    "application.\n"
    "Exit code 1: nothing is newer, or the feed cannot be read.",
    "update\nupdate feed.xml --current 2.9.0.0",
    verbs,
    {options},
};
