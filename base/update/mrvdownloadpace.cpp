#include "update/mrvdownloadpace_p.h"

#include <QLocale>

namespace {

constexpr qint64 Window = 10000; // milliseconds
constexpr qint64 ShortestWindow = 1500; // the speed of less is not worth telling
constexpr qint64 FewSeconds = 10;
constexpr qint64 SecondsStep = 5;
constexpr qint64 Minute = 60;
constexpr qint64 Hour = 60 * Minute;
constexpr qint64 LongestTime = 100 * Hour;

qint64 roundedUp(qint64 value, qint64 step)
{
    return (value + step - 1) / step;
}

QString sizeText(qint64 bytes, const QLocale &locale)
{
    return locale.formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

} // namespace

void MRVDownloadPace::setBytes(qint64 bytes, qint64 total)
{
    m_bytes = qMax(qint64(0), bytes);
    m_total = total < m_bytes ? 0 : total;
}

void MRVDownloadPace::tick(qint64 milliseconds)
{
    if (!hasBegun()) {
        return;
    }
    // A download that begins again at its first byte.
    if (!m_samples.isEmpty() && m_bytes < m_samples.constLast().bytes) {
        m_samples.clear();
    }
    m_samples.append({milliseconds, m_bytes});
    while (m_samples.size() > 2 && milliseconds - m_samples.at(1).milliseconds >= Window) {
        m_samples.removeFirst();
    }
}

// -1 where it is not known yet.
qint64 MRVDownloadPace::bytesPerSecond() const
{
    if (m_samples.isEmpty()) {
        return -1;
    }
    const Sample first = m_samples.constFirst();
    const Sample last = m_samples.constLast();
    const qint64 time = last.milliseconds - first.milliseconds;
    return time < ShortestWindow ? -1 : qint64((last.bytes - first.bytes) * 1000.0 / time);
}

QString MRVDownloadPace::timeLeft(qint64 speed) const
{
    const qint64 seconds = speed > 0 ? roundedUp(m_total - m_bytes, speed) : LongestTime;
    if (m_total <= 0 || seconds >= LongestTime) {
        return QString();
    }
    // Rounded up, so that there is never one of something left.
    if (seconds <= FewSeconds) {
        return tr("a few seconds left");
    }
    if (seconds <= Minute) {
        return tr("%n seconds left", nullptr, int(roundedUp(seconds, SecondsStep) * SecondsStep));
    }
    if (seconds <= 2 * Hour) {
        return tr("%n minutes left", nullptr, int(roundedUp(seconds, Minute)));
    }
    return tr("%n hours left", nullptr, int(roundedUp(seconds, Hour)));
}

QString MRVDownloadPace::text(const QLocale &locale) const
{
    if (!hasBegun()) {
        return QString();
    }
    const QString bytes = sizeText(m_bytes, locale);
    const QString ofAll =
        m_total > 0 ? tr("%1 of %2").arg(bytes, sizeText(m_total, locale)) : bytes;
    const qint64 speed = bytesPerSecond();
    if (speed < 0) {
        return ofAll;
    }
    const QString left = timeLeft(speed);
    return left.isEmpty() ? tr("%1, %2/s").arg(ofAll, sizeText(speed, locale))
                          : tr("%1, %2/s, %3").arg(ofAll, sizeText(speed, locale), left);
}
