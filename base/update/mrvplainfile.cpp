#include "update/mrvplainfile_p.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

bool mrvOpenPlain(QFile *file, const QString &path, QIODevice::OpenMode mode)
{
    // A pipe would keep a blocking open() waiting for its other end.
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        return false;
    }
    struct stat status;
    const bool isOurs = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)
        && (status.st_uid == ::geteuid() || status.st_uid == 0);
    if (isOurs
        && file->open(descriptor, QIODevice::ReadOnly | mode, QFileDevice::AutoCloseHandle)) {
        return true;
    }
    ::close(descriptor);
    return false;
}

bool mrvMakeExecutable(const QString &path)
{
    QFile file;
    struct stat status;
    return mrvOpenPlain(&file, path) && ::fstat(file.handle(), &status) == 0
        && ::fchmod(file.handle(), status.st_mode | S_IXUSR) == 0;
}
