#include "http/mrvhttpreply_p.h"

#include "http/mrvhttplimits.h"

#include <QAuthenticator>
#include <QNetworkCookie>
#include <QNetworkCookieJar>
#include <QRegularExpression>
#include <QTimer>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace {

// What is unpacked in one turn of the event loop: a millisecond or two.
constexpr int UnpackedAtOnce = 1 << 20;
constexpr int ProgressInterval = 100; // milliseconds
constexpr int MaxReason = 200; // characters that a server may say in an error text

// Those that libcurl has.
bool isKnownScheme(const QByteArray &challenge)
{
    const QByteArray name = challenge.left(challenge.indexOf(' ')).toLower();
    return name == "basic" || name == "digest" || name == "ntlm" || name == "negotiate";
}

bool isRedirect(int status)
{
    return status == 301 || status == 302 || status == 303 || status == 305 || status == 307
        || status == 308;
}

// RFC 7235, 4.1: realm="text", perhaps with backslashes, or a word.
QString realmOf(const QByteArray &challenge)
{
    static const QRegularExpression realm(
        QStringLiteral("\\brealm\\s*=\\s*(?:\"((?:[^\"\\\\]|\\\\.)*)\"|([^\\s,]+))"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = realm.match(QString::fromUtf8(challenge));
    QString text = match.captured(1) + match.captured(2);
    static const QRegularExpression escape(QStringLiteral("\\\\(.)"));
    return text.replace(escape, QStringLiteral("\\1"));
}

// What a server says is not trusted to be short, or to be text.
QString spoken(const QByteArray &reason)
{
    QString text = QString::fromUtf8(reason.left(4 * MaxReason));
    for (QChar &c : text) {
        if (!c.isPrint()) {
            c = u' ';
        }
    }
    return text.simplified().left(MaxReason);
}

QNetworkReply::NetworkError errorOfStatus(int status)
{
    switch (status) {
    case 400:
        return QNetworkReply::ProtocolInvalidOperationError;
    case 401:
        return QNetworkReply::AuthenticationRequiredError;
    case 403:
        return QNetworkReply::ContentAccessDenied;
    case 404:
        return QNetworkReply::ContentNotFoundError;
    case 405:
        return QNetworkReply::ContentOperationNotPermittedError;
    case 407:
        return QNetworkReply::ProxyAuthenticationRequiredError;
    case 409:
        return QNetworkReply::ContentConflictError;
    case 410:
        return QNetworkReply::ContentGoneError;
    case 500:
        return QNetworkReply::InternalServerError;
    case 501:
        return QNetworkReply::OperationNotImplementedError;
    case 503:
        return QNetworkReply::ServiceUnavailableError;
    default:
        return status >= 500 ? QNetworkReply::UnknownServerError
                             : QNetworkReply::UnknownContentError;
    }
}

struct Failure
{
    CURLcode code;
    QNetworkReply::NetworkError error;
    const char *text; // of which %1 is the host and %2 the reason
};

constexpr Failure failures[] = {
    {CURLE_COULDNT_RESOLVE_PROXY, QNetworkReply::ProxyNotFoundError,
     QT_TRANSLATE_NOOP("MrvHttpReply", "The proxy was not found")},
    {CURLE_COULDNT_RESOLVE_HOST, QNetworkReply::HostNotFoundError,
     QT_TRANSLATE_NOOP("MrvHttpReply", "Host %1 not found")},
    {CURLE_COULDNT_CONNECT, QNetworkReply::ConnectionRefusedError,
     QT_TRANSLATE_NOOP("MrvHttpReply", "No connection to %1: %2")},
    {CURLE_OPERATION_TIMEDOUT, QNetworkReply::TimeoutError,
     QT_TRANSLATE_NOOP("MrvHttpReply", "%1 does not answer")},
    {CURLE_GOT_NOTHING, QNetworkReply::RemoteHostClosedError,
     QT_TRANSLATE_NOOP("MrvHttpReply", "Connection closed without an answer")},
    {CURLE_PARTIAL_FILE, QNetworkReply::RemoteHostClosedError,
     QT_TRANSLATE_NOOP("MrvHttpReply", "Connection closed before the end")},
    {CURLE_RECV_ERROR, QNetworkReply::RemoteHostClosedError,
     QT_TRANSLATE_NOOP("MrvHttpReply", "Connection closed before the end: %2")},
    {CURLE_SEND_ERROR, QNetworkReply::RemoteHostClosedError,
     QT_TRANSLATE_NOOP("MrvHttpReply", "Connection closed before the end: %2")},
    {CURLE_SSL_CONNECT_ERROR, QNetworkReply::SslHandshakeFailedError,
     QT_TRANSLATE_NOOP("MrvHttpReply", "SSL handshake failed: %2")},
    {CURLE_PEER_FAILED_VERIFICATION, QNetworkReply::SslHandshakeFailedError,
     QT_TRANSLATE_NOOP("MrvHttpReply", "SSL handshake failed: %2")},
    {CURLE_SSL_CACERT_BADFILE, QNetworkReply::SslHandshakeFailedError,
     QT_TRANSLATE_NOOP("MrvHttpReply", "SSL handshake failed: %2")},
    {CURLE_UNSUPPORTED_PROTOCOL, QNetworkReply::ProtocolFailure,
     QT_TRANSLATE_NOOP("MrvHttpReply", "%1 does not answer in HTTP: %2")},
    {CURLE_WEIRD_SERVER_REPLY, QNetworkReply::ProtocolFailure,
     QT_TRANSLATE_NOOP("MrvHttpReply", "%1 does not answer in HTTP: %2")},
    {CURLE_URL_MALFORMAT, QNetworkReply::ProtocolUnknownError,
     QT_TRANSLATE_NOOP("MrvHttpReply", "The address is not valid: %2")},
};

} // namespace

MrvHttpReply::MrvHttpReply(QNetworkAccessManager *manager, std::shared_ptr<MrvHttpContext> context,
                           QNetworkAccessManager::Operation operation,
                           const QNetworkRequest &request)
    : QNetworkReply(manager)
    , m_manager(manager)
    , m_context(std::move(context))
    , m_proxy(QNetworkProxy::NoProxy)
{
    setOperation(operation);
    setRequest(request);
    setUrl(request.url());
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    QTimer::singleShot(0, this, &MrvHttpReply::start);
}

MrvHttpReply::~MrvHttpReply() = default;

void MrvHttpReply::start()
{
    if (isFinished()) {
        return;
    }
    const QString refused = m_manager ? refusal() : tr("Operation canceled");
    if (!refused.isEmpty()) {
        finish(ProtocolUnknownError, refused);
        return;
    }
    m_proxy = proxyFor(url());
    m_user = url().userName(QUrl::FullyDecoded);
    m_password = url().password(QUrl::FullyDecoded);
    transfer();
}

// Empty where the request can be sent.
QString MrvHttpReply::refusal()
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    if (m_manager->networkAccessible() == QNetworkAccessManager::NotAccessible) {
        return tr("Network access is disabled.");
    }
    QT_WARNING_POP
    const QString scheme = url().scheme();
    if (scheme != QLatin1String("http") && scheme != QLatin1String("https")) {
        return tr("Protocol \"%1\" is not supported").arg(scheme);
    }
    if (url().host().isEmpty()) {
        return tr("The address names no host");
    }
    if (operation() != QNetworkAccessManager::GetOperation
        && operation() != QNetworkAccessManager::HeadOperation) {
        return tr("Only requests that fetch something are supported");
    }
    return QString();
}

