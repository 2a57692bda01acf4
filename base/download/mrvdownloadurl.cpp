#include "download/mrvdownloadurl.h"

#include "core/mrvcoreutil.h"
#include "core/mrvpartialfile.h"
#include "download/mrvdownloaduserinputabstract.h"
#include "http/mrvhttpaccess.h"

#include <QAuthenticator>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QNetworkProxy>
#include <QNetworkRequest>
#include <QPointer>
#include <QRegularExpression>
#include <QTextCodec>

#include <utility>

namespace {

// Text is converted in pieces, so that memory never holds a third copy of the whole.
constexpr int ConvertedAtOnce = 1 << 20;

constexpr int MaxShown = 200; // of what a server says

bool isFetched(const QUrl &url)
{
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

// Servers write charset="utf-8", too.
QTextCodec *codecOf(const QString &charset)
{
    QString name = charset.trimmed();
    name.remove(u'"').remove(u'\'');
    name = name.trimmed();
    return name.isEmpty() ? nullptr : QTextCodec::codecForName(name.toLatin1());
}

int statusOf(const QNetworkReply *reply)
{
    return reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

bool isConverted(const QString &contentType)
{
    const QTextCodec *codec = codecOf(MRVDownloadUrl::charset(contentType));
    return codec && codec != codecOf(QStringLiteral("UTF-8"));
}

// RFC 9110, 8.8.2.2: a date of change is worth something once it cannot be that of two versions.
bool isOld(const QByteArray &changed, const QByteArray &now)
{
    const auto time = [](const QByteArray &date) {
        return QLocale::c().toDateTime(QString::fromLatin1(date),
                                       QStringLiteral("ddd, dd MMM yyyy hh:mm:ss 'GMT'"));
    };
    return time(changed).isValid() && time(now).isValid() && time(changed).secsTo(time(now)) >= 1;
}

// What a Range request is made under the condition of, RFC 9110, 13.1.5; empty where the server
// does not say which version it sends.
QByteArray validatorOf(const QNetworkReply *reply)
{
    const QByteArray tag = reply->rawHeader("ETag");
    const QByteArray changed = reply->rawHeader("Last-Modified");
    const bool isSure = isOld(changed, reply->rawHeader("Date"));
    const bool isPacked = reply->hasRawHeader("Content-Encoding")
        || reply->attribute(QNetworkRequest::OriginalContentLengthAttribute).isValid();
    return isPacked ? QByteArray() : tag.startsWith('"') ? tag : isSure ? changed : QByteArray();
}

// The first line of an origin. A password does not belong on the disk.
QByteArray placeOf(const QUrl &url)
{
    return url.toEncoded(QUrl::RemoveUserInfo) + '\n';
}

} // namespace

MRVDownloadUrl::MRVDownloadUrl(QObject *parent)
    : QObject(parent)
    , m_manager(new MRVHttpAccess(this))
    , m_asking(std::make_shared<QVector<QNetworkReply *>>())
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &MRVDownloadUrl::onTimeout);
    connect(m_manager, &QNetworkAccessManager::authenticationRequired, this,
            &MRVDownloadUrl::onAuthenticationRequired);
    connect(m_manager, &QNetworkAccessManager::proxyAuthenticationRequired, this,
            &MRVDownloadUrl::onProxyAuthenticationRequired);
    // Connected before anything that the host connects, to answer the questions first.
    connect(m_manager, &QNetworkAccessManager::sslErrors, this, [this](QNetworkReply *reply) {
        if (reply == m_reply) {
            beginQuestion();
        }
    });
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    // Qt reports this only where the application itself has switched the network off.
    connect(m_manager, &QNetworkAccessManager::networkAccessibleChanged, this,
            &MRVDownloadUrl::onNetworkAccessibleChanged);
    QT_WARNING_POP
}

MRVDownloadUrl::~MRVDownloadUrl()
{
    dropReply();
    m_manager->disconnect(this);
    m_manager->setParent(nullptr);
    if (!m_asking->isEmpty()) {
        return; // the end of the last question deletes it
    }
    if (QCoreApplication::instance()) {
        m_manager->deleteLater();
    } else {
        delete m_manager;
    }
}

