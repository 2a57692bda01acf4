#include "manuscript/mrvsourcefile.h"

#include "util/mrvfailure.h"

#include "core/mrvcoreutil.h"
#include "core/mrvfilewriter.h"

#include <QFile>
#include <QFileInfo>

namespace {

QString freeBackupName(const QString &path)
{
    QString name = path + u'~';
    for (int i = 1; QFileInfo::exists(name) || QFileInfo(name).isSymLink(); ++i) {
        name = path + u'~' + QString::number(i);
    }
    return name;
}

// What only some may read stays so in the backup: it gets its permissions while it is empty, and
// the writer keeps those of the file that it replaces.
MRVError makeEmpty(const QString &name, QFile::Permissions permissions)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        return MRVError::ofDevice(file);
    }
    if (file.setPermissions(permissions)) {
        return {};
    }
    const MRVError reason = MRVError::ofDevice(file);
    file.remove();
    return reason;
}

} // namespace

bool MRVSourceFile::replace(const QString &path, const QByteArray &before, const QByteArray &after,
                            QString *backup, MRVErrorSink error)
{
    MRVError unreadable;
    const QByteArray found = MRVCoreUtil::ReadBinaryFile(path, &unreadable);
    if (unreadable || found != before) {
        return MRV::fail(error, path,
                         {MRVErrorKind::Changed, tr("the file has been changed meanwhile")});
    }
    if (!backup) {
        return MRVFileWriter::write(path, after, error);
    }
    const QString kept = freeBackupName(path);
    const MRVError reason = makeEmpty(kept, QFileInfo(path).permissions());
    if (reason) {
        return MRV::fail(error, kept, {reason.kind, tr("the backup cannot be made")});
    }
    if (!MRVFileWriter::write(kept, before, error) || !MRVFileWriter::write(path, after, error)) {
        QFile::remove(kept);
        return false;
    }
    *backup = kept;
    return true;
}
