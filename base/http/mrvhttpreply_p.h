#pragma once

#include "http/mrvhttpcontext_p.h"
#include "http/mrvhttptransfer_p.h"
#include "http/mrvunpacker_p.h"

#include <QElapsedTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QSslError>

#include <memory>

/**
 * The answer to one request, after as many transfers as its questions need: one more for each login
 * and one for a certificate that is accepted.
 *
 * All signals are emitted by advance() and what it calls. After each of them this object may be
 * gone or over, which isGone() tells.
 */
class MrvHttpReply : public QNetworkReply
{
    Q_OBJECT

public:
    MrvHttpReply(QNetworkAccessManager *manager, std::shared_ptr<MrvHttpContext> context,
                 QNetworkAccessManager::Operation operation, const QNetworkRequest &request);
    ~MrvHttpReply() override;

    void abort() override;
    void close() override;
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override;
    void setReadBufferSize(qint64 size) override;
    void ignoreSslErrors() override { m_ignoresAll = true; }

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    void ignoreSslErrorsImplementation(const QList<QSslError> &errors) override
    {
        m_ignored = errors;
    }

private:
    void start();
    QString refusal();
    void transfer();
    MrvHttpPlan plan() const;
    QNetworkProxy proxyFor(const QUrl &url) const;
    void advance();
    void advanceLater();
    void takeHeaders();
    bool asksForLogin() const;
    void takeBody();
    void holdBack();
    void tellProgress();
    void conclude();
    void askAboutCertificate();
    void askForLogin();
    void askForProxyLogin();
    bool isAnotherLogin(const QString &user, const QString &password, QString *lastUser,
                        QString *lastPassword);
    void finishTransfer();
    void finishFailed();
    void finish(NetworkError error = NoError, const QString &text = QString());

    QPointer<QNetworkAccessManager> m_manager;
    std::shared_ptr<MrvHttpContext> m_context;
    std::unique_ptr<MrvHttpTransfer> m_transfer;

    bool m_hasHead = false;
    qint64 m_unread = 0; // of a page that comes with a question
    std::unique_ptr<MrvUnpacker> m_unpacker;
    QByteArray m_buffer;
    int m_read = 0; // how much of the buffer
    qint64 m_received = 0;
    qint64 m_total = -1;
    bool m_isPaused = false;
    QElapsedTimer m_sinceProgress;

    int m_logins = 0;
    int m_certificates = 0; // that somebody was asked about
    QString m_place; // what a login was asked for: the server and the realm
    QString m_user;
    QString m_password;
    QNetworkProxy m_proxy;
    bool m_ignoresAll = false;
    QList<QSslError> m_ignored;
    QByteArray m_acceptedCertificate;
};
