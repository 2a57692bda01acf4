#pragma once

#include <QByteArray>
#include <QUrl>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

#include <arpa/inet.h>
#include <openssl/pem.h>
#include <openssl/ssl.h>
#include <openssl/x509v3.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

/** The other end of one connection, whose request has been read. */
class Peer
{
public:
    Peer(int socket, SSL *tls, const std::atomic<bool> *isOver)
        : m_socket(socket)
        , m_tls(tls)
        , m_isOver(isOver)
    {
    }

    QByteArray request;

    /** False when nobody takes it any more. */
    bool send(const QByteArray &bytes)
    {
        for (int at = 0; at < bytes.size();) {
            const char *data = bytes.constData() + at;
            const int left = bytes.size() - at;
            const auto count =
                m_tls ? SSL_write(m_tls, data, left) : ::send(m_socket, data, left, MSG_NOSIGNAL);
            if (count <= 0) {
                return false;
            }
            at += int(count);
        }
        return true;
    }
    /** Until nobody takes it any more; so often at most. */
    void sendMany(const QByteArray &bytes, int times = 1 << 30)
    {
        const int atOnce = qMax(1, 65536 / bytes.size());
        const QByteArray block = bytes.repeated(atOnce);
        for (; times > 0 && !*m_isOver; times -= atOnce) {
            if (!send(times < atOnce ? bytes.repeated(times) : block)) {
                return;
            }
        }
    }
    void wait(int milliseconds) const
    {
        for (; milliseconds > 0 && !*m_isOver; milliseconds -= 10) {
            ::poll(nullptr, 0, 10);
        }
    }
    void reset() const
    {
        const linger now{1, 0};
        ::setsockopt(m_socket, SOL_SOCKET, SO_LINGER, &now, sizeof now);
    }
    /** Reads the next request of the connection; empty when there is none. */
    QByteArray next()
    {
        request.clear();
        char byte = 0;
        while (!request.endsWith("\r\n\r\n") && !*m_isOver) {
            pollfd wanted{m_socket, POLLIN, 0};
            if ((!m_tls || SSL_pending(m_tls) == 0) && ::poll(&wanted, 1, 50) == 0) {
                continue;
            }
            if ((m_tls ? SSL_read(m_tls, &byte, 1) : ::recv(m_socket, &byte, 1, 0)) != 1) {
                return QByteArray();
            }
            request += byte;
            // Somebody begins TLS where there is none.
            if (request.size() == 1 && byte < 'A') {
                break;
            }
        }
        return request;
    }

private:
    int m_socket;
    SSL *m_tls;
    const std::atomic<bool> *m_isOver;
};

/**
 * Answers on loopback as a function says, right or wrong, in threads of its own, so that the
 * program's event loop shows only what the client does. A connection ends without a word of TLS.
 */
class HostileServer
{
public:
    using Answer = std::function<void(Peer &)>;

    /** @param tls may be null; is not owned. */
    explicit HostileServer(Answer answer, SSL_CTX *tls = nullptr)
        : m_answer(std::move(answer))
        , m_tls(tls)
    {
        m_listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        ::bind(m_listener, reinterpret_cast<sockaddr *>(&address), size);
        ::listen(m_listener, 16);
        ::getsockname(m_listener, reinterpret_cast<sockaddr *>(&address), &size);
        m_port = ntohs(address.sin_port);
        m_acceptor = std::thread([this] { accept(); });
    }
    ~HostileServer()
    {
        m_isOver = true;
        m_acceptor.join();
        for (std::thread &each : m_connections) {
            each.join();
        }
        ::close(m_listener);
    }

    QUrl url(const QByteArray &path = "/") const
    {
        return QUrl(QString("%1://127.0.0.1:%2%3")
                        .arg(m_tls ? "https" : "http")
                        .arg(m_port)
                        .arg(QString::fromLatin1(path)));
    }
    int connections() const { return m_count; }

private:
    void accept()
    {
        while (!m_isOver) {
            pollfd wanted{m_listener, POLLIN, 0};
            if (::poll(&wanted, 1, 20) == 1) {
                const int socket = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
                ++m_count;
                m_connections.emplace_back([this, socket] { serve(socket); });
            }
        }
    }
    void serve(int socket)
    {
        const timeval patience{0, 200000}; // for writes that nobody reads
        ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
        const std::unique_ptr<SSL, void (*)(SSL *)> tls(m_tls ? SSL_new(m_tls) : nullptr, SSL_free);
        if (tls) {
            SSL_set_fd(tls.get(), socket);
        }
        Peer peer(socket, tls.get(), &m_isOver);
        if ((!tls || SSL_accept(tls.get()) == 1) && !peer.next().isEmpty()) {
            m_answer(peer);
        }
        ::close(socket);
    }

    Answer m_answer;
    SSL_CTX *m_tls;
    int m_listener;
    quint16 m_port;
    std::atomic<bool> m_isOver{false};
    std::atomic<int> m_count{0};
    std::thread m_acceptor;
    std::vector<std::thread> m_connections;
};

/** A certificate that signs itself, and the context of a server that has it. */
class TestCertificate
{
public:
    /** @param name "IP:127.0.0.1" or "DNS:a.example". @param days until when it is valid. */
    TestCertificate(const char *name, int days)
        : m_key(EVP_RSA_gen(2048), EVP_PKEY_free)
        , m_certificate(X509_new(), X509_free)
        , m_context(SSL_CTX_new(TLS_server_method()), SSL_CTX_free)
    {
        X509 *const it = m_certificate.get();
        X509_set_version(it, 2);
        ASN1_INTEGER_set(X509_get_serialNumber(it), 1);
        X509_gmtime_adj(X509_getm_notBefore(it), -30 * 86400L);
        X509_gmtime_adj(X509_getm_notAfter(it), days * 86400L);
        X509_NAME_add_entry_by_txt(X509_get_subject_name(it), "CN", MBSTRING_ASC,
                                   reinterpret_cast<const unsigned char *>("test"), -1, -1, 0);
        X509_set_issuer_name(it, X509_get_subject_name(it));
        X509_set_pubkey(it, m_key.get());
        X509_EXTENSION *const names =
            X509V3_EXT_conf_nid(nullptr, nullptr, NID_subject_alt_name, name);
        X509_add_ext(it, names, -1);
        X509_EXTENSION_free(names);
        X509_sign(it, m_key.get(), EVP_sha256());
        SSL_CTX_use_certificate(m_context.get(), it);
        SSL_CTX_use_PrivateKey(m_context.get(), m_key.get());
    }

    SSL_CTX *context() const { return m_context.get(); }
    QByteArray pem() const
    {
        const std::unique_ptr<BIO, int (*)(BIO *)> bytes(BIO_new(BIO_s_mem()), BIO_free);
        PEM_write_bio_X509(bytes.get(), m_certificate.get());
        char *data = nullptr;
        const long size = BIO_get_mem_data(bytes.get(), &data);
        return QByteArray(data, int(size));
    }

private:
    std::unique_ptr<EVP_PKEY, void (*)(EVP_PKEY *)> m_key;
    std::unique_ptr<X509, void (*)(X509 *)> m_certificate;
    std::unique_ptr<SSL_CTX, void (*)(SSL_CTX *)> m_context;
};
