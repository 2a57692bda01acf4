#include "update/mrvupdatemodel.h"

#include "core/mrvcore.h"
#include "dom/mrvdomdoc.h"
#include "update/mrvplainfile_p.h"
#include "update/mrvsignature_p.h"
#include "update/msharedresources.h"
#include "version/mversion.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QPointer>

namespace {

constexpr int LongestVersion = 100;
// The part of an installer that is examined.
constexpr int InstallerSample = 100000;

// A plain file name, without any folder.
bool isFileName(const QString &name)
{
    if (name.isEmpty() || name == QLatin1String(".") || name == QLatin1String("..")) {
        return false;
    }
    for (const QChar c : name) {
        if (c == u'/' || c == u'\\' || c.category() == QChar::Other_Control) {
            return false;
        }
    }
    return true;
}

// Empty when the file cannot be read.
QByteArray digestOf(const QString &path)
{
    QFile file;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    return mrvOpenPlain(&file, path) && hash.addData(&file) ? hash.result() : QByteArray();
}

QString temporaryFile(const QString &name)
{
    return QDir::tempPath() + u'/' + name;
}

} // namespace

MRVUpdateModel::MRVUpdateModel(QObject *parent)
    : QObject(parent)
{
    settings();
}

MRVUpdateModel::~MRVUpdateModel() = default;

void MRVUpdateModel::settings()
{
    QFile file(MSharedResources::updatesIniFileLocation());
    if (file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
        QString *const values[] = {&m_xmlFileName, &m_xmlUrl, &m_downloadUrl, &m_releaseNotesUrl};
        int line = 0;
        for (QString *value : values) {
            *value += lines.value(line++)
                          .split(QStringLiteral("->"), Qt::SkipEmptyParts)
                          .value(1)
                          .trimmed();
        }
    }
    // A file that names no feed is as useless as a missing one.
    if (!isFileName(m_xmlFileName) || m_xmlUrl.isEmpty()) {
        m_settingsError = tr("Failed to open update.ini file to determine update URL location and "
                             "version. Please contact %1 so we can fix this problem quickly.")
                              .arg(MrvCore::supportEmail());
        fail(m_settingsError);
    }
}

void MRVUpdateModel::fail(const QString &error)
{
    m_failed = true;
    Q_EMIT updateError(error);
}

QString MRVUpdateModel::xmlFilePath() const
{
    return temporaryFile(m_xmlFileName);
}

QString MRVUpdateModel::downloadFilePath() const
{
    return temporaryFile(m_installerFileName);
}

bool MRVUpdateModel::setPublicKey(const QByteArray &key)
{
    m_needsSignature = !key.isEmpty();
    m_publicKey = mrvPublicKey(key);
    return !m_needsSignature || !m_publicKey.isEmpty();
}

QString MRVUpdateModel::textForTag(const QString &tag, const QDomDocument &document)
{
    return document.elementsByTagName(tag).item(0).firstChild().nodeValue();
}

void MRVUpdateModel::parseXML(const QDomDocument &document)
{
    m_availableVersion = textForTag(QStringLiteral("version"), document);
    m_installerFileName = textForTag(QStringLiteral("linuxfilename"), document);
    m_downloadUrl = textForTag(QStringLiteral("url"), document);
    if (m_availableVersion.isEmpty() || m_installerFileName.isEmpty() || m_downloadUrl.isEmpty()) {
        fail(tr("The update XML file contained empty values. Please contact %1 so we can help "
                "resolve this "
                "issue quickly.")
                 .arg(MrvCore::supportEmail()));
    } else if (!isFileName(m_installerFileName) || m_installerFileName == m_xmlFileName) {
        m_installerFileName.clear();
        fail(tr("The update XML file names an installer that is not a plain file name. Please "
                "contact "
                "%1 so we can "
                "help resolve this issue quickly.")
                 .arg(MrvCore::supportEmail()));
    }
}