QString MRVDownloadUrl::fileForUrl(const QString &folder, const QUrl &url)
{
    const QString path = url.path(QUrl::FullyDecoded);
    QString name = path.mid(path.lastIndexOf(u'/') + 1);
    if (name.isEmpty()) {
        name = QStringLiteral("index.html");
    }
    if (QFileInfo(name).suffix().isEmpty()) {
        name += QLatin1String(".html");
    }
    if (folder.isEmpty()) {
        return name;
    }
    QDir().mkpath(folder);
    return QDir(folder).absoluteFilePath(name);
}

QString MRVDownloadUrl::newFileForUrl(const QString &folder, const QUrl &url)
{
    QString name = fileForUrl(QString(), url);
    // A server must not give a file a name that steers the terminal of whoever lists it.
    for (QChar &c : name) {
        if (c.category() == QChar::Other_Control || c.category() == QChar::Other_Format) {
            c = u' ';
        }
    }
    return MRVCoreUtil::GetUniqueFileName(folder.isEmpty() ? name
                                                           : QDir(folder).absoluteFilePath(name));
}

QString MRVDownloadUrl::fileForUrl(const QUrl &url) const
{
    return fileForUrl(m_downloadFolder, url);
}

void MRVDownloadUrl::setDownloadFolder(const QString &folder)
{
    m_downloadFolder = folder;
}

void MRVDownloadUrl::setUserInputHandler(MRVDownloadUserInputAbstract *handler)
{
    m_userInput = handler;
}

void MRVDownloadUrl::setTransferTimeout(int milliseconds)
{
    m_transferTimeout = milliseconds;
}

void MRVDownloadUrl::setMaximumSize(qint64 bytes)
{
    m_maximumSize = qBound(qint64(0), bytes, LargestSize);
}

QString MRVDownloadUrl::charset(const QString &contentType)
{
    const QLatin1String key("charset=");
    const int at = contentType.indexOf(key);
    return at < 0 ? QString() : contentType.mid(at + key.size()).section(u';', 0, 0);
}

QByteArray MRVDownloadUrl::convert(const QByteArray &data, const QString &fromCharset,
                                   const QString &toCharset)
{
    const QTextCodec *from = codecOf(fromCharset);
    const QTextCodec *to = codecOf(toCharset);
    if (!from || !to || from == to) {
        return data;
    }

    QTextCodec::ConverterState decoding;
    QTextCodec::ConverterState encoding(QTextCodec::IgnoreHeader);
    // The byte-order mark, where the codec writes one.
    QByteArray result = to->fromUnicode(QString());
    for (int at = 0; at < data.size(); at += ConvertedAtOnce) {
        const int count = qMin(ConvertedAtOnce, data.size() - at);
        const QString text = from->toUnicode(data.constData() + at, count, &decoding);
        result += to->fromUnicode(text.constData(), text.size(), &encoding);
    }
    // The last character is cut off.
    if (decoding.remainingChars > 0) {
        const QChar replacement(QChar::ReplacementCharacter);
        result += to->fromUnicode(&replacement, 1, &encoding);
    }
    return result;
}

bool MRVDownloadUrl::namesCharset(const QString &contentType)
{
    return codecOf(charset(contentType));
}

bool MRVDownloadUrl::convertLossless(QByteArray *data, const QString &fromCharset,
                                     const QString &toCharset)
{
    const QByteArray converted = convert(*data, fromCharset, toCharset);
    if (convert(converted, toCharset, fromCharset) != *data) {
        return false;
    }
    *data = converted;
    return true;
}

bool MRVDownloadUrl::download(const QUrl &url)
{
    m_requested = url;
    return begin(url);
}

