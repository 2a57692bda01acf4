#pragma once

#include "download/mrvdownloaduserinputabstract.h"
#include "util/mrvbase_export.h"

#include <QUrl>

/**
 * What may happen to a download that nobody watches: a few redirects are followed, over http and
 * https, and never from https down to http. Nobody is asked for a password, and no fault in an
 * encrypted connection is passed over.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVRedirectPolicy : public MRVDownloadUserInputAbstract
{
public:
    /** To be called before each download. */
    void start(const QUrl &url);
    /**
     * Whether the last download led to where it must not. What it delivers then is the redirect's
     * own page.
     */
    bool hasRefused() const { return m_hasRefused; }

    bool authenticate(const QString &realm, const QUrl &url, QString *user,
                      QString *password) override;
    bool redirectTo(const QUrl &url) override;
    bool ignoreSslErrors(const QStringList &errors) override;

private:
    QUrl m_url;
    int m_redirects = 0;
    bool m_hasRefused = false;
};
