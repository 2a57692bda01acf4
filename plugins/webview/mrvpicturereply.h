#pragma once

#include <QByteArray>
#include <QNetworkReply>

/** What the pictures of a page may still take, all together. */
struct MRVPictureBudget
{
    qint64 bytes; ///< as they come, unpacked
    qint64 pixels; ///< as they are shown
};

/** The picture of another reply, once it has come and was decoded; see MRVPictureAccess. */
class MRVPictureReply : public QNetworkReply
{
    Q_OBJECT

public:
    /**
     * @param source becomes owned by this.
     * @param budget what this reply takes is taken from it; must outlive this.
     */
    MRVPictureReply(QNetworkReply *source, MRVPictureBudget *budget, QObject *parent);

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
    MRVPictureBudget *const m_budget;
    QByteArray m_received;
    QByteArray m_picture;
    int m_read = 0;
};
