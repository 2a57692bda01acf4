#pragma once

#include "download/mrvdownloaduserinputabstract.h"

#include <QObject>

/**
 * Answers the questions of a download from values that were given beforehand.
 *
 * The user and the password go to whichever server asks for them, also after a redirect.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDownloadSilentInput : public QObject, public MRVDownloadUserInputAbstract
{
    Q_OBJECT

public:
    /**
     * @param ignoreSsl whether SSL errors are passed over.
     * @param followRedirects whether all redirects are followed, from https to http only with
     *                        @p ignoreSsl.
     * @param user and @p password: given to every server that asks for them.
     */
    MRVDownloadSilentInput(bool ignoreSsl, bool followRedirects, const QString &user,
                           const QString &password, QObject *parent = nullptr);

    /** Gives the user and the password; either pointer may be null. Always true. */
    bool authenticate(const QString &realm, const QUrl &url, QString *user,
                      QString *password) override;
    bool redirectTo(const QUrl &url) override;
    bool ignoreSslErrors(const QStringList &errors) override;

private:
    bool m_ignoreSsl;
    bool m_followRedirects;
    QString m_user;
    QString m_password;
};
