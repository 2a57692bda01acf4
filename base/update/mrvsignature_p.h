#pragma once

#include <QByteArray>
#include <QString>

/*
 * Detached signatures in minisign's format: Ed25519 over a file's bytes ("Ed") or over their
 * BLAKE2b-512 hash ("ED"), and a second signature that covers the first one and the trusted
 * comment. The format is described in minisign(1).
 */

/**
 * The 42 bytes of a minisign public key (algorithm, key id, key); empty when it is none.
 *
 * @param text a key file's contents, or its line of base64 alone.
 */
QByteArray mrvPublicKey(const QByteArray &text);

/**
 * Whether a file carries a valid signature. Symbolic links are not followed.
 *
 * @param key          of mrvPublicKey(); with an empty one nothing is signed.
 * @param expectedName what the trusted comment must name as the signed file ("file:NAME", which
 *                     minisign writes by itself), so that no other file of the same maker, such as
 *                     an older one, passes for this one.
 * @param digest       receives the SHA-256 of the very bytes that are signed, which are read once;
 *                     empty when they are not signed. Must not be null.
 * @param reason       receives why it is not, translated; untouched otherwise. Must not be null.
 */
bool mrvIsSigned(const QString &file, const QString &signatureFile, const QByteArray &key,
                 const QString &expectedName, QByteArray *digest, QString *reason);
