#include "commandline.h"

#include "core/mrvfilewriter.h"
#include "download/mrvdownloadurl.h"
#include "download/mrvredirectpolicy.h"
#include "update/mrvupdatemodel.h"
#include "util/mrvfailure.h"
#include "util/mrvtemporaryfolder.h"
#include "version/mversion.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QUrl>

#include <cstdio>

namespace {

constexpr qint64 MaxSmallFile = 64 * 1024; // keys and signatures

const QLatin1String StandardInput("-");

QString signatureOf(const QString &file)
{
    return file + QLatin1String(".minisig");
}

// What cannot be read, fetched or relied upon, as opposed to what tells that nothing is newer.
int unreadable(const MRVError &error)
{
    refuse(error);
    return NotRead;
}

// An answer that was not printed must not look like one: 1 is an answer, too.
int printed(int answer)
{
    MRVError error;
    return flushStandardOutput(&error) ? answer : unreadable(error);
}

bool isAddress(const QString &feed)
{
    return feed.contains(QLatin1String("://"));
}

bool fetch(const QUrl &url, const QString &path, qint64 maximumSize, MRVDownloadUrl::Body body,
           MRVError *error)
{
    MRVRedirectPolicy redirects;
    redirects.start(url);
    MRVDownloadUrl download;
    download.setUserInputHandler(&redirects);
    download.setMaximumSize(maximumSize);
    download.setBody(body);
    QEventLoop loop;
    QObject::connect(&download, &MRVDownloadUrl::downloadError, &loop, [&] {
        *error = download.lastError();
        loop.quit();
    });
    QObject::connect(&download, QOverload<QString>::of(&MRVDownloadUrl::downloadSuccess), &loop,
                     &QEventLoop::quit);
    if (!download.downloadToFile(url, path)) {
        return MRV::fail(error, QStringLiteral("this is not an address"));
    }
    showProgress(QStringLiteral("fetching %1").arg(url.toDisplayString()));
    loop.exec();
    showProgress(QString());
    if (redirects.hasRefused()) {
        return MRV::fail(error, MRVErrorKind::Network,
                         QStringLiteral("it redirects too often, or to where it must not"));
    }
    return !*error;
}

bool copy(const QString &source, const QString &path, qint64 maximumSize, MRVErrorSink error)
{
    QFile file(source);
    const bool isOpen = source == StandardInput ? file.open(stdin, QIODevice::ReadOnly)
                                                : file.open(QIODevice::ReadOnly);
    return isOpen ? MRVFileWriter::write(path, file.read(maximumSize), error)
                  : MRV::fail(error, MRVError::ofDevice(file));
}

// Never over a file that is there.
bool move(const QString &source, const QString &path, MRVErrorSink error)
{
    QFile file(source);
    return file.rename(path)
        || MRV::fail(error, MRVError::ofDevice(file).kind,
                     QStringLiteral("%1 cannot be written").arg(path));
}

/** One check of a feed, whose files lie in a folder of their own. */
class Check
{
public:
    explicit Check(const Call &call)
        : m_call(call)
    {
        QObject::connect(&m_model, &MRVUpdateModel::updateError, &m_loop, [this] {
            m_error = m_error ? m_error : m_model.lastError();
            m_loop.quit();
        });
        QObject::connect(&m_model, &MRVUpdateModel::readyToInstall, &m_loop, [this] {
            m_isReady = true;
            m_loop.quit();
        });
    }

    int run(const QByteArray &key);

private:
    bool readFeed();
    bool download();
    bool fetchInstaller();
    QString warning() const;
    void print() const;

    const Call &m_call;
    MRVUpdateModel m_model;
    QEventLoop m_loop;
    QString m_feed;
    QString m_file; // of the installer, in its place
    MRVError m_error;
    bool m_isReady = false;
};

int Check::run(const QByteArray &key)
{
    m_model.setPublicKey(key);
    m_feed = m_call.arguments.isEmpty() ? m_model.xmlUrl() : m_call.arguments.constFirst();
    m_error = m_model.lastError();
    if (m_error || !readFeed()) {
        return unreadable({m_error.kind, QStringLiteral("%1: %2").arg(m_feed, m_error.text)});
    }
    if (m_model.isNewerAvailable() && m_call.has("download") && !download()) {
        return unreadable(
            {m_error.kind, QStringLiteral("%1: %2").arg(m_model.downloadURL(), m_error.text)});
    }
    print();
    return m_model.isNewerAvailable() ? Done : Failed;
}

bool Check::readFeed()
{
    constexpr qint64 size = MRVUpdateModel::MaxFeedSize + 1;
    const bool isSigned = m_model.needsSignature();
    if (isAddress(m_feed)) {
        m_model.setXmlUrl(m_feed);
        const auto body = isSigned ? MRVDownloadUrl::Body::Raw : MRVDownloadUrl::Body::Text;
        if ((isSigned
             && !fetch(QUrl(m_model.xmlSignatureUrl()), m_model.xmlSignatureFilePath(),
                       MaxSmallFile, MRVDownloadUrl::Body::Raw, &m_error))
            || !fetch(QUrl(m_feed), m_model.xmlFilePath(), size, body, &m_error)) {
            return false;
        }
    } else {
        const QString file = QFileInfo(m_feed).absoluteFilePath();
        m_model.setXmlUrl(QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded));
        if ((isSigned
             && !copy(signatureOf(m_feed), m_model.xmlSignatureFilePath(), MaxSmallFile, &m_error))
            || !copy(m_feed, m_model.xmlFilePath(), size, &m_error)) {
            return false;
        }
    }
    m_model.readXML();
    return !m_error;
}

