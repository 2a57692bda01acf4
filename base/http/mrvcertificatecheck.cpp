#include "http/mrvcertificatecheck_p.h"

#include <QCryptographicHash>
#include <QHostAddress>
#include <QSslCertificate>

#include <openssl/ssl.h>
#include <openssl/x509v3.h>

namespace {

struct Fault
{
    int code;
    QSslError::SslError error;
};

// Texts for people are Qt's, by its errors; what is not in the table is "unspecified".
constexpr Fault faults[] = {
    {X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT, QSslError::UnableToGetIssuerCertificate},
    {X509_V_ERR_UNABLE_TO_DECRYPT_CERT_SIGNATURE, QSslError::UnableToDecryptCertificateSignature},
    {X509_V_ERR_UNABLE_TO_DECODE_ISSUER_PUBLIC_KEY, QSslError::UnableToDecodeIssuerPublicKey},
    {X509_V_ERR_CERT_SIGNATURE_FAILURE, QSslError::CertificateSignatureFailed},
    {X509_V_ERR_CERT_NOT_YET_VALID, QSslError::CertificateNotYetValid},
    {X509_V_ERR_CERT_HAS_EXPIRED, QSslError::CertificateExpired},
    {X509_V_ERR_ERROR_IN_CERT_NOT_BEFORE_FIELD, QSslError::InvalidNotBeforeField},
    {X509_V_ERR_ERROR_IN_CERT_NOT_AFTER_FIELD, QSslError::InvalidNotAfterField},
    {X509_V_ERR_DEPTH_ZERO_SELF_SIGNED_CERT, QSslError::SelfSignedCertificate},
    {X509_V_ERR_SELF_SIGNED_CERT_IN_CHAIN, QSslError::SelfSignedCertificateInChain},
    {X509_V_ERR_UNABLE_TO_GET_ISSUER_CERT_LOCALLY, QSslError::UnableToGetLocalIssuerCertificate},
    {X509_V_ERR_UNABLE_TO_VERIFY_LEAF_SIGNATURE, QSslError::UnableToVerifyFirstCertificate},
    {X509_V_ERR_CERT_REVOKED, QSslError::CertificateRevoked},
    {X509_V_ERR_INVALID_CA, QSslError::InvalidCaCertificate},
    {X509_V_ERR_PATH_LENGTH_EXCEEDED, QSslError::PathLengthExceeded},
    {X509_V_ERR_INVALID_PURPOSE, QSslError::InvalidPurpose},
    {X509_V_ERR_CERT_UNTRUSTED, QSslError::CertificateUntrusted},
    {X509_V_ERR_CERT_REJECTED, QSslError::CertificateRejected},
    {X509_V_ERR_HOSTNAME_MISMATCH, QSslError::HostNameMismatch},
    {X509_V_ERR_IP_ADDRESS_MISMATCH, QSslError::HostNameMismatch},
};

QSslError::SslError errorOf(int code)
{
    for (const Fault &fault : faults) {
        if (fault.code == code) {
            return fault.error;
        }
    }
    return QSslError::UnspecifiedError;
}

QByteArray derOf(const X509 *certificate)
{
    unsigned char *bytes = nullptr;
    const int size = certificate ? i2d_X509(certificate, &bytes) : 0;
    const QByteArray der(reinterpret_cast<const char *>(bytes), qMax(0, size));
    OPENSSL_free(bytes);
    return der;
}

// Where OpenSSL keeps a pointer to the check during a verification.
int checkIndex()
{
    static const int index = X509_STORE_CTX_get_ex_new_index(0, nullptr, nullptr, nullptr, nullptr);
    return index;
}

} // namespace

MrvCertificateCheck::MrvCertificateCheck(const QString &host, const QByteArray &accepted)
    : m_host(host)
    , m_accepted(accepted)
{
}

void MrvCertificateCheck::install(void *context)
{
    auto *const tls = static_cast<SSL_CTX *>(context);
    SSL_CTX_set_options(tls, SSL_OP_NO_RENEGOTIATION);
    SSL_CTX_set_cert_verify_callback(
        tls, [](X509_STORE_CTX *store, void *self) { return verify(store, self); }, this);
}

int MrvCertificateCheck::verify(void *store, void *self)
{
    auto *const chain = static_cast<X509_STORE_CTX *>(store);
    auto *const check = static_cast<MrvCertificateCheck *>(self);
    check->m_digest = QCryptographicHash::hash(derOf(X509_STORE_CTX_get0_cert(chain)),
                                               QCryptographicHash::Sha256);
    if (check->m_digest == check->m_accepted) {
        return 1;
    }

    X509_VERIFY_PARAM *const wanted = X509_STORE_CTX_get0_param(chain);
    const QByteArray host = check->m_host.toLatin1();
    if (QHostAddress(check->m_host).isNull()) {
        X509_VERIFY_PARAM_set1_host(wanted, host.constData(), size_t(host.size()));
    } else {
        X509_VERIFY_PARAM_set1_ip_asc(wanted, host.constData());
    }
    X509_STORE_CTX_set_ex_data(chain, checkIndex(), check);
    X509_STORE_CTX_set_verify_cb(
        chain, [](int isFine, X509_STORE_CTX *at) { return collect(isFine, at); });
    const bool isVerified = X509_verify_cert(chain) == 1;
    if (!isVerified && check->m_errors.isEmpty()) {
        check->m_errors.append(QSslError(QSslError::UnspecifiedError));
    }
    return check->m_errors.isEmpty();
}

// Goes on after each fault, to find the others.
int MrvCertificateCheck::collect(int isFine, void *store)
{
    if (!isFine) {
        auto *const chain = static_cast<X509_STORE_CTX *>(store);
        auto *const check =
            static_cast<MrvCertificateCheck *>(X509_STORE_CTX_get_ex_data(chain, checkIndex()));
        const QSslError error(
            errorOf(X509_STORE_CTX_get_error(chain)),
            QSslCertificate(derOf(X509_STORE_CTX_get_current_cert(chain)), QSsl::Der));
        if (!check->m_errors.contains(error)) {
            check->m_errors.append(error);
            const char *const reason =
                X509_verify_cert_error_string(X509_STORE_CTX_get_error(chain));
            const QString text = error.error() == QSslError::UnspecifiedError
                ? QString::fromLatin1(reason)
                : error.errorString();
            if (!check->m_texts.contains(text)) {
                check->m_texts.append(text);
            }
        }
    }
    return 1;
}
