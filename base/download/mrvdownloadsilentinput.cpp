#include "download/mrvdownloadsilentinput.h"

MRVDownloadSilentInput::MRVDownloadSilentInput(bool ignoreSsl, bool followRedirects,
                                               const QString &user, const QString &password,
                                               QObject *parent)
    : QObject(parent)
    , m_ignoreSsl(ignoreSsl)
    , m_followRedirects(followRedirects)
    , m_user(user)
    , m_password(password)
{
}

bool MRVDownloadSilentInput::authenticate(const QString &, const QUrl &, QString *user,
                                          QString *password)
{
    if (user) {
        *user = m_user;
    }
    if (password) {
        *password = m_password;
    }
    return true;
}

bool MRVDownloadSilentInput::redirectTo(const QUrl &)
{
    return m_followRedirects;
}

bool MRVDownloadSilentInput::ignoreSslErrors(const QStringList &)
{
    return m_ignoreSsl;
}
