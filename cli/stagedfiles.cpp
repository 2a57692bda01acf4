#include "stagedfiles.h"

#include "core/mrvcoreutil.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

#include <unistd.h>

namespace {

bool isThere(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

bool copyFile(const QString &from, const QString &to, QString *error)
{
    QString reason;
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(from, &reason);
    if (!reason.isEmpty()) {
        *error = reason;
        return false;
    }
    return MRVCoreUtil::WriteBinaryFile(bytes, to, error);
}

// By name alone where that does; the checked writer follows links, and crosses to other disks.
bool putInPlace(const QString &from, const QString &to, QString *error)
{
    const bool link = QFileInfo(to).isSymLink();
    return (!link
            && std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData())
                == 0)
        || copyFile(from, to, error);
}

bool isWritableTarget(const QString &target, QString *error)
{
    const QFileInfo info(target);
    if (info.isDir()) {
        *error = QStringLiteral("%1: a folder is in the file's place").arg(target);
    } else if (info.exists() && !info.isFile()) {
        *error = QStringLiteral("%1: it is not a regular file").arg(target);
    } else if (info.exists() && !info.isWritable()) {
        *error = QStringLiteral("%1: the file is write-protected").arg(target);
    } else {
        return true;
    }
    return false;
}

} // namespace

NewFolders::~NewFolders()
{
    while (!m_made.isEmpty()) {
        QDir().rmdir(m_made.takeLast());
    }
}

bool NewFolders::makeFor(const QString &file, QString *error)
{
    const QString folder = QFileInfo(file).path(); // "link/.." is not to be shortened
    QStringList missing;
    for (QString path = folder; !isThere(path); path = QFileInfo(path).path()) {
        missing.prepend(path);
    }
    for (const QString &path : qAsConst(missing)) {
        if (QDir().mkdir(path)) {
            m_made.append(path);
        }
    }
    if (QFileInfo(folder).isDir()) {
        return true;
    }
    *error = QStringLiteral("%1: the folder cannot be made").arg(folder);
    return false;
}

QString StagedFiles::newFolder(const QString &target, QString *error)
{
    if (!m_newFolders.makeFor(target, error)) {
        return QString();
    }
    const QString place = QFileInfo(QFileInfo(target).path()).canonicalFilePath();
    std::unique_ptr<TemporaryFolder> &stage = m_stages[place];
    if (!stage) {
        stage = std::make_unique<TemporaryFolder>(place);
    }
    const QString folder = stage->path() + u'/' + QString::number(++m_folders);
    if (stage->path().isEmpty() || !QDir().mkdir(folder)) {
        *error = QStringLiteral("%1: no file can be made here").arg(place);
        if (!stage->errorString().isEmpty()) {
            *error += QStringLiteral(" (%1)").arg(stage->errorString());
        }
        return QString();
    }
    return folder;
}

void StagedFiles::add(const QString &staged, const QString &target)
{
    m_files.push_back({staged, target, QString()});
}

bool StagedFiles::publish(QString *error)
{
    const SignalsHeld held;
    for (const File &file : m_files) {
        if (!m_newFolders.makeFor(file.target, error) || !isWritableTarget(file.target, error)) {
            return false;
        }
    }
    for (auto file = m_files.begin(); file != m_files.end(); ++file) {
        if (!keepOld(&*file, error) || !putInPlace(file->staged, file->target, error)) {
            rollBack(file, error);
            return false;
        }
    }
    m_newFolders.keep();
    m_files.clear();
    m_stages.clear();
    return true;
}

QString StagedFiles::keptName(const File &file) const
{
    return file.staged + QLatin1String(".old");
}

// A second name where the disk has such: the file itself must never be missing from its place.
bool StagedFiles::keepOld(File *file, QString *error) const
{
    const QFileInfo target(file->target);
    if (!target.exists()) {
        return true;
    }
    const QString old = keptName(*file);
    const bool linked = !target.isSymLink()
        && ::link(QFile::encodeName(file->target).constData(), QFile::encodeName(old).constData())
            == 0;
    if (!linked && !copyFile(file->target, old, error)) {
        return false;
    }
    QFile::setPermissions(file->staged, target.permissions());
    file->old = old;
    return true;
}

void StagedFiles::rollBack(Files::iterator end, QString *error)
{
    for (auto file = end; file != m_files.begin();) {
        --file;
        QString reason;
        if (file->old.isEmpty()) {
            QFile::remove(QFileInfo(file->target).canonicalFilePath());
        } else if (!putInPlace(file->old, file->target, &reason)) {
            for (const auto &stage : m_stages) {
                if (file->old.startsWith(stage.second->path())) {
                    stage.second->keep();
                }
            }
            *error += QStringLiteral("; the old file is kept as %1").arg(file->old);
        }
    }
}

bool writeWithFolders(const QByteArray &bytes, const QString &file, QString *error)
{
    const SignalsHeld held; // a half-written file would lie about
    NewFolders folders;
    if (!folders.makeFor(file, error) || !MRVCoreUtil::WriteBinaryFile(bytes, file, error)) {
        return false;
    }
    folders.keep();
    return true;
}