void MRVUpdateModel::compareVersions()
{
    m_newerAvailable = false;
    if (MVersion::isBetaVersion(m_availableVersion)) {
        return;
    }
    const auto digits = [](QString version, bool *ok) {
        return version.remove(QLatin1String(".beta")).remove(u'.').toInt(ok);
    };
    const QString current = QCoreApplication::applicationVersion();
    bool isCurrentNumber = false;
    bool isAvailableNumber = false;
    const int currentDigits = digits(current, &isCurrentNumber);
    const int availableDigits = digits(m_availableVersion, &isAvailableNumber);
    // Full stops are not digits: a small number may have as many as fit into a feed, and the dialog
    // would show them.
    if (!isCurrentNumber || !isAvailableNumber || m_availableVersion.size() > LongestVersion) {
        Q_EMIT updateError(
            tr("Unable to compare version numbers. Please contact %1 so we can help resolve this "
               "issue quickly")
                .arg(MrvCore::supportEmail()));
        return;
    }
    m_newerAvailable = availableDigits > currentDigits;
    if (m_newerAvailable) {
        Q_EMIT versions(current, m_availableVersion);
    }
}

bool MRVUpdateModel::isDownloadFileIntegral(const QString &path)
{
    m_downloadedFile = std::make_unique<QFile>();
    if (!mrvOpenPlain(m_downloadedFile.get(), path, QIODevice::Text)) {
        Q_EMIT updateError(tr("Could not open the downloaded file to validate it: ") + path);
        return false;
    }
    const bool isFeed = path.contains(m_xmlFileName);
    const QByteArray bytes = m_downloadedFile->read(isFeed ? MaxFeedSize : InstallerSample);
    m_downloadedFile->close();
    if (bytes.contains("404 Not Found")) {
        fail(tr("The download file could not be found on our server. Please contact %1 so we can "
                "help resolve "
                "this issue quickly.")
                 .arg(MrvCore::supportEmail()));
        return false;
    }
    return true;
}

void MRVUpdateModel::readXML()
{
    if (m_failed) {
        return;
    }
    // Deliberate: a name with a backslash in it is tried first. The downloader writes the other
    // one.
    QString path = QDir::toNativeSeparators(QDir::tempPath() + u'\\' + m_xmlFileName);
    if (!QFileInfo::exists(path) && QFileInfo::exists(xmlFilePath())) {
        path = xmlFilePath();
    }
    // A receiver that shows an error runs an event loop, in which the check may be deleted.
    const QPointer<MRVUpdateModel> self(this);
    if (!isDownloadFileIntegral(path)) {
        if (!self) {
            return;
        }
        fail(tr("The downloaded xml update file is not integral. Please contact %1 for additional "
                "support if this "
                "does not work.")
                 .arg(MrvCore::supportEmail()));
        return;
    }
    QByteArray feed;
    if (mrvOpenPlain(m_downloadedFile.get(), path, QIODevice::Text)) {
        feed = m_downloadedFile->read(MaxFeedSize + 1);
        m_downloadedFile->close();
    }
    QBuffer buffer(&feed);
    MRVDomDoc document;
    if (feed.size() > MaxFeedSize || !document.setContent(&buffer)) {
        fail(tr("Failed to read the downloaded update.xml file. Please try running 'Check for "
                "Update...' again. "
                "Please contact %1 for additional support if this does not work.")
                 .arg(MrvCore::supportEmail()));
        return;
    }
    parseXML(document.document());
    if (!self || m_failed) {
        return;
    }
    compareVersions();
    if (self) {
        Q_EMIT updateAvailable(m_newerAvailable);
    }
}

void MRVUpdateModel::readEXE()
{
    if (m_failed) {
        return;
    }
    m_installerDigest.clear();
    const QPointer<MRVUpdateModel> self(this);
    if (!isDownloadFileIntegral(downloadFilePath())) {
        if (!self) {
            return;
        }
        fail(tr("Morvane couldn't find the update on our server.\nThis is probably an error on our "
                "part.\nPlease report this to %1.")
                 .arg(MrvCore::supportEmail()));
        return;
    }
    QString reason;
    if (!needsSignature()) {
        m_installerDigest = digestOf(downloadFilePath());
    } else if (!mrvIsSigned(downloadFilePath(), signatureFilePath(), m_publicKey,
                            m_installerFileName, &m_installerDigest, &reason)) {
        fail(tr("The installer does not carry a valid signature (%1) and will not be opened. "
                "Please report this to %2.")
                 .arg(reason, MrvCore::supportEmail()));
        return;
    }
    m_failed = false;
    Q_EMIT readyToInstall();
}

bool MRVUpdateModel::isInstallerUnchanged() const
{
    return !m_installerDigest.isEmpty() && digestOf(downloadFilePath()) == m_installerDigest;
}
