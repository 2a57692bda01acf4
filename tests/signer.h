#pragma once

#include <QByteArray>

#include <sodium.h>

/** A maker's key pair, and signatures as minisign makes them. */
class Signer
{
public:
    /** Makers with the same seed have the same key; the key id is of all alike, unless given. */
    explicit Signer(char seed, const QByteArray &keyId = "maker id")
        : m_keyId(keyId)
        , m_public(crypto_sign_PUBLICKEYBYTES, '\0')
        , m_secret(crypto_sign_SECRETKEYBYTES, '\0')
    {
        const QByteArray seeds(crypto_sign_SEEDBYTES, seed);
        if (sodium_init() >= 0) {
            crypto_sign_seed_keypair(data(m_public), data(m_secret), constData(seeds));
        }
    }

    QByteArray publicKey() const { return ("Ed" + m_keyId + m_public).toBase64(); }

    QByteArray sign(const QByteArray &bytes, const QByteArray &comment, bool isHashed = true) const
    {
        QByteArray hash(crypto_generichash_BYTES_MAX, '\0');
        crypto_generichash(data(hash), size_t(hash.size()), constData(bytes), quint64(bytes.size()),
                           nullptr, 0);
        const QByteArray ofFile = signature(isHashed ? hash : bytes);
        return "untrusted comment: x\n" + ((isHashed ? "ED" : "Ed") + m_keyId + ofFile).toBase64()
            + "\ntrusted comment: " + comment + '\n' + signature(ofFile + comment).toBase64()
            + '\n';
    }

private:
    static unsigned char *data(QByteArray &bytes)
    {
        return reinterpret_cast<unsigned char *>(bytes.data());
    }
    static const unsigned char *constData(const QByteArray &bytes)
    {
        return reinterpret_cast<const unsigned char *>(bytes.constData());
    }

    QByteArray signature(const QByteArray &message) const
    {
        QByteArray result(crypto_sign_BYTES, '\0');
        crypto_sign_detached(data(result), nullptr, constData(message), quint64(message.size()),
                             constData(m_secret));
        return result;
    }

    QByteArray m_keyId;
    QByteArray m_public;
    QByteArray m_secret;
};