bool Check::download()
{
    const QDir folder(m_call.has("output") ? m_call.value("output") : QStringLiteral("."));
    m_file = folder.filePath(m_model.offer().fileName);
    if (QFileInfo::exists(m_file)) {
        return MRV::fail(&m_error, QStringLiteral("%1 exists already").arg(m_file));
    }
    if (!fetchInstaller()) {
        return false;
    }
    m_model.readEXE();
    if (!m_isReady && !m_error) {
        m_loop.exec();
    }
    // The signature is for --verify.
    return !m_error && move(m_model.downloadFilePath(), m_file, &m_error)
        && (!m_model.needsSignature()
            || move(m_model.signatureFilePath(), signatureOf(m_file), &m_error));
}

bool Check::fetchInstaller()
{
    const auto get = [this](const QString &url, const QString &path, qint64 size) {
        return fetch(QUrl(url), path, size, MRVDownloadUrl::Body::Raw, &m_error);
    };
    const qint64 size = m_model.offer().size;
    return (!m_model.needsSignature()
            || (get(m_model.signatureUrl(), m_model.signatureFilePath(), MaxSmallFile)
                && m_model.readEXESignature()))
        && get(m_model.downloadURL(), m_model.downloadFilePath(),
               size >= 0 ? size : MRVDownloadUrl::LargestSize);
}

// The digits of a version are compared as one number.
QString Check::warning() const
{
    const auto components = [](QString version) {
        return version.remove(QLatin1String(".beta")).count(u'.') + 1;
    };
    const QString current = QCoreApplication::applicationVersion();
    const QString available = m_model.availableVersion();
    const int ours = components(current);
    const int theirs = components(available);
    return ours == theirs || !MRVUpdateFeed::versionNumber(available)
        ? QString()
        : QStringLiteral("%1 has %2 components and %3 has %4, so that they cannot be compared well")
              .arg(available)
              .arg(theirs)
              .arg(current)
              .arg(ours);
}

void Check::print() const
{
    const QString current = QCoreApplication::applicationVersion();
    const QString available = m_model.availableVersion();
    const bool isBeta = MVersion::isBetaVersion(available);
    const QString doubt = warning();
    if (m_call.json()) {
        QJsonObject object{{QStringLiteral("feed"), m_feed},
                           {QStringLiteral("current"), current},
                           {QStringLiteral("available"), available},
                           {QStringLiteral("newer"), m_model.isNewerAvailable()},
                           {QStringLiteral("beta"), isBeta},
                           {QStringLiteral("signed"), m_model.needsSignature()},
                           {QStringLiteral("installer"), m_model.downloadURL()}};
        if (!m_file.isEmpty()) {
            object.insert(QStringLiteral("file"), m_file);
        }
        if (!doubt.isEmpty()) {
            object.insert(QStringLiteral("warning"), doubt);
        }
        printJson(object);
        return;
    }
    if (!doubt.isEmpty()) {
        printNote(doubt);
    }
    if (m_model.isNewerAvailable()) {
        printLine(QStringLiteral("%1 is available, this is %2").arg(printable(available), current));
        printLine(printable(m_model.downloadURL()));
        if (!m_file.isEmpty()) {
            printLine(printable(m_file));
        }
    } else {
        printLine((isBeta ? QStringLiteral("%1 is up to date: %2 is a beta, which is not offered")
                          : QStringLiteral("%1 is up to date: the feed offers %2"))
                      .arg(current, printable(available)));
    }
}

