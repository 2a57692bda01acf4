#include "update/mrvupdatemodel.h"

#include "core/mrvcore.h"
#include "dom/mrvdomdoc.h"
#include "update/mrvfiledigest_p.h"
#include "update/mrvplainfile_p.h"
#include "update/mrvupdatefolder_p.h"
#include "update/msharedresources.h"
#include "version/mversion.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QDomDocument>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <QUrl>

#include <algorithm>

namespace {

constexpr int LongestVersion = 100;
// The part of an installer that is examined.
constexpr int InstallerSample = 100000;
// A file system takes 255 bytes, of which suffixes and temporary files need some.
constexpr int LongestName = 200;

// A plain file name, without any folder.
bool isFileName(const QString &name)
{
    if (name.isEmpty() || name == QLatin1String(".") || name == QLatin1String("..")
        || name.toUtf8().size() > LongestName) {
        return false;
    }
    return std::none_of(name.begin(), name.end(), [](QChar c) {
        return c == u'/' || c == u'\\' || c.category() == QChar::Other_Control
            || c.category() == QChar::Other_Format;
    });
}

// Why mrvOpenPlain() does not open a file.
MRVErrorKind kindOfUnopened(const QString &path)
{
    const QFileInfo file(path);
    return !file.exists()   ? MRVErrorKind::NotFound
        : file.isReadable() ? MRVErrorKind::Other // a link, no regular file, or another user's
                            : MRVErrorKind::NoPermission;
}

// A signature of a feed may be so late that clocks which are a day fast do not matter.
qint64 latestTime()
{
    constexpr qint64 Day = 24 * 60 * 60;
    return QDateTime::currentSecsSinceEpoch() + Day;
}

} // namespace

MRVUpdateModel::MRVUpdateModel(QObject *parent)
    : QObject(parent)
    , m_folder(std::make_unique<MRVUpdateFolder>())
{
    m_slices.setSingleShot(true);
    connect(&m_slices, &QTimer::timeout, this, &MRVUpdateModel::readSlice);
    settings();
}

MRVUpdateModel::~MRVUpdateModel() = default;

void MRVUpdateModel::settings()
{
    QFile file(MSharedResources::updatesIniFileLocation());
    const bool isOpen = file.open(QIODevice::ReadOnly | QIODevice::Text);
    if (isOpen) {
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
        QString *const values[] = {&m_xmlFileName, &m_xmlUrl, &m_offer.url, &m_releaseNotesUrl};
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
        fail(isOpen ? MRVErrorKind::Damaged : MRVError::ofDevice(file).kind, m_settingsError);
    }
}

void MRVUpdateModel::tell(const MRVError &error)
{
    m_error = error;
    Q_EMIT updateError(error.text);
}

void MRVUpdateModel::fail(MRVErrorKind kind, const QString &error)
{
    m_failed = true;
    tell({kind, error});
}

QString MRVUpdateModel::xmlFilePath() const
{
    return m_folder->filePath(m_xmlFileName);
}

QString MRVUpdateModel::downloadFilePath() const
{
    return m_folder->filePath(m_offer.fileName);
}

bool MRVUpdateModel::setPublicKey(const QByteArray &key)
{
    m_needsSignature = !key.isEmpty();
    m_publicKey = MRVSignature::publicKey(key);
    return !m_needsSignature || !m_publicKey.isEmpty();
}

void MRVUpdateModel::setPolicy(const MRVUpdatePolicy &policy, bool isAsked)
{
    m_policy = policy;
    m_isAsked = isAsked;
}

bool MRVUpdateModel::claimFeed(MRVErrorSink error)
{
    // The signature again, in case the feed has moved to the private folder.
    return (!m_needsSignature || m_folder->claim(m_xmlFileName + signatureSuffix(), true, error))
        && m_folder->claim(m_xmlFileName, true, error)
        && (!m_needsSignature || m_folder->claim(m_xmlFileName + signatureSuffix(), true, error));
}

bool MRVUpdateModel::claimInstaller(MRVErrorSink error)
{
    const QString signature = m_offer.fileName + signatureSuffix();
    return (!m_needsSignature || m_folder->claim(signature, false, error))
        && m_folder->claim(m_offer.fileName, false, error)
        && (!m_needsSignature || m_folder->claim(signature, false, error));
}

void MRVUpdateModel::removeFiles()
{
    m_folder->clear();
}

