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
bool makeEmpty(const QString &name, QFile::Permissions permissions)
{
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        return false;
    }
    const bool done = file.setPermissions(permissions);
    if (!done) {
        file.remove();
    }
    return done;
}

} // namespace

bool MRVSourceFile::replace(const QString &path, const QByteArray &before, const QByteArray &after,
                            QString *backup, QString *error)
{
    QString unreadable;
    const QByteArray found = MRVCoreUtil::ReadBinaryFile(path, &unreadable);
    if (!unreadable.isEmpty() || found != before) {
        return MRV::fail(error, path, tr("the file has been changed meanwhile"));
    }
    if (!backup) {
        return MRVFileWriter::write(path, after, error);
    }
    const QString kept = freeBackupName(path);
    if (!makeEmpty(kept, QFileInfo(path).permissions())) {
        return MRV::fail(error, kept, tr("the backup cannot be made"));
    }
    if (!MRVFileWriter::write(kept, before, error) || !MRVFileWriter::write(path, after, error)) {
        QFile::remove(kept);
        return false;
    }
    *backup = kept;
    return true;
}
