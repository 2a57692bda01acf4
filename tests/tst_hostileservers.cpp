#include "datarows.h"
#include "heapmeter.h"
#include "hostileserver.h"
#include "support.h"

#include "download/mrvdownloadurl.h"
#include "download/mrvdownloaduserinputabstract.h"
#include "http/mrvhttplimits.h"

#include <QAuthenticator>
#include <QNetworkProxy>
#include <QSslError>
#include <QTemporaryDir>

#include <ctime>

#include <zlib.h>

namespace {

constexpr qint64 MaxBody = 16 << 20;

// Follows ten redirects, and has one login.
struct Handler : MRVDownloadUserInputAbstract
{
    bool authenticate(const QString &, const QUrl &, QString *user, QString *password) override
    {
        *user = "äñn";
        *password = "päß" + QString::number(isStubborn ? 0 : logins);
        return ++logins < 100;
    }
    bool redirectTo(const QUrl &) override { return ++redirects <= 10; }
    bool ignoreSslErrors(const QStringList &) override { return false; }

    bool isStubborn = false;
    int logins = 0;
    int redirects = 0;
};

// The longest that the event loop stood still, by the time that its thread was at work.
class Heartbeat
{
public:
    Heartbeat()
    {
        m_last = now();
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            const qint64 time = now();
            m_longest = qMax(m_longest, time - m_last);
            m_last = time;
        });
        m_timer.start(5);
    }
    int longest() const { return int(m_longest / 1000000); } // milliseconds

private:
    static qint64 now()
    {
        timespec time;
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return qint64(time.tv_sec) * 1000000000 + time.tv_nsec;
    }

    QTimer m_timer;
    qint64 m_last = 0;
    qint64 m_longest = 0;
};

QByteArray packed(const QByteArray &bytes, int window)
{
    z_stream stream{};
    deflateInit2(&stream, 9, Z_DEFLATED, window, 8, Z_DEFAULT_STRATEGY);
    QByteArray result(int(deflateBound(&stream, uLong(bytes.size()))), '\0');
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.constData()));
    stream.avail_in = uInt(bytes.size());
    stream.next_out = reinterpret_cast<Bytef *>(result.data());
    stream.avail_out = uInt(result.size());
    deflate(&stream, Z_FINISH);
    result.truncate(int(stream.total_out));
    deflateEnd(&stream);
    return result;
}

constexpr int GzipWindow = MAX_WBITS + 16;
const char *const Ok = "HTTP/1.1 200 OK\r\n";
const char *const Chunked = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
const char *const Hello = "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello";

struct Hostile
{
    const char *name;
    HostileServer::Answer answer;
    const char *error; // a part of it; null: the body is delivered
    const char *body; // null: any
};

HostileServer::Answer bytes(const QByteArray &all)
{
    return [all](Peer &peer) { peer.send(all); };
}

// The end of these connections comes after 200 ms without a byte.
HostileServer::Answer bytesAndNoMore(const QByteArray &all)
{
    return [all](Peer &peer) {
        peer.send(all);
        peer.wait(5000);
    };
}

HostileServer::Answer many(const QByteArray &first, const QByteArray &block, int times = 1 << 30)
{
    return [=](Peer &peer) {
        peer.send(first);
        peer.sendMany(block, times);
    };
}

HostileServer::Answer reset(const QByteArray &all)
{
    return [all](Peer &peer) {
        peer.send(all);
        peer.wait(50); // a reset overtakes what has not been read
        peer.reset();
    };
}

// To each request of a connection.
HostileServer::Answer each(const QByteArray &all)
{
    return [all](Peer &peer) {
        while (peer.send(all) && !peer.next().isEmpty()) { }
    };
}

QByteArray unauthorized(const QByteArray &challenge)
{
    return "HTTP/1.1 401 No\r\nContent-Length: 0\r\n" + challenge + "\r\n";
}

