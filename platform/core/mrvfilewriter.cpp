#include "core/mrvfilewriter.h"

#include "core/mrverrorline_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include <unistd.h>

namespace {

// As many links as the kernel follows before it reports a circle.
constexpr int MaxLinks = 40;

QString realTarget(const QString &path)
{
    QFileInfo info(path);
    for (int i = 0; info.isSymLink(); ++i) {
        if (i == MaxLinks)
            return QString();
        if (info.exists())
            return info.canonicalFilePath();
        // The link leads nowhere yet. Not symLinkTarget(), which takes "folder/.." away even where
        // the folder is itself a link to somewhere else.
        std::error_code error;
        const auto raw =
            std::filesystem::read_symlink(QFile::encodeName(info.filePath()).constData(), error);
        const QString next = QFile::decodeName(raw.c_str());
        info.setFile(QDir::isAbsolutePath(next) ? next : info.path() + QLatin1Char('/') + next);
    }
    // Resolved by the system, since QSaveFile too would shorten "folder/..".
    const QString folder = QFileInfo(info.path()).canonicalFilePath();
    return folder.isEmpty() ? info.filePath() : folder + QLatin1Char('/') + info.fileName();
}

// Network and copy-on-write file systems report a full disk only here. Those that cannot sync at
// all say so, which is no failure.
bool syncToDisk(int handle)
{
    int result;
    do {
        result = ::fsync(handle);
    } while (result != 0 && errno == EINTR);
    return result == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
}

// A disk that fills up takes a part of the bytes without an error; only the next write has one.
bool writeAll(QFileDevice &file, const QByteArray &bytes)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 count = file.write(bytes.constData() + done, bytes.size() - done);
        if (count <= 0)
            return false;
        done += count;
    }
    return file.flush();
}

} // namespace

bool MRVFileWriter::write(const QString &path, const QByteArray &bytes, QString *error)
{
    const auto fail = [&](const QString &reason) {
        mrvSetErrorLine(error, tr("Cannot write the file \"%1\": %2"), path, reason);
        return false;
    };

    if (path.isEmpty())
        return fail(tr("the file has no name"));
    const QString target = realTarget(path);
    if (target.isEmpty())
        return fail(tr("its symbolic links lead round in a circle"));
    const QFileInfo info(target);
    if (info.isDir() || target.endsWith(QLatin1Char('/')))
        return fail(tr("it is a folder"));
    if (info.exists() && !info.isFile())
        return fail(tr("it is not a regular file"));
    if (!info.dir().exists())
        return fail(tr("its folder does not exist"));

    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return fail(file.errorString());

    // commit() alone reports success on a full disk, where the last write came back short and the
    // buffer could not be flushed.
    QString reason;
    if (!writeAll(file, bytes)) {
        reason = file.errorString();
    } else if (!syncToDisk(file.handle())) {
        reason = qt_error_string(errno);
    } else {
        if (file.commit())
            return true;
        return fail(file.errorString());
    }
    file.cancelWriting();
    file.commit();
    return fail(reason);
}