// Another try, of which nothing is known yet.
void MrvHttpReply::transfer()
{
    m_unread = 0;
    m_transfer.reset();
    m_transfer =
        std::make_unique<MrvHttpTransfer>(plan(), m_context->transfers, [this] { advance(); });
}

MrvHttpPlan MrvHttpReply::plan() const
{
    MrvHttpPlan plan;
    plan.url = url();
    plan.isHead = operation() == QNetworkAccessManager::HeadOperation;
    plan.user = m_user.isEmpty() ? QString() : m_user;
    plan.password = m_password;
    plan.proxy = m_proxy;
    plan.acceptedCertificate = m_acceptedCertificate;
    plan.caCertificates = m_context->caCertificates;
    plan.headers = mrvHttpHeaders(request(), m_manager ? m_manager->cookieJar() : nullptr);
    return plan;
}

// As Qt finds one: the manager's own, else the application's, else the environment's.
QNetworkProxy MrvHttpReply::proxyFor(const QUrl &url) const
{
    const QNetworkProxyQuery query(url);
    if (m_manager->proxyFactory()) {
        return m_manager->proxyFactory()->queryProxy(query).value(0, QNetworkProxy::NoProxy);
    }
    if (m_manager->proxy().type() != QNetworkProxy::DefaultProxy) {
        return m_manager->proxy();
    }
    return QNetworkProxyFactory::proxyForQuery(query).value(0, QNetworkProxy::NoProxy);
}

void MrvHttpReply::abort()
{
    if (!isFinished()) {
        finish(OperationCanceledError, tr("Operation canceled"));
    }
}

void MrvHttpReply::close()
{
    abort();
    QNetworkReply::close();
}

