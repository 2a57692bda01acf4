#include "update/mrvfiledigest_p.h"

#include "update/mrvplainfile_p.h"

namespace {

unsigned char *data(QByteArray *bytes)
{
    return reinterpret_cast<unsigned char *>(bytes->data());
}

} // namespace

MRVFileDigest::MRVFileDigest(const QString &path, Content content, qint64 keptBytes)
    : m_content(content)
    , m_keptBytes(keptBytes)
{
    // What fails here is seen by the file, which is not open then.
    if (sodium_init() >= 0) {
        mrvOpenPlain(&m_file, path, QIODevice::Unbuffered);
    }
    crypto_generichash_init(&m_blake2bState, nullptr, 0, crypto_generichash_BYTES_MAX);
    crypto_hash_sha256_init(&m_sha256State);
}

MRVFileDigest::State MRVFileDigest::addSlice()
{
    if (!m_file.isOpen()) {
        return Failed;
    }
    m_slice.resize(SliceSize);
    // A file may give fewer bytes than it was asked for before its end.
    int size = 0;
    while (size < SliceSize) {
        const qint64 more = m_file.read(m_slice.data() + size, SliceSize - size);
        if (more < 0) {
            return Failed;
        }
        if (more == 0) {
            break;
        }
        size += int(more);
    }
    m_size += size;
    const auto *const bytes = reinterpret_cast<const unsigned char *>(m_slice.constData());
    crypto_generichash_update(&m_blake2bState, bytes, quint64(size));
    if (m_content == HashAndSha256) {
        crypto_hash_sha256_update(&m_sha256State, bytes, quint64(size));
    }
    m_bytes += m_slice.left(int(qMin(qint64(size), m_keptBytes - m_bytes.size())));
    return size < SliceSize ? finish() : Reading;
}

MRVFileDigest::State MRVFileDigest::finish()
{
    m_file.close();
    m_blake2b.resize(crypto_generichash_BYTES_MAX);
    crypto_generichash_final(&m_blake2bState, data(&m_blake2b), crypto_generichash_BYTES_MAX);
    if (m_content == HashAndSha256) {
        m_sha256.resize(crypto_hash_sha256_BYTES);
        crypto_hash_sha256_final(&m_sha256State, data(&m_sha256));
    }
    return Finished;
}
