#pragma once

#include "core/mrverror.h"
#include "util/mrvtemporaryfolder.h"

#include <QCoreApplication>
#include <QMap>
#include <QString>
#include <QVector>

#include <memory>

/**
 * Where the files of an update check lie: in the temporary folder, under names that are known
 * beforehand, or, where another user or another check has taken one of these, in a private folder
 * there.
 *
 * A name is claimed before its file is downloaded, together with those that MRVPartialFile uses:
 * new, empty files hold them, which other users cannot replace in a folder such as /tmp. What was
 * claimed is removed with this object.
 */
class MRVUpdateFolder
{
    Q_DECLARE_TR_FUNCTIONS(MRVUpdateModel)

public:
    MRVUpdateFolder() = default;
    ~MRVUpdateFolder();
    MRVUpdateFolder(const MRVUpdateFolder &) = delete;
    MRVUpdateFolder &operator=(const MRVUpdateFolder &) = delete;

    /** The path under a name; in the folder itself for an empty one. */
    QString filePath(const QString &name) const;
    /**
     * Claims a name. To be called before each download, which may have given names back.
     *
     * @param mayReplace whether a file of this user may lie there and will be replaced, and links
     *                   and pipes removed: for names that the application has chosen, and not
     *                   the network.
     * @param error receives a translated line where neither folder takes the file.
     */
    bool claim(const QString &name, bool mayReplace, MRVErrorSink error);
    /** Removes all files that were claimed, except those that were there before. */
    void clear();
    /** Leaves a file where it is for good. */
    void keep(const QString &name);

private:
    struct Claim
    {
        QString path;
        quint64 before = 0; // the inode of a file that was there before; 0 for none
    };

    bool claimAll(const QString &path, bool mayReplace);
    bool lock(const QString &path);
    bool claimPath(const QString &path, bool mayReplace = true);
    bool isNoted(const QString &path) const;
    void note(const QString &path, quint64 before);
    void forget(const QString &path);

    std::unique_ptr<MRVTemporaryFolder> m_private;
    QString m_privatePath; // empty while the temporary folder itself is used
    QVector<Claim> m_claims;
    QMap<QString, int> m_locks; // descriptors of files beside those that were claimed, by path
};
