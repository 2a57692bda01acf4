#pragma once

#include "core/mrverror.h"
#include "update/mrvsignature.h"
#include "update/mrvupdatefeed.h"
#include "update/mrvupdatepolicy.h"
#include "update/mrvupdatestate.h"
#include "util/mrvbase_export.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>

class MRVFileDigest;
class MRVUpdateFolder;
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
 * With a public key, a check also has to show that all comes from the maker, and is not old. The
 * signature of the feed, whose name is the feed's and ".minisig", has to be there before the feed,
 * and that of the installer before the installer. Both name their file ("file") in the trusted
 * comment; that of the feed has a time ("timestamp"), and that of the installer the feed's version
 * ("version"):
 *
 *     minisign -Sm update.xml
 *     minisign -Sm morvane.run -t "timestamp:$(date +%s)<TAB>file:morvane.run<TAB>version:3.0.0.0"
 *
 * A feed is refused that is older than one seen before, by its time or its version, or whose
 * "expires" has passed; so is an installer that is not of the feed's version, size and SHA-256.
 * What an attacker can still do is keep the user from seeing a new feed, up to the time when the
 * last one expires. A maker who changes the key leaves the old feed where it is, signed with the
 * old key and offering a version that knows the new key and reads another feed.
 *
 * With a key or a policy, all elements of MRVUpdateFeed are read; without, only those three.
 *
 * Signals come from readXML() and readEXE(), before these return, except that an installer of 1 MiB
 * or more is read in slices, in the event loop:
 *
 * - readXML() with a feed that it can read: versions() where the feed offers a newer version, then
 *   updateAvailable() in any case. Where the versions cannot be compared, updateError() comes
 *   before updateAvailable() with false, and the model has not failed.
 * - readEXE() with a valid installer: readyToInstall().
 * - Either, on failure: updateError(), and neither of the others. A file that cannot be opened, or
 *   is an error page of the server, gives two: what is wrong with the file, then what that means
 *   for the update, which is of the same kind.
 *
 * After a failure the model ignores further calls; a model serves one check. A receiver may delete
 * the model. With it, the files that it has claimed are removed.
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
    /** Reads another feed than that of the settings; its signature names the file of @p url. */
    void setXmlUrl(const QString &url) { m_xmlUrl = url; }
    /** The page to show to the user; may be empty. */
    QString releaseNotesUrl() const { return m_releaseNotesUrl; }
    /** The installer's URL: the base URL, which has to end in "/", and its name. */
    QString downloadURL() const { return m_offer.url + m_offer.fileName; }
    /**
     * Where the feed has to be put: in the temporary folder, or in a private one there, see
     * claimFeed().
     */
    QString xmlFilePath() const;
    /** Where the installer has to be put; the folder itself before a feed was read. */
    QString downloadFilePath() const;
    /** Where the feed's signature is downloaded from. */
    QString xmlSignatureUrl() const;
    /** Where the feed's signature has to be put, beside the feed. */
    QString xmlSignatureFilePath() const { return xmlFilePath() + signatureSuffix(); }
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
    /**
     * What went wrong last: settingsError(), or the text of updateError(), whose receivers ask here
     * for the kind; no error before.
     */
    MRVError lastError() const { return m_error; }
    /** Whether the last feed offers a version that is newer than the running one. */
    bool isNewerAvailable() const { return m_newerAvailable; }
    /** The version that the last feed names, without blanks around it; empty before. */
    QString availableVersion() const { return m_offer.version; }
    /** What the last feed offers to this user. */
    const MRVUpdateOffer &offer() const { return m_offer; }
    /** What the policy has decided about the last feed. */
    const MRVUpdatePolicy::Decision &decision() const { return m_decision; }

    /**
     * From now on feed and installer must carry valid signatures of this key; see the class.
     *
     * @param key a minisign public key: its file's contents, or the line of base64 alone. An empty
     *            one asks for no signature, which is how a model begins.
     * @return false when it is no key; no installer is accepted then.
     */
    bool setPublicKey(const QByteArray &key);
    /** Whether setPublicKey() was given a key, also one that is not valid. */
    bool needsSignature() const { return m_needsSignature; }
    /**
     * Which features the check has; @p isAsked as in MRVUpdatePolicy::decide().
     */
    void setPolicy(const MRVUpdatePolicy &policy, bool isAsked);
    /** What earlier checks have left; to be set before readXML(). */
    void setState(const MRVUpdateState &state) { m_state = state; }
    /** The same after this check: a signed feed that was accepted is noted in it. */
    const MRVUpdateState &state() const { return m_state; }

    /**
     * Holds the names of feed and signature in the temporary folder, against other users. Where one
     * of these has taken a name already, xmlFilePath() and the others are in a private folder of
     * the temporary folder from then on, under the same names. To be called before the feed is
     * downloaded.
     *
     * @param error receives a translated text when there is no place for the files; may be null.
     */
    bool claimFeed(MRVErrorSink error = nullptr);
    /** The same for the installer; to be called once a newer version is known. */
    bool claimInstaller(MRVErrorSink error = nullptr);
    /** Removes the files that were claimed. */
    void removeFiles();
    /** Removes the files that were claimed, but leaves the installer where it is for good. */
    void keepInstaller();

    /**
     * Whether the installer is, byte for byte, the one that readEXE() found valid; false before. To
     * be asked right before the installer is opened, since it has been lying in a temporary folder.
     *
     * While a large file is read, events are handled except those of user input; the model may be
     * deleted then.
     */
    bool isInstallerUnchanged() const;

    /**
     * The text of the first child of the first element with the name @p tag; empty where there is
     * none.
     */
    static QString textForTag(const QString &tag, const QDomDocument &document);
    /**
     * Takes the values of a feed, without blanks around them; fails when one is empty, or when the
     * installer's name is none: it holds a separator or a control character, is a dot name, longer
     * than 200 bytes, or the feed's own.
     */
    void parseXML(const QDomDocument &document);
    /**
     * Compares the feed's version with the running one, by their digits read as one number; see
     * MRVUpdateFeed::versionNumber(). A beta is never offered, except by a channel.
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
     * With a key: whether the signature in xmlSignatureFilePath() is a valid one of a feed that may
     * be accepted; fails otherwise. Called by readXML() unless it was called before.
     */
    bool readXMLSignature();
    /**
     * Judges the feed in xmlFilePath(); see the class for the signals. Does nothing after a
     * failure.
     */
    void readXML();
    /**
     * With a key: whether the signature in signatureFilePath() is one of the offered installer;
     * fails otherwise. Called by readEXE() unless it was called before.
     */
    bool readEXESignature();
    /**
     * Checks the installer in downloadFilePath(), by its signature where one is needed; see the
     * class for the signals. One that is signed becomes executable for its owner. Does nothing
     * after a failure.
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
    /** @param error a translated text for the user; lastError() has the kind. */
    void updateError(QString error);
    /** The installer is valid: it may be opened, if isInstallerUnchanged() still says so then. */
    void readyToInstall();