qint64 MrvHttpReply::bytesAvailable() const
{
    return QNetworkReply::bytesAvailable() + m_buffer.size() - m_read;
}

void MrvHttpReply::setReadBufferSize(qint64 size)
{
    QNetworkReply::setReadBufferSize(size);
    holdBack();
}

qint64 MrvHttpReply::readData(char *data, qint64 maxSize)
{
    const int available = m_buffer.size() - m_read;
    if (available == 0) {
        return isFinished() ? -1 : 0;
    }
    const int count = int(qMin(qint64(available), maxSize));
    std::memcpy(data, m_buffer.constData() + m_read, size_t(count));
    m_read += count;
    if (m_read == m_buffer.size()) {
        m_buffer.clear();
        m_read = 0;
    }
    holdBack();
    return count;
}

void MrvHttpReply::advanceLater()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_transfer) {
                advance();
            }
        },
        Qt::QueuedConnection);
}

void MrvHttpReply::advance()
{
    const QPointer<MrvHttpReply> self(this);
    const MrvHttpTransfer *const transfer = m_transfer.get();
    const auto isGone = [&] { return !self || m_transfer.get() != transfer; };
    if (!m_hasHead && transfer->hasHead() && !asksForLogin()) {
        m_hasHead = true;
        takeHeaders();
        if (url().scheme() == QLatin1String("https")) {
            Q_EMIT encrypted();
        }
        if (isGone()) {
            return;
        }
        Q_EMIT metaDataChanged();
        if (isGone()) {
            return;
        }
    }
    takeBody();
    if (isGone()) {
        return;
    }
    const bool hasMore = m_unpacker && m_unpacker->hasMore();
    if (m_unpacker && m_unpacker->isDamaged()) {
        finish(ProtocolFailure, tr("The compressed data is damaged"));
    } else if (hasMore) {
        advanceLater();
    } else if (m_transfer->isDone()) {
        conclude();
    }
}

// A proxy's question means nothing where there is no proxy.
bool MrvHttpReply::asksForLogin() const
{
    const int status = m_transfer->status();
    return status == 401 || (status == 407 && m_proxy.type() != QNetworkProxy::NoProxy);
}

void MrvHttpReply::takeHeaders()
{
    const int status = m_transfer->status();
    setAttribute(QNetworkRequest::HttpStatusCodeAttribute, status);
    setAttribute(QNetworkRequest::HttpReasonPhraseAttribute,
                 QString::fromUtf8(m_transfer->reason()));
    setAttribute(QNetworkRequest::ConnectionEncryptedAttribute,
                 url().scheme() == QLatin1String("https"));
    const QByteArray coding = m_transfer->header("Content-Encoding");
    if (MrvUnpacker::isKnown(coding) && !request().hasRawHeader("Accept-Encoding")) {
        m_unpacker = std::make_unique<MrvUnpacker>(coding);
        setAttribute(QNetworkRequest::OriginalContentLengthAttribute,
                     m_transfer->header("Content-Length").toLongLong());
    }
    int cookieCount = 0;
    QByteArray cookies;
    for (const MrvHttpTransfer::Header &each : m_transfer->headers()) {
        const QByteArray name = each.first.toLower();
        // They are those of the packed body.
        if (m_unpacker && (name == "content-encoding" || name == "content-length")) {
            continue;
        }
        // Qt joins headers of one name, cookies by lines.
        const QByteArray before = rawHeader(each.first);
        const QByteArray separator = name == "set-cookie" ? "\n" : ", ";
        const bool isJoined = !before.isEmpty() && name != "content-length";
        setRawHeader(each.first, isJoined ? before + separator + each.second : each.second);
        if (name == "set-cookie" && ++cookieCount <= MRVHttpLimits::Cookies) {
            cookies += each.second + '\n';
        }
    }
    if (!cookies.isEmpty() && m_manager && m_manager->cookieJar()) {
        m_manager->cookieJar()->setCookiesFromUrl(QNetworkCookie::parseCookies(cookies), url());
    }
    if (isRedirect(status) && !m_transfer->header("Location").isNull()) {
        setAttribute(QNetworkRequest::RedirectionTargetAttribute,
                     QUrl::fromEncoded(m_transfer->header("Location")));
    }
    bool isNumber = false;
    const qint64 length = rawHeader("Content-Length").toLongLong(&isNumber);
    m_total = isNumber ? length : -1;
}

