#include "novel.h"

#include "download/mrvdownloadurl.h"

#include <QEventLoop>
#include <QProcess>
#include <QTemporaryDir>

#include <hostileserver.h> // of the tests

namespace {

constexpr int Pieces = 1024; // of a megabyte

// As nginx would send a large file.
void sendFile(Peer &peer)
{
    peer.send("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(qint64(Pieces) << 20)
              + "\r\n\r\n");
    peer.sendMany(QByteArray(1 << 20, 'x'), Pieces);
}

// Both end with the file on the disk.
void downloadToFile(benchmark::State &state)
{
    HostileServer server(&sendFile);
    QTemporaryDir folder;
    const auto ours = [&] {
        MRVDownloadUrl download;
        QEventLoop loop;
        download.setBody(MRVDownloadUrl::Body::Raw);
        QObject::connect(&download, qOverload<QString>(&MRVDownloadUrl::downloadSuccess), &loop,
                         &QEventLoop::quit);
        download.downloadToFile(server.url(), folder.filePath("ours"));
        loop.exec();
        QFile::remove(folder.filePath("ours"));
    };
    const auto curl = [&] {
        QProcess::execute("sh",
                          {"-c", "curl -s -o \"$1\" \"$2\" && sync \"$1\" && rm \"$1\"", "sh",
                           folder.filePath("curl"), server.url().toString()});
    };
    compare(state, ours, curl, [] {});
}
BENCHMARK(downloadToFile)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
