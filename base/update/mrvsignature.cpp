#include "update/mrvsignature_p.h"

#include "update/mrvplainfile_p.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QList>

#include <cstring>

#include <sodium.h>

namespace {

constexpr int AlgorithmSize = 2;
constexpr int KeyIdSize = 8;
constexpr int HeadSize = AlgorithmSize + KeyIdSize;
constexpr int KeySize = HeadSize + int(crypto_sign_PUBLICKEYBYTES);
constexpr int SignatureSize = int(crypto_sign_BYTES);
constexpr int HashSize = int(crypto_generichash_BYTES_MAX);
// Four lines, two of which are comments that may be a page long.
constexpr int MaxSignatureFile = 16 * 1024;

struct Signature
{
    bool isHashed = false;
    QByteArray keyId;
    QByteArray ofFile;
    QByteArray trustedComment;
    QByteArray ofComment; // over ofFile and trustedComment
};

QString reasonText(const char *text)
{
    return QCoreApplication::translate("MRVUpdateModel", text);
}

const unsigned char *data(const QByteArray &bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.constData());
}

// Empty when it is not base64, or not of the expected number of bytes.
QByteArray decoded(const QByteArray &line, int size)
{
    const auto result =
        QByteArray::fromBase64Encoding(line, QByteArray::AbortOnBase64DecodingErrors);
    return result && result.decoded.size() == size ? result.decoded : QByteArray();
}

QList<QByteArray> linesOf(QByteArray text)
{
    return text.replace("\r\n", "\n").split('\n');
}

bool readSignature(const QString &path, Signature *signature)
{
    QFile file;
    if (!mrvOpenPlain(&file, path)) {
        return false;
    }
    const QByteArray text = file.read(MaxSignatureFile + 1);
    const QList<QByteArray> lines = linesOf(text);
    const QByteArray label = QByteArrayLiteral("trusted comment: ");
    if (text.size() > MaxSignatureFile || lines.size() < 4 || !lines.at(2).startsWith(label)) {
        return false;
    }
    const QByteArray body = decoded(lines.at(1).trimmed(), HeadSize + SignatureSize);
    signature->ofComment = decoded(lines.at(3).trimmed(), SignatureSize);
    signature->trustedComment = lines.at(2).mid(label.size());
    signature->isHashed = body.startsWith("ED");
    signature->keyId = body.mid(AlgorithmSize, KeyIdSize);
    signature->ofFile = body.mid(HeadSize);
    return (signature->isHashed || body.startsWith("Ed")) && !signature->ofComment.isEmpty();
}

bool verify(const QByteArray &signature, const unsigned char *message, qint64 size,
            const QByteArray &key)
{
    return crypto_sign_verify_detached(data(signature), message, quint64(size),
                                       data(key) + HeadSize)
        == 0;
}

bool verifyHash(QFile *file, const QByteArray &signature, const QByteArray &key,
                QCryptographicHash *digest)
{
    constexpr int PieceSize = 1 << 16;
    crypto_generichash_state state;
    crypto_generichash_init(&state, nullptr, 0, HashSize);
    QByteArray piece(PieceSize, Qt::Uninitialized);
    qint64 size = 0;
    while ((size = file->read(piece.data(), PieceSize)) > 0) {
        crypto_generichash_update(&state, data(piece), quint64(size));
        digest->addData(piece.constData(), int(size));
    }
    QByteArray hash(HashSize, Qt::Uninitialized);
    crypto_generichash_final(&state, reinterpret_cast<unsigned char *>(hash.data()), HashSize);
    return size == 0 && verify(signature, data(hash), HashSize, key);
}

bool verifyFile(QFile *file, const Signature &signature, const QByteArray &key,
                QCryptographicHash *digest)
{
    if (signature.isHashed) {
        return verifyHash(file, signature.ofFile, key, digest);
    }
    // The older form needs all the bytes at once. The file is not mapped, since a mapping would
    // show what another process writes meanwhile.
    const QByteArray bytes = file->readAll();
    digest->addData(bytes);
    return verify(signature.ofFile, data(bytes), bytes.size(), key);
}

bool namesFile(const QByteArray &comment, const QString &name)
{
    return comment.split('\t').contains("file:" + name.toUtf8());
}

} // namespace

QByteArray mrvPublicKey(const QByteArray &text)
{
    const QList<QByteArray> lines = linesOf(text.trimmed());
    if (lines.size() > 2
        || (lines.size() == 2 && !lines.constFirst().startsWith("untrusted comment:"))) {
        return QByteArray();
    }
    const QByteArray key = decoded(lines.constLast().trimmed(), KeySize);
    return key.startsWith("Ed") ? key : QByteArray();
}

bool mrvIsSigned(const QString &file, const QString &signatureFile, const QByteArray &key,
                 const QString &expectedName, QByteArray *digest, QString *reason)
{
    digest->clear();
    QCryptographicHash hash(QCryptographicHash::Sha256);
    Signature signature;
    QFile signedFile;
    const char *fault = nullptr;
    if (key.size() != KeySize || sodium_init() < 0) {
        fault = QT_TRANSLATE_NOOP("MRVUpdateModel", "no valid key is set to check it with");
    } else if (!mrvOpenPlain(&signedFile, file)) {
        fault = QT_TRANSLATE_NOOP("MRVUpdateModel", "the installer cannot be read");
    } else if (!readSignature(signatureFile, &signature)) {
        fault = QT_TRANSLATE_NOOP("MRVUpdateModel", "the signature cannot be read");
    } else if (signature.keyId != key.mid(AlgorithmSize, KeyIdSize)) {
        fault = QT_TRANSLATE_NOOP("MRVUpdateModel", "it was made with another key");
    } else if (!verifyFile(&signedFile, signature, key, &hash)) {
        fault = QT_TRANSLATE_NOOP("MRVUpdateModel", "it is not this installer's");
    } else {
        const QByteArray message = signature.ofFile + signature.trustedComment;
        if (!verify(signature.ofComment, data(message), message.size(), key)) {
            fault = QT_TRANSLATE_NOOP("MRVUpdateModel", "its comment was altered");
        } else if (!namesFile(signature.trustedComment, expectedName)) {
            fault = QT_TRANSLATE_NOOP("MRVUpdateModel", "it was made for another file");
        }
    }
    if (fault) {
        *reason = reasonText(fault);
        return false;
    }
    *digest = hash.result();
    return true;
}
