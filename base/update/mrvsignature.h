#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

class QIODevice;

/**
 * A detached signature of a file, in minisign's format, whose own contents have been checked.
 *
 * Such a signature file holds an Ed25519 signature over the file's bytes (the older form) or over
 * their BLAKE2b-512 hash, a "trusted comment", and a second signature that covers the first one and
 * the comment. So the comment can be relied upon before the signed file is there. It is a list of
 * fields, "name:value", separated by tabs. minisign writes "timestamp" (seconds since 1970) and
 * "file"; a maker adds others with its option -t. The format is described in minisign(1).
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVSignature
{
    Q_DECLARE_TR_FUNCTIONS(MRVSignature)

public:
    /**
     * Of the older form, which needs all bytes in memory at once, a signature is only accepted for
     * files of up to so many bytes: 16 MiB.
     */
    static constexpr qint64 LargestUnhashed = qint64(16) << 20;

    /** A signature of nothing. */
    MRVSignature() = default;

    /**
     * The 42 bytes of a minisign public key (algorithm, key id, key); empty when it is none.
     *
     * @param text a key file's contents, or its line of base64 alone.
     */
    static QByteArray publicKey(const QByteArray &text);

    /**
     * Reads the signature file at @p path and checks that all of it was made with a key. A symbolic
     * link is not followed, and another user's file not read.
     *
     * @param key    of publicKey(); with an empty one nothing is signed.
     * @param reason receives why the result is null, as a translated end of a sentence; untouched
     *               otherwise. May be null.
     */
    static MRVSignature read(const QString &path, const QByteArray &key,
                             MRVErrorSink reason = nullptr);

    /** As read() with @p key and @p reason, of @p text, which such a file holds. */
    static MRVSignature fromText(const QByteArray &text, const QByteArray &key,
                                 MRVErrorSink reason = nullptr);

    /** Whether nothing is signed. */
    bool isNull() const { return m_ofFile.isEmpty(); }
    /**
     * The value of a field of the trusted comment; empty where the comment lacks the field, or has
     * it more than once.
     */
    QString field(const QString &name) const;
    /** When it was made, in seconds since 1970; 0 where the comment does not say so. */
    qint64 timestamp() const;
    /**
     * Whether the signature is over a hash, for isOfHash(), and not over the bytes, for
     * isOfBytes().
     */
    bool isHashed() const { return m_isHashed; }
    /** Whether these bytes are the signed file; for signatures of both forms. */
    bool isOfBytes(const QByteArray &bytes) const;
    /**
     * The same for what @p device, which is open, gives up to its end. Of a hashed signature it is
     * not kept in memory.
     */
    bool isOf(QIODevice *device) const;
    /**
     * Whether a file with this BLAKE2b-512 hash is the signed one; false where the signature is not
     * over a hash.
     */
    bool isOfHash(const QByteArray &blake2b) const;

private:
    const char *fault(const QByteArray &text, const QByteArray &key);
    bool verify(const QByteArray &signature, const QByteArray &message) const;

    bool m_isHashed = false;
    QByteArray m_key;
    QByteArray m_ofFile;
    QByteArray m_comment;
};
