#include "util/mrvfilekind.h"

#include "util/mrvfailure.h"

#include "core/mrvcoreutil.h"

#include <QFileInfo>

bool MRVFileKind::mayReplace(const QString &path, Test isOfKind, MRVErrorSink error)
{
    if (MRVCoreUtil::isMissing(path)) {
        return true;
    }
    if (!QFileInfo(path).isFile()) {
        return MRV::fail(error, path, {MRVErrorKind::Other, tr("it is not a regular file")});
    }
    MRVError unreadable;
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path, &unreadable);
    if (unreadable) {
        return MRV::fail(error, unreadable);
    }
    return bytes.isEmpty() || isOfKind(bytes)
        || MRV::fail(
               error, path,
               {MRVErrorKind::Damaged, tr("it holds something else, which is not overwritten")});
}