void MRVUpdateModel::keepInstaller()
{
    m_folder->keep(m_offer.fileName);
    m_folder->clear();
}

QString MRVUpdateModel::textForTag(const QString &tag, const QDomDocument &document)
{
    return document.elementsByTagName(tag).item(0).firstChild().nodeValue();
}

void MRVUpdateModel::parseXML(const QDomDocument &document)
{
    m_offer = MRVUpdateOffer();
    m_offer.version = textForTag(QStringLiteral("version"), document).trimmed();
    m_offer.fileName = textForTag(QStringLiteral("linuxfilename"), document).trimmed();
    m_offer.url = textForTag(QStringLiteral("url"), document).trimmed();
    if (m_offer.version.isEmpty() || m_offer.fileName.isEmpty() || m_offer.url.isEmpty()) {
        fail(MRVErrorKind::Damaged,
             tr("The update XML file contained empty values. Please contact %1 so we can help "
                "resolve this "
                "issue quickly.")
                 .arg(MrvCore::supportEmail()));
        return;
    }
    m_feed.offers = {m_offer};
    QString reason;
    if ((m_needsSignature || m_policy.features)
        && !MRVUpdateFeed::read(document, m_offer, &m_feed, &reason)) {
        failFeed(reason);
        return;
    }
    const bool hasNames = std::all_of(
        m_feed.offers.cbegin(), m_feed.offers.cend(),
        [this](const MRVUpdateOffer &offer) { return isInstallerName(offer.fileName); });
    m_offer = m_feed.offers.constFirst();
    if (!hasNames) {
        m_offer.fileName.clear();
        fail(MRVErrorKind::Damaged,
             tr("The update XML file names an installer that is not a plain file name. Please "
                "contact "
                "%1 so we can "
                "help resolve this issue quickly.")
                 .arg(MrvCore::supportEmail()));
    }
}

bool MRVUpdateModel::isInstallerName(const QString &name) const
{
    return isFileName(name) && name != m_xmlFileName && name != m_xmlFileName + signatureSuffix()
        && name + signatureSuffix() != m_xmlFileName;
}

void MRVUpdateModel::compareVersions()
{
    m_newerAvailable = false;
    const bool isForChannel = !m_offer.channel.isEmpty();
    if (m_decision.verdict > MRVUpdatePolicy::Offered
        || (MVersion::isBetaVersion(m_offer.version) && !isForChannel)) {
        return;
    }
    const QString current = QCoreApplication::applicationVersion();
    const std::optional<int> currentNumber = MRVUpdateFeed::versionNumber(current);
    const std::optional<int> availableNumber = MRVUpdateFeed::versionNumber(m_offer.version);
    // Full stops are not digits: a small number may have as many as fit into a feed, and the dialog
    // would show them.
    if (!currentNumber || !availableNumber || m_offer.version.size() > LongestVersion) {
        tell({MRVErrorKind::Damaged,
              tr("Unable to compare version numbers. Please contact %1 so we can help resolve this "
                 "issue quickly")
                  .arg(MrvCore::supportEmail())});
        return;
    }
    m_newerAvailable = *availableNumber > *currentNumber;
    if (m_newerAvailable) {
        Q_EMIT versions(current, m_offer.version);
    }
}

bool MRVUpdateModel::isDownloadFileIntegral(const QString &path)
{
    m_downloadedFile = std::make_unique<QFile>();
    if (!mrvOpenPlain(m_downloadedFile.get(), path, QIODevice::Text)) {
        tell({kindOfUnopened(path),
              tr("Could not open the downloaded file to validate it: ") + path});
        return false;
    }
    const bool isFeed = path.contains(m_xmlFileName);
    const QByteArray bytes = m_downloadedFile->read(isFeed ? MaxFeedSize : InstallerSample);
    m_downloadedFile->close();
    if (bytes.contains("404 Not Found")) {
        fail(MRVErrorKind::NotFound,
             tr("The download file could not be found on our server. Please contact %1 so we can "
                "help resolve "
                "this issue quickly.")
                 .arg(MrvCore::supportEmail()));
        return false;
    }
    return true;
}

void MRVUpdateModel::failFeed(const QString &reason)
{
    fail(MRVErrorKind::Damaged,
         tr("The update feed is not accepted: %1. Please report this to %2.")
             .arg(reason, MrvCore::supportEmail()));
}

