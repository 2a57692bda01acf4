#pragma once

#include <QByteArray>
#include <QList>
#include <QSslError>
#include <QString>
#include <QStringList>

/**
 * Looks at the certificates of one connection, and keeps everything that is wrong with them, where
 * libcurl would stop at the first fault.
 */
class MrvCertificateCheck
{
public:
    /**
     * @param host     that the certificate must name, a name in ASCII or an address.
     * @param accepted the digest() of the one certificate that passes whatever is wrong with it.
     */
    MrvCertificateCheck(const QString &host, const QByteArray &accepted);

    /**
     * Has the connections of a context, an SSL_CTX, checked by this object, which must live until
     * their handshakes are over; there are no later ones.
     */
    void install(void *context);

    /** Empty until a certificate was refused. */
    QList<QSslError> errors() const { return m_errors; }
    /** What is wrong, for the user: Qt's texts, or OpenSSL's where Qt has none. */
    QStringList texts() const { return m_texts; }
    /** Which server's certificate it was: SHA-256 of it. Empty before there was one. */
    QByteArray digest() const { return m_digest; }

private:
    static int verify(void *store, void *self);
    static int collect(int isFine, void *store);

    QString m_host;
    QByteArray m_accepted;
    QList<QSslError> m_errors;
    QStringList m_texts;
    QByteArray m_digest;
};
