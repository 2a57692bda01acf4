#include "update/mrvsignature.h"

#include "update/mrvplainfile_p.h"
#include "util/mrvfailure.h"

#include <QFile>
#include <QList>

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
constexpr int PieceSize = 1 << 16;

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

} // namespace

QByteArray MRVSignature::publicKey(const QByteArray &text)
{
    const QList<QByteArray> lines = linesOf(text.trimmed());
    if (lines.size() > 2
        || (lines.size() == 2 && !lines.constFirst().startsWith("untrusted comment:"))) {
        return QByteArray();
    }
    const QByteArray key = decoded(lines.constLast().trimmed(), KeySize);
    return key.startsWith("Ed") ? key : QByteArray();
}

MRVSignature MRVSignature::read(const QString &path, const QByteArray &key, MRVErrorSink reason)
{
    QFile file;
    const bool isOpen = mrvOpenPlain(&file, path);
    return fromText(isOpen ? file.read(MaxSignatureFile + 1) : QByteArray(), key, reason);
}

MRVSignature MRVSignature::fromText(const QByteArray &text, const QByteArray &key,
                                    MRVErrorSink reason)
{
    MRVSignature signature;
    const char *const fault = signature.fault(text, key);
    if (!fault) {
        return signature;
    }
    MRV::fail(reason, MRVErrorKind::Damaged, tr(fault));
    return MRVSignature();
}

// Takes over what the text holds; null when all is as it should be.
const char *MRVSignature::fault(const QByteArray &text, const QByteArray &key)
{
    if (key.size() != KeySize || sodium_init() < 0) {
        return QT_TR_NOOP("no valid key is set to check it with");
    }
    const QList<QByteArray> lines = linesOf(text);
    const QByteArray label = QByteArrayLiteral("trusted comment: ");
    const QByteArray body = decoded(lines.value(1).trimmed(), HeadSize + SignatureSize);
    const QByteArray ofComment = decoded(lines.value(3).trimmed(), SignatureSize);
    m_isHashed = body.startsWith("ED");
    if (text.size() > MaxSignatureFile || !lines.value(2).startsWith(label) || ofComment.isEmpty()
        || !(m_isHashed || body.startsWith("Ed"))) {
        return QT_TR_NOOP("the signature cannot be read");
    }
    if (body.mid(AlgorithmSize, KeyIdSize) != key.mid(AlgorithmSize, KeyIdSize)) {
        return QT_TR_NOOP("it was made with another key");
    }
    m_key = key.mid(HeadSize);
    m_ofFile = body.mid(HeadSize);
    m_comment = lines.at(2).mid(label.size());
    return verify(ofComment, m_ofFile + m_comment) ? nullptr : QT_TR_NOOP("it was altered");
}

bool MRVSignature::verify(const QByteArray &signature, const QByteArray &message) const
{
    return crypto_sign_verify_detached(data(signature), data(message), quint64(message.size()),
                                       data(m_key))
        == 0;
}

QString MRVSignature::field(const QString &name) const
{
    const QByteArray label = name.toUtf8() + ':';
    QByteArray value;
    int count = 0;
    const QList<QByteArray> fields = m_comment.split('\t');
    for (const QByteArray &field : fields) {
        if (field.startsWith(label)) {
            value = field.mid(label.size());
            ++count;
        }
    }
    return count == 1 ? QString::fromUtf8(value) : QString();
}

qint64 MRVSignature::timestamp() const
{
    return qMax(qint64(0), field(QStringLiteral("timestamp")).toLongLong());
}

bool MRVSignature::isOfBytes(const QByteArray &bytes) const
{
    if (!m_isHashed) {
        return !isNull() && bytes.size() <= LargestUnhashed && verify(m_ofFile, bytes);
    }
    QByteArray hash(HashSize, Qt::Uninitialized);
    crypto_generichash(reinterpret_cast<unsigned char *>(hash.data()), HashSize, data(bytes),
                       quint64(bytes.size()), nullptr, 0);
    return isOfHash(hash);
}

bool MRVSignature::isOf(QIODevice *device) const
{
    if (!m_isHashed) {
        return isOfBytes(device->read(LargestUnhashed + 1));
    }
    crypto_generichash_state state;
    crypto_generichash_init(&state, nullptr, 0, HashSize);
    QByteArray piece(PieceSize, Qt::Uninitialized);
    qint64 size = 0;
    while ((size = device->read(piece.data(), PieceSize)) > 0) {
        crypto_generichash_update(&state, data(piece), quint64(size));
    }
    QByteArray hash(HashSize, Qt::Uninitialized);
    crypto_generichash_final(&state, reinterpret_cast<unsigned char *>(hash.data()), HashSize);
    return size == 0 && isOfHash(hash);
}

bool MRVSignature::isOfHash(const QByteArray &blake2b) const
{
    return m_isHashed && blake2b.size() == HashSize && verify(m_ofFile, blake2b);
}