QByteArray gzipped(const QByteArray &body)
{
    return QByteArray(Ok) + "Content-Encoding: gzip\r\nContent-Length: "
        + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

QByteArray names(int count)
{
    QByteArray lines;
    for (int i = 0; i < count; ++i) {
        lines += "X-" + QByteArray::number(i) + ": 1\r\n";
    }
    return lines;
}

QByteArray redirect(const QByteArray &to)
{
    return "HTTP/1.1 302 Found\r\nContent-Length: 0\r\nLocation: " + to + "\r\n\r\n";
}

const QVector<Hostile> &hostiles()
{
    static const QByteArray hello = packed("hello", GzipWindow);
    static const QByteArray bomb = packed(QByteArray(64 << 20, 'x'), GzipWindow);
    static const QVector<Hostile> all = {
        // Heads.
        {"header flood", many(Ok, "X-Padding: 1\r\n", 200000), "more than 500 headers", nullptr},
        {"endless headers", many(Ok, "X: " + QByteArray(1000, 'x') + "\r\n"), "bytes of headers",
         nullptr},
        {"endless header", many(QByteArray(Ok) + "X: ", "xxxxxxxx"), "bytes of headers", nullptr},
        {"endless status", many("HTTP/1.1 200 ", "OKOKOKOK"), "bytes of headers", nullptr},
        {"lines without colons", many(Ok, "nothing\r\n", 200000), "without colon", nullptr},
        {"folded flood", many(QByteArray(Ok) + "X: 1\r\n", " more\r\n", 200000), "bytes of headers",
         nullptr},
        {"cookies", many(Ok, "Set-Cookie: a=b\r\n", 200000), "more than 500 headers", nullptr},
        {"as many names as are let in", bytes(Ok + names(498) + "\r\nhello"), nullptr, "hello"},
        {"interim flood", many("", "HTTP/1.1 100 Continue\r\n\r\n", 200000), "bytes of headers",
         nullptr},
        {"early hints flood", many("", "HTTP/1.1 103 Hints\r\nLink: a\r\n\r\n", 200000),
         "bytes of headers", nullptr},
        {"some interim answers",
         bytes(QByteArray("HTTP/1.1 100 Continue\r\n\r\n").repeated(20) + Hello), nullptr, "hello"},
        {"switching protocols", bytes("HTTP/1.1 101 Switching\r\nUpgrade: x\r\n\r\nhello"),
         "closed", nullptr},
        {"slow headers",
         [](Peer &peer) {
             peer.send(QByteArray(Ok) + "X: ");
             for (int i = 0; i < 200 && peer.send("x"); ++i) {
                 peer.wait(50);
             }
         },
         "not answered", nullptr},
        {"no HTTP", bytes("hello\r\n\r\n"), "does not answer in HTTP", nullptr},
        {"mail", bytesAndNoMore("220 mail ESMTP\r\n"), "does not answer in HTTP", nullptr},
        {"HTTP/9", bytes("HTTP/9.9 200 OK\r\n\r\nhello"), "HTTP", nullptr},
        {"no status", bytes("HTTP/1.1 \r\n\r\nhello"), "HTTP", nullptr},
        {"status of four digits", bytes("HTTP/1.1 2000 OK\r\n\r\nhello"), "HTTP", nullptr},
        {"null characters", bytes(QByteArray(Ok) + QByteArray("X: \0\0\r\n\r\nhello", 14)), "",
         nullptr},
        {"bare line feeds", bytes("HTTP/1.1 200 OK\nContent-Length: 5\n\nhello"), nullptr, "hello"},
        {"folded length", bytes(QByteArray(Ok) + "X: 1\r\n  Content-Length: 900\r\n\r\nhello"),
         nullptr, "hello"},
        {"long reason", bytes("HTTP/1.1 500 " + QByteArray(50000, 'x') + "\r\n\r\n"),
         "server replied: xxxx", nullptr},
        {"reason that steers terminals", bytes("HTTP/1.1 500 a\x1b[2Jb\r\n\r\n"),
         "server replied: a [2Jb", nullptr},
        {"closed at once", bytes(""), "without an answer", nullptr},
        {"reset at once", reset(""), "closed", nullptr},
        {"reset in the head", reset(Ok), "closed", nullptr},
        {"closed in the head", bytes(Ok), "closed", nullptr},
        {"silent", bytesAndNoMore(""), "not answered", nullptr},
        {"silent in the head", bytesAndNoMore(Ok), "not answered", nullptr},
        // Lengths.
        {"negative length", bytes(QByteArray(Ok) + "Content-Length: -1\r\n\r\nhello"),
         "Invalid Content-Length", nullptr},
        {"length and letters", bytes(QByteArray(Ok) + "Content-Length: 5x\r\n\r\nhello"),
         "not a number", nullptr},
        {"length of letters", bytes(QByteArray(Ok) + "Content-Length: x\r\n\r\nhello"),
         "Invalid Content-Length", nullptr},
        {"length beyond numbers",
         bytes(QByteArray(Ok) + "Content-Length: 99999999999999999999999\r\n\r\nhello"),
         "not a number", nullptr},
        {"huge length", bytesAndNoMore(QByteArray(Ok) + "Content-Length: 9000000000\r\n\r\nhello"),
         "larger than", nullptr},
        {"two lengths",
         bytes(QByteArray(Ok) + "Content-Length: 5\r\nContent-Length: 9\r\n\r\nhello"),
         "two different lengths", nullptr},
        {"one length twice",
         bytes(QByteArray(Ok) + "Content-Length: 5\r\nContent-Length: 5\r\n\r\nhello"), nullptr,
         "hello"},
        {"cut", bytes(QByteArray(Ok) + "Content-Length: 9\r\n\r\nhello"), "before the end",
         nullptr},
        {"reset", reset(QByteArray(Ok) + "Content-Length: 9\r\n\r\nhello"), "closed", nullptr},
        {"reset without a length", reset(QByteArray(Ok) + "\r\nhello"), "closed", nullptr},
        {"silent in the body", bytesAndNoMore(QByteArray(Ok) + "Content-Length: 9\r\n\r\nhello"),
         "sent nothing", nullptr},
        {"more than stated", many(Hello, "more"), nullptr, "hello"},
        {"endless body", many(QByteArray(Ok) + "\r\n", "body"), "larger than", nullptr},
        {"body of no content", bytes("HTTP/1.1 204 No\r\nContent-Length: 5\r\n\r\nhello"), nullptr,
         ""},
        {"not modified", bytes("HTTP/1.1 304 Not\r\n\r\n"), "before the download", nullptr},
        {"unasked part", bytes("HTTP/1.1 206 Part\r\nContent-Length: 5\r\n\r\nhello"),
         "before the download", nullptr},
        // Chunks.
        {"chunk of no size", bytes(QByteArray(Chunked) + "5\r\nhello\r\nzz\r\n"), "closed",
         nullptr},
        {"chunk of an empty size", bytes(QByteArray(Chunked) + "\r\nhello\r\n0\r\n\r\n"), "closed",
         nullptr},
        {"negative chunk", bytes(QByteArray(Chunked) + "-5\r\nhello\r\n0\r\n\r\n"), "closed",
         nullptr},
        {"chunk beyond numbers",
         bytes(QByteArray(Chunked) + "ffffffffffffffffffffff\r\nhello\r\n0\r\n\r\n"), "closed",
         nullptr},
        {"huge chunk", bytes(QByteArray(Chunked) + "7fffffffffffffff\r\nhello"), "closed", nullptr},
        {"chunk without its end", bytes(QByteArray(Chunked) + "5\r\nhelloworld\r\n0\r\n\r\n"),
         "closed", nullptr},
        {"no last chunk", bytes(QByteArray(Chunked) + "5\r\nhello\r\n"), "closed", nullptr},
        {"endless extension", many(QByteArray(Chunked) + "5;", "xxxxxxxx", 1 << 18), "closed",
         nullptr},
        {"trailer flood",
         many(QByteArray(Chunked) + "5\r\nhello\r\n0\r\n", "X-Trailer: 1\r\n", 200000), "headers",
         nullptr},
        {"chunks of a byte", many(Chunked, "1\r\nx\r\n"), "larger than", nullptr},
        {"chunks and a length",
         bytes("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\nContent-Length: 2\r\n\r\n"
               "5\r\nhello\r\n0\r\n\r\n"),
         nullptr, "hello"},
        {"unknown transfer coding",
         bytes("HTTP/1.1 200 OK\r\nTransfer-Encoding: magic\r\n\r\nhello"), "", nullptr},
        // Packed bodies.
        {"packed", bytes(gzipped(hello)), nullptr, "hello"},
        {"packed twice over", bytes(gzipped(hello + hello)), nullptr, "hellohello"},
        {"deflated",
         bytes(QByteArray(Ok) + "Content-Encoding: deflate\r\n\r\n" + packed("hello", MAX_WBITS)),
         nullptr, "hello"},
        {"deflated without a header",
         bytes(QByteArray(Ok) + "Content-Encoding: deflate\r\n\r\n" + packed("hello", -MAX_WBITS)),
         nullptr, "hello"},
        {"deflated without a header, a full piece",
         bytes(QByteArray(Ok) + "Content-Encoding: deflate\r\n\r\n"
               + packed(QByteArray(1 << 20, 'x'), -MAX_WBITS)),
         nullptr, nullptr},
        {"deflated without a header, byte by byte",
         [](Peer &peer) {
             peer.send(QByteArray(Ok) + "Content-Encoding: deflate\r\n\r\n");
             for (const char byte : packed("hello", -MAX_WBITS)) {
                 peer.send(QByteArray(1, byte));
                 peer.wait(20);
             }
         },
         nullptr, "hello"},
        {"packed and padded", bytes(gzipped(hello + QByteArray(20, '\0'))), nullptr, "hello"},
        {"packed, cut in its header",
         bytes(QByteArray(Ok) + "Content-Encoding: gzip\r\n\r\n" + hello.left(10)),
         "before the end", nullptr},
        {"packed, cut", bytes(gzipped(hello.left(hello.size() - 5))), "before the end", nullptr},
        {"packed, damaged", bytes(gzipped(QByteArray(hello).replace(14, 2, "zz"))), "damaged",
         nullptr},
        {"packed, and rubbish", bytes(gzipped(hello + "rubbish")), "damaged", nullptr},
        {"bomb", bytes(gzipped(bomb)), "larger than", nullptr},
        {"endless bomb", many(QByteArray(Ok) + "Content-Encoding: gzip\r\n\r\n", bomb),
         "larger than", nullptr},
        {"unknown packing", bytes(QByteArray(Ok) + "Content-Encoding: br\r\n\r\nhello"), nullptr,
         "hello"},
        // Redirects and logins.
        {"endless redirects", each(redirect("/again")), nullptr, ""},
        {"redirect to a file", bytes(redirect("file:///etc/hostname")), "not an http", nullptr},
        {"redirect to a script", bytes(redirect("javascript:alert(1)")), "not an http", nullptr},
        {"long redirect", each(redirect("/" + QByteArray(90000, 'x'))), nullptr, ""},
        {"empty redirect", bytes(redirect("")), nullptr, ""},
        {"NTLM without end",
         each(unauthorized("WWW-Authenticate: NTLM TlRMTVNTUAACAAAAAAAAADgAAAABAAAAAAAAAAAAAAAAAAAA"
                           "AAAAADgAAAAAAAAAAAAAAA==\r\n")),
         "requires authentication", nullptr},
        {"Digest without end",
         each(unauthorized("WWW-Authenticate: Digest realm=\"a\", nonce=\"b\", stale=true\r\n")),
         "requires authentication", nullptr},
        {"Basic without end", each(unauthorized("WWW-Authenticate: Basic realm=\"a\"\r\n")),
         "requires authentication", nullptr},
        {"many challenges",
         each(unauthorized(QByteArray("WWW-Authenticate: Basic realm=\"a\"\r\n").repeated(1000))),
         "more than 500 headers", nullptr},
        {"no challenge", each(unauthorized("")), "not supported", nullptr},
        {"endless page with a question",
         many("HTTP/1.1 401 No\r\nWWW-Authenticate: Basic realm=\"a\"\r\n\r\n", "page"),
         "before it lets one in", nullptr},
        {"proxy's question without a proxy", each("HTTP/1.1 407 No\r\nContent-Length: 0\r\n\r\n"),
         "server replied: No", nullptr},
    };
    return all;
}

} // namespace

