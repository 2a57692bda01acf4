#pragma once

#include "support.h"

#include <QHash>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

static const QString data = MRV_SOURCE_DIR "/tests/data/update/";

// "version|file name|base URL", or a feed as it stands, or after "padded SIZE " with so many bytes
// before and after it.
inline QByteArray feedOf(const QString &text)
{
    if (text.startsWith("padded ")) {
        const int size = text.section(' ', 1, 1).toInt();
        return "<!--" + QByteArray(size, 'x') + "-->" + text.section(' ', 2).toUtf8()
            + QByteArray(size, ' ');
    }
    const QStringList parts = text.split('|');
    return parts.size() != 3
        ? text.toUtf8()
        : QString("<?xml version='1.0'?><update><version>%1</version><linuxfilename>%2"
                  "</linuxfilename><url>%3</url><application>%4</application></update>")
              .arg(parts[0], parts[1], parts[2], QCoreApplication::applicationName())
              .toUtf8();
}

/*
 * All servers of the world, on loopback: an HTTP proxy that answers by the path alone. An answer is
 * "404", "302 URL", "wait" (none), "big SIZE", "short TEXT" (cut off), "@FILE" of the test data, or
 * a text as feedOf() takes it.
 */
class Web : public QTcpServer
{
public:
    explicit Web(const QHash<QString, QString> &given = {})
        : answers(given)
    {
        listen(QHostAddress::LocalHost);
        QNetworkProxy::setApplicationProxy(
            {QNetworkProxy::HttpProxy, serverAddress().toString(), serverPort()});
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                if (!socket->canReadLine()) {
                    return;
                }
                const QString path = QUrl(socket->readAll().split(' ').value(1)).path();
                asked << path;
                if (answers.value(path) == "wait") {
                    return;
                }
                socket->write(raw.isEmpty() ? response(path) : raw);
                socket->disconnectFromHost();
            });
        });
    }
    ~Web() override { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); }

    QByteArray response(const QString &path) const
    {
        const QString answer = path.startsWith("/hops/") ? hop(path)
            : path.startsWith("/mirror/")                ? '@' + path.mid(8)
                                                         : answers.value(path, "404");
        const QString rest = answer.section(' ', 1);
        if (answer == "404") {
            return "HTTP/1.1 404 Not Found\r\nContent-Length: 13\r\n\r\n404 Not Found";
        }
        if (answer.startsWith("302 ")) {
            return "HTTP/1.1 302 Found\r\nLocation: " + rest.toUtf8()
                + "\r\nContent-Length: 4\r\n\r\nmove";
        }
        const bool isShort = answer.startsWith("short");
        const QByteArray body = answer.startsWith("big ") ? QByteArray(rest.toInt(), 'x')
            : isShort                                     ? rest.toUtf8()
            : answer.startsWith('@')                      ? bytesOf(data + answer.mid(1))
                                                          : feedOf(answer);
        return "HTTP/1.1 200 OK\r\nContent-Length: "
            + QByteArray::number(body.size() + (isShort ? 10 : 0)) + "\r\n\r\n" + body;
    }

    // "/hops/NUMBER/FILE" redirects so often before it gives the file.
    static QString hop(const QString &path)
    {
        const int left = path.section('/', 2, 2).toInt();
        const QString file = path.section('/', 3);
        return left == 0 ? '@' + file
                         : QString("302 http://mirror.example/hops/%1/%2").arg(left - 1).arg(file);
    }

    QByteArray raw; // answers everything, if not empty
    QHash<QString, QString> answers;
    QStringList asked;
};