QString MRVUpdateModel::xmlSignatureUrl() const
{
    QUrl url(xmlUrl());
    url.setPath(url.path(QUrl::FullyEncoded) + signatureSuffix());
    return url.toString(QUrl::FullyEncoded);
}

bool MRVUpdateModel::readXMLSignature()
{
    if (m_failed || !m_needsSignature) {
        return !m_failed;
    }
    QString reason;
    m_feedSignature = MRVSignature::read(xmlSignatureFilePath(), m_publicKey, &reason);
    if (!m_feedSignature.isNull()) {
        // A comment without a file must not be that of an address without one.
        const QString name = QUrl(m_xmlUrl).fileName();
        if (m_feedSignature.field(QStringLiteral("file"))
            != (name.isEmpty() ? m_xmlFileName : name)) {
            reason = tr("it was made for another file");
        } else if (m_feedSignature.timestamp() == 0) {
            reason = tr("it does not say when it was made");
        } else if (m_feedSignature.timestamp() < m_state.feedTime) {
            reason = tr("it is older than one that was seen before");
        } else if (m_feedSignature.timestamp() > latestTime()) {
            // Once seen, it would make all others old.
            reason = tr("it was made in the future");
        }
    }
    if (!reason.isEmpty()) {
        failFeed(reason);
    }
    return reason.isEmpty();
}

QString MRVUpdateModel::feedPath() const
{
    // Deliberate: a name with a backslash in it is tried first. The downloader writes the other
    // one, and what is not ours under the first name must not stand in its way.
    const QString path = QDir::toNativeSeparators(QDir::tempPath() + u'\\' + m_xmlFileName);
    QFile file;
    return mrvOpenPlain(&file, path) || !QFileInfo::exists(xmlFilePath()) ? path : xmlFilePath();
}

void MRVUpdateModel::readXML()
{
    // A receiver that shows an error runs an event loop, in which the check may be deleted.
    const QPointer<MRVUpdateModel> self(this);
    if (m_failed || (m_feedSignature.isNull() && !readXMLSignature())) {
        return;
    }
    const QString path = feedPath();
    if (!isDownloadFileIntegral(path)) {
        if (!self) {
            return;
        }
        fail(m_error.kind,
             tr("The downloaded xml update file is not integral. Please contact %1 for additional "
                "support if this "
                "does not work.")
                 .arg(MrvCore::supportEmail()));
        return;
    }
    QByteArray feed;
    if (mrvOpenPlain(m_downloadedFile.get(), path)) {
        feed = m_downloadedFile->read(MaxFeedSize + 1);
        m_downloadedFile->close();
    }
    readFeed(feed);
    if (!self || m_failed) {
        return;
    }
    if (m_policy.features) {
        m_decision = m_policy.decide(m_feed, m_state, QCoreApplication::applicationVersion(),
                                     m_isAsked, QDateTime::currentDateTimeUtc());
        m_offer = m_feed.offers.at(m_decision.offer);
    }
    compareVersions();
    if (self) {
        Q_EMIT updateAvailable(m_newerAvailable);
    }
}

// The bytes are those that are checked, whatever happens to the file meanwhile.
void MRVUpdateModel::readFeed(const QByteArray &feed)
{
    if (m_needsSignature && feed.size() <= MaxFeedSize && !m_feedSignature.isOfBytes(feed)) {
        failFeed(tr("it is not what was signed"));
        return;
    }
    QBuffer buffer;
    buffer.setData(feed);
    MRVDomDoc document;
    if (feed.size() > MaxFeedSize || !document.setContent(&buffer)) {
        fail(feed.size() > MaxFeedSize ? MRVErrorKind::TooLarge : MRVErrorKind::Damaged,
             tr("Failed to read the downloaded update.xml file. Please try running 'Check for "
                "Update...' again. "
                "Please contact %1 for additional support if this does not work.")
                 .arg(MrvCore::supportEmail()));
        return;
    }
    const QPointer<MRVUpdateModel> self(this);
    parseXML(document.document());
    if (self && !m_failed && m_needsSignature) {
        acceptFeed();
    }
}

void MRVUpdateModel::acceptFeed()
{
    // The maker's other application may have the same key.
    if (m_feed.application.isEmpty()) {
        failFeed(tr("it does not say which application it is for"));
    } else if (m_feed.application != QCoreApplication::applicationName()) {
        failFeed(tr("it is another application's"));
    } else if (m_feed.expires.isValid() && m_feed.expires <= QDateTime::currentDateTimeUtc()) {
        failFeed(tr("it has expired"));
    } else {
        m_state.feedTime = m_feedSignature.timestamp();
    }
}

