#include "core/mrvfilebatch.h"

#include "core/mrvpendingfile_p.h"

#include <utility>

namespace {

// Each is an open file, of which a program may have 1024.
constexpr std::size_t MostFiles = 128;

} // namespace

MRVFileBatch::MRVFileBatch() = default;

MRVFileBatch::~MRVFileBatch() = default;

bool MRVFileBatch::add(const QString &path, const QByteArray &bytes, MRVErrorSink error)
{
    auto file = std::make_unique<MRVPendingFile>(path);
    if (!file->fill(MRVPendingFile::contentOf(bytes), error)) {
        return false;
    }
    file->startSync();
    m_files.push_back(std::move(file));
    if (m_files.size() == MostFiles) {
        putInPlace();
    }
    return true;
}

QMap<QString, MRVError> MRVFileBatch::commit()
{
    putInPlace();
    return std::exchange(m_failed, QMap<QString, MRVError>());
}

// All are synced before the first rename, which the file system would have to sync again.
void MRVFileBatch::putInPlace()
{
    using Step = bool (MRVPendingFile::*)(MRVErrorSink);
    for (const Step step : {&MRVPendingFile::sync, &MRVPendingFile::putInPlace}) {
        for (std::unique_ptr<MRVPendingFile> &file : m_files) {
            MRVError reason;
            if (file && !(file.get()->*step)(&reason)) {
                m_failed.insert(file->path(), reason);
                file.reset();
            }
        }
    }
    m_files.clear();
}