void MrvHttpReply::takeBody()
{
    QByteArray piece = m_transfer->takeBody();
    if (!m_hasHead) {
        // The page that comes with a question.
        m_unread += piece.size();
        if (m_unread > MRVHttpLimits::UnreadBytes) {
            finish(ProtocolFailure, tr("The server sends too much before it lets one in"));
        }
        return;
    }
    if (m_unpacker) {
        if (!piece.isEmpty()) {
            m_unpacker->add(piece);
        }
        piece = m_unpacker->take(UnpackedAtOnce);
    }
    if (!piece.isEmpty()) {
        m_received += piece.size();
        if (m_buffer.isEmpty()) {
            m_buffer = piece;
        } else {
            m_buffer += piece;
        }
    }
    holdBack();
    if (!piece.isEmpty()) {
        const QPointer<MrvHttpReply> self(this);
        Q_EMIT readyRead();
        if (self && !isFinished()) {
            tellProgress();
        }
    }
}

// Lets no more come while there is enough to unpack, or to read.
void MrvHttpReply::holdBack()
{
    if (!m_transfer || m_transfer->isDone()) {
        return;
    }
    const qint64 limit = readBufferSize();
    const bool isFull =
        (m_unpacker && m_unpacker->hasMore()) || (limit > 0 && m_buffer.size() - m_read >= limit);
    if (isFull != m_isPaused) {
        m_isPaused = isFull;
        m_transfer->setPaused(isFull);
        if (!isFull) {
            advanceLater(); // what libcurl has kept comes at once
        }
    }
}

void MrvHttpReply::tellProgress()
{
    if (!m_sinceProgress.isValid() || m_sinceProgress.hasExpired(ProgressInterval)) {
        m_sinceProgress.start();
        Q_EMIT downloadProgress(m_received, m_total);
    }
}

void MrvHttpReply::conclude()
{
    const bool isTunnel = m_transfer->tunnelStatus() == 407;
    if (m_transfer->result() == CURLE_PEER_FAILED_VERIFICATION
        && !m_transfer->certificateCheck().errors().isEmpty()) {
        askAboutCertificate();
    } else if (isTunnel) {
        askForProxyLogin();
    } else if (m_transfer->result() == CURLE_OK && asksForLogin()) {
        if (m_transfer->status() == 401) {
            askForLogin();
        } else {
            askForProxyLogin();
        }
    } else if (m_transfer->result() == CURLE_OK) {
        finishTransfer();
    } else {
        finishFailed();
    }
}

void MrvHttpReply::askAboutCertificate()
{
    const QPointer<MrvHttpReply> self(this);
    const QList<QSslError> errors = m_transfer->certificateCheck().errors();
    const QStringList texts = m_transfer->certificateCheck().texts();
    const QByteArray digest = m_transfer->certificateCheck().digest();
    Q_EMIT sslErrors(errors);
    if (!self || isFinished()) {
        return;
    }
    // An answer is for this certificate: a server that then has another one is asked about again.
    const QList<QSslError> ignored = std::exchange(m_ignored, {});
    const bool isIgnored = std::exchange(m_ignoresAll, false)
        || std::all_of(errors.cbegin(), errors.cend(),
                       [&](const QSslError &error) { return ignored.contains(error); });
    if (isIgnored && ++m_certificates <= MRVHttpLimits::Certificates) {
        m_acceptedCertificate = digest;
        transfer();
        return;
    }
    finish(SslHandshakeFailedError,
           tr("SSL handshake failed: %1").arg(texts.join(QLatin1String(", "))));
}

// Whether there is something to try that was not tried just now, and not too often.
bool MrvHttpReply::isAnotherLogin(const QString &user, const QString &password, QString *lastUser,
                                  QString *lastPassword)
{
    if ((user == *lastUser && password == *lastPassword) || user.isEmpty()
        || ++m_logins > MRVHttpLimits::Logins) {
        return false;
    }
    *lastUser = user;
    *lastPassword = password;
    return true;
}

void MrvHttpReply::askForLogin()
{
    const QPointer<MrvHttpReply> self(this);
    const QList<MrvHttpTransfer::Header> headers = m_transfer->headers();
    const bool isKnown = std::any_of(headers.cbegin(), headers.cend(), [](const auto &header) {
        return header.first.toLower() == "www-authenticate" && isKnownScheme(header.second);
    });
    if (!isKnown) {
        finish(AuthenticationRequiredError,
               tr("The server asks for a login of a kind that is not supported"));
        return;
    }
    const QString realm = realmOf(m_transfer->header("WWW-Authenticate"));
    const QUrl server = url().adjusted(QUrl::RemoveUserInfo | QUrl::RemovePath | QUrl::RemoveQuery
                                       | QUrl::RemoveFragment);
    m_place = server.toString() + u'\n' + realm;
    const MrvHttpContext::Login known = m_context->logins.value(m_place);
    if (m_user.isEmpty() && isAnotherLogin(known.first, known.second, &m_user, &m_password)) {
        transfer();
        return;
    }
    m_context->logins.remove(m_place);
    QAuthenticator login;
    login.setRealm(realm);
    if (m_manager) {
        Q_EMIT m_manager->authenticationRequired(this, &login);
    }
    if (!self || isFinished()) {
        return;
    }
    if (isAnotherLogin(login.user(), login.password(), &m_user, &m_password)) {
        transfer();
    } else {
        finish(AuthenticationRequiredError, tr("Host requires authentication"));
    }
}

