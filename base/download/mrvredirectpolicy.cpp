#include "download/mrvredirectpolicy.h"

#include <QStringList>

namespace {

constexpr int MaxRedirects = 10;

} // namespace

void MRVRedirectPolicy::start(const QUrl &url)
{
    m_url = url;
    m_redirects = 0;
    m_hasRefused = false;
}

bool MRVRedirectPolicy::authenticate(const QString &, const QUrl &, QString *, QString *)
{
    return false;
}

bool MRVRedirectPolicy::redirectTo(const QUrl &url)
{
    const QLatin1String encrypted("https");
    const bool isPlain = url.scheme() == QLatin1String("http") && m_url.scheme() != encrypted;
    m_hasRefused = ++m_redirects > MaxRedirects || (url.scheme() != encrypted && !isPlain);
    m_url = url;
    return !m_hasRefused;
}

bool MRVRedirectPolicy::ignoreSslErrors(const QStringList &)
{
    return false;
}
