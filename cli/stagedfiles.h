#pragma once

#include "temporaryfolder.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>
#include <memory>
#include <vector>

/**
 * Folders made for files that are still to come: those that are empty go again, unless keep() is
 * called.
 */
class NewFolders
{
public:
    NewFolders() = default;
    ~NewFolders();
    NewFolders(const NewFolders &) = delete;
    NewFolders &operator=(const NewFolders &) = delete;

    /** Makes the folder of @p file with those above it. */
    bool makeFor(const QString &file, QString *error);
    void keep() { m_made.clear(); }

private:
    QStringList m_made; // outer ones first
};

/**
 * Replaces @p file by @p bytes, in folders that are made where they are missing. A signal waits for
 * it to end.
 */
bool writeWithFolders(const QByteArray &bytes, const QString &file, QString *error);

/**
 * Files that come to their places together or not at all.
 *
 * Each is written whole to a stage, a hidden folder on the disk where it is to lie; publish() then
 * looks at all places, and moves all files. What goes wrong, or a signal that ends the program,
 * leaves what was there before.
 */
class StagedFiles
{
public:
    /** A new empty folder, for the caller to fill, on the stage for @p target. Empty on failure. */
    QString newFolder(const QString &target, QString *error);
    /** Takes a file, written to a folder of the stage, up to be moved to @p target. */
    void add(const QString &staged, const QString &target);

    /**
     * Moves the files to their places, in the order of add(). A link is followed to its file, and
     * the permissions of files that are replaced are kept.
     */
    bool publish(QString *error);

private:
    struct File
    {
        QString staged;
        QString target;
        QString old; // where what is replaced is kept meanwhile
    };
    using Files = std::vector<File>;

    QString keptName(const File &file) const;
    bool keepOld(File *file, QString *error) const;
    void rollBack(Files::iterator end, QString *error);

    NewFolders m_newFolders; // goes last, when the stages in them are gone
    std::map<QString, std::unique_ptr<TemporaryFolder>> m_stages; // by the folder they stand in
    Files m_files;
    int m_folders = 0;
};
