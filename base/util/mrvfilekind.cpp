#include "util/mrvfilekind.h"

#include "util/mrvfailure.h"

#include "core/mrvcoreutil.h"

#include <QFileInfo>

bool MRVFileKind::mayReplace(const QString &path, Test isOfKind, QString *error)
{
    if (MRVCoreUtil::isMissing(path)) {
        return true;
    }
    if (!QFileInfo(path).isFile()) {
        return MRV::fail(error, path, tr("it is not a regular file"));
    }
    QString unreadable;
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path, &unreadable);
    if (!unreadable.isEmpty()) {
        return MRV::fail(error, unreadable);
    }
    return bytes.isEmpty() || isOfKind(bytes)
        || MRV::fail(error, path, tr("it holds something else, which is not overwritten"));
}
