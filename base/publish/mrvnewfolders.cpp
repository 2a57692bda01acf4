#include "publish/mrvnewfolders_p.h"

#include "util/mrvfailure.h"

#include <QDir>
#include <QFileInfo>

MRVNewFolders::~MRVNewFolders()
{
    while (!m_made.isEmpty()) {
        QDir().rmdir(m_made.takeLast());
    }
}

bool MRVNewFolders::makeFor(const QString &file, MRVErrorSink error)
{
    const auto isThere = [](const QString &path) {
        return QFileInfo::exists(path) || QFileInfo(path).isSymLink();
    };
    const QString folder = QFileInfo(file).path(); // "link/.." is not to be shortened
    QStringList missing;
    for (QString path = folder; !isThere(path); path = QFileInfo(path).path()) {
        missing.prepend(path);
    }
    int reason = ENOTDIR;
    for (const QString &path : qAsConst(missing)) {
        if (QDir().mkdir(path)) {
            m_made.append(path);
        } else {
            reason = errno;
        }
    }
    return QFileInfo(folder).isDir()
        || MRV::fail(error, folder,
                     {MRVError::ofSystem(reason).kind, tr("the folder cannot be made")});
}
