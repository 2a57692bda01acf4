#include "core/mrvpendingfile_p.h"

#include "core/mrverrorline_p.h"
#include "core/mrvfilesteps_p.h"

#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace {

// The longest name, in bytes, to which QSaveFile can append the ".XXXXXX" of its temporary file.
constexpr int MaxSavedName = 255 - 7;

} // namespace

MRVPendingFile::MRVPendingFile(const QString &path)
    : m_path(path)
{
}

MRVPendingFile::~MRVPendingFile() = default;

bool MRVPendingFile::fill(const MRVPendingFile::Content &content, MRVErrorSink error)
{
    QString target;
    MRVError reason = MrvFileSteps::refusal(m_path, &target);
    if (!reason) {
        m_target.setFile(target);
        reason = writeTemporary(content);
    }
    return !reason || fail(reason, error);
}

MRVError MRVPendingFile::writeTemporary(const MRVPendingFile::Content &content)
{
    // A name too long for QSaveFile is given in a second step, from a name that nobody else uses.
    const bool isLong = QFile::encodeName(m_target.fileName()).size() > MaxSavedName;
    if (m_target.exists() && !m_target.isWritable()) {
        return MRVError::ofSystem(EACCES);
    }
    const QString place = isLong
        ? m_target.path() + QLatin1String("/.") + QUuid::createUuid().toString(QUuid::Id128)
        : m_target.filePath();
    m_file = std::make_unique<QSaveFile>(place);
    if (!m_file->open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        return MRVError::ofDevice(*m_file);
    }
    MrvFileSteps::keepOwner(m_file->handle(), m_target.filePath());
    if (isLong && m_target.exists()) {
        m_file->setPermissions(m_target.permissions());
    }
    // commit() alone reports success on a full disk, where the last write came back short and the
    // buffer could not be flushed.
    MRVError reason;
    if (!content(m_file.get(), &reason)) {
        return reason ? reason : MRVError::ofDevice(*m_file);
    }
    return m_file->flush() ? MRVError() : MRVError::ofDevice(*m_file);
}

void MRVPendingFile::startSync()
{
    // A hint: sync() is what counts.
    (void)::sync_file_range(m_file->handle(), 0, 0, SYNC_FILE_RANGE_WRITE);
}

bool MRVPendingFile::sync(MRVErrorSink error)
{
    return MrvFileSteps::syncToDisk(m_file->handle()) || fail(MRVError::ofSystem(errno), error);
}

bool MRVPendingFile::putInPlace(MRVErrorSink error)
{
    const QString place = m_file->fileName();
    if (!m_file->commit()) {
        return fail(MRVError::ofDevice(*m_file), error);
    }
    m_file.reset();
    return place == m_target.filePath() || MrvFileSteps::renameOver(place, m_target.filePath())
        || fail(MRVError::ofSystem(errno), error);
}

bool MRVPendingFile::fail(const MRVError &reason, MRVErrorSink error)
{
    m_file.reset(); // with the temporary file
    mrvSetErrorLine(error, MRVPendingFile::tr("Cannot write the file \"%1\": %2"), m_path, reason);
    return false;
}

MRVPendingFile::Content MRVPendingFile::contentOf(const QByteArray &bytes)
{
    return [bytes](QIODevice *device, MRVErrorSink reason) {
        return MrvFileSteps::writeAll(device, bytes, reason);
    };
}