bool MRVDownloadUrl::begin(const QUrl &url)
{
    dropReply();
    m_error = {};
    if (!url.isValid()) {
        return false;
    }
    m_url = url;
    m_contentType.clear();
    if (isFetched(url)) {
        start();
    } else {
        m_failure = {
            MRVErrorKind::Unsupported,
            tr("Only http and https addresses are downloaded, not %1").arg(url.toDisplayString())};
        m_timer.start(0);
    }
    return true;
}

void MRVDownloadUrl::start()
{
    QNetworkRequest request(m_url);
    if (m_body != Body::Text && !m_fileName.isEmpty() && !openFile(&request)) {
        return;
    }
    if (m_body == Body::Raw) {
        // What is packed stays so.
        request.setRawHeader("Accept-Encoding", "identity");
    }
    m_reply = m_manager->get(request);
    connect(m_reply, &QNetworkReply::finished, this, &MRVDownloadUrl::onReplyFinished);
    connect(m_reply, &QNetworkReply::downloadProgress, this, &MRVDownloadUrl::tellProgress);
    connect(m_reply, &QNetworkReply::errorOccurred, this, &MRVDownloadUrl::onReplyError);
    // Called after the manager's signal. The context lives as long as the question.
    connect(m_reply, &QNetworkReply::sslErrors, m_manager, questionEnd());
    connect(m_reply, &QNetworkReply::encrypted, this, &MRVDownloadUrl::awaitBytes);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &MRVDownloadUrl::onMetaData);
    connect(m_reply, &QNetworkReply::readyRead, this, &MRVDownloadUrl::collect);
    awaitBytes();
}

// The file of a raw body, and where the request has to go on; false where it cannot be written,
// which is reported.
bool MRVDownloadUrl::openFile(QNetworkRequest *request)
{
    MRVError error;
    m_file = std::make_unique<MRVPartialFile>(m_fileName);
    if (!m_file->open(&error)) {
        m_file.reset();
        m_failure = writeError(error);
        m_timer.start(0);
        return false;
    }
    const QByteArray place = placeOf(m_requested);
    if (m_isResumable && m_file->origin().startsWith(place)) {
        m_offset = m_file->size();
    }
    if (m_offset > 0) {
        request->setRawHeader("Range", "bytes=" + QByteArray::number(m_offset) + '-');
        request->setRawHeader("If-Range", m_file->origin().mid(place.size()));
    }
    return true;
}

MRVError MRVDownloadUrl::writeError(const MRVError &reason) const
{
    return {reason.kind, tr("Cannot write to file: '%1'\nError: %2").arg(m_fileName, reason.text)};
}

bool MRVDownloadUrl::downloadToFile(const QUrl &url)
{
    m_fileName = fileForUrl(url);
    return !m_fileName.isEmpty() && download(url);
}

bool MRVDownloadUrl::downloadToFile(const QUrl &url, const QString &fileName)
{
    if (fileName.isEmpty()) {
        return false;
    }
    m_fileName = fileName;
    return download(url);
}

void MRVDownloadUrl::cancelDownload()
{
    if (m_reply && !m_reply->isFinished()) {
        m_reply->abort(); // which calls onReplyFinished()
    } else if (m_reply || m_timer.isActive()) {
        // While the handler is asked about a redirect, or before a refusal was reported.
        endWith({MRVErrorKind::Cancelled, tr("Operation canceled")});
    }
}

// Drops the request and everything that belongs to it, without a signal.
void MRVDownloadUrl::dropReply()
{
    m_timer.stop();
    m_aborted = false;
    m_failure = {};
    m_data.clear();
    m_file.reset();
    m_isRaw = false;
    m_offset = 0;
    m_fileSize = -1;
    QNetworkReply *reply = std::exchange(m_reply, nullptr);
    if (!reply) {
        return;
    }
    reply->disconnect(this);
    reply->abort();
    if (!m_asking->contains(reply)) {
        reply->deleteLater();
    }
}

void MRVDownloadUrl::endWith(const MRVError &error)
{
    m_error = error; // dropReply() clears the member that it may be
    dropReply();
    Q_EMIT downloadError(m_error.text);
}

