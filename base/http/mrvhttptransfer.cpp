#include "http/mrvhttptransfer_p.h"

#include "http/mrvhttplimits.h"

#include <QFile>

#include <utility>

namespace {

// libcurl reads up to a hundred of them before it returns to the event loop.
constexpr long ReadBuffer = 16 * 1024;

// As certificates and connections name it. There is no other form of an address.
QString hostOf(const QUrl &url)
{
    const QByteArray ascii = QUrl::toAce(url.host());
    return ascii.isEmpty() ? url.host() : QString::fromLatin1(ascii);
}

} // namespace

MrvHttpTransfer::MrvHttpTransfer(const MrvHttpPlan &plan,
                                 std::shared_ptr<MrvHttpTransfers> transfers,
                                 std::function<void()> onChange)
    : m_transfers(std::move(transfers))
    , m_onChange(std::move(onChange))
    , m_handle(curl_easy_init())
    , m_isHead(plan.isHead)
    , m_check(hostOf(plan.url), plan.acceptedCertificate)
{
    setOptions(plan);
    setTls(plan);
    setProxy(plan.proxy);
    m_transfers->add(this);
}

MrvHttpTransfer::~MrvHttpTransfer()
{
    m_transfers->remove(this);
    curl_easy_cleanup(m_handle);
    curl_slist_free_all(m_sent);
}

void MrvHttpTransfer::tell()
{
    const std::function<void()> onChange = m_onChange; // this object may be deleted
    onChange();
}

