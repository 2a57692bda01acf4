#pragma once

#include "core/mrverror.h"
#include "http/mrvhttpaccess.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QNetworkReply>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <QVector>

#include <functional>
#include <memory>

class MRVDownloadUserInputAbstract;
class MRVPartialFile;
class QAuthenticator;
class QNetworkProxy;

/**
 * Downloads one URL at a time, as bytes or into a file.
 *
 * Each request that was started ends with exactly one final signal, which never comes before
 * download() has returned: downloadError(), or, where all is well, downloadSuccess(QByteArray) for
 * a request of bytes and downloadSuccess(QString) for one of a file. A request of a file also
 * delivers its bytes, unless setBody() has them raw, before the file is written, so that a receiver
 * of the bytes has them even where writing fails. Only a request that is dropped, by starting
 * another one or by deleting this object, says no more. Any receiver may start the next request, or
 * delete this object.
 *
 * A body that is cut off, however, is an error; MRVHttpAccess says what counts as one. Servers are
 * asked not to compress; what comes compressed by gzip or deflate all the same is unpacked.
 *
 * Only http and https addresses are fetched, at the first request and at each redirect. Redirects
 * are followed where the user-input handler says so; one from https to http also needs the
 * handler's ignoreSslErrors(). SSL errors end a request; a host that wants to ask about them
 * connects sslErrors() of networkAccessManager(), and may run an event loop there. GUI thread only.
 *
 * @code
 * auto *download = new MRVDownloadUrl(window);
 * QObject::connect(download, QOverload<QByteArray>::of(&MRVDownloadUrl::downloadSuccess), window,
 *                  [](const QByteArray &page) { qDebug() << page.size() << "bytes"; });
 * QObject::connect(download, &MRVDownloadUrl::downloadError, window,
 *                  [](const QString &error) { qWarning() << error; });
 * download->setMaximumSize(16 * 1024 * 1024);
 * if (!download->download(QUrl(QStringLiteral("https://example.org/novel.html")))) {
 *     qWarning() << "not an address";
 * }
 * @endcode
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVDownloadUrl : public QObject
{
    Q_OBJECT

public:
    /** What becomes of a body. */
    enum class Body {
        Text, ///< A text whose charset the server names becomes UTF-8.
        Raw, ///< It stays as it was sent.
        RawUnlessText, ///< As Text where the server names a charset other than UTF-8, else as Raw.
    };
    Q_ENUM(Body)

    /** Default of setTransferTimeout(), in milliseconds. */
    static constexpr int DefaultTransferTimeout = 30000;
    /** Default of setMaximumSize(), and the most that it takes: 1 GiB. */
    static constexpr qint64 LargestSize = qint64(1) << 30;

    /** An idle downloader with an access manager of its own. */
    explicit MRVDownloadUrl(QObject *parent = nullptr);
    ~MRVDownloadUrl() override;

    /**
     * The name under which @p url is stored: what follows the last "/" of its path,
     * percent-decoded, or "index.html" where nothing does; ".html" is appended to a name without a
     * suffix. The name holds no "/", and is never "." or "..".
     *
     * @param folder created where it is missing, and put before the name, which is absolute then;
     *               empty gives the bare name.
     */
    static QString fileForUrl(const QString &folder, const QUrl &url);

    /** The same in the download folder. */
    QString fileForUrl(const QUrl &url) const;

    /**
     * A file for @p url that does not exist yet: fileForUrl() without control characters and such
     * that change the direction of text, which blanks replace, and with a number where the name is
     * taken.
     *
     * @param folder must exist; empty means the current one, and the path is relative then.
     */
    static QString newFileForUrl(const QString &folder, const QUrl &url);

    /** The folder of downloadToFile(QUrl); empty, as at first, means the current one. */
    void setDownloadFolder(const QString &folder);

    /**
     * @param handler must outlive the requests; is not owned. Null, as at first, gives up at once
     *                where a password is asked for, and follows no redirect: the redirect's own
     *                body is the result.
     */
    void setUserInputHandler(MRVDownloadUserInputAbstract *handler);

    /**
     * After how many milliseconds without an answer, or then without a single byte of it, a request
     * fails; 0 or less waits for ever.
     * The time that the answers to questions take does not count. Holds from the next byte on.
     */
    void setTransferTimeout(int milliseconds);
    /** The number set by setTransferTimeout(), in milliseconds. */
    int transferTimeout() const { return m_transferTimeout; }

    /** The largest body to accept, in bytes; kept within 0 and LargestSize. */
    void setMaximumSize(qint64 bytes);
    qint64 maximumSize() const { return m_maximumSize; }

    /**
     * What becomes of the bodies of requests that are made from now on; Body::Text at first.
     *
     * A raw body that is to be a file goes to the disk piece by piece, as MRVPartialFile has it. It
     * is never in memory, and is not delivered as bytes.
     */
    void setBody(Body body) { m_body = body; }
    /** What setBody() has set. */
    Body body() const { return m_body; }

    /**
     * Whether what has come of a raw file stays beside it when a request fails or is dropped, off
     * at first. The next request of the same address for the same file then goes on there, where
     * the server still has the same version by its ETag or its date, and else begins again.
     */
    void setResumable(bool isResumable) { m_isResumable = isResumable; }
    /** What setResumable() has set. */
    bool isResumable() const { return m_isResumable; }

    /** Owned by this object; for proxies, cookies, certificates and SSL errors. */
    MRVHttpAccess *networkAccessManager() const { return m_manager; }

    /** The address of the last request, after redirects. */
    QUrl url() const { return m_url; }

    /**
     * Why the last request failed, with the text of downloadError(), whose receivers ask here for
     * the kind; no error while a request is running, and after one that succeeded.
     */
    MRVError lastError() const { return m_error; }

    /** The Content-Type of the last body that was delivered; empty where the server named none. */
    QString contentType() const { return m_contentType; }

    /**
     * The text after "charset=" up to the next ";" or the end, as it stands there: quotes and
     * blanks are kept, case matters. Empty where there is none.
     */
    static QString charset(const QString &contentType);

    /**
     * Converts text from the encoding @p fromCharset to @p toCharset. @p data is returned unchanged
     * where a name is empty or unknown, or both name one encoding. Blanks and quotes around a name
     * do not matter.
     *
     * The source encoding is the one named, whatever the first bytes look like. What is no text in
     * it becomes U+FFFD. Needs little more memory than the bytes and the result.
     */
    static QByteArray convert(const QByteArray &data, const QString &fromCharset,
                              const QString &toCharset);

    /** Whether @p contentType names a charset that can be converted from. */
    static bool namesCharset(const QString &contentType);
    /**
     * Converts @p data from @p fromCharset as convert() does, unless characters would be lost.
     *
     * @return false, with @p data unchanged, where @p toCharset lacks a character of the text.
     */
    static bool convertLossless(QByteArray *data, const QString &fromCharset,
                                const QString &toCharset);

