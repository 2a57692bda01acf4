#pragma once

#include "http/mrvcertificatecheck_p.h"
#include "http/mrvhttptransfers_p.h"
#include "http/mrvtlsclosing_p.h"

#include <QByteArray>
#include <QList>
#include <QNetworkProxy>
#include <QPair>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

#include <curl/curl.h>

/** What is sent, and with what. */
struct MrvHttpPlan
{
    QUrl url;
    bool isHead = false;
    QList<QByteArray> headers; ///< lines, without line ends
    QString user; ///< null: no login
    QString password;
    QNetworkProxy proxy; ///< NoProxy, or one of the kinds that libcurl knows
    QByteArray caCertificates; ///< PEM; empty: the system's
    QByteArray acceptedCertificate; ///< the digest of the one that passes in spite of its errors
};

/**
 * One request to a server and what comes of it: libcurl sends it again by itself only for the steps
 * of an authentication.
 */
class MrvHttpTransfer final : public MrvHttpTransferClient
{
public:
    using Header = QPair<QByteArray, QByteArray>;

    /**
     * Begins.
     *
     * @param onChange called, never from a callback of libcurl, when there is more than before: the
     *                 head, a piece of the body, or the end. May delete this object.
     */
    MrvHttpTransfer(const MrvHttpPlan &plan, std::shared_ptr<MrvHttpTransfers> transfers,
                    std::function<void()> onChange);
    ~MrvHttpTransfer();
    Q_DISABLE_COPY(MrvHttpTransfer)

    CURL *handle() const override { return m_handle; }
    void setResult(CURLcode result) override;
    void tell() override;

    /** Whether status() and headers() are those of the answer, and not of one on the way to it. */
    bool hasHead() const;
    int status() const { return m_status; }
    QByteArray reason() const { return m_reason; }
    QList<Header> headers() const { return m_headers; }
    /** The first header of this name, in any case; null where there is none. */
    QByteArray header(const QByteArray &name) const;

    /** What has come of the body since the last call. */
    QByteArray takeBody();
    /** Stops the body from coming, and lets it come again. Not from a callback of libcurl. */
    void setPaused(bool isPaused);

    bool isDone() const { return m_isDone; }
    CURLcode result() const { return m_result; }
    /** What libcurl has to say about a failure; in English. */
    QString resultText() const;
    /** The error of the system that a connection failed with; 0: none. */
    int systemError() const;
    /** What the proxy answered to a request for a tunnel; 0: nothing. */
    int tunnelStatus() const;
    const MrvCertificateCheck &certificateCheck() const { return m_check; }

    /** What ended the transfer where libcurl would have gone on. */
    enum class Fault { None, HeaderBytes, HeaderLines, TwoLengths, NoLength, Logins, TlsEnd };
    Fault fault() const { return m_fault; }

private:
    static size_t onHeader(char *bytes, size_t, size_t count, void *self);
    static size_t onBody(char *bytes, size_t, size_t count, void *self);
    static CURLcode onTls(CURL *, void *context, void *self);
    void setOptions(const MrvHttpPlan &plan);
    void setTls(const MrvHttpPlan &plan);
    void setProxy(const QNetworkProxy &proxy);
    bool readLine(const QByteArray &line);
    bool readStatus(const QByteArray &line);
    bool addHeader(const QByteArray &line);
    bool checkLength(const QByteArray &length);

    std::shared_ptr<MrvHttpTransfers> m_transfers;
    std::function<void()> m_onChange;
    CURL *m_handle;
    const bool m_isHead; // a request that has no body
    curl_slist *m_sent = nullptr;
    MrvCertificateCheck m_check;
    std::shared_ptr<const bool> m_closing; // of the TLS connection
    char m_error[CURL_ERROR_SIZE] = {};

    int m_status = 0;
    QByteArray m_reason;
    QList<Header> m_headers;
    qint64 m_headerBytes = 0;
    bool m_isHeadWhole = false;
    int m_refusals = 0; // of logins
    Fault m_fault = Fault::None;
    QByteArray m_body;
    bool m_isDone = false;
    CURLcode m_result = CURLE_OK;
};
