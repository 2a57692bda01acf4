#include "publish/mrvstagedfiles.h"

#include "publish/mrvnewfolders_p.h"
#include "util/mrvfailure.h"
#include "util/mrvtemporaryfolder.h"

#include "core/mrvcoreutil.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

#include <unistd.h>

namespace {

bool copyFile(const QString &from, const QString &to, MRVErrorSink error)
{
    MRVError unreadable;
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(from, &unreadable);
    if (unreadable) {
        return MRV::fail(error, unreadable);
    }
    return MRVCoreUtil::WriteBinaryFile(bytes, to, error);
}

// By name alone where that does; the checked writer follows links, and crosses to other disks.
bool putInPlace(const QString &from, const QString &to, MRVErrorSink error)
{
    const bool link = QFileInfo(to).isSymLink();
    return (!link
            && std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData())
                == 0)
        || copyFile(from, to, error);
}

template<typename Content>
bool writeHeld(const Content &content, const QString &file, MRVErrorSink error)
{
    const MRVHeldSignals held; // a temporary file would remain
    MRVNewFolders folders;
    if (!folders.makeFor(file, error) || !MRVFileWriter::write(file, content, error)) {
        return false;
    }
    folders.keep();
    return true;
}

} // namespace

MRVStagedFiles::MRVStagedFiles()
    : m_newFolders(std::make_unique<MRVNewFolders>())
{
}

MRVStagedFiles::~MRVStagedFiles() = default;

QString MRVStagedFiles::newFolder(const QString &target, MRVErrorSink error)
{
    if (!m_newFolders->makeFor(target, error)) {
        return QString();
    }
    const QString place = QFileInfo(QFileInfo(target).path()).canonicalFilePath();
    std::unique_ptr<MRVTemporaryFolder> &stage = m_stages[place];
    if (!stage) {
        stage = std::make_unique<MRVTemporaryFolder>(place);
    }
    const QString folder = stage->path() + u'/' + QString::number(++m_folders);
    if (stage->path().isEmpty() || !QDir().mkdir(folder)) {
        const MRVError cause = stage->error() ? stage->error() : MRVError::ofSystem(errno);
        MRV::fail(error, place, {cause.kind, tr("no file can be made here (%1)").arg(cause.text)});
        return QString();
    }
    return folder;
}

void MRVStagedFiles::add(const QString &staged, const QString &target)
{
    m_files.push_back({staged, target, QString()});
}

bool MRVStagedFiles::publish(MRVErrorSink error)
{
    const MRVHeldSignals held;
    MRVError reason;
    for (const File &file : m_files) {
        if (!m_newFolders->makeFor(file.target, error) || !isWritableTarget(file.target, error)) {
            return false;
        }
    }
    for (auto file = m_files.begin(); file != m_files.end(); ++file) {
        if (!keepOld(&*file, &reason) || !putInPlace(file->staged, file->target, &reason)) {
            rollBack(file, &reason);
            return MRV::fail(error, reason);
        }
    }
    m_newFolders->keep();
    m_files.clear();
    m_stages.clear();
    return true;
}

bool MRVStagedFiles::isWritableTarget(const QString &target, MRVErrorSink error)
{
    const QFileInfo info(target);
    if (info.isDir()) {
        return MRV::fail(error, target,
                         {MRVErrorKind::Other, tr("a folder is in the file's place")});
    }
    if (info.exists() && !info.isFile()) {
        return MRV::fail(error, target, {MRVErrorKind::Other, tr("it is not a regular file")});
    }
    return !info.exists() || info.isWritable()
        || MRV::fail(error, target,
                     {MRVErrorKind::NoPermission, tr("the file is write-protected")});
}

// A second name where the disk has such: the file itself must never be missing from its place.
bool MRVStagedFiles::keepOld(File *file, MRVErrorSink error)
{
    const QFileInfo target(file->target);
    if (!target.exists()) {
        return true;
    }
    const QString old = file->staged + QLatin1String(".old");
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

void MRVStagedFiles::rollBack(Files::iterator end, MRVError *error)
{
    for (auto file = end; file != m_files.begin();) {
        --file;
        if (file->old.isEmpty()) {
            QFile::remove(QFileInfo(file->target).canonicalFilePath());
        } else if (!putInPlace(file->old, file->target, nullptr)) {
            for (const auto &stage : m_stages) {
                if (file->old.startsWith(stage.second->path())) {
                    stage.second->keep();
                }
            }
            error->text = tr("%1; the old file is kept as %2").arg(error->text, file->old);
        }
    }
}

bool MRVStagedFiles::write(const QByteArray &bytes, const QString &file, MRVErrorSink error)
{
    return writeHeld(bytes, file, error);
}

bool MRVStagedFiles::write(const MRVFileWriter::Content &content, const QString &file,
                           MRVErrorSink error)
{
    return writeHeld(content, file, error);
}
