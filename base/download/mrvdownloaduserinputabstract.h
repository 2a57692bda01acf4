#pragma once

#include "util/mrvbase_export.h"

#include <QString>
#include <QStringList>
#include <QUrl>

/**
 * Answers the questions of a download that need a person, or a policy in place of one.
 *
 * A handler may run an event loop of its own, such as that of a dialog. While it does, the download
 * may be cancelled, replaced by another one, or deleted; the answer then counts for nothing.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDownloadUserInputAbstract
{
public:
    virtual ~MRVDownloadUserInputAbstract();

    /**
     * Fills in what @p url asks for, or gives up. Asked again where the server refuses the answer.
     *
     * @param realm    what the server calls the protected area; the server's own words, so no
     *                 markup in them may be trusted.
     * @param user     holds the name that stands in the URL, and receives the one to send.
     * @param password likewise.
     * @return false to give up, which ends the download.
     */
    virtual bool authenticate(const QString &realm, const QUrl &url, QString *user,
                              QString *password) = 0;

    /** Whether to follow a redirect to @p url, which is absolute. Asked at every single one. */
    virtual bool redirectTo(const QUrl &url) = 0;

    /**
     * Whether to go on in spite of @p errors, which are sentences for the user: faults of a
     * certificate, or that a redirect leads from https to http.
     */
    virtual bool ignoreSslErrors(const QStringList &errors) = 0;
};