// Ends a running request for a reason that Qt does not know.
void MRVDownloadUrl::fail(const MRVError &error)
{
    m_failure = error;
    if (m_reply->isFinished()) {
        endWith(error);
    } else {
        m_reply->abort();
    }
}

void MRVDownloadUrl::awaitBytes()
{
    if (m_transferTimeout > 0) {
        m_timer.start(m_transferTimeout);
    }
}

void MRVDownloadUrl::onTimeout()
{
    if (m_reply) {
        const double seconds = m_timer.interval() / 1000.0;
        const QString text = statusOf(m_reply) == 0 ? tr("The server has not answered for %1 s")
                                                    : tr("The server has sent nothing for %1 s");
        fail({MRVErrorKind::Network, text.arg(seconds)});
    } else {
        endWith(m_failure);
    }
}

void MRVDownloadUrl::onMetaData()
{
    awaitBytes();
    if (m_offset > 0 && statusOf(m_reply) == 206 && !continuesFile()) {
        // What is there is of no use.
        m_file->restart(QByteArray());
        begin(m_url);
        return;
    }
    const MRVError fault = m_file ? prepareFile() : MRVError();
    if (fault) {
        fail(fault);
    } else if (m_offset + m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong()
               > m_maximumSize) {
        failTooLarge();
    }
}

// Whether a part is the rest of the very file that has been begun; RFC 9110, 14.4 and 15.3.7.
bool MRVDownloadUrl::continuesFile() const
{
    static const QRegularExpression form(
        QStringLiteral("^bytes ([0-9]{1,18})-([0-9]{1,18})/([0-9]{1,18})$"));
    const QRegularExpressionMatch range =
        form.match(QString::fromLatin1(m_reply->rawHeader("Content-Range")));
    const qint64 first = range.captured(1).toLongLong();
    const qint64 last = range.captured(2).toLongLong();
    const qint64 total = range.captured(3).toLongLong();
    const QByteArray length = m_reply->rawHeader("Content-Length");
    const bool isRest = range.hasMatch() && first == m_offset && last == total - 1
        && (length.isNull() || length.toLongLong() == total - first);
    const QByteArray tag = m_reply->rawHeader("ETag");
    const QByteArray known = m_file->origin().mid(placeOf(m_requested).size());
    const bool isSameVersion = tag.isNull() || !known.startsWith('"') || tag == known;
    const bool isPacked = m_reply->hasRawHeader("Content-Encoding")
        || m_reply->attribute(QNetworkRequest::OriginalContentLengthAttribute).isValid();
    const QString type = m_reply->header(QNetworkRequest::ContentTypeHeader).toString();
    return isRest && isSameVersion && !isPacked && (m_body == Body::Raw || !isConverted(type));
}

// No error on success: what comes is for the file, or is not.
MRVError MRVDownloadUrl::prepareFile()
{
    const int status = statusOf(m_reply);
    const QString type = m_reply->header(QNetworkRequest::ContentTypeHeader).toString();
    m_isRaw = status >= 200 && status < 300 && (m_body == Body::Raw || !isConverted(type));
    if (m_offset > 0 && status == 206) {
        m_fileSize = m_reply->rawHeader("Content-Range").split('/').last().toLongLong();
        return {};
    }
    m_offset = 0;
    if (!m_isRaw) {
        return {};
    }
    const QByteArray validator = m_isResumable ? validatorOf(m_reply) : QByteArray();
    MRVError error;
    m_fileSize = -1;
    const bool isReady =
        m_file->restart(validator.isEmpty() ? validator : placeOf(m_requested) + validator, &error);
    return isReady ? MRVError() : writeError(error);
}

void MRVDownloadUrl::tellProgress(qint64 bytesRead, qint64 totalBytes)
{
    Q_EMIT downloadProgress(bytesRead + m_offset, totalBytes < 0 ? -1 : totalBytes + m_offset);
}

