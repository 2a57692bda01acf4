#pragma once

#include "http/mrvhttptransfers_p.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QPair>
#include <QString>

class QNetworkCookieJar;
class QNetworkRequest;

/** What the replies of one access manager share. */
struct MrvHttpContext
{
    using Login = QPair<QString, QString>; // user and password

    std::shared_ptr<MrvHttpTransfers> transfers = std::make_shared<MrvHttpTransfers>();
    QByteArray caCertificates; ///< PEM; empty: the system's
    QHash<QString, Login> logins; ///< by server and realm
};

/**
 * The header lines of a request: its own, without those that hold line ends, and what each request
 * has besides.
 *
 * @param cookies may be null.
 */
QList<QByteArray> mrvHttpHeaders(const QNetworkRequest &request, const QNetworkCookieJar *cookies);
