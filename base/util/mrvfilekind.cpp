#include "util/mrvfilekind.h"

#include "util/mrvfailure.h"

#include "core/mrvcoreutil.h"

#include <QFileInfo>

bool MRVFileKind::mayReplace(const QString &path, Test isOfKind, QString *error)
{
    const QFileInfo file(path);
    if (!file.exists()) {
        return true;
    }
    if (!file.isFile()) {
        return MRV::fail(error, path, tr("it is not a regular file"));
    }
    if (file.size() == 0) {
        return true;
    }
    QString unreadable;
    const QByteArray bytes = MRVCoreUtil::ReadBinaryFile(path, &unreadable);
    if (!unreadable.isEmpty()) {
        return MRV::fail(error, unreadable);
    }
    return isOfKind(bytes)
        || MRV::fail(error, path, tr("it holds something else, which is not overwritten"));
}