// Moves what has arrived out of the reply, so that memory holds a body once, or a raw one not at
// all.
void MRVDownloadUrl::collect()
{
    awaitBytes();
    const qint64 available = m_reply->bytesAvailable();
    if (statusOf(m_reply) >= 400) {
        m_reply->skip(available); // nobody sees an error's page
        return;
    }
    const qint64 size = m_isRaw ? m_file->size() : m_data.size();
    if (size + available > m_maximumSize) {
        failTooLarge();
    } else if (m_isRaw) {
        MRVError error;
        if (!m_file->append(m_reply->read(available), &error)) {
            fail(writeError(error));
        }
    } else {
        m_data.resize(int(size + available));
        const qint64 count = m_reply->read(m_data.data() + size, available);
        m_data.resize(int(size + qMax(qint64(0), count)));
    }
}

void MRVDownloadUrl::failTooLarge()
{
    if (m_isRaw) {
        m_file->restart(QByteArray()); // to go on with it would be of no use
    }
    fail({MRVErrorKind::TooLarge, tr("It is larger than %1 bytes").arg(m_maximumSize)});
}

// A failed reply reports it when it finishes; what has arrived of the body is useless.
void MRVDownloadUrl::onReplyError()
{
    m_data.clear();
}

MRVError MRVDownloadUrl::incomplete()
{
    return {MRVErrorKind::Network, tr("The connection ended before the download was complete")};
}

void MRVDownloadUrl::onReplyFinished()
{
    m_timer.stop();
    if (m_aborted) {
        return endWith({m_userInput ? MRVErrorKind::Cancelled : MRVErrorKind::NoPermission,
                        tr("Download Aborted")});
    }
    if (m_failure) {
        return endWith(m_failure);
    }
    if (statusOf(m_reply) == 416 && m_reply->request().hasRawHeader("Range")) {
        // There is no more of it, or it has become shorter: all of it, then.
        m_file->restart(QByteArray());
        begin(m_url);
        return;
    }
    if (m_reply->error() != QNetworkReply::NoError) {
        return endWith({MRVHttpAccess::errorKind(m_reply->error()), m_reply->errorString()});
    }
    const QPointer<MRVDownloadUrl> self(this);
    const QNetworkReply *reply = m_reply;
    collect();
    if (!self || m_reply != reply) {
        return; // too large
    }
    m_timer.stop();
    // Answers to what was not requested, a range or a modification check.
    const int status = statusOf(m_reply);
    if ((status == 206 && m_offset == 0) || status == 304) {
        return endWith(incomplete());
    }

    if (m_fileSize >= 0 && m_file && m_file->size() != m_fileSize) {
        m_file->restart(QByteArray());
        return endWith(incomplete());
    }
    const QUrl location = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (m_userInput && !location.isEmpty()) {
        redirect(m_url.resolved(location));
    } else {
        deliver();
    }
}

// Somebody is asked about the reply, perhaps in an event loop, in which anything may happen.
// Whoever asks may still use the reply and the manager then, so neither may be deleted before the
// answer.
void MRVDownloadUrl::beginQuestion()
{
    m_asking->append(m_reply);
    m_timer.stop();
}

std::function<void()> MRVDownloadUrl::questionEnd()
{
    return [self = QPointer<MRVDownloadUrl>(this), asking = m_asking, reply = m_reply] {
        asking->removeOne(reply);
        if (!self) {
            if (asking->isEmpty()) {
                reply->manager()->deleteLater();
            }
        } else if (self->m_reply == reply) {
            if (!reply->isFinished()) {
                self->awaitBytes();
            }
        } else if (!asking->contains(reply)) {
            reply->deleteLater();
        }
    };
}

bool MRVDownloadUrl::ask(const std::function<bool()> &question)
{
    const QPointer<MRVDownloadUrl> self(this);
    const std::function<void()> end = questionEnd();
    beginQuestion();
    const bool yes = question();
    end();
    return self && yes;
}

