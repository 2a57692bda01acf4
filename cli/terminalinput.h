#pragma once

#include "download/mrvdownloadurl.h"
#include "download/mrvdownloaduserinputabstract.h"

#include <QStringList>

/** Whether there is somebody at standard input who can be asked. */
bool canAsk();

/** Asks for a line on the terminal; null where there is none. */
QString askLine(const QString &prompt, bool isSecret = false);

/**
 * Answers the questions of a download from the command line, and asks on the terminal for the rest.
 */
class TerminalInput : public MRVDownloadUserInputAbstract
{
public:
    /** What was given on the command line. */
    struct Answers
    {
        bool follow = false;
        bool insecure = false;
        QString user;
        QString password; // null: not given
    };

    /** Both must outlive this. */
    TerminalInput(const Answers &answers, MRVDownloadUrl *download, const QUrl &url);

    bool authenticate(const QString &realm, const QUrl &url, QString *user,
                      QString *password) override;
    bool redirectTo(const QUrl &url) override;
    bool ignoreSslErrors(const QStringList &errors) override;

    /** Where the download was sent on to. */
    QStringList redirects() const { return m_redirects; }
    /** Why an answer ended the download; empty where none did. */
    QString reason() const { return m_reason; }

private:
    bool refuse(const QString &reason);

    const Answers &m_answers;
    MRVDownloadUrl *m_download;
    QUrl m_first;
    int m_passwords = 0;
    QStringList m_redirects;
    QString m_reason;
};