/** What servers can do to those who ask them, and what may come of it at most. */
class tst_HostileServers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < hostiles().size(); ++i) {
            QTest::newRow(hostiles().at(i).name) << i;
        }
    }
    // One final signal with a true reason, a window that answers, and little memory.
    void answers()
    {
        QFETCH(int, index);
        const Hostile &hostile = hostiles().at(index);
        HostileServer server(hostile.answer);
        Handler handler;
        HeapMeter::start();
        const Ending ending = endingOf(server.url(), &handler, nullptr);

        QCOMPARE(ending.finals, 1);
        QCOMPARE(ending.error.isEmpty(), !hostile.error);
        QVERIFY2(ending.error.contains(hostile.error), qPrintable(ending.error));
        QVERIFY2(ending.error.size() < 400, qPrintable(ending.error));
        if (hostile.body) {
            QCOMPARE(ending.body, QByteArray(hostile.body));
        }
        QVERIFY2(ending.longest <= 100 * SanitizerTime, QByteArray::number(ending.longest));
        QVERIFY2(HeapMeter::peak() <= SanitizerMemory * (64L << 20),
                 QByteArray::number(qlonglong(HeapMeter::peak())));
        QVERIFY2(handler.logins <= MRVHttpLimits::Logins + 1, QByteArray::number(handler.logins));
        QVERIFY2(server.connections() <= 5 * (MRVHttpLimits::Logins + 1),
                 QByteArray::number(server.connections()));
    }

    // The same login again and again is tried once.
    void sameLogin()
    {
        HostileServer server(each(unauthorized("WWW-Authenticate: Basic realm=\"a\"\r\n")));
        Handler handler;
        handler.isStubborn = true;
        const Ending ending = endingOf(server.url(), &handler, nullptr);
        QCOMPARE(ending.error, QString("Host requires authentication"));
        QCOMPARE(handler.logins, 2);
    }

    void certificates_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<int>("days");
        QTest::addColumn<bool>("isTrusted");
        QTest::addColumn<QString>("error");
        QTest::newRow("good") << QByteArray("IP:127.0.0.1") << 30 << true << "";
        QTest::newRow("expired") << QByteArray("IP:127.0.0.1") << -1 << true << "expired";
        QTest::newRow("another host") << QByteArray("DNS:a.example") << 30 << true << "host name";
        QTest::newRow("self-signed") << QByteArray("IP:127.0.0.1") << 30 << false << "self-signed";
    }
    void certificates()
    {
        QFETCH(QByteArray, name);
        QFETCH(int, days);
        QFETCH(bool, isTrusted);
        QFETCH(QString, error);
        const TestCertificate certificate(name, days);
        HostileServer server(bytes(Hello), certificate.context());
        const QByteArray trusted = isTrusted ? certificate.pem() : QByteArray();
        const Ending ending = endingOf(server.url(), nullptr, trusted);
        QCOMPARE(ending.finals, 1);
        QCOMPARE(ending.error.isEmpty(), error.isEmpty());
        QVERIFY2(ending.error.contains(error) && ending.error.contains("SSL") == !error.isEmpty(),
                 qPrintable(ending.error));
        QCOMPARE(ending.body, error.isEmpty() ? QByteArray("hello") : QByteArray());
    }

    // All that is wrong is told, and what was accepted once is not accepted from another server, or
    // for another request.
    void acceptedCertificate_data()
    {
        QTest::addColumn<QString>("refusesSecond");
        QTest::newRow("both") << "no";
        QTest::newRow("the first") << "yes";
    }
    void acceptedCertificate()
    {
        const TestCertificate first("DNS:a.example", -1);
        const TestCertificate second("DNS:a.example", -1);
        SSL_CTX *current = first.context();
        HostileServer server(bytes(Hello), current);
        MRVHttpAccess access;
        int asked = 0;
        QList<QSslError> errors;
        bool isAccepting = true;
        const int refused = cell("refusesSecond") == "yes" ? 2 : 0;
        connect(&access, &QNetworkAccessManager::sslErrors, this,
                [&](QNetworkReply *reply, const QList<QSslError> &wrong) {
                    ++asked;
                    errors = wrong;
                    if (isAccepting && asked != refused) {
                        reply->ignoreSslErrors();
                    }
                    // Now another one answers.
                    SSL_CTX_use_certificate(current, SSL_CTX_get0_certificate(second.context()));
                    SSL_CTX_use_PrivateKey(current, SSL_CTX_get0_privatekey(second.context()));
                });
        QNetworkReply *reply = access.get(QNetworkRequest(server.url()));
        QTRY_VERIFY(reply->isFinished());
        QCOMPARE(asked, 2);
        QCOMPARE(reply->readAll(), refused ? QByteArray() : QByteArray("hello"));
        QSet<int> kinds;
        for (const QSslError &error : qAsConst(errors)) {
            kinds << error.error();
        }
        QCOMPARE(kinds,
                 (QSet<int>{QSslError::SelfSignedCertificate, QSslError::CertificateExpired,
                            QSslError::HostNameMismatch}));
        isAccepting = false;
        reply = access.get(QNetworkRequest(server.url()));
        QTRY_VERIFY(reply->isFinished());
        QCOMPARE(asked, 3);
        QCOMPARE(reply->error(), QNetworkReply::SslHandshakeFailedError);
    }

    void tls_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("error");
        QTest::newRow("without its closing message") << "cut"
                                                     << "was cut off";
        QTest::newRow("version 1.0 only") << "old"
                                          << "SSL handshake failed: ";
        QTest::newRow("none at all") << "plain"
                                     << "SSL handshake failed: ";
    }
    void tls()
    {
        QFETCH(QString, kind);
        QFETCH(QString, error);
        const TestCertificate certificate("IP:127.0.0.1", 30);
        if (kind == "old") {
            SSL_CTX_set_security_level(certificate.context(), 0);
            SSL_CTX_set_max_proto_version(certificate.context(), TLS1_VERSION);
        }
        HostileServer server(bytes(QByteArray(Ok) + "\r\nhello"),
                             kind == "plain" ? nullptr : certificate.context());
        QUrl url = server.url();
        url.setScheme("https");
        const Ending ending = endingOf(url, nullptr, certificate.pem());
        QCOMPARE(ending.finals, 1);
        QVERIFY2(ending.error.contains(error) && ending.error.size() > error.size(),
                 qPrintable(ending.error));
    }

    // The login of a proxy is asked for, and what goes through it does not look like a tunnel.
    void proxy_data()
    {
        QTest::addColumn<bool>("isSecure");
        QTest::newRow("http") << false;
        QTest::newRow("https, through a tunnel") << true;
    }
    void proxy()
    {
        QFETCH(bool, isSecure);
        HostileServer server([](Peer &peer) {
            while (!peer.request.contains("Proxy-Authorization: Basic ")) {
                if (!peer.send("HTTP/1.1 407 No\r\nContent-Length: 0\r\n"
                               "Proxy-Authenticate: Basic realm=\"gate\"\r\n\r\n")
                    || peer.next().isEmpty()) {
                    return;
                }
            }
            peer.send(peer.request.startsWith("CONNECT ") ? "HTTP/1.1 200 OK\r\n\r\nno TLS"
                                                          : Hello);
        });
        MRVHttpAccess access;
        access.setProxy({QNetworkProxy::HttpProxy, "127.0.0.1", quint16(server.url().port())});
        int asked = 0;
        connect(&access, &QNetworkAccessManager::proxyAuthenticationRequired, this,
                [&](const QNetworkProxy &, QAuthenticator *login) {
                    ++asked;
                    login->setUser("ann");
                    login->setPassword("pass");
                });
        QNetworkReply *const reply = access.get(
            QNetworkRequest(QUrl(isSecure ? "https://a.example/" : "http://a.example/")));
        QTRY_VERIFY(reply->isFinished());
        QCOMPARE(asked, 1);
        QVERIFY2(reply->errorString().startsWith("SSL handshake failed") == isSecure,
                 qPrintable(reply->errorString()));
        QCOMPARE(reply->readAll(), isSecure ? QByteArray() : QByteArray("hello"));
    }

    void noProxy_data()
    {
        QTest::addColumn<QString>("host");
        QTest::newRow("IPv4") << "127.0.0.1";
        QTest::newRow("IPv6") << "::1";
    }
    void noProxy()
    {
        MRVHttpAccess access;
        access.setProxy({QNetworkProxy::HttpProxy, cell("host"), 1});
        QNetworkReply *const reply = access.get(QNetworkRequest(QUrl("https://a.example/")));
        QTRY_VERIFY(reply->isFinished());
        QVERIFY2(
            reply->errorString().startsWith("No connection to the proxy " + cell("host") + ": "),
            qPrintable(reply->errorString()));
    }

    // What a request carries: logins in UTF-8, the jar's cookies, headers without line ends, and a
    // login that is known for the next request.
    void requests()
    {
        QByteArrayList seen;
        HostileServer server([&seen](Peer &peer) {
            do {
                seen << peer.request;
                const bool isKnown = peer.request.contains("Authorization: Basic ");
                peer.send(isKnown
                              ? "HTTP/1.1 200 OK\r\nContent-Length: 2\r\nSet-Cookie: a=b\r\n\r\nok"
                              : unauthorized("WWW-Authenticate: Basic realm=\"a\"\r\n"));
            } while (!peer.next().isEmpty());
        });
        MRVHttpAccess access;
        int asked = 0;
        connect(&access, &QNetworkAccessManager::authenticationRequired, this,
                [&](QNetworkReply *, QAuthenticator *login) {
                    ++asked;
                    login->setUser("ä");
                    login->setPassword("ß");
                });
        QNetworkRequest request(server.url("/a%20b?c=d#e"));
        request.setRawHeader("X-Bad", "a\r\nX-Worse: b");
        request.setRawHeader("X-Empty", "");
        for (int i = 0; i < 2; ++i) {
            QNetworkReply *const reply = access.get(request);
            QTRY_VERIFY(reply->isFinished());
            QCOMPARE(reply->readAll(), QByteArray("ok"));
        }
        QCOMPARE(asked, 1);
        const QByteArray last = seen.constLast();
        QVERIFY2(last.startsWith("GET /a%20b?c=d HTTP/1.1\r\n"), last);
        QVERIFY2(last.contains("Authorization: Basic " + QByteArray("ä:ß").toBase64()), last);
        QVERIFY2(last.contains("Cookie: a=b\r\n") && last.contains("X-Empty:\r\n"), last);
        QVERIFY2(!last.contains("Worse") && last.contains("Accept-Encoding: identity\r\n"), last);
        // Another server gets its own, even for a realm of the same name.
        HostileServer other(each(unauthorized("WWW-Authenticate: Basic realm=\"a\"\r\n")));
        QNetworkReply *const away = access.get(QNetworkRequest(other.url()));
        QTRY_VERIFY(away->isFinished());
        QVERIFY(asked > 1);
        QCOMPARE(server.connections(), 6); // what is kept might have an answer in it already

        QNetworkReply *const post = access.post(request, QByteArray("a"));
        QTRY_VERIFY(post->isFinished());
        QVERIFY(post->error() != QNetworkReply::NoError);
    }

    // A reader that is slow keeps the rest at the server.
    void readBuffer()
    {
        HostileServer server(
            many(QByteArray(Ok) + "Content-Length: 50000000\r\n\r\n", "body", 50000000 / 4));
        MRVHttpAccess access;
        HeapMeter::start();
        QNetworkReply *const reply = access.get(QNetworkRequest(server.url()));
        reply->setReadBufferSize(100000);
        QTRY_VERIFY(reply->bytesAvailable() > 0);
        QTest::qWait(100);
        QVERIFY(reply->bytesAvailable() < 8000000);
        qint64 all = 0;
        const auto read = [&] {
            all += reply->readAll().size();
            return reply->isFinished() && reply->bytesAvailable() == 0;
        };
        QVERIFY(QTest::qWaitFor(read, 60000));
        QCOMPARE(all, qint64(50000000));
        QVERIFY(HeapMeter::peak() < SanitizerMemory * 16000000);
    }

private:
    struct Ending
    {
        int finals = 0;
        QString error;
        QByteArray body;
        int longest = 0;
    };

    static Ending endingOf(const QUrl &url, MRVDownloadUserInputAbstract *handler,
                           const QByteArray &trusted)
    {
        Ending ending;
        MRVDownloadUrl download;
        download.setUserInputHandler(handler);
        download.setTransferTimeout(500);
        download.setMaximumSize(MaxBody);
        if (!trusted.isEmpty()) {
            download.networkAccessManager()->setCaCertificates(trusted);
        }
        connect(&download, &MRVDownloadUrl::downloadError, &download, [&](const QString &error) {
            ending.error = error;
            ++ending.finals;
        });
        connect(&download, qOverload<QByteArray>(&MRVDownloadUrl::downloadSuccess), &download,
                [&](const QByteArray &body) {
                    ending.body = body;
                    ++ending.finals;
                });
        Heartbeat heartbeat;
        download.download(url);
        if (QTest::qWaitFor([&] { return ending.finals > 0; }, 20000)) {
            QTest::qWait(10);
        }
        ending.longest = heartbeat.longest();
        return ending;
    }
};

QTEST_GUILESS_MAIN(tst_HostileServers)
#include "tst_hostileservers.moc"