void MRVDownloadUrl::redirect(const QUrl &target)
{
    const QPointer<MRVDownloadUrl> self(this);
    const QNetworkReply *reply = m_reply;
    const auto isGone = [&] { return !self || m_reply != reply; };
    if (!target.isValid() || !isFetched(target)) {
        const QString text = target.isValid()
            ? target.toDisplayString()
            : QString::fromUtf8(m_reply->rawHeader("Location").left(MaxShown)).simplified();
        return endWith({MRVErrorKind::Network,
                        tr("It redirects to %1, which is not an http or https address").arg(text)});
    }
    const bool isFollowed = ask([&] { return m_userInput->redirectTo(target); });
    if (isGone()) {
        return;
    }
    if (!isFollowed) {
        return deliver();
    }
    if (m_url.scheme() == QLatin1String("https") && target.scheme() == QLatin1String("http")) {
        const QString danger = tr("It redirects to %1, where the connection is not encrypted")
                                   .arg(target.toDisplayString());
        const bool isAccepted = ask([&] { return m_userInput->ignoreSslErrors({danger}); });
        if (isGone()) {
            return;
        }
        if (!isAccepted) {
            return endWith({MRVErrorKind::Network, danger});
        }
    }
    begin(target);
}

void MRVDownloadUrl::deliver()
{
    const QString type = m_reply->header(QNetworkRequest::ContentTypeHeader).toString();
    QByteArray data = std::exchange(m_data, QByteArray());
    const std::unique_ptr<MRVPartialFile> file = std::move(m_file);
    const bool isRaw = m_isRaw;
    dropReply();
    m_contentType = type;

    const QString fileName = m_fileName;
    MRVError error;
    bool isWritten = false;
    if (isRaw) {
        isWritten = file->putInPlace(&error);
    } else {
        if (m_body != Body::Raw && !charset(type).isEmpty()) {
            data = convert(data, charset(type), QStringLiteral("UTF-8"));
        }
        const QPointer<MRVDownloadUrl> self(this);
        Q_EMIT downloadSuccess(data);
        if (!self || fileName.isEmpty()) {
            return;
        }
        isWritten = MRVCoreUtil::WriteBinaryFile(data, fileName, &error);
    }
    if (isWritten) {
        Q_EMIT downloadSuccess(fileName);
    } else {
        m_error = writeError(error);
        Q_EMIT downloadError(m_error.text);
    }
}

void MRVDownloadUrl::onAuthenticationRequired(QNetworkReply *reply, QAuthenticator *authenticator)
{
    if (reply == m_reply) {
        answer(m_url, authenticator);
    }
}

void MRVDownloadUrl::onProxyAuthenticationRequired(const QNetworkProxy &proxy,
                                                   QAuthenticator *authenticator)
{
    if (!m_reply) {
        return; // of a request that the host made by itself
    }
    QUrl place;
    place.setScheme(QStringLiteral("http"));
    place.setHost(proxy.hostName());
    place.setPort(proxy.port());
    place.setUserName(proxy.user());
    place.setPassword(proxy.password());
    answer(place, authenticator);
}

// Asks for a login to the address, which may have one in it.
void MRVDownloadUrl::answer(const QUrl &place, QAuthenticator *authenticator)
{
    const QPointer<MRVDownloadUrl> self(this);
    const QNetworkReply *reply = m_reply;
    QString user = place.userName();
    QString password = place.password();
    const bool isGiven =
        m_userInput && ask([&] {
            return m_userInput->authenticate(authenticator->realm(), place, &user, &password);
        });
    if (!self || m_reply != reply || reply->isFinished()) {
        return;
    }
    if (isGiven) {
        authenticator->setUser(user);
        authenticator->setPassword(password);
    } else {
        // Set first, since the reply finishes before abort() returns.
        m_aborted = true;
        cancelDownload();
    }
}

// The parameter is an int, since the enumeration is deprecated.
void MRVDownloadUrl::onNetworkAccessibleChanged(int accessibility)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    if (accessibility == QNetworkAccessManager::Accessible) {
        return;
    }
    QT_WARNING_POP
    const MRVError error{MRVErrorKind::Network, tr("Network not accessible")};
    if (m_reply) {
        fail(error);
    } else {
        endWith(error);
    }
}