public Q_SLOTS:
    /**
     * Starts a request of bytes; after downloadToFile(), one that writes the same file again.
     * A running request is dropped in any case.
     *
     * @return false, without any signal, where @p url is not valid. Any other address that cannot
     *         be fetched ends with downloadError().
     */
    bool download(const QUrl &url);

    /** Starts a request of fileForUrl(url), which is replaced where it exists. */
    bool downloadToFile(const QUrl &url);

    /**
     * Starts a request of a file. It appears, or is replaced, when it is whole; before that nothing
     * of it is on the disk, but the part of a raw one.
     *
     * @param fileName an existing file is replaced; a relative path is taken from the current
     *                 folder, not the download folder.
     * @return false, without any signal, for an empty name (a running request goes on) or a URL
     *         that is not valid.
     */
    bool downloadToFile(const QUrl &url, const QString &fileName);

    /** Ends the running request, if any, with downloadError() before it returns. */
    void cancelDownload();

Q_SIGNALS:
    /**
     * While a body comes in.
     *
     * @param bytesRead bytes of the body so far.
     * @param totalBytes -1 where the server does not say.
     */
    void downloadProgress(qint64 bytesRead, qint64 totalBytes);
    /** @param error a translated text for the user; lastError() has the kind. */
    void downloadError(QString error);
    void downloadSuccess(QString filePath);
    /** @param data in UTF-8 where the server named the charset of a text. */
    void downloadSuccess(QByteArray data);

private Q_SLOTS:
    void onReplyFinished();
    void onReplyError();
    void onAuthenticationRequired(QNetworkReply *reply, QAuthenticator *authenticator);
    void onProxyAuthenticationRequired(const QNetworkProxy &proxy, QAuthenticator *authenticator);
    void onNetworkAccessibleChanged(int accessibility);

private:
    bool begin(const QUrl &url);
    void start();
    bool openFile(QNetworkRequest *request);
    MRVError writeError(const MRVError &reason) const;
    void dropReply();
    void onMetaData();
    MRVError prepareFile();
    bool continuesFile() const;
    void tellProgress(qint64 bytesRead, qint64 totalBytes);
    void onTimeout();
    void awaitBytes();
    void collect();
    void failTooLarge();
    void answer(const QUrl &place, QAuthenticator *authenticator);
    void beginQuestion();
    std::function<void()> questionEnd();
    bool ask(const std::function<bool()> &question);
    void redirect(const QUrl &target);
    void deliver();
    static MRVError incomplete();
    void fail(const MRVError &error);
    void endWith(const MRVError &error);

    QUrl m_url;
    MRVHttpAccess *m_manager;
    QNetworkReply *m_reply = nullptr;
    bool m_aborted = false;
    QString m_fileName;
    QString m_downloadFolder;
    MRVDownloadUserInputAbstract *m_userInput = nullptr;

    QTimer m_timer; // waits for bytes; without a reply, to report m_failure
    int m_transferTimeout = DefaultTransferTimeout;
    qint64 m_maximumSize = LargestSize;
    Body m_body = Body::Text;
    bool m_isResumable = false;
    QUrl m_requested; // before redirects
    QByteArray m_data;
    std::unique_ptr<MRVPartialFile> m_file; // of a raw body
    bool m_isRaw = false; // the body that is coming, which then goes to the file
    qint64 m_offset = 0; // where the body that is coming begins
    qint64 m_fileSize = -1; // of the whole file, as far as the answer states it
    QString m_contentType;
    MRVError m_error; // of the last request that has ended
    MRVError m_failure; // why this object gave up the request, which is said in place of "canceled"
    std::shared_ptr<QVector<QNetworkReply *>> m_asking; // those that somebody is being asked about
};
