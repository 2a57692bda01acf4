#pragma once

#include <QByteArray>

#include <memory>

/** Unpacks a body that was packed by gzip or deflate, as it comes in. */
class MrvUnpacker
{
public:
    /** @param coding the value of a Content-Encoding. */
    static bool isKnown(const QByteArray &coding);

    explicit MrvUnpacker(const QByteArray &coding);
    ~MrvUnpacker();

    /** More of the packed body. */
    void add(const QByteArray &packed);
    /** Whether take() has work to do. */
    bool hasMore() const;
    /** Unpacks at most @p size bytes of what was added. */
    QByteArray take(int size);
    /** Whether all that was added is whole and well. */
    bool isWhole() const;
    bool isDamaged() const { return m_isDamaged; }

private:
    struct Stream;

    bool begin();

    std::unique_ptr<Stream> m_stream;
    bool m_isGzip;
    QByteArray m_packed;
    int m_at = 0; // up to where it was unpacked
    bool m_isFull = false; // the last piece, so that there may be more of it
    bool m_isAtEnd = false;
    bool m_isDamaged = false;
};
