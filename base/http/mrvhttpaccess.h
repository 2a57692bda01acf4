#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <memory>

struct MrvHttpContext;

/**
 * Fetches over http and https with libcurl on Qt's event loop, under the interface of Qt's own
 * access manager.
 *
 * It takes GET and HEAD, and "data:" addresses; any other request ends with an error. A reply
 * counts as whole only when the protocol says so: a body that ends by a reset, by TLS without its
 * closing message, or at a chunk whose size is no number is an error, and so are two different
 * lengths, and headers beyond MRVHttpLimits. A body that comes packed by gzip or deflate is
 * unpacked in small pieces and checked, unless the request has an "Accept-Encoding" of its own.
 * Errors state the reason that the system, the TLS library or the server gave.
 *
 * Questions come as Qt's manager asks them: authenticationRequired(), and
 * proxyAuthenticationRequired(), where a login that was refused is asked for again, as often as
 * MRVHttpLimits allows; sslErrors() of the reply and the manager, where only the very certificate
 * that was asked about is accepted, for this request alone. A receiver may run an event loop, and
 * may abort or delete the reply and delete the manager, but not in the manager's own finished().
 *
 * Proxies are those of the application, and of the environment where that has none; cookies are
 * those of the manager's jar. Redirects are left to the caller, as Qt leaves them by default. The
 * certificates that are trusted are the system's, whatever the QSslConfiguration of a request says.
 * Each request has a connection of its own. GUI thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVHttpAccess : public QNetworkAccessManager
{
    Q_OBJECT

public:
    /** A manager without cookies, that asks for each login once. */
    explicit MRVHttpAccess(QObject *parent = nullptr);
    ~MRVHttpAccess() override;

    /**
     * Trusts these certificates instead of the system's, for requests that are made from now on.
     *
     * @param pem one or more certificates in PEM.
     * @return false, and nothing changes, where there is not one in it.
     */
    bool setCaCertificates(const QByteArray &pem);

    /** What an error of a reply, of this manager or of Qt's, is to a program. */
    static MRVErrorKind errorKind(QNetworkReply::NetworkError error);

protected:
    /** Makes a reply that has not begun: none of its signals comes before this returns. */
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &request,
                                 QIODevice *body) override;

private:
    std::shared_ptr<MrvHttpContext> m_context;
};
