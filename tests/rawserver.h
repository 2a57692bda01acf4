#pragma once

#include <QHash>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

#include <sys/socket.h>

/** Answers each request on loopback with the bytes given for its path, right or wrong. */
class RawServer : public QTcpServer
{
public:
    /**
     * What follows the bytes of an answer. The body of one that trickles comes byte by byte, each
     * 300 ms later.
     */
    enum End { Close, Reset, Stall, Trickle };

    RawServer()
    {
        listen(QHostAddress::LocalHost);
        QObject::connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
                m_begun.remove(socket);
                socket->deleteLater();
            });
            QObject::connect(socket, &QTcpSocket::readyRead, this,
                             [this, socket] { read(socket); });
        });
    }

    QUrl url(const QString &path) const
    {
        return QUrl(QString("http://127.0.0.1:%1%2").arg(serverPort()).arg(path));
    }

    /** Returns the address of an answer. */
    QUrl answer(const QString &path, const QByteArray &bytes, End end = Close)
    {
        m_answers.insert(path.toUtf8(), {bytes, end});
        return url(path);
    }

    /** The requests that have come, headers and all. */
    QByteArrayList requests() const { return m_requests; }

private:
    void read(QTcpSocket *socket)
    {
        QByteArray &request = m_begun[socket];
        request += socket->readAll();
        if (!request.contains("\r\n\r\n")) {
            return;
        }
        m_requests << m_begun.take(socket);
        const auto answer = m_answers.value(m_requests.constLast().split(' ').value(1));
        const int body =
            answer.second == Trickle ? answer.first.indexOf("\r\n\r\n") + 4 : answer.first.size();
        socket->write(answer.first.left(body));
        for (int at = body; at < answer.first.size(); ++at) {
            const QByteArray byte = answer.first.mid(at, 1);
            QTimer::singleShot(300 * (at - body + 1), socket, [=] { socket->write(byte); });
        }
        if (answer.second == Close) {
            socket->disconnectFromHost();
        } else if (answer.second == Reset) {
            while (socket->bytesToWrite() > 0) {
                socket->waitForBytesWritten();
            }
            const linger at{1, 0};
            setsockopt(int(socket->socketDescriptor()), SOL_SOCKET, SO_LINGER, &at, sizeof at);
            socket->abort();
        }
    }

    QHash<QByteArray, QPair<QByteArray, End>> m_answers;
    QHash<QTcpSocket *, QByteArray> m_begun;
    QByteArrayList m_requests;
};
