#include "mrvpictureaccess.h"

namespace {

// The library has fetched the page itself, of a megabyte at most.
constexpr qint64 MostBytes = 3 * 1024 * 1024;
constexpr qint64 MostPixels = 16 * 1000 * 1000;
constexpr int MostTime = 30000; // milliseconds

} // namespace

MRVPictureAccess::MRVPictureAccess(const QUrl &page, QObject *parent)
    : MRVHttpAccess(parent)
    , m_isEncrypted(page.scheme() == QLatin1String("https"))
    , m_budget{MostBytes, MostPixels}
{
    m_deadline.setSingleShot(true);
    m_deadline.start(MostTime);
}

bool MRVPictureAccess::isAllowed(const QUrl &url) const
{
    const QString scheme = url.scheme();
    return m_deadline.isActive() && m_budget.bytes > 0 && m_budget.pixels > 0
        && (scheme == QLatin1String("https") || scheme == QLatin1String("data")
            || (scheme == QLatin1String("http") && !m_isEncrypted));
}

QNetworkReply *MRVPictureAccess::createRequest(Operation operation, const QNetworkRequest &request,
                                               QIODevice *body)
{
    // A request for no address ends with an error.
    QNetworkReply *const source = MRVHttpAccess::createRequest(
        operation, isAllowed(request.url()) ? request : QNetworkRequest(QUrl()), body);
    auto *const reply = new MRVPictureReply(source, &m_budget, this);
    connect(&m_deadline, &QTimer::timeout, reply, &QNetworkReply::abort);
    return reply;
}