void MrvHttpReply::askForProxyLogin()
{
    const QPointer<MrvHttpReply> self(this);
    QAuthenticator login;
    login.setRealm(realmOf(m_transfer->header("Proxy-Authenticate")));
    if (m_manager) {
        Q_EMIT m_manager->proxyAuthenticationRequired(m_proxy, &login);
    }
    if (!self || isFinished()) {
        return;
    }
    QString user = m_proxy.user();
    QString password = m_proxy.password();
    if (isAnotherLogin(login.user(), login.password(), &user, &password)) {
        m_proxy.setUser(user);
        m_proxy.setPassword(password);
        transfer();
    } else {
        finish(ProxyAuthenticationRequiredError, tr("Proxy requires authentication"));
    }
}

void MrvHttpReply::finishTransfer()
{
    const bool isUnpacked = !m_unpacker || m_unpacker->isWhole();
    if (!m_hasHead || !isUnpacked) {
        finish(RemoteHostClosedError, tr("Connection closed before the end"));
        return;
    }
    const QPointer<MrvHttpReply> self(this);
    Q_EMIT downloadProgress(m_received, m_received);
    if (!self || isFinished()) {
        return;
    }
    if (!m_place.isEmpty()) {
        m_context->logins.insert(m_place, {m_user, m_password}); // which has been accepted
    }
    const int status = m_transfer->status();
    if (status < 400) {
        finish();
    } else {
        finish(errorOfStatus(status),
               tr("Error transferring %1 - server replied: %2")
                   .arg(url().toDisplayString(), spoken(m_transfer->reason())));
    }
}

void MrvHttpReply::finishFailed()
{
    using Fault = MrvHttpTransfer::Fault;
    // What libcurl calls out of memory is a line that is longer than it takes.
    const bool isLongLine = m_transfer->result() == CURLE_OUT_OF_MEMORY && !m_hasHead;
    switch (isLongLine ? Fault::HeaderBytes : m_transfer->fault()) {
    case Fault::HeaderBytes:
        return finish(
            ProtocolFailure,
            tr("The server sends more than %1 bytes of headers").arg(MRVHttpLimits::HeaderBytes));
    case Fault::HeaderLines:
        return finish(ProtocolFailure,
                      tr("The server sends more than %1 headers").arg(MRVHttpLimits::HeaderLines));
    case Fault::TwoLengths:
        return finish(ProtocolFailure, tr("The server states two different lengths"));
    case Fault::NoLength:
        return finish(ProtocolFailure, tr("The server states a length that is not a number"));
    case Fault::Logins:
        return finish(AuthenticationRequiredError, tr("Host requires authentication"));
    case Fault::TlsEnd:
        return finish(RemoteHostClosedError, tr("The encrypted connection was cut off"));
    case Fault::None:
        break;
    }
    const int system = m_transfer->systemError();
    const bool hasConnected = m_transfer->result() != CURLE_COULDNT_CONNECT;
    const QString reason = hasConnected || system == 0 || system == EINPROGRESS
        ? m_transfer->resultText()
        : qt_error_string(system);
    if (!hasConnected && m_proxy.type() != QNetworkProxy::NoProxy) {
        return finish(ProxyConnectionRefusedError,
                      tr("No connection to the proxy %1: %2").arg(m_proxy.hostName(), reason));
    }
    for (const Failure &failure : failures) {
        if (failure.code == m_transfer->result()) {
            QString text = tr(failure.text);
            text.replace(QLatin1String("%1"), url().host());
            finish(failure.error, text.replace(QLatin1String("%2"), reason));
            return;
        }
    }
    finish(UnknownNetworkError, reason);
}

void MrvHttpReply::finish(NetworkError error, const QString &text)
{
    m_transfer.reset();
    setFinished(true);
    const QPointer<MrvHttpReply> self(this);
    if (error != NoError) {
        setError(error, text);
        Q_EMIT errorOccurred(error);
    }
    if (self) {
        Q_EMIT finished();
    }
}
