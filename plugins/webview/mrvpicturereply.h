#pragma once

#include <QByteArray>
#include <QNetworkReply>

class MRVPictureAccess;

/** The picture of another reply, once it has come and was decoded; see MRVPictureAccess. */
class MRVPictureReply : public QNetworkReply
{
    Q_OBJECT

public:
    /** @param source becomes owned by this. */
    MRVPictureReply(QNetworkReply *source, MRVPictureAccess *access);

    void abort() override;
    qint64 bytesAvailable() const override;
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 maxSize) override;

private:
    void take();
    void finish();
    bool decode();
    void end(NetworkError error);

    QNetworkReply *const m_source;
    MRVPictureAccess *const m_access;
    QByteArray m_received;
    QByteArray m_picture;
    int m_read = 0;
};