bool MRVUpdateModel::readEXESignature()
{
    if (m_failed || !m_needsSignature) {
        return !m_failed;
    }
    QString reason;
    m_installerSignature = MRVSignature::read(signatureFilePath(), m_publicKey, &reason);
    if (!m_installerSignature.isNull()) {
        if (m_installerSignature.field(QStringLiteral("file")) != m_offer.fileName) {
            reason = tr("it was made for another file");
        } else if (m_installerSignature.field(QStringLiteral("version")) != m_offer.version) {
            reason = tr("it was made for another version");
        }
    }
    if (!reason.isEmpty()) {
        failInstaller(reason);
    }
    return reason.isEmpty();
}

void MRVUpdateModel::failInstaller(const QString &reason)
{
    fail(MRVErrorKind::Damaged,
         tr("The installer does not carry a valid signature (%1) and will not be opened. "
            "Please report this to %2.")
             .arg(reason, MrvCore::supportEmail()));
}

void MRVUpdateModel::readEXE()
{
    const QPointer<MRVUpdateModel> self(this);
    m_installerDigest.clear();
    if (m_failed || (m_installerSignature.isNull() && !readEXESignature())) {
        return;
    }
    if (!isDownloadFileIntegral(downloadFilePath())) {
        if (!self) {
            return;
        }
        fail(m_error.kind,
             tr("Morvane couldn't find the update on our server.\nThis is probably an error on our "
                "part.\nPlease report this to %1.")
                 .arg(MrvCore::supportEmail()));
        return;
    }
    const bool needsBytes = m_needsSignature && !m_installerSignature.isHashed();
    m_digest = std::make_unique<MRVFileDigest>(
        downloadFilePath(),
        m_offer.sha256.isEmpty() ? MRVFileDigest::Hash : MRVFileDigest::HashAndSha256,
        needsBytes ? MRVSignature::LargestUnhashed : 0);
    readSlice();
}

void MRVUpdateModel::readSlice()
{
    const MRVFileDigest::State state = m_digest->addSlice();
    if (state == MRVFileDigest::Reading) {
        m_slices.start(0);
        return;
    }
    const std::unique_ptr<MRVFileDigest> digest = std::move(m_digest);
    if (state == MRVFileDigest::Failed) {
        fail(kindOfUnopened(downloadFilePath()),
             tr("Could not open the downloaded file to validate it: ") + downloadFilePath());
    } else if (isOffered(*digest)) {
        m_installerDigest = digest->blake2b();
        // Where a file system has no such permission, the desktop says so when it is opened.
        if (m_needsSignature) {
            mrvMakeExecutable(downloadFilePath());
        }
        m_failed = false;
        Q_EMIT readyToInstall();
    }
}

// Fails unless it is the installer of the feed, and of the signature.
bool MRVUpdateModel::isOffered(const MRVFileDigest &installer)
{
    if ((m_offer.size >= 0 && installer.size() != m_offer.size)
        || installer.sha256() != m_offer.sha256) {
        fail(MRVErrorKind::Damaged,
             tr("The installer is not the one that the update feed describes, and will not be "
                "opened. Please report this to %1.")
                 .arg(MrvCore::supportEmail()));
        return false;
    }
    if (!m_needsSignature) {
        return true;
    }
    const bool isHashed = m_installerSignature.isHashed();
    if (!isHashed && installer.size() > MRVSignature::LargestUnhashed) {
        failInstaller(tr("it is not over a hash, as that of a large file has to be"));
    } else if (isHashed ? !m_installerSignature.isOfHash(installer.blake2b())
                        : !m_installerSignature.isOfBytes(installer.bytes())) {
        failInstaller(tr("it is not this installer's"));
    }
    return !m_failed;
}

bool MRVUpdateModel::isInstallerUnchanged() const
{
    const QByteArray expected = m_installerDigest;
    if (expected.isEmpty()) {
        return false;
    }
    MRVFileDigest digest(downloadFilePath());
    MRVFileDigest::State state = MRVFileDigest::Reading;
    while ((state = digest.addSlice()) == MRVFileDigest::Reading) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    return state == MRVFileDigest::Finished && digest.blake2b() == expected;
}
