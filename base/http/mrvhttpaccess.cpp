#include "http/mrvhttpaccess.h"

#include "http/mrvhttpcontext_p.h"
#include "http/mrvhttpreply_p.h"

#include <QNetworkRequest>
#include <QSslCertificate>

MRVHttpAccess::MRVHttpAccess(QObject *parent)
    : QNetworkAccessManager(parent)
    , m_context(std::make_shared<MrvHttpContext>())
{
}

MRVHttpAccess::~MRVHttpAccess() = default;

bool MRVHttpAccess::setCaCertificates(const QByteArray &pem)
{
    const bool isUsable = !QSslCertificate::fromData(pem, QSsl::Pem).isEmpty();
    if (isUsable) {
        m_context->caCertificates = pem;
    }
    return isUsable;
}

MRVErrorKind MRVHttpAccess::errorKind(QNetworkReply::NetworkError error)
{
    switch (error) {
    case QNetworkReply::NoError:
        return MRVErrorKind::None;
    case QNetworkReply::OperationCanceledError:
        return MRVErrorKind::Cancelled;
    case QNetworkReply::ContentNotFoundError:
    case QNetworkReply::ContentGoneError:
        return MRVErrorKind::NotFound;
    case QNetworkReply::ContentAccessDenied:
    case QNetworkReply::ContentOperationNotPermittedError:
    case QNetworkReply::AuthenticationRequiredError:
    case QNetworkReply::ProxyAuthenticationRequiredError:
        return MRVErrorKind::NoPermission;
    default:
        return MRVErrorKind::Network;
    }
}

QNetworkReply *MRVHttpAccess::createRequest(Operation operation, const QNetworkRequest &request,
                                            QIODevice *body)
{
    if (operation == GetOperation && request.url().scheme() == QLatin1String("data")) {
        return QNetworkAccessManager::createRequest(operation, request, body);
    }
    return new MrvHttpReply(this, m_context, operation, request);
}
