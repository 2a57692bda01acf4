#include "mrvpicturereply.h"

#include "gui/mrvpicturereader.h"

#include <QBuffer>
#include <QImage>
#include <QPointer>

#include <cstring>

namespace {

// What decoding may take; then pictures are made as small as a screen.
constexpr qint64 MostMemory = 64 * 1024 * 1024;
constexpr QSize Largest(1600, 1600);

} // namespace

MRVPictureReply::MRVPictureReply(QNetworkReply *source, MRVPictureBudget *budget, QObject *parent)
    : QNetworkReply(parent)
    , m_source(source)
    , m_budget(budget)
{
    source->setParent(this);
    setRequest(source->request());
    setUrl(source->url());
    setOperation(source->operation());
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    connect(source, &QNetworkReply::readyRead, this, &MRVPictureReply::take);
    // Queued, since the source of a "data:" address may have ended already.
    connect(source, &QNetworkReply::finished, this, &MRVPictureReply::finish, Qt::QueuedConnection);
    if (source->isFinished()) {
        QMetaObject::invokeMethod(this, &MRVPictureReply::finish, Qt::QueuedConnection);
    }
}

void MRVPictureReply::take()
{
    const QByteArray bytes = m_source->readAll();
    m_received += bytes;
    m_budget->bytes -= bytes.size();
    if (m_budget->bytes < 0) {
        abort();
    }
}

void MRVPictureReply::finish()
{
    if (isFinished()) {
        return;
    }
    take();
    if (isFinished()) {
        return;
    }
    for (const QNetworkRequest::Attribute attribute :
         {QNetworkRequest::HttpStatusCodeAttribute, QNetworkRequest::HttpReasonPhraseAttribute,
          QNetworkRequest::RedirectionTargetAttribute}) {
        setAttribute(attribute, m_source->attribute(attribute));
    }
    const bool isRedirect =
        !m_source->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl().isEmpty();
    if (m_source->error() != NoError) {
        end(m_source->error());
    } else if (isRedirect) {
        end(NoError);
    } else {
        end(decode() ? NoError : UnknownContentError);
    }
}

bool MRVPictureReply::decode()
{
    const MRVPictureReader reader(m_received);
    m_received.clear();
    if (reader.memory() > MostMemory && !reader.isDrawing()) {
        return false;
    }
    QImage image = reader.draw(Largest);
    if (image.isNull()) {
        return false;
    }
    if (image.width() > Largest.width() || image.height() > Largest.height()) {
        image = image.scaled(Largest, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    m_budget->pixels -= qint64(image.width()) * image.height();
    if (m_budget->pixels < 0) {
        return false;
    }
    QBuffer buffer(&m_picture);
    // Packing it well takes longer than it gains.
    return buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG", 100);
}

void MRVPictureReply::end(NetworkError error)
{
    if (error != NoError) {
        m_picture.clear();
        setError(error, m_source->errorString());
    }
    setHeader(QNetworkRequest::ContentTypeHeader, QByteArrayLiteral("image/png"));
    setHeader(QNetworkRequest::ContentLengthHeader, m_picture.size());
    setFinished(true);
    const QPointer<MRVPictureReply> self(this);
    Q_EMIT metaDataChanged();
    if (self && error != NoError) {
        Q_EMIT errorOccurred(error);
    } else if (self && !m_picture.isEmpty()) {
        Q_EMIT readyRead();
    }
    if (self) {
        Q_EMIT finished();
    }
}

void MRVPictureReply::abort()
{
    if (!isFinished()) {
        m_received.clear();
        m_source->disconnect(this);
        m_source->abort();
        end(OperationCanceledError);
    }
}

qint64 MRVPictureReply::bytesAvailable() const
{
    return QNetworkReply::bytesAvailable() + m_picture.size() - m_read;
}

qint64 MRVPictureReply::readData(char *data, qint64 maxSize)
{
    const int count = int(qMin(maxSize, qint64(m_picture.size() - m_read)));
    if (count == 0) {
        return isFinished() ? -1 : 0;
    }
    std::memcpy(data, m_picture.constData() + m_read, size_t(count));
    m_read += count;
    return count;
}
