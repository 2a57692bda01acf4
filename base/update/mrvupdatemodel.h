#pragma once

#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <memory>

class QDomDocument;
class QFile;

/**
 * What the update check knows: where the feed lies, what it says, whether that is newer than the
 * running application, and whether a downloaded file is valid. It downloads nothing itself: feed
 * and installer are put into the temporary folder, and then readXML() and readEXE() are called.
 *
 * The endpoints come from a resource (MSharedResources::updatesIniFileLocation()) of four lines:
 * the name under which the feed is saved, the feed's URL, the base URL of installers, and the URL
 * of the release notes, each after a label and "->". The feed is an XML document of 1 MiB at most,
 * of which the first "version", "linuxfilename" and "url" elements are read.
 *
 * Signals come from readXML() and readEXE(), before these return:
 *
 * - readXML() with a feed that it can read: versions() where the feed offers a newer version, then
 *   updateAvailable() in any case. Where the versions cannot be compared, updateError() comes
 *   before updateAvailable() with false, and the model has not failed.
 * - readEXE() with a valid installer: readyToInstall().
 * - Either, on failure: updateError(), and neither of the others. A file that cannot be opened, or
 *   is an error page of the server, gives two: what is wrong with the file, then what that means
 *   for the update.
 *
 * After a failure the model ignores further calls; a model serves one check. A receiver may delete
 * the model.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVUpdateModel : public QObject
{
    Q_OBJECT

public:
    /** A feed that is longer is refused. */
    static constexpr int MaxFeedSize = 1024 * 1024;

    /**
     * Reads the update settings; a failure then is seen by hasFailed() only, since nobody can be
     * connected yet.
     */
    explicit MRVUpdateModel(QObject *parent = nullptr);
    ~MRVUpdateModel() override;

    /** Where the feed is downloaded from; empty where the update settings could not be read. */
    QString xmlUrl() const { return m_xmlUrl; }
    /** The page to show to the user; may be empty. */
    QString releaseNotesUrl() const { return m_releaseNotesUrl; }
    /** The installer's URL: the base URL, which has to end in "/", and its name. */
    QString downloadURL() const { return m_downloadUrl + m_installerFileName; }
    /** Where in the temporary folder the feed has to be put. */
    QString xmlFilePath() const;
    /**
     * Where in the temporary folder the installer has to be put; the folder itself before a feed
     * was read.
     */
    QString downloadFilePath() const;
    /** Where the installer's signature is downloaded from, and to. */
    QString signatureUrl() const { return downloadURL() + signatureSuffix(); }
    /** Where the signature has to be put, beside the installer. */
    QString signatureFilePath() const { return downloadFilePath() + signatureSuffix(); }
    /**
     * Whether updateError() came through a failure that ends the check; readXML() and readEXE() do
     * nothing then.
     */
    bool hasFailed() const { return m_failed; }
    /** What went wrong while the update settings were read; empty when nothing did. */
    QString settingsError() const { return m_settingsError; }
    /** Whether the last feed offers a version that is newer than the running one. */
    bool isNewerAvailable() const { return m_newerAvailable; }
    /** The version that the last feed names, as it stands there; empty before. */
    QString availableVersion() const { return m_availableVersion; }

    /**
     * From now on an installer must carry a valid signature of this key beside it, which names it
     * in its trusted comment.
     *
     * @param key a minisign public key: its file's contents, or the line of base64 alone. An empty
     *            one asks for no signature, which is how a model begins.
     * @return false when it is no key; no installer is accepted then.
     */
    bool setPublicKey(const QByteArray &key);
    /** Whether setPublicKey() was given a key, also one that is not valid. */
    bool needsSignature() const { return m_needsSignature; }
    /**
     * Whether the installer is, byte for byte, the one that readEXE() found valid; false before. To
     * be asked right before the installer is opened, since it has been lying in a temporary folder.
     */
    bool isInstallerUnchanged() const;

    /**
     * The text of the first child of the first element with the name @p tag; empty where there is
     * none.
     */
    static QString textForTag(const QString &tag, const QDomDocument &document);
    /**
     * Takes the values of a feed; fails when one is empty, or when the installer's name is none: it
     * holds a separator or a control character, is a dot name, or the feed's own.
     */
    void parseXML(const QDomDocument &document);
    /**
     * Compares the feed's version with the running one, by their digits read as one number.
     * Deliberate: 2.9.0.1 is 2901 and 3.0 is 30, so that versions need the same number of
     * components. A beta is never offered.
     */
    void compareVersions();
    /**
     * Whether a file can be opened and is no error page that a server sent in its place; it is the
     * model's file then. Symbolic links are not followed, and other users' files not read, as
     * anybody can put one into a temporary folder.
     */
    bool isDownloadFileIntegral(const QString &path);

public Q_SLOTS:
    /**
     * Judges the feed in xmlFilePath(); see the class for the signals. Does nothing after a
     * failure.
     */
    void readXML();
    /**
     * Checks the installer in downloadFilePath(), and its signature where one is needed; see the
     * class for the signals. Does nothing after a failure.
     */
    void readEXE();

Q_SIGNALS:
    /** The feed was judged; @p available as isNewerAvailable(). */
    void updateAvailable(bool available);
    /**
     * The feed offers @p available, which is newer than the running version @p current.
     * Comes right before updateAvailable().
     */
    void versions(QString current, QString available);
    /** A translated text for the user. */
    void updateError(QString error);
    /** The installer is valid: it may be opened, if isInstallerUnchanged() still says so then. */
    void readyToInstall();

private:
    static QString signatureSuffix() { return QStringLiteral(".minisig"); }
    void settings();
    void fail(const QString &error);

    std::unique_ptr<QFile> m_downloadedFile;
    QString m_availableVersion;
    QString m_installerFileName;
    QString m_downloadUrl;
    QString m_xmlFileName;
    QString m_xmlUrl;
    QString m_releaseNotesUrl;
    bool m_failed = false;
    bool m_newerAvailable = false;
    QString m_settingsError;
    bool m_needsSignature = false;
    QByteArray m_publicKey;
    QByteArray m_installerDigest; // of an installer that was found valid
};
