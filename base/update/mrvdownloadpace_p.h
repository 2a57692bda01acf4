#pragma once

#include <QCoreApplication>
#include <QString>
#include <QVector>

class QLocale;

/**
 * How fast a download comes in, and how long it will still take, in words that stay steady: the
 * speed is that of the last ten seconds, and the time is rounded the more the longer it is.
 */
class MRVDownloadPace
{
    Q_DECLARE_TR_FUNCTIONS(MRVCheckForUpdatesDialog)

public:
    /** A total that is not known is 0 or less. */
    void setBytes(qint64 bytes, qint64 total);
    /**
     * To be called about once a second, from when the first bytes are known; what has come before
     * that, as of a download that is resumed, does not count as speed.
     *
     * @param milliseconds of any clock that does not go back.
     */
    void tick(qint64 milliseconds);
    bool hasBegun() const { return m_bytes >= 0; }
    /** Such as "1.5 MB of 3.0 MB, 0.5 MB/s, 3 seconds left", as far as it is known. */
    QString text(const QLocale &locale) const;

private:
    struct Sample
    {
        qint64 milliseconds;
        qint64 bytes;
    };

    qint64 bytesPerSecond() const;
    QString timeLeft(qint64 speed) const;

    qint64 m_bytes = -1;
    qint64 m_total = 0;
    QVector<Sample> m_samples; // in order; those of the last ten seconds
};