private:
    static QString signatureSuffix() { return QStringLiteral(".minisig"); }
    void settings();
    void tell(const MRVError &error);
    void fail(MRVErrorKind kind, const QString &error);
    void failFeed(const QString &reason);
    void failInstaller(const QString &reason);
    bool isInstallerName(const QString &name) const;
    QString feedPath() const;
    void readFeed(const QByteArray &feed);
    void acceptFeed();
    void readSlice();
    bool isOffered(const MRVFileDigest &installer);

    std::unique_ptr<QFile> m_downloadedFile;
    QString m_xmlFileName;
    QString m_xmlUrl;
    QString m_releaseNotesUrl;
    bool m_failed = false;
    bool m_newerAvailable = false;
    QString m_settingsError;
    MRVError m_error;
    bool m_needsSignature = false;
    QByteArray m_publicKey;
    MRVSignature m_feedSignature;
    MRVUpdateFeed m_feed;
    MRVUpdateOffer m_offer;
    MRVUpdatePolicy m_policy;
    bool m_isAsked = false;
    MRVUpdateState m_state;
    MRVUpdatePolicy::Decision m_decision;
    MRVSignature m_installerSignature;
    std::unique_ptr<MRVFileDigest> m_digest; // of the installer, while it is read
    QTimer m_slices;
    QByteArray m_installerDigest; // of an installer that was found valid
    std::unique_ptr<MRVUpdateFolder> m_folder;
};