int verify(const Call &call, const QByteArray &key)
{
    const QString name = call.value("verify");
    QFile file(name);
    QFile signatureFile(signatureOf(name));
    for (QFile *opened : {&file, &signatureFile}) {
        if (!opened->open(QIODevice::ReadOnly)) {
            MRVError error;
            MRV::fail(&error, opened->fileName(), MRVError::ofDevice(*opened));
            return unreadable(error);
        }
    }
    QString reason;
    const MRVSignature signature =
        MRVSignature::fromText(signatureFile.read(MaxSmallFile), key, &reason);
    const QString signedName = signature.field(QStringLiteral("file"));
    if (!signature.isNull()) {
        reason = signedName != QFileInfo(name).fileName()
            ? QStringLiteral("it was made for %1")
                  .arg(signedName.isEmpty() ? QStringLiteral("no file") : signedName)
            : signature.isOf(&file) ? QString()
                                    : QStringLiteral("it is not this file's");
    }
    if (!reason.isEmpty()) {
        return refuse(MRVErrorKind::Damaged,
                      QStringLiteral("%1: its signature is not valid: %2").arg(name, reason));
    }
    const QString version = signature.field(QStringLiteral("version"));
    const QString time =
        QDateTime::fromSecsSinceEpoch(signature.timestamp(), Qt::UTC).toString(Qt::ISODate);
    printAnswer(call,
                {{QStringLiteral("file"), name},
                 {QStringLiteral("version"), version},
                 {QStringLiteral("signed"), time}},
                QStringLiteral("%1: signed %2%3")
                    .arg(printable(name), time,
                         version.isEmpty() ? version : QStringLiteral(", version ") + version));
    return Done;
}

// What is wrong with the options, or empty for nothing.
QString readOptions(const Call &call, QByteArray *key)
{
    const QString current = call.value("current");
    if (call.has("current") && !MRVUpdateFeed::versionNumber(current)) {
        return QStringLiteral("--current: '%1' is not a version such as 2.9.0.1").arg(current);
    }
    if (call.has("key")) {
        QFile file(call.value("key"));
        *key = file.open(QIODevice::ReadOnly) ? file.read(MaxSmallFile) : QByteArray();
        if (MRVSignature::publicKey(*key).isEmpty()) {
            return QStringLiteral("--key: %1 is not a public key of minisign").arg(file.fileName());
        }
        if (call.arguments.contains(StandardInput)) {
            return QStringLiteral("--key: standard input has no signature");
        }
    }
    if (call.has("verify") && (!call.has("key") || !call.arguments.isEmpty())) {
        return QStringLiteral("--verify: needs --key, and no feed");
    }
    if (call.has("output") && !call.has("download")) {
        return QStringLiteral("--output: needs --download");
    }
    return QString();
}

int run(const Call &call)
{
    QByteArray key;
    const QString wrong = readOptions(call, &key);
    if (!wrong.isEmpty()) {
        return usageError(wrong);
    }
    if (call.has("verify")) {
        return printed(verify(call, MRVSignature::publicKey(key)));
    }
    if (call.has("current")) {
        QCoreApplication::setApplicationVersion(call.value("current"));
    }
    QCoreApplication::setApplicationName(call.has("app") ? call.value("app")
                                                         : QStringLiteral("Morvane"));
    const QString output = call.has("output") ? call.value("output") : QStringLiteral(".");
    if (!QFileInfo(output).isDir()) {
        return unreadable(
            {MRVErrorKind::NotFound, QStringLiteral("%1: no such folder").arg(output)});
    }
    // The model reads what lies in the temporary folder, where others may have files of these
    // names. An installer is renamed at the end, which needs the same file system.
    const MRVTemporaryFolder folder(call.has("download") ? output : QDir::tempPath());
    if (folder.path().isEmpty()) {
        return unreadable(folder.error());
    }
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
    return printed(Check(call).run(key));
}

constexpr Verb verbs[] = {{"", "[FEED]", "", run}};

constexpr Option options[] = {
    Option::name("current", "VERSION",
                 "The version that is running. Default: the version of this tool."),
    Option::choice("app", "NAME", "Morvane Fernwick",
                   "The application whose feed is read: Morvane (default) or Fernwick."),
    Option::name(
        "key", "FILE",
        "The maker's public key, as minisign writes it: the feed and the installer must be "
        "signed with it, in files of their names and .minisig."),
    Option::flag(
        "download",
        "Download the installer of a newer version, and with --key its signature, and check it."),
    Option::name("o output", "DIR",
                 "The folder for the installer, in which no file is replaced. Default: the current "
                 "one."),
    Option::name("verify", "FILE",
                 "Read no feed, but check an installer that is there against FILE.minisig."),
    Option::flag("json", "Print the result as one line of JSON."),
};

} // namespace

const Command updateCommand = {
    "update",
    "check an update feed for a newer version",
    "Reads an update feed and tells whether it offers a newer version. Nothing is installed. FEED "
    "is an http or https address, a file, or - for standard input. Default: the feed of the "
    "application.\n"
    "Exit code 1: nothing is newer, or the signature that --verify checks is not valid. Exit code "
    "3: the feed, or what it names, cannot be read, fetched, relied upon or written.",
    "update\nupdate feed.xml --current 2.9.0.0\nupdate --key maker.pub --download -o installers",
    verbs,
    {options},
};
