#pragma once

#include "http/mrvhttpaccess.h"
#include "mrvpicturereply.h"

#include <QTimer>
#include <QUrl>

/**
 * Fetches the pictures of release notes, and nothing else.
 *
 * A web engine decodes whatever it gets, and asks for as much as a page names. So each reply is a
 * picture that MRVPictureReader has decoded, in PNG, and all of them together have limits: 3 MB of
 * bytes, 16 million pixels, 30 seconds from the making of this object. What is beyond ends with an
 * error. Pictures come over http and https, but to a page on https only encrypted, and from "data:"
 * addresses.
 */
class MRVPictureAccess : public MRVHttpAccess
{
public:
    /** @param page the address of the page that shows the pictures. */
    MRVPictureAccess(const QUrl &page, QObject *parent);

protected:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &request,
                                 QIODevice *body) override;

private:
    bool isAllowed(const QUrl &url) const;

    const bool m_isEncrypted;
    MRVPictureBudget m_budget;
    QTimer m_deadline;
};
