#include "util/mrvkeptcopy.h"

#include "core/mrvcoreutil.h"
#include "core/mrvfilewriter.h"

#include <QFileInfo>

bool MRV::keepCopy(const QString &path, const QByteArray &bytes, MRVErrorSink error)
{
    MRVError unreadable;
    const bool isNew = !QFileInfo::exists(path);
    if (!isNew && MRVCoreUtil::ReadBinaryFile(path, &unreadable) == bytes && !unreadable) {
        return true;
    }
    return MRVFileWriter::write(isNew ? path : MRVCoreUtil::GetUniqueFileName(path), bytes, error);
}