void MrvHttpTransfer::setOptions(const MrvHttpPlan &plan)
{
    const auto set = [this](CURLoption option, auto value) {
        curl_easy_setopt(m_handle, option, value);
    };
    const QUrl url = plan.url.adjusted(QUrl::RemoveFragment | QUrl::RemoveUserInfo);
    set(CURLOPT_URL, url.toEncoded().constData());
    set(CURLOPT_PROTOCOLS_STR, "http,https");
    set(CURLOPT_HTTP_VERSION, long(CURL_HTTP_VERSION_1_1));
    set(CURLOPT_PATH_AS_IS, 1L);
    set(CURLOPT_NOBODY, long(plan.isHead));
    set(CURLOPT_NOSIGNAL, 1L);
    // To end a request while a name is looked up would wait for the answer otherwise.
    set(CURLOPT_QUICK_EXIT, 1L);
    // What a server says unasked on a connection that is kept would answer the next request, and an
    // accepted certificate or a login is for one request alone.
    set(CURLOPT_FRESH_CONNECT, 1L);
    set(CURLOPT_FORBID_REUSE, 1L);
    set(CURLOPT_BUFFERSIZE, ReadBuffer);
    set(CURLOPT_ERRORBUFFER, &m_error[0]);
    set(CURLOPT_HEADERFUNCTION, &MrvHttpTransfer::onHeader);
    set(CURLOPT_HEADERDATA, this);
    set(CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
    set(CURLOPT_WRITEFUNCTION, &MrvHttpTransfer::onBody);
    set(CURLOPT_WRITEDATA, this);
    if (!plan.user.isNull()) {
        set(CURLOPT_HTTPAUTH, long(CURLAUTH_ANY));
        set(CURLOPT_USERNAME, plan.user.toUtf8().constData());
        set(CURLOPT_PASSWORD, plan.password.toUtf8().constData());
    }
    for (const QByteArray &line : plan.headers) {
        m_sent = curl_slist_append(m_sent, line.constData());
    }
    set(CURLOPT_HTTPHEADER, m_sent);
}

void MrvHttpTransfer::setTls(const MrvHttpPlan &plan)
{
    const auto set = [this](CURLoption option, auto value) {
        curl_easy_setopt(m_handle, option, value);
    };
    set(CURLOPT_SSLVERSION, long(CURL_SSLVERSION_TLSv1_2));
    set(CURLOPT_SSL_CTX_FUNCTION, &MrvHttpTransfer::onTls);
    set(CURLOPT_SSL_CTX_DATA, this);
    // A session that is taken up again is not verified again.
    set(CURLOPT_SSL_SESSIONID_CACHE, 0L);
    const char *system = nullptr;
    curl_easy_getinfo(m_handle, CURLINFO_CAINFO, &system);
    if (system && !QFile::exists(QFile::decodeName(system))) {
        // Without it libcurl would not even connect, and nobody could be asked.
        set(CURLOPT_CAINFO, static_cast<const char *>(nullptr));
    } else {
        // With a folder, too, libcurl would read all certificates for each connection.
        set(CURLOPT_CAPATH, static_cast<const char *>(nullptr));
    }
    if (!plan.caCertificates.isEmpty()) {
        curl_blob blob{const_cast<char *>(plan.caCertificates.constData()),
                       size_t(plan.caCertificates.size()), CURL_BLOB_COPY};
        set(CURLOPT_CAINFO_BLOB, &blob);
        set(CURLOPT_CAPATH, static_cast<const char *>(nullptr));
    }
    if (!plan.acceptedCertificate.isEmpty()) {
        // The check compares the whole certificate.
        set(CURLOPT_SSL_VERIFYHOST, 0L);
    }
}

void MrvHttpTransfer::setProxy(const QNetworkProxy &proxy)
{
    const bool isSocks = proxy.type() == QNetworkProxy::Socks5Proxy;
    const bool isHttp =
        proxy.type() == QNetworkProxy::HttpProxy || proxy.type() == QNetworkProxy::HttpCachingProxy;
    if (!isSocks && !isHttp) {
        // An empty one keeps libcurl from looking into the environment, which Qt has done.
        curl_easy_setopt(m_handle, CURLOPT_PROXY, "");
        return;
    }
    curl_easy_setopt(m_handle, CURLOPT_PROXYTYPE,
                     long(isSocks ? CURLPROXY_SOCKS5_HOSTNAME : CURLPROXY_HTTP));
    const QString host = proxy.hostName();
    const QString bracketed = host.contains(u':') ? u'[' + host + u']' : host;
    curl_easy_setopt(m_handle, CURLOPT_PROXY, bracketed.toUtf8().constData());
    curl_easy_setopt(m_handle, CURLOPT_PROXYPORT, long(proxy.port()));
    curl_easy_setopt(m_handle, CURLOPT_NOPROXY, "");
    if (!proxy.user().isEmpty()) {
        curl_easy_setopt(m_handle, CURLOPT_PROXYAUTH, long(CURLAUTH_ANY));
        curl_easy_setopt(m_handle, CURLOPT_PROXYUSERNAME, proxy.user().toUtf8().constData());
        curl_easy_setopt(m_handle, CURLOPT_PROXYPASSWORD, proxy.password().toUtf8().constData());
    }
}

CURLcode MrvHttpTransfer::onTls(CURL *, void *context, void *self)
{
    static_cast<MrvHttpTransfer *>(self)->m_check.install(context);
    MrvTlsClosing::install(context);
    return CURLE_OK;
}

size_t MrvHttpTransfer::onHeader(char *bytes, size_t, size_t count, void *self)
{
    auto *const transfer = static_cast<MrvHttpTransfer *>(self);
    transfer->m_headerBytes += qint64(count);
    if (transfer->m_headerBytes > MRVHttpLimits::HeaderBytes) {
        transfer->m_fault = Fault::HeaderBytes;
        return 0; // ends the transfer
    }
    return transfer->readLine(QByteArray(bytes, int(count))) ? count : 0;
}

size_t MrvHttpTransfer::onBody(char *bytes, size_t, size_t count, void *self)
{
    auto *const transfer = static_cast<MrvHttpTransfer *>(self);
    transfer->m_body.append(bytes, int(count));
    transfer->m_transfers->setChanged(transfer);
    return count;
}

// Answers come one after another: interim ones, those that ask for a login, the last one; and a
// body may have headers at its end, which nobody uses.
bool MrvHttpTransfer::readLine(const QByteArray &line)
{
    const QByteArray text = line.trimmed();
    const bool isContinued = line.startsWith(' ') || line.startsWith('\t');
    if (line.startsWith("HTTP/")) {
        return readStatus(text);
    }
    if (!m_isHeadWhole && isContinued && !m_headers.isEmpty()) {
        m_headers.last().second += ' ' + text;
        // libcurl copies all of it each time.
        m_headerBytes += m_headers.constLast().second.size();
    } else if (!m_isHeadWhole && !text.isEmpty()) {
        return addHeader(text);
    } else if (!m_isHeadWhole) {
        m_isHeadWhole = true;
        const curl_tlssessioninfo *tls = nullptr;
        curl_easy_getinfo(m_handle, CURLINFO_TLS_SSL_PTR, &tls);
        if (tls && tls->internals) {
            m_closing = MrvTlsClosing::of(tls->internals);
        }
        m_transfers->setChanged(this);
    }
    return true;
}

bool MrvHttpTransfer::readStatus(const QByteArray &line)
{
    // libcurl answers a challenge by itself, as often as there is one.
    if ((m_status == 401 || m_status == 407) && ++m_refusals > MRVHttpLimits::Logins) {
        m_fault = Fault::Logins;
        return false;
    }
    m_isHeadWhole = false;
    m_headers.clear();
    const int code = line.indexOf(' ') + 1;
    const int text = line.indexOf(' ', code);
    m_status = line.mid(code, 3).toInt();
    m_reason = text < 0 ? QByteArray() : line.mid(text + 1);
    return true;
}

bool MrvHttpTransfer::addHeader(const QByteArray &line)
{
    if (m_headers.size() == MRVHttpLimits::HeaderLines) {
        m_fault = Fault::HeaderLines;
        return false;
    }
    const int colon = line.indexOf(':');
    if (colon <= 0) {
        return true;
    }
    const Header added(line.left(colon).trimmed(), line.mid(colon + 1).trimmed());
    if (added.first.toLower() == "content-length" && !checkLength(added.second)) {
        return false;
    }
    m_headers.append(added);
    return true;
}

// libcurl takes what it can read of one, and the last one of several.
bool MrvHttpTransfer::checkLength(const QByteArray &length)
{
    bool isNumber = false;
    const QByteArray stated = header("Content-Length");
    if (length.toLongLong(&isNumber) < 0 || !isNumber || length.startsWith('+')) {
        m_fault = Fault::NoLength;
    } else if (!stated.isNull() && stated != length) {
        m_fault = Fault::TwoLengths;
    }
    return m_fault == Fault::None;
}

QByteArray MrvHttpTransfer::header(const QByteArray &name) const
{
    for (const Header &each : m_headers) {
        if (each.first.compare(name, Qt::CaseInsensitive) == 0) {
            return each.second;
        }
    }
    return QByteArray();
}

// One that asks for a login may be followed by the answer to a login that libcurl has.
bool MrvHttpTransfer::hasHead() const
{
    return m_isHeadWhole && m_status >= 200 && (m_isDone || (m_status != 401 && m_status != 407));
}

QByteArray MrvHttpTransfer::takeBody()
{
    return std::exchange(m_body, QByteArray());
}

void MrvHttpTransfer::setPaused(bool isPaused)
{
    curl_easy_pause(m_handle, isPaused ? CURLPAUSE_ALL : CURLPAUSE_CONT);
}

void MrvHttpTransfer::setResult(CURLcode result)
{
    m_isDone = true;
    m_result = result;
    const bool hasEnd = header("Transfer-Encoding").toLower() == "chunked"
        || !header("Content-Length").isNull() || m_status == 204 || m_status == 304;
    if (result == CURLE_OK && m_closing && !*m_closing && !hasEnd && !m_isHead) {
        m_fault = Fault::TlsEnd;
        m_result = CURLE_RECV_ERROR;
    }
}

QString MrvHttpTransfer::resultText() const
{
    return QString::fromLocal8Bit(m_error[0] ? &m_error[0] : curl_easy_strerror(m_result));
}

int MrvHttpTransfer::systemError() const
{
    long error = 0;
    curl_easy_getinfo(m_handle, CURLINFO_OS_ERRNO, &error);
    return int(error);
}

int MrvHttpTransfer::tunnelStatus() const
{
    long status = 0;
    curl_easy_getinfo(m_handle, CURLINFO_HTTP_CONNECTCODE, &status);
    return int(status);
}
