#include "http/mrvhttptransfers_p.h"

#include <QSocketNotifier>

MrvHttpTransfers::MrvHttpTransfers()
{
    static const CURLcode ready = curl_global_init(CURL_GLOBAL_DEFAULT);
    Q_UNUSED(ready)
    m_multi = curl_multi_init();
    curl_multi_setopt(m_multi, CURLMOPT_SOCKETFUNCTION, &MrvHttpTransfers::onSocket);
    curl_multi_setopt(m_multi, CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(m_multi, CURLMOPT_TIMERFUNCTION, &MrvHttpTransfers::onTimer);
    curl_multi_setopt(m_multi, CURLMOPT_TIMERDATA, this);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { act(CURL_SOCKET_TIMEOUT, 0); });
}

MrvHttpTransfers::~MrvHttpTransfers()
{
    curl_multi_cleanup(m_multi);
}

void MrvHttpTransfers::add(MrvHttpTransferClient *transfer)
{
    curl_easy_setopt(transfer->handle(), CURLOPT_PRIVATE, transfer);
    curl_multi_add_handle(m_multi, transfer->handle());
}

void MrvHttpTransfers::remove(MrvHttpTransferClient *transfer)
{
    curl_multi_remove_handle(m_multi, transfer->handle());
    m_changed.removeAll(transfer);
}

void MrvHttpTransfers::setChanged(MrvHttpTransferClient *transfer)
{
    if (!m_changed.contains(transfer)) {
        m_changed.append(transfer);
    }
}

int MrvHttpTransfers::onSocket(CURL *, curl_socket_t socket, int what, void *self, void *)
{
    static_cast<MrvHttpTransfers *>(self)->watch(socket, what);
    return 0;
}

int MrvHttpTransfers::onTimer(CURLM *, long milliseconds, void *self)
{
    QTimer &timer = static_cast<MrvHttpTransfers *>(self)->m_timer;
    if (milliseconds < 0) {
        timer.stop();
    } else {
        timer.start(int(qMin(milliseconds, 60000L)));
    }
    return 0;
}

void MrvHttpTransfers::watch(curl_socket_t socket, int what)
{
    Socket &watched = m_sockets[socket];
    const auto set = [&](QSocketNotifier *&of, bool isRead, bool isWanted) {
        if (!of && isWanted) {
            of = notifier(socket, isRead);
        }
        if (of) {
            of->setEnabled(isWanted);
        }
    };
    set(watched.read, true, what == CURL_POLL_IN || what == CURL_POLL_INOUT);
    set(watched.write, false, what == CURL_POLL_OUT || what == CURL_POLL_INOUT);
    if (what == CURL_POLL_REMOVE) {
        // Later, since one of them may be the one that has just spoken.
        for (QSocketNotifier *each : {watched.read, watched.write}) {
            if (each) {
                each->deleteLater();
            }
        }
        m_sockets.remove(socket);
    }
}

QSocketNotifier *MrvHttpTransfers::notifier(curl_socket_t socket, bool isRead)
{
    auto *const result =
        new QSocketNotifier(socket, isRead ? QSocketNotifier::Read : QSocketNotifier::Write, this);
    connect(result, &QSocketNotifier::activated, this,
            [this, socket, isRead] { act(socket, isRead ? CURL_CSELECT_IN : CURL_CSELECT_OUT); });
    return result;
}

void MrvHttpTransfers::act(curl_socket_t socket, int events)
{
    // Whoever is told may release the last owner.
    const std::shared_ptr<MrvHttpTransfers> self = shared_from_this();
    int running = 0;
    curl_multi_socket_action(m_multi, socket, events, &running);
    readResults();
    while (!m_changed.isEmpty()) {
        m_changed.takeFirst()->tell();
    }
}

void MrvHttpTransfers::readResults()
{
    int left = 0;
    while (const CURLMsg *message = curl_multi_info_read(m_multi, &left)) {
        if (message->msg == CURLMSG_DONE) {
            char *client = nullptr;
            curl_easy_getinfo(message->easy_handle, CURLINFO_PRIVATE, &client);
            auto *const transfer = reinterpret_cast<MrvHttpTransferClient *>(client);
            transfer->setResult(message->data.result);
            setChanged(transfer);
        }
    }
}
