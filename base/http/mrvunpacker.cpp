#include "http/mrvunpacker_p.h"

#include <zlib.h>

namespace {

constexpr int HeaderSize = 2; // of the beginning by which the kinds of deflate are told apart
constexpr int GzipHeader = 16; // added to the window's bits; zlib.h, inflateInit2()

// Two bytes, RFC 1950, 2.2. Some servers send "deflate" without them.
bool hasZlibHeader(const QByteArray &bytes)
{
    return bytes.size() >= HeaderSize
        && ((uchar(bytes.at(0)) & 0x0f) == Z_DEFLATED
            && ((uchar(bytes.at(0)) << 8) | uchar(bytes.at(1))) % 31 == 0);
}

} // namespace

struct MrvUnpacker::Stream : z_stream
{
    Stream()
        : z_stream()
    {
    }
    ~Stream() { inflateEnd(this); }
    Q_DISABLE_COPY(Stream)
};

bool MrvUnpacker::isKnown(const QByteArray &coding)
{
    const QByteArray name = coding.toLower();
    return name == "gzip" || name == "x-gzip" || name == "deflate";
}

MrvUnpacker::MrvUnpacker(const QByteArray &coding)
    : m_isGzip(coding.toLower() != "deflate")
{
}

MrvUnpacker::~MrvUnpacker() = default;

void MrvUnpacker::add(const QByteArray &packed)
{
    m_packed.remove(0, m_at);
    m_at = 0;
    m_packed += packed;
}

bool MrvUnpacker::hasMore() const
{
    const int left = m_packed.size() - m_at;
    const bool canBegin = m_stream ? left > 0 : left >= HeaderSize;
    return !m_isDamaged && (canBegin || (m_isFull && !m_isAtEnd));
}

bool MrvUnpacker::isWhole() const
{
    const bool isNothing = !m_stream && m_packed.isEmpty();
    return isNothing || (m_isAtEnd && !m_isDamaged && m_at == m_packed.size());
}

bool MrvUnpacker::begin()
{
    m_stream = std::make_unique<Stream>();
    const int window = m_isGzip             ? MAX_WBITS + GzipHeader
        : hasZlibHeader(m_packed.mid(m_at)) ? MAX_WBITS
                                            : -MAX_WBITS;
    return inflateInit2(m_stream.get(), window) == Z_OK;
}

QByteArray MrvUnpacker::take(int size)
{
    QByteArray result(size, Qt::Uninitialized);
    int done = 0;
    while (hasMore() && done < size) {
        // Some pad with zeros, as gzip itself allows.
        while (m_isAtEnd && m_at < m_packed.size() && m_packed.at(m_at) == '\0') {
            ++m_at;
        }
        if (m_isAtEnd && m_at == m_packed.size()) {
            break;
        }
        // A packed body may be several, one after another; RFC 1952, 2.2.
        if (!m_stream || m_isAtEnd) {
            m_isDamaged = !begin();
            m_isAtEnd = false;
        }
        if (m_isDamaged) {
            break;
        }
        m_stream->next_in = reinterpret_cast<Bytef *>(m_packed.data() + m_at);
        m_stream->avail_in = uInt(m_packed.size() - m_at);
        m_stream->next_out = reinterpret_cast<Bytef *>(result.data() + done);
        m_stream->avail_out = uInt(size - done);
        const int state = inflate(m_stream.get(), Z_NO_FLUSH);
        m_at = m_packed.size() - int(m_stream->avail_in);
        done = size - int(m_stream->avail_out);
        m_isAtEnd = state == Z_STREAM_END;
        m_isDamaged = !m_isAtEnd && state != Z_OK && state != Z_BUF_ERROR;
        m_isFull = m_stream->avail_out == 0;
    }
    result.truncate(done);
    return result;
}
