#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <sodium.h>

/**
 * The hashes of a downloaded file, computed in slices, so that a window can be kept alive
 * meanwhile. The file is opened as by mrvOpenPlain(), and read once from its beginning to its end.
 */
class MRVFileDigest
{
public:
    enum State { Reading, Finished, Failed };
    enum Content {
        Hash, ///< BLAKE2b-512 only
        HashAndSha256,
    };
    /** Bytes of a slice, which takes some 5 ms. A file that is smaller needs one slice. */
    static constexpr int SliceSize = 1 << 20;

    /** @param keptBytes how many bytes of the file are wanted in bytes(), from its beginning. */
    explicit MRVFileDigest(const QString &path, Content content = Hash, qint64 keptBytes = 0);

    /**
     * Reads the next slice; not to be called after the last one, for which it says Finished.
     * Failed where the file cannot be opened or read.
     */
    State addSlice();

    /** Bytes that were read. */
    qint64 size() const { return m_size; }
    /** BLAKE2b-512 of the file, once finished. */
    QByteArray blake2b() const { return m_blake2b; }
    /** SHA-256 of the file, once finished; empty if it was not asked for. */
    QByteArray sha256() const { return m_sha256; }
    /** The beginning of the file, as far as it was asked for. */
    QByteArray bytes() const { return m_bytes; }

private:
    State finish();

    QFile m_file;
    Content m_content;
    qint64 m_keptBytes;
    qint64 m_size = 0;
    QByteArray m_slice;
    QByteArray m_bytes;
    QByteArray m_blake2b;
    QByteArray m_sha256;
    crypto_generichash_state m_blake2bState;
    crypto_hash_sha256_state m_sha256State;
};
