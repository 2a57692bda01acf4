#pragma once

#include <QHash>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <memory>

#include <curl/curl.h>

class QSocketNotifier;

/** One of the transfers, as libcurl and the event loop see it. */
class MrvHttpTransferClient
{
public:
    virtual CURL *handle() const = 0;
    /** It has ended. */
    virtual void setResult(CURLcode result) = 0;
    /** There is something new, and libcurl is not at work. May delete this object. */
    virtual void tell() = 0;

protected:
    ~MrvHttpTransferClient() = default;
};

/**
 * The transfers of one access manager, driven by libcurl on Qt's event loop: a notifier for each
 * socket and one timer.
 *
 * libcurl must not be called from its own callbacks, so these only collect what has come. Once
 * libcurl has returned, each transfer that has something new is told, and whoever it tells may do
 * what it likes: run an event loop, end transfers, or release this object.
 */
class MrvHttpTransfers : public QObject, public std::enable_shared_from_this<MrvHttpTransfers>
{
public:
    MrvHttpTransfers();
    ~MrvHttpTransfers() override;

    void add(MrvHttpTransferClient *transfer);
    void remove(MrvHttpTransferClient *transfer);
    /** To be called in a callback of libcurl, or by act(): @p transfer has something new. */
    void setChanged(MrvHttpTransferClient *transfer);

private:
    struct Socket
    {
        QSocketNotifier *read = nullptr;
        QSocketNotifier *write = nullptr;
    };

    static int onSocket(CURL *, curl_socket_t socket, int what, void *self, void *);
    static int onTimer(CURLM *, long milliseconds, void *self);
    void watch(curl_socket_t socket, int what);
    QSocketNotifier *notifier(curl_socket_t socket, bool isRead);
    void act(curl_socket_t socket, int events);
    void readResults();

    CURLM *m_multi;
    QTimer m_timer;
    QHash<curl_socket_t, Socket> m_sockets;
    QVector<MrvHttpTransferClient *> m_changed;
};
