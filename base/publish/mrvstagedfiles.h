#pragma once

#include "core/mrverror.h"
#include "util/mrvbase_export.h"

#include "core/mrvfilewriter.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <map>
#include <memory>
#include <vector>

class MRVNewFolders;
class MRVTemporaryFolder;

/**
 * Files that are put in place together or not at all.
 *
 * Each file is first written as a whole to a stage, a hidden folder on the disk that it is for.
 * publish() then checks all targets and moves all files. A failure leaves what was there before,
 * and so does a signal (SIGINT, SIGTERM, SIGHUP) that ends the program: where the application has
 * no handlers of its own for these, the stages are removed first, and while files are moved they
 * are held back. They are held back in the calling thread alone; a program with other threads
 * blocks them there.
 *
 * Paths may be absolute or relative to the current folder, which must not change in between.
 * Main thread only.
 *
 * @since 1.0
 */
class MRVBASE_EXPORT MRVStagedFiles
{
    Q_DECLARE_TR_FUNCTIONS(MRVStagedFiles)

public:
    MRVStagedFiles();
    /** Removes the stages with what was not published, and the folders made for them. */
    ~MRVStagedFiles();
    MRVStagedFiles(const MRVStagedFiles &) = delete;
    MRVStagedFiles &operator=(const MRVStagedFiles &) = delete;

    /**
     * Makes a new empty folder on the stage for @p target, for the caller to fill. The folder that
     * @p target lies in is made, too, where it is missing, and removed again if nothing comes to
     * lie in it.
     *
     * @param target file that is to be published; it need not exist.
     * @param error  if given, receives one translated line that names a folder on failure;
     *               untouched on success.
     * @return an absolute path; empty on failure.
     */
    QString newFolder(const QString &target, MRVErrorSink error = nullptr);
    /**
     * Plans to move @p staged, a file below a folder of newFolder(), to @p target. Neither path is
     * looked at before publish().
     */
    void add(const QString &staged, const QString &target);

    /**
     * Moves the files to their targets, in the order of add().
     *
     * Folders of targets are made where they are missing. Where a target is a symbolic link, the
     * file that it leads to is replaced. A file that is replaced passes its permissions on.
     *
     * On success the stages are removed, and the object can be used again.
     *
     * @param error if given, receives one translated line that names a file on failure; where an
     *              old file could not be put back, it also says under which name that is kept.
     *              Untouched on success.
     * @return false, with all files as they were, when a target is a folder, a device or
     *         write-protected, or when a file cannot be moved.
     */
    bool publish(MRVErrorSink error = nullptr);

    /**
     * Replaces @p file by @p bytes through the checked writer, in folders that are made where they
     * are missing, and removed again on failure. A signal waits for the end of it.
     *
     * @param error if given, receives one translated line that names a file or folder on failure;
     *              untouched on success.
     */
    static bool write(const QByteArray &bytes, const QString &file, MRVErrorSink error = nullptr);
    /** As above, with a @p content that need not be in memory as a whole. */
    static bool write(const MRVFileWriter::Content &content, const QString &file,
                      MRVErrorSink error = nullptr);

private:
    struct File
    {
        QString staged;
        QString target;
        QString old; // where what is replaced is kept meanwhile; empty: nothing was there
    };
    using Files = std::vector<File>;

    static bool isWritableTarget(const QString &target, MRVErrorSink error);
    static bool keepOld(File *file, MRVErrorSink error);
    void rollBack(Files::iterator end, MRVError *error);

    std::unique_ptr<MRVNewFolders> m_newFolders; // goes last, when the stages in them are gone
    std::map<QString, std::unique_ptr<MRVTemporaryFolder>> m_stages; // by the folder they stand in
    Files m_files;
    int m_folders = 0;
};
